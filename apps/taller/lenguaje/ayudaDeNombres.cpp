// SPDX-License-Identifier: MIT

#include "ayudaDeNombres.hpp"

#include "enControl.hpp"

#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <utility>
#include <vector>

namespace norvik::taller {

AyudaDeNombres::AyudaDeNombres(EditorTexto& editor, Dialogos& dialogos, Palabras palabras)
    : editor_(editor), dialogos_(dialogos), palabras_(std::move(palabras)) {
    editor_.norvik().caja().vista().viewport()->installEventFilter(this);
}

/// The text is read anew: it is what is written now that is meant, however old the study is.
std::optional<NombreEscrito> AyudaDeNombres::nombreEn(std::int32_t desplazamiento) const {
    const auto nombres = nombresEscritos(editor_.texto());
    const NombreEscrito* const nombre = norvik::nombreEn(nombres, desplazamiento);
    return nombre == nullptr ? std::nullopt : std::optional(*nombre);
}

std::optional<NombreEscrito> AyudaDeNombres::nombreBajo(const QPoint& punto) const {
    const auto sitio = editor_.norvik().caja().caracterEn(punto);
    return sitio ? nombreEn(*sitio) : std::nullopt;
}

std::optional<NombreEscrito> AyudaDeNombres::enCursor() {
    auto nombre = nombreEn(editor_.seleccion().inicio.desplazamiento);
    if (!nombre) emit aviso(QStringLiteral("El cursor no está en ningún nombre de la especificación"));
    return nombre;
}

std::optional<std::u16string> AyudaDeNombres::elegido() {
    const auto nombre = enCursor();
    return nombre ? std::optional(nombre->nombre) : std::nullopt;
}

void AyudaDeNombres::vaAlOrigen() {
    if (const auto nombre = enCursor()) vaAlOrigenDe(*nombre);
}

void AyudaDeNombres::vaAlOrigenDe(const NombreEscrito& nombre) {
    const auto nombres = nombresEscritos(editor_.texto());
    if (const NombreEscrito* const origen = origenDe(nombres, nombre.nombre))
        editor_.norvik().irA(origen->lugar);
    else
        emit aviso(QStringLiteral("Nada define «%1»").arg(aQString(nombre.nombre)));
}

void AyudaDeNombres::explica() {
    const auto nombre = enCursor();
    if (!nombre) return;
    const QWidget& vista = *editor_.norvik().caja().vista().viewport();
    const QPoint sitio = editor_.norvik().caja().vista().cursorRect().bottomLeft();
    if (!muestraAyuda(*nombre, Pregunta::PorTecla, vista.mapToGlobal(sitio)))
        emit aviso(QStringLiteral("De «%1» no se sabe nada").arg(aQString(nombre->nombre)));
}

/// The caret stays at the name, which may be longer or shorter now where it stands before it, too.
void AyudaDeNombres::cambia() {
    const auto nombre = enCursor();
    if (!nombre) return;
    const std::u16string texto = editor_.texto();
    const auto nombres = nombresEscritos(texto);
    const auto nuevo = dialogos_.pideNombre(
        QStringLiteral("Cambiar el nombre"), aQString(nombre->nombre),
        [&](const QString& otro) { return aQString(reparosA(nombres, nombre->nombre, vistaDe(otro))); });
    if (!nuevo || editor_.texto() != texto) return;
    const Arreglo arreglo = cambiaNombre(nombres, nombre->nombre, vistaDe(*nuevo));
    aplica(arreglo, editor_.norvik());
    const auto largo = static_cast<std::int32_t>(nuevo->size());
    std::int32_t inicio = nombre->lugar.inicio.desplazamiento;
    for (const Cambio& c : arreglo.cambios)
        if (c.rango.inicio.desplazamiento < nombre->lugar.inicio.desplazamiento)
            inicio += largo - (c.rango.fin.desplazamiento - c.rango.inicio.desplazamiento);
    Rango lugar;
    lugar.inicio.desplazamiento = inicio;
    lugar.fin.desplazamiento = inicio + largo;
    editor_.norvik().irA(lugar);
}

bool AyudaDeNombres::eventFilter(QObject* vista, QEvent* evento) {
    bool suyo = false;
    sinFallos([&] {
        if (evento->type() == QEvent::ToolTip) {
            const auto& ayuda = static_cast<const QHelpEvent&>(*evento);
            const auto nombre = nombreBajo(ayuda.pos());
            suyo = nombre && muestraAyuda(*nombre, Pregunta::ConRaton, ayuda.globalPos());
        }
        if (evento->type() == QEvent::MouseButtonRelease) suyo = std::exchange(pulsado_, false);
        if (evento->type() != QEvent::MouseButtonPress) return;
        const auto& raton = static_cast<const QMouseEvent&>(*evento);
        if (raton.button() == Qt::LeftButton && raton.modifiers() == Qt::ControlModifier)
            suyo = pulsado_ = pulsa(raton.position().toPoint());
    });
    return suyo || QObject::eventFilter(vista, evento);
}

bool AyudaDeNombres::pulsa(const QPoint& punto) {
    const auto nombre = nombreBajo(punto);
    if (nombre) vaAlOrigenDe(*nombre);
    return nombre.has_value();
}

bool AyudaDeNombres::muestraAyuda(const NombreEscrito& nombre, Pregunta pregunta, const QPoint& enPantalla) {
    const QString palabras = palabras_(nombre, pregunta);
    if (!palabras.isEmpty())
        QToolTip::showText(enPantalla, ayudaLlana(palabras), &editor_.norvik().caja().vista());
    return !palabras.isEmpty();
}

} // namespace norvik::taller
