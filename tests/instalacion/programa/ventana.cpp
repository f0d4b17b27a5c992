// A host program with a window: the control on a form, with a class of the host's own beside it. Prints what
// its properties and signals say, and what the parse of a text gives.

#include <norvik/base/ficheros.hpp>
#include <norvik/base/texto.hpp>
#include <norvik/tools/controlNorvik.hpp>

#include <QApplication>
#include <QMainWindow>

#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const QApplication aplicacion(argc, argv);
    QMainWindow ventana;
    norvik::ControlNorvik control;
    ventana.setCentralWidget(&control);
    int cambios = 0;
    QObject::connect(&control, &norvik::ControlNorvik::change, [&cambios] { ++cambios; });
    control.setProperty("Colorear", true);
    ventana.show();
    norvik::Norvik& norvik = control.control();
    if (!norvik.CargaGramatica(norvik::leeTexto(argv[1])) || !norvik.GeneraCompilador()) return 1;
    norvik.CargarFichero(argv[2]);
    std::cout << (cambios > 0) << ' ' << norvik.ConstruyeArbolSintactico() << '\n'
              << norvik::aUtf8(norvik.GetmensajeError()) << '\n'
              << norvik::aUtf8(norvik.GetArbolSintactico().toString());
    ventana.takeCentralWidget();
    return 0;
}
