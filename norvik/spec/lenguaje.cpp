// SPDX-License-Identifier: MIT

// The value door: texts come in as the caller has them, are turned to UTF-16 once, and are handed to an
// analyser of the language.
#include "norvik/spec/lenguaje.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/spec/compiladorLenguaje.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/datosLenguaje.hpp"
#include "norvik/spec/filma.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <limits>
#include <string>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

void compruebaTamano(std::size_t unidades) {
    if (unidades >= static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        throw Desbordamiento(u"Desbordamiento: el texto pasa de 2147483646 unidades");
}

// Length of a character by its first byte; a byte that begins none counts alone.
std::size_t largoDeCaracterUtf8(char byte) {
    const auto b = static_cast<unsigned char>(byte);
    if (b >= 0xF0) return 4;
    if (b >= 0xE0) return 3;
    return b >= 0xC0 ? 2 : 1;
}

Diagnostico utf8Incorrecto(std::string_view bytes) {
    std::size_t sano = 0;
    for (std::size_t largo = 1; sano < bytes.size(); sano += largo) {
        largo = largoDeCaracterUtf8(bytes[sano]);
        if (!esUtf8(bytes.substr(sano, largo))) break;
    }
    const std::u16string antes = desdeUtf8(bytes.substr(0, sano)).value_or(std::u16string());
    const Punto inicio = Lugares(antes, Lugares::Unidad::Utf8).punto(antes.size());
    const Punto fin{inicio.desplazamiento + 1, inicio.linea, inicio.columna + 1};
    return {Codigo::Utf8Incorrecto, Gravedad::Error, {inicio, fin}, {}};
}

std::unique_ptr<TextoAnalizado> prepara(const Lenguaje& lenguaje, std::u16string texto,
                                        Lugares::Unidad unidad) {
    return std::make_unique<TextoAnalizado>(lenguaje.datos().vocabulario(), std::move(texto), unidad);
}

Analisis analizaTexto(const Lenguaje& lenguaje, std::u16string texto, Lugares::Unidad unidad,
                      const OpcionesAnalisis& opciones) {
    const DatosDeLenguaje::Prestamo analizador(lenguaje.datos());
    return analizador->analiza(prepara(lenguaje, std::move(texto), unidad), opciones);
}

Compilacion compilaTexto(std::u16string especificacion, Lugares::Unidad unidad,
                         const OpcionesCompilacion& opciones) {
    const Directivas directivas = directivasDe(especificacion, opciones, unidad);
    return compilaEspecificacion(
        analizaTexto(lenguajeDeEspecificaciones(), std::move(especificacion), unidad, {opciones.cancelacion}),
        directivas, opciones.cancelacion);
}

} // namespace

Lenguaje::Lenguaje(std::shared_ptr<const DatosDeLenguaje> datos) : datos_(std::move(datos)) {}

const Vocabulario& Lenguaje::vocabulario() const {
    return *datos_->vocabulario();
}

bool Lenguaje::tieneGramatica() const {
    return !vocabulario().reglas.empty();
}

Compilacion Lenguaje::compila(std::u16string_view especificacion, const OpcionesCompilacion& opciones) {
    compruebaTamano(especificacion.size());
    return compilaTexto(std::u16string(especificacion), Lugares::Unidad::Utf16, opciones);
}

Compilacion Lenguaje::compila(std::string_view especificacionUtf8, const OpcionesCompilacion& opciones) {
    compruebaTamano(especificacionUtf8.size());
    auto especificacion = desdeUtf8(especificacionUtf8);
    if (!especificacion) return {std::nullopt, {utf8Incorrecto(especificacionUtf8)}};
    return compilaTexto(std::move(*especificacion), Lugares::Unidad::Utf8, opciones);
}

Compilacion Lenguaje::cargaModulo(std::u16string_view modulo) {
    return lenguajeDeModulo([&](CargadorLenguaje& cargador) { return CargaModulo(modulo, cargador); });
}

Compilacion Lenguaje::cargaModulo(std::string_view moduloUtf8) {
    constexpr std::string_view marca = "\xEF\xBB\xBF";
    if (moduloUtf8.starts_with(marca)) moduloUtf8.remove_prefix(marca.size());
    const auto modulo = desdeUtf8(moduloUtf8);
    if (!modulo) return {std::nullopt, {utf8Incorrecto(moduloUtf8)}};
    return cargaModulo(std::u16string_view(*modulo));
}

Compilacion Lenguaje::deFichero(const std::filesystem::path& fichero, const OpcionesCompilacion& opciones) {
    if (!esModulo(fichero)) return compila(leeTexto(fichero), opciones);
    return lenguajeDeModulo([&](CargadorLenguaje& cargador) {
        TextoPorTrozos texto(fichero);
        return CargaModulo([&] { return texto.siguiente(); }, cargador);
    });
}

Lenguaje Lenguaje::de(const DatosLenguaje& datos) {
    const auto compilacion = lenguajeDeModulo([&](CargadorLenguaje& cargador) -> std::optional<ErrorModulo> {
        try {
            CargaLenguaje(datos, cargador);
        } catch (const ErrorNorvik& error) {
            return ErrorModulo{1, error.texto()};
        }
        return std::nullopt;
    });
    if (!compilacion.lenguaje) throw ArgumentoNoValido(compilacion.diagnosticos.front().partes.hallado);
    return *compilacion.lenguaje;
}

Analisis analiza(const Lenguaje& lenguaje, std::u16string_view texto, const OpcionesAnalisis& opciones) {
    compruebaTamano(texto.size());
    return analizaTexto(lenguaje, std::u16string(texto), Lugares::Unidad::Utf16, opciones);
}

Analisis analiza(const Lenguaje& lenguaje, std::string_view utf8, const OpcionesAnalisis& opciones) {
    compruebaTamano(utf8.size());
    auto texto = desdeUtf8(utf8);
    if (!texto) return {{}, {utf8Incorrecto(utf8)}};
    return analizaTexto(lenguaje, std::move(*texto), Lugares::Unidad::Utf8, opciones);
}

std::variant<Pelicula, Diagnostico> filma(const Lenguaje& lenguaje, std::u16string_view texto,
                                          const std::stop_token& cancelacion) {
    compruebaTamano(texto.size());
    const DatosDeLenguaje::Prestamo analizador(lenguaje.datos());
    return analizador->filma(prepara(lenguaje, std::u16string(texto), Lugares::Unidad::Utf16), {cancelacion});
}

Lexemas lexemas(const Lenguaje& lenguaje, std::u16string_view texto, const OpcionesAnalisis& opciones) {
    compruebaTamano(texto.size());
    const DatosDeLenguaje::Prestamo analizador(lenguaje.datos());
    return analizador->lexemas(prepara(lenguaje, std::u16string(texto), Lugares::Unidad::Utf16), opciones);
}

Lexemas lexemas(const Lenguaje& lenguaje, std::string_view utf8, const OpcionesAnalisis& opciones) {
    compruebaTamano(utf8.size());
    auto texto = desdeUtf8(utf8);
    if (!texto) return Lexemas(nullptr, {utf8Incorrecto(utf8)});
    const DatosDeLenguaje::Prestamo analizador(lenguaje.datos());
    return analizador->lexemas(prepara(lenguaje, std::move(*texto), Lugares::Unidad::Utf8), opciones);
}

Continuaciones continuaciones(const Lenguaje& lenguaje, std::u16string_view texto, std::size_t posicion,
                              const OpcionesAnalisis& opciones) {
    compruebaTamano(texto.size());
    const DatosDeLenguaje::Prestamo analizador(lenguaje.datos());
    return analizador->continuaciones(texto, posicion, opciones);
}

} // namespace norvik::inline v0_2
