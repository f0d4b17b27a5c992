// SPDX-License-Identifier: MIT

#pragma once

#include "panel.hpp"

#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <string>
#include <vector>

namespace norvik::taller {

/// Where a name of the specification stands: a row a place, with its line. It follows the typing.
class PanelUsos final : public Panel {
    Q_OBJECT

public:
    explicit PanelUsos(QWidget* padre);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    bool muestraLoQueNoCompila() const override { return true; }
    /// From here on it shows those of this name.
    void busca(std::u16string nombre);

    // For those who drive it from outside.
    QTreeWidget& lista() { return lista_; }

protected:
    void alVerse() override { llenaSiSeVe(); }

private:
    void llena();
    void llenaSiSeVe();
    void anade(const QString& linea, const Rango& lugar);
    const Rango* lugarDe(const QTreeWidgetItem* fila) const;

    QWidget centro_;
    QVBoxLayout columna_;
    QLabel cuenta_;
    QTreeWidget lista_;
    std::shared_ptr<const Estudio> estudio_;
    std::shared_ptr<const LenguajeEstudiado> llenado_; ///< whose places the list has
    std::u16string nombre_;
    std::vector<Rango> lugares_; ///< of each row
    bool callado_ = false;       ///< the list is being filled
};

} // namespace norvik::taller
