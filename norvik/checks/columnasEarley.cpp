// SPDX-License-Identifier: MIT

// Earley (1970), with the step of Aycock and Horspool (2002) for what can be empty: an item that waits for
// such a variable goes past it at once, so that a column is closed in one walk over its items. The shortest
// way on is a least fixpoint over pairs of a column and a variable begun there: what is still to come after
// it.
#include "norvik/checks/columnasEarley.hpp"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

ColumnasEarley::ColumnasEarley(const exacto::Producciones& producciones, const DerivacionesMinimas& minimas)
    : producciones_(producciones), minimas_(minimas), predichas_(producciones.numSimbolos()) {
    numeraItems();
    columnas_.emplace_back();
    largos_.push_back(0);
    predice(0, producciones_.inicial());
    cierra(0);
}

void ColumnasEarley::numeraItems() {
    std::size_t items = 0;
    primerItem_.push_back(0); // rules count from 1
    for (int regla = 1; regla <= producciones_.reglas().numReglas(); ++regla) {
        primerItem_.push_back(items);
        items += producciones_.cuerpo(static_cast<std::int16_t>(regla)).size() + 1;
    }
    puestos_.resize(items);
}

std::size_t ColumnasEarley::avanza(std::size_t columna, Simbolo token) {
    const std::size_t nueva = columnas_.size();
    columnas_.emplace_back();
    largos_.push_back(largos_[columna] + 1);
    for (const Item& item : columnas_[columna])
        if (item.siguiente == token) pon(nueva, pasado(item));
    cierra(nueva);
    return nueva;
}

Simbolo ColumnasEarley::tras(const Item& item) const {
    const Cuerpo cuerpo = producciones_.cuerpo(item.regla);
    const auto punto = static_cast<std::size_t>(item.punto);
    return punto < cuerpo.size() ? cuerpo[punto] : ReglasPartidas::sinSimbolo;
}

Cuerpo ColumnasEarley::resto(const Item& item, std::size_t desde) const {
    return producciones_.cuerpo(item.regla).subspan(static_cast<std::size_t>(item.punto) + desde);
}

// Those of one column began in columns of its own beginning: no two are of the same length.
std::vector<bool>::reference ColumnasEarley::puesto(const Item& item) {
    const std::size_t primero = primerItem_[static_cast<std::size_t>(item.regla)];
    std::vector<bool>& suyos = puestos_[primero + static_cast<std::size_t>(item.punto)];
    const std::size_t largo = largos_[item.origen];
    if (largo >= suyos.size()) suyos.resize(largo + 1);
    return suyos[largo];
}

void ColumnasEarley::pon(std::size_t cual, Item item) {
    auto esta = puesto(item);
    if (esta) return;
    esta = true;
    item.siguiente = tras(item);
    columnas_[cual].push_back(item);
    ++trabajo_;
}

void ColumnasEarley::predice(std::size_t cual, Simbolo variable) {
    if (std::exchange(predichas_[exacto::Producciones::indice(variable)], cual + 1) == cual + 1) return;
    for (const std::int16_t regla : producciones_.de(variable))
        if (minimas_.produce(producciones_.cuerpo(regla)))
            pon(cual, {regla, 0, static_cast<std::uint32_t>(cual)});
}

void ColumnasEarley::cierra(std::size_t cual) {
    for (std::size_t i = 0; i < columnas_[cual].size(); ++i) {
        const Item item = columnas_[cual][i];
        if (item.siguiente == ReglasPartidas::sinSimbolo) {
            if (item.origen == cual) continue; // empty: whoever waits for it is past it
            const Simbolo cabeza = producciones_.reglas().cabeza(item.regla);
            for (const Item& espera : columnas_[item.origen])
                if (espera.siguiente == cabeza) pon(cual, pasado(espera));
        } else if (producciones_.esVariable(item.siguiente)) {
            predice(cual, item.siguiente);
            if (producciones_.esAnulable(item.siguiente)) pon(cual, pasado(item));
        }
    }
    for (const Item& item : columnas_[cual]) puesto(item) = false;
}

bool ColumnasEarley::acepta(std::size_t columna) const {
    return std::ranges::any_of(columnas_[columna], [&](const Item& item) {
        return item.origen == 0 && item.siguiente == ReglasPartidas::sinSimbolo &&
               producciones_.reglas().cabeza(item.regla) == producciones_.inicial();
    });
}

std::set<Simbolo> ColumnasEarley::siguientes(std::size_t columna) const {
    std::set<Simbolo> tokens;
    for (const Item& item : columnas_[columna])
        if (item.siguiente != ReglasPartidas::sinSimbolo && !producciones_.esVariable(item.siguiente))
            tokens.insert(item.siguiente);
    return tokens;
}

std::vector<Simbolo> ColumnasEarley::completa(std::size_t columna) const {
    using Pedido = std::pair<std::size_t, Simbolo>; // what comes after a variable begun in a column
    struct Respuesta {
        std::int32_t tokens = DerivacionesMinimas::maximo;
        std::optional<Item> espera; // none at the end of the text
    };
    std::map<Pedido, Respuesta> respuestas;
    const auto pedidoDe = [&](const Item& item) {
        return Pedido(item.origen, producciones_.reglas().cabeza(item.regla));
    };
    std::vector<Pedido> pedidos;
    const auto pide = [&](const Pedido& pedido) {
        if (respuestas.try_emplace(pedido).second) pedidos.push_back(pedido);
    };
    for (const Item& item : columnas_[columna]) pide(pedidoDe(item));
    std::size_t porMirar = 0;
    while (porMirar < pedidos.size()) { // they grow meanwhile
        const Pedido pedido = pedidos[porMirar++];
        if (pedido == Pedido(0, producciones_.inicial())) respuestas[pedido].tokens = 0;
        for (const Item& espera : columnas_[pedido.first])
            if (espera.siguiente == pedido.second) pide(pedidoDe(espera));
    }
    for (bool mejora = true; mejora;) {
        mejora = false;
        for (const Pedido& pedido : pedidos)
            for (const Item& espera : columnas_[pedido.first]) {
                if (espera.siguiente != pedido.second) continue;
                const std::int32_t coste =
                    minimas_.tokens(resto(espera, 1)) + respuestas[pedidoDe(espera)].tokens;
                if (coste >= respuestas[pedido].tokens) continue;
                respuestas[pedido] = {coste, espera};
                mejora = true;
            }
    }
    const auto coste = [&](const Item& item) {
        return minimas_.tokens(resto(item, 0)) + respuestas[pedidoDe(item)].tokens;
    };
    const Item* const mejor = &*std::ranges::min_element(columnas_[columna], {}, coste);
    std::vector<Simbolo> frase;
    const auto escribe = [&](Cuerpo cuerpo) {
        ArbolEjemplo arbol;
        for (const Simbolo simbolo : cuerpo) {
            if (minimas_.tokens({&simbolo, 1}) > 1'000) return;
            arbol.nodos.clear();
            minimas_.ponMinimo(arbol, simbolo);
            for (const std::u16string& token : hojas(arbol))
                frase.push_back(producciones_.reglas().simbolo(token));
        }
    };
    escribe(resto(*mejor, 0));
    for (std::optional<Item> espera = respuestas[pedidoDe(*mejor)].espera; espera;
         espera = respuestas[pedidoDe(*espera)].espera)
        escribe(resto(*espera, 1));
    return frase;
}

} // namespace norvik::inline v0_2
