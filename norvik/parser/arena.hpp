#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>
#include <vector>

namespace norvik {

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

    /// Room for the objects of one record, which lie side by side in it; aligned as pointers are, as all that
    /// is handed out.
    std::byte* reservaBytes(std::size_t bytes) {
        const std::size_t hueco = (bytes + alineacion - 1) & ~(alineacion - 1);
        if (libre_.size() < hueco) pasaDeBloque(hueco);
        std::byte* const inicio = libre_.data();
        libre_ = libre_.subspan(hueco);
        return inicio;
    }

    void reinicia() {
        libre_ = {};
        usados_ = 0;
    }

private:
    // Not cleared: what has no object yet is not looked at.
    struct Bloque {
        explicit Bloque(std::size_t bytes)
            : memoria(std::make_unique_for_overwrite<std::byte[]>(bytes)), tamanio(bytes) {}

        std::unique_ptr<std::byte[]> memoria;
        std::size_t tamanio;
    };

    // Goes on to a block with room, a new one if there is none.
    void pasaDeBloque(std::size_t bytes) {
        constexpr std::size_t minimo = std::size_t{64} * 1024;
        while (usados_ < bloques_.size() && bloques_[usados_].tamanio < bytes) ++usados_;
        if (usados_ == bloques_.size()) bloques_.emplace_back(std::max(bytes, minimo));
        const Bloque& bloque = bloques_[usados_++];
        libre_ = {bloque.memoria.get(), bloque.tamanio};
    }

    std::vector<Bloque> bloques_;
    std::size_t usados_ = 0;     ///< blocks that are full or in use
    std::span<std::byte> libre_; ///< what is left of the block in use
};

} // namespace norvik
