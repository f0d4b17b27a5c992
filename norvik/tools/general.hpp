// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/tablaPropiedades.hpp"
#include "norvik/tools/paginaPropiedades.hpp"

#include <vector>

namespace norvik {

/// The page of the editor's options.
class General final : public PaginaPropiedades {
    Q_OBJECT

public:
    explicit General(SistemaQt& sistema, QWidget* padre = nullptr);

protected:
    void lee(ControlNorvik& control) override;
    bool escribe(ControlNorvik& control) override;

private:
    void dispone();
    bool escribeNumero(ControlNorvik& control, const Propiedad& p);
    /// The field of a property.
    template <typename Campo>
    Campo& campo(const Propiedad& p) const;

    const std::vector<const Propiedad*> opciones_ = propiedadesDe(PaginaDePropiedad::General);
};

} // namespace norvik
