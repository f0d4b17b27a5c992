// SPDX-License-Identifier: MIT

#include "presentacion.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <chrono>
#include <utility>

namespace norvik::taller {

namespace {

constexpr int aumentoDeTextos = 160; ///< per cent
constexpr double aumentoDeLetra = 1.4;
constexpr std::chrono::milliseconds hastaColocarse{100}; ///< what windows take for their new letters

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

/// The line that one writes on, if it can be seen, can be seen with the other letters, too.
void conservaElCursor(ControlNorvik& norvik) {
    VistaTexto& vista = norvik.caja().vista();
    if (!vista.viewport()->rect().intersects(vista.cursorRect())) return;
    QTimer::singleShot(hastaColocarse, &vista, [&vista] { vista.ensureCursorVisible(); });
}

} // namespace

/// A dock whose font is not just the program's paints its title with its own.
void ponLetraDelTitulo(QDockWidget& panel) {
    QFont casiIgual;
    casiIgual.setStyleStrategy(QFont::PreferAntialias);
    panel.setFont(casiIgual);
}

void Presentacion::pon(bool puesta) {
    if (puesta == puesta_) return;
    puesta_ = puesta;
    if (puesta) {
        letra_ = QApplication::font();
        paleta_ = QApplication::palette();
        anotaAnchos();
    }
    for (QWidget* const ventana : QApplication::topLevelWidgets())
        for (auto* const norvik : ventana->findChildren<ControlNorvik*>()) conservaElCursor(*norvik);
    QFont letra = letra_;
    if (puesta) letra.setPointSizeF(letra.pointSizeF() * aumentoDeLetra);
    QApplication::setFont(letra);
    QApplication::setPalette(puesta ? deProyector() : paleta_);
    for (const Antes& antes : std::exchange(antes_, {}))
        if (antes.norvik) antes.norvik->aumento(antes.aumento);
    if (!puesta) return reponAnchos();
    for (QWidget* const ventana : QApplication::topLevelWidgets()) aplica(*ventana);
}

/// Of those tabbed together the one in front has the width of all.
void Presentacion::anotaAnchos() {
    for (QWidget* const ventana : QApplication::topLevelWidgets())
        for (auto* const panel : ventana->findChildren<QDockWidget*>())
            if (!panel->isFloating() && !panel->visibleRegion().isEmpty())
                anchos_.push_back({panel, panel->width()});
}

/// Large letters have widened them, and small ones need no less room.
void Presentacion::reponAnchos() {
    for (const Ancho& ancho : std::exchange(anchos_, {})) {
        if (!ancho.panel) continue;
        QTimer::singleShot(hastaColocarse, ancho.panel, [panel = ancho.panel.data(), antes = ancho.antes] {
            auto* const ventana = qobject_cast<QMainWindow*>(panel->parentWidget());
            if (ventana == nullptr || panel->isFloating() || panel->isHidden()) return;
            ventana->resizeDocks({panel}, {antes}, Qt::Horizontal);
        });
    }
}

void Presentacion::aplica(QWidget& ventana) {
    for (auto* const norvik : ventana.findChildren<ControlNorvik*>()) {
        antes_.push_back({norvik, norvik->aumento()});
        norvik->aumento(aumentoDeTextos);
    }
}

} // namespace norvik::taller
