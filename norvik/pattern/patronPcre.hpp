#pragma once

#include "norvik/pattern/patronAutomata.hpp"
#include "norvik/pattern/patronListo.hpp"
#include "norvik/pattern/pcre2.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace norvik {

/// The pattern in the library's dialect.
std::u16string aPcre(const PatronListo& patron);

/// A pattern compiled by the library to machine code.
class MotorPcre {
public:
    /// Nothing when the library's semantics are not the dialect's for this pattern, or when it cannot compile
    /// it.
    static std::optional<MotorPcre> de(const PatronListo& patron);

    /// The match that starts at `inicio`; undecided when a limit is reached.
    Intento coincide(std::u16string_view sujeto, std::size_t inicio) const;

private:
    explicit MotorPcre(CodigoPcre codigo) : codigo_(std::move(codigo)) {}

    CodigoPcre codigo_;
};

} // namespace norvik
