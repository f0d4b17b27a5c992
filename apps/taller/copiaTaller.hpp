// SPDX-License-Identifier: MIT

#pragma once

#include "formulario.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::taller {

/// What is not saved in the windows, with what stands beside it: all that a person would miss.
struct CopiaTaller {
    std::optional<EstadoFormulario> formulario;
    std::optional<std::array<EstadoDocumento, 2>> lenguaje; ///< specification and text of the language window

    bool vacia() const { return !formulario && !lenguaje; }
    /// What a person calls the documents that were changed.
    QStringList titulos() const;
};

/// A file that holds it: a line of JSON, and the texts in UTF-16, whatever characters they have. Raises
/// `ErrorDeFichero` for a specification of a form that no file can hold.
std::string bytesDe(const CopiaTaller& copia);
/// Raises `NoCoincidenLosTipos` for bytes that are none of those.
CopiaTaller copiaDe(std::string_view bytes);

} // namespace norvik::taller
