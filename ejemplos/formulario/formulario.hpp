// SPDX-License-Identifier: MIT

#pragma once

#include "ui_formulario.h"

#include <QWidget>

/// A form made in Qt Designer: an editor for calculations, and the syntax tree of what is written there.
class Formulario final : public QWidget {
public:
    Formulario();

private:
    void analiza();
    void muestraArbol();

    Ui::Formulario ui_;
};
