// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/sistemaQt.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/impresion.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/ventanaEnUso.hpp"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QGridLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <system_error>

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

/// Ends an event loop when a window is closed or hidden, which it is not by being minimised.
class FinAlOcultar final : public QObject {
public:
    FinAlOcultar(QWidget& ventana, QEventLoop& bucle) : bucle_(bucle) {
        ventana.installEventFilter(this);
        connect(&ventana, &QObject::destroyed, &bucle, &QEventLoop::quit);
    }

protected:
    bool eventFilter(QObject* /*ventana*/, QEvent* evento) override {
        if (evento->type() == QEvent::Hide && !evento->spontaneous()) bucle_.quit();
        return false;
    }

private:
    QEventLoop& bucle_;
};

/// A text of many lines would make the box higher than the screen: all but its first line can be scrolled.
void acortaTexto(QMessageBox& caja) {
    constexpr int muchas = 20;
    const QString texto = caja.text();
    if (texto.count(u'\n') < muchas) return;
    const qsizetype corte = texto.indexOf(u'\n');
    caja.setText(texto.left(corte).trimmed());
    // The box's grid owns it.
    auto& resto = nuevo<QPlainTextEdit>(texto.mid(corte + 1).trimmed());
    resto.setReadOnly(true);
    resto.setTabChangesFocus(true);
    resto.setAccessibleName(caja.text());
    resto.setLineWrapMode(QPlainTextEdit::NoWrap);
    const QFontMetrics letra = caja.fontMetrics();
    constexpr int columnas = 70;
    resto.setMinimumSize(letra.averageCharWidth() * columnas, letra.lineSpacing() * muchas);
    auto& rejilla = static_cast<QGridLayout&>(*caja.layout());
    QWidget* const botones = caja.findChild<QDialogButtonBox*>();
    rejilla.removeWidget(botones);
    for (QWidget* elemento : {static_cast<QWidget*>(&resto), botones})
        rejilla.addWidget(elemento, rejilla.rowCount(), 0, 1, rejilla.columnCount());
}

/// A short text would make the box too narrow for its title, beside which stand an icon and buttons.
void daSitioAlTitulo(QMessageBox& caja) {
    QFont negrita = caja.font();
    negrita.setBold(true);
    const QFontMetrics letra(negrita);
    constexpr int alrededor = 8;
    const int ancho = letra.horizontalAdvance(caja.windowTitle()) + letra.height() * alrededor;
    auto& rejilla = static_cast<QGridLayout&>(*caja.layout());
    // The box's grid owns it.
    rejilla.addItem(&nuevo<QSpacerItem>(ancho, 0), rejilla.rowCount(), 0, 1, rejilla.columnCount());
}

/// Whoever is waited for stands above windows that stay above the others, too.
void ponDelante(QWidget& ventana) {
    const auto estaDelante = [](const QWidget* otra) {
        return otra->isVisible() && otra->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    };
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    if (std::any_of(ventanas.begin(), ventanas.end(), estaDelante))
        ventana.setWindowFlag(Qt::WindowStaysOnTopHint);
}

bool acabado(const std::future<void>& trabajo) {
    return trabajo.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

} // namespace

Respuesta SistemaQt::muestraMensaje(const Mensaje& mensaje) {
    const QString titulo =
        mensaje.titulo.empty() ? QApplication::applicationDisplayName() : aQString(mensaje.titulo);
    QWidget* const encimaDe = ventanaEnUso(); // the one to go on in
    const VentanaDeAmbito<QMessageBox> caja(iconoQt(mensaje.icono), titulo, aQString(mensaje.texto),
                                            QMessageBox::NoButton,
                                            encimaDe != nullptr ? encimaDe : ventana_.data());
    caja->setTextFormat(Qt::PlainText);
    QPushButton* const aceptar = caja->addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    caja->setDefaultButton(aceptar);
    const bool cancelable = mensaje.botones == Botones::AceptarCancelar;
    caja->setEscapeButton(cancelable ? caja->addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole)
                                     : aceptar);
    acortaTexto(*caja);
    daSitioAlTitulo(*caja);
    ponDelante(*caja);
    const Puntero antes = puntero_;
    SistemaQt::ponPuntero(Puntero::Normal); // the box waits for the user, not the user for it
    const QPointer<QObject> vivo(&testigo_);
    caja->exec();
    if (!vivo.isNull()) SistemaQt::ponPuntero(antes);
    const bool aceptada = caja.vive() && caja->clickedButton() == aceptar;
    return cancelable && !aceptada ? Respuesta::Cancelar : Respuesta::Aceptar;
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

/// The thread is joined by the future, also when something is raised on the way.
void SistemaQt::trabaja(const std::function<void(std::stop_token)>& trabajo) {
    if (aviso_ == nullptr) return trabajo({});
    const std::stop_source parada = aviso_->parada();
    if (parada.stop_requested()) throw OperacionCancelada();
    std::future<void> hecho;
    try {
        hecho = std::async(std::launch::async, [&] { trabajo(parada.get_token()); });
    } catch (const std::system_error&) { // there is no thread to be had
        return trabajo({});
    }
    espera(hecho);
    if (!acabado(hecho)) parada.request_stop(); // the program ends
    hecho.get();
    if (parada.stop_requested()) throw OperacionCancelada();
}

/// Work that is over at once lets no event in.
void SistemaQt::espera(const std::future<void>& trabajo) {
    using namespace std::chrono_literals;
    if (trabajo.wait_for(100ms) == std::future_status::ready) return;
    QEventLoop hastaQueAcabe;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, &hastaQueAcabe, [&] {
        if (acabado(trabajo)) hastaQueAcabe.quit();
    });
    reloj.start(20ms);
    aviso_->tarda();
    hastaQueAcabe.exec();
}

void SistemaQt::muestraModal(QWidget& ventana) {
    QEventLoop hastaQueSeCierre;
    const FinAlOcultar fin(ventana, hastaQueSeCierre);
    ventana.setWindowModality(Qt::ApplicationModal);
    ponDelante(ventana);
    ventana.show();
    hastaQueSeCierre.exec();
}

void SistemaQt::imprime(std::u16string_view texto) {
    QPrinter impresora;
    if (!fichero_.isEmpty()) impresora.setOutputFileName(fichero_);
    if (!impresora.isValid()) throw ErrorNorvik(u"No hay ninguna impresora");
    Impresion impresion(impresora);
    for (const QString& linea : conSaltosDeQt(aQString(texto)).split(u'\n')) impresion.imprimeLinea(linea);
}

} // namespace norvik
