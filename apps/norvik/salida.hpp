#pragma once

#include <string>
#include <string_view>

namespace norvik::orden {

/// The command's two streams. What goes to standard output is held back until `vuelca`: an order that fails
/// writes nothing there.
class Salida {
public:
    /// Adds UTF-8 to what will be written.
    void escribe(std::string_view bytes) { pendiente_ += bytes; }
    /// Writes it; raises `ErrorDeFichero`.
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
