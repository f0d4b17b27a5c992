// SPDX-License-Identifier: MIT

#include "ventanaLenguaje.hpp"

#include "../claseFichero.hpp"
#include "../lenguaje.hpp"
#include "../rutas.hpp"
#include "correspondencias.hpp"
#include "enControl.hpp"
#include "palabrasNombre.hpp"

#include "norvik/checks/propuestas.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QMimeData>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <utility>

namespace norvik::taller {

namespace {

const QString claveGeometria = QStringLiteral("lenguaje/geometria");
const QString claveEstado = QStringLiteral("lenguaje/estado");
const QString claveEditores = QStringLiteral("lenguaje/editores");
constexpr std::chrono::microseconds turno{500}; ///< what is shown in one: laying out and painting take longer

/// A place of the text is a node of its tree, too.
std::optional<std::size_t> nodoEn(const Estudio& estudio, const Eleccion& eleccion) {
    return std::holds_alternative<EnTexto>(eleccion) ? nodoDe(estudio, eleccion) : std::nullopt;
}

/// The place itself comes last.
void lleva(const Eleccion& eleccion, const std::optional<std::size_t>& nodo, Panel& panel) {
    if (nodo) panel.selecciona(DeNodo{*nodo});
    panel.selecciona(eleccion);
}

/// A tree of thousands of nodes takes longer to be given up than a panel to be shown.
void olvidaAparte(std::shared_ptr<const Estudio> estudio) {
    QThreadPool::globalInstance()->start([suyo = std::move(estudio)]() mutable { suyo.reset(); });
}

} // namespace

/// One at a time: while one asks something, events run.
template <typename Orden>
void VentanaLenguaje::ejecuta(const Orden& orden) {
    if (ocupada_) return;
    const QScopedValueRollback<bool> ocupada(ocupada_, true);
    norvik::ejecuta(sistema_, orden);
}

VentanaLenguaje::VentanaLenguaje(SistemaQt& sistema, Dialogos& dialogos, QSettings& ajustes)
    : sistema_(sistema), dialogos_(dialogos), ajustes_(ajustes), archivador_(sistema, dialogos),
      especificacion_(QStringLiteral("Especificación"), sistema, &editores_),
      texto_(QStringLiteral("Texto"), sistema, &editores_),
      nombres_(especificacion_, dialogos,
               [this](const auto& nombre, auto pregunta) { return palabrasDe(nombre, pregunta); }),
      archivo_(QStringLiteral("&Archivo")), edicion_(QStringLiteral("&Edición")),
      menuNombres_(QStringLiteral("&Nombres")), ver_(QStringLiteral("&Ver")),
      menuRecientes_(QStringLiteral("Lenguajes &recientes")),
      recientes_(menuRecientes_, ajustes, claveLenguajes), seguimiento_([this] {
          return Seguimiento::Textos{especificacion_.texto(), texto_.texto()};
      }) {
    compone();
    ponMenus();
    conecta();
    restoreGeometry(ajustes_.value(claveGeometria).toByteArray());
    restoreState(ajustes_.value(claveEstado).toByteArray());
    editores_.restoreState(ajustes_.value(claveEditores).toByteArray());
    cambio();
}

// ---- how it is put together

void VentanaLenguaje::compone() {
    mide(*this, {1280, 860});
    setAccessibleName(QStringLiteral("La ventana del lenguaje"));
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    CargaMetaLenguaje(especificacion_.norvik().control());
    especificacion_.norvik().proponCon(&continuacionesDeEspecificacion);
    editores_.addWidget(&especificacion_);
    editores_.addWidget(&texto_);
    editores_.setChildrenCollapsible(false);
    setCentralWidget(&editores_);
    colocaPaneles();
    setStatusBar(&barra_);
    for (QLabel* const etiqueta : {&estado_, &formato_, &lugar_}) {
        etiqueta->setTextFormat(Qt::PlainText);
        etiqueta->setContentsMargins(8, 0, 8, 0);
        barra_.addPermanentWidget(etiqueta);
    }
}

/// Where they are to begin with.
void VentanaLenguaje::colocaPaneles() {
    addDockWidget(Qt::RightDockWidgetArea, &arbol_);
    Panel* anterior = nullptr;
    for (Panel* const panel : paneles()) {
        panel->setFloating(false);
        panel->show();
        if (panel == &arbol_) continue;
        addDockWidget(Qt::BottomDockWidgetArea, panel);
        if (anterior != nullptr) tabifyDockWidget(anterior, panel);
        anterior = panel;
    }
    problemas_.raise();
    resizeDocks({&arbol_}, {width() / 3}, Qt::Horizontal);
    resizeDocks({&problemas_}, {340}, Qt::Vertical); // both trees of a conflict have room
}

QAction& VentanaLenguaje::accion(QMenu& menu, const QString& texto, const QKeySequence& teclas,
                                 const std::function<void()>& orden) {
    QAction& accion = *menu.addAction(texto);
    accion.setShortcut(teclas);
    connect(&accion, &QAction::triggered, this, [this, orden] { ejecuta(orden); });
    return accion;
}

void VentanaLenguaje::ponMenus() {
    for (QMenu* const menu : {&archivo_, &edicion_, &menuNombres_, &ver_}) menuBar()->addMenu(menu);
    accion(archivo_, QStringLiteral("&Nuevo lenguaje"), QKeySequence::New, [this] {
        if (sustituye(plantilla, {})) especificacion_.norvik().setFocus();
    });
    accion(archivo_, QStringLiteral("&Abrir lenguaje…"), QStringLiteral("Ctrl+L"), [this] {
        const auto fichero = dialogos_.eligeParaAbrir(QStringLiteral("Abrir lenguaje"), filtroEspecificacion);
        if (fichero) abreEspecificacion(*fichero);
    });
    archivo_.addMenu(&menuRecientes_);
    accion(archivo_, QStringLiteral("Abrir te&xto…"), QKeySequence::Open, [this] {
        const auto fichero = dialogos_.eligeParaAbrir(QStringLiteral("Abrir texto"), todos);
        if (fichero) abreTextoDe(*fichero);
    });
    archivo_.addSeparator();
    accion(archivo_, QStringLiteral("&Guardar"), QKeySequence::Save,
           [this] { anota(*activo_, archivador_.guarda(activo_->documento(), como(*activo_))); });
    accion(archivo_, QStringLiteral("Guardar &como…"), QStringLiteral("Ctrl+Shift+S"),
           [this] { anota(*activo_, archivador_.guardaComo(activo_->documento(), como(*activo_))); });
    accion(archivo_, QStringLiteral("Guardar &todo"), QStringLiteral("Ctrl+Alt+S"), [this] { guardaTodo(); });
    archivo_.addSeparator();
    accion(archivo_, QStringLiteral("&Usar en el formulario"), QStringLiteral("Shift+F6"), [this] { usa(); });
    archivo_.addSeparator();
    QAction& cerrar = *archivo_.addAction(QStringLiteral("C&errar"));
    cerrar.setShortcut(QStringLiteral("Ctrl+W"));
    connect(&cerrar, &QAction::triggered, this, &QWidget::close);
    connect(&edicion_, &QMenu::aboutToShow, this, [this] {
        sinFallos([this] {
            edicion_.clear();
            for (int i = 0; i < numeroDeAcciones; ++i)
                edicion_.addAction(activo_->norvik().accion(static_cast<AccionNorvik>(i)));
            edicion_.addSeparator();
            edicion_.addAction(&arreglar_);
        });
    });
    arreglar_.setShortcut(QStringLiteral("Ctrl+."));
    addAction(&arreglar_); // the menu is empty until it is seen
    connect(&arreglar_, &QAction::triggered, this, [this] { sinFallos([this] { arreglaLoDelCursor(); }); });
    ponMenuNombres();
    ponMenuVer();
}

/// The caret of the specification counts, and only while the person writes there.
void VentanaLenguaje::ponMenuNombres() {
    const auto pon = [this](const QString& texto, const char* teclas, const std::function<void()>& orden) {
        accion(menuNombres_, texto, QKeySequence(QLatin1String(teclas)), [this, orden] {
            if (activo_ != &especificacion_)
                return avisa(
                    QStringLiteral("Los nombres son de la especificación, y el cursor está en el texto"));
            orden();
        });
    };
    pon(QStringLiteral("Ir a la &definición"), "F12", [this] { nombres_.vaAlOrigen(); });
    pon(QStringLiteral("Buscar los &usos"), "Shift+F12", [this] {
        const auto nombre = nombres_.elegido();
        if (!nombre) return;
        usos_.busca(*nombre);
        abrePanel(usos_);
    });
    pon(QStringLiteral("&Cambiar el nombre…"), "F2", [this] { nombres_.cambia(); });
    pon(QStringLiteral("&Explicar el nombre"), "Ctrl+I", [this] { nombres_.explica(); });
}

void VentanaLenguaje::abrePanel(Panel& panel) {
    panel.show();
    panel.raise();
    panel.widget()->setFocus();
}

/// Each panel and editor is a key away.
void VentanaLenguaje::ponMenuVer() {
    int numero = 1;
    const auto teclas = [&numero] {
        constexpr int cifras = 9;
        const QString con = numero > cifras ? QStringLiteral("Ctrl+Alt+%1") : QStringLiteral("Ctrl+%1");
        return QKeySequence(con.arg((numero++ - 1) % cifras + 1));
    };
    for (EditorTexto* const editor : {&especificacion_, &texto_})
        accion(ver_, QStringLiteral("Ir a: %1").arg(editor->nombre()), teclas(),
               [editor] { editor->norvik().setFocus(); });
    for (Panel* const panel : paneles())
        accion(ver_, QStringLiteral("Ir a: %1").arg(panel->titulo()), teclas(),
               [this, panel] { abrePanel(*panel); });
    ver_.addSeparator();
    for (Panel* const panel : paneles()) ver_.addAction(panel->toggleViewAction());
    ver_.addSeparator();
    accion(ver_, QStringLiteral("&Colocar los paneles como al principio"), {}, [this] { colocaPaneles(); });
}

void VentanaLenguaje::conecta() {
    using namespace std::chrono_literals;
    atraso_.setSingleShot(true);
    atraso_.setInterval(400ms);
    porMostrar_.setSingleShot(true);
    connect(
        &porMostrar_, &QTimer::timeout, this,
        [this] {
            sinFallos([this] {
                if (mostrando()) muestra();
            });
        },
        Qt::QueuedConnection); // a timer's own turn may be that of what was posted before
    connect(&atraso_, &QTimer::timeout, this, [this] { sinFallos([this] { marca(); }); });
    conecta(especificacion_);
    conecta(texto_);
    for (Panel* const panel : paneles()) conecta(*panel);
    const auto cuenta = [this](const auto& cual) {
        sinFallos([&] {
            conflicto_.cuenta(cual);
            abrePanel(conflicto_);
        });
    };
    connect(&problemas_, &PanelProblemas::conflictoPedido, this, cuenta);
    connect(&tabla_, &PanelTabla::conflictoPedido, this, cuenta);
    connect(&nombres_, &AyudaDeNombres::aviso, this, &VentanaLenguaje::avisa);
    connect(&seguimiento_, &Seguimiento::estudiado, this,
            [this](const std::shared_ptr<const Estudio>& estudio) { sinFallos([&] { recibe(estudio); }); });
    connect(&recientes_, &Recientes::elegido, this, &VentanaLenguaje::abre);
    connect(&seguimiento_, &Seguimiento::fallo, this, [this](const QString& motivo) {
        sinFallos([&] {
            marca();
            avisa(motivo);
        });
    });
}

void VentanaLenguaje::conecta(Panel& panel) {
    connect(&panel, &Panel::elegido, this,
            [this, &panel](const Eleccion& eleccion) { sinFallos([&] { elige(eleccion, &panel); }); });
    connect(&panel, &Panel::ido, this, [this, &panel](const Eleccion& eleccion) {
        sinFallos([&] {
            elige(eleccion, &panel);
            editorDe(std::holds_alternative<EnTexto>(eleccion) ? Lado::Texto : Lado::Especificacion)
                .norvik()
                .setFocus();
        });
    });
    connect(&panel, &Panel::arreglado, this, [this, &panel](Lado lado, const Arreglo& arreglo) {
        ejecuta([&] { arregla(panel, lado, arreglo); });
    });
    connect(&panel, &Panel::fallo, this, &VentanaLenguaje::avisa);
}

void VentanaLenguaje::conecta(EditorTexto& editor) {
    connect(&editor, &EditorTexto::otroTexto, this, [this] { sinFallos([this] { cambio(); }); });
    connect(&editor, &EditorTexto::otroLugar, this, [this] { sinFallos([this] { sigueCursor(); }); });
    connect(&editor, &EditorTexto::fallo, this, &VentanaLenguaje::avisa);
    connect(&editor.documento(), &DocumentoTexto::cambiado, this, [this] { actualizaTitulo(); });
    connect(qApp, &QApplication::focusChanged, &editor, [this, &editor](QWidget* /*antes*/, QWidget* ahora) {
        if (ahora == nullptr || !editor.isAncestorOf(ahora)) return;
        activo_ = &editor;
        sinFallos([this] {
            actualizaFormato();
            actualizaLugar();
        });
    });
}

// ---- the documents

bool VentanaLenguaje::empieza(std::u16string_view especificacion, std::u16string_view texto) {
    bool hecho = false;
    ejecuta([&] { hecho = sustituye(especificacion, texto); });
    return hecho;
}

bool VentanaLenguaje::sustituye(std::u16string_view especificacion, std::u16string_view texto) {
    if (!puedePerder()) return false;
    especificacion_.documento().empieza(especificacion);
    texto_.documento().empieza(texto);
    CajaTextoQt& caja = especificacion_.norvik().caja();
    if (caja.texto() == plantilla) // the language is written behind it
        caja.atiende([&] { caja.selecciona(static_cast<std::int32_t>(plantilla.size()), 0); });
    return true;
}

void VentanaLenguaje::abre(const QString& especificacion) {
    ejecuta([&] { abreEspecificacion(especificacion); });
}

void VentanaLenguaje::abreTexto(const QString& fichero) {
    ejecuta([&] { abreTextoDe(fichero); });
}

void VentanaLenguaje::abreEspecificacion(const QString& fichero) {
    if (!puedePerder(especificacion_)) return;
    especificacion_.documento().abre(fichero);
    recientes_.anota(fichero);
}

void VentanaLenguaje::abreTextoDe(const QString& fichero) {
    if (puedePerder(texto_)) texto_.documento().abre(fichero);
}

void VentanaLenguaje::abreSoltado(const QString& fichero) {
    switch (claseDe(fichero)) {
    case ClaseFichero::Especificacion:
        return abreEspecificacion(fichero);
    case ClaseFichero::Texto:
        return abreTextoDe(fichero);
    case ClaseFichero::Formulario:
    case ClaseFichero::Modulo:
        emit pideAbrir(fichero);
    }
}

void VentanaLenguaje::trae() {
    show();
    raise();
    activateWindow();
    especificacion_.norvik().setFocus();
}

bool VentanaLenguaje::puedePerder() {
    return puedePerder(especificacion_) && puedePerder(texto_);
}

bool VentanaLenguaje::puedePerder(EditorTexto& editor) {
    return isHidden() || archivador_.puedePerder(editor.documento(), como(editor));
}

ComoSeGuarda VentanaLenguaje::como(const EditorTexto& editor) const {
    const QString titulo = QStringLiteral("Guardar: ") + editor.nombre();
    if (&editor == &texto_) return {QStringLiteral("del texto "), titulo, todos, {}, {}};
    return {QStringLiteral("de la especificación "), titulo, filtroEspecificacion, extensionEspecificacion,
            QStringLiteral("lenguaje.") + extensionEspecificacion};
}

bool VentanaLenguaje::anota(const EditorTexto& editor, Archivado archivado) {
    if (archivado == Archivado::No) return false;
    if (&editor == &especificacion_) recientes_.anota(editor.documento().fichero());
    const QString palabra =
        archivado == Archivado::Si ? QStringLiteral("Guardado") : QStringLiteral("Recargado del disco");
    barra_.avisa(palabra + QStringLiteral(" «%1»").arg(editor.documento().titulo()), 4000);
    return true;
}

void VentanaLenguaje::guardaTodo() {
    for (EditorTexto* const editor : {&especificacion_, &texto_})
        if (editor->documento().modificado() &&
            !anota(*editor, archivador_.guarda(editor->documento(), como(*editor))))
            return;
}

void VentanaLenguaje::usa() {
    if (!uso_ || !uso_(especificacion_.texto()))
        return avisa(QStringLiteral("El formulario no ha tomado la especificación"));
    especificacion_.documento().anotaEntregado();
    avisa(QStringLiteral("El editor activo del formulario tiene la especificación"));
}

bool VentanaLenguaje::hayCambios() const {
    return !isHidden() && (especificacion_.documento().modificado() || texto_.documento().modificado());
}

std::optional<std::array<EstadoDocumento, 2>> VentanaLenguaje::copia() const {
    if (!hayCambios()) return std::nullopt;
    return std::array{especificacion_.documento().estado(), texto_.documento().estado()};
}

void VentanaLenguaje::repone(const std::array<EstadoDocumento, 2>& documentos) {
    especificacion_.documento().repone(documentos.front());
    texto_.documento().repone(documentos.back());
}

void VentanaLenguaje::avisa(const QString& texto) {
    barra_.avisa(texto, 8000);
}

void VentanaLenguaje::actualizaTitulo() {
    setWindowModified(especificacion_.documento().modificado() || texto_.documento().modificado());
    setWindowTitle(especificacion_.documento().titulo() + QStringLiteral("[*] — Lenguaje — Norvik"));
    actualizaFormato();
    emit cambiado();
}

void VentanaLenguaje::actualizaFormato() {
    formato_.setText(activo_->documento().nombreDelFormato());
}

/// A panel that is worked in leaves it as it is: the caret is still there.
void VentanaLenguaje::actualizaLugar() {
    const CajaTextoQt& caja = activo_->norvik().caja();
    lugar_.setText(QStringLiteral("%1: línea %2, columna %3")
                       .arg(activo_->nombre())
                       .arg(caja.lineaDeCaracter(caja.inicioSeleccion()) + 1)
                       .arg(activo_->norvik().control().ColumnaActual()));
}

void VentanaLenguaje::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    ejecuta([&] {
        if (!puedePerder()) return;
        evento->accept();
        for (EditorTexto* const editor : {&especificacion_, &texto_})
            if (editor->documento().modificado()) editor->documento().vacia(); // it was given up
        emit cambiado();
        ajustes_.setValue(claveGeometria, saveGeometry());
        ajustes_.setValue(claveEstado, saveState());
        ajustes_.setValue(claveEditores, editores_.saveState());
    });
}

void VentanaLenguaje::dragEnterEvent(QDragEnterEvent* evento) {
    if (!ficherosDe(*evento->mimeData()).isEmpty()) evento->acceptProposedAction();
}

void VentanaLenguaje::dropEvent(QDropEvent* evento) {
    evento->acceptProposedAction();
    for (const QString& fichero : ficherosDe(*evento->mimeData())) ejecuta([&] { abreSoltado(fichero); });
}

// ---- what is known of them

void VentanaLenguaje::cambio() {
    seguimiento_.cambio();
    actualizaTitulo();
    if (!atraso_.isActive()) atraso_.start();
}

void VentanaLenguaje::recibe(const std::shared_ptr<const Estudio>& estudio) {
    acabaDeMostrar();
    const bool otroLenguaje = !ultimo_ || ultimo_->deLenguaje != estudio->deLenguaje;
    ultimo_ = estudio;
    historias_.pon(estudio->deLenguaje);
    for (Panel* const panel : paneles())
        if (panel->muestraLoQueNoCompila()) panel->ponEstudio(estudio);
    if (otroLenguaje) especificacion_.norvik().ponDiagnosticos(estudio->deLenguaje->diagnosticos);
    if (!estudio->deLenguaje->lenguaje) return marca();
    porDar_ = paneles().size();
    muestra();
}

/// The last one, which compiles: in the text, then in the panels, with what the caret is at. Those that take
/// long come in turns of the event loop.
void VentanaLenguaje::muestra() {
    QElapsedTimer reloj;
    reloj.start();
    const auto elResto = qScopeGuard([this] {
        if (mostrando()) porMostrar_.start();
    });
    if (mostrado_ != ultimo_) muestraEnTexto();
    const QScopedValueRollback<bool> eligiendo(eligiendo_, true);
    const Eleccion eleccion = enCursor();
    const auto nodo = nodoEn(*mostrado_, eleccion);
    for (const auto suyos = paneles(); mostrando();) {
        Panel& panel = *suyos[suyos.size() - porDar_];
        if (panel.isVisible() && std::chrono::nanoseconds(reloj.nsecsElapsed()) > turno) return;
        --porDar_; // where one fails the others have theirs all the same
        if (!panel.muestraLoQueNoCompila()) panel.ponEstudio(mostrado_);
        if (seguimiento_.alDia()) lleva(eleccion, nodo, panel);
    }
    if (anterior_) olvidaAparte(std::move(anterior_));
    marca();
}

void VentanaLenguaje::muestraEnTexto() {
    const bool otroLenguaje = !mostrado_ || mostrado_->deLenguaje != ultimo_->deLenguaje;
    anterior_ = std::exchange(mostrado_, ultimo_);
    if (otroLenguaje) carga(*mostrado_->deLenguaje->lenguaje, texto_.norvik());
    texto_.norvik().ponDiagnosticos(mostrado_->analisis.diagnosticos);
}

/// For who needs them all to show the same.
void VentanaLenguaje::acabaDeMostrar() {
    while (mostrando()) {
        porMostrar_.stop();
        muestra();
    }
}

/// What is older than the texts says so.
void VentanaLenguaje::marca() {
    const bool alDia = seguimiento_.alDia();
    const bool compila = ultimo_ && ultimo_->deLenguaje->lenguaje;
    for (Panel* const panel : paneles())
        panel->ponAtrasado(estudioDe(*panel) && (!alDia || (!compila && !panel->muestraLoQueNoCompila())));
    if (seguimiento_.fallido())
        estado_.setText(QStringLiteral("No se ha podido estudiar lo escrito: se enseña lo anterior"));
    else if (!alDia)
        estado_.setText(QStringLiteral("Estudiando lo escrito…"));
    else if (compila)
        estado_.setText(QStringLiteral("Al día"));
    else if (mostrado_)
        estado_.setText(QStringLiteral("La especificación no compila: se enseña la última que compiló"));
    else
        estado_.setText(QStringLiteral("La especificación no compila"));
}

/// The panels show what the caret is at.
void VentanaLenguaje::sigueCursor() {
    actualizaLugar();
    if (eligiendo_ || mostrando() || !mostrado_ || mostrado_ != ultimo_ || !seguimiento_.alDia()) return;
    const QScopedValueRollback<bool> eligiendo(eligiendo_, true);
    reparte(enCursor(), nullptr);
}

Eleccion VentanaLenguaje::enCursor() {
    const Rango rango = activo_->seleccion();
    return activo_ == &texto_ ? Eleccion(EnTexto{rango}) : Eleccion(EnEspecificacion{rango});
}

void VentanaLenguaje::elige(const Eleccion& eleccion, const Panel* desde) {
    if (eligiendo_) return;
    acabaDeMostrar();
    const auto& estudio = estudioDe(*desde);
    if (!estudio) return;
    const QScopedValueRollback<bool> eligiendo(eligiendo_, true);
    reparte(eleccion, desde);
    muestraEnEditores(*estudio, eleccion);
}

/// Among those that show the same version.
void VentanaLenguaje::reparte(const Eleccion& eleccion, const Panel* desde) {
    const auto& estudio = desde != nullptr ? estudioDe(*desde) : mostrado_;
    const auto nodo = nodoEn(*estudio, eleccion);
    for (Panel* const panel : paneles())
        if (panel != desde && estudioDe(*panel) == estudio) lleva(eleccion, nodo, *panel);
}

/// Places are those of the study: in another text they mean nothing.
void VentanaLenguaje::muestraEnEditores(const Estudio& estudio, const Eleccion& eleccion) {
    const auto enEspecificacion = lugarEnEspecificacion(estudio, eleccion);
    if (enEspecificacion && estudio.deLenguaje->especificacion == especificacion_.norvik().caja().texto())
        especificacion_.muestra(*enEspecificacion);
    const auto enTexto = lugarEnTexto(estudio, eleccion);
    if (enTexto && estudio.texto == texto_.norvik().caja().texto()) texto_.muestra(*enTexto);
}

/// Where something is wrong the mouse is told that; by key the name is asked for.
QString VentanaLenguaje::palabrasDe(const NombreEscrito& nombre, AyudaDeNombres::Pregunta pregunta) const {
    if (!mostrado_ || (pregunta == AyudaDeNombres::Pregunta::ConRaton && hayProblemaEn(nombre))) return {};
    return palabrasDeNombre(*mostrado_->deLenguaje, nombre.nombre);
}

bool VentanaLenguaje::hayProblemaEn(const NombreEscrito& nombre) const {
    if (!ultimo_) return false;
    return std::ranges::any_of(ultimo_->deLenguaje->diagnosticos, [&](const Diagnostico& d) {
        return d.rango.inicio.desplazamiento <= nombre.lugar.inicio.desplazamiento &&
               nombre.lugar.fin.desplazamiento <= d.rango.fin.desplazamiento;
    });
}

/// A repair is one of the text that was studied, by the study that its panel shows.
void VentanaLenguaje::arregla(const Panel& desde, Lado lado, const Arreglo& arreglo) {
    acabaDeMostrar();
    EditorTexto& editor = editorDe(lado);
    const auto& estudio = desde.muestraLoQueNoCompila() ? ultimo_ : mostrado_;
    if (!estudio) return;
    const auto& estudiado =
        lado == Lado::Especificacion ? estudio->deLenguaje->especificacion : estudio->texto;
    if (estudiado != editor.norvik().caja().texto())
        return avisa(QStringLiteral("El texto ya es otro: el arreglo es de uno anterior, y no se hace"));
    aplica(arreglo, editor.norvik());
    editor.norvik().setFocus();
    avisa(QStringLiteral("Arreglo hecho: ") + aQString(arreglo.titulo));
}

void VentanaLenguaje::arreglaLoDelCursor() {
    switch (problemas_.arregla(activo_ == &texto_ ? Lado::Texto : Lado::Especificacion,
                               activo_->seleccion().inicio.desplazamiento)) {
    case PanelProblemas::Peticion::NoHay:
        return avisa(QStringLiteral("Ningún problema de la lista tiene arreglo"));
    case PanelProblemas::Peticion::Hecha:
        return;
    case PanelProblemas::Peticion::PorElegir:
        return abrePanel(problemas_);
    }
}

} // namespace norvik::taller
