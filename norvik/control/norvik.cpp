#include "norvik/control/norvik.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

namespace norvik {

Norvik::Norvik(CajaTexto& caja, Sistema& sistema)
    : caja_(caja), sistema_(sistema), lector_(lexico_, caja_), conductor_(lector_, lexico_, gramatica_),
      coloreado_(caja_, lexico_, opciones_, estado_), marcas_(caja_, estado_) {
    lexico_.autoNumber = true;
    lexico_.ColorComentarios = 0x008000;
    lexico_.ColorError = 0x0000FF;
    lexico_.ColorNumeros = 0x808000;
    lexico_.ColorOperadores = 0x000080;
    lexico_.colorPalabrasReservadas = 0x800000;
    lexico_.ColorEtiquetas = 0xFF8080;
    caja_.ponOcultaSeleccion(true);
    caja_.eventos.cambio = [this] { alCambiarElTexto(); };
    conductor_.alFallar = [this](const Mensaje& mensaje) { alFallarElAnalisis(mensaje); };
}

Norvik::~Norvik() {
    caja_.eventos = {};
}

void Norvik::alCambiarElTexto() {
    if (!estado_.ocupado) estado_.numLineas = caja_.numeroDeLineas();
}

void Norvik::alFallarElAnalisis(const Mensaje& mensaje) {
    if (opciones_.muestraMensajesDeError) sistema_.muestraMensaje(mensaje);
    if (opciones_.marcarErrores) MarcaErrorLineaToken();
}

// --- Marking and colouring ---

void Norvik::MarcaErrorLinea(std::int16_t numLinea) {
    marcas_.marcaLinea(numLinea, lexico_.ColorError);
}

void Norvik::MarcaErrorToken() {
    marcas_.marcaToken(lector_.inicioToken() - 1, lector_.posLectura() - 1, LineaToken(), lexico_.ColorError);
}

void Norvik::MarcaErrorLineaToken() {
    MarcaErrorLinea(LineaToken());
    estado_.lineaEnEdicion = false;
}

void Norvik::PonSignoError(std::int16_t numLinea) {
    marcas_.ponSigno(numLinea);
}

void Norvik::ColoreaTodo() {
    coloreado_.coloreaTodo();
}

void Norvik::ColoreaLineaActual() {
    coloreado_.coloreaLinea(LineaActual());
}

std::int16_t Norvik::LineaActual() const {
    return a16(caja_.lineaDeCaracter(caja_.inicioSeleccion()) + 1);
}

// --- Files ---

void Norvik::BorraTodo() {
    caja_.ponTexto({});
    caja_.ponColorSeleccion(0);
}

bool Norvik::CargarFichero(const std::filesystem::path& nomFichero) {
    BorraTodo();
    caja_.ponTexto(leeTexto(nomFichero));
    ColoreaTodo();
    return true;
}

bool Norvik::SalvarFichero(const std::filesystem::path& nomFichero) {
    try {
        escribeTexto(nomFichero, std::u16string(caja_.texto()).append(saltoDeLinea), Durabilidad::EnDisco);
        return true;
    } catch (const ErrorNorvik&) {
        return false;
    }
}

// --- Properties of the text box ---

std::u16string Norvik::Text() const {
    return std::u16string(caja_.texto());
}

void Norvik::Text(std::u16string_view texto) {
    if (texto != caja_.texto()) caja_.ponTexto(texto);
}

std::u16string Norvik::SelText() const {
    return caja_.textoSeleccionado();
}

void Norvik::SelText(std::u16string_view texto) {
    caja_.reemplazaSeleccion(texto);
}

std::int16_t Norvik::SelStart() const {
    return a16(caja_.inicioSeleccion());
}

void Norvik::SelStart(std::int16_t posicion) {
    caja_.selecciona(posicion, 0);
}

std::int16_t Norvik::SelLength() const {
    return a16(caja_.longitudSeleccion());
}

void Norvik::SelLength(std::int16_t longitud) {
    caja_.selecciona(caja_.inicioSeleccion(), longitud);
}

bool Norvik::TextoModificado() const {
    return caja_.modificado();
}

void Norvik::TextoModificado(bool modificado) {
    if (!modificado) caja_.ponModificado(false);
}

} // namespace norvik
