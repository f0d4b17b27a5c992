// All words that are said of something wrong stand here: the fixed messages, and those made from a
// diagnostic.
#include "norvik/base/palabras.hpp"

#include "norvik/base/diagnostico.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <initializer_list>

namespace norvik {

namespace {

std::u16string une(std::initializer_list<std::u16string_view> piezas) {
    std::u16string texto;
    for (const auto pieza : piezas) texto.append(pieza);
    return texto;
}

std::u16string lista(const std::vector<std::u16string>& elementos) {
    std::u16string texto;
    for (const std::u16string& elemento : elementos) {
        if (!texto.empty()) texto += u", ";
        texto += elemento;
    }
    return texto;
}

} // namespace

namespace palabras {

std::u16string lineaColumna(std::int32_t linea, std::int32_t columna) {
    return une({u"(Línea ", aTexto(linea), u", Columna ", aTexto(columna), u")"});
}

std::u16string errorLexico(std::int32_t linea, std::int32_t columna, std::u16string_view caracter) {
    return une({u"Error ", lineaColumna(linea, columna), u": caracter '", caracter, u"' incorrecto."});
}

std::u16string errorSintactico(std::u16string_view hallado, std::u16string_view esperados) {
    return une({u"Error: ", hallado, u". Se esperaba ", esperados, u"."});
}

std::u16string tokenLeido(std::u16string_view descripcion, std::int32_t linea, std::int32_t columna) {
    return une({u"Se ha encontrado ", descripcion, u" ", lineaColumna(linea, columna)});
}

std::u16string codigoMalEscrito(std::u16string_view definicion) {
    return une({u"Error en el uso del operador codAscii (sintaxis: '\\c(numero)') en la expresión regular '",
                definicion, u"'."});
}

std::u16string referenciaDesconocida(std::u16string_view definicion, std::u16string_view referencia) {
    return une({u"Error en la invocación de la expresión regular '", referencia,
                u"' desde la expresión regular '", definicion, u"'.", saltoDeLinea, u"La expresión regular '",
                referencia, u"' o no existe o no se ha definido antes que '", definicion, u"'."});
}

std::u16string patronIncorrecto(std::u16string_view definicion, std::u16string_view texto) {
    return une({u"La definición de la expresión regular '", definicion, u"':", saltoDeLinea, u"\t\t", texto,
                saltoDeLinea, u"es incorrecta. Revísela para obtener un análisis léxico adecuado."});
}

std::u16string variableIndefinida(std::u16string_view variable, std::u16string_view cabeza) {
    return une({u"La variable ", variable, u" definida en la parte derecha de la regla ", cabeza,
                u" no está definida."});
}

std::u16string busquedaDesbocada(std::u16string_view definicion) {
    return une({u"La búsqueda de la expresión regular '", definicion,
                u"' se ha desbocado: su patrón necesita demasiado tiempo o memoria con este texto."});
}

std::u16string entreApostrofos(std::u16string_view texto) {
    return une({u"'", texto, u"'"});
}

} // namespace palabras

std::u16string_view nombreDe(Codigo codigo) {
    switch (codigo) {
    case Codigo::CaracterIncorrecto:
        return u"caracter-incorrecto";
    case Codigo::TokenInesperado:
        return u"token-inesperado";
    case Codigo::BusquedaDesbocada:
        return u"busqueda-desbocada";
    case Codigo::Cancelado:
        return u"cancelado";
    case Codigo::Utf8Incorrecto:
        return u"utf8-incorrecto";
    case Codigo::SinGramatica:
        return u"sin-gramatica";
    case Codigo::TablaIncorrecta:
        return u"tabla-incorrecta";
    case Codigo::CodigoMalEscrito:
        return u"codigo-mal-escrito";
    case Codigo::ReferenciaDesconocida:
        return u"referencia-desconocida";
    case Codigo::PatronIncorrecto:
        return u"patron-incorrecto";
    case Codigo::VariableIndefinida:
        return u"variable-indefinida";
    case Codigo::TokenIndefinido:
        return u"token-indefinido";
    case Codigo::SinReglas:
        return u"sin-reglas";
    case Codigo::Conflicto:
        return u"conflicto";
    case Codigo::CapacidadSuperada:
        return u"capacidad-superada";
    case Codigo::ModuloIncorrecto:
        return u"modulo-incorrecto";
    }
    return {};
}

std::u16string_view nombreDe(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Error:
        return u"error";
    case Gravedad::Aviso:
        return u"aviso";
    case Gravedad::Nota:
        return u"nota";
    }
    return {};
}

std::u16string mensaje(const Diagnostico& diagnostico) {
    const auto& [nombre, hallado, esperados, relacionados] = diagnostico.partes;
    switch (diagnostico.codigo) {
    case Codigo::CaracterIncorrecto:
        return une({u"Carácter ", hallado, u" incorrecto."});
    case Codigo::TokenInesperado:
        if (esperados.empty()) return une({u"Se ha encontrado ", hallado, u"."});
        return une({u"Se ha encontrado ", hallado, u". Se esperaba ", lista(esperados), u"."});
    case Codigo::BusquedaDesbocada:
        return palabras::busquedaDesbocada(nombre);
    case Codigo::Cancelado:
        return u"La operación se ha cancelado.";
    case Codigo::Utf8Incorrecto:
        return u"Los bytes del texto no son UTF-8.";
    case Codigo::SinGramatica:
        return u"El lenguaje no tiene reglas con las que analizar un texto.";
    case Codigo::TablaIncorrecta:
        return une({u"La tabla SLR del lenguaje es incorrecta: ", hallado, u"."});
    case Codigo::CodigoMalEscrito:
        return palabras::codigoMalEscrito(nombre);
    case Codigo::ReferenciaDesconocida:
        return palabras::referenciaDesconocida(nombre, hallado);
    case Codigo::PatronIncorrecto:
        return palabras::patronIncorrecto(nombre, hallado);
    case Codigo::VariableIndefinida:
        return palabras::variableIndefinida(hallado, nombre);
    case Codigo::TokenIndefinido:
        return une({u"El token ", hallado, u", que usa una regla de ", nombre, u", no está definido."});
    case Codigo::SinReglas:
        return u"La especificación no tiene reglas: con su lenguaje no se puede analizar ningún texto.";
    case Codigo::Conflicto:
        return une({u"Conflicto ", hallado, u" en ", nombre, u"."});
    case Codigo::CapacidadSuperada:
    case Codigo::ModuloIncorrecto:
        return hallado;
    }
    return {};
}

bool hayErrores(const std::vector<Diagnostico>& diagnosticos) {
    return std::ranges::any_of(diagnosticos,
                               [](const Diagnostico& d) { return d.gravedad == Gravedad::Error; });
}

} // namespace norvik
