// SPDX-License-Identifier: MIT

#include "norvik/lexer/expresionRegular.hpp"

#include "norvik/base/numeros.hpp"

namespace norvik {

bool expresionRegular::SetExpReg(std::u16string_view expRegular, std::u16string_view nomExpRegular,
                                 bool esToken, bool sensibleTamanio, std::u16string_view psToken,
                                 std::int16_t tipoER, std::int32_t baseER, std::u16string_view pseudoCadTmp) {
    base = a16(baseER);
    expReg = Emparejador::compila(expRegular, !sensibleTamanio);
    expresion = expRegular;
    nomER = nomExpRegular;
    nomToken = esToken ? nomExpRegular : u"";
    pseudoToken = psToken;
    tipo = tipoER;
    pseudoTmp = pseudoCadTmp;
    return expReg.has_value();
}

std::int16_t expresionRegular::Longitud() const {
    return a16(expresion.size());
}

} // namespace norvik
