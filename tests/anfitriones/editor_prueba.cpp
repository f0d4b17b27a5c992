// SPDX-License-Identifier: MIT

// The editor as its user sees it: the list of errors of a text, and what a click on one selects, and the list
// after an undo.

#include "editor.hpp"

#include <norvik/base/texto.hpp>

#include <QApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    if (argc != 2) return 2;
    Editor editor(QString::fromLocal8Bit(argv[1]));
    editor.show();
    editor.texto->Colorear(false); // one of the texts is too long for it
    for (const auto& texto :
         {std::u16string(u"1 + 2"), std::u16string(u"1 +\n(2 3)"), std::u16string(40000, u' ')}) {
        editor.texto->control().Text(texto);
        std::cout << editor.errores->count() << '\n';
        auto* const error = editor.errores->item(0);
        if (error == nullptr) continue;
        editor.errores->setCurrentItem(error);
        Q_EMIT editor.errores->itemClicked(error);
        for (int i = 0; i < editor.errores->count(); ++i)
            std::cout << editor.errores->item(i)->text().toStdString() << '\n';
        std::cout << norvik::aUtf8(editor.texto->control().SelText()) << '\n';
    }
    editor.texto->Text("1");
    editor.texto->SelText("+");
    std::cout << editor.errores->count();
    editor.texto->control().Undo();
    std::cout << editor.errores->count() << '\n';
}
