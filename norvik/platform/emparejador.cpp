// A pattern ready to search, in the cheapest of the ways that give its matches:
//  - a plain word, by comparing units;
//  - branches and loops over units, by an automaton: one look-up a character, nothing to go back to;
//  - assertions, look-aheads and large counts, by PCRE2 compiled to machine code;
//  - references to captures, and optional turns that take nothing, by the exact machine, which also decides
//  where
//    another way gives up.
// All but reading the pattern is left to the first search, so that definitions cost little to file. A search
// tries the positions from left to right; where the pattern cannot begin, one look-up tells.
#include "norvik/platform/emparejador.hpp"

#include "norvik/platform/mayusculas.hpp"
#include "norvik/platform/patronAutomata.hpp"
#include "norvik/platform/patronMaquina.hpp"
#include "norvik/platform/patronPcre.hpp"

#include <algorithm>
#include <functional>
#include <mutex>
#include <utility>

namespace norvik {

namespace {

constexpr std::size_t patronMasLargo = 32767;

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

// A pattern with all that a search needs.
class Buscador {
public:
    explicit Buscador(const PatronListo& patron)
        : primeras_(patron.primeras()), programa_(patron), automata_(Automata::de(programa_)) {
        if (!automata_) pcre_ = MotorPcre::de(patron);
    }

    std::vector<Coincidencia> busca(std::u16string_view sujeto, const Presupuesto& presupuesto) {
        std::vector<Coincidencia> coincidencias;
        recuerdo_.clear();
        std::uint32_t intentos = 0;
        for (std::size_t i = inicioPosible(sujeto, 0); i <= sujeto.size(); i = inicioPosible(sujeto, i + 1)) {
            if (intentos++ % intentosPorConsulta() == 0 && presupuesto.agotado()) throw BusquedaDesbocada();
            const auto fin = intenta(sujeto, i, presupuesto);
            if (!fin) continue;
            coincidencias.push_back(coincidencia(i, *fin));
            if (*fin > i) i = *fin - 1;
        }
        return coincidencias;
    }

private:
    // The clock costs as much as a token; only the automaton's attempts are sure to be short.
    std::uint32_t intentosPorConsulta() const { return automata_ ? 64 : 1; }

    // The first position from `i` on where a match can begin; beyond the end when there is none.
    std::size_t inicioPosible(std::u16string_view sujeto, std::size_t i) const {
        if (!primeras_) return i;
        const ClaseUnidades& primeras = *primeras_;
        while (i < sujeto.size() && !primeras.contiene(sujeto[i])) ++i;
        return i < sujeto.size() ? i : sujeto.size() + 1;
    }

    std::optional<std::size_t> intenta(std::u16string_view sujeto, std::size_t i,
                                       const Presupuesto& presupuesto) {
        Intento intento{Intento::Tipo::Indeciso, 0};
        if (automata_) {
            intento = automata_->coincide(sujeto, i, recuerdo_);
        } else if (pcre_) {
            intento = pcre_->coincide(sujeto, i);
        }
        if (intento.tipo == Intento::Tipo::Indeciso)
            return coincideMaquina(programa_, sujeto, i, memoria_, presupuesto);
        if (intento.tipo == Intento::Tipo::Nada) return std::nullopt;
        return intento.fin;
    }

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
    std::mutex enUso; // searches share what they build
    std::optional<Buscador> buscador;
};

Emparejador::Emparejador(std::unique_ptr<Compilado> compilado) : compilado_(std::move(compilado)) {}
Emparejador::Emparejador(Emparejador&&) noexcept = default;
Emparejador& Emparejador::operator=(Emparejador&&) noexcept = default;
Emparejador::~Emparejador() = default;

std::optional<Emparejador> Emparejador::compila(std::u16string_view patron, bool ignoraMayusculas) {
    if (patron.size() > patronMasLargo) return std::nullopt;
    auto leido = leePatron(patron, ignoraMayusculas);
    if (!leido) return std::nullopt;
    auto compilado = std::make_unique<Compilado>();
    compilado->palabra = leido->palabra();
    if (!compilado->palabra) compilado->patron = std::move(*leido);
    compilado->patron.ignoraMayusculas = ignoraMayusculas;
    return Emparejador(std::move(compilado));
}

const std::optional<std::u16string>& Emparejador::palabra() const {
    return compilado_->palabra;
}

bool Emparejador::ignoraMayusculas() const {
    return compilado_->patron.ignoraMayusculas;
}

std::vector<Coincidencia> Emparejador::ejecuta(std::u16string_view sujeto,
                                               const Presupuesto& presupuesto) const {
    Compilado& c = *compilado_;
    if (c.palabra && !ignoraMayusculas()) return buscaPalabra(*c.palabra, sujeto, std::equal_to<>());
    if (c.palabra)
        return buscaPalabra(*c.palabra, sujeto,
                            [](char16_t a, char16_t b) { return pliega(a) == pliega(b); });
    const std::lock_guard cerrojo(c.enUso);
    if (!c.buscador) {
        c.buscador.emplace(PatronListo(c.patron));
        c.patron.piezas = {};
        c.patron.clases = {};
    }
    return c.buscador->busca(sujeto, presupuesto);
}

} // namespace norvik
