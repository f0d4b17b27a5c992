#pragma once

#include "norvik/platform/sistema.hpp"

#include <QPointer>
#include <QString>
#include <QWidget>

namespace norvik {

/// The services of the surroundings given by Qt: modal boxes with Spanish buttons above a window, the
/// application's pointer, its event loop, and the default printer.
class SistemaQt final : public Sistema {
public:
    /// Boxes stand above `ventana`, when it is given and lives.
    explicit SistemaQt(QWidget* ventana = nullptr) : ventana_(ventana) {}
    SistemaQt(const SistemaQt&) = delete;
    SistemaQt& operator=(const SistemaQt&) = delete;
    ~SistemaQt() override { SistemaQt::ponPuntero(Puntero::Normal); }

    Respuesta muestraMensaje(const Mensaje& mensaje) override;
    void ponPuntero(Puntero puntero) override;
    Puntero puntero() const override { return puntero_; }
    void procesaEventos() override;
    void imprime(std::u16string_view texto) override;

    /// Printing goes to a PDF file instead of the default printer.
    void imprimeEnFichero(const QString& fichero) { fichero_ = fichero; }

private:
    QPointer<QWidget> ventana_;
    QString fichero_;
    Puntero puntero_ = Puntero::Normal;
};

} // namespace norvik
