// SPDX-License-Identifier: MIT

#include "norvik/lexer/expresionRegular.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/pattern/emparejador.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

expresionRegular::expresionRegular() = default;
expresionRegular::~expresionRegular() = default;

bool expresionRegular::SetExpReg(std::u16string_view expRegular, std::u16string_view nomExpRegular,
                                 bool esToken, bool sensibleTamanio, std::u16string_view psToken,
                                 std::int16_t tipoER, std::int32_t baseER, std::u16string_view pseudoCadTmp) {
    base = a16(baseER);
    std::optional<Emparejador> compilado = Emparejador::compila(expRegular, !sensibleTamanio);
    expReg = compilado ? std::make_unique<const Emparejador>(*std::move(compilado)) : nullptr;
    expresion = expRegular;
    nomER = nomExpRegular;
    nomToken = esToken ? nomExpRegular : u"";
    pseudoToken = psToken;
    tipo = tipoER;
    pseudoTmp = pseudoCadTmp;
    return expReg != nullptr;
}

bool expresionRegular::llevaControles() const {
    constexpr auto esDeControl = [](char16_t c) {
        return (c < u' ' && c != u'\t') || (c >= u'\x7F' && c < u'\xA0');
    };
    return std::ranges::any_of(expresion, esDeControl) || std::ranges::any_of(pseudoToken, esDeControl);
}

std::int16_t expresionRegular::Longitud() const {
    return a16(expresion.size());
}

} // namespace norvik::inline v0_2
