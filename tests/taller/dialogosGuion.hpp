// SPDX-License-Identifier: MIT

#pragma once

#include "dialogos.hpp"

#include "norvik/platform/qt/sistemaQt.hpp"

#include <QFileInfo>
#include <QStringList>

#include <deque>
#include <functional>
#include <utility>

namespace norvik::taller {

/// Answers questions as told before and keeps a line of each: "¿…?", "abrir TÍTULO", "aviso …".
class DialogosGuion final : public Dialogos {
public:
    QStringList dichos;
    std::deque<Destino> destinos;
    std::deque<Choque> choques;
    std::deque<QString> ficheros; ///< an empty one gives up
    std::deque<QString> nombres;

    QStringList toma() { return std::exchange(dichos, {}); }

    Destino pregunta(const QString& pregunta, const QString& guardar, const QString& /*descartar*/) override {
        dichos += QStringLiteral("%1 %2").arg(guardar, pregunta);
        return siguiente(destinos, Destino::Cancelar);
    }
    Choque preguntaChoque(const QString& pregunta) override {
        dichos += QStringLiteral("choque ") + pregunta.section(u'\n', 0, 0);
        return siguiente(choques, Choque::Cancelar);
    }
    std::optional<QString> eligeParaAbrir(const QString& titulo, const QString& /*filtros*/) override {
        dichos += QStringLiteral("abrir ") + titulo;
        return fichero();
    }
    std::optional<QString> eligeParaGuardar(const QString& titulo, const QString& /*filtros*/,
                                            const QString& propuesto, const QString& /*extension*/) override {
        dichos += QStringLiteral("guardar %1 [%2]").arg(titulo, QFileInfo(propuesto).fileName());
        return fichero();
    }
    std::optional<QString> pideNombre(const QString& /*titulo*/, const QString& ahora,
                                      const std::function<QString(const QString&)>& reparos) override {
        const QString nuevo = siguiente(nombres, {});
        dichos += QStringLiteral("nombre %1 [%2] %3").arg(ahora, nuevo, reparos(nuevo));
        return dichos.last().endsWith(u' ') ? std::optional(nuevo) : std::nullopt;
    }

private:
    template <typename Cola>
    static typename Cola::value_type siguiente(Cola& cola, const typename Cola::value_type& omision) {
        if (cola.empty()) return omision;
        auto valor = cola.front();
        cola.pop_front();
        return valor;
    }
    std::optional<QString> fichero() {
        const QString elegido = siguiente(ficheros, {});
        return elegido.isEmpty() ? std::nullopt : std::optional(elegido);
    }
};

/// Message boxes go into the same list.
class SistemaGuion final : public SistemaQt {
public:
    explicit SistemaGuion(DialogosGuion& guion) : guion_(guion) {}

    std::function<void(QWidget& ventana)> conModal; ///< what is done in a modal window

    norvik::Respuesta muestraMensaje(const Mensaje& mensaje) override {
        guion_.dichos += QStringLiteral("aviso ") + QString::fromStdU16String(mensaje.texto);
        return norvik::Respuesta::Aceptar;
    }
    void muestraModal(QWidget& ventana) override {
        guion_.dichos += QStringLiteral("modal ") + ventana.windowTitle();
        ventana.show();
        if (conModal) conModal(ventana);
        ventana.hide();
    }

private:
    DialogosGuion& guion_;
};

} // namespace norvik::taller
