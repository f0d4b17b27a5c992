// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/control/disposicion.hpp"

#include <cstdint>
#include <string_view>

namespace norvik::inline v0_2 {

struct CambioDeTexto;
struct signoDebuger;

/// Lo que el control necesita de quien lo contiene y lo muestra, además de su caja de texto. Un anfitrión sin
/// ventanas no tiene nada que hacer en ninguna de estas operaciones.
class NORVIK_API Contenedor {
public:
    Contenedor() = default;
    Contenedor(const Contenedor&) = delete;
    Contenedor& operator=(const Contenedor&) = delete;
    virtual ~Contenedor() = default;

    /// Una propiedad tiene otro valor: hay que volver a guardar el control.
    virtual void cambioDePropiedad(std::u16string_view /*nombre*/) {}

    /// Se han tomado de una bolsa todas las que se guardan.
    virtual void opcionesRestauradas() {}

    /// Tamaño del control y de un píxel, en twips.
    struct Medidas {
        std::int32_t ancho = 0;
        std::int32_t alto = 0;
        std::int32_t pixelX = 15;
        std::int32_t pixelY = 15;
        std::int32_t bordeAdicional = 0; ///< anchura del borde izquierdo además de la de sus señales
    };
    /// Las de ahora.
    virtual Medidas medidas() const { return {}; }
    /// Muestra u oculta los cinco elementos del marco hundido.
    virtual void muestraMarco(bool /*visible*/) {}
    /// Muestra u oculta el borde izquierdo.
    virtual void muestraBordeIzquierdo(bool /*visible*/) {}
    /// Pone cada elemento en su sitio.
    virtual void coloca(const Disposicion& /*disposicion*/) {}
    /// Pone una señal en el borde izquierdo.
    virtual void ponSigno(const signoDebuger& /*signo*/, const LugarDeSigno& /*lugar*/) {}

    /// Hay otras ayudas de edición encendidas.
    virtual void otrasAyudas() {}
    /// El texto es otro, haya cambiado como haya cambiado; antes de que ningún evento del control lo diga.
    virtual void cambioElTexto(const CambioDeTexto& /*cambio*/) {}
    /// Un texto largo espera sus colores. Verdadero cuando el contenedor se los dará (`Norvik::colorista`,
    /// `Norvik::tomaColores`); si no, se hacen en el acto.
    virtual bool coloreaDespues() { return false; }

    /// Las definiciones o la tabla del lenguaje son otras, o están cambiando.
    virtual void otroLenguaje() {}

    /// @name Ventanas
    /// Las modales vuelven cuando se cierran; la de buscar, enseguida.
    /// @{
    virtual void muestraAcerca() {}
    virtual void muestraInforme() {}
    virtual void muestraBuscar() {}
    virtual void muestraReemplazar() {}

    /// @}
};

/// El contenedor de un control sin ventanas.
inline Contenedor& sinContenedor() {
    static Contenedor ninguno;
    return ninguno;
}

} // namespace norvik::inline v0_2
