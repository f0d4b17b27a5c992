// SPDX-License-Identifier: MIT

#include "norvik/tools/directorio.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QDialogButtonBox>
#include <QDir>
#include <QStorageInfo>
#include <QTimer>
#include <QVBoxLayout>

#include <system_error>

namespace norvik {

namespace {

/// Why a folder cannot be listed.
std::error_code fallo(const QString& carpeta) {
    std::error_code error;
    const std::filesystem::directory_iterator entradas(aRuta(carpeta), error);
    return error;
}

/// Volumes hold people's files; the system mounts much besides.
bool esVolumen(const QStorageInfo& montado) {
    return montado.isValid() && montado.isReady() && montado.device().startsWith("/dev/") &&
           QFileInfo(montado.rootPath()).isDir();
}

bool contiene(const QString& unidad, const QString& carpeta) {
    return carpeta == unidad || carpeta.startsWith(unidad.endsWith(u'/') ? unidad : unidad + u'/');
}

} // namespace

directorio::directorio(Sistema& sistema, QWidget* padre) : QDialog(padre), sistema_(sistema) {
    setObjectName(QStringLiteral("directorio"));
    setWindowTitle(QStringLiteral("Elección del directorio destino"));
    carpetas_.setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    carpetas_.setReadOnly(true);
    nombraElementos();
    dispone();
    llenaUnidades();
    conecta();
    abre();
}

void directorio::nombraElementos() {
    nombra(drive1_, "Drive1", QStringLiteral("Unidad"));
    nombra(dir1_, "Dir1", QStringLiteral("Carpetas"));
    nombra(dirDestino_, "dirDestino", QStringLiteral("Carpeta elegida"));
    nombra(command1_, "Command1", QStringLiteral("Aceptar"));
    nombra(command2_, "Command2", QStringLiteral("Cancelar"));
}

void directorio::dispone() {
    carpetas_.setIconProvider(&iconos_);
    dir1_.setModel(&carpetas_);
    for (int columna = 1; columna < carpetas_.columnCount(); ++columna) dir1_.hideColumn(columna);
    dir1_.setHeaderHidden(true);
    dir1_.setTabKeyNavigation(false);
    command1_.setDefault(true);
    auto& botones = nuevo<QDialogButtonBox>(this);
    botones.addButton(&command1_, QDialogButtonBox::AcceptRole);
    botones.addButton(&command2_, QDialogButtonBox::RejectRole);
    auto& columna = nuevo<QVBoxLayout>(this);
    columna.addWidget(&drive1_);
    columna.addWidget(&dir1_, 1);
    columna.addWidget(&dirDestino_);
    columna.addWidget(&botones);
    const QFontMetrics letra = fontMetrics();
    mide(*this, {letra.averageCharWidth() * 70, letra.lineSpacing() * 24});
}

void directorio::conecta() {
    connect(&drive1_, &QComboBox::activated, this,
            [this](int indice) { ejecuta(sistema_, [&] { eligeUnidad(indice); }); });
    connect(dir1_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& elegida) {
                if (elegida.isValid()) muestraCarpeta(carpetas_.filePath(elegida));
            });
    // Folders are read in the background: the chosen one is there when those round it are, in order.
    connect(&carpetas_, &QFileSystemModel::directoryLoaded, this, [this](const QString& leida) {
        sinFallos([&] {
            if (contiene(leida, dirDestino_.text())) QTimer::singleShot(0, this, &directorio::senalaCarpeta);
        });
    });
    connect(&command1_, &QPushButton::clicked, this, [this] { ejecuta(sistema_, [this] { acepta(); }); });
    connect(&command2_, &QPushButton::clicked, this, &QDialog::reject);
}

void directorio::llenaUnidades() {
    drive1_.addItem(QStringLiteral("/"), QStringLiteral("/"));
    const QString personal = QDir::homePath();
    if (personal != QStringLiteral("/"))
        drive1_.addItem(QStringLiteral("%1 (carpeta personal)").arg(personal), personal);
    for (const QStorageInfo& montado : QStorageInfo::mountedVolumes()) {
        const QString raiz = montado.rootPath();
        if (esVolumen(montado) && drive1_.findData(raiz) < 0) drive1_.addItem(raiz, raiz);
    }
}

/// The drive is the innermost that holds the folder.
void directorio::abre() {
    const QString ultima = deRuta(directorioDestino());
    directorioDestino().clear();
    const QString carpeta = QFileInfo(ultima).isDir() ? ultima : QDir::currentPath();
    for (int i = 1; i < drive1_.count(); ++i) {
        const QString candidata = drive1_.itemData(i).toString();
        const bool mejor = candidata.size() > drive1_.itemData(unidad_).toString().size();
        if (mejor && contiene(candidata, carpeta)) unidad_ = i;
    }
    drive1_.setCurrentIndex(unidad_);
    dir1_.setRootIndex(carpetas_.setRootPath(drive1_.itemData(unidad_).toString()));
    muestraCarpeta(carpeta);
    senalaCarpeta();
    dir1_.setFocus();
}

/// Shows the chosen folder where it stands in the tree.
void directorio::senalaCarpeta() {
    const QModelIndex donde = carpetas_.index(dirDestino_.text());
    if (donde == dir1_.rootIndex()) return;
    dir1_.setCurrentIndex(donde);
    dir1_.expand(donde);
    dir1_.scrollTo(donde, QAbstractItemView::PositionAtCenter);
}

void directorio::eligeUnidad(int indice) {
    const QString raiz = drive1_.itemData(indice).toString();
    if (const std::error_code error = fallo(raiz)) {
        drive1_.setCurrentIndex(unidad_);
        const std::u16string texto = raiz.toStdU16String() + u": " + causaDelSistema(error.value());
        sistema_.muestraMensaje({texto, u"Atención"});
        return;
    }
    unidad_ = indice;
    dir1_.setRootIndex(carpetas_.setRootPath(raiz));
    muestraCarpeta(raiz);
}

void directorio::muestraCarpeta(const QString& carpeta) {
    dirDestino_.setText(carpeta);
    dirDestino_.setToolTip(ayudaLlana(carpeta));
}

void directorio::acepta() {
    directorioDestino() = aRuta(dirDestino_.text());
    accept();
}

} // namespace norvik
