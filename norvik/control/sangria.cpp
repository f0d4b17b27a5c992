// SPDX-License-Identifier: MIT

// The lines that the selection touches are written anew with other leading blanks and take the place of the
// old ones in one change, whatever their number, so that it is one step of undo and costs what they measure.
// Where each line's text went is kept, and the colours and the ends of the selection go with it.

#include "norvik/control/sangria.hpp"

#include "norvik/control/lineasTexto.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

/// From here to the next one, characters were moved by so many.
struct Traslado {
    std::int32_t desde = 0;
    std::int32_t puestos = 0;  ///< spaces before the line
    std::int32_t quitados = 0; ///< blanks of the line
    std::int32_t hasta = 0;    ///< where the line now begins

    /// Where a character of the line went; one that was taken away, to the line's start.
    std::int32_t lleva(std::int32_t posicion) const {
        return hasta + puestos + std::max(posicion - desde - quitados, 0);
    }
};

struct Lineas {
    std::int32_t inicio = 0; ///< of the first one
    std::int32_t fin = 0;    ///< of the last one, without its break
    std::u16string nuevas;
    std::vector<Traslado> traslados;

    const Traslado& en(std::int32_t posicion) const {
        return *(std::ranges::upper_bound(traslados, posicion, {}, &Traslado::desde) - 1);
    }
};

/// The last line that a selection touches: not one at whose start it ends.
std::int32_t ultimaLinea(const CajaTexto& caja) {
    const std::int32_t inicio = caja.inicioSeleccion();
    return caja.lineaDeCaracter(inicio + std::max(caja.longitudSeleccion() - 1, 0));
}

std::int32_t blancosQueSobran(std::u16string_view linea, std::int32_t espacios) {
    if (linea.starts_with(u'\t') && espacios > 0) return 1;
    const std::size_t blancos = std::min(linea.find_first_not_of(u' '), linea.size());
    return std::min(static_cast<std::int32_t>(blancos), espacios);
}

/// `cuanto` says of a line what is put before it and what is taken from its start.
template <typename Cuanto>
Lineas reescribe(const CajaTexto& caja, Cuanto cuanto) {
    const std::int32_t primera = caja.lineaDeCaracter(caja.inicioSeleccion());
    const std::int32_t ultima = ultimaLinea(caja);
    Lineas l{caja.inicioDeLinea(primera), finDeLinea(caja, ultima), {}, {}};
    for (std::int32_t linea = primera; linea <= ultima; ++linea) {
        const std::int32_t inicio = caja.inicioDeLinea(linea);
        const std::int32_t fin = linea == ultima ? l.fin : caja.inicioDeLinea(linea + 1);
        const auto texto =
            caja.texto().substr(static_cast<std::size_t>(inicio), static_cast<std::size_t>(fin - inicio));
        Traslado t = cuanto(texto.substr(0, texto.find_first_of(u"\r\n")));
        t.desde = inicio;
        t.hasta = l.inicio + static_cast<std::int32_t>(l.nuevas.size());
        l.nuevas.append(static_cast<std::size_t>(t.puestos), u' ')
            .append(texto.substr(static_cast<std::size_t>(t.quitados)));
        l.traslados.push_back(t);
    }
    return l;
}

/// A selection that began before a line's text still does.
Seleccion trasladada(const CajaTexto& caja, const Lineas& l) {
    const std::int32_t inicio = caja.inicioSeleccion();
    const std::int32_t fin = inicio + caja.longitudSeleccion();
    const Traslado& primera = l.traslados.front();
    const bool desdeElPrincipio = caja.longitudSeleccion() > 0 && inicio == primera.desde;
    const std::int32_t desde = desdeElPrincipio ? primera.hasta : primera.lleva(inicio);
    const auto crecen = static_cast<std::int32_t>(l.nuevas.size()) - (l.fin - l.inicio);
    const std::int32_t hasta = fin > l.fin ? fin + crecen : l.en(fin).lleva(fin);
    return {desde, std::max(hasta - desde, 0)};
}

/// Characters of one colour may span lines.
std::vector<TramoDeColor> trasladados(const CajaTexto& caja, const Lineas& l) {
    std::vector<TramoDeColor> colores = caja.colores();
    for (TramoDeColor& tramo : colores) {
        const std::int32_t desde = std::max(tramo.inicio, l.inicio);
        const std::int32_t hasta = std::min(tramo.inicio + tramo.longitud, l.fin);
        tramo.longitud = 0;
        if (tramo.color == 0 || desde >= hasta) continue;
        tramo.inicio = l.en(desde).lleva(desde);
        tramo.longitud = l.en(hasta - 1).lleva(hasta) - tramo.inicio;
    }
    std::erase_if(colores, [](const TramoDeColor& tramo) { return tramo.longitud <= 0; });
    return colores;
}

/// Whoever hears of the change may take the box away.
void cambia(const Prestado<CajaTexto>& prestada, const Lineas& l) {
    const CajaTexto& caja = *prestada;
    const auto antes =
        caja.texto().substr(static_cast<std::size_t>(l.inicio), static_cast<std::size_t>(l.fin - l.inicio));
    if (l.nuevas == antes) return;
    const Seleccion despues = trasladada(caja, l);
    prestada->sustituye(l.inicio, l.fin - l.inicio, l.nuevas, despues, trasladados(caja, l));
    prestada->selecciona(despues.inicio, despues.longitud); // who paints the line leaves none
}

} // namespace

bool hayVariasLineas(const CajaTexto& caja) {
    const std::int32_t inicio = caja.inicioSeleccion();
    return caja.lineaDeCaracter(inicio) != caja.lineaDeCaracter(inicio + caja.longitudSeleccion());
}

void sangraLineas(const Prestado<CajaTexto>& caja, std::int32_t espacios) {
    cambia(caja, reescribe(*caja, [espacios](std::u16string_view linea) {
               return Traslado{0, linea.empty() ? 0 : espacios, 0, 0};
           }));
}

void quitaSangria(const Prestado<CajaTexto>& caja, std::int32_t espacios) {
    cambia(caja, reescribe(*caja, [espacios](std::u16string_view linea) {
               return Traslado{0, 0, blancosQueSobran(linea, espacios), 0};
           }));
}

} // namespace norvik::inline v0_2
