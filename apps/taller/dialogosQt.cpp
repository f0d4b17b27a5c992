// SPDX-License-Identifier: MIT

#include "dialogosQt.hpp"

#include <QApplication>
#include <QFileInfo>

namespace norvik::taller {

QWidget* DialogosQt::encimaDe() const {
    QWidget* const activa = QApplication::activeWindow();
    return activa != nullptr ? activa : ventana_.data();
}

Destino DialogosQt::pregunta(const QString& pregunta, const QString& guardar, const QString& descartar) {
    return preguntaDestino(pregunta, guardar, descartar, encimaDe());
}

std::optional<QString> DialogosQt::fichero(QFileDialog& dialogo, const QString& aceptar) {
    dialogo.setLabelText(QFileDialog::LookIn, QStringLiteral("Buscar en:"));
    dialogo.setLabelText(QFileDialog::FileName, QStringLiteral("&Nombre:"));
    dialogo.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo:"));
    dialogo.setLabelText(QFileDialog::Accept, aceptar);
    dialogo.setLabelText(QFileDialog::Reject, QStringLiteral("&Cancelar"));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
    const QString elegido = dialogo.selectedFiles().constFirst();
    carpeta_ = QFileInfo(elegido).absolutePath();
    return elegido;
}

std::optional<QString> DialogosQt::eligeParaAbrir(const QString& titulo, const QString& filtros) {
    QFileDialog dialogo(encimaDe(), titulo, carpeta_, filtros);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    return fichero(dialogo, QStringLiteral("&Abrir"));
}

std::optional<QString> DialogosQt::eligeParaGuardar(const QString& titulo, const QString& filtros,
                                                    const QString& propuesto, const QString& extension) {
    QFileDialog dialogo(encimaDe(), titulo, carpeta_, filtros);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(extension);
    if (!propuesto.isEmpty()) dialogo.selectFile(propuesto);
    return fichero(dialogo, QStringLiteral("&Guardar"));
}

} // namespace norvik::taller
