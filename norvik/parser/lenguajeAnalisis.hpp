// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/numeros.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/lectorTokens.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

/// What parses ask of their language again and again, by number instead of by name, and in the form that
/// costs least.
class LenguajeAnalisis {
public:
    /// In place of a column: the token that reports an error, and a token that the grammar does not know.
    static constexpr std::int16_t columnaError = -2;
    static constexpr std::int16_t columnaDesconocida = -1;

    struct Regla {
        std::int16_t numElementos = 0;
        std::int16_t columnaCabeza = columnaDesconocida;
    };

    /// Both must outlive it; it knows nothing of them before it is brought up to date.
    LenguajeAnalisis(const pilaTokens& lexico, const gramatica& gramatica)
        : lexico_(lexico), gramatica_(gramatica) {}

    /// Takes over a language that has changed since the last time; false when it has not.
    bool actualiza() {
        const Edicion edicion{lexico_.edicion(), gramatica_.edicion()};
        if (edicion_ == edicion) return false;
        edicion_.reset();
        columnas_.assign(lexico_.tokensLenguaje().size(), sinConsultar);
        columnaFin_ = gramatica_.GetCodigoToken(tokenFin);
        filas_.clear();
        const std::int16_t numEstados = gramatica_.GetDimensionFilasSLR();
        for (std::int16_t estado = 0; estado < numEstados; ++estado)
            filas_.push_back(gramatica_.GetFilaTablaSLR(estado));
        reglas_.assign(1, Regla{});
        const std::int16_t numReglas = gramatica_.getNumReglas();
        for (std::int16_t regla = 1; regla <= numReglas; ++regla) reglas_.push_back(consultaRegla(regla));
        edicion_ = edicion;
        return true;
    }

    /// Column of a token in the table.
    std::int16_t columna(const TokenLeido& token) {
        if (token.definicion == TokenLeido::fin) return columnaFin_;
        if (token.definicion == TokenLeido::desconocido) return columnaError;
        std::int16_t& columna = columnas_[static_cast<std::size_t>(token.definicion)];
        if (columna == sinConsultar) columna = consultaColumna(token.definicion);
        return columna;
    }
    /// Entry of the table, 0-based; raises `SubindiceFueraDeIntervalo`.
    std::int16_t entrada(std::int16_t estado, std::int16_t columna) const {
        const std::size_t fila = static_cast<std::uint16_t>(estado);
        const std::size_t celda = static_cast<std::uint16_t>(columna);
        if (fila < filas_.size() && celda < filas_[fila].size()) return filas_[fila][celda];
        return gramatica_.GetElementoTablaSLR(estado, columna);
    }
    /// Length of a rule's body and column of its head; raises `SubindiceFueraDeIntervalo`.
    Regla regla(std::int16_t numRegla) const {
        const std::size_t indice = static_cast<std::uint16_t>(numRegla);
        return indice < reglas_.size() ? reglas_[indice] : consultaRegla(numRegla);
    }

private:
    static constexpr std::int16_t sinConsultar = -3;

    struct Edicion {
        std::uint64_t lexico = 0;
        std::uint64_t gramatica = 0;

        bool operator==(const Edicion&) const = default;
    };

    Regla consultaRegla(std::int16_t numRegla) const {
        return {gramatica_.GetNumElementosRegla(numRegla), gramatica_.GetCodigoVariable(numRegla)};
    }
    std::int16_t consultaColumna(std::int32_t definicion) const {
        const auto& nombre = lexico_.tokensLenguaje()[static_cast<std::size_t>(definicion)]->nomToken;
        return nombre == tokenError ? columnaError : gramatica_.GetCodigoToken(nombre);
    }

    const pilaTokens& lexico_;
    const gramatica& gramatica_;
    std::optional<Edicion> edicion_;     ///< of what stands below; none at first
    std::vector<std::int16_t> columnas_; ///< by definition, each looked up when it is first needed
    std::vector<std::span<const std::int16_t>> filas_;
    std::vector<Regla> reglas_; ///< by number
    std::int16_t columnaFin_ = columnaDesconocida;
};

} // namespace norvik::inline v0_2
