// SPDX-License-Identifier: MIT

#include "norvik/widget/controlNorvik.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/cargaLenguaje.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/widget/accesibleControl.hpp"
#include "norvik/widget/accionesControl.hpp"
#include "norvik/widget/busquedaControl.hpp"
#include "norvik/widget/completado.hpp"
#include "norvik/widget/diagnosticosVistos.hpp"
#include "norvik/widget/elementosControl.hpp"
#include "norvik/widget/fondoDeEdicion.hpp"
#include "norvik/widget/margenDeLineas.hpp"
#include "norvik/widget/plegado.hpp"
#include "norvik/widget/resaltes.hpp"
#include "norvik/widget/resaltesDelCursor.hpp"
#include "norvik/widget/ventanasDelControl.hpp"
#include "norvik/widget/zoom.hpp"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QPointer>
#include <QScrollBar>

#include <tuple>

namespace norvik {

/// What a host can be told of that no event tells.
struct ControlNorvik::EstadoDelTexto {
    std::int32_t inicio = 0;
    std::int32_t longitud = 0;
    std::u16string fuente;
    std::int32_t tamano = 0;
    bool modificado = false;
    int aumento = Zoom::normal;
};

/// What surrounds the control, in the order in which it is made.
struct ControlNorvik::Piezas {
    Piezas(ControlNorvik& control, SistemaQt* compartido)
        : elementos(control), propio(&control), sistema(compartido != nullptr ? *compartido : propio),
          caja(&control), fondo(control.control_, caja),
          completado(
              caja,
              [&control](std::u16string_view texto, std::size_t posicion) {
                  return continuaciones(control.control_.lenguaje(), texto, posicion);
              },
              [&control](std::int32_t inicio, std::int32_t longitud, std::u16string_view texto) {
                  control.control_.reemplaza(inicio, longitud, texto);
              }),
          busqueda(control, resaltes) {}

    ElementosControl elementos;
    SistemaQt propio;
    SistemaQt& sistema; ///< `propio` or a shared one
    CajaTextoQt caja;
    FondoDeEdicion fondo;
    Resaltes resaltes{caja};
    ResaltesDelCursor delCursor{caja, resaltes, fondo};
    DiagnosticosVistos diagnosticos{caja, resaltes};
    Plegado plegado{caja, fondo.pliegues()};
    MargenDeLineas margen{elementos.debugBox, caja, diagnosticos, plegado};
    Zoom zoom{caja};
    Completado completado;
    EstadoDelTexto avisado; ///< what the host was last told of
    BusquedaControl busqueda;
    std::unique_ptr<AccionesControl> acciones; ///< once somebody has asked for one
};

ControlNorvik::ControlNorvik(QWidget* padre) : ControlNorvik(nullptr, padre) {}

ControlNorvik::ControlNorvik(SistemaQt& sistema, QWidget* padre) : ControlNorvik(&sistema, padre) {}

ControlNorvik::ControlNorvik(SistemaQt* compartido, QWidget* padre)
    : QWidget(padre), piezas_(std::make_unique<Piezas>(*this, compartido)),
      control_(piezas_->caja, piezas_->sistema, *this) {
    simplificaParaLectores();
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    QWidget& texto = piezas_->caja.ventana();
    texto.setObjectName(QStringLiteral("Texto"));
    texto.setAccessibleName(QStringLiteral("Texto"));
    texto.setAccessibleDescription(QStringLiteral("Control+Tabulador pasa al elemento siguiente"));
    setFocusPolicy(Qt::TabFocus); // Qt puts no one in an order who takes no focus
    setFocusProxy(&texto);
    ordenaTabulador();
    conectaElementos();
    conectaEventos();
    piezas_->fondo.otrosPliegues = [this] { piezas_->plegado.otros(); };
    piezas_->avisado = estado();
}

CajaTextoQt& ControlNorvik::caja() {
    return piezas_->caja;
}

const CajaTextoQt& ControlNorvik::caja() const {
    return piezas_->caja;
}

SistemaQt& ControlNorvik::sistema() {
    return piezas_->sistema;
}

void ControlNorvik::protege(const std::function<void()>& orden) {
    piezas_->caja.protege(orden);
}

std::int16_t ControlNorvik::de16Bits(int valor, std::u16string_view nombre) {
    return a16(valor, nombre);
}

int ControlNorvik::inicioSeleccion() const {
    return piezas_->caja.inicioSeleccion();
}

int ControlNorvik::longitudSeleccion() const {
    return piezas_->caja.longitudSeleccion();
}

/// Qt moves nothing while the text is the first of its window that takes the focus, as it is in a control
/// without a parent; by way of a third element the order holds wherever the control goes.
void ControlNorvik::ordenaTabulador() {
    QWidget* const texto = &piezas_->caja.ventana();
    setTabOrder(texto, &piezas_->elementos.captaEnfoque);
    setTabOrder(texto, piezas_->elementos.tabulador.get());
}

void ControlNorvik::conectaEventos() {
    EventosControl& e = control_.eventos;
    e.CambioDeLinea = [this](auto& linea) { Q_EMIT CambioDeLinea(linea); };
    e.change = [this] { Q_EMIT change(); };
    e.Click = [this] { Q_EMIT Click(); };
    e.KeyDown = [this](auto& codigo, auto& shift) { Q_EMIT KeyDown(codigo, shift); };
    e.KeyPress = [this](auto& caracter) { Q_EMIT KeyPress(caracter); };
    e.KeyUp = [this](auto& codigo, auto& shift) { Q_EMIT KeyUp(codigo, shift); };
    e.MouseDown = [this](auto& boton, auto& shift, auto& x, auto& y) {
        Q_EMIT MouseDown(boton, shift, x, y);
    };
    e.MouseMove = [this](auto& boton, auto& shift, auto& x, auto& y) {
        Q_EMIT MouseMove(boton, shift, x, y);
    };
    e.MouseUp = [this](auto& boton, auto& shift, auto& x, auto& y) { Q_EMIT MouseUp(boton, shift, x, y); };
    e.SelChange = [this] { Q_EMIT SelChange(); };
    e.textoCambiado = [this] { Q_EMIT textoCambiado(); };
}

/// The elements go one by one, and nobody is there to see the last events of one.
ControlNorvik::~ControlNorvik() {
    ventanasDelControl::olvida(*this);
    for (QWidget* e : observados()) e->removeEventFilter(this);
}

std::array<QWidget*, 3> ControlNorvik::observados() {
    return {&piezas_->caja.ventana(), &piezas_->elementos.debugBox, piezas_->elementos.tabulador.get()};
}

void ControlNorvik::conectaElementos() {
    for (QWidget* e : observados()) e->installEventFilter(this);
    piezas_->caja.ventana().installEventFilter(&piezas_->completado); // first: keys of its list are its own
    connect(&piezas_->elementos.controlSpace, &QPushButton::clicked, this,
            [this] { piezas_->caja.enfoca(); });
    connect(&piezas_->caja.noticias(), &NoticiasDeCaja::alDia, this, [this] { alDia(); });
    const auto& area = static_cast<const QAbstractScrollArea&>(piezas_->caja.ventana());
    connect(area.verticalScrollBar(), &QAbstractSlider::valueChanged, this,
            [this] { piezas_->resaltes.refresca(); });
    piezas_->caja.alFallar = [this](const std::u16string& texto) { cuentaFallo(texto); };
}

/// A text that is too long cannot be coloured at any line that is left: that is said once, until it fits.
void ControlNorvik::cuentaFallo(const std::u16string& texto) {
    const bool cabe = piezas_->caja.texto().size() <= maximoTexto;
    if (!cabe && !fallosContados_.insert(texto).second) return;
    const QPointer<ControlNorvik> vivo(this);
    bool contado = false;
    sinFallos([&] { Q_EMIT fallo(aQString(texto), contado); }); // no failure about a failure
    if (!vivo.isNull() && !contado) piezas_->sistema.muestraMensaje({texto, u"Norvik", Icono::Critico});
}

/// A file that keeps properties may have line breaks of its own.
QString ControlNorvik::conSaltos(const QString& texto) {
    return conSaltosDeQt(texto).replace(u'\n', QLatin1String("\r\n"));
}

// ---- keyboard and mouse

/// What is left of the control is for nobody to see.
bool ControlNorvik::eventFilter(QObject* objeto, QEvent* evento) {
    const QPointer<ControlNorvik> vivo(this);
    if (objeto == &piezas_->elementos.debugBox && evento->type() == QEvent::MouseButtonPress) {
        piezas_->caja.enfoca();
        return true; // a click there is none of the control's surface
    }
    if (objeto == piezas_->elementos.tabulador.get() && evento->type() == QEvent::FocusIn) {
        entraEnTabulador(static_cast<QFocusEvent*>(evento)->reason());
        if (vivo.isNull()) return true;
    }
    if (objeto == &piezas_->caja.ventana() && evento->type() == QEvent::KeyPress) {
        if (atiendeTecla(*static_cast<QKeyEvent*>(evento))) return true;
    }
    return QWidget::eventFilter(objeto, evento);
}

bool ControlNorvik::atiendeTecla(const QKeyEvent& tecla) {
    const bool busca = control_.ayudas().barraDeBusqueda && tecla.matches(QKeySequence::Find);
    if (busca) piezas_->caja.atiende([this] { piezas_->busqueda.abre(); });
    return busca || atiendeTabulador(tecla);
}

/// Keys that neither the text nor the find bar has a use for, where no action has them.
void ControlNorvik::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_F3 || !control_.ayudas().barraDeBusqueda)
        return QWidget::keyPressEvent(evento);
    const bool atras = evento->modifiers().testFlag(Qt::ShiftModifier);
    piezas_->caja.atiende([&] {
        piezas_->busqueda.sigue(atras ? BarraBusqueda::Salto::Anterior : BarraBusqueda::Salto::Siguiente);
    });
}

/// The tab key writes, and the shift key may take back what it wrote; with the control key they do what they
/// do elsewhere.
bool ControlNorvik::atiendeTabulador(const QKeyEvent& tecla) {
    const bool adelante = tecla.key() == Qt::Key_Tab;
    const bool conControl = tecla.modifiers().testFlag(Qt::ControlModifier);
    const bool sangra = control_.ayudas().sangraSeleccion && tecla.key() == Qt::Key_Backtab;
    const bool escribe = adelante && tecla.modifiers() == Qt::NoModifier;
    const bool sale = adelante && tecla.modifiers() == Qt::ControlModifier;
    if (escribe)
        enfocaTabulador(Qt::TabFocusReason);
    else if (sale)
        saleHaciaDelante();
    else if (sangra && conControl)
        focusPreviousChild();
    else if (sangra)
        piezas_->caja.atiende([this] { control_.tabulaAtras(); });
    return sangra || escribe || sale;
}

/// Whoever hears that the text lost the focus may delete the control, before its button has it.
void ControlNorvik::enfocaTabulador(Qt::FocusReason razon) {
    const Servido<QPushButton>::Servicio servicio(*piezas_->elementos.tabulador);
    piezas_->elementos.tabulador->setFocus(razon);
}

void ControlNorvik::entraEnTabulador(Qt::FocusReason razon) {
    const Servido<QPushButton>::Servicio servicio(*piezas_->elementos.tabulador);
    const bool retrocede = razon == Qt::BacktabFocusReason;
    if (!retrocede && soloLectura()) return static_cast<void>(focusNextChild());
    piezas_->caja.atiende([&] { retrocede ? piezas_->caja.enfoca() : control_.tabuladorEnfocado(); });
}

void ControlNorvik::saleHaciaDelante() {
    const QPointer<ControlNorvik> vivo(this);
    piezas_->elementos.tabulador->removeEventFilter(this); // the focus passes over it
    enfocaTabulador(Qt::OtherFocusReason);
    if (vivo.isNull()) return;
    piezas_->elementos.tabulador->installEventFilter(this);
    focusNextChild();
}

/// The other buttons are for whoever stands behind the control.
void ControlNorvik::mousePressEvent(QMouseEvent* evento) {
    QWidget::mousePressEvent(evento);
    pulsada_ = evento->button() == Qt::LeftButton;
    evento->setAccepted(pulsada_);
}

/// A click that deleted the control is not for whoever stands behind it either.
void ControlNorvik::mouseReleaseEvent(QMouseEvent* evento) {
    evento->setAccepted(evento->button() == Qt::LeftButton);
    const bool suya = evento->isAccepted() && std::exchange(pulsada_, false);
    const bool esClick = suya && rect().contains(evento->position().toPoint());
    if (esClick) piezas_->caja.atiende([this] { control_.clickEnSuperficie(); });
}

// ---- aids of editing

void ControlNorvik::ponAyuda(bool Ayudas::*ayuda, bool encendida) {
    Ayudas otras = control_.ayudas();
    otras.*ayuda = encendida;
    protege([&] { control_.ponAyudas(otras); });
}

/// Each aid that stands in the window takes note.
void ControlNorvik::otrasAyudas() {
    piezas_->fondo.otrasAyudas();
    const Ayudas& ayudas = control_.ayudas();
    piezas_->delCursor.pon(ayudas);
    piezas_->zoom.permite(ayudas.permiteZoom);
    piezas_->plegado.permite(ayudas.pliega);
    piezas_->completado.permite(ayudas.completa);
    piezas_->margen.ponNumeros(ayudas.numerosDeLinea);
    piezas_->busqueda.atiendeAyudas();
    if (piezas_->acciones != nullptr) piezas_->acciones->pideAlDia();
    control_.redimensiona();
    Q_EMIT ayudasCambiadas();
}

QAction* ControlNorvik::accion(AccionNorvik cual) {
    if (piezas_->acciones == nullptr)
        piezas_->acciones = std::make_unique<AccionesControl>(*this, piezas_->busqueda, piezas_->plegado);
    return &piezas_->acciones->accion(cual);
}

void ControlNorvik::cambioElTexto(const CambioDeTexto& cambio) {
    if (piezas_->caja.texto().size() <= maximoTexto) fallosContados_.clear();
    piezas_->fondo.cambioElTexto(cambio);
}

bool ControlNorvik::coloreaDespues() {
    piezas_->fondo.pideColores();
    return true;
}

void ControlNorvik::otroLenguaje() {
    piezas_->fondo.otroLenguaje();
}

// ---- what a program sets and hears

bool ControlNorvik::soloLectura() const {
    return piezas_->caja.soloLectura();
}

void ControlNorvik::soloLectura(bool valor) {
    if (valor == soloLectura()) return;
    piezas_->caja.ponSoloLectura(valor);
    protege([this] { Q_EMIT soloLecturaCambiada(); });
}

int ControlNorvik::aumento() const {
    return piezas_->zoom.aumento();
}

void ControlNorvik::aumento(int porcentaje) {
    piezas_->zoom.pon(porcentaje);
}

void ControlNorvik::amplia() {
    piezas_->zoom.amplia();
}

void ControlNorvik::reduce() {
    piezas_->zoom.reduce();
}

void ControlNorvik::ponDiagnosticos(const std::vector<Diagnostico>& diagnosticos) {
    piezas_->diagnosticos.pon(diagnosticos);
}

void ControlNorvik::proponCon(
    std::function<Continuaciones(std::u16string_view texto, std::size_t posicion)> propone) {
    piezas_->completado.preguntaA(std::move(propone));
}

void ControlNorvik::irA(const Rango& rango) {
    const QPointer<ControlNorvik> vivo(this);
    const std::int32_t inicio = rango.inicio.desplazamiento;
    setFocus(); // a selection that comes into view scrolls to its end
    if (!vivo.isNull()) protege([&] { piezas_->caja.muestra(inicio, rango.fin.desplazamiento - inicio); });
}

Compilacion ControlNorvik::cargaLenguaje(const QString& especificacion) {
    return carga([&] { return norvik::cargaLenguaje(control_, vistaDe(especificacion)); });
}

Compilacion ControlNorvik::cargaLenguajeDe(const QString& fichero) {
    return carga([&] { return norvik::cargaLenguajeDe(control_, aRuta(fichero)); });
}

/// What runs while a language is generated may delete the control.
Compilacion ControlNorvik::carga(const std::function<Compilacion()>& orden) {
    const QPointer<ControlNorvik> vivo(this);
    Compilacion compilacion;
    protege([&] { compilacion = orden(); });
    const bool colorea =
        compilacion && !vivo.isNull() && (coloreaAlEscribir() || piezas_->caja.texto().size() <= maximoTexto);
    if (colorea) protege([this] { control_.ColoreaTodo(); });
    return compilacion;
}

void ControlNorvik::cambioDePropiedad(std::u16string_view nombre) {
    const QPointer<ControlNorvik> vivo(this);
    Q_EMIT propiedadCambiada(aQString(nombre));
    if (!vivo.isNull()) Q_EMIT opcionesCambiadas();
}

/// What stands over the text and beside it follows it.
void ControlNorvik::alDia() {
    piezas_->plegado.sigue();
    piezas_->completado.sigue();
    piezas_->resaltes.muestra();
    if (piezas_->margen.sigue()) control_.redimensiona();
    avisaEstado();
}

ControlNorvik::EstadoDelTexto ControlNorvik::estado() const {
    const CajaTextoQt& caja = piezas_->caja;
    return {caja.inicioSeleccion(),       caja.longitudSeleccion(), caja.nombreFuenteSeleccion(),
            caja.tamanoFuenteSeleccion(), caja.modificado(),        piezas_->zoom.aumento()};
}

void ControlNorvik::avisaEstado() {
    const EstadoDelTexto ahora = estado();
    const EstadoDelTexto antes = std::exchange(piezas_->avisado, ahora);
    const QPointer<ControlNorvik> vivo(this);
    const auto seleccion = [](const EstadoDelTexto& e) {
        return std::tie(e.inicio, e.longitud, e.fuente, e.tamano);
    };
    if (seleccion(ahora) != seleccion(antes)) Q_EMIT seleccionCambiada();
    if (!vivo.isNull() && ahora.modificado != antes.modificado) Q_EMIT modificacionCambiada();
    if (!vivo.isNull() && ahora.aumento != antes.aumento) Q_EMIT aumentoCambiado();
}

/// A font that the widget is given itself, not one that its surroundings have.
void ControlNorvik::tomaFuente() {
    if (testAttribute(Qt::WA_SetFont)) protege([this] { Font(font().resolve(Font())); });
}

// ---- what the control asks of its container

Contenedor::Medidas ControlNorvik::medidas() const {
    const TwipsPorPixel pixel = twipsPorPixel(*this);
    return {aTwips(width(), pixel.x), aTwips(height(), pixel.y), aTwips(1, pixel.x), aTwips(1, pixel.y),
            aTwips(piezas_->margen.anchoAdicional(), pixel.x)};
}

void ControlNorvik::muestraMarco(bool visible) {
    piezas_->elementos.muestraMarco(visible);
}

void ControlNorvik::muestraBordeIzquierdo(bool visible) {
    piezas_->elementos.debugBox.setVisible(visible);
}

void ControlNorvik::coloca(const Disposicion& disposicion) {
    const TwipsPorPixel pixel = twipsPorPixel(*this);
    piezas_->elementos.coloca(disposicion, pixel);
    piezas_->caja.ponIzquierda(disposicion.texto.x);
    const int izquierda = enPixeles(disposicion.debugBox, pixel).left();
    piezas_->caja.ventana().setGeometry(
        piezas_->busqueda.aparta(enPixeles(disposicion.texto, pixel), izquierda));
}

void ControlNorvik::ponSigno(const signoDebuger& signo, const LugarDeSigno& lugar) {
    piezas_->elementos.ponSignoError(signo.indice, signo.lineaAfectada, lugar, twipsPorPixel(*this));
}

void ControlNorvik::muestraInforme() {
    ventanasDelControl::muestraInforme(*this);
}

void ControlNorvik::muestraBuscar() {
    ventanasDelControl::muestraBuscar(*this);
}

void ControlNorvik::muestraReemplazar() {
    ventanasDelControl::muestraReemplazar(*this);
}

void ControlNorvik::muestraAcerca() {
    ventanasDelControl::muestraAcerca(*this);
}

void ControlNorvik::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    protege([this] { control_.redimensiona(); });
}

void ControlNorvik::changeEvent(QEvent* evento) {
    QWidget::changeEvent(evento);
    const bool otraEscala =
        evento->type() == QEvent::StyleChange || evento->type() == QEvent::ApplicationFontChange;
    if (otraEscala) protege([this] { control_.redimensiona(); });
    if (evento->type() == QEvent::FontChange) tomaFuente();
}

} // namespace norvik
