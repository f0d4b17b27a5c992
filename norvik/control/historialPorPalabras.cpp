// SPDX-License-Identifier: MIT

// A step is a list of changes, each of which keeps its place, how many characters stand there, and those that
// stood there before. To take it back is to exchange the two, and then it is what takes it forth again: undo
// and redo are the same exchange, last change first or first change first, and no text is kept twice.
//
// What is typed or rubbed out character by character extends the last change as long as no word begins: a
// word and the blanks behind it are one step, a line break and the indentation behind it another. All else is
// a step of its own. A step costs what it took away; whoever keeps the text need not be asked for anything
// else. (Changes by place and length, exchanged in place: the undo of Emacs and of many after it.)

#include "norvik/control/historialPorPalabras.hpp"

#include "norvik/control/guardas.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <algorithm>
#include <ranges>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

enum class Clase : std::uint8_t { Palabra, Blanco, Salto, Signo };

Clase claseDe(char16_t c) {
    if (c == u' ' || c == u'\t') return Clase::Blanco;
    if (c == u'\r' || c == u'\n') return Clase::Salto;
    return esDePalabra(c) ? Clase::Palabra : Clase::Signo;
}

/// Whether the second of two neighbours is the first of a step.
bool empiezaOtro(char16_t izquierdo, char16_t derecho) {
    const Clase clase = claseDe(derecho);
    if (clase == Clase::Blanco) return false;
    return clase == Clase::Salto || clase != claseDe(izquierdo);
}

/// What one key writes or takes away: a character of one or two units, a line break, or blanks.
bool esDeUnaTecla(std::u16string_view texto) {
    const bool dos = texto.size() == 2 && ((texto[0] & 0xFC00) == 0xD800 || texto == u"\r\n");
    return texto.size() == 1 || dos || (!texto.empty() && texto.find_first_not_of(u" \t") == texto.npos);
}

std::size_t bytesDe(const std::u16string& texto) {
    return texto.size() * sizeof(char16_t);
}

} // namespace

std::u16string_view HistorialPorPalabras::puesto(const CambioDeTexto& cambio) const {
    return caja_->texto().substr(static_cast<std::size_t>(cambio.inicio),
                                 static_cast<std::size_t>(cambio.puestos));
}

// --- Taking note ---

void HistorialPorPalabras::anota(const CambioDeTexto& cambio) {
    tamano_ += static_cast<std::size_t>(cambio.puestos) - static_cast<std::size_t>(cambio.quitados);
    if (!cuadra()) olvida();                            // it was changed behind our back
    if (pasos_.empty() && !caja_->modificado()) return; // a text was put
    olvidaRehacibles();
    if (!alarga(cambio)) pon(cambio);
    recorta();
}

/// One of the same length moves nothing, and goes with the characters around it. The caret is where the step
/// left it.
void HistorialPorPalabras::anotaCorreccion(const CambioDeTexto& cambio) {
    if (cambio.puestos == cambio.quitados || recorre_) return;
    tamano_ += static_cast<std::size_t>(cambio.puestos) - static_cast<std::size_t>(cambio.quitados);
    olvidaRehacibles();
    if (pasos_.empty()) return;
    corta();
    const Seleccion antes = pasos_.back().back().despues;
    const std::int32_t inicio = cambio.lleva(antes.inicio);
    const Seleccion despues{inicio, cambio.lleva(antes.inicio + antes.longitud) - inicio};
    pasos_.back().push_back({cambio.inicio, cambio.puestos, cambio.textoQuitado, antes, despues});
    bytes_ += sizeof(Cambio) + bytesDe(cambio.textoQuitado);
}

bool HistorialPorPalabras::alarga(const CambioDeTexto& cambio) {
    if (!abierto_ || grupo_ > 0 || pasos_.empty()) return false;
    Cambio& ultimo = pasos_.back().back();
    if (!alargaEscrito(ultimo, cambio) && !alargaBorrado(ultimo, cambio)) return false;
    bytes_ += bytesDe(cambio.textoQuitado);
    ultimo.despues = seleccion();
    return true;
}

bool HistorialPorPalabras::alargaEscrito(Cambio& ultimo, const CambioDeTexto& cambio) const {
    const bool sigue = ultimo.longitud > 0 && cambio.inicio == ultimo.inicio + ultimo.longitud;
    if (!sigue || cambio.quitados > 0 || !esDeUnaTecla(puesto(cambio))) return false;
    const auto lugar = static_cast<std::size_t>(cambio.inicio);
    if (empiezaOtro(caja_->texto()[lugar - 1], caja_->texto()[lugar])) return false;
    ultimo.longitud += cambio.puestos;
    return true;
}

/// Backwards, and forwards.
bool HistorialPorPalabras::alargaBorrado(Cambio& ultimo, const CambioDeTexto& cambio) {
    const std::u16string& quitado = cambio.textoQuitado;
    if (ultimo.longitud > 0 || cambio.puestos > 0 || !esDeUnaTecla(quitado)) return false;
    if (cambio.inicio + cambio.quitados == ultimo.inicio) {
        if (empiezaOtro(quitado.back(), ultimo.otro.front())) return false;
        ultimo.otro.insert(0, quitado);
    } else {
        if (cambio.inicio != ultimo.inicio || empiezaOtro(ultimo.otro.back(), quitado.front())) return false;
        ultimo.otro += quitado;
    }
    ultimo.inicio = cambio.inicio;
    return true;
}

void HistorialPorPalabras::pon(const CambioDeTexto& cambio) {
    Cambio nuevo{cambio.inicio, cambio.puestos, cambio.textoQuitado, cambio.seleccionAntes, seleccion()};
    const bool delGrupo = grupo_ > 0 && agrupado_;
    if (!delGrupo) pasos_.emplace_back();
    pasos_.back().push_back(std::move(nuevo));
    hechos_ = pasos_.size();
    bytes_ += sizeof(Cambio) + bytesDe(cambio.textoQuitado);
    agrupado_ = grupo_ > 0;
    abierto_ = esDeUnaTecla(cambio.puestos > 0 ? puesto(cambio) : cambio.textoQuitado);
}

void HistorialPorPalabras::empiezaPaso() {
    if (grupo_++ == 0) agrupado_ = false;
}

void HistorialPorPalabras::acabaPaso() {
    if (grupo_ > 0) --grupo_; // it may have begun while the control was at work
    corta();
}

// --- Forgetting ---

namespace {

template <typename Paso>
std::size_t bytesDelPaso(const Paso& paso) {
    std::size_t bytes = 0;
    for (const auto& cambio : paso) bytes += sizeof(cambio) + bytesDe(cambio.otro);
    return bytes;
}

} // namespace

void HistorialPorPalabras::olvida() {
    pasos_.clear();
    hechos_ = bytes_ = 0;
    tamano_ = caja_->texto().size();
    abierto_ = agrupado_ = false;
    ++epoca_;
}

void HistorialPorPalabras::olvidaRehacibles() {
    if (rehacibles() > 0) corta();
    for (; rehacibles() > 0; pasos_.pop_back()) bytes_ -= bytesDelPaso(pasos_.back());
}

/// The last step stays, whatever it takes.
void HistorialPorPalabras::recorta() {
    for (; bytes_ > maximo_ && pasos_.size() > 1; pasos_.pop_front(), --hechos_)
        bytes_ -= bytesDelPaso(pasos_.front());
}

// --- There and back ---

Seleccion HistorialPorPalabras::deshace(PasosFirmes& paso) {
    return deshacibles() > 0 ? recorre(hechos_ - 1, Sentido::Atras, paso) : Seleccion{};
}

Seleccion HistorialPorPalabras::rehace(PasosFirmes& paso) {
    return rehacibles() > 0 ? recorre(hechos_, Sentido::Adelante, paso) : Seleccion{};
}

/// A receiver may have all forgotten meanwhile: the step is not in the list while it is carried out.
Seleccion HistorialPorPalabras::recorre(std::size_t cual, Sentido sentido, PasosFirmes& paso) {
    corta();
    const MarcaOcupado recorriendo(recorre_);
    const bool atras = sentido == Sentido::Atras;
    const std::size_t epoca = epoca_;
    bytes_ -= bytesDelPaso(pasos_[cual]);
    Paso suyo = std::exchange(pasos_[cual], {});
    if (atras) std::ranges::reverse(suyo);
    Seleccion puesto;
    for (Cambio& cambio : suyo) {
        if (!cuadra()) break;
        try {
            invierte(cambio, atras ? cambio.antes : cambio.despues, paso);
        } catch (...) { // no memory: half a step cannot be told from a whole one
            olvida();
            throw;
        }
        puesto = {cambio.inicio, cambio.longitud};
    }
    if (epoca == epoca_ && !cuadra()) olvida();
    if (epoca != epoca_) return {};
    if (atras) std::ranges::reverse(suyo);
    bytes_ += bytesDelPaso(suyo);
    pasos_[cual] = std::move(suyo);
    hechos_ = atras ? cual : cual + 1;
    return puesto;
}

void HistorialPorPalabras::invierte(Cambio& cambio, const Seleccion& queda, PasosFirmes& paso) {
    const auto quitado = caja_->texto().substr(static_cast<std::size_t>(cambio.inicio),
                                               static_cast<std::size_t>(cambio.longitud));
    const std::u16string nuevo = std::exchange(cambio.otro, std::u16string(quitado));
    const auto puestos = static_cast<std::int32_t>(nuevo.size());
    const std::int32_t quitados = std::exchange(cambio.longitud, puestos);
    tamano_ += nuevo.size() - static_cast<std::size_t>(quitados);
    paso([&] { caja_->sustituye(cambio.inicio, quitados, nuevo, queda); });
    if (!cuadra()) return;
    paso([&] { caja_->selecciona(queda.inicio, queda.longitud); }); // who paints the line leaves none
}

} // namespace norvik::inline v0_2
