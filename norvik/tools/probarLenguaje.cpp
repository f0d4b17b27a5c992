// SPDX-License-Identifier: MIT

#include "norvik/tools/probarLenguaje.hpp"

#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/tools/procesando.hpp"

namespace norvik {

ProbarLenguaje::ProbarLenguaje(SistemaQt& sistema, QWidget* padre)
    : VentanaEditor(sistema, "ProbarLenguaje", QStringLiteral("Ventana para código de pruebas"), padre) {
    QAction& prueba = herramienta("Test", QStringLiteral("Test"), Qt::Key_F5, [this] { test(); });
    ponEnBarraConTexto(prueba, Dibujo::Ejecutar);
    ponMenus(QStringLiteral("&Archivo"), {&prueba},
             QStringLiteral("Editor de códigos de prueba para gramática 1.0 alfa"));
}

void ProbarLenguaje::carga() {
    cargada_ = true;
    Norvik1().control().Text(ranurasDisenio().textoPrueba);
    coloreaConAviso(Norvik1());
}

void ProbarLenguaje::alCerrar() {
    if (cargada_) ranurasDisenio().textoPrueba = Norvik1().control().Text();
}

void ProbarLenguaje::test() {
    reconoceConAviso(Norvik1());
    if (!Norvik1().control().ConstruyeArbolSintactico()) return;
    sistema().muestraMensaje(
        {u"Análisis sintáctico correcto", u"Prueba de la gramática", Icono::Informacion});
}

} // namespace norvik
