// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// Runs of reductions by rules of one symbol that the parses of a language have made. Such a run leaves what
/// stands below the top of the stack as it is, so that the two states at the top and the token's column say
/// all about it. Operators in a dozen levels make these runs nearly the whole of a parse, and the same ones
/// again and again.
class CadenasReglas {
public:
    struct Lugar {
        std::int16_t debajo = 0; ///< state below the top
        std::int16_t cima = 0;
        std::int16_t columna = 0;

        bool operator==(const Lugar&) const = default;
    };
    struct Cadena {
        Lugar lugar;
        std::int16_t estado = 0; ///< top in the end; 0: no run
        std::uint32_t inicio = 0;
        std::uint16_t longitud = 0; ///< 0 where the token asks for something else at once
        std::int16_t accion = 0;    ///< what the token asks for in the end
    };
    /// Rules that a run has at most.
    static constexpr std::size_t maximo = 32;

    CadenasReglas() : cadenas_(minimoLugares) {}

    /// Forgets every run, as another language asks for.
    void olvida() {
        cadenas_.assign(minimoLugares, {});
        reglas_.clear();
        ocupados_ = 0;
    }

    /// The run at a place, null when none is known.
    const Cadena* en(const Lugar& lugar) const {
        const Cadena& cadena = cadenas_[ranura(lugar)];
        return cadena.estado != 0 && cadena.lugar == lugar ? &cadena : nullptr;
    }
    /// Its rules, in order; the view holds until the next run is stored.
    std::span<const std::int16_t> reglas(const Cadena& cadena) const {
        return std::span(reglas_).subspan(cadena.inicio, cadena.longitud);
    }
    /// Stores a run, perhaps in place of another one; none that ends in the start state, which stands for no
    /// run.
    void guarda(const Lugar& lugar, std::int16_t estado, std::int16_t accion,
                std::span<const std::int16_t> reglas) {
        if (estado == 0) return;
        if (reglas_.size() >= maximoReglas) olvida();
        if (ocupados_ >= cadenas_.size() / 4 && cadenas_.size() < maximoLugares) crece();
        const auto inicio = static_cast<std::uint32_t>(reglas_.size());
        reglas_.insert(reglas_.end(), reglas.begin(), reglas.end()); // the run is known once they are there
        Cadena& sitio = cadenas_[ranura(lugar)];
        if (sitio.estado == 0) ++ocupados_;
        sitio = {lugar, estado, inicio, static_cast<std::uint16_t>(reglas.size()), accion};
    }

private:
    static constexpr std::size_t minimoLugares = 64;
    static constexpr std::size_t maximoLugares = 8192;
    static constexpr std::size_t maximoReglas = 1 << 16; ///< they stay when their run has lost its place

    void crece() {
        const std::vector<Cadena> viejas = std::exchange(cadenas_, std::vector<Cadena>(2 * cadenas_.size()));
        for (const Cadena& cadena : viejas)
            if (cadena.estado != 0) cadenas_[ranura(cadena.lugar)] = cadena;
    }
    std::size_t ranura(const Lugar& lugar) const {
        const auto mezcla = static_cast<std::uint32_t>(lugar.debajo) * 0x9E3779B1U +
                            static_cast<std::uint32_t>(lugar.cima) * 0x85EBCA77U +
                            static_cast<std::uint32_t>(lugar.columna) * 0xC2B2AE3DU;
        return (mezcla >> 16) & (cadenas_.size() - 1);
    }

    std::vector<Cadena> cadenas_; ///< a power of two
    std::vector<std::int16_t> reglas_;
    std::size_t ocupados_ = 0;
};

} // namespace norvik::inline v0_2
