// SPDX-License-Identifier: MIT

#include "norvik/tools/tablaInforme.hpp"

#include "norvik/platform/qt/fallos.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

#include <algorithm>
#include <set>

namespace norvik {

TablaInforme::TablaInforme(ModeloTabla& modelo, QWidget* padre) : QTableView(padre) {
    setModel(&modelo);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    ajusta(modelo);
    copiar_.setShortcut(QKeySequence::Copy);
    copiarConEncabezados_.setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    for (QAction* accion : {&copiar_, &copiarConEncabezados_}) accion->setShortcutContext(Qt::WidgetShortcut);
    addActions({&copiar_, &copiarConEncabezados_});
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(&copiar_, &QAction::triggered, this, [this] { sinFallos([this] { copia(false); }); });
    connect(&copiarConEncabezados_, &QAction::triggered, this,
            [this] { sinFallos([this] { copia(true); }); });
}

/// Sizes that need no look at the cells of a large table one by one, as Qt's own fitting does.
void TablaInforme::ajusta(const ModeloTabla& modelo) {
    QFont negrita = font();
    negrita.setBold(true);
    const QFontMetrics letra(negrita);
    const int margen = letra.horizontalAdvance(QStringLiteral("00"));
    for (int c = 0; c < modelo.columnCount(); ++c)
        setColumnWidth(c, letra.horizontalAdvance(modelo.masLargo(c)) + margen);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(letra.height() * 3 / 2);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->setMinimumWidth(letra.horizontalAdvance(QString::number(modelo.rowCount())) + margen);
}

/// The rows and columns that the selection has cells in, one row a line, columns separated by tabs.
void TablaInforme::copia(bool conEncabezados) const {
    std::set<int> filas;
    std::set<int> columnas;
    const QModelIndexList elegidas = selectedIndexes();
    if (elegidas.isEmpty()) return;
    for (const QModelIndex& celda : elegidas) {
        filas.insert(celda.row());
        columnas.insert(celda.column());
    }
    QStringList lineas;
    const auto encabezado = [&](int seccion, Qt::Orientation o) {
        return model()->headerData(seccion, o).toString();
    };
    if (conEncabezados) {
        QStringList simbolos{QString()};
        for (const int c : columnas) simbolos << encabezado(c, Qt::Horizontal);
        lineas << simbolos.join(u'\t');
    }
    for (const int f : filas) {
        QStringList linea;
        if (conEncabezados) linea << encabezado(f, Qt::Vertical);
        for (const int c : columnas) {
            const QModelIndex celda = model()->index(f, c);
            linea << (selectionModel()->isSelected(celda) ? celda.data().toString() : QString());
        }
        lineas << linea.join(u'\t');
    }
    QGuiApplication::clipboard()->setText(lineas.join(u'\n'));
}

} // namespace norvik
