#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/analisis.hpp"
#include "norvik/parser/lexemas.hpp"
#include "norvik/parser/vocabulario.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace norvik {

class DatosDeLenguaje;
struct Compilacion;

/// A language ready to be used: its tokens, its rules and its table. It is immutable and cheap to copy
/// (copies share it); any number of threads may analyse with one at the same time. Made by the functions
/// here, which never touch another language: what is wrong with the text they are given is told in
/// diagnostics.
class Lenguaje {
public:
    /// Compiles a specification. Ranges of the diagnostics count in UTF-16 units; of UTF-8, in bytes.
    static Compilacion compila(std::u16string_view especificacion);
    static Compilacion compila(std::string_view especificacionUtf8);
    /// Takes a language from the text of a loading module ("NOMBRE.bas"), its line ends untouched.
    static Compilacion cargaModulo(std::u16string_view modulo);
    /// A file with a specification, or with a loading module by its ending ".bas"; ranges count in UTF-16
    /// units of the text as `leeTexto` gives it. Raises `ErrorDeFichero`.
    static Compilacion deFichero(const std::filesystem::path& fichero);

    /// Tokens, variables and rules by the numbers that the nodes of trees carry. It holds as long as a copy
    /// of the language.
    const Vocabulario& vocabulario() const;
    /// False for a language without rules: texts can be read with it, not parsed.
    bool tieneGramatica() const;

    /// For those who make languages.
    explicit Lenguaje(std::shared_ptr<const DatosDeLenguaje> datos);
    const DatosDeLenguaje& datos() const { return *datos_; }

private:
    std::shared_ptr<const DatosDeLenguaje> datos_;
};

/// What compiling gives: a language wherever one can be made, and all that is wrong or odd.
struct Compilacion {
    std::optional<Lenguaje> lenguaje;
    std::vector<Diagnostico> diagnosticos;

    /// There is a language, and nothing is an error.
    explicit operator bool() const { return lenguaje && !hayErrores(diagnosticos); }
};

/// Parses a text. Ranges count in units of the text that is given: UTF-16, or bytes of UTF-8. Time and memory
/// are in proportion to the text. Raises `Desbordamiento` for a text of 2^31 - 1 units or more.
Analisis analiza(const Lenguaje& lenguaje, std::u16string_view texto, const OpcionesAnalisis& opciones = {});
Analisis analiza(const Lenguaje& lenguaje, std::string_view utf8, const OpcionesAnalisis& opciones = {});

/// The tokens of a text, comments included, without parsing it. Ranges, cost and failures as above.
Lexemas lexemas(const Lenguaje& lenguaje, std::u16string_view texto, const OpcionesAnalisis& opciones = {});
Lexemas lexemas(const Lenguaje& lenguaje, std::string_view utf8, const OpcionesAnalisis& opciones = {});

} // namespace norvik
