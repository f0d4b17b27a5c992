// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/historiaConflicto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/metodo.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// What a page on a grammar tells besides the grammar itself.
struct NotasDePagina {
    std::u16string titulo;
    Metodo metodo = Metodo::Clasico;
    std::vector<HistoriaConflicto> historias;
    std::vector<Diagnostico> avisos;
    std::u16string dibujo; ///< of the automaton, as SVG that stands in HTML; empty without one
};

/// The whole report as one page of HTML that needs nothing from elsewhere: rules, sets, conflicts with their
/// stories, automaton and table, each linked to the others by the numbers of rules and states and by the
/// names of variables.
std::u16string paginaDeGramatica(const GramaticaLR& g, const NotasDePagina& notas);

/// The automaton in Graphviz's language; its states lead to those of the page.
std::u16string grafoDeAutomata(const GramaticaLR& g);

} // namespace norvik::inline v0_2
