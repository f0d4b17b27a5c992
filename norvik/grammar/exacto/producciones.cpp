// SPDX-License-Identifier: MIT

// Nullable and FIRST are least fixpoints: the rules are gone through until a pass changes nothing. A pass
// costs as much as the rules are long, and there are at most as many passes as heads.
#include "norvik/grammar/exacto/producciones.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2::exacto {

Producciones::Producciones(const ReglasPartidas& reglas, std::stop_token parada)
    : reglas_(reglas), parada_(std::move(parada)), deCabeza_(reglas.numSimbolos()),
      anulables_(reglas.numSimbolos()), primeros_(reglas.numSimbolos()) {
    for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
        const Simbolo cabeza = reglas.cabeza(regla);
        if (cabeza == ReglasPartidas::sinSimbolo) continue;
        if (std::ranges::count(cuerpo(regla), ReglasPartidas::vacio) != 0) fallaVaciaSuelta(reglas, regla);
        if (de(cabeza).empty()) cabezas_.push_back(cabeza);
        deCabeza_[indice(cabeza)].push_back(static_cast<std::int16_t>(regla));
    }
    buscaAnulables();
    buscaPrimeros();
}

bool Producciones::esAnulable(Cuerpo cuerpo) const {
    return std::ranges::all_of(cuerpo, [this](Simbolo simbolo) { return esAnulable(simbolo); });
}

bool Producciones::uneComienzo(Cuerpo cuerpo, Bits& conjunto) const {
    for (const Simbolo simbolo : cuerpo) {
        if (!esVariable(simbolo)) {
            conjunto.inserta(indice(simbolo));
            return false;
        }
        if (!de(simbolo).empty()) conjunto.une(primeros(simbolo));
        if (!esAnulable(simbolo)) return false;
    }
    return true;
}

void Producciones::buscaAnulables() {
    for (bool crece = true; crece;) {
        crece = false;
        for (const Simbolo cabeza : cabezas_) {
            if (anulables_[indice(cabeza)]) continue;
            exigeSeguir();
            const bool anulable = std::ranges::any_of(
                de(cabeza), [this](std::int16_t regla) { return esAnulable(cuerpo(regla)); });
            anulables_[indice(cabeza)] = anulable;
            crece = crece || anulable;
        }
    }
}

void Producciones::buscaPrimeros() {
    for (const Simbolo cabeza : cabezas_) primeros_[indice(cabeza)] = Bits(numSimbolos());
    for (bool crece = true; crece;) {
        crece = false;
        for (const Simbolo cabeza : cabezas_) {
            exigeSeguir();
            Bits comienzo(numSimbolos());
            for (const std::int16_t regla : de(cabeza)) uneComienzo(cuerpo(regla), comienzo);
            crece = primeros_[indice(cabeza)].une(comienzo) || crece;
        }
    }
}

} // namespace norvik::inline v0_2::exacto
