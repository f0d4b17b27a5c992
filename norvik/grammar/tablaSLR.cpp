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
    const auto sitio = static_cast<std::size_t>(columna) - 1;
    if (sitio >= valores.size()) {
        if (valor == 0) return;
        const auto ancho = static_cast<std::size_t>(columnas_);
        reserva(ancho - valores.size());
        valores.resize(ancho);
    }
    valores[sitio] = valor;
}

void TablaSLR::ponFila(int fila, std::span<const std::int16_t> valores) {
    compruebaFila(fila);
    const auto fin =
        std::find_if(valores.rbegin(), valores.rend(), [](std::int16_t v) { return v != 0; }).base();
    reserva(static_cast<std::size_t>(fin - valores.begin()));
    filas_[static_cast<std::size_t>(fila) - 1].assign(valores.begin(), fin);
}

void TablaSLR::reserva(std::size_t celdas) {
    if (reservadas_ + celdas > maximoCeldas) throw Desbordamiento();
    reservadas_ += celdas;
}

} // namespace norvik
