// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

/// A table of 16-bit numbers, all 0 at first. A row takes memory once something is written in it or behind
/// it, so that absurd dimensions cost nothing until they are filled, and one that is written whole takes none
/// for the zeros at its end.
class Celdas {
public:
    Celdas() = default;
    /// Raises `SubindiceFueraDeIntervalo` for negative dimensions.
    Celdas(std::int16_t filas, std::int16_t columnas);

    std::int16_t filas() const { return numFilas_; }
    std::int16_t columnas() const { return columnas_; }

    /// 1-based row and column; raises `SubindiceFueraDeIntervalo`.
    std::int16_t en(int fila, int columna) const {
        comprueba(fila, columna);
        const std::span<const std::int16_t> valores = filaGuardada(fila);
        const auto sitio = static_cast<std::size_t>(columna) - 1;
        return sitio < valores.size() ? valores[sitio] : std::int16_t{0};
    }
    /// The cells of a row, to be read; those that are missing at its end are 0. Raises the same.
    std::span<const std::int16_t> filaGuardada(int numero) const {
        compruebaFila(numero);
        const auto sitio = static_cast<std::size_t>(numero) - 1;
        if (sitio >= filas_.size()) return {};
        return filas_[sitio];
    }
    /// Calls with the 1-based column and the value of each entry other than 0 in the first columns of a row,
    /// from left to right; raises the same.
    template <typename Accion>
    void paraCadaEntrada(int fila, std::int16_t columnas, const Accion& accion) const {
        std::span<const std::int16_t> valores = filaGuardada(fila);
        valores = valores.first(std::min(valores.size(), static_cast<std::size_t>(columnas)));
        for (std::size_t c = saltaCeros(valores, 0); c < valores.size(); c = saltaCeros(valores, c + 1))
            accion(static_cast<std::int16_t>(c + 1), valores[c]);
    }
    /// Raises also `Desbordamiento` when more than 2^25 cells would be kept.
    void pon(int fila, int columna, std::int16_t valor) {
        comprueba(fila, columna);
        const auto numero = static_cast<std::size_t>(fila) - 1;
        const auto sitio = static_cast<std::size_t>(columna) - 1;
        if (numero < filas_.size() && sitio < filas_[numero].size())
            filas_[numero][sitio] = valor;
        else if (valor != 0)
            ensancha(fila)[sitio] = valor;
    }
    /// Writes a whole row, which has a value for each column; raises the same.
    void ponFila(int fila, std::span<const std::int16_t> valores);

private:
    void compruebaFila(int fila) const {
        if (fila < 1 || fila > numFilas_)
            throw SubindiceFueraDeIntervalo(u"en la tabla, la fila", fila, 1, numFilas_);
    }
    void comprueba(int fila, int columna) const {
        compruebaFila(fila);
        if (columna < 1 || columna > columnas_)
            throw SubindiceFueraDeIntervalo(u"en la tabla, la columna", columna, 1, columnas_);
    }

    // Most of a table is 0: it is read four values at a time.
    static constexpr std::size_t paso = sizeof(std::uint64_t) / sizeof(std::int16_t);
    static bool sonCeros(const std::int16_t* valores) {
        std::uint64_t cuatro = 0;
        std::memcpy(&cuatro, valores, sizeof cuatro);
        return cuatro == 0;
    }
    // Place of the first value other than 0, from a place on; the size if none.
    static std::size_t saltaCeros(std::span<const std::int16_t> valores, std::size_t desde) {
        while (desde + paso <= valores.size() && sonCeros(valores.data() + desde)) desde += paso;
        while (desde < valores.size() && valores[desde] == 0) ++desde;
        return desde;
    }
    // Place behind the last value other than 0.
    static std::size_t finSinCeros(std::span<const std::int16_t> valores) {
        std::size_t fin = valores.size();
        while (fin >= paso && sonCeros(valores.data() + (fin - paso))) fin -= paso;
        while (fin > 0 && valores[fin - 1] == 0) --fin;
        return fin;
    }
    std::vector<std::int16_t>& filaPara(int fila);
    std::vector<std::int16_t>& ensancha(int fila);
    void reserva(std::size_t celdas);

    std::vector<std::vector<std::int16_t>> filas_; // up to the last that was written
    std::int16_t numFilas_ = 0;
    std::int16_t columnas_ = 0;
    std::size_t reservadas_ = 0;
};

} // namespace norvik::inline v0_2
