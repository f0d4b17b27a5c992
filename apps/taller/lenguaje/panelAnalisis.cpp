// SPDX-License-Identifier: MIT

#include "panelAnalisis.hpp"

#include "correspondencias.hpp"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <deque>
#include <utility>
#include <vector>

namespace norvik::taller {

PanelAnalisis::PanelAnalisis(QWidget* padre)
    : Panel(QStringLiteral("arbol"), QStringLiteral("Árbol"), padre),
      enUnaFila_(QStringLiteral("&Cadenas de reglas en una fila")) {
    compone();
    connect(&enUnaFila_, &QCheckBox::toggled, this, [this] { protege([this] { muestra(); }); });
    const auto elegida = [this](const QModelIndex& indice) { protege([&] { elige(indice); }); };
    connect(&vista_, &QTreeView::clicked, this, elegida);
    connect(&vista_, &QTreeView::activated, this, elegida);
    connect(vista_.selectionModel(), &QItemSelectionModel::currentChanged, this, elegida);
}

void PanelAnalisis::compone() {
    enUnaFila_.setChecked(true);
    enUnaFila_.setToolTip(
        QStringLiteral("E › T › F ocupa una sola fila, cuando cada una viene de una regla de un "
                       "símbolo"));
    camino_.setTextFormat(Qt::PlainText);
    camino_.setWordWrap(true);
    camino_.setAccessibleName(QStringLiteral("Camino desde la raíz"));
    camino_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    vista_.setAccessibleName(QStringLiteral("Árbol sintáctico del texto"));
    vista_.setUniformRowHeights(true);
    vista_.setAlternatingRowColors(true);
    vista_.setModel(&modelo_);
    vista_.setIndentation(fontMetrics().horizontalAdvance(u'x') * 2);
    vista_.header()->setSectionResizeMode(ModeloAnalisis::Simbolo, QHeaderView::ResizeToContents);
    vista_.header()->setResizeContentsPrecision(0); // the rows in view count
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.addWidget(&enUnaFila_);
    columna_.addWidget(&vista_, 1);
    columna_.addWidget(&camino_);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&vista_);
    setWidget(&centro_);
}

void PanelAnalisis::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    estudio_ = std::move(estudio);
    muestra();
}

void PanelAnalisis::muestra() {
    const QScopedValueRollback<bool> callado(callado_, true);
    modelo_.muestra(estudio_, enUnaFila_.isChecked() ? Cadenas::EnUnaFila : Cadenas::Enteras);
    abre();
    camino_.setText(modelo_.rowCount() > 0 ? QString() : QStringLiteral("El texto no tiene árbol."));
}

/// The upper rows, as many as a person looks over.
void PanelAnalisis::abre() {
    constexpr int filas = 200;
    std::deque<QModelIndex> pendientes{modelo_.index(0, 0)};
    for (int vistas = 0; vistas < filas && !pendientes.empty(); ++vistas) {
        const QModelIndex indice = pendientes.front();
        pendientes.pop_front();
        vista_.expand(indice);
        for (int i = 0; indice.isValid() && i < modelo_.rowCount(indice); ++i)
            pendientes.push_back(modelo_.index(i, 0, indice));
    }
}

void PanelAnalisis::selecciona(const Eleccion& eleccion) {
    if (!estudio_ || !isVisible()) return;
    const auto nodo = nodoDe(*estudio_, eleccion);
    if (!nodo) return;
    const QScopedValueRollback<bool> callado(callado_, true);
    const QModelIndex indice = modelo_.indiceDe(*nodo);
    vista_.setCurrentIndex(alAlcance(indice));
    sigue(indice);
}

/// A row, or the last one above it that a view opens in no time: of a list as long as its text the rows are
/// as deep, and each that is opened costs as much as there are.
QModelIndex PanelAnalisis::alAlcance(const QModelIndex& indice) const {
    constexpr std::size_t niveles = 300;
    std::vector<QModelIndex> camino;
    for (QModelIndex i = indice; i.isValid(); i = i.parent()) camino.push_back(i);
    return camino.size() <= niveles ? indice : camino[camino.size() - niveles];
}

void PanelAnalisis::elige(const QModelIndex& indice) {
    if (callado_ || !indice.isValid()) return;
    sigue(indice);
    emit elegido(DeNodo{modelo_.nodoDe(indice)});
}

void PanelAnalisis::sigue(const QModelIndex& indice) {
    camino_.setText(modelo_.camino(indice));
}

} // namespace norvik::taller
