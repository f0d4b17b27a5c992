// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/cajaTextoQt.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/medidas.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <QApplication>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextCursor>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace norvik {

namespace {

constexpr int lineaLarga = 10'000; ///< characters that are laid out in a few milliseconds

bool esLarga(const QTextBlock& bloque) {
    return bloque.length() > lineaLarga;
}

} // namespace

CajaTextoQt::CajaTextoQt(QWidget* padre)
    : vista_(&nuevo<VistaTexto>(*this, padre)), espejo_(*vista_->document(), *this) {
    vista_->configura();
    CajaTextoQt::ponFuente(fuente());
    conecta();
}

void CajaTextoQt::DespideVista::operator()(VistaTexto* vista) const {
    vista->olvidaCaja();
    VistaTexto::Despide()(vista);
}

void CajaTextoQt::conecta() {
    QObject::connect(vista_->document(), &QTextDocument::contentsChange, &contexto_,
                     [this](int desde, int quitados, int puestos) {
                         if (!copiando_) espejo_.anota(desde, quitados, puestos);
                         sinFallos([&] { llevaEstilos(desde, quitados, puestos); });
                     });
    const auto otraParte = [this] {
        otraParteVista_ = true;
        pideAlDia();
    };
    for (const QScrollBar* const barra : {vista_->horizontalScrollBar(), vista_->verticalScrollBar()}) {
        QObject::connect(barra, &QAbstractSlider::valueChanged, &contexto_, otraParte);
        QObject::connect(barra, &QAbstractSlider::rangeChanged, &contexto_, otraParte);
    }
    QObject::connect(vista_.get(), &QPlainTextEdit::textChanged, &contexto_, [this] { recogeEdicion(); });
    for (const auto senal : {&QPlainTextEdit::selectionChanged, &QPlainTextEdit::cursorPositionChanged})
        QObject::connect(vista_.get(), senal, &contexto_, [this] { recogeSeleccion(); });
}

QWidget& CajaTextoQt::ventana() {
    return *vista_;
}

void CajaTextoQt::ponFuente(const Fuente& fuente) {
    CajaTexto::ponFuente(fuente);
    ponLetra();
}

void CajaTextoQt::ponAumento(double aumento) {
    aumento_ = aumento;
    ponLetra();
}

void CajaTextoQt::ponLetra() {
    QFont letra = aQFont(fuente());
    letra.setPointSizeF(letra.pointSizeF() * aumento_);
    vista_->setFont(letra);
    constexpr int espaciosPorTabulacion = 4;
    vista_->setTabStopDistance(QFontMetricsF(letra).horizontalAdvance(u' ') * espaciosPorTabulacion);
    repinta();
}

void CajaTextoQt::ponOcultaSeleccion(bool oculta) {
    CajaTexto::ponOcultaSeleccion(oculta);
    pideAlDia();
}

void CajaTextoQt::ponSoloLectura(bool soloLectura) {
    CajaTexto::ponSoloLectura(soloLectura);
    vista_->ponSoloLectura(soloLectura);
}

void CajaTextoQt::ponModificado(bool modificado) {
    CajaTexto::ponModificado(modificado);
    pideAlDia();
}

void CajaTextoQt::cambiaFoco(bool enfocada) {
    seleccionALaVista_ = enfocada;
    protege([this] { ponAlDia(); });
}

std::int32_t CajaTextoQt::primeraLineaVisible() const {
    return vista_->primeraLineaVisible();
}

std::int32_t CajaTextoQt::altoDeLinea() const {
    return aTwips(QFontMetrics(vista_->font()).height(), twipsPorPixel(*vista_).y);
}

void CajaTextoQt::ponIzquierda(std::int32_t twips) {
    CajaTexto::ponIzquierda(twips);
    vista_->move(aPixeles(twips, twipsPorPixel(*vista_).x), vista_->y());
}

void CajaTextoQt::enfoca() {
    vista_->setFocus();
    const QWidget* const modal = QApplication::activeModalWidget();
    const bool bloqueada = modal != nullptr && modal != vista_->window();
    if (!bloqueada) vista_->activateWindow();
}

void CajaTextoQt::desbloqueaDibujo() {
    if (--bloqueos_ == 0) pideAlDia();
}

// ---- from the model to the editor

/// The editor is brought up to date before it is next drawn: at the end of the event being served, or of the
/// call that changed the box.
void CajaTextoQt::pideAlDia() {
    hayNovedad_ = true;
    if (alDiaPedido_) return;
    sinFallos([this] { // else at the next event
        QMetaObject::invokeMethod(
            &contexto_, [this] { acaba(); }, Qt::QueuedConnection);
        alDiaPedido_ = true;
    });
}

/// Whoever hears that the editor is up to date may delete the box.
void CajaTextoQt::acaba() {
    protege([this] { ponAlDia(); });
    if (bloqueos_ > 0 || vistaPorRehacer_ || !std::exchange(hayNovedad_, false)) return;
    protege([this] { emit noticias_.alDia(); });
}

void CajaTextoQt::ponAlDia() {
    alDiaPedido_ = false;
    if (bloqueos_ > 0) return;
    const QScopedValueRollback<bool> copiando(copiando_, true);
    if (vistaPorRehacer_) rehaceVista();
    if (std::exchange(otraParteVista_, false)) ensuciaLargas();
    ponEstilosEnVista();
    ponSeleccionEnVista();
}

void CajaTextoQt::preparaEdicion() {
    const QScopedValueRollback<bool> aLaVista(seleccionALaVista_, true);
    ponAlDia();
}

void CajaTextoQt::alSustituir(const CambioDeTexto& s) {
    if (sucio_ && sucio_->fin > s.inicio)
        sucio_->fin = std::max(sucio_->fin + s.puestos - s.quitados, s.inicio);
    if (std::exchange(deLaVista_, false)) {
        vistaPorRehacer_ = false;
    } else if (!vistaPorRehacer_) {
        const QScopedValueRollback<bool> copiando(copiando_, true);
        vistaPorRehacer_ = !falloDe([&] { espejo_.copia(s.inicio, s.inicio + s.puestos); }).empty();
        vistaAtrasada_ = true;
    }
    ensucia({s.inicio, s.inicio + s.puestos});
    sinFallos([&] { emit noticias_.sustituido(s); });
}

void CajaTextoQt::alPintar(std::int32_t inicio, std::int32_t longitud) {
    ensucia({inicio, inicio + longitud});
}

void CajaTextoQt::ensucia(Tramo tramo) {
    if (!sucio_) sucio_ = tramo;
    sucio_ = Tramo{std::min(sucio_->inicio, tramo.inicio), std::max(sucio_->fin, tramo.fin)};
    pideAlDia();
}

void CajaTextoQt::repinta() {
    ensucia({0, static_cast<std::int32_t>(texto().size())});
}

void CajaTextoQt::cambiaComposicion() {
    ensucia({inicioSeleccion(), inicioSeleccion()});
}

CajaTextoQt::Tramo CajaTextoQt::seleccionModelo() const {
    return {inicioSeleccion(), inicioSeleccion() + longitudSeleccion()};
}

CajaTextoQt::Tramo CajaTextoQt::seleccionVista() const {
    const QTextCursor cursor = vista_->textCursor();
    return {espejo_.enTexto(cursor.selectionStart()), espejo_.enTexto(cursor.selectionEnd())};
}

std::vector<CajaTextoQt::Tramo> CajaTextoQt::tramosVistos() const {
    std::vector<Tramo> tramos;
    for (const VistaTexto::Linea& l : vista_->lineasVistas()) {
        const Tramo columnas = columnasCerca(vista_->document()->findBlockByNumber(l.numero), 1);
        const std::int32_t inicio = inicioDeLinea(l.numero);
        tramos.push_back({inicio + columnas.inicio, inicio + columnas.fin});
    }
    return tramos;
}

QTextCursor CajaTextoQt::cursorDe(const Tramo& tramo) const {
    QTextCursor cursor(vista_->document());
    cursor.setPosition(espejo_.enDocumento(tramo.inicio));
    cursor.setPosition(espejo_.enDocumento(tramo.fin), QTextCursor::KeepAnchor);
    return cursor;
}

std::optional<std::int32_t> CajaTextoQt::caracterEn(const QPoint& punto) const {
    const auto posicion = vista_->caracterEn(punto);
    return posicion ? std::optional(espejo_.enTexto(*posicion)) : std::nullopt;
}

void CajaTextoQt::muestra(std::int32_t inicio, std::int32_t longitud) {
    const auto viva = testigo();
    selecciona(inicio, longitud);
    if (!viva.expired()) acaba(); // what hides the place is opened
    if (viva.expired()) return;
    vista_->acerca(espejo_.enDocumento(inicioSeleccion()));
}

void CajaTextoQt::ponSeleccionEnVista() {
    const Tramo modelo = seleccionModelo();
    const bool visible = seleccionALaVista_ || !ocultaSeleccion();
    const int inicio = espejo_.enDocumento(modelo.inicio);
    const int fin = visible ? espejo_.enDocumento(modelo.fin) : inicio;
    QTextCursor cursor = vista_->textCursor();
    if (cursor.selectionStart() != inicio || cursor.selectionEnd() != fin) {
        cursor.setPosition(inicio);
        cursor.setPosition(fin, QTextCursor::KeepAnchor);
        vista_->setTextCursor(cursor);
    }
    if (modelo != sincronizada_) vista_->ensureCursorVisible();
    sincronizada_ = modelo;
    puesta_ = seleccionVista();
    vistaAtrasada_ = false;
}

/// Of many lines those in view first; the rest in slices, when nothing else is to be done.
void CajaTextoQt::ponEstilosEnVista() {
    if (!sucio_) return;
    constexpr std::int32_t lineasDeUnaVez = 2000; // a few milliseconds
    const std::int32_t primera = lineaDeCaracter(sucio_->inicio);
    const std::int32_t ultima = lineaDeCaracter(sucio_->fin);
    const std::int32_t hasta = std::min(ultima, primera + lineasDeUnaVez);
    const auto vistas = hasta < ultima ? vista_->lineasVistas() : std::vector<VistaTexto::Linea>();
    if (!vistas.empty())
        ponEstilosEnLineas(std::max(vistas.front().numero, primera), std::min(vistas.back().numero, ultima));
    ponEstilosEnLineas(primera, hasta);
    if (hasta == ultima) return sucio_.reset();
    sucio_->inicio = inicioDeLinea(hasta + 1);
    QTimer::singleShot(0, &contexto_, [this] { protege([this] { ponAlDia(); }); });
}

void CajaTextoQt::ponEstilosEnLineas(std::int32_t primera, std::int32_t ultima) {
    QTextDocument& documento = *vista_->document();
    QTextBlock bloque = documento.findBlockByNumber(primera);
    const int desde = bloque.position();
    int hasta = desde;
    for (std::int32_t linea = primera; linea <= ultima; ++linea, bloque = bloque.next())
        if (ponEstilosEnLinea(bloque)) hasta = bloque.position() + bloque.length();
    if (hasta > desde) documento.markContentsDirty(desde, hasta - desde);
}

namespace {

/// Those of a line as far as they are in [desde, hasta) of it.
QList<QTextLayout::FormatRange> recortados(const QList<QTextLayout::FormatRange>& tramos, int desde,
                                           int hasta) {
    QList<QTextLayout::FormatRange> quedan;
    for (const auto& t : tramos) {
        const int inicio = std::max(t.start, desde);
        const int fin = std::min(t.start + t.length, hasta);
        if (inicio < fin) quedan.append({inicio, fin - inicio, t.format});
    }
    return quedan;
}

} // namespace

/// True when it showed others. A long one keeps those that are right where it is seen, and is given more than
/// that, so that it is not laid out at each step to the side; what its layout finds out is kept for whoever
/// asks next.
bool CajaTextoQt::ponEstilosEnLinea(const QTextBlock& bloque) {
    constexpr int anchos = 16;
    QTextLayout& trazado = *bloque.layout();
    if (!trazado.preeditAreaText().isEmpty()) return false; // its formats are the input method's
    const std::int32_t inicio = inicioDeLinea(bloque.blockNumber());
    const bool larga = esLarga(bloque);
    const Tramo vistas = columnasCerca(bloque, 1);
    const auto nuevos = formatos(inicio, vistas);
    const auto puestos = trazado.formats();
    if (larga) trazado.setCacheEnabled(vistas.fin > vistas.inicio);
    if (nuevos == (larga ? recortados(puestos, vistas.inicio, vistas.fin) : puestos)) return false;
    trazado.setFormats(larga ? formatos(inicio, columnasCerca(bloque, anchos)) : nuevos);
    return true;
}

/// All of a line, but of a long one those that are seen, and so many times as many to both sides.
CajaTextoQt::Tramo CajaTextoQt::columnasCerca(const QTextBlock& bloque, int anchos) const {
    constexpr int menos = 100;
    const int largo = bloque.length() - 1;
    if (!esLarga(bloque)) return {0, largo};
    const auto [desde, hasta] = vista_->columnasVistas(bloque);
    if (hasta == 0) return {};
    const int lado = std::max(hasta - desde, menos) * anchos;
    return {std::max(desde - lado, 0), std::min(hasta + lado, largo)};
}

/// Qt leaves the runs of a line where they were when its text changes. Moved before it lays the line out,
/// they are those that the line will be found to have, and it is not laid out again for them.
void CajaTextoQt::llevaEstilos(int desde, int quitados, int puestos) {
    const QTextBlock bloque = vista_->document()->findBlock(desde);
    const int lugar = desde - bloque.position();
    const bool enUnaLinea = bloque.isValid() && lugar + puestos < bloque.length();
    if (quitados == puestos || !enUnaLinea || !bloque.layout()->preeditAreaText().isEmpty()) return;
    const auto antes = bloque.layout()->formats();
    const CambioDeTexto cambio{lugar, quitados, puestos, false, {}, {}};
    QList<QTextLayout::FormatRange> ahora;
    for (const auto& f : antes) {
        const int inicio = cambio.lleva(f.start);
        const int fin = cambio.lleva(f.start + f.length);
        if (inicio < fin) ahora.append({inicio, fin - inicio, f.format});
    }
    if (ahora != antes) bloque.layout()->setFormats(ahora);
}

/// Other columns of them are seen.
void CajaTextoQt::ensuciaLargas() {
    for (const VistaTexto::Linea& l : vista_->lineasVistas()) {
        const std::int32_t inicio = inicioDeLinea(l.numero);
        if (esLarga(vista_->document()->findBlockByNumber(l.numero))) ensucia({inicio, inicio});
    }
}

QList<QTextLayout::FormatRange> CajaTextoQt::formatos(std::int32_t inicio, const Tramo& columnas) const {
    const auto comienzo = estilos().begin() + inicio;
    const auto final = comienzo + columnas.fin;
    QList<QTextLayout::FormatRange> tramos;
    for (auto i = comienzo + columnas.inicio; i != final;) {
        const auto fin = std::find_if(i, final, [&](const Estilo& e) { return e != *i; });
        if (*i != Estilo{}) {
            tramos.append({static_cast<int>(i - comienzo), static_cast<int>(fin - i), formato(*i)});
        }
        i = fin;
    }
    return tramos;
}

/// Colour 0 is plain text and has the palette's colour, which can be read whatever the background is.
QTextCharFormat CajaTextoQt::formato(const Estilo& estilo) const {
    QTextCharFormat f;
    if (estilo.color != 0)
        f.setForeground(legible(aQColor(estilo.color), vista_->palette().color(QPalette::Base)));
    if (estilo.letra != 0) {
        f.setFontFamilies({aQString(letra(estilo.letra).nombre)});
        f.setFontPointSize(aPuntos(letra(estilo.letra).tamano) * aumento_);
    }
    return f;
}

// ---- from the editor to the model

void CajaTextoQt::recogeEdicion() {
    const VistaTexto::Servicio servicio(*vista_);
    if (copiando_ || !espejo_.hayEdicion()) return;
    const auto viva = testigo();
    vistaPorRehacer_ = true;
    protege([this] { tomaEdicion(); });
    if (viva.expired() || !vistaPorRehacer_) return;
    deLaVista_ = false;
    pideAlDia();
}

/// Until the model has it there is no going on with what the editor shows.
void CajaTextoQt::tomaEdicion() {
    const EspejoDocumento::Edicion e = espejo_.dameEdicion();
    const QTextCursor cursor = vista_->textCursor();
    const Tramo seleccion{espejo_.trasEdicion(e, cursor.selectionStart()),
                          espejo_.trasEdicion(e, cursor.selectionEnd())};
    const EspejoDocumento::Edicion r = espejo_.recortada(e);
    puesta_ = sincronizada_ = seleccion;
    const bool mismoTexto = r.inicio == r.fin && r.nuevo.empty();
    if (mismoTexto) vistaPorRehacer_ = false;
    if (mismoTexto && seleccion == seleccionModelo()) return; // Return gives an empty line a format first
    ensucia({e.inicio, e.fin}); // also where the editor put the same text again, without its colours
    deLaVista_ = true;
    edita(r.inicio, r.fin - r.inicio, r.nuevo, seleccion.inicio, seleccion.fin - seleccion.inicio);
}

void CajaTextoQt::rehaceVista() {
    espejo_.copiaTodo();
    vistaPorRehacer_ = false;
    sucio_ = Tramo{0, static_cast<std::int32_t>(texto().size())};
    vistaAtrasada_ = true;
}

void CajaTextoQt::recogeSeleccion() {
    const VistaTexto::Servicio servicio(*vista_);
    protege([this] { tomaSeleccion(); });
}

/// A selection that the host moved meanwhile is not taken back to where the editor still has it.
void CajaTextoQt::tomaSeleccion() {
    if (copiando_ || espejo_.hayEdicion() || vistaAtrasada_ || seleccionModelo() != sincronizada_) return;
    const Tramo vista = seleccionVista();
    if (vista == puesta_) return;
    puesta_ = sincronizada_ = vista;
    selecciona(vista.inicio, vista.fin - vista.inicio);
}

namespace {

/// What is changed while it lives is one step, as long as there is a box.
class UnPaso {
public:
    UnPaso(CajaTexto& caja, std::weak_ptr<const void> viva) : caja_(caja), viva_(std::move(viva)) {
        if (caja_.eventos.empiezaPaso) caja_.eventos.empiezaPaso();
    }
    UnPaso(const UnPaso&) = delete;
    UnPaso& operator=(const UnPaso&) = delete;
    ~UnPaso() {
        if (!viva_.expired() && caja_.eventos.acabaPaso) caja_.eventos.acabaPaso();
    }

private:
    CajaTexto& caja_;
    std::weak_ptr<const void> viva_;
};

} // namespace

void CajaTextoQt::pega(const QString& texto) {
    if (soloLectura()) return;
    const UnPaso unPaso(*this, testigo());
    if (eventos.vaAPegar) eventos.vaAPegar();
    reemplazaSeleccion(vistaDe(texto));
}

void CajaTextoQt::suelta(const QString& texto, int posicion, bool mueve) {
    const auto viva = testigo();
    const UnPaso unPaso(*this, viva);
    std::int32_t destino = espejo_.enTexto(posicion);
    const Tramo origen = seleccionModelo();
    if (mueve) {
        if (destino >= origen.inicio && destino <= origen.fin) return;
        reemplazaSeleccion({});
        if (viva.expired()) return;
        if (destino > origen.fin) destino -= origen.fin - origen.inicio;
    }
    selecciona(destino, 0);
    if (viva.expired()) return;
    pega(texto);
    if (viva.expired()) return;
    selecciona(destino, inicioSeleccion() - destino);
}

QString CajaTextoQt::textoParaCopiar() const {
    return conSaltosDeQt(aQString(textoSeleccionado()));
}

void CajaTextoQt::avisaFallo(const std::u16string& texto) {
    if (falloPendiente_) return;
    const auto avisa = [this, texto] {
        falloPendiente_ = false;
        if (alFallar) sinFallos([&] { alFallar(texto); });
    };
    QMetaObject::invokeMethod(&contexto_, avisa, Qt::QueuedConnection);
    falloPendiente_ = true;
}

} // namespace norvik
