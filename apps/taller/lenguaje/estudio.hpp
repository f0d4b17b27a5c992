// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/fuente.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/opcionesTabla.hpp"
#include "norvik/parser/analisis.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace norvik::taller {

/// What is known of a specification.
struct LenguajeEstudiado {
    std::u16string especificacion;
    std::vector<Diagnostico> diagnosticos; ///< of its review, in the order of the text
    FuenteEspecificacion fuente;           ///< empty when it cannot be read
    OpcionesTabla opciones;
    std::optional<Lenguaje> lenguaje; ///< what could be made of it
    /// Of its table, sorted by cell; those of which the classic method says nothing are among them.
    std::vector<Conflicto> conflictos;

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
    Analisis analisis; ///< of the text; nothing when there is no grammar

    const GramaticaLR* gramatica() const { return deLenguaje->gramatica(); }
    /// The tree of the text, or of the repaired text; empty when there is none.
    const ArbolAnalisis& arbol() const {
        return analisis.arbol.esVacio() ? analisis.reparado : analisis.arbol;
    }
};

/// Studies a pair, in any thread; what an earlier study knows of the same specification is taken from it.
/// Null when it was stopped. Raises `Desbordamiento` with a text that is too long to be parsed.
std::shared_ptr<const Estudio> estudia(const std::u16string& especificacion, const std::u16string& texto,
                                       const std::shared_ptr<const Estudio>& anterior,
                                       const std::stop_token& parada);

} // namespace norvik::taller
