// SPDX-License-Identifier: MIT

#include "panelAnalisis.hpp"

#include "correspondencias.hpp"
#include "dibujoAnalisis.hpp"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <deque>
#include <utility>
#include <vector>

namespace norvik::taller {

PanelAnalisis::PanelAnalisis(Dialogos& dialogos, QWidget* padre)
    : Panel(QStringLiteral("arbol"), QStringLiteral("Árbol"), padre),
      enUnaFila_(QStringLiteral("&Cadenas de reglas en una fila")),
      dibujo_(QStringLiteral("Dibujo del árbol"), QStringLiteral("El esquema dice lo mismo")),
      botones_(*this, dialogos, {[this] { return lamina(); }, QStringLiteral("arbol"), &dibujo_}) {
    compone();
    connect(&enUnaFila_, &QCheckBox::toggled, this, [this] { protege([this] { muestra(); }); });
    const auto elegida = [this](const QModelIndex& indice) { protege([&] { elige(indice); }); };
    connect(&vista_, &QTreeView::clicked, this, elegida);
    connect(&vista_, &QTreeView::activated, this, elegida);
    connect(vista_.selectionModel(), &QItemSelectionModel::currentChanged, this, elegida);
    connect(&dibujo_, &VistaDibujo::elegido, this, [this](int nodo) {
        protege([&] { vista_.setCurrentIndex(alAlcance(modelo_.indiceDe(static_cast<std::size_t>(nodo)))); });
    });
    connect(&maneras_, &QTabWidget::currentChanged, this, [this](int manera) {
        protege([&] {
            centro_.setFocusProxy(manera == 0 ? static_cast<QWidget*>(&vista_) : &dibujo_);
            dibuja();
        });
    });
    connect(&botones_, &BotonesDibujo::fallo, this, &Panel::fallo);
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool seVe) {
        protege([&] {
            if (seVe && pendiente_) selecciona(*std::exchange(pendiente_, std::nullopt));
        });
    });
}

void PanelAnalisis::compone() {
    enUnaFila_.setChecked(true);
    enUnaFila_.setToolTip(
        QStringLiteral("E › T › F ocupa una sola fila, cuando cada una viene de una regla de un "
                       "símbolo"));
    camino_.setTextFormat(Qt::PlainText);
    camino_.setWordWrap(true);
    camino_.setAccessibleName(QStringLiteral("Camino desde la raíz"));
    camino_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    vista_.setAccessibleName(QStringLiteral("Árbol sintáctico del texto"));
    vista_.setUniformRowHeights(true);
    vista_.setAlternatingRowColors(true);
    vista_.setModel(&modelo_);
    vista_.setIndentation(fontMetrics().horizontalAdvance(u'x') * 2);
    vista_.header()->setSectionResizeMode(ModeloAnalisis::Simbolo, QHeaderView::ResizeToContents);
    vista_.header()->setResizeContentsPrecision(0); // the rows in view count
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.addWidget(&enUnaFila_);
    ocultos_.setTextFormat(Qt::PlainText);
    ocultos_.setWordWrap(true);
    columnaDibujada_.setContentsMargins(0, 0, 0, 0);
    columnaDibujada_.addWidget(&botones_, 0, Qt::AlignLeft);
    columnaDibujada_.addWidget(&ocultos_);
    columnaDibujada_.addWidget(&dibujo_, 1);
    dibujada_.setLayout(&columnaDibujada_);
    dibujada_.setFocusProxy(&dibujo_);
    maneras_.addTab(&vista_, QStringLiteral("Esquema"));
    maneras_.addTab(&dibujada_, QStringLiteral("Dibujo"));
    maneras_.setDocumentMode(true);
    columna_.addWidget(&maneras_, 1);
    columna_.addWidget(&camino_);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&vista_);
    setWidget(&centro_);
}

void PanelAnalisis::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    estudio_ = std::move(estudio);
    muestra();
}

void PanelAnalisis::muestra() {
    const QScopedValueRollback<bool> callado(callado_, true);
    modelo_.muestra(estudio_, enUnaFila_.isChecked() ? Cadenas::EnUnaFila : Cadenas::Enteras);
    abre();
    botones_.activa(modelo_.rowCount() > 0);
    dibuja();
    camino_.setText(modelo_.rowCount() > 0 ? QString() : QStringLiteral("El texto no tiene árbol."));
}

/// The upper rows, as many as a person looks over.
void PanelAnalisis::abre() {
    constexpr int filas = 200;
    std::deque<QModelIndex> pendientes{modelo_.index(0, 0)};
    for (int vistas = 0; vistas < filas && !pendientes.empty(); ++vistas) {
        const QModelIndex indice = pendientes.front();
        pendientes.pop_front();
        vista_.expand(indice);
        for (int i = 0; indice.isValid() && i < modelo_.rowCount(indice); ++i)
            pendientes.push_back(modelo_.index(i, 0, indice));
    }
}

void PanelAnalisis::selecciona(const Eleccion& eleccion) {
    pendiente_.reset();
    if (!estudio_) return;
    if (!isVisible()) return static_cast<void>(pendiente_ = eleccion);
    const auto nodo = nodoDe(*estudio_, eleccion);
    if (!nodo) return;
    const QScopedValueRollback<bool> callado(callado_, true);
    const QModelIndex indice = modelo_.indiceDe(*nodo);
    vista_.setCurrentIndex(alAlcance(indice));
    sigue(indice);
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
        pinta(arbol, {font(), colores, realzado_, {}}, escena);
    });
    realza(vista_.currentIndex());
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
                pinta(arbol, {letra, colores, -1, {}}, escena);
            }};
}

} // namespace norvik::taller
