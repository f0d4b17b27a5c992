#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvik {

/// The definition text whose expansion is a given pattern. Loading modules hold patterns, that is,
/// definitions expanded already: expanding these as they stand would lose a backslash before another one. "<"
/// and quotes of a specification's patterns come from character codes, which leave no literal reading.
inline std::u16string definicionDePatron(std::u16string_view patron) {
    std::u16string texto;
    for (std::size_t i = 0; i < patron.size(); ++i) {
        const auto par = patron.substr(i, 2);
        const bool seConserva = par.size() == 2 && par[1] != u'\\' && par[1] != u'c' && par[1] != u'"';
        if (par[0] == u'\\' && seConserva) {
            texto += par;
            ++i;
        } else if (par[0] == u'\\') {
            texto += u"\\c(92)";
        } else if (par[0] == u'<') {
            texto += u"\\c(60)";
        } else if (par[0] == u'"') {
            texto += u"\\c(34)";
        } else {
            texto += par[0];
        }
    }
    return texto;
}

} // namespace norvik
