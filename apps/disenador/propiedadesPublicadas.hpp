// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <string_view>

namespace norvik::disenador {

enum class Clase : std::uint8_t { Otra, Numero16, Nombre, Texto };

/// How a property of the control is shown in the property editor: in which group, with which help.
struct PropiedadPublicada {
    const char* nombre;
    std::u16string_view grupo;
    std::u16string_view ayuda;
    Clase clase = Clase::Otra; ///< what it needs besides what its type says
};

inline constexpr auto propiedadesPublicadas = std::to_array<PropiedadPublicada>({
    {"Borde3D", u"Aspecto", u"Muestra el marco hundido."},
    {"LeftBorderVisible", u"Aspecto", u"Muestra el borde izquierdo, el de los signos de error."},
    {"MargenIzquierdo", u"Aspecto", u"Distancia del borde al texto, en twips.", Clase::Numero16},
    {"HideSelection", u"Aspecto", u"La selección no se ve cuando el texto no tiene el foco."},
    {"Font", u"Aspecto", u"Letra del texto."},
    {"EspaciosXTAB", u"Edición", u"Espacios que escribe la tecla de tabulación.", Clase::Numero16},
    {"AutoTAB", u"Edición", u"Una línea nueva empieza con los espacios de la anterior."},
    {"AutoCorreccion", u"Edición", u"Al colorear se corrigen las mayúsculas de las palabras reservadas."},
    {"AutoNumero", u"Edición", u"Optimiza los números al escribir."},
    {"soloLectura", u"Edición", u"El usuario no puede cambiar el texto."},
    {"coloreaAlEscribir", u"Ayudas", u"Los colores están al día tras cada cambio."},
    {"numerosDeLinea", u"Ayudas", u"Números de línea en el borde izquierdo."},
    {"resaltaLinea", u"Ayudas", u"La línea del cursor tiene otro fondo."},
    {"resaltaParejas", u"Ayudas", u"Se resaltan el paréntesis junto al cursor y su pareja."},
    {"permiteZoom", u"Ayudas", u"Control con la rueda o con +, - y 0 cambia el tamaño de la letra."},
    {"deshacePorPalabras", u"Ayudas", u"Deshacer quita palabras enteras."},
    {"sangraSeleccion", u"Ayudas", u"El tabulador sangra las líneas seleccionadas."},
    {"teclasDePalabra", u"Ayudas", u"Control con las flechas y las teclas de borrar va por palabras."},
    {"barraDeBusqueda", u"Ayudas", u"Se busca en una barra bajo el texto."},
    {"completa", u"Ayudas", u"Control+Espacio propone lo que puede seguir."},
    {"pliega", u"Ayudas", u"Se pueden plegar las construcciones de varias líneas."},
    {"MarcarErrores", u"Análisis", u"Un error del análisis marca su línea."},
    {"MuestraMensajesDeError", u"Análisis", u"Un error del análisis se dice en un mensaje."},
    {"NomLenguaje", u"Lenguaje", u"Nombre del lenguaje.", Clase::Nombre},
    {"LenguajeSensible", u"Lenguaje", u"Las definiciones que se cargan distinguen mayúsculas de minúsculas."},
    {"ContenidoG", u"Lenguaje", u"Especificación del lenguaje.", Clase::Texto},
    {"CodigoPrueba", u"Lenguaje", u"Texto con que se prueba el lenguaje.", Clase::Texto},
    {"Colorear", u"Colores", u"El texto se colorea según su lenguaje."},
    {"ColorPR", u"Colores", u"Color de las palabras reservadas."},
    {"ColorOperadores", u"Colores", u"Color de los operadores."},
    {"ColorComentarios", u"Colores", u"Color de los comentarios."},
    {"ColorEtiquetas", u"Colores", u"Color de las etiquetas."},
    {"ColorNumeros", u"Colores", u"Color de los números."},
    {"ColorError", u"Colores", u"Color de los errores que se marcan."},
    {"ColorCadena", u"Colores", u"Color de las cadenas."},
    {"ColorCaracter", u"Colores", u"Color de los caracteres."},
    {"ColorFechas", u"Colores", u"Color de las fechas."},
});

/// Nothing for a property that is not the control's own.
inline const PropiedadPublicada* publicada(const QString& nombre) {
    for (const PropiedadPublicada& p : propiedadesPublicadas)
        if (nombre == QLatin1String(p.nombre)) return &p;
    return nullptr;
}

} // namespace norvik::disenador
