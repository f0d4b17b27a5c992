// SPDX-License-Identifier: MIT

#include "norvik/tools/paginasDeNorvik.hpp"

#include "norvik/tools/general.hpp"
#include "norvik/tools/paginaColores.hpp"
#include "norvik/tools/ppControl.hpp"

namespace norvik {

std::vector<std::unique_ptr<PaginaPropiedades>> paginasDeNorvik(SistemaQt& sistema) {
    std::vector<std::unique_ptr<PaginaPropiedades>> paginas;
    paginas.push_back(std::make_unique<General>(sistema));
    paginas.push_back(std::make_unique<PPControl>(sistema));
    paginas.push_back(std::make_unique<PaginaColores>(sistema));
    return paginas;
}

} // namespace norvik
