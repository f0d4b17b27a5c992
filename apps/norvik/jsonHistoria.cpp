// SPDX-License-Identifier: MIT

#include "jsonHistoria.hpp"

#include "norvik/checks/palabrasHistoria.hpp"
#include "norvik/checks/recorridoEjemplo.hpp"

namespace norvik::orden {

namespace {

std::u16string_view nombreDe(AccionConflicto::Tipo tipo) {
    switch (tipo) {
    case AccionConflicto::Tipo::Desplazar:
        return u"desplazar";
    case AccionConflicto::Tipo::Reducir:
        return u"reducir";
    case AccionConflicto::Tipo::Aceptar:
        return u"aceptar";
    }
    return {};
}

void escribeArbol(Escritor& escritor, const ArbolEjemplo& arbol) {
    bool esRaiz = true;
    recorre(
        arbol,
        [&](const NodoEjemplo& nodo, std::size_t /*nivel*/) {
            if (esRaiz)
                escritor.abreObjeto("arbol");
            else
                escritor.abreObjeto();
            esRaiz = false;
            escritor.campo("simbolo", nodo.simbolo);
            if (nodo.regla == 0) return;
            escritor.campo("regla", nodo.regla);
            escritor.abreLista("hijos");
        },
        [&](const NodoEjemplo& nodo) {
            if (nodo.regla != 0) escritor.cierraLista();
            escritor.cierraObjeto();
        });
}

// Those without a tree, which would be too long, are left out.
void escribeEjemplos(Escritor& escritor, const char* clave, const std::array<EjemploConflicto, 2>& ejemplos) {
    escritor.abreLista(clave);
    for (const EjemploConflicto& ejemplo : ejemplos) {
        if (ejemplo.arbol.nodos.empty()) continue;
        escritor.abreObjeto();
        escritor.abreLista("frase");
        for (const std::u16string& simbolo : ejemplo.frase()) escritor.elemento(simbolo);
        escritor.cierraLista();
        escritor.campo("punto", static_cast<std::int32_t>(ejemplo.punto));
        escribeArbol(escritor, ejemplo.arbol);
        escritor.cierraObjeto();
    }
    escritor.cierraLista();
}

void escribe(Escritor& escritor, const HistoriaConflicto& historia) {
    escritor.abreObjeto();
    escritor.campo("clase", palabras::nombreDe(historia.clase));
    escritor.campo("estado", historia.estado);
    escritor.campo("simbolo", historia.simbolo);
    escritor.abreLista("acciones");
    for (const AccionConflicto& accion : historia.acciones) {
        escritor.abreObjeto();
        escritor.campo("tipo", nombreDe(accion.tipo));
        escritor.campo("numRegla", accion.regla);
        escritor.campo("regla", accion.textoRegla);
        escritor.cierraObjeto();
    }
    escritor.cierraLista();
    escribeEjemplos(escritor, "ejemplos", historia.cortos);
    escribeEjemplos(escritor, "enTokens", historia.completos);
    escritor.abreLista("porque");
    for (const std::u16string& paso : historia.porque) escritor.elemento(paso);
    escritor.cierraLista();
    escritor.campo("cura", palabras::nombreDe(historia.cura));
    escritor.campo("remedio", palabras::remedio(historia));
    escritor.campo("agotado", historia.agotado ? std::u16string_view(u"sí") : std::u16string_view(u"no"));
    escritor.cierraObjeto();
}

} // namespace

void escribeHistorias(Escritor& escritor, const std::vector<HistoriaConflicto>& historias) {
    escritor.abreLista("historias");
    for (const HistoriaConflicto& historia : historias) escribe(escritor, historia);
    escritor.cierraLista();
}

} // namespace norvik::orden
