#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik {

enum Direccion : std::int16_t { Norvik_Izquierda = 0, Norvik_Derecha = 1 };

/// A node of a syntax tree. Contract for callers; the owner of this folder completes it (one arena a tree,
/// texts by reference, no recursion).
class Arbol {
public:
    std::u16string_view GetLexema() const;
    std::u16string GetULexema() const;
    std::int32_t GetLinea() const;
    std::int32_t GetColumna() const;
    std::u16string_view GetNomRegla() const;
    std::u16string_view GetRegla() const;
    std::int16_t GetNumRegla() const;
    std::int16_t GetNumHijos() const;
    bool GetEsHoja() const;
    /// Child at a 1-based position, null beyond the last; raises `IndiceNoValido` below 1.
    Arbol* GetHijo(std::int16_t numHijo) const;
};

} // namespace norvik
