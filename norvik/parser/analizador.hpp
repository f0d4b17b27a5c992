// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/lexer/mapaTokens.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/lexer/reconocedor.hpp"
#include "norvik/parser/analisis.hpp"
#include "norvik/parser/cadenasReglas.hpp"
#include "norvik/parser/continuaciones.hpp"
#include "norvik/parser/fichasTokens.hpp"
#include "norvik/parser/lectura.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"
#include "norvik/parser/lexemas.hpp"
#include "norvik/parser/pelicula.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace norvik::inline v0_2 {

class LectorTexto;
class gramatica;
enum class Desenlace : std::uint8_t;

/// Reads and parses texts of one language as values. It learns from each text what makes the next one faster,
/// and serves one thread at a time; lexer and grammar outlive it and do not change.
class Analizador {
public:
    Analizador(const pilaTokens& lexico, const gramatica& gramatica)
        : lexico_(lexico), gramatica_(gramatica), reconocedor_(lexico.definiciones()),
          mapa_(lexico.tokensLenguaje()), lenguaje_(lexico, gramatica) {}

    /// What is wrong with the text, or with the table, is a diagnostic.
    Analisis analiza(std::unique_ptr<TextoAnalizado> texto, const OpcionesAnalisis& opciones);
    /// The parse as a film, up to the first error; or why there is none, which is no fault of the text.
    std::variant<Pelicula, Diagnostico> filma(std::unique_ptr<TextoAnalizado> texto,
                                              const OpcionesAnalisis& opciones);
    Lexemas lexemas(std::unique_ptr<TextoAnalizado> texto, const OpcionesAnalisis& opciones);
    /// What can follow at a 0-based position; nothing when the text asks for too much.
    Continuaciones continuaciones(std::u16string_view texto, std::size_t posicion,
                                  const OpcionesAnalisis& opciones);

private:
    enum class Final : std::uint8_t { Aceptado, Reparado, SinArbol };
    struct Recorrido {
        Final final = Final::SinArbol;
        std::vector<Diagnostico> diagnosticos;
    };
    /// What comes of a parse whose driver has stopped.
    using AlParar = std::function<Recorrido(Desenlace, LectorTexto&)>;

    std::optional<Diagnostico> reconoce(const TextoAnalizado& texto, const OpcionesAnalisis& opciones);
    /// Fills the map. Raises what recognition does.
    void reconoceTexto(std::u16string_view texto, const OpcionesAnalisis& opciones);
    Recorrido recorre(TextoAnalizado& texto, const OpcionesAnalisis& opciones, const AlParar& alParar);
    Recorrido repara(TextoAnalizado& texto, LectorTexto& lector, const OpcionesAnalisis& opciones);

    std::vector<bool> definicionesQueSiguen(std::u16string_view texto, const OpcionesAnalisis& opciones);
    std::vector<std::int16_t> pilaTras(std::u16string_view texto, const OpcionesAnalisis& opciones);
    void anotaDefiniciones(const std::vector<bool>& admitidas, std::vector<Continuacion>& propuestas) const;
    void anotaDelTexto(std::u16string_view texto, std::size_t posicion, const std::vector<bool>& admitidas,
                       const OpcionesAnalisis& opciones, std::vector<Continuacion>& propuestas);
    bool estaDentro(const Lectura& lectura, std::size_t posicion) const;

    const pilaTokens& lexico_;
    const gramatica& gramatica_;
    Reconocedor reconocedor_;
    MapaTokens mapa_;
    LenguajeAnalisis lenguaje_;
    CadenasReglas cadenas_;
    std::optional<FichasTokens> fichas_; ///< made at the first error
    std::vector<std::int16_t> pasos_;
};

} // namespace norvik::inline v0_2
