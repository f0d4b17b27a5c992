// SPDX-License-Identifier: MIT

#include "norvik/lexer/mapaTokens.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/lexer/expresionRegular.hpp"

namespace norvik::inline v0_2 {

void MapaTokens::vacia() {
    coincidencias_.vacia();
    texto_.clear();
}

MapaCoincidencias& MapaTokens::reinicia(std::int32_t inicio, std::u16string_view texto) {
    vacia();
    inicio_ = inicio;
    texto_ = texto;
    return coincidencias_;
}

std::optional<MapaTokens::Entrada> MapaTokens::en(std::int32_t posicion) const {
    const auto ganadora = ganadoraEn(posicion);
    if (!ganadora) return std::nullopt;
    const auto* const definicion = (*definiciones_)[static_cast<std::size_t>(ganadora->patron)];
    return Entrada{definicion, ganadora->longitud, texto(posicion, *ganadora)};
}

bool MapaTokens::esVacio() const {
    for (std::size_t i = 0; i < coincidencias_.tamanio(); ++i)
        if (coincidencias_.en(i)) return false;
    return true;
}

std::u16string MapaTokens::toString() const {
    std::u16string texto;
    const std::int32_t fin = inicio_ + static_cast<std::int32_t>(coincidencias_.tamanio());
    for (std::int32_t posicion = inicio_; posicion < fin; ++posicion) {
        const auto entrada = en(posicion);
        if (!entrada) continue;
        texto.append(aTexto(posicion)).append(u" ").append(aTexto(entrada->longitud));
        texto.append(u" ").append(entrada->definicion->GetToken()).append(u"\n");
    }
    return texto;
}

} // namespace norvik::inline v0_2
