// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/fuente.hpp"
#include "norvik/spec/directivas.hpp"

#include <stop_token>
#include <vector>

// The checks of a specification, each group by itself: what is odd in it although it may compile. All raise
// `OperacionCancelada` once that is asked for.
namespace norvik::inline v0_2 {

/// Of definitions: those that nobody uses, stand twice or never win, and patterns that can take nothing.
void compruebaTokens(const FuenteEspecificacion& fuente, const Directivas& directivas,
                     const std::stop_token& cancelacion, std::vector<Diagnostico>& hallazgos);
/// Of rules: variables that nobody uses or reaches, or from which no text comes; heads, cycles, rules that
/// stand twice.
void compruebaReglas(const FuenteEspecificacion& fuente, Metodo metodo, const std::stop_token& cancelacion,
                     std::vector<Diagnostico>& hallazgos);
/// Of the lines with the form of a directive: those that ask for nothing, and why.
void compruebaDirectivas(std::u16string_view especificacion, const FuenteEspecificacion& fuente,
                         const Directivas& directivas, const std::stop_token& cancelacion,
                         std::vector<Diagnostico>& hallazgos);

} // namespace norvik::inline v0_2
