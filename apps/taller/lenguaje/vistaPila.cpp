// SPDX-License-Identifier: MIT

#include "vistaPila.hpp"

#include "palabrasPaso.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>

namespace norvik::taller {

namespace {

enum ColumnaDePila : int { Simbolo, Estado, Numero, Texto };

constexpr std::size_t maximoTexto = 80;

} // namespace

VistaPila::VistaPila(QWidget* padre) : QTreeWidget(padre) {
    setObjectName(QStringLiteral("pila"));
    setAccessibleName(QStringLiteral("Pila y árboles parciales"));
    setHeaderLabels({QStringLiteral("Símbolo"), QStringLiteral("Estado"), QStringLiteral("Regla"),
                     QStringLiteral("Texto")});
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setResizeContentsPrecision(0); // the rows in view count
    header()->setStretchLastSection(true);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* fila) { sinFallos([&] { alAbrir(fila); }); });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem* fila) { sinFallos([&] { alCerrar(fila); }); });
    connect(this, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* fila) {
        const bool esMas = fila != nullptr && fila->data(ColumnaDePila::Simbolo, Qt::UserRole).isNull();
        // The rows are made anew once Qt is done with this one.
        if (esMas) QTimer::singleShot(0, this, [this] { sinFallos([this] { muestraMas(); }); });
    });
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* fila) {
        sinFallos([&] {
            if (fila != nullptr && nodoDe(*fila) != 0) emit elegida(nodoDe(*fila));
        });
    });
}

/// The chosen row stays the chosen one.
void VistaPila::muestraMas() {
    if (pelicula_ == nullptr) return;
    const int filas = topLevelItemCount();
    entradas_ += maximoEntradas;
    muestra(*pelicula_, momento_);
    const QSignalBlocker callada(this);
    setCurrentItem(topLevelItem(std::max(0, topLevelItemCount() - filas)));
}

void VistaPila::vacia() {
    const QSignalBlocker callada(this);
    pelicula_ = nullptr;
    clear();
    cerrados_.clear();
}

void VistaPila::muestra(const Pelicula& pelicula, std::size_t momento) {
    const QSignalBlocker callada(this);
    if (pelicula_ != &pelicula) {
        cerrados_.clear();
        entradas_ = maximoEntradas;
    }
    pelicula_ = &pelicula;
    momento_ = momento;
    clear();
    const auto pila = pelicula.pila(momento);
    const AccionLR accion = pelicula.accion(momento);
    const std::size_t altas = std::min(pila.size(), entradas_);
    if (const std::size_t omitidas = pila.size() - altas; omitidas > 0)
        addTopLevelItem(&nuevo<QTreeWidgetItem>(QStringList(
            QStringLiteral("… %1 entradas más abajo (Intro o doble clic enseña más)").arg(omitidas))));
    // What the next reduction takes off.
    const std::size_t asa = accion.tipo == AccionLR::Tipo::Reduce
                                ? pelicula.hijos(static_cast<Pelicula::Nodo>(momento + 1)).size()
                                : 0;
    QList<QTreeWidgetItem*> filas;
    for (std::size_t i = pila.size() - altas; i < pila.size(); ++i) {
        QTreeWidgetItem& fila = hazFila(pila[i].nodo);
        fila.setText(ColumnaDePila::Estado, QString::number(pila[i].estado));
        if (i + asa >= pila.size()) {
            QFont letra = font();
            letra.setBold(true);
            fila.setFont(ColumnaDePila::Simbolo, letra);
            fila.setToolTip(ColumnaDePila::Simbolo,
                            QStringLiteral("La reducción siguiente lo quita de la pila"));
        }
        addTopLevelItem(&fila);
        filas.prepend(&fila);
    }
    abre(filas);
    setCurrentItem(topLevelItem(topLevelItemCount() - 1));
}

QTreeWidgetItem& VistaPila::hazFila(Pelicula::Nodo nodo) const {
    auto& fila = nuevo<QTreeWidgetItem>();
    fila.setData(ColumnaDePila::Simbolo, Qt::UserRole, nodo);
    if (nodo == 0) {
        fila.setText(ColumnaDePila::Simbolo, QStringLiteral("(fondo)"));
        return fila;
    }
    fila.setText(ColumnaDePila::Simbolo, aQString(pelicula_->simbolo(nodo)));
    if (const std::int16_t regla = pelicula_->regla(nodo); regla != 0)
        fila.setText(ColumnaDePila::Numero, QString::number(regla));
    fila.setText(ColumnaDePila::Texto, enUnaLinea(pelicula_->texto(nodo), maximoTexto));
    if (!pelicula_->hijos(nodo).empty()) fila.setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return fila;
}

void VistaPila::hazHijos(QTreeWidgetItem& fila) {
    const Pelicula::Nodo nodo = nodoDe(fila);
    if (nodo == 0 || pelicula_ == nullptr || fila.childCount() > 0) return;
    QList<QTreeWidgetItem*> hijos;
    for (const Pelicula::Nodo hijo : pelicula_->hijos(nodo)) hijos.append(&hazFila(hijo));
    fila.addChildren(hijos);
}

// Level by level, from what was pushed last.
void VistaPila::abre(QList<QTreeWidgetItem*> filas) {
    for (qsizetype i = 0; i < filas.size() && filas.size() < maximoFilas; ++i) {
        QTreeWidgetItem& fila = *filas[i];
        if (cerrados_.contains(nodoDe(fila))) continue;
        hazHijos(fila);
        fila.setExpanded(true);
        for (int hijo = 0; hijo < fila.childCount(); ++hijo) filas.append(fila.child(hijo));
    }
}

Pelicula::Nodo VistaPila::nodoDe(const QTreeWidgetItem& fila) {
    return fila.data(ColumnaDePila::Simbolo, Qt::UserRole).toUInt();
}

void VistaPila::alAbrir(QTreeWidgetItem* fila) {
    cerrados_.erase(nodoDe(*fila));
    hazHijos(*fila);
}

void VistaPila::alCerrar(QTreeWidgetItem* fila) {
    cerrados_.insert(nodoDe(*fila));
}

void VistaPila::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Asterisk) QTreeWidget::keyPressEvent(evento);
}

} // namespace norvik::taller
