// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/presupuesto.hpp"
#include "norvik/lexer/reconocedor.hpp"
#include "norvik/pattern/mapaCoincidencias.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class pilaTokens;

/// A comment, a string or a character: characters [inicio, fin), from 0.
struct Literal {
    std::int32_t inicio = 0;
    std::int32_t fin = 0;

    bool operator==(const Literal&) const = default;
};

/// Knows the colours of texts of one language, of any length. It serves one thread at a time, any thread.
class NORVIK_API Colorista {
public:
    /// The language is the lexer's, whose definitions tell the colours.
    Colorista(Lenguaje lenguaje, const pilaTokens& lexico);
    Colorista(const Colorista&) = delete;
    Colorista& operator=(const Colorista&) = delete;
    ~Colorista();

    /// The colours that colouring all of a plain text gives it: runs of one colour, in order and without
    /// gaps. Raises what recognition does (`Reconocedor::reconoce`).
    std::vector<TramoDeColor> colores(std::u16string_view texto, const Presupuesto& presupuesto);
    /// Those of the text whose colours were asked for last, in order.
    const std::vector<Literal>& literales() const { return literales_; }

private:
    Lenguaje lenguaje_;
    Reconocedor reconocedor_;
    MapaCoincidencias mapa_;
    std::vector<std::int32_t> colores_; ///< by definition
    std::vector<bool> sonLiterales_;    ///< by definition
    std::vector<Literal> literales_;
};

} // namespace norvik::inline v0_2
