// SPDX-License-Identifier: MIT

// A pattern ready to search, in the cheaper of the two ways that give its matches: branches, loops and
// assertions over units by an automaton, one look-up a character and nothing to go back to; look-aheads,
// large counts, references to captures and optional turns that take nothing by the exact machine, which also
// decides where the automaton has grown too large.
#include "norvik/pattern/busquedaPatron.hpp"

namespace norvik::inline v0_2 {

namespace {

std::size_t bytesDe(const Programa& programa) {
    std::size_t bytes = sizeof(BusquedaPatron) + programa.codigo.size() * 2 * sizeof(Instruccion) +
                        programa.bucles.size() * sizeof(Bucle);
    for (const ClaseUnidades& clase : programa.clases)
        bytes += sizeof clase + clase.rangos().size() * sizeof(RangoUnidades);
    return bytes;
}

} // namespace

BusquedaPatron::BusquedaPatron(const Patron& patron, Gasto& gasto)
    : BusquedaPatron(PatronListo(patron), gasto) {}

BusquedaPatron::BusquedaPatron(const PatronListo& patron, Gasto& gasto)
    : primeras_(patron.primeras()), programa_(patron), automata_(Automata::de(programa_, gasto)) {
    gasto.ocupa(bytesDe(programa_));
}

void BusquedaPatron::empieza(std::u16string_view sujeto, Gasto& gasto) {
    sujeto_ = sujeto;
    gasto.cabida().devuelve(recuerdo_.size() * Automata::bytesPorRecuerdo);
    recuerdo_.clear();
}

std::size_t BusquedaPatron::inicioPosible(std::size_t i) const {
    if (!primeras_) return i;
    while (i < sujeto_.size() && !primeras_->contiene(sujeto_[i])) ++i;
    return i < sujeto_.size() ? i : sujeto_.size() + 1;
}

Intento BusquedaPatron::intenta(std::size_t posicion, Gasto& gasto) {
    if (automata_) {
        const Intento intento = automata_->coincide(sujeto_, posicion, recuerdo_, gasto);
        if (intento.tipo != Intento::Tipo::Indeciso) return intento;
        gasto.anota(programa_.codigo.size());
    }
    const auto fin = coincideMaquina(programa_, sujeto_, posicion, memoria_, gasto);
    return fin ? Intento{Intento::Tipo::Coincide, *fin} : Intento{Intento::Tipo::Nada, posicion + 1};
}

} // namespace norvik::inline v0_2
