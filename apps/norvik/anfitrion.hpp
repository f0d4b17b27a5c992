// SPDX-License-Identifier: MIT

#pragma once

#include "salida.hpp"

#include "norvik/control/norvik.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::orden {

/// A host of the control without windows: message boxes are lines on standard error.
class Anfitrion {
    // Before the control, which uses them as long as it lives.
    Salida& salida_;
    int estado_ = 0;
    SistemaMemoria sistema_;

public:
    explicit Anfitrion(Salida& salida);

    CajaTexto caja;
    Norvik control;

    /// Compiles a language from a file's text, ready to parse. False when there is none to go on with; the
    /// reason has been told. A method wins over the one that the text asks for.
    bool compila(const std::filesystem::path& fichero, std::optional<Metodo> metodo);
    /// The same of a file, which may be a loading module, by its ".bas" ending.
    bool cargaLenguaje(const std::filesystem::path& fichero, std::optional<Metodo> metodo);
    /// Tells that a file's text is wrong by its fixed message; a terminal is shown every error besides.
    void cuentaErrores(std::u16string_view mensaje, const std::vector<Diagnostico>& errores,
                       const std::filesystem::path& fichero, std::u16string_view texto);
    /// Every error of a text that the control's language does not accept, with its repairs.
    std::vector<Diagnostico> erroresDe(std::u16string_view texto);

    /// 0, or 1 once something has been told to be wrong.
    int estado() const { return estado_; }

private:
    bool replica(const std::filesystem::path& modulo);
    void avisa(std::u16string_view mensaje);
};

/// How messages call a file.
std::u16string nombreDeFichero(const std::filesystem::path& fichero);
/// A file's text, or standard input's, as the control loads it; raises `ErrorDeFichero`, and
/// `TextoDemasiadoLargo` for one that no order can work with.
std::u16string leeTextoDe(const std::filesystem::path& fichero);

} // namespace norvik::orden
