// The product of several automata, built while it runs.
//
// Definitions that begin alike (a name, a type's name, a label) would each walk over the same word. Here a
// state is the list of the members that are still walking, each in its own state, so that the word is walked
// once. A member leaves the list when it can go no further; the last place where it accepted is its match. A
// stay in one state is walked without looking at anything else. What is rare is left to the members alone:
// long walks, the end of the text, characters beyond the first 256, and more states than are worth keeping.
#include "norvik/pattern/patronConjunto.hpp"

#include <algorithm>

namespace norvik {

namespace {

constexpr std::size_t estadosMaximos = 500;
constexpr std::size_t camino = 256; // characters walked together

} // namespace

AutomataConjunto::AutomataConjunto(std::vector<Automata*> miembros) : automatas_(std::move(miembros)) {
    ultimaInicial_.fill({0, desconocido});
    for (const Automata* automata : automatas_) afina(*automata);
}

// Splits the classes by what one more automaton tells apart.
void AutomataConjunto::afina(const Automata& automata) {
    const std::size_t numGrupos = automata.muestras_.size();
    std::vector<std::uint16_t> nuevas(numClases_ * numGrupos); // by class and group: class + 1, 0: none yet
    std::uint16_t numero = 0;
    for (std::size_t unidad = 0; unidad < clases_.size(); ++unidad) {
        const std::size_t grupo = automata.grupoDe(static_cast<char16_t>(unidad));
        std::uint16_t& nueva = nuevas[clases_[unidad] * numGrupos + grupo];
        if (nueva == 0) nueva = ++numero;
        clases_[unidad] = static_cast<std::uint8_t>(nueva - 1);
    }
    numClases_ = numero;
}

void AutomataConjunto::coinciden(std::u16string_view sujeto, std::size_t inicio, std::uint64_t cuales,
                                 Intentos& intentos) {
    intentos.coinciden = 0;
    intentos.indecisos = cuales;
    const Numero primero = inicial(cuales, sujeto[inicio]);
    Numero estado = primero;
    if (estado == desconocido) return;
    const std::size_t tope = std::min(sujeto.size(), inicio + camino);
    std::size_t i = inicio;
    for (std::size_t racha = inicio;; racha = ++i) {
        Numero destino = desconocido;
        for (; i < tope; ++i) {
            destino = siguiente(estado, sujeto[i]);
            if (destino != estado) break;
        }
        intentos.coinciden |= aceptan_[estado];
        paraCadaBit(aceptan_[estado], [&](std::size_t lugar) { intentos.fin[lugar] = i; });
        intentos.indecisos = vivos_[estado];
        if (i == tope || destino == desconocido) break;
        const std::uint64_t fallidos = vivos_[estado] & ~vivos_[destino] & ~intentos.coinciden;
        if (fallidos != 0) {
            const std::size_t enVano = saltaEnVano(sujeto, inicio + 1, racha, i, primero, estado);
            paraCadaBit(fallidos, [&](std::size_t lugar) { intentos.fin[lugar] = enVano; });
        }
        intentos.indecisos = vivos_[destino];
        if (intentos.indecisos == 0) break;
        estado = destino;
    }
    intentos.coinciden &= ~intentos.indecisos;
}

// Walks have ended at `hasta`, where they had been in `estado` since `desde`. Walks that come to this state
// in between end like them: the first position from `i` on whose walk does not do so at once.
std::size_t AutomataConjunto::saltaEnVano(std::u16string_view sujeto, std::size_t i, std::size_t desde,
                                          std::size_t hasta, Numero primero, Numero estado) {
    while (i + 1 >= desde && i < hasta && siguiente(primero, sujeto[i]) == estado) ++i;
    return i;
}

AutomataConjunto::Numero AutomataConjunto::inicial(std::uint64_t cuales, char16_t unidad) {
    if (unidad >= ultimaInicial_.size()) return desconocido;
    auto& [para, numero] = ultimaInicial_[unidad];
    if (para == cuales) return numero;
    if (iniciales_.size() >= estadosMaximos) return desconocido;
    const auto [sitio, nueva] = iniciales_.try_emplace(cuales, desconocido);
    if (nueva) {
        Miembros miembros;
        paraCadaBit(cuales, [&](std::size_t lugar) {
            miembros.push_back({static_cast<std::uint8_t>(lugar), automatas_[lugar]->inicial_});
        });
        sitio->second = numeroDe(std::move(miembros));
    }
    para = cuales;
    return numero = sitio->second;
}

AutomataConjunto::Numero AutomataConjunto::calcula(Numero estado, char16_t unidad) {
    Miembros miembros;
    for (const Miembro& miembro : miembros_[estado]) {
        const Automata::Numero destino = automatas_[miembro.lugar]->siguiente(miembro.estado, unidad);
        if (destino == Automata::desconocido) return desconocido;
        if (destino != Automata::muerto) miembros.push_back({miembro.lugar, destino});
    }
    const Numero destino = numeroDe(std::move(miembros));
    transiciones_[estado * numClases_ + clases_[unidad]] = destino;
    return destino;
}

AutomataConjunto::Numero AutomataConjunto::numeroDe(Miembros miembros) {
    const auto conocido = numeros_.find(miembros);
    if (conocido != numeros_.end()) return conocido->second;
    if (miembros_.size() >= estadosMaximos) return desconocido;
    const auto numero = static_cast<Numero>(miembros_.size());
    std::uint64_t vivos = 0;
    std::uint64_t aceptan = 0;
    for (const Miembro& miembro : miembros) {
        const std::uint64_t bit = std::uint64_t{1} << miembro.lugar;
        vivos |= bit;
        if (automatas_[miembro.lugar]->acepta_[miembro.estado] != 0) aceptan |= bit;
    }
    vivos_.push_back(vivos);
    aceptan_.push_back(aceptan);
    transiciones_.resize(transiciones_.size() + numClases_, desconocido);
    numeros_.emplace(miembros, numero);
    miembros_.push_back(std::move(miembros));
    return numero;
}

} // namespace norvik
