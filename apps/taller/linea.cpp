// SPDX-License-Identifier: MIT

// The command line. CLI11 splits the words; what is wrong with them is told in our own words.

#include "linea.hpp"

#include <norvik/version.hpp>

#include <CLI/CLI.hpp>

namespace norvik::taller {

namespace {

constexpr const char* ayuda = R"(norvik-taller: formularios con editores que conocen lenguajes

Uso:
  norvik-taller [--lenguaje FICHERO] [TEXTO]
  norvik-taller FORMULARIO
  norvik-taller ESPECIFICACION
  norvik-taller --help | --version

  TEXTO                 texto que se abre
  FORMULARIO            formulario guardado por el taller (NOMBRE.nvf)
  ESPECIFICACION        lenguaje que se abre en la ventana del lenguaje (NOMBRE.nvk)

Opciones:
  --lenguaje FICHERO    lenguaje del texto: una especificación (NOMBRE.nvk) o un módulo
                        de carga (NOMBRE.bas)
  --help                muestra esta ayuda
  --version             muestra la versión
)";

Contesta error(const std::string& motivo) {
    return {"norvik-taller: " + motivo + " (norvik-taller --help explica el uso)\n", 2};
}

bool esOpcion(const std::string& palabra) {
    return palabra.size() > 1 && palabra[0] == '-';
}

} // namespace

std::variant<Arranque, Contesta> leeLinea(int argc, const char* const* argv) {
    CLI::App app;
    std::string lenguaje;
    std::string texto;
    bool pideAyuda = false;
    bool pideVersion = false;
    app.set_help_flag();
    app.allow_extras();
    app.add_flag("-h,--help", pideAyuda)->disable_flag_override();
    app.add_flag("--version", pideVersion)->disable_flag_override();
    app.add_option("--lenguaje", lenguaje)->take_last();
    app.add_option("TEXTO", texto);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ArgumentMismatch&) {
        const std::string ultima = argv[argc - 1];
        return error(ultima == "--lenguaje" ? "falta el valor de la opción «" + ultima + "»"
                                            : "--help y --version no llevan valor");
    } catch (const CLI::ParseError&) {
        return error("opción mal escrita");
    }
    if (pideAyuda) return Contesta{ayuda};
    if (pideVersion) return Contesta{"norvik-taller " NORVIK_VERSION "\n"};
    for (const std::string& sobra : app.remaining()) {
        if (sobra == "--") continue; // the mark that no options follow is left over, too
        return error((esOpcion(sobra) ? "opción desconocida: «" : "sobra «") + sobra + "»");
    }
    return Arranque{QString::fromLocal8Bit(lenguaje), QString::fromLocal8Bit(texto)};
}

} // namespace norvik::taller
