// SPDX-License-Identifier: MIT

// Undo does not restore a snapshot: it compares the last two and inserts or deletes the characters by which
// they differ, at the caret recorded after the change, so that the rest of the text keeps its colours. The
// comparison is one of lengths alone. A change that both took away and put in is therefore not taken back:
// for most of them, that is how Undo behaves and is known to. Replacements of the replace dialog are marked
// and are taken back by the prefix and the suffix that the texts share.

#include "norvik/control/historial.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/guardas.hpp"

#include <utility>

namespace norvik::inline v0_2 {

namespace {

/// Recording is off while it lives.
class SinGrabar {
public:
    explicit SinGrabar(bool& graba) : graba_(graba) { graba_ = false; }
    SinGrabar(const SinGrabar&) = delete;
    SinGrabar& operator=(const SinGrabar&) = delete;
    ~SinGrabar() { graba_ = true; }

private:
    bool& graba_;
};

std::int32_t longitud(std::u16string_view texto) {
    return static_cast<std::int32_t>(texto.size());
}

/// Whether a text that Undo or Redo put in stays selected.
bool quedaSeleccionado(std::u16string_view puesto) {
    return puesto.size() >= 2 && puesto != saltoDeLinea;
}

/// The characters by which the longer of two texts exceeds the shorter, taken from the longer so that they
/// end just before a 1-based position in it; all of it when they would start before it does.
std::u16string_view textoDiferencia(std::u16string_view a, std::u16string_view b, std::int32_t p) {
    const bool esA = a.size() > b.size();
    const std::u16string_view largo = esA ? a : b;
    const std::u16string_view corto = esA ? b : a;
    const std::int32_t d = longitud(largo) - longitud(corto);
    const std::int32_t inicio = p - d;
    if (inicio < 1) return largo;
    return largo.substr(static_cast<std::size_t>(inicio - 1), static_cast<std::size_t>(d));
}

} // namespace

void Historial::InicializaUndosYRedos() {
    PasosFirmes paso;
    paso([this] { redos_.vacia(); });
    paso([this] { undos_.vacia(); });
    palabras_.olvida();
    grabaDeshacer_ = true;
    paso.acaba();
}

void Historial::ponPorPalabras(bool porPalabras) {
    if (std::exchange(porPalabras_, porPalabras) == porPalabras) return;
    undos_ = {};
    redos_ = {};
    palabras_.olvida();
}

bool Historial::puedeDeshacer() const {
    return porPalabras_ ? palabras_.deshacibles() > 0 : undos_.cuantas() > 1;
}

bool Historial::puedeRehacer() const {
    return porPalabras_ ? palabras_.rehacibles() > 0 : redos_.cuantas() > 0;
}

void Historial::anota(const CambioDeTexto& cambio) {
    if (porPalabras_) palabras_.anota(cambio);
}

void Historial::registra() {
    if (porPalabras_) return;
    PasosFirmes paso;
    paso([this] { redos_.vacia(); });
    const std::u16string_view texto = caja_->texto();
    undos_.pon({caja_->inicioSeleccion(), a32(texto.size()), std::u16string(texto), esSustitucion_});
    paso.acaba();
}

void Historial::sustituye(std::int32_t inicio, std::int32_t cuantos, std::u16string_view nuevo) {
    exacto([&] { caja_->reemplaza(inicio, cuantos, nuevo); });
}

void Historial::corrige(const CambioDeTexto& cambio) {
    if (porPalabras_) palabras_.anotaCorreccion(cambio);
}

// --- Undo ---

void Historial::Undo() {
    if (porPalabras_) return porPalabras(&HistorialPorPalabras::deshace);
    PasosFirmes paso;
    if (undos_.cuantas() >= 2 && grabaDeshacer_) {
        const EdicionSilenciosa silenciosa(caja_);
        const SinGrabar sinGrabar(grabaDeshacer_);
        UndoElement act = undos_.saca();
        deshace(undos_.ultima(), act, paso);
        if (undos_.cuantas() > 0) redos_.pon(std::move(act)); // a receiver may have emptied the lists
    }
    paso([this] { lineas_.esperaRangoSiCambioDeLinea(); });
    grabaDeshacer_ = true;
    paso.acaba();
}

void Historial::deshace(const UndoElement& ant, const UndoElement& act, PasosFirmes& paso) {
    const std::int32_t d = act.TextLen - ant.TextLen;
    if (act.sustitucion) return cambiaTodo(ant.Text, paso);
    if (d > 0) return quita(act.SelStart - d, d, paso);
    repone(act.SelStart, textoDiferencia(ant.Text, act.Text, act.SelStart + 1 - d), paso);
}

/// Takes characters away, from where the caret is if there is no such place.
void Historial::quita(std::int32_t inicio, std::int32_t cuantos, PasosFirmes& paso) {
    if (inicio >= 0) paso([&] { ponCursor(inicio); });
    paso([&] { caja_->selecciona(caja_->inicioSeleccion(), cuantos); });
    paso([&] { caja_->reemplazaSeleccion({}); });
}

void Historial::repone(std::int32_t inicio, std::u16string_view quitado, PasosFirmes& paso) {
    const std::u16string r(quitado); // the lists may be emptied by a receiver
    paso([&] { ponCursor(inicio); });
    caja_->ponColorSeleccion(0);
    const std::int32_t desde = caja_->inicioSeleccion();
    paso([&] { caja_->reemplazaSeleccion(r); });
    lineas_.esperaRango();
    const std::int32_t hasta = caja_->inicioSeleccion();
    paso([&] { quedaSeleccionado(r) ? caja_->selecciona(desde, hasta - desde) : ponCursor(hasta); });
}

// --- Redo ---

void Historial::Redo() {
    if (porPalabras_) return porPalabras(&HistorialPorPalabras::rehace);
    PasosFirmes paso;
    if (redos_.cuantas() >= 1 && grabaDeshacer_) {
        const EdicionSilenciosa silenciosa(caja_);
        const SinGrabar sinGrabar(grabaDeshacer_);
        UndoElement e = redos_.saca();
        rehace(e, paso);
        if (undos_.cuantas() > 0) undos_.pon(std::move(e));
    }
    paso([this] { lineas_.esperaRangoSiCambioDeLinea(); });
    grabaDeshacer_ = true;
    paso.acaba();
}

void Historial::rehace(const UndoElement& e, PasosFirmes& paso) {
    const std::u16string_view texto = caja_->texto();
    const std::int32_t sobran = longitud(texto) - e.TextLen;
    if (e.sustitucion) return cambiaTodo(e.Text, paso);
    if (sobran > 0) return quita(e.SelStart, sobran, paso);
    const std::u16string r(textoDiferencia(texto, e.Text, e.SelStart + 1));
    inserta(e.SelStart - longitud(r), r, paso);
}

/// Inserts a text, where the caret is if there is no such place.
void Historial::inserta(std::int32_t inicio, std::u16string_view r, PasosFirmes& paso) {
    if (inicio >= 0) paso([&] { ponCursor(inicio); });
    paso([&] { ponCursor(caja_->inicioSeleccion()); });
    caja_->ponColorSeleccion(0);
    const std::int32_t desde = caja_->inicioSeleccion();
    paso([&] { caja_->reemplazaSeleccion(r); });
    const std::int32_t puestos = caja_->inicioSeleccion() - desde;
    paso([&] { ponCursor(desde); });
    paso([&] { quedaSeleccionado(r) ? caja_->selecciona(desde, puestos) : ponCursor(desde + puestos); });
}

// --- Both ---

void Historial::porPalabras(Sentido sentido) {
    if (!grabaDeshacer_) return;
    PasosFirmes paso;
    {
        const SinGrabar sinGrabar(grabaDeshacer_);
        paso([&] {
            lineas_.alPieDeLaLetra([&] {
                const Seleccion puesto = (palabras_.*sentido)(paso);
                lineas_.coloreaPuesto(puesto.inicio, puesto.inicio + puesto.longitud);
            });
        });
    }
    paso.acaba();
}

/// Gives the box another text, of which what it has in common with the present one is left alone.
void Historial::cambiaTodo(std::u16string_view nuevo, PasosFirmes& paso) {
    const std::u16string_view actual = caja_->texto();
    const std::size_t prefijo = prefijoComun(actual, nuevo);
    const std::size_t sufijo = sufijoComun(actual.substr(prefijo), nuevo.substr(prefijo));
    const std::u16string r(nuevo.substr(prefijo, nuevo.size() - prefijo - sufijo));
    const auto desde = static_cast<std::int32_t>(prefijo);
    const auto cuantos = static_cast<std::int32_t>(actual.size() - prefijo - sufijo);
    paso([&] { caja_->selecciona(desde, cuantos); });
    caja_->ponColorSeleccion(0);
    paso([&] { caja_->reemplazaSeleccion(r); });
    lineas_.esperaRango();
    paso([&] { caja_->selecciona(desde, longitud(r)); });
}

} // namespace norvik::inline v0_2
