// SPDX-License-Identifier: MIT

#include "norvik/tools/ventanaPropiedades.hpp"

#include "norvik/platform/qt/fallos.hpp"
#include "norvik/tools/paginasDeNorvik.hpp"

#include <algorithm>
#include <utility>

namespace norvik {

VentanaPropiedades::VentanaPropiedades(ControlNorvik& control, QString nombre, SistemaQt& sistema,
                                       PreguntaDestino pregunta, Pagina primera, QWidget* padre)
    : QDialog(padre), pregunta_(std::move(pregunta)), nombre_(std::move(nombre)),
      paginas_(paginasDeNorvik(sistema)) {
    setObjectName(QStringLiteral("propiedades"));
    setWindowTitle(QStringLiteral("Propiedades de %1[*]").arg(nombre_));
    for (const auto& pagina : paginas_) {
        fichas_.addTab(pagina.get(), pagina->titulo());
        pagina->cambiaSeleccion({&control});
        connect(pagina.get(), &PaginaPropiedades::cambio, this, &VentanaPropiedades::actualiza);
    }
    fichas_.setCurrentIndex(static_cast<int>(primera));
    fichas_.setAccessibleName(QStringLiteral("Páginas de propiedades"));
    botones_.addStretch(1);
    botones_.addWidget(&aplicar_);
    botones_.addWidget(&cerrar_);
    columna_.addWidget(&fichas_);
    columna_.addLayout(&botones_);
    setLayout(&columna_);
    aplicar_.setDefault(true);
    cerrar_.setAutoDefault(false);
    connect(&aplicar_, &QPushButton::clicked, this, [this] { sinFallos([this] { aplica(); }); });
    connect(&cerrar_, &QPushButton::clicked, this, &QDialog::reject);
    actualiza();
    fichas_.currentWidget()->setFocus();
}

/// Pages that go with their changes still tell of them.
VentanaPropiedades::~VentanaPropiedades() {
    for (const auto& pagina : paginas_) pagina->disconnect(this);
}

void VentanaPropiedades::actualiza() {
    const bool cambiada =
        std::any_of(paginas_.begin(), paginas_.end(), [](const auto& p) { return p->cambiada(); });
    aplicar_.setEnabled(cambiada);
    setWindowModified(cambiada);
}

/// The page that could not be applied comes to the front.
bool VentanaPropiedades::aplica() {
    for (const auto& pagina : paginas_) {
        if (!pagina->cambiada() || pagina->aplica()) continue;
        fichas_.setCurrentWidget(pagina.get());
        return false;
    }
    emit aplicado();
    return true;
}

bool VentanaPropiedades::puedeCerrarse() {
    if (std::any_of(paginas_.begin(), paginas_.end(), [](const auto& p) { return p->ocupada(); }))
        return false;
    if (!isWindowModified()) return true;
    const QString pregunta =
        QStringLiteral("Hay cambios sin aplicar en las propiedades de %1. ¿Quiere aplicarlos?").arg(nombre_);
    return cumple(pregunta_(pregunta, QStringLiteral("&Aplicar"), QStringLiteral("&No aplicar")),
                  [this] { return aplica(); });
}

void VentanaPropiedades::done(int resultado) {
    bool puede = false; // what fails keeps it open
    sinFallos([&] { puede = puedeCerrarse(); });
    if (!puede) return;
    for (const auto& pagina : paginas_) pagina->cierra();
    QDialog::done(resultado);
}

} // namespace norvik
