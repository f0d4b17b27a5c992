// SPDX-License-Identifier: MIT

#include "apoyo/repite.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/presupuesto.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/pattern/emparejador.hpp"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace norvik {
namespace {

struct Patron {
    std::u16string nombre, texto;
    bool sensible = true;
};

void registra(pilaTokens& lexico, const std::vector<Patron>& patrones) {
    for (const Patron& patron : patrones)
        ASSERT_EQ(
            lexico.SetER(patron.texto, patron.nombre, true, patron.sensible, u"", Norvik_ExpReg, 0, sinColor),
            u"");
}

TEST(Reconocimiento, GanaElMasLargoYLuegoElPrimero) {
    struct Caso {
        std::vector<Patron> patrones;
        std::u16string texto, mapa;
    };
    const std::vector<Patron> palabras = {{u"if", u"if"}, {u"in", u"in"}, {u"id", u"[a-z]+"}};
    const Caso casos[] = {
        {palabras, u"if ifx print", u"1 2 if\n4 3 id\n8 5 id\n10 2 in\n"},
        {{{u"id", u"[a-z]+"}, {u"if", u"if"}}, u"if", u"1 2 id\n"},
        {{{u"menos", u"\\-"}, {u"flecha", u"\\-\\>"}}, u"->-", u"1 2 flecha\n3 1 menos\n"},
        {{{u"flecha", u"\\-\\>"}, {u"menos", u"\\-"}}, u"->-", u"1 2 flecha\n3 1 menos\n"},
        {{{u"a", u"x"}, {u"b", u"x"}}, u"x", u"1 1 a\n"},
        {{{u"b", u"[x]"}, {u"a", u"x"}}, u"x", u"1 1 b\n"},
        {{{u"doble", u"=="}}, u"===== =", u"1 2 doble\n3 2 doble\n"},
        {{{u"doble", u"aba", false}, {u"una", u"b"}},
         u"aBAbAba",
         u"1 3 doble\n4 1 una\n5 3 doble\n6 1 una\n"},
        {{{u"enie", u"año", false}}, u"AÑO AñO aÑ", u"1 3 enie\n5 3 enie\n"},
        {{{u"vacio", u"a*"}}, u"baa", u"1 0 vacio\n2 2 vacio\n4 0 vacio\n"},
        {{{u"vacio", u""}, {u"b", u"b"}}, u"ab", u"1 0 vacio\n2 1 b\n3 0 vacio\n"},
        {{{u"largo", u"ab"}, {u"otro", u"bc"}}, u"abc", u"1 2 largo\n2 2 otro\n"},
        {palabras, u"", u""},
        {palabras, u"123 \r\n", u""},
        {{}, u"abc", u""},
    };
    for (const Caso& caso : casos) {
        pilaTokens lexico;
        registra(lexico, caso.patrones);
        EXPECT_EQ(lexico.ReconoceTokens(caso.texto).toString(), caso.mapa) << aUtf8(caso.texto);
    }
}

TEST(Reconocimiento, SoloVeElTramoPedido) {
    pilaTokens lexico;
    registra(lexico, {{u"id", u"[a-z]+"}, {u"fin", u"[0-9]$"}});
    struct Caso {
        std::int16_t inicio, fin;
        std::u16string mapa;
    };
    const Caso casos[] = {
        {5, 9, u"5 3 id\n8 1 fin\n"}, {2, 4, u"2 2 id\n"}, {4, 4, u""},
        {8, 100, u"10 1 fin\n"},      {50, 60, u""},       {-1, 3, u"1 2 id\n"},
        {9, -1, u"10 1 fin\n"},
    };
    for (const Caso& caso : casos)
        EXPECT_EQ(lexico.ReconoceTokens(u"abc efg1 2", caso.inicio, caso.fin).toString(), caso.mapa)
            << caso.inicio << " " << caso.fin;
    EXPECT_FALSE(lexico.mapaTokens().en(-5) || lexico.mapaTokens().en(1) || lexico.mapaTokens().en(1000));
    EXPECT_THROW(lexico.ReconoceTokens(u"abc", 0, 2), ArgumentoNoValido);
    EXPECT_THROW(lexico.ReconoceTokens(u"abc", 3, 2), ArgumentoNoValido);
    EXPECT_THROW(lexico.ReconoceTokens(u"abc", -32768, 32767), Desbordamiento);
    EXPECT_THROW(lexico.ReconoceTokens(std::u16string(32767, u'a')), Desbordamiento);
    EXPECT_TRUE(lexico.mapaTokens().esVacio());
    EXPECT_EQ(lexico.ReconoceTokens(std::u16string(32766, u'a')).toString(), u"1 32766 id\n");
}

TEST(Reconocimiento, ElMapaGuardaElTextoYSusDefiniciones) {
    pilaTokens lexico;
    registra(lexico, {{u"id", u"[a-z]+"}});
    std::u16string texto = u" abc";
    MapaTokens& mapa = lexico.ReconoceTokens(texto);
    texto = u"xxxxxxx";
    registra(lexico, {{u"otro", u"b"}});
    const auto entrada = mapa.en(2);
    ASSERT_TRUE(entrada);
    EXPECT_EQ(entrada->texto, u"abc");
    EXPECT_EQ(entrada->definicion, &lexico.getTokenLenguaje(1));
    mapa.borra(2);
    EXPECT_FALSE(mapa.en(2));
    EXPECT_EQ(lexico.ReconoceTokens(u"b").toString(), u"1 1 id\n");
    registra(lexico, {{u"num", u"[0-9]"}});
    EXPECT_EQ(lexico.ReconoceTokens(u"b1").toString(), u"1 1 id\n2 1 num\n");
}

TEST(Reconocimiento, UnaBusquedaDesbocadaNombraSuDefinicion) {
    pilaTokens lexico;
    registra(lexico, {{u"buena", u"x"}, {u"mala", u"(x*x*)*y"}});
    try {
        lexico.ReconoceTokens(std::u16string(30000, u'x'));
        FAIL();
    } catch (const Desbordamiento& error) {
        EXPECT_NE(error.texto().find(u"'mala'"), std::u16string::npos);
    }
    EXPECT_TRUE(lexico.mapaTokens().esVacio());
    EXPECT_EQ(lexico.ReconoceTokens(u"xxy").toString(), u"1 3 mala\n2 1 buena\n");
}

// Each pattern is a modest one; what they need together is not.
TEST(Reconocimiento, LaMemoriaDeTodasLasDefinicionesTieneUnLimite) {
    pilaTokens lexico;
    const std::u16string clases = apoyo::repite(u"(a|b)", 6000);
    for (int i = 0; i < 250; ++i) registra(lexico, {{u"t" + aTexto(i), clases + aTexto(i)}});
    for (int vez = 0; vez < 2; ++vez) {
        try {
            lexico.ReconoceTokens(u"ab");
            FAIL();
        } catch (const BusquedaDesbocada& error) {
            EXPECT_FALSE(error.definicion().empty());
        }
    }
    lexico.Inicializa();
    registra(lexico, {{u"a", u"[ab]+"}});
    EXPECT_EQ(lexico.ReconoceTokens(u"ab").toString(), u"1 2 a\n");
}

TEST(Reconocimiento, SePuedeCancelar) {
    pilaTokens lexico;
    registra(lexico, {{u"mala", u"(x*x*)*y"}});
    std::stop_source fuente;
    lexico.cancelacion = fuente.get_token();
    EXPECT_EQ(lexico.ReconoceTokens(u"xy").toString(), u"1 2 mala\n");
    fuente.request_stop();
    EXPECT_THROW(lexico.ReconoceTokens(std::u16string(30000, u'x')), OperacionCancelada);
    EXPECT_TRUE(lexico.mapaTokens().esVacio());
    lexico.cancelacion = {};
    EXPECT_EQ(lexico.ReconoceTokens(u"xy").toString(), u"1 2 mala\n");
}

// What fails for one definition says nothing of the positions within its walk.
TEST(Reconocimiento, UnaDefinicionQueSeSolapaConsigoMismaNoPierdeNada) {
    pilaTokens lexico;
    registra(lexico, {{u"uno", u"[ab]ac"}, {u"otro", u"a+d"}});
    EXPECT_EQ(lexico.ReconoceTokens(u"aaac").toString(), u"2 3 uno\n");
}

// The rule of recognition, written down plainly: each definition alone, in order.
std::u16string mapaIngenuo(const pilaTokens& lexico, std::u16string_view texto) {
    std::map<std::int32_t, std::pair<std::int32_t, std::u16string>> mapa;
    for (const auto* const definicion : lexico.tokensLenguaje()) {
        for (const auto [inicio, longitud] : definicion->expReg->ejecuta(texto, Presupuesto())) {
            const auto [sitio, nuevo] = mapa.try_emplace(inicio + 1, longitud, definicion->nomToken);
            if (!nuevo && longitud > sitio->second.first) sitio->second = {longitud, definicion->nomToken};
        }
    }
    std::u16string resultado;
    for (const auto& [posicion, token] : mapa)
        resultado += aTexto(posicion) + u" " + aTexto(token.first) + u" " + token.second + u"\n";
    return resultado;
}

TEST(Reconocimiento, LaBusquedaConjuntaDaLoMismoQueCadaDefinicionSola) {
    std::mt19937 azar(7);
    const auto cadena = [&](std::size_t maximo, std::u16string_view letras) {
        std::u16string texto;
        for (std::size_t n = azar() % (maximo + 1); n > 0; --n) texto += letras[azar() % letras.size()];
        return texto;
    };
    // Their walks fail late and begin again within what they have walked over.
    const auto solapado = [&] {
        constexpr std::u16string_view piezas[] = {u"a", u"[ab]", u"[^d]", u"a+", u"b?",
                                                  u"c", u"d",    u"\\b",  u"\\B"};
        std::u16string texto(azar() % 8 == 0 ? u"^" : u"");
        for (std::size_t n = 2 + azar() % 3; n > 0; --n) texto += piezas[azar() % std::size(piezas)];
        return texto;
    };
    const auto patron = [&](int clase) {
        if (clase == 4) return solapado();
        if (clase == 2) return u"[" + cadena(2, u"abñ") + u"c]*";
        if (clase == 3) return u"(" + cadena(1, u"a[b") + u"|[ab]|ñ)+" + cadena(2, u"abA$");
        return cadena(4, u"abAñŁ");
    };
    for (int vuelta = 0; vuelta < 400; ++vuelta) {
        pilaTokens lexico;
        for (int i = 0; i < 12; ++i)
            lexico.SetER(patron(i % 5), u"t" + aTexto(i), true, azar() % 2 == 0, u"", 0, 0, sinColor);
        const std::u16string texto = cadena(vuelta % 10 == 0 ? 900 : 40, u"aaabbABñÑcdŁA  ");
        EXPECT_EQ(lexico.ReconoceTokens(texto).toString(), mapaIngenuo(lexico, texto)) << aUtf8(texto);
    }
}

} // namespace
} // namespace norvik
