// SPDX-License-Identifier: MIT

#include "norvik/tools/general.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace norvik {

/// A field of the page and the property that it shows, under the property's own name.
struct General::Opcion {
    const char* elemento;
    const char* propiedad;
    std::u16string_view texto;
    bool esNumero = false;
};

std::span<const General::Opcion> General::opciones() {
    static constexpr auto todas = std::to_array<Opcion>({
        {"chkMuestraMensajesDeError", "MuestraMensajesDeError", u"Mostrar Mensajes de Error en los Análisis"},
        {"chkMarcarErrores", "MarcarErrores", u"Marcar línea cuando se produzca un error."},
        {"chkAutoNumero", "AutoNumero", u"Optimizar números al escribir."},
        {"chkAutoTAB", "AutoTAB", u"Tabular automáticamente."},
        {"txtEspaciosXTAB", "EspaciosXTAB", u"Número de espacios por Tab", true},
        {"chkAutoCorreccion", "AutoCorreccion", u"Opción de AutoCorrección"},
        {"chkLenguajeSensible", "LenguajeSensible", u"Lenguaje Sensible a Mayúsculas y Minúsculas."},
        {"txtMargenIzquierdo", "MargenIzquierdo", u"Tamaño de alineación izquierda:", true},
        {"chkLeftBorderVisible", "LeftBorderVisible", u"Mostrar Borde del Debugger"},
        {"chkBorde3D", "Borde3D", u"Mostrar Borde 3D"},
    });
    return todas;
}

General::General(SistemaQt& sistema, QWidget* padre)
    : PaginaPropiedades(sistema, QStringLiteral("General"), padre) {
    setObjectName(QStringLiteral("General"));
    dispone();
    setFocusProxy(findChild<QCheckBox*>(QLatin1String(opciones().front().elemento)));
}

void General::dispone() {
    auto& filas = nuevo<QFormLayout>(this);
    filas.addRow(&titular(QStringLiteral("Información de caracter genérico sobre el Norvik")));
    for (const Opcion& o : opciones()) {
        const QString texto = aQString(o.texto);
        if (o.esNumero) {
            auto& campo = nuevo<QLineEdit>(this);
            nombra(campo, o.elemento, texto);
            constexpr int cifras = 8;
            campo.setMaximumWidth(campo.fontMetrics().averageCharWidth() * cifras * 2);
            connect(&campo, &QLineEdit::textChanged, this, [this] { marca(); });
            filas.addRow(texto, &campo);
        } else {
            auto& casilla = nuevo<QCheckBox>(texto, this);
            nombra(casilla, o.elemento, texto);
            connect(&casilla, &QCheckBox::toggled, this, [this] { marca(); });
            filas.addRow(&casilla);
        }
    }
}

void General::lee(ControlNorvik& control) {
    for (const Opcion& o : opciones()) {
        const QVariant valor = control.property(o.propiedad);
        if (o.esNumero) {
            findChild<QLineEdit*>(QLatin1String(o.elemento))->setText(valor.toString());
        } else {
            findChild<QCheckBox*>(QLatin1String(o.elemento))->setChecked(valor.toBool());
        }
    }
}

bool General::escribe(ControlNorvik& control) {
    bool todo = true;
    for (const Opcion& o : opciones()) {
        if (this->control() == nullptr) return false; // who heard of the property before took it away
        if (o.esNumero) {
            todo = escribeNumero(control, o) && todo;
        } else {
            control.setProperty(o.propiedad, findChild<QCheckBox*>(QLatin1String(o.elemento))->isChecked());
        }
    }
    return todo;
}

bool General::escribeNumero(ControlNorvik& control, const Opcion& opcion) {
    auto& campo = *findChild<QLineEdit*>(QLatin1String(opcion.elemento));
    bool esNumero = false;
    const short valor = campo.text().trimmed().toShort(&esNumero);
    if (esNumero) {
        control.setProperty(opcion.propiedad, int{valor});
        return true;
    }
    const QString mensaje = QStringLiteral("%1\n«%2» no es un número entero entre -32768 y 32767.")
                                .arg(aQString(opcion.texto), campo.text());
    sistema().muestraMensaje({mensaje.toStdU16String(), u"General", Icono::Exclamacion});
    campo.setFocus();
    campo.selectAll();
    return false;
}

} // namespace norvik
