// SPDX-License-Identifier: MIT

#include "acciones.hpp"

#include "norvik/tools/iconos.hpp"

#include <QMenuBar>

#include <array>
#include <optional>

namespace norvik::taller {

namespace {

struct Descripcion {
    QAction& accion;
    QString texto;
    QKeySequence teclas = {};
    std::optional<Dibujo> dibujo = {};
};

/// A menu's commands in their order; a null one stands for a line between them.
void llena(QMenu& menu, std::initializer_list<QAction*> acciones) {
    for (QAction* const accion : acciones) {
        if (accion != nullptr)
            menu.addAction(accion);
        else
            menu.addSeparator();
    }
}

} // namespace

Acciones::Acciones(QMainWindow& ventana)
    : textosRecientes(QStringLiteral("Textos &recientes")),
      formulariosRecientes(QStringLiteral("Formularios &recientes")), ejemplos(QStringLiteral("&Ejemplos")),
      archivo(QStringLiteral("&Archivo")), edicion(QStringLiteral("&Edición")),
      formulario(QStringLiteral("&Formulario")), lenguaje(QStringLiteral("&Lenguaje")),
      ver(QStringLiteral("&Ver")), ayuda(QStringLiteral("Ay&uda")),
      barra(QStringLiteral("Barra de órdenes")) {
    describe();
    ordena();
    llenaBarra();
    for (QMenu* const menu : {&archivo, &edicion, &formulario, &lenguaje, &ver, &ayuda})
        ventana.menuBar()->addMenu(menu);
    ventana.addToolBar(&barra);
}

void Acciones::describe() {
    const auto s = [](const char* texto) { return QString::fromUtf8(texto); };
    const auto descripciones = std::to_array<Descripcion>({
        {nuevoTexto, s("&Nuevo texto"), QKeySequence::New, Dibujo::Nuevo},
        {abrirTexto, s("&Abrir texto…"), QKeySequence::Open, Dibujo::Abrir},
        {guardarTexto, s("&Guardar texto"), QKeySequence::Save, Dibujo::Guardar},
        {guardarTextoComo, s("Guardar texto &como…"), s("Ctrl+Shift+S")},
        {guardarTodo, s("Guardar &todo"), s("Ctrl+Alt+S")},
        {imprimir, s("&Imprimir"), QKeySequence::Print, Dibujo::Imprimir},
        {salir, s("&Salir"), s("Ctrl+Q")},
        {deshacer, s("&Deshacer"), s("Ctrl+Z"), Dibujo::Deshacer},
        {rehacer, s("&Rehacer"), s("Ctrl+Y"), Dibujo::Rehacer},
        {cortar, s("Cor&tar"), s("Ctrl+X")},
        {copiar, s("&Copiar"), s("Ctrl+C")},
        {pegar, s("&Pegar"), s("Ctrl+V")},
        {seleccionarTodo, s("&Seleccionar todo"), s("Ctrl+A")},
        {buscar, s("&Buscar…"), s("Ctrl+F"), Dibujo::Buscar},
        {buscarSiguiente, s("Buscar s&iguiente"), s("F3")},
        {buscarAnterior, s("Buscar a&nterior"), s("Shift+F3")},
        {reemplazar, s("R&eemplazar…"), s("Ctrl+H")},
        {irALinea, s("Ir a la &línea…"), s("Ctrl+G")},
        {plegar, s("Plegar o desple&gar"), s("Ctrl+<")},
        {nuevoFormulario, s("&Nuevo formulario")},
        {abrirFormulario, s("&Abrir formulario…")},
        {guardarFormulario, s("&Guardar formulario")},
        {guardarFormularioComo, s("Guardar formulario &como…")},
        {anadir, s("Aña&dir un Norvik")},
        {quitar, s("&Quitar el Norvik seleccionado")},
        {disenio, s("&Modo de diseño"), s("F5"), Dibujo::Disenio},
        {propiedades, s("&Propiedades…"), s("F4"), Dibujo::Propiedades},
        {nuevoLenguaje, s("&Nuevo lenguaje…")},
        {abrirLenguaje, s("&Abrir lenguaje…"), s("Ctrl+L")},
        {guardarEspecificacion, s("&Guardar la especificación como…")},
        {ventanaLenguaje, s("&Ventana del lenguaje…"), s("F6")},
        {analizar, s("Anali&zar"), s("F8"), Dibujo::Analizar},
        {revisar, s("&Revisar"), s("F7")},
        {informe, s("Ver &informe"), s("F9"), Dibujo::Informe},
        {presentacion, s("&Presentación"), s("F11")},
        {manual, s("&Manual"), s("F1")},
        {teclas, s("&Teclas"), s("Ctrl+F1")},
        {inicio, s("Página de &inicio")},
        {visita, s("&Visita guiada")},
        {acerca, s("&Acerca de Norvik")},
    });
    for (const Descripcion& d : descripciones) {
        d.accion.setText(d.texto);
        d.accion.setShortcut(d.teclas);
        if (d.dibujo) d.accion.setIcon(icono(*d.dibujo));
    }
    disenio.setCheckable(true);
    presentacion.setCheckable(true);
    salir.setMenuRole(QAction::QuitRole);
    acerca.setMenuRole(QAction::AboutRole);
}

void Acciones::ordena() {
    QAction* const raya = nullptr;
    llena(archivo, {&nuevoTexto, &abrirTexto, textosRecientes.menuAction(), raya, &guardarTexto,
                    &guardarTextoComo, &guardarTodo, raya, &imprimir, raya, &salir});
    llena(edicion, {&deshacer, &rehacer, raya, &cortar, &copiar, &pegar, &seleccionarTodo, raya, &buscar,
                    &buscarSiguiente, &buscarAnterior, &reemplazar, raya, &irALinea, &plegar});
    llena(formulario,
          {&nuevoFormulario, &abrirFormulario, formulariosRecientes.menuAction(), &guardarFormulario,
           &guardarFormularioComo, raya, &anadir, &quitar, raya, &disenio, &propiedades});
    llena(lenguaje, {&nuevoLenguaje, &abrirLenguaje, ejemplos.menuAction(), &guardarEspecificacion, raya,
                     &ventanaLenguaje, &analizar, &revisar, &informe});
    llena(ver, {&presentacion});
    llena(ayuda, {&manual, &teclas, raya, &inicio, &visita, raya, &acerca});
}

void Acciones::llenaBarra() {
    barra.setObjectName(QStringLiteral("barraDeOrdenes"));
    QAction* const raya = nullptr;
    for (QAction* const accion :
         {&nuevoTexto, &abrirTexto, &guardarTexto, &imprimir, raya, &deshacer, &rehacer, raya, &buscar, raya,
          &analizar, &informe, raya, &disenio, &propiedades}) {
        if (accion != nullptr)
            barra.addAction(accion);
        else
            barra.addSeparator();
    }
}

} // namespace norvik::taller
