// SPDX-License-Identifier: MIT

#include "panelTabla.hpp"

#include "correspondencias.hpp"
#include "dibujoTabla.hpp"
#include "palabrasLR.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace norvik::taller {

namespace {

/// Most cells of a table are empty, and a style takes as long for one of them as for a full one.
class PintorDeCeldas final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
               const QModelIndex& celda) const override {
        const bool senalada =
            (opcion.state & (QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver)) != 0;
        if (senalada || !celda.data().toString().isEmpty()) QStyledItemDelegate::paint(pintor, opcion, celda);
    }
};

} // namespace

PanelTabla::PanelTabla(Dialogos& dialogos, QWidget* padre)
    : Panel(QStringLiteral("tabla"), QStringLiteral("Tabla"), padre),
      botones_(*this, dialogos,
               {[this] { return lamina(); }, QStringLiteral("tabla"), nullptr,
                [this] { return tablaEnTexto(modelo_); }}) {
    compone();
    connect(vista_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& celda) { protege([&] { elige(celda); }); });
    connect(&vista_, &QTableView::clicked, this,
            [this](const QModelIndex& celda) { protege([&] { elige(celda); }); });
    connect(&siguiente_, &QToolButton::clicked, this, [this] { protege([this] { vaAlSiguiente(); }); });
    const auto pide = [this] { protege([this] { pideConflicto(); }); };
    connect(&vista_, &QTableView::activated, this, pide);
    connect(&conflicto_, &QToolButton::clicked, this, pide);
}

void PanelTabla::compone() {
    vista_.setAccessibleName(QStringLiteral("Tabla del analizador: estados y símbolos"));
    vista_.setModel(&modelo_);
    vista_.setItemDelegate(&nuevo<PintorDeCeldas>(&vista_));
    vista_.setWordWrap(false);
    vista_.setTabKeyNavigation(false);
    vista_.setHorizontalScrollMode(QTableView::ScrollPerPixel);
    vista_.setSelectionMode(QTableView::SingleSelection);
    vista_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    vista_.verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    palabras_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    palabras_.setAccessibleName(QStringLiteral("Lo que hace la celda elegida"));
    fila_.addWidget(&botones_);
    conflicto_.setText(QStringLiteral("&Ver el conflicto"));
    for (QToolButton* const boton : {&conflicto_, &siguiente_}) {
        boton->setFocusPolicy(Qt::StrongFocus);
        fila_.addWidget(boton);
    }
    siguiente_.setText(QStringLiteral("Sin conflictos"));
    siguiente_.setEnabled(false);
    conflicto_.setEnabled(false);
    palabras_.setText(QStringLiteral("Todavía no hay ninguna tabla."));
    fila_.addStretch();
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.addLayout(&fila_);
    columna_.addWidget(&palabras_);
    columna_.addWidget(&vista_, 1);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&vista_);
    ponDentro(centro_);
}

void PanelTabla::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    const bool esElMismo = estudio_ && estudio_->deLenguaje == estudio->deLenguaje;
    estudio_ = std::move(estudio);
    if (esElMismo) return;
    const QScopedValueRollback<bool> callado(callado_, true);
    modelo_.muestra(estudio_->deLenguaje);
    deRegla_.clear();
    palabrasDeRegla_.clear();
    ajusta();
    vista_.setCurrentIndex(modelo_.index(0, 0)); // coming here chooses nothing
    const auto conflictos = modelo_.enConflicto().size();
    siguiente_.setText(conflictos == 0   ? QStringLiteral("Sin conflictos")
                       : conflictos == 1 ? QStringLiteral("&Ir al conflicto")
                                         : QStringLiteral("&Siguiente de %1 conflictos").arg(conflictos));
    siguiente_.setEnabled(conflictos > 0);
    botones_.activa(modelo_.rowCount() > 0);
    muestraPalabras();
}

void PanelTabla::muestraPalabras() {
    const QModelIndex celda = vista_.currentIndex();
    conflicto_.setEnabled(modelo_.estaEnConflicto(celda));
    palabras_.setText(estudio_->gramatica() == nullptr ? aQString(sinTabla)
                                                       : modelo_.palabras(celda) + palabrasDeRegla_);
}

void PanelTabla::pideConflicto() {
    const QModelIndex celda = vista_.currentIndex();
    if (modelo_.estaEnConflicto(celda))
        emit conflictoPedido(
            DeCelda{static_cast<std::int16_t>(celda.row()), static_cast<std::int16_t>(celda.column())});
}

/// Sizes that need no look at the cells one by one: an entry is no longer than its form lets it be.
void PanelTabla::ajusta() {
    QFont negrita = font();
    negrita.setBold(true);
    const QFontMetrics letra(negrita);
    const int margen = letra.horizontalAdvance(QStringLiteral("00"));
    const int entrada = letra.horizontalAdvance(QStringLiteral("D000"));
    const int dudosa = letra.horizontalAdvance(QStringLiteral("⚠ D000 / R000"));
    std::vector<int> anchos(static_cast<std::size_t>(modelo_.columnCount()), entrada);
    for (const DeCelda& celda : modelo_.enConflicto())
        anchos[static_cast<std::size_t>(celda.codigo)] = dudosa;
    if (const GramaticaLR* const g = estudio_ ? estudio_->gramatica() : nullptr; g != nullptr)
        if (const std::int16_t fin = g->tabla.codigoFin(); fin >= 0) {
            int& suyo = anchos[static_cast<std::size_t>(fin)];
            suyo = std::max(suyo, letra.horizontalAdvance(QStringLiteral("ACEPTAR")));
        }
    for (int c = 0; c < modelo_.columnCount(); ++c) {
        const QString simbolo = modelo_.headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
        vista_.setColumnWidth(
            c, std::max(anchos[static_cast<std::size_t>(c)], letra.horizontalAdvance(simbolo)) + margen);
    }
    vista_.verticalHeader()->setDefaultSectionSize(letra.height() * 3 / 2);
    palabras_.setMinimumHeight(2 * letra.lineSpacing()); // with those of a rule and without
}

Lamina PanelTabla::lamina() const {
    constexpr int maximo = 100'000; // cells
    if (const int celdas = modelo_.rowCount() * modelo_.columnCount(); celdas > maximo)
        throw Desbordamiento(
            QStringLiteral("La tabla tiene %1 celdas, y un dibujo %2 a lo más; «Copiar dibujo» "
                           "la copia como texto")
                .arg(celdas)
                .arg(maximo)
                .toStdU16String());
    return {titulo(), [this](const QPalette& colores, QGraphicsScene& escena) {
                pintaTabla(modelo_, font(), colores, escena);
            }};
}

void PanelTabla::selecciona(const Eleccion& eleccion) {
    if (!estudio_ || std::holds_alternative<EnTexto>(eleccion)) return; // the node there comes, too
    const QScopedValueRollback<bool> callado(callado_, true);
    resalta(eleccion);
    if (const QModelIndex celda = celdaPara(eleccion); celda.isValid()) vista_.setCurrentIndex(celda);
    muestraPalabras();
}

/// What reduces by its rule.
void PanelTabla::resalta(const Eleccion& eleccion) {
    const auto regla = reglaDe(*estudio_, eleccion);
    deRegla_ = modelo_.resalta(regla.value_or(0));
    palabrasDeRegla_.clear();
    if (!regla || estudio_->gramatica() == nullptr) return;
    const auto cuantas = deRegla_.size();
    palabrasDeRegla_ =
        QStringLiteral("\n%1: %2")
            .arg(aQString(palabrasDeRegla(*estudio_->gramatica(), *regla)),
                 cuantas == 0   ? QStringLiteral("ninguna celda reduce por ella")
                 : cuantas == 1 ? QStringLiteral("la reduce 1 celda, subrayada")
                                : QStringLiteral("la reducen %1 celdas, subrayadas").arg(cuantas));
}

/// A state is told, or it is one that reduces by the chosen rule; of a rule alone the cell is one that does.
QModelIndex PanelTabla::celdaPara(const Eleccion& eleccion) const {
    const QModelIndex ahora = vista_.currentIndex();
    auto estado = estadoDe(eleccion);
    auto columna = columnaDe(*estudio_, eleccion);
    const bool esLugar = std::holds_alternative<EnEspecificacion>(eleccion); // it is at a symbol
    if (!deRegla_.empty() && !(columna && estado)) {
        const auto cerca = [&](const DeCelda& c) { return c.estado == estado.value_or(ahora.row()); };
        const auto suya = std::ranges::find_if(deRegla_, cerca);
        const DeCelda& celda = suya == deRegla_.end() ? deRegla_.front() : *suya;
        if (!columna || !esLugar) columna = celda.codigo;
        if (!estado) estado = celda.estado;
    }
    if (!estado && !columna) return {};
    return modelo_.index(estado.value_or(std::max(0, ahora.row())),
                         columna.value_or(std::max(0, ahora.column())));
}

void PanelTabla::elige(const QModelIndex& celda) {
    if (callado_ || !celda.isValid()) return;
    const DeCelda suya{static_cast<std::int16_t>(celda.row()), static_cast<std::int16_t>(celda.column())};
    resalta(suya);
    muestraPalabras();
    emit elegido(suya);
}

/// In the order of the table, and from the last one to the first.
void PanelTabla::vaAlSiguiente() {
    const auto& conflictos = modelo_.enConflicto();
    if (conflictos.empty()) return;
    const QModelIndex actual = vista_.currentIndex();
    const auto detras = [&](const DeCelda& c) {
        return c.estado > actual.row() || (c.estado == actual.row() && c.codigo > actual.column());
    };
    const auto sitio = std::ranges::find_if(conflictos, detras);
    const DeCelda& celda = sitio == conflictos.end() ? conflictos.front() : *sitio;
    vista_.setCurrentIndex(modelo_.index(celda.estado, celda.codigo));
    vista_.setFocus();
}

} // namespace norvik::taller
