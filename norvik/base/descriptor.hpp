#pragma once

#include <unistd.h>

namespace norvik {

/// An open file of the system, closed with its owner.
class Descriptor {
public:
    explicit Descriptor(int numero) : numero_(numero) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { cierra(); }

    int numero() const { return numero_; }
    bool abierto() const { return numero_ >= 0; }
    /// False, with the cause in errno, when what was written may be lost.
    bool cierra() {
        if (!abierto()) return true;
        const bool bien = close(numero_) == 0;
        numero_ = -1;
        return bien;
    }

private:
    int numero_;
};

} // namespace norvik
