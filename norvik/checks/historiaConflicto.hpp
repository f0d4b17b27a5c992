// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/arbolEjemplo.hpp"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Una de las dos acciones entre las que duda una celda.
struct AccionConflicto {
    enum class Tipo : std::uint8_t { Desplazar, Reducir, Aceptar };

    Tipo tipo = Tipo::Desplazar;
    std::int16_t regla = 0;    ///< por la que se reduce; al desplazar, la que espera el token
    std::u16string textoRegla; ///< «E -> E mas E»
};

/// Un ejemplo con su árbol.
struct EjemploConflicto {
    ArbolEjemplo arbol;
    std::size_t punto = 0; ///< hojas que hay delante del conflicto

    std::vector<std::u16string> frase() const { return hojas(arbol); }
};

/// Un conflicto de una tabla, contado con un ejemplo.
struct HistoriaConflicto {
    enum class Clase : std::uint8_t {
        Ambigua,          ///< una frase con dos árboles
        DosFrases,        ///< dos frases con un mismo comienzo, hasta el token incluido
        SinComienzoComun, ///< una frase de cada acción, con comienzos distintos: la tabla los confunde
        SinEjemplo,       ///< de las variables que tienen que ver no sale ningún texto, o no hubo tiempo
    };
    /// Lo que suele arreglar uno así.
    enum class Cura : std::uint8_t {
        SinoColgante,  ///< una regla es el comienzo de otra: dos clases de la variable, con y sin final
        Asociatividad, ///< el mismo operador a los dos lados: recursión por un lado
        Prioridad,     ///< dos operadores: un nivel de variable para cada uno
        ListaDosVeces, ///< lo repetido o lo vacío sale de dos maneras: una sola recursión
        Ciclo,         ///< una variable deriva en sí misma
        DosVariables,  ///< el mismo texto es de dos reglas
        MetodoLalr,    ///< con la tabla `lalr` no existe
        MetodoLr1,     ///< con la tabla `lr1` no existe
        Factorizar,    ///< hace falta ver más tokens: aplazar la decisión
        Reescribir,    ///< ambigua de otra manera
    };
    /// Lo que hace la tabla con el ejemplo en tokens. Si da un tercer árbol (otra celda, o la misma en otro
    /// sitio del ejemplo, lo decide), el primero de los completos es ese.
    enum class Prueba : std::uint8_t { SinProbar, DaElPrimero, DaElSegundo, DaOtro, LoRechaza };

    static constexpr std::int16_t sinEstado = -1;

    std::int16_t estado = sinEstado;
    std::u16string simbolo;                  ///< el token que se ve
    std::array<AccionConflicto, 2> acciones; ///< la que se queda en la celda y la que se pierde
    Clase clase = Clase::SinEjemplo;
    Cura cura = Cura::Reescribir;
    /// Con variables sin desarrollar, uno por acción. De una ambigua, de la variable que la muestra; de las
    /// demás, desde la variable inicial.
    std::array<EjemploConflicto, 2> cortos;
    /// Lo mismo desde la variable inicial y del todo en tokens; sin árbol si son demasiados.
    std::array<EjemploConflicto, 2> completos;
    Prueba prueba = Prueba::SinProbar;
    /// Por qué el token puede seguir a la cabeza de la regla que se pierde: reglas, de fuera adentro.
    std::vector<std::u16string> porque;
    bool agotado = false; ///< la búsqueda de una frase con dos árboles se dejó sin terminar
    std::size_t pasos = 0;
};

/// Lo que se puede gastar en contar los conflictos de una gramática. Los pasos dan lo mismo en toda máquina;
/// el tiempo es solo un seguro.
struct LimitesHistorias {
    std::size_t pasosPorConflicto = 250'000;
    std::size_t pasosEnTotal = 4'000'000;
    std::chrono::milliseconds porConflicto{1'500};
    std::chrono::milliseconds enTotal{2'500};
    std::size_t contados = 200; ///< de los demás se dicen solo las acciones
    /// Desde que se pide, tampoco se cuentan los que falten. Si no se da ninguna, la de la compilación.
    std::stop_token cancelacion{};
};

} // namespace norvik::inline v0_2
