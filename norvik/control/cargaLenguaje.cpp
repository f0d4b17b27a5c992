// SPDX-License-Identifier: MIT

#include "norvik/control/cargaLenguaje.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/spec/lectorModulo.hpp"

namespace norvik::inline v0_2 {

Compilacion cargaLenguaje(Norvik& control, std::u16string_view especificacion) {
    if (especificacion.size() > maximoTexto) throw TextoDemasiadoLargo();
    Compilacion compilacion = Lenguaje::compila(especificacion);
    if (!compilacion) return compilacion;
    if (!control.CargaGramatica(especificacion)) throw ErrorNorvik(control.GetmensajeError());
    control.GeneraCompilador(); // nothing of it is touched any more
    return compilacion;
}

Compilacion cargaLenguajeDe(Norvik& control, const std::filesystem::path& fichero) {
    if (!esModulo(fichero)) return cargaLenguaje(control, leeTexto(fichero));
    Compilacion compilacion = Lenguaje::deFichero(fichero);
    if (!compilacion) return compilacion;
    control.OlvidaLenguaje();
    if (const auto error = CargaModulo(fichero, control)) throw ErrorNorvik(error->mensaje());
    return compilacion;
}

} // namespace norvik::inline v0_2
