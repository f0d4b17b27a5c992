// SPDX-License-Identifier: MIT

// Expansion of a definition text, in one pass from left to right with one character of memory (the escape
// flag). A reference is replaced by the patterns of all the definitions that bear its name, textually. Since
// definitions that refer to each other can double a dozen times, what grows past the limit stops growing; the
// scan goes on, because an error of form further on has precedence over the length.
#include "norvik/lexer/expansion.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/lexer/definicionesTokens.hpp"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using Causa = ErrorExpansion::Causa;

class Expansor {
public:
    Expansor(std::u16string_view texto, const DefinicionesTokens& definiciones)
        : texto_(texto), definiciones_(definiciones) {}

    std::variant<Expansion, ErrorExpansion> expande() {
        for (i_ = 0; i_ < texto_.size(); ++i_)
            if (const auto error = avanza(texto_[i_])) return *error;
        if (demasiado_) return ErrorExpansion{Causa::DemasiadoLarga, {}, 0};
        return std::move(resultado_);
    }

private:
    using Error = std::optional<ErrorExpansion>;

    Error avanza(char16_t c) {
        if (c == u'\\') {
            escape_ = true;
            return {};
        }
        if (c == u'c' && escape_) return codigo();
        if (c == u'<' && !referencia_ && !escape_) {
            referencia_.emplace();
            lugarReferencia_ = i_;
            return {};
        }
        if (c == u'>' && referencia_ && !escape_) return resuelve();
        copia(c);
        return {};
    }

    // Into the name of the reference being read, or into pattern and reading.
    void copia(char16_t c) {
        std::u16string pieza = escape_ ? u"\\" : u"";
        pieza += c;
        escape_ = false;
        if (referencia_) {
            referencia_->append(pieza);
        } else {
            situa(i_ + 1 - pieza.size(), false);
            aniade(resultado_.patron, pieza);
            aniade(resultado_.lectura, {&c, 1});
        }
    }

    void aniade(std::u16string& destino, std::u16string_view pieza) {
        if (destino.size() + pieza.size() > maximoPatron)
            demasiado_ = true;
        else
            destino.append(pieza);
    }

    // What is added next to the pattern comes from there.
    void situa(std::size_t enTexto, bool esReferencia) {
        const std::size_t enPatron = resultado_.patron.size();
        const std::size_t adelanto = enTexto - enPatron;
        if (adelanto == adelanto_ && !esReferencia) return;
        resultado_.tramos.push_back({enPatron, enTexto, esReferencia});
        adelanto_ = esReferencia ? std::numeric_limits<std::size_t>::max() : adelanto;
    }

    bool siguienteEs(char16_t c) {
        ++i_;
        return i_ < texto_.size() && texto_[i_] == c;
    }

    // The character-code operator, with the position on its "c".
    Error codigo() {
        const std::size_t lugar = i_ - 1; // its bar
        const ErrorExpansion malEscrito{Causa::CodigoMalEscrito, {}, lugar};
        if (!siguienteEs(u'(')) return malEscrito;
        const std::size_t inicio = ++i_;
        unsigned valor = 0;
        for (; i_ < texto_.size() && texto_[i_] >= u'0' && texto_[i_] <= u'9'; ++i_)
            if (valor <= 255) valor = valor * 10 + (texto_[i_] - unsigned{u'0'});
        if (i_ == inicio || i_ >= texto_.size() || texto_[i_] != u')') return malEscrito;
        if (valor > 255) return ErrorExpansion{Causa::CodigoExcesivo, {}, lugar};
        situa(lugar, false);
        aniade(resultado_.patron, desdeWindows1252(std::string(1, static_cast<char>(valor))));
        escape_ = false;
        return {};
    }

    Error resuelve() {
        const auto* const definiciones = definiciones_.llamadas(*referencia_);
        if (definiciones == nullptr)
            return ErrorExpansion{Causa::ReferenciaDesconocida, *referencia_, lugarReferencia_};
        situa(lugarReferencia_, true);
        for (const expresionRegular* const definicion : *definiciones) {
            if (demasiado_) break;
            aniade(resultado_.patron, definicion->expresion);
            aniade(resultado_.lectura, definicion->pseudoToken);
        }
        referencia_.reset();
        return {};
    }

    std::u16string_view texto_;
    const DefinicionesTokens& definiciones_;
    std::size_t i_ = 0;
    bool escape_ = false;
    bool demasiado_ = false;
    std::size_t adelanto_ = 0; // of the text before the pattern, in the stretch under way
    std::size_t lugarReferencia_ = 0;
    std::optional<std::u16string> referencia_;
    Expansion resultado_;
};

} // namespace

std::size_t Expansion::enTexto(std::size_t enPatron) const {
    const auto siguiente = std::ranges::upper_bound(tramos, enPatron, {}, &Tramo::enPatron);
    if (siguiente == tramos.begin()) return enPatron;
    const Tramo& tramo = *std::prev(siguiente);
    return tramo.esReferencia ? tramo.enTexto : tramo.enTexto + (enPatron - tramo.enPatron);
}

std::variant<Expansion, ErrorExpansion> expande(std::u16string_view texto,
                                                const DefinicionesTokens& definiciones) {
    return Expansor(texto, definiciones).expande();
}

/// Escapes count as they do when it is expanded.
std::vector<std::u16string_view> referenciasDe(std::u16string_view texto) {
    std::vector<std::u16string_view> nombres;
    std::optional<std::size_t> inicio;
    bool escape = false;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char16_t c = texto[i];
        if (c == u'<' && !inicio && !escape) inicio = i + 1;
        if (c == u'>' && inicio && !escape) {
            nombres.push_back(texto.substr(*inicio, i - *inicio));
            inicio.reset();
        }
        escape = c == u'\\';
    }
    return nombres;
}

} // namespace norvik::inline v0_2
