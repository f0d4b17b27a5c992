// SPDX-License-Identifier: MIT

#pragma once

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
    /// Writes UTF-8, in large pieces; raises `ErrorDeFichero`.
    void escribe(std::string_view bytes) {
        constexpr std::size_t trozo = 65536;
        pendiente_ += bytes;
        if (pendiente_.size() >= trozo) vuelca();
    }
    /// Writes what is left; raises the same.
    void vuelca();

    /// One message on standard error, at once.
    void avisa(std::u16string_view mensaje);

    void ponColor(Color color) { color_ = color; }
    /// Whether standard output, and standard error, may have colours: those that are a terminal, unless the
    /// environment or the command line asks for something else.
    bool conColor() const;
    bool erroresConColor() const;
    bool erroresEnTerminal() const;

private:
    bool coloreable(int descriptor) const;

    Color color_ = Color::Auto;
    std::string pendiente_;
};

/// The text with pictures in place of control characters other than tabs, for a person to look at.
std::u16string visible(std::u16string_view texto);

} // namespace norvik::orden
