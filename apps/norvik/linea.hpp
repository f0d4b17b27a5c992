// SPDX-License-Identifier: MIT

#pragma once

#include "salida.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/grammar/metodo.hpp"
#include "norvik/report/nombreDeModulo.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace norvik::orden {

enum class FormatoArbol { Dibujo, Json, Lineas };
enum class FormatoLexemas { Tabla, Json };
/// `Terminal`: nothing was asked for, so colours go to terminals only.
enum class FormatoColor { Terminal, Ansi, Html };

struct Analiza {
    std::filesystem::path lenguaje;
    std::filesystem::path texto;
    FormatoArbol formato = FormatoArbol::Dibujo;
    std::optional<Metodo> metodo;
};

struct Lexemas {
    std::filesystem::path lenguaje;
    std::filesystem::path texto;
    FormatoLexemas formato = FormatoLexemas::Tabla;
    std::optional<Metodo> metodo;
};

struct Colorea {
    std::filesystem::path lenguaje;
    std::filesystem::path texto;
    FormatoColor formato = FormatoColor::Terminal;
    std::optional<Metodo> metodo;
};

enum class FormatoInforme { Texto, Html };

struct Informe {
    std::filesystem::path especificacion;
    std::filesystem::path carpeta;
    FormatoInforme formato = FormatoInforme::Texto;
    std::optional<Metodo> metodo;
};

struct Modulo {
    std::filesystem::path especificacion;
    std::u16string nombre;
    std::filesystem::path carpeta;
    LenguajeModulo lenguaje = LenguajeModulo::Vb;
    std::optional<Metodo> metodo;
};

enum class FormatoRevision { Texto, Json, Sarif };

struct Revisa {
    std::vector<std::filesystem::path> especificaciones;
    FormatoRevision formato = FormatoRevision::Texto;
    bool estricto = false; ///< a warning counts as an error
    std::optional<Metodo> metodo;
};

struct Prueba {
    std::filesystem::path lenguaje;
    std::filesystem::path carpeta;
    bool actualiza = false; ///< what is expected is written instead of compared
    std::optional<std::filesystem::path> junit;
    std::optional<Metodo> metodo;
};

struct Frases {
    std::filesystem::path especificacion;
    std::size_t cuantas = 0; ///< 0: few that use every rule
    std::uint32_t semilla = 1;
    bool mal = false;
    std::optional<Metodo> metodo;
};

/// Help or version: the text is the answer.
struct Contesta {
    std::string texto;
};

using Orden = std::variant<Contesta, Analiza, Lexemas, Colorea, Informe, Modulo, Revisa, Prueba, Frases>;

/// A command line that asks for nothing that can be done.
class LineaIncorrecta : public ErrorNorvik {
public:
    explicit LineaIncorrecta(std::u16string_view texto) : ErrorNorvik(texto) {}
};

struct Peticion {
    Orden orden;
    Color color = Color::Auto;
};

/// What the command line asks for; raises `LineaIncorrecta`.
Peticion leeLinea(int argc, const char* const* argv);

/// In place of a file, standard input; in place of a folder, standard output.
inline constexpr std::string_view flujo = "-";

} // namespace norvik::orden
