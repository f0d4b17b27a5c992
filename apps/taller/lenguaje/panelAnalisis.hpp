// SPDX-License-Identifier: MIT

#pragma once

#include "../dialogos.hpp"
#include "../vistaArbol.hpp"
#include "botonesDibujo.hpp"
#include "modeloAnalisis.hpp"
#include "panel.hpp"
#include "rotulo.hpp"
#include "vistaDibujo.hpp"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

namespace norvik::taller {

/// The tree of the text, as an outline and drawn: a node that is chosen selects its text, and a place of the
/// text its node, with the way up from it. What a person opens and closes in the outline stays so while the
/// tree keeps its shape there.
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
    QLineEdit& busca() { return busca_; }
    QLabel& hallado() { return hallado_; }
    QTabWidget& maneras() { return maneras_; }
    VistaDibujo& dibujo() { return dibujo_; }

protected:
    void alVerse() override;
    void alCambiarLetra() override;

private:
    /// The place of a row: which child of its parent each is, from the root down.
    using Lugar = std::vector<int>;
    /// A row that a person opened or closed, and the symbol that it had then.
    using Movidas = std::map<Lugar, QString>;

    void compone();
    void componeBusqueda();
    void componeEsquema();
    void conecta();
    void muestra();
    void cambiaCadenas();
    QModelIndex filaElegida() const;
    void abre();
    void mueve(const QModelIndex& indice, Movidas& alli, Movidas& otras) const;
    bool esDe(const Movidas& movidas, const QModelIndex& indice) const;
    void descubre(const QModelIndex& indice);
    QModelIndex aLaVista(const QModelIndex& indice) const;
    void buscaSiguiente();
    void ve(const QModelIndex& indice);
    void seleccionaRegla(std::int16_t regla);
    void elige(const QModelIndex& indice);
    QModelIndex alAlcance(const QModelIndex& indice) const;
    void sigue(const QModelIndex& indice);
    bool seDibuja() const { return maneras_.currentIndex() == 1; }
    void dibuja();
    void realza(QModelIndex indice);
    Lamina lamina() const;

    QWidget centro_;
    QVBoxLayout columna_;
    QHBoxLayout filaBusqueda_;
    QCheckBox enUnaFila_;
    QLineEdit busca_;
    Rotulo hallado_; ///< what came of a search
    QAction irABuscar_;
    Rotulo camino_;
    ModeloAnalisis modelo_; ///< goes after its view
    QTabWidget maneras_;
    VistaArbol vista_;
    QWidget dibujada_;
    QVBoxLayout columnaDibujada_;
    Rotulo ocultos_;
    VistaDibujo dibujo_;
    BotonesDibujo botones_;
    int realzado_ = -1;
    Movidas abiertas_, cerradas_;
    std::optional<std::size_t> nodo_; ///< the one that is told of, although its row may be out of reach
    std::shared_ptr<const Estudio> estudio_;
    std::optional<Eleccion> pendiente_; ///< chosen elsewhere while nobody saw the panel
    bool callado_ = false;              ///< what is chosen was chosen elsewhere
};

} // namespace norvik::taller
