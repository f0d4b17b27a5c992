// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace norvik {

/// The window above which a box stands: the modal one on top, else the one that is used. Just after a box was
/// closed none is until the window manager says so: then it is the one of before, as long as it is visible.
QWidget* ventanaEnUso();

} // namespace norvik
