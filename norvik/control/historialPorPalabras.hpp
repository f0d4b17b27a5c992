// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Undo and redo as people know them: by words that were typed or rubbed out, by whole commands, and exactly.
class HistorialPorPalabras {
public:
    /// What steps may take in memory; beyond it the oldest are forgotten.
    static constexpr std::size_t maximoComun = std::size_t{64} << 20;

    explicit HistorialPorPalabras(const Prestado<CajaTexto>& caja, std::size_t maximo = maximoComun)
        : caja_(caja), maximo_(maximo) {}

    /// A change that the box's text just went through, and nobody takes back at this moment. A text that is
    /// put whole into an empty history is where it begins.
    void anota(const CambioDeTexto& cambio);
    /// The same of a word that the control corrects, which is part of the step before.
    void anotaCorreccion(const CambioDeTexto& cambio);
    /// What comes next is no part of the word before.
    void corta() { abierto_ = false; }
    /// All that is changed between the two calls, which may nest, is one step.
    void empiezaPaso();
    void acabaPaso();
    /// The text is where the history begins.
    void olvida();

    std::size_t deshacibles() const { return hechos_; }
    std::size_t rehacibles() const { return pasos_.size() - hechos_; }
    /// Give the text and the selection back that were before the last step, or after the next one, and say
    /// which characters came in last. What a receiver of the box's events does to the text meanwhile ends the
    /// history.
    Seleccion deshace(PasosFirmes& paso);
    Seleccion rehace(PasosFirmes& paso);

private:
    /// One place of the text, and what stands there on the other side of the change.
    struct Cambio {
        std::int32_t inicio = 0;
        std::int32_t longitud = 0; ///< of what stands there now
        std::u16string otro;
        Seleccion antes;
        Seleccion despues;
    };
    using Paso = std::vector<Cambio>;
    enum class Sentido : std::uint8_t { Atras, Adelante };

    std::u16string_view puesto(const CambioDeTexto& cambio) const;
    Seleccion seleccion() const { return {caja_->inicioSeleccion(), caja_->longitudSeleccion()}; }
    bool alarga(const CambioDeTexto& cambio);
    bool alargaEscrito(Cambio& ultimo, const CambioDeTexto& cambio) const;
    static bool alargaBorrado(Cambio& ultimo, const CambioDeTexto& cambio);
    void pon(const CambioDeTexto& cambio);
    void olvidaRehacibles();
    void recorta();
    /// The text is the one that the last change left.
    bool cuadra() const { return caja_->texto().size() == tamano_; }
    Seleccion recorre(std::size_t cual, Sentido sentido, PasosFirmes& paso);
    void invierte(Cambio& cambio, const Seleccion& queda, PasosFirmes& paso);

    const Prestado<CajaTexto>& caja_;
    std::size_t maximo_;
    std::deque<Paso> pasos_; ///< oldest first; from `hechos_` on they are undone
    std::size_t hechos_ = 0;
    std::size_t bytes_ = 0;
    std::size_t tamano_ = 0; ///< of the text after the last change
    std::size_t epoca_ = 0;  ///< how often all was forgotten
    int grupo_ = 0;          ///< calls of `empiezaPaso` without their end
    bool agrupado_ = false;  ///< the last step is that of the group
    bool recorre_ = false;   ///< a step is being carried out
    bool abierto_ = false;   ///< a word is being typed or rubbed out
};

} // namespace norvik::inline v0_2
