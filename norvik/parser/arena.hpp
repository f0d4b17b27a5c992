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

    void reinicia() {
        actual_ = 0;
        usado_ = 0;
    }

private:
    using Bloque = std::vector<std::byte>;

    void* hueco(std::size_t bytes, std::size_t alineacion) {
        const auto alineado = [&] { return (usado_ + alineacion - 1) / alineacion * alineacion; };
        while (actual_ < bloques_.size() && bloques_[actual_].size() < alineado() + bytes) {
            ++actual_;
            usado_ = 0;
        }
        if (actual_ == bloques_.size()) aniadeBloque(bytes);
        const std::size_t inicio = alineado();
        usado_ = inicio + bytes;
        return bloques_[actual_].data() + inicio;
    }

    void aniadeBloque(std::size_t bytes) {
        constexpr std::size_t minimo = std::size_t{64} * 1024;
        bloques_.emplace_back(bytes > minimo ? bytes : minimo);
        usado_ = 0;
    }

    std::vector<Bloque> bloques_;
    std::size_t actual_ = 0; ///< block in use
    std::size_t usado_ = 0;  ///< bytes handed out of it
};

} // namespace norvik
