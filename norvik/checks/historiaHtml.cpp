// SPDX-License-Identifier: MIT

#include "norvik/checks/historiaHtml.hpp"

#include "norvik/base/html.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/palabrasHistoria.hpp"
#include "norvik/checks/recorridoEjemplo.hpp"
#include "norvik/checks/trazadoArbol.hpp"

#include <cstddef>
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

class DibujoHtml {
public:
    explicit DibujoHtml(const ArbolEjemplo& arbol) : arbol_(arbol) {
        std::vector<NodoPorTrazar> porTrazar;
        recorre(
            arbol, [](const NodoEjemplo&, std::size_t) {},
            [&](const NodoEjemplo& nodo) {
                nodos_.push_back(&nodo);
                porTrazar.push_back({largo(nodo), nodo.hijos.size()});
            });
        trazado_ = trazaArbol(porTrazar, margen);
    }

    std::u16string svg() const {
        const std::u16string ancho = aTexto(trazado_.ancho);
        const std::u16string alto = aTexto(static_cast<std::int64_t>(trazado_.niveles) * altoNivel);
        std::u16string html = u"<svg role=\"img\" width=\"" + ancho + u"\" height=\"" + alto +
                              u"\" viewBox=\"0 0 " + ancho + u" " + alto +
                              u"\" style=\"max-width:100%;height:auto\" aria-label=\"" +
                              escapaHtml(palabras::arbol(arbol_)) + u"\">\n";
        html += u"<g stroke=\"currentColor\" stroke-width=\"1\">";
        for (std::size_t i = 0; i + 1 < nodos_.size(); ++i) html += rama(i);
        html += u"</g>\n<g fill=\"currentColor\" font-family=\"monospace\" font-size=\"14\" "
                u"text-anchor=\"middle\">";
        for (std::size_t i = 0; i < nodos_.size(); ++i)
            html += u"<text x=\"" + aTexto(trazado_.sitios[i].centro) + u"\" y=\"" + aTexto(base(i)) + u"\"" +
                    (nodos_[i]->regla != 0 ? u" font-weight=\"bold\">" : u">") + rotulo(*nodos_[i]) +
                    u"</text>";
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
    int base(std::size_t nodo) const {
        return static_cast<int>(trazado_.sitios[nodo].nivel) * altoNivel + 20;
    }

    std::u16string rama(std::size_t hijo) const {
        const std::size_t padre = trazado_.sitios[hijo].padre;
        return u"<line x1=\"" + aTexto(trazado_.sitios[padre].centro) + u"\" y1=\"" +
               aTexto(base(padre) + 5) + u"\" x2=\"" + aTexto(trazado_.sitios[hijo].centro) + u"\" y2=\"" +
               aTexto(base(hijo) - 15) + u"\"/>";
    }

    const ArbolEjemplo& arbol_;
    std::vector<const NodoEjemplo*> nodos_; // children before their parent
    TrazadoArbol trazado_;
};

std::u16string lado(const HistoriaConflicto& historia, std::size_t cual) {
    std::u16string html = u"<figure>\n<figcaption>" + escapaHtml(palabras::rotulo(historia, cual));
    if (historia.clase != HistoriaConflicto::Clase::Ambigua)
        html += u" <code>" + escapaHtml(palabras::frase(historia.cortos[cual])) + u"</code>";
    return html + u"</figcaption>\n" + DibujoHtml(historia.cortos[cual].arbol).svg() + u"</figure>\n";
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
