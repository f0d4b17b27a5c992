// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvik::orden {

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

    bool esTerminal() const;
    bool erroresEnTerminal() const;

private:
    std::string pendiente_;
};

/// The text with pictures in place of control characters other than tabs, for a person to look at.
std::u16string visible(std::u16string_view texto);

} // namespace norvik::orden
