// SPDX-License-Identifier: MIT

#include "norvik/control/marcas.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/control/guardas.hpp"

namespace norvik {

namespace {

/// End of a line (0-based) without its line break.
std::int32_t finDeLinea(const CajaTexto& caja, std::int32_t linea) {
    const std::u16string_view texto = caja.texto();
    const std::int32_t siguiente = caja.inicioDeLinea(linea + 1);
    if (siguiente < 0) return static_cast<std::int32_t>(texto.size());
    const auto hastaElSalto = texto.substr(0, static_cast<std::size_t>(siguiente));
    return siguiente - (hastaElSalto.ends_with(u"\r\n") ? 2 : 1);
}

} // namespace

void Marcas::marcaLinea(std::int32_t linea, std::int32_t color) {
    estado_.lineaMarcada = linea;
    const std::int32_t inicio = linea < 1 ? -1 : caja_->inicioDeLinea(linea - 1);
    if (inicio < 0) return;
    pinta(inicio, finDeLinea(*caja_, linea - 1), color);
}

void Marcas::marcaToken(std::int32_t inicio, std::int32_t fin, std::int32_t linea, std::int32_t color) {
    pinta(inicio, fin, color);
    estado_.lineaMarcada = linea;
}

/// Leaves the caret where it was, with nothing selected.
void Marcas::pinta(std::int32_t inicio, std::int32_t fin, std::int32_t color) {
    const MarcaOcupado ocupado(estado_.ocupado);
    const EdicionSilenciosa silenciosa(caja_);
    const std::int32_t cursor = caja_->inicioSeleccion();
    if (inicio < fin) { // painting an empty selection would colour what is typed next
        caja_->selecciona(inicio, fin - inicio);
        caja_->ponColorSeleccion(color);
    }
    caja_->selecciona(cursor, 0);
    estado_.lineaEnEdicion = false;
}

const signoDebuger& Marcas::ponSigno(std::int16_t linea) {
    constexpr std::size_t primero = 2;
    const std::int16_t indice =
        a16(signos_.size() + primero, u"el índice de la señal"); // signs are never taken away
    return signos_.emplace(indice, signoDebuger{indice, signoDebuger::error, linea}).first->second;
}

} // namespace norvik
