// SPDX-License-Identifier: MIT

// The properties of the control, one a row, and nowhere else: the keys of a bag with their orders and their
// defaults, the values of a new control, what a change is called when the container is told of it, the fields
// of the property pages and what Qt Designer shows come from here. The rows stand in the order in which a bag
// is read; a failure on the way leaves those before it.
#pragma once

#include "norvik/control/ayudas.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace norvik::inline v0_2 {

/// Where a value is kept, which says its type, too. Those of a font are attributes of the box's; what has
/// none is the box's in some other way.
using LugarDePropiedad =
    std::variant<std::monostate, bool Opciones::*, std::int16_t Opciones::*, std::u16string Opciones::*,
                 bool pilaTokens::*, std::int32_t pilaTokens::*, bool Fuente::*, std::int16_t Fuente::*,
                 std::int32_t Fuente::*, std::u16string Fuente::*, bool Ayudas::*>;

/// What is done with a value that was read.
enum class AlRestaurar : std::uint8_t {
    Nada, ///< it is never read
    Guarda,
    Avisa, ///< as if it were set
    Marco,
    Seleccion,
    Borde,
    Texto
};

enum class PaginaDePropiedad : std::uint8_t { Ninguna, General, Colores };

struct Propiedad {
    std::u16string_view nombre{}; ///< of its members, and of Qt's property; of what is only a key, the key
    LugarDePropiedad lugar{};
    std::u16string_view clave = nombre; ///< in a bag, and of its notification
    AlRestaurar alRestaurar = AlRestaurar::Nada;
    std::int8_t seEscribe = 0; ///< its place when a bag is written; 0: it is not
    std::int32_t nuevo = 0;    ///< of the lexer's, in a new control; others have their type's
    std::optional<std::int32_t>
        omision{}; ///< when the key is absent, if that is not the one of a new control
    PaginaDePropiedad pagina = PaginaDePropiedad::Ninguna;
    std::int8_t fila = 0;         ///< on its page
    std::u16string_view rotulo{}; ///< and its words there
    std::u16string_view grupo{};  ///< in Qt Designer; none: it is not shown there
    std::u16string_view ayuda{};  ///< and what it is, there
    bool variasLineas = false;

    constexpr bool esClave() const { return alRestaurar != AlRestaurar::Nada || seEscribe > 0; }
    constexpr bool esColor() const { return std::holds_alternative<std::int32_t pilaTokens::*>(lugar); }
    constexpr bool esTexto() const { return std::holds_alternative<std::u16string Opciones::*>(lugar); }
    constexpr bool esNumero16() const { return std::holds_alternative<std::int16_t Opciones::*>(lugar); }
};

inline constexpr auto tablaPropiedades = std::to_array<Propiedad>({
    {.nombre = u"AutoCorreccion",
     .lugar = &Opciones::autoCorreccion,
     .alRestaurar = AlRestaurar::Avisa,
     .seEscribe = 1,
     .pagina = PaginaDePropiedad::General,
     .fila = 6,
     .rotulo = u"Opción de AutoCorrección",
     .grupo = u"Edición",
     .ayuda = u"Al colorear se corrigen las mayúsculas de las palabras reservadas."},
    {.nombre = u"AutoNumero",
     .lugar = &pilaTokens::autoNumber,
     .alRestaurar = AlRestaurar::Avisa,
     .seEscribe = 2,
     .nuevo = 1,
     .pagina = PaginaDePropiedad::General,
     .fila = 3,
     .rotulo = u"Optimizar números al escribir.",
     .grupo = u"Edición",
     .ayuda = u"Optimiza los números al escribir."},
    {.nombre = u"AutoTAB",
     .lugar = &Opciones::autoTAB,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 3,
     .pagina = PaginaDePropiedad::General,
     .fila = 4,
     .rotulo = u"Tabular automáticamente.",
     .grupo = u"Edición",
     .ayuda = u"Una línea nueva empieza con los espacios de la anterior."},
    {.nombre = u"Borde3D",
     .lugar = &Opciones::borde3D,
     .alRestaurar = AlRestaurar::Marco,
     .seEscribe = 4,
     .pagina = PaginaDePropiedad::General,
     .fila = 10,
     .rotulo = u"Mostrar Borde 3D",
     .grupo = u"Aspecto",
     .ayuda = u"Muestra el marco hundido."},
    {.nombre = u"ColorCadena",
     .lugar = &pilaTokens::ColorCadena,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 12,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 7,
     .rotulo = u"cadenas",
     .grupo = u"Colores",
     .ayuda = u"Color de las cadenas."},
    {.nombre = u"ColorCaracter",
     .lugar = &pilaTokens::ColorCaracter,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 13,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 8,
     .rotulo = u"caracteres",
     .grupo = u"Colores",
     .ayuda = u"Color de los caracteres."},
    {.nombre = u"ColorComentarios",
     .lugar = &pilaTokens::ColorComentarios,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 5,
     .nuevo = 0x008000,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 3,
     .rotulo = u"comentarios",
     .grupo = u"Colores",
     .ayuda = u"Color de los comentarios."},
    {.nombre = u"Colorear",
     .lugar = &Opciones::colorear,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 6,
     .omision = 1,
     .grupo = u"Colores",
     .ayuda = u"El texto se colorea según su lenguaje."},
    {.nombre = u"ColorEtiquetas",
     .lugar = &pilaTokens::ColorEtiquetas,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 7,
     .nuevo = 0xFF8080,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 4,
     .rotulo = u"etiquetas",
     .grupo = u"Colores",
     .ayuda = u"Color de las etiquetas."},
    {.nombre = u"ColorError",
     .lugar = &pilaTokens::ColorError,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 8,
     .nuevo = 0x0000FF,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 6,
     .rotulo = u"errores",
     .grupo = u"Colores",
     .ayuda = u"Color de los errores que se marcan."},
    {.nombre = u"ColorFechas",
     .lugar = &pilaTokens::ColorFechas,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 14,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 9,
     .rotulo = u"fechas",
     .grupo = u"Colores",
     .ayuda = u"Color de las fechas."},
    {.nombre = u"ColorNumeros",
     .lugar = &pilaTokens::ColorNumeros,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 9,
     .nuevo = 0x808000,
     .omision = 0,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 5,
     .rotulo = u"números",
     .grupo = u"Colores",
     .ayuda = u"Color de los números."},
    {.nombre = u"ColorOperadores",
     .lugar = &pilaTokens::ColorOperadores,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 10,
     .nuevo = 0x000080,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 2,
     .rotulo = u"operadores",
     .grupo = u"Colores",
     .ayuda = u"Color de los operadores."},
    {.nombre = u"ColorPR",
     .lugar = &pilaTokens::colorPalabrasReservadas,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 11,
     .nuevo = 0x800000,
     .pagina = PaginaDePropiedad::Colores,
     .fila = 1,
     .rotulo = u"palabras reservadas",
     .grupo = u"Colores",
     .ayuda = u"Color de las palabras reservadas."},
    {.nombre = u"EspaciosXTAB",
     .lugar = &Opciones::espaciosXTAB,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 15,
     .pagina = PaginaDePropiedad::General,
     .fila = 5,
     .rotulo = u"Número de espacios por Tab",
     .grupo = u"Edición",
     .ayuda = u"Espacios que escribe la tecla de tabulación."},
    {.nombre = u"FontBold", .lugar = &Fuente::negrita, .alRestaurar = AlRestaurar::Guarda, .seEscribe = 16},
    {.nombre = u"FontCharset",
     .lugar = &Fuente::juegoCaracteres,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 17},
    {.nombre = u"FontItalic", .lugar = &Fuente::cursiva, .alRestaurar = AlRestaurar::Guarda, .seEscribe = 18},
    {.nombre = u"FontName", .lugar = &Fuente::nombre, .alRestaurar = AlRestaurar::Guarda, .seEscribe = 19},
    {.nombre = u"FontSize", .lugar = &Fuente::tamano, .alRestaurar = AlRestaurar::Guarda, .seEscribe = 20},
    {.nombre = u"FontStrikethrough",
     .lugar = &Fuente::tachado,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 21},
    {.nombre = u"FontUnderline",
     .lugar = &Fuente::subrayado,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 22},
    {.nombre = u"FontWeight", .lugar = &Fuente::peso, .alRestaurar = AlRestaurar::Guarda, .seEscribe = 23},
    {.nombre = u"Font",
     .seEscribe = 24,
     .grupo = u"Aspecto",
     .ayuda = u"Letra del texto."}, // its attributes are read
    {.nombre = u"HideSelection",
     .lugar = &Opciones::hideSelection,
     .alRestaurar = AlRestaurar::Seleccion,
     .seEscribe = 25,
     .grupo = u"Aspecto",
     .ayuda = u"La selección no se ve cuando el texto no tiene el foco."},
    {.nombre = u"LeftBorderVisible",
     .lugar = &Opciones::leftBorderVisible,
     .alRestaurar = AlRestaurar::Borde,
     .seEscribe = 26,
     .pagina = PaginaDePropiedad::General,
     .fila = 9,
     .rotulo = u"Mostrar Borde del Debugger",
     .grupo = u"Aspecto",
     .ayuda = u"Muestra el borde izquierdo, el de los signos de error."},
    {.nombre = u"LenguajeSensible",
     .lugar = &Opciones::lenguajeSensible,
     .alRestaurar = AlRestaurar::Avisa,
     .seEscribe = 27,
     .pagina = PaginaDePropiedad::General,
     .fila = 7,
     .rotulo = u"Lenguaje Sensible a Mayúsculas y Minúsculas.",
     .grupo = u"Lenguaje",
     .ayuda = u"Las definiciones que se cargan distinguen mayúsculas de minúsculas."},
    {.nombre = u"MarcarErrores",
     .lugar = &Opciones::marcarErrores,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 28,
     .pagina = PaginaDePropiedad::General,
     .fila = 2,
     .rotulo = u"Marcar línea cuando se produzca un error.",
     .grupo = u"Análisis",
     .ayuda = u"Un error del análisis marca su línea."},
    {.nombre = u"MargenIzquierdo",
     .lugar = &Opciones::margenIzquierdo,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 29,
     .pagina = PaginaDePropiedad::General,
     .fila = 8,
     .rotulo = u"Tamaño de alineación izquierda:",
     .grupo = u"Aspecto",
     .ayuda = u"Distancia del borde al texto, en twips."},
    {.nombre = u"MuestraMensajesDeError",
     .lugar = &Opciones::muestraMensajesDeError,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 30,
     .omision = 1,
     .pagina = PaginaDePropiedad::General,
     .fila = 1,
     .rotulo = u"Mostrar Mensajes de Error en los Análisis",
     .grupo = u"Análisis",
     .ayuda = u"Un error del análisis se dice en un mensaje."},
    {.nombre = u"NomLenguaje",
     .lugar = &Opciones::nombreLenguaje,
     .clave = u"NombreLenguaje",
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 31,
     .grupo = u"Lenguaje",
     .ayuda = u"Nombre del lenguaje."},
    {.nombre = u"Text", .alRestaurar = AlRestaurar::Texto},
    {.nombre = u"ContenidoG",
     .lugar = &Opciones::contenidoG,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 33,
     .grupo = u"Lenguaje",
     .ayuda = u"Especificación del lenguaje.",
     .variasLineas = true},
    {.nombre = u"CodigoPrueba",
     .lugar = &Opciones::codigoPrueba,
     .alRestaurar = AlRestaurar::Guarda,
     .seEscribe = 32,
     .grupo = u"Lenguaje",
     .ayuda = u"Texto con que se prueba el lenguaje.",
     .variasLineas = true},
    {.nombre = u"pendienteGuardarG",
     .lugar = &Opciones::pendienteGuardarG,
     .alRestaurar = AlRestaurar::Guarda},

    // those that no bag has
    {.nombre = u"soloLectura", .grupo = u"Edición", .ayuda = u"El usuario no puede cambiar el texto."},
    {.nombre = u"coloreaAlEscribir",
     .lugar = &Ayudas::coloreaAlEscribir,
     .grupo = u"Ayudas",
     .ayuda = u"Los colores están al día tras cada cambio."},
    {.nombre = u"numerosDeLinea",
     .lugar = &Ayudas::numerosDeLinea,
     .grupo = u"Ayudas",
     .ayuda = u"Números de línea en el borde izquierdo."},
    {.nombre = u"resaltaLinea",
     .lugar = &Ayudas::resaltaLinea,
     .grupo = u"Ayudas",
     .ayuda = u"La línea del cursor tiene otro fondo."},
    {.nombre = u"resaltaParejas",
     .lugar = &Ayudas::resaltaParejas,
     .grupo = u"Ayudas",
     .ayuda = u"Se resaltan el paréntesis junto al cursor y su pareja."},
    {.nombre = u"permiteZoom",
     .lugar = &Ayudas::permiteZoom,
     .grupo = u"Ayudas",
     .ayuda = u"Control con la rueda o con +, - y 0 cambia el tamaño de la letra."},
    {.nombre = u"deshacePorPalabras",
     .lugar = &Ayudas::deshacePorPalabras,
     .grupo = u"Ayudas",
     .ayuda = u"Deshacer quita palabras enteras."},
    {.nombre = u"sangraSeleccion",
     .lugar = &Ayudas::sangraSeleccion,
     .grupo = u"Ayudas",
     .ayuda = u"El tabulador sangra las líneas seleccionadas."},
    {.nombre = u"teclasDePalabra",
     .lugar = &Ayudas::teclasDePalabra,
     .grupo = u"Ayudas",
     .ayuda = u"Control con las flechas y las teclas de borrar va por palabras."},
    {.nombre = u"barraDeBusqueda",
     .lugar = &Ayudas::barraDeBusqueda,
     .grupo = u"Ayudas",
     .ayuda = u"Se busca en una barra bajo el texto."},
    {.nombre = u"completa",
     .lugar = &Ayudas::completa,
     .grupo = u"Ayudas",
     .ayuda = u"Control+Espacio propone lo que puede seguir."},
    {.nombre = u"pliega",
     .lugar = &Ayudas::pliega,
     .grupo = u"Ayudas",
     .ayuda = u"Se pueden plegar las construcciones de varias líneas."},
});

/// Null when there is no such name, or key.
constexpr const Propiedad* propiedadDeNombre(std::u16string_view nombre) {
    const auto p = std::ranges::find(tablaPropiedades, nombre, &Propiedad::nombre);
    return p == tablaPropiedades.end() ? nullptr : &*p;
}
constexpr const Propiedad* propiedadDeClave(std::u16string_view clave) {
    const auto p = std::ranges::find(tablaPropiedades, clave, &Propiedad::clave);
    return p == tablaPropiedades.end() ? nullptr : &*p;
}

/// The rows that have a place in an order (`seEscribe`), in it.
inline std::vector<const Propiedad*> propiedadesPor(std::int8_t Propiedad::*orden) {
    std::vector<const Propiedad*> filas;
    for (const Propiedad& p : tablaPropiedades)
        if (p.*orden > 0) filas.push_back(&p);
    std::ranges::sort(filas, {}, [orden](const Propiedad* p) { return p->*orden; });
    return filas;
}

/// The fields of a property page, in their order.
inline std::vector<const Propiedad*> propiedadesDe(PaginaDePropiedad pagina) {
    std::vector<const Propiedad*> filas = propiedadesPor(&Propiedad::fila);
    std::erase_if(filas, [pagina](const Propiedad* p) { return p->pagina != pagina; });
    return filas;
}

} // namespace norvik::inline v0_2
