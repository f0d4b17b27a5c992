// SPDX-License-Identifier: MIT

#pragma once

#include "../dialogos.hpp"
#include "../vistaArbol.hpp"
#include "botonesDibujo.hpp"
#include "modeloAnalisis.hpp"
#include "panel.hpp"
#include "vistaDibujo.hpp"

#include <QCheckBox>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <optional>

namespace norvik::taller {

/// The tree of the text, as an outline and drawn: a node that is chosen selects its text, and a place of the
/// text its node, with the way up from it.
class PanelAnalisis final : public Panel {
    Q_OBJECT

public:
    /// The dialogs outlive it.
    PanelAnalisis(Dialogos& dialogos, QWidget* padre);
    PanelAnalisis(const PanelAnalisis&) = delete;
    PanelAnalisis& operator=(const PanelAnalisis&) = delete;
    /// Its pages go one by one, which is no choice of a page.
    ~PanelAnalisis() override { maneras_.disconnect(this); }

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    QTreeView& vista() { return vista_; }
    QCheckBox& enUnaFila() { return enUnaFila_; }
    QLabel& camino() { return camino_; }
    QTabWidget& maneras() { return maneras_; }
    VistaDibujo& dibujo() { return dibujo_; }

private:
    void compone();
    void muestra();
    void abre();
    void elige(const QModelIndex& indice);
    QModelIndex alAlcance(const QModelIndex& indice) const;
    void sigue(const QModelIndex& indice);
    bool seDibuja() const { return maneras_.currentIndex() == 1; }
    void dibuja();
    void realza(QModelIndex indice);
    Lamina lamina() const;

    QWidget centro_;
    QVBoxLayout columna_;
    QCheckBox enUnaFila_;
    QLabel camino_;
    ModeloAnalisis modelo_; ///< goes after its view
    QTabWidget maneras_;
    VistaArbol vista_;
    QWidget dibujada_;
    QVBoxLayout columnaDibujada_;
    QLabel ocultos_;
    VistaDibujo dibujo_;
    BotonesDibujo botones_;
    int realzado_ = -1;
    std::shared_ptr<const Estudio> estudio_;
    std::optional<Eleccion> pendiente_; ///< chosen elsewhere while nobody saw the panel
    bool callado_ = false;              ///< what is chosen was chosen elsewhere
};

} // namespace norvik::taller
