#pragma once

#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/celdaSLR.hpp"
#include "norvik/grammar/clasico/conjuntos.hpp"
#include "norvik/grammar/conjunto.hpp"
#include "norvik/grammar/estadoAutomata.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

class pilaTokens;
class Sistema;

/// The grammar of a language and all that is derived from it (`GramaticaLR`), by steps that a host can take
/// one by one: rules, FIRST, FOLLOW and PREDICT sets, LR(0) automaton and SLR table. Rule indexes are
/// 1-based. A symbol that begins with A … Z is a non-terminal
/// ("variable"), any other but Ø a terminal.
class gramatica {
public:
    static constexpr std::int16_t aceptar = TablaLR::aceptar; ///< table entry that means acceptance
    static constexpr std::int16_t maximoReglas = Reglas::maximo;

    gramatica() { inicializaGramatica(); }
    // Views into the rules are handed out and kept.
    gramatica(const gramatica&) = delete;
    gramatica& operator=(const gramatica&) = delete;
    ~gramatica() = default;

    /// What it is a face of.
    const GramaticaLR& valores() const { return valores_; }

    /// Accepts a text and does nothing with it.
    std::u16string compila(std::u16string_view texto) const;

    // Rules and symbols ------------------------------------------------------------------------------------

    /// Forgets rules, symbols, sets and automaton; the table stays.
    void inicializaGramatica();
    /// Takes the rules of another grammar and nothing else; the table stays.
    void copiaReglas(const gramatica& otra);
    /// Exchanges all that two grammars have.
    void intercambia(gramatica& otra);
    /// Stores one rule for each alternative of the body (separated by "|"). The code has no effect.
    /// Raises `SubindiceFueraDeIntervalo` at rule 1001; those stored before stay.
    void SetRegla(std::u16string_view cabeza, std::u16string_view cuerpo, std::int16_t codigo = 0);
    /// Adds a table symbol, in column order; "" is ignored.
    void SetSimbolo(std::u16string_view simbolo);
    /// Head and body of a rule, trimmed; valid while the rules stay.
    /// Rules are 1..1000, unused ones ""; others raise `SubindiceFueraDeIntervalo` (here and below).
    std::u16string_view GetLeftRegla(std::int16_t regla) const;
    std::u16string_view GetRightRegla(std::int16_t regla) const;
    std::int16_t getNumReglas() const;
    /// Number of symbols of the body; a Ø at its end does not count.
    std::int16_t GetNumElementosRegla(std::int16_t regla) const {
        return valores_.reglas.en(regla).elementos;
    }
    /// Symbol of the body at a 0-based position, clamped to the first and the last.
    std::u16string GetElementoRegla(std::int16_t regla, std::int16_t posicion) const;
    std::int16_t GetNumSimbolos() const;
    /// 0-based column of a terminal, "EOF" being "$"; -1 when unknown.
    std::int16_t GetCodigoToken(std::u16string_view token) const;
    /// 0-based column of a rule's head; -1 when unknown.
    std::int16_t GetCodigoVariable(std::int16_t regla) const {
        return valores_.tabla.codigo(valores_.reglas.en(regla).cabeza);
    }
    /// Empty when every non-terminal used has a rule, else the message.
    std::u16string chequeaGramatica() const;
    /// 1-based position of a symbol in a body, 0 when it is not found. The last symbol of a body is missed
    /// when an earlier one, not the first, has the same beginning.
    static std::int16_t estaEnRegla(std::u16string_view cuerpo, std::u16string_view simbolo) {
        return norvik::estaEnRegla(cuerpo, simbolo);
    }
    /// A body with a dot before its symbol at a 0-based position.
    static std::u16string dameReglaString(std::u16string_view cuerpo, std::int16_t punto) {
        return norvik::dameReglaString(cuerpo, punto);
    }

    /// Changes whenever rules, symbols or table may have changed.
    std::uint64_t edicion() const { return edicion_; }
    const conjunto& terminales() const { return valores_.tabla.simbolos().terminales; }
    const conjunto& variables() const { return valores_.tabla.simbolos().variables; }
    /// The table's symbols in column order.
    const conjunto& simbolos() const { return valores_.tabla.simbolos().todos; }

    // FIRST, FOLLOW and PREDICT ----------------------------------------------------------------------------

    /// Forgets sets, symbols and automaton.
    void inicializaConjuntos();
    /// Computes all sets. Raises `SubindiceFueraDeIntervalo` when FOLLOW needs an undefined non-terminal.
    void creaConjuntos();
    /// Adds FIRST of a string of symbols, on behalf of a rule (0: of none).
    void creaPrimeros(std::u16string_view cadena, conjunto& conj, bool recursivo, std::int16_t regla);
    /// Adds FOLLOW of a non-terminal; a recursive call takes the set as it stands when it is finished.
    void creaSiguientes(std::u16string_view variable, conjunto& conj, bool recursivo);
    /// True when a rule of this head begins with Ø.
    bool contieneCadenaVacia(std::u16string_view variable) const;
    bool estaPendientePrimeros(std::u16string_view nombre) const;
    bool estaPendienteSiguientes(std::u16string_view nombre) const;
    /// 1-based position of the first set of this name, 0 when there is none.
    std::int16_t numItemPrimeros(std::u16string_view nombre) const;
    std::int16_t numItemSiguientes(std::u16string_view nombre) const;
    bool quedanPrimerosPendientes() const;
    bool quedanSiguientesPendientes() const;

    /// The sets with their texts. References hold until the sets change: no other call touches them.
    const std::vector<conjunto>& primeros() const { return conTextos().primeros; }
    const std::vector<conjunto>& siguientes() const { return conTextos().siguientes; }
    /// One set a rule.
    const std::vector<conjunto>& predict() const { return conTextos().predict; }

    // Automaton --------------------------------------------------------------------------------------------

    /// Builds the automaton. Raises `Desbordamiento` at the thousandth state, `SubindiceFueraDeIntervalo`
    /// at a state's item 1001; either leaves neither automaton nor table.
    void creaAutomata();
    void aniadeReglaAEstado(std::u16string_view variable, estadoAutomata& estado) const;
    void aniadeReglasImplicitasAEstado(const Nucleo& nucleo, estadoAutomata& estado) const;
    /// Appends a state, and all that are reached from it, to the list.
    void construyeTransiciones(const estadoAutomata& estado);
    /// Number of the first state in the list that contains the kernel, -1 when there is none.
    std::int16_t existeEstadoCon(const Nucleo& nucleo) const;
    /// Symbol after the dot of a 1-based item.
    std::u16string dameSimboloSiguiente(const estadoAutomata& estado, std::int16_t item) const;
    const std::vector<estadoAutomata>& estadosAutomata() const { return valores_.automata.estados; }

    // Table ------------------------------------------------------------------------------------------------

    /// Fills the table from rules, automaton and FOLLOW sets. A failure leaves no table
    /// (`SubindiceFueraDeIntervalo`: a Ø beside other symbols has no column).
    void creaTablaSLR();
    /// 0-based state and column; raises `SubindiceFueraDeIntervalo`.
    std::int16_t GetElementoTablaSLR(std::int16_t estado, std::int16_t columna) const {
        return valores_.tabla.entrada(estado, columna);
    }
    /// The entries of a state (0-based) by column, to be read many times; none when the two that need no
    /// storing could be among them, or nothing is stored. `GetElementoTablaSLR` gives those that are missing.
    std::span<const std::int16_t> GetFilaTablaSLR(std::int16_t estado) const {
        return valores_.tabla.fila(estado);
    }
    /// A new table, all 0, without conflicts. Raises `SubindiceFueraDeIntervalo` for negative dimensions.
    void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas);
    /// 1-based row and column; raises `SubindiceFueraDeIntervalo`.
    void SetElementoTablaSLR(std::int16_t fila, std::int16_t columna, std::int16_t valor);
    /// The same of many, up to the first that would raise; returns how many were set.
    std::size_t SetElementosTablaSLR(std::span<const CeldaSLR> celdas);
    std::int16_t GetDimensionFilasSLR() const { return valores_.tabla.celdas().filas(); }
    std::int16_t GetDimensionColumnasSLR() const { return valores_.tabla.celdas().columnas(); }
    /// Rule that lost a conflict in a cell (1-based), 0 when there was none or the table was loaded.
    std::int16_t conflicto(std::int16_t fila, std::int16_t columna) const {
        return valores_.tabla.conflicto(fila, columna);
    }
    /// The terminals that a state (0-based) accepts, as the lexer describes them.
    std::u16string toStringEsperados(std::int16_t estado, const pilaTokens& lexico) const;

    // Report -----------------------------------------------------------------------------------------------

    /// The conflict message, and the same shown in a message box titled "Conflictos".
    std::u16string textoProblemas() const;
    void MuestraProblemas(Sistema& sistema) const;
    /// The report, in pieces of whole lines, as one text, and written to "informeGramatica.txt" in a folder.
    void escribeInforme(const SumideroDeTexto& sumidero) const;
    std::u16string textoInforme() const;
    void GuardaInforme(const std::filesystem::path& carpeta) const;
    /// What a report window shows: rules and sets; the automaton; header and cells of the table (1-based).
    std::u16string textoInformeGeneral() const;
    std::u16string textoAutomata() const;
    std::u16string_view encabezadoColumna(std::int16_t columna) const {
        return valores_.tabla.simbolo(columna);
    }
    std::u16string celdaTabla(std::int16_t fila, std::int16_t columna) const;
    /// Rows and columns of the table that the symbols have a use for.
    std::int16_t filasVigentes() const { return valores_.tabla.filasVigentes(); }
    std::int16_t columnasVigentes() const { return valores_.tabla.columnasVigentes(); }
    /// Whether a cell (1-based) shows a conflict.
    bool enConflicto(std::int16_t fila, std::int16_t columna) const {
        return valores_.tabla.enConflicto(fila, columna);
    }

    // Loading module ---------------------------------------------------------------------------------------

    /// The module, in pieces of whole lines, as one text, and written to `nombre`.bas in a folder.
    /// Raises `ArgumentoNoValido` for a name that is no identifier or a reserved word; so do the next.
    void escribeModulo(std::u16string_view nombre, const pilaTokens& lexico,
                       const SumideroDeTexto& sumidero) const;
    std::u16string textoModulo(std::u16string_view nombre, const pilaTokens& lexico) const;
    void GuardaModuloGramatica(std::u16string_view nombre, const pilaTokens& lexico,
                               const std::filesystem::path& carpeta) const;
    /// What the calls pass as C++ constants, with enumerations of the numbers, written to `nombre`.hpp.
    void escribeModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                          const SumideroDeTexto& sumidero) const;
    std::u16string textoModuloCpp(std::u16string_view nombre, const pilaTokens& lexico) const;
    void GuardaModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                         const std::filesystem::path& carpeta) const;

private:
    struct ConjuntosConTextos {
        std::vector<conjunto> primeros;
        std::vector<conjunto> siguientes;
        std::vector<conjunto> predict;
    };

    /// Rules or symbols change.
    void cambia() { ++edicion_; }
    /// The rules split, up to date.
    const ReglasPartidas& partidas();
    void olvidaGenerado();
    const ConjuntosConTextos& conTextos() const;

    GramaticaLR valores_; // `partidas` may lack the last rules
    clasico::Pendientes pendientes_;
    std::int16_t numEstados_ = 0;
    std::uint64_t edicion_ = 0;
    mutable std::optional<ConjuntosConTextos> conTextos_; // made when they are first asked for
};

} // namespace norvik
