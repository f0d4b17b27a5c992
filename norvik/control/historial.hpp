// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/historialPorPalabras.hpp"
#include "norvik/control/instantaneas.hpp"
#include "norvik/control/lineasEditadas.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// Undo and redo of the text box's changes: by snapshots, as they are prescribed, or else by words. What a
/// failure interrupts on the way is finished before the failure is raised, so that the lists agree with the
/// text.
class Historial {
public:
    Historial(const Prestado<CajaTexto>& caja, LineasEditadas& lineas)
        : caja_(caja), lineas_(lineas), palabras_(caja) {}

    /// Whether it goes by words from now on. Another choice forgets what there was.
    void ponPorPalabras(bool porPalabras);
    bool puedeDeshacer() const;
    bool puedeRehacer() const;
    /// What comes next is no part of the word before it.
    void corta() { palabras_.corta(); }
    /// What is changed between the two calls is one step by words.
    void empiezaPaso() { palabras_.empiezaPaso(); }
    void acabaPaso() { palabras_.acabaPaso(); }

    /// Empties both lists and switches recording on. Raises `Desbordamiento`, with both empty, when one held
    /// more than 32767 entries.
    void InicializaUndosYRedos();
    void Undo();
    void Redo();

    /// Off only while Undo or Redo run.
    bool grabaDeshacer() const { return grabaDeshacer_; }
    /// Record a change that the box's text went through: by words before anything else is done about it,
    /// the snapshot once the lines have been painted, and perhaps corrected. Raise as
    /// `InicializaUndosYRedos` does.
    void anota(const CambioDeTexto& cambio);
    void registra();
    /// A change that the control itself makes while it is at work on the box.
    void corrige(const CambioDeTexto& cambio);
    /// Replaces a range (0-based). The change is recorded as one that Undo takes back exactly, which the
    /// others are not when they both take away and put in.
    void sustituye(std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo);
    /// The same of a change that is made in some other way.
    template <typename Cambio>
    void exacto(Cambio cambio) {
        PasosFirmes paso;
        esSustitucion_ = true;
        empiezaPaso();
        paso(cambio);
        acabaPaso();
        esSustitucion_ = false;
        paso.acaba();
    }

    const Instantaneas& undos() const { return undos_; }
    const Instantaneas& redos() const { return redos_; }

private:
    using Sentido = Seleccion (HistorialPorPalabras::*)(PasosFirmes&);

    void porPalabras(Sentido sentido);
    void deshace(const UndoElement& ant, const UndoElement& act, PasosFirmes& paso);
    void quita(std::int32_t inicio, std::int32_t cuantos, PasosFirmes& paso);
    void repone(std::int32_t inicio, std::u16string_view quitado, PasosFirmes& paso);
    void rehace(const UndoElement& e, PasosFirmes& paso);
    void inserta(std::int32_t inicio, std::u16string_view r, PasosFirmes& paso);
    void cambiaTodo(std::u16string_view nuevo, PasosFirmes& paso);
    void ponCursor(std::int32_t posicion) { caja_->selecciona(posicion, 0); }

    const Prestado<CajaTexto>& caja_;
    LineasEditadas& lineas_;
    Instantaneas undos_;
    Instantaneas redos_;
    HistorialPorPalabras palabras_;
    bool porPalabras_ = false;
    bool grabaDeshacer_ = true;
    bool esSustitucion_ = false;
};

} // namespace norvik::inline v0_2
