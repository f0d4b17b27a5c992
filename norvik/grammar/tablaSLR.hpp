#pragma once

#include "norvik/base/errores.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace norvik {

/// A table of 16-bit numbers, all 0 at first. A row takes memory once something is written in it, so that
/// absurd dimensions cost nothing until they are filled.
class TablaSLR {
public:
    TablaSLR() = default;
    /// Raises `SubindiceFueraDeIntervalo` for negative dimensions.
    TablaSLR(std::int16_t filas, std::int16_t columnas);

    std::int16_t filas() const { return static_cast<std::int16_t>(filas_.size()); }
    std::int16_t columnas() const { return columnas_; }

    /// 1-based row and column; raises `SubindiceFueraDeIntervalo`.
    std::int16_t en(int fila, int columna) const {
        comprueba(fila, columna);
        const auto& valores = filas_[static_cast<std::size_t>(fila) - 1];
        return valores.empty() ? std::int16_t{0} : valores[static_cast<std::size_t>(columna) - 1];
    }
    /// The cells of a row, to be read; none when nothing was written in it. Raises the same.
    std::span<const std::int16_t> filaGuardada(int numero) const {
        compruebaFila(numero);
        return filas_[static_cast<std::size_t>(numero) - 1];
    }
    /// Raises also `Desbordamiento` when more than 2^25 cells would be kept.
    void pon(int fila, int columna, std::int16_t valor);
    /// The cells of a row, to be written; raises the same.
    std::span<std::int16_t> fila(int numero);

private:
    void compruebaFila(int fila) const {
        if (fila < 1 || static_cast<std::size_t>(fila) > filas_.size()) throw SubindiceFueraDeIntervalo();
    }
    void comprueba(int fila, int columna) const {
        compruebaFila(fila);
        if (columna < 1 || columna > columnas_) throw SubindiceFueraDeIntervalo();
    }

    std::vector<std::vector<std::int16_t>> filas_;
    std::int16_t columnas_ = 0;
    std::size_t reservadas_ = 0;
};

} // namespace norvik
