// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/tools/iconos.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QList>
#include <QMainWindow>
#include <QToolBar>

#include <functional>

namespace norvik {

/// What the windows of design time have in common: a control, the commands for its text, each an action under
/// its tool identifier, and a status bar with the caret's place.
class VentanaEditor : public QMainWindow {
    Q_OBJECT

public:
    ControlNorvik& Norvik1() { return norvik1_; }

protected:
    /// Messages and windows go through `sistema`, which must outlive the window.
    VentanaEditor(SistemaQt& sistema, const char* nombre, const QString& titulo, QWidget* padre);

    /// A command under its tool identifier.
    QAction& herramienta(const char* id, const QString& rotulo, const QKeySequence& teclas,
                         const std::function<void()>& orden);
    void ponEnBarra(QAction& accion, Dibujo dibujo);
    void ponEnBarraConTexto(QAction& accion, Dibujo dibujo);
    /// The menus, the first with the window's own commands before the common ones; and the first line of the
    /// information box.
    void ponMenus(const QString& primero, const QList<QAction*>& propias, const QString& informacion);
    /// Closes the window, from a command too.
    void cierra();
    /// What the window gives back when it is closed.
    virtual void alCerrar() = 0;

    SistemaQt& sistema() { return sistema_; }
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void ejecuta(const std::function<void()>& orden);
    QAction& sinAccion(const char* id, const QString& rotulo);
    void acaba();
    void ponEdicion();
    void ponAyuda(const QString& informacion);
    void seleccionaTodo();
    void borraTodo();
    void muestraLugar();
    void muestraHistorial();

    SistemaQt& sistema_;
    ControlNorvik norvik1_;
    QToolBar barra_;
    QLabel lugar_;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    bool ocupada_ = false; ///< a command runs
};

} // namespace norvik
