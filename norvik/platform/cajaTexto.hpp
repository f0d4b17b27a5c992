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

/// A font. Its attributes are independent of each other, as hosts set and save them one by one.
struct Fuente {
    std::u16string nombre = u"Courier New";
    std::int32_t tamano = 100000; ///< in 1/10000 points
    bool negrita = false;
    bool cursiva = false;
    bool tachado = false;
    bool subrayado = false;
    std::int16_t juegoCaracteres = 0;
    std::int16_t peso = 400; ///< 400 normal, 700 bold

    bool operator==(const Fuente&) const = default;
};

/// Key codes that the control knows by name: the virtual-key codes of Windows.
namespace tecla {
inline constexpr std::int16_t retorno = 13;
inline constexpr std::int16_t insertar = 45;
} // namespace tecla

/// Bits of the `shift` argument of key and mouse events.
namespace mascara {
inline constexpr std::int16_t mayusculas = 1;
inline constexpr std::int16_t control = 2;
inline constexpr std::int16_t alt = 4;
} // namespace mascara

/// Options of `busca`, to be added up.
namespace opcionBusqueda {
inline constexpr std::int32_t palabraCompleta = 2;
inline constexpr std::int32_t distingueMayusculas = 4;
inline constexpr std::int32_t sinResaltar = 8;
} // namespace opcionBusqueda

/// What the control needs of a rich-text box. Positions 0-based, in characters, a line break counts as two;
/// colours 0x00BBGGRR; lengths on the screen in twips (1/1440 inch). Programmatic edits raise the events as a
/// user's would: first `cambio`, then, when the selection is another one, `cambioDeSeleccion`. Colours and
/// fonts raise nothing.
///
/// A line break that comes in as a CR or an LF alone becomes CR LF, unless it completes half a break that
/// stands beside it. Halves arise only when part of a CR LF is selected and replaced.
class CajaTexto : public FuenteTexto {
public:
    /// Receives the box's events. The arguments may be changed by the receiver.
    struct Eventos {
        using Tecla = std::function<void(std::int16_t& codigo, std::int16_t& shift)>;
        using Raton = std::function<void(std::int16_t& boton, std::int16_t& shift, float& x, float& y)>;

        std::function<void()> cambio;
        std::function<void()> cambioDeSeleccion;
        Tecla teclaAbajo;                                      ///< code 0 suppresses the key
        std::function<void(std::int16_t& caracter)> pulsacion; ///< a character of a key, 0 suppresses it
        Tecla teclaArriba;
        Raton ratonAbajo; ///< 1 left, 2 right, 4 middle button; position in twips from the box's corner
        Raton ratonMueve;
        Raton ratonArriba;
        std::function<void()> click;
        std::function<void()> pierdeFoco;
        std::function<void()> vaAPegar; ///< the user is about to paste or drop text at the selection
    };
    Eventos eventos;

    /// Another text, all of it in colour 0 and in the box's font, the caret at its start, not modified.
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

    /// The font of all text that was given none of its own.
    virtual const Fuente& fuente() const = 0;
    virtual void ponFuente(const Fuente& fuente) = 0;
    /// Font name and size (1/10000 points) of the selection, as with its colour.
    virtual const std::u16string& nombreFuenteSeleccion() const = 0;
    virtual void ponNombreFuenteSeleccion(std::u16string_view nombre) = 0;
    virtual std::int32_t tamanoFuenteSeleccion() const = 0;
    virtual void ponTamanoFuenteSeleccion(std::int32_t tamano) = 0;

    /// Finds the first occurrence of a text that lies wholly in [desde, hasta), and selects it unless
    /// `opciones` say no. Its position, -1 when there is none or the text is empty; bounds beyond the text
    /// are brought inside. Case is ignored unless the options say no.
    std::int32_t busca(std::u16string_view cadena, std::int32_t desde, std::int32_t hasta,
                       std::int32_t opciones);

    /// Edited since the text was set or the mark was taken away.
    virtual bool modificado() const = 0;
    virtual void ponModificado(bool modificado) = 0;
    /// The selection is not shown while the box lacks the focus.
    virtual bool ocultaSeleccion() const = 0;
    virtual void ponOcultaSeleccion(bool oculta) = 0;

    /// Width from which lines would be wrapped, in twips; 0 when no one has set it. Boxes wrap no lines.
    virtual std::int32_t margenDerecho() const = 0;
    virtual void ponMargenDerecho(std::int32_t twips) = 0;
    virtual std::int32_t primeraLineaVisible() const = 0;
    /// Height of a line in the box's font.
    virtual std::int32_t altoDeLinea() const = 0;
    /// The box's left edge inside the control.
    virtual std::int32_t izquierda() const = 0;
    virtual void ponIzquierda(std::int32_t twips) = 0;
    /// Takes the focus.
    virtual void enfoca() = 0;

    /// Between the two calls (they nest) the box is not redrawn.
    virtual void bloqueaDibujo() = 0;
    virtual void desbloqueaDibujo() = 0;
};

} // namespace norvik
