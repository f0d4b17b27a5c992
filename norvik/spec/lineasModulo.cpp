// SPDX-License-Identifier: MIT

#include "norvik/spec/lineasModulo.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <utility>

namespace norvik::inline v0_2 {

void LineasModulo::falla(std::u16string texto) const {
    throw ErrorModulo{linea_, std::move(texto)};
}

void LineasModulo::fallaEspera(std::u16string_view trozo) const {
    falla(std::u16string(u"se esperaba «").append(recorta(trozo)).append(u"»"));
}

bool LineasModulo::pideMas(std::size_t cuantos) {
    if (origen_ == nullptr) return false;
    trozo_.erase(0, trozo_.size() - texto_.size());
    while (trozo_.size() < cuantos && origen_ != nullptr) {
        const std::u16string pieza = (*origen_)();
        if (pieza.empty()) origen_ = nullptr;
        trozo_ += pieza;
    }
    texto_ = trozo_;
    return texto_.size() >= cuantos;
}

void LineasModulo::linea(std::u16string_view trozo, std::u16string_view otro, std::u16string_view ultimo) {
    saltaBlancos();
    const std::u16string entera = std::u16string(trozo).append(otro).append(ultimo);
    sigue(entera);
    acaba();
}

void LineasModulo::fin() {
    saltaBlancos();
    if (hay(1)) falla(u"sobra texto tras el último procedimiento");
}

std::u16string LineasModulo::cadena() {
    const std::int32_t suLinea = linea_;
    std::u16string contenido = cadenaLarga();
    if (linea_ != suLinea) {
        linea_ = suLinea;
        falla(u"falta la comilla que cierra un texto");
    }
    return contenido;
}

std::u16string LineasModulo::cadenaLarga() {
    sigue(u"\"");
    std::size_t largo = 0;
    for (; hay(largo + 1) && texto_[largo] != u'"'; ++largo) {
    }
    if (!hay(largo + 1)) falla(u"falta la comilla que cierra un texto");
    std::u16string contenido(texto_.substr(0, largo));
    for (; texto_.front() != u'"'; texto_.remove_prefix(1))
        if (acabaLinea()) ++linea_;
    texto_.remove_prefix(1);
    return contenido;
}

std::u16string LineasModulo::cadenaConComillas() {
    std::u16string entera = cadenaLarga();
    while (consume(u" & Chr$(34) & ")) entera.append(u"\"").append(cadenaLarga());
    return entera;
}

} // namespace norvik::inline v0_2
