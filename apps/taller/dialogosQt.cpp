// SPDX-License-Identifier: MIT

#include "dialogosQt.hpp"

#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/ventanaEnUso.hpp"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::taller {

QWidget* DialogosQt::encimaDe() const {
    QWidget* const activa = ventanaEnUso();
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
    dialogo.setIconProvider(&iconos_);
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

/// What is wrong with the name stands below it while it is written.
std::optional<QString> DialogosQt::pideNombre(const QString& titulo, const QString& ahora,
                                              const std::function<QString(const QString&)>& reparos) {
    QDialog dialogo(encimaDe());
    dialogo.setWindowTitle(titulo);
    QVBoxLayout columna(&dialogo);
    QLabel rotulo(QStringLiteral("&Nombre nuevo:"));
    QLineEdit campo(ahora);
    QLabel motivo;
    QDialogButtonBox botones;
    rotulo.setBuddy(&campo);
    motivo.setTextFormat(Qt::PlainText);
    motivo.setWordWrap(true);
    motivo.setMinimumWidth(campo.fontMetrics().averageCharWidth() * 50);
    QPushButton& aceptar = *botones.addButton(QStringLiteral("&Cambiar"), QDialogButtonBox::AcceptRole);
    botones.addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
    for (QWidget* const pieza : std::initializer_list<QWidget*>{&rotulo, &campo, &motivo, &botones})
        columna.addWidget(pieza);
    const auto comprueba = [&] {
        sinFallos([&] {
            const QString dicho = reparos(campo.text());
            motivo.setText(dicho);
            campo.setAccessibleDescription(dicho);
            aceptar.setEnabled(dicho.isEmpty());
        });
    };
    QObject::connect(&campo, &QLineEdit::textChanged, &dialogo, comprueba);
    QObject::connect(&botones, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(&botones, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    comprueba();
    campo.selectAll();
    return dialogo.exec() == QDialog::Accepted ? std::optional(campo.text()) : std::nullopt;
}

} // namespace norvik::taller
