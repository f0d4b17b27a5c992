// SPDX-License-Identifier: MIT

#include "norvik/control/buscador.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::u16string_view todo = direccionesBusqueda[0];
constexpr std::u16string_view arriba = direccionesBusqueda[1];
constexpr std::u16string_view abajo = direccionesBusqueda[2];

std::u16string patronDe(const Peticion& peticion) {
    return peticion.soloPalabrasCompletas ? u"\\b" + peticion.texto + u"\\b" : peticion.texto;
}

/// A text that passes the limits of colouring is edited all the same: that it is not coloured is no failure
/// of the search.
template <typename Paso>
void aunqueNoSeColoree(Paso paso) {
    try {
        paso();
    } catch (const Desbordamiento&) { // raised when all was done
        return;
    }
}

/// The part of a text from the first match to the end of the last, with every match replaced.
std::u16string tramoReemplazado(std::u16string_view texto, const std::vector<Coincidencia>& halladas,
                                std::u16string_view con) {
    std::u16string tramo;
    auto desde = static_cast<std::size_t>(halladas.front().indice);
    for (const Coincidencia& c : halladas) {
        const auto indice = static_cast<std::size_t>(c.indice);
        tramo.append(texto.substr(desde, indice - desde)).append(con);
        desde = indice + static_cast<std::size_t>(c.longitud);
    }
    return tramo;
}

} // namespace

void Buscador::abre() {
    destino_.descubreSeleccion();
    estado_.dialogoAbierto = true;
}

void Buscador::cierra() {
    destino_.devuelveSeleccion();
    estado_.dialogoAbierto = false;
}

/// Every match in the whole text; nothing when there is nothing to search with or in, or whoever waited for
/// it gave up.
std::optional<Buscador::Coincidencias> Buscador::coincidencias(const Peticion& peticion) const {
    const CajaTexto* const caja = destino_.textoDestino;
    if (peticion.texto.empty() || caja == nullptr) return std::nullopt;
    const auto emparejador = Emparejador::compila(patronDe(peticion), !peticion.coincidirMayusculas);
    if (!emparejador) {
        avisa(u"El texto de búsqueda no es una expresión regular correcta", {}, Icono::Exclamacion);
        return std::nullopt;
    }
    const std::u16string texto(caja->texto());
    Coincidencias halladas;
    const auto busca = [&](const std::stop_token& parada) {
        halladas = emparejador->ejecuta(texto, Presupuesto(Presupuesto::plazoComun, parada));
    };
    try {
        trabaja ? trabaja(busca) : busca({});
    } catch (const OperacionCancelada&) {
        return std::nullopt;
    } catch (const BusquedaDesbocada&) {
        avisa(u"La búsqueda se ha interrumpido: la expresión regular necesita demasiado tiempo", {},
              Icono::Exclamacion);
        return std::nullopt;
    }
    const bool esElMismo = destino_.textoDestino == caja && caja->texto() == texto;
    return esElMismo ? std::optional(std::move(halladas)) : std::nullopt;
}

void Buscador::empieza(const Peticion& peticion) {
    estado_.textoBuscado = peticion.texto;
    estado_.soloPalabrasCompletas = peticion.soloPalabrasCompletas;
    estado_.direccionBusqueda = peticion.direccion == todo ? std::u16string(abajo) : peticion.direccion;
}

bool Buscador::buscaSiguiente(const Peticion& peticion) {
    const auto halladas = coincidencias(peticion);
    if (!halladas) return false;
    empieza(peticion);
    const std::int32_t cursor = destino_.textoDestino->inicioSeleccion();
    const bool hallada = selecciona(*halladas, cursor, cursor);
    recuerda();
    return hallada;
}

/// Selects, by the direction, the first match after a position or the last one before another.
bool Buscador::selecciona(const Coincidencias& halladas, std::int32_t despuesDe, std::int32_t antesDe) const {
    if (halladas.empty()) {
        avisa(u"No se encontró el texto de busqueda");
        return false;
    }
    const Coincidencia* tomada = nullptr;
    if (estado_.direccionBusqueda == abajo) {
        const auto i = std::find_if(halladas.begin(), halladas.end(),
                                    [&](const Coincidencia& c) { return c.indice > despuesDe; });
        if (i != halladas.end()) tomada = &*i;
    } else if (estado_.direccionBusqueda == arriba) {
        const auto i = std::find_if(halladas.rbegin(), halladas.rend(),
                                    [&](const Coincidencia& c) { return c.indice < antesDe; });
        if (i != halladas.rend()) tomada = &*i;
    }
    if (tomada != nullptr) {
        aunqueNoSeColoree([&] { destino_.textoDestino->selecciona(tomada->indice, tomada->longitud); });
    } else {
        avisa(u"Se ha buscado en la región especificada", u"Busqueda completada");
    }
    return tomada != nullptr;
}

void Buscador::recuerda() {
    estado_.ultimaBusqueda = estado_.textoBuscado;
    auto& historial = estado_.historialBusquedas;
    if (std::find(historial.begin(), historial.end(), estado_.textoBuscado) != historial.end()) return;
    historial.push_back(estado_.textoBuscado);
    if (destino_.textoDestino != nullptr) destino_.textoDestino->enfoca();
}

void Buscador::reemplaza(const Peticion& peticion, std::u16string_view con) {
    const auto halladas = coincidencias(peticion);
    if (!halladas) return;
    const CajaTexto& caja = *destino_.textoDestino;
    const Coincidencia elegida{caja.inicioSeleccion(), caja.longitudSeleccion()};
    const bool esHallada = std::find(halladas->begin(), halladas->end(), elegida) != halladas->end();
    if (elegida.longitud == 0 || !esHallada) {
        buscaSiguiente(peticion);
        return;
    }
    aunqueNoSeColoree([&] { destino_.sustituye(elegida.indice, elegida.longitud, con); });
    const auto quedan = coincidencias(peticion);
    if (!quedan) return;
    empieza(peticion);
    selecciona(*quedan, caja.inicioSeleccion() - 1, elegida.indice); // one may follow at once
    recuerda();
}

void Buscador::reemplazaTodo(const Peticion& peticion, std::u16string_view con) {
    const auto halladas = coincidencias(peticion);
    if (!halladas) return;
    if (halladas->empty()) return avisa(u"No se encontró el texto de busqueda");
    const CajaTexto& caja = *destino_.textoDestino;
    const std::int32_t inicio = halladas->front().indice;
    const std::int32_t fin = halladas->back().indice + halladas->back().longitud;
    const std::u16string nuevo = tramoReemplazado(caja.texto(), *halladas, con);
    aunqueNoSeColoree([&] { destino_.sustituye(inicio, fin - inicio, nuevo); });
    const bool uno = halladas->size() == 1;
    const std::u16string cuantos = aTexto(static_cast<std::int64_t>(halladas->size()));
    avisa(uno ? u"Se ha hecho 1 reemplazo" : u"Se han hecho " + cuantos + u" reemplazos",
          u"Reemplazo completado");
}

void Buscador::avisa(std::u16string_view texto, std::u16string_view titulo, Icono icono) const {
    if (destino_.sistema == nullptr) return;
    const bool cede = estado_.dialogoAbierto && ponEncima;
    if (cede) ponEncima(false);
    destino_.sistema->muestraMensaje(
        {std::u16string(texto), std::u16string(titulo), icono, Botones::Aceptar});
    if (cede) ponEncima(true);
}

} // namespace norvik::inline v0_2
