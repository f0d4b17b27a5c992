// SPDX-License-Identifier: MIT

#pragma once

#include "../dialogos.hpp"
#include "botonesDibujo.hpp"
#include "panel.hpp"
#include "vistaDibujo.hpp"

#include <QLabel>
#include <QVBoxLayout>

#include <cstdint>
#include <memory>
#include <optional>

namespace norvik::taller {

/// The rules as tracks. They are drawn when the panel is seen.
class PanelDiagramas final : public Panel {
    Q_OBJECT

public:
    /// The dialogs outlive it.
    PanelDiagramas(Dialogos& dialogos, QWidget* padre);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    VistaDibujo& vista() { return vista_; }

protected:
    void alVerse() override;

private:
    void dibujaSiSeVe();
    Lamina::Pinta pinta(std::int16_t elegida) const;

    std::shared_ptr<const Estudio> estudio_;
    std::shared_ptr<const LenguajeEstudiado> dibujado_;
    std::int16_t elegida_ = 0;
    std::optional<Eleccion> porElegir_; ///< chosen elsewhere while the panel is not seen

    QWidget centro_;
    QVBoxLayout columna_;
    QLabel sinReglas_;
    VistaDibujo vista_;
    BotonesDibujo botones_;
};

} // namespace norvik::taller
