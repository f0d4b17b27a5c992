// SPDX-License-Identifier: MIT

#include "presentacion.hpp"

#include "norvik/widget/controlNorvik.hpp"

#include <QApplication>

#include <utility>

namespace norvik::taller {

namespace {

constexpr int aumentoDeTextos = 160; ///< per cent
constexpr double aumentoDeLetra = 1.4;
constexpr const char* titulosDePaneles = "QDockWidgetTitle"; ///< the desktop gives them letters of their own

/// A projector leaves little of a contrast.
QPalette deProyector() {
    QPalette p(QColor(235, 235, 235), Qt::white);
    for (const auto papel :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        p.setColor(papel, Qt::black);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, papel, QColor(100, 100, 100));
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::AlternateBase, QColor(240, 240, 240));
    p.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    p.setColor(QPalette::PlaceholderText, QColor(90, 90, 90));
    p.setColor(QPalette::Link, QColor(0, 0, 160));
    p.setColor(QPalette::Highlight, QColor(0, 60, 140));
    p.setColor(QPalette::HighlightedText, Qt::white);
    return p;
}

} // namespace

void Presentacion::pon(bool puesta) {
    if (puesta == puesta_) return;
    puesta_ = puesta;
    if (puesta) {
        letra_ = QApplication::font();
        letraDePaneles_ = QApplication::font(titulosDePaneles);
        paleta_ = QApplication::palette();
    }
    const auto escala = [&](QFont letra) {
        letra.setPointSizeF(letra.pointSizeF() * (puesta ? aumentoDeLetra : 1));
        return letra;
    };
    QApplication::setFont(escala(letra_));
    QApplication::setFont(escala(letraDePaneles_), titulosDePaneles);
    QApplication::setPalette(puesta ? deProyector() : paleta_);
    for (const Antes& antes : std::exchange(antes_, {}))
        if (antes.norvik) antes.norvik->aumento(antes.aumento);
    if (!puesta) return;
    for (QWidget* const ventana : QApplication::topLevelWidgets()) aplica(*ventana);
}

void Presentacion::aplica(QWidget& ventana) {
    for (auto* const norvik : ventana.findChildren<ControlNorvik*>()) {
        antes_.push_back({norvik, norvik->aumento()});
        norvik->aumento(aumentoDeTextos);
    }
}

} // namespace norvik::taller
