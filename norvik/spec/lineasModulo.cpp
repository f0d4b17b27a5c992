#include "norvik/spec/lineasModulo.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <limits>
#include <utility>

namespace norvik {

namespace {

constexpr bool esFinDeLinea(char16_t c) {
    return c == u'\r' || c == u'\n';
}

} // namespace

void LineasModulo::falla(std::u16string texto) const {
    throw ErrorModulo{linea_, std::move(texto)};
}

void LineasModulo::pideMas() {
    texto_.erase(0, std::exchange(pos_, 0));
    const std::u16string pieza = origen_();
    acabado_ = pieza.empty();
    texto_ += pieza;
}

void LineasModulo::saltaBlancos() {
    for (; hay(1); ++pos_) {
        const char16_t c = texto_[pos_];
        const bool acabaLinea = c == u'\n' || (c == u'\r' && !sigueElFinDeUnSalto());
        if (acabaLinea) {
            ++linea_;
        } else if (c != u' ' && c != u'\t' && c != u'\r') {
            return;
        }
    }
}

bool LineasModulo::consume(std::u16string_view trozo) {
    if (!hay(trozo.size()) || texto_.compare(pos_, trozo.size(), trozo) != 0) return false;
    pos_ += trozo.size();
    return true;
}

bool LineasModulo::es(std::u16string_view trozo, std::u16string_view otro) {
    saltaBlancos();
    hay(trozo.size() + otro.size()); // so that the way back stays
    const std::size_t antes = pos_;
    if (consume(trozo) && consume(otro)) return true;
    pos_ = antes;
    return false;
}

void LineasModulo::sigue(std::u16string_view trozo) {
    if (!consume(trozo)) falla(std::u16string(u"se esperaba «").append(recorta(trozo)).append(u"»"));
}

void LineasModulo::empieza(std::u16string_view trozo) {
    saltaBlancos();
    sigue(trozo);
}

void LineasModulo::acaba(std::u16string_view trozo, std::u16string_view otro) {
    sigue(trozo);
    sigue(otro);
    if (hay(1) && !esFinDeLinea(texto_[pos_])) falla(u"sobra texto al final de la línea");
}

void LineasModulo::linea(std::u16string_view trozo, std::u16string_view otro, std::u16string_view ultimo) {
    saltaBlancos();
    const std::u16string entera = std::u16string(trozo).append(otro).append(ultimo);
    sigue(entera);
    acaba();
}

void LineasModulo::fin() {
    saltaBlancos();
    if (hay(1)) falla(u"sobra texto tras el último procedimiento");
}

std::u16string LineasModulo::cadena() {
    const std::int32_t suLinea = linea_;
    std::u16string contenido = cadenaLarga();
    if (linea_ != suLinea) {
        linea_ = suLinea;
        falla(u"falta la comilla que cierra un texto");
    }
    return contenido;
}

std::u16string LineasModulo::cadenaLarga() {
    sigue(u"\"");
    std::size_t largo = 0;
    for (; hay(largo + 1) && texto_[pos_ + largo] != u'"'; ++largo) {
    }
    if (!hay(largo + 1)) falla(u"falta la comilla que cierra un texto");
    std::u16string contenido = texto_.substr(pos_, largo);
    for (const std::size_t cierre = pos_ + largo; pos_ < cierre; ++pos_) {
        const char16_t c = texto_[pos_];
        if (c == u'\n' || (c == u'\r' && texto_[pos_ + 1] != u'\n')) ++linea_;
    }
    ++pos_;
    return contenido;
}

std::u16string LineasModulo::cadenaConComillas() {
    std::u16string entera = cadenaLarga();
    while (consume(u" & Chr$(34) & ")) entera.append(u"\"").append(cadenaLarga());
    return entera;
}

std::int64_t LineasModulo::numero(std::int64_t minimo, std::int64_t maximo) {
    constexpr std::size_t maximoDeCifras = 10;
    const bool negativo = consume(u"-");
    std::size_t cifras = 0;
    std::int64_t valor = 0;
    for (; hay(1) && texto_[pos_] >= u'0' && texto_[pos_] <= u'9'; ++pos_, ++cifras) {
        if (cifras < maximoDeCifras) valor = valor * 10 + (texto_[pos_] - u'0');
    }
    if (cifras == 0) falla(u"se esperaba un número");
    if (negativo) valor = -valor;
    if (cifras > maximoDeCifras || valor < minimo || valor > maximo) falla(u"número fuera de intervalo");
    return valor;
}

std::int16_t LineasModulo::numero16() {
    using Limites = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(numero(Limites::min(), Limites::max()));
}

std::int32_t LineasModulo::numero32() {
    using Limites = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(numero(Limites::min(), Limites::max()));
}

} // namespace norvik
