#pragma once

#include <cstddef>
#include <type_traits>
#include <vector>

namespace norvik {

/// Memory that is handed out piece by piece and taken back all at once. The blocks stay for the next use, so
/// what was handed out remains readable memory for the arena's whole life.
class Arena {
public:
    /// Room for `n` objects, not yet constructed; they are never destroyed.
    template <typename T>
    requires(std::is_trivially_destructible_v<T> &&
             alignof(T) <= alignof(std::max_align_t)) T* reserva(std::size_t n) {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): T may well be a pointer
        return static_cast<T*>(hueco(n * sizeof(T), alignof(T)));
    }

    /// Room for the objects of one record, which lie side by side in it; aligned as pointers are.
    std::byte* reservaBytes(std::size_t bytes) {
        return static_cast<std::byte*>(hueco(bytes, alignof(void*)));
    }

    void reinicia() {
        actual_ = 0;
        usado_ = 0;
    }

private:
    using Bloque = std::vector<std::byte>;

    // Alignments are powers of two; a block starts at the strictest.
    void* hueco(std::size_t bytes, std::size_t alineacion) {
        std::size_t inicio = (usado_ + alineacion - 1) & ~(alineacion - 1);
        if (actual_ == bloques_.size() || bloques_[actual_].size() < inicio + bytes) {
            pasaDeBloque(bytes);
            inicio = 0;
        }
        usado_ = inicio + bytes;
        return bloques_[actual_].data() + inicio;
    }

    // Goes on to a block with room, a new one if there is none.
    void pasaDeBloque(std::size_t bytes) {
        constexpr std::size_t minimo = std::size_t{64} * 1024;
        while (actual_ < bloques_.size() && (usado_ > 0 || bloques_[actual_].size() < bytes)) {
            ++actual_;
            usado_ = 0;
        }
        if (actual_ == bloques_.size()) bloques_.emplace_back(bytes > minimo ? bytes : minimo);
    }

    std::vector<Bloque> bloques_;
    std::size_t actual_ = 0; ///< block in use
    std::size_t usado_ = 0;  ///< bytes handed out of it
};

} // namespace norvik
