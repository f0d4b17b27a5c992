// SPDX-License-Identifier: MIT

// Small derivations are found as shortest paths are: the size of a variable is the least of its rules', that
// of a rule one more than the sum of its symbols' (Knuth 1977), improved in rounds until nothing changes. In
// the same way the smallest surroundings in which a variable can stand are found from the start symbol down.
// A derivation counts its rules besides its tokens, so that one that goes round in a circle is never the
// smallest. Sizes that double from rule to rule are cut off; what is left to expand is kept on a stack.
#include "norvik/checks/derivaciones.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/grammar/reglas.hpp"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t ninguno = std::numeric_limits<std::int32_t>::max();

std::size_t suma(std::size_t uno, std::size_t otro) {
    return std::min(uno + otro, ninguno);
}

std::size_t indice(std::int16_t variable) {
    return static_cast<std::size_t>(-variable) - 1;
}

} // namespace

Derivaciones::Derivaciones(const Vocabulario& vocabulario, const std::vector<bool>& sirve)
    : deVariable_(vocabulario.variables.size()), largos_(vocabulario.variables.size(), ninguno),
      pasos_(vocabulario.variables.size(), Paso{0, 0, ninguno}) {
    std::unordered_map<std::u16string_view, std::int16_t> simbolos;
    for (std::size_t i = 0; i < vocabulario.tokens.size(); ++i)
        simbolos.try_emplace(vocabulario.tokens[i].nombre, static_cast<std::int16_t>(i + 1));
    for (std::size_t i = 0; i < vocabulario.variables.size(); ++i)
        if (esMayusculaAZ(vocabulario.variables[i].front()))
            simbolos[vocabulario.variables[i]] = static_cast<std::int16_t>(-static_cast<int>(i) - 1);
    for (const Vocabulario::Regla& r : vocabulario.reglas) {
        Regla& nueva = reglas_.emplace_back();
        nueva.variable = static_cast<std::size_t>(r.variable) - 1;
        paraCadaSimbolo(r.cuerpo, [&](std::u16string_view simbolo) {
            if (simbolo == cadenaVacia) return;
            const auto sitio = simbolos.find(simbolo);
            nueva.cuerpo.push_back(sitio == simbolos.end() ? std::int16_t{0} : sitio->second);
        });
    }
    mide(sirve);
    buscaPasos();
}

std::size_t Derivaciones::largoDe(std::int16_t simbolo) const {
    return simbolo > 0 ? 1 : largos_[indice(simbolo)];
}

void Derivaciones::mide(const std::vector<bool>& sirve) {
    const auto imposible = [&](std::int16_t s) {
        return s == 0 || (s > 0 && !sirve[static_cast<std::size_t>(s) - 1]);
    };
    for (Regla& r : reglas_) r.largo = std::ranges::any_of(r.cuerpo, imposible) ? ninguno + 1 : ninguno;
    for (bool mejora = true; mejora;) {
        mejora = false;
        for (Regla& r : reglas_) {
            if (r.largo > ninguno) continue;
            std::size_t largo = 1;
            for (const std::int16_t simbolo : r.cuerpo) largo = suma(largo, largoDe(simbolo));
            mejora = mejora || largo < r.largo;
            r.largo = largo;
            largos_[r.variable] = std::min(largos_[r.variable], largo);
        }
    }
    for (std::int16_t n = 1; n <= numReglas(); ++n)
        if (regla(n).largo < ninguno) deVariable_[regla(n).variable].push_back(n);
    for (auto& suyas : deVariable_)
        std::ranges::stable_sort(suyas, {}, [&](std::int16_t n) { return regla(n).largo; });
}

void Derivaciones::buscaPasos() {
    if (reglas_.empty()) return;
    pasos_[reglas_.front().variable].largo = 0;
    for (bool mejora = true; mejora;) {
        mejora = false;
        for (std::int16_t n = 1; n <= numReglas(); ++n) {
            const Regla& r = regla(n);
            const std::size_t fuera = pasos_[r.variable].largo;
            if (r.largo >= ninguno || fuera >= ninguno) continue;
            for (std::size_t i = 0; i < r.cuerpo.size(); ++i) {
                if (r.cuerpo[i] > 0) continue;
                const std::size_t largo = suma(fuera, r.largo - largoDe(r.cuerpo[i]));
                Paso& paso = pasos_[indice(r.cuerpo[i])];
                if (largo >= paso.largo) continue;
                paso = {n, i, largo};
                mejora = true;
            }
        }
    }
}

std::size_t Derivaciones::largoCon(std::int16_t numero) const {
    const Regla& r = regla(numero);
    return r.largo >= ninguno ? ninguno : suma(r.largo, pasos_[r.variable].largo);
}

// From the start symbol; the last step is the rule itself.
std::vector<Derivaciones::Paso> Derivaciones::caminoA(std::int16_t numero) const {
    std::vector<Paso> camino{{numero, 0, 0}};
    for (Paso paso = pasos_[regla(numero).variable]; paso.regla != 0;
         paso = pasos_[regla(paso.regla).variable])
        camino.push_back(paso);
    std::ranges::reverse(camino);
    return camino;
}

Derivaciones::Frase Derivaciones::conRegla(std::int16_t numero, std::size_t hueco,
                                           const Eleccion& elige) const {
    if (!alcanza(numero)) return {};
    struct Pendiente {
        std::int16_t simbolo = 0;
        std::size_t paso = 0; // of the way, 0 behind it
    };
    const std::vector<Paso> camino = caminoA(numero);
    std::size_t largo = largoCon(numero); // of what will be, if the shortest is picked from now on
    std::vector<Pendiente> pila;
    Frase frase;
    const auto aplica = [&](std::int16_t cual, std::size_t lugarDelCamino, std::size_t paso) {
        const std::vector<std::int16_t>& cuerpo = regla(cual).cuerpo;
        for (std::size_t i = cuerpo.size(); i > 0; --i)
            pila.push_back({cuerpo[i - 1], i - 1 == lugarDelCamino ? paso : 0});
    };
    const auto aplicaPaso = [&](std::size_t paso) {
        const bool acaba = paso + 1 == camino.size();
        aplica(camino[paso].regla, acaba ? ninguno : camino[paso].lugar, paso + 1);
    };
    aplicaPaso(0);
    while (!pila.empty()) {
        const auto [simbolo, paso] = pila.back();
        pila.pop_back();
        if (simbolo > 0) {
            frase.push_back(simbolo);
        } else if (paso > 0) {
            aplicaPaso(paso);
        } else {
            const std::vector<std::int16_t>& suyas = deVariable_[indice(simbolo)];
            const std::size_t minimo = largoDe(simbolo);
            const auto cabe = [&](std::int16_t n) { return largo + regla(n).largo - minimo <= hueco; };
            const std::size_t caben =
                static_cast<std::size_t>(std::ranges::find_if_not(suyas, cabe) - suyas.begin());
            const std::int16_t elegida = caben < 2 ? suyas.front() : elige(std::span(suyas).first(caben));
            largo += regla(elegida).largo - minimo;
            aplica(elegida, ninguno, 0);
        }
    }
    return frase;
}

} // namespace norvik::inline v0_2
