// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/pattern/patronListo.hpp"

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace norvik::inline v0_2 {

enum class Operacion : std::uint8_t {
    Unidad,        // takes the unit `a`
    Clase,         // takes a unit of class `a`
    Inicio,        // asserts
    Final,         // asserts
    Frontera,      // asserts
    NoFrontera,    // asserts
    Referencia,    // takes again what capture `a` took
    Guarda,        // register `a` ← position
    Salta,         // goes to `a`
    Prueba,        // goes on; if that fails, to `a`
    Aplaza,        // goes to `a`; if that fails, on
    PreparaBucle,  // starts counting loop `a`
    EntraEnBucle,  // another turn of loop `a`, or out of it
    EmpiezaVuelta, // of loop `a`
    CierraBucle,   // a turn of loop `a` is done
    AbreDelante,   // look-ahead with registers `a`, `a` + 1
    AbreDelanteNo, // the same, negated; goes on at `b` if its body fails
    CierraDelante,
    CierraDelanteNo,
    Acepta,
};

struct Instruccion {
    Operacion operacion;
    std::uint32_t a = 0;
    std::uint32_t b = 0;
};

/// A repetition that counts its turns or watches that they take something.
struct Bucle {
    Repeticion repeticion;
    std::uint32_t registro = 0; ///< turns begun; the next one: where the turn began
    std::uint32_t entrada = 0;  ///< its `EntraEnBucle`
    std::uint32_t salida = 0;   ///< the instruction after the loop
    std::uint32_t capturaDesde = 0;
    std::uint32_t capturaHasta = 0; ///< captures that each turn forgets
};

/// A pattern as a program with branches in order of preference.
struct Programa {
    std::vector<Instruccion> codigo;
    std::vector<Bucle> bucles;
    std::vector<ClaseUnidades> clases;
    std::uint32_t registros = 0; ///< registers 2n and 2n + 1 are the ends of capture n, if any is referred to
    bool ignoraMayusculas = false; ///< of references

    explicit Programa(PatronListo patron);

    bool usaAlguna(std::initializer_list<Operacion> operaciones) const;
};

} // namespace norvik::inline v0_2
