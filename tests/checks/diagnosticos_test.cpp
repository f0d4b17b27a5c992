// SPDX-License-Identifier: MIT

// docs/diagnosticos.md is made here: every code with something small that gives it, and its words. With
// NORVIK_ESCRIBE_DOCS in the environment the file is written, else it must be the same.
#include "apoyo/anfitrion.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/revision.hpp"
#include "norvik/report/modulo.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

using namespace norvik;
using apoyo::Anfitrion;

namespace {

using Diagnosticos = std::vector<Diagnostico>;

struct Ejemplo {
    Codigo codigo;
    std::u16string muestra; ///< what a reader sees
    std::function<Diagnosticos()> hazlo;
};

Ejemplo deEspecificacion(Codigo codigo, const std::u16string& especificacion) {
    return {codigo, especificacion, [=] { return revisa(especificacion); }};
}

const std::u16string sumas = u"Token num = \"[0-9]+\";\nToken mas = \"\\+\";\nS -> S mas num | num;";

Ejemplo deTexto(Codigo codigo, const std::u16string& texto) {
    return {codigo, sumas + u"\n\n" + texto,
            [=] { return analiza(Lenguaje::compila(sumas).lenguaje.value(), texto).diagnosticos; }};
}

Diagnosticos alCancelar() {
    std::stop_source parada;
    parada.request_stop();
    OpcionesAnalisis opciones;
    opciones.cancelacion = parada.get_token();
    return analiza(Lenguaje::compila(sumas).lenguaje.value(), std::u16string_view(u"1 + 2"), opciones)
        .diagnosticos;
}

Diagnosticos conMilReglas() {
    std::u16string especificacion = u"Token a = \"a\";\n";
    for (int i = 0; i <= 1000; ++i) especificacion += u"S -> a;\n";
    return Lenguaje::compila(especificacion).diagnosticos;
}

Diagnosticos conBytes() {
    return analiza(Lenguaje::compila(sumas).lenguaje.value(), std::string_view("1 + \xFF")).diagnosticos;
}

Diagnosticos sinReglas() {
    return analiza(Lenguaje::compila(u"Token a = \"a\";").lenguaje.value(), std::u16string_view(u"a"))
        .diagnosticos;
}

Diagnosticos desbocada() {
    const auto lenguaje = Lenguaje::compila(u"Token a = \"(a*)*\\1b\";\nS -> a;").lenguaje.value();
    return analiza(lenguaje, std::u16string(20'000, u'a')).diagnosticos;
}

Diagnosticos conTablaIncorrecta() {
    Anfitrion anfitrion;
    anfitrion.compila(sumas);
    std::u16string modulo =
        textoModulo(anfitrion.norvik.Gramatica().valores(), u"Sumas", anfitrion.norvik.Lexico());
    const std::u16string_view celda = u"SetElementoTablaSLR 1, 2, ";
    modulo.insert(modulo.find(celda) + celda.size(), u"99");
    return Lenguaje::cargaModulo(modulo).diagnosticos;
}

// Repairs have to be sought among many that cost much.
Diagnosticos agotada() {
    std::u16string texto;
    for (int i = 0; i < 200'000; ++i) texto += u"+ + + ";
    return analiza(Lenguaje::compila(sumas).lenguaje.value(), texto).diagnosticos;
}

const std::u16string a = u"Token a = \"a\";\n";

std::vector<Ejemplo> ejemplos() {
    return {
        deTexto(Codigo::CaracterIncorrecto, u"1 + ?"),
        deTexto(Codigo::TokenInesperado, u"1 + + 2"),
        {Codigo::BusquedaDesbocada, u"Token a = \"(a*)*\\1b\";\n\nveinte mil letras a", desbocada},
        {Codigo::ReparacionAgotada, u"un texto con más errores de los que se pueden arreglar en su tiempo",
         agotada},
        {Codigo::Cancelado, u"el anfitrión pide parar con su std::stop_token", alCancelar},
        {Codigo::Utf8Incorrecto, u"1 + y un byte FF, en UTF-8", conBytes},
        {Codigo::SinGramatica, u"Token a = \"a\";\n\na", sinReglas},
        deEspecificacion(Codigo::CodigoMalEscrito, u"Token a = \"\\c65\";\nS -> a;"),
        deEspecificacion(Codigo::ReferenciaDesconocida,
                         u"ExpReg letra = \"[a-z]\";\nToken a = \"<letras>+\";\nS -> a;"),
        deEspecificacion(Codigo::PatronIncorrecto, u"Token a = \"x*+\";\nS -> a;"),
        deEspecificacion(Codigo::VariableIndefinida, a + u"S -> a Resto;\nResta -> a;"),
        deEspecificacion(Codigo::TokenIndefinido, u"Token coma = \",\";\nS -> comma;"),
        deEspecificacion(Codigo::SinReglas, u"Token a = \"a\";"),
        deEspecificacion(Codigo::Conflicto, u"'% metodo: lalr\n" + a + u"S -> S S | a;"),
        {Codigo::CapacidadSuperada, u"mil y una reglas", conMilReglas},
        {Codigo::ModuloIncorrecto, u"un fichero .bas que no es un módulo: Hola",
         [] { return Lenguaje::cargaModulo(u"Hola").diagnosticos; }},
        {Codigo::TablaIncorrecta, u"un módulo cuya tabla nombra un estado que no hay", conTablaIncorrecta},
        deEspecificacion(Codigo::ConflictosDistintos,
                         u"'% metodo: lalr\n'% conflictos: 2\n" + a + u"S -> S S | a;"),
        deEspecificacion(Codigo::TokenSinUsar, a + u"Token b = \"b\";\nS -> a;"),
        deEspecificacion(Codigo::AuxiliarSinUsar, u"ExpReg cifra = \"[0-9]\";\n" + a + u"S -> a;"),
        deEspecificacion(Codigo::TokenTapado, u"Token id = \"[a-z]+\";\nToken si = \"si\";\nS -> si id;"),
        deEspecificacion(Codigo::TokenRepetido, a + a + u"S -> a;"),
        deEspecificacion(Codigo::PatronVacio, u"Token a = \"a*\";\nS -> a;"),
        deEspecificacion(Codigo::CaracterDeControl, u"Token a = \"x\\c(10)y\";\nS -> a;"),
        deEspecificacion(Codigo::VariableSinUsar, a + u"S -> a;\nB -> a;"),
        deEspecificacion(Codigo::VariableInalcanzable, a + u"S -> a;\nB -> a C;\nC -> a B | a;"),
        deEspecificacion(Codigo::VariableImproductiva, a + u"S -> a | B;\nB -> a B;"),
        deEspecificacion(Codigo::Ciclo, a + u"S -> a | S;"),
        deEspecificacion(Codigo::ReglaRepetida, a + u"S -> a | a;"),
        deEspecificacion(Codigo::NombreIncorrecto, u"Token fin-de-linea = \";\";\nS -> a;"),
        deEspecificacion(Codigo::CabezaMinuscula, a + u"S -> a resto;\nresto -> a;"),
        deEspecificacion(Codigo::CabezaDispersa, a + u"S -> B;\nB -> a;\nS -> a;"),
        deEspecificacion(Codigo::DirectivaDesconocida, u"'% metdo: lalr\n" + a + u"S -> a;"),
        deEspecificacion(Codigo::DirectivaIncorrecta, u"'% metodo: lalr2\n" + a + u"S -> a;"),
        deEspecificacion(Codigo::DirectivaSinEfecto, u"'% izquierda: a\n" + a + u"S -> a;"),
        deEspecificacion(Codigo::DirectivaTardia, a + u"'% metodo: lalr\nS -> a;"),
        deEspecificacion(Codigo::ConflictoCallado,
                         u"Token a = \"a\";\nToken mas = \"\\+\";\nE -> E mas E | a;"),
        deEspecificacion(Codigo::PrimerosDistintos, a + u"S -> S a A | Ø;\nA -> a S;"),
        deEspecificacion(Codigo::SiguientesDistintos, a + u"S -> B | Ø | A B a;\nA -> a;\nB -> Ø | a B a;"),
        deEspecificacion(
            Codigo::FraseDeMas,
            a + u"Token b = \"b\";\nToken c = \"c\";\nS -> b b | c S | c A;\nA -> S S a | a A b;"),
        deEspecificacion(Codigo::FraseRechazada,
                         u"Token a = \"a\";\nToken b = \"b\";\nToken c = \"c\";\nToken d "
                         u"= \"d\";\nS -> A a | b;\nA -> A c | S d | Ø;"),
    };
}

std::string apartado(const Ejemplo& ejemplo, const Diagnostico& diagnostico) {
    std::string texto = "## `" + aUtf8(nombreDe(ejemplo.codigo)) + "`\n\n";
    std::u16string palabras = mensaje(diagnostico);
    std::replace_if(
        palabras.begin(), palabras.end(), [](char16_t c) { return c < u' '; }, u' ');
    texto += aUtf8(std::u16string(nombreDe(diagnostico.gravedad)) + u": " + palabras) + "\n\n    ";
    for (const char c : aUtf8(ejemplo.muestra))
        texto += c == '\n' ? std::string("\n    ") : std::string(1, c);
    return texto + "\n\n";
}

TEST(Diagnosticos, LosDeLaDocumentacionSonLosQueDa) {
    std::string documento =
        "# Diagnósticos\n\nLo que dicen Norvik y sus órdenes, por su código, con algo pequeño "
        "que lo da. Este fichero lo escriben las pruebas.\n\n";
    for (const Ejemplo& ejemplo : ejemplos()) {
        const Diagnosticos todos = ejemplo.hazlo();
        const auto suyo =
            std::ranges::find_if(todos, [&](const Diagnostico& d) { return d.codigo == ejemplo.codigo; });
        if (suyo == todos.end())
            ADD_FAILURE() << aUtf8(nombreDe(ejemplo.codigo)) << ": no lo da";
        else
            documento += apartado(ejemplo, *suyo);
    }
    documento.pop_back();
    const auto ultimo = static_cast<std::size_t>(Codigo::FraseDeMas);
    EXPECT_EQ(ejemplos().size(), ultimo + 1) << "a code has no example";
    const char* const fichero = NORVIK_SOURCE_DIR "/docs/diagnosticos.md";
    if (std::getenv("NORVIK_ESCRIBE_DOCS") != nullptr) // NOLINT(concurrency-mt-unsafe): one thread
        escribeBytes(fichero, documento, Durabilidad::Normal);
    EXPECT_EQ(leeBytes(fichero), documento);
}

} // namespace
