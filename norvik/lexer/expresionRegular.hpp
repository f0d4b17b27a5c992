// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/lexer/tipos.hpp"
#include "norvik/pattern/emparejador.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvik {

/// A token definition: a named pattern with its profile. Filled once at registration, then only read.
class expresionRegular {
public:
    std::optional<Emparejador> expReg;
    std::u16string nomER;
    std::u16string nomToken; ///< `nomER` for a token, empty for an auxiliary definition
    std::int16_t tipo = Norvik_ExpReg;
    std::int16_t base = Norvik_SinBase;
    std::u16string expresion; ///< the expanded pattern (`getExpReg`)
    std::u16string pseudoToken;
    std::u16string pseudoTmp;
    std::int32_t colorTexto = sinColor;

    /// Fills the record. False when the pattern is malformed; raises `Desbordamiento` when the base does
    /// not fit 16 bits.
    bool SetExpReg(std::u16string_view expRegular, std::u16string_view nomExpRegular, bool esToken,
                   bool sensibleTamanio, std::u16string_view psToken, std::int16_t tipoER,
                   std::int32_t baseER, std::u16string_view pseudoCadTmp);

    void SetColor(std::int32_t color) { colorTexto = color; }
    std::int32_t GetColor() const { return colorTexto; }
    const std::u16string& getExpReg() const { return expresion; }
    const std::u16string& GetToken() const { return nomToken; }
    std::int16_t GetTipo() const { return tipo; }
    const std::u16string& GetPseudoToken() const { return pseudoToken; }
    const std::u16string& GetPseudoTmp() const { return pseudoTmp; }
    /// Whether pattern or display name have a control character, which a loading module holds as it is.
    /// Tabulators harm nobody.
    bool llevaControles() const;
    /// Length of the pattern in characters; raises `Desbordamiento`.
    std::int16_t Longitud() const;
};

} // namespace norvik
