// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/arbolSintactico.hpp"
#include "norvik/parser/cadenasReglas.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"
#include "norvik/parser/traza.hpp"
#include "norvik/platform/sistema.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class FuenteTexto;
class gramatica;
class LectorTokens;
class pilaTokens;
enum class Desenlace : std::uint8_t;

/// Error codes of a parse.
inline constexpr std::int16_t sinError = 0;
inline constexpr std::int16_t errorLexico = 1;
inline constexpr std::int16_t errorSintactico = 2;

/// Runs the SLR table of the loaded language over the tokens of a text and builds the tree. The first error
/// ends the parse.
class ConductorSLR {
public:
    /// Receives the message of a parse that failed, when the parse is over; shows and marks as its owner
    /// wants.
    using AvisoError = std::function<void(const Mensaje&)>;

    /// All must outlive the driver.
    ConductorSLR(LectorTokens& lector, const pilaTokens& lexico, const gramatica& gramatica)
        : lector_(lector), lexico_(lexico), gramatica_(gramatica), lenguaje_(lexico, gramatica) {}

    AvisoError alFallar;

    /// Parses the editor's text, or the invisible text; true when it was accepted. Raises what the reader
    /// raises at its initialisation (the tree then stays), `SubindiceFueraDeIntervalo` for a cell of the
    /// table that names no state or rule, and `Desbordamiento` when the table never stops reducing.
    bool ConstruyeArbolSintactico();
    bool ConstruyeArbolSintacticoTextoInvisible();
    /// Root of the last tree; the same node for the driver's whole life, without children after a failure.
    Arbol& GetArbolSintactico() { return arbol_.raiz(); }
    std::int16_t GetCodigoError() const { return codigoError_; }
    const std::u16string& GetmensajeError() const { return mensajeError_; }
    /// The error of the last parse as a value, with exact places and expectations; none after an accepted
    /// one.
    const std::optional<Diagnostico>& diagnostico() const { return diagnostico_; }
    void SetmensajeError(std::u16string_view mensaje) { mensajeError_ = mensaje; }
    /// Every shift and reduction of the last parse; empty after an accepted one, which consumed it.
    const Traza& traza() const { return traza_; }

private:
    enum class Lineas { DelTexto, Ninguna };

    /// How a parse ended, and in which state.
    struct Final {
        Desenlace desenlace;
        std::int16_t estado;
    };

    bool analiza(const FuenteTexto& fuente, Lineas lineas);
    Final recorre(const FuenteTexto& fuente, Lineas lineas);
    Mensaje informaErrorLexico(std::u16string_view texto);
    Mensaje informaErrorSintactico(std::u16string_view texto, std::int16_t estado);

    LectorTokens& lector_;
    const pilaTokens& lexico_;
    const gramatica& gramatica_;
    LenguajeAnalisis lenguaje_;
    CadenasReglas cadenas_;
    ArbolSintactico arbol_;
    Traza traza_;
    std::int16_t codigoError_ = sinError;
    std::u16string mensajeError_;
    std::optional<Diagnostico> diagnostico_;
};

} // namespace norvik::inline v0_2
