// SPDX-License-Identifier: MIT

// Any bytes as a loading module; whatever table it leaves then parses a text.

#include "anfitrion.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/spec/lectorModulo.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    using namespace norvik;
    fuzz::Anfitrion anfitrion;
    try {
        CargaModulo(decodifica(fuzz::bytesDe(datos, n)), anfitrion.control);
    } catch (const ErrorNorvik&) { // NOLINT(bugprone-empty-catch)
    }
    fuzz::usa(anfitrion.control, u"a = 1 + 2 * (3 - b);\r\n\"texto\" { si 7 } [x]");
    return 0;
}
