// SPDX-License-Identifier: MIT

#pragma once

#include "eleccion.hpp"
#include "estudio.hpp"

#include <QAbstractTableModel>

#include <cstdint>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace norvik::taller {

/// The table of a study for a view: a row a state, a column a symbol. A cell is made when it is asked for.
class ModeloCeldas final : public QAbstractTableModel {
    Q_OBJECT

public:
    void muestra(std::shared_ptr<const LenguajeEstudiado> lenguaje);

    /// Those in conflict, by state and column.
    const std::vector<DeCelda>& enConflicto() const { return enConflicto_; }
    bool estaEnConflicto(const QModelIndex& celda) const {
        return celdasEnConflicto_.contains({celda.row(), celda.column()});
    }
    QString palabras(const QModelIndex& celda) const;
    /// Cells that reduce by a rule stand out from here on; 0 none. Those cells, in the order of the table.
    std::vector<DeCelda> resalta(std::int16_t regla);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& celda, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

private:
    const GramaticaLR* gramatica() const { return lenguaje_ ? lenguaje_->gramatica() : nullptr; }
    void reuneConflictos();
    QString texto(const QModelIndex& celda) const;
    bool reducePor(const QModelIndex& celda) const;
    QVariant realce(const QModelIndex& celda, int papel) const;

    std::shared_ptr<const LenguajeEstudiado> lenguaje_;
    std::vector<DeCelda> enConflicto_;
    std::set<std::pair<int, int>> celdasEnConflicto_;
    std::set<int> filasEnConflicto_;
    std::int16_t resaltada_ = 0; ///< rule
};

} // namespace norvik::taller
