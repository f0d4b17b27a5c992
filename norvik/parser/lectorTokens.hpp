// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/lexer/parLT.hpp"
#include "norvik/parser/lectura.hpp"
#include "norvik/parser/textoInvisible.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class FuenteTexto;
class pilaTokens;

/// The token names that the reader itself makes.
inline constexpr std::u16string_view tokenFin = u"EOF";
inline constexpr std::u16string_view tokenError = u"Norvik_ERROR";

/// Where in the text a token starts; both are 1-based.
struct Posicion {
    std::int32_t linea = 1;
    std::int32_t columna = 1;
};

/// Hands out the tokens of the editor's text, or of the invisible text, one at a time. Both readers share one
/// state: initialising either restarts it.
class LectorTokens {
public:
    /// Both must outlive the reader.
    LectorTokens(pilaTokens& lexico, const FuenteTexto& editor);
    LectorTokens(const LectorTokens&) = delete;
    LectorTokens& operator=(const LectorTokens&) = delete;
    ~LectorTokens() = default;

    /// Recognises the whole text and goes to its start. Both raise `Desbordamiento` for a text of 32 767
    /// characters or more, and when the search of a definition runs away.
    void InicializaLecturaTokens() { inicializa(editor_); }
    void inicializaLecturaTokensTextoInvisible() { inicializa(textoInvisible_); }
    /// The next token: ("EOF", "EOF") at the end, a character that starts no token as "Norvik_ERROR" again
    /// and again.
    parLT Lex() { return devuelve(editor_); }
    parLT LexTextoInvisible() { return devuelve(textoInvisible_); }

    /// 1-based line and column of the last token when it was read, in the text that it was read from.
    std::int16_t LineaToken() const;
    std::int32_t ColumnaToken() const;
    /// "(Línea l, Columna c)" of the last token.
    std::u16string DameStringLineaColumnaToken() const;
    /// "Se ha encontrado … (Línea l, Columna c)" for the last token.
    std::u16string DameStringTokenLeido() const;

    TextoInvisible& textoInvisible() { return textoInvisible_; }
    const TextoInvisible& textoInvisible() const { return textoInvisible_; }
    const FuenteTexto& editor() const { return editor_; }
    /// 1-based positions: where reading continues, and where the last token starts.
    std::int32_t posLectura() const { return lectura_.fin; }
    std::int32_t inicioToken() const { return lectura_.inicio; }
    const std::u16string& ultimoToken() const { return ultimoToken_; }
    const std::u16string& ultimoLexema() const { return ultimoLexema_; }

    /// The readers for a driver, which reads many tokens and needs the name of few: `leido` is the last one,
    /// and a driver that stops has its name, lexeme and place kept with `recuerda`.
    void inicializa(const FuenteTexto& fuente);
    void lee(const FuenteTexto& fuente);
    const TokenLeido& leido() const { return lectura_.leido; }
    void recuerda(const FuenteTexto& fuente);
    /// The text of the last recognition; it stays until the next one.
    std::u16string_view textoReconocido() const;
    Posicion posicionToken(const FuenteTexto& fuente) const;

private:
    parLT devuelve(const FuenteTexto& fuente);
    void leeFinal();
    std::u16string_view nombreLeido() const;

    pilaTokens& lexico_;
    const FuenteTexto& editor_;
    TextoInvisible textoInvisible_;
    Lectura lectura_;
    std::u16string ultimoToken_;
    std::u16string ultimoLexema_;
    Posicion ultimaPosicion_;
};

} // namespace norvik::inline v0_2
