#pragma once

#include <QIcon>
#include <QLatin1String>

namespace norvik {

/// The icon that the desktop's theme has under a name; where it has none, one of ours, drawn in the colour of
/// the text and sharp at any scale, or nothing when there is none either.
QIcon icono(QLatin1String tema);

} // namespace norvik
