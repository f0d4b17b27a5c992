// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/arbol.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <deque>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The nodes of one tree and what their rules have in common, which are retired together: a node shows what
/// its `FichaRegla` lets it, so that blanking those few makes each node read as initialised. The places of
/// the nodes hold nothing but nodes as long as this lives, whatever was retired meanwhile.
class GeneracionArbol {
public:
    explicit GeneracionArbol(ArbolSintactico& arbol) : arbol_(arbol), deNadie_{&arbol, {}, {}, -1, true} {
        for (auto& fichas : fichas_) fichas.emplace_back(); // so that no beginning asks for memory
        empieza();
    }
    GeneracionArbol(const GeneracionArbol&) = delete;
    GeneracionArbol& operator=(const GeneracionArbol&) = delete;
    ~GeneracionArbol() = default;

    /// Room for nodes side by side, which are constructed next.
    Arbol* reserva(std::size_t n) {
        if (libres() < n * sizeof(Arbol)) pasaDeBloque(n);
        std::byte* const inicio = libre_;
        libre_ += n * sizeof(Arbol);
        return reinterpret_cast<Arbol*>(inicio);
    }
    const FichaRegla& nuevaFicha(std::u16string_view nombre, std::u16string_view cuerpo,
                                 std::int16_t numero) {
        auto& fichas = fichas_[turno_];
        if (numFichas_ == fichas.size()) fichas.emplace_back();
        return fichas[numFichas_++] = {&arbol_, nombre, cuerpo, numero, false};
    }
    /// Of the nodes that no rule produced.
    const FichaRegla& sinRegla() const { return *sinRegla_; }

    bool vacia() const { return actual_ == 0 && libres() == tamanioDe(0); }
    std::size_t bytes() const { return bytes_; }

    /// The tree is complete: places that it has not used again hold initialised nodes for good.
    void acaba() {
        apuntaUsados();
        for (std::size_t b = 0; b < bloques_.size(); ++b) {
            Bloque& bloque = bloques_[b];
            const std::size_t usados = b > actual_ ? 0 : bloque.usados;
            for (std::size_t i = usados; i < bloque.construidos; ++i) nodo(bloque, i).regla_ = &deNadie_;
            bloque.construidos = usados;
        }
    }
    /// All nodes read as initialised from now on, until `empieza` and new nodes take their places.
    void retira() {
        acaba();
        auto& fichas = fichas_[turno_];
        for (std::size_t i = 0; i < numFichas_; ++i) fichas[i] = deNadie_;
    }
    /// For another tree, in the same memory. The nodes retired keep their cards, of which there are two sets
    /// for that, until their places are taken or the tree is complete.
    void empieza() {
        turno_ = 1 - turno_;
        numFichas_ = 0;
        actual_ = 0;
        if (!bloques_.empty()) entraEnBloque();
        sinRegla_ = &nuevaFicha({}, {}, -1);
    }

private:
    static constexpr std::size_t minimoNodos = 64;
    static constexpr std::size_t maximoNodos = 1365; ///< 64 KiB

    // NOLINTNEXTLINE(modernize-avoid-c-arrays): a vector would clear it
    using Memoria = std::byte[];
    struct Bloque {
        std::unique_ptr<Memoria> propia;
        std::size_t cabida = 0;      ///< nodes
        std::size_t usados = 0;      ///< by the tree in it; of the block under way, when it was last asked
        std::size_t construidos = 0; ///< places that hold a node, from the first on

        std::span<std::byte> memoria() const { return {propia.get(), cabida * sizeof(Arbol)}; }
    };

    static Arbol& nodo(const Bloque& bloque, std::size_t i) {
        return *std::launder(reinterpret_cast<Arbol*>(bloque.propia.get()) + i);
    }
    std::size_t tamanioDe(std::size_t bloque) const {
        return bloque < bloques_.size() ? bloques_[bloque].memoria().size() : 0;
    }
    std::size_t libres() const { return static_cast<std::size_t>(fin_ - libre_); }
    void entraEnBloque() {
        const auto memoria = bloques_[actual_].memoria();
        libre_ = memoria.data();
        fin_ = libre_ + memoria.size();
    }
    void apuntaUsados() {
        if (bloques_.empty()) return;
        Bloque& bloque = bloques_[actual_];
        bloque.usados = bloque.cabida - libres() / sizeof(Arbol);
        bloque.construidos = std::max(bloque.construidos, bloque.usados);
    }
    void pasaDeBloque(std::size_t n) {
        apuntaUsados();
        std::size_t siguiente = bloques_.empty() ? 0 : actual_ + 1;
        for (; siguiente < bloques_.size() && bloques_[siguiente].cabida < n; ++siguiente)
            bloques_[siguiente].usados = 0;
        if (siguiente == bloques_.size()) aniadeBloque(n);
        actual_ = siguiente;
        entraEnBloque();
    }
    void aniadeBloque(std::size_t n) {
        const std::size_t cabida = std::max(n, std::clamp(bytes_ / sizeof(Arbol), minimoNodos, maximoNodos));
        bloques_.push_back({std::make_unique_for_overwrite<Memoria>(cabida * sizeof(Arbol)), cabida});
        bytes_ += cabida * sizeof(Arbol);
    }

    ArbolSintactico& arbol_;
    const FichaRegla deNadie_; ///< of the nodes that are no part of a tree any more
    std::array<std::deque<FichaRegla>, 2> fichas_;
    std::size_t turno_ = 0;
    std::size_t numFichas_ = 0;
    const FichaRegla* sinRegla_ = nullptr;
    std::vector<Bloque> bloques_;
    std::size_t actual_ = 0;     ///< block under way
    std::byte* libre_ = nullptr; ///< what is left of it …
    std::byte* fin_ = nullptr;   ///< … and its end
    std::size_t bytes_ = 0;
};

} // namespace norvik::inline v0_2
