// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/buscador.hpp"
#include "norvik/tools/camposBusqueda.hpp"

#include <QDialog>
#include <QPointer>
#include <QPushButton>

namespace norvik {

class ControlNorvik;

/// The find dialog. There is one in the process, which searches the text of the control that opened it last
/// and stands above all windows. It lives from the first time it is shown until it is closed, at the latest
/// as long as the window of that control.
class buscar final : public QDialog {
    Q_OBJECT

public:
    /// Shows the dialog for a control; when it is open already it is only brought to the front.
    static void muestra(ControlNorvik& control);
    /// Closes the dialog if it is open for a control that is about to go.
    static void olvida(const ControlNorvik& control);
    /// The dialog that is open, if any, gives up its place above all windows or takes it again.
    static void ponEncima(bool encima);

    explicit buscar(QWidget* ventana);
    buscar(const buscar&) = delete;
    buscar& operator=(const buscar&) = delete;
    ~buscar() override;

    void done(int resultado) override;

protected:
    void changeEvent(QEvent* evento) override;

private:
    static QPointer<buscar>& abierto();
    void nombraElementos();
    void conecta();
    void apunta(ControlNorvik& control);
    void buscaSiguiente();

    Buscador buscador_;
    QPointer<ControlNorvik> control_;
    CamposBusqueda campos_{this};
    QPushButton command1_{QStringLiteral("Buscar &siguiente"), this};
    QPushButton command2_{QStringLiteral("&Cancelar"), this};
    QPushButton command3_{QStringLiteral("&Reemplazar ..."), this};
};

} // namespace norvik
