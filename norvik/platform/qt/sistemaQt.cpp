#include "norvik/platform/qt/sistemaQt.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QApplication>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace norvik {

namespace {

QMessageBox::Icon iconoQt(Icono icono) {
    switch (icono) {
    case Icono::Ninguno:
        return QMessageBox::NoIcon;
    case Icono::Critico:
        return QMessageBox::Critical;
    case Icono::Pregunta:
        return QMessageBox::Question;
    case Icono::Exclamacion:
        return QMessageBox::Warning;
    case Icono::Informacion:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

/// Writes lines down the pages of a printer; a line wider than the page goes on in the next one.
class Impresion {
public:
    explicit Impresion(QPrinter& impresora) : impresora_(impresora) {
        if (!pintor_.begin(&impresora_))
            throw ErrorNorvik(u"No se puede imprimir: la impresora no está disponible");
        pintor_.setFont(aQFont({}));
        alto_ = pintor_.fontMetrics().lineSpacing();
        columnas_ = std::max(pintor_.window().width() / pintor_.fontMetrics().horizontalAdvance(u'x'), 1);
    }
    void imprimeLinea(const QString& linea) {
        const qsizetype trozos = std::max<qsizetype>((linea.size() + columnas_ - 1) / columnas_, 1);
        for (qsizetype i = 0; i < trozos; ++i) imprimeTrozo(linea.mid(i * columnas_, columnas_));
    }

private:
    void imprimeTrozo(const QString& trozo) {
        if (y_ + alto_ > pintor_.window().height()) {
            if (!impresora_.newPage())
                throw ErrorNorvik(u"No se puede imprimir: la impresora no acepta más páginas");
            y_ = 0;
        }
        constexpr int espaciosPorTabulacion = 8;
        const QString visto = QString(trozo).replace(u'\t', QString(espaciosPorTabulacion, u' '));
        pintor_.drawText(0, y_ + pintor_.fontMetrics().ascent(), visto);
        y_ += alto_;
    }

    QPrinter& impresora_;
    QPainter pintor_;
    int alto_ = 0;
    int y_ = 0;
    qsizetype columnas_ = 1;
};

} // namespace

Respuesta SistemaQt::muestraMensaje(const Mensaje& mensaje) {
    const QString titulo =
        mensaje.titulo.empty() ? QApplication::applicationDisplayName() : aQString(mensaje.titulo);
    QMessageBox caja(iconoQt(mensaje.icono), titulo, aQString(mensaje.texto), QMessageBox::NoButton,
                     ventana_);
    caja.setTextFormat(Qt::PlainText);
    QPushButton* aceptar = caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    caja.setDefaultButton(aceptar);
    const bool cancelable = mensaje.botones == Botones::AceptarCancelar;
    caja.setEscapeButton(cancelable ? caja.addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole)
                                    : aceptar);
    caja.exec();
    return cancelable && caja.clickedButton() != aceptar ? Respuesta::Cancelar : Respuesta::Aceptar;
}

void SistemaQt::ponPuntero(Puntero puntero) {
    if (puntero == puntero_) return;
    puntero_ = puntero;
    if (puntero == Puntero::Ocupado) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

/// The user's events too: a command given while one runs is dropped by who serves it, not kept for later.
void SistemaQt::procesaEventos() {
    QApplication::processEvents();
}

void SistemaQt::imprime(std::u16string_view texto) {
    QPrinter impresora;
    if (!fichero_.isEmpty()) impresora.setOutputFileName(fichero_);
    if (!impresora.isValid()) throw ErrorNorvik(u"No hay ninguna impresora");
    Impresion impresion(impresora);
    const QString lineas =
        aQString(texto).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    for (const QString& linea : lineas.split(u'\n')) impresion.imprimeLinea(linea);
}

} // namespace norvik
