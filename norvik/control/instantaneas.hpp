// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// One snapshot: the text right after a change. Positions 0-based.
struct UndoElement {
    std::int32_t SelStart = 0; ///< the caret's
    std::int32_t TextLen = 0;  ///< of the whole text
    std::u16string Text;       ///< the whole text
    bool sustitucion = false;  ///< the change put one text in another's place, and is taken back as such

    bool operator==(const UndoElement&) const = default;
};

/// A list of snapshots, the newest last, each of which reads as its whole text.
class Instantaneas {
public:
    std::size_t cuantas() const { return archivadas_.size() + (ultima_ ? 1 : 0); }
    void pon(UndoElement elemento);
    /// The newest, taken out; there must be one.
    UndoElement saca();
    const UndoElement& ultima() const { return *ultima_; }
    /// A snapshot by its 1-based place.
    UndoElement en(std::size_t lugar) const;
    /// Empties the list. Raises `Desbordamiento`, with the list empty, when it held more than 32767.
    void vacia();

private:
    /// A text as what it has other than the next snapshot's.
    struct Archivada {
        std::int32_t SelStart = 0;
        bool sustitucion = false;
        std::uint32_t prefijo = 0; ///< characters in common at the start
        std::uint32_t sufijo = 0;  ///< and at the end
        std::u16string medio;      ///< those between; the whole text when it stands by itself
        bool entera = false;
    };

    Archivada archiva(const UndoElement& vieja, std::u16string_view siguiente) const;
    static UndoElement lee(const Archivada& archivada, std::u16string_view siguiente);

    std::vector<Archivada> archivadas_;
    std::optional<UndoElement> ultima_;
};

/// Characters that two texts have in common at their start.
std::size_t prefijoComun(std::u16string_view a, std::u16string_view b);
/// And at their end.
std::size_t sufijoComun(std::u16string_view a, std::u16string_view b);

} // namespace norvik::inline v0_2
