// SPDX-License-Identifier: MIT

#include "tema.hpp"

#include <QVariant>

namespace norvik::taller {

namespace {

constexpr const char* propiedad = "temaDelManual";

} // namespace

void ponTema(QWidget& ventana, const Tema& tema) {
    ventana.setProperty(propiedad, QStringList{tema.titulo, tema.detalle});
}

Tema temaDe(const QWidget* ventana) {
    for (; ventana != nullptr; ventana = ventana->parentWidget()) {
        const QStringList tema = ventana->property(propiedad).toStringList();
        if (tema.size() == 2) return {tema[0], tema[1]};
    }
    return {};
}

} // namespace norvik::taller
