// SPDX-License-Identifier: MIT

#include "panelConjuntos.hpp"

#include "correspondencias.hpp"
#include "palabrasConjuntos.hpp"
#include "palabrasLR.hpp"

#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <utility>

namespace norvik::taller {

namespace {

/// The variables in the order of their first rules.
std::vector<Simbolo> variablesDe(const ReglasPartidas& reglas) {
    std::vector<Simbolo> variables;
    for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
        const Simbolo cabeza = reglas.cabeza(regla);
        if (cabeza != ReglasPartidas::sinSimbolo && reglas.primera(cabeza) == regla)
            variables.push_back(cabeza);
    }
    return variables;
}

} // namespace

PanelConjuntos::PanelConjuntos(QWidget* padre)
    : Panel(QStringLiteral("conjuntos"), QStringLiteral("Conjuntos"), padre), tabla_(0, numeroDeColumnas) {
    tabla_.setAccessibleName(QStringLiteral("Primeros y siguientes de cada variable"));
    tabla_.setHorizontalHeaderLabels({QStringLiteral("Variable"), QStringLiteral("Anulable"),
                                      QStringLiteral("Primeros"), QStringLiteral("Siguientes")});
    tabla_.setEditTriggers(QTableWidget::NoEditTriggers);
    tabla_.setSelectionBehavior(QTableWidget::SelectRows);
    tabla_.setSelectionMode(QTableWidget::SingleSelection);
    tabla_.setTabKeyNavigation(false);
    tabla_.setWordWrap(false);
    tabla_.setAlternatingRowColors(true);
    tabla_.verticalHeader()->hide();
    tabla_.horizontalHeader()->setStretchLastSection(true);
    detalle_.setAccessibleName(QStringLiteral("Conjuntos y reglas de la variable elegida"));
    detalle_.setPlainText(aQString(sinTabla));
    detalle_.setReadOnly(true);
    detalle_.setTabChangesFocus(true);
    centro_.addWidget(&tabla_);
    centro_.addWidget(&detalle_);
    centro_.setStretchFactor(0, 3);
    centro_.setStretchFactor(1, 2);
    centro_.setFocusProxy(&tabla_);
    ponDentro(centro_);
    connect(&tabla_, &QTableWidget::currentCellChanged, this,
            [this](int fila) { protege([&] { elige(fila); }); });
    connect(&tabla_, &QTableWidget::cellClicked, this, [this](int fila) { protege([&] { elige(fila); }); });
}

void PanelConjuntos::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    const bool esElMismo = estudio_ && estudio_->deLenguaje == estudio->deLenguaje;
    estudio_ = std::move(estudio);
    if (!esElMismo) llena();
}

/// Of one key to the next nearly all of it stays: only what is another is set.
void PanelConjuntos::llena() {
    const QScopedValueRollback<bool> callado(callado_, true);
    const QString elegida = tabla_.currentRow() < 0 ? QString() : tabla_.item(tabla_.currentRow(), 0)->text();
    const GramaticaLR* const g = estudio_->gramatica();
    const std::vector<Simbolo> variables = g == nullptr ? std::vector<Simbolo>() : variablesDe(g->partidas);
    tabla_.setRowCount(static_cast<int>(variables.size()));
    if (variables.empty()) return detalle_.setPlainText(aQString(sinTabla));
    bool hayOtroNombre = false;
    int fila = 0;
    for (const Simbolo variable : variables) hayOtroNombre = pon(fila++, variable) || hayOtroNombre;
    const int queda = std::max(0, filaDe(elegida));
    tabla_.setCurrentCell(queda, Variable); // coming here chooses nothing
    detalla(queda);
    if (hayOtroNombre) ajusta();
}

void PanelConjuntos::ajusta() {
    for (const int columna : {Variable, Anulable}) tabla_.resizeColumnToContents(columna);
    tabla_.setColumnWidth(Primeros, fontMetrics().horizontalAdvance(u'x') * 40);
}

/// Whether the row had another name or none.
bool PanelConjuntos::pon(int fila, std::int32_t variable) {
    const GramaticaLR& g = *estudio_->gramatica();
    const std::array<QString, numeroDeColumnas> textos = {aQString(g.partidas.texto(variable)),
                                                          esAnulable(g, variable) ? QStringLiteral("sí")
                                                                                  : QStringLiteral("no"),
                                                          primerosDe(g, variable), siguientesDe(g, variable)};
    bool esOtroNombre = false;
    for (int columna = 0; columna < numeroDeColumnas; ++columna) {
        const QString& texto = textos[static_cast<std::size_t>(columna)];
        QTableWidgetItem* celda = tabla_.item(fila, columna);
        if (celda != nullptr && celda->text() == texto) continue;
        if (celda == nullptr) tabla_.setItem(fila, columna, celda = &nuevo<QTableWidgetItem>());
        celda->setText(texto);
        if (columna >= Primeros) celda->setToolTip(ayudaLlana(texto));
        esOtroNombre = esOtroNombre || columna == Variable;
    }
    return esOtroNombre;
}

/// −1 when it has none.
int PanelConjuntos::filaDe(const QString& variable) const {
    for (int fila = 0; fila < tabla_.rowCount(); ++fila)
        if (tabla_.item(fila, Variable)->text() == variable) return fila;
    return -1;
}

void PanelConjuntos::detalla(int fila) {
    const QString variable = tabla_.item(fila, Variable)->text();
    const GramaticaLR& g = *estudio_->gramatica();
    const QString palabras = conjuntosEnPalabras(g, g.partidas.simbolo(vistaDe(variable)));
    if (palabras != detalle_.toPlainText()) detalle_.setPlainText(palabras);
}

void PanelConjuntos::selecciona(const Eleccion& eleccion) {
    if (!estudio_) return;
    const auto simbolo = simboloDe(*estudio_, eleccion);
    const int fila = simbolo ? filaDe(aQString(*simbolo)) : -1;
    if (fila < 0) return;
    const QScopedValueRollback<bool> callado(callado_, true);
    tabla_.setCurrentCell(fila, Variable);
    detalla(fila);
}

void PanelConjuntos::elige(int fila) {
    if (callado_ || fila < 0) return;
    detalla(fila);
    emit elegido(DeSimbolo{tabla_.item(fila, Variable)->text().toStdU16String()});
}

} // namespace norvik::taller
