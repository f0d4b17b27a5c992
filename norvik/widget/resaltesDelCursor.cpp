// SPDX-License-Identifier: MIT

#include "norvik/widget/resaltesDelCursor.hpp"

#include "norvik/control/parejas.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"
#include "norvik/widget/fondoDeEdicion.hpp"
#include "norvik/widget/signo.hpp"

#include <algorithm>
#include <optional>

namespace norvik {

namespace {

/// Where the one begins that a character is in, -1 where it is in none.
std::int32_t literalEn(const std::vector<Literal>& literales, std::int32_t posicion) {
    const auto siguiente = std::ranges::upper_bound(literales, posicion, {}, &Literal::inicio);
    if (siguiente == literales.begin()) return -1;
    const Literal& anterior = *(siguiente - 1);
    return posicion < anterior.fin ? anterior.inicio : -1;
}

} // namespace

void ResaltesDelCursor::pon(const Ayudas& ayudas) {
    const auto fuente = [this](bool encendida, auto miembro) {
        return encendida ? [this, miembro](std::int32_t, std::int32_t) { return (this->*miembro)(); }
                         : Resaltes::Fuente();
    };
    resaltes_.pon(Resaltes::Capa::Linea, fuente(ayudas.resaltaLinea, &ResaltesDelCursor::linea));
    resaltes_.pon(Resaltes::Capa::Parejas, fuente(ayudas.resaltaParejas, &ResaltesDelCursor::pareja));
}

std::vector<Resalte> ResaltesDelCursor::linea() const {
    constexpr double tenue = 0.07;
    const QPalette colores = caja_.vista().palette();
    QTextCharFormat formato;
    formato.setProperty(QTextFormat::FullWidthSelection, true);
    formato.setBackground(mezcla(colores.color(QPalette::Text), colores.color(QPalette::Base), tenue));
    return {{caja_.inicioSeleccion(), caja_.inicioSeleccion(), formato}};
}

/// Those of one literal belong together, and those outside all of them; while nobody knows them, those of one
/// colour. One without its other half is shown as an error is.
std::vector<Resalte> ResaltesDelCursor::pareja() const {
    std::optional<const std::vector<Literal>*> literales; // asked for when there is a bracket
    const auto juntos = [&](std::int32_t uno, std::int32_t otro) {
        if (!literales) literales = fondo_.literales();
        if (*literales != nullptr) return literalEn(**literales, uno) == literalEn(**literales, otro);
        const std::int32_t color = caja_.colorDe(uno);
        return color == 0 || caja_.colorDe(otro) == 0 || color == caja_.colorDe(otro);
    };
    const auto pareja = parejaEn(caja_.texto(), caja_.inicioSeleccion(), juntos);
    if (!pareja) return {};
    constexpr double parte = 0.35;
    const QPalette colores = caja_.vista().palette();
    const QColor encima = pareja->otra ? colores.color(QPalette::Highlight) : Signo::colorDe(Gravedad::Error);
    QTextCharFormat formato;
    formato.setBackground(mezcla(encima, colores.color(QPalette::Base), parte));
    std::vector<Resalte> resaltes{{pareja->lugar, pareja->lugar + 1, formato}};
    if (pareja->otra) resaltes.push_back({*pareja->otra, *pareja->otra + 1, formato});
    return resaltes;
}

} // namespace norvik
