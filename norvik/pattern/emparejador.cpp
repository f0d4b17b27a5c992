// A pattern ready to search, in the cheapest of the ways that give its matches:
//  - a plain word, by comparing units;
//  - branches and loops over units, by an automaton: one look-up a character, nothing to go back to;
//  - assertions, look-aheads and large counts, by PCRE2 compiled to machine code;
//  - references to captures, and optional turns that take nothing, by the exact machine, which also decides
//  where
//    another way gives up.
// All but reading the pattern is left to the first search, so that definitions cost little to file. A search
// tries the positions from left to right; where the pattern cannot begin, one look-up tells.
#include "norvik/pattern/emparejador.hpp"

#include "norvik/pattern/mayusculas.hpp"
#include "norvik/pattern/patronAutomata.hpp"
#include "norvik/pattern/patronMaquina.hpp"
#include "norvik/pattern/patronPcre.hpp"

#include <algorithm>
#include <functional>
#include <mutex>
#include <utility>

namespace norvik {

namespace {

constexpr std::size_t patronMasLargo = 32767;

// Such a pattern, most definitions' own, is the very word that it matches.
bool sinOperadores(std::u16string_view patron) {
    return !patron.empty() && patron.find_first_of(u"\\()[{*+?.^$|") == std::u16string_view::npos;
}

Coincidencia coincidencia(std::size_t inicio, std::size_t fin) {
    return {static_cast<std::int32_t>(inicio), static_cast<std::int32_t>(fin - inicio)};
}

template <typename Iguales>
std::vector<Coincidencia> buscaPalabra(std::u16string_view palabra, std::u16string_view sujeto,
                                       Iguales iguales) {
    std::vector<Coincidencia> coincidencias;
    const auto* desde = sujeto.begin();
    for (;;) {
        desde = std::search(desde, sujeto.end(), palabra.begin(), palabra.end(), iguales);
        if (desde == sujeto.end()) return coincidencias;
        const auto inicio = static_cast<std::size_t>(desde - sujeto.begin());
        coincidencias.push_back(coincidencia(inicio, inicio + palabra.size()));
        desde += palabra.size();
    }
}

// The first position from `i` on where a match can begin; beyond the end when there is none.
std::size_t inicioPosible(const ClaseUnidades* primeras, std::u16string_view sujeto, std::size_t i) {
    if (primeras == nullptr) return i;
    while (i < sujeto.size() && !primeras->contiene(sujeto[i])) ++i;
    return i < sujeto.size() ? i : sujeto.size() + 1;
}

// A pattern with all that a search needs.
class Buscador {
public:
    explicit Buscador(const PatronListo& patron)
        : primeras_(patron.primeras()), programa_(patron), automata_(Automata::de(programa_)) {
        if (!automata_) pcre_ = MotorPcre::de(patron);
    }

    // Forgets the last subject.
    void empieza() { recuerdo_.clear(); }

    Intento intenta(std::u16string_view sujeto, std::size_t i, const Presupuesto& presupuesto) {
        Intento intento{Intento::Tipo::Indeciso, 0};
        if (automata_) {
            intento = automata_->coincide(sujeto, i, recuerdo_);
        } else if (pcre_) {
            intento = pcre_->coincide(sujeto, i);
        }
        if (intento.tipo != Intento::Tipo::Indeciso) return intento;
        const auto fin = coincideMaquina(programa_, sujeto, i, memoria_, presupuesto);
        return fin ? Intento{Intento::Tipo::Coincide, *fin} : Intento{};
    }

    bool esInmediato() const { return automata_.has_value(); }
    Automata* automata() { return automata_ ? &*automata_ : nullptr; }
    const ClaseUnidades* primeras() const { return primeras_ ? &*primeras_ : nullptr; }

private:
    std::optional<ClaseUnidades> primeras_; // units that a match can begin with, if that is known
    Programa programa_;
    std::optional<Automata> automata_;
    Automata::Recuerdo recuerdo_;
    std::optional<MotorPcre> pcre_;
    MemoriaMaquina memoria_;
};

} // namespace

struct Emparejador::Compilado {
    Patron patron;
    std::optional<std::u16string> palabra;
    std::mutex enUso;                   // searches share what they build
    std::unique_ptr<Buscador> buscador; // none yet, and never one for a plain word

    // To be called by the one who uses it.
    Buscador& listo() {
        if (!buscador) {
            buscador = std::make_unique<Buscador>(PatronListo(patron));
            patron.piezas = {};
            patron.clases = {};
        }
        return *buscador;
    }
};

Emparejador::Emparejador(std::unique_ptr<Compilado> compilado) : compilado_(std::move(compilado)) {}
Emparejador::Emparejador(Emparejador&&) noexcept = default;
Emparejador& Emparejador::operator=(Emparejador&&) noexcept = default;
Emparejador::~Emparejador() = default;

std::optional<Emparejador> Emparejador::compila(std::u16string_view patron, bool ignoraMayusculas) {
    if (patron.size() > patronMasLargo) return std::nullopt;
    auto compilado = std::make_unique<Compilado>();
    compilado->patron.ignoraMayusculas = ignoraMayusculas;
    if (sinOperadores(patron)) {
        compilado->palabra = patron;
        return Emparejador(std::move(compilado));
    }
    auto leido = leePatron(patron, ignoraMayusculas);
    if (!leido) return std::nullopt;
    compilado->palabra = leido->palabra();
    if (!compilado->palabra) compilado->patron = std::move(*leido);
    return Emparejador(std::move(compilado));
}

const std::optional<std::u16string>& Emparejador::palabra() const {
    return compilado_->palabra;
}

bool Emparejador::ignoraMayusculas() const {
    return compilado_->patron.ignoraMayusculas;
}

Emparejador::Busqueda Emparejador::empieza(std::u16string_view sujeto, const Presupuesto& presupuesto) const {
    return {*compilado_, sujeto, presupuesto};
}

Automata* Emparejador::automata() const {
    const std::lock_guard cerrojo(compilado_->enUso);
    return compilado_->listo().automata();
}

const ClaseUnidades* Emparejador::primeras() const {
    const std::lock_guard cerrojo(compilado_->enUso);
    return compilado_->listo().primeras();
}

std::vector<Coincidencia> Emparejador::ejecuta(std::u16string_view sujeto,
                                               const Presupuesto& presupuesto) const {
    if (palabra() && !ignoraMayusculas()) return buscaPalabra(*palabra(), sujeto, std::equal_to<>());
    if (palabra())
        return buscaPalabra(*palabra(), sujeto,
                            [](char16_t a, char16_t b) { return pliega(a) == pliega(b); });
    Busqueda busqueda = empieza(sujeto, presupuesto);
    const ClaseUnidades* const primeras = compilado_->buscador->primeras();
    std::vector<Coincidencia> coincidencias;
    for (;;) {
        const std::size_t i = inicioPosible(primeras, sujeto, busqueda.libre());
        if (i > sujeto.size()) return coincidencias;
        if (const auto longitud = busqueda.intenta(i))
            coincidencias.push_back(coincidencia(i, i + static_cast<std::size_t>(*longitud)));
    }
}

Emparejador::Busqueda::Busqueda(Compilado& compilado, std::u16string_view sujeto,
                                const Presupuesto& presupuesto)
    : compilado_(&compilado), cerrojo_(compilado.enUso), sujeto_(sujeto), presupuesto_(&presupuesto) {
    compilado.listo().empieza();
}

std::optional<std::int32_t> Emparejador::Busqueda::intenta(std::size_t posicion) {
    Buscador& buscador = *compilado_->buscador;
    // The clock costs as much as a token; only immediate attempts are sure to be short.
    const std::uint32_t intentosPorConsulta = buscador.esInmediato() ? 64 : 1;
    if (intentos_++ % intentosPorConsulta == 0 && presupuesto_->agotado()) throw BusquedaDesbocada();
    const Intento intento = buscador.intenta(sujeto_, posicion, *presupuesto_);
    libre_ = std::max(posicion + 1, intento.fin);
    if (intento.tipo != Intento::Tipo::Coincide) return std::nullopt;
    return static_cast<std::int32_t>(intento.fin - posicion);
}

} // namespace norvik
