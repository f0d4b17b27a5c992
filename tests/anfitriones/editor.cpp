// SPDX-License-Identifier: MIT

// A Qt editor with a list of errors and a jump to each.
//
//   ./editor LANGUAGE.nvk

#include "editor.hpp"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    if (argc != 2) return 2;
    Editor editor(QString::fromLocal8Bit(argv[1]));
    editor.resize(800, 600);
    editor.show();
    return QApplication::exec();
}
