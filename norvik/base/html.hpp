// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace norvik {

/// A text as it stands in HTML or XML, between tags or quotes.
std::u16string escapaHtml(std::u16string_view texto);

} // namespace norvik
