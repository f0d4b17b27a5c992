// SPDX-License-Identifier: MIT

#include "ventanaManual.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QAction>
#include <QDesktopServices>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace norvik::taller {

namespace {

constexpr int papelDeBloque = Qt::UserRole; ///< of a row of the index: the number of its heading's block

/// As the manual's own links write a heading: «1. Su primer lenguaje» is 1-su-primer-lenguaje.
QString enlaceDe(const QString& titulo) {
    QString enlace;
    for (const QChar c : titulo.toLower())
        if (c.isLetterOrNumber() || c == u'-')
            enlace += c;
        else if (c.isSpace())
            enlace += u'-';
    return enlace;
}

template <typename Condicion>
QTextBlock primerTitulo(const QTextDocument& documento, Condicion condicion) {
    for (QTextBlock b = documento.begin(); b.isValid(); b = b.next())
        if (b.blockFormat().headingLevel() > 0 && condicion(b.text())) return b;
    return {};
}

/// Each place that is searched for begins where bold letters do.
QTextBlock negritaBajo(const QTextBlock& titulo, const QString& palabras) {
    for (QTextBlock b = titulo.next(); b.isValid() && b.blockFormat().headingLevel() == 0; b = b.next())
        for (auto i = b.begin(); !i.atEnd(); ++i)
            if (i.fragment().charFormat().fontWeight() > QFont::Normal && i.fragment().text() == palabras)
                return b;
    return titulo;
}

} // namespace

QVariant PaginaManual::loadResource(int clase, const QUrl& nombre) {
    QVariant recurso = QTextBrowser::loadResource(clase, nombre);
    if (clase != QTextDocument::ImageResource) return recurso;
    constexpr int ancho = 640;
    const QImage imagen = QImage::fromData(recurso.toByteArray());
    return imagen.width() > ancho ? imagen.scaledToWidth(ancho, Qt::SmoothTransformation) : imagen;
}

VentanaManual::VentanaManual(QWidget* padre) : QWidget(padre, Qt::Window) {
    setObjectName(QStringLiteral("manual"));
    setWindowTitle(QStringLiteral("Manual — Norvik"));
    compone();
    pagina_.setSource(QUrl(QStringLiteral("qrc:/docs/manual.md")));
    llenaIndice();
    conecta();
}

void VentanaManual::compone() {
    mide(*this, {1000, 760});
    buscar_.setPlaceholderText(QStringLiteral("Buscar en el manual (Intro: el siguiente)"));
    buscar_.setAccessibleName(QStringLiteral("Buscar en el manual"));
    buscar_.setClearButtonEnabled(true);
    indice_.setHeaderHidden(true);
    indice_.setAccessibleName(QStringLiteral("Índice"));
    pagina_.setAccessibleName(QStringLiteral("Página del manual"));
    pagina_.setOpenLinks(false);
    pagina_.document()->setDocumentMargin(12);
    partes_.addWidget(&indice_);
    partes_.addWidget(&pagina_);
    partes_.setStretchFactor(1, 1);
    partes_.setSizes({260, 740});
    columna_.addWidget(&buscar_);
    columna_.addWidget(&partes_, 1);
    setLayout(&columna_);
    auto& cierra = nuevo<QAction>(this);
    cierra.setShortcut(QKeySequence(Qt::Key_Escape));
    connect(&cierra, &QAction::triggered, this, &QWidget::close);
    addAction(&cierra);
}

void VentanaManual::conecta() {
    connect(&indice_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* fila) {
        if (fila == nullptr) return;
        sinFallos([&] { vaA(pagina_.document()->findBlockByNumber(fila->data(0, papelDeBloque).toInt())); });
    });
    connect(&pagina_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& enlace) { sinFallos([&] { sigueEnlace(enlace); }); });
    connect(&buscar_, &QLineEdit::returnPressed, this, [this] { sinFallos([this] { busca(); }); });
}

/// The chapters, and the parts of each.
void VentanaManual::llenaIndice() {
    QTreeWidgetItem* capitulo = nullptr;
    for (QTextBlock b = pagina_.document()->begin(); b.isValid(); b = b.next()) {
        const int nivel = b.blockFormat().headingLevel();
        if (nivel != 2 && (nivel != 3 || capitulo == nullptr)) continue;
        auto& fila = nivel == 2 ? nuevo<QTreeWidgetItem>(&indice_) : nuevo<QTreeWidgetItem>(capitulo);
        fila.setText(0, b.text());
        fila.setData(0, papelDeBloque, b.blockNumber());
        if (nivel == 2) capitulo = &fila;
    }
    indice_.expandAll();
}

QTextBlock VentanaManual::bloqueDe(const Tema& tema) const {
    const QTextBlock titulo =
        primerTitulo(*pagina_.document(), [&](const QString& texto) { return texto == tema.titulo; });
    return titulo.isValid() && !tema.detalle.isEmpty() ? negritaBajo(titulo, tema.detalle) : titulo;
}

void VentanaManual::muestra(const Tema& tema) {
    show();
    raise();
    activateWindow();
    pagina_.setFocus();
    const QTextBlock bloque = bloqueDe(tema);
    vaA(bloque.isValid() ? bloque : pagina_.document()->begin());
}

/// The caret goes there, too, so that readers of screens begin there; and it stands at the top.
void VentanaManual::vaA(const QTextBlock& bloque) {
    pagina_.moveCursor(QTextCursor::End);
    pagina_.setTextCursor(QTextCursor(bloque));
    pagina_.verticalScrollBar()->setValue(pagina_.verticalScrollBar()->value() + pagina_.cursorRect().top() -
                                          pagina_.fontMetrics().height() / 2);
}

void VentanaManual::sigueEnlace(const QUrl& enlace) {
    const QTextBlock titulo = primerTitulo(*pagina_.document(), [&](const QString& texto) {
        return enlaceDe(texto) == enlace.fragment(QUrl::FullyDecoded);
    });
    if (titulo.isValid())
        vaA(titulo);
    else if (enlace.scheme().startsWith(QLatin1String("http")))
        QDesktopServices::openUrl(enlace);
}

/// Round and round.
void VentanaManual::busca() {
    if (buscar_.text().isEmpty() || pagina_.find(buscar_.text())) return;
    const QTextCursor antes = pagina_.textCursor();
    pagina_.moveCursor(QTextCursor::Start);
    if (!pagina_.find(buscar_.text())) pagina_.setTextCursor(antes);
}

} // namespace norvik::taller
