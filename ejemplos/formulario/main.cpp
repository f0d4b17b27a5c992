// SPDX-License-Identifier: MIT

#include "formulario.hpp"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    Formulario formulario;
    formulario.show();
    return QApplication::exec();
}
