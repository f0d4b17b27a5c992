// SPDX-License-Identifier: MIT

#include "edicionPropiedades.hpp"

#include "propiedadesPublicadas.hpp"

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowCursorInterface>

namespace norvik::disenador {

namespace {

ControlNorvik& copiada(const ControlNorvik& control, ControlNorvik& copia) {
    enPublicadas([&](const Propiedad& p) { copia.setProperty(nombreDe(p), control.property(nombreDe(p))); });
    return copia;
}

/// A form's file is XML, in which most control characters have no place: with one of them it could not be
/// read again. Blanks take theirs. True when there were any.
bool blanquea(QString& texto) {
    bool habia = false;
    for (QChar& c : texto) {
        const char16_t unidad = c.unicode();
        if (unidad == u'\t' || unidad == u'\n' || unidad == u'\r') continue;
        if (unidad >= u' ' && unidad < 0xFFFE) continue;
        c = u' ';
        habia = true;
    }
    return habia;
}

} // namespace

EdicionPropiedades::EdicionPropiedades(ControlNorvik& control, QDesignerFormWindowInterface& formulario)
    : QObject(formulario.core()->topLevel()), control_(&control),
      ventana_(
          copiada(control, copia_), control.objectName(), sistema_,
          [this](const auto&... textos) {
              return control_.isNull() ? Destino::Descartar : preguntaDestino(textos..., &ventana_);
          },
          VentanaPropiedades::Pagina::General, formulario.core()->topLevel()) {
    anotados_ = valores();
    connect(&ventana_, &VentanaPropiedades::aplicado, this, &EdicionPropiedades::vuelca);
    connect(&ventana_, &QDialog::finished, this, [this] {
        vuelca();
        deleteLater();
    });
    connect(&control, &QObject::destroyed, this, &EdicionPropiedades::abandona);
    // One that was deleted is kept, for undoing that.
    connect(&formulario, &QDesignerFormWindowInterface::widgetUnmanaged, this,
            [this](const QWidget* quitado) {
                if (quitado == control_) abandona();
            });
}

void EdicionPropiedades::muestra() {
    ventana_.open();
    ventana_.raise();
    ventana_.activateWindow();
}

QVariantMap EdicionPropiedades::valores() const {
    QVariantMap todos;
    enPublicadas([&](const Propiedad& p) { todos.insert(aQString(p.nombre), copia_.property(nombreDe(p))); });
    return todos;
}

void EdicionPropiedades::quitaImposibles() {
    bool habia = false;
    enPublicadas([&](const Propiedad& p) {
        QString texto = copia_.property(nombreDe(p)).toString();
        if (!p.esTexto() || !blanquea(texto)) return;
        copia_.setProperty(nombreDe(p), texto);
        habia = true;
    });
    if (habia)
        sistema_.muestraMensaje(
            {u"Un formulario no puede guardar caracteres de control: en su lugar hay ahora "
             u"espacios.",
             u"Norvik", Icono::Exclamacion});
}

void EdicionPropiedades::vuelca() {
    auto* const formulario = QDesignerFormWindowInterface::findFormWindow(control_);
    quitaImposibles();
    const QVariantMap ahora = valores();
    if (formulario == nullptr || ahora == anotados_) return;
    formulario->beginCommand(QStringLiteral("Propiedades de '%1'").arg(control_->objectName()));
    for (auto p = ahora.cbegin(); p != ahora.cend(); ++p)
        if (p.value() != anotados_.value(p.key()))
            formulario->cursor()->setWidgetProperty(control_, p.key(), p.value());
    formulario->endCommand();
    anotados_ = ahora;
}

/// A page that is at work stays until it is done, and changes nothing any more.
void EdicionPropiedades::abandona() {
    control_ = nullptr;
    ventana_.reject();
}

} // namespace norvik::disenador
