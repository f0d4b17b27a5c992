// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "carpeta.hpp"
#include "graphviz.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/contrasteClasico.hpp"
#include "norvik/checks/cuentaConflictos.hpp"
#include "norvik/report/paginaGramatica.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace norvik::orden {

namespace {

std::vector<Diagnostico> verdades(const gramatica& gramatica) {
    if (gramatica.metodo() != Metodo::Clasico) return {};
    return contrastaClasico(gramatica.valores());
}

std::vector<HistoriaConflicto> historiasDe(const gramatica& gramatica) {
    const GramaticaLR& g = gramatica.valores();
    if (gramatica.metodo() != Metodo::Clasico) return cuentaConflictos(g, gramatica.opciones(), g.tabla);
    auto [historias, apuntados] = cuentaConflictosClasicos(g);
    for (auto& deUnaCelda : apuntados) std::ranges::move(deUnaCelda, std::back_inserter(historias));
    return historias;
}

std::u16string dibujoDe(const GramaticaLR& g) {
    constexpr std::size_t legibles = 60;
    if (g.automata.estados.size() > legibles) return {};
    return decodifica(dibujaGrafo(aUtf8(grafoDeAutomata(g))).value_or(std::string()));
}

std::string pagina(const gramatica& gramatica, const std::filesystem::path& especificacion,
                   std::vector<Diagnostico> avisos) {
    const GramaticaLR& g = gramatica.valores();
    return aUtf8(
        paginaDeGramatica(g, {u"Gramática de " + decodifica(especificacion.stem().native()),
                              gramatica.metodo(), historiasDe(gramatica), std::move(avisos), dibujoDe(g)}));
}

void escribe(const Informe& orden, const gramatica& gramatica, const std::vector<Diagnostico>& avisos,
             Salida& salida) {
    const bool enHtml = orden.formato == FormatoInforme::Html;
    const std::string html = enHtml ? pagina(gramatica, orden.especificacion, avisos) : std::string();
    if (orden.carpeta == flujo) {
        if (enHtml)
            salida.escribe(html);
        else
            gramatica.escribeInforme([&](std::u16string_view pieza) { salida.escribe(aUtf8(pieza)); });
        salida.vuelca(); // if that fails, the failure is all there is to tell
    } else if (enHtml) {
        escribeBytes(orden.carpeta / "informeGramatica.html", html, Durabilidad::Normal);
    } else {
        gramatica.GuardaInforme(orden.carpeta);
    }
}

} // namespace

int ejecuta(const Informe& orden, Salida& salida) {
    compruebaCarpeta(orden.carpeta);
    Anfitrion anfitrion(salida);
    if (!anfitrion.compila(orden.especificacion, orden.metodo)) return anfitrion.estado();
    const gramatica& gramatica = anfitrion.control.Gramatica();
    const std::u16string problemas = gramatica.textoProblemas();
    const std::vector<Diagnostico> avisos = verdades(gramatica);
    escribe(orden, gramatica, avisos, salida);
    if (orden.carpeta == flujo) {
        salida.avisa(problemas);
    } else {
        salida.escribe(aUtf8(problemas));
        if (problemas.back() != u'\n') salida.escribe("\n");
        salida.vuelca(u". El informe está escrito en la carpeta «" + decodifica(orden.carpeta.native()) +
                      u"»");
    }
    for (const Diagnostico& aviso : avisos) salida.avisa(u"aviso: " + visible(mensaje(aviso)));
    return anfitrion.estado();
}

} // namespace norvik::orden
