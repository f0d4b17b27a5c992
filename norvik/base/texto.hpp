// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// El texto es UTF-16 y un carácter es una unidad. Solo se convierte a bytes en la frontera.
namespace norvik::inline v0_2 {

/// El salto de línea de los textos, dos caracteres.
inline constexpr std::u16string_view saltoDeLinea = u"\r\n";

/// El texto más largo que el control reconoce, colorea o analiza: la posición que lo sigue es un número de 16
/// bits. La puerta de los valores no tiene ese límite.
inline constexpr std::size_t maximoTexto = 32766;

/// El símbolo de la cadena vacía, el cuerpo de una regla vacía.
inline constexpr std::u16string_view cadenaVacia = u"Ø";

/// UTF-8 de un texto; un sustituto suelto se convierte en U+FFFD.
NORVIK_API std::string aUtf8(std::u16string_view texto);

/// Texto de unos bytes UTF-8, o nada cuando no son UTF-8 válido.
NORVIK_API std::optional<std::u16string> desdeUtf8(std::string_view bytes);

/// Verdadero con UTF-8 válido.
NORVIK_API bool esUtf8(std::string_view bytes);

/// Bytes Windows-1252 de un texto, o nada cuando un carácter no tiene. Los cinco bytes sin carácter
/// representan el carácter de control del mismo código.
NORVIK_API std::optional<std::string> aWindows1252(std::u16string_view texto);

/// Texto de unos bytes Windows-1252; todos los bytes tienen carácter.
NORVIK_API std::u16string desdeWindows1252(std::string_view bytes);

/// El texto sin los espacios (solo U+0020) del principio y del final.
NORVIK_API std::u16string_view recorta(std::u16string_view texto);

/// Cifras decimales, con un signo menos en los números negativos.
NORVIK_API std::u16string aTexto(std::int64_t numero);

/// En mayúsculas o minúsculas, unidad a unidad, por la correspondencia simple de Unicode.
NORVIK_API std::u16string aMayusculas(std::u16string_view texto);
NORVIK_API std::u16string aMinusculas(std::u16string_view texto);

/// Verdadero con una serie de letras de cualquier alfabeto, cifras y subrayados que no empieza por una cifra.
NORVIK_API bool esIdentificador(std::u16string_view texto);

/// Verdadero de «A» a «Z» (U+0041 a U+005A), por unidad de código.
constexpr bool esMayusculaAZ(char16_t c) {
    return c >= u'A' && c <= u'Z';
}

} // namespace norvik::inline v0_2
