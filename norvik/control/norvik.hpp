#pragma once

#include "norvik/control/coloreado.hpp"
#include "norvik/control/estadoEdicion.hpp"
#include "norvik/control/marcas.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/parLT.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/arbol.hpp"
#include "norvik/parser/conductor.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/sistema.hpp"
#include "norvik/spec/cargadorLenguaje.hpp"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace norvik {

/// The editor control: an editor that knows the language loaded into it. A facade over parts that each keep
/// their own state; the host gives it a text box and the services of its surroundings, which must outlive it.
///
/// A property is two members of one name: `X()` reads it and `X(value)` sets it. Every failure raised leaves
/// the control as usable as before: nothing stays busy, locked or hidden.
class Norvik final : public CargadorLenguaje {
public:
    Norvik(CajaTexto& caja, Sistema& sistema);
    ~Norvik() override;

    // Loading a language. Definitions follow `LenguajeSensible` as it is at the call; their errors are shown
    // titled "Norvik: Error en especificación léxica", and the call completes.
    void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken = false,
               std::int32_t tipoToken = Norvik_ExpReg, std::u16string_view pseudoToken = {},
               std::int32_t baseToken = Norvik_SinBase, std::int32_t colorTexto = sinColor) override;
    void SetPalabraReservada(std::u16string_view lexema, std::u16string& token,
                             std::u16string_view pseudoToken = {}) override;
    /// The same for a token name that is no variable.
    void SetPalabraReservada(std::u16string_view lexema, std::u16string_view token = {},
                             std::u16string_view pseudoToken = {});
    void SetOperador(std::u16string_view lexema, std::u16string_view token,
                     std::u16string_view pseudoToken = {}) override;
    void SetComentarioLinea(std::u16string_view lexema) override;
    void SetRegla(std::u16string_view regla, std::int16_t numIdentificacion = 0) override;
    void InsertarSimboloGramatica(std::u16string_view simboloG) override;
    void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) override;
    void SetElementoTablaSLR(std::int16_t posFilas, std::int16_t posColumnas, std::int16_t valorSLR) override;
    /// Forgets the token definitions; rules, symbols and table stay.
    void BorraLenguaje();

    // Compiling.
    /// Reads a language specification into the control; no table is built. False when it did not parse (the
    /// specification language then stays loaded) or its grammar check failed (`GetmensajeError`).
    bool CargaGramatica(std::u16string_view codGramatica);
    bool GeneraCompilador() override;

    // Parsing.
    /// True when the text of the box was accepted; raises `Desbordamiento` from 32 767 characters on.
    bool ConstruyeArbolSintactico();
    /// The same for the invisible text, with lines and columns 0 in the tree.
    bool ConstruyeArbolSintacticoTextoInvisible();
    /// The root of the last parse's tree; the next parse replaces it in place.
    Arbol& GetArbolSintactico();
    /// Of the last parse: 0 none, 1 lexical, 2 syntax error.
    std::int16_t GetCodigoError() const;
    const std::u16string& GetmensajeError() const;
    /// Accepts a text, does nothing.
    std::u16string EjecutaCodigo(std::u16string_view codigoAEjecutar);

    // Reading tokens one by one: the last is "EOF"; "Norvik_ERROR" is a character that starts no token.
    void InicializaLecturaTokens();
    parLT Lex();
    parLT LexTextoInvisible();
    /// 1-based line and column of the last token read.
    std::int16_t LineaToken() const;
    std::int32_t ColumnaToken() const;
    std::u16string DameStringTokenLeido() const;
    std::u16string DameStringLineaColumnaToken() const;

    // Marking in the error colour; lines are 1-based.
    void MarcaErrorLinea(std::int16_t numLinea);
    void MarcaErrorToken();
    void MarcaErrorLineaToken();
    /// Adds an error sign to the left border.
    void PonSignoError(std::int16_t numLinea);

    // Colouring, when `Colorear` is on; raises `Desbordamiento` from 32 767 characters on.
    void ColoreaTodo();
    void ColoreaLineaActual();

    // Lines and files.
    /// 1-based line of the caret.
    std::int16_t LineaActual() const;
    /// Empties the text, the colour of what is typed next included.
    void BorraTodo();
    /// Replaces the text by a file's and colours it. True, or raises `ErrorDeFichero` with the text emptied.
    bool CargarFichero(const std::filesystem::path& nomFichero);
    /// Writes the text and a line end; false when that failed.
    bool SalvarFichero(const std::filesystem::path& nomFichero);

    // Properties of the text box. Positions and lengths are 16-bit: reading larger ones raises
    // `Desbordamiento`.
    std::u16string Text() const;
    void Text(std::u16string_view texto);
    std::u16string SelText() const;
    void SelText(std::u16string_view texto);
    std::int16_t SelStart() const;
    void SelStart(std::int16_t posicion);
    std::int16_t SelLength() const;
    void SelLength(std::int16_t longitud);
    bool TextoModificado() const;
    /// False clears the mark, true does nothing.
    void TextoModificado(bool modificado);

    // Options.
    bool LenguajeSensible() const { return opciones_.lenguajeSensible; }
    void LenguajeSensible(bool valor) { opciones_.lenguajeSensible = valor; }
    bool AutoCorreccion() const { return opciones_.autoCorreccion; }
    void AutoCorreccion(bool valor) { opciones_.autoCorreccion = valor; }
    bool MarcarErrores() const { return opciones_.marcarErrores; }
    void MarcarErrores(bool valor) { opciones_.marcarErrores = valor; }
    bool MuestraMensajesDeError() const { return opciones_.muestraMensajesDeError; }
    void MuestraMensajesDeError(bool valor) { opciones_.muestraMensajesDeError = valor; }
    bool Colorear() const { return opciones_.colorear; }
    void Colorear(bool valor) { opciones_.colorear = valor; }
    bool AutoNumero() const { return lexico_.autoNumber; }
    void AutoNumero(bool valor) { lexico_.autoNumber = valor; }

    // Colours of the token kinds, 0x00BBGGRR: definitions take them when they are registered.
    std::int32_t ColorPR() const { return lexico_.colorPalabrasReservadas; }
    void ColorPR(std::int32_t color) { lexico_.colorPalabrasReservadas = color; }
    std::int32_t ColorOperadores() const { return lexico_.ColorOperadores; }
    void ColorOperadores(std::int32_t color) { lexico_.ColorOperadores = color; }
    std::int32_t ColorComentarios() const { return lexico_.ColorComentarios; }
    void ColorComentarios(std::int32_t color) { lexico_.ColorComentarios = color; }
    std::int32_t ColorEtiquetas() const { return lexico_.ColorEtiquetas; }
    void ColorEtiquetas(std::int32_t color) { lexico_.ColorEtiquetas = color; }
    std::int32_t ColorNumeros() const { return lexico_.ColorNumeros; }
    void ColorNumeros(std::int32_t color) { lexico_.ColorNumeros = color; }
    /// Read at each marking.
    std::int32_t ColorError() const { return lexico_.ColorError; }
    void ColorError(std::int32_t color) { lexico_.ColorError = color; }
    std::int32_t ColorCadena() const { return lexico_.ColorCadena; }
    void ColorCadena(std::int32_t color) { lexico_.ColorCadena = color; }
    std::int32_t ColorCaracter() const { return lexico_.ColorCaracter; }
    void ColorCaracter(std::int32_t color) { lexico_.ColorCaracter = color; }
    std::int32_t ColorFechas() const { return lexico_.ColorFechas; }
    void ColorFechas(std::int32_t color) { lexico_.ColorFechas = color; }

    // What the control owns, for reports and modules.
    gramatica& Gramatica() { return gramatica_; }
    pilaTokens& Lexico() { return lexico_; }
    const Marcas::Signos& signos() const { return marcas_.signos(); }

private:
    void alCambiarElTexto();
    void alFallarElAnalisis(const Mensaje& mensaje);
    void muestraErrorLexico(const std::u16string& mensaje);
    bool analizaEspecificacion(std::u16string_view codGramatica);
    void generaTabla();

    CajaTexto& caja_;
    Sistema& sistema_;
    Opciones opciones_;
    EstadoEdicion estado_;
    pilaTokens lexico_;
    gramatica gramatica_;
    LectorTokens lector_;
    ConductorSLR conductor_;
    Coloreado coloreado_;
    Marcas marcas_;
};

} // namespace norvik
