// SPDX-License-Identifier: MIT

// Saves a text as an editor does, for `scripts/fallos` to make its calls of the system fail one by one.
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"

#include <iostream>
#include <new>

int main(int argc, char** argv) {
    using namespace norvik;
    if (argc != 3) return 2;
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
