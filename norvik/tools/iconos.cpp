#include "norvik/tools/iconos.hpp"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>

namespace norvik {

namespace {

// Every picture is drawn in a square of 16 units, with a pen and a brush of the text's colour.
constexpr int lado = 16;

void dibujaEjecutar(QPainter& pintor) {
    pintor.drawPolygon(QPolygonF({{4.5, 2.5}, {13, 8}, {4.5, 13.5}}));
}

void dibujaHoja(QPainter& pintor) {
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(QRectF(3.5, 1.5, 9, 13));
    for (const double y : {4.5, 7.0, 9.5, 12.0}) pintor.drawLine(QPointF(5.5, y), QPointF(10.5, y));
}

void dibujaImpresora(QPainter& pintor) {
    pintor.drawRect(QRectF(2, 6.5, 12, 4.5));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(QRectF(4.5, 1.5, 7, 5));
    pintor.drawRect(QRectF(4.5, 11, 7, 3.5));
}

void dibujaDeshacer(QPainter& pintor) {
    pintor.drawPolygon(QPolygonF({{2, 6}, {6.5, 2}, {6.5, 10}}));
    pintor.setBrush(Qt::NoBrush);
    QPainterPath arco(QPointF(6, 6));
    arco.cubicTo(15, 5, 15, 13, 7.5, 13);
    pintor.setPen(QPen(pintor.pen().color(), 1.8));
    pintor.drawPath(arco);
}

void dibujaRehacer(QPainter& pintor) {
    pintor.translate(lado, 0);
    pintor.scale(-1, 1);
    dibujaDeshacer(pintor);
}

void dibujaLupa(QPainter& pintor) {
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(pintor.pen().color(), 1.6));
    pintor.drawEllipse(QPointF(6.5, 6.5), 4.3, 4.3);
    pintor.setPen(QPen(pintor.pen().color(), 2.4, Qt::SolidLine, Qt::RoundCap));
    pintor.drawLine(QPointF(10, 10), QPointF(13.5, 13.5));
}

struct Dibujo {
    const char* tema;
    void (*dibuja)(QPainter&);
};

constexpr std::array dibujos = {Dibujo{"media-playback-start", dibujaEjecutar},
                                Dibujo{"text-x-generic", dibujaHoja},
                                Dibujo{"document-print", dibujaImpresora},
                                Dibujo{"edit-undo", dibujaDeshacer},
                                Dibujo{"edit-redo", dibujaRehacer},
                                Dibujo{"edit-find", dibujaLupa}};

class MotorDeDibujo final : public QIconEngine {
public:
    explicit MotorDeDibujo(const Dibujo& dibujo) : dibujo_(dibujo) {}

    void paint(QPainter* pintor, const QRect& lugar, QIcon::Mode modo, QIcon::State /*estado*/) override {
        const auto grupo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto papel = modo == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        const QColor color = QGuiApplication::palette().color(grupo, papel);
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        pintor->translate(lugar.topLeft());
        pintor->scale(lugar.width() / double{lado}, lugar.height() / double{lado});
        pintor->setPen(QPen(color, 1));
        pintor->setBrush(color);
        dibujo_.dibuja(*pintor);
        pintor->restore();
    }
    QPixmap pixmap(const QSize& medida, QIcon::Mode modo, QIcon::State estado) override {
        QPixmap imagen(medida);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        paint(&pintor, QRect({}, medida), modo, estado);
        return imagen;
    }
    QIconEngine* clone() const override { return std::make_unique<MotorDeDibujo>(*this).release(); }

private:
    const Dibujo& dibujo_;
};

} // namespace

QIcon icono(QLatin1String tema) {
    const auto* dibujo = std::ranges::find_if(dibujos, [&](const Dibujo& d) { return tema == d.tema; });
    if (QIcon::hasThemeIcon(tema) || dibujo == std::end(dibujos)) return QIcon::fromTheme(tema);
    return QIcon(std::make_unique<MotorDeDibujo>(*dibujo).release()); // the icon owns it
}

} // namespace norvik
