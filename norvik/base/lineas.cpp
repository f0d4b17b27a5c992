// SPDX-License-Identifier: MIT

#include "norvik/base/lineas.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

std::vector<std::int32_t> iniciosDeLineas(std::u16string_view texto) {
    std::vector<std::int32_t> inicios{0};
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] > u'\r') continue; // nearly all, at each change of a text
        if (texto[i] != u'\r' && texto[i] != u'\n') continue;
        if (texto[i] == u'\r' && i + 1 < texto.size() && texto[i + 1] == u'\n') ++i;
        inicios.push_back(static_cast<std::int32_t>(i + 1));
    }
    return inicios;
}

void IndiceLineas::reconstruye(std::u16string_view texto) {
    inicios_ = iniciosDeLineas(texto);
    ultima_ = 0;
}

void IndiceLineas::vacia() noexcept {
    inicios_.resize(1);
    ultima_ = 0;
}

bool IndiceLineas::contiene(std::size_t linea, std::int32_t pos) const {
    return linea < inicios_.size() && inicios_[linea] <= pos &&
           (linea + 1 == inicios_.size() || pos < inicios_[linea + 1]);
}

std::int32_t IndiceLineas::lineaDe(std::int32_t pos) const {
    if (contiene(ultima_ + 1, pos)) ++ultima_;
    if (!contiene(ultima_, pos)) {
        const auto siguiente = std::upper_bound(inicios_.begin() + 1, inicios_.end(), pos);
        ultima_ = static_cast<std::size_t>(siguiente - inicios_.begin()) - 1;
    }
    return static_cast<std::int32_t>(ultima_);
}

std::int32_t IndiceLineas::inicioDe(std::int32_t linea) const {
    return linea < 0 || linea >= numLineas() ? -1 : inicios_[static_cast<std::size_t>(linea)];
}

} // namespace norvik::inline v0_2
