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
    auto& valores = filas_[static_cast<std::size_t>(fila) - 1];
    if (valores.empty()) {
        if (valor == 0) return;
        const auto ancho = static_cast<std::size_t>(columnas_);
        if (reservadas_ + ancho > maximoCeldas) throw Desbordamiento();
        valores.resize(ancho);
        reservadas_ += ancho;
    }
    valores[static_cast<std::size_t>(columna) - 1] = valor;
}

} // namespace norvik
