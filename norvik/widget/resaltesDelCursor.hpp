// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/ayudas.hpp"
#include "norvik/widget/resaltes.hpp"

#include <vector>

namespace norvik {

class CajaTextoQt;
class FondoDeEdicion;

/// What shows a person where the caret is: its line, and the pair of the bracket beside it.
class ResaltesDelCursor {
public:
    ResaltesDelCursor(const CajaTextoQt& caja, Resaltes& resaltes, FondoDeEdicion& fondo)
        : caja_(caja), resaltes_(resaltes), fondo_(fondo) {}

    void pon(const Ayudas& ayudas);

private:
    std::vector<Resalte> linea() const;
    std::vector<Resalte> pareja() const;

    const CajaTextoQt& caja_;
    Resaltes& resaltes_;
    FondoDeEdicion& fondo_;
};

} // namespace norvik
