// SPDX-License-Identifier: MIT

#include "rotulo.hpp"

#include <QEvent>

#include <algorithm>
#include <utility>

namespace norvik::taller {

Rotulo::Rotulo(QWidget* padre) : QLabel(padre) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QSize Rotulo::minimumSizeHint() const {
    constexpr int caracteres = 12;
    return {fontMetrics().averageCharWidth() * caracteres, fontMetrics().lineSpacing()};
}

int Rotulo::heightForWidth(int ancho) const {
    constexpr int lineas = 4; // that are kept
    const bool esOtro = std::exchange(ancho_, ancho) != ancho;
    if (esOtro) reserva_ = 0;
    if (esOtro || medido_ != text()) {
        medido_ = text();
        alto_ = QLabel::heightForWidth(ancho);
        reserva_ = std::max(reserva_, std::min(alto_, lineas * fontMetrics().lineSpacing()));
    }
    return std::max(alto_, reserva_);
}

void Rotulo::changeEvent(QEvent* evento) {
    QLabel::changeEvent(evento);
    if (evento->type() == QEvent::FontChange) ancho_ = sinAncho;
}

} // namespace norvik::taller
