// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

// The texts of files: their bytes and their line ends.
namespace norvik::inline v0_2 {

/// What a UTF-8 file with a mark begins with.
inline constexpr std::string_view marcaUtf8 = "\xEF\xBB\xBF";

/// UTF-16 begins with a mark, whose order its units have; nothing for bytes that are no such text.
std::optional<std::u16string> desdeUtf16(std::string_view bytes);
/// Text of a file's bytes: UTF-16 with its mark, UTF-8 (with or without one) when they are valid, else
/// Windows-1252.
std::u16string decodifica(std::string_view bytes);
/// Bytes of a text: Windows-1252 when reading them back gives the same text, else UTF-8 with a mark.
/// Raises `ErrorDeFichero` for a text that no file can hold (a lone surrogate).
std::string codifica(std::u16string_view texto);

/// Windows-1252 bytes of a text that comes in pieces of whole lines.
class CodificadorWindows1252 {
public:
    /// Nothing when a character has no byte.
    std::optional<std::string> codifica(std::u16string_view lineas);
    /// Reading back the bytes so far gives the same text: they are no UTF-8, or mean the same in both.
    bool seLeeIgual() const { return ascii_ || !esUtf8_; }

private:
    bool ascii_ = true;
    bool esUtf8_ = true;
};

/// The lines of a text (ended by CR LF, CR or LF) joined by CR LF, without the last line end.
std::u16string normalizaLineas(std::u16string_view texto);

} // namespace norvik::inline v0_2
