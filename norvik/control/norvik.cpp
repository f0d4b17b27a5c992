#include "norvik/control/norvik.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/control/lineasTexto.hpp"
#include "norvik/control/pasosFirmes.hpp"

namespace norvik {

Norvik::Norvik(CajaTexto& caja, Sistema& sistema, Contenedor& contenedor)
    : caja_(caja), sistema_(sistema), contenedor_(contenedor), lector_(lexico_, caja_),
      conductor_(lector_, lexico_, gramatica_), colocacion_(caja_, opciones_, contenedor_),
      propiedades_(opciones_, lexico_, caja_, colocacion_, contenedor_),
      coloreado_(caja_, lexico_, opciones_, estado_, colocacion_), marcas_(caja_, estado_),
      historial_(caja_, estado_),
      edicion_(caja_, opciones_, estado_, coloreado_, colocacion_, historial_, eventos) {
    propiedades_.construye();
    edicion_.conecta();
    conductor_.alFallar = [this](const Mensaje& mensaje) { alFallarElAnalisis(mensaje); };
}

Norvik::~Norvik() {
    caja_.eventos = {};
    EstadoBusqueda& busqueda = estadoBusqueda();
    if (busqueda.textoDestino == &caja_) busqueda.apunta({});
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
    // The reader stays at a wrong character.
    const bool parado = lector_.leido().definicion == TokenLeido::desconocido;
    const std::int32_t fin = lector_.posLectura() - (parado ? 0 : 1);
    marcas_.marcaToken(lector_.inicioToken() - 1, fin, LineaToken(), lexico_.ColorError);
}

void Norvik::MarcaErrorLineaToken() {
    MarcaErrorLinea(LineaToken());
    estado_.lineaEnEdicion = false;
}

void Norvik::PonSignoError(std::int16_t numLinea) {
    const signoDebuger& signo = marcas_.ponSigno(numLinea);
    estado_.primeraLineaVisible = caja_.primeraLineaVisible();
    contenedor_.ponSigno(signo, lugarDeSigno(numLinea, estado_.primeraLineaVisible, caja_.altoDeLinea()));
}

void Norvik::ColoreaTodo() {
    coloreado_.coloreaTodo();
}

void Norvik::ColoreaLineaActual() {
    coloreado_.coloreaLinea(LineaActual());
}

std::u16string Norvik::ContenidoLinea(std::int16_t numLinea) const {
    return std::u16string(dameLinea(numLinea, caja_.texto()));
}

// --- Searching ---

std::int32_t Norvik::Find(std::u16string_view cadena, std::int32_t comienzo, std::int32_t final,
                          std::int32_t opciones) {
    return caja_.busca(cadena, comienzo, final == 0 ? a32(caja_.texto().size()) : final, opciones);
}

DestinoBusqueda Norvik::destinoBusqueda() {
    return {&caja_, &sistema_,
            [this](std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo) {
                sustituye(inicio, longitud, nuevo);
            },
            std::nullopt};
}

void Norvik::sustituye(std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo) {
    PasosFirmes paso;
    paso([&] { historial_.sustituye(inicio, longitud, nuevo); });
    paso([this] { ColoreaTodo(); });
    paso.acaba();
}

void Norvik::ShowBuscarDialog() {
    estadoBusqueda().apunta(destinoBusqueda());
    contenedor_.muestraBuscar();
}

void Norvik::ShowReemplazarDialog() {
    contenedor_.muestraReemplazar();
}

// --- Design time ---

std::any Norvik::editCode() const {
    propiedades_.cedeARanuras();
    return {};
}

void Norvik::editCode(const std::any& /*valor*/) {
    propiedades_.tomaDeRanuras();
}

void Norvik::SetTraduccion(std::int16_t /*numRegla*/, std::u16string_view /*variableETDS*/,
                           std::u16string_view /*traduccion*/, std::u16string_view /*condicion*/,
                           std::u16string_view /*atributosDerivados*/) {}

void Norvik::clickEnSuperficie() {
    caja_.enfoca();
    if (!estado_.ocupado && eventos.Click) eventos.Click();
}

// --- Properties of the text box ---

std::u16string Norvik::Text() const {
    return std::u16string(caja_.texto());
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

void Norvik::SelFontName(std::u16string_view nombre) {
    if (nombre != caja_.nombreFuenteSeleccion()) caja_.ponNombreFuenteSeleccion(nombre);
}

namespace {
constexpr std::int32_t punto = 10000; // the unit of sizes is its part
} // namespace

std::int16_t Norvik::SelFontSize() const {
    return a16((caja_.tamanoFuenteSeleccion() + punto / 2) / punto);
}

void Norvik::SelFontSize(std::int16_t puntos) {
    const std::int32_t tamano = puntos * punto;
    if (tamano != caja_.tamanoFuenteSeleccion()) caja_.ponTamanoFuenteSeleccion(tamano);
}

bool Norvik::TextoModificado() const {
    return caja_.modificado();
}

void Norvik::TextoModificado(bool modificado) {
    if (!modificado) caja_.ponModificado(false);
}

} // namespace norvik
