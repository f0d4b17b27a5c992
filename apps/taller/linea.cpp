// SPDX-License-Identifier: MIT

// The command line. CLI11 splits the words; what is wrong with them is told in our own words.

#include "linea.hpp"

#include "claseFichero.hpp"

#include <norvik/version.hpp>

#include <CLI/CLI.hpp>

#include <optional>
#include <vector>

namespace norvik::taller {

namespace {

constexpr const char* ayuda = R"(norvik-taller: escribe lenguajes, y textos en editores que los conocen

Uso:
  norvik-taller [FICHERO…] [--lenguaje FICHERO]
  norvik-taller --help | --version

Sin ficheros sale la página de inicio. Los ficheros van en cualquier orden; cada uno se abre como lo que es, y de
cada clase va uno:
  NOMBRE.nvk            especificación: se abre en la ventana del lenguaje, con el texto que
                        la acompañe
  NOMBRE.nvf            formulario guardado por el taller
  NOMBRE.bas            módulo de carga: el lenguaje del editor del formulario
  los demás             texto

Opciones:
  --lenguaje FICHERO    lenguaje del editor del formulario: una especificación (NOMBRE.nvk) o un
                        módulo de carga (NOMBRE.bas)
  --help                muestra esta ayuda
  --version             muestra la versión
)";

Contesta error(const std::string& motivo) {
    return {"norvik-taller: " + motivo + " (norvik-taller --help explica el uso)\n", 2};
}

/// The one that the line cannot be split for: the only option with a value lacks it, or another one has one.
Contesta malEscrita(const std::vector<std::string>& palabras) {
    for (const std::string& palabra : palabras)
        if (palabra.starts_with("--") && !palabra.starts_with("--lenguaje") &&
            palabra.find('=') != std::string::npos)
            return error("la opción «" + palabra + "» no lleva valor");
    return error("falta el valor de la opción «--lenguaje»");
}

/// What each file is, and what it is for; nothing when there is room for it.
std::optional<Contesta> coloca(const std::string& palabra, Arranque& arranque) {
    const QString fichero = QString::fromLocal8Bit(palabra);
    const auto pon = [&](QString& sitio, const std::string& clase) -> std::optional<Contesta> {
        if (!sitio.isEmpty())
            return error("«" + sitio.toLocal8Bit().toStdString() + "» y «" + palabra + "» son dos " + clase +
                         ", y se abre uno cada vez");
        sitio = fichero;
        return std::nullopt;
    };
    switch (claseDe(fichero)) {
    case ClaseFichero::Formulario:
        return pon(arranque.formulario, "formularios");
    case ClaseFichero::Especificacion:
        return pon(arranque.especificacion, "lenguajes");
    case ClaseFichero::Modulo:
        return pon(arranque.lenguaje, "lenguajes");
    case ClaseFichero::Texto:
        return pon(arranque.texto, "textos");
    }
    return std::nullopt;
}

std::variant<Arranque, Contesta> reparte(const std::vector<std::string>& palabras,
                                         const std::string& lenguaje) {
    Arranque arranque;
    arranque.lenguaje = QString::fromLocal8Bit(lenguaje);
    for (const std::string& palabra : palabras)
        if (auto mal = coloca(palabra, arranque)) return *mal;
    return arranque;
}

} // namespace

std::variant<Arranque, Contesta> leeLinea(int argc, const char* const* argv) {
    CLI::App app;
    std::string lenguaje;
    std::vector<std::string> ficheros;
    bool pideAyuda = false;
    bool pideVersion = false;
    app.set_help_flag();
    app.allow_extras();
    app.add_flag("-h,--help", pideAyuda)->disable_flag_override();
    app.add_flag("--version", pideVersion)->disable_flag_override();
    app.add_option("--lenguaje", lenguaje)->take_last();
    app.add_option("FICHERO", ficheros);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError&) {
        return malEscrita({argv + 1, argv + argc});
    }
    if (pideAyuda) return Contesta{ayuda};
    if (pideVersion) return Contesta{"norvik-taller " NORVIK_VERSION "\n"};
    for (const std::string& sobra : app.remaining())
        if (sobra != "--") return error("opción desconocida: «" + sobra + "»"); // the mark is left over, too
    return reparte(ficheros, lenguaje);
}

} // namespace norvik::taller
