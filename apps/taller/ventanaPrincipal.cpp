// SPDX-License-Identifier: MIT

#include "ventanaPrincipal.hpp"

#include "claseFichero.hpp"
#include "lenguaje.hpp"
#include "rutas.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QScopedValueRollback>

#include <algorithm>

namespace norvik::taller {

namespace {

const QString claveGeometria = QStringLiteral("ventana/geometria");
const QString claveEstado = QStringLiteral("ventana/estado");
const QString claveInicio = QStringLiteral("inicio/alEmpezar");

} // namespace

/// One at a time: while one works events run, of a program that drives the window also.
template <typename Orden>
void VentanaPrincipal::ejecuta(const Orden& orden) {
    if (ocupada_) return;
    const QScopedValueRollback<bool> ocupada(ocupada_, true);
    norvik::ejecuta(sistema_, orden);
}

VentanaPrincipal::VentanaPrincipal(const Entorno& entorno)
    : sistema_(entorno.sistema), dialogos_(entorno.dialogos), ajustes_(entorno.ajustes),
      textosRecientes_(acciones_.textosRecientes, ajustes_, claveTextos),
      formulariosRecientes_(acciones_.formulariosRecientes, ajustes_, claveFormularios),
      inicio_(entorno.ejemplos, &pila_), textos_(formulario_, sistema_, dialogos_, textosRecientes_),
      formularios_(formulario_, textos_, sistema_, dialogos_, formulariosRecientes_),
      lenguajes_(formulario_, sistema_, dialogos_, arbol_, mensaje_, revision_) {
    setAcceptDrops(true);
    compone();
    conectaArchivo();
    conectaEdicion();
    conectaFormulario();
    conectaLenguaje();
    conectaAyuda();
    conectaInicio();
    llenaEjemplos(entorno.ejemplos);
    restoreGeometry(ajustes_.value(claveGeometria).toByteArray());
    restoreState(ajustes_.value(claveEstado).toByteArray());
    otroActivo();
    formulario_.activo().setFocus();
}

void VentanaPrincipal::compone() {
    mide(*this, {1000, 680});
    columna_.setContentsMargins(4, 0, 4, 0);
    columna_.addWidget(&formulario_, 1);
    columna_.addWidget(&mensaje_);
    centro_.setLayout(&columna_);
    pila_.addWidget(&centro_);
    pila_.addWidget(&inicio_);
    inicio_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // it asks for room when it is seen
    setCentralWidget(&pila_);
    addDockWidget(Qt::RightDockWidgetArea, &arbol_);
    resizeDocks({&arbol_}, {340}, Qt::Horizontal);
    setAccessibleName(QStringLiteral("El formulario"));
    ponTema(*this, {QStringLiteral("El taller")});
    acciones_.ver.addAction(arbol_.toggleViewAction());
    acciones_.ver.addAction(acciones_.barra.toggleViewAction());
    setStatusBar(&barra_);
    for (QLabel* const etiqueta : {&lenguaje_, &formato_, &lugar_}) {
        etiqueta->setTextFormat(Qt::PlainText);
        etiqueta->setContentsMargins(8, 0, 8, 0);
        barra_.addPermanentWidget(etiqueta);
    }
}

template <typename Orden>
void VentanaPrincipal::conecta(QAction& accion, Orden orden) {
    conectaAparte(accion, [this, orden] {
        muestraFormulario();
        orden();
    });
}

template <typename Orden>
void VentanaPrincipal::conectaAparte(QAction& accion, Orden orden) {
    connect(&accion, &QAction::triggered, this, [this, orden] { ejecuta(orden); });
}

// ---- the commands

void VentanaPrincipal::conectaArchivo() {
    Acciones& a = acciones_;
    conecta(a.nuevoTexto, [this] { textos_.nuevo(); });
    conecta(a.abrirTexto, [this] { textos_.abre(); });
    conecta(a.guardarTexto, [this] { textos_.guarda(); });
    conecta(a.guardarTextoComo, [this] { textos_.guardaComo(); });
    conecta(a.guardarTodo, [this] { formularios_.guardaTodo(); });
    conecta(a.imprimir, [this] { formulario_.activo().norvik().control().Imprimir(); });
    connect(&a.salir, &QAction::triggered, this, &QWidget::close);
    connect(&textosRecientes_, &Recientes::elegido, this,
            [this](const QString& fichero) { ejecuta([&] { textos_.abre(fichero); }); });
}

void VentanaPrincipal::conectaEdicion() {
    for (const auto& [accion, suya] : deEdicion()) {
        const AccionNorvik cual = suya;
        conecta(*accion, [this, cual] { formulario_.activo().norvik().accion(cual)->trigger(); });
    }
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &VentanaPrincipal::actualizaEdicion);
    conectaAparte(acciones_.acerca, [this] { formulario_.activo().norvik().control().Acerca(); });
}

/// The commands that are those of the active control.
VentanaPrincipal::DeEdicion VentanaPrincipal::deEdicion() {
    Acciones& a = acciones_;
    return {{{&a.deshacer, AccionNorvik::Deshacer},
             {&a.rehacer, AccionNorvik::Rehacer},
             {&a.cortar, AccionNorvik::Cortar},
             {&a.copiar, AccionNorvik::Copiar},
             {&a.pegar, AccionNorvik::Pegar},
             {&a.seleccionarTodo, AccionNorvik::SeleccionarTodo},
             {&a.buscar, AccionNorvik::Buscar},
             {&a.buscarSiguiente, AccionNorvik::BuscarSiguiente},
             {&a.buscarAnterior, AccionNorvik::BuscarAnterior},
             {&a.reemplazar, AccionNorvik::Reemplazar},
             {&a.irALinea, AccionNorvik::IrALinea},
             {&a.plegar, AccionNorvik::Plegar}}};
}

void VentanaPrincipal::conectaFormulario() {
    Acciones& a = acciones_;
    conecta(a.nuevoFormulario, [this] { formularios_.nuevo(); });
    conecta(a.abrirFormulario, [this] { formularios_.abre(); });
    conecta(a.guardarFormulario, [this] { formularios_.guarda(); });
    conecta(a.guardarFormularioComo, [this] { formularios_.guardaComo(); });
    conecta(a.anadir, [this] { formulario_.anade(); });
    conecta(a.quitar, [this] { formularios_.quitaActivo(); });
    conecta(a.propiedades, [this] { muestraPropiedades(VentanaPropiedades::Pagina::General); });
    connect(&formulario_, &Formulario::pidePropiedades, &a.propiedades, &QAction::trigger);
    connect(&a.disenio, &QAction::toggled, this,
            [this](bool disenio) { norvik::ejecuta(sistema_, [&] { ponModo(disenio); }); });
    connect(&formulariosRecientes_, &Recientes::elegido, this,
            [this](const QString& fichero) { ejecuta([&] { formularios_.abre(fichero); }); });
    connect(&formulario_, &Formulario::otroActivo, this, &VentanaPrincipal::otroActivo);
    connect(&formulario_, &Formulario::otroLugar, this, [this] {
        actualizaLugar();
        actualizaEdicion();
    });
    connect(&formulario_, &Formulario::fallo, this, &VentanaPrincipal::cuentaFallo);
    connect(&formulario_, &Formulario::aviso, this, [this](const QString& texto) { barra_.avisa(texto); });
    connect(&formulario_, &Formulario::otroTexto, this, &VentanaPrincipal::cambiado);
    connect(&formulario_, &Formulario::cambiado, this, &VentanaPrincipal::cambiado);
    connect(&formulario_, &Formulario::otroTexto, this, [this] {
        actualizaTitulo();
        actualizaLugar();
        actualizaEdicion();
    });
    connect(&formulario_, &Formulario::cambiado, this, [this] {
        actualizaTitulo();
        actualizaOrdenes();
    });
}

void VentanaPrincipal::conectaLenguaje() {
    Acciones& a = acciones_;
    conecta(a.nuevoLenguaje, [this] {
        if (lenguajes_.nuevo()) muestraPropiedades(VentanaPropiedades::Pagina::Gramatica);
    });
    conecta(a.abrirLenguaje, [this] { lenguajes_.abre(); });
    conecta(a.guardarEspecificacion, [this] { lenguajes_.guardaEspecificacion(); });
    conectaAparte(a.ventanaLenguaje, [this] { muestraVentanaLenguaje(); });
    conecta(a.analizar, [this] { analiza(); });
    conecta(a.informe, [this] { lenguajes_.muestraInforme(); });
    conecta(a.revisar, [this] { lenguajes_.revisa(); });
    connect(&revision_, &VentanaRevision::pideLalr, this,
            [this] { ejecuta([&] { lenguajes_.pasaALalr(); }); });
    connect(&mensaje_, &PanelMensaje::pideIr, this, [this] { ejecuta([this] { lenguajes_.vaAlError(); }); });
    connect(&arbol_, &PanelArbol::elegida, this, [this](const ModeloArbol::Hoja& hoja) {
        ejecuta([&] { formulario_.activo().vaA(hoja.linea, hoja.columna, hoja.texto); });
    });
}

// ---- what is not saved

void VentanaPrincipal::ordena(const std::function<void()>& orden) {
    ejecuta(orden);
}

void VentanaPrincipal::avisa(const QString& texto) {
    barra_.avisa(texto);
    if (ventanaLenguaje_) ventanaLenguaje_->avisa(texto);
}

CopiaTaller VentanaPrincipal::copia() {
    CopiaTaller copia;
    if (formulario_.hayCambios()) copia.formulario = formulario_.estado();
    if (ventanaLenguaje_) copia.lenguaje = ventanaLenguaje_->copia();
    return copia;
}

bool VentanaPrincipal::hayCambios() const {
    return formulario_.hayCambios() || (ventanaLenguaje_ && ventanaLenguaje_->hayCambios());
}

bool VentanaPrincipal::repone(const CopiaTaller& copia) {
    if (copia.lenguaje && !ventanaLenguaje().puedePerder()) return false;
    if (copia.formulario && !formularios_.puedePerder()) return false;
    if (copia.formulario) {
        muestraFormulario();
        formularios_.repone(*copia.formulario);
    }
    if (!copia.lenguaje) return true;
    ventanaLenguaje().repone(*copia.lenguaje);
    ventanaLenguaje().trae();
    return true;
}

VentanaLenguaje& VentanaPrincipal::ventanaLenguaje() {
    if (ventanaLenguaje_) return *ventanaLenguaje_;
    ventanaLenguaje_ = std::make_unique<VentanaLenguaje>(sistema_, dialogos_, ajustes_);
    preparaAyuda(*ventanaLenguaje_);
    connect(ventanaLenguaje_.get(), &VentanaLenguaje::cambiado, this, &VentanaPrincipal::cambiado);
    connect(ventanaLenguaje_.get(), &VentanaLenguaje::pideAbrir, this, &VentanaPrincipal::abre);
    ventanaLenguaje_->ponUso([this](const std::u16string& especificacion) { return toma(especificacion); });
    return *ventanaLenguaje_;
}

/// The active control has it now, although it may be wrong; not when that failed, or a person cancelled it.
bool VentanaPrincipal::toma(const std::u16string& especificacion) {
    bool tomada = false;
    ejecuta([&] {
        muestraFormulario();
        lenguajes_.toma(especificacion);
        tomada = true;
    });
    return tomada;
}

/// With what the active control has, unless something is open there.
void VentanaPrincipal::muestraVentanaLenguaje() {
    VentanaLenguaje& ventana = ventanaLenguaje();
    ControlNorvik& norvik = formulario_.activo().norvik();
    if (!ventana.isVisible())
        ventana.empieza(hayEspecificacion(norvik) ? especificacionDe(norvik) : plantilla,
                        norvik.caja().texto());
    ventana.trae();
}

void VentanaPrincipal::abreEnVentana(const QString& especificacion, const QString& texto) {
    ejecuta([&] {
        VentanaLenguaje& ventana = ventanaLenguaje();
        ventana.abre(especificacion);
        if (!texto.isEmpty()) ventana.abreTexto(texto);
        ventana.trae();
    });
}

void VentanaPrincipal::llenaEjemplos(const QList<Ejemplo>& ejemplos) {
    acciones_.ejemplos.setEnabled(!ejemplos.isEmpty());
    for (const Ejemplo& ejemplo : ejemplos) {
        QAction* const accion = acciones_.ejemplos.addAction(ejemplo.nombre);
        conecta(*accion, [this, ejemplo] {
            lenguajes_.abre(ejemplo.especificacion);
            if (!ejemplo.texto.isEmpty()) textos_.abre(ejemplo.texto);
        });
    }
}

void VentanaPrincipal::abre(const QString& fichero) {
    ejecuta([&] {
        muestraFormulario();
        switch (claseDe(fichero)) {
        case ClaseFichero::Formulario:
            return formularios_.abre(fichero);
        case ClaseFichero::Especificacion:
        case ClaseFichero::Modulo:
            return lenguajes_.abre(fichero);
        case ClaseFichero::Texto:
            return textos_.abre(fichero);
        }
    });
}

void VentanaPrincipal::ponModo(bool disenio) {
    muestraFormulario();
    formulario_.ponModo(disenio ? Modo::Disenio : Modo::Ejecucion);
    if (!disenio) lenguajes_.preparaTodos();
}

void VentanaPrincipal::muestraPropiedades(VentanaPropiedades::Pagina pagina) {
    ElementoFormulario& elemento = formulario_.activo();
    const auto pregunta = [this](const auto&... textos) { return dialogos_.pregunta(textos...); };
    muestraModal<VentanaPropiedades>(sistema_, elemento.norvik(), elemento.nombre(), sistema_, pregunta,
                                     pagina, this);
    if (formulario_.modo() == Modo::Ejecucion) lenguajes_.preparaTodos();
    actualizaTitulo();
}

void VentanaPrincipal::analiza() {
    analizado_ = &formulario_.activo();
    barra_.clearMessage();
    const auto nodos = lenguajes_.analiza();
    if (!nodos) return;
    if (arbol_.modelo().nodos() > 0) arbol_.show();
    barra_.avisa(QStringLiteral("Análisis sintáctico correcto: %1 nodos").arg(*nodos), 8000);
}

// ---- the first hour

void VentanaPrincipal::conectaAyuda() {
    Acciones& a = acciones_;
    conectaAparte(a.manual, [this] { manual().muestra(temaDe(QApplication::focusWidget())); });
    conectaAparte(a.teclas, [this] { teclas().muestra({this, &ventanaLenguaje()}); });
    conectaAparte(a.inicio, [this] { muestraInicio(); });
    conectaAparte(a.visita, [this] { visita().empieza(); });
    connect(&a.presentacion, &QAction::toggled, this,
            [this](bool puesta) { sinFallos([&] { presentacion_.pon(puesta); }); });
}

void VentanaPrincipal::conectaInicio() {
    inicio_.ponSiempre(ajustes_.value(claveInicio, true).toBool());
    connect(&inicio_, &PaginaInicio::siempre, this,
            [this](bool siempre) { sinFallos([&] { ajustes_.setValue(claveInicio, siempre); }); });
    connect(&inicio_, &PaginaInicio::nuevo, this, [this](const Plantilla& p) {
        ejecuta([&] { empiezaEnVentana(p.especificacion(), p.texto()); });
    });
    connect(&inicio_, &PaginaInicio::ejemplo, this, [this](const Ejemplo& e) {
        ejecuta([&] {
            empiezaEnVentana(leeTexto(aRuta(e.especificacion)),
                             e.texto.isEmpty() ? std::u16string() : leeTexto(aRuta(e.texto)));
        });
    });
    connect(&inicio_, &PaginaInicio::reciente, this, [this](const QString& fichero) {
        sinFallos([&] {
            claseDe(fichero) == ClaseFichero::Especificacion ? abreEnVentana(fichero) : abre(fichero);
        });
    });
    connect(&inicio_, &PaginaInicio::pideAbrir, this, [this] {
        std::optional<QString> fichero;
        ejecuta([&] {
            fichero = dialogos_.eligeParaAbrir(QStringLiteral("Abrir lenguaje"), filtroEspecificacion);
        });
        if (fichero) abreEnVentana(*fichero);
    });
    connect(&inicio_, &PaginaInicio::pideFormulario, this,
            [this] { sinFallos([this] { muestraFormulario(); }); });
    connect(&inicio_, &PaginaInicio::pideVisita, &acciones_.visita, &QAction::trigger);
    connect(&inicio_, &PaginaInicio::pideManual, &acciones_.manual, &QAction::trigger);
    connect(&inicio_, &PaginaInicio::pideTeclas, &acciones_.teclas, &QAction::trigger);
}

/// Nobody would miss what it begins with.
void VentanaPrincipal::empiezaEnVentana(std::u16string_view especificacion, std::u16string_view texto) {
    VentanaLenguaje& ventana = ventanaLenguaje();
    if (ventana.empieza(especificacion, texto)) ventana.trae();
}

/// The language window has the same help, and says what each of its parts is in the manual.
void VentanaPrincipal::preparaAyuda(VentanaLenguaje& ventana) {
    ventana.menuBar()->addMenu(&acciones_.ayuda);
    ventana.ver().addSeparator();
    ventana.ver().addAction(&acciones_.presentacion);
    const QString titulo = QStringLiteral("La ventana del lenguaje");
    ponTema(ventana, {titulo});
    ponTema(ventana.especificacion(), {QStringLiteral("2. El lenguaje de especificación")});
    for (auto* const panel : ventana.findChildren<Panel*>()) ponTema(*panel, {titulo, panel->titulo()});
    if (presentacion_.puesta()) presentacion_.aplica(ventana);
}

void VentanaPrincipal::muestraInicioSiSeQuiere() {
    if (ajustes_.value(claveInicio, true).toBool()) muestraInicio();
}

void VentanaPrincipal::muestraInicio() {
    inicio_.ponRecientes(ajustes_.value(claveLenguajes).toStringList() +
                         ajustes_.value(claveFormularios).toStringList() +
                         ajustes_.value(claveTextos).toStringList());
    if (pila_.currentWidget() != &inicio_) conFormulario_ = saveState();
    arbol_.hide();
    inicio_.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    pila_.setCurrentWidget(&inicio_);
    inicio_.setFocus();
    show();
    raise();
    activateWindow();
}

void VentanaPrincipal::muestraFormulario() {
    if (pila_.currentWidget() == &centro_) return;
    inicio_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    pila_.setCurrentWidget(&centro_);
    restoreState(conFormulario_);
    formulario_.activo().setFocus();
}

VentanaManual& VentanaPrincipal::manual() {
    if (manual_.isNull()) manual_ = &nuevo<VentanaManual>(this);
    return *manual_;
}

PaginaTeclas& VentanaPrincipal::teclas() {
    if (teclas_.isNull()) teclas_ = &nuevo<PaginaTeclas>(this);
    return *teclas_;
}

Visita& VentanaPrincipal::visita() {
    if (visita_.isNull()) visita_ = &nuevo<Visita>(ventanaLenguaje());
    return *visita_;
}

// ---- what is shown

void VentanaPrincipal::otroActivo() {
    if (analizado_ != &formulario_.activo()) lenguajes_.olvidaAnalisis();
    actualizaTitulo();
    actualizaLugar();
    actualizaOrdenes();
}

/// Where it is in nobody's way. Of a text that is too long for something it is said what can still be done.
void VentanaPrincipal::cuentaFallo(const QString& texto) {
    const bool largo = texto.startsWith(QStringLiteral("Desbordamiento: el texto pasa de "));
    barra_.avisa(largo ? texto + QStringLiteral(". Se edita, se colorea, se analiza y se guarda") : texto);
}

void VentanaPrincipal::actualizaTitulo() {
    ElementoFormulario& activo = formulario_.activo();
    const QString marcaFormulario = formulario_.modificado() ? QStringLiteral("*") : QString();
    setWindowModified(activo.textoModificado());
    setWindowTitle(activo.tituloTexto() + QStringLiteral("[*] — ") + formulario_.titulo() + marcaFormulario +
                   QStringLiteral(" — Norvik"));
    const QString nombre = activo.norvik().NomLenguaje();
    const QString sinNombre = tieneLenguaje(activo.norvik()) ? QStringLiteral("Lenguaje sin nombre")
                                                             : QStringLiteral("Sin lenguaje");
    lenguaje_.setText(nombre.isEmpty() ? sinNombre : nombre);
    formato_.setText(activo.documento().nombreDelFormato());
}

void VentanaPrincipal::actualizaLugar() {
    ControlNorvik& norvik = formulario_.activo().norvik();
    const CajaTextoQt& caja = norvik.caja(); // the control numbers 32,767 lines
    lugar_.setText(QStringLiteral("Línea %1, Columna %2")
                       .arg(caja.lineaDeCaracter(caja.inicioSeleccion()) + 1)
                       .arg(norvik.control().ColumnaActual()));
}

void VentanaPrincipal::actualizaOrdenes() {
    Acciones& a = acciones_;
    const auto cuantos = static_cast<qsizetype>(formulario_.elementos().size());
    a.anadir.setEnabled(cuantos < maximoControles);
    a.quitar.setEnabled(cuantos > 1);
    actualizaEdicion();
}

void VentanaPrincipal::actualizaEdicion() {
    const bool disenio = formulario_.modo() == Modo::Disenio;
    ControlNorvik& norvik = formulario_.activo().norvik();
    for (const auto& [accion, suya] : deEdicion())
        accion->setEnabled(!disenio && norvik.accion(suya)->isEnabled());
}

// ---- the window

void VentanaPrincipal::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    ejecuta([&] {
        if (ventanaLenguaje_ && ventanaLenguaje_->isVisible() && !ventanaLenguaje_->close()) return;
        if (!formularios_.puedePerder()) return;
        evento->accept();
        muestraFormulario(); // with its panels as they were
        ajustes_.setValue(claveGeometria, saveGeometry());
        ajustes_.setValue(claveEstado, saveState());
    });
}

void VentanaPrincipal::dragEnterEvent(QDragEnterEvent* evento) {
    if (!ficherosDe(*evento->mimeData()).isEmpty()) evento->acceptProposedAction();
}

void VentanaPrincipal::dropEvent(QDropEvent* evento) {
    evento->acceptProposedAction();
    sinFallos([&] { abreLosSoltados(ficherosDe(*evento->mimeData())); });
}

/// As the command line has it: a text goes along with a specification.
void VentanaPrincipal::abreLosSoltados(const QStringList& ficheros) {
    const auto esEspecificacion = [](const QString& f) { return claseDe(f) == ClaseFichero::Especificacion; };
    const bool enVentana = std::any_of(ficheros.begin(), ficheros.end(), esEspecificacion);
    for (const QString& fichero : ficheros) {
        if (esEspecificacion(fichero))
            abreEnVentana(fichero);
        else if (enVentana && claseDe(fichero) == ClaseFichero::Texto)
            ejecuta([&] { ventanaLenguaje().abreTexto(fichero); });
        else
            abre(fichero);
    }
}

} // namespace norvik::taller
