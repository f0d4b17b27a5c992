// SPDX-License-Identifier: MIT

#include "norvik/lexer/definicionDePatron.hpp"

#include <cstddef>

namespace norvik::inline v0_2 {

namespace {

/// Calls for each piece of a pattern, from left to right: with a character that stands for itself, escaped or
/// not, or with one that only its code can give.
template <typename DeTexto, typename DeCodigo>
void recorre(std::u16string_view patron, const DeTexto& deTexto, const DeCodigo& deCodigo) {
    for (std::size_t i = 0; i < patron.size(); ++i) {
        const char16_t c = patron[i];
        if (c == u'\\') {
            const char16_t otro = i + 1 < patron.size() ? patron[i + 1] : u'\\';
            if (otro == u'\\' || otro == u'c' || otro == u'"')
                deCodigo(c);
            else
                deTexto(patron.substr(i++, 2));
        } else if (c == u'<' || c == u'"') {
            deCodigo(c);
        } else {
            deTexto(patron.substr(i, 1));
        }
    }
}

} // namespace

std::u16string definicionDePatron(std::u16string_view patron) {
    std::u16string texto;
    recorre(
        patron, [&](std::u16string_view pieza) { texto += pieza; },
        [&](char16_t c) { texto += c == u'\\'  ? u"\\c(92)"
                                   : c == u'<' ? u"\\c(60)"
                                               : u"\\c(34)"; });
    return texto;
}

std::u16string lecturaDePatron(std::u16string_view patron) {
    if (patron.find_first_of(u"\\<\"") == std::u16string_view::npos) return std::u16string(patron);
    std::u16string lectura;
    recorre(
        patron, [&](std::u16string_view pieza) { lectura += pieza.back(); }, [](char16_t /*c*/) {});
    return lectura;
}

} // namespace norvik::inline v0_2
