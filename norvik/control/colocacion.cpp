// SPDX-License-Identifier: MIT

#include "norvik/control/colocacion.hpp"

namespace norvik::inline v0_2 {

Superficie Colocacion::superficie() const {
    const Contenedor::Medidas m = contenedor_->medidas();
    return {m.ancho,
            m.alto,
            m.pixelX,
            m.pixelY,
            opciones_.borde3D,
            opciones_.leftBorderVisible,
            opciones_.margenIzquierdo,
            m.bordeAdicional};
}

void Colocacion::colocaControles() {
    if (const auto disposicion = disponeElementos(superficie())) contenedor_->coloca(*disposicion);
}

void Colocacion::ocultaTexto() {
    if (oculto_++ == 0) caja_->ponIzquierda(izquierdaFueraDeLaVista(superficie()));
}

void Colocacion::ajustaIzquierdaTexto() {
    if (--oculto_ == 0) caja_->ponIzquierda(izquierdaDelTexto(superficie()));
}

} // namespace norvik::inline v0_2
