// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/disposicion.hpp"
#include "norvik/platform/qt/medidas.hpp"
#include "norvik/platform/qt/servido.hpp"
#include "norvik/widget/signo.hpp"

#include <QFrame>
#include <QPushButton>
#include <QRect>
#include <QWidget>

#include <memory>
#include <vector>

namespace norvik {

/// A rectangle's edges on whole pixels, so that neighbours meet.
QRect enPixeles(const Rectangulo& rectangulo, const TwipsPorPixel& pixel);

/// The child elements of the control besides its text box, under their names. Lower ones stand first.
class ElementosControl {
public:
    explicit ElementosControl(QWidget& control);

    void coloca(const Disposicion& disposicion, const TwipsPorPixel& pixel);
    /// Shows or hides the five elements of the sunken frame.
    void muestraMarco(bool visible);
    /// A new image of a sign, `sig_Error` with a number, which says to screen readers what it is.
    void ponSignoError(std::int32_t numero, std::int32_t linea, const LugarDeSigno& lugar,
                       const TwipsPorPixel& pixel);

    QWidget separador;
    QFrame bordeClaroBase;
    QFrame bordeNegro;
    QWidget bordeClaro1, bordeClaro2, bordeOscuro1, bordeOscuro2;
    QWidget debugBox;
    Signo sig_Error, sig_Stop, sig_Play, sig_FlujoActual;
    QPushButton controlSpace;
    const DuenioDeServido<QPushButton> tabulador;
    QPushButton captaEnfoque;

private:
    void nombra();
    void pinta();

    std::vector<std::unique_ptr<Signo>> signos_;
};

} // namespace norvik
