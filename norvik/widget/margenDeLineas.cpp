// SPDX-License-Identifier: MIT

#include "norvik/widget/margenDeLineas.hpp"

#include "norvik/platform/qt/avisoALectores.hpp"
#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/medidas.hpp"
#include "norvik/widget/diagnosticosVistos.hpp"
#include "norvik/widget/plegado.hpp"
#include "norvik/widget/signo.hpp"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QTransform>

#include <algorithm>
#include <utility>

namespace norvik {

namespace {

constexpr int margen = 4;        ///< beside the numbers
constexpr int ladoDeSigno = 240; ///< twips, as those that the control itself puts there
constexpr int izquierdaDeSigno = 30;
constexpr int menosCifras = 2; ///< so that a short text does not make the border move

int cifras(int numero) {
    return static_cast<int>(QString::number(numero).size());
}

} // namespace

MargenDeLineas::MargenDeLineas(QWidget& borde, CajaTextoQt& caja, const DiagnosticosVistos& diagnosticos,
                               Plegado& plegado)
    : QWidget(&borde), caja_(caja), diagnosticos_(diagnosticos), plegado_(plegado) {
    setObjectName(QStringLiteral("margenDeLineas"));
    hazAviso(*this);
    setAccessibleName(QStringLiteral("Líneas"));
    setGeometry(borde.rect());
    borde.installEventFilter(this);
    connect(&caja_.vista(), &QPlainTextEdit::updateRequest, this, [this](const QRect& rect, int dy) {
        dy == 0 ? update(0, rect.y(), width(), rect.height()) : update();
    });
    connect(&plegado, &Plegado::cambiado, this, [this] { update(); });
    connect(&diagnosticos, &DiagnosticosVistos::otros, this, &MargenDeLineas::muestraDiagnosticos);
}

void MargenDeLineas::ponNumeros(bool visibles) {
    numeros_ = visibles;
    update();
}

int MargenDeLineas::anchoAdicional() const {
    if (!numeros_) return anchoDePliegues();
    const int cuantas = std::max(cifras(caja_.numeroDeLineas()), menosCifras);
    return QFontMetrics(caja_.vista().font()).horizontalAdvance(u'9') * cuantas + 2 * margen +
           anchoDePliegues();
}

int MargenDeLineas::anchoDePliegues() const {
    return plegado_.permitido() ? QFontMetrics(caja_.vista().font()).height() * 3 / 4 : 0;
}

bool MargenDeLineas::sigue() {
    const int actual = caja_.lineaDeCaracter(caja_.inicioSeleccion());
    if (std::exchange(actual_, actual) != actual) update();
    const int ancho = anchoAdicional();
    return std::exchange(ancho_, ancho) != ancho;
}

void MargenDeLineas::muestraDiagnosticos() {
    update();
    const QString resumen = diagnosticos_.resumen();
    if (resumen.isEmpty())
        setAccessibleName(QStringLiteral("Líneas"));
    else
        avisaALectores(*this, resumen);
}

bool MargenDeLineas::eventFilter(QObject* borde, QEvent* evento) {
    if (evento->type() == QEvent::Resize) resize(static_cast<QWidget*>(borde)->size());
    return QWidget::eventFilter(borde, evento);
}

bool MargenDeLineas::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
    const auto& ayuda = static_cast<const QHelpEvent&>(*evento);
    sinFallos([&] {
        const auto linea = caja_.vista().lineaEn(ayuda.pos().y());
        const QString palabras = linea ? diagnosticos_.palabrasDeLinea(*linea) : QString();
        QToolTip::showText(ayuda.globalPos(), ayudaLlana(palabras), this);
    });
    return true;
}

void MargenDeLineas::paintEvent(QPaintEvent* /*evento*/) {
    sinFallos([&] { // what is left out is drawn the next time
        QPainter pintor(this);
        pintor.setClipRect(0, 0, width(), caja_.vista().viewport()->height());
        const auto vistas = caja_.vista().lineasVistas();
        if (numeros_) pintaNumeros(pintor, vistas);
        if (diagnosticos_.hay() && !vistas.empty()) pintaDiagnosticos(pintor, vistas);
        if (plegado_.permitido()) pintaPliegues(pintor, vistas);
    });
}

/// The caret's line stands out.
void MargenDeLineas::pintaNumeros(QPainter& pintor, const Lineas& vistas) const {
    const QColor destacado = palette().color(QPalette::WindowText);
    QColor corriente = destacado;
    constexpr int tenue = 165;
    corriente.setAlpha(tenue);
    pintor.setFont(caja_.vista().font());
    for (const VistaTexto::Linea& l : vistas) {
        pintor.setPen(l.numero == actual_ ? destacado : corriente);
        pintor.drawText(QRect(0, l.arriba, width() - margen - anchoDePliegues(), l.alto),
                        Qt::AlignRight | Qt::AlignTop, QString::number(l.numero + 1));
    }
}

void MargenDeLineas::pintaDiagnosticos(QPainter& pintor, const Lineas& vistas) const {
    const auto malas = diagnosticos_.enLineas(vistas.front().numero, vistas.back().numero);
    const TwipsPorPixel pixel = twipsPorPixel(*this);
    const int lado = aPixeles(ladoDeSigno, pixel.y);
    for (const auto& mala : malas) {
        const auto linea = std::ranges::find(vistas, mala.linea, &VistaTexto::Linea::numero);
        if (linea == vistas.end()) continue; // folded
        const int suyo = std::min(lado, linea->alto);
        Signo::pinta(
            pintor, Signo::dibujoDe(mala.gravedad),
            {aPixeles(izquierdaDeSigno, pixel.x), linea->arriba + (linea->alto - suyo) / 2, suyo, suyo});
    }
}

/// A triangle that points to what is hidden, or down to what can be.
void MargenDeLineas::pintaPliegues(QPainter& pintor, const Lineas& vistas) const {
    const double lado = anchoDePliegues();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(palette().color(QPalette::WindowText));
    const QPolygonF abierto({{0.25, 0.35}, {0.75, 0.35}, {0.5, 0.7}});
    const QPolygonF plegado({{0.35, 0.25}, {0.7, 0.5}, {0.35, 0.75}});
    for (const VistaTexto::Linea& l : vistas) {
        const Plegado::Estado estado = plegado_.estado(l.numero);
        if (estado == Plegado::Estado::Ninguno) continue;
        QTransform sitio;
        sitio.translate(width() - lado, l.arriba + (l.alto - lado) / 2);
        sitio.scale(lado, lado);
        pintor.drawPolygon(sitio.map(estado == Plegado::Estado::Plegado ? plegado : abierto));
    }
}

/// Elsewhere the press is the border's. What it does may end in a host that deletes the control.
void MargenDeLineas::mousePressEvent(QMouseEvent* evento) {
    const QPoint punto = evento->position().toPoint();
    const auto linea = caja_.vista().lineaEn(punto.y());
    const bool enTriangulo = evento->button() == Qt::LeftButton && punto.x() >= width() - anchoDePliegues();
    if (!enTriangulo || !linea || plegado_.estado(*linea) == Plegado::Estado::Ninguno)
        return evento->ignore();
    QMetaObject::invokeMethod(
        &plegado_, [this, cual = *linea] { plegado_.cambia(cual); }, Qt::QueuedConnection);
}

} // namespace norvik
