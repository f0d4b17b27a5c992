// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace norvik::inline v0_2 {

/// Writes all bytes to an open file of the system; false, with the cause in errno, when that fails.
inline bool escribeTodo(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t escritos = write(descriptor, bytes.data(), bytes.size());
        if (escritos < 0 && errno == EINTR) continue;
        if (escritos < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(escritos));
    }
    return true;
}

/// An open file of the system, closed with its owner.
class Descriptor {
public:
    explicit Descriptor(int numero) : numero_(numero) {}
    Descriptor(Descriptor&& otro) noexcept : numero_(std::exchange(otro.numero_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
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
    /// The same, and it stays open: some file systems tell of a write only when its file is closed.
    bool pruebaCierre() const {
        Descriptor otro(fcntl(numero_, F_DUPFD_CLOEXEC, 0));
        return otro.abierto() && otro.cierra();
    }

private:
    int numero_;
};

} // namespace norvik::inline v0_2
