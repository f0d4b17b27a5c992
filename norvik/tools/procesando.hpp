// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QFrame>
#include <QPointer>
#include <QPushButton>

#include <functional>
#include <stop_token>

namespace norvik {

/// The progress notice. It comes up without blocking or taking the focus, and stays above all other windows
/// until it is closed or goes. While it lives the work of its system can be cancelled by its button, and long
/// work lets nobody use another window. Who shows it refuses what must not be done meanwhile.
class Procesando final : public QFrame, public AvisoDeTrabajo {
    Q_OBJECT

public:
    enum class Aparece : std::uint8_t { Ya, SiTarda };

    /// In the middle of a window. When it goes before its work is over, that is cancelled.
    Procesando(SistemaQt& sistema, QWidget* sobre, Aparece cuando = Aparece::Ya);
    Procesando(const Procesando&) = delete;
    Procesando& operator=(const Procesando&) = delete;
    ~Procesando() override;

    void tarda() override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void dispone();
    void cancela();

    SistemaQt& sistema_;
    const QPointer<const QObject> sistemaVivo_; ///< that of a control goes with it
    AvisoDeTrabajo* const anterior_;
    QPushButton cancelar_;
};

/// Runs work of a system in another thread and waits for it, under a notice with which it can be cancelled
/// once it takes long. Raises what the work raises.
void trabajaConAviso(SistemaQt& sistema, QWidget* sobre, const std::function<void(std::stop_token)>& trabajo);

/// Recognises the text of a control where it can be cancelled, and raises what that raises; the parse that
/// comes next finds nothing there that it has to wait for.
void reconoceConAviso(ControlNorvik& norvik);

/// Colours the text of a control where it can be cancelled, which leaves it as it was; raises what
/// `ColoreaTodo` raises.
void coloreaConAviso(ControlNorvik& norvik);

} // namespace norvik
