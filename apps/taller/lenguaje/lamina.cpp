// SPDX-License-Identifier: MIT

#include "lamina.hpp"

#include "documentos.hpp"

#include "norvik/base/errores.hpp"

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
#include <cstddef>
#include <new>
#include <utility>

namespace norvik::taller {

namespace {

void pintaEnPapel(const Lamina& lamina, QGraphicsScene& escena) {
    QPalette papel;
    papel.setColor(QPalette::Text, Qt::black);
    papel.setColor(QPalette::Base, Qt::white);
    papel.setColor(QPalette::AlternateBase, Qt::white);
    lamina.pinta(papel, escena);
    ajustaEscena(escena);
}

void dibuja(QGraphicsScene& escena, QPainter& pintor) {
    pintor.setRenderHint(QPainter::Antialiasing);
    escena.render(&pintor, {}, escena.sceneRect());
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
        if (trozo.isLineTo()) texto += u'L';
        if (trozo.isCurveTo()) texto += u'C';
        texto += enNumeros(trozo) + u' ';
    }
    return texto.trimmed();
}

/// XML has no way to write most control characters: they stand as their pictures.
QString paraXml(QString texto) {
    constexpr char16_t dibujoDelNulo = 0x2400;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const char16_t c = texto.at(i).unicode();
        const bool conPareja =
            texto.at(i).isHighSurrogate() && i + 1 < texto.size() && texto.at(i + 1).isLowSurrogate();
        if (c < u' ')
            texto[i] = QChar(static_cast<char16_t>(dibujoDelNulo + c));
        else if (conPareja)
            ++i;
        else if (texto.at(i).isSurrogate() || c >= 0xFFFE)
            texto[i] = QChar::ReplacementCharacter;
    }
    return texto;
}

QString color(const QBrush& brocha) {
    return brocha.style() == Qt::NoBrush ? QStringLiteral("none") : brocha.color().name();
}

class EscritorSvg {
public:
    explicit EscritorSvg(QString titulo) : titulo_(std::move(titulo)), xml_(&svg_) {}

    /// Raises `ErrorDeFichero` when there is no room for it.

    QByteArray escribe(const QGraphicsScene& escena) {
        const QRectF todo = escena.sceneRect();
        xml_.writeStartElement(QStringLiteral("svg"));
        xml_.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
        pon("viewBox",
            QStringLiteral("%1 %2 %3 %4").arg(todo.x()).arg(todo.y()).arg(todo.width()).arg(todo.height()));
        pon("role", QStringLiteral("img"));
        pon("aria-label", titulo_);
        for (const QGraphicsItem* const pieza : escena.items(Qt::AscendingOrder)) escribe(*pieza);
        xml_.writeEndElement();
        if (xml_.hasError()) throw ErrorDeFichero(u"No se puede componer el dibujo SVG");
        return svg_;
    }

private:
    void pon(const char* atributo, const QString& valor) {
        xml_.writeAttribute(QLatin1String(atributo), valor);
    }

    void escribe(const QGraphicsItem& pieza) {
        if (const auto* const texto = dynamic_cast<const QGraphicsSimpleTextItem*>(&pieza))
            escribeTexto(*texto);
        else if (const auto* const linea = dynamic_cast<const QGraphicsLineItem*>(&pieza))
            escribeLinea(*linea);
        else if (const auto* const marco = dynamic_cast<const QGraphicsRectItem*>(&pieza))
            escribeCamino(*marco, [&](QPainterPath& camino) { camino.addRect(marco->rect()); });
        else if (const auto* const poligono = dynamic_cast<const QGraphicsPolygonItem*>(&pieza))
            escribeCamino(*poligono, [&](QPainterPath& camino) { camino.addPolygon(poligono->polygon()); });
        else if (const auto* const camino = dynamic_cast<const QGraphicsPathItem*>(&pieza))
            escribeCamino(*camino, [&](QPainterPath& suyo) { suyo = camino->path(); });
    }

    template <typename Traza>
    void escribeCamino(const QAbstractGraphicsShapeItem& pieza, const Traza& traza) {
        QPainterPath camino;
        traza(camino);
        xml_.writeEmptyElement(QStringLiteral("path"));
        pon("d", enSvg(pieza.sceneTransform().map(camino)));
        pon("fill", color(pieza.brush()));
        ponPluma(pieza.pen());
    }

    void escribeLinea(const QGraphicsLineItem& pieza) {
        const QLineF linea = pieza.sceneTransform().map(pieza.line());
        xml_.writeEmptyElement(QStringLiteral("path"));
        pon("d", u'M' + enNumeros(linea.p1()) + QStringLiteral(" L") + enNumeros(linea.p2()));
        ponPluma(pieza.pen());
    }

    void ponPluma(const QPen& pluma) {
        if (pluma.style() == Qt::NoPen) return;
        pon("stroke", pluma.color().name());
        pon("stroke-width", QString::number(pluma.widthF()));
    }

    /// Another machine's letters may be wider: a text keeps its place and its length.
    void escribeTexto(const QGraphicsSimpleTextItem& texto) {
        const QFontMetricsF medidas(texto.font());
        xml_.writeStartElement(QStringLiteral("text"));
        pon("x", QString::number(texto.scenePos().x(), 'f', 1));
        pon("y", QString::number(texto.scenePos().y() + medidas.ascent(), 'f', 1));
        pon("font-family", texto.font().family());
        pon("font-size", QString::number(QFontInfo(texto.font()).pixelSize()));
        if (texto.font().bold()) pon("font-weight", QStringLiteral("bold"));
        if (texto.font().italic()) pon("font-style", QStringLiteral("italic"));
        pon("textLength", QString::number(medidas.horizontalAdvance(texto.text()), 'f', 1));
        pon("fill", color(texto.brush()));
        xml_.writeCharacters(paraXml(texto.text()));
        xml_.writeEndElement();
    }

    const QString titulo_;
    QByteArray svg_;
    QXmlStreamWriter xml_;
};

QByteArray enPng(const Lamina& lamina) {
    QByteArray bytes;
    QBuffer salida(&bytes);
    if (!enImagen(lamina).save(&salida, "PNG")) throw ErrorDeFichero(u"No se puede componer la imagen PNG");
    return bytes;
}

} // namespace

const QString filtroLaminas =
    QStringLiteral("Dibujos SVG (*.svg);;Imágenes PNG (*.png);;Documentos PDF (*.pdf)");

double grosorDeLinea(const QFont& letra) {
    constexpr double altoPorPunto = 10; // height of the letters that a line one point thick goes with
    return std::max(1.0, std::floor(QFontMetricsF(letra).height() / altoPorPunto));
}

void ajustaEscena(QGraphicsScene& escena) {
    constexpr double aire = 7;
    escena.setSceneRect(escena.itemsBoundingRect().adjusted(-aire, -aire, aire, aire));
}

QImage enImagen(const Lamina& lamina) {
    constexpr double maximo = 16'000;     // pixels a side
    constexpr double cabida = 64'000'000; // pixels
    QGraphicsScene escena;
    pintaEnPapel(lamina, escena);
    const QSizeF medida = escena.sceneRect().size();
    const double escala = std::min({2.0, maximo / std::max(medida.width(), medida.height()),
                                    std::sqrt(cabida / (medida.width() * medida.height()))});
    QImage imagen((medida * escala).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
    if (imagen.isNull()) throw std::bad_alloc();
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    dibuja(escena, pintor);
    pintor.end();
    return imagen;
}

QByteArray enSvg(const Lamina& lamina) {
    QGraphicsScene escena;
    pintaEnPapel(lamina, escena);
    return EscritorSvg(lamina.titulo).escribe(escena);
}

QByteArray enPdf(const Lamina& lamina) {
    QGraphicsScene escena;
    pintaEnPapel(lamina, escena);
    QByteArray bytes;
    QBuffer salida(&bytes);
    salida.open(QIODevice::WriteOnly);
    QPdfWriter papel(&salida);
    papel.setTitle(lamina.titulo);
    papel.setPageSize(QPageSize(escena.sceneRect().size(), QPageSize::Point));
    papel.setPageMargins({});
    QPainter pintor(&papel);
    dibuja(escena, pintor);
    pintor.end();
    return bytes;
}

void guardaLamina(const Lamina& lamina, const QString& fichero) {
    const bool esSvg = fichero.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const bool esPdf = fichero.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
    const QByteArray bytes = esSvg ? enSvg(lamina) : esPdf ? enPdf(lamina) : enPng(lamina);
    escribeDocumento(fichero, {bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace norvik::taller
