// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/diagnostico.hpp"
#include "norvik/base/rango.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

struct TextoAnalizado;

/// Un token de un texto que solo se leyó; sus textos valen mientras exista la lista de que viene.
struct Lexema {
    std::int16_t token = 0;     ///< su número, desde 1
    std::u16string_view nombre; ///< del token
    std::u16string_view texto;  ///< con los delimitadores de los literales
    Rango rango;
    bool esComentario = false;
};

/// Los tokens de un texto que se leyó sin analizarlo, con sus comentarios. Es dueño de una copia del texto, y
/// se mueve pero no se copia.
class NORVIK_API Lexemas {
public:
    explicit Lexemas(std::unique_ptr<const TextoAnalizado> texto, std::vector<Diagnostico> errores);
    Lexemas(Lexemas&&) noexcept;
    Lexemas& operator=(Lexemas&&) noexcept;
    Lexemas(const Lexemas&) = delete;
    Lexemas& operator=(const Lexemas&) = delete;
    ~Lexemas();

    /// Uno por cada carácter incorrecto, o por cada grupo de ellos sin nada en medio (se sigue leyendo
    /// detrás), hasta diez mil; o por qué no se pudo leer nada.
    std::vector<Diagnostico> diagnosticos;

    std::size_t size() const;
    /// Desde 0; lanza `IndiceNoValido`.
    Lexema operator[](std::size_t indice) const;

private:
    std::unique_ptr<const TextoAnalizado> texto_;
};

} // namespace norvik::inline v0_2
