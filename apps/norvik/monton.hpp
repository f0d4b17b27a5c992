#pragma once

#include <cstddef>
#include <vector>

namespace norvik::orden {

/// The heap of an order's work, in large pages where the system has them.
class Monton {
public:
    Monton();

private:
    std::vector<std::byte> primero_; // never filled: its room makes the heap grow
};

} // namespace norvik::orden
