// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

// Loading modules hold patterns, that is, definitions expanded already.
namespace norvik::inline v0_2 {

/// The definition text whose expansion is a given pattern: expanding that as it stands would lose a backslash
/// before another one.
std::u16string definicionDePatron(std::u16string_view patron);

/// The literal reading of that definition, which its expansion would give. "<" and quotes of a
/// specification's patterns come from character codes, which leave none.
std::u16string lecturaDePatron(std::u16string_view patron);

} // namespace norvik::inline v0_2
