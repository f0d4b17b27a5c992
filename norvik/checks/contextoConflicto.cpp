// SPDX-License-Identifier: MIT

// A token follows a variable where a rule that has both says so, or where the variable ends a rule whose own
// head it follows. So the search walks backwards from the conflict, as the lookahead-sensitive search of
// Isradisaikul and Myers (PLDI 2015) walks forwards: an item goes back over the symbols before its dot, state
// by state, and at its beginning becomes an item of the same state that waits for its head. Two parsers walk
// one way together, so that what they find is one beginning of two texts. Once the token is found for both
// any shortest way to the start will do; then each finds the rules around it on that way alone. Both are
// searches of cheapest ways (Dijkstra 1959) over states and items, in symbols of the text.
#include "norvik/checks/contextoConflicto.hpp"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using Clave = std::tuple<std::int16_t, std::int16_t>;

std::optional<Clave> claveDe(const std::optional<Item>& item) {
    if (!item) return std::nullopt;
    return Clave(item->regla, item->punto);
}

struct Lugar {
    std::int16_t estado = 0;
    std::array<std::optional<Item>, 2> hilos;
    bool retrocedido = false; // over a symbol, from the state that follows it

    auto clave() const { return std::tuple(estado, claveDe(hilos[0]), claveDe(hilos[1])); }
};

// A queue of the cheapest first that remembers from where each thing was reached.
template <typename Nodo>
class Frontera {
public:
    void pon(const Nodo& nodo, std::size_t coste, std::optional<std::size_t> desde) {
        const auto [sitio, nuevo] = costes_.try_emplace(nodo.clave(), coste);
        if (!nuevo && sitio->second <= coste) return;
        sitio->second = coste;
        nodos_.push_back({nodo, coste, desde});
        cola_.emplace(coste, nodos_.size() - 1);
    }
    // The next one, never again.
    std::optional<std::size_t> saca() {
        while (!cola_.empty()) {
            const auto [coste, cual] = *cola_.begin();
            cola_.erase(cola_.begin());
            if (costes_.at(nodos_[cual].nodo.clave()) == coste) return cual;
        }
        return std::nullopt;
    }
    const Nodo& nodo(std::size_t cual) const { return nodos_[cual].nodo; }
    std::size_t coste(std::size_t cual) const { return nodos_[cual].coste; }
    std::optional<std::size_t> desde(std::size_t cual) const { return nodos_[cual].desde; }

private:
    struct Puesto {
        Nodo nodo;
        std::size_t coste;
        std::optional<std::size_t> desde;
    };
    std::vector<Puesto> nodos_;
    std::set<std::pair<std::size_t, std::size_t>> cola_;
    std::map<decltype(std::declval<Nodo>().clave()), std::size_t> costes_;
};

Item atras(Item item) {
    return {item.regla, static_cast<std::int16_t>(item.punto - 1)};
}

} // namespace

bool ContextoConflicto::esFinal(std::int16_t estado, Simbolo cabeza) const {
    return token_ == ReglasPartidas::finTexto && estado == 0 && cabeza == producciones_.inicial();
}

std::vector<std::int16_t> ContextoConflicto::camino(const std::vector<ComienzoContexto>& comienzos) const {
    Frontera<Lugar> frontera;
    for (const auto& [estado, hilos] : comienzos) frontera.pon({estado, hilos, false}, 0, {});
    // An item at its beginning becomes those that wait for its head.
    const auto sube = [&](std::size_t cual, std::size_t hilo) {
        const Lugar aqui = frontera.nodo(cual);
        const Simbolo cabeza = producciones_.reglas().cabeza(aqui.hilos[hilo]->regla);
        const auto pon = [&](std::optional<Item> item, std::size_t simbolos) {
            Lugar otro = aqui;
            otro.hilos[hilo] = item;
            otro.retrocedido = false;
            frontera.pon(otro, frontera.coste(cual) + simbolos, cual);
        };
        if (esFinal(aqui.estado, cabeza)) pon({}, 0);
        for (const Item item : grafo_.items(aqui.estado)) {
            if (grafo_.simboloTras(item) != cabeza) continue;
            const Cuerpo resto = grafo_.resto(item);
            if (minimas_.empieza(resto, token_)) pon({}, resto.size());
            if (producciones_.esAnulable(resto)) pon(item, 0);
        }
    };
    const auto retrocede = [&](std::size_t cual) {
        const Lugar aqui = frontera.nodo(cual);
        for (const std::int16_t anterior : grafo_.predecesores(aqui.estado)) {
            Lugar otro{anterior, aqui.hilos, true};
            for (auto& hilo : otro.hilos)
                if (hilo) hilo = atras(*hilo);
            frontera.pon(otro, frontera.coste(cual) + 1, cual);
        }
    };
    constexpr std::size_t maximo = 100'000; // places looked at, in well under a second
    for (std::size_t vistos = 0; vistos < maximo; ++vistos) {
        producciones_.exigeSeguir();
        const auto cual = frontera.saca();
        if (!cual) break;
        const Lugar& aqui = frontera.nodo(*cual);
        const auto hilo = std::ranges::find_if(aqui.hilos, [](const auto& h) { return h && h->punto == 0; });
        if (hilo != aqui.hilos.end()) {
            sube(*cual, static_cast<std::size_t>(hilo - aqui.hilos.begin()));
            continue;
        }
        if (aqui.hilos[0] || aqui.hilos[1]) {
            retrocede(*cual);
            continue;
        }
        std::vector<std::int16_t> camino = grafo_.caminoHasta(aqui.estado);
        if (camino.empty()) continue;
        auto desde = frontera.desde(*cual);
        for (auto paso = cual; desde; paso = desde, desde = frontera.desde(*paso))
            if (frontera.nodo(*paso).retrocedido) camino.push_back(frontera.nodo(*desde).estado);
        return camino;
    }
    return {};
}

std::optional<std::vector<Eslabon>> ContextoConflicto::cadena(const std::vector<std::int16_t>& camino,
                                                              Item item, bool pideToken) const {
    struct EnCamino {
        std::size_t lugar;
        Item item;
        bool pide;
        Eslabon::Resto resto; // by which it was reached

        auto clave() const { return std::tuple(lugar, item.regla, item.punto, pide); }
    };
    Frontera<EnCamino> frontera;
    frontera.pon({camino.size() - 1, item, pideToken, Eslabon::Resto::Libre}, 0, {});
    while (const auto cual = frontera.saca()) {
        producciones_.exigeSeguir();
        const EnCamino aqui = frontera.nodo(*cual);
        if (aqui.item.punto > 0) {
            if (aqui.lugar > 0)
                frontera.pon({aqui.lugar - 1, atras(aqui.item), aqui.pide, Eslabon::Resto::Libre},
                             frontera.coste(*cual), cual);
            continue;
        }
        const std::int16_t estado = camino[aqui.lugar];
        const Simbolo cabeza = producciones_.reglas().cabeza(aqui.item.regla);
        const bool llega = estado == 0 && cabeza == producciones_.inicial();
        if (llega && (!aqui.pide || token_ == ReglasPartidas::finTexto)) {
            std::vector<Eslabon> eslabones;
            // An item is in the chain where it was reached from another one's beginning.
            auto desde = frontera.desde(*cual);
            for (auto paso = cual; desde; paso = desde, desde = frontera.desde(*paso))
                if (frontera.nodo(*desde).item.punto == 0)
                    eslabones.push_back({frontera.nodo(*paso).item, frontera.nodo(*paso).resto});
            std::ranges::reverse(eslabones);
            return eslabones;
        }
        const auto pon = [&](Item otro, bool pide, Eslabon::Resto resto, std::size_t simbolos) {
            frontera.pon({aqui.lugar, otro, pide, resto}, frontera.coste(*cual) + simbolos, cual);
        };
        for (const Item otro : grafo_.items(estado)) {
            if (grafo_.simboloTras(otro) != cabeza) continue;
            const Cuerpo resto = grafo_.resto(otro);
            if (!minimas_.produce(resto)) continue;
            if (!aqui.pide) pon(otro, false, Eslabon::Resto::Libre, resto.size() + 1);
            if (aqui.pide && minimas_.empieza(resto, token_))
                pon(otro, false, Eslabon::Resto::EmpiezaPorToken, resto.size() + 1);
            if (aqui.pide && producciones_.esAnulable(resto)) pon(otro, true, Eslabon::Resto::Vacio, 1);
        }
    }
    return std::nullopt;
}

void ContextoConflicto::monta(ArbolEjemplo& arbol, std::int32_t nodo,
                              const std::vector<Eslabon>& cadena) const {
    for (const auto& [item, resto] : cadena) {
        const Cuerpo cuerpo = producciones_.cuerpo(item.regla);
        std::vector<std::int32_t> hijos =
            minimas_.ponHojas(arbol, cuerpo.first(static_cast<std::size_t>(item.punto)));
        hijos.push_back(nodo);
        std::vector<std::int32_t> detras;
        switch (resto) {
        case Eslabon::Resto::Libre:
            detras = minimas_.ponHojas(arbol, grafo_.resto(item));
            break;
        case Eslabon::Resto::Vacio:
            detras = minimas_.ponMinimos(arbol, grafo_.resto(item));
            break;
        case Eslabon::Resto::EmpiezaPorToken:
            detras = minimas_.ponComienzo(arbol, grafo_.resto(item), token_);
            break;
        }
        std::ranges::copy(detras, std::back_inserter(hijos));
        nodo = minimas_.ponNodo(arbol, item.regla, std::move(hijos));
    }
}

} // namespace norvik::inline v0_2
