// SPDX-License-Identifier: MIT

#include "norvik/grammar/automataLR.hpp"

#include "norvik/base/texto.hpp"

#include <cstddef>

namespace norvik::inline v0_2 {

std::u16string enTexto(const AutomataLR& automata) {
    std::u16string texto;
    for (const estadoAutomata& estado : automata.estados) {
        texto += aTexto(estado.getNumEstado()) + u':';
        for (std::size_t i = 0; i < estado.items().size(); ++i) {
            const auto [regla, punto] = estado.items()[i];
            texto += u' ' + aTexto(regla) + u'.' + aTexto(punto) + u'>' + aTexto(estado.adyacentes()[i]);
        }
        texto += u'\n';
    }
    return texto;
}

} // namespace norvik::inline v0_2
