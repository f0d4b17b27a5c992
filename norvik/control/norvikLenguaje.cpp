// The control's language: loading it call by call, compiling it from a specification, parsing with it.

#include "norvik/control/norvik.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/generacion.hpp"
#include "norvik/spec/compiladorEspecificacion.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"

namespace norvik {

// --- Loading ---

void Norvik::muestraErrorLexico(const std::u16string& mensaje) {
    if (mensaje.empty()) return;
    sistema_.muestraMensaje(
        {mensaje, u"Norvik: Error en especificación léxica", Icono::Exclamacion, Botones::Aceptar});
}

void Norvik::SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken,
                   std::int32_t tipoToken, std::u16string_view pseudoToken, std::int32_t baseToken,
                   std::int32_t colorTexto) {
    muestraErrorLexico(lexico_.SetER(expresion, nomER, esToken, opciones_.lenguajeSensible, pseudoToken,
                                     a16(tipoToken), baseToken, colorTexto));
}

void Norvik::SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int32_t tipoToken,
                       std::u16string_view pseudoToken, std::int32_t baseToken, std::int32_t /*colorTexto*/) {
    const auto error = lexico_.registraPatron(
        {patron, nomER, true, opciones_.lenguajeSensible, pseudoToken, a16(tipoToken), baseToken});
    if (error) muestraErrorLexico(mensaje(*error));
}

void Norvik::SetPalabraReservada(std::u16string_view lexema, std::u16string& token,
                                 std::u16string_view pseudoToken) {
    if (token.empty()) token = aMinusculas(lexema);
    muestraErrorLexico(lexico_.SetPalabraReservada(lexema, token, opciones_.lenguajeSensible, pseudoToken));
}

void Norvik::SetPalabraReservada(std::u16string_view lexema, std::u16string_view token,
                                 std::u16string_view pseudoToken) {
    std::u16string variable(token);
    SetPalabraReservada(lexema, variable, pseudoToken);
}

void Norvik::SetOperador(std::u16string_view lexema, std::u16string_view token,
                         std::u16string_view pseudoToken) {
    muestraErrorLexico(lexico_.SetOperador(lexema, token, opciones_.lenguajeSensible, pseudoToken));
}

void Norvik::SetComentarioLinea(std::u16string_view lexema) {
    muestraErrorLexico(lexico_.SetER(std::u16string(lexema).append(u".*(\\n|$)"), u"comentario", true,
                                     opciones_.lenguajeSensible, {}, Norvik_ComentarioLinea, Norvik_SinBase,
                                     sinColor));
}

void Norvik::SetRegla(std::u16string_view regla, std::int16_t numIdentificacion) {
    const auto [cabeza, cuerpo] = parteRegla(regla);
    gramatica_.SetRegla(cabeza, cuerpo, numIdentificacion);
}

void Norvik::InsertarSimboloGramatica(std::u16string_view simboloG) {
    gramatica_.SetSimbolo(simboloG);
}

void Norvik::SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) {
    gramatica_.SetDimensionTablaSLR(filas, columnas);
}

void Norvik::SetElementoTablaSLR(std::int16_t posFilas, std::int16_t posColumnas, std::int16_t valorSLR) {
    gramatica_.SetElementoTablaSLR(posFilas, posColumnas, valorSLR);
}

std::size_t Norvik::SetElementosTablaSLR(std::span<const CeldaSLR> celdas) {
    return gramatica_.SetElementosTablaSLR(celdas);
}

void Norvik::BorraLenguaje() {
    lexico_.Inicializa();
}

void Norvik::OlvidaLenguaje() {
    BorraLenguaje();
    gramatica_.inicializaGramatica();
    gramatica_.SetDimensionTablaSLR(0, 0);
}

// --- Compiling ---

namespace {

/// A text in the invisible text while it lives.
class TextoPuesto {
public:
    TextoPuesto(TextoInvisible& invisible, std::u16string_view texto) : invisible_(invisible) {
        invisible_.ponTexto(texto);
    }
    TextoPuesto(const TextoPuesto&) = delete;
    TextoPuesto& operator=(const TextoPuesto&) = delete;
    ~TextoPuesto() { invisible_.ponTexto({}); }

private:
    TextoInvisible& invisible_;
};

} // namespace

bool Norvik::CargaGramatica(std::u16string_view codGramatica) {
    InstalaLenguajeEspecificacion(gramatica_, lexico_, opciones_.lenguajeSensible);
    const PunteroOcupado ocupado(sistema_);
    if (!analizaEspecificacion(codGramatica)) return false;
    gramatica_.inicializaGramatica();
    lexico_.Inicializa();
    CompilaArbolEspecificacion(GetArbolSintactico(), gramatica_, lexico_, sistema_);
    conductor_.SetmensajeError(gramatica_.chequeaGramatica());
    return GetmensajeError().empty();
}

bool Norvik::analizaEspecificacion(std::u16string_view codGramatica) {
    const TextoPuesto puesto(lector_.textoInvisible(), codGramatica);
    return ConstruyeArbolSintacticoTextoInvisible();
}

bool Norvik::GeneraCompilador() {
    if (gramatica_.GetLeftRegla(1).empty()) return true;
    const std::u16string mensaje = gramatica_.chequeaGramatica();
    if (!mensaje.empty()) {
        sistema_.muestraMensaje(mensajeDeComprobacion(mensaje));
        return false;
    }
    {
        const PunteroOcupado ocupado(sistema_);
        generaTabla(gramatica_, sistema_);
    }
    sistema_.procesaEventos();
    return true;
}

// --- Parsing ---

bool Norvik::ConstruyeArbolSintactico() {
    return conductor_.ConstruyeArbolSintactico();
}

bool Norvik::ConstruyeArbolSintacticoTextoInvisible() {
    return conductor_.ConstruyeArbolSintacticoTextoInvisible();
}

Arbol& Norvik::GetArbolSintactico() {
    return conductor_.GetArbolSintactico();
}

std::int16_t Norvik::GetCodigoError() const {
    return conductor_.GetCodigoError();
}

const std::u16string& Norvik::GetmensajeError() const {
    return conductor_.GetmensajeError();
}

std::u16string Norvik::EjecutaCodigo(std::u16string_view /*codigoAEjecutar*/) {
    return {};
}

void Norvik::InicializaLecturaTokens() {
    lector_.InicializaLecturaTokens();
}

parLT Norvik::Lex() {
    return lector_.Lex();
}

parLT Norvik::LexTextoInvisible() {
    return lector_.LexTextoInvisible();
}

std::int16_t Norvik::LineaToken() const {
    return lector_.LineaToken();
}

std::int32_t Norvik::ColumnaToken() const {
    return lector_.ColumnaToken();
}

std::u16string Norvik::DameStringTokenLeido() const {
    return lector_.DameStringTokenLeido();
}

std::u16string Norvik::DameStringLineaColumnaToken() const {
    return lector_.DameStringLineaColumnaToken();
}

} // namespace norvik
