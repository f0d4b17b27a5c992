// SPDX-License-Identifier: MIT

// Every pattern finds its own matches; the order in which they are searched does not matter, so that as many
// as possible share a pass. Plain words go over the text together, but for long ones, which have passes of
// their own. So do the patterns that have an automaton: the character at a position tells by a mask which of
// them can begin there, and each of these is tried unless it is known to find nothing yet, as inside its last
// match. The others, which may run away, are searched one by one.
#include "norvik/pattern/buscadorConjunto.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/pattern/busquedaPalabra.hpp"
#include "norvik/pattern/busquedaPatron.hpp"
#include "norvik/pattern/indicePalabras.hpp"
#include "norvik/pattern/patronConjunto.hpp"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

struct PatronNumerado {
    std::unique_ptr<BusquedaPatron> busqueda;
    std::int32_t numero = 0;
};

struct PalabraNumerada {
    BusquedaPalabra busqueda;
    std::int32_t numero = 0;
};

// What all passes of a search share.
struct EnCurso {
    std::u16string_view texto;
    Gasto& gasto;
    MapaCoincidencias& mapa;
    std::int32_t& patron; // the one being searched
};

// Patterns that go over a text together.
class Grupo {
public:
    static constexpr std::size_t maximo = AutomataConjunto::maximo;

    bool estaLleno() const { return patrones_.size() == maximo; }
    void aniade(PatronNumerado patron);
    // To be called after the last pattern.
    void reune();
    void busca(const EnCurso& enCurso);

private:
    std::vector<PatronNumerado> patrones_;
    std::optional<AutomataConjunto> conjunto_;
    std::array<std::uint64_t, 256> empiezan_{}; // a bit for each that may begin with a unit
    std::uint64_t empiezanAltas_ = 0;           // the same for every unit above
    std::uint64_t vacias_ = 0;                  // may begin at the end of the text
};

// The search of a group under way. A pattern is busy as long as it is known to find nothing.
class Pasada {
public:
    Pasada(const EnCurso& enCurso, AutomataConjunto& conjunto, const std::vector<PatronNumerado>& patrones)
        : enCurso_(enCurso), conjunto_(conjunto), patrones_(patrones) {}

    // Positions come in ascending order.
    void prueba(std::uint64_t cuales, std::size_t posicion) {
        if (posicion >= proximaLibre_) libera(posicion);
        cuales &= ~ocupadas_;
        if (cuales == 0) return;
        const bool sonVarias = (cuales & (cuales - 1)) != 0;
        if (sonVarias && posicion < enCurso_.texto.size()) cuales = pruebaJuntas(cuales, posicion);
        paraCadaBit(cuales, [&](std::size_t lugar) { pruebaSola(lugar, posicion); });
    }

private:
    static constexpr auto nunca = std::numeric_limits<std::size_t>::max();

    // Returns those that are still to be tried alone.
    std::uint64_t pruebaJuntas(std::uint64_t cuales, std::size_t posicion) {
        conjunto_.coinciden(enCurso_.texto, posicion, cuales, intentos_, enCurso_.gasto);
        const std::uint64_t decididas = cuales & ~intentos_.indecisos;
        paraCadaBit(intentos_.coinciden,
                    [&](std::size_t lugar) { halla(lugar, posicion, intentos_.fin[lugar]); });
        paraCadaBit(decididas, [&](std::size_t lugar) { ocupa(lugar, posicion, intentos_.fin[lugar]); });
        return intentos_.indecisos;
    }
    void pruebaSola(std::size_t lugar, std::size_t posicion) {
        enCurso_.patron = patrones_[lugar].numero;
        const Intento intento = patrones_[lugar].busqueda->intenta(posicion, enCurso_.gasto);
        if (intento.tipo == Intento::Tipo::Coincide) halla(lugar, posicion, intento.fin);
        ocupa(lugar, posicion, intento.fin);
    }
    void halla(std::size_t lugar, std::size_t posicion, std::size_t fin) {
        enCurso_.mapa.guarda(posicion, patrones_[lugar].numero, fin - posicion);
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

    const EnCurso& enCurso_;
    AutomataConjunto& conjunto_;
    const std::vector<PatronNumerado>& patrones_;
    AutomataConjunto::Intentos intentos_;
    std::uint64_t ocupadas_ = 0;
    std::size_t proximaLibre_ = nunca; // of the busy ones
    std::array<std::size_t, Grupo::maximo> libres_{};
};

void Grupo::aniade(PatronNumerado patron) {
    const std::uint64_t bit = std::uint64_t{1} << patrones_.size();
    const ClaseUnidades* const primeras = patron.busqueda->primeras();
    for (std::size_t unidad = 0; unidad < empiezan_.size(); ++unidad)
        if (primeras == nullptr || primeras->contiene(static_cast<char16_t>(unidad)))
            empiezan_[unidad] |= bit;
    const bool altas = primeras == nullptr ||
                       (!primeras->rangos().empty() && primeras->rangos().back().hasta >= empiezan_.size());
    if (altas) empiezanAltas_ |= bit;
    if (primeras == nullptr) vacias_ |= bit;
    patrones_.push_back(std::move(patron));
}

void Grupo::reune() {
    std::vector<Automata*> automatas;
    for (const PatronNumerado& patron : patrones_) automatas.push_back(patron.busqueda->automata());
    conjunto_.emplace(std::move(automatas));
}

void Grupo::busca(const EnCurso& enCurso) {
    constexpr std::size_t tramo = 1024;
    const std::u16string_view texto = enCurso.texto;
    for (const PatronNumerado& patron : patrones_) patron.busqueda->empieza(texto, enCurso.gasto);
    Pasada pasada(enCurso, *conjunto_, patrones_);
    for (std::size_t desde = 0; desde < texto.size(); desde += tramo) {
        enCurso.gasto.anota(tramo * maximo);
        const std::size_t hasta = std::min(texto.size(), desde + tramo);
        for (std::size_t i = desde; i < hasta; ++i) {
            const char16_t unidad = texto[i];
            pasada.prueba(unidad < empiezan_.size() ? empiezan_[unidad] : empiezanAltas_, i);
        }
    }
    pasada.prueba(vacias_, texto.size());
}

void buscaSola(const PatronNumerado& sola, const EnCurso& enCurso) {
    BusquedaPatron& busqueda = *sola.busqueda;
    busqueda.empieza(enCurso.texto, enCurso.gasto);
    for (std::size_t i = busqueda.inicioPosible(0); i <= enCurso.texto.size();) {
        const Intento intento = busqueda.intenta(i, enCurso.gasto);
        if (intento.tipo == Intento::Tipo::Coincide) enCurso.mapa.guarda(i, sola.numero, intento.fin - i);
        i = busqueda.inicioPosible(std::max(i + 1, intento.fin));
    }
}

// To make a pattern ready, and to keep a word.
constexpr std::size_t pasosPorUnidad = 64;
constexpr std::size_t bytesPorUnidad = sizeof(char16_t) + sizeof(std::uint16_t);

} // namespace

// The patterns, each ready for its way of searching.
class BuscadorConjunto::Preparados {
public:
    void aniade(const Emparejador& patron, std::int32_t numero, Gasto& gasto);
    void reune() {
        palabras_.ordena();
        for (Grupo& grupo : grupos_) grupo.reune();
    }
    void busca(const EnCurso& enCurso);

private:
    IndicePalabras palabras_;
    std::vector<PalabraNumerada> largas_;
    std::vector<Grupo> grupos_;
    std::vector<PatronNumerado> solas_;
};

void BuscadorConjunto::Preparados::aniade(const Emparejador& patron, std::int32_t numero, Gasto& gasto) {
    gasto.anota((patron.texto().size() + 1) * pasosPorUnidad);
    const bool ignora = patron.ignoraMayusculas();
    if (patron.esPalabra() && patron.texto().size() <= IndicePalabras::maximo)
        return palabras_.aniade(patron.texto(), ignora, numero);
    if (patron.esPalabra()) {
        gasto.ocupa(patron.texto().size() * bytesPorUnidad);
        largas_.push_back({BusquedaPalabra(patron.texto(), ignora), numero});
        return;
    }
    auto busqueda = std::make_unique<BusquedaPatron>(*leePatron(patron.texto(), ignora), gasto);
    if (busqueda->automata() == nullptr) {
        solas_.push_back({std::move(busqueda), numero});
        return;
    }
    if (grupos_.empty() || grupos_.back().estaLleno()) grupos_.emplace_back();
    grupos_.back().aniade({std::move(busqueda), numero});
}

void BuscadorConjunto::Preparados::busca(const EnCurso& enCurso) {
    palabras_.busca(enCurso.texto, enCurso.gasto, enCurso.mapa);
    for (const auto& [busqueda, numero] : largas_) {
        enCurso.patron = numero;
        busqueda.busca(enCurso.texto, enCurso.gasto,
                       [&, numero = numero, longitud = busqueda.longitud()](std::size_t inicio) {
                           enCurso.mapa.guarda(inicio, numero, longitud);
                       });
    }
    for (Grupo& grupo : grupos_) grupo.busca(enCurso);
    for (const PatronNumerado& sola : solas_) {
        enCurso.patron = sola.numero;
        buscaSola(sola, enCurso);
    }
}

BuscadorConjunto::BuscadorConjunto(std::vector<const Emparejador*> patrones)
    : patrones_(std::move(patrones)) {}
BuscadorConjunto::BuscadorConjunto(BuscadorConjunto&&) noexcept = default;
BuscadorConjunto& BuscadorConjunto::operator=(BuscadorConjunto&&) noexcept = default;
BuscadorConjunto::~BuscadorConjunto() = default;

void BuscadorConjunto::busca(std::u16string_view texto, const Presupuesto& presupuesto,
                             MapaCoincidencias& mapa) {
    a32(texto.size());
    try {
        if (preparados_ && buscaConLoGuardado(texto, presupuesto, mapa)) return;
        prepara(presupuesto);
        buscaYRenueva(texto, Gasto(presupuesto, cabida_), mapa);
    } catch (...) {
        mapa.vacia();
        throw;
    }
}

void BuscadorConjunto::prepara(const Presupuesto& presupuesto) {
    preparados_.reset();
    cabida_ = Cabida();
    Gasto gasto(presupuesto, cabida_);
    auto preparados = std::make_unique<Preparados>();
    for (std::size_t i = 0; i < patrones_.size(); ++i) {
        ultimoPatron_ = static_cast<std::int32_t>(i);
        preparados->aniade(*patrones_[i], ultimoPatron_, gasto);
    }
    preparados->reune();
    preparados_ = std::move(preparados);
    renovable_ = !gasto.estaLleno();
}

void BuscadorConjunto::buscaYRenueva(std::u16string_view texto, Gasto gasto, MapaCoincidencias& mapa) {
    mapa.reinicia(texto.size());
    preparados_->busca({texto, gasto, mapa, ultimoPatron_});
    if (gasto.estaLleno() && renovable_) preparados_.reset();
}

// False when that leaves too little room, and all is to be made anew: what a text comes to depends on no
// other one.
bool BuscadorConjunto::buscaConLoGuardado(std::u16string_view texto, const Presupuesto& presupuesto,
                                          MapaCoincidencias& mapa) {
    const auto comienzo = renovable_ ? Gasto::Comienzo::ConLoGuardado : Gasto::Comienzo::DeNuevo;
    try {
        buscaYRenueva(texto, Gasto(presupuesto, cabida_, comienzo), mapa);
    } catch (const Gasto::LoGuardadoEstorba&) {
        return false;
    }
    return true;
}

} // namespace norvik::inline v0_2
