// SPDX-License-Identifier: MIT

#include "lenguajeDe.hpp"

#include "anfitrion.hpp"
#include "muestraError.hpp"

#include "norvik/spec/lectorModulo.hpp"

#include <string>

namespace norvik::orden {

std::optional<Lenguaje> lenguajeDe(const std::filesystem::path& fichero, std::optional<Metodo> metodo,
                                   Salida& salida) {
    const bool deModulo = esModulo(fichero);
    const std::u16string texto = deModulo ? std::u16string() : leeTextoDe(fichero);
    Compilacion compilacion = deModulo ? Lenguaje::deFichero(fichero) : Lenguaje::compila(texto, {metodo});
    const Estilo estilo = salida.erroresConColor() ? Estilo::EnColor : Estilo::Liso;
    for (const Diagnostico& diagnostico : compilacion.diagnosticos) {
        if (diagnostico.gravedad != Gravedad::Error) continue;
        const std::u16string nombre = nombreDeFichero(fichero);
        salida.avisa(deModulo ? visible(nombre) + u":" + lineaDeError(diagnostico)
                              : muestraError(diagnostico, nombre, texto, estilo));
    }
    if (!compilacion) return std::nullopt;
    return std::move(compilacion.lenguaje);
}

} // namespace norvik::orden
