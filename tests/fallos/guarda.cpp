// SPDX-License-Identifier: MIT

// Saves a text as an editor does, for `scripts/fallos` to make its calls of the system fail one by one.
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"

#include <cerrno>
#include <iostream>
#include <new>
#include <string_view>
#include <sys/xattr.h>

int main(int argc, char** argv) {
    using namespace norvik;
    if (argc != 3) return 2;
    // Gives a file an attribute, where its system knows them.
    if (argv[1] == std::string_view("--atributo"))
        return setxattr(argv[2], "user.autor", "ana", 3, 0) == 0 || errno == ENOTSUP ? 0 : 1;
    const std::u16string texto = desdeUtf8(argv[2]).value_or(u"");
    try {
        escribeTexto(
            argv[1], [&](const SumideroDeTexto& sumidero) { sumidero(texto); }, Durabilidad::EnDisco);
    } catch (const ErrorNorvik& error) {
        std::cerr << aUtf8(error.texto()) << '\n';
        return 1;
    } catch (const std::bad_alloc&) {
        return 1;
    }
    return 0;
}
