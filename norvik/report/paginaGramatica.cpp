// SPDX-License-Identifier: MIT

// Each thing has one place in the page, with an anchor: rule 3 is #r3, state 5 is #e5, the second variable is
// #v2. Where its name or number stands anywhere else, it leads there.
#include "norvik/report/paginaGramatica.hpp"

#include "norvik/base/html.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/historiaHtml.hpp"
#include "norvik/report/grafoEstados.hpp"
#include "norvik/report/informe.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <span>
#include <unordered_map>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::u16string_view estilo = uR"(
:root { color-scheme: light dark; --raya: #8886; --fondo: #8882; --aviso: #b45f06; }
@media (prefers-color-scheme: dark) { :root { --aviso: #ffb454; } }
body { font: 16px/1.5 system-ui, sans-serif; max-width: 75rem; margin: 0 auto; padding: 1rem; }
code, table, svg, .items { font-family: ui-monospace, monospace; }
nav a { margin-right: 1rem; }
table { border-collapse: collapse; }
th, td { border: 1px solid var(--raya); padding: .15rem .5rem; text-align: left; vertical-align: top; }
thead th { position: sticky; top: 0; background: Canvas; }
.ancha { overflow: auto; max-height: 90vh; }
.ancha th:first-child { position: sticky; left: 0; background: Canvas; }
.conflicto { outline: 2px solid var(--aviso); font-weight: bold; }
.estado { border-top: 1px solid var(--raya); }
:target { background: var(--fondo); }
.aviso { border-left: .3rem solid var(--aviso); padding-left: .7rem; }
figure { display: inline-block; margin: .5rem 1.5rem .5rem 0; vertical-align: top; }
@media print { .ancha { overflow: visible; max-height: none; } nav { display: none; } thead th { position: static; } }
)";

std::u16string enlace(std::u16string_view lugar, std::u16string_view texto) {
    return u"<a href=\"#" + std::u16string(lugar) + u"\">" + escapaHtml(texto) + u"</a>";
}

class Pagina {
public:
    Pagina(const GramaticaLR& g, const NotasDePagina& notas) : g_(g), notas_(notas) {
        for (std::int16_t r = 1; r <= g.reglas.numReglas(); ++r)
            variables_.try_emplace(g.partidas.cabeza(r), variables_.size() + 1);
    }

    std::u16string html() {
        cabecera();
        reglas();
        conjuntos();
        conflictos();
        automata();
        tabla();
        pon(u"</body>\n</html>\n");
        return std::move(html_);
    }

private:
    template <typename... Piezas>
    void pon(const Piezas&... piezas) {
        (html_.append(piezas), ...);
    }

    void cabecera() {
        const std::u16string titulo = escapaHtml(notas_.titulo);
        pon(u"<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" "
            u"content=\"width=device-width, initial-scale=1\">\n<title>",
            titulo, u"</title>\n<style>", estilo, u"</style>\n</head>\n<body>\n<h1>", titulo,
            u"</h1>\n<nav>");
        for (const auto& [lugar, texto] : secciones) pon(enlace(lugar, texto), u"\n");
        pon(u"</nav>\n<p>Método: ", nombreDelMetodo(), u". ", aTexto(g_.reglas.numReglas()), u" reglas, ",
            aTexto(g_.tabla.simbolos().terminales.totalElementos()), u" tokens, ",
            aTexto(g_.tabla.simbolos().variables.totalElementos()), u" variables, ",
            aTexto(static_cast<std::int64_t>(g_.automata.estados.size())), u" estados.</p>\n");
        for (const Diagnostico& aviso : lasPrimeras(notas_.avisos))
            pon(u"<p class=\"aviso\">Aviso: ", escapaHtml(mensaje(aviso)), u"</p>\n");
        quedan(notas_.avisos.size(), u"avisos");
    }

    // Nobody reads more of one kind, and hundreds of thousands make a page that no browser shows.
    static constexpr std::size_t maximo = 1'000;
    template <typename Cosa>
    static std::span<const Cosa> lasPrimeras(const std::vector<Cosa>& todas) {
        return std::span(todas).first(std::min(todas.size(), maximo));
    }
    void quedan(std::size_t cuantas, std::u16string_view cosas) {
        if (cuantas > maximo)
            pon(u"<p>Otros ", cosas, u": ", aTexto(static_cast<std::int64_t>(cuantas - maximo)), u".</p>\n");
    }

    std::u16string_view nombreDelMetodo() const {
        for (const auto& [nombre, metodo] : metodos)
            if (metodo == notas_.metodo) return nombre;
        return {};
    }

    void titulo(std::size_t seccion) {
        pon(u"<h2 id=\"", secciones[seccion].first, u"\">", secciones[seccion].second, u"</h2>\n");
    }

    // A symbol, which leads to its sets when it is a variable.
    std::u16string simbolo(Simbolo cual) const {
        const auto sitio = g_.partidas.esVariable(cual) ? variables_.find(cual) : variables_.end();
        const std::u16string_view texto = g_.partidas.texto(cual);
        return sitio == variables_.end()
                   ? escapaHtml(texto)
                   : enlace(u"v" + aTexto(static_cast<std::int64_t>(sitio->second)), texto);
    }

    // A rule, with a dot before one of its symbols, if there is one to show.
    static constexpr std::int16_t sinPunto = -1;
    std::u16string cuerpo(std::int16_t regla, std::int16_t punto = sinPunto) const {
        std::u16string texto = simbolo(g_.partidas.cabeza(regla)) + u" →";
        const bool vacia = g_.partidas.esVacia(regla);
        std::int16_t lugar = 0;
        for (const Simbolo s : g_.partidas.cuerpo(regla)) {
            if (lugar == punto) texto += u" •";
            if (!vacia || punto == sinPunto) texto += u" " + simbolo(s);
            ++lugar;
        }
        if (lugar == punto && !vacia) texto += u" •";
        return texto;
    }

    void reglas() {
        titulo(0);
        pon(u"<table>\n<thead><tr><th scope=\"col\">Número</th><th scope=\"col\">Regla</th><th "
            u"scope=\"col\">Predicción</th></tr></thead>\n");
        for (std::int16_t r = 1; r <= g_.reglas.numReglas(); ++r) {
            const std::u16string numero = aTexto(r);
            const auto lugar = static_cast<std::size_t>(r) - 1;
            pon(u"<tr id=\"r", numero, u"\"><th scope=\"row\">", numero, u"</th><td>", cuerpo(r),
                u"</td><td>",
                lugar < g_.conjuntos.predict.size() ? elementos(g_.conjuntos.predict[lugar]) : u"",
                u"</td></tr>\n");
        }
        pon(u"</table>\n");
    }

    std::u16string elementos(const ConjuntoNumerado& conjunto) const {
        std::u16string texto;
        for (const Simbolo s : conjunto.elementos) texto += (texto.empty() ? u"" : u", ") + simbolo(s);
        return texto;
    }

    // The members of all sets of a variable.
    std::u16string deVariable(const std::vector<ConjuntoNumerado>& conjuntos, Simbolo variable) const {
        std::u16string texto;
        for (const ConjuntoNumerado& conjunto : conjuntos)
            if (conjunto.nombre == variable)
                texto += (texto.empty() ? u"" : u" y, aparte, ") + elementos(conjunto);
        return texto;
    }

    void conjuntos() {
        titulo(1);
        pon(u"<table>\n<thead><tr><th scope=\"col\">Variable</th><th scope=\"col\">Primeros</th><th "
            u"scope=\"col\">Siguientes</th><th scope=\"col\">Reglas</th></tr></thead>\n");
        std::set<Simbolo> puestas;
        for (std::int16_t r = 1; r <= g_.reglas.numReglas(); ++r) {
            const Simbolo variable = g_.partidas.cabeza(r);
            if (!puestas.insert(variable).second) continue;
            pon(u"<tr id=\"v", aTexto(static_cast<std::int64_t>(variables_.at(variable))),
                u"\"><th scope=\"row\">", escapaHtml(g_.partidas.texto(variable)), u"</th><td>",
                deVariable(g_.conjuntos.primeros, variable), u"</td><td>",
                deVariable(g_.conjuntos.siguientes, variable), u"</td><td>", reglasDe(variable),
                u"</td></tr>\n");
        }
        pon(u"</table>\n");
    }

    std::u16string reglasDe(Simbolo variable) const {
        std::u16string texto;
        for (std::int16_t r = 1; r <= g_.reglas.numReglas(); ++r)
            if (g_.partidas.cabeza(r) == variable) texto += (texto.empty() ? u"" : u" ") + regla(r);
        return texto;
    }
    static std::u16string regla(std::int16_t numero) { return enlace(u"r" + aTexto(numero), aTexto(numero)); }
    static std::u16string estado(std::int16_t numero, std::u16string_view texto) {
        return enlace(u"e" + aTexto(numero), texto);
    }

    void conflictos() {
        titulo(2);
        pon(u"<p>Lo que dice la tabla:</p>\n<pre>", escapaHtml(textoProblemas(g_)), u"</pre>\n");
        for (const HistoriaConflicto& historia : lasPrimeras(notas_.historias)) {
            pon(u"<h3>");
            if (historia.estado != HistoriaConflicto::sinEstado)
                pon(u"En el ", estado(historia.estado, u"estado " + aTexto(historia.estado)), u", ante «");
            else
                pon(u"Callado por la tabla clásica, ante «");
            pon(escapaHtml(historia.simbolo), u"»</h3>\n", enHtml(historia));
        }
        quedan(notas_.historias.size(), u"conflictos");
    }

    // Of states too many and too long to be looked at, items are shown by their numbers.
    bool sonLegibles() const {
        constexpr std::size_t muchos = 100'000;
        std::size_t simbolos = 0;
        for (const estadoAutomata& e : g_.automata.estados)
            for (const Item item : e.items()) simbolos += g_.partidas.cuerpo(item.regla).size();
        return simbolos < muchos;
    }

    void automata() {
        titulo(3);
        const bool legibles = sonLegibles();
        if (!notas_.dibujo.empty()) pon(u"<div class=\"ancha\">", notas_.dibujo, u"</div>\n");
        for (const estadoAutomata& e : g_.automata.estados) {
            const std::u16string numero = aTexto(e.getNumEstado());
            pon(u"<section class=\"estado\" id=\"e", numero, u"\">\n<h3>Estado ", numero,
                u"</h3>\n<ul class=\"items\">\n");
            if (e.getNumEstado() < 2) itemInicial(e.getNumEstado());
            for (std::size_t i = 0; i < e.items().size(); ++i) {
                const auto [r, punto] = e.items()[i];
                pon(u"<li>", regla(r), u". ", legibles ? cuerpo(r, punto) : u"• tras " + aTexto(punto));
                if (e.adyacentes()[i] >= 0)
                    pon(u" ⇒ ", estado(e.adyacentes()[i], u"estado " + aTexto(e.adyacentes()[i])));
                pon(u"</li>\n");
            }
            pon(u"</ul>\n</section>\n");
        }
    }

    // That of the rule which no grammar has: the start symbol and the end of the text.
    void itemInicial(std::int16_t numero) {
        const std::u16string inicial = simbolo(g_.partidas.cabeza(1));
        if (numero == 0)
            pon(u"<li>comienzo → • ", inicial, u" $ ⇒ ", estado(1, u"estado 1"), u"</li>\n");
        else
            pon(u"<li>comienzo → ", inicial, u" • $</li>\n");
    }

    void tabla() {
        titulo(4);
        const TablaLR& t = g_.tabla;
        constexpr std::int64_t muchas = 150'000;
        if (std::int64_t{t.filasVigentes()} * t.columnasVigentes() > muchas) return listaDeAcciones();
        pon(u"<p>D5: desplazar y pasar al estado 5. R3: reducir por la regla 3. Un número solo: pasar a ese "
            u"estado.</p>\n<div class=\"ancha\">\n<table>\n<thead><tr><th scope=\"col\">Estado</th>");
        for (std::int16_t c = 1; c <= t.columnasVigentes(); ++c)
            pon(u"<th scope=\"col\">", escapaHtml(t.simbolo(c)), u"</th>");
        pon(u"</tr></thead>\n");
        for (std::int16_t f = 1; f <= t.filasVigentes(); ++f) {
            pon(u"<tr><th scope=\"row\">", estado(static_cast<std::int16_t>(f - 1), aTexto(f - 1)), u"</th>");
            for (std::int16_t c = 1; c <= t.columnasVigentes(); ++c) {
                pon(t.enConflicto(f, c) ? u"<td class=\"conflicto\">" : u"<td>", celda(f, c), u"</td>");
            }
            pon(u"</tr>\n");
        }
        pon(u"</table>\n</div>\n");
    }

    std::u16string celda(std::int16_t fila, std::int16_t columna) const {
        const std::int16_t valor =
            g_.tabla.entrada(static_cast<std::int16_t>(fila - 1), static_cast<std::int16_t>(columna - 1));
        std::u16string texto = escapaHtml(celdaTabla(g_.tabla, fila, columna));
        if (valor == 0 || valor == TablaLR::aceptar) return texto;
        const std::u16string lugar = valor > 0 ? u"e" + aTexto(valor) : u"r" + aTexto(-valor);
        return u"<a href=\"#" + lugar + u"\">" + texto + u"</a>";
    }

    // Of a table too wide to be looked at.
    void listaDeAcciones() {
        const TablaLR& t = g_.tabla;
        for (std::int16_t f = 1; f <= t.filasVigentes(); ++f) {
            pon(u"<p>", estado(static_cast<std::int16_t>(f - 1), u"Estado " + aTexto(f - 1)), u":");
            for (std::int16_t c = 1; c <= t.columnasVigentes(); ++c)
                if (const std::u16string accion = celda(f, c); !accion.empty())
                    pon(u" <code>", escapaHtml(t.simbolo(c)), u"</code> ", accion, u";");
            pon(u"</p>\n");
        }
    }

    static constexpr std::array<std::pair<std::u16string_view, std::u16string_view>, 5> secciones{
        {{u"reglas", u"Reglas"},
         {u"conjuntos", u"Conjuntos"},
         {u"conflictos", u"Conflictos"},
         {u"automata", u"Autómata"},
         {u"tabla", u"Tabla"}}};

    const GramaticaLR& g_;
    const NotasDePagina& notas_;
    std::unordered_map<Simbolo, std::size_t> variables_;
    std::u16string html_;
};

std::u16string entreComillas(std::u16string_view texto) {
    std::u16string literal = u"\"";
    for (const char16_t c : texto) {
        if (c == u'"' || c == u'\\') literal += u'\\';
        literal += c;
    }
    return literal + u"\"";
}

} // namespace

std::u16string paginaDeGramatica(const GramaticaLR& g, const NotasDePagina& notas) {
    return Pagina(g, notas).html();
}

std::u16string grafoDeAutomata(const GramaticaLR& g) {
    const std::vector<Transicion> transiciones = transicionesDe(g);
    std::u16string grafo = u"digraph {\nrankdir=LR; bgcolor=transparent;\nnode [shape=box, "
                           u"fontname=monospace, fontsize=11]; edge [fontname=monospace, fontsize=11];\n";
    auto transicion = transiciones.begin();
    for (const estadoAutomata& e : g.automata.estados) {
        const std::u16string numero = aTexto(e.getNumEstado());
        grafo += numero;
        grafo += u" [URL=\"#e" + numero + u"\"];\n";
        for (; transicion != transiciones.end() && transicion->desde == e.getNumEstado(); ++transicion)
            grafo.append(numero)
                .append(u" -> ")
                .append(aTexto(transicion->hasta))
                .append(u" [label=")
                .append(entreComillas(g.partidas.texto(transicion->simbolo)))
                .append(u"];\n");
    }
    return grafo + u"}\n";
}

} // namespace norvik::inline v0_2
