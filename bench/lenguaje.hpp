// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/norvik.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include <filesystem>
#include <string_view>

namespace norvik::bench {

/// A file of the repository.
std::filesystem::path delRepositorio(std::string_view ruta);

/// A control with its text box in memory. What the system would show goes to stderr.
class Puesto {
public:
    Puesto();

    /// Compiles a specification and builds its table; ends the program when that fails.
    void compila(std::u16string_view especificacion);

    CajaTexto caja;
    SistemaMemoria sistema;
    Norvik control;
};

} // namespace norvik::bench
