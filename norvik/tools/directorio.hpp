// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/sistema.hpp"
#include "norvik/tools/etiquetaDeRuta.hpp"

#include <QComboBox>
#include <QDialog>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QPushButton>
#include <QTreeView>

#include <filesystem>

namespace norvik {

/// The folder into which reports and modules are written, one for the whole process: the outcome of the last
/// folder chooser, empty when none was chosen.
inline std::filesystem::path& directorioDestino() {
    static std::filesystem::path carpeta;
    return carpeta;
}

/// The folder chooser. It starts at the folder chosen last, else at the current one; accepting it sets
/// `directorioDestino`, which showing it empties. A drive is a place where file systems are mounted, or the
/// user's own folder.
class directorio final : public QDialog {
    Q_OBJECT

public:
    explicit directorio(Sistema& sistema, QWidget* padre = nullptr);

private:
    void nombraElementos();
    void dispone();
    void conecta();
    void abre();
    void llenaUnidades();
    void eligeUnidad(int indice);
    void senalaCarpeta();
    void muestraCarpeta(const QString& carpeta);
    void acepta();

    Sistema& sistema_;
    QFileIconProvider iconos_;
    QFileSystemModel carpetas_;
    QComboBox drive1_{this};
    QTreeView dir1_{this};
    EtiquetaDeRuta dirDestino_{this};
    QPushButton command1_{QStringLiteral("&Aceptar"), this};
    QPushButton command2_{QStringLiteral("&Cancelar"), this};
    int unidad_ = 0; ///< the last one that could be read
};

} // namespace norvik
