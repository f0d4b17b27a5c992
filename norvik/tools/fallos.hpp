#pragma once

#include "norvik/base/errores.hpp"

#include <QString>

#include <string>

namespace norvik {

/// Carries something out; the text of the failure that ended it, empty when none did.
template <typename Orden>
std::u16string falloDe(Orden orden) {
    try {
        orden();
    } catch (const ErrorNorvik& e) {
        return e.texto();
    } catch (const std::exception& e) {
        return QString::fromUtf8(e.what()).toStdU16String();
    }
    return {};
}

} // namespace norvik
