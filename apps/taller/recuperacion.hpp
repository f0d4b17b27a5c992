// SPDX-License-Identifier: MIT

#pragma once

#include "ventanaPrincipal.hpp"

#include "norvik/base/provisional.hpp"

#include <QTimer>

#include <filesystem>
#include <optional>

namespace norvik::taller {

/// Keeps a copy of what is not saved in the windows, no more than a second behind the keys, and offers what a
/// workbench left that did not come to close.
///
/// The copies of a workbench are a file of a folder that all of them share, beside another one that the
/// workbench holds locked: the system drops a lock with its process, whatever ended it, so that a copy whose
/// lock is free is one that was left behind.
class Recuperacion final : public QObject {
    Q_OBJECT

public:
    /// Both windows outlive it. Nothing happens to the folder before there is something to copy.
    Recuperacion(VentanaPrincipal& ventana, Dialogos& dialogos, std::filesystem::path carpeta);
    Recuperacion(const Recuperacion&) = delete;
    Recuperacion& operator=(const Recuperacion&) = delete;
    /// The windows were closed, and what was not saved was given up.
    ~Recuperacion() override;

    /// Asks a person what is to become of the copies that were left, and does it.
    void ofrece();
    /// Copies what there is, now. What is in the way is told in the window, and false.
    bool copia();
    /// The same, and the copy stays when the process ends.
    void conserva();

private:
    void pideCopia();
    void escribe(const CopiaTaller& copia);
    void olvida();
    bool tieneCerrojo() const;
    void ofrece(const std::filesystem::path& cerrojo);
    static CopiaTaller lee(const std::filesystem::path& fichero);
    bool recupera(const std::filesystem::path& fichero);

    VentanaPrincipal& ventana_;
    Dialogos& dialogos_;
    std::filesystem::path carpeta_;
    NombresProvisionales cerrojos_;
    std::optional<NombresProvisionales::Fichero> cerrojo_; ///< held while there is a copy
    QTimer espera_;
    bool conserva_ = false;
};

} // namespace norvik::taller
