// SPDX-License-Identifier: MIT

#include "norvik/tools/ventanaEditor.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/historial.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QCloseEvent>
#include <QDialog>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QToolButton>

namespace norvik {

VentanaEditor::VentanaEditor(SistemaQt& sistema, const char* nombre, const QString& titulo, QWidget* padre)
    : QMainWindow(padre), sistema_(sistema), norvik1_(sistema, this), barra_(titulo, this), lugar_(this) {
    setObjectName(QLatin1String(nombre));
    setWindowTitle(titulo);
    setContextMenuPolicy(Qt::NoContextMenu); // nothing there but hiding the bar
    nombra(norvik1_, "Norvik1", titulo);
    setCentralWidget(&norvik1_);
    nombra(barra_, "SSActiveToolBars1", QStringLiteral("Herramientas"));
    barra_.setMovable(false);
    barra_.setFocusPolicy(Qt::NoFocus);
    addToolBar(&barra_);
    nombra(*statusBar(), "StatusBar1", QStringLiteral("Barra de estado"));
    nombra(lugar_, "Panel1", QStringLiteral("Lugar del cursor"));
    lugar_.setTextFormat(Qt::PlainText);
    statusBar()->addWidget(&lugar_);
    norvik1_.Colorear(true);
    norvik1_.MuestraMensajesDeError(true);
    norvik1_.MarcarErrores(true);
    connect(&norvik1_, &ControlNorvik::SelChange, this, [this] { muestraLugar(); });
    connect(&norvik1_, &ControlNorvik::change, this, [this] { muestraHistorial(); });
    const QFontMetrics letra(norvik1_.Font());
    constexpr int columnas = 90;
    constexpr int lineas = 32;
    mide(*this, {letra.horizontalAdvance(u'x') * columnas, letra.lineSpacing() * lineas});
    if (padre != nullptr) centra(*this, *padre);
    muestraLugar();
}

// ---- commands

void VentanaEditor::ejecuta(const std::function<void()>& orden) {
    if (ocupada_) return;
    const QScopedValueRollback<bool> ocupada(ocupada_, true);
    norvik::ejecuta(sistema_, orden);
    norvik::ejecuta(sistema_, [this] {
        muestraLugar();
        muestraHistorial();
    });
}

QAction& VentanaEditor::herramienta(const char* id, const QString& rotulo, const QKeySequence& teclas,
                                    const std::function<void()>& orden) {
    auto& accion = nuevo<QAction>(rotulo, this);
    accion.setObjectName(QLatin1String(id));
    accion.setShortcut(teclas);
    addAction(&accion);
    connect(&accion, &QAction::triggered, this, [this, orden] { ejecuta(orden); });
    return accion;
}

/// A tool that does nothing, and looks so.
QAction& VentanaEditor::sinAccion(const char* id, const QString& rotulo) {
    QAction& accion = herramienta(id, rotulo, {}, [] {});
    accion.setEnabled(false);
    return accion;
}

void VentanaEditor::ponEnBarra(QAction& accion, Dibujo dibujo) {
    accion.setIcon(icono(dibujo));
    barra_.addAction(&accion);
}

void VentanaEditor::ponEnBarraConTexto(QAction& accion, Dibujo dibujo) {
    accion.setIconText(accion.text()); // the caption to the letter
    ponEnBarra(accion, dibujo);
    qobject_cast<QToolButton*>(barra_.widgetForAction(&accion))
        ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void VentanaEditor::ponMenus(const QString& primero, const QList<QAction*>& propias,
                             const QString& informacion) {
    QAction& imprimir = herramienta("imprimir", QStringLiteral("&Imprimir"), QKeySequence::Print,
                                    [this] { norvik1_.control().Imprimir(); });
    QAction& salir =
        herramienta("salir", QStringLiteral("Salir"), QStringLiteral("Ctrl+Q"), [this] { cierra(); });
    QMenu& menu = *menuBar()->addMenu(primero);
    menu.addActions(propias);
    menu.addAction(&imprimir);
    menu.addSeparator();
    menu.addAction(&salir);
    barra_.addSeparator();
    ponEnBarra(imprimir, Dibujo::Imprimir);
    ponEdicion();
    ponAyuda(informacion);
}

void VentanaEditor::ponEdicion() {
    Norvik& control = norvik1_.control();
    undo_ = &herramienta("ID_Undo", QStringLiteral("Undo"), QStringLiteral("Ctrl+Z"),
                         [&control] { control.Undo(); });
    redo_ = &herramienta("ID_Redo", QStringLiteral("Redo"), QStringLiteral("Ctrl+Y"),
                         [&control] { control.Redo(); });
    QAction& todo = herramienta("seleccionarTodo", QStringLiteral("Seleccionar todo"),
                                QStringLiteral("Ctrl+A"), [this] { seleccionaTodo(); });
    QAction& borra = herramienta("Clear", QStringLiteral("Borrar todo"), {}, [this] { borraTodo(); });
    QAction& busca = herramienta("buscar", QStringLiteral("Buscar"), QStringLiteral("Ctrl+F"),
                                 [&control] { control.ShowBuscarDialog(); });
    sinAccion("buscarSiguiente", {});
    sinAccion("reemplazar", {});
    QMenu& menu = *menuBar()->addMenu(QStringLiteral("&Edición"));
    menu.addActions({undo_, redo_});
    menu.addSeparator();
    menu.addActions({&sinAccion("copiar", QStringLiteral("Copiar")),
                     &sinAccion("cortar", QStringLiteral("Cortar")),
                     &sinAccion("pegar", QStringLiteral("Pegar"))});
    menu.addSeparator();
    menu.addActions({&todo, &borra});
    barra_.addSeparator();
    ponEnBarra(*undo_, Dibujo::Deshacer);
    ponEnBarra(*redo_, Dibujo::Rehacer);
    barra_.addSeparator();
    ponEnBarra(busca, Dibujo::Buscar);
    muestraHistorial();
}

void VentanaEditor::ponAyuda(const QString& informacion) {
    std::u16string texto = informacion.toStdU16String();
    texto.append(saltoDeLinea).append(u"Componente de Norvik");
    const Mensaje acerca{texto, u"Acerca de...", Icono::Pregunta};
    QMenu& menu = *menuBar()->addMenu(QStringLiteral("A&yuda"));
    menu.addActions({&sinAccion("ayuda", QStringLiteral("Indice")),
                     &herramienta("acercaDe", QStringLiteral("Acerca de ..."), {},
                                  [this, acerca] { sistema_.muestraMensaje(acerca); })});
}

void VentanaEditor::seleccionaTodo() {
    Norvik& control = norvik1_.control();
    const std::int16_t longitud = a16(norvik1_.caja().texto().size(), u"la longitud del texto");
    control.SelStart(0);
    control.SelLength(longitud);
}

void VentanaEditor::borraTodo() {
    const Respuesta respuesta = sistema_.muestraMensaje(
        {u"Confirme borrar el contenido del texto", u"Atencion", Icono::Pregunta, Botones::AceptarCancelar});
    if (respuesta == Respuesta::Aceptar) norvik1_.control().BorraTodo();
}

// ---- what is shown

void VentanaEditor::muestraLugar() {
    const CajaTextoQt& caja = norvik1_.caja(); // the control numbers 32,767 lines
    lugar_.setText(QStringLiteral("Lin %1, Col %2")
                       .arg(caja.lineaDeCaracter(caja.inicioSeleccion()) + 1)
                       .arg(norvik1_.control().ColumnaActual()));
}

void VentanaEditor::muestraHistorial() {
    const Historial& historial = norvik1_.control().historial();
    undo_->setEnabled(historial.undos().cuantas() > 1);
    redo_->setEnabled(historial.redos().cuantas() > 0);
}

// ---- opening and closing

void VentanaEditor::showEvent(QShowEvent* evento) {
    QMainWindow::showEvent(evento);
    if (evento->spontaneous()) return;
    norvik1_.setFocus();
    sinFallos([this] { muestraLugar(); });
    sistema_.ponPuntero(Puntero::Normal);
}

void VentanaEditor::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow()) sistema_.ponPuntero(Puntero::Normal);
}

/// Not in the middle of a command, which then works on a window that is there.
void VentanaEditor::closeEvent(QCloseEvent* evento) {
    evento->setAccepted(!ocupada_);
    if (!ocupada_) norvik::ejecuta(sistema_, [this] { acaba(); });
}

void VentanaEditor::cierra() {
    acaba();
    hide();
}

/// The find dialog, when it searches this window, goes with it.
void VentanaEditor::acaba() {
    const auto abiertas = findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly);
    for (QDialog* ventana : abiertas) ventana->close();
    alCerrar();
}

} // namespace norvik
