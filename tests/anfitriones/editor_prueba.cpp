// The editor as its user sees it: the list of errors of a text, and what a click on one selects.

#include "editor.hpp"

#include <QApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    if (argc != 2) return 2;
    Editor editor(norvik::leeTexto(argv[1]));
    editor.show();
    for (const char16_t* texto : {u"1 + 2", u"1 +\n(2 3)"}) {
        editor.texto->control().Text(texto);
        std::cout << editor.errores->count() << '\n';
    }
    auto* const error = editor.errores->item(0);
    std::cout << error->text().toStdString() << '\n';
    editor.errores->setCurrentItem(error);
    emit editor.errores->itemClicked(error);
    std::cout << norvik::aUtf8(editor.texto->control().SelText()) << '\n';
}
