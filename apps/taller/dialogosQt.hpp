// SPDX-License-Identifier: MIT

#pragma once

#include "dialogos.hpp"

#include <QFileDialog>
#include <QFileIconProvider>
#include <QPointer>

namespace norvik::taller {

/// Qt has no Spanish word for a folder here.
class IconosDeFichero final : public QFileIconProvider {
public:
    QString type(const QFileInfo& fichero) const override {
        return fichero.isDir() ? QStringLiteral("Carpeta") : QFileIconProvider::type(fichero);
    }
};

/// The questions as modal windows above another one.
class DialogosQt final : public Dialogos {
public:
    /// They stand above the window that is worked in, or above this one while none is.
    void ponVentana(QWidget* ventana) { ventana_ = ventana; }

    Destino pregunta(const QString& pregunta, const QString& guardar, const QString& descartar) override;
    Choque preguntaChoque(const QString& pregunta) override;
    std::optional<QString> eligeParaAbrir(const QString& titulo, const QString& filtros) override;
    std::optional<QString> eligeParaGuardar(const QString& titulo, const QString& filtros,
                                            const QString& propuesto, const QString& extension) override;
    std::optional<QString> pideNombre(const QString& titulo, const QString& ahora,
                                      const std::function<QString(const QString&)>& reparos) override;

private:
    QWidget* encimaDe() const;
    std::optional<QString> fichero(QFileDialog& dialogo, const QString& aceptar);

    QPointer<QWidget> ventana_;
    IconosDeFichero iconos_;
    QString carpeta_; ///< where the last file was chosen
};

} // namespace norvik::taller
