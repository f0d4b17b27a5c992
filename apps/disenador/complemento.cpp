// SPDX-License-Identifier: MIT

#include "complemento.hpp"

#include "dibujoNorvik.hpp"
#include "propiedadesPublicadas.hpp"

#include "norvik/control/descripciones.hpp"
#include "norvik/tools/ventanas.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QDesignerFormEditorInterface>
#include <QExtensionManager>

namespace norvik::disenador {

namespace {

/// A control as it is dropped on a form; what is said of its properties stands in the middle.
constexpr auto formulario = R"(<ui language="c++" displayname="Norvik">
 <widget class="%1" name="editor">
  <property name="geometry"><rect><x>0</x><y>0</y><width>300</width><height>200</height></rect></property>
 </widget>
 <customwidgets><customwidget>
  <class>%1</class><extends>QWidget</extends>
  <propertyspecifications>%2</propertyspecifications>
 </customwidget></customwidgets>
</ui>)";

/// The help of each property.
QString especificaciones() {
    QString todas;
    enPublicadas([&](const Propiedad& p) {
        const QString ayuda = aQString(p.ayuda).toHtmlEscaped();
        todas += QStringLiteral("<tooltip name=\"%1\">%2</tooltip>").arg(aQString(p.nombre), ayuda);
    });
    return todas;
}

} // namespace

QString Complemento::name() const {
    return QLatin1String(ControlNorvik::staticMetaObject.className());
}

QString Complemento::toolTip() const {
    return QStringLiteral(
        "Editor que conoce lenguajes: los colorea, los analiza y dice dónde están los errores");
}

QString Complemento::whatsThis() const {
    QString texto = QStringLiteral("<h3>Norvik</h3><p>%1.</p><dl>").arg(toolTip());
    for (const Descripcion& d : descripciones)
        texto += QStringLiteral("<dt><b>%1</b></dt><dd>%2</dd>").arg(aQString(d.miembro), aQString(d.texto));
    return texto + QStringLiteral("</dl>");
}

QIcon Complemento::icon() const {
    return dibujoNorvik();
}

QWidget* Complemento::createWidget(QWidget* padre) {
    return &nuevo<ControlNorvik>(padre);
}

void Complemento::initialize(QDesignerFormEditorInterface* editor) {
    if (isInitialized()) return;
    QExtensionManager* const gestor = editor->extensionManager();
    fabrica_ = &nuevo<FabricaExtensiones>(gestor);
    for (const QString& extension : FabricaExtensiones::extensiones())
        gestor->registerExtensions(fabrica_, extension);
}

QString Complemento::domXml() const {
    return QString::fromLatin1(formulario).arg(name(), especificaciones());
}

} // namespace norvik::disenador
