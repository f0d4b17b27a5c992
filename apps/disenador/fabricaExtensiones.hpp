// SPDX-License-Identifier: MIT

#pragma once

#include <QExtensionFactory>
#include <QStringList>

namespace norvik::disenador {

/// Makes, for each control on a form, what Qt Designer asks it for: its context menu, and its properties as
/// the property editor shows them.
class FabricaExtensiones final : public QExtensionFactory {
    Q_OBJECT

public:
    explicit FabricaExtensiones(QExtensionManager* gestor) : QExtensionFactory(gestor) {}

    /// The identifiers of what it makes.
    static QStringList extensiones();

protected:
    QObject* createExtension(QObject* objeto, const QString& iid, QObject* padre) const override;

private:
    mutable bool buscando_ = false; ///< asks the other factories
};

} // namespace norvik::disenador
