// SPDX-License-Identifier: MIT

#include "panelAnalisis.hpp"

#include "correspondencias.hpp"
#include "dibujoAnalisis.hpp"

#include "norvik/platform/qt/avisoALectores.hpp"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

namespace norvik::taller {

namespace {

QString cuenta(std::size_t cuantos, std::int16_t regla) {
    if (cuantos == 0) return QStringLiteral("La regla %1 no está en el árbol. ").arg(regla);
    if (cuantos == 1) return QStringLiteral("La regla %1 está en 1 nodo, subrayado: ").arg(regla);
    return QStringLiteral("La regla %1 está en %2 nodos, subrayados: ").arg(regla).arg(cuantos);
}

} // namespace

PanelAnalisis::PanelAnalisis(Dialogos& dialogos, QWidget* padre)
    : Panel(QStringLiteral("arbol"), QStringLiteral("Árbol"), padre),
      enUnaFila_(QStringLiteral("&Cadenas de reglas en una fila")),
      dibujo_(QStringLiteral("Dibujo del árbol"), QStringLiteral("El esquema dice lo mismo")),
      botones_(*this, dialogos, {[this] { return lamina(); }, QStringLiteral("arbol"), &dibujo_, {}, true}) {
    compone();
    conecta();
}

void PanelAnalisis::conecta() {
    connect(&enUnaFila_, &QCheckBox::toggled, this, [this] { protege([this] { cambiaCadenas(); }); });
    const auto elegida = [this](const QModelIndex& indice) { protege([&] { elige(indice); }); };
    connect(&vista_, &QTreeView::clicked, this, elegida);
    connect(&vista_, &QTreeView::activated, this, elegida);
    connect(vista_.selectionModel(), &QItemSelectionModel::currentChanged, this, elegida);
    connect(&vista_, &QTreeView::expanded, this,
            [this](const QModelIndex& fila) { protege([&] { mueve(fila, abiertas_, cerradas_); }); });
    connect(&vista_, &QTreeView::collapsed, this,
            [this](const QModelIndex& fila) { protege([&] { mueve(fila, cerradas_, abiertas_); }); });
    connect(&dibujo_, &VistaDibujo::elegido, this,
            [this](int nodo) { protege([&] { ve(modelo_.indiceDe(static_cast<std::size_t>(nodo))); }); });
    connect(&maneras_, &QTabWidget::currentChanged, this, [this](int manera) {
        protege([&] {
            centro_.setFocusProxy(manera == 0 ? static_cast<QWidget*>(&vista_) : &dibujo_);
            dibuja();
        });
    });
    connect(&busca_, &QLineEdit::returnPressed, this, [this] { protege([this] { buscaSiguiente(); }); });
    connect(&busca_, &QLineEdit::textChanged, &hallado_, &QLabel::hide);
    connect(&irABuscar_, &QAction::triggered, this, [this] {
        protege([this] {
            busca_.setFocus(Qt::ShortcutFocusReason);
            busca_.selectAll();
        });
    });
}

void PanelAnalisis::alVerse() {
    if (seVe() && pendiente_) selecciona(*std::exchange(pendiente_, std::nullopt));
}

void PanelAnalisis::alCambiarLetra() {
    vista_.setIndentation(fontMetrics().horizontalAdvance(u'x') * 2);
    camino_.setMinimumHeight(2 * fontMetrics().lineSpacing()); // with the rule's and without
}

void PanelAnalisis::compone() {
    enUnaFila_.setChecked(true);
    enUnaFila_.setToolTip(
        QStringLiteral("E › T › F ocupa una sola fila, cuando cada una viene de una regla de un "
                       "símbolo"));
    camino_.setText(QStringLiteral("Todavía no hay ningún árbol."));
    camino_.setAccessibleName(QStringLiteral("Camino desde la raíz"));
    camino_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.addWidget(&enUnaFila_);
    componeBusqueda();
    componeEsquema();
    columnaDibujada_.setContentsMargins(0, 0, 0, 0);
    columnaDibujada_.addWidget(&botones_, 0, Qt::AlignLeft);
    columnaDibujada_.addWidget(&ocultos_);
    columnaDibujada_.addWidget(&dibujo_, 1);
    dibujada_.setLayout(&columnaDibujada_);
    dibujada_.setFocusProxy(&dibujo_);
    maneras_.addTab(&vista_, QStringLiteral("Esquema"));
    maneras_.addTab(&dibujada_, QStringLiteral("Dibujo"));
    maneras_.setDocumentMode(true);
    const int pocasFilas = 2 * fontMetrics().lineSpacing(); // in a low window the texts need the room
    for (QWidget* const manera : std::initializer_list<QWidget*>{&vista_, &dibujo_})
        manera->setMinimumHeight(pocasFilas);
    columna_.addWidget(&maneras_, 1);
    columna_.addWidget(&camino_);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&vista_);
    ponDentro(centro_);
}

void PanelAnalisis::componeBusqueda() {
    busca_.setPlaceholderText(QStringLiteral("Buscar un nodo (Intro: el siguiente)"));
    busca_.setAccessibleName(QStringLiteral("Buscar un nodo por su símbolo o su texto"));
    busca_.setClearButtonEnabled(true);
    hazAviso(hallado_);
    hallado_.setAccessibleName(QStringLiteral("Resultado de la búsqueda"));
    irABuscar_.setText(QStringLiteral("Buscar en el árbol"));
    irABuscar_.setShortcut(QKeySequence::Find);
    irABuscar_.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(&irABuscar_);
    filaBusqueda_.addWidget(&busca_, 1);
    columna_.addLayout(&filaBusqueda_);
    columna_.addWidget(&hallado_);
    hallado_.hide();
}

void PanelAnalisis::componeEsquema() {
    vista_.setAccessibleName(QStringLiteral("Árbol sintáctico del texto"));
    vista_.setUniformRowHeights(true);
    vista_.setAlternatingRowColors(true);
    vista_.setModel(&modelo_);
    vista_.header()->setSectionResizeMode(ModeloAnalisis::Simbolo, QHeaderView::ResizeToContents);
    vista_.header()->setResizeContentsPrecision(0); // the rows in view count
    alCambiarLetra();
}

void PanelAnalisis::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    if (estudio_ && estudio_->deLenguaje != estudio->deLenguaje) modelo_.resalta(0); // of other rules
    estudio_ = std::move(estudio);
    muestra();
}

/// It stays where the person looks, although the rows are new ones.
void PanelAnalisis::muestra() {
    const QScopedValueRollback<bool> callado(callado_, true);
    constexpr std::size_t cerca = 60; // levels: to open more takes longer than a key may
    const Lugar elegida = ModeloAnalisis::lugarDe(filaElegida());
    const int alto = vista_.verticalScrollBar()->value();
    const int lado = vista_.horizontalScrollBar()->value();
    modelo_.muestra(estudio_, enUnaFila_.isChecked() ? Cadenas::EnUnaFila : Cadenas::Enteras);
    nodo_.reset();
    abre();
    const QModelIndex fila = elegida.size() < cerca ? modelo_.filaEn(elegida) : QModelIndex();
    if (fila.isValid() && fila == aLaVista(fila))
        vista_.setCurrentIndex(fila);
    else // coming here chooses nothing
        vista_.selectionModel()->setCurrentIndex(modelo_.index(0, 0), QItemSelectionModel::NoUpdate);
    if (vista_.isVisible()) vista_.doItemsLayout(); // until then there is nothing to scroll
    vista_.verticalScrollBar()->setValue(alto);
    vista_.horizontalScrollBar()->setValue(lado);
    botones_.activa(modelo_.rowCount() > 0);
    dibuja();
    camino_.setText(modelo_.rowCount() > 0 ? modelo_.camino(filaElegida())
                                           : QStringLiteral("El texto no tiene árbol."));
}

/// The rows are other ones, the nodes are not.
void PanelAnalisis::cambiaCadenas() {
    const auto nodo = nodo_;
    abiertas_.clear();
    cerradas_.clear();
    muestra();
    if (!nodo) return;
    const QScopedValueRollback<bool> callado(callado_, true);
    const QModelIndex indice = modelo_.indiceDe(*nodo);
    vista_.setCurrentIndex(alAlcance(indice));
    sigue(indice);
}

/// The current one may be just where keys begin.
QModelIndex PanelAnalisis::filaElegida() const {
    const QModelIndex actual = vista_.currentIndex();
    return vista_.selectionModel()->isSelected(actual) ? actual : QModelIndex();
}

// ---- what is open

/// The upper rows, as many as a person looks over, and those that were opened.
void PanelAnalisis::abre() {
    constexpr int filas = 200;
    std::deque<QModelIndex> pendientes{modelo_.index(0, 0)};
    for (int vistas = 0; vistas < filas && !pendientes.empty(); ++vistas) {
        const QModelIndex indice = pendientes.front();
        pendientes.pop_front();
        if (!indice.isValid() || esDe(cerradas_, indice)) continue;
        vista_.expand(indice);
        for (int i = 0; i < modelo_.rowCount(indice); ++i) pendientes.push_back(modelo_.index(i, 0, indice));
    }
    for (const auto& [lugar, simbolo] : abiertas_)
        if (const QModelIndex fila = modelo_.filaEn(lugar); fila.data().toString() == simbolo)
            vista_.expand(fila);
}

/// A person has opened or closed a row.
void PanelAnalisis::mueve(const QModelIndex& indice, Movidas& alli, Movidas& otras) const {
    if (callado_) return;
    Lugar lugar = ModeloAnalisis::lugarDe(indice);
    otras.erase(lugar);
    alli.insert_or_assign(std::move(lugar), indice.data().toString());
}

bool PanelAnalisis::esDe(const Movidas& movidas, const QModelIndex& indice) const {
    if (movidas.empty()) return false;
    const auto suya = movidas.find(ModeloAnalisis::lugarDe(indice));
    return suya != movidas.end() && suya->second == indice.data().toString();
}

/// A person wants to see a row: those above it are closed no more.
void PanelAnalisis::descubre(const QModelIndex& indice) {
    if (cerradas_.empty()) return;
    Lugar lugar = ModeloAnalisis::lugarDe(indice);
    while (!lugar.empty()) {
        lugar.pop_back();
        cerradas_.erase(lugar);
    }
}

/// A row that is within reach, or the one above it that a person has closed.
QModelIndex PanelAnalisis::aLaVista(const QModelIndex& indice) const {
    const QModelIndex cercana = alAlcance(indice);
    if (cerradas_.empty()) return cercana;
    QModelIndex queda = cercana;
    for (QModelIndex i = cercana.parent(); i.isValid(); i = i.parent())
        if (esDe(cerradas_, i)) queda = i;
    return queda;
}

// ---- what is chosen

void PanelAnalisis::selecciona(const Eleccion& eleccion) {
    if (std::holds_alternative<EnTexto>(eleccion)) return; // the node there comes, too
    pendiente_.reset();
    if (!estudio_) return;
    if (!isVisible()) return static_cast<void>(pendiente_ = eleccion);
    const QScopedValueRollback<bool> callado(callado_, true);
    const auto regla = reglaDe(*estudio_, eleccion);
    modelo_.resalta(regla.value_or(0));
    vista_.viewport()->update();
    if (const auto nodo = nodoDe(*estudio_, eleccion)) {
        const QModelIndex indice = modelo_.indiceDe(*nodo);
        vista_.setCurrentIndex(aLaVista(indice));
        sigue(indice);
    } else if (regla) {
        seleccionaRegla(*regla);
    } else {
        realza(filaElegida());
    }
}

/// The nodes that it has made; one of them is chosen.
void PanelAnalisis::seleccionaRegla(std::int16_t regla) {
    const NodosDeRegla suyos = nodosDe(*estudio_, regla);
    const bool esSuyo = nodo_ && modelo_.resaltado(*nodo_);
    if (suyos.primero && !esSuyo) {
        const QModelIndex indice = modelo_.indiceDe(*suyos.primero);
        vista_.setCurrentIndex(aLaVista(indice));
        sigue(indice);
    } else {
        realza(filaElegida());
    }
    if (estudio_->arbol().esVacio()) return;
    const QString camino = nodo_ ? modelo_.camino(modelo_.indiceDe(*nodo_)) : QString();
    camino_.setText(cuenta(suyos.cuantos, regla) + camino);
}

/// From the node that is told of.
void PanelAnalisis::buscaSiguiente() {
    if (!estudio_ || busca_.text().isEmpty()) return;
    const std::size_t cuantos = modelo_.rowCount() > 0 ? estudio_->arbol().numNodos() : 1;
    const std::size_t desde = nodo_.value_or(cuantos - 1);
    const auto nodo = modelo_.busca(busca_.text(), desde);
    QString palabras;
    if (!nodo)
        palabras = QStringLiteral("Ningún nodo se llama así ni tiene ese texto.");
    else if (nodo_ && *nodo == desde)
        palabras = QStringLiteral("No hay otro.");
    else if (nodo_ && *nodo < desde)
        palabras = QStringLiteral("Se ha vuelto a empezar por la raíz.");
    hallado_.setText(palabras);
    hallado_.setVisible(!palabras.isEmpty());
    if (!palabras.isEmpty()) avisaALectores(hallado_, palabras);
    if (nodo) ve(modelo_.indiceDe(*nodo));
}

/// A person wants to see a row.
void PanelAnalisis::ve(const QModelIndex& indice) {
    {
        const QScopedValueRollback<bool> callado(callado_, true);
        descubre(indice);
        vista_.setCurrentIndex(alAlcance(indice));
    }
    elige(indice);
}

/// A row, or the last one above it that a view opens in no time: of a list as long as its text the rows are
/// as deep, and each that is opened costs as much as there are.
QModelIndex PanelAnalisis::alAlcance(const QModelIndex& indice) const {
    constexpr std::size_t niveles = 300;
    std::vector<QModelIndex> camino;
    for (QModelIndex i = indice; i.isValid(); i = i.parent()) camino.push_back(i);
    return camino.size() <= niveles ? indice : camino[camino.size() - niveles];
}

void PanelAnalisis::elige(const QModelIndex& indice) {
    if (callado_ || !indice.isValid()) return;
    sigue(indice);
    emit elegido(DeNodo{modelo_.nodoDe(indice)});
}

void PanelAnalisis::sigue(const QModelIndex& indice) {
    nodo_ = modelo_.nodoDe(indice);
    camino_.setText(modelo_.camino(indice));
    realza(indice);
}

// ---- drawn

/// Once it is wanted.
void PanelAnalisis::dibuja() {
    if (!seDibuja()) return;
    constexpr std::size_t maximo = 400; // nodes, for a person to look over
    const DibujoAnalisis suyo = dibujoDe(modelo_, maximo);
    ocultos_.setVisible(suyo.ocultos > 0);
    ocultos_.setText(
        QStringLiteral("Es un árbol grande: se dibuja lo de arriba. Lo que cuelga de los nodos con "
                       "«…» está en el esquema."));
    dibujo_.muestra([this, arbol = suyo.arbol](const QPalette& colores, QGraphicsScene& escena) {
        pinta(arbol,
              {dibujo_.font(),
               colores,
               realzado_,
               {},
               [this](int nodo) { return modelo_.resaltado(static_cast<std::size_t>(nodo)); }},
              escena);
    });
    realza(filaElegida());
}

/// The node, or the nearest one above it that is drawn.
void PanelAnalisis::realza(QModelIndex indice) {
    if (!seDibuja()) return;
    while (indice.isValid() && !dibujo_.tiene(static_cast<int>(modelo_.nodoDe(indice))))
        indice = indice.parent();
    realzado_ = indice.isValid() ? static_cast<int>(modelo_.nodoDe(indice)) : -1;
    dibujo_.repinta();
    dibujo_.acerca(realzado_);
}

Lamina PanelAnalisis::lamina() const {
    constexpr std::size_t maximo = 5'000; // nodes of a picture
    return {titulo(), [arbol = dibujoDe(modelo_, maximo).arbol, letra = font()](const QPalette& colores,
                                                                                QGraphicsScene& escena) {
                pinta(arbol, {letra, colores, -1, {}, {}}, escena);
            }};
}

} // namespace norvik::taller
