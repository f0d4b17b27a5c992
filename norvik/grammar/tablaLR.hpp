// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/celdas.hpp"
#include "norvik/grammar/conjunto.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The symbols of a table: terminals and non-terminals, and all of them in column order.
struct SimbolosTabla {
    conjunto terminales;
    conjunto variables;
    conjunto todos;
};

/// A reduction that another action kept out of a cell (1-based).
struct Conflicto {
    std::int16_t fila = 0;
    std::int16_t columna = 0;
    std::int16_t regla = 0;
};

/// What a parser is driven by. Row and column are counted from 1; state (row − 1) and column code (column −
/// 1) from 0. An entry is the state that a shift or the start symbol leads to, a rule by which to reduce as
/// −rule, or 0. Two entries need no storing: in state 0 the start symbol leads to state 1, in state 1 "$"
/// accepts. It is made by its constructor or by the calls of a module, and only read after that.
class TablaLR {
public:
    static constexpr std::int16_t aceptar = 1000;

    TablaLR() = default;
    /// A column for each terminal, "$" and each variable. Raises `Desbordamiento` beyond 32 767.
    TablaLR(SimbolosTabla simbolos, std::u16string_view inicial, std::size_t estados);
    /// Writes a whole row, and what was kept out of it, in order of appearance.
    void ponFila(std::int16_t fila, std::span<const std::int16_t> valores, std::vector<Conflicto> conflictos);

    // The calls of a module --------------------------------------------------------------------------------

    /// The start symbol, which has a column once it is among the symbols.
    void ponInicial(std::u16string_view inicial);
    /// Adds a symbol, in column order; "" is ignored.
    void ponSimbolo(std::u16string_view simbolo);
    void olvidaSimbolos();
    /// New cells, all 0, without conflicts. Raises `SubindiceFueraDeIntervalo` for negative dimensions.
    void dimensiona(std::int16_t filas, std::int16_t columnas);
    /// Raises `SubindiceFueraDeIntervalo` outside the table, `Desbordamiento` when it grows absurdly large.
    void pon(std::int16_t fila, std::int16_t columna, std::int16_t valor) {
        celdas_.pon(fila, columna, valor);
    }

    // What is read -----------------------------------------------------------------------------------------

    const SimbolosTabla& simbolos() const { return simbolos_; }
    const Celdas& celdas() const { return celdas_; }
    /// Symbol of a column; raises `IndiceNoValido`.
    std::u16string_view simbolo(std::int16_t columna) const { return simbolos_.todos.simboloAt(columna); }
    /// Column code of a symbol, of the start symbol, of "$"; −1 when it has none.
    std::int16_t codigo(std::u16string_view simbolo) const {
        return static_cast<std::int16_t>(simbolos_.todos.posicion(simbolo) - 1);
    }
    std::int16_t codigoInicial() const { return codigoInicial_; }
    std::int16_t codigoFin() const { return codigoFin_; }
    /// Entry of a state and a column code; raises `SubindiceFueraDeIntervalo`.
    std::int16_t entrada(std::int16_t estado, std::int16_t codigo) const;
    /// The entries of a state by column code, to be read many times; none when the two that need no storing
    /// could be among them, or nothing is stored. `entrada` gives those that are missing.
    std::span<const std::int16_t> fila(std::int16_t estado) const;
    /// Rows and columns that the symbols have a use for: without symbols the cells are what a former language
    /// left.
    std::int16_t filasVigentes() const;
    std::int16_t columnasVigentes() const;

    /// Sorted by cell, those of one cell in order of appearance.
    const std::vector<Conflicto>& conflictos() const { return conflictos_; }
    /// The rule that was the last to be kept out of a cell (1-based), 0 when none was.
    std::int16_t conflicto(std::int16_t fila, std::int16_t columna) const;
    bool esColumnaDeVariable(std::int16_t columna) const;
    /// Whether a cell (1-based) shows a conflict.
    bool enConflicto(std::int16_t fila, std::int16_t columna) const {
        return conflicto(fila, columna) != 0 && !esColumnaDeVariable(columna);
    }
    /// The terminals but "$" for which a state (0-based) has an entry, in column order. They hold as long as
    /// the table. Raises `SubindiceFueraDeIntervalo`.
    std::vector<std::u16string_view> esperados(std::int16_t estado) const;

private:
    SimbolosTabla simbolos_;
    Celdas celdas_;
    std::vector<Conflicto> conflictos_;
    std::u16string inicial_;
    std::int16_t codigoInicial_ = -1;
    std::int16_t codigoFin_ = -1;
};

/// «0: a=2 S=1; 1: $=1000; 2: $=-1/2»: entries other than 0 as they are read, and the last loser of a
/// conflict.
std::u16string enTexto(const TablaLR& tabla);

inline std::int16_t TablaLR::entrada(std::int16_t estado, std::int16_t codigo) const {
    const std::int16_t guardada = celdas_.en(estado + 1, codigo + 1);
    if (codigo >= simbolos_.todos.totalElementos())
        throw SubindiceFueraDeIntervalo(u"en la tabla, el símbolo", codigo + 1, 1,
                                        simbolos_.todos.totalElementos());
    if (estado == 0 && codigo == codigoInicial_) return 1;
    if (estado == 1 && codigo == codigoFin_) return aceptar;
    return guardada;
}

} // namespace norvik::inline v0_2
