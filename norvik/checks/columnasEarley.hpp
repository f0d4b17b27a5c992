// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/derivacionesMinimas.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

namespace norvik::inline v0_2 {

/// Earley's recogniser over a tree of beginnings: each has a column, and those that begin alike share theirs.
/// Rules from which no text comes do not count, so that a beginning with items has a text that goes on with
/// it.
class ColumnasEarley {
public:
    ColumnasEarley(const exacto::Producciones& producciones, const DerivacionesMinimas& minimas);

    /// The column of the empty beginning has number 0. Adds that of another with a token behind it; its
    /// number.
    std::size_t avanza(std::size_t columna, Simbolo token);
    bool estaViva(std::size_t columna) const { return !columnas_[columna].empty(); }
    /// Whether the beginning is a text.
    bool acepta(std::size_t columna) const;
    /// The tokens that may come next.
    std::set<Simbolo> siguientes(std::size_t columna) const;
    /// The shortest tokens with which a beginning that is alive becomes a text.
    std::vector<Simbolo> completa(std::size_t columna) const;
    /// Nothing goes on from the last one: it becomes empty.
    void olvidaUltima() { columnas_.back().clear(); }
    /// Items made so far.
    std::size_t trabajo() const { return trabajo_; }

private:
    struct Item {
        std::int16_t regla;
        std::int16_t punto;
        std::uint32_t origen;                           // column where it began
        Simbolo siguiente = ReglasPartidas::sinSimbolo; // after its dot, none at the end

        bool operator==(const Item&) const = default;
    };
    using Columna = std::vector<Item>;

    static Item pasado(const Item& item) {
        return {item.regla, static_cast<std::int16_t>(item.punto + 1), item.origen};
    }
    Simbolo tras(const Item& item) const;
    Cuerpo resto(const Item& item, std::size_t desde) const;
    void numeraItems();
    std::vector<bool>::reference puesto(const Item& item);
    void cierra(std::size_t cual);
    void pon(std::size_t cual, Item item);
    void predice(std::size_t cual, Simbolo variable);

    const exacto::Producciones& producciones_;
    const DerivacionesMinimas& minimas_;
    std::vector<Columna> columnas_;
    std::vector<std::size_t> primerItem_; // of each rule, in the numbering of all items
    std::vector<std::size_t> largos_;     // of the beginning of each column
    std::vector<std::size_t> predichas_;  // of each variable, the last column that it was begun in, from 1
    // Of each item, whether the column being made has it from a beginning of so many tokens.
    std::vector<std::vector<bool>> puestos_;
    std::size_t trabajo_ = 0;
};

} // namespace norvik::inline v0_2
