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

/// What the control needs of a rich-text box. Positions 0-based, in characters, a line break counts as two;
/// colours 0x00BBGGRR. Programmatic edits raise the events as a user's would: first `cambio`, then, when the
/// selection is another one, `cambioDeSeleccion`. Colours raise nothing.
class CajaTexto : public FuenteTexto {
public:
    /// Receives the box's events.
    struct Eventos {
        std::function<void()> cambio;
        std::function<void()> cambioDeSeleccion;
    };
    Eventos eventos;

    /// Another text, all of it in colour 0, the caret at its start, not modified.
    virtual void ponTexto(std::u16string_view texto) = 0;

    virtual std::int32_t inicioSeleccion() const = 0;
    virtual std::int32_t longitudSeleccion() const = 0;
    /// Selects; both bounds are brought inside the text. The caret stands at the start.
    virtual void selecciona(std::int32_t inicio, std::int32_t longitud) = 0;
    virtual std::u16string textoSeleccionado() const = 0;
    /// Replaces the selection; the caret ends after the inserted text, which has the colour of the first
    /// character replaced, or the one of what is typed next.
    virtual void reemplazaSeleccion(std::u16string_view texto) = 0;
    /// Colour of the selection's characters; for an empty one, of what is typed next until the selection
    /// changes.
    virtual void ponColorSeleccion(std::int32_t color) = 0;
    /// Colour of the selection's first character; for an empty one, of what is typed next: that of the
    /// character before the caret unless another was set.
    virtual std::int32_t colorSeleccion() const = 0;

    /// Edited since the text was set or the mark was taken away.
    virtual bool modificado() const = 0;
    virtual void ponModificado(bool modificado) = 0;
    /// The selection is not shown while the box lacks the focus.
    virtual bool ocultaSeleccion() const = 0;
    virtual void ponOcultaSeleccion(bool oculta) = 0;

    /// Between the two calls (they nest) the box is not redrawn.
    virtual void bloqueaDibujo() = 0;
    virtual void desbloqueaDibujo() = 0;
};

} // namespace norvik
