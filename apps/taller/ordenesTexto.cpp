// SPDX-License-Identifier: MIT

#include "ordenesTexto.hpp"

#include "rutas.hpp"

namespace norvik::taller {

namespace {

ComoSeGuarda comoUnTexto() {
    return {QStringLiteral("de "), QStringLiteral("Guardar texto"), todos, {}, {}};
}

} // namespace

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

bool OrdenesTexto::anota(Archivado archivado, const ElementoFormulario& elemento) {
    if (archivado != Archivado::No) recientes_.anota(elemento.fichero());
    return archivado != Archivado::No;
}

bool OrdenesTexto::guarda(ElementoFormulario& elemento) {
    return anota(archivador_.guarda(elemento.documento(), comoUnTexto()), elemento);
}

bool OrdenesTexto::guardaComo() {
    ElementoFormulario& elemento = formulario_.activo();
    return anota(archivador_.guardaComo(elemento.documento(), comoUnTexto()), elemento);
}

bool OrdenesTexto::guardaTodos() {
    for (const auto& e : formulario_.elementos())
        if (e->textoModificado() && !guarda(*e)) return false;
    return true;
}

bool OrdenesTexto::puedePerder(ElementoFormulario& elemento) {
    const QString antes = elemento.fichero();
    const bool puede = archivador_.puedePerder(elemento.documento(), comoUnTexto());
    if (elemento.fichero() != antes) recientes_.anota(elemento.fichero());
    return puede;
}

} // namespace norvik::taller
