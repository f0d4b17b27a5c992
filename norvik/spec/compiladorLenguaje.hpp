// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/spec/directivas.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <functional>
#include <optional>
#include <stop_token>

namespace norvik::inline v0_2 {

class CargadorLenguaje;

/// The language that specifications are written in; one for the whole process.
const Lenguaje& lenguajeDeEspecificaciones();

/// What a specification asks for, unless the options say otherwise.
Directivas directivasDe(std::u16string_view especificacion, const OpcionesCompilacion& opciones,
                        Lugares::Unidad unidad);

/// Makes the language that a specification describes, of the analysis of its text.
Compilacion compilaEspecificacion(const Analisis& especificacion, const Directivas& directivas,
                                  const std::stop_token& cancelacion = {});

/// Makes a language of the calls of a loading module.
Compilacion lenguajeDeModulo(const std::function<std::optional<ErrorModulo>(CargadorLenguaje&)>& replica);

} // namespace norvik::inline v0_2
