#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace norvik {

/// Text of a file's bytes: UTF-8 (with or without a mark) when they are valid, else Windows-1252.
std::u16string decodifica(std::string_view bytes);
/// Bytes of a text: Windows-1252 when reading them back gives the same text, else UTF-8 with a mark.
/// Raises `ErrorDeFichero` for a text that no file can hold (a lone surrogate).
std::string codifica(std::u16string_view texto);

/// The lines of a text (ended by CR LF, CR or LF) joined by CR LF, without the last line end.
std::u16string normalizaLineas(std::u16string_view texto);

/// A greater file is refused: no text of that size can be edited, and an endless one must not fill memory.
inline constexpr std::size_t maximoDeFichero = std::size_t{64} << 20;

/// A whole file's bytes; raises `ErrorDeFichero` (missing, a folder, unreadable, too large …).
std::string leeBytes(const std::filesystem::path& fichero);
/// The same of standard input, from where it stands to its end.
std::string leeEntradaEstandar();
/// A text as the editor loads it: decoded, lines normalised.
std::u16string leeTexto(const std::filesystem::path& fichero);

enum class Durabilidad { Normal, EnDisco };
/// Writes a whole file beside its place and renames it over it: a failure at any step (`ErrorDeFichero`)
/// leaves the old one. Permissions stay, a link is followed; `EnDisco` flushes file and folder. What is no
/// regular file (a device, a pipe) has no place beside it and is written directly.
void escribeBytes(const std::filesystem::path& fichero, std::string_view bytes, Durabilidad durabilidad);
void escribeTexto(const std::filesystem::path& fichero, std::u16string_view texto, Durabilidad durabilidad);

} // namespace norvik
