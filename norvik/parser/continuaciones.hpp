// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Algo que puede seguir en un lugar de un texto.
struct Continuacion {
    enum class Clase : std::uint8_t {
        Palabra, ///< un token que solo se escribe de una manera, `texto`
        Nombre,  ///< un token que se escribe de muchas; `texto` es cómo lo llama una persona
        DelTexto ///< uno de estos, como está escrito en otro lugar del texto
    };
    Clase clase = Clase::Palabra;
    std::u16string texto;

    bool operator==(const Continuacion&) const = default;
};

/// Lo que la tabla puede desplazar en una posición (desde 0) de un texto: primero las palabras del lenguaje,
/// después las clases de tokens por su nombre, después lo escrito en el texto que es de una de ellas; cada
/// uno por orden alfabético. La palabra que acaba en la posición, si la hay, no cuenta: es lo que se
/// completa.
struct Continuaciones {
    std::size_t inicio = 0; ///< donde empieza lo que se completa
    std::vector<Continuacion> propuestas;
};

} // namespace norvik::inline v0_2
