// SPDX-License-Identifier: MIT

#include "norvik/base/visible.hpp"

#include "norvik/base/html.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <cstddef>

namespace norvik::inline v0_2 {

std::u16string visible(std::u16string_view texto) {
    constexpr char16_t primeraImagen = u'\u2400';
    constexpr char16_t imagenDeSuprimir = u'\u2421';
    std::u16string resultado(texto);
    for (char16_t& c : resultado) {
        if (c < u' ' && c != u'\t') c = static_cast<char16_t>(primeraImagen + c);
        if (c == u'\x7F' || (c >= u'\x80' && c < u'\xA0')) c = imagenDeSuprimir;
        if (esDeDireccion(c)) c = u'\uFFFD';
    }
    return resultado;
}

std::string lineasVisibles(std::string_view bytes) {
    std::string resultado;
    while (!bytes.empty()) {
        const std::size_t fin = std::min(bytes.find('\n'), bytes.size());
        std::string_view linea = bytes.substr(0, fin);
        const bool conRetorno = fin < bytes.size() && linea.ends_with('\r');
        if (conRetorno) linea.remove_suffix(1);
        const auto texto = desdeUtf8(linea);
        resultado += aUtf8(visible(texto ? *texto : desdeWindows1252(linea)));
        if (conRetorno) resultado += '\r';
        if (fin < bytes.size()) resultado += '\n';
        bytes.remove_prefix(std::min(fin + 1, bytes.size()));
    }
    return resultado;
}

} // namespace norvik::inline v0_2
