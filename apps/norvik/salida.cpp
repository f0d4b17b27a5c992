// SPDX-License-Identifier: MIT

#include "salida.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/base/descriptor.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/html.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
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

std::u16string visible(std::u16string_view texto) {
    constexpr char16_t primeraImagen = u'\u2400';
    constexpr char16_t imagenDeSuprimir = u'\u2421';
    std::u16string resultado(texto);
    for (char16_t& c : resultado) {
        if (c < u' ' && c != u'\t') c = static_cast<char16_t>(primeraImagen + c);
        if (c == u'\x7F' || (c >= u'\x80' && c < u'\xA0')) c = imagenDeSuprimir;
        if (esDeDireccion(c)) c = u'\uFFFD';
    }
    return resultado;
}

std::string lineasVisibles(std::string_view bytes) {
    std::string resultado;
    while (!bytes.empty()) {
        const std::size_t fin = std::min(bytes.find('\n'), bytes.size());
        std::string_view linea = bytes.substr(0, fin);
        const bool conRetorno = fin < bytes.size() && linea.ends_with('\r');
        if (conRetorno) linea.remove_suffix(1);
        const auto texto = desdeUtf8(linea);
        resultado += aUtf8(visible(texto ? *texto : desdeWindows1252(linea)));
        if (conRetorno) resultado += '\r';
        if (fin < bytes.size()) resultado += '\n';
        bytes.remove_prefix(std::min(fin + 1, bytes.size()));
    }
    return resultado;
}

} // namespace norvik::orden
