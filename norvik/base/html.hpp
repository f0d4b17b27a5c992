// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// Whether a character only says in which direction those after it are written: with it a text can show
/// something else than it is.
constexpr bool esDeDireccion(char16_t c) {
    return (c >= u'\u202A' && c <= u'\u202E') || (c >= u'\u2066' && c <= u'\u2069');
}

/// A text as it stands in HTML or XML, between tags or quotes.
std::u16string escapaHtml(std::u16string_view texto);

} // namespace norvik::inline v0_2
