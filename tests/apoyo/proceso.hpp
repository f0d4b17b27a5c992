// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::apoyo {

struct Resultado {
    std::string salida;
    std::string errores;
    int estado = -1; ///< exit status, or minus the signal that ended it
};

/// Where a stream of the process goes.
enum class Destino { Captura, DiscoLleno, LectorQueSeFue, Terminal, Cerrado };

struct Entorno {
    std::string entrada{};
    Destino salida = Destino::Captura;
    Destino errores = Destino::Captura;
    std::vector<std::string> variables{}; ///< in place of the environment, when there are any
};

/// Runs the command of this build to its end.
Resultado ejecuta(const std::vector<std::string>& argumentos, const Entorno& entorno = {});

} // namespace norvik::apoyo
