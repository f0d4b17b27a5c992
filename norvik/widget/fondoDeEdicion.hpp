// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/colorista.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/control/pliegues.hpp"
#include "norvik/widget/trabajoDeFondo.hpp"

#include <QTimer>

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace norvik {

class CajaTextoQt;

/// Changes of a text as one: what they left alone lies before it and behind it.
class CambiosJuntos {
public:
    void anota(const CambioDeTexto& cambio);
    /// From runs of the text before them to those of what they left alone in the text after them.
    void traslada(std::vector<TramoDeColor>& tramos) const;

private:
    std::int32_t inicio_ = 0;
    std::int32_t finAntes_ = 0;
    std::int32_t finAhora_ = 0;
    bool hay_ = false;
};

/// What is found out about the edited text in other threads, while it is typed on: the colours of a long
/// text, and after a pause the constructions that can be folded. What comes back when the text is another
/// already is done again; of its colours those are taken that are still good.
class FondoDeEdicion {
public:
    /// Both outlive it.
    FondoDeEdicion(Norvik& control, CajaTextoQt& caja);
    FondoDeEdicion(const FondoDeEdicion&) = delete;
    FondoDeEdicion& operator=(const FondoDeEdicion&) = delete;
    ~FondoDeEdicion() = default;

    /// Any change of the text, and of the aids.
    void cambioElTexto(const CambioDeTexto& cambio);
    void otrasAyudas();
    /// The text is too long to be coloured at once.
    void pideColores();

    /// The definitions or the table are others.
    void otroLenguaje();

    /// The comments, strings and characters of the text as it is, in order; null while a long one is still
    /// being read for them, and when it takes too long.
    const std::vector<Literal>* literales();
    const Pliegues& pliegues() const { return pliegues_; }
    /// There may be others.
    std::function<void()> otrosPliegues;

private:
    struct Lectura {
        std::vector<TramoDeColor> colores;
        std::vector<Literal> literales;
        std::exception_ptr desbocada; ///< the text takes too long
    };
    using Construcciones = std::vector<Construccion>;

    void colorea();
    void toma(Lectura&& lectura, const std::shared_ptr<Colorista>& de, std::uint64_t version);
    void analiza();
    void tomaConstrucciones(std::optional<Construcciones> construcciones, std::uint64_t version);
    const std::shared_ptr<Colorista>& colorista();

    Norvik& control_;
    CajaTextoQt& caja_;
    std::uint64_t version_ = 0; ///< of the text
    Pliegues pliegues_;
    std::optional<Lenguaje> lenguaje_; ///< the colourist's
    std::shared_ptr<Colorista> colorista_;
    bool desistido_ = false; ///< long texts of this language take too long
    CambiosJuntos desdeLaLectura_;
    std::vector<Literal> literales_;
    std::shared_ptr<Colorista> literalesDe_; ///< whose they are, when they are of this text
    QTimer coloreaPronto_, recoloreaPronto_, analizaTrasPausa_;
    TrabajoDeFondo<Lectura> trabajoColores_;
    TrabajoDeFondo<std::optional<Construcciones>> trabajoAnalisis_;
};

} // namespace norvik
