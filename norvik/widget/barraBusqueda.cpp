// SPDX-License-Identifier: MIT

// What is typed is looked for from where the caret was when the bar was opened, so that a longer word does
// not run away from a shorter one. The whole text is searched, in another thread: the number of matches and
// the place of the selected one among them come from the same list, and so do the next and the previous one
// until the text changes. What is asked for while a search runs is done when it is over.
//
// A match is selected from the event loop alone, never inside an event of the bar's elements: a receiver of
// the control's events may delete the control, and the bar with it.

#include "norvik/widget/barraBusqueda.hpp"

#include "norvik/platform/qt/avisoALectores.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nombra.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "norvik/widget/menuDeTexto.hpp"
#include "norvik/widget/signo.hpp"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace norvik {

namespace {

constexpr int tardanza = 200; // milliseconds until a search is said to run
constexpr int reposo = 150;   // without a change of the text until it is searched again
constexpr int letrasALaVista = 6;

QPlainTextEdit& editorBuscado(ControlNorvik& control) {
    return static_cast<QPlainTextEdit&>(control.caja().ventana());
}

} // namespace

BarraBusqueda::BarraBusqueda(ControlNorvik& control, Resaltes& resaltes)
    : QWidget(&control), control_(control), resaltes_(resaltes) {
    hide();
    nombra(*this, "barraDeBusqueda", QStringLiteral("Barra de búsqueda"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    compone();
    conecta();
    resaltes_.pon(Resaltes::Capa::Busqueda,
                  [this](auto desde, auto hasta) { return halladas(desde, hasta); });
}

BarraBusqueda::~BarraBusqueda() {
    resaltes_.pon(Resaltes::Capa::Busqueda, {});
}

void BarraBusqueda::compone() {
    const auto pon = [this](QToolButton& boton, const char* nombre, const QString& texto,
                            const QString& ayuda) {
        nombra(boton, nombre, ayuda);
        boton.setText(texto);
        boton.setToolTip(ayuda);
        boton.setAutoRaise(true);
    };
    nombra(campo_, "campo", QStringLiteral("Buscar"));
    campo_.setPlaceholderText(QStringLiteral("Buscar"));
    campo_.setClearButtonEnabled(true);
    campo_.setMinimumWidth(campo_.fontMetrics().horizontalAdvance(u'x') * letrasALaVista);
    ponMenuDeTexto(campo_);
    pon(anterior_, "anterior", {}, QStringLiteral("Anterior (Mayúsculas+Entrar)"));
    anterior_.setArrowType(Qt::UpArrow);
    pon(siguiente_, "siguiente", {}, QStringLiteral("Siguiente (Entrar)"));
    siguiente_.setArrowType(Qt::DownArrow);
    pon(mayusculas_, "mayusculas", QStringLiteral("Aa"), QStringLiteral("Coincidir mayúsculas y minúsculas"));
    pon(palabras_, "palabras", QStringLiteral("\u201Cab\u201D"), QStringLiteral("Sólo palabras completas"));
    pon(expresion_, "expresion", QStringLiteral(".*"), QStringLiteral("Expresión regular"));
    for (QToolButton* opcion : {&mayusculas_, &palabras_, &expresion_}) opcion->setCheckable(true);
    pon(cierra_, "cierra", QStringLiteral("\u00D7"), QStringLiteral("Cerrar (Escape)"));
    hazAviso(cuenta_);
    nombra(cuenta_, "cuenta", {});
    cuenta_.setTextFormat(Qt::PlainText);
    cuenta_.setMinimumWidth(1); // of a narrow bar what is looked for comes first
    auto& fila = nuevo<QHBoxLayout>(this);
    fila.setContentsMargins(4, 2, 4, 2);
    fila.setSpacing(2);
    fila.addWidget(&campo_, 1);
    for (QWidget* elemento : std::initializer_list<QWidget*>{&anterior_, &siguiente_, &mayusculas_,
                                                             &palabras_, &expresion_, &cuenta_, &cierra_})
        fila.addWidget(elemento);
    fila.setSizeConstraint(QLayout::SetNoConstraint);
}

void BarraBusqueda::conecta() {
    connect(&campo_, &QLineEdit::textChanged, this, &BarraBusqueda::cambiaPeticion);
    for (QToolButton* opcion : {&mayusculas_, &palabras_, &expresion_})
        connect(opcion, &QToolButton::toggled, this, &BarraBusqueda::cambiaPeticion);
    connect(&anterior_, &QToolButton::clicked, this, [this] { sigue(Salto::Anterior); });
    connect(&siguiente_, &QToolButton::clicked, this, [this] { sigue(Salto::Siguiente); });
    connect(&cierra_, &QToolButton::clicked, this, &BarraBusqueda::cierra);
    tarda_.setSingleShot(true);
    connect(&tarda_, &QTimer::timeout, this, [this] { avisa(QStringLiteral("Buscando…"), false); });
    repaso_.setSingleShot(true);
    connect(&repaso_, &QTimer::timeout, this, &BarraBusqueda::lanza);
    connect(&fondo_, &BuscadorDeFondo::acabado, this, &BarraBusqueda::recibe);
    QPlainTextEdit& editor = editorBuscado(control_);
    connect(&editor, &QPlainTextEdit::textChanged, this, &BarraBusqueda::cambiaTexto);
    connect(&editor, &QPlainTextEdit::selectionChanged, this, [this] {
        if (!isHidden()) actualizaCuenta();
    });
}

BusquedaDirecta BarraBusqueda::peticion() const {
    return {campo_.text().toStdU16String(), mayusculas_.isChecked(), palabras_.isChecked(),
            expresion_.isChecked()};
}

// ---- shown and hidden

void BarraBusqueda::abre() {
    const CajaTextoQt& caja = control_.caja();
    origen_ = caja.inicioSeleccion();
    const std::u16string elegido = caja.textoSeleccionado();
    const bool enUnaLinea = !elegido.empty() && elegido.find_first_of(u"\r\n") == elegido.npos;
    if (enUnaLinea && !expresion_.isChecked()) campo_.setText(aQString(elegido));
    muestra();
    campo_.setFocus(Qt::ShortcutFocusReason);
    campo_.selectAll();
}

/// What is found must be seen although the text has not the focus.
void BarraBusqueda::muestra() {
    if (!isHidden()) return;
    control_.caja().ponOcultaSeleccion(false);
    show();
    raise();
    resaltes_.refresca();
    emit otroSitio();
    if (estado_ == Estado::Vieja) lanza();
}

void BarraBusqueda::cierra() {
    envejece();
    pendiente_.reset();
    const bool suyo = isAncestorOf(QApplication::focusWidget());
    const QPointer<BarraBusqueda> viva(this);
    if (suyo) control_.caja().enfoca();
    if (viva.isNull()) return;
    hide();
    resaltes_.refresca();
    emit otroSitio();
    control_.caja().ponOcultaSeleccion(control_.HideSelection());
}

/// The keys of the bar; F3 is the control's, which both the text and the bar leave it to.
void BarraBusqueda::keyPressEvent(QKeyEvent* evento) {
    const bool entrar = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    const bool atras = evento->modifiers().testFlag(Qt::ShiftModifier);
    if (evento->key() == Qt::Key_Escape) return cierra();
    if (entrar) return sigue(atras ? Salto::Anterior : Salto::Siguiente);
    QWidget::keyPressEvent(evento);
}

// ---- what is searched

void BarraBusqueda::envejece() {
    fondo_.para();
    tarda_.stop();
    repaso_.stop();
    estado_ = Estado::Vieja;
    resaltes_.refresca();
}

void BarraBusqueda::cambiaPeticion() {
    envejece();
    if (!isHidden()) pide(Salto::Primera);
}

void BarraBusqueda::cambiaTexto() {
    if (estado_ != Estado::Vieja) envejece();
    if (!isHidden()) repaso_.start(reposo);
}

void BarraBusqueda::sigue(Salto salto) {
    if (campo_.text().isEmpty()) return abre();
    muestra();
    pide(salto);
}

void BarraBusqueda::pide(Salto salto) {
    if (estado_ == Estado::AlDia) {
        QMetaObject::invokeMethod(
            this, [this, salto] { salta(salto); }, Qt::QueuedConnection);
        return;
    }
    pendiente_ = salto;
    if (estado_ == Estado::Vieja) lanza();
}

void BarraBusqueda::lanza() {
    envejece();
    if (campo_.text().isEmpty()) return avisa({}, false);
    estado_ = Estado::Buscando;
    tarda_.start(tardanza);
    control_.caja().protege([this] { fondo_.busca(peticion(), std::u16string(control_.caja().texto())); });
}

void BarraBusqueda::recibe(const BuscadorDeFondo::Resultado& resultado) {
    tarda_.stop();
    estado_ = Estado::AlDia;
    resultado_ = resultado;
    resaltes_.refresca();
    actualizaCuenta();
    if (const auto salto = std::exchange(pendiente_, std::nullopt)) salta(*salto);
}

// ---- what was found

void BarraBusqueda::salta(Salto salto) {
    if (estado_ != Estado::AlDia) return pide(salto);
    if (resultado_.halladas.empty()) return;
    const std::int32_t inicio = control_.caja().inicioSeleccion();
    const std::int32_t fin = inicio + control_.caja().longitudSeleccion();
    const bool atras = salto == Salto::Anterior;
    const Hallada hallada = atras ? antesDe(resultado_.halladas, inicio)
                                  : desde(resultado_.halladas, salto == Salto::Primera ? origen_ : fin);
    const Coincidencia c = resultado_.halladas[hallada.cual];
    if (salto != Salto::Primera) origen_ = c.indice;
    const QPointer<BarraBusqueda> viva(this);
    CajaTextoQt& caja = control_.caja();
    caja.atiende([&] { caja.selecciona(c.indice, c.longitud); });
    if (viva.isNull() || estado_ != Estado::AlDia) return;
    editorBuscado(control_).ensureCursorVisible();
    if (!hallada.daLaVuelta) return;
    avisa(cuenta().texto +
              (atras ? QStringLiteral(", desde el final") : QStringLiteral(", desde el principio")),
          false);
}

/// Only those in view are looked at.
std::vector<Resalte> BarraBusqueda::halladas(std::int32_t desde, std::int32_t hasta) const {
    std::vector<Resalte> vistas;
    if (isHidden() || estado_ != Estado::AlDia) return vistas;
    constexpr double parte = 0.3;
    QTextCharFormat formato;
    formato.setBackground(
        mezcla(QColor(255, 190, 0), editorBuscado(control_).palette().color(QPalette::Base), parte));
    const auto fin = [](const Coincidencia& c) { return c.indice + c.longitud; };
    auto c = std::ranges::lower_bound(resultado_.halladas, desde, {}, fin);
    for (; c != resultado_.halladas.end() && c->indice <= hasta; ++c)
        vistas.push_back({c->indice, fin(*c), formato});
    return vistas;
}

/// How many there are, and which one is selected.
BarraBusqueda::Aviso BarraBusqueda::cuenta() const {
    if (!resultado_.fallo.isEmpty()) return {resultado_.fallo, true};
    const auto& halladas = resultado_.halladas;
    if (halladas.empty()) return {QStringLiteral("Sin resultados"), true};
    const CajaTextoQt& caja = control_.caja();
    const auto cuantas = static_cast<qsizetype>(halladas.size());
    const Hallada aqui = desde(halladas, caja.inicioSeleccion());
    if (halladas[aqui.cual] == Coincidencia{caja.inicioSeleccion(), caja.longitudSeleccion()})
        return {QStringLiteral("%1 de %2").arg(aqui.cual + 1).arg(cuantas), false};
    return {cuantas == 1 ? QStringLiteral("1 resultado") : QStringLiteral("%1 resultados").arg(cuantas),
            false};
}

void BarraBusqueda::actualizaCuenta() {
    if (estado_ != Estado::AlDia) return;
    const Aviso aviso = cuenta();
    avisa(aviso.texto, aviso.malo);
}

void BarraBusqueda::avisa(const QString& texto, bool malo) {
    QPalette colores = palette();
    if (malo)
        colores.setColor(QPalette::Text,
                         legible(Signo::colorDe(Gravedad::Error), colores.color(QPalette::Base)));
    campo_.setPalette(colores);
    if (cuenta_.text() == texto) return;
    cuenta_.setText(texto);
    avisaALectores(cuenta_, texto);
}

} // namespace norvik
