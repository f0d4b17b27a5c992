#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <gtest/gtest.h>

namespace norvik {
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

std::u16string errorA(std::u16string_view nombre) {
    return u"Error en el uso del operador codAscii (sintaxis: '\\c(numero)') en la expresión regular '" +
           std::u16string(nombre) + u"'.";
}

std::u16string errorB(std::u16string_view nombre, std::u16string_view texto) {
    return u"La definición de la expresión regular '" + std::u16string(nombre) + u"':\r\n\t\t" +
           std::u16string(texto) + u"\r\nes incorrecta. Revísela para obtener un análisis léxico adecuado.";
}

std::u16string errorC(std::u16string_view nombre, std::u16string_view referencia) {
    const std::u16string q(referencia);
    const std::u16string n(nombre);
    return u"Error en la invocación de la expresión regular '" + q + u"' desde la expresión regular '" + n +
           u"'.\r\nLa expresión regular '" + q + u"' o no existe o no se ha definido antes que '" + n + u"'.";
}

TEST(Registro, ExpandeElTextoYDaSuLectura) {
    struct Caso {
        std::u16string texto, patron, lectura;
    };
    const Caso casos[] = {
        {u"<digito>+", u"[0-9]+", u"+"},
        {u"<letra>(<digito>|<letra>)*", u"[A-Za-zÑñ_]([0-9]|[A-Za-zÑñ_])*", u"(|)*"},
        {u"\\-\\>", u"\\-\\>", u"->"},
        {u"\\<a>", u"\\<a>", u"<a>"},
        {u"\\c(65)\\c(066)", u"AB", u""},
        {u"\\c(13)\\c(128)\\c(241)", u"\r\u20ACñ", u""},
        {u"\\\\c(65)", u"A", u""},
        {u"\\\\d", u"\\d", u"d"},
        {u"begin", u"begin", u"begin"},
        {u"<a>z", u"x|yz", u"equisz"},
        {u"<baseToken>", u"BTBinariaBTOctal", u"TBBinariaTBOctal"},
        {u"a<b", u"a", u"a"},
        {u"a\\", u"a", u"a"},
        {u"a\\<<di", u"a\\<", u"a<"},
        {u"", u"", u""},
        {u"<a\\c(65)>", u"Ax|y", u"equis"},
    };
    for (const Caso& caso : casos) {
        pilaTokens lexico;
        registraAuxiliares(lexico);
        EXPECT_EQ(registra(lexico, caso.texto, u"n"), u"") << aUtf8(caso.texto);
        const auto& nueva = *lexico.tokensLenguaje().back();
        EXPECT_EQ(nueva.getExpReg(), caso.patron) << aUtf8(caso.texto);
        EXPECT_EQ(nueva.GetPseudoTmp(), caso.lectura) << aUtf8(caso.texto);
    }
}

TEST(Registro, UnErrorDaSuMensajeYNoDejaRastro) {
    struct Caso {
        std::u16string texto, mensaje;
    };
    const std::u16string enorme = u"\\c(" + std::u16string(100000, u'9') + u")";
    const std::u16string largo(40000, u'a');
    const Caso casos[] = {
        {u"\\c", errorA(u"n")},
        {u"\\c13", errorA(u"n")},
        {u"\\c()", errorA(u"n")},
        {u"\\c(", errorA(u"n")},
        {u"\\c(12", errorA(u"n")},
        {u"\\c(1x)", errorA(u"n")},
        {u"\\c(999", errorA(u"n")},
        {u"\\c(256)\\c", errorB(u"n", u"\\c(256)\\c")},
        {enorme, errorB(u"n", enorme)},
        {u"[0-9", errorB(u"n", u"[0-9")},
        {u"\\c(91)", errorB(u"n", u"\\c(91)")},
        {largo, errorB(u"n", largo)},
        {largo + u"\\c", errorA(u"n")},
        {u"<nint>\\c", errorC(u"n", u"nint")},
        {u"<DIGITO>", errorC(u"n", u"DIGITO")},
        {u"<n>", errorC(u"n", u"n")},
        {u"<<a>", errorC(u"n", u"<a")},
        {u"<a\\->", errorC(u"n", u"a\\-")},
        {u"<>", errorC(u"n", u"")},
    };
    for (const Caso& caso : casos) {
        pilaTokens lexico;
        registraAuxiliares(lexico);
        EXPECT_EQ(registra(lexico, caso.texto, u"n"), caso.mensaje) << aUtf8(caso.texto.substr(0, 80));
        EXPECT_EQ(lexico.getNumTokensLenguaje(), 2);
        EXPECT_EQ(lexico.expresionesRegulares().size(), 6U);
    }
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
    std::u16string texto;
    for (int i = 0; i < 100000; ++i) texto += u"<d5>";
    EXPECT_EQ(registra(lexico, texto, u"n"), errorB(u"n", texto));
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

} // namespace
} // namespace norvik
