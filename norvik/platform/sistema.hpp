// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

enum class Icono : std::int16_t {
    Ninguno = 0,
    Critico = 16,
    Pregunta = 32,
    Exclamacion = 48,
    Informacion = 64
};
enum class Botones : std::int16_t { Aceptar = 0, AceptarCancelar = 1 };
enum class Respuesta : std::int16_t { Aceptar = 1, Cancelar = 2 };
enum class Puntero : std::int16_t { Normal = 0, Ocupado = 11 };

/// Una caja de mensaje modal. Un título vacío es el de la plataforma.
struct Mensaje {
    std::u16string texto;
    std::u16string titulo;
    Icono icono = Icono::Ninguno;
    Botones botones = Botones::Aceptar;

    bool operator==(const Mensaje&) const = default;
};

/// Los servicios que el sistema pide a su entorno.
class NORVIK_API Sistema {
public:
    Sistema() = default;
    Sistema(const Sistema&) = delete;
    Sistema& operator=(const Sistema&) = delete;
    virtual ~Sistema() = default;

    virtual Respuesta muestraMensaje(const Mensaje& mensaje) = 0;
    virtual void ponPuntero(Puntero puntero) = 0;
    virtual Puntero puntero() const = 0;
    /// Deja que corran los eventos de ventana pendientes.
    virtual void procesaEventos() = 0;
    /// Hace un trabajo que puede ser largo y no toca nada de las ventanas, y vuelve cuando acaba; lanza lo
    /// que lance él. Quien lo hace en otro hilo deja mientras que corran los eventos, y con la parada que le
    /// da pide que se deje.
    virtual void trabaja(const std::function<void(std::stop_token)>& trabajo) { trabajo({}); }
    /// Imprime un texto en la impresora por omisión; lanza `ErrorNorvik` con la descripción de la plataforma.
    virtual void imprime(std::u16string_view texto) = 0;
};

/// Muestra el puntero de ocupado mientras vive, y después el normal.
class PunteroOcupado {
public:
    explicit PunteroOcupado(Sistema& sistema) : sistema_(sistema) { sistema_.ponPuntero(Puntero::Ocupado); }
    PunteroOcupado(const PunteroOcupado&) = delete;
    PunteroOcupado& operator=(const PunteroOcupado&) = delete;
    ~PunteroOcupado() { sistema_.ponPuntero(Puntero::Normal); }

private:
    Sistema& sistema_;
};

} // namespace norvik::inline v0_2
