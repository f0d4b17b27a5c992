// SPDX-License-Identifier: MIT

#pragma once

#include "ayuda/ayudaEnModal.hpp"

#include "norvik/platform/qt/sistemaQt.hpp"

#include <QSettings>

namespace norvik::taller {

/// Modal windows come up where, and as large as, they were left: each by its name, in the user's settings.
/// The manual is a key away in them, too.
class SistemaTaller final : public SistemaQt {
public:
    explicit SistemaTaller(QSettings& ajustes) : ajustes_(ajustes) {}

    void muestraModal(QWidget& ventana) override {
        const QString clave = QStringLiteral("ventanas/") + ventana.objectName();
        const QPointer<QWidget> viva(&ventana);
        ponManual(ventana);
        ventana.restoreGeometry(ajustes_.value(clave).toByteArray());
        SistemaQt::muestraModal(ventana);
        if (!viva.isNull()) ajustes_.setValue(clave, ventana.saveGeometry());
    }

private:
    QSettings& ajustes_;
};

} // namespace norvik::taller
