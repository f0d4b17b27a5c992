// SPDX-License-Identifier: MIT

#include "portapapeles.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

namespace norvik::taller {

namespace {

void tecleaConMayusculas(ControlNorvik& norvik, Qt::Key tecla) {
    QWidget& texto = norvik.caja().ventana();
    for (const auto suceso : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent evento(suceso, tecla, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&texto, &evento);
    }
}

QPlainTextEdit& editorDe(ControlNorvik& norvik) {
    return static_cast<QPlainTextEdit&>(norvik.caja().ventana());
}

} // namespace

void corta(ControlNorvik& norvik) {
    tecleaConMayusculas(norvik, Qt::Key_Delete);
}

void copia(ControlNorvik& norvik) {
    editorDe(norvik).copy();
}

void pega(ControlNorvik& norvik) {
    tecleaConMayusculas(norvik, Qt::Key_Insert);
}

void seleccionaTodo(ControlNorvik& norvik) {
    editorDe(norvik).selectAll();
}

} // namespace norvik::taller
