// SPDX-License-Identifier: MIT

// The example form as its user sees it: the colours of a line, and what it says of its text, of a wrong one
// and of one that is too long.

#include "formulario.hpp"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTextBlock>

#include <iostream>

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    Formulario formulario;
    formulario.show();
    QApplication::processEvents();
    const auto* const texto = formulario.findChild<QPlainTextEdit*>("Texto")->document();
    for (const auto& trozo : texto->findBlockByNumber(1).layout()->formats())
        std::cout << trozo.format.foreground().color().name().toStdString() << ' ';
    for (const auto& cambio : {QString(), QStringLiteral("escribe 1 +;"), QString(33000, u'1')}) {
        if (!cambio.isEmpty()) formulario.findChild<QWidget*>("editor")->setProperty("Text", cambio);
        formulario.findChild<QPushButton*>("analizar")->click();
        std::cout << '\n'
                  << formulario.findChild<QTreeWidget*>("arbol")->topLevelItemCount() << ' '
                  << formulario.findChild<QLabel*>("resultado")->text().toStdString();
    }
    std::cout << '\n';
    return 0;
}
