// SPDX-License-Identifier: MIT

// Two copies of the parser run from the conflict on, one by each action, and read the same symbols, variables
// among them; when both have the same stack again, a single symbol above a common state, the string that they
// read is that symbol's by two trees. It is the search of Isradisaikul and Myers (PLDI 2015) with states in
// place of their items: each stack is the states above the lowest known one. What a reduction needs below
// that is found by going back to a predecessor, with both at once, since they have the same beginning. So the
// string grows on both sides, and the cheapest pair of stacks is always the next: a symbol costs four, and a
// reduction of nothing one, since those may go on for ever; other reductions are free. Of the orders in which
// the copies can reduce one is tried: first one, then the other, then both read. A pair of stacks is never
// looked at again. Where a grammar is not ambiguous there may be pairs without end: the steps are counted.
#include "norvik/checks/ejemploUnificador.hpp"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

using Pila = std::u16string; // states, the lowest first

/// What the copies do next: first each has to take its action at the conflict.
enum class Fase : std::uint8_t { PrimeraDebe, PrimeraReduce, SegundaDebe, SegundaReduce };

struct Pareja {
    Fase fase = Fase::PrimeraDebe;
    bool haLeido = false;
    Pila primera;
    Pila segunda;

    std::u16string clave() const {
        std::u16string clave{static_cast<char16_t>(static_cast<int>(fase) * 2 + (haLeido ? 1 : 0)),
                             static_cast<char16_t>(primera.size())};
        return clave + primera + segunda;
    }
};

struct Movimiento {
    enum class Tipo : std::uint8_t { Ninguno, Retrocede, ReducePrimera, ReduceSegunda, Lee };

    Tipo tipo = Tipo::Ninguno;
    std::int32_t cual = 0; // symbol or rule
};

class Buscador {
public:
    Buscador(const CasoConflicto& caso, const GrafoAutomata& grafo, const exacto::Producciones& producciones,
             DerivacionesMinimas& minimas, const std::vector<exacto::Bits>& siguientes)
        : caso_(caso), grafo_(grafo), producciones_(producciones), minimas_(minimas),
          siguientes_(siguientes) {}

    HallazgoUnificador busca(const LimiteBusqueda& limite,
                             const std::function<bool(std::int16_t, Simbolo)>& cabe) {
        const Pila aqui(1, static_cast<char16_t>(caso_.estado));
        pon({Fase::PrimeraDebe, false, aqui, aqui}, 0, {}, -1);
        HallazgoUnificador hallazgo;
        std::size_t vueltas = 0;
        while (const auto cual = saca()) {
            const Pareja pareja = nodos_[*cual].pareja;
            if (esFinal(pareja, cabe)) {
                hallazgo.ejemplo = reconstruye(*cual);
                break;
            }
            hallazgo.pasos = nodos_.size(); // a pair may have many successors
            producciones_.exigeSeguir();
            const bool pideHora = ++vueltas % 64 == 0;
            if (hallazgo.pasos > limite.pasos ||
                (pideHora && std::chrono::steady_clock::now() > limite.fin)) {
                hallazgo.agotado = true;
                break;
            }
            avanza(*cual, pareja);
        }
        return hallazgo;
    }

private:
    static constexpr std::size_t costeSimbolo = 4;

    struct Nodo {
        Pareja pareja;
        std::size_t coste;
        Movimiento movimiento; // by which it was reached
        std::int64_t desde;
    };

    void pon(Pareja pareja, std::size_t coste, Movimiento movimiento, std::int64_t desde) {
        const auto [sitio, nueva] = vistas_.try_emplace(pareja.clave(), nodos_.size());
        if (!nueva && nodos_[sitio->second].coste <= coste) return;
        sitio->second = nodos_.size();
        if (cubos_.size() <= coste) cubos_.resize(coste + 1);
        cubos_[coste].push_back(nodos_.size());
        nodos_.push_back({std::move(pareja), coste, movimiento, desde});
    }
    std::optional<std::size_t> saca() {
        for (; cubo_ < cubos_.size(); ++cubo_, lugar_ = 0)
            while (lugar_ < cubos_[cubo_].size()) {
                const std::size_t cual = cubos_[cubo_][lugar_++];
                if (vistas_.at(nodos_[cual].pareja.clave()) == cual) return cual;
            }
        return std::nullopt;
    }

    bool esFinal(const Pareja& pareja, const std::function<bool(std::int16_t, Simbolo)>& cabe) const {
        const bool juntas = pareja.fase == Fase::SegundaReduce && pareja.primera.size() == 2 &&
                            pareja.primera == pareja.segunda;
        if (!juntas) return false;
        const auto debajo = static_cast<std::int16_t>(pareja.primera.front());
        if (caso_.contraria == CasoConflicto::Contraria::Aceptar)
            return debajo == 0 && pareja.primera[1] == 1;
        if (pareja.haLeido) return true;
        return caso_.contraria == CasoConflicto::Contraria::Reducir &&
               cabe(debajo, grafo_.acceso(static_cast<std::int16_t>(pareja.primera[1])));
    }

    void avanza(std::size_t cual, const Pareja& pareja) {
        switch (pareja.fase) {
        case Fase::PrimeraDebe:
            reduce(cual, pareja, caso_.reduccion, true);
            return;
        case Fase::PrimeraReduce: {
            reduceTodas(cual, pareja, true);
            Pareja otra = pareja;
            const bool debe = !pareja.haLeido && caso_.contraria == CasoConflicto::Contraria::Reducir;
            otra.fase = debe ? Fase::SegundaDebe : Fase::SegundaReduce;
            pon(std::move(otra), nodos_[cual].coste, {}, static_cast<std::int64_t>(cual));
            return;
        }
        case Fase::SegundaDebe:
            reduce(cual, pareja, caso_.otraRegla, false);
            return;
        case Fase::SegundaReduce:
            if (pareja.haLeido || caso_.contraria == CasoConflicto::Contraria::Reducir)
                reduceTodas(cual, pareja, false);
            if (caso_.contraria != CasoConflicto::Contraria::Aceptar) lee(cual, pareja);
            return;
        }
    }

    void reduceTodas(std::size_t cual, const Pareja& pareja, bool primera) {
        const auto cima = static_cast<std::int16_t>(primera ? pareja.primera.back() : pareja.segunda.back());
        for (const std::int16_t regla : grafo_.acabadas(cima)) {
            // The next symbol is known as long as nothing has been read.
            if (!pareja.haLeido && !siguePorToken(regla)) continue;
            reduce(cual, pareja, regla, primera);
        }
    }
    bool siguePorToken(std::int16_t regla) const {
        return siguientes_[exacto::Producciones::indice(producciones_.reglas().cabeza(regla))].contiene(
            exacto::Producciones::indice(caso_.token));
    }

    void reduce(std::size_t cual, const Pareja& pareja, std::int16_t regla, bool primera) {
        const std::size_t largo = producciones_.cuerpo(regla).size();
        Pareja otra = pareja;
        Pila& pila = primera ? otra.primera : otra.segunda;
        if (pila.size() - 1 < largo) {
            retrocede(cual, pareja);
            return;
        }
        pila.resize(pila.size() - largo);
        const std::int16_t adonde =
            grafo_.destino(static_cast<std::int16_t>(pila.back()), producciones_.reglas().cabeza(regla));
        if (adonde == GrafoAutomata::ninguno) return;
        pila += static_cast<char16_t>(adonde);
        otra.fase = primera ? Fase::PrimeraReduce : Fase::SegundaReduce;
        const auto tipo = primera ? Movimiento::Tipo::ReducePrimera : Movimiento::Tipo::ReduceSegunda;
        pon(std::move(otra), nodos_[cual].coste + (largo == 0 ? 1 : 0), {tipo, regla},
            static_cast<std::int64_t>(cual));
    }

    void retrocede(std::size_t cual, const Pareja& pareja) {
        const auto debajo = static_cast<std::int16_t>(pareja.primera.front());
        for (const std::int16_t anterior : grafo_.predecesores(debajo)) {
            Pareja otra = pareja;
            otra.primera.insert(otra.primera.begin(), static_cast<char16_t>(anterior));
            otra.segunda.insert(otra.segunda.begin(), static_cast<char16_t>(anterior));
            pon(std::move(otra), nodos_[cual].coste + costeSimbolo,
                {Movimiento::Tipo::Retrocede, grafo_.acceso(debajo)}, static_cast<std::int64_t>(cual));
        }
    }

    void lee(std::size_t cual, const Pareja& pareja) {
        for (const auto& [simbolo, adonde] :
             grafo_.salidas(static_cast<std::int16_t>(pareja.primera.back()))) {
            const std::int16_t otroDestino =
                grafo_.destino(static_cast<std::int16_t>(pareja.segunda.back()), simbolo);
            if (otroDestino == GrafoAutomata::ninguno) continue;
            std::size_t simbolos = 1;
            if (!pareja.haLeido) {
                if (!minimas_.empieza(simbolo, caso_.token)) continue;
                simbolos = static_cast<std::size_t>(minimas_.simbolosDeComienzo(simbolo, caso_.token));
            }
            Pareja otra{Fase::PrimeraReduce, true, pareja.primera, pareja.segunda};
            otra.primera += static_cast<char16_t>(adonde);
            otra.segunda += static_cast<char16_t>(otroDestino);
            pon(std::move(otra), nodos_[cual].coste + costeSimbolo * simbolos,
                {Movimiento::Tipo::Lee, simbolo}, static_cast<std::int64_t>(cual));
        }
    }

    EjemploUnificador reconstruye(std::size_t cual) {
        std::vector<Movimiento> pasos;
        EjemploUnificador ejemplo;
        ejemplo.estado = static_cast<std::int16_t>(nodos_[cual].pareja.primera.front());
        ejemplo.leeToken = nodos_[cual].pareja.haLeido;
        for (auto paso = static_cast<std::int64_t>(cual); paso >= 0;
             paso = nodos_[static_cast<std::size_t>(paso)].desde)
            pasos.push_back(nodos_[static_cast<std::size_t>(paso)].movimiento);
        std::ranges::reverse(pasos);
        for (const Movimiento& paso : pasos)
            if (paso.tipo == Movimiento::Tipo::Retrocede) ++ejemplo.punto;
        ejemplo.arboles[0] = arbolDe(pasos, Movimiento::Tipo::ReducePrimera);
        ejemplo.arboles[1] = arbolDe(pasos, Movimiento::Tipo::ReduceSegunda);
        return ejemplo;
    }

    // The moves of one copy again, with trees in place of states.
    ArbolEjemplo arbolDe(const std::vector<Movimiento>& pasos, Movimiento::Tipo suya) {
        ArbolEjemplo arbol;
        std::vector<std::int32_t> bosque;
        bool primeraLectura = true;
        for (const auto& [tipo, que] : pasos) {
            if (tipo == Movimiento::Tipo::Retrocede)
                bosque.insert(bosque.begin(), minimas_.ponHoja(arbol, que));
            if (tipo == Movimiento::Tipo::Lee) {
                bosque.push_back(primeraLectura ? minimas_.ponComienzo(arbol, que, caso_.token)
                                                : minimas_.ponHoja(arbol, que));
                primeraLectura = false;
            }
            if (tipo != suya) continue;
            const auto regla = static_cast<std::int16_t>(que);
            const auto corte = bosque.end() - static_cast<std::ptrdiff_t>(producciones_.cuerpo(regla).size());
            std::vector<std::int32_t> hijos(corte, bosque.end());
            bosque.erase(corte, bosque.end());
            bosque.push_back(minimas_.ponNodo(arbol, regla, std::move(hijos)));
        }
        return arbol;
    }

    const CasoConflicto& caso_;
    const GrafoAutomata& grafo_;
    const exacto::Producciones& producciones_;
    DerivacionesMinimas& minimas_;
    const std::vector<exacto::Bits>& siguientes_;
    std::vector<Nodo> nodos_;
    std::vector<std::vector<std::size_t>> cubos_; // by cost
    std::size_t cubo_ = 0;
    std::size_t lugar_ = 0; // in it
    std::unordered_map<std::u16string, std::size_t> vistas_;
};

} // namespace

HallazgoUnificador buscaUnificador(const CasoConflicto& caso, const GrafoAutomata& grafo,
                                   const exacto::Producciones& producciones, DerivacionesMinimas& minimas,
                                   const std::vector<exacto::Bits>& siguientes, const LimiteBusqueda& limite,
                                   const std::function<bool(std::int16_t, Simbolo)>& cabe) {
    return Buscador(caso, grafo, producciones, minimas, siguientes).busca(limite, cabe);
}

} // namespace norvik::inline v0_2
