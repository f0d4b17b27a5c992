// SPDX-License-Identifier: MIT

// Any bytes as a specification and a text, parted by the first zero, through the value door: it raises
// nothing, its ranges lie inside the text, and it says the same as the control of the same language.

#include "anfitrion.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <algorithm>

namespace {

using norvik::fuzz::exige;

void exigeDentro(const norvik::Rango& rango, std::size_t unidades) {
    exige(rango.inicio.desplazamiento >= 0 && rango.inicio.desplazamiento <= rango.fin.desplazamiento);
    exige(static_cast<std::size_t>(rango.fin.desplazamiento) <= unidades);
    exige(rango.inicio.linea >= 1 && rango.inicio.columna >= 1);
}

void exigeDentro(const std::vector<norvik::Diagnostico>& diagnosticos, std::size_t unidades) {
    for (const auto& diagnostico : diagnosticos) {
        exigeDentro(diagnostico.rango, unidades);
        exige(!norvik::mensaje(diagnostico).empty());
        for (const auto& otro : diagnostico.partes.relacionados) exigeDentro(otro.rango, unidades);
    }
}

// Lines and columns apart, which the control counts by its own way.
std::u16string sinLugares(std::u16string arbol) {
    std::erase_if(arbol, [](char16_t c) { return (c >= u'0' && c <= u'9') || c == u',' || c == u' '; });
    return arbol;
}

void comparaConElControl(const norvik::Analisis& analisis, norvik::Norvik& control,
                         std::u16string_view texto) {
    try {
        control.Text(texto);
        const bool aceptado = control.ConstruyeArbolSintactico();
        exige(aceptado == static_cast<bool>(analisis));
        if (!aceptado) return;
        exige(sinLugares(analisis.arbol.toString()) == sinLugares(control.GetArbolSintactico().toString()));
    } catch (const norvik::ErrorNorvik&) { // its own limits, which are narrower
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    const auto bytes = norvik::fuzz::bytesDe(datos, n);
    const std::size_t corte = std::min(bytes.find('\0'), bytes.size());
    const auto especificacion = bytes.substr(0, corte);
    const auto texto = bytes.substr(std::min(corte + 1, bytes.size()));
    const auto compilacion = norvik::Lenguaje::compila(especificacion);
    exigeDentro(compilacion.diagnosticos, especificacion.size());
    if (!compilacion.lenguaje) return 0;
    for (int vez = 0; vez < 2; ++vez) {
        const auto analisis = norvik::analiza(*compilacion.lenguaje, texto);
        exigeDentro(analisis.diagnosticos, texto.size());
        if (analisis)
            for (std::size_t i = 0; i < analisis.arbol.numNodos(); ++i)
                exigeDentro(analisis.arbol[i].rango(), texto.size());
    }
    const auto lexemas = norvik::lexemas(*compilacion.lenguaje, texto);
    exigeDentro(lexemas.diagnosticos, texto.size());
    for (std::size_t i = 0; i < lexemas.size(); ++i) exigeDentro(lexemas[i].rango, texto.size());

    const std::u16string decodificado = norvik::decodifica(texto);
    norvik::fuzz::Anfitrion anfitrion;
    if (!compilacion || !norvik::desdeUtf8(texto) || decodificado.find(u'\r') != std::u16string::npos ||
        decodificado.find(u'\n') != std::u16string::npos)
        return 0; // the control makes CR LF of any line end
    if (anfitrion.control.CargaGramatica(norvik::decodifica(especificacion)) &&
        anfitrion.control.GeneraCompilador() && compilacion.lenguaje->tieneGramatica())
        comparaConElControl(norvik::analiza(*compilacion.lenguaje, decodificado), anfitrion.control,
                            decodificado);
    return 0;
}
