// SPDX-License-Identifier: MIT

#include "enlaceOrden.hpp"

#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace norvik::taller {

namespace {

constexpr int margenDeEnlace = 8;
constexpr int anchoDeEnlace = 24; ///< letters, before a description is broken into lines
constexpr int muyAlto = 10'000;

void pintaFoco(QPainter& pintor, const QRect& marco, const QColor& color) {
    constexpr qreal grueso = 2;
    constexpr qreal redondeo = 3;
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(color, grueso));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRoundedRect(QRectF(marco).adjusted(1, 1, -1, -1), redondeo, redondeo);
}

} // namespace

QFont EnlaceOrden::letraDelTitulo() const {
    QFont letra = font();
    letra.setBold(true);
    return letra;
}

QRect EnlaceOrden::sitio(int ancho, int alto) const {
    return QRect(0, 0, ancho, alto)
        .adjusted(2 * margenDeEnlace + iconSize().width(), margenDeEnlace, -margenDeEnlace, -margenDeEnlace);
}

QSize EnlaceOrden::sizeHint() const {
    const int titulo = QFontMetrics(letraDelTitulo()).horizontalAdvance(text());
    const int palabras = std::max(titulo, fontMetrics().averageCharWidth() * anchoDeEnlace);
    const int ancho = palabras + 3 * margenDeEnlace + iconSize().width();
    return {ancho, heightForWidth(ancho)};
}

int EnlaceOrden::heightForWidth(int ancho) const {
    const QRect descrita = fontMetrics().boundingRect(sitio(ancho, muyAlto), Qt::TextWordWrap, description());
    return QFontMetrics(letraDelTitulo()).height() + descrita.height() + 2 * margenDeEnlace;
}

void EnlaceOrden::paintEvent(QPaintEvent* /*evento*/) {
    QStylePainter pintor(this);
    QStyleOptionButton opcion;
    initStyleOption(&opcion);
    opcion.text.clear();
    opcion.icon = {};
    pintor.drawControl(QStyle::CE_PushButton, opcion);
    QRect palabras = sitio(width(), height());
    icon().paint(&pintor, QRect(QPoint(margenDeEnlace, margenDeEnlace), iconSize()));
    const auto escribe = [&](const QFont& letra, int como, const QString& texto) {
        pintor.setFont(letra);
        pintor.drawItemText(palabras, como, palette(), isEnabled(), texto, QPalette::ButtonText);
    };
    escribe(letraDelTitulo(), Qt::AlignLeft | Qt::TextShowMnemonic, text());
    palabras.setTop(palabras.top() + QFontMetrics(letraDelTitulo()).height());
    escribe(font(), Qt::AlignLeft | Qt::TextWordWrap, description());
    if (hasFocus()) pintaFoco(pintor, rect(), palette().color(QPalette::Highlight));
}

} // namespace norvik::taller
