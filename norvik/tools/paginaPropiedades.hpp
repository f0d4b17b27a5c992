// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/widget/controlNorvik.hpp"

#include <QLabel>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <functional>

namespace norvik {

/// A page on which the properties of a control are edited while its form is designed. A host of any kind
/// shows it, tells it what is selected, when to apply and when it is closed, and lets people apply while it
/// is changed. A page always works on the first of the selected controls, and is disabled without one.
class PaginaPropiedades : public QWidget {
    Q_OBJECT

public:
    /// Messages and windows of the page go through `sistema`, which must outlive it.
    PaginaPropiedades(SistemaQt& sistema, const QString& titulo, QWidget* padre);
    PaginaPropiedades(const PaginaPropiedades&) = delete;
    PaginaPropiedades& operator=(const PaginaPropiedades&) = delete;
    ~PaginaPropiedades() override = default;

    /// The caption of its tab.
    const QString& titulo() const { return titulo_; }

    /// Other controls are selected, or the same again: the fields show what the first one has.
    void cambiaSeleccion(const QList<ControlNorvik*>& controles);
    /// Writes the fields into the control. A field that cannot be written is told in a message box and keeps
    /// the page changed; false then.
    bool aplica();
    /// The host closes the page. What was not applied is dropped.
    void cierra() { suelta(Motivo::Cierre); }
    /// There is something to apply.
    bool cambiada() const { return cambiada_; }
    /// A command of the page is at work: the page must not be destroyed, nor its control.
    bool ocupada() const { return ocupada_; }

signals:
    void cambio(bool cambiada);

protected:
    /// Takes the fields from the control; nothing done to a field meanwhile marks the page.
    virtual void lee(ControlNorvik& control) = 0;
    virtual bool escribe(ControlNorvik& control) = 0;
    enum class Motivo : std::uint8_t { Cierre, OtraSeleccion };
    /// The page leaves its control.
    virtual void deja(ControlNorvik& /*control*/, Motivo /*motivo*/) {}

    /// The user changed a field.
    void marca() {
        if (!leyendo_) ponCambiada(true);
    }
    /// Carries out a command. A failure ends it and is told; a second start meanwhile does nothing.
    void ejecuta(const std::function<void()>& orden);
    /// The heading label of a page.
    QLabel& titular(const QString& texto);
    SistemaQt& sistema() { return sistema_; }
    ControlNorvik* control() { return control_; }

private:
    void ponCambiada(bool cambiada);
    void suelta(Motivo motivo);

    SistemaQt& sistema_;
    QString titulo_;
    QPointer<ControlNorvik> control_;
    bool cambiada_ = false;
    bool leyendo_ = false;
    bool ocupada_ = false;
};

} // namespace norvik
