// SPDX-License-Identifier: MIT

#include "norvik/tools/camposBusqueda.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/tools/ventanas.hpp"
#include "norvik/widget/menuDeTexto.hpp"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

namespace norvik {

CamposBusqueda::CamposBusqueda(QWidget* padre) : QWidget(padre) {
    hazEditable(combo1_, "Combo1", QStringLiteral("Buscar"));
    for (const std::u16string_view direccion : direccionesBusqueda) combo2_.addItem(aQString(direccion));
    nombra(combo2_, "Combo2", QStringLiteral("Dirección"));
    nombra(check1_, "Check1", check1_.text());
    nombra(check2_, "Check2", check2_.text());
    connect(&combo1_, &QComboBox::editTextChanged, this,
            [this](const QString& texto) { emit textoCambiado(!texto.isEmpty()); });
    disponeAmbito();
    dispone();
}

void CamposBusqueda::dispone() {
    filas_.setContentsMargins(0, 0, 0, 0);
    filas_.setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    filas_.addRow(QStringLiteral("Buscar :"), &combo1_);
    filas_.addRow(QStringLiteral("&Dirección :"), &combo2_);
    filas_.addRow(&check1_);
    filas_.addRow(&check2_);
    filas_.addRow(&ambito_);
}

/// The whole text is searched: that is all the choice there is.
void CamposBusqueda::disponeAmbito() {
    nombra(ambito_, "Frame1", ambito_.title());
    ambito_.setEnabled(false);
    auto& columna = nuevo<QVBoxLayout>(&ambito_);
    const auto pon = [&](const char* nombre, const QString& texto) {
        auto& opcion = nuevo<QRadioButton>(texto, &ambito_);
        nombra(opcion, nombre, texto);
        columna.addWidget(&opcion);
        return &opcion;
    };
    pon("Option1", QStringLiteral("Texto seleccionado"));
    pon("Option2", QStringLiteral("Todo del texto"))->setChecked(true);
    pon("Option3", QStringLiteral("Texto no selecciona."));
}

Peticion CamposBusqueda::peticion() const {
    return {combo1_.currentText().toStdU16String(), combo2_.currentText().toStdU16String(),
            check1_.isChecked(), check2_.isChecked()};
}

void CamposBusqueda::prepara() {
    const std::u16string& ultima = estadoBusqueda().ultimaBusqueda;
    ponHistorial();
    combo1_.setEditText(aQString(ultima));
    combo2_.setCurrentIndex(0);
    emit textoCambiado(!ultima.empty());
}

void CamposBusqueda::ponHistorial() {
    ponTextos(combo1_, estadoBusqueda().historialBusquedas);
}

void CamposBusqueda::pon(QComboBox& lista, const QString& rotulo) {
    filas_.insertRow(1, rotulo, &lista);
    // A list comes after the text box inside the one before it, which is the newest element.
    QWidget* anterior = &combo1_;
    for (QWidget* siguiente : std::initializer_list<QWidget*>{&lista, &combo2_, &check1_, &check2_})
        setTabOrder(std::exchange(anterior, siguiente), siguiente);
}

void hazEditable(QComboBox& lista, const char* nombre, const QString& accesible) {
    nombra(lista, nombre, accesible);
    lista.setEditable(true);
    lista.setCompleter(nullptr);
    lista.setInsertPolicy(QComboBox::NoInsert);
    lista.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int caracteres = 30;
    lista.setMinimumContentsLength(caracteres);
    lista.lineEdit()->setAccessibleName(accesible);
    ponMenuDeTexto(*lista.lineEdit());
}

void ponTextos(QComboBox& lista, const std::vector<std::u16string>& textos) {
    const QSignalBlocker sinAvisos(lista);
    const QString escrito = lista.currentText();
    lista.clear();
    for (const std::u16string& texto : textos) lista.addItem(aQString(texto));
    lista.setEditText(escrito);
}

void dispone(QDialog& dialogo, CamposBusqueda& campos, std::initializer_list<QPushButton*> botones) {
    auto& fila = nuevo<QHBoxLayout>(&dialogo);
    fila.addWidget(&campos, 1);
    auto& columna = nuevo<QVBoxLayout>();
    fila.addLayout(&columna);
    QWidget* anterior = &campos.ultimo();
    for (QPushButton* boton : botones) {
        columna.addWidget(boton);
        QWidget::setTabOrder(std::exchange(anterior, boton), boton);
    }
    columna.addStretch();
    (*botones.begin())->setDefault(true);
    fila.setSizeConstraint(QLayout::SetMinimumSize);
}

} // namespace norvik
