// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/diagnostico.hpp"
#include "norvik/grammar/metodo.hpp"
#include "norvik/parser/analisis.hpp"
#include "norvik/parser/continuaciones.hpp"
#include "norvik/parser/lexemas.hpp"
#include "norvik/parser/vocabulario.hpp"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class DatosDeLenguaje;
struct Compilacion;
struct DatosLenguaje;

struct OpcionesCompilacion {
    /// Cómo se hace la tabla; lo que diga la especificación en una línea «'% metodo: lalr», si no dice nada
    /// aquí.
    std::optional<Metodo> metodo;
    /// Acaba pronto la compilación, con el diagnóstico `Cancelado` y sin lenguaje.
    std::stop_token cancelacion{};
};

/// Un lenguaje listo para usar: sus tokens, sus reglas y su tabla. No cambia nunca y copiarlo cuesta poco
/// (las copias lo comparten); con uno pueden analizar a la vez cuantos hilos se quiera. Lo hacen las
/// funciones de aquí, que no tocan ningún otro lenguaje: lo que esté mal en el texto que reciben lo dicen los
/// diagnósticos.
class NORVIK_API Lenguaje {
public:
    /// Compila una especificación. Los rangos de los diagnósticos cuentan unidades UTF-16; los de una en
    /// UTF-8, bytes. Lanza `Desbordamiento` con una de 2^31 - 1 unidades o más.
    static Compilacion compila(std::u16string_view especificacion, const OpcionesCompilacion& opciones = {});
    static Compilacion compila(std::string_view especificacionUtf8, const OpcionesCompilacion& opciones = {});
    /// Toma un lenguaje del texto de un módulo de carga («NOMBRE.bas»), con los finales de línea de su
    /// fichero. El de uno en UTF-8 puede empezar por su marca.
    static Compilacion cargaModulo(std::u16string_view modulo);
    static Compilacion cargaModulo(std::string_view moduloUtf8);
    /// Un fichero con una especificación o, cuando acaba en «.bas», con un módulo de carga; los rangos
    /// cuentan unidades UTF-16 del texto que da `leeTexto`. Lanza `ErrorDeFichero`.
    static Compilacion deFichero(const std::filesystem::path& fichero,
                                 const OpcionesCompilacion& opciones = {});
    /// Hace un lenguaje de los datos de una cabecera generada, que no conserva. Lanza `ArgumentoNoValido` con
    /// datos que no salen de ningún lenguaje.
    static Lenguaje de(const DatosLenguaje& datos);

    /// Tokens, variables y reglas por los números que llevan los nodos de los árboles. Vale mientras exista
    /// una copia del lenguaje.
    const Vocabulario& vocabulario() const;
    /// Falso en un lenguaje sin reglas: con él se pueden leer textos, pero no analizarlos.
    bool tieneGramatica() const;

    /// Para quienes hacen lenguajes.
    explicit Lenguaje(std::shared_ptr<const DatosDeLenguaje> datos);
    const DatosDeLenguaje& datos() const { return *datos_; }

private:
    std::shared_ptr<const DatosDeLenguaje> datos_;
};

/// Lo que da compilar: un lenguaje siempre que se pueda hacer uno, y todo lo que está mal o llama la
/// atención.
struct Compilacion {
    std::optional<Lenguaje> lenguaje;      ///< puede haberlo con errores: lo que se pudo hacer
    std::vector<Diagnostico> diagnosticos; ///< errores y avisos

    /// Hay lenguaje y nada es un error.
    explicit operator bool() const { return lenguaje && !hayErrores(diagnosticos); }
};

/// Analiza un texto. Los rangos cuentan unidades del texto que se da: UTF-16, o bytes de UTF-8. Tiempo y
/// memoria van en proporción al texto. Lanza `Desbordamiento` con un texto de 2^31 - 1 unidades o más.
NORVIK_API Analisis analiza(const Lenguaje& lenguaje, std::u16string_view texto,
                            const OpcionesAnalisis& opciones = {});
NORVIK_API Analisis analiza(const Lenguaje& lenguaje, std::string_view utf8,
                            const OpcionesAnalisis& opciones = {});

/// Los tokens de un texto, con sus comentarios, sin analizarlo. Rangos, coste y fallos como arriba.
NORVIK_API Lexemas lexemas(const Lenguaje& lenguaje, std::u16string_view texto,
                           const OpcionesAnalisis& opciones = {});
NORVIK_API Lexemas lexemas(const Lenguaje& lenguaje, std::string_view utf8,
                           const OpcionesAnalisis& opciones = {});

/// Lo que puede seguir en una posición de un texto, desde 0 y en unidades UTF-16. Un token que la tabla no
/// admite no cuenta, como si no estuviera: detrás de un error también se propone algo. Coste y fallos como
/// arriba; sin gramática, cancelado, dentro de un comentario o de un literal, o cuando el texto pide
/// demasiado, no propone nada.
NORVIK_API Continuaciones continuaciones(const Lenguaje& lenguaje, std::u16string_view texto,
                                         std::size_t posicion, const OpcionesAnalisis& opciones = {});

} // namespace norvik::inline v0_2
