// SPDX-License-Identifier: MIT

#include "carpeta.hpp"

#include "linea.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"

#include <cerrno>

namespace norvik::orden {

void compruebaCarpeta(const std::filesystem::path& carpeta) {
    std::error_code error;
    if (carpeta == flujo || std::filesystem::is_directory(carpeta, error)) return;
    const std::u16string causa = error ? causaDelSistema(error.value()) : u"no es una carpeta";
    throw ErrorDeFichero(u"No se puede escribir en la carpeta «" + decodifica(carpeta.native()) + u"»: " +
                         causa);
}

} // namespace norvik::orden
