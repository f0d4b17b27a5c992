#pragma once

#include "norvik/base/numeros.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/lectorTokens.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace norvik {

/// What a parse asks of its language again and again, by number instead of by name: each answer is looked up
/// once a parse, when it is first needed.
class LenguajeAnalisis {
public:
    /// In place of a column: the token that reports an error, and a token that the grammar does not know.
    static constexpr std::int16_t columnaError = -2;
    static constexpr std::int16_t columnaDesconocida = -1;

    struct Regla {
        std::int16_t numElementos = sinConsultar;
        std::int16_t columnaCabeza = columnaDesconocida;
    };

    LenguajeAnalisis(const pilaTokens& lexico, const gramatica& gramatica)
        : lexico_(lexico), gramatica_(gramatica), columnas_(lexico.tokensLenguaje().size(), sinConsultar),
          columnaFin_(gramatica.GetCodigoToken(tokenFin)) {}

    /// Column of a token in the table.
    std::int16_t columna(const TokenLeido& token) {
        if (token.definicion == TokenLeido::fin) return columnaFin_;
        if (token.definicion == TokenLeido::desconocido) return columnaError;
        std::int16_t& columna = columnas_[static_cast<std::size_t>(token.definicion)];
        if (columna == sinConsultar) columna = consultaColumna(token.definicion);
        return columna;
    }
    /// Length of a rule's body and column of its head; raises `SubindiceFueraDeIntervalo`.
    const Regla& regla(std::int16_t numRegla) {
        const auto indice = static_cast<std::size_t>(numRegla);
        if (indice >= reglas_.size()) reglas_.resize(indice + 1);
        Regla& regla = reglas_[indice];
        if (regla.numElementos == sinConsultar)
            regla = {gramatica_.GetNumElementosRegla(numRegla), gramatica_.GetCodigoVariable(numRegla)};
        return regla;
    }

private:
    static constexpr std::int16_t sinConsultar = -3;

    std::int16_t consultaColumna(std::int32_t definicion) const {
        const auto& nombre = lexico_.tokensLenguaje()[static_cast<std::size_t>(definicion)]->nomToken;
        return nombre == tokenError ? columnaError : gramatica_.GetCodigoToken(nombre);
    }

    const pilaTokens& lexico_;
    const gramatica& gramatica_;
    std::vector<std::int16_t> columnas_;
    std::vector<Regla> reglas_;
    std::int16_t columnaFin_;
};

} // namespace norvik
