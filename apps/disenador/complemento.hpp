// SPDX-License-Identifier: MIT

#pragma once

#include "fabricaExtensiones.hpp"

#include <QObject>
#include <QPointer>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace norvik::disenador {

/// What Qt Designer loads: the control as an entry of its widget box. Forms are also read with it at run
/// time, where no designer is.
class Complemento final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override;
    QString group() const override { return QStringLiteral("Norvik"); }
    QString toolTip() const override;
    /// The published descriptions of the control's operations.
    QString whatsThis() const override;
    QString includeFile() const override { return QStringLiteral("<norvik/widget/controlNorvik.hpp>"); }
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* padre) override;
    bool isInitialized() const override { return !fabrica_.isNull(); }
    void initialize(QDesignerFormEditorInterface* editor) override;
    QString domXml() const override;

private:
    QPointer<FabricaExtensiones> fabrica_; ///< of the designer, and gone with it
};

} // namespace norvik::disenador
