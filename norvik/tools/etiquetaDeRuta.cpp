// SPDX-License-Identifier: MIT

#include "norvik/tools/etiquetaDeRuta.hpp"

#include <QPainter>
#include <QStyle>

namespace norvik {

void EtiquetaDeRuta::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pintor(this);
    const QString ruta = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    style()->drawItemText(&pintor, contentsRect(), Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(),
                          ruta, foregroundRole());
}

} // namespace norvik
