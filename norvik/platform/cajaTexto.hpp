#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace norvik {

/// A text with line services. Positions and lines are 0-based; a line break (CR LF, or a CR or LF alone)
/// belongs to the line that it ends.
class FuenteTexto {
public:
    FuenteTexto() = default;
    FuenteTexto(const FuenteTexto&) = default;
    FuenteTexto& operator=(const FuenteTexto&) = default;
    virtual ~FuenteTexto() = default;

    /// The whole text; the view holds until the next change.
    virtual std::u16string_view texto() const = 0;
    /// Line of the character at a position; a position beyond the text is on the last line.
    virtual std::int32_t lineaDeCaracter(std::int32_t posicion) const = 0;
    /// Position of a line's first character, -1 when there is no such line.
    virtual std::int32_t inicioDeLinea(std::int32_t linea) const = 0;
    virtual std::int32_t numeroDeLineas() const = 0;
};

/// The attributes of a font, as the saved state has them.
struct Fuente {
    std::u16string nombre = u"Courier New";
    std::int64_t tamanioDiezmilesimas = 100000; ///< points × 10 000
    bool negrita = false;
    bool cursiva = false;
    bool tachada = false;
    bool subrayada = false;
    std::int16_t juegoDeCaracteres = 0;
    std::int16_t peso = 400;

    bool operator==(const Fuente&) const = default;
};

/// What the control needs of a rich-text box. Positions 0-based, in characters, a line break counts as two;
/// colours 0x00BBGGRR, lengths in twips. Setters raise `change` / `selection change` as a user's edit would.
class CajaTexto : public FuenteTexto {
public:
    /// Receives the box's events. Handlers may change arguments given by reference.
    struct Eventos {
        std::function<void()> cambio;
        std::function<void()> cambioDeSeleccion;
        std::function<void(std::int16_t& codigo, std::int16_t& mayus)> teclaAbajo;
        std::function<void(std::int16_t& codigo)> teclaPulsada;
        std::function<void(std::int16_t& codigo, std::int16_t& mayus)> teclaArriba;
        std::function<void(std::int16_t& boton, std::int16_t& mayus, float& x, float& y)> ratonAbajo;
        std::function<void(std::int16_t& boton, std::int16_t& mayus, float& x, float& y)> ratonMovido;
        std::function<void(std::int16_t& boton, std::int16_t& mayus, float& x, float& y)> ratonArriba;
        std::function<void()> clic;
        std::function<void()> pierdeEnfoque;
    };
    Eventos eventos;

    virtual void ponTexto(std::u16string_view texto) = 0;

    virtual std::int32_t inicioSeleccion() const = 0;
    virtual std::int32_t longitudSeleccion() const = 0;
    /// Selects; both bounds are brought inside the text. The caret stands at the start.
    virtual void selecciona(std::int32_t inicio, std::int32_t longitud) = 0;
    virtual std::u16string textoSeleccionado() const = 0;
    /// Replaces the selection; the caret ends after the inserted text.
    virtual void reemplazaSeleccion(std::u16string_view texto) = 0;
    /// Colour of the selection's characters; for an empty one, of what is typed next.
    virtual void ponColorSeleccion(std::int32_t color) = 0;
    virtual std::int32_t colorSeleccion() const = 0;

    virtual bool modificado() const = 0;
    virtual void ponModificado(bool modificado) = 0;
    virtual bool ocultaSeleccion() const = 0;
    virtual void ponOcultaSeleccion(bool oculta) = 0;
    virtual std::int32_t primeraLineaVisible() const = 0;

    /// Between the two calls (they nest) the box is not redrawn.
    virtual void bloqueaDibujo() = 0;
    virtual void desbloqueaDibujo() = 0;
};

} // namespace norvik
