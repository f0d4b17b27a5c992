// SPDX-License-Identifier: MIT

// The command line. CLI11 splits the words; what is missing, left over or unknown is told in our own words,
// so every check that CLI11 would make in English is left to us: nothing is required of it, extras are
// allowed, values are plain texts.

#include "linea.hpp"

#include "ayuda.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"

#include <norvik/version.hpp>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <utility>

namespace norvik::orden {

namespace {

// CLI11 minds it, and yet leaves it over.
constexpr std::string_view finDeOpciones = "--";

std::u16string entreComillas(std::string_view palabra) {
    return u"«" + decodifica(palabra) + u"»";
}

[[noreturn]] void faltaElValor(std::string_view opcion) {
    throw LineaIncorrecta(u"falta el valor de la opción " + entreComillas(opcion));
}

template <typename Valor>
struct Opcion {
    std::string_view palabra;
    Valor valor;
};
template <typename Valor>
Opcion(const char*, Valor) -> Opcion<Valor>;

// The first is the one meant by an option that is not there; it need have no word.
constexpr std::array formatosDeArbol = {Opcion{"arbol", FormatoArbol::Dibujo},
                                        Opcion{"json", FormatoArbol::Json},
                                        Opcion{"lineas", FormatoArbol::Lineas}};
constexpr std::array formatosDeLexemas = {Opcion{"tabla", FormatoLexemas::Tabla},
                                          Opcion{"json", FormatoLexemas::Json}};
constexpr std::array formatosDeColor = {Opcion{"", FormatoColor::Terminal},
                                        Opcion{"ansi", FormatoColor::Ansi},
                                        Opcion{"html", FormatoColor::Html}};
constexpr std::array lenguajesDeModulo = {Opcion{"vb", LenguajeModulo::Vb},
                                          Opcion{"cpp", LenguajeModulo::Cpp}};

constexpr std::array formatosDeInforme = {Opcion{"texto", FormatoInforme::Texto},
                                          Opcion{"html", FormatoInforme::Html}};
constexpr std::array formatosDeRevision = {Opcion{"texto", FormatoRevision::Texto},
                                           Opcion{"json", FormatoRevision::Json},
                                           Opcion{"sarif", FormatoRevision::Sarif}};

constexpr std::array colores = {Opcion{"auto", Color::Auto}, Opcion{"siempre", Color::Siempre},
                                Opcion{"nunca", Color::Nunca}};

template <typename Valor, std::size_t n>
Valor elige(const std::array<Opcion<Valor>, n>& opciones, std::string_view opcion,
            const std::optional<std::string>& palabra) {
    if (!palabra) return opciones[0].valor;
    std::u16string lista;
    for (const auto& [posible, valor] : opciones) {
        if (posible.empty()) continue;
        if (posible == *palabra) return valor;
        lista += (lista.empty() ? u"" : u", ") + decodifica(posible);
    }
    throw LineaIncorrecta(entreComillas(*palabra) + u" no es un valor de " + decodifica(opcion) + u" (" +
                          lista + u")");
}

class Linea {
public:
    Linea();
    Peticion lee(int argc, const char* const* argv);

private:
    // The words that an order may have, as they were written.
    struct Palabras {
        std::string primera;
        std::string segunda;
        std::optional<std::string> formato;
        std::optional<std::string> lenguaje;
        std::optional<std::string> metodo;
        std::optional<std::string> color;
        std::string carpeta = ".";
        std::vector<std::string> especificaciones;
        bool estricto = false;
        bool actualiza = false;
        std::optional<std::string> junit;
        std::optional<std::string> cuantas;
        std::optional<std::string> semilla;
        bool mal = false;
    };

    // An order gets its options when it is the one that is read.
    void nueva(const char* nombre, std::function<void(CLI::App&)> opciones);
    void ponFicheros(CLI::App& orden, const char* primero, const char* segundo = nullptr);
    Orden interpreta(const CLI::App& orden) const;
    static void compruebaOpciones(const CLI::App& orden);
    void comprueba(const CLI::App& orden) const;
    std::optional<Metodo> metodo() const;
    Modulo modulo() const;
    Revisa revisa() const;
    Frases frases() const;

    CLI::App app_;
    Palabras palabras_;
    bool ayuda_ = false;
    bool version_ = false;
};

Linea::Linea() {
    app_.set_help_flag();
    app_.allow_extras();
    app_.require_subcommand(0, 1); // else a file named as an order would be taken for one
    app_.add_flag("-h,--help", ayuda_)->disable_flag_override();
    app_.add_flag("--version", version_)->disable_flag_override();
    app_.add_option("--color", palabras_.color)->take_last();
    for (const char* const nombre : {"analiza", "lexemas", "colorea"})
        nueva(nombre, [this](CLI::App& orden) {
            ponFicheros(orden, "LENGUAJE", "TEXTO");
            orden.add_option("--formato", palabras_.formato)->take_last();
        });
    nueva("informe", [this](CLI::App& orden) {
        ponFicheros(orden, "ESPECIFICACION");
        orden.add_option("-o", palabras_.carpeta)->take_last();
        orden.add_option("--formato", palabras_.formato)->take_last();
    });
    nueva("modulo", [this](CLI::App& orden) {
        ponFicheros(orden, "ESPECIFICACION", "NOMBRE");
        orden.add_option("-o", palabras_.carpeta)->take_last();
        orden.add_option("--lenguaje", palabras_.lenguaje)->take_last();
    });
    nueva("prueba", [this](CLI::App& orden) {
        ponFicheros(orden, "LENGUAJE", "CARPETA");
        orden.add_flag("--actualiza", palabras_.actualiza)->disable_flag_override();
        orden.add_option("--junit", palabras_.junit)->take_last();
    });
    nueva("frases", [this](CLI::App& orden) {
        ponFicheros(orden, "ESPECIFICACION");
        orden.add_option("--cuantas", palabras_.cuantas)->take_last();
        orden.add_option("--semilla", palabras_.semilla)->take_last();
        orden.add_flag("--mal", palabras_.mal)->disable_flag_override();
    });
    nueva("revisa", [this](CLI::App& orden) {
        orden.add_option("ESPECIFICACION", palabras_.especificaciones);
        orden.add_option("--formato", palabras_.formato)->take_last();
        orden.add_flag("--estricto", palabras_.estricto)->disable_flag_override();
    });
}

void Linea::nueva(const char* nombre, std::function<void(CLI::App&)> opciones) {
    CLI::App* const orden = app_.add_subcommand(nombre);
    orden->set_help_flag();
    orden->preparse_callback([this, orden, opciones = std::move(opciones)](std::size_t /*palabras*/) {
        orden->add_flag("-h,--help", ayuda_)->disable_flag_override();
        orden->add_option("--metodo", palabras_.metodo)->take_last();
        orden->add_option("--color", palabras_.color)->take_last();
        opciones(*orden);
    });
}

void Linea::ponFicheros(CLI::App& orden, const char* primero, const char* segundo) {
    orden.add_option(primero, palabras_.primera);
    if (segundo != nullptr) orden.add_option(segundo, palabras_.segunda);
}

Peticion Linea::lee(int argc, const char* const* argv) {
    // An option takes the next word whatever it is, so that only the last one can lack its value, or one
    // that says with "=" that it has it.
    constexpr std::array<std::string_view, 8> conValor = {"-o",      "--formato", "--lenguaje", "--metodo",
                                                          "--junit", "--cuantas", "--semilla",  "--color"};
    for (const std::string_view palabra : std::span(argv, static_cast<std::size_t>(argc)))
        if (palabra.ends_with('=') &&
            std::ranges::find(conValor, palabra.substr(0, palabra.size() - 1)) != conValor.end())
            faltaElValor(palabra.substr(0, palabra.size() - 1));
    try {
        app_.parse(argc, argv);
    } catch (const CLI::ArgumentMismatch&) {
        const std::string_view ultima = argv[argc - 1];
        if (std::ranges::find(conValor, ultima) != conValor.end()) faltaElValor(ultima);
        throw LineaIncorrecta(u"--help y --version no llevan valor");
    } catch (const CLI::ParseError&) {
        throw LineaIncorrecta(u"opción mal escrita");
    }
    const auto ordenes = app_.get_subcommands();
    compruebaOpciones(app_);
    if (!ordenes.empty()) compruebaOpciones(*ordenes[0]);
    if (ayuda_)
        return {Contesta{std::string(ordenes.empty() ? ayudaGeneral() : ayudaDe(ordenes[0]->get_name()))}};
    if (version_) return {Contesta{"norvik " NORVIK_VERSION "\n"}};
    comprueba(app_);
    if (ordenes.empty()) throw LineaIncorrecta(u"falta la orden (norvik --help las enumera)");
    comprueba(*ordenes[0]);
    return {interpreta(*ordenes[0]), elige(colores, "--color", palabras_.color)};
}

void Linea::compruebaOpciones(const CLI::App& orden) {
    for (const std::string& sobrante : orden.remaining())
        if (sobrante.size() > 1 && sobrante[0] == '-' && sobrante != finDeOpciones)
            throw LineaIncorrecta(u"opción desconocida: " + entreComillas(sobrante));
}

void Linea::comprueba(const CLI::App& orden) const {
    const bool faltaOrden = app_.get_subcommands().empty();
    for (const std::string& sobrante : orden.remaining())
        if (sobrante != finDeOpciones)
            throw LineaIncorrecta((faltaOrden ? u"orden desconocida: " : u"sobra ") +
                                  entreComillas(sobrante));
    for (const CLI::Option* const opcion : orden.get_options())
        if (opcion->get_positional() && opcion->count() == 0)
            throw LineaIncorrecta(u"falta " + decodifica(opcion->get_name()) + u" (norvik " +
                                  decodifica(orden.get_name()) + u" --help lo explica)");
    if (palabras_.primera == flujo && palabras_.segunda == flujo)
        throw LineaIncorrecta(u"la entrada estándar («-») solo puede estar en lugar de un fichero");
}

std::optional<Metodo> Linea::metodo() const {
    if (!palabras_.metodo) return std::nullopt;
    if (const auto metodo = metodoLlamado(decodifica(*palabras_.metodo))) return metodo;
    std::u16string lista;
    for (const auto& [nombre, metodo] : metodos)
        lista += (lista.empty() ? u"" : u", ") + std::u16string(nombre);
    throw LineaIncorrecta(entreComillas(*palabras_.metodo) + u" no es un valor de --metodo (" + lista + u")");
}

Modulo Linea::modulo() const {
    const auto lenguaje = elige(lenguajesDeModulo, "--lenguaje", palabras_.lenguaje);
    const std::u16string nombre = decodifica(palabras_.segunda);
    if (!esNombreDeModulo(nombre, lenguaje))
        throw LineaIncorrecta(u"El nombre seleccionado para el lenguaje es incorrecto");
    return Modulo{palabras_.primera, nombre, palabras_.carpeta, lenguaje, metodo()};
}

Revisa Linea::revisa() const {
    const auto& especificaciones = palabras_.especificaciones;
    if (std::ranges::count(especificaciones, flujo) > 1)
        throw LineaIncorrecta(u"la entrada estándar («-») solo puede estar en lugar de un fichero");
    return {{especificaciones.begin(), especificaciones.end()},
            elige(formatosDeRevision, "--formato", palabras_.formato),
            palabras_.estricto,
            metodo()};
}

std::uint32_t numeroDe(std::string_view opcion, const std::optional<std::string>& palabra,
                       std::uint32_t siFalta) {
    if (!palabra) return siFalta;
    std::uint32_t numero = 0;
    const char* const fin = palabra->data() + palabra->size();
    const auto [hasta, error] = std::from_chars(palabra->data(), fin, numero);
    constexpr std::uint32_t maximo = 1'000'000;
    if (error != std::errc() || hasta != fin || numero == 0 || numero > maximo)
        throw LineaIncorrecta(entreComillas(*palabra) + u" no es un valor de " + decodifica(opcion) +
                              u" (un número del 1 al 1000000)");
    return numero;
}

Frases Linea::frases() const {
    return {palabras_.primera, numeroDe("--cuantas", palabras_.cuantas, 0),
            numeroDe("--semilla", palabras_.semilla, 1), palabras_.mal, metodo()};
}

Orden Linea::interpreta(const CLI::App& orden) const {
    const std::string& nombre = orden.get_name();
    if (nombre == "analiza")
        return Analiza{palabras_.primera, palabras_.segunda,
                       elige(formatosDeArbol, "--formato", palabras_.formato), metodo()};
    if (nombre == "lexemas")
        return Lexemas{palabras_.primera, palabras_.segunda,
                       elige(formatosDeLexemas, "--formato", palabras_.formato), metodo()};
    if (nombre == "colorea")
        return Colorea{palabras_.primera, palabras_.segunda,
                       elige(formatosDeColor, "--formato", palabras_.formato), metodo()};
    if (nombre == "revisa") return revisa();
    if (nombre == "frases") return frases();
    if (nombre == "prueba")
        return Prueba{palabras_.primera, palabras_.segunda, palabras_.actualiza, palabras_.junit, metodo()};
    if (nombre == "informe")
        return Informe{palabras_.primera, palabras_.carpeta,
                       elige(formatosDeInforme, "--formato", palabras_.formato), metodo()};
    return modulo();
}

} // namespace

Peticion leeLinea(int argc, const char* const* argv) {
    return Linea().lee(argc, argv);
}

} // namespace norvik::orden
