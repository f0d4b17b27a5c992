// SPDX-License-Identifier: MIT

#include "norvik/tools/general.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace norvik {

namespace {

QString nombreDe(const Propiedad& p) {
    return aQString(p.nombre);
}

QLatin1String prefijo(const Propiedad& p) {
    return QLatin1String(p.esNumero16() ? "txt" : "chk");
}

} // namespace

template <typename Campo>
Campo& General::campo(const Propiedad& p) const {
    return *findChild<Campo*>(prefijo(p) + nombreDe(p));
}

General::General(SistemaQt& sistema, QWidget* padre)
    : PaginaPropiedades(sistema, QStringLiteral("General"), padre) {
    setObjectName(QStringLiteral("General"));
    dispone();
    setFocusProxy(&campo<QWidget>(*opciones_.front()));
}

void General::dispone() {
    auto& filas = nuevo<QFormLayout>(this);
    filas.addRow(&titular(QStringLiteral("Información de caracter genérico sobre el Norvik")));
    for (const Propiedad* p : opciones_) {
        const QString texto = aQString(p->rotulo);
        const QByteArray elemento = (prefijo(*p) + nombreDe(*p)).toLatin1();
        if (p->esNumero16()) {
            auto& campo = nuevo<QLineEdit>(this);
            nombra(campo, elemento, texto);
            constexpr int cifras = 8;
            campo.setMaximumWidth(campo.fontMetrics().averageCharWidth() * cifras * 2);
            connect(&campo, &QLineEdit::textChanged, this, [this] { marca(); });
            filas.addRow(texto, &campo);
        } else {
            auto& casilla = nuevo<QCheckBox>(texto, this);
            nombra(casilla, elemento, texto);
            connect(&casilla, &QCheckBox::toggled, this, [this] { marca(); });
            filas.addRow(&casilla);
        }
    }
}

void General::lee(ControlNorvik& control) {
    for (const Propiedad* p : opciones_) {
        const QVariant valor = control.property(nombreDe(*p).toLatin1());
        if (p->esNumero16()) {
            campo<QLineEdit>(*p).setText(valor.toString());
        } else {
            campo<QCheckBox>(*p).setChecked(valor.toBool());
        }
    }
}

bool General::escribe(ControlNorvik& control) {
    bool todo = true;
    for (const Propiedad* p : opciones_) {
        if (this->control() == nullptr) return false; // who heard of the property before took it away
        if (p->esNumero16()) {
            todo = escribeNumero(control, *p) && todo;
        } else {
            control.setProperty(nombreDe(*p).toLatin1(), campo<QCheckBox>(*p).isChecked());
        }
    }
    return todo;
}

bool General::escribeNumero(ControlNorvik& control, const Propiedad& p) {
    auto& suyo = campo<QLineEdit>(p);
    bool esNumero = false;
    const short valor = suyo.text().trimmed().toShort(&esNumero);
    if (esNumero) {
        control.setProperty(nombreDe(p).toLatin1(), int{valor});
        return true;
    }
    const QString mensaje = QStringLiteral("%1\n«%2» no es un número entero entre -32768 y 32767.")
                                .arg(aQString(p.rotulo), suyo.text());
    sistema().muestraMensaje({mensaje.toStdU16String(), u"General", Icono::Exclamacion});
    suyo.setFocus();
    suyo.selectAll();
    return false;
}

} // namespace norvik
