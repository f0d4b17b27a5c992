// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

namespace norvik::disenador {

/// The control in a small picture: a text with its left border, and its tree.
QIcon dibujoNorvik();

} // namespace norvik::disenador
