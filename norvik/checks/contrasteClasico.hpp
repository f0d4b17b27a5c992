// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/historiaConflicto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <cstddef>
#include <stop_token>
#include <vector>

namespace norvik::inline v0_2 {

/// Dónde están las reglas de una gramática en su especificación, en su orden; vacío si no se sabe.
struct LugaresReglas {
    std::vector<Rango> cabezas;
    std::vector<Rango> cuerpos;
};

/// En qué se aparta de la verdad lo que ha hecho el método clásico: conjuntos que no son los exactos,
/// conflictos que la tabla no apunta (en el orden de la exacta), un texto de la gramática que rechaza y uno
/// que acepta sin serlo, los más cortos que aparecen con un trabajo limitado. No cambia nada de lo que
/// recibe. Lanza `OperacionCancelada` cuando alguien lo pide.
std::vector<Diagnostico> contrastaClasico(const GramaticaLR& clasica, const LugaresReglas& lugares = {},
                                          const std::stop_token& cancelacion = {});

/// Los conflictos de las reglas de una gramática hecha con el método clásico, contados. Los ejemplos se
/// prueban con su tabla; los callados no tienen estado, porque los de las dos tablas no son los mismos.
struct ConflictosClasicos {
    std::vector<HistoriaConflicto> callados;
    /// De cada celda de la tabla que enseña un conflicto, en su orden; nada de los que la tabla exacta no
    /// tiene.
    std::vector<std::vector<HistoriaConflicto>> apuntados;
};

ConflictosClasicos cuentaConflictosClasicos(const GramaticaLR& clasica, const LimitesHistorias& limites = {});

} // namespace norvik::inline v0_2
