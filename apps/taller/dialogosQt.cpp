#include "dialogosQt.hpp"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace norvik::taller {

void DialogosQt::avisa(const Mensaje& mensaje) {
    SistemaQt(ventana_).muestraMensaje(mensaje);
}

Destino DialogosQt::preguntaGuardar(const QString& pregunta) {
    QMessageBox caja(QMessageBox::Warning, QApplication::applicationDisplayName(), pregunta,
                     QMessageBox::NoButton, ventana_);
    caja.setTextFormat(Qt::PlainText);
    caja.setInformativeText(QStringLiteral("Los cambios se perderán si no se guardan."));
    QPushButton* guardar = caja.addButton(QStringLiteral("&Guardar"), QMessageBox::AcceptRole);
    QPushButton* descartar = caja.addButton(QStringLiteral("&No guardar"), QMessageBox::DestructiveRole);
    caja.setEscapeButton(caja.addButton(QStringLiteral("&Cancelar"), QMessageBox::RejectRole));
    caja.setDefaultButton(guardar);
    caja.exec();
    if (caja.clickedButton() == guardar) return Destino::Guardar;
    return caja.clickedButton() == descartar ? Destino::Descartar : Destino::Cancelar;
}

std::optional<QString> DialogosQt::pregunta(QFileDialog& dialogo, const QString& aceptar) {
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
    QFileDialog dialogo(ventana_, titulo, carpeta_, filtros);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    return pregunta(dialogo, QStringLiteral("&Abrir"));
}

std::optional<QString> DialogosQt::eligeParaGuardar(const QString& titulo, const QString& filtros,
                                                    const QString& propuesto, const QString& extension) {
    QFileDialog dialogo(ventana_, titulo, carpeta_, filtros);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(extension);
    if (!propuesto.isEmpty()) dialogo.selectFile(propuesto);
    return pregunta(dialogo, QStringLiteral("&Guardar"));
}

} // namespace norvik::taller
