// SPDX-License-Identifier: MIT

#include "salida.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/base/descriptor.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <cerrno>
#include <cstdlib>
#include <unistd.h>

namespace norvik::orden {

void Salida::vuelca() {
    const bool escrito = escribeTodo(STDOUT_FILENO, pendiente_);
    pendiente_.clear();
    if (!escrito)
        throw ErrorDeFichero(u"No se puede escribir en la salida estándar: " + causaDelSistema(errno));
}

void Salida::avisa(std::u16string_view mensaje) {
    std::string linea = aUtf8(mensaje);
    if (!linea.ends_with('\n')) linea += '\n';
    escribeTodo(STDERR_FILENO, linea); // there is nobody to tell that this failed
}

bool Salida::conColor() const {
    return coloreable(STDOUT_FILENO);
}

bool Salida::erroresConColor() const {
    return coloreable(STDERR_FILENO);
}

bool Salida::coloreable(int descriptor) const {
    const auto variable = [](const char* nombre) {
        const char* const valor = std::getenv(nombre);
        return std::string_view(valor != nullptr ? valor : "");
    };
    switch (color_) {
    case Color::Siempre:
        return true;
    case Color::Nunca:
        return false;
    case Color::Auto:
        return isatty(descriptor) == 1 && variable("NO_COLOR").empty() && variable("TERM") != "dumb";
    }
    return false;
}

bool Salida::erroresEnTerminal() const {
    return isatty(STDERR_FILENO) == 1;
}

std::u16string visible(std::u16string_view texto) {
    constexpr char16_t primeraImagen = u'\u2400';
    constexpr char16_t imagenDeSuprimir = u'\u2421';
    std::u16string resultado(texto);
    for (char16_t& c : resultado) {
        if (c < u' ' && c != u'\t') c = static_cast<char16_t>(primeraImagen + c);
        if (c == u'\x7F' || (c >= u'\x80' && c < u'\xA0')) c = imagenDeSuprimir;
    }
    return resultado;
}

} // namespace norvik::orden
