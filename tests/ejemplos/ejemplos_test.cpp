// SPDX-License-Identifier: MIT

#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

using namespace norvik;

namespace {

using std::filesystem::path;

const path raiz = path(NORVIK_SOURCE_DIR) / "ejemplos";

std::vector<path> ficheros(const path& carpeta) {
    std::vector<path> todos;
    for (const auto& entrada : std::filesystem::directory_iterator(raiz / carpeta))
        todos.push_back(entrada.path());
    std::sort(todos.begin(), todos.end());
    return todos;
}

struct Editor {
    CajaTexto caja;
    std::string mensajes;
    SistemaMemoria sistema{[this](const Mensaje& mensaje) { mensajes += aUtf8(mensaje.texto) + '\n'; }};
    Norvik control{caja, sistema};

    bool compila(const std::string& lenguaje) {
        return control.CargaGramatica(leeTexto(raiz / lenguaje / (lenguaje + ".nvk"))) &&
               control.GeneraCompilador() && mensajes.empty();
    }
    /// Whether the text parses; the messages then are those of this parse.
    bool acepta(const path& fichero) {
        caja.ponTexto(leeTexto(fichero));
        mensajes.clear();
        return control.ConstruyeArbolSintactico();
    }
};

struct Ejemplo : testing::TestWithParam<const char*> {
    void SetUp() override { ASSERT_TRUE(editor.compila(GetParam())) << editor.mensajes; }

    Editor editor;
};

TEST_P(Ejemplo, SusTextosBuenosSonAceptados) {
    for (const path& fichero : ficheros(path(GetParam()) / "bien")) {
        EXPECT_TRUE(editor.acepta(fichero)) << fichero << ": " << aUtf8(editor.control.GetmensajeError());
        EXPECT_EQ(editor.mensajes, "") << fichero;
    }
}

TEST_P(Ejemplo, ElModuloDeCargaDaLoMismo) {
    Editor cargado;
    const std::u16string modulo = editor.control.Gramatica().textoModulo(u"Ejemplo", editor.control.Lexico());
    const auto error = CargaModulo(modulo, cargado.control);
    ASSERT_FALSE(error) << aUtf8(error->mensaje());
    std::vector<path> textos = ficheros(path(GetParam()) / "bien");
    std::ranges::copy(ficheros(path(GetParam()) / "mal"), std::back_inserter(textos));
    for (const path& fichero : textos) {
        EXPECT_EQ(editor.acepta(fichero), cargado.acepta(fichero)) << fichero;
        EXPECT_EQ(editor.mensajes, cargado.mensajes) << fichero;
        EXPECT_EQ(aUtf8(editor.control.GetArbolSintactico().toString()),
                  aUtf8(cargado.control.GetArbolSintactico().toString()))
            << fichero;
        editor.control.ColoreaTodo();
        cargado.control.ColoreaTodo();
        EXPECT_EQ(editor.caja.colores(), cargado.caja.colores()) << fichero;
    }
}

TEST_P(Ejemplo, SoloElPascalTieneUnConflicto) {
    const std::string esperado =
        std::string(GetParam()) == "pascal"
            ? "Problemas detectados:\r\n\r\nConflicto D138 / R39 en el estado 137, símbolo sino.\r\n"
            : "La gramática carece de problema alguno.";
    EXPECT_EQ(aUtf8(editor.control.Gramatica().textoProblemas()), esperado);
}

const std::string tiposDeC = "'auto', 'extern', 'register', 'static', 'typedef', 'const', 'volatile', "
                             "'char', 'double', 'float', 'int', "
                             "'long', 'short', 'signed', 'unsigned', 'void', nombre de tipo, ";

// clang-format off
const std::map<std::string, std::string> malos{
    {"calculadora/mal/caracter.txt", "Error (Línea 1, Columna 11): caracter '$' incorrecto."},
    {"calculadora/mal/final.txt", "Error: Se ha encontrado el final del fichero (Línea 2, Columna 15). Se esperaba ';', '+', '-', '*', '/', '^', ')'."},
    {"calculadora/mal/operador.txt", "Error: Se ha encontrado '*' (Línea 2, Columna 17). Se esperaba identificador, '-', número, '('."},
    {"calculadora/mal/parentesis.txt", "Error: Se ha encontrado ';' (Línea 1, Columna 15). Se esperaba '+', '-', ')'."},
    {"configuracion/mal/caracter.ini", "Error (Línea 2, Columna 15): caracter '@' incorrecto."},
    {"configuracion/mal/coma.ini", "Error: Se ha encontrado título de sección (Línea 4, Columna 1). Se esperaba clave, cadena, número, tamaño, hora, ruta, sí, no."},
    {"configuracion/mal/seccion.ini", "Error (Línea 1, Columna 1): caracter '[' incorrecto."},
    {"configuracion/mal/sin_igual.ini", "Error: Se ha encontrado número (Línea 2, Columna 8). Se esperaba '='."},
    {"consulta/mal/cadena.sql", "Error (Línea 1, Columna 37): caracter ''' incorrecto."},
    {"consulta/mal/caracter.sql", "Error (Línea 3, Columna 18): caracter '€' incorrecto."},
    {"consulta/mal/coma.sql", "Error: Se ha encontrado FROM (Línea 1, Columna 16). Se esperaba nombre, '(', NOT, NULL, número, EXISTS, '-', cadena."},
    {"consulta/mal/final.sql", "Error: Se ha encontrado el final del fichero (Línea 1, Columna 30). Se esperaba ';', ')', ',', WHERE, '=', NOT, '*', AS, FROM, JOIN, LEFT JOIN, GROUP BY, HAVING, ORDER BY, ASC, DESC, LIMIT, OR, AND, LIKE, BETWEEN, IN, IS, <>, '<', '>', '<=', '>=', '+', '-', '/'."},
    {"consulta/mal/is.sql", "Error: Se ha encontrado número (Línea 3, Columna 16). Se esperaba NOT, NULL."},
    {"consulta/mal/order.sql", "Error: Se ha encontrado nombre (Línea 1, Columna 30). Se esperaba ';', ')', ',', WHERE, JOIN, ON, LEFT JOIN, GROUP BY, ORDER BY, LIMIT."},
    {"json/mal/cadena_abierta.json", "Error (Línea 2, Columna 13): caracter '\"' incorrecto."},
    {"json/mal/coma_final.json", "Error: Se ha encontrado '}' (Línea 4, Columna 1). Se esperaba cadena."},
    {"json/mal/numero.json", "Error: Se ha encontrado número (Línea 1, Columna 9). Se esperaba '}', ',', ']'."},
    {"json/mal/sin_cerrar.json", "Error: Se ha encontrado el final del fichero (Línea 1, Columna 20). Se esperaba '}', ','."},
    {"json/mal/sin_comillas.json", "Error (Línea 2, Columna 3): caracter 'n' incorrecto."},
    {"pascal/mal/cadena.pas", "Error (Línea 3, Columna 12): caracter ''' incorrecto."},
    {"pascal/mal/caracter.pas", "Error (Línea 5, Columna 10): caracter '#' incorrecto."},
    {"pascal/mal/final.pas", "Error: Se ha encontrado el final del fichero (Línea 3, Columna 4). Se esperaba ';', '.'."},
    {"pascal/mal/matriz.pas", "Error: Se ha encontrado identificador (Línea 3, Columna 23). Se esperaba 'de'."},
    {"pascal/mal/punto_y_coma.pas", "Error: Se ha encontrado 'fin' (Línea 4, Columna 1). Se esperaba ';', '=', ':', ',', ']', 'de', '..', ')', 'entonces', 'sino', 'hacer', 'hasta', 'bajando', '<>', '<', '>', '<=', '>=', '+', '-', 'o', '*', '/', 'div', 'mod', 'y'."},
    {"pascal/mal/sino.pas", "Error: Se ha encontrado 'sino' (Línea 7, Columna 3). Se esperaba identificador, 'inicio', 'fin', 'si', 'mientras', 'repetir', 'hasta', 'para', según."},
    {"c/mal/cadena.c", "Error (Línea 1, Columna 11): caracter '\"' incorrecto."},
    {"c/mal/campo.c", "Error: Se ha encontrado número entero (Línea 3, Columna 7). Se esperaba ';', " + tiposDeC + "'struct', 'union', identificador, ',', 'enum', '*', '(', ')', '['."},
    {"c/mal/caracter.c", "Error (Línea 2, Columna 13): caracter '@' incorrecto."},
    {"c/mal/salto.c", "Error: Se ha encontrado número entero (Línea 2, Columna 8). Se esperaba identificador."},
    {"c/mal/si.c", "Error: Se ha encontrado identificador (Línea 2, Columna 6). Se esperaba '('."},
    {"c/mal/sin_cerrar.c", "Error: Se ha encontrado el final del fichero (Línea 2, Columna 12). Se esperaba ';', " + tiposDeC + "'{', '}', 'struct', 'union', identificador, 'enum', '*', '(', 'if', 'else', 'while', 'for', 'switch', 'do', 'return', 'break', 'continue', 'goto', etiqueta, 'case', 'default', '&', '+', '-', '++', '--', 'sizeof', '~', '!', número entero, número real, carácter, cadena."},
};
// clang-format on

TEST_P(Ejemplo, SusTextosMalosDanSuMensajeEntero) {
    for (const path& fichero : ficheros(path(GetParam()) / "mal")) {
        const std::string nombre = path(GetParam()) / "mal" / fichero.filename();
        EXPECT_FALSE(editor.acepta(fichero)) << nombre;
        EXPECT_EQ(aUtf8(editor.control.GetmensajeError()), malos.at(nombre));
    }
}

INSTANTIATE_TEST_SUITE_P(Todos, Ejemplo,
                         testing::Values("calculadora", "json", "configuracion", "pascal", "c", "consulta"),
                         [](const auto& ejemplo) { return std::string(ejemplo.param); });

} // namespace
