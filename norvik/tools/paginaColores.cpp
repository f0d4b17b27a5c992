// SPDX-License-Identifier: MIT

#include "norvik/tools/paginaColores.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvik {

namespace {

struct ColorConNombre {
    QRgb color;
    std::u16string_view nombre;
};

constexpr std::array coloresDePaleta = {
    ColorConNombre{0x000000, u"Negro"},    ColorConNombre{0x800000, u"Granate"},
    ColorConNombre{0x008000, u"Verde"},    ColorConNombre{0x808000, u"Oliva"},
    ColorConNombre{0x000080, u"Marino"},   ColorConNombre{0x800080, u"Púrpura"},
    ColorConNombre{0x008080, u"Turquesa"}, ColorConNombre{0x808080, u"Gris"},
    ColorConNombre{0xC0C0C0, u"Plata"},    ColorConNombre{0xFF0000, u"Rojo"},
    ColorConNombre{0x00FF00, u"Lima"},     ColorConNombre{0xFFFF00, u"Amarillo"},
    ColorConNombre{0x0000FF, u"Azul"},     ColorConNombre{0xFF00FF, u"Fucsia"},
    ColorConNombre{0x00FFFF, u"Cian"},     ColorConNombre{0xFFFFFF, u"Blanco"}};

constexpr int columnasDePaleta = 8;

QSize medidaDeMuestra(const QWidget& en) {
    const int lado = en.fontMetrics().height();
    return {lado, lado};
}

/// A sample of a colour, with an edge that shows on any background.
QIcon muestra(const QColor& color, const QWidget& en) {
    const QRect entera(QPoint(), medidaDeMuestra(en));
    QPixmap imagen(entera.size() * en.devicePixelRatioF());
    imagen.setDevicePixelRatio(en.devicePixelRatioF());
    imagen.fill(en.palette().color(QPalette::Mid));
    QPainter(&imagen).fillRect(entera.adjusted(1, 1, -1, -1),
                               color.isValid() ? color : en.palette().color(QPalette::Base));
    return imagen;
}

QColor colorDe(const QListWidgetItem& propiedad) {
    return propiedad.data(Qt::UserRole).value<QColor>();
}

} // namespace

PaginaColores::PaginaColores(SistemaQt& sistema, QWidget* padre)
    : PaginaPropiedades(sistema, QStringLiteral("Colores"), padre) {
    setObjectName(QStringLiteral("StandardColor"));
    nombra(propiedades_, "propiedades", QStringLiteral("Colores del Norvik"));
    propiedades_.setIconSize(medidaDeMuestra(*this));
    for (const Propiedad* p : colores_)
        propiedades_.addItem(QStringLiteral("%1 (%2)").arg(aQString(p->nombre), aQString(p->rotulo)));
    auto& columna = nuevo<QVBoxLayout>(this);
    columna.addWidget(&titular(QStringLiteral("Colores de los elementos del lenguaje")));
    columna.addWidget(&propiedades_);
    auto& marco = nuevo<QGroupBox>(QStringLiteral("Color elegido"), this);
    auto& dentro = nuevo<QVBoxLayout>(&marco);
    dentro.addLayout(&paleta());
    dentro.addLayout(&partes());
    columna.addWidget(&marco);
    connect(&propiedades_, &QListWidget::currentRowChanged, this, [this] { muestraElegida(); });
    propiedades_.setCurrentRow(0);
    setFocusProxy(&propiedades_);
}

QLayout& PaginaColores::paleta() {
    auto& paleta = nuevo<QGridLayout>();
    int i = 0;
    for (const ColorConNombre& c : coloresDePaleta) {
        auto& boton = nuevo<QToolButton>(this);
        nombra(boton, "", aQString(c.nombre));
        boton.setToolTip(boton.accessibleName());
        boton.setIcon(muestra(QColor(c.color), *this));
        boton.setIconSize(medidaDeMuestra(*this));
        boton.setFocusPolicy(Qt::StrongFocus);
        connect(&boton, &QToolButton::clicked, this, [this, &c] { eligeColor(QColor(c.color)); });
        paleta.addWidget(&boton, i / columnasDePaleta, i % columnasDePaleta);
        ++i;
    }
    paleta.setColumnStretch(columnasDePaleta, 1);
    return paleta;
}

QLayout& PaginaColores::partes() {
    auto& filas = nuevo<QFormLayout>();
    const std::array nombres = {QStringLiteral("&Rojo:"), QStringLiteral("&Verde:"),
                                QStringLiteral("A&zul:")};
    for (std::size_t i = 0; i < partes_.size(); ++i) {
        partes_[i].setRange(0, 255);
        nombra(partes_[i], "", QString(nombres[i]).remove(u'&').chopped(1));
        connect(&partes_[i], &QSpinBox::valueChanged, this,
                [this] { eligeColor(QColor(partes_[0].value(), partes_[1].value(), partes_[2].value())); });
        filas.addRow(nombres[i], &partes_[i]);
    }
    return filas;
}

void PaginaColores::ponColor(QListWidgetItem& propiedad, const QColor& color) {
    propiedad.setData(Qt::UserRole, color);
    propiedad.setIcon(muestra(color, *this));
    if (&propiedad == propiedades_.currentItem()) muestraElegida();
}

void PaginaColores::eligeColor(const QColor& color) {
    if (color == colorDe(*propiedades_.currentItem())) return;
    ponColor(*propiedades_.currentItem(), color);
    marca();
}

void PaginaColores::muestraElegida() {
    const QColor color = colorDe(*propiedades_.currentItem());
    const std::array valores = {color.red(), color.green(), color.blue()};
    for (std::size_t i = 0; i < partes_.size(); ++i) {
        const QSignalBlocker callado(partes_[i]);
        partes_[i].setValue(valores[i]);
    }
}

QByteArray PaginaColores::propiedad(int fila) const {
    return aQString(colores_[static_cast<std::size_t>(fila)]->nombre).toLatin1();
}

void PaginaColores::lee(ControlNorvik& control) {
    for (int i = 0; i < propiedades_.count(); ++i)
        ponColor(*propiedades_.item(i), control.property(propiedad(i)).value<QColor>());
}

bool PaginaColores::escribe(ControlNorvik& control) {
    for (int i = 0; i < propiedades_.count(); ++i) {
        const QColor color = colorDe(*propiedades_.item(i));
        if (color == control.property(propiedad(i)).value<QColor>())
            continue; // more than its bytes may be there
        control.setProperty(propiedad(i), color);
        if (this->control() == nullptr) return false; // who heard of it took it away
    }
    return true;
}

} // namespace norvik
