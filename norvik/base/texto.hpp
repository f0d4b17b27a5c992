#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Text is UTF-16, one character is one unit. Conversion to bytes happens at the border only.
namespace norvik {

/// The line break of texts, two characters.
inline constexpr std::u16string_view saltoDeLinea = u"\r\n";

/// The longest text that is recognised, coloured or parsed: the position behind it is a 16-bit number.
inline constexpr std::size_t maximoTexto = 32766;

/// The symbol of the empty string, an empty rule body.
inline constexpr std::u16string_view cadenaVacia = u"Ø";

/// UTF-8 of a text; a lone surrogate becomes U+FFFD.
std::string aUtf8(std::u16string_view texto);

/// Text of UTF-8 bytes, or nothing when they are not valid UTF-8.
std::optional<std::u16string> desdeUtf8(std::string_view bytes);

/// True for valid UTF-8.
bool esUtf8(std::string_view bytes);

/// Windows-1252 bytes of a text, or nothing when a character has none.
/// The five bytes without a character stand for the control character of the same code.
std::optional<std::string> aWindows1252(std::u16string_view texto);

/// Text of Windows-1252 bytes; every byte has a character.
std::u16string desdeWindows1252(std::string_view bytes);

/// The text without leading and trailing spaces (U+0020 only).
std::u16string_view recorta(std::u16string_view texto);

/// Decimal digits, with a minus sign for negative numbers.
std::u16string aTexto(std::int64_t numero);

/// Upper or lower case, unit by unit, by the simple Unicode mapping.
std::u16string aMayusculas(std::u16string_view texto);
std::u16string aMinusculas(std::u16string_view texto);

/// True for a run of letters of any alphabet, digits and underscores that does not start with a digit.
bool esIdentificador(std::u16string_view texto);

/// True for "A" to "Z" (U+0041 to U+005A), by code unit.
constexpr bool esMayusculaAZ(char16_t c) {
    return c >= u'A' && c <= u'Z';
}

} // namespace norvik
