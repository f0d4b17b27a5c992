// SPDX-License-Identifier: MIT

// A tree is drawn with its leaves side by side on the lines of their levels, and each variable over the
// middle of its children: nodes stand in the tree children first, so that one pass over them places all.
#include "norvik/checks/historiaHtml.hpp"

#include "norvik/base/html.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/palabrasHistoria.hpp"
#include "norvik/checks/recorridoEjemplo.hpp"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

std::u16string parrafo(std::u16string_view texto) {
    return u"<p>" + escapaHtml(texto) + u"</p>\n";
}

std::u16string codigo(std::u16string_view texto) {
    return u"<p><code>" + escapaHtml(texto) + u"</code></p>\n";
}

class Dibujo {
public:
    explicit Dibujo(const ArbolEjemplo& arbol)
        : arbol_(arbol), centros_(arbol.nodos.size()), niveles_(arbol.nodos.size()) {
        for (std::size_t i = arbol.nodos.size(); i > 0; --i)
            for (const std::int32_t hijo : arbol.nodos[i - 1].hijos)
                niveles_[static_cast<std::size_t>(hijo)] = niveles_[i - 1] + 1;
        coloca();
    }

    std::u16string svg() const {
        const int alto = (*std::ranges::max_element(niveles_) + 1) * altoNivel;
        std::u16string html = u"<svg role=\"img\" width=\"" + aTexto(ancho_) + u"\" height=\"" +
                              aTexto(alto) + u"\" viewBox=\"0 0 " + aTexto(ancho_) + u" " + aTexto(alto) +
                              u"\" style=\"max-width:100%;height:auto\" aria-label=\"" +
                              escapaHtml(enPalabras()) + u"\">\n";
        html += u"<g stroke=\"currentColor\" stroke-width=\"1\">";
        for (std::size_t i = 0; i < arbol_.nodos.size(); ++i)
            for (const std::int32_t hijo : arbol_.nodos[i].hijos)
                html += rama(i, static_cast<std::size_t>(hijo));
        html += u"</g>\n<g fill=\"currentColor\" font-family=\"monospace\" font-size=\"14\" "
                u"text-anchor=\"middle\">";
        for (std::size_t i = 0; i < arbol_.nodos.size(); ++i)
            html += u"<text x=\"" + aTexto(centros_[i]) + u"\" y=\"" + aTexto(base(i)) + u"\"" +
                    (arbol_.nodos[i].regla != 0 ? u" font-weight=\"bold\">" : u">") +
                    rotulo(arbol_.nodos[i]) + u"</text>";
        return html + u"</g>\n</svg>\n";
    }

private:
    static constexpr int altoNivel = 44;
    static constexpr int anchoLetra = 9;
    static constexpr int margen = 8;

    static std::u16string rotulo(const NodoEjemplo& nodo) {
        const bool vacia = nodo.regla != 0 && nodo.hijos.empty();
        return escapaHtml(vacia ? nodo.simbolo + u" → Ø" : nodo.simbolo);
    }
    static int largo(const NodoEjemplo& nodo) {
        const std::size_t letras = nodo.simbolo.size() + (nodo.regla != 0 && nodo.hijos.empty() ? 4 : 0);
        return static_cast<int>(letras) * anchoLetra;
    }
    int base(std::size_t nodo) const { return niveles_[nodo] * altoNivel + 20; }

    // What has no children takes the next place to the right; a long name pushes what follows it.
    void coloca() {
        int libre = margen;
        recorre(
            arbol_, [](const NodoEjemplo&, std::size_t) {},
            [&](const NodoEjemplo& nodo) {
                const auto cual = static_cast<std::size_t>(&nodo - arbol_.nodos.data());
                if (nodo.hijos.empty()) {
                    centros_[cual] = libre + largo(nodo) / 2;
                    libre += largo(nodo) + 2 * margen;
                    return;
                }
                const auto primero = static_cast<std::size_t>(nodo.hijos.front());
                const auto ultimo = static_cast<std::size_t>(nodo.hijos.back());
                centros_[cual] =
                    std::max((centros_[primero] + centros_[ultimo]) / 2, largo(nodo) / 2 + margen);
                libre = std::max(libre, centros_[cual] + largo(nodo) / 2 + 2 * margen);
            });
        ancho_ = libre;
    }

    std::u16string rama(std::size_t padre, std::size_t hijo) const {
        return u"<line x1=\"" + aTexto(centros_[padre]) + u"\" y1=\"" + aTexto(base(padre) + 5) +
               u"\" x2=\"" + aTexto(centros_[hijo]) + u"\" y2=\"" + aTexto(base(hijo) - 15) + u"\"/>";
    }

    // «E de (E mas E)» for who hears it.
    std::u16string enPalabras() const {
        std::u16string texto;
        recorre(
            arbol_,
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

    const ArbolEjemplo& arbol_;
    std::vector<int> centros_; // of each node
    std::vector<int> niveles_;
    int ancho_ = 0;
};

std::u16string lado(const HistoriaConflicto& historia, std::size_t cual) {
    std::u16string html = u"<figure>\n<figcaption>" + escapaHtml(palabras::rotulo(historia, cual));
    if (historia.clase != HistoriaConflicto::Clase::Ambigua)
        html += u" <code>" + escapaHtml(palabras::frase(historia.cortos[cual])) + u"</code>";
    return html + u"</figcaption>\n" + Dibujo(historia.cortos[cual].arbol).svg() + u"</figure>\n";
}

std::u16string ejemplo(const HistoriaConflicto& historia) {
    std::u16string html;
    if (historia.clase == HistoriaConflicto::Clase::Ambigua)
        html += codigo(palabras::frase(historia.cortos[0]));
    html += lado(historia, 0) + lado(historia, 1);
    const auto& [una, otra] = historia.completos;
    if (una.arbol.nodos.empty() || otra.arbol.nodos.empty()) return html;
    html += parrafo(u"Desde la variable inicial y en tokens:") + codigo(palabras::frase(una));
    if (palabras::frase(otra) != palabras::frase(una)) html += codigo(palabras::frase(otra));
    const std::u16string dicho = palabras::prueba(historia);
    return dicho.empty() ? html : html + parrafo(dicho);
}

} // namespace

std::u16string enHtml(const HistoriaConflicto& historia) {
    std::u16string html = u"<section class=\"historia\">\n";
    html += parrafo(palabras::planteamiento(historia)) + parrafo(palabras::explicacion(historia));
    if (historia.clase != HistoriaConflicto::Clase::SinEjemplo) html += ejemplo(historia);
    if (!historia.porque.empty()) {
        html += parrafo(u"Por qué cabe reducir ahí:") + u"<ul>\n";
        for (const std::u16string& paso : historia.porque) html += u"<li>" + escapaHtml(paso) + u"</li>\n";
        html += u"</ul>\n";
    }
    return html + parrafo(u"Qué hacer: " + palabras::remedio(historia)) + u"</section>\n";
}

} // namespace norvik::inline v0_2
