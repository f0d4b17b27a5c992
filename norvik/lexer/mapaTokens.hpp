// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/pattern/mapaCoincidencias.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class expresionRegular;

/// Los tokens de un texto por la posición en que empiezan, desde 1: como mucho uno en cada una. Buscar cuesta
/// lo mismo en cualquier texto. El mapa guarda el texto de que se hizo.
class NORVIK_API MapaTokens {
public:
    struct Entrada {
        const expresionRegular* definicion = nullptr;
        std::int32_t longitud = 0;
        std::u16string_view texto; ///< lo que casó; vale hasta el reconocimiento siguiente
    };
    /// Lo mismo en breve: la definición por su lugar, desde 0, en el orden en que se registraron, y la
    /// longitud.
    using Ganadora = MapaCoincidencias::Ganadora;

    /// Las definiciones sobreviven al mapa.
    explicit MapaTokens(const std::vector<const expresionRegular*>& definiciones)
        : definiciones_(&definiciones) {}
    MapaTokens(const MapaTokens&) = delete;
    MapaTokens& operator=(const MapaTokens&) = delete;
    ~MapaTokens() = default;

    void vacia();
    /// Vacía el mapa para un texto que empieza en una posición, y da lo que hay que llenar.
    MapaCoincidencias& reinicia(std::int32_t inicio, std::u16string_view texto);
    /// La entrada de una posición, o nada, también fuera de lo reconocido. Al final puede haber un token de
    /// longitud 0.
    std::optional<Entrada> en(std::int32_t posicion) const;
    std::optional<Ganadora> ganadoraEn(std::int32_t posicion) const {
        return coincidencias_.en(indice(posicion));
    }
    /// El texto reconocido; vale hasta el reconocimiento siguiente.
    std::u16string_view texto() const { return texto_; }
    /// Lo que casó en una entrada, que ha de ser del mapa.
    std::u16string_view texto(std::int32_t posicion, const Ganadora& ganadora) const {
        return std::u16string_view(texto_).substr(indice(posicion),
                                                  static_cast<std::size_t>(ganadora.longitud));
    }
    void borra(std::int32_t posicion) { coincidencias_.borra(indice(posicion)); }
    bool esVacio() const;
    /// Una línea por entrada, «posición longitud token», en el orden de las posiciones.
    std::u16string toString() const;

private:
    std::size_t indice(std::int32_t posicion) const {
        return static_cast<std::size_t>(static_cast<std::uint32_t>(posicion - inicio_));
    }

    const std::vector<const expresionRegular*>* definiciones_;
    std::int32_t inicio_ = 1;
    std::u16string texto_;
    MapaCoincidencias coincidencias_;
};

} // namespace norvik::inline v0_2
