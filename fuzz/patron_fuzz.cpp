// SPDX-License-Identifier: MIT

// The pattern check, and a search with every pattern that passes it. The first byte chooses whether case is
// ignored and how many of the units that follow are the pattern; the rest is the text.
#include "norvik/pattern/emparejador.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamanio) {
    if (tamanio == 0) return 0;
    // Bytes are units, but for two that stand for what lies beyond them.
    std::u16string texto;
    for (std::size_t i = 1; i < tamanio; ++i)
        texto.push_back(datos[i] == 0xFE   ? u'\u212A'
                        : datos[i] == 0xFF ? char16_t{0xD800}
                                           : char16_t{datos[i]});
    const std::u16string patron = texto.substr(0, datos[0] / 2U);
    const std::u16string sujeto = texto.substr(patron.size());
    const auto emparejador = norvik::Emparejador::compila(patron, datos[0] % 2 == 1);
    if (!emparejador) return 0;
    try {
        std::int32_t libre = 0;
        for (const norvik::Coincidencia& c :
             emparejador->ejecuta(sujeto, norvik::Presupuesto(std::chrono::milliseconds(200)))) {
            if (c.indice < libre || c.longitud < 0) std::abort();
            libre = c.indice + c.longitud;
        }
        if (static_cast<std::size_t>(libre) > sujeto.size()) std::abort();
    } catch (const norvik::BusquedaDesbocada&) {
        return 0;
    }
    return 0;
}
