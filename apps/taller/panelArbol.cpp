// SPDX-License-Identifier: MIT

#include "panelArbol.hpp"

#include "presentacion.hpp"

#include "norvik/platform/qt/fallos.hpp"

#include <QHeaderView>

#include <utility>

namespace norvik::taller {

PanelArbol::PanelArbol(QWidget* padre) : QDockWidget(QStringLiteral("Árbol sintáctico"), padre) {
    setObjectName(QStringLiteral("panelArbol"));
    ponLetraDelTitulo(*this);
    vista_.setAccessibleName(windowTitle());
    vista_.setUniformRowHeights(true);
    vista_.setAlternatingRowColors(true);
    vista_.setModel(&modelo_);
    vista_.setHeaderHidden(true);
    vista_.setIndentation(fontMetrics().horizontalAdvance(u'x') * 2);
    // Deep nodes are scrolled to, not cut off; the rows in view count.
    vista_.header()->setStretchLastSection(false);
    vista_.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    vista_.header()->setResizeContentsPrecision(0);
    setWidget(&vista_);
    const auto elige = [this](const QModelIndex& indice) {
        sinFallos([&] {
            if (const auto hoja = modelo_.hojaDe(indice); hoja.linea > 0) emit elegida(hoja);
        });
    };
    connect(&vista_, &QTreeView::clicked, this, elige);
    connect(&vista_, &QTreeView::activated, this, elige);
}

void PanelArbol::muestra(ArbolAnalisis arbol) {
    modelo_.muestra(std::move(arbol));
    constexpr std::size_t filasAbiertas = 300;
    for (const QModelIndex& indice : modelo_.porAbrir(filasAbiertas)) vista_.expand(indice);
}

} // namespace norvik::taller
