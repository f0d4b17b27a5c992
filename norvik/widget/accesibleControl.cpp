// SPDX-License-Identifier: MIT

#include "norvik/widget/accesibleControl.hpp"

#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

namespace norvik {

namespace {

class AccesibleControl final : public QAccessibleWidget {
public:
    explicit AccesibleControl(ControlNorvik& control) : QAccessibleWidget(&control, QAccessible::Grouping) {}

    int childCount() const override { return static_cast<int>(hijos().size()); }
    QAccessibleInterface* child(int indice) const override {
        return indice < 0 || indice >= childCount() ? nullptr
                                                    : QAccessible::queryAccessibleInterface(hijos()[indice]);
    }
    int indexOfChild(const QAccessibleInterface* hijo) const override {
        return hijo == nullptr ? -1 : static_cast<int>(hijos().indexOf(hijo->object()));
    }

private:
    QList<QObject*> hijos() const {
        QList<QObject*> todos;
        for (const char* nombre : {"Texto", "debugBox", "barraDeBusqueda"}) {
            const auto* control = static_cast<const QWidget*>(object());
            auto* elemento = control->findChild<QWidget*>(QLatin1String(nombre), Qt::FindDirectChildrenOnly);
            if (elemento != nullptr && !elemento->isHidden()) todos.append(elemento);
        }
        return todos;
    }
};

/// Qt owns what is made.
QAccessibleInterface* accesible(const QString& /*clase*/, QObject* objeto) {
    auto* const control = qobject_cast<ControlNorvik*>(objeto);
    return control == nullptr ? nullptr : &nuevo<AccesibleControl>(*control);
}

} // namespace

void simplificaParaLectores() {
    static const bool hecho = (QAccessible::installFactory(&accesible), true);
    static_cast<void>(hecho);
}

} // namespace norvik
