#include "norvik/lexer/mapaTokens.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/lexer/expresionRegular.hpp"

#include <algorithm>

namespace norvik {

void MapaTokens::vacia() {
    celdas_.clear();
    texto_.clear();
}

void MapaTokens::reinicia(std::int32_t inicio, std::u16string_view texto) {
    vacia();
    inicio_ = inicio;
    texto_ = texto;
    celdas_.resize(texto.size() + 1);
}

std::optional<MapaTokens::Entrada> MapaTokens::en(std::int32_t posicion) const {
    const Celda* const celda = this->celda(posicion);
    if (celda == nullptr) return std::nullopt;
    const auto* const definicion = (*definiciones_)[static_cast<std::size_t>(celda->definicion())];
    return Entrada{definicion, celda->longitud(), texto(*celda)};
}

void MapaTokens::borra(std::int32_t posicion) {
    if (celda(posicion) != nullptr) celdas_[static_cast<std::size_t>(posicion - inicio_)] = {};
}

bool MapaTokens::esVacio() const {
    return std::ranges::none_of(celdas_, &Celda::hayToken);
}

std::u16string MapaTokens::toString() const {
    std::u16string texto;
    const std::int32_t fin = inicio_ + static_cast<std::int32_t>(celdas_.size());
    for (std::int32_t posicion = inicio_; posicion < fin; ++posicion) {
        const auto entrada = en(posicion);
        if (!entrada) continue;
        texto.append(aTexto(posicion)).append(u" ").append(aTexto(entrada->longitud));
        texto.append(u" ").append(entrada->definicion->GetToken()).append(u"\n");
    }
    return texto;
}

} // namespace norvik
