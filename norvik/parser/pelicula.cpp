// SPDX-License-Identifier: MIT

// Every action of an LR parser puts exactly one entry on its stack: a shift the state of its token, a
// reduction, once its body is off, the state that its head leads to. So an entry is kept for each action,
// with a link to the one below it, and none is ever changed: the stack of any moment is the chain that begins
// at the entry of the last action before it, and all the stacks of a film share their entries (a persistent
// stack). A film takes 12 bytes an action, a jump the height of the stack.
//
// An entry is the root of the tree of its symbol, too. Its children are the entries that a reduction took off
// the stack of the moment before, its tokens those shifted since the entry below it was made.
//
// The driver itself has done the parse; what it asked of the table is asked again to know the states.
#include "norvik/parser/pelicula.hpp"

#include "norvik/parser/lectorTokens.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

Pelicula::Pelicula(std::unique_ptr<const TextoAnalizado> texto, std::span<const std::int16_t> pasos,
                   const Fin& fin, LenguajeAnalisis& lenguaje)
    : texto_(std::move(texto)), ultimaDefinicion_(fin.lectura.leido.definicion),
      extremosDelUltimo_(extremosDelUltimo(fin.lectura)), aceptado_(fin.aceptado) {
    codigos_.reserve(texto_->tokens.size() + 1);
    for (const TokenSituado& token : texto_->tokens)
        codigos_.push_back(lenguaje.columna({token.definicion, {}}));
    codigos_.push_back(lenguaje.columna(fin.lectura.leido));
    rueda(pasos, lenguaje);
}

void Pelicula::rueda(std::span<const std::int16_t> pasos, const LenguajeAnalisis& lenguaje) {
    fotogramas_.reserve(pasos.size() + 1);
    fotogramas_.emplace_back();
    for (const std::int16_t paso : pasos) {
        const auto anterior = static_cast<Nodo>(ultimo());
        Fotograma nuevo{anterior, fotogramas_.back().tokens, 0, paso};
        if (paso == 0) {
            nuevo.estado = lenguaje.entrada(fotogramas_.back().estado, codigos_[nuevo.tokens++]);
        } else {
            const auto regla = lenguaje.regla(paso);
            nuevo.debajo = sin(anterior, static_cast<std::size_t>(std::max<int>(regla.numElementos, 0)));
            nuevo.estado = lenguaje.entrada(fotogramas_[nuevo.debajo].estado, regla.columnaCabeza);
        }
        if (nuevo.estado == 0) {
            sinSalida_ = paso;
            return;
        }
        fotogramas_.push_back(nuevo);
    }
}

Pelicula::Nodo Pelicula::sin(Nodo cima, std::size_t cuantos) const {
    for (; cuantos > 0; --cuantos) cima = fotogramas_[cima].debajo;
    return cima;
}

std::size_t Pelicula::momentoEn(std::size_t lugar) const {
    const auto& tokens = texto_->tokens;
    const auto token = std::ranges::upper_bound(tokens, lugar, {}, &TokenSituado::fin);
    const auto desplazados = static_cast<std::uint32_t>(token - tokens.begin());
    const auto momento = std::ranges::lower_bound(fotogramas_, desplazados, {}, &Fotograma::tokens);
    return static_cast<std::size_t>(momento - fotogramas_.begin());
}

AccionLR Pelicula::accion(std::size_t momento) const {
    using enum AccionLR::Tipo;
    if (momento == ultimo()) return {aceptado_ ? Acepta : Falla, sinSalida_, 0};
    const Fotograma& despues = fotogramas_[momento + 1];
    return {despues.regla == 0 ? Desplaza : Reduce, despues.regla, despues.estado};
}

Pelicula::Siguiente Pelicula::siguiente(std::size_t momento) const {
    const std::size_t token = fotogramas_[momento].tokens;
    const bool esElUltimo = token == texto_->tokens.size();
    TokenSituado sitio{ultimaDefinicion_, 0, 0};
    Extremos suyos = extremosDelUltimo_;
    if (!esElUltimo) {
        sitio = texto_->tokens[token];
        suyos = {sitio.inicio, sitio.fin};
    }
    std::u16string_view nombre;
    if (sitio.definicion == TokenLeido::fin)
        nombre = tokenFin;
    else if (sitio.definicion != TokenLeido::desconocido)
        nombre = texto_->nombreDe(sitio);
    return {nombre, std::u16string_view(texto_->texto).substr(suyos.inicio, suyos.fin - suyos.inicio),
            texto_->lugares.rango(suyos.inicio, suyos.fin), codigos_[token]};
}

std::vector<Pelicula::Entrada> Pelicula::pila(std::size_t momento) const {
    std::vector<Entrada> entradas;
    for (auto nodo = static_cast<Nodo>(momento); nodo != 0; nodo = fotogramas_[nodo].debajo)
        entradas.push_back({fotogramas_[nodo].estado, nodo});
    entradas.emplace_back();
    std::ranges::reverse(entradas);
    return entradas;
}

std::u16string_view Pelicula::simbolo(Nodo nodo) const {
    const Fotograma& suyo = fotogramas_[nodo];
    if (suyo.regla == 0) return texto_->nombreDe(texto_->tokens[suyo.tokens - 1]);
    return texto_->vocabulario->reglas[static_cast<std::size_t>(suyo.regla) - 1].cabeza;
}

Rango Pelicula::rango(Nodo nodo) const {
    const auto [inicio, fin] = extremos(nodo);
    return texto_->lugares.rango(inicio, fin);
}

std::u16string_view Pelicula::texto(Nodo nodo) const {
    const auto [inicio, fin] = extremos(nodo);
    return std::u16string_view(texto_->texto).substr(inicio, fin - inicio);
}

std::vector<Pelicula::Nodo> Pelicula::hijos(Nodo nodo) const {
    std::vector<Nodo> suyos;
    for (Nodo hijo = nodo - 1; hijo != fotogramas_[nodo].debajo; hijo = fotogramas_[hijo].debajo)
        suyos.push_back(hijo);
    std::ranges::reverse(suyos);
    return suyos;
}

// What has no token is empty, behind the token before it.
Pelicula::Extremos Pelicula::extremos(Nodo nodo) const {
    const auto& tokens = texto_->tokens;
    const std::size_t primero = fotogramas_[fotogramas_[nodo].debajo].tokens;
    const std::size_t fin = fotogramas_[nodo].tokens;
    if (fin > primero) return {tokens[primero].inicio, tokens[fin - 1].fin};
    const std::size_t anterior = primero == 0 ? 0 : tokens[primero - 1].fin;
    return {anterior, anterior};
}

Pelicula::Extremos Pelicula::extremosDelUltimo(const Lectura& lectura) const {
    const auto inicio = static_cast<std::size_t>(lectura.inicio) - 1;
    const auto fin = static_cast<std::size_t>(lectura.fin) - 1;
    const bool desconocido = lectura.leido.definicion == TokenLeido::desconocido;
    return {inicio, desconocido ? inicio + largoDeCaracter(texto_->texto, inicio) : fin};
}

} // namespace norvik::inline v0_2
