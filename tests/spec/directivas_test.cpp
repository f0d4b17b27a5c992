// SPDX-License-Identifier: MIT

#include "apoyo/anfitrion.hpp"
#include "norvik/report/modulo.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/directivas.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <random>
#include <string>
#include <tuple>
#include <vector>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

const std::u16string operadores = u"pqrs";

// What a line of operands and operators means: the loosest operator splits it.
class Lectura {
public:
    Lectura(const std::vector<int>& niveles, const std::vector<int>& asociacion)
        : niveles_(niveles), asociacion_(asociacion) {}

    /// «((n+n)*n)»; nothing when operators that do not associate meet.
    std::optional<std::string> de(std::u16string_view texto) const {
        if (texto.size() == 1) return "n";
        std::vector<std::size_t> sueltos;
        for (std::size_t i = 1; i < texto.size(); i += 2) {
            const int suyo = nivel(texto[i]);
            if (!sueltos.empty() && suyo > nivel(texto[sueltos.front()])) continue;
            if (!sueltos.empty() && suyo < nivel(texto[sueltos.front()])) sueltos.clear();
            sueltos.push_back(i);
        }
        const int asocia = asociacion_[static_cast<std::size_t>(nivel(texto[sueltos.front()]))];
        if (asocia == 2 && sueltos.size() > 1) return std::nullopt;
        const std::size_t corte = asocia == 1 ? sueltos.front() : sueltos.back();
        const auto izquierda = de(texto.substr(0, corte));
        const auto derecha = de(texto.substr(corte + 1));
        if (!izquierda || !derecha) return std::nullopt;
        return "(" + *izquierda + static_cast<char>(texto[corte]) + *derecha + ")";
    }

private:
    int nivel(char16_t operador) const { return niveles_[operadores.find(operador)]; }

    const std::vector<int>& niveles_;
    const std::vector<int>& asociacion_;
};

std::string forma(const Nodo& nodo) {
    if (nodo.esToken()) return aUtf8(nodo.texto());
    std::string texto;
    for (const Nodo hijo : nodo.hijos()) texto += forma(hijo);
    return nodo.numHijos() == 1 ? texto : "(" + texto + ")";
}

TEST(Directivas, PonerUnMetodoNoCambiaNadaMas) {
    const std::tuple<std::u16string, std::u16string> casos[] = {
        {u"", u"'% metodo: lr1\r\n"},
        {u"Token a = \"a\";\nS -> a;\n", u"'% metodo: lr1\nToken a = \"a\";\nS -> a;\n"},
        {u"' nota\r\nS -> a;", u"'% metodo: lr1\r\n' nota\r\nS -> a;"},
        {u"' nota\n'% metodo: clasico\n\nS -> a;", u"' nota\n'% metodo: lr1\n\nS -> a;"},
        {u"'% metodo: x\n'% izquierda: a\n'% metodo: lalr\nS -> a;\n'% metodo: slr\n",
         u"'% metodo: lr1\n'% izquierda: a\n'% metodo: lr1\nS -> a;\n'% metodo: slr\n"},
    };
    for (const auto& [antes, despues] : casos) {
        EXPECT_EQ(aUtf8(conMetodo(antes, Metodo::Lr1)), aUtf8(despues));
        EXPECT_EQ(aUtf8(conMetodo(despues, Metodo::Lr1)), aUtf8(despues));
    }
}

TEST(Directivas, LaPrecedenciaLeeLasExpresionesComoSeEscriben) {
    std::mt19937 azar(5); // NOLINT(cert-msc51-cpp): the same each time
    const auto hasta = [&](int n) { return static_cast<int>(azar() % static_cast<unsigned>(n)); };
    const std::u16string palabras[] = {u"izquierda", u"derecha", u"sinasociar"};
    for (int vuelta = 0; vuelta < 60; ++vuelta) {
        std::vector<int> niveles;
        std::vector<int> asociacion;
        for (std::size_t i = 0; i < operadores.size(); ++i) niveles.push_back(hasta(3));
        std::u16string directivas = u"'% metodo: ";
        directivas += metodos.begin()[1 + hasta(3)].first;
        for (int n = 0; n < 3; ++n) {
            asociacion.push_back(hasta(3));
            directivas += u"\n'% " + palabras[asociacion.back()] + u":  otro";
            for (std::size_t i = 0; i < operadores.size(); ++i)
                if (niveles[i] == n) directivas += std::u16string(u"  ") + operadores[i];
        }
        std::u16string tokens = u"\nToken n = \"n\";\n";
        std::u16string reglas = u"E -> n";
        for (const char16_t o : operadores) {
            tokens += std::u16string(u"Token ") + o + u" = \"" + o + u"\";\n";
            reglas += std::u16string(u" | E ") + o + u" E";
        }
        const auto compilacion = Lenguaje::compila(directivas + tokens + reglas + u";");
        ASSERT_TRUE(compilacion && compilacion.diagnosticos.empty()) << aUtf8(directivas);
        for (int frase = 0; frase < 20; ++frase) {
            std::u16string texto = u"n";
            for (int i = hasta(6); i >= 0; --i)
                texto += std::u16string{operadores[static_cast<std::size_t>(hasta(4))], u'n'};
            const Analisis analisis = analiza(*compilacion.lenguaje, texto);
            const auto esperado = Lectura(niveles, asociacion).de(texto);
            ASSERT_EQ(analisis.diagnosticos.empty(), esperado.has_value())
                << aUtf8(directivas) << " " << aUtf8(texto);
            if (esperado) {
                ASSERT_EQ(forma(analisis.arbol.raiz()), *esperado) << aUtf8(texto);
            }
        }
    }
}

// The shift of «(» after «+» is no operator's affair, and two rules that meet stay in conflict.
TEST(Directivas, LoQueLaPrecedenciaNoResuelveSigueSiendoUnConflicto) {
    const std::pair<std::u16string, std::size_t> casos[] = {{u"E -> E a E | n;", 0},
                                                            {u"E -> E n E | a;", 1},
                                                            {u"E -> A | B; A -> a; B -> a;", 1},
                                                            {u"E -> a E | a E n E | n;", 1},
                                                            {u"E -> E a E | E E | n;", 3}};
    for (const auto& [reglas, conflictos] : casos) {
        const auto compilacion = Lenguaje::compila(
            u"'% metodo: lalr\n'% izquierda: a\nToken a = \"a\";\nToken n = \"n\";\n" + reglas);
        EXPECT_EQ(compilacion.diagnosticos.size(), conflictos) << aUtf8(reglas);
    }
}

// Of many lines the last one holds, and the place is its own.
TEST(Directivas, MuchasLineasNoCuestanSuCuadrado) {
    constexpr int cuantas = 30'000;
    std::u16string lineas;
    for (int i = 0; i < cuantas; ++i) lineas += u"'% conflictos: 1\n";
    const auto antes = std::chrono::steady_clock::now();
    const auto conflictos = leeDirectivas(lineas + u"'% conflictos: 7\n", Lugares::Unidad::Utf8).conflictos;
    EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(2));
    ASSERT_TRUE(conflictos);
    EXPECT_EQ(conflictos->numero, 7);
    EXPECT_EQ(conflictos->lugar.inicio.linea, cuantas + 1);
}

TEST(Directivas, LosConflictosQueridosNoSeAvisan) {
    const auto gravedades = [](std::u16string_view directivas) {
        std::string letras;
        for (const Diagnostico& d :
             Lenguaje::compila(std::u16string(directivas) + u"Token a = \"a\";\nS -> S S | a;").diagnosticos)
            letras += aUtf8(nombreDe(d.gravedad)) + " " + aUtf8(nombreDe(d.codigo)) + ";";
        return letras;
    };
    EXPECT_EQ(gravedades(u"'% metodo: lalr\n"), "aviso conflicto;");
    EXPECT_EQ(gravedades(u"'% conflictos: 1\n'% metodo: lalr\n"), "nota conflicto;");
    EXPECT_EQ(gravedades(u"'% conflictos: 2\n'% metodo: lalr\n"),
              "aviso conflicto;aviso conflictos-distintos;");
}

constexpr std::u16string_view conCaja =
    u"'% mayusculas: distingue\nToken si = \"si\";\nToken id = \"[A-Z]+\";\nS -> si | id;";
constexpr std::u16string_view sinCaja = u"Token si = \"si\";\nToken id = \"[A-Z]+\";\nS -> si | id;";

// By what a control says of «si», «SI» and «Si».
std::string acepta(Anfitrion& a) {
    std::string cuales;
    for (const std::u16string_view texto : {u"si", u"SI", u"Si"})
        cuales += a.analiza(texto) ? aUtf8(a.norvik.GetArbolSintactico().GetNomRegla()) +
                                         std::to_string(a.norvik.GetArbolSintactico().GetNumRegla())
                                   : "-";
    return cuales;
}

std::u16string moduloDe(Anfitrion& a) {
    return textoModulo(a.norvik.Gramatica().valores(), u"Caja", a.norvik.Lexico());
}

// At the head of its token procedure.
bool loPide(std::u16string_view modulo) {
    return modulo.find(u"\tNorvikRefParam.LenguajeSensible = True\r\n\tNorvikRefParam.SetER ") !=
           std::u16string_view::npos;
}

TEST(Directivas, DistinguirMayusculasVaDondeVaElLenguaje) {
    for (int vez = 0; vez < 2; ++vez) { // the second time in a control that had another language
        Anfitrion a;
        if (vez == 1) {
            ASSERT_TRUE(a.compila(sinCaja));
        }
        EXPECT_EQ(vez == 1 ? acepta(a) : "S1S1S1", "S1S1S1");
        ASSERT_TRUE(a.compila(conCaja));
        EXPECT_EQ(acepta(a), "S1S2-");
        EXPECT_FALSE(a.norvik.LenguajeSensible());
        const std::u16string modulo = moduloDe(a);
        EXPECT_TRUE(loPide(modulo));
        Anfitrion otro;
        if (vez == 1) {
            ASSERT_TRUE(otro.compila(sinCaja));
            otro.norvik.OlvidaLenguaje();
        }
        ASSERT_FALSE(CargaModulo(modulo, otro.norvik));
        EXPECT_EQ(acepta(otro), "S1S2-");
        EXPECT_TRUE(otro.norvik.LenguajeSensible());
        EXPECT_TRUE(loPide(moduloDe(otro)));
        ASSERT_TRUE(otro.compila(sinCaja)); // what a specification asks for is its own affair
        EXPECT_EQ(acepta(otro), "S1S1S1");
        EXPECT_FALSE(loPide(moduloDe(otro)));
        const auto valor = Lenguaje::cargaModulo(modulo);
        ASSERT_TRUE(valor);
        EXPECT_FALSE(analiza(*valor.lenguaje, std::u16string_view(u"Si")));
        EXPECT_TRUE(analiza(*valor.lenguaje, std::u16string_view(u"SI")));
    }
    EXPECT_FALSE(analiza(*Lenguaje::compila(conCaja).lenguaje, std::u16string_view(u"Si")));
}

} // namespace
