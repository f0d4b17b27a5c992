#pragma once

#include "norvik/base/codificacion.hpp"
#include "norvik/base/descriptor.hpp"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace norvik {

/// A greater file is refused: no text of that size can be edited, and an endless one must not fill memory.
inline constexpr std::size_t maximoDeFichero = std::size_t{64} << 20;

/// A whole file's bytes; raises `ErrorDeFichero` (missing, a folder, unreadable, too large …).
std::string leeBytes(const std::filesystem::path& fichero);
/// The same of standard input, from where it stands to its end.
std::string leeEntradaEstandar();
/// A text as the editor loads it: decoded, lines normalised.
std::u16string leeTexto(const std::filesystem::path& fichero);

/// Gives a text piece by piece, no character cut in two; nothing once it is over.
using OrigenDeTexto = std::function<std::u16string()>;

/// A file's text in pieces, decoded as `decodifica` does it, for one too long to be held whole. The file is
/// first read to tell its encoding, up to the first byte that makes it no UTF-8. Both raise `ErrorDeFichero`.
class TextoPorTrozos {
public:
    explicit TextoPorTrozos(const std::filesystem::path& fichero);
    std::u16string siguiente();

private:
    std::string bytes();

    std::u16string nombre_; ///< for messages
    Descriptor descriptor_;
    std::string resto_;      ///< bytes read and not yet given
    std::size_t leidos_ = 0; ///< bytes given
    bool esUtf8_ = true;
    bool primero_ = true;
    std::u16string entero_; ///< what could be read once only
};

enum class Durabilidad { Normal, EnDisco };
/// Writes a whole file beside its place and renames it over it: a failure at any step (`ErrorDeFichero`)
/// leaves the old one. Permissions stay, a link is followed; `EnDisco` flushes file and folder. What is no
/// regular file (a device, a pipe) has no place beside it and is written directly.
void escribeBytes(const std::filesystem::path& fichero, std::string_view bytes, Durabilidad durabilidad);
void escribeTexto(const std::filesystem::path& fichero, std::u16string_view texto, Durabilidad durabilidad);

/// Takes a text piece by piece.
using SumideroDeTexto = std::function<void(std::u16string_view pieza)>;
/// Gives a text in pieces of whole lines, the same each time it is asked.
using TextoPorPiezas = std::function<void(const SumideroDeTexto& sumidero)>;
/// The text in one piece.
std::u16string deUnaPieza(const TextoPorPiezas& piezas);
/// Writes a text that is too long to be held whole.
void escribeTexto(const std::filesystem::path& fichero, const TextoPorPiezas& piezas,
                  Durabilidad durabilidad);

} // namespace norvik
