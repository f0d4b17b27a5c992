// SPDX-License-Identifier: MIT

#include "norvik/grammar/celdas.hpp"

#include "norvik/base/texto.hpp"

#include <limits>
#include <string>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t maximoCeldas = std::size_t{1} << 25;

} // namespace

Celdas::Celdas(std::int16_t filas, std::int16_t columnas) : numFilas_(filas), columnas_(columnas) {
    constexpr std::int16_t maximo = std::numeric_limits<std::int16_t>::max();
    if (filas < 0) throw SubindiceFueraDeIntervalo(u"el número de filas de la tabla", filas, 0, maximo);
    if (columnas < 0)
        throw SubindiceFueraDeIntervalo(u"el número de columnas de la tabla", columnas, 0, maximo);
}

std::vector<std::int16_t>& Celdas::filaPara(int fila) {
    const auto numero = static_cast<std::size_t>(fila);
    if (numero > filas_.size()) filas_.resize(numero);
    return filas_[numero - 1];
}

/// A row with room for all its columns.
std::vector<std::int16_t>& Celdas::ensancha(int fila) {
    auto& valores = filaPara(fila);
    const auto ancho = static_cast<std::size_t>(columnas_);
    reserva(ancho - valores.size());
    valores.resize(ancho);
    return valores;
}

void Celdas::ponFila(int fila, std::span<const std::int16_t> valores) {
    compruebaFila(fila);
    valores = valores.first(finSinCeros(valores));
    reserva(valores.size());
    if (filas_.empty()) filas_.reserve(static_cast<std::size_t>(numFilas_));
    filaPara(fila).assign(valores.begin(), valores.end());
}

void Celdas::reserva(std::size_t celdas) {
    if (reservadas_ + celdas > maximoCeldas)
        throw Desbordamiento(u"Desbordamiento: la tabla pasa de " + aTexto(maximoCeldas) + u" celdas");
    reservadas_ += celdas;
}

} // namespace norvik::inline v0_2
