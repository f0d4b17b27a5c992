// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <vector>

namespace norvik::inline v0_2 {

/// Una regla, desde 1, y cuántos símbolos de su cuerpo hay delante del punto.
struct Item {
    std::int16_t regla = 0;
    std::int16_t punto = 0;

    bool operator==(const Item&) const = default;
};

/// Los pares (regla, punto) a que lleva una transición.
using Nucleo = std::vector<Item>;

/// Un estado del autómata: una lista de elementos distintos, cada uno con el estado a que se llega por el
/// símbolo que lo sigue.
class NORVIK_API estadoAutomata {
public:
    static constexpr std::int16_t maximoItems = 1000;
    static constexpr std::int16_t sinTransicion = -1; ///< el punto está al final
    static constexpr std::int16_t sinCalcular = -2; ///< hay un símbolo detrás, y aún no se sabe adónde lleva

    void copia(const estadoAutomata& otro) { *this = otro; }
    bool esFinal() const { return final_; }
    bool esInicial() const { return inicial_; }
    /// Los elementos van de 1 a 1000; los que no se usan se leen como 0, y otro lanza
    /// `SubindiceFueraDeIntervalo`.
    std::int16_t getEstadoAdyacente(std::int16_t item) const;
    std::int16_t getNumEstado() const { return numEstado_; }
    /// Cuántos elementos tiene.
    std::int16_t getNumReglas() const { return static_cast<std::int16_t>(items_.size()); }
    std::int16_t getPosicionPunto(std::int16_t item) const;
    std::int16_t getReglaEstado(std::int16_t item) const;
    void Inicializa() { *this = estadoAutomata(); }
    /// Verdadero si cada par del núcleo es un elemento suyo.
    bool poseeConjuntoEstados(const Nucleo& nucleo) const;
    bool poseeRegla(std::int16_t regla, std::int16_t punto) const;
    void setFinal() { final_ = true; }
    void setInicial() { inicial_ = true; }
    void setNumEstado(std::int16_t numero) { numEstado_ = numero; }
    /// Añade un elemento si no está; con la regla 0 el estado es inicial. Lanza `SubindiceFueraDeIntervalo`
    /// en el elemento 1001.
    void SetRegla(std::int16_t regla, std::int16_t punto, bool pendiente);
    /// Pone adónde llevan los elementos de que vienen los pares de un núcleo.
    void setTransicion(const Nucleo& nucleo, std::int16_t destino);
    void setTransicionIndividual(std::int16_t item, std::int16_t destino);

    /// Añade un elemento que se sabe que no está.
    void aniade(Item item, bool pendiente);
    const std::vector<Item>& items() const { return items_; }
    /// Adónde lleva cada uno.
    const std::vector<std::int16_t>& adyacentes() const { return adyacentes_; }

private:
    std::int16_t numEstado_ = -1;
    bool inicial_ = false;
    bool final_ = false;
    std::vector<Item> items_;
    std::vector<std::int16_t> adyacentes_;
};

} // namespace norvik::inline v0_2
