// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/ayudas.hpp"
#include "norvik/widget/resaltes.hpp"

#include <vector>

namespace norvik {

class CajaTextoQt;

/// What shows a person where the caret is: its line, and the pair of the bracket beside it. Brackets of one
/// colour belong together, those of a comment or a string not to the others; colour 0 is any.
class ResaltesDelCursor {
public:
    ResaltesDelCursor(const CajaTextoQt& caja, Resaltes& resaltes) : caja_(caja), resaltes_(resaltes) {}

    void pon(const Ayudas& ayudas);

private:
    std::vector<Resalte> linea() const;
    std::vector<Resalte> pareja() const;

    const CajaTextoQt& caja_;
    Resaltes& resaltes_;
};

} // namespace norvik
