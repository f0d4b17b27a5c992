// SPDX-License-Identifier: MIT

// The services of Qt with someone who answers: message boxes are written down, modal windows are used.
#pragma once

#include "norvik/platform/qt/sistemaQt.hpp"

#include <QApplication>
#include <QWidget>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace norvik {

class SistemaDePrueba final : public SistemaQt {
public:
    Respuesta muestraMensaje(const Mensaje& mensaje) override {
        mensajes.push_back(mensaje);
        return respuesta;
    }
    /// Each window is used by the first of the uses, and then closed.
    void muestraModal(QWidget& ventana) override {
        ventanas += ventana.objectName().toStdString() + ' ';
        ventana.show();
        if (usos.empty()) return;
        const auto uso = std::move(usos.front());
        usos.pop_front();
        const QPointer<QWidget> viva(&ventana);
        uso(ventana);
        if (!viva.isNull()) ventana.close();
    }
    std::vector<Mensaje> dameMensajes() { return std::exchange(mensajes, {}); }

    std::vector<Mensaje> mensajes;
    Respuesta respuesta = Respuesta::Aceptar;
    std::deque<std::function<void(QWidget& ventana)>> usos;
    std::string ventanas; ///< names of those shown
};

} // namespace norvik
