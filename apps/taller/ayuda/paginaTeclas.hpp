// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWidget>

#include <vector>

namespace norvik::taller {

/// The keys of the windows, made from what the windows have when it is shown.
class PaginaTeclas final : public QWidget {
    Q_OBJECT

public:
    explicit PaginaTeclas(QWidget* padre);

    void muestra(const std::vector<QMainWindow*>& ventanas);
    QTreeWidget& lista() { return lista_; }

private:
    QVBoxLayout columna_;
    QTreeWidget lista_;
};

} // namespace norvik::taller
