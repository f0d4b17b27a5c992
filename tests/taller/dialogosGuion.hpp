#pragma once

#include "dialogos.hpp"

#include <QFileInfo>
#include <QStringList>

#include <deque>

namespace norvik::taller {

/// Answers questions as told before and keeps a line of each: "¿…?", "abrir TÍTULO", "aviso …".
class DialogosGuion final : public Dialogos {
public:
    QStringList dichos;
    std::deque<Destino> destinos;
    std::deque<QString> ficheros; ///< an empty one gives up

    QStringList toma() { return std::exchange(dichos, {}); }

    void avisa(const Mensaje& mensaje) override {
        dichos += QStringLiteral("aviso ") + QString::fromStdU16String(mensaje.texto);
    }
    Destino preguntaGuardar(const QString& pregunta) override {
        dichos += pregunta;
        return siguiente(destinos, Destino::Cancelar);
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

private:
    template <typename Cola>
    static typename Cola::value_type siguiente(Cola& cola, const typename Cola::value_type& omision) {
        if (cola.empty()) return omision;
        const auto valor = cola.front();
        cola.pop_front();
        return valor;
    }
    std::optional<QString> fichero() {
        const QString elegido = siguiente(ficheros, {});
        return elegido.isEmpty() ? std::nullopt : std::optional(elegido);
    }
};

} // namespace norvik::taller
