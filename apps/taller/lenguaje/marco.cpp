// SPDX-License-Identifier: MIT

#include "marco.hpp"

#include <QEvent>

namespace norvik::taller {

void Marco::pon(QWidget& dentro) {
    dentro_ = &dentro;
    dentro.setParent(this);
    dentro.setGeometry(rect());
    setFocusProxy(&dentro);
}

QSize Marco::sizeHint() const {
    return dentro_ ? dentro_->sizeHint() : QWidget::sizeHint();
}

QSize Marco::minimumSizeHint() const {
    return dentro_ ? dentro_->minimumSizeHint() : QWidget::minimumSizeHint();
}

bool Marco::event(QEvent* evento) {
    if (evento->type() == QEvent::LayoutRequest && minimumSizeHint().expandedTo(size()) != size())
        updateGeometry();
    return QWidget::event(evento);
}

void Marco::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    if (dentro_) dentro_->setGeometry(rect());
}

} // namespace norvik::taller
