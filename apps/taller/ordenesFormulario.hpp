// SPDX-License-Identifier: MIT

#pragma once

#include "ordenesTexto.hpp"

namespace norvik::taller {

/// The commands on the form as a whole. Those that could lose work ask before.
class OrdenesFormulario {
public:
    OrdenesFormulario(Formulario& formulario, OrdenesTexto& textos, SistemaQt& sistema, Dialogos& dialogos,
                      Recientes& recientes)
        : formulario_(formulario), textos_(textos), sistema_(sistema), dialogos_(dialogos),
          recientes_(recientes) {}

    void nuevo();
    void abre();
    void abre(const QString& fichero);
    bool guarda();
    bool guardaComo();
    /// Texts, and the form when it was changed.
    bool guardaTodo();
    void quitaActivo();
    /// Puts a form back that was copied; the caller has asked for what is there.
    void repone(const EstadoFormulario& estado) { avisaDe(formulario_.repone(estado)); }
    /// All texts and the form are saved, or were not changed, or are given up.
    bool puedePerder();

private:
    bool escribe(const QString& fichero);
    bool sobrescribe(const QString& fichero);
    bool recarga();
    void avisaDe(const QStringList& avisos);
    bool textosPuedenPerderse();
    bool puedePerderFormulario();

    Formulario& formulario_;
    OrdenesTexto& textos_;
    SistemaQt& sistema_;
    Dialogos& dialogos_;
    Recientes& recientes_;
};

} // namespace norvik::taller
