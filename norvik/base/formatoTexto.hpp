// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// How a file has its text, so that a person's document is written back as it was read.
namespace norvik::inline v0_2 {

enum class Codificacion : std::uint8_t { Utf8, Utf8ConMarca, Windows1252, Utf16Le, Utf16Be };
enum class SaltoDeFichero : std::uint8_t { Lf, CrLf, Cr };

/// That of a new document.
struct FormatoTexto {
    Codificacion codificacion = Codificacion::Utf8;
    SaltoDeFichero salto = SaltoDeFichero::Lf;
    bool acabaEnSalto = true;

    bool operator==(const FormatoTexto&) const = default;
};

/// Bytes that no text has: what they were is lost when they are read as one.
bool esBinario(std::string_view bytes);
/// Of line ends of several kinds the one that there is most of; where there is none, that of a new document.
FormatoTexto formatoDe(std::string_view bytes);
/// Line ends of several kinds.
bool mezclaSaltos(std::u16string_view texto);

struct TextoCodificado {
    std::string bytes;
    FormatoTexto formato; ///< what the encoding asked for cannot hold is UTF-8
};
/// A text whose lines end in CR LF. Raises `ErrorDeFichero` for one that no file can hold.
TextoCodificado codifica(std::u16string_view texto, const FormatoTexto& formato);

/// As people call them: "UTF-8", "CR LF".
std::u16string_view nombreDe(Codificacion codificacion);
std::u16string_view nombreDe(SaltoDeFichero salto);

} // namespace norvik::inline v0_2
