// SPDX-License-Identifier: MIT

#include "norvik/control/norvik.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/estadoBusqueda.hpp"
#include "norvik/control/lineasTexto.hpp"
#include "norvik/control/partesControl.hpp"
#include "norvik/parser/lectorTokens.hpp"

namespace norvik::inline v0_2 {

Norvik::Norvik(CajaTexto& caja, Sistema& sistema, Contenedor& contenedor)
    : partes_(std::make_shared<PartesControl>(caja, sistema, contenedor)), eventos(partes_->eventos) {
    partes_->conecta();
}

/// Parts that are at work leave the box with receivers that do nothing: one of them may be running.
Norvik::~Norvik() {
    CajaTexto& caja = *partes_->caja;
    if (partes_.use_count() == 1) caja.eventos = {};
    EstadoBusqueda& busqueda = estadoBusqueda();
    if (busqueda.textoDestino == &caja) busqueda.apunta({});
    partes_->abandona();
}

// --- Marking and colouring ---

void Norvik::MarcaErrorLinea(std::int16_t numLinea) {
    partes_->MarcaErrorLinea(numLinea);
}

void Norvik::MarcaErrorToken() {
    const LectorTokens& lector = partes_->lector;
    const std::int32_t inicio = lector.inicioToken() - 1;
    // The reader stays at a wrong character.
    const bool parado = lector.leido().definicion == TokenLeido::desconocido;
    const std::int32_t fin = parado ? inicio + a32(lector.leido().lexema.size()) : lector.posLectura() - 1;
    partes_->lineas.marcaToken(inicio, fin, LineaToken(), ColorError());
}

void Norvik::MarcaErrorLineaToken() {
    partes_->MarcaErrorLineaToken();
}

void Norvik::PonSignoError(std::int16_t numLinea) {
    const signoDebuger& signo = partes_->signos.ponSigno(numLinea);
    const CajaTexto& caja = *partes_->caja;
    partes_->contenedor->ponSigno(signo,
                                  lugarDeSigno(numLinea, caja.primeraLineaVisible(), caja.altoDeLinea()));
}

void Norvik::ColoreaTodo() {
    const auto partes = vivo();
    partes->edicion.conAviso([&] { partes->lineas.coloreaTodo(); });
}

void Norvik::ColoreaLineaActual() {
    const auto partes = vivo();
    partes->edicion.conAviso([&] { partes->lineas.coloreaLinea(partes->edicion.lineaActual()); });
}

void Norvik::reconoceTexto() {
    vivo()->lineas.reconoceTodo();
}

void Norvik::actualizaColores() {
    vivo()->lineas.ponAlDia();
}

std::u16string Norvik::ContenidoLinea(std::int16_t numLinea) const {
    return std::u16string(dameLinea(numLinea, partes_->caja->texto()));
}

// --- Searching ---

std::int32_t Norvik::Find(std::u16string_view cadena, std::int32_t comienzo, std::int32_t final,
                          std::int32_t opciones) {
    return partes_->caja->busca(cadena, comienzo, final == 0 ? a32(partes_->caja->texto().size()) : final,
                                opciones);
}

DestinoBusqueda Norvik::destinoBusqueda() {
    const auto sustituye = [quizas = std::weak_ptr(partes_)](std::int32_t inicio, std::int32_t longitud,
                                                             std::u16string_view nuevo) {
        if (const auto partes = quizas.lock()) partes->sustituye(inicio, longitud, nuevo);
    };
    return {&*partes_->caja, &*partes_->sistema, sustituye, std::nullopt};
}

void Norvik::ShowBuscarDialog() {
    estadoBusqueda().apunta(destinoBusqueda());
    partes_->contenedor->muestraBuscar();
}

void Norvik::ShowReemplazarDialog() {
    partes_->contenedor->muestraReemplazar();
}

// --- Design time ---

std::any Norvik::editCode() const {
    partes_->propiedades.cedeARanuras();
    return {};
}

void Norvik::editCode(const std::any& /*valor*/) {
    vivo()->propiedades.tomaDeRanuras();
}

void Norvik::SetTraduccion(std::int16_t /*numRegla*/, std::u16string_view /*variableETDS*/,
                           std::u16string_view /*traduccion*/, std::u16string_view /*condicion*/,
                           std::u16string_view /*atributosDerivados*/) {}

void Norvik::clickEnSuperficie() {
    vivo()->clickEnSuperficie();
}

// --- The text as a whole ---

void Norvik::BorraTodo() {
    vivo()->BorraTodo();
}

bool Norvik::CargarFichero(const std::filesystem::path& nomFichero) {
    vivo()->CargarFichero(nomFichero);
    return true;
}

bool Norvik::SalvarFichero(const std::filesystem::path& nomFichero) const {
    try {
        escribeTexto(nomFichero, Text().append(saltoDeLinea), Durabilidad::EnDisco);
        return true;
    } catch (const ErrorNorvik&) {
        return false;
    }
}

void Norvik::Imprimir() {
    vivo()->Imprimir();
}

// --- Properties of the text box ---

std::u16string Norvik::Text() const {
    return std::u16string(partes_->caja->texto());
}

std::u16string Norvik::SelText() const {
    return partes_->caja->textoSeleccionado();
}

void Norvik::SelText(std::u16string_view texto) {
    partes_->caja->reemplazaSeleccion(texto);
}

std::int16_t Norvik::SelStart() const {
    return a16(partes_->caja->inicioSeleccion(), u"el principio de la selección");
}

void Norvik::SelStart(std::int16_t posicion) {
    partes_->caja->selecciona(posicion, 0);
}

std::int16_t Norvik::SelLength() const {
    return a16(partes_->caja->longitudSeleccion(), u"la longitud de la selección");
}

void Norvik::SelLength(std::int16_t longitud) {
    partes_->caja->selecciona(partes_->caja->inicioSeleccion(), longitud);
}

void Norvik::SelFontName(std::u16string_view nombre) {
    if (nombre != partes_->caja->nombreFuenteSeleccion()) partes_->caja->ponNombreFuenteSeleccion(nombre);
}

namespace {
constexpr std::int32_t punto = 10000; // the unit of sizes is its part
} // namespace

std::int16_t Norvik::SelFontSize() const {
    return a16((partes_->caja->tamanoFuenteSeleccion() + punto / 2) / punto, u"el tamaño de la fuente");
}

void Norvik::SelFontSize(std::int16_t puntos) {
    const std::int32_t tamano = puntos * punto;
    if (tamano != partes_->caja->tamanoFuenteSeleccion()) partes_->caja->ponTamanoFuenteSeleccion(tamano);
}

bool Norvik::TextoModificado() const {
    return partes_->caja->modificado();
}

void Norvik::TextoModificado(bool modificado) {
    if (modificado) return;
    partes_->caja->ponModificado(false);
    partes_->historial.corta(); // what was saved is where undo comes by
}

} // namespace norvik::inline v0_2
