// SPDX-License-Identifier: MIT

#pragma once

#include "botonesDibujo.hpp"
#include "dialogos.hpp"
#include "dibujoGrafo.hpp"
#include "palabrasEstado.hpp"
#include "panel.hpp"
#include "rotulo.hpp"
#include "vistaAutomata.hpp"

#include "norvik/widget/trabajoDeFondo.hpp"

#include <QHBoxLayout>
#include <QListWidget>
#include <QSplitter>
#include <QTextBrowser>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace norvik::taller {

/// The automaton: a list of its states, what there is to say of one of them, and a drawing, of an automaton
/// with many states only those near the chosen one. What it takes to know an automaton is done in another
/// thread, and the drawing is laid out in another process, once the panel is seen.
class PanelAutomata final : public Panel {
    Q_OBJECT

public:
    /// The dialogs outlive it.
    explicit PanelAutomata(Dialogos& dialogos, QWidget* padre = nullptr);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    QListWidget& estados() { return estados_; }
    const DibujoAutomata& dibujo() const { return vista_.dibujo(); }
    const RealceAutomata& realzado() const { return vista_.realce(); }
    QString palabras() const { return estado_.toPlainText(); }
    QString entrada() const { return entrada_.text(); }
    QString aviso() const { return aviso_.text(); }

protected:
    void alVerse() override;
    void alCambiarLetra() override;

private:
    using Resultado = std::shared_ptr<const GrafoEstados>;
    static constexpr std::size_t maximoEntero = 60; ///< states of a drawing of all
    static constexpr std::size_t maximoVecinos = 30;
    static constexpr std::size_t maximoFlechas = 300; ///< of any drawing

    void compone();
    void estudiaSiSeVe();
    void toma(std::shared_ptr<const LenguajeEstudiado> lenguaje, const std::optional<Resultado>& resultado);
    void sinAutomata(const QString& motivo);
    void avisa(const QString& texto);
    void llenaEstados();
    void elige(int estado);
    void elegidoPorLaPersona(int estado);
    void pulsado(const QString& enlace);
    void resalta(const Eleccion& eleccion);
    /// It shows what it was given last.
    bool alDia() const { return grafo_ && estudio_ && lenguaje_ == estudio_->deLenguaje; }
    void muestraEstado();
    std::vector<std::int16_t> porDibujar(const GrafoEstados& grafo) const;
    void dibuja();
    void dibujaElElegido();
    RealceAutomata realce() const;
    Lamina lamina() const;

    const GramaticaLR& gramatica() const { return *lenguaje_->gramatica(); }

    std::shared_ptr<const Estudio> estudio_;             ///< the last one
    std::shared_ptr<const LenguajeEstudiado> pendiente_; ///< to be shown once the panel is seen
    std::shared_ptr<const LenguajeEstudiado> deseado_;   ///< the last that was to be shown
    std::shared_ptr<const LenguajeEstudiado> lenguaje_;  ///< the one that is
    Resultado grafo_;
    DibujoAutomata porColocar_;
    std::optional<Eleccion> porElegir_; ///< chosen elsewhere of what is not shown yet
    ReglaResaltada resaltada_;
    std::set<int> conRegla_; ///< states
    int elegido_ = 0;
    std::pair<int, ReglaResaltada> enHtml_{-1, {}}; ///< what the text tells of

    QWidget centro_;
    QVBoxLayout columna_;
    QHBoxLayout barra_;
    Rotulo entrada_; ///< the shortest that leads to the chosen state
    Rotulo aviso_;
    QSplitter partes_;
    QListWidget estados_;
    QTextBrowser estado_;
    VistaAutomata vista_;
    BotonesDibujo botones_; ///< goes before its view
    ColocadorGrafos colocador_;
    QTimer porDibujarse_{this};         ///< another part, once nobody goes further
    TrabajoDeFondo<Resultado> trabajo_; ///< goes first
};

} // namespace norvik::taller
