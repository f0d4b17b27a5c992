#pragma once

#include <cstddef>
#include <memory>

namespace norvik::orden {

/// The heap of an order's work, in large pages where the system has them.
class Monton {
public:
    Monton();

private:
    std::unique_ptr<std::byte[]> primero_;
};

} // namespace norvik::orden
