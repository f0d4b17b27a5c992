// SPDX-License-Identifier: MIT

// The product of several automata, built while it runs.
//
// Definitions that begin alike (a name, a type's name, a label) would each walk over the same word. Here a
// state is the list of the members that are still walking, each in its own state, so that the word is walked
// once. A member leaves the list when it can go no further; the last place where it accepted is its match. A
// stay in one state is walked without looking at anything else. What is rare is left to the members alone:
// long walks, the end of the text, characters beyond the first 256, and more states than are worth keeping.
#include "norvik/pattern/patronConjunto.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t estadosConjuntosMaximos = 500;
constexpr std::size_t camino = 256; // characters walked together

} // namespace

AutomataConjunto::AutomataConjunto(std::vector<Automata*> miembros) : automatas_(std::move(miembros)) {
    for (const Automata* automata : automatas_) {
        afina(*automata);
        miraAtras_ = miraAtras_ || automata->miraAtras();
    }
}

// Splits the classes by what one more automaton tells apart.
void AutomataConjunto::afina(const Automata& automata) {
    const std::size_t numGrupos = automata.numGrupos();
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
                                 Intentos& intentos, Gasto& gasto) {
    intentos.coinciden = 0;
    intentos.indecisos = cuales;
    const Numero primero = inicial(cuales, sujeto, inicio, gasto);
    Numero estado = primero;
    if (estado == desconocido) return;
    const std::size_t tope = std::min(sujeto.size(), inicio + camino);
    std::size_t i = inicio;
    for (std::size_t racha = inicio;; racha = ++i) {
        Numero destino = estado;
        while (destino == estado) {
            i = finDeEstancia(estado, sujeto, i, tope);
            destino = i < tope ? siguiente(estado, sujeto[i], gasto) : desconocido;
        }
        const Mascaras aqui = mascaras_[estado];
        intentos.coinciden |= aqui.todosCompletos();
        paraCadaBit(aqui.completos, [&](std::size_t lugar) { intentos.fin[lugar] = i; });
        paraCadaBit(aqui.completosAntes, [&](std::size_t lugar) { intentos.fin[lugar] = i - 1; });
        intentos.indecisos = aqui.vivos;
        if (i == tope || destino == desconocido) break;
        const std::uint64_t siguen = mascaras_[destino].vivos;
        const std::uint64_t fallidos = aqui.vivos & ~siguen & ~intentos.coinciden;
        if (fallidos != 0) {
            const std::size_t enVano =
                saltaEnVano(sujeto, inicio + 1, racha, i, cuales, primero, estado, gasto);
            paraCadaBit(fallidos, [&](std::size_t lugar) { intentos.fin[lugar] = enVano; });
        }
        intentos.indecisos = siguen;
        if (siguen == 0) break;
        estado = destino;
    }
    intentos.coinciden &= ~intentos.indecisos;
}

// The first position from `i` on, short of `tope`, whose character is not known to keep a state as it is.
std::size_t AutomataConjunto::finDeEstancia(Numero estado, std::u16string_view sujeto, std::size_t i,
                                            std::size_t tope) const {
    const Numero* const fila = &transiciones_[estado * numClases_];
    while (i < tope && sujeto[i] < clases_.size() && fila[clases_[sujeto[i]]] == estado) ++i;
    return i;
}

// Walks have ended at `hasta`, where they had been in `estado` since `desde`. Walks that come to this state
// in between end like them: the first position from `i` on whose walk does not do so at once.
std::size_t AutomataConjunto::saltaEnVano(std::u16string_view sujeto, std::size_t i, std::size_t desde,
                                          std::size_t hasta, std::uint64_t cuales, Numero primero,
                                          Numero estado, Gasto& gasto) {
    for (; i + 1 >= desde && i < hasta; ++i) {
        if (miraAtras_) primero = inicial(cuales, sujeto, i, gasto);
        if (primero == desconocido || siguiente(primero, sujeto[i], gasto) != estado) break;
    }
    return i;
}

AutomataConjunto::Numero AutomataConjunto::inicial(std::uint64_t cuales, std::u16string_view sujeto,
                                                   std::size_t posicion, Gasto& gasto) {
    const char16_t unidad = sujeto[posicion];
    if (unidad >= clases_.size()) return desconocido;
    const Detras detras = detrasEn(sujeto, posicion);
    Inicial& ultima = ultimaInicial_[static_cast<std::size_t>(detras)][unidad];
    if (ultima.cuales == cuales) return ultima.numero;
    const std::pair clave(detras, cuales);
    auto sitio = iniciales_.find(clave);
    if (sitio == iniciales_.end()) {
        if (iniciales_.size() >= estadosConjuntosMaximos) return desconocido;
        Miembros miembros;
        paraCadaBit(cuales, [&](std::size_t lugar) {
            miembros.push_back({static_cast<std::uint8_t>(lugar), automatas_[lugar]->inicial(detras)});
        });
        sitio = iniciales_.emplace(clave, numeroDe(std::move(miembros), gasto)).first;
    }
    ultima = {cuales, sitio->second};
    return ultima.numero;
}

AutomataConjunto::Numero AutomataConjunto::calcula(Numero estado, char16_t unidad, Gasto& gasto) {
    Miembros miembros;
    for (const auto [lugar, suyo] : *miembros_[estado]) {
        const Automata::Numero destino = automatas_[lugar]->siguiente(suyo, unidad, gasto);
        if (destino == Automata::desconocido) return desconocido;
        if (destino != Automata::muerto) miembros.push_back({lugar, destino});
    }
    const Numero destino = numeroDe(std::move(miembros), gasto);
    transiciones_[estado * numClases_ + clases_[unidad]] = destino;
    return destino;
}

AutomataConjunto::Numero AutomataConjunto::numeroDe(Miembros miembros, Gasto& gasto) {
    if (const auto conocido = numeros_.find(miembros); conocido != numeros_.end()) return conocido->second;
    const std::size_t numero = numeros_.size();
    const std::size_t bytes = 128 + miembros.size() * sizeof(Miembro) + numClases_ * sizeof(Numero);
    if (numero >= estadosConjuntosMaximos || !gasto.cabida().toma(bytes)) {
        gasto.anotaDemora();
        return desconocido;
    }
    // Until the number is filed, what stands in its place is nobody's, and is written anew.
    miembros_.resize(numero + 1);
    mascaras_.resize(numero + 1);
    transiciones_.resize((numero + 1) * numClases_, desconocido);
    mascaras_[numero] = mascarasDe(miembros);
    miembros_[numero] = &numeros_.emplace(std::move(miembros), static_cast<Numero>(numero)).first->first;
    return static_cast<Numero>(numero);
}

AutomataConjunto::Mascaras AutomataConjunto::mascarasDe(const Miembros& miembros) const {
    Mascaras mascaras;
    for (const auto [lugar, estado] : miembros) {
        const std::uint64_t bit = std::uint64_t{1} << lugar;
        mascaras.vivos |= bit;
        switch (automatas_[lugar]->completa(estado)) {
        case Automata::Completa::No:
            break;
        case Automata::Completa::Aqui:
            mascaras.completos |= bit;
            break;
        case Automata::Completa::Antes:
            mascaras.completosAntes |= bit;
            break;
        }
    }
    return mascaras;
}

} // namespace norvik::inline v0_2
