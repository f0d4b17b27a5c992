// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Where each line of a text starts, from 0. A line break is CR LF, CR or LF and belongs to the line that it
/// ends. A text has one line at least.
std::vector<std::int32_t> iniciosDeLineas(std::u16string_view texto);

/// Where the lines of a text start. Positions and lines are 0-based.
class IndiceLineas {
public:
    void reconstruye(std::u16string_view texto);
    /// Those of an empty text.
    void vacia() noexcept;
    /// Line of the character at a position; a position beyond the text is on the last line, one before it
    /// on the first.
    std::int32_t lineaDe(std::int32_t pos) const;
    /// Position of a line's first character, -1 when there is no such line.
    std::int32_t inicioDe(std::int32_t linea) const;
    std::int32_t numLineas() const { return static_cast<std::int32_t>(inicios_.size()); }

private:
    bool contiene(std::size_t linea, std::int32_t pos) const;

    std::vector<std::int32_t> inicios_ = {0};
    mutable std::size_t ultima_ = 0; ///< line of the last question: readers ask for ascending positions
};

} // namespace norvik::inline v0_2
