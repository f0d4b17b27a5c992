#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik {

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

/// A modal message box. An empty title is the platform's default.
struct Mensaje {
    std::u16string texto;
    std::u16string titulo;
    Icono icono = Icono::Ninguno;
    Botones botones = Botones::Aceptar;

    bool operator==(const Mensaje&) const = default;
};

/// The services that the system asks of its surroundings.
class Sistema {
public:
    Sistema() = default;
    Sistema(const Sistema&) = delete;
    Sistema& operator=(const Sistema&) = delete;
    virtual ~Sistema() = default;

    virtual Respuesta muestraMensaje(const Mensaje& mensaje) = 0;
    virtual void ponPuntero(Puntero puntero) = 0;
    virtual Puntero puntero() const = 0;
    /// Lets pending window events run.
    virtual void procesaEventos() = 0;
    /// Prints a text on the default printer; raises `ErrorNorvik` with the platform's description.
    virtual void imprime(std::u16string_view texto) = 0;
};

/// Shows the busy pointer while it lives, then the normal one.
class PunteroOcupado {
public:
    explicit PunteroOcupado(Sistema& sistema) : sistema_(sistema) { sistema_.ponPuntero(Puntero::Ocupado); }
    PunteroOcupado(const PunteroOcupado&) = delete;
    PunteroOcupado& operator=(const PunteroOcupado&) = delete;
    ~PunteroOcupado() { sistema_.ponPuntero(Puntero::Normal); }

private:
    Sistema& sistema_;
};

} // namespace norvik
