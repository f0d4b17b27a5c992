// Every definition finds its own matches; the order in which they are searched does not matter, so that as
// many as possible share a pass. Plain words go over the text together. So do the definitions whose attempts
// are immediate: the character at a position tells by a mask which of them can begin there, and each of these
// is tried unless it is known to find nothing yet, as inside its last match. The others, which may run away,
// are searched one by one.
#include "norvik/lexer/buscadorTokens.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/lexer/expresionRegular.hpp"
#include "norvik/platform/patronClase.hpp"

#include <algorithm>
#include <bit>

namespace norvik {

namespace {

[[noreturn]] void desboca(const expresionRegular& definicion) {
    throw Desbordamiento(u"La búsqueda de la expresión regular '" + definicion.nomER +
                         u"' se ha desbocado: su patrón necesita demasiado tiempo o memoria con este "
                         u"texto.");
}

// The searches of a group under way.
class Pasada {
public:
    Pasada(std::u16string_view texto, const Presupuesto& presupuesto, MapaTokens& mapa)
        : texto_(texto), presupuesto_(presupuesto), mapa_(mapa) {}

    void aniade(const expresionRegular& definicion, std::int32_t numero) {
        busquedas_.push_back({definicion.expReg->empieza(texto_, presupuesto_), &definicion, numero});
    }
    void prueba(std::uint64_t cuales, std::size_t posicion) {
        for (; cuales != 0; cuales &= cuales - 1) {
            EnCurso& una = busquedas_[static_cast<std::size_t>(std::countr_zero(cuales))];
            if (una.busqueda.libre() <= posicion) prueba(una, posicion);
        }
    }

private:
    struct EnCurso {
        Emparejador::Busqueda busqueda;
        const expresionRegular* definicion;
        std::int32_t numero;
    };

    void prueba(EnCurso& una, std::size_t posicion) {
        try {
            if (const auto longitud = una.busqueda.intenta(posicion))
                mapa_.guarda(static_cast<std::int32_t>(posicion), {una.numero, *longitud});
        } catch (const BusquedaDesbocada&) {
            desboca(*una.definicion);
        }
    }

    std::u16string_view texto_;
    const Presupuesto& presupuesto_;
    MapaTokens& mapa_;
    std::vector<EnCurso> busquedas_;
};

} // namespace

BuscadorTokens::BuscadorTokens(const std::vector<const expresionRegular*>& definiciones) {
    for (std::size_t i = 0; i < definiciones.size(); ++i) {
        const Definicion definicion{definiciones[i], static_cast<std::int32_t>(i)};
        const Emparejador& emparejador = *definiciones[i]->expReg;
        if (const auto& palabra = emparejador.palabra(); palabra && !palabra->empty())
            palabras_.aniade(*palabra, emparejador.ignoraMayusculas(), definicion.numero);
        else if (emparejador.esInmediato())
            reune(definicion);
        else
            solas_.push_back(definicion);
    }
}

void BuscadorTokens::reune(const Definicion& definicion) {
    if (grupos_.empty() || grupos_.back().definiciones.size() == Grupo::maximo) grupos_.emplace_back();
    Grupo& grupo = grupos_.back();
    const std::uint64_t bit = std::uint64_t{1} << grupo.definiciones.size();
    grupo.definiciones.push_back(definicion);
    const ClaseUnidades* const primeras = definicion.expresion->expReg->primeras();
    for (char16_t unidad = 0; unidad < grupo.empiezan.size(); ++unidad)
        if (primeras == nullptr || primeras->contiene(unidad)) grupo.empiezan[unidad] |= bit;
    const bool altas = primeras == nullptr || (!primeras->rangos().empty() &&
                                               primeras->rangos().back().hasta >= grupo.empiezan.size());
    if (altas) grupo.empiezanAltas |= bit;
    if (primeras == nullptr) grupo.vacias |= bit;
}

void BuscadorTokens::busca(std::u16string_view texto, MapaTokens& mapa) {
    const Presupuesto presupuesto;
    palabras_.busca(texto, mapa);
    for (const Grupo& grupo : grupos_) busca(grupo, texto, presupuesto, mapa);
    for (const Definicion& definicion : solas_) busca(definicion, texto, presupuesto, mapa);
}

void BuscadorTokens::busca(const Definicion& definicion, std::u16string_view texto,
                           const Presupuesto& presupuesto, MapaTokens& mapa) {
    try {
        for (const auto [inicio, longitud] : definicion.expresion->expReg->ejecuta(texto, presupuesto))
            mapa.guarda(inicio, {definicion.numero, longitud});
    } catch (const BusquedaDesbocada&) {
        desboca(*definicion.expresion);
    }
}

void BuscadorTokens::busca(const Grupo& grupo, std::u16string_view texto, const Presupuesto& presupuesto,
                           MapaTokens& mapa) {
    Pasada pasada(texto, presupuesto, mapa);
    for (const Definicion& definicion : grupo.definiciones)
        pasada.aniade(*definicion.expresion, definicion.numero);
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char16_t unidad = texto[i];
        pasada.prueba(unidad < grupo.empiezan.size() ? grupo.empiezan[unidad] : grupo.empiezanAltas, i);
    }
    pasada.prueba(grupo.vacias, texto.size());
}

} // namespace norvik
