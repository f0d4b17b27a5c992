// The automaton of a pattern, by subsets, with preferences.
//
// A state is the list of the program's threads after some characters, in the order in which backtracking
// would try them (Thompson 1968, made deterministic lazily; the order as in Cox 2010). A thread that
// completes the match hides the less preferred ones, so the last complete match met while walking is the one
// backtracking finds first. That holds for programs of branches whose loops always take something: where two
// threads meet in one instruction, the later one could only fail again. States appear as texts ask for them:
// a pattern costs what it uses, a character one look-up, and no pattern runs away.
// Walks that lead to nothing could still add up to the square of the text (a comment opened again and again
// and never closed), so long ones leave their states behind: a later one that comes to the same state at the
// same place stops. The short ones of definitions that are nearly alike (a name that is no type name, because
// it ends otherwise) go over a word once and not once from each of its letters. Units that no class of the
// pattern tells apart share a column.
#include "norvik/pattern/patronAutomata.hpp"

#include <algorithm>
#include <bit>
#include <string>

namespace norvik {

namespace {

constexpr std::size_t estadosMaximos = 1000;
constexpr std::size_t instruccionesMaximas = 5000;
constexpr std::size_t repartoMaximo = 1'000'000; // interval × class
constexpr std::size_t gruposMaximos = 250;
constexpr std::size_t caminoCorto = 256;

} // namespace

std::optional<Automata> Automata::de(const Programa& programa) {
    using enum Operacion;
    const bool sirve = programa.codigo.size() <= instruccionesMaximas &&
                       !programa.usaAlguna({Inicio, Frontera, NoFrontera, Referencia, Guarda, PreparaBucle,
                                            AbreDelante, AbreDelanteNo});
    if (!sirve) return std::nullopt;
    Automata automata(programa);
    if (!automata.reparteUnidades()) return std::nullopt;
    automata.visitadas_.resize(programa.codigo.size());
    automata.numeroDe({}, false);
    Hilos hilos;
    ++automata.visita_;
    const bool acepta = automata.sigue(0, hilos, false);
    automata.inicial_ = automata.numeroDe(std::move(hilos), acepta);
    return automata;
}

Intento Automata::coincide(std::u16string_view sujeto, std::size_t inicio, Recuerdo& recuerdo) {
    Intento intento{Intento::Tipo::Nada, inicio + 1};
    Numero estado = inicial_;
    std::size_t racha = inicio; // where the walk came to `estado`
    const std::size_t largo = std::min(sujeto.size(), inicio + caminoCorto);
    for (std::size_t i = inicio;; ++i) {
        if (acepta_[estado] != 0) intento = {Intento::Tipo::Coincide, i};
        if (i == largo) return caminaLargo(sujeto, i, estado, intento, recuerdo);
        const Numero destino = siguiente(estado, sujeto[i]);
        if (destino == desconocido) return {Intento::Tipo::Indeciso, 0};
        if (destino == muerto) {
            if (intento.tipo == Intento::Tipo::Nada)
                intento.fin = saltaEnVano(sujeto, inicio + 1, racha, i, estado);
            return intento;
        }
        if (destino != estado) racha = i + 1;
        estado = destino;
    }
}

// A walk without a match has ended at `hasta`, where it had been in `estado` since `desde`. Walks that come
// to this state in between end like it: the first position from `inicio` on whose walk does not do so at
// once.
std::size_t Automata::saltaEnVano(std::u16string_view sujeto, std::size_t inicio, std::size_t desde,
                                  std::size_t hasta, Numero estado) {
    std::size_t i = inicio;
    while (i + 1 >= desde && i < hasta && siguiente(inicial_, sujeto[i]) == estado) ++i;
    return i;
}

// The same from `i` on, where it has been seen already whether `estado` accepts. What is written into the
// memory before a complete match turns out wrong and is taken back.
Intento Automata::caminaLargo(std::u16string_view sujeto, std::size_t i, Numero estado, Intento intento,
                              Recuerdo& recuerdo) {
    const std::size_t desde = i + 1;
    std::size_t enVano = desde;
    for (; i < sujeto.size(); ++i) {
        if (recuerdo.empty()) recuerdo.assign(sujeto.size() + 1, muerto);
        estado = siguiente(estado, sujeto[i]);
        if (estado == desconocido) intento = {Intento::Tipo::Indeciso, 0};
        if (estado == muerto || estado == desconocido) break;
        if (acepta_[estado] != 0) {
            intento = {Intento::Tipo::Coincide, i + 1};
            enVano = i + 2;
        } else if (recuerdo[i + 1] == estado) {
            break;
        } else {
            recuerdo[i + 1] = estado;
        }
    }
    if (i == sujeto.size() && estados_[estado].aceptaAlFinal) {
        intento = {Intento::Tipo::Coincide, i};
        enVano = i + 1;
    }
    if (intento.tipo == Intento::Tipo::Indeciso) enVano = i + 1;
    for (std::size_t k = desde; k < enVano && k < recuerdo.size(); ++k) recuerdo[k] = muerto;
    return intento;
}

// Cuts the units where a class begins or ends, and gathers the intervals that the same instructions take.
bool Automata::reparteUnidades() {
    inicios_.push_back(0);
    std::vector<std::uint32_t> tomas;
    const auto corta = [&](RangoUnidades rango) {
        inicios_.push_back(rango.desde);
        if (rango.hasta < 0xFFFF) inicios_.push_back(static_cast<char16_t>(rango.hasta + 1));
    };
    for (std::uint32_t i = 0; i < programa_->codigo.size(); ++i) {
        const Instruccion& instruccion = programa_->codigo[i];
        const auto unidad = static_cast<char16_t>(instruccion.a);
        if (instruccion.operacion == Operacion::Unidad) corta({unidad, unidad});
        if (instruccion.operacion == Operacion::Clase)
            for (const RangoUnidades& rango : programa_->clases[instruccion.a].rangos()) corta(rango);
        if (instruccion.operacion == Operacion::Unidad || instruccion.operacion == Operacion::Clase)
            tomas.push_back(i);
    }
    std::sort(inicios_.begin(), inicios_.end());
    inicios_.erase(std::unique(inicios_.begin(), inicios_.end()), inicios_.end());
    if (inicios_.size() * tomas.size() > repartoMaximo) return false;
    std::map<std::vector<bool>, Numero> porFirma;
    for (const char16_t unidad : inicios_) {
        std::vector<bool> firma(tomas.size());
        for (std::size_t i = 0; i < tomas.size(); ++i) firma[i] = toma(tomas[i], unidad);
        const auto [sitio, nuevo] =
            porFirma.try_emplace(std::move(firma), static_cast<Numero>(porFirma.size()));
        if (nuevo) muestras_.push_back(unidad);
        grupos_.push_back(sitio->second);
    }
    for (std::size_t unidad = 0; unidad < bajas_.size(); ++unidad)
        bajas_[unidad] = grupoDeAlta(static_cast<char16_t>(unidad));
    anchura_ = static_cast<std::size_t>(std::bit_width(muestras_.size() - 1));
    return muestras_.size() <= gruposMaximos;
}

Automata::Numero Automata::grupoDeAlta(char16_t unidad) const {
    const auto siguiente = std::upper_bound(inicios_.begin(), inicios_.end(), unidad);
    return grupos_[static_cast<std::size_t>(siguiente - inicios_.begin()) - 1];
}

bool Automata::toma(std::uint32_t i, char16_t unidad) const {
    const Instruccion& instruccion = programa_->codigo[i];
    if (instruccion.operacion == Operacion::Unidad) return instruccion.a == unidad;
    return instruccion.operacion == Operacion::Clase && programa_->clases[instruccion.a].contiene(unidad);
}

bool Automata::sigue(std::uint32_t desde, Hilos& hilos, bool alFinal) {
    pendientes_.assign(1, desde);
    while (!pendientes_.empty()) {
        const std::uint32_t i = pendientes_.back();
        pendientes_.pop_back();
        if (visitadas_[i] == visita_) continue;
        visitadas_[i] = visita_;
        const Instruccion& instruccion = programa_->codigo[i];
        switch (instruccion.operacion) {
        case Operacion::Salta:
            pendientes_.push_back(instruccion.a);
            break;
        case Operacion::Prueba:
            pendientes_.push_back(instruccion.a);
            pendientes_.push_back(i + 1);
            break;
        case Operacion::Aplaza:
            pendientes_.push_back(i + 1);
            pendientes_.push_back(instruccion.a);
            break;
        case Operacion::Acepta:
            hilos.push_back(i);
            return true;
        case Operacion::Final:
            if (alFinal) {
                pendientes_.push_back(i + 1);
                break;
            }
            [[fallthrough]];
        case Operacion::Unidad:
        case Operacion::Clase:
            hilos.push_back(i);
            break;
        case Operacion::Inicio:
        case Operacion::Frontera:
        case Operacion::NoFrontera:
        case Operacion::Referencia:
        case Operacion::Guarda:
        case Operacion::PreparaBucle:
        case Operacion::EntraEnBucle:
        case Operacion::EmpiezaVuelta:
        case Operacion::CierraBucle:
        case Operacion::AbreDelante:
        case Operacion::AbreDelanteNo:
        case Operacion::CierraDelante:
        case Operacion::CierraDelanteNo:
            break; // never in these programs
        }
    }
    return false;
}

bool Automata::aceptaAlFinal(const Hilos& hilos) {
    ++visita_;
    Hilos resto;
    return std::any_of(hilos.begin(), hilos.end(), [&](std::uint32_t i) {
        return programa_->codigo[i].operacion == Operacion::Final && sigue(i, resto, true);
    });
}

Automata::Numero Automata::calcula(Numero estado, std::size_t grupo) {
    ++visita_;
    Hilos hilos;
    bool acepta = false;
    const Hilos anteriores = estados_[estado].hilos;
    for (const std::uint32_t i : anteriores) {
        if (!toma(i, muestras_[grupo])) continue;
        acepta = sigue(i + 1, hilos, false);
        if (acepta) break;
    }
    const Numero siguiente = numeroDe(std::move(hilos), acepta);
    if (siguiente != desconocido) transiciones_[celda(estado, grupo)] = siguiente;
    return siguiente;
}

Automata::Numero Automata::numeroDe(Hilos hilos, bool acepta) {
    const auto conocido = numeros_.find(hilos);
    if (conocido != numeros_.end()) return conocido->second;
    if (estados_.size() >= estadosMaximos) return desconocido;
    const auto numero = static_cast<Numero>(estados_.size());
    numeros_.emplace(hilos, numero);
    estados_.push_back({std::move(hilos), false});
    acepta_.push_back(acepta ? 1 : 0);
    estados_.back().aceptaAlFinal = aceptaAlFinal(estados_.back().hilos);
    transiciones_.resize(estados_.size() << anchura_, desconocido);
    return numero;
}

} // namespace norvik
