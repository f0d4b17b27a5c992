// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/platform/sistema.hpp"

#include <functional>

namespace norvik::inline v0_2 {

/// Los servicios de un anfitrión sin ventanas: los mensajes van a donde él dice y cuentan como aceptados, no
/// hay nada pendiente y no hay impresora.
class NORVIK_API SistemaMemoria : public Sistema {
public:
    using Salida = std::function<void(const Mensaje&)>;

    explicit SistemaMemoria(Salida mensajes) : mensajes_(std::move(mensajes)) {}

    Respuesta muestraMensaje(const Mensaje& mensaje) override;
    void ponPuntero(Puntero puntero) override { puntero_ = puntero; }
    Puntero puntero() const override { return puntero_; }
    void procesaEventos() override {}
    void imprime(std::u16string_view texto) override;

private:
    Salida mensajes_;
    Puntero puntero_ = Puntero::Normal;
};

} // namespace norvik::inline v0_2
