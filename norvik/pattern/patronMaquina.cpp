// SPDX-License-Identifier: MIT

// The exact matcher: a pattern assembled into a small program, run by backtracking.
//
// The semantics are those of ECMAScript's third edition: alternatives in order, each turn of a repetition
// forgets the captures of its body, an optional turn that takes nothing is no turn, a reference to a capture
// that took no part takes nothing, look-aheads are never entered again. One stack holds both what is left to
// try and the former values of registers (positions of captures, counters of loops): undoing goes back
// through it until there is something to try. Nothing recurses. The cost is that of backtracking, so steps
// and stack are bounded and the clock is looked at now and then.
#include "norvik/pattern/patronMaquina.hpp"

#include "norvik/pattern/mayusculas.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

constexpr std::uint32_t restaura = 0x80000000; // marks a stack entry that restores a register
constexpr std::size_t pilaMaxima = (std::size_t{64} << 20) / sizeof(MemoriaMaquina::Entrada);
constexpr std::size_t pasosMaximos = 100'000'000;
constexpr std::size_t pasosPorConsulta = 1U << 12; // of the budget

bool hayPalabra(std::u16string_view sujeto, std::size_t i) {
    return i < sujeto.size() && esDePalabra(sujeto[i]);
}

// One attempt at one position.
class Ejecucion {
public:
    Ejecucion(const Programa& programa, std::u16string_view sujeto, std::size_t inicio,
              MemoriaMaquina& memoria, Gasto& gasto)
        : p_(programa), sujeto_(sujeto), pos_(inicio), pila_(memoria.pila), registros_(memoria.registros),
          gasto_(gasto) {
        gasto_.anota(pasosPorConsulta / 16 + p_.registros);
        pila_.clear();
        registros_.assign(p_.registros, -1);
    }

    std::optional<std::size_t> corre() {
        for (;;) {
            if (++pasos_ >= proximaConsulta_) consulta();
            const Instruccion& instruccion = p_.codigo[en_++];
            if (instruccion.operacion == Operacion::Acepta) return pos_;
            if (!ejecuta(instruccion) && !retrocede()) return std::nullopt;
        }
    }

private:
    bool ejecuta(const Instruccion& instruccion);
    bool retrocede();
    void consulta();
    bool toma(bool vale) {
        pos_ += vale ? 1 : 0;
        return vale;
    }
    bool salta(std::uint32_t donde) {
        en_ = donde;
        return true;
    }
    bool enFrontera() const {
        const bool antes = pos_ > 0 && hayPalabra(sujeto_, pos_ - 1);
        return antes != hayPalabra(sujeto_, pos_);
    }
    bool repiteCaptura(std::uint32_t captura);
    bool entraEnBucle(const Bucle& bucle);
    bool empiezaVuelta(const Bucle& bucle);
    bool cierraBucle(const Bucle& bucle);
    bool cierraDelante(std::uint32_t registro);
    bool cierraDelanteNo(std::uint32_t registro);
    void deshaz(const MemoriaMaquina::Entrada& entrada);
    void apila(std::uint32_t donde, std::int32_t valor);
    void guarda(std::uint32_t registro, std::int32_t valor);
    std::int32_t posicion() const { return static_cast<std::int32_t>(pos_); }

    const Programa& p_;
    std::u16string_view sujeto_;
    std::size_t pos_;
    std::uint32_t en_ = 0;
    std::vector<MemoriaMaquina::Entrada>& pila_;
    std::vector<std::int32_t>& registros_;
    Gasto& gasto_;
    std::size_t pasos_ = 0;
    std::size_t proximaConsulta_ = pasosPorConsulta;
};

bool Ejecucion::ejecuta(const Instruccion& i) {
    switch (i.operacion) {
    case Operacion::Unidad:
        return toma(pos_ < sujeto_.size() && sujeto_[pos_] == i.a);
    case Operacion::Clase:
        return toma(pos_ < sujeto_.size() && p_.clases[i.a].contiene(sujeto_[pos_]));
    case Operacion::Inicio:
        return pos_ == 0;
    case Operacion::Final:
        return pos_ == sujeto_.size();
    case Operacion::Frontera:
        return enFrontera();
    case Operacion::NoFrontera:
        return !enFrontera();
    case Operacion::Referencia:
        return repiteCaptura(i.a);
    case Operacion::Guarda:
        guarda(i.a, posicion());
        return true;
    case Operacion::Salta:
        return salta(i.a);
    case Operacion::Prueba:
        apila(i.a, posicion());
        return true;
    case Operacion::Aplaza:
        apila(en_, posicion());
        return salta(i.a);
    case Operacion::PreparaBucle:
        guarda(p_.bucles[i.a].registro, 0);
        return true;
    case Operacion::EntraEnBucle:
        return entraEnBucle(p_.bucles[i.a]);
    case Operacion::EmpiezaVuelta:
        return empiezaVuelta(p_.bucles[i.a]);
    case Operacion::CierraBucle:
        return cierraBucle(p_.bucles[i.a]);
    case Operacion::AbreDelante:
    case Operacion::AbreDelanteNo:
        registros_[i.a] = static_cast<std::int32_t>(pila_.size());
        registros_[i.a + 1] = posicion();
        if (i.operacion == Operacion::AbreDelanteNo) apila(i.b, posicion());
        return true;
    case Operacion::CierraDelante:
        return cierraDelante(i.a);
    case Operacion::CierraDelanteNo:
        return cierraDelanteNo(i.a);
    case Operacion::Acepta:
        break;
    }
    return true;
}

void Ejecucion::consulta() {
    if (pasos_ > pasosMaximos) throw BusquedaDesbocada();
    gasto_.anota(pasosPorConsulta);
    proximaConsulta_ = pasos_ + pasosPorConsulta;
}

bool Ejecucion::retrocede() {
    while (!pila_.empty()) {
        const MemoriaMaquina::Entrada entrada = pila_.back();
        pila_.pop_back();
        if ((entrada.donde & restaura) == 0) {
            en_ = entrada.donde;
            pos_ = static_cast<std::size_t>(entrada.valor);
            return true;
        }
        deshaz(entrada);
    }
    return false;
}

bool Ejecucion::repiteCaptura(std::uint32_t captura) {
    const std::size_t registro = std::size_t{2} * captura;
    const std::int32_t inicio = registros_[registro];
    const std::int32_t fin = registros_[registro + 1];
    if (inicio < 0 || fin < 0) return true;
    const std::u16string_view capturado =
        sujeto_.substr(static_cast<std::size_t>(inicio), static_cast<std::size_t>(fin - inicio));
    const std::u16string_view resto = sujeto_.substr(pos_);
    if (resto.size() < capturado.size()) return false;
    pasos_ += capturado.size();
    const bool igual =
        std::equal(capturado.begin(), capturado.end(), resto.begin(), [&](char16_t a, char16_t b) {
            return a == b || (p_.ignoraMayusculas && pliega(a) == pliega(b));
        });
    if (igual) pos_ += capturado.size();
    return igual;
}

bool Ejecucion::entraEnBucle(const Bucle& bucle) {
    const auto vueltas = static_cast<std::uint32_t>(registros_[bucle.registro]);
    if (vueltas < bucle.repeticion.minimo) return true;
    if (vueltas >= bucle.repeticion.maximo) return salta(bucle.salida);
    apila(bucle.repeticion.perezosa ? en_ : bucle.salida, posicion());
    return bucle.repeticion.perezosa ? salta(bucle.salida) : true;
}

bool Ejecucion::empiezaVuelta(const Bucle& bucle) {
    guarda(bucle.registro, registros_[bucle.registro] + 1);
    guarda(bucle.registro + 1, posicion());
    for (std::uint32_t captura = bucle.capturaDesde; captura < bucle.capturaHasta; ++captura) {
        guarda(2 * captura, -1);
        guarda(2 * captura + 1, -1);
    }
    return true;
}

bool Ejecucion::cierraBucle(const Bucle& bucle) {
    const bool opcional = static_cast<std::uint32_t>(registros_[bucle.registro]) > bucle.repeticion.minimo;
    if (opcional && registros_[bucle.registro + 1] == posicion()) return false;
    return salta(bucle.entrada);
}

// What is left to try inside a look-ahead is dropped, the former values of registers stay.
bool Ejecucion::cierraDelante(std::uint32_t registro) {
    const auto altura = pila_.begin() + registros_[registro];
    const auto fin = std::remove_if(altura, pila_.end(), [](const MemoriaMaquina::Entrada& entrada) {
        return (entrada.donde & restaura) == 0;
    });
    pila_.erase(fin, pila_.end());
    pos_ = static_cast<std::size_t>(registros_[registro + 1]);
    return true;
}

// A body that matched is undone, and with it the way on that was left for its failure.
bool Ejecucion::cierraDelanteNo(std::uint32_t registro) {
    const auto altura = static_cast<std::size_t>(registros_[registro]);
    for (; pila_.size() > altura; pila_.pop_back()) deshaz(pila_.back());
    return false;
}

void Ejecucion::deshaz(const MemoriaMaquina::Entrada& entrada) {
    if ((entrada.donde & restaura) != 0) registros_[entrada.donde & ~restaura] = entrada.valor;
}

void Ejecucion::apila(std::uint32_t donde, std::int32_t valor) {
    if (pila_.size() >= pilaMaxima) throw BusquedaDesbocada();
    pila_.push_back({donde, valor});
}

void Ejecucion::guarda(std::uint32_t registro, std::int32_t valor) {
    apila(registro | restaura, registros_[registro]);
    registros_[registro] = valor;
}

} // namespace

std::optional<std::size_t> coincideMaquina(const Programa& programa, std::u16string_view sujeto,
                                           std::size_t inicio, MemoriaMaquina& memoria, Gasto& gasto) {
    return Ejecucion(programa, sujeto, inicio, memoria, gasto).corre();
}

} // namespace norvik::inline v0_2
