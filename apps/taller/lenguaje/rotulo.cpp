// SPDX-License-Identifier: MIT

#include "rotulo.hpp"

namespace norvik::taller {

Rotulo::Rotulo(QWidget* padre) : QLabel(padre) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QSize Rotulo::minimumSizeHint() const {
    constexpr int caracteres = 12;
    return {fontMetrics().averageCharWidth() * caracteres, fontMetrics().lineSpacing()};
}

} // namespace norvik::taller
