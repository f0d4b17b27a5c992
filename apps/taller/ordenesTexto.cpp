// SPDX-License-Identifier: MIT

#include "ordenesTexto.hpp"

#include "rutas.hpp"

namespace norvik::taller {

void OrdenesTexto::nuevo() {
    if (puedePerder(formulario_.activo())) formulario_.activo().nuevoTexto();
}

void OrdenesTexto::abre() {
    const auto fichero = dialogos_.eligeParaAbrir(QStringLiteral("Abrir texto"), todos);
    if (fichero) abre(*fichero);
}

void OrdenesTexto::abre(const QString& fichero) {
    if (!puedePerder(formulario_.activo())) return;
    formulario_.activo().abreTexto(fichero);
    recientes_.anota(fichero);
}

bool OrdenesTexto::escribe(ElementoFormulario& elemento, const QString& fichero) {
    if (!guardaOAvisa(elemento.documento(), fichero, sistema_)) return false;
    recientes_.anota(fichero);
    return true;
}

bool OrdenesTexto::guarda(ElementoFormulario& elemento) {
    return elemento.fichero().isEmpty() ? guardaComo(elemento) : escribe(elemento, elemento.fichero());
}

bool OrdenesTexto::guardaComo(ElementoFormulario& elemento) {
    const auto fichero =
        dialogos_.eligeParaGuardar(QStringLiteral("Guardar texto"), todos, elemento.fichero(), {});
    return fichero && escribe(elemento, *fichero);
}

bool OrdenesTexto::guardaTodos() {
    for (const auto& e : formulario_.elementos())
        if (e->textoModificado() && !guarda(*e)) return false;
    return true;
}

bool OrdenesTexto::puedePerder(ElementoFormulario& elemento) {
    if (!elemento.textoModificado()) return true;
    const QString pregunta =
        QStringLiteral("¿Quiere guardar los cambios de «%1»?").arg(elemento.tituloTexto());
    return dialogos_.guardaOPierde(pregunta, [this, &elemento] { return guarda(elemento); });
}

} // namespace norvik::taller
