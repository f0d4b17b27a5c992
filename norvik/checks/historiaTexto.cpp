// SPDX-License-Identifier: MIT

// Trees grow downwards, a line for each variable; leaves that stand together share one.
#include "norvik/checks/historiaTexto.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/palabrasHistoria.hpp"
#include "norvik/checks/recorridoEjemplo.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t ancho = 80;
constexpr std::size_t nivelesDibujados = 12;
constexpr std::size_t lineasDibujadas = 60;

// Words into lines, each behind its margin.
void pliegaLineas(std::u16string& salida, std::u16string_view texto, std::size_t margen) {
    std::u16string linea(margen, u' ');
    std::size_t llenos = 0;
    while (!texto.empty()) {
        const std::u16string_view palabra = texto.substr(0, texto.find(u' '));
        texto = texto.substr(std::min(palabra.size() + 1, texto.size()));
        if (llenos > 0 && linea.size() + 1 + palabra.size() > ancho) {
            salida += linea + u"\n";
            linea.assign(margen + 2, u' ');
            llenos = 0;
        }
        if (llenos++ > 0) linea += u' ';
        linea += palabra;
    }
    salida += linea + u"\n";
}

// One line of a drawing: what stands before it, and its text.
class DibujoTexto {
public:
    explicit DibujoTexto(const ArbolEjemplo& arbol) : arbol_(arbol) {}

    std::u16string texto() {
        std::vector<std::pair<std::size_t, std::size_t>> abiertos; // node, next child
        linea({}, rotulo(arbol_.nodos.back()));
        abiertos.emplace_back(arbol_.nodos.size() - 1, 0);
        while (!abiertos.empty() && lineas_ < lineasDibujadas) {
            auto& [cual, hijo] = abiertos.back();
            const NodoEjemplo& nodo = arbol_.nodos[cual];
            if (hijo == nodo.hijos.size()) {
                abiertos.pop_back();
                if (!abiertos.empty()) quedan_.pop_back();
                continue;
            }
            const std::size_t primero = hijo;
            std::u16string juntos;
            while (hijo < nodo.hijos.size() && de(nodo, hijo).regla == 0)
                juntos += (juntos.empty() ? u"" : u" ") + de(nodo, hijo++).simbolo;
            const bool esHoja = hijo > primero;
            if (!esHoja) ++hijo;
            const bool ultimo = hijo == nodo.hijos.size();
            linea(ultimo ? u"└─ " : u"├─ ", esHoja ? juntos : rotulo(de(nodo, primero)));
            if (esHoja) continue;
            const auto entra = static_cast<std::size_t>(nodo.hijos[primero]);
            quedan_.push_back(!ultimo);
            abiertos.emplace_back(entra, 0);
        }
        if (!abiertos.empty()) texto_ += u"      …\n";
        return std::move(texto_);
    }

private:
    const NodoEjemplo& de(const NodoEjemplo& padre, std::size_t hijo) const {
        return arbol_.nodos[static_cast<std::size_t>(padre.hijos[hijo])];
    }
    static std::u16string rotulo(const NodoEjemplo& nodo) {
        const bool vacia = nodo.regla != 0 && nodo.hijos.empty();
        return vacia ? nodo.simbolo + u" (vacía)" : nodo.simbolo;
    }
    void linea(std::u16string_view rama, std::u16string_view rotulo) {
        std::u16string sangria(6, u' ');
        const std::size_t omitidos =
            quedan_.size() > nivelesDibujados ? quedan_.size() - nivelesDibujados : 0;
        if (omitidos > 0) sangria += u"(+" + aTexto(static_cast<std::int64_t>(omitidos)) + u") ";
        for (std::size_t i = omitidos; i < quedan_.size(); ++i) sangria += quedan_[i] ? u"│  " : u"   ";
        sangria.append(rama).append(rotulo);
        if (sangria.size() > ancho) sangria = sangria.substr(0, ancho - 1) + u"…";
        texto_ += sangria + u"\n";
        ++lineas_;
    }

    const ArbolEjemplo& arbol_;
    std::vector<bool> quedan_; // of each open level below the root: there are more children behind
    std::u16string texto_;
    std::size_t lineas_ = 0;
};

void cuentaLado(std::u16string& salida, const HistoriaConflicto& historia, std::size_t cual) {
    pliegaLineas(salida, palabras::rotulo(historia, cual), 2);
    if (historia.clase != HistoriaConflicto::Clase::Ambigua)
        pliegaLineas(salida, palabras::frase(historia.cortos[cual]), 6);
    salida += DibujoTexto(historia.cortos[cual].arbol).texto();
}

void cuentaTokens(std::u16string& salida, const HistoriaConflicto& historia) {
    const auto& [una, otra] = historia.completos;
    if (una.arbol.nodos.empty() || otra.arbol.nodos.empty()) {
        pliegaLineas(salida, u"Del todo en tokens es demasiado largo para escribirlo.", 2);
        return;
    }
    pliegaLineas(salida, u"Desde la variable inicial y en tokens:", 2);
    pliegaLineas(salida, palabras::frase(una), 6);
    if (palabras::frase(otra) != palabras::frase(una)) pliegaLineas(salida, palabras::frase(otra), 6);
    if (const auto dicho = palabras::prueba(historia); !dicho.empty()) pliegaLineas(salida, dicho, 2);
}

} // namespace

std::u16string enTexto(const HistoriaConflicto& historia) {
    std::u16string salida;
    pliegaLineas(salida, palabras::planteamiento(historia), 2);
    pliegaLineas(salida, palabras::explicacion(historia), 2);
    if (historia.clase != HistoriaConflicto::Clase::SinEjemplo) {
        if (historia.clase == HistoriaConflicto::Clase::Ambigua)
            pliegaLineas(salida, palabras::frase(historia.cortos[0]), 6);
        cuentaLado(salida, historia, 0);
        cuentaLado(salida, historia, 1);
        cuentaTokens(salida, historia);
    }
    if (!historia.porque.empty()) {
        pliegaLineas(salida, u"Por qué cabe reducir ahí:", 2);
        for (const std::u16string& paso : historia.porque) pliegaLineas(salida, paso, 6);
    }
    pliegaLineas(salida, u"Qué hacer: " + palabras::remedio(historia), 2);
    return salida;
}

bool seCuentanIgual(const HistoriaConflicto& una, const HistoriaConflicto& otra) {
    const bool esDelOperador =
        una.cura == HistoriaConflicto::Cura::Asociatividad || una.cura == HistoriaConflicto::Cura::Prioridad;
    return !esDelOperador && una.estado == otra.estado && una.cura == otra.cura && una.clase == otra.clase &&
           una.acciones[0].tipo == otra.acciones[0].tipo && una.acciones[1].regla == otra.acciones[1].regla;
}

} // namespace norvik::inline v0_2
