// SPDX-License-Identifier: MIT

#include "panelUsos.hpp"

#include "norvik/checks/nombres.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace norvik::taller {

namespace {

enum ColumnaDeUsos { Linea, LugarDeUsos, columnasDeUsos };

/// What stands around a place in its line: of a line as long as its text nobody reads more.
QString alrededorDe(std::u16string_view texto, std::size_t sitio) {
    constexpr std::u16string_view saltos = u"\r\n";
    constexpr std::size_t lado = 100; // units
    const std::size_t desde = sitio - std::min(sitio, lado);
    const std::u16string_view antes = texto.substr(desde, sitio - desde);
    const std::u16string_view detras = texto.substr(sitio, lado);
    const std::size_t salto = antes.find_last_of(saltos);
    const std::size_t inicio = salto == std::u16string_view::npos ? 0 : salto + 1;
    return aQString(antes.substr(inicio)) + aQString(detras.substr(0, detras.find_first_of(saltos)));
}

} // namespace

PanelUsos::PanelUsos(QWidget* padre) : Panel(QStringLiteral("usos"), QStringLiteral("Usos"), padre) {
    cuenta_.setTextFormat(Qt::PlainText);
    cuenta_.setText(QStringLiteral("Mayús+F12 en un nombre de la especificación busca sus usos."));
    lista_.setColumnCount(columnasDeUsos);
    lista_.setHeaderLabels({QStringLiteral("Línea"), QStringLiteral("Lugar")});
    lista_.setAccessibleName(QStringLiteral("Lugares en que está el nombre"));
    lista_.setRootIsDecorated(false);
    lista_.setUniformRowHeights(true);
    lista_.header()->setStretchLastSection(false);
    lista_.header()->setSectionResizeMode(Linea, QHeaderView::Stretch);
    lista_.header()->setSectionResizeMode(LugarDeUsos, QHeaderView::ResizeToContents);
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.addWidget(&cuenta_);
    columna_.addWidget(&lista_, 1);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&lista_);
    ponDentro(centro_);
    connect(&lista_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* fila) {
        protege([&] {
            const Rango* const lugar = lugarDe(fila);
            if (lugar != nullptr && !callado_) emit elegido(EnEspecificacion{*lugar});
        });
    });
    const auto va = [this](const QTreeWidgetItem* fila) {
        protege([&] {
            if (const Rango* const lugar = lugarDe(fila)) emit ido(EnEspecificacion{*lugar});
        });
    };
    connect(&lista_, &QTreeWidget::itemActivated, this, va);
    connect(&lista_, &QTreeWidget::itemClicked, this, va);
}

void PanelUsos::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    estudio_ = std::move(estudio);
    llenaSiSeVe();
}

void PanelUsos::busca(std::u16string nombre) {
    nombre_ = std::move(nombre);
    lista_.setCurrentItem(nullptr); // the first place is chosen, although its row may have been before
    llena();
    lista_.setCurrentItem(lista_.topLevelItem(0));
}

void PanelUsos::llenaSiSeVe() {
    if (seVe() && estudio_ && llenado_ != estudio_->deLenguaje) llena();
}

/// A list that is filled anew stays at its row.
void PanelUsos::llena() {
    if (nombre_.empty() || !estudio_) return;
    llenado_ = estudio_->deLenguaje;
    const QScopedValueRollback<bool> callado(callado_, true);
    const int fila = lista_.currentIndex().row();
    lista_.clear();
    lugares_.clear();
    const std::u16string& texto = estudio_->deLenguaje->especificacion;
    for (const NombreEscrito& escrito : nombresEscritos(texto))
        if (escrito.nombre == nombre_)
            anade(alrededorDe(texto, static_cast<std::size_t>(escrito.lugar.inicio.desplazamiento)),
                  escrito.lugar);
    const auto cuantos = lugares_.size();
    cuenta_.setText(cuantos == 1
                        ? QStringLiteral("«%1» está en 1 lugar").arg(aQString(nombre_))
                        : QStringLiteral("«%1» está en %2 lugares").arg(aQString(nombre_)).arg(cuantos));
    lista_.setCurrentItem(lista_.topLevelItem(std::min(fila, static_cast<int>(cuantos) - 1)));
}

void PanelUsos::anade(const QString& linea, const Rango& lugar) {
    auto& fila = nuevo<QTreeWidgetItem>(&lista_);
    fila.setText(Linea, linea.simplified());
    fila.setText(LugarDeUsos, QStringLiteral("%1:%2").arg(lugar.inicio.linea).arg(lugar.inicio.columna));
    lugares_.push_back(lugar);
}

const Rango* PanelUsos::lugarDe(const QTreeWidgetItem* fila) const {
    const int numero = fila == nullptr ? -1 : lista_.indexFromItem(fila).row();
    return numero < 0 || numero >= static_cast<int>(lugares_.size())
               ? nullptr
               : &lugares_[static_cast<std::size_t>(numero)];
}

} // namespace norvik::taller
