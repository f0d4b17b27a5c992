// Every definition finds its own matches; the order in which they are searched does not matter, so that as
// many as possible share a pass. Plain words go over the text together. So do the definitions whose attempts
// are immediate: the character at a position tells by a mask which of them can begin there, and each of these
// is tried unless it is known to find nothing yet, as inside its last match. The others, which may run away,
// are searched one by one.
#include "norvik/lexer/buscadorTokens.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/lexer/expresionRegular.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace norvik {

namespace {

[[noreturn]] void desboca(const expresionRegular& definicion) {
    throw Desbordamiento(u"La búsqueda de la expresión regular '" + definicion.nomER +
                         u"' se ha desbocado: su patrón necesita demasiado tiempo o memoria con este "
                         u"texto.");
}

// The searches of a group under way. A definition is busy as long as it is known to find nothing.
class Pasada {
public:
    Pasada(std::u16string_view texto, const Presupuesto& presupuesto, AutomataConjunto& conjunto,
           MapaTokens& mapa)
        : texto_(texto), presupuesto_(presupuesto), conjunto_(conjunto), mapa_(mapa) {}

    void aniade(const expresionRegular& definicion, std::int32_t numero) {
        busquedas_.push_back({definicion.expReg->empieza(texto_, presupuesto_), &definicion, numero});
    }
    // Positions come in ascending order.
    void prueba(std::uint64_t cuales, std::size_t posicion) {
        if (posicion >= proximaLibre_) libera(posicion);
        cuales &= ~ocupadas_;
        const bool sonVarias = (cuales & (cuales - 1)) != 0;
        if (sonVarias && posicion < texto_.size()) cuales = pruebaJuntas(cuales, posicion);
        paraCadaBit(cuales, [&](std::size_t lugar) { pruebaSola(lugar, posicion); });
    }

private:
    struct EnCurso {
        Emparejador::Busqueda busqueda;
        const expresionRegular* definicion;
        std::int32_t numero;
    };
    static constexpr auto nunca = std::numeric_limits<std::size_t>::max();

    // Returns those that are still to be tried alone.
    std::uint64_t pruebaJuntas(std::uint64_t cuales, std::size_t posicion) {
        conjunto_.coinciden(texto_, posicion, cuales, intentos_);
        const std::uint64_t decididas = cuales & ~intentos_.indecisos;
        paraCadaBit(intentos_.coinciden,
                    [&](std::size_t lugar) { halla(lugar, posicion, intentos_.fin[lugar]); });
        paraCadaBit(decididas, [&](std::size_t lugar) { ocupa(lugar, posicion, intentos_.fin[lugar]); });
        return intentos_.indecisos;
    }
    void pruebaSola(std::size_t lugar, std::size_t posicion) {
        EnCurso& una = busquedas_[lugar];
        try {
            if (const auto longitud = una.busqueda.intenta(posicion))
                halla(lugar, posicion, posicion + static_cast<std::size_t>(*longitud));
        } catch (const BusquedaDesbocada&) {
            desboca(*una.definicion);
        }
        ocupa(lugar, posicion, una.busqueda.libre());
    }
    void halla(std::size_t lugar, std::size_t posicion, std::size_t fin) {
        mapa_.guarda(static_cast<std::int32_t>(posicion),
                     {busquedas_[lugar].numero, static_cast<std::int32_t>(fin - posicion)});
    }

    void ocupa(std::size_t lugar, std::size_t posicion, std::size_t libre) {
        if (libre <= posicion + 1) return;
        libres_[lugar] = libre;
        ocupadas_ |= std::uint64_t{1} << lugar;
        proximaLibre_ = std::min(proximaLibre_, libre);
    }
    void libera(std::size_t posicion) {
        proximaLibre_ = nunca;
        paraCadaBit(ocupadas_, [&](std::size_t lugar) {
            if (libres_[lugar] <= posicion)
                ocupadas_ &= ~(std::uint64_t{1} << lugar);
            else
                proximaLibre_ = std::min(proximaLibre_, libres_[lugar]);
        });
    }

    std::u16string_view texto_;
    const Presupuesto& presupuesto_;
    AutomataConjunto& conjunto_;
    MapaTokens& mapa_;
    std::vector<EnCurso> busquedas_;
    AutomataConjunto::Intentos intentos_;
    std::uint64_t ocupadas_ = 0;
    std::size_t proximaLibre_ = nunca; // of the busy ones
    std::array<std::size_t, AutomataConjunto::maximo> libres_{};
};

} // namespace

BuscadorTokens::BuscadorTokens(const std::vector<const expresionRegular*>& definiciones) {
    for (std::size_t i = 0; i < definiciones.size(); ++i) {
        const Definicion definicion{definiciones[i], static_cast<std::int32_t>(i)};
        const Emparejador& emparejador = *definiciones[i]->expReg;
        if (const auto& palabra = emparejador.palabra(); palabra && !palabra->empty())
            palabras_.aniade(*palabra, emparejador.ignoraMayusculas(), definicion.numero);
        else if (emparejador.automata() != nullptr)
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
    for (std::size_t unidad = 0; unidad < grupo.empiezan.size(); ++unidad)
        if (primeras == nullptr || primeras->contiene(static_cast<char16_t>(unidad)))
            grupo.empiezan[unidad] |= bit;
    const bool altas = primeras == nullptr || (!primeras->rangos().empty() &&
                                               primeras->rangos().back().hasta >= grupo.empiezan.size());
    if (altas) grupo.empiezanAltas |= bit;
    if (primeras == nullptr) grupo.vacias |= bit;
}

void BuscadorTokens::busca(std::u16string_view texto, MapaTokens& mapa) {
    const Presupuesto presupuesto;
    palabras_.busca(texto, mapa);
    for (Grupo& grupo : grupos_) busca(grupo, texto, presupuesto, mapa);
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

void BuscadorTokens::busca(Grupo& grupo, std::u16string_view texto, const Presupuesto& presupuesto,
                           MapaTokens& mapa) {
    if (!grupo.conjunto) {
        std::vector<Automata*> automatas;
        for (const Definicion& definicion : grupo.definiciones)
            automatas.push_back(definicion.expresion->expReg->automata());
        grupo.conjunto.emplace(std::move(automatas));
    }
    Pasada pasada(texto, presupuesto, *grupo.conjunto, mapa);
    for (const Definicion& definicion : grupo.definiciones)
        pasada.aniade(*definicion.expresion, definicion.numero);
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char16_t unidad = texto[i];
        pasada.prueba(unidad < grupo.empiezan.size() ? grupo.empiezan[unidad] : grupo.empiezanAltas, i);
    }
    pasada.prueba(grupo.vacias, texto.size());
}

} // namespace norvik
