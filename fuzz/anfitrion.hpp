#pragma once

#include "norvik/base/ficheros.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/platform/memoria/cajaTextoMemoria.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::fuzz {

/// A control with a place to stand, whose messages nobody sees.
class Anfitrion {
    CajaTextoMemoria caja_;
    SistemaMemoria sistema_{nullptr};

public:
    Norvik control{caja_, sistema_};
};

inline std::string_view bytesDe(const std::uint8_t* datos, std::size_t n) {
    // libFuzzer gives bytes, the readers take characters.
    return {reinterpret_cast<const char*>(datos), n};
}

/// Parses and colours a text with whatever language the control has: a raised failure is an answer too.
inline void usa(Norvik& control, std::u16string_view texto) {
    try {
        control.Text(texto);
        control.ConstruyeArbolSintactico();
        control.Colorear(true);
        control.ColoreaTodo();
    } catch (const ErrorNorvik&) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace norvik::fuzz
