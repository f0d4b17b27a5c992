// SPDX-License-Identifier: MIT

// Texts of a pattern, by walks at random along the list of its pieces: each alternative as likely as the
// others, few turns, of a class its ends and its printable units more often than others. Look-aheads and
// boundaries are passed over, and so a walk only proposes: what the pattern does not take from end to end is
// dropped. The walk keeps its open groups in a list.
#include "norvik/checks/muestrasPatron.hpp"

#include "norvik/pattern/emparejador.hpp"
#include "norvik/pattern/patron.hpp"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <random>

namespace norvik::inline v0_2 {

namespace {

using Azar = std::minstd_rand; // the same on every machine

constexpr std::size_t largoMaximo = 200;

std::uint32_t menorQue(Azar& azar, std::size_t tope) {
    return static_cast<std::uint32_t>(azar() % tope);
}

class Paseo {
public:
    Paseo(const Patron& patron, const std::vector<ClaseUnidades>& clases, Azar& azar)
        : patron_(patron), clases_(clases), azar_(azar), capturas_(patron.capturas + 1) {}

    std::u16string texto() {
        std::uint32_t i = 0;
        while (i < patron_.piezas.size() && texto_.size() < largoMaximo) i = pasa(i);
        return std::move(texto_);
    }

private:
    struct Grupo {
        std::uint32_t abre;
        std::uint32_t quedan; // turns, this one included
        std::size_t inicio;   // of this turn in the text
    };

    // Takes a piece and gives the next one.
    std::uint32_t pasa(std::uint32_t i) {
        const Pieza& pieza = patron_.piezas[i];
        switch (pieza.tipo) {
        case TipoPieza::Unidad:
            texto_.append(vueltas(pieza.repeticion), pieza.unidad);
            return i + 1;
        case TipoPieza::Clase:
            for (std::uint32_t n = vueltas(pieza.repeticion); n > 0; --n) ponDeClase(clases_[pieza.numero]);
            return i + 1;
        case TipoPieza::Referencia:
            for (std::uint32_t n = vueltas(pieza.repeticion); n > 0; --n) texto_ += capturas_[pieza.numero];
            return i + 1;
        case TipoPieza::Abre: {
            const std::uint32_t veces = pieza.miraDelante() ? 0 : vueltas(pieza.repeticion);
            if (veces == 0) return pieza.pareja + 1;
            grupos_.push_back({i, veces, texto_.size()});
            return alternativa(i);
        }
        case TipoPieza::Alternativa:
            return patron_.piezas[grupos_.back().abre].pareja;
        case TipoPieza::Cierra:
            return cierra(i);
        case TipoPieza::Inicio:
        case TipoPieza::Final:
        case TipoPieza::Frontera:
        case TipoPieza::NoFrontera:
            break;
        }
        return i + 1;
    }

    std::uint32_t alternativa(std::uint32_t abre) {
        const std::uint32_t fin = patron_.piezas[abre].pareja;
        std::vector<std::uint32_t> principios;
        for (std::uint32_t i = abre; i != fin; i = patron_.piezas[i].siguiente) principios.push_back(i + 1);
        return principios[menorQue(azar_, principios.size())];
    }

    std::uint32_t cierra(std::uint32_t i) {
        Grupo& grupo = grupos_.back();
        const Pieza& abre = patron_.piezas[grupo.abre];
        if (abre.grupo == TipoGrupo::Captura) capturas_[abre.numero] = texto_.substr(grupo.inicio);
        if (--grupo.quedan > 0) {
            grupo.inicio = texto_.size();
            return alternativa(grupo.abre);
        }
        grupos_.pop_back();
        return i + 1;
    }

    std::uint32_t vueltas(const Repeticion& repeticion) {
        constexpr std::uint32_t demas = 3;
        const std::uint32_t margen = std::min(demas, repeticion.maximo - repeticion.minimo);
        return std::min<std::uint32_t>(repeticion.minimo, largoMaximo) + menorQue(azar_, margen + 1);
    }

    void ponDeClase(const ClaseUnidades& clase) {
        const auto& rangos = clase.rangos();
        if (rangos.empty()) return; // nothing matches it: the text will be dropped
        const RangoUnidades rango = rangos[menorQue(azar_, rangos.size())];
        const auto imprimible = static_cast<char16_t>(u' ' + menorQue(azar_, u'~' - u' ' + 1));
        if (clase.contiene(imprimible) && menorQue(azar_, 3) != 0)
            texto_ += imprimible;
        else
            texto_ += menorQue(azar_, 2) == 0 ? rango.desde : rango.hasta;
    }

    const Patron& patron_;
    const std::vector<ClaseUnidades>& clases_;
    Azar& azar_;
    std::u16string texto_;
    std::vector<Grupo> grupos_;
    std::vector<std::u16string> capturas_;
};

bool loTomaEntero(const Emparejador& emparejador, const std::u16string& texto) try {
    const auto coincidencias = emparejador.ejecuta(texto, Presupuesto(std::chrono::milliseconds(20)));
    return !coincidencias.empty() &&
           coincidencias.front() == Coincidencia{0, static_cast<std::int32_t>(texto.size())};
} catch (const BusquedaDesbocada&) {
    return false;
}

} // namespace

std::vector<std::u16string> muestrasDe(std::u16string_view texto, bool ignoraMayusculas, std::size_t cuantas,
                                       const Presupuesto& presupuesto) {
    const auto patron = leePatron(texto, ignoraMayusculas);
    const auto emparejador = Emparejador::compila(texto, ignoraMayusculas);
    std::vector<std::u16string> muestras;
    if (!patron || !emparejador) return muestras;
    std::vector<ClaseUnidades> clases;
    for (const ClaseLeida& clase : patron->clases) clases.emplace_back(clase, ignoraMayusculas);
    Azar azar(1);
    for (std::size_t intentos = 4 * cuantas; intentos > 0 && muestras.size() < cuantas; --intentos) {
        if (presupuesto.agotado()) break;
        const std::u16string muestra = Paseo(*patron, clases, azar).texto();
        const bool esNueva = !muestra.empty() && std::ranges::find(muestras, muestra) == muestras.end();
        if (esNueva && loTomaEntero(*emparejador, muestra)) muestras.push_back(muestra);
    }
    return muestras;
}

bool esMasLegible(std::u16string_view uno, std::u16string_view otro) {
    const auto raros = [](std::u16string_view texto) {
        return std::ranges::count_if(texto, [](char16_t c) { return c <= u' ' || c > u'~'; });
    };
    return std::pair(raros(uno), uno.size()) < std::pair(raros(otro), otro.size());
}

} // namespace norvik::inline v0_2
