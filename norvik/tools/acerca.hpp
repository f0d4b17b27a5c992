// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

namespace norvik {

/// The about box of the control: what it is, and its version.
class Acerca final : public QDialog {
    Q_OBJECT

public:
    explicit Acerca(QWidget* padre = nullptr);
};

} // namespace norvik
