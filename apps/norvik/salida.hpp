// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/visible.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace norvik::orden {

/// When colours are used.
enum class Color { Auto, Siempre, Nunca };

/// The command's two streams. An order writes to standard output once nothing but the writing can fail any
/// more, so that one that fails writes nothing there.
class Salida {
public:
    Salida();

    /// Writes UTF-8, in large pieces; raises `ErrorDeFichero`. A terminal is given nothing that it could take
    /// for an order: there, control characters are shown.
    void escribe(std::string_view bytes) {
        constexpr std::size_t trozo = 65536;
        pendiente_ += bytes;
        if (pendiente_.size() >= trozo && (!enTerminal_ || pendiente_.back() == '\n')) vuelca();
    }
    /// The same of text with colours, in which nothing else is left to show.
    void escribePintado(std::string_view bytes);
    /// Writes what is left; raises the same, and then says also what has been done already.
    void vuelca(std::u16string_view yaHecho = {});

    /// One message on standard error, at once; a terminal is given as little.
    void avisa(std::u16string_view mensaje);
    void avisaPintado(std::u16string_view mensaje);

    void ponColor(Color color) { color_ = color; }
    /// Whether standard output, and standard error, may have colours: those that are a terminal, unless the
    /// environment or the command line asks for something else.
    bool conColor() const;
    bool erroresConColor() const;
    bool erroresEnTerminal() const;

private:
    bool coloreable(int descriptor) const;
    void muestraControles();

    Color color_ = Color::Auto;
    bool enTerminal_;
    std::string pendiente_;
    std::size_t vistos_ = 0; // bytes at its beginning that a terminal may have
};

} // namespace norvik::orden
