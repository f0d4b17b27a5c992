// SPDX-License-Identifier: MIT

#include "dialogosQt.hpp"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace norvik::taller {

QWidget* DialogosQt::encimaDe() const {
    QWidget* const activa = QApplication::activeWindow();
    return activa != nullptr ? activa : ventana_.data();
}

Destino DialogosQt::pregunta(const QString& pregunta, const QString& guardar, const QString& descartar) {
    return preguntaDestino(pregunta, guardar, descartar, encimaDe());
}

/// The key that is pressed without looking loses nothing of either.
Choque DialogosQt::preguntaChoque(const QString& pregunta) {
    QMessageBox caja(QMessageBox::Warning, QApplication::applicationDisplayName(), pregunta,
                     QMessageBox::NoButton, encimaDe());
    caja.setTextFormat(Qt::PlainText);
    const QPushButton* const encima =
        caja.addButton(QStringLiteral("&Sobrescribir"), QMessageBox::DestructiveRole);
    QPushButton* const como = caja.addButton(QStringLiteral("&Guardar como…"), QMessageBox::AcceptRole);
    const QPushButton* const recarga =
        caja.addButton(QStringLiteral("&Recargar"), QMessageBox::DestructiveRole);
    caja.setEscapeButton(caja.addButton(QStringLiteral("&Cancelar"), QMessageBox::RejectRole));
    caja.setDefaultButton(como);
    caja.exec();
    const QAbstractButton* const pulsado = caja.clickedButton();
    if (pulsado == encima) return Choque::Sobrescribir;
    if (pulsado == como) return Choque::GuardarComo;
    return pulsado == recarga ? Choque::Recargar : Choque::Cancelar;
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
