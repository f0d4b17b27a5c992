// SPDX-License-Identifier: MIT

#include "norvik/control/busquedaDirecta.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

/// A pattern that matches a text and nothing else.
std::u16string literal(std::u16string_view texto) {
    constexpr std::u16string_view especiales = uR"(\^$.*+?()[]{}|)";
    std::u16string patron;
    for (const char16_t c : texto) {
        if (especiales.find(c) != especiales.npos) patron += u'\\';
        patron += c;
    }
    return patron;
}

std::u16string patronDirecto(const BusquedaDirecta& b) {
    const std::u16string patron = b.esExpresion ? b.texto : literal(b.texto);
    return b.palabrasCompletas ? uR"(\b(?:)" + patron + uR"()\b)" : patron;
}

/// A pattern counts units; what is selected and shown are characters, of one or two.
void ensancha(std::vector<Coincidencia>& halladas, std::u16string_view texto) {
    const auto esMedio = [&](std::int32_t lugar) { // between the halves of a pair
        const auto i = static_cast<std::size_t>(lugar);
        return i > 0 && i < texto.size() && (texto[i - 1] & 0xFC00) == 0xD800 &&
               (texto[i] & 0xFC00) == 0xDC00;
    };
    std::int32_t hasta = 0; // of the one before
    for (Coincidencia& c : halladas) {
        const std::int32_t desde = std::max(c.indice - (esMedio(c.indice) ? 1 : 0), hasta);
        const std::int32_t fin = c.indice + c.longitud;
        hasta = fin + (esMedio(fin) ? 1 : 0);
        c = {desde, hasta - desde};
    }
    std::erase_if(halladas, [](const Coincidencia& c) { return c.longitud == 0; });
}

} // namespace

std::optional<std::vector<Coincidencia>>
coincidenciasDe(const BusquedaDirecta& busqueda, std::u16string_view texto, const std::stop_token& parada) {
    const bool buenPatron = !busqueda.esExpresion ||
                            Emparejador::compila(busqueda.texto, false); // what is put around could mend it
    const auto emparejador =
        buenPatron ? Emparejador::compila(patronDirecto(busqueda), !busqueda.coincidirMayusculas)
                   : std::nullopt;
    if (!emparejador) return std::nullopt;
    auto halladas = emparejador->ejecuta(texto, Presupuesto(Presupuesto::plazoComun, parada));
    ensancha(halladas, texto);
    return halladas;
}

Hallada desde(const std::vector<Coincidencia>& halladas, std::int32_t posicion) {
    const auto i = std::ranges::lower_bound(halladas, posicion, {}, &Coincidencia::indice);
    if (i == halladas.end()) return {0, true};
    return {static_cast<std::size_t>(i - halladas.begin()), false};
}

Hallada antesDe(const std::vector<Coincidencia>& halladas, std::int32_t posicion) {
    const auto i = std::ranges::lower_bound(halladas, posicion, {}, &Coincidencia::indice);
    if (i == halladas.begin()) return {halladas.size() - 1, true};
    return {static_cast<std::size_t>(i - halladas.begin()) - 1, false};
}

} // namespace norvik::inline v0_2
