// SPDX-License-Identifier: MIT

#include "norvik/widget/busquedaControl.hpp"

#include "norvik/control/buscador.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "norvik/widget/ventanasDelControl.hpp"

namespace norvik {

bool BusquedaControl::conBarra() const {
    return control_.barraDeBusqueda();
}

BarraBusqueda& BusquedaControl::barra() {
    if (barra_ == nullptr) {
        barra_ = std::make_unique<BarraBusqueda>(control_, resaltes_);
        QObject::connect(barra_.get(), &BarraBusqueda::otroSitio, &control_,
                         [this] { control_.caja().protege([this] { control_.control().redimensiona(); }); });
    }
    return *barra_;
}

void BusquedaControl::abre() {
    if (conBarra())
        barra().abre();
    else
        control_.control().ShowBuscarDialog();
}

/// Without a bar, what the dialog looked for last.
void BusquedaControl::sigue(BarraBusqueda::Salto salto) {
    if (conBarra()) return barra().sigue(salto);
    EstadoBusqueda& estado = estadoBusqueda();
    if (estado.ultimaBusqueda.empty()) return control_.control().ShowBuscarDialog();
    estado.apunta(control_.control().destinoBusqueda());
    const bool atras = salto == BarraBusqueda::Salto::Anterior;
    Buscador buscador;
    buscador.trabaja = [this](const auto& trabajo) { ventanasDelControl::trabaja(control_, trabajo); };
    buscador.buscaSiguiente({estado.ultimaBusqueda, std::u16string(direccionesBusqueda[atras ? 1 : 2]),
                             estado.soloPalabrasCompletas, false});
}

void BusquedaControl::atiendeAyudas() {
    if (!conBarra() && barra_ != nullptr && !barra_->isHidden()) barra_->cierra();
}

QRect BusquedaControl::aparta(const QRect& texto, int izquierda) {
    if (barra_ == nullptr || barra_->isHidden()) return texto;
    QRect queda = texto;
    queda.setHeight(texto.height() - barra_->sizeHint().height());
    barra_->setGeometry(QRect(QPoint(izquierda, queda.bottom() + 1), texto.bottomRight()));
    return queda;
}

} // namespace norvik
