// SPDX-License-Identifier: MIT

#include "norvik/grammar/estadoAutomata.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

std::size_t indiceDe(std::int16_t item) {
    if (item < 1 || item > estadoAutomata::maximoItems)
        throw SubindiceFueraDeIntervalo(u"el elemento del estado", item, 1, estadoAutomata::maximoItems);
    return static_cast<std::size_t>(item) - 1;
}

} // namespace

std::int16_t estadoAutomata::getEstadoAdyacente(std::int16_t item) const {
    const std::size_t i = indiceDe(item);
    return i < adyacentes_.size() ? adyacentes_[i] : std::int16_t{0};
}

std::int16_t estadoAutomata::getPosicionPunto(std::int16_t item) const {
    const std::size_t i = indiceDe(item);
    return i < items_.size() ? items_[i].punto : std::int16_t{0};
}

std::int16_t estadoAutomata::getReglaEstado(std::int16_t item) const {
    const std::size_t i = indiceDe(item);
    return i < items_.size() ? items_[i].regla : std::int16_t{0};
}

bool estadoAutomata::poseeConjuntoEstados(const Nucleo& nucleo) const {
    return std::all_of(nucleo.begin(), nucleo.end(),
                       [this](Item item) { return poseeRegla(item.regla, item.punto); });
}

bool estadoAutomata::poseeRegla(std::int16_t regla, std::int16_t punto) const {
    return std::find(items_.begin(), items_.end(), Item{regla, punto}) != items_.end();
}

void estadoAutomata::SetRegla(std::int16_t regla, std::int16_t punto, bool pendiente) {
    if (regla == 0) {
        inicial_ = true;
    } else if (!poseeRegla(regla, punto)) {
        aniade({regla, punto}, pendiente);
    }
}

void estadoAutomata::setTransicion(const Nucleo& nucleo, std::int16_t destino) {
    for (const auto& [regla, punto] : nucleo) {
        const Item anterior = {regla, static_cast<std::int16_t>(punto - 1)};
        const auto sitio = std::find(items_.begin(), items_.end(), anterior);
        if (sitio != items_.end()) adyacentes_[static_cast<std::size_t>(sitio - items_.begin())] = destino;
    }
}

void estadoAutomata::setTransicionIndividual(std::int16_t item, std::int16_t destino) {
    const std::size_t i = indiceDe(item);
    if (i >= adyacentes_.size())
        throw SubindiceFueraDeIntervalo(u"el elemento del estado", item, 1, getNumReglas());
    adyacentes_[i] = destino;
}

void estadoAutomata::aniade(Item item, bool pendiente) {
    if (items_.size() == maximoItems)
        throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: el estado " + aTexto(numEstado_) +
                                        u" del autómata pasa de 1000 elementos");
    items_.push_back(item);
    adyacentes_.push_back(pendiente ? sinCalcular : sinTransicion);
}

} // namespace norvik::inline v0_2
