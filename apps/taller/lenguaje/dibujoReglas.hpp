// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramaticaLR.hpp"

#include <QFont>
#include <QGraphicsScene>
#include <QPalette>

#include <cstdint>

namespace norvik::taller {

/// Draws the rules as tracks, one below the other, in the colours of a palette into an empty scene: for each
/// variable, in the order of its first rule, a way through each of its rules, tokens in round boxes and
/// variables in square ones. Their pieces know their rule by `data(0)`; the one of number `elegida` stands
/// out.
void pintaReglas(const GramaticaLR& gramatica, const QFont& letra, const QPalette& colores,
                 std::int16_t elegida, QGraphicsScene& escena);
/// Of a drawing with the same letters: another rule stands out.
void realzaRegla(std::int16_t regla, const QFont& letra, QGraphicsScene& escena);

} // namespace norvik::taller
