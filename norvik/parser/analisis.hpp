// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/arbolAnalisis.hpp"

#include <cstdint>
#include <stop_token>
#include <vector>

namespace norvik::inline v0_2 {

/// Qué errores de un texto se buscan.
enum class ErroresBuscados : std::uint8_t {
    Todos,   ///< tras cada uno se sigue con su arreglo más probable
    Primero, ///< el primero acaba el análisis, y no lleva arreglos
};

/// Lo que se puede pedir a un análisis.
struct OpcionesAnalisis {
    std::stop_token cancelacion{}; ///< acaba pronto la operación, con el diagnóstico `Cancelado`
    ErroresBuscados errores = ErroresBuscados::Todos;
};

/// Lo que da un análisis: el árbol de un texto aceptado; si no, lo que está mal y cómo se arregla. Tras un
/// error el análisis sigue con el arreglo más barato (insertar, quitar y conservar tokens), y entre los
/// iguales con uno que deja seguir más lejos; están todos en `Partes::arreglos`. Un texto con errores nunca
/// tiene `arbol`: quien solo pregunta si se aceptó no tiene que saber nada de arreglos. El árbol del texto
/// arreglado está aparte, en `reparado`: es un árbol de la misma gramática, las hojas insertadas dicen
/// `esInsertado()` y las quitadas no están.
///
/// Buscar arreglos tiene un límite para todo el texto, en pasos y (en una máquina lenta) en tiempo, menos de
/// medio segundo. Cuando se acaba, el análisis también, con la nota `ReparacionAgotada` y sin `reparado`.
struct Analisis {
    ArbolAnalisis arbol;                   ///< vacío si el texto no se aceptó
    std::vector<Diagnostico> diagnosticos; ///< los errores, en el orden del texto
    ArbolAnalisis reparado{};              ///< vacío si el texto se aceptó o no se llegó a su final

    /// El texto se aceptó.
    explicit operator bool() const { return !arbol.esVacio(); }
};

} // namespace norvik::inline v0_2
