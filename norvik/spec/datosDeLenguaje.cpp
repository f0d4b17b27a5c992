// SPDX-License-Identifier: MIT

#include "norvik/spec/datosDeLenguaje.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <string_view>
#include <unordered_map>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

// Numbers names from 1 in the order in which they come.
class Numeros {
public:
    /// The number of a name, and whether it is new.
    std::pair<std::int16_t, bool> de(std::u16string_view nombre) {
        const auto [sitio, nuevo] =
            numeros_.try_emplace(nombre, static_cast<std::int16_t>(numeros_.size() + 1));
        return {sitio->second, nuevo};
    }

private:
    std::unordered_map<std::u16string_view, std::int16_t> numeros_;
};

void nombraTokens(const pilaTokens& lexico, Vocabulario& vocabulario) {
    Numeros numeros;
    for (const expresionRegular* const d : lexico.tokensLenguaje()) {
        const auto [numero, nuevo] = numeros.de(d->nomToken);
        if (nuevo) vocabulario.tokens.push_back({d->nomToken, d->pseudoToken, d->tipo, d->base});
        vocabulario.definiciones.push_back({numero, d->tipo});
    }
}

void nombraReglas(const Reglas& reglas, Vocabulario& vocabulario) {
    Numeros numeros;
    std::vector<std::int16_t> ordinales;
    vocabulario.reglas.reserve(static_cast<std::size_t>(reglas.numReglas()));
    for (std::int16_t r = 1; r <= reglas.numReglas(); ++r) {
        const Regla& regla = reglas.en(r);
        const std::u16string_view cabeza = recorta(regla.cabeza);
        const auto [numero, nueva] = numeros.de(cabeza);
        if (nueva) {
            vocabulario.variables.emplace_back(cabeza);
            ordinales.push_back(0);
        }
        const std::int16_t ordinal = ++ordinales[static_cast<std::size_t>(numero) - 1];
        vocabulario.reglas.push_back(
            {std::u16string(cabeza), regla.cuerpo, numero, ordinal, regla.elementos});
    }
}

} // namespace

Vocabulario vocabularioDe(const pilaTokens& lexico, const Reglas& reglas) {
    Vocabulario vocabulario;
    nombraTokens(lexico, vocabulario);
    nombraReglas(reglas, vocabulario);
    return vocabulario;
}

void DatosDeLenguaje::nombra() {
    vocabulario_ = std::make_shared<Vocabulario>(vocabularioDe(lexico, reglas.valores().reglas));
}

DatosDeLenguaje::Prestamo::Prestamo(const DatosDeLenguaje& datos) : datos_(datos) {
    {
        const std::lock_guard cerrojo(datos.cerrojo_);
        if (!datos.libres_.empty()) {
            analizador_ = std::move(datos.libres_.back());
            datos.libres_.pop_back();
        }
    }
    if (!analizador_) analizador_ = std::make_unique<Analizador>(datos.lexico, datos.reglas);
}

// What cannot be kept for want of memory is made again when it is needed.
DatosDeLenguaje::Prestamo::~Prestamo() {
    try {
        const std::lock_guard cerrojo(datos_.cerrojo_);
        datos_.libres_.push_back(std::move(analizador_));
    } catch (...) {
        analizador_.reset();
    }
}

} // namespace norvik::inline v0_2
