#include "norvik/grammar/tablaSLR.hpp"

namespace norvik {

namespace {

constexpr std::size_t maximoCeldas = std::size_t{1} << 25;

} // namespace

TablaSLR::TablaSLR(std::int16_t filas, std::int16_t columnas) : columnas_(columnas) {
    if (filas < 0 || columnas < 0) throw SubindiceFueraDeIntervalo();
    filas_.resize(static_cast<std::size_t>(filas));
}

void TablaSLR::pon(int fila, int columna, std::int16_t valor) {
    comprueba(fila, columna);
    const bool vacia = filas_[static_cast<std::size_t>(fila) - 1].empty();
    if (vacia && valor == 0) return;
    this->fila(fila)[static_cast<std::size_t>(columna) - 1] = valor;
}

std::span<std::int16_t> TablaSLR::fila(int numero) {
    comprueba(numero, 1);
    auto& valores = filas_[static_cast<std::size_t>(numero) - 1];
    if (valores.empty()) {
        const auto ancho = static_cast<std::size_t>(columnas_);
        if (reservadas_ + ancho > maximoCeldas) throw Desbordamiento();
        valores.resize(ancho);
        reservadas_ += ancho;
    }
    return valores;
}

} // namespace norvik
