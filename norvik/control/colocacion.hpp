// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/contenedor.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

namespace norvik::inline v0_2 {

/// Lays the control out by its options, and moves the text box out of view while it is worked on.
class Colocacion {
public:
    Colocacion(const Prestado<CajaTexto>& caja, const Opciones& opciones,
               const Prestado<Contenedor>& contenedor)
        : caja_(caja), opciones_(opciones), contenedor_(contenedor) {}

    /// Nothing moves in a control that is too small.
    void colocaControles();
    /// The two calls nest: the last of the second kind puts the box back.
    void ocultaTexto();
    void ajustaIzquierdaTexto();

private:
    Superficie superficie() const;

    const Prestado<CajaTexto>& caja_;
    const Opciones& opciones_;
    const Prestado<Contenedor>& contenedor_;
    int oculto_ = 0;
};

/// The text box is out of view while it lives.
class TextoOculto {
public:
    explicit TextoOculto(Colocacion& colocacion) : colocacion_(colocacion) { colocacion_.ocultaTexto(); }
    TextoOculto(const TextoOculto&) = delete;
    TextoOculto& operator=(const TextoOculto&) = delete;
    ~TextoOculto() { colocacion_.ajustaIzquierdaTexto(); }

private:
    Colocacion& colocacion_;
};

} // namespace norvik::inline v0_2
