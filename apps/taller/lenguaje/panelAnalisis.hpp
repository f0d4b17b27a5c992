// SPDX-License-Identifier: MIT

#pragma once

#include "../vistaArbol.hpp"
#include "modeloAnalisis.hpp"
#include "panel.hpp"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

namespace norvik::taller {

/// The tree of the text: a row that is chosen selects its text, and a place of the text its row, with the way
/// up from it.
class PanelAnalisis final : public Panel {
    Q_OBJECT

public:
    explicit PanelAnalisis(QWidget* padre);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    QTreeView& vista() { return vista_; }
    QCheckBox& enUnaFila() { return enUnaFila_; }
    QLabel& camino() { return camino_; }

private:
    void compone();
    void muestra();
    void abre();
    void elige(const QModelIndex& indice);
    QModelIndex alAlcance(const QModelIndex& indice) const;
    void sigue(const QModelIndex& indice);

    QWidget centro_;
    QVBoxLayout columna_;
    QCheckBox enUnaFila_;
    QLabel camino_;
    ModeloAnalisis modelo_; ///< goes after its view
    VistaArbol vista_;
    std::shared_ptr<const Estudio> estudio_;
    bool callado_ = false; ///< what is chosen was chosen elsewhere
};

} // namespace norvik::taller
