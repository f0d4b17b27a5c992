// SPDX-License-Identifier: MIT

#include "elementoFormulario.hpp"

#include "lenguaje.hpp"

#include "norvik/control/tablaPropiedades.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QAction>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace norvik::taller {

ElementoFormulario::ElementoFormulario(const QString& nombre, SistemaQt& sistema, QWidget* padre)
    : QWidget(padre), sistema_(sistema), nombre_(nombre), titulo_(this), velo_(this), norvik_(sistema, this) {
    norvik_.setObjectName(nombre);
    norvik_.setAccessibleName(nombre);
    velo_.setAccessibleName(nombre);
    setAccessibleName(nombre);
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.setSpacing(2);
    columna_.addWidget(&titulo_);
    columna_.addWidget(&norvik_, 1);
    setLayout(&columna_);
    norvik_.setMinimumHeight(60);
    setFocusProxy(&norvik_);
    titulo_.setTextFormat(Qt::PlainText);
    titulo_.setContentsMargins(4, 2, 4, 0);
    velo_.hide();
    norvik_.control().ponAyudas(todasLasAyudas());
    cedeTeclas();
    conecta();
    actualizaTitulo();
    anotaGuardado();
}

/// The keys of the control's actions are those of the window's, which are for whichever control is active.
void ElementoFormulario::cedeTeclas() {
    for (int i = 0; i < numeroDeAcciones; ++i)
        norvik_.accion(static_cast<AccionNorvik>(i))->setShortcuts(QList<QKeySequence>());
}

void ElementoFormulario::conecta() {
    norvik_.installEventFilter(this);
    norvik_.caja().ventana().installEventFilter(this);
    connect(&norvik_, &ControlNorvik::textoCambiado, this, &ElementoFormulario::cambiaTexto);
    connect(&documento_, &DocumentoTexto::cambiado, this, &ElementoFormulario::cambiaTexto);
    connect(&documento_, &DocumentoTexto::aviso, this, &ElementoFormulario::aviso);
    connect(&norvik_, &ControlNorvik::SelChange, this, &ElementoFormulario::otroLugar);
    connect(&norvik_, &ControlNorvik::fallo, this, [this](const QString& motivo, bool& contado) {
        contado = true;
        emit fallo(motivo);
    });
    connect(&norvik_, &ControlNorvik::propiedadCambiada, this, &ElementoFormulario::anota);
    connect(&velo_, &VeloDisenio::seleccionado, this, &ElementoFormulario::activado);
    connect(&velo_, &VeloDisenio::pidePropiedades, this, &ElementoFormulario::pidePropiedades);
}

bool ElementoFormulario::eventFilter(QObject* objeto, QEvent* evento) {
    const bool otroSitio = evento->type() == QEvent::Resize || evento->type() == QEvent::Move;
    if (objeto == &norvik_ && otroSitio) velo_.setGeometry(norvik_.geometry());
    if (objeto != &norvik_ && evento->type() == QEvent::FocusIn) emit activado();
    return QWidget::eventFilter(objeto, evento);
}

/// Controls tell of properties that were set, to whatever value.
void ElementoFormulario::anota(const QString& propiedad) {
    const Propiedad* const p = propiedadDeClave(vistaDe(propiedad));
    const bool esColor = p != nullptr && p->esColor();
    if (esColor || propiedad == QLatin1String("LenguajeSensible")) lenguajeAlDia_ = false;
    if (propiedad == QLatin1String("ContenidoG")) anotaEspecificacion();
    if (propiedad != QLatin1String("Text") && bolsa() != guardada_) emit otraPropiedad();
}

void ElementoFormulario::anotaEspecificacion() {
    if (especificacionDe(norvik_) == especificacion_) return;
    especificacion_ = especificacionDe(norvik_);
    modulo_.clear();
    lenguajeAlDia_ = false;
}

/// Its file; a text that no file can hold is as good as another one.
std::string ElementoFormulario::bolsa() {
    try {
        BolsaPropiedades bolsa;
        norvik_.control().guardaPropiedades(bolsa);
        return bolsa.aJson();
    } catch (const ErrorDeFichero&) {
        return {};
    }
}

ElementoGuardado ElementoFormulario::guardado() {
    ElementoGuardado guardado{nombre_, fichero(), modulo_, {}, otros_, otrosDeBolsa_};
    norvik_.control().guardaPropiedades(guardado.bolsa);
    return guardado;
}

void ElementoFormulario::restaura(const ElementoGuardado& guardado) {
    otros_ = guardado.otros;
    otrosDeBolsa_ = guardado.otrosDeBolsa;
    lenguajeAlDia_ = false;
    norvik_.control().restauraPropiedades(guardado.bolsa);
    especificacion_ = especificacionDe(norvik_);
}

// ---- text

void ElementoFormulario::actualizaTitulo() {
    const QString marca = textoModificado() ? QStringLiteral("*") : QString();
    titulo_.setText(nombre_ + QStringLiteral(" — ") + tituloTexto() + marca);
}

void ElementoFormulario::cambiaTexto() {
    actualizaTitulo();
    emit otroTexto();
}

void ElementoFormulario::vaA(int linea, int columna, const QString& texto) {
    CajaTextoQt& caja = norvik_.caja();
    const std::int32_t inicio = caja.inicioDeLinea(linea - 1);
    if (inicio < 0) return;
    const std::int32_t posicion = inicio + columna - 1;
    const auto longitud = static_cast<std::int32_t>(texto.size());
    const auto desde = std::min(static_cast<std::size_t>(posicion), caja.texto().size());
    const bool esta = caja.texto().substr(desde).starts_with(vistaDe(texto));
    caja.atiende([&] { caja.selecciona(posicion, esta ? longitud : 0); });
    norvik_.setFocus();
}

// ---- language

void ElementoFormulario::ponModulo(const QString& fichero) {
    const QString ruta = fichero.isEmpty() ? fichero : QFileInfo(fichero).absoluteFilePath();
    lenguajeAlDia_ = false; // the same file may have another language now
    if (std::exchange(modulo_, ruta) != ruta) emit otraPropiedad();
}

std::u16string ElementoFormulario::preparaLenguaje() {
    if (lenguajeAlDia_) return {};
    std::u16string fallo;
    if (modulo_.isEmpty() && hayEspecificacion(norvik_)) fallo = ensayaLenguaje(sistema_, norvik_);
    lenguajeAlDia_ = true;
    if (!fallo.empty()) {
        descargaLenguaje(norvik_);
        return fallo;
    }
    if (!modulo_.isEmpty()) return cargaModulo(norvik_, modulo_);
    if (hayEspecificacion(norvik_)) return compilaLenguaje(norvik_);
    descargaLenguaje(norvik_);
    return {};
}

bool ElementoFormulario::faltaLenguaje() {
    return !lenguajeAlDia_ && (!modulo_.isEmpty() || hayEspecificacion(norvik_));
}

std::size_t ElementoFormulario::patrones() {
    std::size_t total = 0;
    for (const auto& definicion : norvik_.control().Lexico().expresionesRegulares())
        total += definicion->expresion.size();
    return total;
}

ElementoFormulario::Origen ElementoFormulario::origen() {
    return {norvik_.NomLenguaje(), especificacionDe(norvik_), modulo_, lenguajeAlDia_};
}

void ElementoFormulario::vuelveA(const Origen& origen) {
    ponEspecificacion(norvik_, origen.especificacion);
    ponModulo(origen.modulo);
    norvik_.NomLenguaje(origen.nombre);
    lenguajeAlDia_ = origen.alDia;
}

// ---- on the form

void ElementoFormulario::ponModo(Modo modo) {
    const bool disenio = modo == Modo::Disenio;
    velo_.setVisible(disenio);
    velo_.raise();
    for (QWidget* e : {&norvik_.caja().ventana(), norvik_.findChild<QWidget*>(QStringLiteral("tabulador"))})
        e->setFocusPolicy(disenio ? Qt::NoFocus : Qt::StrongFocus); // nothing is written
    setFocusProxy(disenio ? static_cast<QWidget*>(&velo_) : &norvik_);
}

void ElementoFormulario::ponSeleccionado(bool seleccionado) {
    velo_.ponSeleccionado(seleccionado);
    QFont letra = font();
    letra.setBold(seleccionado);
    titulo_.setFont(letra);
}

} // namespace norvik::taller
