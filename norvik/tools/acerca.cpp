// SPDX-License-Identifier: MIT

#include "norvik/tools/acerca.hpp"

#include "norvik/tools/ventanas.hpp"

#include <norvik/version.hpp>

#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

namespace norvik {

namespace {

QLabel& parrafo(const QString& texto, QWidget& padre) {
    auto& etiqueta = nuevo<QLabel>(texto, &padre);
    etiqueta.setTextInteractionFlags(Qt::TextSelectableByMouse);
    return etiqueta;
}

} // namespace

Acerca::Acerca(QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("Acerca"));
    setWindowTitle(QStringLiteral("Acerca de Norvik"));
    QLabel& nombre = parrafo(QStringLiteral("Norvik %1").arg(QLatin1String(NORVIK_VERSION)), *this);
    QFont letra = nombre.font();
    letra.setBold(true);
    letra.setPointSizeF(letra.pointSizeF() * 1.5);
    nombre.setFont(letra);
    auto& columna = nuevo<QVBoxLayout>(this);
    columna.addWidget(&nombre);
    columna.addWidget(&parrafo(QStringLiteral("Editor embebible que conoce lenguajes,\n"
                                              "con generador de analizadores SLR(1)."),
                               *this));
    columna.addWidget(&parrafo(
        QStringLiteral("Qt %1 en %2").arg(QLatin1String(qVersion()), QSysInfo::prettyProductName()), *this));
    columna.addSpacing(fontMetrics().height());
    auto& aceptar = nuevo<QPushButton>(QStringLiteral("&Aceptar"), this);
    aceptar.setDefault(true);
    connect(&aceptar, &QPushButton::clicked, this, &QDialog::accept);
    columna.addWidget(&aceptar, 0, Qt::AlignRight);
    columna.setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace norvik
