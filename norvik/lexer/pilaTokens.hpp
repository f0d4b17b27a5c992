#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/lexer/definicionesTokens.hpp"
#include "norvik/lexer/mapaTokens.hpp"
#include "norvik/lexer/parLT.hpp"
#include "norvik/lexer/reconocedor.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

/// A definition as it is written.
struct DefinicionTexto {
    std::u16string_view texto;
    std::u16string_view nombre;
    bool esToken = false;
    bool sensibleTamanio = false;
    std::u16string_view pseudoToken;
    std::int16_t tipo = Norvik_ExpReg;
    std::int32_t base = Norvik_SinBase;
};

/// The lexer: the definitions of a language in registration order, their colours, and recognition.
class pilaTokens {
public:
    pilaTokens() = default;
    pilaTokens(const pilaTokens&) = delete;
    pilaTokens& operator=(const pilaTokens&) = delete;
    ~pilaTokens() = default;

    std::int32_t colorPalabrasReservadas = 0;
    std::int32_t ColorOperadores = 0;
    std::int32_t ColorComentarios = 0;
    std::int32_t ColorEtiquetas = 0;
    std::int32_t ColorNumeros = 0;
    std::int32_t ColorError = 0;
    std::int32_t ColorCadena = 0;
    std::int32_t ColorCaracter = 0;
    std::int32_t ColorFechas = 0;
    bool autoNumber = false;

    /// Forgets every definition and the token map; the colours stay.
    void Inicializa();

    /// Number of token definitions (auxiliary ones do not count); raises `Desbordamiento`.
    std::int16_t getNumTokensLenguaje() const;
    /// Definition at a 1-based position; raises `IndiceNoValido`.
    const expresionRegular& getTokenLenguaje(std::int16_t numToken) const;
    /// Every definition, auxiliary ones too, and the token definitions alone, in registration order.
    const std::vector<std::unique_ptr<expresionRegular>>& expresionesRegulares() const {
        return definiciones_.todas();
    }
    const std::vector<const expresionRegular*>& tokensLenguaje() const { return definiciones_.tokens(); }
    const DefinicionesTokens& definiciones() const { return definiciones_; }

    /// Registers a definition, with the colour of its kind. Returns its first error, without a place; nothing
    /// is registered then. Raises `Desbordamiento` beyond 32 767 definitions.
    std::optional<Diagnostico> registra(const DefinicionTexto& definicion);
    /// The same of a definition whose text is expanded already.
    std::optional<Diagnostico> registraPatron(const DefinicionTexto& definicion);
    /// The same, with the error as its message, empty on success. `colorOpcional` has no effect.
    std::u16string SetER(std::u16string_view expresionRegular, std::u16string_view nomER, bool esToken,
                         bool sensibleTamanio, std::u16string_view pseudoToken, std::int16_t tipo,
                         std::int32_t base, std::int32_t colorOpcional);
    std::u16string SetPalabraReservada(std::u16string_view lexema, std::u16string_view token,
                                       bool sensibleTamanio, std::u16string_view pseudoToken);
    std::u16string SetOperador(std::u16string_view lexema, std::u16string_view token, bool sensibleTamanio,
                               std::u16string_view pseudoToken);
    /// Changes whenever the definitions may have changed.
    std::uint64_t edicion() const { return edicion_; }

    /// Recognises the tokens of positions `TextStart` … `TextEnd` − 1 (1-based, −1: from the first, to the
    /// last); a range that passes the text's end is clipped. The map belongs to the lexer and is refilled by
    /// the next call. Raises `Desbordamiento` for a text or range beyond 16 bits, `BusquedaDesbocada` when a
    /// definition's search runs away (the text then names it), `ArgumentoNoValido` for a start below 1 or an
    /// end before the start. After a failure the map is empty.
    MapaTokens& ReconoceTokens(std::u16string_view Texto, std::int16_t TextStart = -1,
                               std::int16_t TextEnd = -1);
    /// The map of the last recognition.
    MapaTokens& mapaTokens() { return mapaTokens_; }
    const MapaTokens& mapaTokens() const { return mapaTokens_; }

    /// How a token may be written, for lists of expected tokens.
    std::u16string toStringLexemasPorToken(std::u16string_view token) const {
        return definiciones_.lexemasPorToken(token);
    }
    /// How a token that was read is named in messages.
    std::u16string toStringPseudoTokenPorToken(const parLT& tokenLexema) const {
        return definiciones_.pseudoTokenPorToken(tokenLexema);
    }

private:
    std::int32_t colorDeTipo(std::int16_t tipo) const;
    bool registra(const DefinicionTexto& definicion, std::u16string_view patron, std::u16string_view lectura);
    void archiva(std::unique_ptr<expresionRegular> definicion, bool esToken);

    DefinicionesTokens definiciones_;
    std::optional<Reconocedor> reconocedor_; ///< made at the first recognition of a language
    MapaTokens mapaTokens_{definiciones_.tokens()};
    std::uint64_t edicion_ = 0;
};

} // namespace norvik
