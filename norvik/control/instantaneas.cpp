// SPDX-License-Identifier: MIT

// A history of n snapshots of a text of m characters would take n·m characters. Neighbours differ in little,
// so that only the newest is kept whole and each other one as the characters in which it differs from the one
// after it: the prefix and the suffix that they share are counted, the middle is kept. Putting one in and
// taking one out cost a comparison and a copy of the text. Every `entreEnteras` snapshots one is kept whole
// as well, so that one in the middle is read in so many steps at most. (Differences backwards from the newest
// version: Tichy's RCS, 1985; here by prefix and suffix alone, as one change touches one place.)

#include "norvik/control/instantaneas.hpp"

#include "norvik/base/numeros.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t entreEnteras = 256;
constexpr std::size_t bloque = 256; // compared at once

} // namespace

std::size_t prefijoComun(std::u16string_view a, std::u16string_view b) {
    const std::size_t n = std::min(a.size(), b.size());
    std::size_t i = 0;
    while (i + bloque <= n && std::equal(a.begin() + i, a.begin() + i + bloque, b.begin() + i)) i += bloque;
    while (i < n && a[i] == b[i]) ++i;
    return i;
}

std::size_t sufijoComun(std::u16string_view a, std::u16string_view b) {
    const std::size_t n = std::min(a.size(), b.size());
    std::size_t i = 0;
    while (i + bloque <= n && std::equal(a.end() - i - bloque, a.end() - i, b.end() - i - bloque)) {
        i += bloque;
    }
    while (i < n && a[a.size() - i - 1] == b[b.size() - i - 1]) ++i;
    return i;
}

void Instantaneas::pon(UndoElement elemento) {
    if (ultima_) archivadas_.push_back(archiva(*ultima_, elemento.Text));
    ultima_ = std::move(elemento);
}

Instantaneas::Archivada Instantaneas::archiva(const UndoElement& vieja, std::u16string_view siguiente) const {
    if (archivadas_.size() % entreEnteras == entreEnteras - 1) {
        return {vieja.SelStart, vieja.sustitucion, 0, 0, vieja.Text, true};
    }
    const std::u16string_view texto = vieja.Text;
    const std::size_t prefijo = prefijoComun(texto, siguiente);
    const std::size_t sufijo = sufijoComun(texto.substr(prefijo), siguiente.substr(prefijo));
    return {vieja.SelStart,
            vieja.sustitucion,
            static_cast<std::uint32_t>(prefijo),
            static_cast<std::uint32_t>(sufijo),
            std::u16string(texto.substr(prefijo, texto.size() - prefijo - sufijo)),
            false};
}

UndoElement Instantaneas::lee(const Archivada& a, std::u16string_view siguiente) {
    std::u16string texto;
    texto.reserve(a.prefijo + a.medio.size() + a.sufijo);
    texto.append(siguiente.substr(0, a.prefijo)).append(a.medio);
    texto.append(siguiente.substr(siguiente.size() - a.sufijo));
    const std::int32_t longitud = a32(texto.size());
    return {a.SelStart, longitud, std::move(texto), a.sustitucion};
}

UndoElement Instantaneas::saca() {
    UndoElement sacada = std::move(*ultima_);
    ultima_.reset();
    if (archivadas_.empty()) return sacada;
    ultima_ = lee(archivadas_.back(), sacada.Text);
    archivadas_.pop_back();
    return sacada;
}

UndoElement Instantaneas::en(std::size_t lugar) const {
    const auto buscada = archivadas_.begin() + static_cast<std::ptrdiff_t>(lugar - 1);
    auto i = std::find_if(buscada, archivadas_.end(), [](const Archivada& a) { return a.entera; });
    UndoElement leida = i == archivadas_.end() ? *ultima_ : lee(*i, {});
    while (i != buscada) leida = lee(*--i, leida.Text);
    return leida;
}

void Instantaneas::vacia() {
    const std::size_t habia = cuantas();
    archivadas_ = {};
    ultima_.reset();
    a16(habia, u"el número de cambios");
}

} // namespace norvik::inline v0_2
