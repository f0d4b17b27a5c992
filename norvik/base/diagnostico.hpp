// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/rango.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

enum class Gravedad : std::uint8_t { Error, Aviso, Nota };

/// Lo que está mal o llama la atención. `nombreDe` da el nombre fijo de cada uno, por el que lo conocen los
/// programas.
enum class Codigo : std::uint8_t {
    CaracterIncorrecto, ///< de un texto: el carácter `hallado` no empieza ningún token
    TokenInesperado,    ///< de un texto: `hallado` donde solo caben `esperados`
    BusquedaDesbocada,  ///< de un texto: buscar la definición `nombre` pide demasiado tiempo o memoria
    ReparacionAgotada,  ///< de un texto: nota en el último error de que se siguió; los de detrás no se
                        ///< buscaron
    Cancelado,          ///< quien llamó no quiso más
    Utf8Incorrecto,     ///< de un texto: bytes que no son UTF-8
    SinGramatica,       ///< se quiso analizar un texto con un lenguaje sin reglas
    TablaIncorrecta, ///< de un módulo: su tabla nombra un estado o una regla que no hay, no deja de reducir o
                     ///< no da un árbol
    CodigoMalEscrito,      ///< de una especificación: la definición `nombre` tiene un `\c(n)` mal escrito
    ReferenciaDesconocida, ///< de una especificación: `nombre` se refiere a `hallado`, que no está definida
                           ///< antes; la revisión da en `relacionados` dónde lo está, o en `esperados` un
                           ///< nombre parecido
    PatronIncorrecto, ///< de una especificación: la definición `nombre`, de texto `hallado`, no es un patrón;
                      ///< la revisión da en `relacionados` dónde y por qué, y ese lugar
    VariableIndefinida, ///< de una especificación: `hallado` está en un cuerpo de `nombre` y ninguna regla la
                        ///< define; la revisión da en `esperados` un nombre parecido
    TokenIndefinido, ///< de una especificación: lo mismo de un token
    SinReglas, ///< de una especificación: no se puede analizar nada; `hallado` no es vacío si ni tiene
               ///< definiciones
    Conflicto, ///< de una especificación: `hallado` son las dos acciones de una celda; `nombre`, estado y
               ///< símbolo
    CapacidadSuperada,   ///< de una especificación: `hallado` es el límite que se pasó
    ModuloIncorrecto,    ///< de un módulo: `hallado` dice qué está mal en su línea
    ConflictosDistintos, ///< de una especificación: tiene `hallado` conflictos y su directiva quiere
                         ///< `esperados`

    // De la revisión de una especificación --------------------------------------------------------------
    TokenSinUsar,      ///< ninguna regla usa el token `nombre`
    AuxiliarSinUsar,   ///< nadie se refiere a la expresión regular `nombre`
    TokenTapado,       ///< los textos del token `nombre`, como `hallado`, son de otro anterior, `esperados`
    TokenRepetido,     ///< el token `nombre` tiene dos veces la misma definición; `relacionados`, la otra
    PatronVacio,       ///< el patrón de `nombre` puede no tomar ningún carácter
    CaracterDeControl, ///< el patrón de `nombre`, o su nombre para personas, tiene un carácter de control
    VariableSinUsar,   ///< ningún cuerpo usa la variable `nombre`, que no es la inicial
    VariableInalcanzable, ///< de la variable inicial, `hallado`, no se llega a `nombre`
    VariableImproductiva, ///< de la variable `nombre` no sale ningún texto
    Ciclo,                ///< `nombre` deriva en sí misma sin más: `hallado` son los pasos
    ReglaRepetida,    ///< la regla de `nombre` y cuerpo `hallado` está dos veces; `relacionados`, la otra
    NombreIncorrecto, ///< el nombre `nombre` tiene el carácter `hallado`, que no es de los nombres
    CabezaMinuscula,  ///< la cabeza `nombre` empieza por minúscula: en los cuerpos es un token
    CabezaDispersa,   ///< las reglas de `nombre` no están seguidas; `relacionados`, la primera
    DirectivaDesconocida, ///< no hay directiva `nombre`; `esperados`, una parecida
    DirectivaIncorrecta,  ///< la directiva `nombre` no entiende `hallado`; `esperados`, lo que entiende
    DirectivaSinEfecto,   ///< la directiva `nombre` no hace nada con el método clásico
    DirectivaTardia,      ///< la directiva `nombre` está detrás de una definición, donde no pide nada

    // Donde el método clásico se aparta de la verdad ----------------------------------------------------
    ConflictoCallado,    ///< la tabla no apunta un conflicto: ante el token `nombre` cabe la regla `hallado`
    PrimerosDistintos,   ///< los primeros de `nombre` son `hallado`, y los exactos, `esperados`
    SiguientesDistintos, ///< los siguientes de `nombre` son `hallado`, y los exactos, `esperados`
    FraseRechazada, ///< la tabla rechaza `hallado`, que es de la gramática; `esperados`, el método que no
    FraseDeMas,     ///< la tabla acepta `hallado`, que no es de la gramática; `esperados`, el método que no
};

/// Otro lugar que tiene que ver con un diagnóstico, y lo que hay en él.
struct Relacionado {
    Rango rango;
    std::u16string texto;

    bool operator==(const Relacionado&) const = default;
};

/// Un cambio de un texto: lo que hay en un rango, por otro texto. Con un rango vacío inserta; con un texto
/// vacío, quita.
struct Cambio {
    Rango rango;
    std::u16string texto;
    /// El texto no es lo que se escribe: en lugar de algún token lleva su nombre, porque se escribe de muchas
    /// maneras (un identificador, un número).
    bool conNombres = false;

    bool operator==(const Cambio&) const = default;
};

/// Una manera de arreglar un error: sus palabras y sus cambios, en el orden del texto y sin que se pisen.
struct Arreglo {
    std::u16string titulo;
    std::vector<Cambio> cambios;

    bool operator==(const Arreglo&) const = default;
};

/// Aquello de lo que se hacen las palabras de un diagnóstico; cada código dice qué partes llena. Los textos
/// son como los conoce una persona: un token por su nombre para personas o entre apóstrofos.
struct Partes {
    std::u16string nombre;
    std::u16string hallado;
    std::vector<std::u16string> esperados;
    std::vector<Relacionado> relacionados;
    std::vector<Arreglo> arreglos{}; ///< el primero, el más probable

    bool operator==(const Partes&) const = default;
};

/// Una cosa que está mal o llama la atención, como valor: `mensaje` hace sus palabras.
struct Diagnostico {
    Codigo codigo = Codigo::TokenInesperado;
    Gravedad gravedad = Gravedad::Error;
    Rango rango;
    Partes partes;

    bool operator==(const Diagnostico&) const = default;
};

/// «token-inesperado»: minúsculas y guiones; no cambia nunca una vez publicado.
NORVIK_API std::u16string_view nombreDe(Codigo codigo);
/// «error», «aviso» o «nota».
NORVIK_API std::u16string_view nombreDe(Gravedad gravedad);
/// Las palabras para una persona, sin lugar ni código.
NORVIK_API std::u16string mensaje(const Diagnostico& diagnostico);

/// Si alguno de ellos es un error.
NORVIK_API bool hayErrores(const std::vector<Diagnostico>& diagnosticos);

} // namespace norvik::inline v0_2
