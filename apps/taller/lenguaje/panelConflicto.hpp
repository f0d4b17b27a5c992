// SPDX-License-Identifier: MIT

#pragma once

#include "../dialogos.hpp"
#include "botonesDibujo.hpp"
#include "historias.hpp"
#include "panel.hpp"
#include "vistaDibujo.hpp"

#include <QComboBox>
#include <QLabel>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace norvik::taller {

/// A conflict told: the sentence, both trees side by side, the state with its items, and what cures it, a
/// button each. The stories are looked for once somebody wants to see one.
class PanelConflicto final : public Panel {
    Q_OBJECT

public:
    /// Both outlive it.
    PanelConflicto(Historias& historias, Dialogos& dialogos, QWidget* padre);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    bool muestraLoQueNoCompila() const override { return true; }
    /// The one of a diagnostic of the specification, by its number; the one of a cell.
    void cuenta(std::size_t diagnostico);
    void cuenta(const DeCelda& celda);
    /// A cell whose story is known is told.
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    QComboBox& lista() { return lista_; }
    QString palabras() const { return texto_.toPlainText(); }
    VistaDibujo& arbol(std::size_t cual) { return lados_[cual].vista; }
    QWidget& curas() { return curas_; }

protected:
    void alVerse() override { muestra(); }

private:
    static constexpr std::size_t maximoDeFilas = 500; ///< nobody looks through more of them

    /// A story: of which diagnostic, and which of its.
    struct Cual {
        std::size_t diagnostico = 0;
        std::size_t historia = 0;

        bool operator==(const Cual&) const = default;
    };
    struct LadoDibujado {
        QWidget caja;
        QVBoxLayout columna;
        QLabel rotulo;
        VistaDibujo vista{{}, {}};
    };

    void compone();
    void llena();
    void anade(std::size_t diagnostico);
    /// The row of a story; beyond the last one it gets one.
    int filaDe(const Cual& cual);
    void muestra();
    void muestra(const HistoriaConflicto& historia);
    /// What there is to say without one.
    QString sinHistoria() const;
    void eligeCelda();
    void ponArboles(const HistoriaConflicto* historia);
    void ponCuras(const std::vector<Arreglo>& arreglos);
    const HistoriaConflicto* elegida();
    bool esDe(const Cual& cual, const HistoriaConflicto& historia, const DeCelda& celda) const;
    void vaA(const DeCelda& celda);
    Lamina lamina();

    Historias& historias_;
    std::shared_ptr<const LenguajeEstudiado> lenguaje_;
    std::vector<Cual> cuales_;      ///< of each row of the list
    std::optional<DeCelda> pedida_; ///< to be told once the stories are known

    QWidget centro_, curas_;
    QVBoxLayout columna_;
    QHBoxLayout fila_, filaDeCuras_;
    QComboBox lista_;
    QSplitter partes_;
    QTextBrowser texto_;
    std::array<LadoDibujado, 2> lados_;
    BotonesDibujo botones_;
};

} // namespace norvik::taller
