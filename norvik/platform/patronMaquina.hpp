#pragma once

#include "norvik/platform/emparejador.hpp"
#include "norvik/platform/patron.hpp"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace norvik {

/// The exact matcher of the dialect: a backtracking machine. The other ways of matching agree with it.
class Maquina {
public:
    /// What a search keeps from one attempt to the next.
    struct Memoria {
        struct Entrada {
            std::uint32_t donde; // instruction to go on with, or the register to restore, marked
            std::int32_t valor;  // position, or the register's former value
        };
        std::vector<Entrada> pila;
        std::vector<std::int32_t> registros;
    };

    /// `clases` are the pattern's, in the order of their numbers, and outlive the machine.
    Maquina(const Patron& patron, const std::vector<ClaseUnidades>& clases);

    /// The end of the match that starts at `inicio`, if there is one. Raises `BusquedaDesbocada`.
    std::optional<std::size_t> coincide(std::u16string_view sujeto, std::size_t inicio, Memoria& memoria,
                                        const Presupuesto& presupuesto) const;

private:
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
    // A repetition that counts its turns or watches that they take something.
    struct Bucle {
        Repeticion repeticion;
        std::uint32_t registro = 0; // turns begun; the next one: where the turn began
        std::uint32_t entrada = 0;  // its `EntraEnBucle`
        std::uint32_t salida = 0;   // the instruction after the loop
        std::uint32_t capturaDesde = 0;
        std::uint32_t capturaHasta = 0; // captures that each turn forgets
    };
    class Ensambla;
    class Ejecucion;

    std::vector<Instruccion> codigo_;
    std::vector<Bucle> bucles_;
    const std::vector<ClaseUnidades>* clases_;
    std::uint32_t registros_ = 0;
    bool ignoraMayusculas_ = false;
};

} // namespace norvik
