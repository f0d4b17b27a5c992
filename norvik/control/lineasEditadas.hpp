// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/ayudas.hpp"
#include "norvik/control/colocacion.hpp"
#include "norvik/control/coloreado.hpp"
#include "norvik/control/coloresAlDia.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <optional>
#include <span>

namespace norvik::inline v0_2 {

/// All that the control knows of the lines of its text: which one is being edited and shown plain, which one
/// has the error colour, what waits to be coloured. It paints them, and nobody else does. Line numbers are
/// 1-based where nothing else is said, character positions 0-based.
class LineasEditadas {
public:
    LineasEditadas(const Prestado<CajaTexto>& caja, const Opciones& opciones, const Ayudas& ayudas,
                   Coloreado& coloreado, ColoresAlDia& coloresAlDia, Colocacion& colocacion)
        : caja_(caja), opciones_(opciones), ayudas_(ayudas), coloreado_(coloreado),
          coloresAlDia_(coloresAlDia), colocacion_(colocacion) {}

    /// @name Painting
    /// Tokens are painted only while `colorear` is on. Raise `Desbordamiento` for a text that is too long.
    /// @{
    void coloreaTodo();
    void coloreaLinea(std::int32_t linea);
    /// The lines of characters [inicio, fin) that came in at once, if they are several; a text that is too
    /// long is left as it is.
    void coloreaPuesto(std::int32_t inicio, std::int32_t fin);
    /// Where the colours are to be up to date at all times, they are now.
    void ponAlDia();
    /// Recognises the text, whose lines nobody paints meanwhile.
    void reconoceTodo();
    /// The colours of the text as it is now, for one that waited for them.
    void tomaColores(std::span<const TramoDeColor> tramos);
    /// Paints a line without its line break; one that the text does not have is only remembered.
    void marcaLinea(std::int32_t linea, std::int32_t color);
    /// Paints the characters [inicio, fin) of a token that stands on a line.
    void marcaToken(std::int32_t inicio, std::int32_t fin, std::int32_t linea, std::int32_t color);
    /// A line with an error is marked, and no longer the one being edited.
    void dejaDeEditar() { lineaEnEdicion_ = false; }
    /// @}

    /// @name What happened in the box
    /// What is raised on the way is kept by the steps. A caret that came to another line gives its number,
    /// 0-based.
    /// @{
    /// Any change of the text, also while the box's events are ignored, and before all else.
    void siguePosiciones(const CambioDeTexto& cambio);
    std::optional<std::int32_t> alCambiar(const CambioDeTexto& cambio, PasosFirmes& paso);
    std::optional<std::int32_t> alCambiarLaSeleccion(PasosFirmes& paso);
    void alPerderElFoco();
    /// What is pasted arrives plain and is coloured as a range.
    void vaAPegar();
    /// Text that may span lines came in, and waits for the caret to change line; or did not wait in vain.
    void esperaRango() { recoloreaRango_ = true; }
    void rangoVisto() { recoloreaRango_ = false; }
    void esperaRangoSiCambioDeLinea();
    /// Carries out something that gives a text back exactly: what is painted meanwhile is not corrected.
    template <typename Operacion>
    void alPieDeLaLetra(Operacion operacion) {
        PasosFirmes paso;
        palabras_ = Coloreado::Palabras::Deja;
        paso(operacion);
        palabras_ = Coloreado::Palabras::Corrige;
        paso.acaba();
    }
    /// @}

    /// The control itself is at work on the box, whose events are ignored.
    bool ocupado() const { return ocupado_; }
    /// Line count at the last change of the text.
    std::int32_t numLineas() const { return numLineas_; }

private:
    /// Characters [inicio, fin).
    struct Tramo {
        std::int32_t inicio = 0;
        std::int32_t fin = 0;
        bool vacio() const { return inicio >= fin; }
    };
    static constexpr std::int32_t ninguna = -1;

    bool alDia() const { return opciones_.colorear && ayudas_.coloreaAlEscribir; }
    /// The last change left nothing to be coloured, nor words to be corrected.
    bool nadaEspera() const { return alDia() && !opciones_.autoCorreccion; }
    void ponAlDiaTrasCambio();
    std::int32_t lineaDelCursor() const { return caja_->lineaDeCaracter(caja_->inicioSeleccion()); }
    std::int32_t longitudDelTexto() const { return static_cast<std::int32_t>(caja_->texto().size()); }
    void coloreaRango(std::int32_t inicio, std::int32_t fin, std::int32_t linea);
    void descoloreaLinea(std::int32_t linea);
    void pinta(std::int32_t inicio, std::int32_t fin, std::int32_t color);
    std::optional<std::int32_t> cambiaDeLinea(bool cortada, PasosFirmes& paso);
    void coloreaLoDejado(bool dejada, PasosFirmes& paso);
    void ponLineaLlana();
    void quitaMarca(PasosFirmes& paso);
    void quitaMarca(std::int32_t linea);

    const Prestado<CajaTexto>& caja_;
    const Opciones& opciones_;
    const Ayudas& ayudas_;
    Coloreado& coloreado_;
    ColoresAlDia& coloresAlDia_;
    Colocacion& colocacion_;
    Coloreado::Palabras palabras_ = Coloreado::Palabras::Corrige;
    bool ocupado_ = false;
    bool lineaEnEdicion_ = true;  ///< the caret's line was turned plain and waits to be coloured
    bool recoloreaRango_ = false; ///< text that may span lines came in and waits to be coloured
    std::int32_t lineaMarcada_ = ninguna;
    Tramo marcado_; ///< the characters in the error colour
    std::int32_t numLineas_ = 0;
    std::int32_t numLineasAnterior_ = 1; ///< at the change before the last
    std::int32_t lineaAnterior_ = 0;     ///< of the caret when it last changed line, 0-based
    std::int32_t posicionAnterior_ = 0;  ///< and its position then
};

} // namespace norvik::inline v0_2
