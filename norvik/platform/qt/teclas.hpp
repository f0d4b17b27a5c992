// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <QMouseEvent>

#include <cstdint>

namespace norvik {

/// Virtual-key code of a key event, by the key's meaning. Characters whose key depends on the keyboard's
/// layout share one code; keys that neither are known nor write anything have 0.
std::int16_t codigoDeTecla(const QKeyEvent& evento);
/// The key of a code, for those that write no character; `Qt::Key_unknown` for others.
Qt::Key teclaDeCodigo(std::int16_t codigo);

/// Shift, control and alt as bits; at a key event of one of them, as they are after it.
std::int16_t mascaraDe(Qt::KeyboardModifiers teclas);
std::int16_t mascaraDe(const QKeyEvent& evento);

/// 1 left, 2 right, 4 middle; of a move, the sum of those held.
std::int16_t botonDe(const QMouseEvent& evento);

} // namespace norvik
