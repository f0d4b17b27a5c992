// SPDX-License-Identifier: MIT

#pragma once

#include "panel.hpp"

#include <QPlainTextEdit>
#include <QSplitter>
#include <QTableWidget>

#include <cstdint>

namespace norvik::taller {

/// The sets of each variable: what it can begin with, what can follow it; and of the chosen one its rules.
class PanelConjuntos final : public Panel {
    Q_OBJECT

public:
    explicit PanelConjuntos(QWidget* padre);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    QTableWidget& tabla() { return tabla_; }
    QPlainTextEdit& detalle() { return detalle_; }

protected:
    void alCambiarLetra() override { ajusta(); }

private:
    enum Columna { Variable, Anulable, Primeros, Siguientes, numeroDeColumnas };

    void llena();
    void ajusta();
    bool pon(int fila, std::int32_t variable);
    int filaDe(const QString& variable) const;
    void detalla(int fila);
    void elige(int fila);

    QSplitter centro_;
    QTableWidget tabla_;
    QPlainTextEdit detalle_;
    std::shared_ptr<const Estudio> estudio_;
    bool callado_ = false; ///< what is chosen was chosen elsewhere
};

} // namespace norvik::taller
