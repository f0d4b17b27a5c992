// SPDX-License-Identifier: MIT

#pragma once

#include "propiedadesPublicadas.hpp"

#include "norvik/widget/controlNorvik.hpp"

#include <QDesignerPropertySheetExtension>
#include <QObject>
#include <QVariant>

namespace norvik::disenador {

/// The properties of a control for the property editor: those of any widget, with the control's own in
/// groups. A number that the control would refuse is brought inside its bounds. The texts of the language are
/// bytes here, and so in the form's file, since a string there is one to be translated; those of many lines,
/// which end as the file's own do, are left to the property pages.
class HojaPropiedades final : public QObject, public QDesignerPropertySheetExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerPropertySheetExtension)

public:
    /// `corriente` is the designer's own, and lives as long as its control.
    HojaPropiedades(const ControlNorvik& control, QDesignerPropertySheetExtension& corriente, QObject* padre);

    int count() const override { return corriente_.count(); }
    int indexOf(const QString& nombre) const override { return corriente_.indexOf(nombre); }
    QString propertyName(int indice) const override { return corriente_.propertyName(indice); }
    QString propertyGroup(int indice) const override { return corriente_.propertyGroup(indice); }
    void setPropertyGroup(int indice, const QString& grupo) override {
        corriente_.setPropertyGroup(indice, grupo);
    }
    bool hasReset(int indice) const override { return corriente_.hasReset(indice); }
    bool reset(int indice) override { return corriente_.reset(indice); }
    bool isVisible(int indice) const override {
        const Propiedad* const p = publicada(propertyName(indice));
        return (p == nullptr || !p->variasLineas) && corriente_.isVisible(indice);
    }
    void setVisible(int indice, bool visible) override { corriente_.setVisible(indice, visible); }
    bool isAttribute(int indice) const override { return corriente_.isAttribute(indice); }
    void setAttribute(int indice, bool atributo) override { corriente_.setAttribute(indice, atributo); }
    QVariant property(int indice) const override;
    void setProperty(int indice, const QVariant& valor) override;
    bool isChanged(int indice) const override { return corriente_.isChanged(indice); }
    void setChanged(int indice, bool cambiada) override { corriente_.setChanged(indice, cambiada); }
    bool isEnabled(int indice) const override { return corriente_.isEnabled(indice); }

private:
    const ControlNorvik& control_;
    QDesignerPropertySheetExtension& corriente_;
};

} // namespace norvik::disenador
