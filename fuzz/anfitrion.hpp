// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/ficheros.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace norvik::fuzz {

/// A control with a place to stand, whose messages nobody sees.
class Anfitrion {
    CajaTexto caja_;
    SistemaMemoria sistema_{nullptr};

public:
    Norvik control{caja_, sistema_};
};

inline std::string_view bytesDe(const std::uint8_t* datos, std::size_t n) {
    // libFuzzer gives bytes, the readers take characters.
    return {reinterpret_cast<const char*>(datos), n};
}

/// What must hold whatever the input is.
inline void exige(bool condicion) {
    if (!condicion) std::abort();
}

/// Parses and colours a text with whatever language the control has. The answer: the tree, the message of its
/// error, or that of a raised failure, which is an answer too.
inline std::u16string usa(Norvik& control, std::u16string_view texto) {
    try {
        control.Text(texto);
        const bool aceptado = control.ConstruyeArbolSintactico();
        exige(aceptado == control.GetmensajeError().empty());
        std::u16string respuesta =
            aceptado ? control.GetArbolSintactico().toString() : control.GetmensajeError();
        control.Colorear(true);
        control.ColoreaTodo();
        exige(control.Text() == texto);
        return respuesta;
    } catch (const ErrorNorvik& error) {
        return error.texto();
    }
}

} // namespace norvik::fuzz
