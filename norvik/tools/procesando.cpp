// SPDX-License-Identifier: MIT

#include "norvik/tools/procesando.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace norvik {

Procesando::Procesando(SistemaQt& sistema, QWidget* sobre, Aparece cuando)
    : QFrame(sobre, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), sistema_(sistema),
      sistemaVivo_(&sistema.testigo()), anterior_(sistema.ponAviso(this)),
      cancelar_(QStringLiteral("&Cancelar"), this) {
    nombra(*this, "Procesando", QStringLiteral("Procesando ..."));
    setWindowTitle(QStringLiteral("Procesando ..."));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowModality(Qt::ApplicationModal);
    nombra(cancelar_, "cancelar", QStringLiteral("Cancelar"));
    connect(&cancelar_, &QPushButton::clicked, this, &Procesando::cancela);
    dispone();
    if (sobre != nullptr) centra(*this, *sobre);
    if (cuando == Aparece::Ya) show();
}

Procesando::~Procesando() {
    parada().request_stop();
    if (!sistemaVivo_.isNull()) sistema_.ponAviso(anterior_);
}

void Procesando::dispone() {
    auto& textos = nuevo<QVBoxLayout>(this);
    const int margen = fontMetrics().height() * 2;
    textos.setContentsMargins(margen, margen / 2, margen, margen / 2);
    auto& titulo = nuevo<QLabel>(QStringLiteral("Procesando ..."), this);
    QFont letra = titulo.font();
    letra.setBold(true);
    titulo.setFont(letra);
    textos.addWidget(&titulo, 0, Qt::AlignCenter);
    textos.addWidget(&nuevo<QLabel>(QStringLiteral("Espere, por favor."), this), 0, Qt::AlignCenter);
    textos.addWidget(&cancelar_, 0, Qt::AlignCenter);
    adjustSize();
}

/// The pointer is for who can do something.
void Procesando::tarda() {
    setCursor(Qt::ArrowCursor);
    show();
    raise();
    activateWindow();
    cancelar_.setFocus();
}

void Procesando::cancela() {
    cancelar_.setEnabled(false);
    parada().request_stop();
}

void Procesando::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape) return cancela();
    QFrame::keyPressEvent(evento);
}

void Procesando::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    cancela();
}

void trabajaConAviso(SistemaQt& sistema, QWidget* sobre,
                     const std::function<void(std::stop_token)>& trabajo) {
    const VentanaDeAmbito<Procesando> aviso(sistema, sobre, Procesando::Aparece::SiTarda);
    sistema.trabaja(trabajo);
}

void reconoceConAviso(ControlNorvik& norvik) {
    const VentanaDeAmbito<Procesando> aviso(norvik.sistema(), norvik.window(), Procesando::Aparece::SiTarda);
    norvik.control().reconoceTexto();
}

void coloreaConAviso(ControlNorvik& norvik) {
    const VentanaDeAmbito<Procesando> aviso(norvik.sistema(), norvik.window(), Procesando::Aparece::SiTarda);
    try {
        norvik.control().ColoreaTodo();
    } catch (const OperacionCancelada&) {
        return;
    }
}

} // namespace norvik
