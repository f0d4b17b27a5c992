// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/tools/modeloTabla.hpp"

#include <QAction>
#include <QTableView>

namespace norvik {

/// Shows an SLR table; the selected cells can be copied, alone or with their states and symbols.
class TablaInforme final : public QTableView {
    Q_OBJECT

public:
    TablaInforme(ModeloTabla& modelo, QWidget* padre);

private:
    void ajusta(const ModeloTabla& modelo);
    void copia(bool conEncabezados) const;

    QAction copiar_{QStringLiteral("&Copiar")};
    QAction copiarConEncabezados_{QStringLiteral("Copiar con &encabezados")};
};

} // namespace norvik
