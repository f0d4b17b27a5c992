#pragma once

#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/sistema.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace norvik {

class Norvik;

/// Computes a grammar's sets, automaton and table; before each the pointer is made busy and pending events
/// run. What this raises, `gramatica` says; nothing of the three is left then.
void generaTabla(gramatica& g, Sistema& sistema);

/// What is told of a grammar that did not pass its check.
Mensaje mensajeDeComprobacion(std::u16string_view error);
/// What is told of a specification that did not compile.
Mensaje mensajeDeCompilacion(std::u16string_view error);

/// Grammar and lexer that a specification is compiled into apart from the control that it is written in: for
/// its report and its module.
class LenguajeAparte {
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

} // namespace norvik
