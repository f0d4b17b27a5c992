// SPDX-License-Identifier: MIT

#include "norvik/checks/palabrasHistoria.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/recorridoEjemplo.hpp"

namespace norvik::inline v0_2::palabras {

namespace {

using Tipo = AccionConflicto::Tipo;
using Clase = HistoriaConflicto::Clase;
using Cura = HistoriaConflicto::Cura;
using Prueba = HistoriaConflicto::Prueba;

std::u16string entreComillas(std::u16string_view simbolo) {
    if (simbolo == u"$") return u"el final del texto";
    return u"«" + std::u16string(simbolo) + u"»";
}

// «desplazar «sino»», «reducir por E -> E mas E».
std::u16string accion(const HistoriaConflicto& historia, std::size_t cual) {
    const AccionConflicto& accion = historia.acciones[cual];
    switch (accion.tipo) {
    case Tipo::Desplazar:
        return u"desplazar " + entreComillas(historia.simbolo);
    case Tipo::Reducir:
        return u"reducir por " + accion.textoRegla;
    case Tipo::Aceptar:
        return u"aceptar el texto";
    }
    return {};
}

std::u16string cabeza(const HistoriaConflicto& historia, std::size_t cual) {
    const std::u16string& regla = historia.acciones[cual].textoRegla;
    return regla.substr(0, regla.find(u' '));
}

} // namespace

std::u16string planteamiento(const HistoriaConflicto& historia) {
    const bool dosReglas = historia.acciones[0].tipo == Tipo::Reducir;
    const std::u16string donde = historia.estado == HistoriaConflicto::sinEstado
                                     ? u"Ante "
                                     : u"En el estado " + aTexto(historia.estado) + u", ante ";
    return donde + entreComillas(historia.simbolo) + u" cabe " + accion(historia, 0) + u" y cabe " +
           accion(historia, 1) + u". La tabla elige " +
           (dosReglas ? u"la regla anterior" : accion(historia, 0)) + u".";
}

std::u16string explicacion(const HistoriaConflicto& historia) {
    const std::u16string ante = entreComillas(historia.simbolo);
    switch (historia.clase) {
    case Clase::Ambigua:
        return u"La gramática es ambigua: esta frase de " + historia.cortos[0].arbol.nodos.back().simbolo +
               u" tiene dos árboles, que se separan en •.";
    case Clase::DosFrases:
        return u"Estas dos frases empiezan igual hasta " + ante +
               u", y cada una pide una acción: para decidir hay que ver más texto." +
               (historia.agotado
                    ? u" (La búsqueda de una frase con dos árboles se dejó tras " +
                          aTexto(static_cast<std::int64_t>(historia.pasos)) + u" pasos: puede haberla.)"
                    : u" No hay ninguna frase con dos árboles que se separen aquí.");
    case Clase::SinComienzoComun:
        return u"Estas dos frases no empiezan igual, pero la tabla las lleva al mismo sitio y no las "
               u"distingue: el conflicto es de la tabla, no de la gramática.";
    case Clase::SinEjemplo:
        if (historia.agotado)
            return u"No se le ha buscado un ejemplo: ya se han contado muchos conflictos de esta gramática, "
                   u"o se "
                   u"acabó el tiempo.";
        return u"No hay ejemplo: de alguna de las variables que intervienen no sale ningún texto.";
    }
    return {};
}

std::u16string rotulo(const HistoriaConflicto& historia, std::size_t cual) {
    return (cual == 0 ? u"Lo que elige la tabla, " : u"Lo otro, ") + accion(historia, cual) + u":";
}

std::u16string prueba(const HistoriaConflicto& historia) {
    switch (historia.prueba) {
    case Prueba::SinProbar:
        return {};
    case Prueba::DaElPrimero:
        return u"Del texto en tokens la tabla da el primer árbol.";
    case Prueba::DaElSegundo:
        return u"Del texto en tokens la tabla da el segundo árbol.";
    case Prueba::DaOtro:
        return u"Del texto en tokens la tabla da todavía otro árbol: hay más donde elegir.";
    case Prueba::LoRechaza:
        return u"La tabla rechaza el texto en tokens, aunque es de la gramática.";
    }
    return {};
}

std::u16string remedio(const HistoriaConflicto& historia) {
    if (historia.clase == Clase::SinEjemplo && historia.agotado)
        return u"Mire antes los conflictos de los que hay ejemplo: arreglarlos suele quitar otros.";
    const std::u16string simbolo = entreComillas(historia.simbolo);
    const std::u16string perdida = cabeza(historia, 1);
    switch (historia.cura) {
    case Cura::SinoColgante:
        return u"La parte que empieza por " + simbolo + u" puede ser de la " + perdida +
               u" de dentro o de la de fuera. Si es de la más cercana, la tabla ya acierta; para que lo diga "
               u"la gramática, parta " +
               perdida +
               u" en dos variables: la que lleva siempre esa parte y la que no, y deje delante de " +
               simbolo + u" solo la primera.";
    case Cura::Asociatividad:
        return u"El operador no dice hacia qué lado se agrupa. Escriba la recursión a un solo lado: " +
               perdida + u" -> " + perdida + u" " + historia.simbolo +
               u" Termino agrupa por la izquierda; con un método exacto vale también la directiva "
               u"'% izquierda: " +
               historia.simbolo + u".";
    case Cura::Prioridad:
        return u"No se dice qué operador se agrupa antes. Dé a cada prioridad su variable (" + perdida +
               u" para los que se agrupan al final, otra para los de dentro); con un método exacto valen "
               u"también las directivas '% izquierda: y '% derecha:, una línea por prioridad.";
    case Cura::ListaDosVeces:
        return u"Lo mismo, repetido o vacío, sale de dos maneras. Deje una sola: una recursión a un lado "
               u"(Lista -> Lista Elemento | Elemento) y el vacío en un solo sitio.";
    case Cura::Ciclo:
        return u"Una variable deriva en sí misma sin leer nada. Quite la regla que no añade nada.";
    case Cura::DosVariables:
        return u"El mismo texto es de dos reglas. Si no significan cosas distintas, deje una; si las "
               u"significan, que las distinga algún token, o decídalo después, con el árbol hecho.";
    case Cura::MetodoLalr:
        return u"No hace falta tocar la gramática: con la línea '% metodo: lalr al principio este conflicto "
               u"no existe (comprobado).";
    case Cura::MetodoLr1:
        return u"No hace falta tocar la gramática: con la línea '% metodo: lr1 al principio este conflicto "
               u"no existe (comprobado).";
    case Cura::Factorizar:
        return u"Aplace la decisión: saque fuera el comienzo común, para que la regla se cierre cuando ya se "
               u"ha visto lo que distingue a las dos frases.";
    case Cura::Reescribir:
        return u"Decida cuál de los dos árboles es el bueno y escriba las reglas para que solo salga ese.";
    }
    return {};
}

std::u16string_view nombreDe(Clase clase) {
    switch (clase) {
    case Clase::Ambigua:
        return u"ambigua";
    case Clase::DosFrases:
        return u"dos-frases";
    case Clase::SinComienzoComun:
        return u"sin-comienzo-comun";
    case Clase::SinEjemplo:
        return u"sin-ejemplo";
    }
    return {};
}

std::u16string_view nombreDe(Cura cura) {
    switch (cura) {
    case Cura::SinoColgante:
        return u"sino-colgante";
    case Cura::Asociatividad:
        return u"asociatividad";
    case Cura::Prioridad:
        return u"prioridad";
    case Cura::ListaDosVeces:
        return u"lista-dos-veces";
    case Cura::Ciclo:
        return u"ciclo";
    case Cura::DosVariables:
        return u"dos-variables";
    case Cura::MetodoLalr:
        return u"metodo-lalr";
    case Cura::MetodoLr1:
        return u"metodo-lr1";
    case Cura::Factorizar:
        return u"factorizar";
    case Cura::Reescribir:
        return u"reescribir";
    }
    return {};
}

std::u16string arbol(const ArbolEjemplo& arbol) {
    std::u16string texto;
    recorre(
        arbol,
        [&](const NodoEjemplo& nodo, std::size_t /*nivel*/) {
            if (!texto.empty() && !texto.ends_with(u'(')) texto += u' ';
            texto += nodo.simbolo;
            if (nodo.regla != 0) texto += nodo.hijos.empty() ? u" vacía" : u", que es (";
        },
        [&](const NodoEjemplo& nodo) {
            if (nodo.regla != 0 && !nodo.hijos.empty()) texto += u')';
        });
    return texto;
}

std::u16string frase(const EjemploConflicto& ejemplo) {
    std::u16string texto;
    const auto simbolos = ejemplo.frase();
    for (std::size_t i = 0; i <= simbolos.size(); ++i) {
        if (i == ejemplo.punto) texto += texto.empty() ? u"•" : u" •";
        if (i < simbolos.size()) texto += (texto.empty() ? u"" : u" ") + simbolos[i];
    }
    return texto;
}

} // namespace norvik::inline v0_2::palabras
