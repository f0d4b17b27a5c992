// SPDX-License-Identifier: MIT

// A pattern that is kept is only known to be well formed: what a search needs is made by the search, so that
// definitions cost little to file, and what many threads share never changes.
#include "norvik/pattern/emparejador.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/pattern/busquedaPalabra.hpp"
#include "norvik/pattern/busquedaPatron.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t patronMasLargo = 32767;

// Such a pattern, most definitions' own, is the very word that it matches.
bool sinOperadores(std::u16string_view patron) {
    return !patron.empty() && patron.find_first_of(u"\\()[{*+?.^$|") == std::u16string_view::npos;
}

Coincidencia coincidencia(std::size_t inicio, std::size_t longitud) {
    return {static_cast<std::int32_t>(inicio), static_cast<std::int32_t>(longitud)};
}

std::vector<Coincidencia> buscaPatron(const Patron& patron, std::u16string_view sujeto, Gasto& gasto) {
    BusquedaPatron busqueda(patron, gasto);
    busqueda.empieza(sujeto, gasto);
    std::vector<Coincidencia> coincidencias;
    for (std::size_t i = busqueda.inicioPosible(0); i <= sujeto.size();) {
        const Intento intento = busqueda.intenta(i, gasto);
        if (intento.tipo == Intento::Tipo::Coincide)
            coincidencias.push_back(coincidencia(i, intento.fin - i));
        i = busqueda.inicioPosible(std::max(i + 1, intento.fin));
    }
    return coincidencias;
}

} // namespace

std::optional<Emparejador> Emparejador::compila(std::u16string_view patron, bool ignoraMayusculas) {
    if (patron.size() > patronMasLargo) return std::nullopt;
    if (sinOperadores(patron)) return Emparejador(std::u16string(patron), true, ignoraMayusculas);
    const auto leido = leePatron(patron, ignoraMayusculas);
    if (!leido) return std::nullopt;
    auto palabra = leido->palabra();
    const bool esPalabra = palabra.has_value();
    return Emparejador(esPalabra ? std::move(*palabra) : std::u16string(patron), esPalabra, ignoraMayusculas);
}

std::vector<Coincidencia> Emparejador::ejecuta(std::u16string_view sujeto,
                                               const Presupuesto& presupuesto) const {
    a32(sujeto.size());
    Cabida cabida;
    Gasto gasto(presupuesto, cabida);
    if (!esPalabra_) return buscaPatron(*leePatron(texto_, ignoraMayusculas_), sujeto, gasto);
    std::vector<Coincidencia> coincidencias;
    const BusquedaPalabra busqueda(texto_, ignoraMayusculas_);
    busqueda.busca(sujeto, gasto,
                   [&](std::size_t inicio) { coincidencias.push_back(coincidencia(inicio, texto_.size())); });
    return coincidencias;
}

} // namespace norvik::inline v0_2
