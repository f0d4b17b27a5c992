// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/sistema.hpp"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <future>
#include <stop_token>
#include <utility>

namespace norvik {

/// What tells a person that something is being worked on, and asks for the end of it when they want that.
class AvisoDeTrabajo {
public:
    AvisoDeTrabajo() = default;
    AvisoDeTrabajo(const AvisoDeTrabajo&) = delete;
    AvisoDeTrabajo& operator=(const AvisoDeTrabajo&) = delete;

    const std::stop_source& parada() const { return parada_; }
    /// The work takes long enough for a person to wonder; it goes on while events run.
    virtual void tarda() = 0;

protected:
    ~AvisoDeTrabajo() = default;

private:
    std::stop_source parada_;
};

/// The services of the surroundings given by Qt: modal boxes with Spanish buttons and modal windows, the
/// application's pointer, its event loop, and the default printer. Windows that work together share one.
class SistemaQt : public Sistema {
public:
    /// Boxes stand above the modal window on top, else above the one that is used, else above `ventana`, when
    /// it is given and lives.
    explicit SistemaQt(QWidget* ventana = nullptr) : ventana_(ventana) {}
    SistemaQt(const SistemaQt&) = delete;
    SistemaQt& operator=(const SistemaQt&) = delete;
    ~SistemaQt() override { SistemaQt::ponPuntero(Puntero::Normal); }

    Respuesta muestraMensaje(const Mensaje& mensaje) override;
    void ponPuntero(Puntero puntero) override;
    Puntero puntero() const override { return puntero_; }
    void procesaEventos() override;
    /// While there is a notice, in another thread, so that it can be cancelled; `OperacionCancelada` is then
    /// raised when the work is over, in whatever way.
    void trabaja(const std::function<void(std::stop_token)>& trabajo) override;
    void imprime(std::u16string_view texto) override;
    /// Shows a window, to which all input goes until it is closed or hidden; then comes back.
    virtual void muestraModal(QWidget& ventana);

    /// Printing goes to a PDF file instead of the default printer.
    void imprimeEnFichero(const QString& fichero) { fichero_ = fichero; }
    /// Goes with this object.
    const QObject& testigo() const { return testigo_; }
    /// From now on work has this notice, or none; the one before.
    AvisoDeTrabajo* ponAviso(AvisoDeTrabajo* aviso) { return std::exchange(aviso_, aviso); }

private:
    void espera(const std::future<void>& trabajo);

    QPointer<QWidget> ventana_;
    QObject testigo_; ///< lives as long as this object, which may go while a box is shown
    QString fichero_;
    AvisoDeTrabajo* aviso_ = nullptr;
    Puntero puntero_ = Puntero::Normal;
};

} // namespace norvik
