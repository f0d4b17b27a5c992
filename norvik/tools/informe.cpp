// SPDX-License-Identifier: MIT

#include "norvik/tools/informe.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/medidas.hpp"
#include "norvik/tools/directorio.hpp"
#include "norvik/tools/procesando.hpp"
#include "norvik/tools/ventanas.hpp"
#include "norvik/widget/menuDeTexto.hpp"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPlainTextDocumentLayout>
#include <QPointer>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace norvik {

namespace {

/// A text that can be read, selected and copied, by keyboard too.
void soloLectura(QPlainTextEdit& caja) {
    caja.setReadOnly(true);
    caja.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    caja.setUndoRedoEnabled(false);
    caja.setTabChangesFocus(true);
    ponMenuDeTexto(caja);
}

/// Emphasises the headings of an automaton's states.
void realzaEstados(QTextDocument& documento) {
    QTextCursor cursor(&documento);
    QTextCharFormat titulo;
    titulo.setFontWeight(QFont::Bold);
    cursor.beginEditBlock();
    for (QTextBlock b = documento.begin(); b.isValid(); b = b.next()) {
        if (!b.text().startsWith(QLatin1String("Estado "))) continue;
        cursor.setPosition(b.position());
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.setCharFormat(titulo);
    }
    cursor.endEditBlock();
}

/// Half a million lines, of which Qt makes paragraphs, take seconds: apart from the windows, until it is
/// stopped.
std::unique_ptr<QTextDocument> documentoDe(const QString& texto, const std::stop_token& parada) {
    constexpr qsizetype trozo = 1 << 16;
    auto documento = std::make_unique<QTextDocument>();
    documento->setUndoRedoEnabled(false);
    QTextCursor cursor(documento.get());
    for (qsizetype desde = 0; desde < texto.size() && !parada.stop_requested(); desde += trozo)
        cursor.insertText(texto.mid(desde, trozo));
    realzaEstados(*documento);
    documento->moveToThread(QCoreApplication::instance()->thread());
    return documento;
}

} // namespace

Informe::Informe(const gramatica& gramatica, const pilaTokens& lexico, SistemaQt& sistema, QWidget* padre,
                 std::unique_ptr<QTextDocument> automata)
    : QDialog(padre), gramatica_(gramatica), sistema_(sistema), modelo_(gramatica, lexico),
      textoAutomata_(std::move(automata)), tabla_(modelo_, nullptr) {
    setObjectName(QStringLiteral("Informe"));
    setWindowTitle(QStringLiteral("Informe sobre la gramática especificada"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    nombraElementos();
    dispone();
    conecta();
    llena();
}

void Informe::nombraElementos() {
    nombra(ssTab1_, "SSTab1", QStringLiteral("Partes del informe"));
    nombra(texto_, "Texto", QStringLiteral("Informe general"));
    nombra(automata_, "automata", QStringLiteral("Autómata SLR"));
    nombra(tabla_, "tabla", QStringLiteral("Tabla SLR"));
    nombra(command1_, "Command1", QStringLiteral("Guardar"));
    nombra(command2_, "Command2", QStringLiteral("Imprimir"));
    nombra(command3_, "Command3", QStringLiteral("Problemas"));
    nombra(guardado_, "guardado", QStringLiteral("Informe guardado"));
}

void Informe::dispone() {
    const TwipsPorPixel pixel = twipsPorPixel(*this);
    auto& barra = nuevo<QWidget>(this);
    auto& fila = nuevo<QHBoxLayout>(&barra);
    constexpr int altoDeBarra = 500;
    constexpr int margen = 60;
    fila.setContentsMargins(aPixeles(margen, pixel.x), 0, aPixeles(margen, pixel.x), 0);
    for (QPushButton* boton : {&command1_, &command2_, &command3_}) {
        boton->setAutoDefault(false); // Return in a text is no command
        fila.addWidget(boton);
    }
    command2_.setEnabled(false);
    fila.addWidget(&guardado_, 1);
    barra.setFixedHeight(std::max(aPixeles(altoDeBarra, pixel.y), barra.sizeHint().height()));

    dispone(texto_, QStringLiteral("&Informe general"));
    dispone(automata_, QStringLiteral("&Autómata SLR"));
    dispone(tabla_, QStringLiteral("&Tabla SLR"));
    auto& columna = nuevo<QVBoxLayout>(this);
    columna.setContentsMargins(0, 0, 0, 0);
    columna.setSpacing(0);
    columna.addWidget(&barra);
    columna.addWidget(&ssTab1_, 1);
    const QFontMetrics letra = fontMetrics();
    mide(*this, {letra.averageCharWidth() * 110, letra.lineSpacing() * 36});
    texto_.setFocus();
}

/// A view in a tab of its own.
void Informe::dispone(QWidget& vista, const QString& nombre) {
    const TwipsPorPixel pixel = twipsPorPixel(*this);
    constexpr int margen = 60;
    auto& pagina = nuevo<QWidget>();
    auto& columna = nuevo<QVBoxLayout>(&pagina);
    const int x = aPixeles(margen, pixel.x);
    const int y = aPixeles(margen, pixel.y);
    columna.setContentsMargins(x, y, x, y);
    columna.addWidget(&vista);
    ssTab1_.addTab(&pagina, nombre);
}

void Informe::conecta() {
    connect(&command1_, &QPushButton::clicked, this, [this] { ejecuta(sistema_, [this] { guarda(); }); });
    connect(&command3_, &QPushButton::clicked, this,
            [this] { ejecuta(sistema_, [this] { gramatica_.MuestraProblemas(sistema_); }); });
}

void Informe::llena() {
    textoAutomata_->setDocumentLayout(&nuevo<QPlainTextDocumentLayout>(textoAutomata_.get()));
    textoAutomata_->setDefaultFont(automata_.font());
    automata_.setLineWrapMode(QPlainTextEdit::NoWrap);
    automata_.setDocument(textoAutomata_.get());
    soloLectura(texto_);
    soloLectura(automata_);
    QFont verdana(QStringLiteral("Verdana"));
    verdana.setStyleHint(QFont::SansSerif);
    texto_.setFont(verdana);
    texto_.setTabStopDistance(
        QFontMetricsF(verdana).horizontalAdvance(QStringLiteral("0000.  "))); // after numbers
    texto_.setPlainText(aQString(gramatica_.textoInformeGeneral()));
}

void Informe::guarda() {
    guardado_.clear();
    muestraModal<directorio>(sistema_, sistema_, this);
    if (directorioDestino().empty()) return;
    {
        const PunteroOcupado ocupado(sistema_);
        gramatica_.GuardaInforme(directorioDestino());
    }
    guardado_.setText(QStringLiteral("Guardado en %1").arg(deRuta(directorioDestino())));
}

void MuestraInforme(const gramatica& gramatica, const pilaTokens& lexico, SistemaQt& sistema,
                    QWidget* padre) {
    const QPointer<QWidget> vivo(padre);
    std::unique_ptr<QTextDocument> automata;
    try {
        const QString texto = conSaltosDeQt(aQString(gramatica.textoAutomata()));
        trabajaConAviso(sistema, padre, [&](const auto& parada) { automata = documentoDe(texto, parada); });
    } catch (const OperacionCancelada&) {
        return;
    }
    if (padre != nullptr && vivo.isNull()) return; // and the grammar with it
    muestraModal<Informe>(sistema, gramatica, lexico, sistema, padre, std::move(automata));
}

} // namespace norvik
