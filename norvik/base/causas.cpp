// SPDX-License-Identifier: MIT

#include "norvik/base/causas.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

namespace norvik::inline v0_2 {

namespace {

struct Causa {
    int codigo;
    std::u16string_view texto;
};

// Our own words: those of the C library depend on the locales that happen to be installed.
constexpr std::array causas = {
    Causa{ENOENT, u"no existe"},
    Causa{EISDIR, u"es una carpeta"},
    Causa{ENOTDIR, u"una parte de la ruta no es una carpeta"},
    Causa{EACCES, u"permiso denegado"},
    Causa{EPERM, u"operación no permitida"},
    Causa{ENOSPC, u"no queda espacio en el disco"},
    Causa{EDQUOT, u"se ha agotado la cuota de disco"},
    Causa{EROFS, u"el sistema de ficheros es de solo lectura"},
    Causa{EFBIG, u"el fichero es demasiado grande"},
    Causa{EIO, u"error de entrada o salida"},
    Causa{ELOOP, u"demasiados enlaces simbólicos"},
    Causa{ENAMETOOLONG, u"el nombre es demasiado largo"},
    Causa{EINVAL, u"el nombre o la operación no son válidos"},
    Causa{EPIPE, u"el lector se ha ido"},
    Causa{EMFILE, u"demasiados ficheros abiertos"},
    Causa{ENFILE, u"demasiados ficheros abiertos en el sistema"},
    Causa{ENOMEM, u"no hay memoria suficiente"},
    Causa{ENXIO, u"el dispositivo no responde"},
    Causa{EBUSY, u"está en uso"},
    Causa{ETXTBSY, u"es un programa en ejecución"},
    Causa{EBADF, u"no está abierto"},
};

} // namespace

std::u16string causaDelSistema(int codigo) {
    const auto* const causa = std::find_if(causas.begin(), causas.end(),
                                           [codigo](const Causa& otra) { return otra.codigo == codigo; });
    if (causa != causas.end()) return std::u16string(causa->texto);
    return u"error " + aTexto(codigo) + u" del sistema";
}

} // namespace norvik::inline v0_2
