// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "lenguajeDe.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/frases.hpp"

namespace norvik::orden {

int ejecuta(const Frases& orden, Salida& salida) {
    const auto lenguaje = lenguajeDe(orden.especificacion, orden.metodo, salida);
    if (!lenguaje) return 1;
    const auto [textos, sinUsar] = frasesDe(*lenguaje, {orden.cuantas, orden.semilla, orden.mal});
    for (const std::u16string& texto : textos) salida.escribe(aUtf8(texto) + "\n");
    if (textos.size() < orden.cuantas)
        salida.avisa(u"aviso: solo se han encontrado " + aTexto(static_cast<std::int64_t>(textos.size())) +
                     u" textos");
    for (const std::int16_t numero : sinUsar) {
        const Vocabulario::Regla& regla =
            lenguaje->vocabulario().reglas[static_cast<std::size_t>(numero) - 1];
        salida.avisa(u"aviso: no se ha encontrado ningún texto que use la regla " + aTexto(numero) + u". " +
                     visible(regla.cabeza + u" -> " + regla.cuerpo));
    }
    return 0;
}

} // namespace norvik::orden
