#include "norvik/grammar/clasico/tabla.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

// The SLR table, read off the automaton (DeRemer 1971) with two departures: a shift overwrites whatever its
// cell holds and says nothing; a reduction that finds its cell taken leaves it and is noted as a conflict.
namespace norvik::clasico {

namespace {

std::size_t indice(Simbolo simbolo) {
    return static_cast<std::size_t>(simbolo);
}

/// Terminals and heads in order of first occurrence, then all of them in column order.
void reuneSimbolos(const ReglasPartidas& reglas, SimbolosTabla& simbolos) {
    std::vector<bool> vistos(reglas.numSimbolos());
    std::vector<bool> cabezas(reglas.numSimbolos());
    const auto inserta = [&](Simbolo simbolo, std::vector<bool>& yaEstan, conjunto& conj) {
        if (yaEstan[indice(simbolo)]) return;
        yaEstan[indice(simbolo)] = true;
        conj.insertar(std::u16string(reglas.texto(simbolo)));
    };
    for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
        if (reglas.cabeza(regla) == ReglasPartidas::sinSimbolo) continue;
        inserta(reglas.cabeza(regla), cabezas, simbolos.variables);
        for (const Simbolo simbolo : reglas.cuerpo(regla))
            if (!reglas.esVariable(simbolo) && simbolo != ReglasPartidas::vacio)
                inserta(simbolo, vistos, simbolos.terminales);
    }
    simbolos.todos.aniadeElementosConjunto(simbolos.terminales);
    simbolos.todos.insertar(u"$");
    simbolos.todos.aniadeElementosConjunto(simbolos.variables);
}

/// Column codes of symbols and of the FOLLOW sets of heads.
class Columnas {
public:
    Columnas(const ReglasPartidas& reglas, const Conjuntos& conjuntos, const TablaLR& tabla)
        : reglas_(reglas), codigos_(reglas.numSimbolos()), siguientes_(reglas.numSimbolos()) {
        for (std::size_t i = 0; i < codigos_.size(); ++i)
            codigos_[i] = tabla.codigo(reglas.texto(static_cast<Simbolo>(i)));
        // A head in two runs of rules has two sets, and each of them reduces.
        for (const auto& [nombre, elementos] : conjuntos.siguientes)
            for (const Simbolo simbolo : elementos) siguientes_[indice(nombre)].push_back(de(simbolo));
    }

    std::size_t de(Simbolo simbolo) const {
        const int codigo = codigos_[indice(simbolo)];
        if (codigo < 0)
            throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: el símbolo " +
                                            std::u16string(reglas_.texto(simbolo)) +
                                            u" no tiene columna en la tabla");
        return static_cast<std::size_t>(codigo);
    }
    std::size_t de(Item item) const {
        const Simbolo simbolo = reglas_.cuerpo(item.regla)[static_cast<std::size_t>(item.punto)];
        if (simbolo == ReglasPartidas::vacio) fallaVaciaSuelta(item.regla);
        return de(simbolo);
    }
    const std::vector<std::size_t>& siguientes(Simbolo cabeza) const { return siguientes_[indice(cabeza)]; }

private:
    [[noreturn]] void fallaVaciaSuelta(int regla) const {
        std::u16string texto(reglas_.texto(reglas_.cabeza(regla)));
        texto += u" ->";
        for (const Simbolo simbolo : reglas_.cuerpo(regla)) texto.append(u" ").append(reglas_.texto(simbolo));
        throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: en la regla " + aTexto(regla) +
                                        u", " + texto +
                                        u", Ø está junto a otros símbolos y no tiene columna en la tabla");
    }

    const ReglasPartidas& reglas_;
    std::vector<int> codigos_;
    std::vector<std::vector<std::size_t>> siguientes_;
};

void rellena(const ReglasPartidas& reglas, const Columnas& columnas, const AutomataLR& automata,
             TablaLR& tabla) {
    std::int16_t numero = 0;
    std::vector<std::int16_t> fila(static_cast<std::size_t>(tabla.celdas().columnas()));
    for (const estadoAutomata& estado : automata.estados) {
        ++numero;
        std::vector<Conflicto> conflictos;
        std::ranges::fill(fila, std::int16_t{0});
        for (std::size_t i = 0; i < estado.items().size(); ++i) {
            const Item item = estado.items()[i];
            if (const auto destino = estado.adyacentes()[i]; destino != estadoAutomata::sinTransicion) {
                fila[columnas.de(item)] = destino;
                continue;
            }
            for (const std::size_t c : columnas.siguientes(reglas.cabeza(item.regla))) {
                if (fila[c] == 0)
                    fila[c] = static_cast<std::int16_t>(-item.regla);
                else
                    conflictos.push_back({numero, static_cast<std::int16_t>(c + 1), item.regla});
            }
        }
        tabla.ponFila(numero, fila, std::move(conflictos));
    }
}

} // namespace

TablaLR creaTabla(const ReglasPartidas& reglas, const Conjuntos& conjuntos, const AutomataLR& automata,
                  SimbolosTabla otros) {
    if (!reglas.hayInicial()) return {};
    reuneSimbolos(reglas, otros);
    TablaLR tabla(std::move(otros), reglas.texto(reglas.cabeza(1)), automata.estados.size());
    rellena(reglas, Columnas(reglas, conjuntos, tabla), automata, tabla);
    return tabla;
}

} // namespace norvik::clasico
