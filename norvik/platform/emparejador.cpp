// A pattern ready to search. What it is decides how it is searched: a plain word by comparing units; all else
// by the machine, from each position where a match can begin.
#include "norvik/platform/emparejador.hpp"

#include "norvik/platform/mayusculas.hpp"
#include "norvik/platform/patronMaquina.hpp"

#include <mutex>

namespace norvik {

namespace {

constexpr std::size_t patronMasLargo = 32767;

} // namespace

struct Emparejador::Compilado {
    Patron patron;
    std::optional<std::u16string> palabra;

    // Made at the first search.
    std::once_flag preparado;
    std::vector<ClaseUnidades> clases;
    std::optional<Maquina> maquina;

    void prepara() {
        for (const ClaseLeida& clase : patron.clases) clases.emplace_back(clase, patron.ignoraMayusculas);
        if (patron.ignoraMayusculas) {
            for (Pieza& pieza : patron.piezas) {
                if (pieza.tipo != TipoPieza::Unidad || equivalentes(pieza.unidad).empty()) continue;
                pieza.tipo = TipoPieza::Clase;
                pieza.numero = static_cast<std::uint32_t>(clases.size());
                clases.push_back(ClaseUnidades::deUnidad(pieza.unidad, true));
            }
        }
        maquina.emplace(patron, clases);
    }
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
    std::vector<Coincidencia> coincidencias;
    Compilado& c = *compilado_;
    if (c.palabra) {
        const std::u16string& palabra = *c.palabra;
        const bool ignora = c.patron.ignoraMayusculas;
        for (std::size_t i = 0; i + palabra.size() <= sujeto.size();) {
            std::size_t k = 0;
            while (k < palabra.size() &&
                   (ignora ? pliega(sujeto[i + k]) == pliega(palabra[k]) : sujeto[i + k] == palabra[k]))
                ++k;
            if (k == palabra.size()) {
                coincidencias.push_back({static_cast<std::int32_t>(i), static_cast<std::int32_t>(k)});
                i += k;
            } else {
                ++i;
            }
        }
        return coincidencias;
    }
    std::call_once(c.preparado, [&c] { c.prepara(); });
    Maquina::Memoria memoria;
    for (std::size_t i = 0; i <= sujeto.size();) {
        if (i % 16 == 0 && presupuesto.agotado()) throw BusquedaDesbocada();
        const auto fin = c.maquina->coincide(sujeto, i, memoria, presupuesto);
        if (fin) coincidencias.push_back({static_cast<std::int32_t>(i), static_cast<std::int32_t>(*fin - i)});
        i = fin && *fin > i ? *fin : i + 1;
    }
    return coincidencias;
}

} // namespace norvik
