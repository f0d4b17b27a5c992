// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/arbolEjemplo.hpp"
#include "norvik/checks/derivacionesMinimas.hpp"
#include "norvik/checks/grafoAutomata.hpp"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace norvik::inline v0_2 {

/// What a conflict's cell asks to choose from: a reduction, and another one, a shift of the token or
/// accepting.
struct CasoConflicto {
    enum class Contraria : std::uint8_t { Desplazar, Reducir, Aceptar };

    std::int16_t estado = 0;
    Simbolo token = ReglasPartidas::finTexto;
    std::int16_t reduccion = 0;
    Contraria contraria = Contraria::Desplazar;
    std::int16_t otraRegla = 0; ///< that of `Reducir`
};

/// One string with two trees, which part at the conflict.
struct EjemploUnificador {
    std::int16_t estado = 0;             ///< before it
    std::array<ArbolEjemplo, 2> arboles; ///< by the reduction, by the other action
    std::size_t punto = 0;               ///< leaves before the conflict
    bool leeToken = false;               ///< the token is among its leaves, else it follows them
};

/// How a search ended.
struct HallazgoUnificador {
    std::optional<EjemploUnificador> ejemplo;
    bool agotado = false; ///< it gave up; else there is nothing to find
    std::size_t pasos = 0;
};

/// How much may be spent on one conflict.
struct LimiteBusqueda {
    std::size_t pasos = 0;
    std::chrono::steady_clock::time_point fin;
};

/// Searches a short one. `siguientes` is what can follow each head, by symbol. `cabe` says of what ends
/// before the token whether it can stand where it begins: the state before it and its head.
HallazgoUnificador buscaUnificador(const CasoConflicto& caso, const GrafoAutomata& grafo,
                                   const exacto::Producciones& producciones, DerivacionesMinimas& minimas,
                                   const std::vector<exacto::Bits>& siguientes, const LimiteBusqueda& limite,
                                   const std::function<bool(std::int16_t, Simbolo)>& cabe);

} // namespace norvik::inline v0_2
