// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/widget/controlNorvik.hpp"

#include <QString>

#include <string>
#include <string_view>

namespace norvik::taller {

/// What a new language begins with: conflicts are all told, and no text of the grammar is refused.
inline constexpr std::u16string_view plantilla = u"'% metodo: lalr\r\n";

/// A control has a language to parse its text with.
bool tieneLenguaje(ControlNorvik& norvik);
/// The specification that the control keeps.
const std::u16string& especificacionDe(ControlNorvik& norvik);
/// It has something besides blank lines and comments.
bool hayEspecificacion(ControlNorvik& norvik);
/// Gives the control a specification to keep; its language stays as it is.
void ponEspecificacion(ControlNorvik& norvik, std::u16string_view especificacion);

/// Compiles the specification apart, where a person can cancel it, which raises `OperacionCancelada`: a
/// control that compiles has lost its language before. What is too much for any table, empty when nothing is.
std::u16string ensayaLenguaje(SistemaQt& sistema, ControlNorvik& norvik);

// Loading a language colours the text with it. What is wrong with it comes back as a text, empty when nothing
// is; the control is then without a language. Failures of files are raised.

/// The language of the specification that the control keeps.
std::u16string compilaLenguaje(ControlNorvik& norvik);
/// None.
void descargaLenguaje(ControlNorvik& norvik);
/// That of a loading module.
std::u16string cargaModulo(ControlNorvik& norvik, const QString& fichero);

} // namespace norvik::taller
