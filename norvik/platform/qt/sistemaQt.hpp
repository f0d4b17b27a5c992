// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/sistema.hpp"

#include <QPointer>
#include <QString>
#include <QWidget>

namespace norvik {

/// The services of the surroundings given by Qt: modal boxes with Spanish buttons and modal windows, the
/// application's pointer, its event loop, and the default printer. Windows that work together share one.
class SistemaQt : public Sistema {
public:
    /// Boxes stand above the modal window on top, else above `ventana`, when it is given and lives.
    explicit SistemaQt(QWidget* ventana = nullptr) : ventana_(ventana) {}
    SistemaQt(const SistemaQt&) = delete;
    SistemaQt& operator=(const SistemaQt&) = delete;
    ~SistemaQt() override { SistemaQt::ponPuntero(Puntero::Normal); }

    Respuesta muestraMensaje(const Mensaje& mensaje) override;
    void ponPuntero(Puntero puntero) override;
    Puntero puntero() const override { return puntero_; }
    void procesaEventos() override;
    void imprime(std::u16string_view texto) override;
    /// Shows a window, to which all input goes until it is closed or hidden; then comes back.
    virtual void muestraModal(QWidget& ventana);

    /// Printing goes to a PDF file instead of the default printer.
    void imprimeEnFichero(const QString& fichero) { fichero_ = fichero; }

private:
    QPointer<QWidget> ventana_;
    QObject testigo_; ///< lives as long as this object, which may go while a box is shown
    QString fichero_;
    Puntero puntero_ = Puntero::Normal;
};

} // namespace norvik
