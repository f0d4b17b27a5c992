// SPDX-License-Identifier: MIT

#include "norvik/tools/destino.hpp"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace norvik {

Destino preguntaDestino(const QString& texto, const QString& guardar, const QString& descartar,
                        QWidget* ventana) {
    QWidget* const encimaDe = QApplication::activeModalWidget();
    QMessageBox caja(QMessageBox::Warning, QApplication::applicationDisplayName(), texto,
                     QMessageBox::NoButton, encimaDe != nullptr ? encimaDe : ventana);
    caja.setTextFormat(Qt::PlainText);
    QPushButton* const si = caja.addButton(guardar, QMessageBox::AcceptRole);
    QPushButton* const no = caja.addButton(descartar, QMessageBox::DestructiveRole);
    caja.setEscapeButton(caja.addButton(QStringLiteral("&Cancelar"), QMessageBox::RejectRole));
    caja.setDefaultButton(si);
    caja.exec();
    if (caja.clickedButton() == si) return Destino::Guardar;
    return caja.clickedButton() == no ? Destino::Descartar : Destino::Cancelar;
}

} // namespace norvik
