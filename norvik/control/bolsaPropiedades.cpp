// SPDX-License-Identifier: MIT

#include "norvik/control/bolsaPropiedades.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <limits>

namespace norvik::inline v0_2 {

namespace {

constexpr std::int64_t unidad = 10000;

/// Narrows a number of a key.
template <typename Destino>
Destino cabe(std::u16string_view clave, std::int64_t valor) {
    if (valor < std::numeric_limits<Destino>::min() || valor > std::numeric_limits<Destino>::max()) {
        throw Desbordamiento(u"Desbordamiento: el valor de «" + std::u16string(clave) +
                             u"» no cabe en su propiedad");
    }
    return static_cast<Destino>(valor);
}

[[noreturn]] void otroTipo(std::u16string_view clave) {
    throw NoCoincidenLosTipos(u"No coinciden los tipos: el valor de «" + std::u16string(clave) +
                              u"» no es de la clase de su propiedad");
}

} // namespace

const BolsaPropiedades::Valor* BolsaPropiedades::busca(std::u16string_view clave) const {
    const auto i =
        std::find_if(valores_.begin(), valores_.end(), [&](const auto& v) { return v.first == clave; });
    return i == valores_.end() ? nullptr : &i->second;
}

void BolsaPropiedades::pon(std::u16string_view clave, Valor valor) {
    const auto i =
        std::find_if(valores_.begin(), valores_.end(), [&](const auto& v) { return v.first == clave; });
    if (i != valores_.end()) {
        i->second = std::move(valor);
    } else {
        valores_.emplace_back(clave, std::move(valor));
    }
}

/// Null when the key is absent.
template <typename Tipo>
const Tipo* BolsaPropiedades::leeComo(std::u16string_view clave) const {
    const Valor* valor = busca(clave);
    if (valor == nullptr) return nullptr;
    const Tipo* leido = std::get_if<Tipo>(valor);
    if (leido == nullptr) otroTipo(clave);
    return leido;
}

bool BolsaPropiedades::leeBooleano(std::u16string_view clave, bool omision) const {
    const auto* valor = leeComo<bool>(clave);
    return valor == nullptr ? omision : *valor;
}

std::int64_t BolsaPropiedades::leeEntero(std::u16string_view clave, std::int64_t omision) const {
    const auto* valor = leeComo<Numero>(clave);
    if (valor == nullptr) return omision;
    if (valor->diezmilesimas % unidad != 0) otroTipo(clave);
    return valor->diezmilesimas / unidad;
}

std::int16_t BolsaPropiedades::lee16(std::u16string_view clave, std::int16_t omision) const {
    return cabe<std::int16_t>(clave, leeEntero(clave, omision));
}

std::int32_t BolsaPropiedades::lee32(std::u16string_view clave, std::int32_t omision) const {
    return cabe<std::int32_t>(clave, leeEntero(clave, omision));
}

std::int32_t BolsaPropiedades::leeDecimal(std::u16string_view clave, std::int32_t omision) const {
    const auto* valor = leeComo<Numero>(clave);
    return valor == nullptr ? omision : cabe<std::int32_t>(clave, valor->diezmilesimas);
}

std::u16string BolsaPropiedades::leeTexto(std::u16string_view clave, std::u16string_view omision) const {
    const auto* valor = leeComo<std::u16string>(clave);
    return valor == nullptr ? std::u16string(omision) : *valor;
}

void BolsaPropiedades::escribeBooleano(std::u16string_view clave, bool valor, bool omision) {
    if (valor != omision) pon(clave, valor);
}

void BolsaPropiedades::escribeEntero(std::u16string_view clave, std::int32_t valor, std::int32_t omision) {
    if (valor != omision) pon(clave, Numero{valor * unidad});
}

void BolsaPropiedades::escribeDecimal(std::u16string_view clave, std::int32_t valor, std::int32_t omision) {
    if (valor != omision) pon(clave, Numero{valor});
}

void BolsaPropiedades::escribeTexto(std::u16string_view clave, std::u16string_view valor,
                                    std::u16string_view omision) {
    if (valor != omision) pon(clave, std::u16string(valor));
}

void BolsaPropiedades::escribeFuente(std::u16string_view clave, const Fuente& valor, const Fuente& omision) {
    if (valor != omision) pon(clave, valor);
}

BolsaPropiedades BolsaPropiedades::deFichero(const std::filesystem::path& fichero) {
    return deJson(leeBytes(fichero));
}

void BolsaPropiedades::aFichero(const std::filesystem::path& fichero) const {
    escribeBytes(fichero, aJson(), Durabilidad::EnDisco);
}

} // namespace norvik::inline v0_2
