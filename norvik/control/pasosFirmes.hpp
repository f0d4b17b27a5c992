// SPDX-License-Identifier: MIT

#pragma once

#include <exception>

namespace norvik::inline v0_2 {

/// Steps that are all taken, whatever the host's receivers raise on the way: a text that has changed must not
/// be left without what belongs to the change. The first failure is raised at the end.
class PasosFirmes {
public:
    template <typename Paso>
    void operator()(Paso paso) {
        try {
            paso();
        } catch (...) {
            if (!primero_) primero_ = std::current_exception();
        }
    }
    bool haFallado() const { return primero_ != nullptr; }
    void acaba() const {
        if (primero_) std::rethrow_exception(primero_);
    }

private:
    std::exception_ptr primero_;
};

} // namespace norvik::inline v0_2
