// SPDX-License-Identifier: MIT

// All words that are said of something wrong stand here: the fixed messages, and those made from a
// diagnostic.
#include "norvik/base/palabras.hpp"

#include "norvik/base/diagnostico.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace norvik::inline v0_2 {

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

// A wrong character between apostrophes is one unit, or a pair of them; a run of characters is longer.
bool sonVarios(std::u16string_view entreApostrofos) {
    const bool esPar = entreApostrofos.size() == 4 && (entreApostrofos[1] & 0xFC00) == 0xD800;
    return entreApostrofos.size() > 3 && !esPar;
}

// The method that does what the classic one does not.
std::u16string remedio(const std::vector<std::u16string>& metodos) {
    if (metodos.empty()) return u" Tampoco acierta ningún otro método: mire los conflictos.";
    return une({u" Con la línea '% metodo: ", lista(metodos), u" al principio acierta."});
}

// A code: its name, and the words of a diagnostic, in which parts of it stand in braces.
struct Fila {
    Codigo codigo;
    std::u16string_view nombre;
    std::u16string_view palabras; ///< empty for those that depend on more
};

constexpr std::array filas = {
    Fila{Codigo::CaracterIncorrecto, u"caracter-incorrecto", {}},
    Fila{Codigo::TokenInesperado, u"token-inesperado", {}},
    Fila{Codigo::BusquedaDesbocada, u"busqueda-desbocada", {}},
    Fila{Codigo::ReparacionAgotada, u"reparacion-agotada",
         u"No se siguió más allá de este error: no se encontró a tiempo cómo arreglarlo."},
    Fila{Codigo::Cancelado, u"cancelado", u"La operación se ha cancelado."},
    Fila{Codigo::Utf8Incorrecto, u"utf8-incorrecto", u"Los bytes del texto no son UTF-8."},
    Fila{Codigo::SinGramatica, u"sin-gramatica",
         u"El lenguaje no tiene reglas con las que analizar un texto."},
    Fila{Codigo::TablaIncorrecta, u"tabla-incorrecta",
         u"La tabla SLR del lenguaje es incorrecta: {hallado}."},
    Fila{Codigo::CodigoMalEscrito, u"codigo-mal-escrito", {}},
    Fila{Codigo::ReferenciaDesconocida, u"referencia-desconocida", {}},
    Fila{Codigo::PatronIncorrecto, u"patron-incorrecto", {}},
    Fila{Codigo::VariableIndefinida, u"variable-indefinida", {}},
    Fila{Codigo::TokenIndefinido, u"token-indefinido",
         u"El token {hallado}, que usa una regla de {nombre}, no está definido.{propuesta}"},
    Fila{Codigo::SinReglas, u"sin-reglas", {}},
    Fila{Codigo::Conflicto, u"conflicto", u"Conflicto {hallado} en {nombre}."},
    Fila{Codigo::CapacidadSuperada, u"capacidad-superada", u"{hallado}"},
    Fila{Codigo::ModuloIncorrecto, u"modulo-incorrecto", u"{hallado}"},
    Fila{Codigo::ConflictosDistintos, u"conflictos-distintos",
         u"La tabla tiene {hallado} conflictos, y aquí se esperaban {esperados}. Mire los que sobran, o "
         u"ponga el número que hay."},
    Fila{Codigo::TokenSinUsar, u"token-sin-usar",
         u"Ninguna regla usa el token {nombre}: no se acepta ningún texto que lo tenga. Úselo o "
         u"quítelo."},
    Fila{Codigo::AuxiliarSinUsar, u"auxiliar-sin-usar",
         u"Nadie se refiere a la expresión regular {nombre} con <{nombre}>. Úsela o quítela."},
    Fila{Codigo::TokenTapado, u"token-tapado",
         u"El token {nombre} no gana nunca: sus textos, como '{hallado}', son de {esperados}, que "
         u"está antes. Pase {nombre} delante."},
    Fila{Codigo::TokenRepetido, u"token-repetido",
         u"El token {nombre} ya tiene esta definición. Quite una de las dos."},
    Fila{Codigo::PatronVacio, u"patron-vacio",
         u"El patrón de {nombre} puede no tomar ningún carácter, y un token así no existe: exija "
         u"al menos uno (con + en lugar de *, por ejemplo)."},
    Fila{Codigo::CaracterDeControl, u"caracter-de-control",
         u"La definición de {nombre} tiene un carácter de control, que pasa tal cual a sus módulos: un salto "
         u"de "
         u"línea pone en ellos líneas que alguien compilará. Escríbalo con un escape (\\n, \\r, \\x1B)."},
    Fila{Codigo::VariableSinUsar, u"variable-sin-usar",
         u"Ningún cuerpo usa la variable {nombre}, que no es la inicial. Úsela o quite sus "
         u"reglas."},
    Fila{Codigo::VariableInalcanzable, u"variable-inalcanzable",
         u"De la variable inicial, {hallado}, no se llega a {nombre}: solo la usan "
         u"variables a las que tampoco se llega."},
    Fila{Codigo::VariableImproductiva, u"variable-improductiva",
         u"De la variable {nombre} no sale ningún texto: todas sus reglas piden otra "
         u"vez una variable de la que no sale ninguno. Dele una que acabe."},
    Fila{Codigo::Ciclo, u"ciclo",
         u"La variable {nombre} deriva en sí misma sin leer nada ({hallado}): cada texto suyo tiene "
         u"infinitos árboles. Quite una de esas reglas."},
    Fila{Codigo::ReglaRepetida, u"regla-repetida",
         u"La regla {nombre} -> {hallado} ya está escrita. Quite una de las dos."},
    Fila{Codigo::NombreIncorrecto, u"nombre-incorrecto",
         u"El nombre '{nombre}' tiene {hallado}. Los nombres se escriben con letras de la A a la Z, Ñ, "
         u"cifras y '_', y no empiezan por cifra."},
    Fila{Codigo::CabezaMinuscula, u"cabeza-minuscula",
         u"La cabeza {nombre} empieza por minúscula: en los cuerpos es un token y sus reglas "
         u"no se usan. Escríbala con mayúscula."},
    Fila{Codigo::CabezaDispersa, u"cabeza-dispersa",
         u"Las reglas de {nombre} no están seguidas, y las que se apartan de las primeras no "
         u"se usan. Júntelas."},
    Fila{Codigo::DirectivaDesconocida, u"directiva-desconocida",
         u"No hay ninguna directiva '{nombre}': la línea no pide nada.{propuesta}"},
    Fila{Codigo::DirectivaIncorrecta, u"directiva-incorrecta",
         u"La directiva '{nombre}' no sabe qué hacer con '{hallado}'. Se esperaba {esperados}."},
    Fila{Codigo::DirectivaSinEfecto, u"directiva-sin-efecto",
         u"La directiva '{nombre}' no tiene efecto con el método clásico. Elija otro con una línea "
         u"'% metodo: lalr"},
    Fila{Codigo::DirectivaTardia, u"directiva-tardia",
         u"La directiva '{nombre}' no pide nada aquí: va delante de la primera definición."},
    Fila{Codigo::ConflictoCallado, u"conflicto-callado",
         u"La tabla clásica calla un conflicto: ante {nombre} cabe también reducir por {hallado}. Con la "
         u"línea '% metodo: lalr al principio se cuentan todos."},
    Fila{Codigo::PrimerosDistintos, u"primeros-distintos",
         u"El método clásico da por primeros de {nombre} {hallado}, y son {esperados}. Con la línea '% "
         u"metodo: lalr al principio son los exactos."},
    Fila{Codigo::SiguientesDistintos, u"siguientes-distintos",
         u"El método clásico da por siguientes de {nombre} {hallado}, y son {esperados}. Con la línea '% "
         u"metodo: lalr al principio son los exactos."},
    Fila{Codigo::FraseRechazada, u"frase-rechazada",
         u"La tabla clásica rechaza un texto que es de la gramática: {hallado}.{remedio}"},
    Fila{Codigo::FraseDeMas, u"frase-de-mas",
         u"La tabla clásica acepta un texto que no es de la gramática: {hallado}.{remedio}"},
};

const Fila& filaDe(Codigo codigo) {
    return *std::ranges::find(filas, codigo, &Fila::codigo);
}

std::u16string rellena(std::u16string_view palabras, const Partes& partes) {
    std::u16string texto;
    while (!palabras.empty()) {
        const std::size_t abre = std::min(palabras.find(u'{'), palabras.size());
        const std::size_t cierra = std::min(palabras.find(u'}', abre), palabras.size());
        const std::u16string_view hueco = palabras.substr(abre, cierra - abre);
        texto.append(palabras.substr(0, abre));
        if (hueco == u"{nombre") texto += partes.nombre;
        if (hueco == u"{hallado") texto += partes.hallado;
        if (hueco == u"{esperados") texto += lista(partes.esperados);
        if (hueco == u"{propuesta") texto += propuesta(partes.esperados);
        if (hueco == u"{remedio") texto += remedio(partes.esperados);
        palabras = palabras.substr(std::min(cierra + 1, palabras.size()));
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

std::u16string_view motivo(MotivoPatron motivo) {
    switch (motivo) {
    case MotivoPatron::NadaQueRepetir:
        return u"delante no hay nada que se pueda repetir";
    case MotivoPatron::RepeticionAlReves:
        return u"el mínimo de veces pasa del máximo";
    case MotivoPatron::RepeticionExcesiva:
        return u"se pueden pedir hasta 65535 veces";
    case MotivoPatron::GrupoSinCerrar:
        return u"este paréntesis no se cierra";
    case MotivoPatron::CierreSinAbrir:
        return u"este paréntesis no cierra ninguno";
    case MotivoPatron::GrupoDesconocido:
        return u"detrás de '(?' solo caben ':', '=' y '!'";
    case MotivoPatron::ClaseSinCerrar:
        return u"este corchete no se cierra";
    case MotivoPatron::RangoAlReves:
        return u"este intervalo va de un carácter a otro anterior";
    case MotivoPatron::EscapeDesconocido:
        return u"detrás de '\\' esta letra o cifra no significa nada";
    case MotivoPatron::CodigoIncompleto:
        return u"faltan cifras hexadecimales: son dos detrás de '\\x' y cuatro detrás de '\\u'";
    case MotivoPatron::BarraAlFinal:
        return u"detrás de '\\' falta un carácter";
    case MotivoPatron::ReferenciaSinGrupo:
        return u"no hay tantos paréntesis a los que referirse";
    case MotivoPatron::CodigoMalEscrito:
        return u"se escribe '\\c(numero)'";
    case MotivoPatron::CodigoExcesivo:
        return u"el código de un carácter no pasa de 255";
    case MotivoPatron::DemasiadoLargo:
        return u"con sus referencias expandidas pasa de 32767 caracteres";
    }
    return {};
}

std::u16string arreglo(std::u16string_view puesto, std::u16string_view quitado) {
    if (quitado.empty()) return une({u"inserte ", puesto});
    if (puesto.empty()) return une({u"quite ", quitado});
    return une({u"cambie ", quitado, u" por ", puesto});
}

std::u16string detrasDe(std::u16string_view arreglo, std::u16string_view lexema) {
    return une({arreglo, u" detrás de ", entreApostrofos(lexema)});
}

std::u16string yTambien(std::u16string_view uno, std::u16string_view otro) {
    if (uno.empty()) return std::u16string(otro);
    return une({uno, otro.starts_with(u'i') ? u" e " : u" y ", otro});
}

std::u16string entreApostrofos(std::u16string_view texto) {
    return une({u"'", texto, u"'"});
}

} // namespace palabras

std::u16string_view nombreDe(Codigo codigo) {
    return filaDe(codigo).nombre;
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
    const Fila& fila = filaDe(diagnostico.codigo);
    if (!fila.palabras.empty()) return rellena(fila.palabras, diagnostico.partes);
    const auto& [nombre, hallado, esperados, relacionados, arreglos] = diagnostico.partes;
    const Codigo codigo = diagnostico.codigo;
    if (codigo == Codigo::CaracterIncorrecto)
        return sonVarios(hallado) ? une({u"Caracteres ", hallado, u" incorrectos."})
                                  : une({u"Carácter ", hallado, u" incorrecto."});
    if (codigo == Codigo::SinReglas)
        return hallado.empty()
                   ? u"La especificación no tiene reglas: con su lenguaje no se puede analizar ningún texto."
                   : u"La especificación está vacía: no define ningún token ni tiene ninguna regla.";
    if (codigo == Codigo::BusquedaDesbocada) return palabras::busquedaDesbocada(nombre);
    if (codigo == Codigo::CodigoMalEscrito) return palabras::codigoMalEscrito(nombre);
    if (codigo == Codigo::PatronIncorrecto && relacionados.empty())
        return palabras::patronIncorrecto(nombre, hallado);
    if (codigo == Codigo::PatronIncorrecto)
        return une({u"La definición de '", nombre, u"' no es un patrón: ", relacionados.front().texto, u"."});
    if (codigo == Codigo::VariableIndefinida)
        return palabras::variableIndefinida(hallado, nombre) + propuesta(esperados);
    if (codigo == Codigo::ReferenciaDesconocida && relacionados.empty())
        return palabras::referenciaDesconocida(nombre, hallado) + propuesta(esperados);
    if (codigo == Codigo::ReferenciaDesconocida)
        return une({palabras::referenciaDesconocida(nombre, hallado),
                    u" Está más abajo: póngala delante de '", nombre, u"'."});
    if (esperados.empty()) return une({u"Se ha encontrado ", hallado, u"."});
    return une({u"Se ha encontrado ", hallado, u". Se esperaba ", lista(esperados), u"."});
}

bool hayErrores(const std::vector<Diagnostico>& diagnosticos) {
    return std::ranges::any_of(diagnosticos,
                               [](const Diagnostico& d) { return d.gravedad == Gravedad::Error; });
}

} // namespace norvik::inline v0_2
