// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/vistaTexto.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/medidas.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/teclas.hpp"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QResizeEvent>
#include <QScrollBar>
#include <QUrl>

#include <algorithm>

namespace norvik {

namespace {

constexpr int margenIzquierdo = 2;

} // namespace

void VistaTexto::configura() {
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setFrameStyle(QFrame::NoFrame);
    setTabChangesFocus(true);
    viewport()->setMouseTracking(true); // moves are told whether a button is held or not
    document()->setDocumentMargin(0);   // the first line starts where the left border does
    setViewportMargins(margenIzquierdo, 0, 0, 0);
    setBackgroundRole(QPalette::Base);
}

// ---- what is seen

/// Qt would take the keys away with the right to edit, and the caret with them.
void VistaTexto::ponSoloLectura(bool soloLectura) {
    setReadOnly(soloLectura);
    if (soloLectura) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

std::vector<VistaTexto::Linea> VistaTexto::lineasVistas() const {
    std::vector<Linea> vistas;
    QTextBlock bloque = firstVisibleBlock();
    double arriba = blockBoundingGeometry(bloque).translated(contentOffset()).top();
    for (; bloque.isValid() && (vistas.empty() || arriba < viewport()->height()); bloque = bloque.next()) {
        if (!bloque.isVisible()) continue;
        const double alto = blockBoundingRect(bloque).height();
        vistas.push_back({bloque.blockNumber(), qRound(arriba), qRound(alto)});
        arriba += alto;
    }
    return vistas;
}

VistaTexto::Columnas VistaTexto::columnasVistas(const QTextBlock& linea) const {
    const auto vistas = lineasVistas(); // which are laid out
    if (std::ranges::find(vistas, linea.blockNumber(), &Linea::numero) == vistas.end()) return {};
    const QTextLine trazo = linea.layout()->lineAt(0);
    const double izquierda = -contentOffset().x();
    return {trazo.xToCursor(izquierda), trazo.xToCursor(izquierda + viewport()->width())};
}

std::optional<int> VistaTexto::lineaEn(int altura) const {
    for (const Linea& l : lineasVistas())
        if (altura >= l.arriba && altura < l.arriba + l.alto) return l.numero;
    return std::nullopt;
}

std::optional<int> VistaTexto::caracterEn(const QPoint& punto) const {
    const QTextCursor cursor = cursorForPosition(punto); // the nearest gap between two characters
    const QRect hueco = cursorRect(cursor);
    const QTextBlock bloque = cursor.block();
    const int posicion = punto.x() < hueco.x() ? cursor.position() - 1 : cursor.position();
    const bool enLinea = punto.y() >= hueco.top() && punto.y() <= hueco.bottom();
    const bool enBloque = posicion >= bloque.position() && posicion < bloque.position() + bloque.length() - 1;
    return enLinea && enBloque ? std::optional(posicion) : std::nullopt;
}

void VistaTexto::acerca(int posicion) {
    QTextCursor cursor(document());
    cursor.setPosition(posicion);
    const QRect sitio = cursorRect(cursor);
    const QRect vista = viewport()->rect();
    if (sitio.top() < vista.top() || sitio.bottom() > vista.bottom()) {
        const int lineas = vista.height() / std::max(fontMetrics().lineSpacing(), 1);
        verticalScrollBar()->setValue(cursor.block().firstLineNumber() - lineas / 2);
    }
    QScrollBar& barra = *horizontalScrollBar();
    if (sitio.left() < vista.left()) barra.setValue(barra.value() + sitio.left());
    if (sitio.right() > vista.right()) barra.setValue(barra.value() + sitio.right() - vista.right());
}

/// Qt's editor changes its size by the wheel where nothing can be edited.
void VistaTexto::wheelEvent(QWheelEvent* evento) {
    QAbstractScrollArea::wheelEvent(evento); // NOLINT(bugprone-parent-virtual-call)
    updateMicroFocus();
}

/// The caret that was seen stays so when what opens below takes its place.
void VistaTexto::resizeEvent(QResizeEvent* evento) {
    const bool seVeia = seVeElCursor(evento->oldSize().height());
    QPlainTextEdit::resizeEvent(evento);
    if (seVeia && evento->size().height() < evento->oldSize().height()) ensureCursorVisible();
}

/// Of a view so high; `cursorRect` knows nothing beyond the height of now.
bool VistaTexto::seVeElCursor(int alto) const {
    const QTextBlock suya = textCursor().block();
    double arriba = contentOffset().y();
    for (QTextBlock linea = firstVisibleBlock(); linea.isValid() && arriba < alto; linea = linea.next()) {
        if (linea == suya) return true;
        arriba += blockBoundingRect(linea).height();
    }
    return false;
}

/// Shortcuts with the control key belong to the host's menus first.
bool VistaTexto::event(QEvent* evento) {
    const Servicio servicio(*this);
    if (evento->type() == QEvent::ShortcutOverride &&
        (mascaraDe(*static_cast<QKeyEvent*>(evento)) & ~mascara::mayusculas) == mascara::control) {
        evento->ignore();
        return false;
    }
    return QPlainTextEdit::event(evento);
}

bool VistaTexto::viewportEvent(QEvent* evento) {
    const Servicio servicio(*this);
    return QPlainTextEdit::viewportEvent(evento);
}

template <typename Accion>
void VistaTexto::atiende(Accion accion) {
    if (hayCaja()) caja_->atiende(accion);
}

void VistaTexto::changeEvent(QEvent* evento) {
    QPlainTextEdit::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange && hayCaja())
        caja_->repinta(); // colours follow the background
}

// ---- keys

namespace {

/// A key is known by its place: what it writes may be something else by the time it comes up.
std::uint64_t identidad(const QKeyEvent& tecla) {
    constexpr std::uint64_t deSitio = std::uint64_t{1} << 32;
    return tecla.nativeScanCode() != 0 ? deSitio | tecla.nativeScanCode()
                                       : static_cast<std::uint64_t>(tecla.key());
}

/// The tab key goes down for whom the focus passes to, and comes up where it stays.
bool esTabulador(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Tab || tecla.key() == Qt::Key_Backtab;
}

} // namespace

/// Qt does not always notice that one is repeated: then it goes up and down at the same moment.
bool VistaTexto::seRepite(const QKeyEvent& tecla) const {
    constexpr std::uint64_t momento = 5; // milliseconds
    const bool soltada = soltadaAjena_.tecla == identidad(tecla) && tecla.timestamp() != 0 &&
                         tecla.timestamp() - soltadaAjena_.cuando <= momento;
    return tecla.isAutoRepeat() || soltada;
}

/// One that went down elsewhere, in a message box that it closed, writes nothing here however long it is
/// held.
void VistaTexto::keyPressEvent(QKeyEvent* evento) {
    if (!bajadas_.contains(identidad(*evento)) && seRepite(*evento)) return;
    atiende([&] {
        bajadas_.insert(identidad(*evento));
        pulsa(*evento);
    });
}

void VistaTexto::pulsa(QKeyEvent& evento) {
    std::int16_t codigo = codigoDeTecla(evento);
    if (codigo == 0) return QPlainTextEdit::keyPressEvent(&evento);
    const std::int16_t antes = codigo;
    std::int16_t shift = mascaraDe(evento);
    evento.accept();
    if (caja_->eventos.teclaAbajo) caja_->eventos.teclaAbajo(codigo, shift);
    if (codigo == 0 || !hayCaja()) return;
    const Qt::Key otra = codigo == antes ? Qt::Key_unknown : teclaDeCodigo(codigo);
    if (otra == Qt::Key_unknown) return escribe(evento);
    QKeyEvent cambiada(QEvent::KeyPress, otra, evento.modifiers());
    escribe(cambiada);
}

/// A key that writes raises its characters first; those that come back as they were are written by the
/// editor, where the receivers left the caret.
void VistaTexto::escribe(QKeyEvent& evento) {
    const bool escribeTexto = evento.key() != Qt::Key_Delete && !evento.text().isEmpty();
    const QString texto = escribeTexto ? filtra(evento.text()) : evento.text();
    if (!hayCaja()) return;
    if (escribeTexto && (texto.isEmpty() || isReadOnly())) return; // suppressed
    if (texto != evento.text()) return caja_->reemplazaSeleccion(vistaDe(texto));
    caja_->preparaEdicion();
    const bool saltoBlando = evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter;
    const auto teclas = saltoBlando ? evento.modifiers() & ~Qt::ShiftModifier : evento.modifiers();
    QKeyEvent copia(QEvent::KeyPress, evento.key(), teclas, texto);
    QPlainTextEdit::keyPressEvent(&copia);
    evento.setAccepted(copia.isAccepted());
}

/// The text after the box's receiver has seen each character: 0 suppresses one.
QString VistaTexto::filtra(const QString& texto) {
    if (!caja_->eventos.pulsacion) return texto;
    QString queda;
    for (const QChar c : texto) {
        auto caracter = static_cast<std::int16_t>(c.unicode());
        caja_->eventos.pulsacion(caracter);
        if (!hayCaja()) return {};
        if (caracter != 0) queda += QChar(static_cast<char16_t>(caracter));
    }
    return queda;
}

/// A key that went down elsewhere, in a message box that it closed, is not one of the text's.
void VistaTexto::keyReleaseEvent(QKeyEvent* evento) {
    if (!bajadas_.contains(identidad(*evento))) soltadaAjena_ = {identidad(*evento), evento->timestamp()};
    const bool suya =
        evento->isAutoRepeat() || bajadas_.erase(identidad(*evento)) > 0 || esTabulador(*evento);
    if (!suya) return;
    std::int16_t codigo = codigoDeTecla(*evento);
    std::int16_t shift = mascaraDe(*evento);
    atiende([&] {
        const bool avisa = codigo != 0 && !evento->isAutoRepeat() && caja_->eventos.teclaArriba;
        if (avisa) caja_->eventos.teclaArriba(codigo, shift);
    });
    QPlainTextEdit::keyReleaseEvent(evento);
}

/// Composed characters are typed characters.
void VistaTexto::inputMethodEvent(QInputMethodEvent* evento) {
    if (isReadOnly()) return evento->ignore();
    atiende([&] {
        QInputMethodEvent filtrado(evento->preeditString(), evento->attributes());
        filtrado.setCommitString(filtra(evento->commitString()), evento->replacementStart(),
                                 evento->replacementLength());
        if (!hayCaja()) return;
        caja_->ponAlDia();
        QPlainTextEdit::inputMethodEvent(&filtrado);
        evento->setAccepted(filtrado.isAccepted());
        if (hayCaja()) caja_->cambiaComposicion();
    });
}

// ---- mouse

/// True when the editor is to do its part.
bool VistaTexto::avisaRaton(const CajaTexto::Eventos::Raton& evento, const QMouseEvent& raton) {
    if (!evento) return true;
    std::int16_t boton = botonDe(raton);
    std::int16_t shift = mascaraDe(raton.modifiers());
    const TwipsPorPixel tpp = twipsPorPixel(*this);
    const QPointF punto = raton.position() + QPointF(viewport()->pos());
    auto x = static_cast<float>(punto.x() * tpp.x);
    auto y = static_cast<float>(punto.y() * tpp.y);
    evento(boton, shift, x, y);
    return hayCaja();
}

void VistaTexto::mousePressEvent(QMouseEvent* evento) {
    atiende([&] {
        if (avisaRaton(caja_->eventos.ratonAbajo, *evento)) QPlainTextEdit::mousePressEvent(evento);
    });
}

void VistaTexto::mouseDoubleClickEvent(QMouseEvent* evento) {
    atiende([&] {
        if (avisaRaton(caja_->eventos.ratonAbajo, *evento)) QPlainTextEdit::mouseDoubleClickEvent(evento);
    });
}

void VistaTexto::mouseMoveEvent(QMouseEvent* evento) {
    atiende([&] {
        if (avisaRaton(caja_->eventos.ratonMueve, *evento)) QPlainTextEdit::mouseMoveEvent(evento);
    });
}

void VistaTexto::mouseReleaseEvent(QMouseEvent* evento) {
    atiende([&] {
        if (!avisaRaton(caja_->eventos.ratonArriba, *evento)) return;
        QPlainTextEdit::mouseReleaseEvent(evento);
        const bool dentro = viewport()->rect().contains(evento->position().toPoint());
        const bool esClick = evento->button() == Qt::LeftButton && dentro && hayCaja();
        if (esClick && caja_->eventos.click) caja_->eventos.click();
    });
}

/// The menu edits through the keys that do the same, so that the host sees the same events.
void VistaTexto::contextMenuEvent(QContextMenuEvent* evento) {
    if (hayCaja()) sinFallos([&] { muestraMenu(evento->globalPos()); });
}

void VistaTexto::muestraMenu(const QPoint& lugar) {
    const bool hay = caja_->longitudSeleccion() > 0;
    const bool edita = !isReadOnly();
    QMenu menu(this);
    const auto pon = [&](const QString& nombre, bool activa, auto accion) {
        menu.addAction(nombre, this, accion)->setEnabled(activa);
    };
    pon(QStringLiteral("Cor&tar"), hay && edita, [this] { teclea(Qt::Key_Delete, Qt::ShiftModifier); });
    pon(QStringLiteral("&Copiar"), hay, [this] { copia(); });
    pon(QStringLiteral("&Pegar"), canPaste(), [this] { teclea(Qt::Key_Insert, Qt::ShiftModifier); });
    pon(QStringLiteral("&Eliminar"), hay && edita, [this] { teclea(Qt::Key_Delete, Qt::NoModifier); });
    menu.addSeparator();
    pon(QStringLiteral("&Seleccionar todo"), !document()->isEmpty(), [this] { selectAll(); });
    menu.exec(lugar);
}

void VistaTexto::copia() {
    if (hayCaja() && caja_->longitudSeleccion() > 0)
        QApplication::clipboard()->setMimeData(createMimeDataFromSelection());
}

void VistaTexto::teclea(Qt::Key tecla, Qt::KeyboardModifiers teclas) {
    const Servicio servicio(*this);
    QKeyEvent abajo(QEvent::KeyPress, tecla, teclas);
    QKeyEvent arriba(QEvent::KeyRelease, tecla, teclas);
    keyPressEvent(&abajo);
    keyReleaseEvent(&arriba);
}

// ---- focus

void VistaTexto::focusInEvent(QFocusEvent* evento) {
    if (hayCaja()) caja_->cambiaFoco(true);
    QPlainTextEdit::focusInEvent(evento);
}

/// A menu that opens takes the focus for a moment only.
void VistaTexto::focusOutEvent(QFocusEvent* evento) {
    QPlainTextEdit::focusOutEvent(evento);
    bajadas_.clear();
    if (evento->reason() == Qt::PopupFocusReason) return;
    atiende([&] {
        if (caja_->eventos.pierdeFoco) caja_->eventos.pierdeFoco();
    });
    if (hayCaja()) caja_->cambiaFoco(false);
}

// ---- paste and drop: plain text only

bool VistaTexto::canInsertFromMimeData(const QMimeData* datos) const {
    return datos->hasText() && !isReadOnly();
}

void VistaTexto::insertFromMimeData(const QMimeData* datos) {
    if (hayCaja()) caja_->recogeSeleccion(); // the middle button moves the caret without a word
    atiende([&] { caja_->pega(datos->text()); });
}

namespace {

/// Their addresses are no text that a person wants here; a window around may open them.
bool traeFicheros(const QMimeData& datos) {
    const QList<QUrl> direcciones = datos.urls();
    return std::any_of(direcciones.begin(), direcciones.end(), [](const QUrl& u) { return u.isLocalFile(); });
}

} // namespace

void VistaTexto::dragEnterEvent(QDragEnterEvent* evento) {
    if (traeFicheros(*evento->mimeData())) return evento->ignore();
    QPlainTextEdit::dragEnterEvent(evento);
}

/// The editor's own drop would take the text away and insert it in one edit, which no one outside could
/// follow.
void VistaTexto::dropEvent(QDropEvent* evento) {
    QDragLeaveEvent fin;
    QPlainTextEdit::dragLeaveEvent(&fin);
    const QMimeData* const datos = evento->mimeData();
    if (!canInsertFromMimeData(datos) || traeFicheros(*datos)) return evento->ignore();
    const bool mueve = evento->dropAction() == Qt::MoveAction && evento->source() == viewport();
    atiende([&] {
        const int posicion = cursorForPosition(evento->position().toPoint()).position();
        caja_->suelta(datos->text(), posicion, mueve);
    });
    evento->acceptProposedAction();
    if (hayCaja()) setFocus();
}

// The clipboard takes the object over.
QMimeData* VistaTexto::createMimeDataFromSelection() const {
    auto& datos = nuevo<QMimeData>();
    if (hayCaja()) sinFallos([&] { datos.setText(caja_->textoParaCopiar()); });
    return &datos;
}

} // namespace norvik
