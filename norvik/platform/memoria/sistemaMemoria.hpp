#pragma once

#include "norvik/platform/sistema.hpp"

#include <functional>

namespace norvik {

/// The services of a host without windows: messages go where the host says and count as accepted, nothing
/// is pending, and there is no printer.
class SistemaMemoria : public Sistema {
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

} // namespace norvik
