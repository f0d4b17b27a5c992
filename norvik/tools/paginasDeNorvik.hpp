// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/tools/paginaPropiedades.hpp"

#include <memory>
#include <vector>

namespace norvik {

/// The pages of the control in their order: general options, language, colours. Messages and windows of the
/// pages go through `sistema`, which must outlive them.
std::vector<std::unique_ptr<PaginaPropiedades>> paginasDeNorvik(SistemaQt& sistema);

} // namespace norvik
