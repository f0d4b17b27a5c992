// SPDX-License-Identifier: MIT

#include "modeloCeldas.hpp"

#include "palabrasLR.hpp"

#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/report/informe.hpp"
#include "norvik/tools/modeloTabla.hpp"

#include <QFont>

#include <utility>

namespace norvik::taller {

namespace {

/// The table counts rows and columns from 1.
std::int16_t numero(int indice) {
    return static_cast<std::int16_t>(indice + 1);
}

DeCelda celdaDe(const QModelIndex& celda) {
    return {static_cast<std::int16_t>(celda.row()), static_cast<std::int16_t>(celda.column())};
}

const QString signoDeConflicto = QStringLiteral("⚠ ");

} // namespace

void ModeloCeldas::muestra(std::shared_ptr<const LenguajeEstudiado> lenguaje) {
    beginResetModel();
    lenguaje_ = std::move(lenguaje);
    resaltada_ = 0;
    reuneConflictos();
    endResetModel();
}

/// Those of one cell are neighbours in the list.
void ModeloCeldas::reuneConflictos() {
    enConflicto_.clear();
    celdasEnConflicto_.clear();
    filasEnConflicto_.clear();
    if (!lenguaje_) return;
    for (const Conflicto& conflicto : lenguaje_->conflictos) {
        const DeCelda celda{static_cast<std::int16_t>(conflicto.fila - 1),
                            static_cast<std::int16_t>(conflicto.columna - 1)};
        if (!celdasEnConflicto_.insert({celda.estado, celda.codigo}).second) continue;
        filasEnConflicto_.insert(celda.estado);
        enConflicto_.push_back(celda);
    }
}

int ModeloCeldas::rowCount(const QModelIndex& padre) const {
    return padre.isValid() || gramatica() == nullptr ? 0 : gramatica()->tabla.filasVigentes();
}

int ModeloCeldas::columnCount(const QModelIndex& padre) const {
    return padre.isValid() || gramatica() == nullptr ? 0 : gramatica()->tabla.columnasVigentes();
}

QString ModeloCeldas::texto(const QModelIndex& celda) const {
    const QString contenido =
        aQString(celdaTabla(gramatica()->tabla, numero(celda.row()), numero(celda.column())));
    return estaEnConflicto(celda) ? signoDeConflicto + contenido : contenido;
}

QString ModeloCeldas::palabras(const QModelIndex& celda) const {
    if (!celda.isValid() || gramatica() == nullptr) return {};
    return aQString(palabrasDeCelda(*gramatica(), lenguaje_->conflictos, celdaDe(celda)));
}

std::vector<DeCelda> ModeloCeldas::resalta(std::int16_t regla) {
    std::vector<DeCelda> suyas;
    if (rowCount() == 0 || columnCount() == 0) return suyas;
    const bool esOtra = std::exchange(resaltada_, regla) != regla;
    const TablaLR& tabla = gramatica()->tabla;
    for (std::int16_t estado = 0; regla != 0 && estado < tabla.filasVigentes(); ++estado) {
        const auto fila = tabla.fila(estado);
        for (std::int16_t codigo = 0; codigo < tabla.columnasVigentes(); ++codigo) {
            const auto lugar = static_cast<std::size_t>(codigo);
            const std::int16_t entrada = lugar < fila.size() ? fila[lugar] : tabla.entrada(estado, codigo);
            if (entrada == -regla) suyas.push_back({estado, codigo});
        }
    }
    if (esOtra)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                         {Qt::FontRole, Qt::BackgroundRole});
    return suyas;
}

bool ModeloCeldas::reducePor(const QModelIndex& celda) const {
    const DeCelda suya = celdaDe(celda);
    return resaltada_ != 0 && gramatica()->tabla.entrada(suya.estado, suya.codigo) == -resaltada_;
}

/// By its letters what the chosen rule does, by its ground a conflict.
QVariant ModeloCeldas::realce(const QModelIndex& celda, int papel) const {
    QVariant deConflicto = estaEnConflicto(celda) ? realceDeConflicto(papel) : QVariant();
    if (papel != Qt::FontRole || !reducePor(celda)) return deConflicto;
    QFont letra;
    letra.setBold(true);
    letra.setUnderline(true);
    return letra;
}

QVariant ModeloCeldas::data(const QModelIndex& celda, int papel) const {
    QVariant dato;
    sinFallos([&] {
        if (!celda.isValid() || gramatica() == nullptr) return;
        if (papel == Qt::DisplayRole) dato = texto(celda);
        if (papel == Qt::TextAlignmentRole) dato = Qt::AlignCenter;
        if (papel == Qt::ToolTipRole) dato = ayudaLlana(palabras(celda));
        if (papel == Qt::AccessibleDescriptionRole) dato = palabras(celda);
        if (!dato.isValid()) dato = realce(celda, papel);
    });
    return dato;
}

QVariant ModeloCeldas::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    QVariant dato;
    sinFallos([&] {
        if (gramatica() == nullptr || papel != Qt::DisplayRole) return;
        if (orientacion == Qt::Horizontal)
            dato = aQString(gramatica()->tabla.simbolo(numero(seccion)));
        else
            dato = (filasEnConflicto_.contains(seccion) ? signoDeConflicto : QString()) +
                   QString::number(seccion);
    });
    return dato;
}

} // namespace norvik::taller
