// SPDX-License-Identifier: MIT

#include "norvik/widget/accionesControl.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"
#include "norvik/widget/busquedaControl.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "norvik/widget/plegado.hpp"
#include "norvik/widget/ventanasDelControl.hpp"

#include <QApplication>
#include <QClipboard>

#include <array>

namespace norvik {

namespace {

struct Descripcion {
    AccionNorvik accion = AccionNorvik::Deshacer;
    QKeySequence::StandardKey tecla = QKeySequence::UnknownKey; ///< the platform's
    const char* nombre = "";
    const char* texto = "";
    const char* otraTecla = "";
};

constexpr auto ninguna = QKeySequence::UnknownKey;

/// In the order of their numbers.
constexpr auto descripciones = std::to_array<Descripcion>({
    {AccionNorvik::Deshacer, QKeySequence::Undo, "deshacer", "&Deshacer"},
    {AccionNorvik::Rehacer, QKeySequence::Redo, "rehacer", "&Rehacer", "Ctrl+Y"},
    {AccionNorvik::Cortar, QKeySequence::Cut, "cortar", "Cor&tar"},
    {AccionNorvik::Copiar, QKeySequence::Copy, "copiar", "&Copiar"},
    {AccionNorvik::Pegar, QKeySequence::Paste, "pegar", "&Pegar"},
    {AccionNorvik::SeleccionarTodo, QKeySequence::SelectAll, "seleccionarTodo", "&Seleccionar todo"},
    {AccionNorvik::Buscar, QKeySequence::Find, "buscar", "&Buscar…"},
    {AccionNorvik::BuscarSiguiente, ninguna, "buscarSiguiente", "Buscar s&iguiente", "F3"},
    {AccionNorvik::BuscarAnterior, ninguna, "buscarAnterior", "Buscar a&nterior", "Shift+F3"},
    {AccionNorvik::Reemplazar, QKeySequence::Replace, "reemplazar", "R&eemplazar…", "Ctrl+H"},
    {AccionNorvik::IrALinea, ninguna, "irALinea", "Ir a la &línea…", "Ctrl+G"},
    {AccionNorvik::Acercar, QKeySequence::ZoomIn, "acercar", "Acerc&ar", "Ctrl+="},
    {AccionNorvik::Alejar, QKeySequence::ZoomOut, "alejar", "Ale&jar"},
    {AccionNorvik::TamanoNormal, ninguna, "tamanoNormal", "Tamaño n&ormal", "Ctrl+0"},
    {AccionNorvik::Plegar, ninguna, "plegar", "Plegar o &desplegar", "Ctrl+<"},
});

/// The platform's own keys first; those without the control key are known to the text itself.
QList<QKeySequence> teclasDe(const Descripcion& d) {
    QList<QKeySequence> teclas = QKeySequence::keyBindings(d.tecla);
    teclas.removeIf([](const QKeySequence& t) {
        return t.isEmpty() || !t[0].keyboardModifiers().testFlag(Qt::ControlModifier);
    });
    const QKeySequence otra(QLatin1String(d.otraTecla));
    if (!otra.isEmpty() && !teclas.contains(otra)) teclas.append(otra);
    return teclas;
}

VistaTexto& editorDe(ControlNorvik& control) {
    return static_cast<VistaTexto&>(control.caja().ventana());
}

} // namespace

AccionesControl::AccionesControl(ControlNorvik& control, BusquedaControl& busqueda, Plegado& plegado)
    : control_(control), busqueda_(busqueda), plegado_(plegado) {
    static_assert(std::size(descripciones) == numeroDeAcciones);
    const auto pide = [this] { pideAlDia(); };
    auto& editor = editorDe(control_);
    connect(&editor, &QPlainTextEdit::textChanged, this, pide);
    connect(&editor, &QPlainTextEdit::selectionChanged, this, pide);
    connect(&editor, &QPlainTextEdit::cursorPositionChanged, this, pide);
    connect(&control_, &ControlNorvik::change, this, pide);
    connect(&control_, &ControlNorvik::SelChange, this, pide);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        hayQuePegar_.reset();
        pideAlDia();
    });
}

QAction& AccionesControl::accion(AccionNorvik cual) {
    QAction*& suya = acciones_[static_cast<std::size_t>(cual)];
    if (suya == nullptr) suya = &hazAccion(cual);
    suya->setEnabled(sirve(cual));
    return *suya;
}

QAction& AccionesControl::hazAccion(AccionNorvik cual) {
    const Descripcion& d = descripciones[static_cast<std::size_t>(cual)];
    auto& accion = nuevo<QAction>(QString::fromUtf8(d.texto), &control_);
    accion.setObjectName(QLatin1String(d.nombre));
    accion.setShortcuts(teclasDe(d));
    accion.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(&accion, &QAction::triggered, this,
            [this, cual] { control_.caja().atiende([this, cual] { ejecuta(cual); }); });
    control_.addAction(&accion);
    return accion;
}

// ---- whether they are of use

/// Who owns the clipboard may be slow to answer: it is asked once.
bool AccionesControl::sirve(AccionNorvik cual) {
    Norvik& control = control_.control();
    const auto& editor = editorDe(control_);
    const bool seEscribe = !editor.isReadOnly();
    const bool hayElegido = control_.caja().longitudSeleccion() > 0;
    switch (cual) {
    case AccionNorvik::Deshacer:
        return seEscribe && control.puedeDeshacer();
    case AccionNorvik::Rehacer:
        return seEscribe && control.puedeRehacer();
    case AccionNorvik::Cortar:
        return seEscribe && hayElegido;
    case AccionNorvik::Copiar:
        return hayElegido;
    case AccionNorvik::Pegar:
        if (!hayQuePegar_) hayQuePegar_ = editor.canPaste();
        return seEscribe && *hayQuePegar_;
    case AccionNorvik::SeleccionarTodo:
        return !control_.caja().texto().empty();
    case AccionNorvik::Reemplazar:
        return seEscribe;
    case AccionNorvik::Plegar:
        return control.ayudas().pliega;
    case AccionNorvik::Buscar:
    case AccionNorvik::BuscarSiguiente:
    case AccionNorvik::BuscarAnterior:
    case AccionNorvik::IrALinea:
    case AccionNorvik::Acercar:
    case AccionNorvik::Alejar:
    case AccionNorvik::TamanoNormal:
        return true;
    }
    return true;
}

void AccionesControl::pideAlDia() {
    if (alDiaPedido_) return;
    sinFallos([this] {
        QMetaObject::invokeMethod(this, &AccionesControl::actualiza, Qt::QueuedConnection);
        alDiaPedido_ = true;
    });
}

void AccionesControl::actualiza() {
    alDiaPedido_ = false;
    for (const Descripcion& d : descripciones)
        if (QAction* const suya = acciones_[static_cast<std::size_t>(d.accion)]; suya != nullptr)
            suya->setEnabled(sirve(d.accion));
}

// ---- what they do

/// Cutting and pasting go through the keys that do the same, so that the host sees what a person does.
void AccionesControl::ejecuta(AccionNorvik cual) {
    Norvik& control = control_.control();
    auto& editor = editorDe(control_);
    switch (cual) {
    case AccionNorvik::Deshacer:
        return control.Undo();
    case AccionNorvik::Rehacer:
        return control.Redo();
    case AccionNorvik::Cortar:
        return editor.teclea(Qt::Key_Delete, Qt::ShiftModifier);
    case AccionNorvik::Copiar:
        return editor.copia();
    case AccionNorvik::Pegar:
        return editor.teclea(Qt::Key_Insert, Qt::ShiftModifier);
    case AccionNorvik::SeleccionarTodo:
        return editor.selectAll();
    case AccionNorvik::Buscar:
        return busqueda_.abre();
    case AccionNorvik::BuscarSiguiente:
        return busqueda_.sigue(BarraBusqueda::Salto::Siguiente);
    case AccionNorvik::BuscarAnterior:
        return busqueda_.sigue(BarraBusqueda::Salto::Anterior);
    case AccionNorvik::Reemplazar:
        return control.ShowReemplazarDialog();
    case AccionNorvik::IrALinea:
        return ventanasDelControl::preguntaLinea(control_);
    case AccionNorvik::Acercar:
        return control_.amplia();
    case AccionNorvik::Alejar:
        return control_.reduce();
    case AccionNorvik::TamanoNormal:
        return control_.tamanoNormal();
    case AccionNorvik::Plegar:
        return plegado_.cambiaLaDelCursor();
    }
}

} // namespace norvik
