// SPDX-License-Identifier: MIT

#pragma once

#include "../dialogos.hpp"
#include "botonesDibujo.hpp"
#include "modeloCeldas.hpp"
#include "panel.hpp"
#include "rotulo.hpp"

#include <QHBoxLayout>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <vector>

namespace norvik::taller {

/// The table: what the chosen cell does, in words, and a way from conflict to conflict.
class PanelTabla final : public Panel {
    Q_OBJECT

public:
    /// The dialogs outlive it.
    PanelTabla(Dialogos& dialogos, QWidget* padre);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    QTableView& vista() { return vista_; }
    QLabel& palabras() { return palabras_; }
    QToolButton& siguiente() { return siguiente_; }
    QToolButton& conflicto() { return conflicto_; }

signals:
    /// The person wants to be told the conflict of a cell.
    void conflictoPedido(const norvik::taller::DeCelda& celda);

protected:
    void alCambiarLetra() override { ajusta(); }

private:
    void compone();
    void ajusta();
    void resalta(const Eleccion& eleccion);
    QModelIndex celdaPara(const Eleccion& eleccion) const;
    void elige(const QModelIndex& celda);
    void muestraPalabras();
    void pideConflicto();
    void vaAlSiguiente();
    /// Raises `Desbordamiento` for a table too large to be drawn.
    Lamina lamina() const;

    QWidget centro_;
    QVBoxLayout columna_;
    QHBoxLayout fila_;
    Rotulo palabras_;
    QToolButton siguiente_, conflicto_;
    ModeloCeldas modelo_; ///< goes after its view
    QTableView vista_;
    BotonesDibujo botones_;
    std::shared_ptr<const Estudio> estudio_;
    std::vector<DeCelda> deRegla_; ///< those that reduce by the chosen rule
    QString palabrasDeRegla_;
    bool callado_ = false; ///< what is chosen was chosen elsewhere
};

} // namespace norvik::taller
