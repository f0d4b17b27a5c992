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

Salida::Salida() : enTerminal_(isatty(STDOUT_FILENO) == 1) {}

void Salida::muestraControles() {
    if (!enTerminal_) return;
    pendiente_.replace(vistos_, std::string::npos,
                       lineasVisibles(std::string_view(pendiente_).substr(vistos_)));
    vistos_ = pendiente_.size();
}

void Salida::escribePintado(std::string_view bytes) {
    muestraControles();
    pendiente_ += bytes;
    vistos_ = pendiente_.size();
}

void Salida::vuelca(std::u16string_view yaHecho) {
    muestraControles();
    vistos_ = 0;
    const bool escrito = escribeTodo(STDOUT_FILENO, pendiente_);
    pendiente_.clear();
    if (!escrito)
        throw ErrorDeFichero(u"No se puede escribir en la salida estándar: " + causaDelSistema(errno) +
                             std::u16string(yaHecho));
}

void Salida::avisa(std::u16string_view mensaje) {
    if (erroresEnTerminal())
        avisaPintado(desdeUtf8(lineasVisibles(aUtf8(mensaje))).value_or(std::u16string()));
    else
        avisaPintado(mensaje);
}

void Salida::avisaPintado(std::u16string_view mensaje) {
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

} // namespace norvik::orden
