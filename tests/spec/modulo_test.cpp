// SPDX-License-Identifier: MIT

// Loading modules: what the writer wrote is replayed, anything else is named.
#include "apoyo/anfitrion.hpp"
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

constexpr std::u16string_view calculo =
    u"Token num = \"[0-9]+\", TipoToken = TTNumero (\"número\");"
    u"Token mas = \"\\+\", TipoToken = TTOperador;"
    u"Token cad = \"\\c(34)[^\\c(34)]*\\c(34)\", TipoToken = TTCadena (\"texto\");"
    u"Token fin = \"\\c(10)\" (\"fin\");"
    u"Token raro = \"\\c(92)\\c(92)(\\c(92)d|\\c(60)|\\<)c\\c(92)cA\\>\" (\"raro\");"
    u"E -> E mas T | T; T -> num | cad | fin | raro;";

std::u16string modulo(std::u16string_view especificacion, std::u16string_view nombre = u"Calc") {
    Anfitrion a;
    EXPECT_TRUE(a.compila(especificacion));
    return a.norvik.Gramatica().textoModulo(nombre, a.norvik.Lexico());
}

std::u16string cambia(std::u16string texto, std::u16string_view viejo, std::u16string_view nuevo) {
    const auto p = texto.find(viejo);
    EXPECT_NE(p, std::u16string::npos) << aUtf8(viejo);
    return texto.replace(p, viejo.size(), nuevo);
}

/// A loader that knows only the plain calls, and makes them on a control.
class SoloLlamadas : public CargadorLenguaje {
public:
    explicit SoloLlamadas(Norvik& norvik) : norvik_(norvik) {}

    void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken, std::int32_t tipo,
               std::u16string_view pseudoToken, std::int32_t base, std::int32_t color) override {
        norvik_.SetER(expresion, nomER, esToken, tipo, pseudoToken, base, color);
    }
    void DistingueMayusculas() override { norvik_.DistingueMayusculas(); }
    void SetPalabraReservada(std::u16string_view, std::u16string&, std::u16string_view) override {}
    void SetOperador(std::u16string_view, std::u16string_view, std::u16string_view) override {}
    void SetComentarioLinea(std::u16string_view) override {}
    void SetRegla(std::u16string_view regla, std::int16_t) override { norvik_.SetRegla(regla); }
    void InsertarSimboloGramatica(std::u16string_view s) override { norvik_.InsertarSimboloGramatica(s); }
    void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) override {
        norvik_.SetDimensionTablaSLR(filas, columnas);
    }
    void SetElementoTablaSLR(std::int16_t fila, std::int16_t columna, std::int16_t valor) override {
        norvik_.SetElementoTablaSLR(fila, columna, valor);
    }
    bool GeneraCompilador() override { return false; }

private:
    Norvik& norvik_;
};

/// All that a control holds of a language, and the messages that it showed.
std::string estado(Anfitrion& a) {
    std::string texto = a.lexico() + a.reglas() + mensajes(a.sistema.mensajes);
    for (const auto* const token : a.norvik.Lexico().tokensLenguaje()) texto += aUtf8(token->pseudoTmp);
    const gramatica& g = a.norvik.Gramatica();
    for (std::int16_t e = 0; e < g.GetDimensionFilasSLR(); ++e)
        for (std::int16_t c = 0; c < g.GetNumSimbolos(); ++c)
            texto += " " + std::to_string(g.GetElementoTablaSLR(e, c));
    return texto;
}

/// The text whole, by plain calls, and in small pieces.
std::string error(std::u16string_view texto) {
    Anfitrion a;
    const auto fallo = CargaModulo(texto, a.norvik);
    std::string mensaje = fallo ? aUtf8(fallo->mensaje()) : "";
    Anfitrion llamado;
    SoloLlamadas llamadas(llamado.norvik);
    const auto suyo = CargaModulo(texto, llamadas);
    EXPECT_EQ(suyo ? aUtf8(suyo->mensaje()) : "", mensaje);
    EXPECT_EQ(estado(llamado), estado(a));
    const OrigenDeTexto aTrozos = [&] {
        const auto trozo = texto.substr(0, 1 + texto.size() % 5);
        texto.remove_prefix(trozo.size());
        return std::u16string(trozo);
    };
    Anfitrion b;
    const auto otro = CargaModulo(aTrozos, b.norvik);
    EXPECT_EQ(otro ? aUtf8(otro->mensaje()) : "", mensaje);
    return mensaje;
}

TEST(Modulo, LosErroresLexicosSeMuestranYLaCargaSigue) {
    Anfitrion a;
    EXPECT_FALSE(
        CargaModulo(cambia(modulo(u"Token a = \"a\"; S -> a;"), u"SetER \"a\"", u"SetER \"[a\""), a.norvik));
    EXPECT_EQ(
        mensajes(a.sistema.mensajes),
        "Norvik: Error en especificación léxica: La definición de la expresión regular 'a':\r\n\t\t[a\r\n"
        "es incorrecta. Revísela para obtener un análisis léxico adecuado.\n");
    EXPECT_EQ(a.reglas(), "S -> a\n");
}

TEST(Modulo, DeUnFicheroConSusSaltosDeLinea) {
    const CarpetaTemporal carpeta;
    const auto fichero = carpeta.pon("m.bas", aUtf8(modulo(u"Token a = \"x\ny|z\r\n\"; S -> a;")));
    Anfitrion a;
    EXPECT_FALSE(CargaModulo(fichero, a.norvik));
    EXPECT_EQ(a.lexico(), "a 0 0 () x\ny|z\r\n\n");
    EXPECT_THROW(CargaModulo(carpeta / "otro.bas", a.norvik), ErrorDeFichero);
}

TEST(Modulo, TablasDeMuchosProcedimientos) {
    std::u16string especificacion;
    std::u16string regla = u"S -> S t0 | t0";
    for (int i = 0; i < 60; ++i) {
        const std::u16string t = u"t" + aTexto(i);
        especificacion += u"Token " + t + u" = \"" + t + u"\";";
        regla += u" | " + t + u" S " + t;
    }
    const std::u16string texto = modulo(especificacion + regla + u";");
    EXPECT_NE(texto.find(u"Sub CargaLenguaje2("), std::u16string::npos);
    Anfitrion origen;
    origen.compila(especificacion + regla + u";");
    Anfitrion destino;
    EXPECT_FALSE(CargaModulo(texto, destino.norvik));
    const gramatica& suya = origen.norvik.Gramatica();
    for (std::int16_t e = 0; e < suya.GetDimensionFilasSLR(); ++e)
        for (std::int16_t c = 0; c < suya.GetNumSimbolos(); ++c)
            ASSERT_EQ(destino.norvik.Gramatica().GetElementoTablaSLR(e, c), suya.GetElementoTablaSLR(e, c));
}

} // namespace

TEST(Modulo, DevuelveLoQueSeEscribio) {
    Anfitrion origen;
    ASSERT_TRUE(origen.compila(calculo));
    const std::u16string texto = modulo(calculo);
    std::u16string sinCR = texto;
    std::erase(sinCR, u'\r');
    std::u16string sangrado = cambia(texto, u"\tNorvik", u"  \t  Norvik");
    for (const auto& variante :
         {texto, sinCR, sangrado, cambia(texto, u"\r\nEnd Sub", u"\r\n\r\n  \r\n\tEnd Sub")}) {
        Anfitrion destino;
        const auto fallo = CargaModulo(variante, destino.norvik);
        ASSERT_FALSE(fallo) << aUtf8(fallo->mensaje());
        EXPECT_EQ(destino.lexico(), origen.lexico());
        EXPECT_EQ(destino.reglas(), origen.reglas());
        EXPECT_EQ(destino.tabla(), origen.tabla());
    }
    // Where the end of the text has the first column.
    EXPECT_NE(modulo(u"Token a = \"a\"; S -> Ø;").find(u"SetElementoTablaSLR 2, 1, 1000"),
              std::u16string::npos);
}

TEST(Modulo, LoDemasSeNombraConSuLinea) {
    const std::u16string bueno = modulo(u"Token a = \"a\"; S -> a;");
    const auto con = [&](std::u16string_view viejo, std::u16string_view nuevo) {
        return cambia(bueno, viejo, nuevo);
    };
    const std::pair<std::u16string, std::string> casos[] = {
        {u"", "Línea 1 del módulo: se esperaba «Attribute VB_Name =»"},
        {u"\r\n\r\nruido", "Línea 3 del módulo: se esperaba «Attribute VB_Name =»"},
        {con(u"\"Calc\"", u"\"\""), "Línea 1 del módulo: el nombre del módulo está vacío"},
        {con(u"\"Calc\"", u"\"Otro\""),
         "Línea 4 del módulo: se esperaba «' Módulo de carga del lenguaje Otro»"},
        {con(u"Option Explicit", u"Option explicit"), "Línea 2 del módulo: se esperaba «Option Explicit»"},
        {con(u"Calc.CargaTokensLenguaje ", u"Calc.CargaLenguaje "),
         "Línea 16 del módulo: se esperaba «Calc.CargaTokensLenguaje NorvikRefParam»"},
        {con(u"SLR 3, 3", u"SLR 3"), "Línea 18 del módulo: se esperaba «,»"},
        {con(u"SLR 3, 3", u"SLR x, 3"), "Línea 18 del módulo: se esperaba un número"},
        {con(u"SLR 3, 3", u"SLR 3, 3 '"), "Línea 18 del módulo: sobra texto al final de la línea"},
        {con(u"SLR 3, 3", u"SLR 40000, 3"), "Línea 18 del módulo: número fuera de intervalo"},
        {con(u"SLR 3, 3", u"SLR 3, 99999999999999999999"), "Línea 18 del módulo: número fuera de intervalo"},
        {con(u"SLR 1, 3, 1", u"SLR 4, 3, 1"),
         "Línea 21 del módulo: Subíndice fuera de intervalo: en la tabla, la fila 4 no está entre 1 y 3"},
        {con(u"SLR 1, 3, 1", u"SLR 1, 0, 1"),
         "Línea 21 del módulo: Subíndice fuera de intervalo: en la tabla, la columna 0 no está entre 1 y 3"},
        {con(u"SLR 1, 3, 1", u"SLR 1, 3, 1\n\n\tNorvikRefParam.SetElementoTablaSLR 1, 4, 1"),
         "Línea 23 del módulo: Subíndice fuera de intervalo: en la tabla, la columna 4 no está entre 1 y 3"},
        {con(u"SLR 1, 3, 1", u"SLR 1, 3, 1\r\n\tCalc.CargaLenguaje NorvikRefParam"),
         "Línea 22 del módulo: se esperaba «1»"},
        {con(u"SLR 1, 3, 1", u"SLR 1, 3, 1\r\n\tCalc.CargaLenguaje1 NorvikRefParam\r\nEnd Sub\r\n"
                             u"Public Sub CargaLenguaje1(NorvikRefParam As Norvik)\r\n"
                             u"Calc.CargaLenguaje1 NorvikRefParam"),
         "Línea 25 del módulo: se esperaba «2»"},
        {con(u"NorvikRefParam.Ins", u"CalcNorvikRefParam.Ins"), "Línea 25 del módulo: se esperaba «End Sub»"},
        {con(u"Gramatica \"a\"", u"Gramatica \"a"),
         "Línea 25 del módulo: falta la comilla que cierra un texto"},
        {con(u", True, 0", u", False, 0"), "Línea 37 del módulo: se esperaba «, True,»"},
        {con(u", True, 0", u", True, 70000"),
         "Línea 37 del módulo: Desbordamiento: el tipo del token 70000 no está entre -32768 y 32767"},
        {con(u"S -> a", u"S a"), "Línea 48 del módulo: No coinciden los tipos: la regla «S a» no tiene «->» "
                                 "entre su cabeza y su cuerpo"},
        {bueno + u"End Sub", "Línea 53 del módulo: sobra texto tras el último procedimiento"},
    };
    for (const auto& [texto, mensaje] : casos) EXPECT_EQ(error(texto), mensaje);
    EXPECT_EQ(error(bueno), "");
}

TEST(Modulo, CortadoEnCualquierSitioOConRuido) {
    const std::u16string bueno = modulo(u"Token a = \"a\\c(34)\"; S -> a;");
    const std::size_t ultimo = bueno.find_last_not_of(u"\r\n");
    for (std::size_t n = 0; n <= ultimo; ++n) EXPECT_NE(error(bueno.substr(0, n)), "") << n;
    for (std::size_t n = 1; n < bueno.size(); ++n) { // in two pieces
        std::vector<std::u16string> trozos = {{}, bueno.substr(n), bueno.substr(0, n)};
        const OrigenDeTexto origen = [&] {
            std::u16string trozo = trozos.back();
            if (trozos.size() > 1) trozos.pop_back();
            return trozo;
        };
        Anfitrion a;
        ASSERT_FALSE(CargaModulo(origen, a.norvik)) << n;
    }
    std::mt19937 azar(3);
    for (int i = 0; i < 200; ++i) {
        std::u16string roto = bueno;
        roto[azar() % roto.size()] = static_cast<char16_t>(azar() % 0x180);
        Anfitrion a;
        if (CargaModulo(roto, a.norvik)) continue;
        EXPECT_NO_THROW(static_cast<void>(a.analiza(u"a\""))) << aUtf8(roto);
    }
}
