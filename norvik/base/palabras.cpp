// SPDX-License-Identifier: MIT

// All words that are said of something wrong stand here: the fixed messages, and those made from a
// diagnostic.
#include "norvik/base/palabras.hpp"

#include "norvik/base/diagnostico.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>
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

// What was probably meant by a name that nobody knows.
std::u16string propuesta(const std::vector<std::u16string>& nombres) {
    return nombres.empty() ? std::u16string() : une({u" ¿Quería decir ", lista(nombres), u"?"});
}

// A finding of a review: its name and its words, which say what is odd and what to do about it. Parts of the
// diagnostic stand in braces.
struct DeRevision {
    Codigo codigo;
    std::u16string_view nombre;
    std::u16string_view palabras;
};

const DeRevision& deRevision(Codigo codigo) {
    static constexpr std::array todas = {
        DeRevision{Codigo::TokenSinUsar, u"token-sin-usar",
                   u"Ninguna regla usa el token {nombre}: no se acepta ningún texto que lo tenga. Úselo o "
                   u"quítelo."},
        DeRevision{Codigo::AuxiliarSinUsar, u"auxiliar-sin-usar",
                   u"Nadie se refiere a la expresión regular {nombre} con <{nombre}>. Úsela o quítela."},
        DeRevision{Codigo::TokenTapado, u"token-tapado",
                   u"El token {nombre} no gana nunca: sus textos, como '{hallado}', son de {esperados}, que "
                   u"está antes. Pase {nombre} delante."},
        DeRevision{Codigo::TokenRepetido, u"token-repetido",
                   u"El token {nombre} ya tiene esta definición. Quite una de las dos."},
        DeRevision{Codigo::PatronVacio, u"patron-vacio",
                   u"El patrón de {nombre} puede no tomar ningún carácter, y un token así no existe: exija "
                   u"al menos uno (con + en lugar de *, por ejemplo)."},
        DeRevision{Codigo::VariableSinUsar, u"variable-sin-usar",
                   u"Ningún cuerpo usa la variable {nombre}, que no es la inicial. Úsela o quite sus "
                   u"reglas."},
        DeRevision{Codigo::VariableInalcanzable, u"variable-inalcanzable",
                   u"De la variable inicial, {hallado}, no se llega a {nombre}: solo la usan "
                   u"variables a las que tampoco se llega."},
        DeRevision{Codigo::VariableImproductiva, u"variable-improductiva",
                   u"De la variable {nombre} no sale ningún texto: todas sus reglas piden otra "
                   u"vez una variable de la que no sale ninguno. Dele una que acabe."},
        DeRevision{
            Codigo::Ciclo, u"ciclo",
            u"La variable {nombre} deriva en sí misma sin leer nada ({hallado}): cada texto suyo tiene "
            u"infinitos árboles. Quite una de esas reglas."},
        DeRevision{Codigo::ReglaRepetida, u"regla-repetida",
                   u"La regla {nombre} -> {hallado} ya está escrita. Quite una de las dos."},
        DeRevision{Codigo::CabezaMinuscula, u"cabeza-minuscula",
                   u"La cabeza {nombre} empieza por minúscula: en los cuerpos es un token y sus reglas "
                   u"no se usan. Escríbala con mayúscula."},
        DeRevision{Codigo::CabezaDispersa, u"cabeza-dispersa",
                   u"Las reglas de {nombre} no están seguidas, y las que se apartan de las primeras no "
                   u"se usan. Júntelas."},
    };
    return *std::ranges::find(todas, codigo, &DeRevision::codigo);
}

std::u16string mensajeDeRevision(const Diagnostico& diagnostico) {
    const Partes& partes = diagnostico.partes;
    const std::u16string esperados = lista(partes.esperados);
    std::u16string texto;
    std::u16string_view resto = deRevision(diagnostico.codigo).palabras;
    while (!resto.empty()) {
        const std::size_t abre = std::min(resto.find(u'{'), resto.size());
        const std::size_t cierra = std::min(resto.find(u'}', abre), resto.size());
        const std::u16string_view hueco = resto.substr(abre, cierra - abre);
        texto.append(resto.substr(0, abre));
        if (hueco == u"{nombre") texto += partes.nombre;
        if (hueco == u"{hallado") texto += partes.hallado;
        if (hueco == u"{esperados") texto += esperados;
        resto = resto.substr(std::min(cierra + 1, resto.size()));
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
    case Codigo::TokenSinUsar:
    case Codigo::AuxiliarSinUsar:
    case Codigo::TokenTapado:
    case Codigo::TokenRepetido:
    case Codigo::PatronVacio:
    case Codigo::VariableSinUsar:
    case Codigo::VariableInalcanzable:
    case Codigo::VariableImproductiva:
    case Codigo::Ciclo:
    case Codigo::ReglaRepetida:
    case Codigo::CabezaMinuscula:
    case Codigo::CabezaDispersa:
        return deRevision(codigo).nombre;
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
        if (!relacionados.empty())
            return une({palabras::referenciaDesconocida(nombre, hallado),
                        u" Está más abajo: póngala delante de '", nombre, u"'."});
        return palabras::referenciaDesconocida(nombre, hallado) + propuesta(esperados);
    case Codigo::PatronIncorrecto:
        return palabras::patronIncorrecto(nombre, hallado);
    case Codigo::VariableIndefinida:
        return palabras::variableIndefinida(hallado, nombre) + propuesta(esperados);
    case Codigo::TokenIndefinido:
        return une({u"El token ", hallado, u", que usa una regla de ", nombre, u", no está definido.",
                    propuesta(esperados)});
    case Codigo::SinReglas:
        return u"La especificación no tiene reglas: con su lenguaje no se puede analizar ningún texto.";
    case Codigo::Conflicto:
        return une({u"Conflicto ", hallado, u" en ", nombre, u"."});
    case Codigo::CapacidadSuperada:
    case Codigo::ModuloIncorrecto:
        return hallado;
    case Codigo::TokenSinUsar:
    case Codigo::AuxiliarSinUsar:
    case Codigo::TokenTapado:
    case Codigo::TokenRepetido:
    case Codigo::PatronVacio:
    case Codigo::VariableSinUsar:
    case Codigo::VariableInalcanzable:
    case Codigo::VariableImproductiva:
    case Codigo::Ciclo:
    case Codigo::ReglaRepetida:
    case Codigo::CabezaMinuscula:
    case Codigo::CabezaDispersa:
        return mensajeDeRevision(diagnostico);
    }
    return {};
}

bool hayErrores(const std::vector<Diagnostico>& diagnosticos) {
    return std::ranges::any_of(diagnosticos,
                               [](const Diagnostico& d) { return d.gravedad == Gravedad::Error; });
}

} // namespace norvik
