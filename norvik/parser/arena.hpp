// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>
#include <vector>

namespace norvik::inline v0_2 {

/// Memory that is handed out piece by piece and taken back all at once. The blocks stay for the next use, so
/// what was handed out remains readable memory for the arena's whole life.
class Arena {
public:
    static constexpr std::size_t alineacion = alignof(void*);

    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena() = default;

    /// Room for `n` objects, not yet constructed; they are never destroyed.
    template <typename T>
    requires(std::is_trivially_destructible_v<T> && alignof(T) <= alineacion) T* reserva(std::size_t n) {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): T may well be a pointer
        return reinterpret_cast<T*>(reservaBytes(n * sizeof(T)));
    }

    void reinicia() {
        libre_ = {};
        usados_ = 0;
    }

private:
    // NOLINTNEXTLINE(modernize-avoid-c-arrays): a vector would clear it, and no one looks where no object is
    using Memoria = std::byte[];
    struct Bloque {
        std::unique_ptr<Memoria> memoria;
        std::size_t tamanio = 0;
    };

    std::byte* reservaBytes(std::size_t bytes) {
        const std::size_t hueco = (bytes + alineacion - 1) & ~(alineacion - 1);
        if (libre_.size() < hueco) pasaDeBloque(hueco);
        std::byte* const inicio = libre_.data();
        libre_ = libre_.subspan(hueco);
        return inicio;
    }
    // Goes on to a block with room, a new one if there is none.
    void pasaDeBloque(std::size_t bytes) {
        constexpr std::size_t minimo = std::size_t{64} * 1024;
        while (usados_ < bloques_.size() && bloques_[usados_].tamanio < bytes) ++usados_;
        if (usados_ == bloques_.size()) {
            const std::size_t tamanio = std::max(bytes, minimo);
            bloques_.push_back({std::make_unique_for_overwrite<Memoria>(tamanio), tamanio});
        }
        const Bloque& bloque = bloques_[usados_++];
        libre_ = {bloque.memoria.get(), bloque.tamanio};
    }

    std::vector<Bloque> bloques_;
    std::size_t usados_ = 0;     ///< blocks that are full or in use
    std::span<std::byte> libre_; ///< what is left of the block in use
};

} // namespace norvik::inline v0_2
