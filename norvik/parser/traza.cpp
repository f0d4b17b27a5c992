#include "norvik/parser/traza.hpp"

#include "norvik/base/texto.hpp"

#include <functional>

namespace norvik {

void Traza::vaciaTraza(std::u16string_view texto) {
    pasos_.clear();
    desplazamientos_.clear();
    textos_ = texto;
    texto_ = texto;
}

std::uint32_t Traza::lugarDe(std::u16string_view lexema) {
    const std::less_equal<> hasta;
    if (hasta(texto_.data(), lexema.data()) &&
        hasta(lexema.data() + lexema.size(), texto_.data() + texto_.size()))
        return static_cast<std::uint32_t>(lexema.data() - texto_.data());
    textos_.append(lexema);
    return static_cast<std::uint32_t>(textos_.size() - lexema.size());
}

void Traza::fallaLlena() {
    throw Desbordamiento(u"Desbordamiento: el árbol sintáctico no cabe en la memoria, o la tabla SLR no deja "
                         u"nunca de desplazar o reducir");
}

void Traza::registraDesplazamiento(std::u16string_view lexema, std::int32_t linea, std::int32_t columna,
                                   Procedencia procedencia) {
    if (desplazamientos_.size() == maximoDesplazamientos) fallaLlena();
    apunta(0);
    desplazamientos_.push_back(
        {lugarDe(lexema), static_cast<std::uint32_t>(lexema.size()), linea, columna, procedencia});
}

std::u16string_view Traza::tipoCimaTraza() const {
    return reglaCima() == 0 ? u"desplazamiento" : u"reduccion";
}

std::u16string Traza::valorCimaTraza() const {
    const std::int16_t regla = reglaCima();
    if (regla != 0) return aTexto(regla);
    return textos_.substr(desplazamientos_.back().inicio, desplazamientos_.back().longitud);
}

std::u16string Traza::lineaCimaTraza() const {
    return aTexto(desplazamientoCima().linea);
}

std::u16string Traza::columnaCimaTraza() const {
    return aTexto(desplazamientoCima().columna);
}

} // namespace norvik
