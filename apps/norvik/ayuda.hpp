// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace norvik::orden {

std::string_view ayudaGeneral();
/// The help of an order by its name.
std::string_view ayudaDe(std::string_view orden);

} // namespace norvik::orden
