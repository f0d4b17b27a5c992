// SPDX-License-Identifier: MIT

// What is written or drawn in a colour of ours can be told from what is behind it, on paper and in the dark.
// The colours that hosts choose, and the prescribed ones of a new control, are shown on a light ground as
// they are.
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/tools/modeloTabla.hpp"
#include "norvik/widget/resaltes.hpp"
#include "norvik/widget/signo.hpp"

#include <QBrush>
#include <QColor>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace norvik;

namespace {

constexpr double suficiente = 4.5; // of letters, by WCAG 2

double luz(const QColor& color) {
    double suma = 0;
    const std::pair<double, double> partes[] = {
        {color.redF(), 0.2126}, {color.greenF(), 0.7152}, {color.blueF(), 0.0722}};
    for (const auto& [c, peso] : partes)
        suma += peso * (c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4));
    return suma;
}

double contraste(const QColor& a, const QColor& b) {
    return (std::max(luz(a), luz(b)) + 0.05) / (std::min(luz(a), luz(b)) + 0.05);
}

const std::pair<QColor, QColor> paletas[] = {{Qt::white, Qt::black},
                                             {QColor(30, 30, 30), QColor(225, 225, 225)}};

} // namespace

TEST(Colores, LosDeLaGravedadSeVenEnLasDosPaletas) {
    for (const auto& [fondo, letra] : paletas)
        for (const Gravedad gravedad : {Gravedad::Error, Gravedad::Aviso, Gravedad::Nota})
            EXPECT_GE(contraste(legible(Signo::colorDe(gravedad), fondo), fondo), suficiente)
                << static_cast<int>(gravedad) << fondo.name().toStdString();
}

TEST(Colores, SobreUnRealceSeLee) {
    const QColor rojizo = realceDeConflicto(Qt::BackgroundRole).value<QBrush>().color();
    for (const auto& [fondo, letra] : paletas) {
        EXPECT_GE(contraste(letra, mezcla(rojizo, fondo, static_cast<double>(rojizo.alphaF()))), suficiente);
        EXPECT_GE(contraste(letra, mezcla(QColor(255, 190, 0), fondo, 0.3)), suficiente); // what is found
        EXPECT_GE(contraste(letra, mezcla(Signo::colorDe(Gravedad::Error), fondo, 0.35)), suficiente);
    }
}

TEST(Colores, LosDeUnControlNuevoSeVenEnLaOscuridad) {
    for (const std::int32_t color : {0x008000, 0xFF8080, 0x0000FF, 0x808000, 0x000080, 0x800000})
        EXPECT_GE(contraste(legible(aQColor(color), paletas[1].first), paletas[1].first), suficiente)
            << color;
}
