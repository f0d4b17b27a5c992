// SPDX-License-Identifier: MIT

#include "apoyo/repite.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/definicionDePatron.hpp"
#include "norvik/lexer/expansion.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace norvik;

namespace {

std::u16string registra(pilaTokens& lexico, std::u16string_view texto, std::u16string_view nombre,
                        bool esToken = true, std::u16string_view pseudo = u"") {
    return lexico.SetER(texto, nombre, esToken, true, pseudo, Norvik_ExpReg, Norvik_SinBase, sinColor);
}

// A lexicon with the auxiliary definitions that the rows refer to.
void registraAuxiliares(pilaTokens& lexico) {
    registra(lexico, u"[0-9]", u"digito", false);
    registra(lexico, u"[A-Za-zÑñ_]", u"letra", false);
    registra(lexico, u"x|y", u"a", false, u"equis");
    registra(lexico, u"BTBinaria", u"baseToken", true, u"TBBinaria");
    registra(lexico, u"BTOctal", u"baseToken", true, u"TBOctal");
    registra(lexico, u"z", u"\\<b\\c", false);
}

std::u16string errorA(const std::u16string& nombre) {
    return u"Error en el uso del operador codAscii (sintaxis: '\\c(numero)') en la expresión regular '" +
           nombre + u"'.";
}

std::u16string errorB(const std::u16string& nombre, const std::u16string& texto) {
    return u"La definición de la expresión regular '" + nombre + u"':\r\n\t\t" + texto +
           u"\r\nes incorrecta. Revísela para obtener un análisis léxico adecuado.";
}

std::u16string errorC(const std::u16string& n, const std::u16string& q) {
    return u"Error en la invocación de la expresión regular '" + q + u"' desde la expresión regular '" + n +
           u"'.\r\nLa expresión regular '" + q + u"' o no existe o no se ha definido antes que '" + n + u"'.";
}

TEST(Registro, LaDefinicionDeUnPatronSeExpandeEnElYEnSuLectura) {
    const pilaTokens lexico;
    std::mt19937 azar(7);
    constexpr std::u16string_view signos = u"\\\\\\c<>\"(92)aÑ\n";
    for (int i = 0; i < 2000; ++i) {
        std::u16string patron;
        while (azar() % 8 != 0) patron += signos[azar() % signos.size()];
        const auto expansion = expande(definicionDePatron(patron), lexico.definiciones());
        EXPECT_EQ(std::get<Expansion>(expansion).patron, patron);
        EXPECT_EQ(std::get<Expansion>(expansion).lectura, lecturaDePatron(patron)) << aUtf8(patron);
    }
}

TEST(Registro, ExpandeElTextoYDaSuLectura) {
    const std::tuple<std::u16string, std::u16string, std::u16string> casos[] = {
        {u"<digito>+", u"[0-9]+", u"+"},
        {u"\\-\\>", u"\\-\\>", u"->"},
        {u"\\<a>", u"\\<a>", u"<a>"},
        {u"\\c(65)\\c(066)", u"AB", u""},
        {u"\\\\c(65)", u"A", u""},
        {u"\\\\d", u"\\d", u"d"},
        {u"begin", u"begin", u"begin"},
        {u"<a>z", u"x|yz", u"equisz"},
        {u"a<b", u"a", u"a"},
        {u"a\\", u"a", u"a"},
        {u"a\\<<di", u"a\\<", u"a<"},
        {u"", u"", u""},
        {u"<a\\c(65)>", u"Ax|y", u"equis"},
        {u"<letra>(<digito>|<letra>)*", u"[A-Za-zÑñ_]([0-9]|[A-Za-zÑñ_])*", u"(|)*"},
        {u"\\c(13)\\c(128)\\c(241)", u"\r\u20ACñ", u""},
        {u"<baseToken>", u"BTBinariaBTOctal", u"TBBinariaTBOctal"},
    };
    for (const auto& [texto, patron, lectura] : casos) {
        pilaTokens lexico;
        registraAuxiliares(lexico);
        EXPECT_EQ(registra(lexico, texto, u"n"), u"") << aUtf8(texto);
        const auto& nueva = *lexico.tokensLenguaje().back();
        EXPECT_EQ(nueva.getExpReg(), patron) << aUtf8(texto);
        EXPECT_EQ(nueva.GetPseudoTmp(), lectura) << aUtf8(texto);
    }
}

TEST(Registro, UnErrorDaSuMensajeYNoDejaRastro) {
    using namespace std::string_literals;
    const std::u16string enorme = u"\\c(" + std::u16string(100000, u'9') + u")";
    const std::u16string largo(40000, u'a');
    const auto rechaza = [](const std::u16string& texto, const std::u16string& mensaje) {
        pilaTokens lexico;
        registraAuxiliares(lexico);
        EXPECT_EQ(registra(lexico, texto, u"n"), mensaje) << aUtf8(texto.substr(0, 80));
        EXPECT_EQ(lexico.getNumTokensLenguaje(), 2);
        EXPECT_EQ(lexico.expresionesRegulares().size(), 6U);
    };
    for (const auto* const texto : {u"\\c", u"\\c13", u"\\c()", u"\\c(", u"\\c(12", u"\\c(1x)", u"\\c(999"})
        rechaza(texto, errorA(u"n"));
    rechaza(largo + u"\\c", errorA(u"n"));
    for (const std::u16string& texto : {enorme, largo, u"\\c(256)\\c"s, u"[0-9"s, u"\\c(91)"s})
        rechaza(texto, errorB(u"n", texto));
    const std::pair<std::u16string, std::u16string> invocaciones[] = {
        {u"<nint>\\c", u"nint"}, {u"<DIGITO>", u"DIGITO"}, {u"<n>", u"n"},
        {u"<<a>", u"<a"},        {u"<a\\->", u"a\\-"},     {u"<>", u""}};
    for (const auto& [texto, invocada] : invocaciones) rechaza(texto, errorC(u"n", invocada));
    pilaTokens lexico;
    EXPECT_EQ(lexico.SetER(u"a", u"n", true, true, u"", 0, 65536, sinColor), errorB(u"n", u"a"));
    EXPECT_EQ(lexico.getNumTokensLenguaje(), 0);
}

TEST(Registro, LasDefinicionesQueSeDoblanSeParanEnElLimite) {
    pilaTokens lexico;
    registra(lexico, std::u16string(1000, u'a'), u"d0", false);
    std::u16string anterior = u"d0";
    for (int i = 1; i <= 40; ++i) {
        const std::u16string nombre = u"d" + aTexto(i);
        const std::u16string texto = u"<" + anterior + u"><" + anterior + u">";
        const bool cabe = i <= 5;
        EXPECT_EQ(registra(lexico, texto, nombre, false), cabe ? u"" : errorB(nombre, texto)) << i;
        if (cabe) anterior = nombre;
    }
    const std::u16string texto = apoyo::repite(u"<d5>", 100000);
    EXPECT_EQ(registra(lexico, texto, u"n"), errorB(u"n", texto));
}

// Each of them fits; a hundred that are no shorter do not fit together.
TEST(Registro, LosPatronesDeUnLenguajeTienenUnLimiteEntreTodos) {
    pilaTokens lexico;
    registra(lexico, std::u16string(32000, u'a'), u"x", false);
    const auto llena = [&] {
        for (int i = 1; i < 400; ++i) registra(lexico, u"<x>b", u"t" + aTexto(i));
    };
    try {
        llena();
        FAIL();
    } catch (const Desbordamiento& error) {
        EXPECT_EQ(error.texto(), u"Desbordamiento: con la definición 't262' los patrones del lenguaje, ya "
                                 u"sustituidas sus referencias, pasan de 8388608 caracteres");
    }
    EXPECT_EQ(lexico.getNumTokensLenguaje(), 261);
    EXPECT_THROW(llena(), Desbordamiento);
    lexico.Inicializa();
    EXPECT_EQ(registra(lexico, std::u16string(32000, u'a'), u"x"), u"");
}

TEST(Registro, CadaTipoTomaSuColorAlRegistrarse) {
    pilaTokens lexico;
    lexico.colorPalabrasReservadas = 1;
    lexico.ColorOperadores = 2;
    lexico.ColorComentarios = 3;
    lexico.ColorCadena = 5;
    lexico.ColorCaracter = 6;
    lexico.ColorNumeros = 7;
    lexico.ColorEtiquetas = 8;
    lexico.ColorFechas = 10;
    const std::int32_t colores[] = {-1, 1, 2, 3, 3, 5, 6, 7, 8, -1, 10, -1};
    for (std::int16_t tipo = 0; tipo < 12; ++tipo)
        lexico.SetER(u"x", u"n", true, false, u"", tipo, Norvik_BaseOctal, 99);
    lexico.ColorFechas = 0;
    for (std::int16_t tipo = 0; tipo < 12; ++tipo) {
        const auto& definicion = lexico.getTokenLenguaje(static_cast<std::int16_t>(tipo + 1));
        EXPECT_EQ(definicion.GetColor(), colores[tipo]) << tipo;
        EXPECT_EQ(definicion.GetTipo(), tipo);
        EXPECT_EQ(definicion.base, Norvik_BaseOctal);
    }
    EXPECT_THROW(lexico.getTokenLenguaje(0), IndiceNoValido);
    EXPECT_THROW(lexico.getTokenLenguaje(13), IndiceNoValido);
}

TEST(Registro, LosMensajesNombranLosTokens) {
    pilaTokens lexico;
    registra(lexico, u"BTBinaria", u"base", true, u"TBBinaria");
    registra(lexico, u"\\=\\>", u"igual");
    registra(lexico, u"BTOctal", u"base");
    registra(lexico, u"<base>", u"aux", false, u"auxiliar");
    struct Caso {
        std::u16string token, lexemas, leido;
    };
    const Caso casos[] = {
        {u"base", u"TBBinaria, 'BTOctal'", u"TBBinaria"},
        {u"igual", u"'=>'", u"'leído'"},
        {u"EOF", u"final del fichero", u"final del fichero"},
        {u"$", u"final del fichero", u"final del fichero"},
        {u"BASE", u"", u""},
        {u"aux", u"", u""},
    };
    for (const Caso& caso : casos) {
        EXPECT_EQ(lexico.toStringLexemasPorToken(caso.token), caso.lexemas) << aUtf8(caso.token);
        EXPECT_EQ(lexico.toStringPseudoTokenPorToken({u"leído", caso.token}), caso.leido)
            << aUtf8(caso.token);
    }
}

TEST(Registro, PalabrasOperadoresYAuxiliares) {
    pilaTokens lexico;
    EXPECT_EQ(registra(lexico, u"[0-9]", u"digito", false), u"");
    EXPECT_EQ(lexico.SetPalabraReservada(u"a.b", u"pr", false, u"pseudo"), u"");
    EXPECT_EQ(lexico.SetOperador(u"\\-\\>", u"flecha", true, u""), u"");
    EXPECT_EQ(lexico.getNumTokensLenguaje(), 2);
    EXPECT_EQ(lexico.expresionesRegulares().front()->GetToken(), u"");
    EXPECT_EQ(lexico.expresionesRegulares().front()->Longitud(), 5);
    EXPECT_EQ(lexico.getTokenLenguaje(1).GetTipo(), Norvik_PalabraReservada);
    EXPECT_EQ(lexico.getTokenLenguaje(1).GetPseudoToken(), u"pseudo");
    EXPECT_EQ(lexico.getTokenLenguaje(2).GetTipo(), Norvik_Operador);
    EXPECT_EQ(lexico.ReconoceTokens(u"AxB->").toString(), u"1 3 pr\n4 2 flecha\n");
    lexico.Inicializa();
    EXPECT_EQ(lexico.getNumTokensLenguaje(), 0);
    EXPECT_TRUE(lexico.mapaTokens().esVacio());
    EXPECT_EQ(registra(lexico, u"<digito>", u"n"), errorC(u"n", u"digito"));
}

} // namespace
