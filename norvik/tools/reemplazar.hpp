// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/buscador.hpp"
#include "norvik/tools/camposBusqueda.hpp"

#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include <functional>
#include <memory>

namespace norvik {

class ControlNorvik;

/// The replace dialog, which searches and changes the text of a control and closes when the control goes.
class Reemplazar final : public QDialog {
    Q_OBJECT

public:
    /// Shows the dialog and comes back when it is closed.
    static void muestra(ControlNorvik& control);

    explicit Reemplazar(ControlNorvik& control);
    Reemplazar(const Reemplazar&) = delete;
    Reemplazar& operator=(const Reemplazar&) = delete;
    ~Reemplazar() override { abandona(); }

private:
    /// The text that is searched and what searches it: kept by a command, too, which may tell something while
    /// the control goes and takes the dialog along.
    struct Busqueda {
        DestinoBusqueda destino;
        Buscador buscador{destino};
    };

    void nombraElementos();
    void conecta();
    using Orden = std::function<void(Buscador&)>;
    void conecta(QPushButton& boton, const Orden& orden);
    void ejecuta(const Orden& orden);
    std::u16string con() const { return combo3_.currentText().toStdU16String(); }
    void recuerda();
    void abandona();

    const std::shared_ptr<Busqueda> busqueda_ = std::make_shared<Busqueda>();
    CamposBusqueda campos_{this};
    QComboBox combo3_{this};
    QPushButton command1_{QStringLiteral("Buscar &siguiente"), this};
    QPushButton command2_{QStringLiteral("&Reemplazar"), this};
    QPushButton command3_{QStringLiteral("Reemplazar &todo"), this};
    QPushButton command4_{QStringLiteral("&Cancelar"), this};
};

} // namespace norvik
