// SPDX-License-Identifier: MIT

#pragma once

namespace norvik::inline v0_2 {

/// Ayudas de edición. Un control nuevo las tiene apagadas, y es entonces el de siempre; las enciende el
/// anfitrión, y no se guardan con las opciones.
struct Ayudas {
    bool coloreaAlEscribir = false;  ///< con `Colorear`: los colores están al día tras cada cambio; tras
                                     ///< cargar otro lenguaje, en un widget, o con `Norvik::actualizaColores`
    bool numerosDeLinea = false;     ///< junto al texto
    bool resaltaLinea = false;       ///< la línea del cursor tiene otro fondo
    bool resaltaParejas = false;     ///< el paréntesis, corchete o llave junto al cursor y su pareja
    bool permiteZoom = false;        ///< Control con la rueda o con +, - y 0 cambia el tamaño de la letra
    bool deshacePorPalabras = false; ///< deshacer quita palabras enteras, y repone exactamente lo que había
    bool sangraSeleccion = false;    ///< Tabulador y Mayúsculas+Tabulador sangran las líneas seleccionadas
    bool teclasDePalabra =
        false; ///< Control con flechas, Retroceso y Suprimir: por palabras; Inicio y Fin: del texto
    bool barraDeBusqueda = false; ///< se busca en una barra bajo el texto, mientras se escribe
    bool completa = false;        ///< Control+Espacio propone lo que puede seguir
    bool pliega = false;          ///< se pueden plegar las construcciones de varias líneas

    bool operator==(const Ayudas&) const = default;
};

/// Todas encendidas.
constexpr Ayudas todasLasAyudas() {
    return {true, true, true, true, true, true, true, true, true, true, true};
}

} // namespace norvik::inline v0_2
