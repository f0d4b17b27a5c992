// SPDX-License-Identifier: MIT

#include "paginaTeclas.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QAction>
#include <QDockWidget>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace norvik::taller {

namespace {

/// A caption without the signs that its place in a menu gives it.
QString llano(QString texto) {
    return texto.remove(u'&').remove(u'…');
}

QTreeWidgetItem& grupo(QTreeWidgetItem& ventana, const QString& titulo) {
    for (int i = 0; i < ventana.childCount(); ++i)
        if (ventana.child(i)->text(0) == titulo) return *ventana.child(i);
    auto& nuevo = norvik::nuevo<QTreeWidgetItem>(&ventana);
    nuevo.setText(0, titulo);
    return nuevo;
}

void anota(QTreeWidgetItem& ventana, const QString& titulo, const QAction& accion) {
    QStringList teclas;
    for (const QKeySequence& t : accion.shortcuts()) teclas += t.toString(QKeySequence::NativeText);
    auto& fila = nuevo<QTreeWidgetItem>(&grupo(ventana, titulo));
    fila.setText(0, llano(accion.text()));
    fila.setText(1, teclas.join(QStringLiteral(", ")));
}

/// In the order of the menus; then those that no menu has, under the panel that they are of.
class Recolector {
public:
    explicit Recolector(QTreeWidgetItem& fila) : fila_(fila) {}

    void menus(const QMainWindow& ventana) {
        for (const QAction* const cabeza : ventana.menuBar()->actions()) {
            if (cabeza->menu() == nullptr) continue;
            emit cabeza->menu()->aboutToShow(); // some are filled only then
            for (const QAction* const accion : cabeza->menu()->actions())
                toma(llano(cabeza->text()), *accion);
        }
    }
    void sueltas(const QMainWindow& ventana) {
        for (const auto* const panel : ventana.findChildren<QDockWidget*>())
            for (const auto* const accion : panel->findChildren<QAction*>())
                toma(panel->windowTitle(), *accion);
    }

private:
    void toma(const QString& titulo, const QAction& accion) {
        if (accion.shortcut().isEmpty() || accion.text().isEmpty() || vistas_.contains(&accion)) return;
        vistas_.insert(&accion);
        anota(fila_, titulo, accion);
    }

    QTreeWidgetItem& fila_;
    QSet<const QAction*> vistas_;
};

} // namespace

PaginaTeclas::PaginaTeclas(QWidget* padre) : QWidget(padre, Qt::Window) {
    setObjectName(QStringLiteral("teclas"));
    setWindowTitle(QStringLiteral("Teclas — Norvik"));
    mide(*this, {560, 680});
    lista_.setColumnCount(2);
    lista_.setHeaderLabels({QStringLiteral("Orden"), QStringLiteral("Teclas")});
    lista_.setAccessibleName(QStringLiteral("Teclas"));
    lista_.setAlternatingRowColors(true);
    columna_.addWidget(&lista_);
    setLayout(&columna_);
    auto& cierra = nuevo<QAction>(this);
    cierra.setShortcut(QKeySequence(Qt::Key_Escape));
    connect(&cierra, &QAction::triggered, this, &QWidget::close);
    addAction(&cierra);
}

void PaginaTeclas::muestra(const std::vector<QMainWindow*>& ventanas) {
    lista_.clear();
    for (const QMainWindow* const ventana : ventanas) {
        auto& fila = nuevo<QTreeWidgetItem>(&lista_);
        fila.setText(0, ventana->accessibleName());
        Recolector recolector(fila);
        recolector.menus(*ventana);
        recolector.sueltas(*ventana);
    }
    lista_.expandAll();
    lista_.header()->resizeSections(QHeaderView::ResizeToContents);
    show();
    raise();
    activateWindow();
    lista_.setFocus();
}

} // namespace norvik::taller
