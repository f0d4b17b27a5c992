// SPDX-License-Identifier: MIT

#pragma once

#include <QTextCharFormat>

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace norvik {

class CajaTextoQt;

/// Characters [inicio, fin) of the text shown in some way besides their colours.
struct Resalte {
    std::int32_t inicio = 0;
    std::int32_t fin = 0;
    QTextCharFormat formato;
};

// What the editor shows over the colours of the text: the line of the caret, what was found, pairs of
// brackets, diagnostics. Each is a layer, which is asked for what it has in the lines that are seen whenever
// those, the text or the caret are others; the editor is given that and nothing else, so that thousands of
// highlights cost as many as the window holds.

/// So much of a colour over another one.
QColor mezcla(const QColor& color, const QColor& fondo, double parte);

/// The owner of the editor's extra selections.
class Resaltes {
public:
    /// From the lowest to the highest.
    enum class Capa : std::uint8_t { Linea, Busqueda, Parejas, Diagnosticos };
    static constexpr std::size_t numeroDeCapas = 4;
    /// What a layer has in the characters [desde, hasta]; what it has elsewhere does no harm.
    using Fuente = std::function<std::vector<Resalte>(std::int32_t desde, std::int32_t hasta)>;

    explicit Resaltes(CajaTextoQt& caja) : caja_(caja) {}

    /// None takes the layer away.
    void pon(Capa capa, Fuente fuente);
    /// Asks all layers again, once what is being done is over.
    void refresca();
    /// To be called when the editor is up to date.
    void muestra() const;

private:
    CajaTextoQt& caja_;
    std::array<Fuente, numeroDeCapas> capas_;
};

} // namespace norvik
