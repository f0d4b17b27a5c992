#include "lugarDelError.hpp"

#include "salida.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::orden {

namespace {

// Consumes a text at the start of another one.
bool consume(std::u16string_view& resto, std::u16string_view trozo) {
    if (resto.substr(0, trozo.size()) != trozo) return false;
    resto.remove_prefix(trozo.size());
    return true;
}

std::optional<std::size_t> consumeNumero(std::u16string_view& resto) {
    constexpr std::size_t maximoDeCifras = 9;
    const std::size_t cifras = std::min(resto.find_first_not_of(u"0123456789"), resto.size());
    if (cifras == 0 || cifras > maximoDeCifras) return std::nullopt;
    std::size_t numero = 0;
    for (const char16_t c : resto.substr(0, cifras)) numero = numero * 10 + (c - u'0');
    resto.remove_prefix(cifras);
    return numero;
}

std::u16string_view lineaDe(std::u16string_view texto, std::size_t linea) {
    while (linea > 1) {
        const std::size_t fin = texto.find(saltoDeLinea);
        if (fin == std::u16string_view::npos) return {};
        texto.remove_prefix(fin + saltoDeLinea.size());
        --linea;
    }
    return texto.substr(0, texto.find(saltoDeLinea));
}

} // namespace

std::optional<Lugar> lugarDelError(std::u16string_view mensaje) {
    constexpr std::u16string_view principio = u"(Línea ";
    for (std::size_t i = mensaje.find(principio); i != std::u16string_view::npos;
         i = mensaje.find(principio, i + 1)) {
        std::u16string_view resto = mensaje.substr(i + principio.size());
        const auto linea = consumeNumero(resto);
        if (!linea || !consume(resto, u", Columna ")) continue;
        const auto columna = consumeNumero(resto);
        if (columna && consume(resto, u")")) return Lugar{*linea, *columna};
    }
    return std::nullopt;
}

std::u16string muestraLugar(std::u16string_view texto, Lugar lugar) {
    constexpr std::size_t antes = 60;
    constexpr std::size_t ancho = 78;
    std::u16string linea = visible(lineaDe(texto, lugar.linea));
    std::replace(linea.begin(), linea.end(), u'\t', u' '); // the caret has to stand under its place
    std::size_t sangria = std::min(lugar.columna == 0 ? 0 : lugar.columna - 1, linea.size());
    if (sangria > antes) {
        linea = u"…" + linea.substr(sangria - antes);
        sangria = antes + 1;
    }
    if (linea.size() > ancho) linea = linea.substr(0, ancho) + u"…";
    return linea + u"\n" + std::u16string(sangria, u' ') + u"^";
}

} // namespace norvik::orden
