// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/conversiones.hpp"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace norvik {

namespace {

/// Relative luminance of sRGB, 0 black to 1 white, and the ratio of two, 1 to 21 (WCAG 2).
double luminancia(const QColor& color) {
    const auto lineal = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineal(color.red() / 255.0) + 0.7152 * lineal(color.green() / 255.0) +
           0.0722 * lineal(color.blue() / 255.0);
}

double contraste(const QColor& a, const QColor& b) {
    const auto [menor, mayor] = std::minmax({luminancia(a), luminancia(b)});
    return (mayor + 0.05) / (menor + 0.05);
}

constexpr double contrasteSuficiente = 4.5;

} // namespace

QColor legible(const QColor& color, const QColor& fondo) {
    const bool fondoClaro = luminancia(fondo) > 0.18; // as far from black as from white
    QColor visto = color;
    for (float luz = color.lightnessF(); !fondoClaro && luz < 1; luz += 0.05F) {
        visto.setHslF(std::max(color.hslHueF(), 0.0F), color.hslSaturationF(), luz);
        if (contraste(visto, fondo) >= contrasteSuficiente) return visto;
    }
    return visto;
}

double aPuntos(std::int32_t tamano) {
    return std::clamp(tamano / 10000.0, 1.0, 1638.0);
}

namespace {
constexpr int pesoNegrita = QFont::Bold;

/// A font whose size is in pixels has as many points as they measure on the screen.
double puntosDe(const QFont& letra) {
    constexpr double puntosPorPulgada = 72;
    if (letra.pointSizeF() > 0) return letra.pointSizeF();
    return letra.pixelSize() * puntosPorPulgada / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

} // namespace

QFont aQFont(const Fuente& fuente) {
    QFont letra;
    letra.setFamilies({aQString(fuente.nombre)});
    letra.setStyleHint(QFont::TypeWriter);
    letra.setPointSizeF(aPuntos(fuente.tamano));
    const int peso = fuente.negrita ? std::max<int>(fuente.peso, pesoNegrita) : fuente.peso;
    letra.setWeight(static_cast<QFont::Weight>(std::clamp(peso, 1, 1000)));
    letra.setItalic(fuente.cursiva);
    letra.setStrikeOut(fuente.tachado);
    letra.setUnderline(fuente.subrayado);
    return letra;
}

Fuente deQFont(const QFont& letra, const Fuente& antes) {
    Fuente fuente;
    fuente.juegoCaracteres = antes.juegoCaracteres;
    fuente.nombre = letra.family().toStdU16String();
    fuente.tamano = static_cast<std::int32_t>(std::lround(puntosDe(letra) * 10000));
    fuente.negrita = letra.weight() >= pesoNegrita; // which lesser weights are not yet
    fuente.cursiva = letra.italic();
    fuente.tachado = letra.strikeOut();
    fuente.subrayado = letra.underline();
    fuente.peso = static_cast<std::int16_t>(letra.weight());
    return fuente;
}

} // namespace norvik
