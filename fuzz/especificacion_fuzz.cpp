// Any bytes as a language specification; what compiles then parses its own specification.

#include "anfitrion.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    using namespace norvik;
    fuzz::Anfitrion anfitrion;
    const std::u16string texto = normalizaLineas(decodifica(fuzz::bytesDe(datos, n)));
    try {
        if (anfitrion.control.CargaGramatica(texto) && anfitrion.control.GeneraCompilador())
            fuzz::usa(anfitrion.control, texto);
    } catch (const ErrorNorvik&) { // NOLINT(bugprone-empty-catch)
    }
    return 0;
}
