// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string_view>

namespace norvik::inline v0_2 {

/// What a host developer reads about a member of the control, where its development tool shows such texts.
struct Descripcion {
    std::u16string_view miembro;
    std::u16string_view texto;
};

inline constexpr std::array<Descripcion, 9> descripciones = {{
    {u"MarcaErrorLinea", u"Resalta en el color de error la linea especificada."},
    {u"MarcaErrorLineaToken",
     u"Resalta en el color de error la linea en la que se encuentra el último token leido."},
    {u"MarcaErrorToken", u"Resalta en el color de error el último token leido (su lexema en el código)."},
    {u"PonSignoError", u"Indica si al producirse un error en el análisis de un código fuente se señalará la "
                       u"linea que lo provocó con un icono en el margen izquierdo."},
    {u"InicializaLecturaTokens", u"Hace que la siguinete llamada a DevolverToken se aplique desde el "
                                 u"principio del texto de un control Norvik."},
    {u"LineaToken",
     u"Devuelve un número que Indica la linea en la que se encuentra el último token devuelto."},
    {u"ColumnaToken",
     u"Devuelve un número que Indica la columna en la que se encuentra el último token devuelto."},
    {u"ColoreaTodo", u"Colorea según la sintaxis del lenguaje especificado todo el contenido del texto en un "
                     u"control Norvik."},
    {u"ColoreaLineaActual",
     u"Colorea guiado por la sintaxis la línea en la que se encuentra el punto de inserción."},
}};

} // namespace norvik::inline v0_2
