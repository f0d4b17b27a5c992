// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/contenedor.hpp"
#include "norvik/control/lenguajeDeAhora.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

class Colorista;
struct Literal;

/// Keeps the colours of the whole text what colouring all of it would give: after each change of a text of
/// common length at once; of a long one when whoever shows the control has them from another thread.
class ColoresAlDia {
public:
    /// Texts up to this length take a few milliseconds.
    static constexpr std::size_t maximoAlMomento = std::size_t{1} << 16;

    ColoresAlDia(const Prestado<CajaTexto>& caja, const Prestado<Contenedor>& contenedor,
                 LenguajeDeAhora& lenguaje);
    ColoresAlDia(const ColoresAlDia&) = delete;
    ColoresAlDia& operator=(const ColoresAlDia&) = delete;
    ~ColoresAlDia();

    /// Some characters, [inicio, fin), that have a colour of their own.
    struct Salvo {
        std::int32_t inicio = 0;
        std::int32_t fin = 0;
    };
    /// Brings the colours up to date, or sees to it. A text that takes too long raises
    /// `BusquedaDesbocada` once, and keeps its colours until the language is another.
    void pon(Salvo salvo);
    /// The colours of the text as it is now, or of some of it, made elsewhere.
    void toma(std::span<const TramoDeColor> tramos, Salvo salvo);
    /// The comments, strings and characters of the text as it is now, in order; read for them unless its
    /// colours have just been. Null when they take too long: `BusquedaDesbocada` has been raised then.
    const std::vector<Literal>* literales();
    /// The text is another.
    void cambioElTexto() { leido_ = false; }

private:
    const std::vector<TramoDeColor>& lee();
    void miraElLenguaje();

    const Prestado<CajaTexto>& caja_;
    const Prestado<Contenedor>& contenedor_;
    LenguajeDeAhora& lenguaje_;
    std::unique_ptr<Colorista> colorista_; ///< of the language below
    std::optional<Lenguaje> suLenguaje_;
    std::vector<TramoDeColor> colores_; ///< of the text, when it has been read
    bool leido_ = false;
    bool desistido_ = false;    ///< to colour its texts takes too long
    bool sinLiterales_ = false; ///< and so does it to read one for its literals
};

} // namespace norvik::inline v0_2
