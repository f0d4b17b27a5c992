// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace norvik::inline v0_2 {

/// Why a definition has no pattern, or one that is malformed.
enum class MotivoPatron : std::uint8_t {
    NadaQueRepetir,
    RepeticionAlReves,
    RepeticionExcesiva,
    GrupoSinCerrar,
    CierreSinAbrir,
    GrupoDesconocido,
    ClaseSinCerrar,
    RangoAlReves,
    EscapeDesconocido,
    CodigoIncompleto,
    BarraAlFinal,
    ReferenciaSinGrupo,
    CodigoMalEscrito, ///< a \c( ) of the definition
    CodigoExcesivo,   ///< the same
    DemasiadoLargo,   ///< once it is expanded
};

} // namespace norvik::inline v0_2
