// SPDX-License-Identifier: MIT

#include "norvik/spec/directivas.hpp"

#include <algorithm>

namespace norvik {

Directivas leeDirectivas(std::u16string_view especificacion) {
    constexpr std::u16string_view marca = u"'% ";
    constexpr std::u16string_view metodo = u"metodo: ";
    Directivas directivas;
    while (!especificacion.empty()) {
        const std::size_t fin = std::min(especificacion.find_first_of(u"\r\n"), especificacion.size());
        std::u16string_view linea = especificacion.substr(0, fin);
        especificacion.remove_prefix(std::min(fin + 1, especificacion.size()));
        const std::size_t primero = linea.find_first_not_of(u" \t");
        if (primero == std::u16string_view::npos) continue;
        if (linea[primero] != u'\'') break;
        if (!linea.starts_with(marca)) continue;
        linea.remove_prefix(marca.size());
        if (!linea.starts_with(metodo)) continue;
        if (const auto suyo = metodoLlamado(linea.substr(metodo.size()))) directivas.metodo = *suyo;
    }
    return directivas;
}

} // namespace norvik
