#pragma once

#include "dialogos.hpp"
#include "elementoFormulario.hpp"

#include "norvik/tools/paginaPropiedades.hpp"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>
#include <vector>

namespace norvik::taller {

/// The property pages of a control of the form.
class VentanaPropiedades final : public QDialog {
    Q_OBJECT

public:
    /// In the order of the control's pages.
    enum class Pagina : std::uint8_t { General, Gramatica, Colores };

    VentanaPropiedades(ElementoFormulario& elemento, SistemaQt& sistema, Dialogos& dialogos, Pagina primera,
                       QWidget* padre);

    /// Asks what is to become of what was not applied; does not close while a page is at work.
    void done(int resultado) override;

private:
    bool aplica();
    bool puedeCerrarse();
    void actualiza();

    Dialogos& dialogos_;
    QString nombre_;
    QVBoxLayout columna_;
    QHBoxLayout botones_;
    QTabWidget fichas_;
    std::vector<std::unique_ptr<PaginaPropiedades>> paginas_;
    QPushButton aplicar_{QStringLiteral("&Aplicar")};
    QPushButton cerrar_{QStringLiteral("&Cerrar")};
};

} // namespace norvik::taller
