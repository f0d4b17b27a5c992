// SPDX-License-Identifier: MIT

#include "palabrasLR.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/conflictosDeTabla.hpp"

namespace norvik::taller {

namespace {

std::u16string desplazar(std::u16string_view simbolo, std::int16_t estado) {
    return u"desplazar " + entreComillas(simbolo) + u" y pasar al estado " + aTexto(estado);
}

std::u16string reducir(const GramaticaLR& g, std::int16_t regla) {
    return u"reducir por la regla " + palabrasDeRegla(g, regla);
}

/// The rules that other actions kept out of a cell.
std::u16string perdidas(const GramaticaLR& g, std::span<const Conflicto> conflictos, const DeCelda& celda) {
    std::u16string texto;
    for (const Conflicto& conflicto : conflictosEn(conflictos, static_cast<std::int16_t>(celda.estado + 1),
                                                   static_cast<std::int16_t>(celda.codigo + 1)))
        texto.append(texto.empty() ? u"" : u"; ").append(reducir(g, conflicto.regla));
    return texto;
}

} // namespace

std::u16string palabrasDeRegla(const GramaticaLR& g, std::int16_t regla) {
    const Regla& suya = g.reglas.en(regla);
    const std::u16string_view cuerpo = suya.cuerpo.empty() ? u"Ø" : std::u16string_view(suya.cuerpo);
    return aTexto(regla) + u". " + suya.cabeza + u" → " + std::u16string(cuerpo);
}

std::u16string palabrasDeItem(const GramaticaLR& g, Item item) {
    std::u16string texto = g.reglas.en(item.regla).cabeza + u" →";
    std::int16_t lugar = 0;
    const Cuerpo cuerpo = g.partidas.cuerpo(item.regla);
    for (const Simbolo simbolo : cuerpo) {
        if (lugar++ == item.punto) texto += u" •";
        if (simbolo != ReglasPartidas::vacio) texto.append(u" ").append(g.partidas.texto(simbolo));
    }
    return lugar <= item.punto ? texto + u" •" : texto;
}

std::u16string entreComillas(std::u16string_view simbolo) {
    if (simbolo == u"$") return u"el final del texto";
    return u"«" + std::u16string(simbolo) + u"»";
}

std::u16string palabrasDeAccion(const GramaticaLR& g, std::int16_t codigo, std::int16_t entrada) {
    const auto columna = static_cast<std::int16_t>(codigo + 1);
    const std::u16string_view simbolo = g.tabla.simbolo(columna);
    if (entrada == TablaLR::aceptar) return u"aceptar el texto";
    if (g.tabla.esColumnaDeVariable(columna))
        return u"con " + entreComillas(simbolo) + u" reducida, pasar al estado " + aTexto(entrada);
    return entrada > 0 ? desplazar(simbolo, entrada) : reducir(g, static_cast<std::int16_t>(-entrada));
}

std::u16string palabrasDeCelda(const GramaticaLR& g, std::span<const Conflicto> conflictos,
                               const DeCelda& celda) {
    const auto columna = static_cast<std::int16_t>(celda.codigo + 1);
    const std::int16_t entrada = g.tabla.entrada(celda.estado, celda.codigo);
    const bool deVariable = g.tabla.esColumnaDeVariable(columna);
    std::u16string texto = u"Estado " + aTexto(celda.estado);
    if (!deVariable) texto += u", ante " + entreComillas(g.tabla.simbolo(columna));
    if (entrada == 0) return texto + (deVariable ? u": nunca se llega aquí" : u": error de sintaxis");
    texto += u": " + palabrasDeAccion(g, celda.codigo, entrada);
    if (const std::u16string otras = deVariable ? u"" : perdidas(g, conflictos, celda); !otras.empty())
        texto += u". Conflicto: también cabría " + otras;
    return texto;
}

} // namespace norvik::taller
