// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

// What of a text a terminal, or a person's eye, would take for something else than characters.
namespace norvik::inline v0_2 {

/// The text with pictures in place of control characters other than tabs, those of the direction of writing
/// too, for a person to look at.
std::u16string visible(std::u16string_view texto);
/// The same of text in UTF-8 of several lines, whose ends stay. A line that is no UTF-8 is read as
/// Windows-1252.
std::string lineasVisibles(std::string_view bytes);

} // namespace norvik::inline v0_2
