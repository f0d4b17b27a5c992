// SPDX-License-Identifier: MIT

// All beginnings of texts, shorter ones first, that the table or the grammar can go on with: the table runs
// as a parser does and keeps its stack for each, the grammar has Earley's columns. What neither goes on with
// is dropped. Where only the grammar does, its shortest end makes a text that the table refuses; where only
// the table does, it is followed until it accepts. A grammar of many tokens has too many beginnings for its
// longer texts: there is a limit to the work.
#include "norvik/checks/frasesDistintas.hpp"

#include "norvik/checks/columnasEarley.hpp"
#include "norvik/checks/derivacionesMinimas.hpp"

#include <algorithm>
#include <cstdint>
#include <set>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using PilaDeEstados = std::vector<std::int16_t>;

// A table that is asked of one token after another.
class Conductora {
public:
    Conductora(const Reglas& reglas, const ReglasPartidas& partidas, const TablaLR& tabla)
        : reglas_(reglas), tabla_(tabla) {
        for (std::size_t i = 0; i < partidas.numSimbolos(); ++i)
            codigos_.push_back(tabla.codigo(partidas.texto(static_cast<Simbolo>(i))));
        for (int regla = 1; regla <= partidas.numReglas(); ++regla)
            cabezas_.push_back(tabla.codigo(reglas.en(regla).cabeza));
    }

    /// Whether it takes a token, or accepts before the end: the stack is that behind it.
    bool lee(PilaDeEstados& pila, Simbolo token) const {
        const std::int16_t codigo = codigos_[static_cast<std::size_t>(token)];
        if (codigo < 0) return false;
        const std::size_t maximo = 100 + 50 * pila.size(); // beyond that it reduces for ever
        for (std::size_t pasos = 0; pasos < maximo; ++pasos) {
            const std::int16_t accion = tabla_.entrada(pila.back(), codigo);
            if (accion == 0) return false;
            if (accion == TablaLR::aceptar) return true;
            if (accion > 0) {
                pila.push_back(accion);
                return true;
            }
            if (!reduce(pila, static_cast<std::int16_t>(-accion))) return false;
        }
        return false;
    }
    bool espera(const PilaDeEstados& pila, Simbolo token) const {
        const std::int16_t codigo = codigos_[static_cast<std::size_t>(token)];
        return codigo >= 0 && tabla_.entrada(pila.back(), codigo) != 0;
    }

private:
    bool reduce(PilaDeEstados& pila, std::int16_t regla) const {
        const auto largo = static_cast<std::size_t>(reglas_.en(regla).elementos);
        const std::int16_t cabeza = cabezas_[static_cast<std::size_t>(regla) - 1];
        if (largo >= pila.size() || cabeza < 0) return false;
        pila.resize(pila.size() - largo);
        const std::int16_t adonde = tabla_.entrada(pila.back(), cabeza);
        if (adonde <= 0 || adonde >= TablaLR::aceptar) return false;
        pila.push_back(adonde);
        return true;
    }

    const Reglas& reglas_;
    const TablaLR& tabla_;
    std::vector<std::int16_t> codigos_; // by symbol
    std::vector<std::int16_t> cabezas_; // by rule
};

class BuscadorDeDosFrases {
public:
    BuscadorDeDosFrases(const Reglas& reglas, const exacto::Producciones& producciones, const TablaLR& tabla)
        : producciones_(producciones), minimas_(producciones), tabla_(reglas, producciones.reglas(), tabla),
          gramatica_(producciones, minimas_) {
        for (std::size_t i = 2; i < producciones.numSimbolos(); ++i)
            if (!producciones.esVariable(static_cast<Simbolo>(i))) tokens_.push_back(static_cast<Simbolo>(i));
    }

    FrasesDistintas busca(const LimiteFrases& limite) {
        const auto fin = std::chrono::steady_clock::now() + limite.plazo;
        comienzos_.push_back({0, ReglasPartidas::sinSimbolo, {0}, 0});
        for (std::size_t i = 0; i < comienzos_.size() && !estaTodo(i); ++i) {
            producciones_.exigeSeguir();
            if (gramatica_.trabajo() + pasos_ > limite.trabajo ||
                (i % 64 == 0 && std::chrono::steady_clock::now() > fin)) {
                halladas_.agotado = true;
                break;
            }
            mira(i);
            for (const Simbolo token : siguientes(i)) sigue(i, token);
        }
        return std::move(halladas_);
    }

private:
    struct Comienzo {
        std::size_t anterior;
        Simbolo token;
        PilaDeEstados pila; // of the table, empty once it has refused
        std::size_t largo;
    };

    // Both are known, and nothing shorter can come.
    bool estaTodo(std::size_t cual) const {
        return halladas_.rechazada && halladas_.deMas &&
               comienzos_[cual].largo >= std::max(halladas_.rechazada->size(), halladas_.deMas->size());
    }

    void mira(std::size_t cual) {
        PilaDeEstados pila = comienzos_[cual].pila;
        const bool seAcepta = !pila.empty() && tabla_.lee(pila, ReglasPartidas::finTexto);
        const bool esDeLaGramatica = gramatica_.acepta(cual);
        if (seAcepta && !esDeLaGramatica && !halladas_.deMas) halladas_.deMas = frase(cual, {});
        if (esDeLaGramatica && !seAcepta) rechaza(frase(cual, {}));
    }
    void rechaza(std::vector<std::u16string> texto) {
        if (!halladas_.rechazada || texto.size() < halladas_.rechazada->size())
            halladas_.rechazada = std::move(texto);
    }

    std::set<Simbolo> siguientes(std::size_t cual) const {
        std::set<Simbolo> todos = gramatica_.siguientes(cual);
        const PilaDeEstados& pila = comienzos_[cual].pila;
        if (!pila.empty())
            for (const Simbolo token : tokens_)
                if (tabla_.espera(pila, token)) todos.insert(token);
        return todos;
    }

    // Columns and beginnings have the same numbers.
    void sigue(std::size_t cual, Simbolo token) {
        pasos_ += comienzos_[cual].pila.size() + 1;
        PilaDeEstados pila = comienzos_[cual].pila;
        if (!pila.empty() && !tabla_.lee(pila, token)) pila.clear();
        const bool viveLaTabla = !pila.empty();
        const std::size_t nueva = gramatica_.avanza(cual, token);
        comienzos_.push_back({cual, token, std::move(pila), comienzos_[cual].largo + 1});
        if (gramatica_.estaViva(nueva)) {
            if (viveLaTabla || completados_ == maximoCompletados) return;
            // The text is known without going on.
            ++completados_;
            rechaza(frase(nueva, gramatica_.completa(nueva)));
            deja();
        } else if (!viveLaTabla || halladas_.deMas) {
            deja();
        }
    }
    // Of the last beginning nothing more comes.
    void deja() {
        comienzos_.back().pila.clear();
        gramatica_.olvidaUltima();
    }

    std::vector<std::u16string> frase(std::size_t cual, const std::vector<Simbolo>& final) const {
        std::vector<std::u16string> texto;
        for (; cual != 0; cual = comienzos_[cual].anterior)
            texto.emplace_back(producciones_.reglas().texto(comienzos_[cual].token));
        std::ranges::reverse(texto);
        for (const Simbolo token : final) texto.emplace_back(producciones_.reglas().texto(token));
        return texto;
    }

    static constexpr int maximoCompletados = 200;

    const exacto::Producciones& producciones_;
    DerivacionesMinimas minimas_;
    Conductora tabla_;
    ColumnasEarley gramatica_;
    std::vector<Simbolo> tokens_;
    std::vector<Comienzo> comienzos_;
    FrasesDistintas halladas_;
    std::size_t pasos_ = 0;
    int completados_ = 0;
};

} // namespace

FrasesDistintas buscaFrasesDistintas(const Reglas& reglas, const exacto::Producciones& producciones,
                                     const TablaLR& tabla, const LimiteFrases& limite) {
    if (producciones.cabezas().empty()) return {};
    return BuscadorDeDosFrases(reglas, producciones, tabla).busca(limite);
}

} // namespace norvik::inline v0_2
