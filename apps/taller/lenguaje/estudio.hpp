// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/revisada.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/parser/analisis.hpp"

#include <cstddef>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace norvik::taller {

/// What is known of a specification.
struct LenguajeEstudiado : Revisada {
    std::u16string especificacion;
    std::vector<Diagnostico> diagnosticos{}; ///< what was found, in the order of the text
    /// Of its table, sorted by cell; those of which the classic method says nothing are among them.
    std::vector<Conflicto> conflictos{};
    /// Cells in doubt of its table; where that is the classic one, of the `lalr` table in its place.
    std::size_t dudas = 0;
    /// Of a text that cannot be read only the first error was looked for, and no repair.
    bool faltanArreglos = false;

    const OpcionesTabla& opciones() const { return directivas.tabla; }
    /// Rules, sets, automaton and table; null when there are none.
    const GramaticaLR* gramatica() const;
};

/// One consistent version of everything that is known of a specification and a text: what the panels of the
/// language window show. It never changes, and any thread may read it.
struct Estudio {
    /// Never null. The same one as long as the specification is the same: who shows only the language has
    /// nothing to do when it is.
    std::shared_ptr<const LenguajeEstudiado> deLenguaje;
    std::u16string texto;
    Analisis analisis{};         ///< of the text; nothing when there is no grammar
    bool faltanArreglos = false; ///< of one of both

    const GramaticaLR* gramatica() const { return deLenguaje->gramatica(); }
    /// The tree of the text, or of the repaired text; empty when there is none.
    const ArbolAnalisis& arbol() const {
        return analisis.arbol.esVacio() ? analisis.reparado : analisis.arbol;
    }
};

/// Studies a pair, in any thread; what an earlier study knows of the same specification is taken from it.
/// With the first error of each text alone it takes no time for repairs. Null when it was stopped. Raises
/// `Desbordamiento` with a text that is too long to be parsed.
std::shared_ptr<const Estudio> estudia(const std::u16string& especificacion, const std::u16string& texto,
                                       const std::shared_ptr<const Estudio>& anterior,
                                       const std::stop_token& parada,
                                       ErroresBuscados errores = ErroresBuscados::Todos);

} // namespace norvik::taller
