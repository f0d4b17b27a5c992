// SPDX-License-Identifier: MIT

// Repairs by the search CPCT+ of Diekmann and Tratt, "Don't Panic! Better, Fewer, Syntax Errors for LR
// Parsers" (ECOOP 2020). A configuration is a stack and the number of the next token. From each one leads, at
// cost 1, every token that could be shifted there (it is put in) and the token behind the next (which is
// taken out), at cost 0 the shift of the next token (it is kept). Dijkstra's search takes them by cost; one
// that kept three tokens in a row, or that accepts, ends a repair, and with the first of them the cost is
// known. Configurations from which the same can be done (same stack, token, tokens kept in a row, and whether
// the last step took one out) are one with many ways to it, so that the thousands of sequences of steps that
// lead to few stacks cost nothing until they are written out.
//
// Of all repairs of that cost those stay after which parsing gets furthest, 250 tokens at most. Stacks are
// numbers that share their tails: neither the search nor the comparison grows with the depth of the parse.
//
// Departures from the article: what stays is put in order, by how likely it is, where the article takes any;
// and where all of it leads to another error within those 250 tokens, repairs that cost one more are looked
// for that lead to none and change one place: a brace that was mistyped is cheaper to leave out than to put
// right, and then every function after it is wrong.
#include "norvik/parser/busquedaReparaciones.hpp"

#include "norvik/parser/avanceLR.hpp"
#include "norvik/parser/pilasCompartidas.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using Pila = PilasCompartidas::Pila;
using Tipo = PasoReparacion::Tipo;

constexpr std::uint8_t seguidosQueBastan = 3;
constexpr std::size_t tokensDeAlcance = 250;
constexpr std::size_t maximoReparaciones = 100;
constexpr std::size_t pasosPorEscrita = 50; // it takes memory, too
constexpr std::size_t pasosPorLlegada = 5;
constexpr std::size_t columnasPorPaso = 8;

struct Configuracion {
    Pila pila = 0;
    std::uint32_t token = 0; ///< from the wrong one on
    std::uint8_t seguidos = 0;
    bool trasQuitar = false;

    bool operator==(const Configuracion&) const = default;
};

struct HuellaConfiguracion {
    std::size_t operator()(const Configuracion& c) const {
        const std::uint64_t junta = (static_cast<std::uint64_t>(c.pila) << 32) ^
                                    (static_cast<std::uint64_t>(c.token) << 3) ^
                                    (static_cast<std::uint64_t>(c.seguidos) << 1) ^ (c.trasQuitar ? 1U : 0U);
        return static_cast<std::size_t>((junta ^ (junta >> 29)) * 0x9E3779B97F4A7C15U);
    }
};

class Busqueda {
public:
    Busqueda(const LugarDeError& lugar, const LenguajeAnalisis& lenguaje, const FichasTokens& fichas,
             GastoReparaciones& gasto)
        : lugar_(lugar), lenguaje_(lenguaje), fichas_(fichas), gasto_(gasto), pilas_(lugar.pila) {}

    std::vector<Reparacion> busca() {
        llega({pilas_.primera(), 0, 0, false}, sinNumero, {}, 0);
        std::size_t coste = 0;
        while (coste < porCoste_.size() && finales_.empty()) visitaLosDe(coste++);
        const std::uint32_t maximo = dejaLosDeMasAlcance();
        std::vector<Reparacion> todas = escribe();
        if (todas.empty() || maximo >= tokensDeAlcance || !gasto_.sobra()) return todas;
        // Another error follows soon.
        finales_.clear();
        for (const std::uint32_t numero : sinEncarecer_) encarece(numero, coste - 1);
        if (coste < porCoste_.size()) visitaLosDe(coste);
        if (dejaLosDeMasAlcance() < tokensDeAlcance) return todas;
        std::vector<Reparacion> mejores = escribe();
        std::erase_if(mejores, [](const Reparacion& reparacion) { // they would swallow the other error
            return std::ranges::any_of(
                reparacion, [](const PasoReparacion& paso) { return paso.tipo == Tipo::Conserva; });
        });
        mejores.insert(mejores.end(), todas.begin(), todas.end());
        return mejores;
    }

private:
    static constexpr std::uint32_t sinNumero = 0xFFFFFFFF;

    struct Nodo {
        Configuracion configuracion;
        std::size_t coste = 0;
        std::uint32_t llegada = sinNumero; ///< the last of its ways
    };
    struct Llegada {
        std::uint32_t desde = sinNumero; ///< node; none of the first one
        std::uint32_t otra = sinNumero;  ///< way to the same node
        PasoReparacion paso;
    };
    struct Insercion {
        std::int16_t columna = 0;
        Pila pila = 0;
    };
    struct Grupo {
        Pila pila = 0;
        std::vector<std::int16_t> columnas;
    };

    std::int16_t columna(std::uint32_t token) const {
        return lugar_.entrada.en(lugar_.token + token).columna;
    }
    bool esFin(std::uint32_t token) const {
        return EntradaTokens::esFin(lugar_.entrada.en(lugar_.token + token));
    }

    // The stack behind a token.
    std::pair<Avance, Pila> avanzaDesde(Pila pila, std::int16_t columna) {
        PilasCompartidas::Mano mano(pilas_, pila);
        std::size_t reducciones = 0;
        const Avance avance = avanza(mano, columna, lenguaje_, maximoReducciones,
                                     [&](std::int16_t /*regla*/) { ++reducciones; });
        gasto_.anota(reducciones + 1);
        return {avance, mano.pila()};
    }

    // A way to a configuration, unless a cheaper one is known.
    void llega(const Configuracion& a, std::uint32_t desde, PasoReparacion paso, std::size_t coste) {
        gasto_.anota(pasosPorLlegada);
        const auto [sitio, nueva] = numeros_.try_emplace(a, static_cast<std::uint32_t>(nodos_.size()));
        if (nueva) {
            nodos_.push_back({a, coste});
            if (porCoste_.size() <= coste) porCoste_.resize(coste + 1);
            porCoste_[coste].push_back(sitio->second);
        }
        Nodo& nodo = nodos_[sitio->second];
        if (nodo.coste != coste) return;
        llegadas_.push_back({desde, nodo.llegada, paso});
        nodo.llegada = static_cast<std::uint32_t>(llegadas_.size() - 1);
    }

    void visitaLosDe(std::size_t coste) {
        for (std::size_t i = 0; i < porCoste_[coste].size() && gasto_.anota(1); ++i)
            visita(porCoste_[coste][i], coste);
    }

    void visita(std::uint32_t numero, std::size_t coste) {
        const Configuracion aqui = nodos_[numero].configuracion;
        if (aqui.seguidos == seguidosQueBastan || (lugar_.sigue && esFin(aqui.token))) {
            finales_.push_back(numero);
            return;
        }
        conserva(aqui, numero, coste);
        if (finales_.empty())
            encarece(numero, coste);
        else
            sinEncarecer_.push_back(numero);
    }

    // What leads on at a cost.
    void encarece(std::uint32_t numero, std::size_t coste) {
        const Configuracion aqui = nodos_[numero].configuracion;
        if (!aqui.trasQuitar)
            for (const auto& [columna, pila] : inserciones(aqui.pila))
                llega({pila, aqui.token, 0, false}, numero, {Tipo::Inserta, columna}, coste + 1);
        if (!esFin(aqui.token))
            llega({aqui.pila, aqui.token + 1, 0, true}, numero, {Tipo::Quita, 0}, coste + 1);
    }

    void conserva(const Configuracion& aqui, std::uint32_t numero, std::size_t coste) {
        const auto [avance, pila] = avanzaDesde(aqui.pila, columna(aqui.token));
        if (avance == Avance::Aceptado) finales_.push_back(numero);
        if (avance != Avance::Desplazado || esFin(aqui.token)) return;
        llega({pila, aqui.token + 1, static_cast<std::uint8_t>(aqui.seguidos + 1), false}, numero,
              {Tipo::Conserva, 0}, coste);
    }

    // The tokens that can be put in at a stack. Those for which the table reduces by the same rule go on
    // together: most of them do, all the way.
    const std::vector<Insercion>& inserciones(Pila pila) {
        const auto [sitio, nueva] = inserciones_.try_emplace(pila);
        std::vector<Insercion>& todas = sitio->second;
        if (!nueva) return todas;
        std::vector<Grupo> pendientes{{pila, fichas_.insertables()}};
        while (!pendientes.empty() && gasto_.anota(1 + pendientes.back().columnas.size() / columnasPorPaso)) {
            const Grupo grupo = std::move(pendientes.back());
            pendientes.pop_back();
            try {
                reparte(grupo, todas, pendientes);
            } catch (const SubindiceFueraDeIntervalo&) { // a damaged table
                continue;
            }
        }
        std::ranges::sort(todas, {}, &Insercion::columna);
        return todas;
    }

    void reparte(const Grupo& grupo, std::vector<Insercion>& todas, std::vector<Grupo>& pendientes) {
        std::vector<std::pair<std::int16_t, std::int16_t>> porRegla;
        const std::int16_t cima = pilas_.cima(grupo.pila);
        for (const std::int16_t columna : grupo.columnas) {
            const std::int16_t accion = lenguaje_.entrada(cima, columna);
            if (accion < 0) porRegla.emplace_back(static_cast<std::int16_t>(-accion), columna);
            if (accion > 0 && accion != gramatica::aceptar)
                todas.push_back({columna, pilas_.con(grupo.pila, accion)});
        }
        std::ranges::sort(porRegla);
        for (std::size_t i = 0; i < porRegla.size();) {
            const std::int16_t regla = porRegla[i].first;
            PilasCompartidas::Mano mano(pilas_, grupo.pila);
            const bool sigue = reduce(mano, regla, lenguaje_);
            Grupo otro{mano.pila(), {}};
            for (; i < porRegla.size() && porRegla[i].first == regla; ++i)
                otro.columnas.push_back(porRegla[i].second);
            if (sigue) pendientes.push_back(std::move(otro));
        }
    }

    // How far parsing gets behind a repair, the same for all that meet on their way.
    std::uint32_t alcance(const Configuracion& final) {
        std::vector<std::uint64_t> camino;
        std::uint32_t token = final.token;
        std::uint32_t hasta = 0;
        for (Pila pila = final.pila;; ++token) {
            hasta = token;
            if (lugar_.sigue && esFin(token)) hasta = tokensDeAlcance;
            if (hasta >= tokensDeAlcance || gasto_.agotado()) break;
            const std::uint64_t clave = (static_cast<std::uint64_t>(pila) << 32) | token;
            if (const auto conocido = alcances_.find(clave); conocido != alcances_.end()) {
                hasta = conocido->second;
                break;
            }
            camino.push_back(clave);
            const auto [avance, despues] = avanzaDesde(pila, columna(token));
            if (avance == Avance::Aceptado) hasta = tokensDeAlcance;
            if (avance != Avance::Desplazado) break;
            pila = despues;
        }
        for (const std::uint64_t clave : camino) alcances_[clave] = hasta;
        return hasta;
    }

    // Of the repairs found, those that get furthest; how far that is.
    std::uint32_t dejaLosDeMasAlcance() {
        std::vector<std::uint32_t> mejores;
        std::uint32_t maximo = 0;
        for (const std::uint32_t final : finales_) {
            const std::uint32_t suyo = alcance(nodos_[final].configuracion);
            if (suyo > maximo) mejores.clear();
            maximo = std::max(maximo, suyo);
            if (suyo == maximo) mejores.push_back(final);
        }
        finales_ = std::move(mejores);
        return maximo;
    }

    // Writes out the ways to the repairs that stay, from their ends, as far as they are bearable.
    std::vector<Reparacion> escribe() {
        struct Tramo {
            std::uint32_t nodo = 0;
            Reparacion despues; ///< from the last step to the first
        };
        std::vector<Reparacion> todas;
        std::vector<Tramo> pendientes;
        for (const std::uint32_t final : finales_) pendientes.push_back({final, {}});
        while (!pendientes.empty() && todas.size() < maximoReparaciones) {
            const Tramo tramo = std::move(pendientes.back());
            pendientes.pop_back();
            for (std::uint32_t i = nodos_[tramo.nodo].llegada; i != sinNumero; i = llegadas_[i].otra) {
                const Llegada& llegada = llegadas_[i];
                Reparacion pasos = tramo.despues;
                if (llegada.desde == sinNumero) {
                    gasto_.anota(pasosPorEscrita);
                    todas.emplace_back(pasos.rbegin(), pasos.rend());
                    continue;
                }
                if (!pasos.empty() || llegada.paso.tipo != Tipo::Conserva) pasos.push_back(llegada.paso);
                pendientes.push_back({llegada.desde, std::move(pasos)});
            }
        }
        ordena(todas);
        return todas;
    }

    // The likeliest first: signs are forgotten sooner than words, and words sooner than names, and a token
    // too much is likelier than a word too few. Then in the order of the specification.
    void ordena(std::vector<Reparacion>& todas) const {
        const auto rareza = [&](const Reparacion& reparacion) {
            int suma = 0;
            for (const PasoReparacion& paso : reparacion) suma += rarezaDe(paso);
            return suma;
        };
        const auto menor = [](const PasoReparacion& a, const PasoReparacion& b) {
            return std::pair(a.tipo, a.columna) < std::pair(b.tipo, b.columna);
        };
        std::ranges::sort(todas, [&](const Reparacion& a, const Reparacion& b) {
            if (const int mas = rareza(a) - rareza(b); mas != 0) return mas < 0;
            return std::ranges::lexicographical_compare(a, b, menor);
        });
    }

    int rarezaDe(const PasoReparacion& paso) const {
        if (paso.tipo == Tipo::Conserva) return 0;
        if (paso.tipo == Tipo::Quita) return 1;
        const auto& texto = fichas_.de(paso.columna).textoFijo;
        if (!texto) return 3;
        return esDePalabra(texto->front()) ? 2 : 0;
    }

    const LugarDeError& lugar_;
    const LenguajeAnalisis& lenguaje_;
    const FichasTokens& fichas_;
    GastoReparaciones& gasto_;
    PilasCompartidas pilas_;
    std::vector<Nodo> nodos_;
    std::vector<Llegada> llegadas_;
    std::unordered_map<Configuracion, std::uint32_t, HuellaConfiguracion> numeros_;
    std::vector<std::vector<std::uint32_t>> porCoste_;
    std::vector<std::uint32_t> finales_;
    std::vector<std::uint32_t> sinEncarecer_; ///< nodes from which nothing dearer was sought
    std::unordered_map<Pila, std::vector<Insercion>> inserciones_;
    std::unordered_map<std::uint64_t, std::uint32_t> alcances_;
};

} // namespace

std::vector<Reparacion> buscaReparaciones(const LugarDeError& lugar, const LenguajeAnalisis& lenguaje,
                                          const FichasTokens& fichas, GastoReparaciones& gasto) {
    gasto.empieza();
    std::vector<Reparacion> reparaciones = Busqueda(lugar, lenguaje, fichas, gasto).busca();
    gasto.acaba();
    return reparaciones;
}

} // namespace norvik::inline v0_2
