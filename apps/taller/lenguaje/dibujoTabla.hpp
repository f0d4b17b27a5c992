// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QGraphicsScene>
#include <QPalette>
#include <QString>

namespace norvik::taller {

/// Draws a table with its headings into an empty scene. An empty cell costs nothing.
void pintaTabla(const QAbstractTableModel& tabla, const QFont& letra, const QPalette& colores,
                QGraphicsScene& escena);
/// The same for a spreadsheet: a line a row, cells parted by tabulators.
QString tablaEnTexto(const QAbstractTableModel& tabla);

} // namespace norvik::taller
