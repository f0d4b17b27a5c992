// SPDX-License-Identifier: MIT

// Any bytes as a language specification. What compiles parses its own specification, and so does the language
// that its loading module loads, with the same answer.

#include "anfitrion.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/spec/lectorModulo.hpp"

namespace {

using namespace norvik;

void comparaConSuModulo(Norvik& control, std::u16string_view texto) {
    fuzz::Anfitrion otro;
    gramatica& original = control.Gramatica();
    fuzz::exige(!CargaModulo(original.textoModulo(u"M", control.Lexico()), otro.control));
    gramatica& cargada = otro.control.Gramatica();
    fuzz::exige(cargada.getNumReglas() == original.getNumReglas());
    fuzz::exige(cargada.GetNumSimbolos() == original.GetNumSimbolos());
    fuzz::exige(otro.control.Lexico().getNumTokensLenguaje() == control.Lexico().getNumTokensLenguaje());
    if (original.GetNumSimbolos() == 0) return;
    for (std::int16_t estado = 0; estado < original.GetDimensionFilasSLR(); ++estado)
        for (std::int16_t columna = 0; columna < original.GetNumSimbolos(); ++columna)
            fuzz::exige(cargada.GetElementoTablaSLR(estado, columna) ==
                        original.GetElementoTablaSLR(estado, columna));
    fuzz::exige(fuzz::usa(otro.control, texto) == fuzz::usa(control, texto));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    fuzz::Anfitrion anfitrion;
    const std::u16string texto = normalizaLineas(decodifica(fuzz::bytesDe(datos, n)));
    try {
        if (!anfitrion.control.CargaGramatica(texto) || !anfitrion.control.GeneraCompilador()) return 0;
        anfitrion.control.Gramatica().textoInforme();
    } catch (const ErrorNorvik&) {
        return 0;
    }
    comparaConSuModulo(anfitrion.control, texto);
    return 0;
}
