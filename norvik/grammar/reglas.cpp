// SPDX-License-Identifier: MIT

#include "norvik/grammar/reglas.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

// The rules of a grammar, and the operations on the text of a body.
namespace norvik::inline v0_2 {

namespace {

std::int16_t cuentaElementos(std::u16string_view cuerpo) {
    std::size_t total = 0;
    paraCadaSimbolo(cuerpo, [&](std::u16string_view /*simbolo*/) { ++total; });
    const bool acabaEnVacia =
        cuerpo.ends_with(cadenaVacia) && (cuerpo.size() == 1 || cuerpo[cuerpo.size() - 2] == u' ');
    return a16(total - (acabaEnVacia ? 1 : 0));
}

} // namespace

void Reglas::guarda(std::u16string_view cabeza, std::u16string_view cuerpo) {
    do {
        if (total() == maximo)
            throw SubindiceFueraDeIntervalo(
                u"Subíndice fuera de intervalo: la gramática pasa de 1000 reglas");
        const std::size_t barra = std::min(cuerpo.find(u'|'), cuerpo.size());
        const std::u16string_view alternativa = recorta(cuerpo.substr(0, barra));
        cuerpo = recorta(cuerpo.substr(std::min(barra + 1, cuerpo.size())));
        reglas_.push_back(
            {std::u16string(cabeza), std::u16string(alternativa), cuentaElementos(alternativa)});
        if (conCabeza_ + 1 == total() && !cabeza.empty()) ++conCabeza_;
    } while (!cuerpo.empty());
}

std::u16string enTexto(const Reglas& reglas) {
    std::u16string texto;
    for (const auto& [cabeza, cuerpo, elementos] : reglas) {
        if (!texto.empty()) texto += u"; ";
        texto.append(cabeza).append(u" -> ").append(cuerpo);
    }
    return texto;
}

std::int16_t estaEnRegla(std::u16string_view cuerpo, std::u16string_view simbolo) {
    constexpr auto nada = std::u16string_view::npos;
    if (cuerpo.find(u' ') == nada) return cuerpo == simbolo ? 1 : 0;
    const std::u16string rodeado = u' ' + std::u16string(simbolo) + u' ';
    const std::u16string_view texto = rodeado;
    if (cuerpo.starts_with(texto.substr(1))) return 1;
    if (const auto sitio = cuerpo.find(texto); sitio != nada) return a16(sitio + 2);
    const auto sitio = cuerpo.find(texto.substr(0, texto.size() - 1));
    return sitio != nada && sitio + 1 + simbolo.size() == cuerpo.size() ? a16(sitio + 2) : std::int16_t{0};
}

std::u16string dameReglaString(std::u16string_view cuerpo, std::int16_t punto) {
    std::u16string texto;
    int i = 0;
    paraCadaSimbolo(cuerpo, [&](std::u16string_view simbolo) {
        if (i == punto)
            texto += u'.';
        else if (i != 0)
            texto += u' ';
        texto += simbolo;
        ++i;
    });
    if (i == punto) texto += u'.';
    return texto;
}

} // namespace norvik::inline v0_2
