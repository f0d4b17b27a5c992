// SPDX-License-Identifier: MIT

#include "modeloAnalisis.hpp"

#include "palabrasLR.hpp"

#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

#include <QFont>
#include <QStringView>

#include <algorithm>
#include <utility>

namespace norvik::taller {

namespace {

/// As much of a text as a row has room for, on one line.
QString resumen(std::u16string_view texto) {
    constexpr std::size_t caben = 60;
    const QString corto = aQString(texto.substr(0, caben)).simplified();
    return texto.size() > caben ? corto + QStringLiteral("…") : corto;
}

const QString entreSimbolos = QStringLiteral(" › ");

bool esUnico(Nodo nodo) {
    const Hijos hijos = nodo.hijos();
    auto segundo = hijos.begin();
    return segundo != hijos.end() && ++segundo == hijos.end();
}

} // namespace

void ModeloAnalisis::muestra(std::shared_ptr<const Estudio> estudio, Cadenas cadenas) {
    beginResetModel();
    estudio_ = std::move(estudio);
    cadenas_ = cadenas;
    endResetModel();
}

/// The node goes on in the row of its parent.
bool ModeloAnalisis::enFila(Nodo nodo) const {
    const auto padre = nodo.padre();
    return cadenas_ == Cadenas::EnUnaFila && padre && esUnico(*padre);
}

Nodo ModeloAnalisis::cimaDe(Nodo nodo) const {
    while (enFila(nodo)) nodo = *nodo.padre();
    return nodo;
}

Nodo ModeloAnalisis::fondo(Nodo nodo) const {
    while (cadenas_ == Cadenas::EnUnaFila && esUnico(nodo)) nodo = *nodo.hijos().begin();
    return nodo;
}

QModelIndex ModeloAnalisis::indice(Nodo cima, int columna) const {
    int fila = 0;
    if (const auto padre = cima.padre())
        for (const Nodo hermano : padre->hijos()) {
            if (hermano == cima) break;
            ++fila;
        }
    return createIndex(fila, columna, static_cast<quintptr>(cima.indice()));
}

QModelIndex ModeloAnalisis::indiceDe(std::size_t nodo) const {
    if (esVacio() || nodo >= arbol().numNodos()) return {};
    return indice(cimaDe(arbol()[nodo]), Simbolo);
}

bool ModeloAnalisis::resaltado(std::size_t nodo) const {
    if (resaltada_ == 0 || esVacio() || nodo >= arbol().numNodos()) return false;
    auto suyo = std::optional(fondo(cimaDe(arbol()[nodo])));
    while (suyo && suyo->regla() != resaltada_) suyo = enFila(*suyo) ? suyo->padre() : std::nullopt;
    return suyo.has_value();
}

std::optional<std::size_t> ModeloAnalisis::busca(const QString& palabras, std::size_t desde) const {
    if (esVacio() || palabras.isEmpty()) return std::nullopt;
    const auto tiene = [&](std::u16string_view texto) {
        return QStringView(texto.data(), static_cast<qsizetype>(texto.size()))
            .contains(palabras, Qt::CaseInsensitive);
    };
    const std::size_t cuantos = arbol().numNodos();
    for (std::size_t i = 1; i <= cuantos; ++i) {
        const Nodo nodo = arbol()[(desde + i) % cuantos];
        if (tiene(nodo.nombre()) || (nodo.esToken() && tiene(nodo.texto()))) return nodo.indice();
    }
    return std::nullopt;
}

std::vector<int> ModeloAnalisis::lugarDe(const QModelIndex& indice) {
    std::vector<int> lugar;
    for (QModelIndex i = indice; i.isValid(); i = i.parent()) lugar.push_back(i.row());
    std::ranges::reverse(lugar);
    return lugar;
}

QModelIndex ModeloAnalisis::filaEn(const std::vector<int>& lugar) const {
    QModelIndex fila;
    for (const int hijo : lugar) {
        fila = index(hijo, Simbolo, fila);
        if (!fila.isValid()) break;
    }
    return fila;
}

QModelIndex ModeloAnalisis::index(int fila, int columna, const QModelIndex& padre) const {
    if (!hasIndex(fila, columna, padre)) return {};
    const Nodo nodo = padre.isValid() ? fondo(cima(padre))[static_cast<std::size_t>(fila)] : arbol().raiz();
    return createIndex(fila, columna, static_cast<quintptr>(nodo.indice()));
}

QModelIndex ModeloAnalisis::parent(const QModelIndex& indice) const {
    if (!indice.isValid() || esVacio()) return {};
    const auto padre = cima(indice).padre();
    return padre ? this->indice(cimaDe(*padre), Simbolo) : QModelIndex();
}

int ModeloAnalisis::rowCount(const QModelIndex& padre) const {
    if (esVacio() || padre.column() > 0) return 0;
    return padre.isValid() ? static_cast<int>(fondo(cima(padre)).numHijos()) : 1;
}

QStringList ModeloAnalisis::simbolos(Nodo cima) const {
    const Nodo ultimo = fondo(cima);
    QStringList nombres{aQString(cima.nombre())};
    for (Nodo nodo = cima; nodo != ultimo;) {
        nodo = *nodo.hijos().begin();
        nombres += aQString(nodo.nombre());
    }
    if (ultimo.esInsertado()) nombres.last() += QStringLiteral(" (falta en el texto)");
    return nombres;
}

/// Of a long run both ends, which are what its neighbours have to do with.
QString ModeloAnalisis::enUnaLinea(Nodo cima) const {
    constexpr int caben = 3;
    const QStringList nombres = simbolos(cima);
    if (nombres.size() <= caben) return nombres.join(entreSimbolos);
    return nombres.first() + QStringLiteral(" › … › ") + nombres.last();
}

QString ModeloAnalisis::ayuda(Nodo nodo) const {
    const GramaticaLR* const g = estudio_->gramatica();
    const Punto lugar = nodo.rango().inicio;
    QString lineas = QStringLiteral("Línea %1, columna %2").arg(lugar.linea).arg(lugar.columna);
    for (auto padre = std::optional(nodo); g != nullptr && padre; padre = padre->padre()) {
        if (padre->esToken()) continue;
        lineas += u'\n' + aQString(palabrasDeRegla(*g, padre->regla()));
        if (!enFila(*padre)) break;
    }
    return ayudaLlana(lineas);
}

QString ModeloAnalisis::camino(const QModelIndex& indice) const {
    QStringList nombres;
    constexpr int caben = 16; // of a list as long as its text the way is as long
    for (QModelIndex i = indice; i.isValid(); i = parent(i)) {
        if (nombres.size() > caben) return QStringLiteral("… › ") + nombres.join(entreSimbolos);
        nombres = simbolos(cima(i)) + nombres;
    }
    return nombres.join(entreSimbolos);
}

QVariant ModeloAnalisis::data(const QModelIndex& indice, int papel) const {
    QVariant dato;
    sinFallos([&] {
        if (!indice.isValid() || esVacio()) return;
        const Nodo nodo = fondo(cima(indice));
        if (papel == Qt::DisplayRole)
            dato = indice.column() == Simbolo ? enUnaLinea(cima(indice)) : resumen(nodo.texto());
        if (papel == Qt::ToolTipRole) dato = ayuda(nodo);
        if (papel == Qt::FontRole) dato = letraDe(nodo, indice.column());
    });
    return dato;
}

QVariant ModeloAnalisis::letraDe(Nodo nodo, int columna) const {
    const bool subrayada = columna == Simbolo && resaltado(nodo.indice());
    if (!nodo.esToken() && !subrayada) return {};
    QFont letra;
    letra.setBold(nodo.esToken() && columna == Texto);
    letra.setItalic(nodo.esToken() && nodo.esInsertado());
    letra.setUnderline(subrayada);
    return letra;
}

QVariant ModeloAnalisis::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (orientacion != Qt::Horizontal || papel != Qt::DisplayRole) return {};
    return seccion == Simbolo ? QStringLiteral("Símbolo") : QStringLiteral("Texto");
}

} // namespace norvik::taller
