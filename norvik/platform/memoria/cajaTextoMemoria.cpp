#include "norvik/platform/memoria/cajaTextoMemoria.hpp"

#include "norvik/base/numeros.hpp"

#include <algorithm>

namespace norvik {

const IndiceLineas& CajaTextoMemoria::lineas() const {
    if (!lineasAlDia_) lineas_.reconstruye(texto_);
    lineasAlDia_ = true;
    return lineas_;
}

std::int32_t CajaTextoMemoria::lineaDeCaracter(std::int32_t posicion) const {
    return lineas().lineaDe(posicion);
}

std::int32_t CajaTextoMemoria::inicioDeLinea(std::int32_t linea) const {
    return lineas().inicioDe(linea);
}

std::int32_t CajaTextoMemoria::numeroDeLineas() const {
    return lineas().numLineas();
}

void CajaTextoMemoria::ponTexto(std::u16string_view texto) {
    a32(texto.size());
    std::vector<std::int32_t> colores(texto.size(), 0);
    texto_ = texto;
    colores_ = std::move(colores);
    const bool otraSeleccion = inicio_ != 0 || longitud_ != 0;
    inicio_ = longitud_ = 0;
    modificado_ = false;
    avisaDelCambio(otraSeleccion);
}

void CajaTextoMemoria::selecciona(std::int32_t inicio, std::int32_t longitud) {
    const auto total = static_cast<std::int32_t>(texto_.size());
    const std::int32_t desde = std::clamp(inicio, 0, total);
    const std::int32_t cuantos = std::clamp(longitud, 0, total - desde);
    if (desde == inicio_ && cuantos == longitud_) return;
    inicio_ = desde;
    longitud_ = cuantos;
    colorDeEscritura_.reset();
    if (eventos.cambioDeSeleccion) eventos.cambioDeSeleccion();
}

std::u16string CajaTextoMemoria::textoSeleccionado() const {
    return texto_.substr(static_cast<std::size_t>(inicio_), static_cast<std::size_t>(longitud_));
}

void CajaTextoMemoria::reemplazaSeleccion(std::u16string_view texto) {
    if (texto.empty() && longitud_ == 0) return;
    const std::u16string nuevo(texto); // the view may be of this very text
    const std::int32_t color = colorSeleccion();
    const auto cuantos = a32(nuevo.size());
    texto_.reserve(static_cast<std::size_t>(a32(texto_.size() + nuevo.size()))); // below, nothing fails

    const auto comunes = std::min(cuantos, longitud_);
    const auto desde = colores_.begin() + inicio_;
    std::fill(desde, desde + comunes, color);
    if (cuantos > comunes)
        colores_.insert(desde + comunes, static_cast<std::size_t>(cuantos - comunes), color);
    if (longitud_ > comunes) colores_.erase(desde + comunes, desde + longitud_);
    texto_.replace(static_cast<std::size_t>(inicio_), static_cast<std::size_t>(longitud_), nuevo);

    const bool otraSeleccion = cuantos != 0 || longitud_ != 0;
    inicio_ += cuantos;
    longitud_ = 0;
    modificado_ = true;
    avisaDelCambio(otraSeleccion);
}

void CajaTextoMemoria::avisaDelCambio(bool otraSeleccion) {
    lineasAlDia_ = false;
    colorDeEscritura_.reset();
    if (eventos.cambio) eventos.cambio();
    if (otraSeleccion && eventos.cambioDeSeleccion) eventos.cambioDeSeleccion();
}

void CajaTextoMemoria::ponColorSeleccion(std::int32_t color) {
    if (longitud_ == 0) {
        colorDeEscritura_ = color;
        return;
    }
    const auto desde = colores_.begin() + inicio_;
    std::fill(desde, desde + longitud_, color);
}

std::int32_t CajaTextoMemoria::colorSeleccion() const {
    if (longitud_ > 0) return colores_[static_cast<std::size_t>(inicio_)];
    if (colorDeEscritura_) return *colorDeEscritura_;
    if (colores_.empty()) return 0;
    return colores_[static_cast<std::size_t>(std::max(inicio_ - 1, 0))];
}

std::vector<TramoDeColor> CajaTextoMemoria::colores() const {
    std::vector<TramoDeColor> tramos;
    for (auto desde = colores_.begin(); desde != colores_.end();) {
        const auto hasta = std::find_if(desde, colores_.end(), [&](std::int32_t c) { return c != *desde; });
        tramos.push_back({static_cast<std::int32_t>(desde - colores_.begin()),
                          static_cast<std::int32_t>(hasta - desde), *desde});
        desde = hasta;
    }
    return tramos;
}

} // namespace norvik
