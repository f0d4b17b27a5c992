// SPDX-License-Identifier: MIT

#include "ayuda.hpp"

#include <algorithm>
#include <array>

namespace norvik::orden {

namespace {

struct Ayuda {
    std::string_view orden;
    std::string_view texto;
};

constexpr std::string_view general = R"(norvik: lenguajes que se describen, se compilan y se usan

Uso:
  norvik analiza  LENGUAJE TEXTO [--formato arbol|json|lineas]
  norvik lexemas  LENGUAJE TEXTO [--formato tabla|json]
  norvik colorea  LENGUAJE TEXTO [--formato ansi|html]
  norvik informe  ESPECIFICACION [-o CARPETA] [--formato texto|html]
  norvik modulo   ESPECIFICACION NOMBRE [-o CARPETA] [--lenguaje vb|cpp]
  norvik revisa   ESPECIFICACION... [--formato texto|json|sarif] [--estricto]
  norvik prueba   LENGUAJE CARPETA [--actualiza] [--junit FICHERO]
  norvik frases   ESPECIFICACION [--cuantas N] [--semilla N] [--mal]
  norvik --help | --version
  norvik ORDEN --help

Órdenes:
  analiza   construye el árbol sintáctico de un texto
  lexemas   enumera los tokens de un texto
  colorea   muestra un texto con los colores de sus tokens
  informe   escribe el informe de una gramática y dice sus conflictos
  modulo    escribe el módulo que carga un lenguaje ya compilado
  revisa    dice lo que está mal o llama la atención en especificaciones
  prueba    comprueba que un lenguaje acepta unos textos y rechaza otros
  frases    escribe textos de un lenguaje

Donde se compila una especificación, --metodo clasico|slr|lalr|lr1 elige cómo se hace la
tabla; si no, lo elige su línea «'% metodo: lalr», o es el clásico.
En todas, --color siempre|nunca|auto dice si los errores y «colorea» llevan colores; con auto,
los llevan en un terminal, salvo con NO_COLOR o TERM=dumb.
LENGUAJE es la especificación de un lenguaje (por costumbre, NOMBRE.nvk) o un módulo
de carga (NOMBRE.bas) escrito por «norvik modulo».
«-» en lugar de un fichero es la entrada estándar.

Estado de salida:
  0  aceptado
  1  el lenguaje o el texto no son correctos
  2  línea de órdenes incorrecta, fichero que no se puede leer o escribir, u otro fallo
)";

constexpr std::array ayudas = {
    Ayuda{"analiza", R"(Uso: norvik analiza LENGUAJE TEXTO [--formato arbol|json|lineas]

Analiza TEXTO y muestra su árbol sintáctico.

  LENGUAJE     especificación, o módulo de carga (.bas)
  TEXTO        fichero que se analiza
  «-» en lugar de uno de los dos es la entrada estándar.

Opciones:
  --formato arbol    un nodo por línea, dibujado (por omisión)
  --formato json     todo el árbol en una línea de JSON
  --formato lineas   un objeto JSON por nodo y línea, en preorden
                     Con los dos últimos, un texto incorrecto da en la salida
                     una línea de JSON, {"diagnosticos":[…]}.
  --metodo M         clasico, slr, lalr o lr1: cómo se hace la tabla
  --help             muestra esta ayuda
)"},
    Ayuda{"lexemas", R"(Uso: norvik lexemas LENGUAJE TEXTO [--formato tabla|json]

Enumera los tokens de TEXTO en el orden de lectura. El último es EOF, o Norvik_ERROR
ante un carácter que no empieza ningún token.

  LENGUAJE     especificación, o módulo de carga (.bas)
  TEXTO        fichero que se lee
  «-» en lugar de uno de los dos es la entrada estándar.

Opciones:
  --formato tabla    una tabla (por omisión)
  --formato json     un objeto JSON por línea
  --metodo M         clasico, slr, lalr o lr1: cómo se hace la tabla
  --help             muestra esta ayuda
)"},
    Ayuda{"colorea", R"(Uso: norvik colorea LENGUAJE TEXTO [--formato ansi|html]

Muestra TEXTO con los colores de sus tokens.

  LENGUAJE     especificación, o módulo de carga (.bas)
  TEXTO        fichero que se colorea
  «-» en lugar de uno de los dos es la entrada estándar.

Opciones:
  --formato ansi     secuencias de color de terminal, siempre
  --formato html     una página HTML completa
  --metodo M         clasico, slr, lalr o lr1: cómo se hace la tabla
  --help             muestra esta ayuda

Sin --formato, los colores de terminal solo se emiten cuando la salida es un terminal.
)"},
    Ayuda{"informe", R"(Uso: norvik informe ESPECIFICACION [-o CARPETA] [--formato texto|html]

Escribe informeGramatica.txt (conjuntos, autómata y tabla SLR) y muestra los conflictos.
Cada cosa en que el método clásico se aparta de la verdad es un aviso.

  ESPECIFICACION   fichero con la especificación; «-» es la entrada estándar

Opciones:
  -o CARPETA   carpeta, que debe existir (por omisión, la actual);
               «-» escribe el informe en la salida estándar
  --formato texto   informeGramatica.txt (por omisión)
  --formato html    informeGramatica.html: una página con todo enlazado, los
                    conflictos contados y, con Graphviz, el autómata dibujado
  --metodo M   clasico, slr, lalr o lr1: cómo se hace la tabla
  --help       muestra esta ayuda
)"},
    Ayuda{"modulo", R"(Uso: norvik modulo ESPECIFICACION NOMBRE [-o CARPETA] [--lenguaje vb|cpp]

Escribe el módulo que carga el lenguaje sin generar nada, y muestra su ruta.

  ESPECIFICACION   fichero con la especificación; «-» es la entrada estándar
  NOMBRE           nombre del lenguaje: letras, cifras y subrayados

Opciones:
  -o CARPETA       carpeta, que debe existir (por omisión, la actual);
                   «-» escribe el módulo en la salida estándar
  --lenguaje vb    NOMBRE.bas (por omisión)
  --lenguaje cpp   NOMBRE.hpp: el lenguaje como constantes de C++, los números de
                   sus tokens, variables y reglas con nombre, y dos funciones,
                   CargaLenguaje(control) y lenguaje()
  --metodo M       clasico, slr, lalr o lr1: cómo se hace la tabla
  --help           muestra esta ayuda
)"},
    Ayuda{"revisa", R"(Uso: norvik revisa ESPECIFICACION... [--formato texto|json|sarif] [--estricto]

Dice todo lo que está mal en cada especificación, con su lugar, y lo que no impide
compilarla pero no hace lo que parece: tokens que nadie usa o que no ganan nunca,
variables a las que no se llega o de las que no sale ningún texto, ciclos, conflictos...

  ESPECIFICACION   fichero con la especificación; «-» es la entrada estándar

Opciones:
  --formato texto   cada hallazgo con su línea (por omisión)
  --formato json    un objeto JSON por línea
  --formato sarif   un documento SARIF 2.1.0
  --estricto        un aviso cuenta como un error
  --metodo M        clasico, slr, lalr o lr1: cómo se hace la tabla
  --help            muestra esta ayuda

El estado de salida es 0 si no hay errores y 1 si los hay.
)"},
    Ayuda{"prueba", R"(Uso: norvik prueba LENGUAJE CARPETA [--actualiza] [--junit FICHERO]

Analiza los textos de CARPETA/bien, que se deben aceptar, y los de CARPETA/mal, que
no. Si al lado de TEXTO está TEXTO.arbol, su árbol dibujado debe ser ese; si está
TEXTO.mal, sus errores, uno por línea, deben ser esos. Dice los textos que difieren,
cuántos pasan, y las reglas y los tokens que ningún texto aceptado usa.

  LENGUAJE     especificación, o módulo de carga (.bas); «-» es la entrada estándar
  CARPETA      la que contiene bien, mal o las dos

Opciones:
  --actualiza        escribe los .arbol y los .mal de todos los textos
  --junit FICHERO    escribe también un informe de JUnit
  --metodo M         clasico, slr, lalr o lr1: cómo se hace la tabla
  --help             muestra esta ayuda

El estado de salida es 0 si ninguno difiere y 1 si difiere alguno.
)"},
    Ayuda{"frases", R"(Uso: norvik frases ESPECIFICACION [--cuantas N] [--semilla N] [--mal]

Escribe textos del lenguaje, uno por línea: pocos, que usan todas las reglas. Cada uno
se ha analizado antes de escribirlo.

  ESPECIFICACION   fichero con la especificación; «-» es la entrada estándar

Opciones:
  --cuantas N   N textos al azar
  --semilla N   otros textos; con la misma salen los mismos (por omisión, 1)
  --mal         textos con un error cada uno, que el lenguaje rechaza
  --metodo M    clasico, slr, lalr o lr1: cómo se hace la tabla
  --help        muestra esta ayuda
)"}};

} // namespace

std::string_view ayudaGeneral() {
    return general;
}

std::string_view ayudaDe(std::string_view orden) {
    const auto* const ayuda = std::find_if(ayudas.begin(), ayudas.end(),
                                           [orden](const Ayuda& otra) { return otra.orden == orden; });
    return ayuda != ayudas.end() ? ayuda->texto : general;
}

} // namespace norvik::orden
