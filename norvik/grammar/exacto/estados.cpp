// SPDX-License-Identifier: MIT

#include "norvik/grammar/exacto/estados.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/grammar/tablaLR.hpp"

#include <algorithm>
#include <optional>
#include <tuple>

namespace norvik::inline v0_2::exacto {

bool vaDelante(const Item& uno, const Item& otro) {
    return std::tie(uno.regla, uno.punto) < std::tie(otro.regla, otro.punto);
}

Simbolo simboloTras(const Producciones& producciones, Item item) {
    if (item.regla == 0) return item.punto == 0 ? producciones.inicial() : ReglasPartidas::sinSimbolo;
    const Cuerpo cuerpo = producciones.cuerpo(item.regla);
    const auto punto = static_cast<std::size_t>(item.punto);
    return punto < cuerpo.size() ? cuerpo[punto] : ReglasPartidas::sinSimbolo;
}

std::vector<std::int16_t> cierre(const Producciones& producciones, const std::vector<Item>& nucleo) {
    std::vector<bool> abiertas(producciones.numSimbolos());
    std::vector<std::int16_t> reglas;
    const auto abre = [&](Item item) {
        const Simbolo simbolo = simboloTras(producciones, item);
        const bool sinReglas =
            simbolo == ReglasPartidas::sinSimbolo || (item.regla != 0 && !producciones.esVariable(simbolo));
        if (sinReglas || abiertas[Producciones::indice(simbolo)]) return;
        abiertas[Producciones::indice(simbolo)] = true;
        const auto& suyas = producciones.de(simbolo);
        reglas.insert(reglas.end(), suyas.begin(), suyas.end());
    };
    for (const Item item : nucleo) abre(item);
    for (std::size_t i = 0; i < reglas.size();) abre({reglas[i++], 0}); // they grow meanwhile
    return reglas;
}

namespace {

class Numeracion {
public:
    explicit Numeracion(const std::vector<EstadoLR>& estados) : numeros_(estados.size()) {}

    std::int16_t de(std::size_t estado) {
        auto& numero = numeros_[estado];
        if (numero) return *numero;
        if (orden_.size() + 1 == static_cast<std::size_t>(TablaLR::aceptar))
            throw Desbordamiento(u"Desbordamiento: el autómata de la gramática pasa de 999 estados");
        orden_.push_back(estado);
        return *(numero = static_cast<std::int16_t>(orden_.size() - 1));
    }
    const std::vector<std::size_t>& orden() const { return orden_; }

private:
    std::vector<std::optional<std::int16_t>> numeros_;
    std::vector<std::size_t> orden_;
};

estadoAutomata conItems(const Producciones& producciones, const EstadoLR& estado, std::int16_t numero,
                        Numeracion& numeracion) {
    estadoAutomata acabado;
    acabado.setNumEstado(numero);
    if (numero == 0) acabado.setInicial();
    const auto aniade = [&](Item item) {
        const Simbolo simbolo = simboloTras(producciones, item);
        const bool pendiente = simbolo != ReglasPartidas::sinSimbolo;
        acabado.aniade(item, pendiente);
        if (!pendiente) return;
        const auto sitio =
            std::ranges::find(estado.destinos, simbolo, &std::pair<Simbolo, std::size_t>::first);
        acabado.setTransicionIndividual(acabado.getNumReglas(), numeracion.de(sitio->second));
    };
    for (const Item item : estado.nucleo)
        if (item.regla != 0) aniade(item);
    for (const std::int16_t regla : cierre(producciones, estado.nucleo)) aniade({regla, 0});
    return acabado;
}

} // namespace

AutomataLR acaba(const Producciones& producciones, const std::vector<EstadoLR>& estados) {
    AutomataLR automata;
    Numeracion numeracion(estados);
    numeracion.de(0);
    numeracion.de(std::ranges::find(estados[0].destinos, producciones.inicial(),
                                    &std::pair<Simbolo, std::size_t>::first)
                      ->second);
    for (std::size_t i = 0; i < numeracion.orden().size(); ++i) {
        producciones.exigeSeguir();
        const EstadoLR& estado = estados[numeracion.orden()[i]];
        automata.estados.push_back(conItems(producciones, estado, static_cast<std::int16_t>(i), numeracion));
    }
    return automata;
}

} // namespace norvik::inline v0_2::exacto
