// SPDX-License-Identifier: MIT

// Windows' readers say what raises an alert. The bridge to those of Linux passes no alerts on; what they say
// unasked is a notification that begins to show.
#include "norvik/platform/qt/avisoALectores.hpp"

#include "norvik/platform/qt/nuevo.hpp"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace norvik {

namespace {

constexpr const char* esAviso = "norvikEsAviso";

class Aviso final : public QAccessibleWidget {
public:
    explicit Aviso(QWidget& elemento) : QAccessibleWidget(&elemento, QAccessible::Notification) {}
};

/// Qt owns what is made.
QAccessibleInterface* accesible(const QString& /*clase*/, QObject* objeto) {
    auto* const elemento = qobject_cast<QWidget*>(objeto);
    if (elemento == nullptr || !elemento->property(esAviso).toBool()) return nullptr;
    return &nuevo<Aviso>(*elemento);
}

} // namespace

void hazAviso(QWidget& elemento) {
    static const bool hecho = (QAccessible::installFactory(&accesible), true);
    static_cast<void>(hecho);
    elemento.setProperty(esAviso, true);
}

namespace {

void suceda(QWidget& elemento, QAccessible::Event suceso) {
    QAccessibleEvent aviso(&elemento, suceso);
    QAccessible::updateAccessibility(&aviso);
}

} // namespace

void avisaALectores(QWidget& elemento, const QString& palabras) {
    elemento.setAccessibleName(palabras);
    suceda(elemento, QAccessible::Alert);
    suceda(elemento, QAccessible::ObjectShow);
}

void apareceALectores(QWidget& elemento, const QString& palabras, QWidget& marco) {
    elemento.setAccessibleName(palabras);
    marco.show();
    suceda(elemento, QAccessible::Alert);
}

} // namespace norvik
