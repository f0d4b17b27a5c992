// SPDX-License-Identifier: MIT

#include "ayudaEnModal.hpp"

#include "tema.hpp"
#include "ventanaManual.hpp"

#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QAction>
#include <QHash>

namespace norvik::taller {

namespace {

/// What the manual calls the windows, by their names.
QString tituloDe(const QString& ventana) {
    static const QHash<QString, QString> titulos{
        {QStringLiteral("propiedades"), QStringLiteral("Las propiedades")},
        {QStringLiteral("CodigoGramatica"),
         QStringLiteral("El editor de la gramática y la ventana de pruebas")},
        {QStringLiteral("ProbarLenguaje"),
         QStringLiteral("El editor de la gramática y la ventana de pruebas")},
        {QStringLiteral("Informe"), QStringLiteral("El informe")},
        {QStringLiteral("directorio"), QStringLiteral("El informe")},
        {QStringLiteral("Reemplazar"), QStringLiteral("Buscar y reemplazar")},
    };
    return titulos.value(ventana, QStringLiteral("El taller"));
}

void muestraManual(QWidget& modal) {
    auto* manual = modal.findChild<VentanaManual*>();
    if (manual == nullptr) manual = &nuevo<VentanaManual>(&modal);
    manual->muestra({tituloDe(modal.objectName())});
}

} // namespace

void ponManual(QWidget& modal) {
    auto& accion = nuevo<QAction>(QStringLiteral("Manual"), &modal);
    accion.setShortcut(QKeySequence(Qt::Key_F1));
    QObject::connect(&accion, &QAction::triggered, &modal,
                     [&modal] { sinFallos([&] { muestraManual(modal); }); });
    modal.addAction(&accion);
}

} // namespace norvik::taller
