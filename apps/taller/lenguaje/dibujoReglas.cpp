// SPDX-License-Identifier: MIT

// A track comes from the left and goes to the right. Each rule has a line of its own: the first one goes
// straight through, the others branch off downwards and come back behind the longest of them.
#include "dibujoReglas.hpp"

#include "lamina.hpp"

#include "norvik/platform/qt/conversiones.hpp"

#include <QFontMetricsF>
#include <QGraphicsItem>
#include <QPainterPath>

#include <algorithm>
#include <set>
#include <vector>

namespace norvik::taller {

namespace {

/// The chosen rule stands out.
double grosorDe(bool elegida, double grosor) {
    return (elegida ? 3.0 : 1.0) * grosor;
}

class PintorReglas {
public:
    PintorReglas(const GramaticaLR& g, const QFont& letra, const QPalette& colores, std::int16_t elegida,
                 QGraphicsScene& escena)
        : g_(g), letra_(letra), color_(colores.color(QPalette::Text)), fondo_(colores.color(QPalette::Base)),
          elegida_(elegida), escena_(escena), medidas_(letra), alto_(medidas_.height() + 8),
          curva_(alto_ / 2), grosor_(grosorDeLinea(letra)) {}

    void pinta() {
        std::set<Simbolo> puestas;
        for (std::int16_t regla = 1; regla <= g_.reglas.numReglas(); ++regla)
            if (const Simbolo cabeza = g_.partidas.cabeza(regla); puestas.insert(cabeza).second)
                pintaVariable(cabeza);
    }

private:
    static constexpr double aire = 8;    // beside the words of a box
    static constexpr double trecho = 14; // of track between two boxes

    QFont negrita() const {
        QFont letra = letra_;
        letra.setBold(true);
        return letra;
    }
    QPen pluma(std::int16_t regla) const { return {color_, grosorDe(regla == elegida_, grosor_)}; }
    QString texto(Simbolo simbolo) const { return aQString(g_.partidas.texto(simbolo)); }
    double anchoDe(Simbolo simbolo) const { return medidas_.horizontalAdvance(texto(simbolo)) + 2 * aire; }
    double anchoDe(std::int16_t regla) const {
        double ancho = trecho;
        if (!g_.partidas.esVacia(regla))
            for (const Simbolo simbolo : g_.partidas.cuerpo(regla)) ancho += anchoDe(simbolo) + trecho;
        return ancho;
    }

    void escribe(const QString& palabras, QPointF sitio, const QFont& letra, std::int16_t regla) {
        QGraphicsSimpleTextItem& pieza = *escena_.addSimpleText(palabras, letra);
        pieza.setBrush(color_);
        pieza.setPos(sitio);
        pieza.setData(0, regla);
    }

    void pintaVariable(Simbolo cabeza) {
        std::vector<std::int16_t> reglas;
        double ancho = 0;
        for (std::int16_t regla = 1; regla <= g_.reglas.numReglas(); ++regla) {
            if (g_.partidas.cabeza(regla) != cabeza) continue;
            reglas.push_back(regla);
            ancho = std::max(ancho, anchoDe(regla));
        }
        escribe(texto(cabeza), {0, y_}, negrita(), reglas.front());
        y_ += alto_ * 1.5;
        const double entrada = y_;
        for (const std::int16_t regla : reglas) {
            pintaRegla(regla, entrada, ancho);
            y_ += alto_ * 1.3;
        }
        y_ += alto_ * 0.5;
    }

    void pintaRegla(std::int16_t regla, double entrada, double ancho) {
        const double desde = trecho + 2 * curva_;
        const double hasta = desde + ancho;
        pintaVia(regla, entrada, desde, hasta);
        double x = desde + trecho;
        if (g_.partidas.esVacia(regla)) return;
        for (const Simbolo simbolo : g_.partidas.cuerpo(regla)) {
            pintaCaja(regla, simbolo, x);
            x += anchoDe(simbolo) + trecho;
        }
    }

    void pintaVia(std::int16_t regla, double entrada, double desde, double hasta) {
        QPainterPath via(QPointF(0, entrada));
        if (y_ == entrada) {
            via.lineTo(hasta + 2 * curva_ + trecho, entrada);
        } else {
            via.lineTo(trecho, entrada);
            via.quadTo(trecho + curva_, entrada, trecho + curva_, entrada + curva_);
            via.lineTo(trecho + curva_, y_ - curva_);
            via.quadTo(trecho + curva_, y_, desde, y_);
            via.lineTo(hasta, y_);
            via.quadTo(hasta + curva_, y_, hasta + curva_, y_ - curva_);
            via.lineTo(hasta + curva_, entrada + curva_);
            via.quadTo(hasta + curva_, entrada, hasta + 2 * curva_, entrada);
        }
        escena_.addPath(via, pluma(regla))->setData(0, regla);
    }

    void pintaCaja(std::int16_t regla, Simbolo simbolo, double x) {
        const QRectF caja(x, y_ - alto_ / 2, anchoDe(simbolo), alto_);
        QPainterPath marco;
        const double redondo = g_.partidas.esVariable(simbolo) ? 0 : alto_ / 2;
        marco.addRoundedRect(caja, redondo, redondo);
        escena_.addPath(marco, pluma(regla), fondo_)->setData(0, regla);
        escribe(texto(simbolo), caja.topLeft() + QPointF(aire, (alto_ - medidas_.height()) / 2), letra_,
                regla);
    }

    const GramaticaLR& g_;
    const QFont letra_;
    const QColor color_, fondo_;
    const std::int16_t elegida_;
    QGraphicsScene& escena_;
    const QFontMetricsF medidas_;
    const double alto_;  // of a box
    const double curva_; // radius
    const double grosor_;
    double y_ = 0; // of the line that is drawn
};

} // namespace

void pintaReglas(const GramaticaLR& gramatica, const QFont& letra, const QPalette& colores,
                 std::int16_t elegida, QGraphicsScene& escena) {
    PintorReglas(gramatica, letra, colores, elegida, escena).pinta();
}

void realzaRegla(std::int16_t regla, const QFont& letra, QGraphicsScene& escena) {
    const double grosor = grosorDeLinea(letra);
    for (QGraphicsItem* const pieza : escena.items()) {
        auto* const linea = qgraphicsitem_cast<QGraphicsPathItem*>(pieza);
        if (linea == nullptr) continue;
        QPen pluma = linea->pen();
        pluma.setWidthF(grosorDe(linea->data(0).toInt() == regla, grosor));
        linea->setPen(pluma);
    }
}

} // namespace norvik::taller
