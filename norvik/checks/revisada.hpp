// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/fuente.hpp"
#include "norvik/checks/revision.hpp"
#include "norvik/spec/directivas.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <optional>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class gramatica;

/// A specification that was reviewed, with what became of it on the way.
struct Revisada {
    std::vector<Diagnostico> hallazgos; ///< in the order in which they were found
    FuenteEspecificacion fuente;        ///< empty when it could not be read
    Directivas directivas;
    std::optional<Lenguaje> lenguaje; ///< without one there is nothing to tell of its table

    /// Null when there is none.
    const gramatica* laGramatica() const;
};

/// Does what `revisa` does, and gives all of it. Of a text that cannot be read it may look for the first
/// error alone, which takes no time.
Revisada revisada(std::u16string_view especificacion, const OpcionesCompilacion& opciones = {},
                  ErroresBuscados errores = ErroresBuscados::Todos);

/// What was found, in the order of the text, each conflict with its stories.
std::vector<Hallazgo> conHistorias(const Revisada& revision, const LimitesHistorias& limites = {});

/// Puts them in the order of the text.
void ordena(std::vector<Diagnostico>& hallazgos);

} // namespace norvik::inline v0_2
