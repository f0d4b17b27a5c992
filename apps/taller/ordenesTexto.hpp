// SPDX-License-Identifier: MIT

#pragma once

#include "archivador.hpp"
#include "formulario.hpp"
#include "recientes.hpp"

namespace norvik::taller {

/// The commands on the texts of the form's controls. Those that could lose work ask before.
class OrdenesTexto {
public:
    OrdenesTexto(Formulario& formulario, SistemaQt& sistema, Dialogos& dialogos, Recientes& recientes)
        : formulario_(formulario), dialogos_(dialogos), recientes_(recientes),
          archivador_(sistema, dialogos) {}

    // On the active control.
    void nuevo();
    void abre();
    void abre(const QString& fichero);
    bool guarda() { return guarda(formulario_.activo()); }
    bool guardaComo();

    /// Those that were changed. False when the user gives up or a file could not be written.
    bool guardaTodos();
    /// The text is saved, or was not changed, or is given up.
    bool puedePerder(ElementoFormulario& elemento);

private:
    bool guarda(ElementoFormulario& elemento);
    bool anota(Archivado archivado, const ElementoFormulario& elemento);

    Formulario& formulario_;
    Dialogos& dialogos_;
    Recientes& recientes_;
    Archivador archivador_;
};

} // namespace norvik::taller
