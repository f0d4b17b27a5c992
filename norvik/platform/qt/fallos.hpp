// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <QString>

#include <new>
#include <string>
#include <utility>

namespace norvik {

/// Carries something out, and lets nothing that is raised on the way get any further: the event loop that
/// calls a slot, an event handler or an event filter can do nothing with it. The text of the failure, empty
/// when there was none.
template <typename Orden>
std::u16string falloDe(Orden&& orden) { // NOLINT: it is called here, not kept
    try {
        std::u16string texto;
        try {
            orden();
            return {};
        } catch (const ErrorNorvik& e) {
            texto = e.texto();
        } catch (const std::bad_alloc&) {
            texto = u"No hay memoria suficiente";
        } catch (const std::exception& e) {
            texto = QString::fromUtf8(e.what()).toStdU16String();
        } catch (...) { // a host's, of whatever type
            texto.clear();
        }
        return texto.empty() ? u"Fallo desconocido" : texto;
    } catch (...) {
        return u"Memoria"; // short enough to need none
    }
}

/// The same where there is nobody to tell: what was to be shown is shown the next time.
template <typename Orden>
void sinFallos(Orden&& orden) {
    static_cast<void>(falloDe(std::forward<Orden>(orden)));
}

} // namespace norvik
