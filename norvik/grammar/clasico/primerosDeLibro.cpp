// SPDX-License-Identifier: MIT

#include "norvik/grammar/clasico/primeros.hpp"

#include <algorithm>

// What takes the place of the step-by-step computation of FIRST when that never ends: the least fixpoint by
// rounds over the rules; and the test that tells whether it may not end.
namespace norvik::inline v0_2::clasico {

namespace {

/// The FIRST sets of the heads, by number of symbol, growing.
class PuntoFijo {
public:
    PuntoFijo(const ReglasPartidas& reglas, const std::stop_token& parada)
        : reglas_(reglas), conjuntos_(reglas.numSimbolos()), presentes_(reglas.numSimbolos()) {
        do {
            crece_ = false;
            for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
                exigeSeguir(parada);
                if (reglas.cabeza(regla) != ReglasPartidas::sinSimbolo) aplica(regla);
            }
        } while (crece_);
    }
    const std::vector<Simbolo>& de(Simbolo simbolo) const { return conjuntos_[indice(simbolo)]; }

private:
    static std::size_t indice(Simbolo simbolo) { return static_cast<std::size_t>(simbolo); }

    bool contiene(Simbolo cabeza, Simbolo simbolo) const {
        const auto& presentes = presentes_[indice(cabeza)];
        return !presentes.empty() && presentes[indice(simbolo)];
    }

    void inserta(Simbolo cabeza, Simbolo simbolo) {
        if (contiene(cabeza, simbolo)) return;
        auto& presentes = presentes_[indice(cabeza)];
        presentes.resize(reglas_.numSimbolos());
        presentes[indice(simbolo)] = true;
        conjuntos_[indice(cabeza)].push_back(simbolo);
        crece_ = true;
    }

    void aplica(int regla) {
        const Simbolo cabeza = reglas_.cabeza(regla);
        for (const Simbolo simbolo : reglas_.cuerpo(regla)) {
            if (simbolo == ReglasPartidas::vacio) continue;
            if (!reglas_.esVariable(simbolo)) return inserta(cabeza, simbolo);
            // By position: a left-recursive head grows while it is read.
            // NOLINTNEXTLINE(modernize-loop-convert)
            for (std::size_t i = 0; i < de(simbolo).size(); ++i)
                if (de(simbolo)[i] != ReglasPartidas::vacio) inserta(cabeza, de(simbolo)[i]);
            if (!contiene(simbolo, ReglasPartidas::vacio)) return;
        }
        inserta(cabeza, ReglasPartidas::vacio);
    }

    const ReglasPartidas& reglas_;
    std::vector<std::vector<Simbolo>> conjuntos_;
    std::vector<std::vector<bool>> presentes_;
    bool crece_ = false;
};

/// Symbols whose set may come to hold Ø: some body begins with Ø, or with such a symbol.
std::vector<bool> quizaConVacia(const ReglasPartidas& reglas) {
    std::vector<bool> vacias(reglas.numSimbolos());
    vacias[ReglasPartidas::vacio] = true;
    for (bool crece = true; crece;) {
        crece = false;
        for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
            const Simbolo cabeza = reglas.cabeza(regla);
            if (cabeza == ReglasPartidas::sinSimbolo || vacias[static_cast<std::size_t>(cabeza)]) continue;
            if (!vacias[static_cast<std::size_t>(reglas.cuerpo(regla).front())]) continue;
            vacias[static_cast<std::size_t>(cabeza)] = crece = true;
        }
    }
    return vacias;
}

/// For every symbol the other heads that one of its bodies may reach before a symbol stops the scan.
std::vector<std::vector<Simbolo>> alcanzadosAlPrincipio(const ReglasPartidas& reglas) {
    const std::vector<bool> vacias = quizaConVacia(reglas);
    std::vector<std::vector<Simbolo>> alcanzados(reglas.numSimbolos());
    for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
        const Simbolo cabeza = reglas.cabeza(regla);
        if (cabeza == ReglasPartidas::sinSimbolo) continue;
        for (const Simbolo simbolo : reglas.cuerpo(regla)) {
            if (simbolo == cabeza) continue; // left recursion is passed whenever the set holds Ø
            if (reglas.esVariable(simbolo) && reglas.primera(simbolo) != 0)
                alcanzados[static_cast<std::size_t>(cabeza)].push_back(simbolo);
            if (!vacias[static_cast<std::size_t>(simbolo)]) break;
        }
    }
    return alcanzados;
}

} // namespace

std::vector<ConjuntoNumerado> creaPrimerosDeLibro(const ReglasPartidas& reglas,
                                                  const std::stop_token& parada) {
    const PuntoFijo primeros(reglas, parada);
    std::vector<ConjuntoNumerado> conjuntos;
    for (int regla = 1; regla <= reglas.numReglas(); ++regla)
        if (reglas.abreTramo(regla) && reglas.primera(reglas.cabeza(regla)) == regla)
            conjuntos.push_back({reglas.cabeza(regla), primeros.de(reglas.cabeza(regla))});
    return conjuntos;
}

// Symbols that nobody reaches are taken away, then those that only they reached; what is left lies on or
// behind a cycle.
bool hayRecursionIndirectaAlPrincipio(const ReglasPartidas& reglas) {
    const auto alcanzados = alcanzadosAlPrincipio(reglas);
    std::vector<int> veces(alcanzados.size());
    for (const auto& destinos : alcanzados)
        for (const Simbolo destino : destinos) ++veces[static_cast<std::size_t>(destino)];
    std::vector<std::size_t> libres;
    for (std::size_t i = 0; i < veces.size(); ++i)
        if (veces[i] == 0) libres.push_back(i);
    for (std::size_t k = 0; k < libres.size(); ++k) {
        const std::vector<Simbolo>& destinos = alcanzados[libres[k]];
        for (const Simbolo destino : destinos)
            if (--veces[static_cast<std::size_t>(destino)] == 0)
                libres.push_back(static_cast<std::size_t>(destino));
    }
    return libres.size() < alcanzados.size();
}

} // namespace norvik::inline v0_2::clasico
