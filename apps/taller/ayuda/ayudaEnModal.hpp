// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace norvik::taller {

/// Gives a modal window F1, which the menus below it cannot be asked for: the manual, by what the window is.
/// It belongs to the window, or it would take no input.
void ponManual(QWidget& modal);

} // namespace norvik::taller
