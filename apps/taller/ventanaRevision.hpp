// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/revision.hpp"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <string_view>
#include <vector>

namespace norvik::taller {

/// What a review found in a language, conflicts with their stories, and one step to an exact method.
class VentanaRevision final : public QDialog {
    Q_OBJECT

public:
    explicit VentanaRevision(QWidget* padre = nullptr);

    /// The step is offered to a language of the classic method.
    void muestra(const QString& nombre, std::u16string_view especificacion,
                 const std::vector<Hallazgo>& hallazgos);
    QString texto() const { return hallazgos_.toPlainText(); }
    QPushButton& pasarALalr() { return pasar_; }

signals:
    void pideLalr();

private:
    QVBoxLayout columna_;
    QTextBrowser hallazgos_;
    QDialogButtonBox botones_;
    QPushButton pasar_;
};

} // namespace norvik::taller
