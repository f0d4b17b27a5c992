// SPDX-License-Identifier: MIT

#include "dibujoArbol.hpp"

#include "lamina.hpp"

#include "norvik/checks/recorridoEjemplo.hpp"
#include "norvik/checks/trazadoArbol.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QFontMetrics>
#include <QGraphicsItem>

namespace norvik::taller {

namespace {

constexpr int margen = 7;

QFont letraDe(NodoDibujado::Clase clase, QFont letra) {
    letra.setBold(clase == NodoDibujado::Clase::Variable);
    letra.setItalic(clase == NodoDibujado::Clase::Texto);
    return letra;
}

TrazadoArbol traza(const ArbolDibujado& arbol, const QFont& letra) {
    std::vector<NodoPorTrazar> nodos;
    for (const NodoDibujado& nodo : arbol)
        nodos.push_back(
            {QFontMetrics(letraDe(nodo.clase, letra)).horizontalAdvance(nodo.rotulo), nodo.hijos});
    return trazaArbol(nodos, margen);
}

void pintaNodo(const NodoDibujado& nodo, QPointF centro, const AspectoArbol& aspecto,
               QGraphicsScene& escena) {
    const bool elegido = nodo.numero >= 0 && nodo.numero == aspecto.elegido;
    QGraphicsSimpleTextItem& texto = *escena.addSimpleText(nodo.rotulo, letraDe(nodo.clase, aspecto.letra));
    texto.setBrush(aspecto.colores.color(elegido ? QPalette::HighlightedText : QPalette::Text));
    texto.setPos(centro - texto.boundingRect().center());
    texto.setZValue(1);
    if (nodo.numero >= 0) texto.setData(0, nodo.numero);
    const double grosor = 2 * grosorDeLinea(aspecto.letra);
    const QRectF caja = texto.sceneBoundingRect().adjusted(-4, -2, 4, 2);
    if (elegido)
        escena.addRect(caja, QPen(aspecto.colores.color(QPalette::Text), grosor),
                       aspecto.colores.color(QPalette::Highlight));
    if (nodo.numero >= 0 && aspecto.marcado && aspecto.marcado(nodo.numero))
        escena.addRect(caja.adjusted(-3, -3, 3, 3),
                       QPen(aspecto.colores.color(QPalette::Text), grosor, Qt::DashLine));
}

} // namespace

ArbolDibujado arbolDe(const ArbolEjemplo& ejemplo) {
    ArbolDibujado arbol;
    recorre(
        ejemplo, [](const NodoEjemplo&, std::size_t) {},
        [&](const NodoEjemplo& nodo) {
            const bool vacia = nodo.regla != 0 && nodo.hijos.empty();
            const QString rotulo = aQString(nodo.simbolo) + (vacia ? QStringLiteral(" → Ø") : QString());
            arbol.push_back({rotulo, nodo.hijos.size(),
                             nodo.regla != 0 ? NodoDibujado::Clase::Variable : NodoDibujado::Clase::Token,
                             -1});
        });
    return arbol;
}

QRectF pinta(const ArbolDibujado& arbol, const AspectoArbol& aspecto, QGraphicsScene& escena) {
    const TrazadoArbol trazado = traza(arbol, aspecto.letra);
    const int alto = QFontMetrics(aspecto.letra).height();
    const double nivel = alto * 2.5;
    const auto lugar = [&](const TrazadoArbol::Sitio& sitio) {
        return aspecto.origen + QPointF(sitio.centro, alto + static_cast<double>(sitio.nivel) * nivel);
    };
    const QPen pluma(aspecto.colores.color(QPalette::Text), grosorDeLinea(aspecto.letra));
    const QPointF baja(0, alto * 0.6);
    for (std::size_t i = 0; i < arbol.size(); ++i) {
        const TrazadoArbol::Sitio& sitio = trazado.sitios[i];
        if (sitio.padre != TrazadoArbol::sinPadre)
            escena.addLine({lugar(trazado.sitios[sitio.padre]) + baja, lugar(sitio) - baja}, pluma);
        pintaNodo(arbol[i], lugar(sitio), aspecto, escena);
    }
    return {aspecto.origen, QSizeF(trazado.ancho, static_cast<double>(trazado.niveles) * nivel)};
}

} // namespace norvik::taller
