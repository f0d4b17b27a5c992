// SPDX-License-Identifier: MIT

#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include "norvik/base/errores.hpp"

namespace norvik::inline v0_2 {

Respuesta SistemaMemoria::muestraMensaje(const Mensaje& mensaje) {
    if (mensajes_) mensajes_(mensaje);
    return Respuesta::Aceptar;
}

void SistemaMemoria::imprime(std::u16string_view /*texto*/) {
    throw ErrorNorvik(u"No hay ninguna impresora");
}

} // namespace norvik::inline v0_2
