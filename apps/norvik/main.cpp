// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/errores.hpp"

#include <csignal>
#include <exception>
#include <new>
#include <string_view>
#include <variant>

namespace {

using namespace norvik::orden;

constexpr int fallo = 2;

// A failure is one line, whatever names and texts it quotes.
int cuentaFallo(Salida& salida, std::u16string_view texto) {
    salida.avisa(u"norvik: " + norvik::visible(texto));
    return fallo;
}

int ejecutaLinea(int argc, const char* const* argv, Salida& salida) {
    try {
        const Peticion peticion = leeLinea(argc, argv);
        salida.ponColor(peticion.color);
        const int estado =
            std::visit([&](const auto& orden) { return ejecuta(orden, salida); }, peticion.orden);
        salida.vuelca();
        return estado;
    } catch (const norvik::ErrorNorvik& error) {
        return cuentaFallo(salida, error.texto());
    } catch (const std::bad_alloc&) {
        return cuentaFallo(salida, u"No hay memoria suficiente");
    } catch (const std::exception& error) {
        return cuentaFallo(salida, u"Fallo inesperado: " + norvik::decodifica(error.what()));
    }
}

} // namespace

int main(int argc, char** argv) {
    // A reader that goes away and a file that grows too large are failures to tell, not deaths.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    Salida salida;
    return ejecutaLinea(argc, argv, salida);
}
