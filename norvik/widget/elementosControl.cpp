// SPDX-License-Identifier: MIT

#include "norvik/widget/elementosControl.hpp"

#include "norvik/platform/qt/avisoALectores.hpp"
#include "norvik/platform/qt/nombra.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QPalette>

namespace norvik {

QRect enPixeles(const Rectangulo& r, const TwipsPorPixel& pixel) {
    const QPoint esquina(aPixeles(r.x, pixel.x), aPixeles(r.y, pixel.y));
    const QPoint final(aPixeles(r.x + r.ancho, pixel.x) - 1, aPixeles(r.y + r.alto, pixel.y) - 1);
    return {esquina, final};
}

namespace {

/// An element that only decorates: clicks go to the control beneath.
void decora(QWidget& elemento, QPalette::ColorRole color) {
    elemento.setAttribute(Qt::WA_TransparentForMouseEvents);
    elemento.setBackgroundRole(color);
    elemento.setForegroundRole(color);
}

void decoraTrazo(QWidget& trazo, QPalette::ColorRole color) {
    decora(trazo, color);
    trazo.setAutoFillBackground(true);
}

void decoraMarco(QFrame& marco, QPalette::ColorRole color) {
    decora(marco, color);
    marco.setFrameStyle(QFrame::Box | QFrame::Plain);
}

/// A line is one pixel thick, whatever its direction.
QRect enPixeles(const Linea& l, const TwipsPorPixel& pixel) {
    const QRect r = enPixeles(Rectangulo{l.x1, l.y1, l.x2 - l.x1, l.y2 - l.y1}, pixel);
    return {r.topLeft(), r.size().expandedTo({1, 1})};
}

} // namespace

ElementosControl::ElementosControl(QWidget& control)
    : separador(&control), bordeClaroBase(&control), bordeNegro(&control), bordeClaro1(&control),
      bordeClaro2(&control), bordeOscuro1(&control), bordeOscuro2(&control), debugBox(&control),
      sig_Error(Signo::Dibujo::Error, &debugBox), sig_Stop(Signo::Dibujo::Stop, &debugBox),
      sig_Play(Signo::Dibujo::Play, &debugBox), sig_FlujoActual(Signo::Dibujo::FlujoActual, &debugBox),
      controlSpace(&control), tabulador(&nuevo<Servido<QPushButton>>(&control)), captaEnfoque(&control) {
    nombra();
    pinta();
    for (Signo* modelo : {&sig_Error, &sig_Stop, &sig_Play, &sig_FlujoActual}) modelo->hide();
    controlSpace.setFocusPolicy(Qt::NoFocus);
    captaEnfoque.setFocusPolicy(Qt::ClickFocus);
    constexpr QRect fueraDeLaVista(-100, -100, 50, 20);
    tabulador->setGeometry(fueraDeLaVista);
    captaEnfoque.setGeometry(fueraDeLaVista);
}

void ElementosControl::nombra() {
    using norvik::nombra;
    nombra(separador, "separador", QStringLiteral("Separador"));
    nombra(bordeClaroBase, "bordeClaroBase", QStringLiteral("Fondo del marco"));
    nombra(bordeNegro, "bordeNegro", QStringLiteral("Marco"));
    nombra(bordeClaro1, "bordeClaro1", QStringLiteral("Borde inferior del marco"));
    nombra(bordeClaro2, "bordeClaro2", QStringLiteral("Borde derecho del marco"));
    nombra(bordeOscuro1, "bordeOscuro1", QStringLiteral("Borde superior del marco"));
    nombra(bordeOscuro2, "bordeOscuro2", QStringLiteral("Borde izquierdo del marco"));
    nombra(debugBox, "debugBox", QStringLiteral("Margen de señales"));
    nombra(sig_Error, "sig_Error", QStringLiteral("Error"));
    nombra(sig_Stop, "sig_Stop", QStringLiteral("Parada"));
    nombra(sig_Play, "sig_Play", QStringLiteral("Ejecución"));
    nombra(sig_FlujoActual, "sig_FlujoActual", QStringLiteral("Línea actual"));
    nombra(controlSpace, "controlSpace", QStringLiteral("Margen del texto"));
    nombra(*tabulador, "tabulador", QStringLiteral("Tabulador"));
    nombra(captaEnfoque, "captaEnfoque", QStringLiteral("Edición en curso"));
}

void ElementosControl::pinta() {
    decoraTrazo(separador, QPalette::Mid);
    decoraMarco(bordeClaroBase, QPalette::Light);
    decoraMarco(bordeNegro, QPalette::Shadow);
    decoraTrazo(bordeClaro1, QPalette::Midlight);
    decoraTrazo(bordeClaro2, QPalette::Midlight);
    decoraTrazo(bordeOscuro1, QPalette::Dark);
    decoraTrazo(bordeOscuro2, QPalette::Dark);
    debugBox.setBackgroundRole(QPalette::Window);
    debugBox.setAutoFillBackground(true);
    // The gap looks like the text that it keeps at a distance.
    controlSpace.setStyleSheet(QStringLiteral("border: none; background: palette(base);"));
    controlSpace.setCursor(Qt::IBeamCursor);
}

void ElementosControl::coloca(const Disposicion& d, const TwipsPorPixel& pixel) {
    separador.setGeometry(enPixeles(d.separador, pixel));
    bordeClaroBase.setGeometry(enPixeles(d.bordeClaroBase, pixel));
    bordeNegro.setGeometry(enPixeles(d.bordeNegro, pixel));
    bordeClaro1.setGeometry(enPixeles(d.bordeClaro1, pixel));
    bordeClaro2.setGeometry(enPixeles(d.bordeClaro2, pixel));
    bordeOscuro1.setGeometry(enPixeles(d.bordeOscuro1, pixel));
    bordeOscuro2.setGeometry(enPixeles(d.bordeOscuro2, pixel));
    debugBox.setGeometry(enPixeles(d.debugBox, pixel));
    if (d.controlSpace) controlSpace.setGeometry(enPixeles(*d.controlSpace, pixel));
    controlSpace.setVisible(d.controlSpace.has_value());
}

void ElementosControl::muestraMarco(bool visible) {
    for (QWidget* e : {&bordeClaro1, &bordeClaro2, &bordeOscuro1, &bordeOscuro2}) e->setVisible(visible);
    bordeClaroBase.setVisible(visible);
}

void ElementosControl::ponSignoError(std::int32_t numero, std::int32_t linea, const LugarDeSigno& lugar,
                                     const TwipsPorPixel& pixel) {
    constexpr std::int32_t lado = 240;
    auto signo = std::make_unique<Signo>(Signo::Dibujo::Error, &debugBox);
    const QString texto = QStringLiteral("Error en la línea %1").arg(linea);
    hazAviso(*signo);
    norvik::nombra(*signo, "", texto);
    signo->setObjectName(QStringLiteral("sig_Error%1").arg(numero));
    signo->setGeometry(enPixeles(Rectangulo{lugar.x, lugar.y, lado, lado}, pixel));
    signo->show();
    signos_.push_back(std::move(signo));
}

} // namespace norvik
