// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/ficheros.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// The lines of a loading module, taken one by one: each is asked for in pieces, literal ones and values.
/// What is not as asked is raised as an `ErrorModulo` with its line. Of a text that comes in pieces no more
/// is held than the line under way and a piece.
class LineasModulo {
public:
    /// Of a text that outlives them.
    explicit LineasModulo(std::u16string_view texto) : texto_(texto) {}
    explicit LineasModulo(const OrigenDeTexto& origen) : origen_(&origen) {}
    LineasModulo(const LineasModulo&) = delete;
    LineasModulo& operator=(const LineasModulo&) = delete;
    ~LineasModulo() = default;

    /// The next line starts with these pieces, which are consumed; false, with nothing consumed, when not.
    bool es(std::u16string_view trozo, std::u16string_view otro = {});
    void empieza(std::u16string_view trozo);
    /// The line goes on with a piece.
    void sigue(std::u16string_view trozo);
    /// The line ends after these pieces.
    void acaba(std::u16string_view trozo = {}, std::u16string_view otro = {});
    /// The whole next line.
    void linea(std::u16string_view trozo, std::u16string_view otro = {}, std::u16string_view ultimo = {});
    /// The text ends here.
    void fin();

    /// A text between quotes on one line, which holds none.
    std::u16string cadena();
    /// The same, line ends allowed.
    std::u16string cadenaLarga();
    /// The same, with quotes written as `" & Chr$(34) & "`.
    std::u16string cadenaConComillas();
    std::int16_t numero16() { return numero<std::int16_t>(); }
    std::int32_t numero32() { return numero<std::int32_t>(); }

    /// 1-based number of the line under way.
    std::int32_t numeroDeLinea() const { return linea_; }
    [[noreturn]] void falla(std::u16string texto) const;

private:
    void saltaBlancos();
    bool consume(std::u16string_view trozo);
    template <typename Numero>
    Numero numero();
    [[noreturn]] void fallaEspera(std::u16string_view trozo) const;
    /// True when the text has so many characters more; `texto_` then holds them.
    bool hay(std::size_t cuantos) { return texto_.size() >= cuantos || pideMas(cuantos); }
    bool pideMas(std::size_t cuantos);
    /// The next character ends a line.
    bool acabaLinea() {
        return texto_[0] == u'\n' || (texto_[0] == u'\r' && (!hay(2) || texto_[1] != u'\n'));
    }

    const OrigenDeTexto* origen_ = nullptr; ///< none, or no more, when the text is here
    std::u16string trozo_;                  ///< what has come of it and is not yet consumed, and more before
    std::u16string_view texto_;             ///< what is not yet consumed
    std::int32_t linea_ = 1;
};

// A module has one line for each entry of its table: what reads these is worth being expanded in place.

inline bool LineasModulo::consume(std::u16string_view trozo) {
    if (!hay(trozo.size()) || !std::equal(trozo.begin(), trozo.end(), texto_.begin())) return false;
    texto_.remove_prefix(trozo.size());
    return true;
}

inline void LineasModulo::saltaBlancos() {
    for (; hay(1); texto_.remove_prefix(1)) {
        const char16_t c = texto_[0];
        if (c == u' ' || c == u'\t') continue;
        if (c != u'\r' && c != u'\n') return;
        if (acabaLinea()) ++linea_;
    }
}

inline bool LineasModulo::es(std::u16string_view trozo, std::u16string_view otro) {
    saltaBlancos();
    hay(trozo.size() + otro.size()); // so that the way back stays
    const std::u16string_view antes = texto_;
    if (consume(trozo) && consume(otro)) return true;
    texto_ = antes;
    return false;
}

inline void LineasModulo::sigue(std::u16string_view trozo) {
    if (!consume(trozo)) fallaEspera(trozo);
}

inline void LineasModulo::empieza(std::u16string_view trozo) {
    saltaBlancos();
    sigue(trozo);
}

inline void LineasModulo::acaba(std::u16string_view trozo, std::u16string_view otro) {
    sigue(trozo);
    sigue(otro);
    if (hay(1) && texto_[0] != u'\r' && texto_[0] != u'\n') falla(u"sobra texto al final de la línea");
}

template <typename Numero>
Numero LineasModulo::numero() {
    using Limites = std::numeric_limits<Numero>;
    constexpr std::size_t maximoDeCifras = 10;
    hay(maximoDeCifras + 2); // a sign, and a digit too many
    const bool negativo = !texto_.empty() && texto_.front() == u'-';
    if (negativo) texto_.remove_prefix(1);
    std::size_t cifras = 0;
    std::int64_t valor = 0;
    for (const char16_t c : texto_.substr(0, maximoDeCifras + 1)) {
        if (c < u'0' || c > u'9') break;
        valor = valor * 10 + (c - u'0');
        ++cifras;
    }
    texto_.remove_prefix(cifras);
    if (negativo) valor = -valor;
    if (cifras == 0) falla(u"se esperaba un número");
    if (cifras > maximoDeCifras || valor < Limites::min() || valor > Limites::max())
        falla(u"número fuera de intervalo");
    return static_cast<Numero>(valor);
}

} // namespace norvik::inline v0_2
