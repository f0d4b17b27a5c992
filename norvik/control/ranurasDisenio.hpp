// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace norvik::inline v0_2 {

/// What the design-time tools work on instead of a control: one set for the whole process.
struct RanurasDisenio {
    std::u16string especificacion;
    std::u16string textoPrueba;
    bool pendienteGuardar = false;

    bool operator==(const RanurasDisenio&) const = default;
};

inline RanurasDisenio& ranurasDisenio() {
    static RanurasDisenio ranuras;
    return ranuras;
}

} // namespace norvik::inline v0_2
