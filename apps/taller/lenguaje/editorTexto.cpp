// SPDX-License-Identifier: MIT

#include "editorTexto.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"

namespace norvik::taller {

EditorTexto::EditorTexto(const QString& nombre, SistemaQt& sistema, QWidget* padre)
    : QWidget(padre), nombre_(nombre), norvik_(sistema, this) {
    norvik_.setAccessibleName(nombre);
    norvik_.control().ponAyudas(todasLasAyudas());
    norvik_.Colorear(true);
    norvik_.HideSelection(false); // it shows what is chosen elsewhere
    for (int i = 0; i < numeroDeAcciones; ++i) norvik_.accion(static_cast<AccionNorvik>(i)); // their keys
    titulo_.setTextFormat(Qt::PlainText);
    titulo_.setContentsMargins(4, 2, 4, 0);
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.setSpacing(2);
    columna_.addWidget(&titulo_);
    columna_.addWidget(&norvik_, 1);
    setLayout(&columna_);
    setFocusProxy(&norvik_);
    connect(&norvik_, &ControlNorvik::textoCambiado, this, [this] {
        titula();
        emit otroTexto();
    });
    connect(&norvik_, &ControlNorvik::seleccionCambiada, this, &EditorTexto::otroLugar);
    connect(&norvik_, &ControlNorvik::fallo, this, [this](const QString& motivo, bool& contado) {
        contado = true;
        emit fallo(motivo);
    });
    connect(&documento_, &DocumentoTexto::cambiado, this, &EditorTexto::titula);
    connect(&documento_, &DocumentoTexto::aviso, this, &EditorTexto::fallo);
    titula();
}

std::u16string EditorTexto::texto() {
    return std::u16string(norvik_.caja().texto());
}

Rango EditorTexto::seleccion() {
    Rango rango;
    rango.inicio.desplazamiento = norvik_.caja().inicioSeleccion();
    rango.fin.desplazamiento = rango.inicio.desplazamiento + norvik_.caja().longitudSeleccion();
    return rango;
}

void EditorTexto::muestra(const Rango& rango) {
    CajaTextoQt& caja = norvik_.caja();
    const std::int32_t inicio = rango.inicio.desplazamiento;
    caja.protege([&] { caja.muestra(inicio, rango.fin.desplazamiento - inicio); });
}

void EditorTexto::titula() {
    const QString marca = documento_.modificado() ? QStringLiteral("*") : QString();
    titulo_.setText(nombre_ + QStringLiteral(" — ") + documento_.titulo() + marca);
}

} // namespace norvik::taller
