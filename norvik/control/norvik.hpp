#pragma once

#include "norvik/control/bolsaPropiedades.hpp"
#include "norvik/control/contenedor.hpp"
#include "norvik/control/estadoBusqueda.hpp"
#include "norvik/control/eventosControl.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/partesControl.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/parLT.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/arbol.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/sistema.hpp"
#include "norvik/spec/cargadorLenguaje.hpp"

#include <any>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace norvik {

/// The editor control: an editor that knows the language loaded into it. A facade over parts that each keep
/// their own state; the host gives it a text box, the services of its surroundings and, if it has windows,
/// what contains it, which must outlive it.
///
/// A property is two members of one name: `X()` reads it and `X(value)` sets it; setting one of the saved
/// ones to another value notifies the container. Every failure raised leaves a control that works on:
/// nothing stays busy, locked or hidden. Of a language that was being loaded or compiled then, what had come
/// so far stays.
///
/// Receivers of its events, and whatever else runs while it shows a message or lets pending events run, may
/// change the text, parse, throw, and delete the control, but load and compile no language while it does so
/// itself. A text that is read meanwhile is read with the language of before, or with the new one whole. The
/// operation in which a control is deleted goes on without it, raises no more events, and touches neither box
/// nor services nor container any more; one that loads a definition ends with a failure (`ErrorNorvik`).
class Norvik final : public CargadorLenguaje {
    const std::shared_ptr<PartesControl> partes_; // before what refers to it

public:
    Norvik(CajaTexto& caja, Sistema& sistema, Contenedor& contenedor = sinContenedor());
    ~Norvik() override;

    EventosControl& eventos;

    // Loading a language. Definitions follow `LenguajeSensible` as it is at the call; their errors are shown
    // titled "Norvik: Error en especificación léxica", and the call completes. All of them raise
    // `ArgumentoNoValido` in a receiver that runs while the control shows such an error, compiles or loads.
    void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken = false,
               std::int32_t tipoToken = Norvik_ExpReg, std::u16string_view pseudoToken = {},
               std::int32_t baseToken = Norvik_SinBase, std::int32_t colorTexto = sinColor) override;
    void SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int32_t tipoToken,
                   std::u16string_view pseudoToken, std::int32_t baseToken, std::int32_t colorTexto) override;
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
    std::size_t SetElementosTablaSLR(std::span<const CeldaSLR> celdas) override;
    /// Forgets the token definitions alone. Rules, symbols and table stay, and those of a second language
    /// would be added to them: between two languages stands `OlvidaLenguaje`.
    void BorraLenguaje();
    /// Forgets the whole language: definitions, rules, symbols, table and conflicts. Another one can then be
    /// loaded, by a module or call by call; `CargaGramatica` needs it not.
    void OlvidaLenguaje();

    // Compiling.
    /// Reads a language specification into the control; no table is built. False when it did not parse or its
    /// grammar check failed (`GetmensajeError`). The language before is gone either way: a specification that
    /// did not parse leaves the one that specifications are written in, any other its own definitions and
    /// rules. Raises what `ConstruyeArbolSintactico` does, and `SubindiceFueraDeIntervalo` at rule 1001.
    bool CargaGramatica(std::u16string_view codGramatica);
    bool GeneraCompilador() override;

    // Parsing.
    /// True when the text of the box was accepted; raises `Desbordamiento` from 32 767 characters on.
    bool ConstruyeArbolSintactico();
    /// The same for the invisible text, with lines and columns 0 in the tree.
    bool ConstruyeArbolSintacticoTextoInvisible();
    /// A text that is read and parsed without being shown, "" at first; `CargaGramatica` uses it and leaves
    /// it empty.
    std::u16string_view GetTextoInvisible() const { return partes_->lector.textoInvisible().texto(); }
    void SetTextoInvisible(std::u16string_view texto) { partes_->lector.textoInvisible().ponTexto(texto); }
    /// The root of the last parse's tree; the next parse replaces it in place.
    Arbol& GetArbolSintactico();
    /// Of the last parse: 0 none, 1 lexical, 2 syntax error.
    std::int16_t GetCodigoError() const;
    const std::u16string& GetmensajeError() const;
    /// The error of the last parse as a value: its exact range in the text (UTF-16), and the tokens that can
    /// really stand there. None after an accepted one.
    const std::optional<Diagnostico>& GetDiagnostico() const { return partes_->conductor.diagnostico(); }
    /// Accepts a text, does nothing.
    std::u16string EjecutaCodigo(std::u16string_view codigoAEjecutar);

    // Reading tokens one by one: the last is "EOF"; "Norvik_ERROR" is a character that starts no token.
    void InicializaLecturaTokens();
    parLT Lex();
    parLT LexTextoInvisible();
    /// 1-based line and column of the last token when it was read, in the text that it was read from, the
    /// invisible one included.
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

    // Lines; they count from 1.
    std::int16_t LineaActual() const { return partes_->edicion.lineaActual(); }
    std::int32_t ColumnaActual() const { return partes_->edicion.columnaActual(); }
    /// As counted at the last change of the text.
    std::int32_t TotalLineas() const { return partes_->estado.numLineas; }
    /// A line without its end; raises `ArgumentoNoValido` when there is none.
    std::u16string ContenidoLinea(std::int16_t numLinea) const;

    // Undo. The first recorded text is the base, which cannot be undone.
    /// Forgets every change. Raises `Desbordamiento`, having done so, when there were more than 32767.
    void InicializaUndosYRedos() { vivo()->historial.InicializaUndosYRedos(); }
    void Undo() { vivo()->historial.Undo(); }
    void Redo() { vivo()->historial.Redo(); }

    // Searching.
    /// Position (0-based) of a text between two others, -1 when there is none; a `final` of 0 is the end of
    /// the text, the options are those of `CajaTexto::busca`.
    std::int32_t Find(std::u16string_view cadena, std::int32_t comienzo = 0, std::int32_t final = 0,
                      std::int32_t opciones = 0);
    void ShowBuscarDialog();
    void ShowReemplazarDialog();
    /// What a dialog that searches this control works on.
    DestinoBusqueda destinoBusqueda();

    // Files and printing.
    /// Empties the text, the colour of what is typed next and the undo and redo lists included.
    void BorraTodo();
    /// Replaces the text by a file's and colours it. True, or raises `ErrorDeFichero` with the text emptied.
    bool CargarFichero(const std::filesystem::path& nomFichero);
    /// Writes the text and a line end; false when that failed.
    bool SalvarFichero(const std::filesystem::path& nomFichero) const;
    /// Prints the text; a failure is told in a message box.
    void Imprimir();

    // What is saved, and the exchange with the design-time tools.
    /// Raises `NoCoincidenLosTipos` or `Desbordamiento` at the first value that is none of its property;
    /// those before it are set.
    void restauraPropiedades(const BolsaPropiedades& bolsa) { vivo()->propiedades.restaura(bolsa); }
    void guardaPropiedades(BolsaPropiedades& bolsa) const { partes_->propiedades.guarda(bolsa); }
    /// Reading it copies specification and test text to the shared slots, setting it takes them from there.
    std::any editCode() const;
    void editCode(const std::any& valor);
    /// Accepts its arguments, does nothing.
    void SetTraduccion(std::int16_t numRegla, std::u16string_view variableETDS,
                       std::u16string_view traduccion, std::u16string_view condicion = {},
                       std::u16string_view atributosDerivados = {});
    void Acerca() { partes_->contenedor->muestraAcerca(); }
    /// Shows the report on the grammar and the lexer.
    void MuestraInforme() { partes_->contenedor->muestraInforme(); }

    // For whoever shows the control.
    /// The control has another size.
    void redimensiona() { partes_->colocacion.colocaControles(); }
    /// The tab key moved the focus out of the text box, to the button that stands for it.
    void tabuladorEnfocado() { vivo()->edicion.tabula(); }
    /// The control's own surface was clicked.
    void clickEnSuperficie();
    const Opciones& opciones() const { return partes_->opciones; }

    // Properties of the text box. Positions and lengths are 16-bit: reading larger ones raises
    // `Desbordamiento`.
    std::u16string Text() const;
    void Text(std::u16string_view texto) { vivo()->propiedades.ponText(texto); }
    std::u16string SelText() const;
    void SelText(std::u16string_view texto);
    std::int16_t SelStart() const;
    void SelStart(std::int16_t posicion);
    std::int16_t SelLength() const;
    void SelLength(std::int16_t longitud);
    std::u16string SelFontName() const { return partes_->caja->nombreFuenteSeleccion(); }
    void SelFontName(std::u16string_view nombre);
    /// In points.
    std::int16_t SelFontSize() const;
    void SelFontSize(std::int16_t puntos);
    const Fuente& Font() const { return partes_->caja->fuente(); }
    void Font(const Fuente& fuente) { vivo()->propiedades.ponFont(fuente); }
    bool TextoModificado() const;
    /// False clears the mark, true does nothing.
    void TextoModificado(bool modificado);

    // Options.
    bool Borde3D() const { return partes_->opciones.borde3D; }
    void Borde3D(bool valor) { vivo()->propiedades.ponBorde3D(valor); }
    bool LeftBorderVisible() const { return partes_->opciones.leftBorderVisible; }
    void LeftBorderVisible(bool valor) { vivo()->propiedades.ponLeftBorderVisible(valor); }
    std::int16_t MargenIzquierdo() const { return partes_->opciones.margenIzquierdo; }
    void MargenIzquierdo(std::int16_t twips) { vivo()->propiedades.ponMargenIzquierdo(twips); }
    bool HideSelection() const { return partes_->opciones.hideSelection; }
    void HideSelection(bool valor) { vivo()->propiedades.ponHideSelection(valor); }
    bool LenguajeSensible() const { return partes_->opciones.lenguajeSensible; }
    void LenguajeSensible(bool valor) { pon(partes_->opciones.lenguajeSensible, valor, u"LenguajeSensible"); }
    bool AutoCorreccion() const { return partes_->opciones.autoCorreccion; }
    void AutoCorreccion(bool valor) { pon(partes_->opciones.autoCorreccion, valor, u"AutoCorreccion"); }
    std::int16_t EspaciosXTAB() const { return partes_->opciones.espaciosXTAB; }
    void EspaciosXTAB(std::int16_t cuantos) { pon(partes_->opciones.espaciosXTAB, cuantos, u"EspaciosXTAB"); }
    bool AutoTAB() const { return partes_->opciones.autoTAB; }
    void AutoTAB(bool valor) { pon(partes_->opciones.autoTAB, valor, u"AutoTAB"); }
    bool MarcarErrores() const { return partes_->opciones.marcarErrores; }
    void MarcarErrores(bool valor) { pon(partes_->opciones.marcarErrores, valor, u"MarcarErrores"); }
    bool MuestraMensajesDeError() const { return partes_->opciones.muestraMensajesDeError; }
    void MuestraMensajesDeError(bool valor) {
        pon(partes_->opciones.muestraMensajesDeError, valor, u"MuestraMensajesDeError");
    }
    bool Colorear() const { return partes_->opciones.colorear; }
    void Colorear(bool valor) { pon(partes_->opciones.colorear, valor, u"Colorear"); }
    const std::u16string& NomLenguaje() const { return partes_->opciones.nombreLenguaje; }
    void NomLenguaje(std::u16string_view nombre) {
        pon(partes_->opciones.nombreLenguaje, nombre, u"NombreLenguaje");
    }
    bool AutoNumero() const { return partes_->lexico.autoNumber; }
    void AutoNumero(bool valor) { pon(partes_->lexico.autoNumber, valor, u"AutoNumero"); }

    // What the container keeps for the design-time tools.
    const std::u16string& ContenidoG() const { return partes_->opciones.contenidoG; }
    void ContenidoG(std::u16string_view especificacion) {
        pon(partes_->opciones.contenidoG, especificacion, u"ContenidoG");
    }
    const std::u16string& CodigoPrueba() const { return partes_->opciones.codigoPrueba; }
    void CodigoPrueba(std::u16string_view texto) {
        pon(partes_->opciones.codigoPrueba, texto, u"CodigoPrueba");
    }

    // Colours of the token kinds, 0x00BBGGRR: definitions take them when they are registered.
    std::int32_t ColorPR() const { return partes_->lexico.colorPalabrasReservadas; }
    void ColorPR(std::int32_t color) { pon(partes_->lexico.colorPalabrasReservadas, color, u"ColorPR"); }
    std::int32_t ColorOperadores() const { return partes_->lexico.ColorOperadores; }
    void ColorOperadores(std::int32_t color) {
        pon(partes_->lexico.ColorOperadores, color, u"ColorOperadores");
    }
    std::int32_t ColorComentarios() const { return partes_->lexico.ColorComentarios; }
    void ColorComentarios(std::int32_t color) {
        pon(partes_->lexico.ColorComentarios, color, u"ColorComentarios");
    }
    std::int32_t ColorEtiquetas() const { return partes_->lexico.ColorEtiquetas; }
    void ColorEtiquetas(std::int32_t color) { pon(partes_->lexico.ColorEtiquetas, color, u"ColorEtiquetas"); }
    std::int32_t ColorNumeros() const { return partes_->lexico.ColorNumeros; }
    void ColorNumeros(std::int32_t color) { pon(partes_->lexico.ColorNumeros, color, u"ColorNumeros"); }
    /// Read at each marking.
    std::int32_t ColorError() const { return partes_->lexico.ColorError; }
    void ColorError(std::int32_t color) { pon(partes_->lexico.ColorError, color, u"ColorError"); }
    std::int32_t ColorCadena() const { return partes_->lexico.ColorCadena; }
    void ColorCadena(std::int32_t color) { pon(partes_->lexico.ColorCadena, color, u"ColorCadena"); }
    std::int32_t ColorCaracter() const { return partes_->lexico.ColorCaracter; }
    void ColorCaracter(std::int32_t color) { pon(partes_->lexico.ColorCaracter, color, u"ColorCaracter"); }
    std::int32_t ColorFechas() const { return partes_->lexico.ColorFechas; }
    void ColorFechas(std::int32_t color) { pon(partes_->lexico.ColorFechas, color, u"ColorFechas"); }

    // What the control owns, for reports and modules.
    gramatica& Gramatica() { return partes_->laGramatica; }
    pilaTokens& Lexico() { return partes_->lexico; }
    const Marcas::Signos& signos() const { return partes_->marcas.signos(); }
    const Historial& historial() const { return partes_->historial; }

private:
    /// What is called on it goes on whole, whoever deletes the control meanwhile.
    std::shared_ptr<PartesControl> vivo() const { return partes_; }
    template <typename Tipo, typename Valor>
    void pon(Tipo& campo, const Valor& valor, std::u16string_view nombre) {
        vivo()->propiedades.pon(campo, valor, nombre);
    }
};

} // namespace norvik
