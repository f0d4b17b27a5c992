// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/tablaPropiedades.hpp"
#include "norvik/tools/paginaPropiedades.hpp"

#include <QListWidget>
#include <QSpinBox>

#include <array>
#include <vector>

namespace norvik {

/// The page of the colours: a list of them, and for the one that is current a palette and its three parts.
class PaginaColores final : public PaginaPropiedades {
    Q_OBJECT

public:
    explicit PaginaColores(SistemaQt& sistema, QWidget* padre = nullptr);

protected:
    void lee(ControlNorvik& control) override;
    bool escribe(ControlNorvik& control) override;

private:
    QLayout& paleta();
    QLayout& partes();
    void ponColor(QListWidgetItem& propiedad, const QColor& color);
    void eligeColor(const QColor& color);
    void muestraElegida();

    QByteArray propiedad(int fila) const;

    const std::vector<const Propiedad*> colores_ = propiedadesDe(PaginaDePropiedad::Colores);
    QListWidget propiedades_{this};
    std::array<QSpinBox, 3> partes_; ///< red, green, blue
};

} // namespace norvik
