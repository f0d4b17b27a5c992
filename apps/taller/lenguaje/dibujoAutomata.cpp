// SPDX-License-Identifier: MIT

#include "dibujoAutomata.hpp"

#include "documentos.hpp"

#include <QBuffer>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGraphicsItem>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace norvik::taller {

namespace {

constexpr double aire = 7;        // around the words of a box
constexpr double entreMarcos = 3; // of a state with a conflict
constexpr double ancho = 8;       // of an arrow's head

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
    const QPointF lado = QPointF(-eje.y(), eje.x()) / largo * (ancho / 2);
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
                 QGraphicsScene& escena) {
    escena.addPath(flecha.linea, QPen(color, 1));
    escena.addPolygon(cabezaDe(flecha), QPen(color, 1), color);
    QGraphicsSimpleTextItem& rotulo =
        *escena.addSimpleText(dibujo.grafo.flechas[flecha.numero].rotulo, dibujo.letra);
    rotulo.setBrush(color);
    rotulo.setPos(flecha.rotulo - rotulo.boundingRect().center());
}

void pintaEstado(const DibujoAutomata& dibujo, const EstadoDibujado& estado, const QPalette& colores,
                 bool elegido, QGraphicsScene& escena) {
    const QRectF caja = dibujo.caja(estado.numero);
    const QColor letra = colores.color(elegido ? QPalette::HighlightedText : QPalette::Text);
    const QPen pluma(colores.color(QPalette::Text), elegido ? 3 : 1);
    QGraphicsRectItem& marco =
        *escena.addRect(caja, pluma, colores.color(elegido ? QPalette::Highlight : QPalette::Base));
    marco.setData(0, estado.numero);
    if (estado.conflicto) {
        const double m = entreMarcos;
        escena.addRect(caja.adjusted(m, m, -m, -m), QPen(letra, 1))->setData(0, estado.numero);
    }
    paraCadaLinea(dibujo, estado, [&](const QString& linea, QPointF sitio, bool esTitulo) {
        QGraphicsSimpleTextItem& texto =
            *escena.addSimpleText(linea, esTitulo ? deTitulo(dibujo.letra) : dibujo.letra);
        texto.setBrush(letra);
        texto.setPos(sitio);
        texto.setData(0, estado.numero);
    });
}

QRectF extension(const DibujoAutomata& dibujo) {
    QGraphicsScene escena;
    pinta(dibujo, QPalette(Qt::white), -1, escena);
    return escena.itemsBoundingRect().adjusted(-aire, -aire, aire, aire);
}

void pintaEnPapel(const DibujoAutomata& dibujo, QPainter& pintor) {
    QPalette papel;
    papel.setColor(QPalette::Text, Qt::black);
    papel.setColor(QPalette::Base, Qt::white);
    QGraphicsScene escena;
    pinta(dibujo, papel, -1, escena);
    pintor.setRenderHint(QPainter::Antialiasing);
    escena.render(&pintor, {}, extension(dibujo));
}

QByteArray enPng(const DibujoAutomata& dibujo) {
    QByteArray bytes;
    QBuffer salida(&bytes);
    enImagen(dibujo).save(&salida, "PNG");
    return bytes;
}

QByteArray enPdf(const DibujoAutomata& dibujo) {
    QByteArray bytes;
    QBuffer salida(&bytes);
    salida.open(QIODevice::WriteOnly);
    QPdfWriter papel(&salida);
    papel.setPageSize(QPageSize(extension(dibujo).size(), QPageSize::Point));
    papel.setPageMargins({});
    QPainter pintor(&papel);
    pintaEnPapel(dibujo, pintor);
    pintor.end();
    return bytes;
}

// ---- SVG

QString enNumeros(QPointF punto) {
    return QStringLiteral("%1,%2").arg(punto.x(), 0, 'f', 1).arg(punto.y(), 0, 'f', 1);
}

QString enSvg(const QPainterPath& linea) {
    QString texto;
    for (int i = 0; i < linea.elementCount(); ++i) {
        const QPainterPath::Element trozo = linea.elementAt(i);
        if (trozo.isMoveTo()) texto += u'M';
        if (trozo.isCurveTo()) texto += QStringLiteral(" C");
        texto += u' ' + enNumeros(trozo);
    }
    return texto;
}

class EscritorSvg {
public:
    explicit EscritorSvg(const DibujoAutomata& dibujo) : dibujo_(dibujo), xml_(&svg_) {}

    QByteArray escribe() {
        const QRectF todo = extension(dibujo_);
        xml_.writeStartElement(QStringLiteral("svg"));
        xml_.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
        xml_.writeAttribute(
            QStringLiteral("viewBox"),
            QStringLiteral("%1 %2 %3 %4").arg(todo.x()).arg(todo.y()).arg(todo.width()).arg(todo.height()));
        xml_.writeAttribute(QStringLiteral("font-family"), dibujo_.letra.family());
        xml_.writeAttribute(QStringLiteral("font-size"), QString::number(tamano()));
        xml_.writeAttribute(QStringLiteral("role"), QStringLiteral("img"));
        xml_.writeAttribute(QStringLiteral("aria-label"), QStringLiteral("Autómata"));
        for (const auto& flecha : dibujo_.sitio.flechas) escribeFlecha(flecha);
        for (const auto& estado : dibujo_.estados) escribeEstado(estado);
        xml_.writeEndElement();
        return svg_;
    }

private:
    static QXmlStreamAttributes centrado() {
        QXmlStreamAttributes atributos;
        atributos.append(QStringLiteral("text-anchor"), QStringLiteral("middle"));
        return atributos;
    }
    int tamano() const { return QFontInfo(dibujo_.letra).pixelSize(); }

    void escribeFlecha(const GrafoColocado::Flecha& flecha) {
        xml_.writeEmptyElement(QStringLiteral("path"));
        xml_.writeAttribute(QStringLiteral("d"), enSvg(flecha.linea));
        contorno();
        xml_.writeEmptyElement(QStringLiteral("polygon"));
        QStringList puntos;
        for (const QPointF p : cabezaDe(flecha)) puntos.append(enNumeros(p));
        xml_.writeAttribute(QStringLiteral("points"), puntos.join(u' '));
        escribeTexto(dibujo_.grafo.flechas[flecha.numero].rotulo, flecha.rotulo + QPointF(0, tamano() * 0.35),
                     centrado());
    }

    void escribeEstado(const EstadoDibujado& estado) {
        const QRectF caja = dibujo_.caja(estado.numero);
        escribeMarco(caja);
        if (estado.conflicto)
            escribeMarco(caja.adjusted(entreMarcos, entreMarcos, -entreMarcos, -entreMarcos));
        const double subida = QFontMetricsF(dibujo_.letra).ascent();
        paraCadaLinea(dibujo_, estado, [&](const QString& linea, QPointF sitio, bool esTitulo) {
            QXmlStreamAttributes suyos;
            if (esTitulo) suyos.append(QStringLiteral("font-weight"), QStringLiteral("bold"));
            escribeTexto(linea, sitio + QPointF(0, subida), suyos);
        });
    }

    void escribeMarco(const QRectF& caja) {
        xml_.writeEmptyElement(QStringLiteral("rect"));
        xml_.writeAttribute(QStringLiteral("x"), QString::number(caja.x(), 'f', 1));
        xml_.writeAttribute(QStringLiteral("y"), QString::number(caja.y(), 'f', 1));
        xml_.writeAttribute(QStringLiteral("width"), QString::number(caja.width()));
        xml_.writeAttribute(QStringLiteral("height"), QString::number(caja.height()));
        contorno();
    }

    void escribeTexto(const QString& texto, QPointF sitio, const QXmlStreamAttributes& otros) {
        xml_.writeStartElement(QStringLiteral("text"));
        xml_.writeAttribute(QStringLiteral("x"), QString::number(sitio.x(), 'f', 1));
        xml_.writeAttribute(QStringLiteral("y"), QString::number(sitio.y(), 'f', 1));
        xml_.writeAttributes(otros);
        xml_.writeCharacters(texto);
        xml_.writeEndElement();
    }

    void contorno() {
        xml_.writeAttribute(QStringLiteral("fill"), QStringLiteral("none"));
        xml_.writeAttribute(QStringLiteral("stroke"), QStringLiteral("black"));
    }

    const DibujoAutomata& dibujo_;
    QByteArray svg_;
    QXmlStreamWriter xml_;
};

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
    for (const EstadoDibujado& estado : dibujo.estados)
        dibujo.grafo.cajas.append({estado.numero, medidaDe(estado, letra)});
    return dibujo;
}

void pinta(const DibujoAutomata& dibujo, const QPalette& colores, int elegido, QGraphicsScene& escena) {
    escena.clear();
    for (const auto& flecha : dibujo.sitio.flechas)
        pintaFlecha(dibujo, flecha, colores.color(QPalette::Text), escena);
    for (const auto& estado : dibujo.estados)
        pintaEstado(dibujo, estado, colores, estado.numero == elegido, escena);
    escena.setSceneRect(escena.itemsBoundingRect().adjusted(-aire, -aire, aire, aire));
}

QImage enImagen(const DibujoAutomata& dibujo) {
    constexpr double maximo = 16'000; // pixels a side
    const QSizeF medida = extension(dibujo).size();
    const double escala = std::min(2.0, maximo / std::max(medida.width(), medida.height()));
    QImage imagen((medida * escala).toSize(), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    pintaEnPapel(dibujo, pintor);
    pintor.end();
    return imagen;
}

QByteArray enSvg(const DibujoAutomata& dibujo) {
    return EscritorSvg(dibujo).escribe();
}

void guardaDibujo(const DibujoAutomata& dibujo, const QString& fichero) {
    const bool esSvg = fichero.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const bool esPdf = fichero.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
    const QByteArray bytes = esSvg ? enSvg(dibujo) : esPdf ? enPdf(dibujo) : enPng(dibujo);
    escribeDocumento(fichero, {bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace norvik::taller
