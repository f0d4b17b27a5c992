// SPDX-License-Identifier: MIT

// The automaton of a pattern, by subsets, with preferences.
//
// A state is the list of the program's threads after some characters, in the order in which backtracking
// would try them (Thompson 1968, made deterministic lazily; the order as in Cox 2010). A thread that
// completes the match hides the less preferred ones, so the last complete match met while walking is the one
// backtracking finds first. That holds for programs of branches whose loops always take something: where two
// threads meet in one instruction, the later one could only fail again. States appear as texts ask for them:
// a pattern costs what it uses, a character one look-up, and no pattern runs away.
// A thread at an assertion about what follows waits in the state until the next character, or the end, is
// known; a match that only then turns out complete ended one character before, and the state after it says
// so. What stands behind is known at once; a state that waits keeps it. Walks that lead to nothing could
// still add up to the square of the text (a comment opened again and again and never closed), so long ones
// leave their states behind, at one position of many: a later one that comes to the same state at the same
// place stops. The short ones of definitions that are nearly alike (a name that is no type name, because it
// ends otherwise) go over a word once and not once from each of its letters. Units that no class of the
// pattern tells apart share a column.
#include "norvik/pattern/patronAutomata.hpp"

#include <algorithm>
#include <bit>
#include <string>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t estadosMaximos = 1000;
constexpr std::size_t instruccionesMaximas = 5000;
constexpr std::size_t repartoMaximo = 1'000'000; // interval × class
constexpr std::size_t gruposMaximos = 250;
constexpr std::size_t caminoCorto = 256;
constexpr std::size_t pasoRecuerdo = 64; // positions between two that long walks remember

// What there is no room for is forgotten: later walks take longer.
void recuerda(const std::vector<std::uint64_t>& lugares, Automata::Recuerdo& recuerdo, Gasto& gasto) {
    for (const std::uint64_t lugar : lugares) {
        if (recuerdo.contains(lugar)) continue;
        if (!gasto.cabida().toma(Automata::bytesPorRecuerdo)) return gasto.anotaDemora();
        recuerdo.insert(lugar);
    }
}

constexpr bool esAsercion(Operacion operacion) {
    return operacion == Operacion::Inicio || operacion == Operacion::Final ||
           operacion == Operacion::Frontera || operacion == Operacion::NoFrontera;
}

} // namespace

Detras detrasDe(std::u16string_view sujeto, std::size_t posicion) {
    if (posicion == 0) return Detras::Principio;
    return esDePalabra(sujeto[posicion - 1]) ? Detras::Palabra : Detras::NoPalabra;
}

std::optional<Automata> Automata::de(const Programa& programa, Gasto& gasto) {
    using enum Operacion;
    const bool sirve = programa.codigo.size() <= instruccionesMaximas &&
                       !programa.usaAlguna({Referencia, Guarda, PreparaBucle, AbreDelante, AbreDelanteNo});
    if (!sirve) return std::nullopt;
    Automata automata(programa);
    automata.conFronteras_ = programa.usaAlguna({Frontera, NoFrontera});
    automata.miraAtras_ = automata.conFronteras_ || programa.usaAlguna({Inicio});
    if (!automata.reparteUnidades()) return std::nullopt;
    automata.visitadas_.resize(programa.codigo.size());
    automata.numeroDe({}, gasto);
    for (const Detras detras : {Detras::Principio, Detras::NoPalabra, Detras::Palabra})
        automata.iniciales_[static_cast<std::size_t>(detras)] = automata.numeroInicial(detras, gasto);
    if (std::ranges::find(automata.iniciales_, desconocido) != automata.iniciales_.end()) return std::nullopt;
    return automata;
}

Automata::Numero Automata::numeroInicial(Detras detras, Gasto& gasto) {
    Estado estado;
    estado.detras = detras;
    sigueTodos({0}, {detras}, estado.hilos);
    return numeroDe(std::move(estado), gasto);
}

Intento Automata::coincide(std::u16string_view sujeto, std::size_t inicio, Recuerdo& recuerdo, Gasto& gasto) {
    gasto.anota(caminoCorto);
    Intento intento{Intento::Tipo::Nada, inicio + 1};
    Numero estado = inicialEn(sujeto, inicio);
    std::size_t racha = inicio; // where the walk came to `estado`
    const std::size_t largo = std::min(sujeto.size(), inicio + caminoCorto);
    for (std::size_t i = inicio;; ++i) {
        if (completa_[estado] != Completa::No) intento = {Intento::Tipo::Coincide, finEn(estado, i)};
        if (i == largo) return caminaLargo(sujeto, i, estado, intento, recuerdo, gasto);
        const Numero destino = siguiente(estado, sujeto[i], gasto);
        if (destino == desconocido) return {Intento::Tipo::Indeciso, 0};
        if (destino == muerto) {
            if (intento.tipo == Intento::Tipo::Nada)
                intento.fin = saltaEnVano(sujeto, inicio + 1, racha, i, estado, gasto);
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
                                  std::size_t hasta, Numero estado, Gasto& gasto) {
    std::size_t i = inicio;
    while (i + 1 >= desde && i < hasta && siguiente(inicialEn(sujeto, i), sujeto[i], gasto) == estado) ++i;
    return i;
}

// The same from `i` on, where it has been seen already whether `estado` is complete. What has been passed
// since the last complete match is remembered.
Intento Automata::caminaLargo(std::u16string_view sujeto, std::size_t i, Numero estado, Intento intento,
                              Recuerdo& recuerdo, Gasto& gasto) {
    std::vector<std::uint64_t> enVano;
    for (; i < sujeto.size(); ++i) {
        estado = siguiente(estado, sujeto[i], gasto);
        if (estado == desconocido) return {Intento::Tipo::Indeciso, 0};
        if (estado == muerto) break;
        if (completa_[estado] != Completa::No) {
            intento = {Intento::Tipo::Coincide, finEn(estado, i + 1)};
            enVano.clear();
        } else if ((i + 1) % pasoRecuerdo == 0) {
            gasto.anota(pasoRecuerdo);
            const std::uint64_t lugar = std::uint64_t{(i + 1) / pasoRecuerdo} << 16 | estado;
            if (recuerdo.contains(lugar)) break;
            enVano.push_back(lugar);
        }
    }
    if (i == sujeto.size() && aceptaAlFinal_[estado] != 0) return {Intento::Tipo::Coincide, i};
    recuerda(enVano, recuerdo, gasto);
    return intento;
}

// The instructions that take a unit, one of those that are equal: the others tell no units apart.
std::vector<std::uint32_t> Automata::tomasDistintas() const {
    const auto& codigo = programa_->codigo;
    std::vector<std::uint32_t> tomas;
    for (std::uint32_t i = 0; i < codigo.size(); ++i)
        if (codigo[i].operacion == Operacion::Unidad || codigo[i].operacion == Operacion::Clase)
            tomas.push_back(i);
    const auto clave = [&](std::uint32_t i) { return std::pair(codigo[i].operacion, codigo[i].a); };
    std::ranges::sort(tomas, {}, clave);
    const auto iguales = [&](std::uint32_t i, std::uint32_t j) { return clave(i) == clave(j); };
    tomas.erase(std::unique(tomas.begin(), tomas.end(), iguales), tomas.end());
    return tomas;
}

// Cuts the units where a class begins or ends, and gathers the intervals that the same instructions take.
bool Automata::reparteUnidades() {
    inicios_.push_back(0);
    const std::vector<std::uint32_t> tomas = tomasDistintas();
    const auto corta = [&](RangoUnidades rango) {
        inicios_.push_back(rango.desde);
        if (rango.hasta < 0xFFFF) inicios_.push_back(static_cast<char16_t>(rango.hasta + 1));
    };
    for (const std::uint32_t i : tomas) {
        const Instruccion& instruccion = programa_->codigo[i];
        const auto unidad = static_cast<char16_t>(instruccion.a);
        if (instruccion.operacion == Operacion::Unidad) {
            corta({unidad, unidad});
        } else {
            for (const RangoUnidades& rango : programa_->clases[instruccion.a].rangos()) corta(rango);
        }
    }
    if (conFronteras_)
        for (const RangoUnidades& rango : rangosDe(PropiedadDeUnidad::Palabra)) corta(rango);
    std::sort(inicios_.begin(), inicios_.end());
    inicios_.erase(std::unique(inicios_.begin(), inicios_.end()), inicios_.end());
    if (inicios_.size() * tomas.size() > repartoMaximo) return false;
    std::map<std::vector<bool>, std::uint8_t> porFirma;
    for (const char16_t unidad : inicios_) {
        std::vector<bool> firma(tomas.size() + 1);
        for (std::size_t i = 0; i < tomas.size(); ++i) firma[i] = toma(tomas[i], unidad);
        firma.back() = detrasDeUnidad(unidad) == Detras::Palabra;
        const auto [sitio, nuevo] =
            porFirma.try_emplace(std::move(firma), static_cast<std::uint8_t>(porFirma.size()));
        if (nuevo) muestras_.push_back(unidad);
        if (muestras_.size() > gruposMaximos) return false;
        grupos_.push_back(sitio->second);
    }
    for (std::size_t unidad = 0; unidad < bajas_.size(); ++unidad)
        bajas_[unidad] = grupoDeAlta(static_cast<char16_t>(unidad));
    anchura_ = static_cast<std::size_t>(std::bit_width(muestras_.size() - 1));
    return true;
}

std::uint8_t Automata::grupoDeAlta(char16_t unidad) const {
    const auto siguiente = std::upper_bound(inicios_.begin(), inicios_.end(), unidad);
    return grupos_[static_cast<std::size_t>(siguiente - inicios_.begin()) - 1];
}

bool Automata::toma(std::uint32_t i, char16_t unidad) const {
    const Instruccion& instruccion = programa_->codigo[i];
    if (instruccion.operacion == Operacion::Unidad) return instruccion.a == unidad;
    return instruccion.operacion == Operacion::Clase && programa_->clases[instruccion.a].contiene(unidad);
}

Detras Automata::detrasDeUnidad(char16_t unidad) const {
    return conFronteras_ && esDePalabra(unidad) ? Detras::Palabra : Detras::NoPalabra;
}

bool Automata::sigue(std::uint32_t desde, Entorno entorno, Hilos& hilos) {
    using enum Operacion;
    pendientes_.assign(1, desde);
    while (!pendientes_.empty()) {
        const std::uint32_t i = pendientes_.back();
        pendientes_.pop_back();
        if (visitadas_[i] == visita_) continue;
        visitadas_[i] = visita_;
        const auto [operacion, a, b] = programa_->codigo[i];
        if (operacion == Salta) {
            pendientes_.push_back(a);
        } else if (operacion == Prueba || operacion == Aplaza) {
            pendientes_.push_back(operacion == Prueba ? a : i + 1);
            pendientes_.push_back(operacion == Prueba ? i + 1 : a);
        } else if (operacion == Inicio) {
            if (entorno.detras == Detras::Principio) pendientes_.push_back(i + 1);
        } else if (esAsercion(operacion) && entorno.delante != Delante::SinSaber) {
            const bool enFrontera =
                (entorno.detras == Detras::Palabra) != (entorno.delante == Delante::Palabra);
            const bool vale =
                operacion == Final ? entorno.delante == Delante::Fin : enFrontera == (operacion == Frontera);
            if (vale) pendientes_.push_back(i + 1);
        } else {
            hilos.push_back(i);
            if (operacion == Acepta) return true;
        }
    }
    return false;
}

bool Automata::sigueTodos(const Hilos& desde, Entorno entorno, Hilos& hilos) {
    ++visita_;
    return std::any_of(desde.begin(), desde.end(), [&](std::uint32_t i) { return sigue(i, entorno, hilos); });
}

bool Automata::espera(const Hilos& hilos) const {
    return std::any_of(hilos.begin(), hilos.end(),
                       [&](std::uint32_t i) { return esAsercion(programa_->codigo[i].operacion); });
}

bool Automata::estaCompleto(const Hilos& hilos) const {
    return !hilos.empty() && programa_->codigo[hilos.back()].operacion == Operacion::Acepta;
}

Automata::Numero Automata::calcula(Numero estado, std::size_t grupo, Gasto& gasto) {
    gasto.anota(2 * programa_->codigo.size());
    const char16_t unidad = muestras_[grupo];
    const Estado& actual = *estados_[estado];
    Hilos hilos = actual.hilos;
    Estado nuevo;
    if (espera(hilos)) {
        hilos.clear();
        const bool esPalabra = detrasDeUnidad(unidad) == Detras::Palabra;
        const bool completo = sigueTodos(
            actual.hilos, {actual.detras, esPalabra ? Delante::Palabra : Delante::NoPalabra}, hilos);
        nuevo.completaAntes = completo && completa_[estado] != Completa::Aqui;
    }
    nuevo.detras = detrasDeUnidad(unidad);
    std::erase_if(hilos, [&](std::uint32_t i) { return !toma(i, unidad); });
    for (std::uint32_t& i : hilos) ++i;
    sigueTodos(hilos, {nuevo.detras}, nuevo.hilos);
    const Numero siguiente = numeroDe(std::move(nuevo), gasto);
    if (siguiente != desconocido) transiciones_[celda(estado, grupo)] = siguiente;
    return siguiente;
}

std::size_t Automata::bytesDe(const Estado& estado) const {
    constexpr std::size_t deNodo = 64;
    return deNodo + sizeof(Estado) + estado.hilos.size() * sizeof(std::uint32_t) +
           (sizeof(Numero) << anchura_);
}

Automata::Numero Automata::numeroDe(Estado estado, Gasto& gasto) {
    const bool esperan = espera(estado.hilos);
    const bool completo = estaCompleto(estado.hilos);
    if (!esperan) estado.detras = Detras::NoPalabra;
    if (completo) estado.completaAntes = false;
    if (const auto conocido = numeros_.find(estado); conocido != numeros_.end()) return conocido->second;
    const std::size_t numero = numeros_.size();
    if (numero >= estadosMaximos || !gasto.cabida().toma(bytesDe(estado))) {
        gasto.anotaFalta();
        return desconocido;
    }
    // Until the number is filed, what stands in its place is nobody's, and is written anew.
    estados_.resize(numero + 1);
    completa_.resize(numero + 1);
    aceptaAlFinal_.resize(numero + 1);
    transiciones_.resize((numero + 1) << anchura_, desconocido);
    completa_[numero] = completo ? Completa::Aqui : estado.completaAntes ? Completa::Antes : Completa::No;
    Hilos resto;
    aceptaAlFinal_[numero] =
        esperan && sigueTodos(estado.hilos, {estado.detras, Delante::Fin}, resto) ? 1 : 0;
    estados_[numero] = &numeros_.emplace(std::move(estado), static_cast<Numero>(numero)).first->first;
    return static_cast<Numero>(numero);
}

} // namespace norvik::inline v0_2
