// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

namespace norvik::taller {

/// Holds one widget, in all of its size. What a panel would like to be changes with its words, and a window
/// that is laid out anew for each takes half of a key's time: here only what does not fit is told.
class Marco final : public QWidget {
public:
    explicit Marco(QWidget* padre) : QWidget(padre) {}
    /// It stays its owner's, who may take it away first.
    void pon(QWidget& dentro);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    QPointer<QWidget> dentro_;
};

} // namespace norvik::taller
