#pragma once

#include "norvik/control/disposicion.hpp"

#include <cstdint>
#include <string_view>

namespace norvik {

struct signoDebuger;

/// What the control needs of whoever contains and shows it, besides its text box. A host without windows has
/// nothing to do in any of them.
class Contenedor {
public:
    Contenedor() = default;
    Contenedor(const Contenedor&) = delete;
    Contenedor& operator=(const Contenedor&) = delete;
    virtual ~Contenedor() = default;

    /// A property has another value: the control is to be saved again.
    virtual void cambioDePropiedad(std::u16string_view /*nombre*/) {}

    /// Size of the control and of a pixel, in twips.
    struct Medidas {
        std::int32_t ancho = 0;
        std::int32_t alto = 0;
        std::int32_t pixelX = 15;
        std::int32_t pixelY = 15;
    };
    virtual Medidas medidas() const { return {}; }
    /// Shows or hides the five elements of the sunken frame.
    virtual void muestraMarco(bool /*visible*/) {}
    virtual void muestraBordeIzquierdo(bool /*visible*/) {}
    virtual void coloca(const Disposicion& /*disposicion*/) {}
    virtual void ponSigno(const signoDebuger& /*signo*/, const LugarDeSigno& /*lugar*/) {}

    /// Windows: the modal ones come back when they are closed, the find dialog at once.
    virtual void muestraAcerca() {}
    virtual void muestraInforme() {}
    virtual void muestraBuscar() {}
    virtual void muestraReemplazar() {}
};

/// The container of a control without windows.
inline Contenedor& sinContenedor() {
    static Contenedor ninguno;
    return ninguno;
}

} // namespace norvik
