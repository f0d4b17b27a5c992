// SPDX-License-Identifier: MIT

// Each conflict is told by the best example that there is: one sentence with two trees (ejemploUnificador);
// else two sentences that are alike up to the token of the conflict; else, where the table takes for one what
// never stands in one place, a sentence for each action. The first search may not end, so it has a share of
// the budget; the others walk over states and items, and do.
#include "norvik/checks/cuentaConflictos.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/checks/contextoConflicto.hpp"
#include "norvik/checks/curaConflicto.hpp"
#include "norvik/checks/ejemploUnificador.hpp"
#include "norvik/checks/porqueSigue.hpp"
#include "norvik/checks/pruebaTabla.hpp"
#include "norvik/grammar/exacto/conjuntos.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using Reloj = std::chrono::steady_clock;
using Contraria = CasoConflicto::Contraria;

class Narrador {
public:
    Narrador(const GramaticaLR& gramatica, const OpcionesTabla& opciones, const TablaLR& enUso,
             const LimitesHistorias& limites)
        : gramatica_(gramatica), enUso_(enUso), limites_(limites),
          producciones_(gramatica.partidas, limites.cancelacion), minimas_(producciones_),
          grafo_(producciones_, gramatica.automata, minimas_), siguientes_(exacto::siguientes(producciones_)),
          curas_(gramatica, producciones_, opciones), fin_(Reloj::now() + limites.enTotal),
          faltan_(gramatica.tabla.conflictos().size()) {}

    HistoriaConflicto cuenta(const Conflicto& conflicto) {
        const CasoConflicto caso = casoDe(conflicto);
        HistoriaConflicto historia;
        historia.estado = caso.estado;
        historia.simbolo = gramatica_.partidas.texto(caso.token);
        historia.acciones = accionesDe(caso);
        const HistoriaConflicto sinContar = historia;
        try {
            historia.agotado = contados_++ >= limites_.contados ||
                               Reloj::now() > fin_ + std::chrono::seconds(1); // the rest of it needs little
            if (!historia.agotado) cuenta(caso, historia);
        } catch (const OperacionCancelada&) {
            historia = sinContar;
            historia.agotado = true;
        }
        return historia;
    }

private:
    void cuenta(const CasoConflicto& caso, HistoriaConflicto& historia) {
        producciones_.exigeSeguir();
        const ContextoConflicto contexto(grafo_, producciones_, minimas_, caso.token);
        if (!cuentaAmbigua(caso, contexto, historia)) cuentaDosFrases(caso, contexto, historia);
        historia.cura = curas_.de(caso, historia);
        historia.porque =
            porqueSigue(producciones_, minimas_, gramatica_.partidas.cabeza(caso.reduccion), caso.token);
    }

    CasoConflicto casoDe(const Conflicto& conflicto) const {
        CasoConflicto caso;
        caso.estado = static_cast<std::int16_t>(conflicto.fila - 1);
        caso.token = gramatica_.partidas.simbolo(gramatica_.tabla.simbolo(conflicto.columna));
        caso.reduccion = conflicto.regla;
        const std::int16_t queda =
            gramatica_.tabla.entrada(caso.estado, static_cast<std::int16_t>(conflicto.columna - 1));
        if (queda == TablaLR::aceptar) {
            caso.contraria = Contraria::Aceptar;
        } else if (queda < 0) {
            caso.contraria = Contraria::Reducir;
            caso.otraRegla = static_cast<std::int16_t>(-queda);
        }
        return caso;
    }

    std::optional<Item> itemQueDesplaza(const CasoConflicto& caso) const {
        for (const Item item : grafo_.items(caso.estado))
            if (grafo_.simboloTras(item) == caso.token && minimas_.produce(producciones_.cuerpo(item.regla)))
                return item;
        return std::nullopt;
    }

    AccionConflicto accion(AccionConflicto::Tipo tipo, std::int16_t regla) const {
        return {tipo, regla, regla == 0 ? std::u16string() : textoDeRegla(gramatica_.partidas, regla)};
    }
    std::array<AccionConflicto, 2> accionesDe(const CasoConflicto& caso) const {
        const AccionConflicto perdida = accion(AccionConflicto::Tipo::Reducir, caso.reduccion);
        switch (caso.contraria) {
        case Contraria::Reducir:
            return {accion(AccionConflicto::Tipo::Reducir, caso.otraRegla), perdida};
        case Contraria::Aceptar:
            return {accion(AccionConflicto::Tipo::Aceptar, 0), perdida};
        case Contraria::Desplazar: {
            const auto item = itemQueDesplaza(caso);
            return {accion(AccionConflicto::Tipo::Desplazar, item ? item->regla : std::int16_t{0}), perdida};
        }
        }
        return {};
    }

    // Whether a head at a state can be followed by the token.
    std::optional<std::vector<std::int16_t>> caminoDe(const ContextoConflicto& contexto, std::int16_t estado,
                                                      Simbolo cabeza, bool pideToken) const {
        ComienzoContexto comienzo{estado, {}};
        if (pideToken) comienzo.hilos[0] = alPrincipio(cabeza);
        auto camino = contexto.camino({comienzo});
        if (camino.empty()) return std::nullopt;
        return camino;
    }
    Item alPrincipio(Simbolo cabeza) const { return {producciones_.de(cabeza).front(), 0}; }
    Item acabado(std::int16_t regla) const {
        return {regla, static_cast<std::int16_t>(producciones_.cuerpo(regla).size())};
    }

    bool cuentaAmbigua(const CasoConflicto& caso, const ContextoConflicto& contexto,
                       HistoriaConflicto& historia) {
        const auto ahora = Reloj::now();
        // None takes what the others need.
        const std::size_t parte = (limites_.pasosEnTotal - pasos_) / std::max<std::size_t>(faltan_, 1);
        const LimiteBusqueda limite{std::min(limites_.pasosPorConflicto, parte),
                                    std::min(fin_, ahora + limites_.porConflicto)};
        HallazgoUnificador hallazgo =
            buscaUnificador(caso, grafo_, producciones_, minimas_, siguientes_, limite,
                            [&](std::int16_t estado, Simbolo cabeza) {
                                return caminoDe(contexto, estado, cabeza, true).has_value();
                            });
        historia.pasos = hallazgo.pasos;
        historia.agotado = hallazgo.agotado;
        pasos_ = std::min(limites_.pasosEnTotal, pasos_ + hallazgo.pasos);
        --faltan_;
        if (!hallazgo.ejemplo) return false;
        const EjemploUnificador& ejemplo = *hallazgo.ejemplo;
        const Simbolo cabeza = gramatica_.partidas.simbolo(ejemplo.arboles[0].nodos.back().simbolo);
        const auto camino = caminoDe(contexto, ejemplo.estado, cabeza, !ejemplo.leeToken);
        if (!camino) return false;
        const auto cadena = contexto.cadena(*camino, alPrincipio(cabeza), !ejemplo.leeToken);
        if (!cadena) return false;
        historia.clase = HistoriaConflicto::Clase::Ambigua;
        for (const std::size_t i : {0U, 1U}) {
            historia.cortos[i] = {ejemplo.arboles[1 - i], ejemplo.punto};
            EjemploConflicto entero = historia.cortos[i];
            contexto.monta(entero.arbol, static_cast<std::int32_t>(entero.arbol.nodos.size() - 1), *cadena);
            entero.punto += camino->size() - 1;
            historia.completos[i] = enTokens(entero);
        }
        prueba(historia);
        return true;
    }

    void prueba(HistoriaConflicto& historia) const {
        if (historia.completos[0].arbol.nodos.empty()) return;
        const auto arbol = arbolPorTabla(enUso_, gramatica_.reglas, historia.completos[0].frase());
        if (!arbol) {
            historia.prueba = HistoriaConflicto::Prueba::LoRechaza;
        } else if (enTexto(*arbol) == enTexto(historia.completos[0].arbol)) {
            historia.prueba = HistoriaConflicto::Prueba::DaElPrimero;
        } else if (enTexto(*arbol) == enTexto(historia.completos[1].arbol)) {
            historia.prueba = HistoriaConflicto::Prueba::DaElSegundo;
        } else {
            historia.prueba = HistoriaConflicto::Prueba::DaOtro;
            historia.completos[0].arbol = *arbol;
        }
    }

    EjemploConflicto enTokens(const EjemploConflicto& ejemplo) const {
        auto arbol = minimas_.enTokens(ejemplo.arbol);
        if (!arbol) return {};
        std::size_t punto = 0;
        const auto simbolos = ejemplo.frase();
        for (std::size_t i = 0; i < ejemplo.punto; ++i) {
            const Simbolo simbolo = gramatica_.partidas.simbolo(simbolos[i]);
            punto += static_cast<std::size_t>(minimas_.tokens({&simbolo, 1}));
        }
        return {std::move(*arbol), punto};
    }

    // Two sentences ---------------------------------------------------------------------------------------

    struct Lado {
        std::vector<std::int16_t> camino;
        std::optional<Item> item; // none: the start symbol is the whole of it
        bool pideToken = false;
    };

    void cuentaDosFrases(const CasoConflicto& caso, const ContextoConflicto& contexto,
                         HistoriaConflicto& historia) {
        std::array<Lado, 2> lados;
        lados[1].item = acabado(caso.reduccion);
        lados[1].pideToken = true;
        ComienzoContexto comienzo{caso.estado, {}};
        comienzo.hilos[1] = lados[1].item;
        if (caso.contraria == Contraria::Reducir) {
            comienzo.hilos[0] = lados[0].item = acabado(caso.otraRegla);
            lados[0].pideToken = true;
        } else if (caso.contraria == Contraria::Desplazar) {
            lados[0].item = itemQueDesplaza(caso);
            if (!lados[0].item) return;
        }
        for (const Lado& lado : lados)
            if (lado.item && !minimas_.produce(producciones_.cuerpo(lado.item->regla))) return;
        historia.clase = HistoriaConflicto::Clase::DosFrases;
        lados[0].camino = lados[1].camino = contexto.camino({comienzo});
        if (lados[0].camino.empty()) {
            historia.clase = HistoriaConflicto::Clase::SinComienzoComun;
            for (Lado& lado : lados) lado.camino = caminoSuyo(caso.estado, contexto, lado);
        }
        if (lados[0].camino.empty() || lados[1].camino.empty()) {
            historia.clase = HistoriaConflicto::Clase::SinEjemplo;
            return;
        }
        const std::array ejemplos = {caso.contraria == Contraria::Desplazar
                                         ? masCortoQueDesplaza(caso, lados[0], contexto)
                                         : ejemploDe(lados[0], contexto),
                                     ejemploDe(lados[1], contexto)};
        if (!ejemplos[0] || !ejemplos[1]) {
            historia.clase = HistoriaConflicto::Clase::SinEjemplo;
            return;
        }
        for (const std::size_t i : {0U, 1U}) {
            historia.cortos[i] = *ejemplos[i];
            historia.completos[i] = enTokens(*ejemplos[i]);
        }
    }

    // The way of one action alone: to this state, or else to any place where its rule is followed by the
    // token.
    std::vector<std::int16_t> caminoSuyo(std::int16_t estado, const ContextoConflicto& contexto, Lado& lado) {
        ComienzoContexto comienzo{estado, {}};
        if (lado.pideToken) comienzo.hilos[0] = lado.item;
        auto camino = contexto.camino({comienzo});
        if (!camino.empty() || !lado.pideToken) return camino;
        lado.item = Item{lado.item->regla, 0};
        std::vector<ComienzoContexto> todos;
        for (std::size_t i = 0; i < grafo_.estados(); ++i) {
            const auto otro = static_cast<std::int16_t>(i);
            if (std::ranges::count(grafo_.items(otro), *lado.item) != 0)
                todos.push_back({otro, {lado.item, std::nullopt}});
        }
        return contexto.camino(todos);
    }

    // Of all items that shift the token there.
    std::optional<EjemploConflicto> masCortoQueDesplaza(const CasoConflicto& caso, Lado lado,
                                                        const ContextoConflicto& contexto) {
        std::optional<EjemploConflicto> mejor;
        for (const Item item : grafo_.items(caso.estado)) {
            if (grafo_.simboloTras(item) != caso.token || !minimas_.produce(producciones_.cuerpo(item.regla)))
                continue;
            lado.item = item;
            auto ejemplo = ejemploDe(lado, contexto);
            if (ejemplo && (!mejor || ejemplo->frase().size() < mejor->frase().size()))
                mejor = std::move(ejemplo);
        }
        return mejor;
    }

    std::optional<EjemploConflicto> ejemploDe(const Lado& lado, const ContextoConflicto& contexto) {
        EjemploConflicto ejemplo;
        ejemplo.punto = lado.camino.size() - 1;
        if (!lado.item) {
            minimas_.ponHoja(ejemplo.arbol, producciones_.inicial());
            return ejemplo;
        }
        const Cuerpo cuerpo = producciones_.cuerpo(lado.item->regla);
        if (lado.pideToken) ejemplo.punto += cuerpo.size() - static_cast<std::size_t>(lado.item->punto);
        auto suyas = minimas_.ponHojas(ejemplo.arbol, cuerpo);
        const std::int32_t nodo = minimas_.ponNodo(ejemplo.arbol, lado.item->regla, std::move(suyas));
        const auto cadena = contexto.cadena(lado.camino, *lado.item, lado.pideToken);
        if (!cadena) return std::nullopt;
        contexto.monta(ejemplo.arbol, nodo, *cadena);
        return ejemplo;
    }

    const GramaticaLR& gramatica_;
    const TablaLR& enUso_;
    const LimitesHistorias& limites_;
    std::size_t contados_ = 0;
    exacto::Producciones producciones_;
    DerivacionesMinimas minimas_;
    GrafoAutomata grafo_;
    std::vector<exacto::Bits> siguientes_;
    CurasConflicto curas_;
    Reloj::time_point fin_;
    std::size_t pasos_ = 0;
    std::size_t faltan_; // conflicts, the one that is told included
};

} // namespace

std::vector<HistoriaConflicto> cuentaConflictos(const GramaticaLR& gramatica, const OpcionesTabla& opciones,
                                                const TablaLR& enUso, const LimitesHistorias& limites) {
    std::vector<HistoriaConflicto> historias;
    // The table of a grammar without rules is still that of the language before it.
    if (gramatica.automata.estados.empty() || gramatica.tabla.conflictos().empty()) return historias;
    try {
        Narrador narrador(gramatica, opciones, enUso, limites);
        for (const Conflicto& conflicto : gramatica.tabla.conflictos())
            historias.push_back(narrador.cuenta(conflicto));
    } catch (const OperacionCancelada&) { // before the first one
    }
    return historias;
}

} // namespace norvik::inline v0_2
