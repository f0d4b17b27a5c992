// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

namespace norvik::taller {

/// The commands of the window in its menus and its tool bar. What they do is connected elsewhere.
class Acciones {
public:
    explicit Acciones(QMainWindow& ventana);

    QAction nuevoTexto, abrirTexto, guardarTexto, guardarTextoComo, guardarTodo, imprimir, salir;
    QAction deshacer, rehacer, cortar, copiar, pegar, seleccionarTodo;
    QAction buscar, buscarSiguiente, buscarAnterior, reemplazar, irALinea, plegar;
    QAction nuevoFormulario, abrirFormulario, guardarFormulario, guardarFormularioComo;
    QAction anadir, quitar, disenio, propiedades;
    QAction nuevoLenguaje, abrirLenguaje, guardarEspecificacion, ventanaLenguaje, analizar, revisar, informe;
    QAction presentacion;
    QAction manual, teclas, inicio, visita, acerca;

    QMenu textosRecientes, formulariosRecientes, ejemplos;
    QMenu archivo, edicion, formulario, lenguaje, ver, ayuda;
    QToolBar barra;

private:
    void describe();
    void ordena();
    void llenaBarra();
};

} // namespace norvik::taller
