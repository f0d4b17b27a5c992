// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/tools/destino.hpp"
#include "norvik/tools/paginaPropiedades.hpp"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cstdint>
#include <memory>
#include <vector>

namespace norvik {

/// The property pages of a control, in a window of their own, with which its container edits it.
class VentanaPropiedades final : public QDialog {
    Q_OBJECT

public:
    /// In the order of the control's pages.
    enum class Pagina : std::uint8_t { General, Gramatica, Colores };

    /// `sistema` must outlive it; `pregunta` is asked what is to become of changes that were not applied.
    VentanaPropiedades(ControlNorvik& control, QString nombre, SistemaQt& sistema, PreguntaDestino pregunta,
                       Pagina primera, QWidget* padre);
    VentanaPropiedades(const VentanaPropiedades&) = delete;
    VentanaPropiedades& operator=(const VentanaPropiedades&) = delete;
    ~VentanaPropiedades() override;

    /// Asks when there is something to ask; does not close while a page is at work.
    void done(int resultado) override;

signals:
    void aplicado();

private:
    bool aplica();
    bool puedeCerrarse();
    void actualiza();

    PreguntaDestino pregunta_;
    QString nombre_;
    QVBoxLayout columna_;
    QHBoxLayout botones_;
    QTabWidget fichas_;
    std::vector<std::unique_ptr<PaginaPropiedades>> paginas_;
    QPushButton aplicar_{QStringLiteral("&Aplicar")};
    QPushButton cerrar_{QStringLiteral("&Cerrar")};
};

} // namespace norvik
