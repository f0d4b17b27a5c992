// SPDX-License-Identifier: MIT

#include "correspondencias.hpp"

#include "norvik/grammar/tablaLR.hpp"

#include <algorithm>

namespace norvik::taller {

namespace {

bool contiene(const Rango& fuera, const Rango& dentro) {
    return fuera.inicio.desplazamiento <= dentro.inicio.desplazamiento &&
           dentro.fin.desplazamiento <= fuera.fin.desplazamiento;
}

const FuenteEspecificacion::Regla* fuenteDe(const Estudio& estudio, std::int16_t regla) {
    const auto& reglas = estudio.deLenguaje->fuente.reglas;
    const auto i = static_cast<std::size_t>(regla) - 1;
    return regla > 0 && i < reglas.size() ? &reglas[i] : nullptr;
}

std::optional<Rango> lugarDeRegla(const Estudio& estudio, std::int16_t regla) {
    const auto* const suya = fuenteDe(estudio, regla);
    if (suya == nullptr) return std::nullopt;
    return suya->cuerpo.empty() ? suya->cabeza.lugar : suya->lugar;
}

/// Where it is defined: a token's definition, the first rule of a variable.
std::optional<Rango> lugarDeSimbolo(const Estudio& estudio, std::u16string_view nombre) {
    const FuenteEspecificacion& fuente = estudio.deLenguaje->fuente;
    for (const auto& definicion : fuente.definiciones)
        if (definicion.esToken && definicion.nombre == nombre) return definicion.lugarNombre;
    for (const auto& regla : fuente.reglas)
        if (regla.cabeza.nombre == nombre) return regla.cabeza.lugar;
    return std::nullopt;
}

/// The rule whose body has a place; the first of a head's, where the head stands.
std::optional<std::int16_t> reglaEn(const Estudio& estudio, const Rango& rango) {
    const auto& reglas = estudio.deLenguaje->fuente.reglas;
    const auto es = [&](const auto& r) {
        return contiene(r.lugar, rango) || contiene(r.cabeza.lugar, rango);
    };
    const auto sitio = std::ranges::find_if(reglas, es);
    if (sitio == reglas.end()) return std::nullopt;
    return static_cast<std::int16_t>(sitio - reglas.begin() + 1);
}

std::optional<std::u16string> simboloEn(const Estudio& estudio, const Rango& rango) {
    const FuenteEspecificacion& fuente = estudio.deLenguaje->fuente;
    for (const auto& definicion : fuente.definiciones)
        if (contiene(definicion.lugarNombre, rango)) return definicion.nombre;
    for (const auto& regla : fuente.reglas) {
        if (contiene(regla.cabeza.lugar, rango)) return regla.cabeza.nombre;
        for (const auto& simbolo : regla.cuerpo)
            if (contiene(simbolo.lugar, rango)) return simbolo.nombre;
    }
    return std::nullopt;
}

/// The child that has a range; of two that meet at a place, the second.
std::optional<Nodo> hijoCon(Nodo nodo, const Rango& rango) {
    std::optional<Nodo> suyo;
    for (const Nodo hijo : nodo.hijos()) {
        const Rango otro = hijo.rango();
        if (otro.inicio != otro.fin && contiene(otro, rango)) suyo = hijo;
        if (otro.inicio.desplazamiento > rango.inicio.desplazamiento) break;
    }
    return suyo;
}

std::optional<std::size_t> nodoCon(const ArbolAnalisis& arbol, const Rango& rango) {
    if (arbol.esVacio()) return std::nullopt;
    Nodo nodo = arbol.raiz();
    for (auto hijo = hijoCon(nodo, rango); hijo; hijo = hijoCon(nodo, rango)) nodo = *hijo;
    return nodo.indice();
}

std::optional<Nodo> nodoElegido(const Estudio& estudio, const Eleccion& eleccion) {
    const auto* const nodo = std::get_if<DeNodo>(&eleccion);
    if (nodo == nullptr || nodo->nodo >= estudio.arbol().numNodos()) return std::nullopt;
    return estudio.arbol()[nodo->nodo];
}

std::optional<Rango> rangoDelTexto(const Eleccion& eleccion) {
    if (const auto* const lugar = std::get_if<EnTexto>(&eleccion)) return lugar->rango;
    if (const auto* const paso = std::get_if<DePaso>(&eleccion)) return paso->rango;
    return std::nullopt;
}

std::optional<std::int16_t> reglaDeCelda(const Estudio& estudio, const DeCelda& celda) {
    if (estudio.gramatica() == nullptr) return std::nullopt;
    const std::int16_t entrada = estudio.gramatica()->tabla.entrada(celda.estado, celda.codigo);
    return entrada < 0 ? std::optional(static_cast<std::int16_t>(-entrada)) : std::nullopt;
}

/// Behind the point of an item; nothing at the end of its rule.
std::optional<std::u16string> simboloTras(const GramaticaLR& g, Item item) {
    const Cuerpo cuerpo = g.partidas.cuerpo(item.regla);
    const auto lugar = static_cast<std::size_t>(item.punto);
    if (lugar >= cuerpo.size() || cuerpo[lugar] == ReglasPartidas::vacio) return std::nullopt;
    return std::u16string(g.partidas.texto(cuerpo[lugar]));
}

} // namespace

std::optional<DeCelda> celdaDe(const Eleccion& eleccion) {
    if (const auto* const celda = std::get_if<DeCelda>(&eleccion)) return *celda;
    const auto* const paso = std::get_if<DePaso>(&eleccion);
    return paso != nullptr && paso->codigo ? std::optional(DeCelda{paso->estado, *paso->codigo})
                                           : std::nullopt;
}

std::optional<std::int16_t> reglaDe(const Estudio& estudio, const Eleccion& eleccion) {
    if (const auto* const regla = std::get_if<DeRegla>(&eleccion)) return regla->regla;
    if (const auto* const item = std::get_if<DeItem>(&eleccion)) return item->item.regla;
    if (const auto celda = celdaDe(eleccion)) return reglaDeCelda(estudio, *celda);
    if (const auto* const lugar = std::get_if<EnEspecificacion>(&eleccion))
        return reglaEn(estudio, lugar->rango);
    if (const auto nodo = nodoElegido(estudio, eleccion); nodo && !nodo->esToken()) return nodo->regla();
    return std::nullopt;
}

std::optional<std::u16string> simboloDe(const Estudio& estudio, const Eleccion& eleccion) {
    if (const auto* const simbolo = std::get_if<DeSimbolo>(&eleccion)) return simbolo->nombre;
    if (const auto* const lugar = std::get_if<EnEspecificacion>(&eleccion))
        return simboloEn(estudio, lugar->rango);
    if (const auto nodo = nodoElegido(estudio, eleccion)) return std::u16string(nodo->nombre());
    const GramaticaLR* const g = estudio.gramatica();
    if (g == nullptr) return std::nullopt;
    if (const auto celda = celdaDe(eleccion))
        return std::u16string(g->tabla.simbolo(static_cast<std::int16_t>(celda->codigo + 1)));
    if (const auto regla = reglaDe(estudio, eleccion)) return g->reglas.en(*regla).cabeza;
    return std::nullopt;
}

std::optional<std::int16_t> estadoDe(const Eleccion& eleccion) {
    if (const auto* const estado = std::get_if<DeEstado>(&eleccion)) return estado->estado;
    if (const auto* const item = std::get_if<DeItem>(&eleccion)) return item->estado;
    if (const auto* const paso = std::get_if<DePaso>(&eleccion)) return paso->estado;
    if (const auto celda = celdaDe(eleccion)) return celda->estado;
    return std::nullopt;
}

std::optional<std::size_t> nodoDe(const Estudio& estudio, const Eleccion& eleccion) {
    if (const auto rango = rangoDelTexto(eleccion)) return nodoCon(estudio.arbol(), *rango);
    if (const auto nodo = nodoElegido(estudio, eleccion)) return nodo->indice();
    return std::nullopt;
}

NodosDeRegla nodosDe(const Estudio& estudio, std::int16_t regla) {
    NodosDeRegla suyos;
    const ArbolAnalisis& arbol = estudio.arbol();
    for (std::size_t i = 0; i < (arbol.esVacio() ? 0 : arbol.numNodos()); ++i) {
        if (arbol[i].regla() != regla) continue;
        if (suyos.cuantos++ == 0) suyos.primero = i;
    }
    return suyos;
}

std::optional<std::int16_t> columnaDe(const Estudio& estudio, const Eleccion& eleccion) {
    if (const auto celda = celdaDe(eleccion)) return celda->codigo;
    const GramaticaLR* const g = estudio.gramatica();
    if (g == nullptr) return std::nullopt;
    std::optional<std::u16string> simbolo;
    if (const auto* const item = std::get_if<DeItem>(&eleccion))
        simbolo = simboloTras(*g, item->item);
    else
        simbolo = simboloDe(estudio, eleccion);
    const std::int16_t codigo = simbolo ? g->tabla.codigo(*simbolo) : std::int16_t{-1};
    return codigo >= 0 ? std::optional(codigo) : std::nullopt;
}

std::optional<Rango> lugarEnEspecificacion(const Estudio& estudio, const Eleccion& eleccion) {
    if (const auto* const lugar = std::get_if<EnEspecificacion>(&eleccion)) return lugar->rango;
    if (const auto regla = reglaDe(estudio, eleccion)) return lugarDeRegla(estudio, *regla);
    if (const auto simbolo = simboloDe(estudio, eleccion)) return lugarDeSimbolo(estudio, *simbolo);
    return std::nullopt;
}

std::optional<Rango> lugarEnTexto(const Estudio& estudio, const Eleccion& eleccion) {
    if (const auto rango = rangoDelTexto(eleccion)) return rango;
    if (const auto nodo = nodoElegido(estudio, eleccion)) return nodo->rango();
    return std::nullopt;
}

} // namespace norvik::taller
