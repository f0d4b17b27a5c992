// SPDX-License-Identifier: MIT

#include "norvik/grammar/exacto/nucleoLr1.hpp"

#include "norvik/grammar/exacto/estados.hpp"

#include <cstddef>
#include <deque>

namespace norvik::inline v0_2::exacto {

std::map<Simbolo, Bits> adelantosDelCierre(const Producciones& producciones, const NucleoLr1& nucleo) {
    std::map<Simbolo, Bits> adelantos;
    std::deque<Simbolo> pendientes;
    const auto reparte = [&](Item item, const Bits& suyos) {
        const Simbolo simbolo = simboloTras(producciones, item);
        const bool abre =
            simbolo != ReglasPartidas::sinSimbolo && (item.regla == 0 || producciones.esVariable(simbolo));
        if (!abre) return;
        const Cuerpo resto =
            item.regla == 0
                ? Cuerpo()
                : producciones.cuerpo(item.regla).subspan(static_cast<std::size_t>(item.punto) + 1);
        Bits detras = suyos.vacioIgual();
        if (producciones.uneComienzo(resto, detras)) detras.une(suyos);
        const auto [sitio, primera] = adelantos.try_emplace(simbolo, suyos.vacioIgual());
        if (sitio->second.une(detras) || primera) pendientes.push_back(simbolo);
    };
    for (const auto& [item, suyos] : nucleo) reparte(item, suyos);
    while (!pendientes.empty()) {
        const Simbolo variable = pendientes.front();
        pendientes.pop_front();
        const Bits suyos = adelantos.at(variable);
        for (const std::int16_t regla : producciones.de(variable)) reparte({regla, 0}, suyos);
    }
    return adelantos;
}

} // namespace norvik::inline v0_2::exacto
