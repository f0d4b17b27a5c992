// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/historiaConflicto.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Todo lo que está mal o llama la atención en una especificación, en el orden del texto: lo que dice
/// compilarla, con el nombre que quizá se quiso escribir donde nadie conoce el escrito, y lo que no impide
/// compilarla pero no hace lo que parece. Los rangos cuentan unidades UTF-16. Lanza `Desbordamiento` con un
/// texto de 2^31 - 1 unidades o más.
NORVIK_API std::vector<Diagnostico> revisa(std::u16string_view especificacion,
                                           const OpcionesCompilacion& opciones = {});

/// Un diagnóstico de una revisión y, si es de un conflicto, la historia de cada acción que se pierde en su
/// celda.
struct Hallazgo {
    Diagnostico diagnostico;
    std::vector<HistoriaConflicto> historias;
};

/// Lo mismo, y cada conflicto contado con un ejemplo, que se busca dentro de unos límites.
NORVIK_API std::vector<Hallazgo> revisaConHistorias(std::u16string_view especificacion,
                                                    const OpcionesCompilacion& opciones = {},
                                                    const LimitesHistorias& limites = {});

} // namespace norvik::inline v0_2
