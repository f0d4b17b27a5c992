#pragma once

#include "norvik/grammar/conjunto.hpp"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

class pilaTokens;
class Sistema;

/// The grammar of a language and all that is derived from it. Contract for callers (the owner of this
/// folder completes it with the whole table of operations and its private parts).
class gramatica {
public:
    static constexpr std::int16_t aceptar = 1000;

    void inicializaGramatica();
    void inicializaConjuntos();
    /// Raises `SubindiceFueraDeIntervalo` at rule 1001.
    void SetRegla(std::u16string_view cabeza, std::u16string_view cuerpo, std::int16_t codigo = 0);
    void SetSimbolo(std::u16string_view simbolo);
    /// Rule indexes are 1-based, 1..1000; others raise `SubindiceFueraDeIntervalo`.
    std::u16string_view GetLeftRegla(std::int16_t regla) const;
    std::u16string_view GetRightRegla(std::int16_t regla) const;
    std::int16_t getNumReglas() const;
    std::int16_t GetNumElementosRegla(std::int16_t regla) const;
    std::u16string GetElementoRegla(std::int16_t regla, std::int16_t posicion) const;
    std::int16_t GetNumSimbolos() const;
    /// 0-based column of a terminal, "EOF" being "$"; -1 when unknown.
    std::int16_t GetCodigoToken(std::u16string_view token) const;
    /// 0-based column of a rule's head; -1 when unknown.
    std::int16_t GetCodigoVariable(std::int16_t regla) const;
    /// Empty when every non-terminal used has a rule, else the message.
    std::u16string chequeaGramatica() const;

    void creaConjuntos();
    void creaAutomata();
    void creaTablaSLR();

    /// 0-based state and column; raises `SubindiceFueraDeIntervalo`.
    std::int16_t GetElementoTablaSLR(std::int16_t estado, std::int16_t columna) const;
    void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas);
    /// 1-based row and column.
    void SetElementoTablaSLR(std::int16_t fila, std::int16_t columna, std::int16_t valor);
    std::int16_t GetDimensionFilasSLR() const;
    std::int16_t GetDimensionColumnasSLR() const;
    std::u16string toStringEsperados(std::int16_t estado, const pilaTokens& lexico) const;

    /// The conflict message, and the same shown in a message box titled "Conflictos".
    std::u16string textoProblemas() const;
    void MuestraProblemas(Sistema& sistema) const;
    /// The report's text, and the same written to "informeGramatica.txt" in a folder.
    std::u16string textoInforme() const;
    void GuardaInforme(const std::filesystem::path& carpeta) const;
    /// The loading module's text, and the same written to `nombre`.bas in a folder.
    std::u16string textoModulo(std::u16string_view nombre, const pilaTokens& lexico) const;
    void GuardaModuloGramatica(std::u16string_view nombre, const pilaTokens& lexico,
                               const std::filesystem::path& carpeta) const;
};

} // namespace norvik
