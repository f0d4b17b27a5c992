// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/lexer/tipos.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class Emparejador;

/// Una definición de token: un patrón con nombre y lo que se sabe de él. Se llena una vez, al registrarla, y
/// después solo se lee.
class NORVIK_API expresionRegular {
public:
    expresionRegular();
    expresionRegular(const expresionRegular&) = delete;
    expresionRegular& operator=(const expresionRegular&) = delete;
    ~expresionRegular();

    std::unique_ptr<const Emparejador> expReg; ///< el patrón, listo para buscar; nulo si está mal escrito
    std::u16string nomER;
    std::u16string nomToken; ///< `nomER` de un token, vacío de una definición auxiliar
    std::int16_t tipo = Norvik_ExpReg;
    std::int16_t base = Norvik_SinBase;
    std::u16string expresion; ///< el patrón, ya expandido (`getExpReg`)
    std::u16string pseudoToken;
    std::u16string pseudoTmp;
    std::int32_t colorTexto = sinColor;

    /// Llena la definición. Falso si el patrón está mal escrito; lanza `Desbordamiento` si la base no cabe en
    /// 16 bits.
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
    /// Si el patrón o el nombre para personas llevan un carácter de control que no sea un tabulador: los
    /// módulos de carga los tienen tal cual.
    bool llevaControles() const;
    /// Longitud del patrón en caracteres; lanza `Desbordamiento`.
    std::int16_t Longitud() const;
};

} // namespace norvik::inline v0_2
