// SPDX-License-Identifier: MIT

#include "norvik/platform/cajaTexto.hpp"

#include "norvik/base/lineas.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/pattern/mayusculas.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace norvik::inline v0_2 {

CajaTexto::CajaTexto() : lineas_(std::make_unique<IndiceLineas>()) {}

CajaTexto::~CajaTexto() = default;

const IndiceLineas& CajaTexto::lineas() const {
    if (!lineasAlDia_) lineas_->reconstruye(texto_);
    lineasAlDia_ = true;
    return *lineas_;
}

std::int32_t CajaTexto::lineaDeCaracter(std::int32_t posicion) const {
    return lineas().lineaDe(posicion);
}

std::int32_t CajaTexto::inicioDeLinea(std::int32_t linea) const {
    return lineas().inicioDe(linea);
}

std::int32_t CajaTexto::numeroDeLineas() const {
    return lineas().numLineas();
}

/// The text as it enters between two positions: a break of one character is doubled, unless its other half
/// stands there.
std::u16string CajaTexto::conSaltosDobles(std::u16string_view texto, std::int32_t inicio,
                                          std::int32_t fin) const {
    const bool trasCR = inicio > 0 && texto_[static_cast<std::size_t>(inicio - 1)] == u'\r';
    const bool anteLF =
        static_cast<std::size_t>(fin) < texto_.size() && texto_[static_cast<std::size_t>(fin)] == u'\n';
    std::u16string doble;
    doble.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char16_t c = texto[i];
        const bool acaba = i + 1 == texto.size();
        const bool sigueLF = acaba ? anteLF : texto[i + 1] == u'\n';
        const bool precedeCR = i == 0 ? trasCR : texto[i - 1] == u'\r';
        if (c == u'\n' && !precedeCR) doble += u'\r';
        doble += c;
        if (c == u'\r' && !sigueLF) doble += u'\n';
    }
    return doble;
}

void CajaTexto::ponTexto(std::u16string_view texto) {
    std::u16string nuevo = conSaltosDobles(texto, 0, static_cast<std::int32_t>(texto_.size()));
    CambioDeTexto cambio = cambioEn(0, static_cast<std::int32_t>(texto_.size()), nuevo);
    std::vector<Estilo> estilos(nuevo.size());
    texto_ = std::move(nuevo);
    estilos_ = std::move(estilos);
    inicio_ = longitud_ = 0;
    modificado_ = false;
    avisaDelCambio(std::move(cambio));
}

void CajaTexto::selecciona(std::int32_t inicio, std::int32_t longitud) {
    const auto total = static_cast<std::int32_t>(texto_.size());
    const std::int32_t desde = std::clamp(inicio, 0, total);
    const std::int32_t cuantos = std::clamp(longitud, 0, total - desde);
    if (desde == inicio_ && cuantos == longitud_) return;
    inicio_ = desde;
    longitud_ = cuantos;
    estiloDeEscritura_.reset();
    alSeleccionar();
    if (eventos.cambioDeSeleccion) eventos.cambioDeSeleccion();
}

std::u16string CajaTexto::textoSeleccionado() const {
    return texto_.substr(static_cast<std::size_t>(inicio_), static_cast<std::size_t>(longitud_));
}

void CajaTexto::reemplazaSeleccion(std::u16string_view texto) {
    if (texto.empty() && longitud_ == 0) return;
    const std::u16string nuevo = conSaltosDobles(texto, inicio_, inicio_ + longitud_);
    CambioDeTexto cambio = cambioEn(inicio_, longitud_, nuevo);
    cambia(cambio, nuevo, estiloSeleccion());
    inicio_ += cambio.puestos;
    longitud_ = 0;
    avisaDelCambio(std::move(cambio));
}

void CajaTexto::reemplaza(std::int32_t inicio, std::int32_t longitud, std::u16string_view texto) {
    const auto total = static_cast<std::int32_t>(texto_.size());
    const std::int32_t desde = std::clamp(inicio, 0, total);
    const std::int32_t cuantos = std::clamp(longitud, 0, total - desde);
    if (texto.empty() && cuantos == 0) return;
    const std::u16string nuevo = conSaltosDobles(texto, desde, desde + cuantos);
    CambioDeTexto cambio = cambioEn(desde, cuantos, nuevo);
    cambia(cambio, nuevo, {0, estiloEn(desde, cuantos).letra});
    inicio_ = desde + cambio.puestos;
    longitud_ = 0;
    avisaDelCambio(std::move(cambio));
}

void CajaTexto::edita(std::int32_t inicio, std::int32_t quitados, std::u16string_view texto,
                      std::int32_t inicioSeleccion, std::int32_t longitudSeleccion) {
    CambioDeTexto cambio = cambioEn(inicio, quitados, texto);
    cambia(cambio, texto, estiloEn(inicio, quitados));
    inicio_ = inicioSeleccion;
    longitud_ = longitudSeleccion;
    avisaDelCambio(std::move(cambio));
}

void CajaTexto::sustituye(std::int32_t inicio, std::int32_t quitados, std::u16string_view nuevo,
                          const Seleccion& despues, std::span<const TramoDeColor> colores) {
    CambioDeTexto cambio = cambioEn(inicio, quitados, nuevo);
    cambia(cambio, nuevo, {});
    for (const TramoDeColor& tramo : colores) {
        const auto desde = estilos_.begin() + tramo.inicio;
        std::for_each(desde, desde + tramo.longitud, [&](Estilo& e) { e.color = tramo.color; });
    }
    inicio_ = despues.inicio;
    longitud_ = despues.longitud;
    avisaDelCambio(std::move(cambio));
}

CambioDeTexto CajaTexto::cambioEn(std::int32_t inicio, std::int32_t quitados,
                                  std::u16string_view nuevo) const {
    return {inicio,
            quitados,
            a32(nuevo.size()),
            false,
            texto_.substr(static_cast<std::size_t>(inicio), static_cast<std::size_t>(quitados)),
            {inicio_, longitud_}};
}

void CajaTexto::cambia(const CambioDeTexto& s, std::u16string_view nuevo, const Estilo& estilo) {
    texto_.reserve(static_cast<std::size_t>(a32(texto_.size() + nuevo.size()))); // below, nothing fails
    const auto comunes = std::min(s.puestos, s.quitados);
    const auto desde = estilos_.begin() + s.inicio;
    std::fill(desde, desde + comunes, estilo);
    if (s.puestos > comunes) {
        estilos_.insert(desde + comunes, static_cast<std::size_t>(s.puestos - comunes), estilo);
    } else {
        estilos_.erase(desde + comunes, desde + s.quitados);
    }
    texto_.replace(static_cast<std::size_t>(s.inicio), static_cast<std::size_t>(s.quitados), nuevo);
    modificado_ = true;
}

void CajaTexto::avisaDelCambio(CambioDeTexto&& cambio) {
    lineasAlDia_ = false;
    estiloDeEscritura_.reset();
    cambio.otraSeleccion = cambio.seleccionAntes != Seleccion{inicio_, longitud_};
    alSustituir(cambio);
    if (eventos.cambio) eventos.cambio(cambio);
}

/// Of a range its first character's; of none, that of what is written there.
CajaTexto::Estilo CajaTexto::estiloEn(std::int32_t inicio, std::int32_t longitud) const {
    if (longitud > 0) return estilos_[static_cast<std::size_t>(inicio)];
    if (estiloDeEscritura_ && longitud_ == 0 && inicio == inicio_) return *estiloDeEscritura_;
    if (estilos_.empty()) return {};
    return estilos_[static_cast<std::size_t>(std::max(inicio - 1, 0))];
}

template <typename Cambio>
void CajaTexto::cambiaEstilo(Cambio cambio) {
    if (longitud_ == 0) {
        Estilo estilo = estiloSeleccion();
        cambio(estilo);
        estiloDeEscritura_ = estilo;
        return alSeleccionar();
    }
    std::for_each(estilos_.begin() + inicio_, estilos_.begin() + inicio_ + longitud_, cambio);
    alPintar(inicio_, longitud_);
}

void CajaTexto::ponColorSeleccion(std::int32_t color) {
    cambiaEstilo([color](Estilo& e) { e.color = color; });
}

void CajaTexto::pinta(std::int32_t inicio, std::int32_t longitud, std::int32_t color) {
    estiloDeEscritura_.reset();
    const auto esOtro = [color](const Estilo& e) { return e.color != color; };
    const auto fin = estilos_.begin() + inicio + longitud;
    const auto desde = std::find_if(fin - longitud, fin, esOtro);
    if (desde == fin) return;
    const auto hasta = std::find_if(std::make_reverse_iterator(fin), estilos_.rend(), esOtro).base();
    std::for_each(desde, hasta, [color](Estilo& e) { e.color = color; });
    alPintar(static_cast<std::int32_t>(desde - estilos_.begin()), static_cast<std::int32_t>(hasta - desde));
}

const std::u16string& CajaTexto::nombreFuenteSeleccion() const {
    const std::int32_t numero = estiloSeleccion().letra;
    return numero == 0 ? fuente_.nombre : letra(numero).nombre;
}

std::int32_t CajaTexto::tamanoFuenteSeleccion() const {
    const std::int32_t numero = estiloSeleccion().letra;
    return numero == 0 ? fuente_.tamano : letra(numero).tamano;
}

std::int32_t CajaTexto::numeroDeLetra(const Letra& letra) {
    const auto igual = std::find(letras_.begin(), letras_.end(), letra);
    const auto numero = static_cast<std::int32_t>(igual - letras_.begin()) + 1;
    if (igual == letras_.end()) letras_.push_back(letra);
    return numero;
}

std::int32_t CajaTexto::conNombre(std::int32_t numero, std::u16string_view nombre) {
    return numeroDeLetra({std::u16string(nombre), numero == 0 ? fuente_.tamano : letra(numero).tamano});
}

std::int32_t CajaTexto::conTamano(std::int32_t numero, std::int32_t tamano) {
    return numeroDeLetra({numero == 0 ? fuente_.nombre : letra(numero).nombre, tamano});
}

void CajaTexto::ponNombreFuenteSeleccion(std::u16string_view nombre) {
    cambiaEstilo([&](Estilo& e) { e.letra = conNombre(e.letra, nombre); });
}

void CajaTexto::ponTamanoFuenteSeleccion(std::int32_t tamano) {
    cambiaEstilo([&](Estilo& e) { e.letra = conTamano(e.letra, tamano); });
}

/// A font of s points is about 1.2 s points high.
std::int32_t CajaTexto::altoDeLinea() const {
    constexpr std::int64_t twipsPorPunto = 20;
    return a32(std::int64_t{fuente_.tamano} * twipsPorPunto * 12 / 10 / 10000);
}

std::vector<TramoDeColor> CajaTexto::colores() const {
    std::vector<TramoDeColor> tramos;
    for (auto desde = estilos_.begin(); desde != estilos_.end();) {
        const auto hasta =
            std::find_if(desde, estilos_.end(), [&](const Estilo& e) { return e.color != desde->color; });
        tramos.push_back({static_cast<std::int32_t>(desde - estilos_.begin()),
                          static_cast<std::int32_t>(hasta - desde), desde->color});
        desde = hasta;
    }
    return tramos;
}

// --- Search ---

namespace {

bool esPalabraCompleta(std::u16string_view texto, std::size_t inicio, std::size_t longitud) {
    const std::size_t fin = inicio + longitud;
    return (inicio == 0 || !esDePalabra(texto[inicio - 1])) &&
           (fin == texto.size() || !esDePalabra(texto[fin]));
}

std::u16string plegado(std::u16string_view texto) {
    std::u16string forma(texto);
    std::ranges::transform(texto, forma.begin(), pliega);
    return forma;
}

/// First occurrence in the text's [desde, hasta), `npos` when there is none.
std::size_t primera(std::u16string_view texto, std::u16string_view cadena, std::size_t desde,
                    std::size_t hasta, bool palabraCompleta) {
    const std::u16string_view tramo = texto.substr(0, hasta);
    for (auto p = tramo.find(cadena, desde); p != tramo.npos; p = tramo.find(cadena, p + 1)) {
        if (!palabraCompleta || esPalabraCompleta(texto, p, cadena.size())) return p;
    }
    return tramo.npos;
}

} // namespace

std::int32_t CajaTexto::busca(std::u16string_view cadena, std::int32_t desde, std::int32_t hasta,
                              std::int32_t opciones) {
    const auto total = static_cast<std::int32_t>(texto().size());
    const auto inicio = static_cast<std::size_t>(std::clamp(desde, 0, total));
    const auto fin = static_cast<std::size_t>(std::clamp(hasta, 0, total));
    if (cadena.empty() || fin < inicio) return -1;
    const bool palabra = (opciones & opcionBusqueda::palabraCompleta) != 0;
    const bool exacta = (opciones & opcionBusqueda::distingueMayusculas) != 0;
    const std::size_t posicion = exacta ? primera(texto(), cadena, inicio, fin, palabra)
                                        : primera(plegado(texto()), plegado(cadena), inicio, fin, palabra);
    if (posicion == std::u16string_view::npos) return -1;
    const auto encontrada = static_cast<std::int32_t>(posicion);
    if ((opciones & opcionBusqueda::sinResaltar) == 0) {
        selecciona(encontrada, static_cast<std::int32_t>(cadena.size()));
    }
    return encontrada;
}

} // namespace norvik::inline v0_2
