// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/ayudas.hpp"
#include "norvik/control/contenedor.hpp"
#include "norvik/control/eventosControl.hpp"
#include "norvik/control/historial.hpp"
#include "norvik/control/lineasEditadas.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <memory>
#include <optional>

namespace norvik::inline v0_2 {

/// What happens in the text box, and what of it reaches the host: its lines are told, each change is
/// recorded, new lines are indented.
class Edicion {
public:
    Edicion(const Prestado<CajaTexto>& caja, const Opciones& opciones, const Ayudas& ayudas,
            LineasEditadas& lineas, Historial& historial, EventosControl& eventos,
            const Prestado<Contenedor>& contenedor)
        : caja_(caja), opciones_(opciones), ayudas_(ayudas), lineas_(lineas), historial_(historial),
          eventos_(eventos), contenedor_(contenedor) {}

    /// Receives the box's events from now on, as long as its owner lives, which it holds meanwhile: a
    /// receiver may delete the control.
    void conecta(std::weak_ptr<const void> duenio);
    /// Raises no event any more, and receives none.
    void calla() { callada_ = true; }
    bool callada() const { return callada_; }
    void avisaClick() const { avisa(eventos_.Click); }
    /// Tells the host that the text is another, if it is and nobody has told yet. What changes the text while
    /// the host hears of no change does this at its end.
    void avisaTexto();
    /// Does something that changes the text, perhaps in several steps, or while the host hears of no change:
    /// the host is told once, afterwards.
    template <typename Operacion>
    void conAviso(Operacion operacion) {
        PasosFirmes paso;
        ++porAcabar_;
        paso(operacion);
        --porAcabar_;
        paso([this] { avisaTexto(); });
        paso.acaba();
    }

    /// 1-based; raises `Desbordamiento` beyond 32767.
    std::int16_t lineaActual() const;
    /// 1-based.
    std::int32_t columnaActual() const;
    /// Replaces the selection with the spaces of a tab key, or puts them before its lines, and gives the
    /// focus back to the box.
    void tabula();
    /// Takes them away from the lines of the selection or of the caret.
    void quitaSangria();

private:
    /// Raises an event of the host's, if it listens.
    template <typename Evento, typename... Argumentos>
    void avisa(const Evento& evento, Argumentos&... argumentos) const {
        if (evento && !callada_) evento(argumentos...);
    }
    void alCambiarLaCaja(const CambioDeTexto& cambio);
    void alCambiar(const CambioDeTexto& cambio);
    void alCambiarLaSeleccion();
    void alPerderElFoco();
    void avisaSeleccion(std::optional<std::int32_t> linea, PasosFirmes& paso);
    void alBajarTecla(std::int16_t& codigo, std::int16_t& shift);
    void alSubirTecla(std::int16_t& codigo, std::int16_t& shift);
    void sangra();

    const Prestado<CajaTexto>& caja_;
    const Opciones& opciones_;
    const Ayudas& ayudas_;
    LineasEditadas& lineas_;
    Historial& historial_;
    EventosControl& eventos_;
    const Prestado<Contenedor>& contenedor_;
    bool callada_ = false;
    bool textoPorAvisar_ = false;
    int porAcabar_ = 0; ///< operations that will tell of the text
};

} // namespace norvik::inline v0_2
