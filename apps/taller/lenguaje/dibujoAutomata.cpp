// SPDX-License-Identifier: MIT

#include "dibujoAutomata.hpp"

#include "lamina.hpp"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGraphicsItem>

#include <algorithm>
#include <cmath>
#include <utility>

namespace norvik::taller {

namespace {

constexpr double aire = 7;         // around the words of a box
constexpr double entreMarcos = 3;  // of a state with a conflict
constexpr double anchoDePunta = 8; // of an arrow's head

QFont deTitulo(QFont letra) {
    letra.setBold(true);
    return letra;
}

QSizeF medidaDe(const EstadoDibujado& estado, const QFont& letra) {
    const QFontMetricsF medidas(letra);
    double mayor = QFontMetricsF(deTitulo(letra)).horizontalAdvance(estado.titulo);
    for (const QString& linea : estado.lineas) mayor = std::max(mayor, medidas.horizontalAdvance(linea));
    const double alto = medidas.lineSpacing() * static_cast<double>(estado.lineas.size() + 1);
    return {std::ceil(mayor + 2 * aire), std::ceil(alto + 2 * aire)};
}

/// The head of an arrow, from where its line ends to its point.
QPolygonF cabezaDe(const GrafoColocado::Flecha& flecha) {
    const QPointF eje = flecha.punta - flecha.llegada;
    const double largo = std::hypot(eje.x(), eje.y());
    if (largo == 0) return {};
    const QPointF lado = QPointF(-eje.y(), eje.x()) / largo * (anchoDePunta / 2);
    return QPolygonF({flecha.llegada + lado, flecha.punta, flecha.llegada - lado});
}

/// The lines of a box, each with the place where its letters stand.
template <typename Accion>
void paraCadaLinea(const DibujoAutomata& dibujo, const EstadoDibujado& estado, const Accion& accion) {
    const double paso = QFontMetricsF(dibujo.letra).lineSpacing();
    QPointF sitio = dibujo.caja(estado.numero).topLeft() + QPointF(aire, aire);
    accion(estado.titulo, sitio, true);
    for (const QString& linea : estado.lineas) accion(linea, sitio += QPointF(0, paso), false);
}

void pintaFlecha(const DibujoAutomata& dibujo, const GrafoColocado::Flecha& flecha, const QColor& color,
                 bool enCamino, QGraphicsScene& escena) {
    const QPen pluma(color, (enCamino ? 3 : 1) * grosorDeLinea(dibujo.letra));
    escena.addPath(flecha.linea, pluma);
    escena.addPolygon(cabezaDe(flecha), pluma, color);
    if (dibujo.grafo.esDenso()) return;
    QGraphicsSimpleTextItem& rotulo = *escena.addSimpleText(dibujo.grafo.flechas[flecha.numero].rotulo,
                                                            enCamino ? deTitulo(dibujo.letra) : dibujo.letra);
    rotulo.setBrush(color);
    rotulo.setPos(flecha.rotulo - rotulo.boundingRect().center());
}

void pintaEstado(const DibujoAutomata& dibujo, const EstadoDibujado& estado, const QPalette& colores,
                 const RealceAutomata& realce, QGraphicsScene& escena) {
    const bool elegido = estado.numero == realce.estado;
    const bool conRegla = realce.conRegla.contains(estado.numero);
    const QRectF caja = dibujo.caja(estado.numero);
    const QColor letra = colores.color(elegido ? QPalette::HighlightedText : QPalette::Text);
    const double grosor = grosorDeLinea(dibujo.letra);
    const QPen pluma(colores.color(QPalette::Text), (elegido ? 3 : 1) * grosor);
    QGraphicsRectItem& marco =
        *escena.addRect(caja, pluma, colores.color(elegido ? QPalette::Highlight : QPalette::Base));
    marco.setData(0, estado.numero);
    if (estado.conflicto) {
        const double m = entreMarcos;
        escena.addRect(caja.adjusted(m, m, -m, -m), QPen(letra, grosor))->setData(0, estado.numero);
    }
    if (conRegla) {
        QPen guiones(colores.color(QPalette::Text), 2 * grosor, Qt::DashLine);
        const double m = entreMarcos;
        escena.addRect(caja.adjusted(-m, -m, m, m), guiones)->setData(0, estado.numero);
    }
    paraCadaLinea(dibujo, estado, [&](const QString& linea, QPointF sitio, bool esTitulo) {
        QGraphicsSimpleTextItem& texto =
            *escena.addSimpleText(linea, esTitulo ? deTitulo(dibujo.letra) : dibujo.letra);
        texto.setBrush(letra);
        texto.setPos(sitio);
        texto.setData(0, estado.numero);
    });
}

/// All arrows that lead to a state have the same symbol.
void escribeSimbolosEnLosEstados(DibujoAutomata& dibujo) {
    QHash<int, QString> simbolos;
    for (const Grafo::Flecha& flecha : dibujo.grafo.flechas) simbolos.insert(flecha.hasta, flecha.rotulo);
    for (EstadoDibujado& estado : dibujo.estados)
        if (const auto suyo = simbolos.constFind(estado.numero); suyo != simbolos.constEnd())
            estado.titulo += QStringLiteral(" · tras ") + *suyo;
}

} // namespace

const EstadoDibujado* DibujoAutomata::estado(int numero) const {
    const auto suyo = std::ranges::find(estados, numero, &EstadoDibujado::numero);
    return suyo == estados.end() ? nullptr : &*suyo;
}

QRectF DibujoAutomata::caja(int numero) const {
    const EstadoDibujado* const suyo = estado(numero);
    if (suyo == nullptr) return {};
    QRectF caja({}, medidaDe(*suyo, letra));
    caja.moveCenter(sitio.cajas.value(numero));
    return caja;
}

DibujoAutomata preparaDibujo(QList<EstadoDibujado> estados, QList<Grafo::Flecha> flechas,
                             const QFont& letra) {
    DibujoAutomata dibujo{letra, std::move(estados), {}, {}};
    dibujo.grafo.letra = QFontInfo(letra).pixelSize();
    dibujo.grafo.flechas = std::move(flechas);
    if (dibujo.grafo.esDenso()) escribeSimbolosEnLosEstados(dibujo);
    for (const EstadoDibujado& estado : dibujo.estados)
        dibujo.grafo.cajas.append({estado.numero, medidaDe(estado, letra)});
    return dibujo;
}

void pinta(const DibujoAutomata& dibujo, const QPalette& colores, const RealceAutomata& realce,
           QGraphicsScene& escena) {
    for (const auto& flecha : dibujo.sitio.flechas) {
        const Grafo::Flecha& suya = dibujo.grafo.flechas[flecha.numero];
        pintaFlecha(dibujo, flecha, colores.color(QPalette::Text),
                    realce.camino.contains(std::pair(suya.desde, suya.hasta)), escena);
    }
    for (const auto& estado : dibujo.estados) pintaEstado(dibujo, estado, colores, realce, escena);
}

} // namespace norvik::taller
