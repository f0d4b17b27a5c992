// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

namespace norvik::inline v0_2 {

/// Las opciones que guarda el control, con los valores de un control nuevo. Los colores y `AutoNumero` son
/// del analizador léxico; la fuente, de la caja de texto.
struct Opciones {
    bool borde3D = true;                ///< se ve el marco hundido
    bool leftBorderVisible = true;      ///< se ve el borde izquierdo
    std::int16_t margenIzquierdo = 150; ///< del separador al texto, en twips
    bool hideSelection = true;          ///< lo que el anfitrión quiere de la caja de texto
    bool lenguajeSensible =
        false; ///< las definiciones que se registren desde ahora distinguen mayúsculas de minúsculas
    bool autoCorreccion = false;   ///< al colorear se corrigen las mayúsculas de las palabras reservadas
    std::int16_t espaciosXTAB = 4; ///< espacios que pone la tecla de tabulación
    bool autoTAB = true;           ///< una línea nueva toma los espacios iniciales de la de arriba
    bool marcarErrores = false;    ///< un error del análisis marca su línea
    bool muestraMensajesDeError = false; ///< un error del análisis se enseña en una caja de mensaje
    bool colorear = false; ///< se colorea la sintaxis: una línea, al salir de ella el cursor tras cambiarla;
                           ///< un texto entero, cuando se llama a `ColoreaTodo`
    std::u16string nombreLenguaje;
    std::u16string contenidoG;      ///< la especificación del lenguaje en que se trabaja
    std::u16string codigoPrueba;    ///< el texto para probarla
    bool pendienteGuardarG = false; ///< la especificación ha cambiado desde que se restauró el control
};

} // namespace norvik::inline v0_2
