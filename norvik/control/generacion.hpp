// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/sistema.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class Norvik;

/// Computes a grammar's sets, automaton and table by steps that the surroundings carry out, perhaps in
/// another thread, and lets events run before each step and before all. They are made apart: whoever looks at
/// the grammar meanwhile sees it as it was. What is raised by a step, `gramatica` says; nothing of the three
/// is left then. A cancellation, and what an event raises, leave the grammar as it was.
void generaTabla(gramatica& g, const std::function<Sistema&()>& sistema);

/// What is told of a grammar that did not pass its check.
NORVIK_API Mensaje mensajeDeComprobacion(std::u16string_view error);
/// What is told of a specification that did not compile.
NORVIK_API Mensaje mensajeDeCompilacion(std::u16string_view error);

/// Grammar and lexer that a specification is compiled into apart from the control that it is written in: for
/// its report and its module.
class NORVIK_API LenguajeAparte {
public:
    explicit LenguajeAparte(Sistema& sistema) : sistema_(sistema) {}

    struct Fallo {
        enum class Paso : std::uint8_t { Analisis, Comprobacion };
        Paso paso;
        std::u16string error;
    };
    /// Parses the text of a control that the specification language is installed in, compiles it, and
    /// generates the table. What failed, if anything did: the control has then reported a failed parse as its
    /// options say.
    std::optional<Fallo> construye(Norvik& especificacion);

    const gramatica& Gramatica() const { return gramatica_; }
    const pilaTokens& Lexico() const { return lexico_; }

private:
    Sistema& sistema_;
    gramatica gramatica_;
    pilaTokens lexico_;
};

} // namespace norvik::inline v0_2
