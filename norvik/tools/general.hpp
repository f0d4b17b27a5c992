// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/tools/paginaPropiedades.hpp"

#include <span>

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
    struct Opcion;
    static std::span<const Opcion> opciones();

    void dispone();
    bool escribeNumero(ControlNorvik& control, const Opcion& opcion);
};

} // namespace norvik
