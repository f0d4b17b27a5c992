// SPDX-License-Identifier: MIT

#include "ordenesFormulario.hpp"

#include "rutas.hpp"

#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"

#include <algorithm>

namespace norvik::taller {

void OrdenesFormulario::nuevo() {
    if (puedePerder()) formulario_.vacia();
}

void OrdenesFormulario::abre() {
    const auto fichero = dialogos_.eligeParaAbrir(QStringLiteral("Abrir formulario"), filtroFormulario);
    if (fichero) abre(*fichero);
}

void OrdenesFormulario::abre(const QString& fichero) {
    if (!puedePerder()) return;
    avisaDe(formulario_.abre(fichero));
    recientes_.anota(fichero);
}

void OrdenesFormulario::avisaDe(const QStringList& avisos) {
    if (avisos.isEmpty()) return;
    sistema_.muestraMensaje({avisos.join(u'\n').toStdU16String(), {}, Icono::Exclamacion, Botones::Aceptar});
}

bool OrdenesFormulario::escribe(const QString& fichero) {
    if (fichero != formulario_.fichero() || !formulario_.otroLoCambio()) return sobrescribe(fichero);
    switch (dialogos_.preguntaChoque(preguntaDeChoque(fichero))) {
    case Choque::Sobrescribir:
        return sobrescribe(fichero);
    case Choque::GuardarComo:
        return guardaComo();
    case Choque::Recargar:
        return recarga();
    case Choque::Cancelar:
        return false;
    }
    return false;
}

bool OrdenesFormulario::sobrescribe(const QString& fichero) {
    const std::u16string fallo = falloDe([&] { formulario_.guarda(fichero); });
    if (fallo.empty()) {
        recientes_.anota(fichero);
        return true;
    }
    sistema_.muestraMensaje({fallo, {}, Icono::Critico, Botones::Aceptar});
    return false;
}

/// The texts of its controls go with it.
bool OrdenesFormulario::recarga() {
    if (!textosPuedenPerderse()) return false;
    avisaDe(formulario_.abre(formulario_.fichero()));
    return true;
}

bool OrdenesFormulario::guarda() {
    return formulario_.fichero().isEmpty() ? guardaComo() : escribe(formulario_.fichero());
}

bool OrdenesFormulario::guardaComo() {
    const auto fichero = dialogos_.eligeParaGuardar(QStringLiteral("Guardar formulario"), filtroFormulario,
                                                    formulario_.fichero(), extensionFormulario);
    return fichero && escribe(*fichero);
}

bool OrdenesFormulario::guardaTodo() {
    return textos_.guardaTodos() && (!formulario_.modificado() || guarda());
}

void OrdenesFormulario::quitaActivo() {
    if (textos_.puedePerder(formulario_.activo())) formulario_.quitaActivo();
}

bool OrdenesFormulario::puedePerderFormulario() {
    if (!formulario_.modificado()) return true;
    const QString pregunta =
        QStringLiteral("¿Quiere guardar los cambios del formulario «%1»?").arg(formulario_.titulo());
    return dialogos_.guardaOPierde(pregunta, [this] { return guarda(); });
}

bool OrdenesFormulario::textosPuedenPerderse() {
    const auto& elementos = formulario_.elementos();
    return std::all_of(elementos.begin(), elementos.end(),
                       [this](const auto& e) { return textos_.puedePerder(*e); });
}

bool OrdenesFormulario::puedePerder() {
    return textosPuedenPerderse() && puedePerderFormulario();
}

} // namespace norvik::taller
