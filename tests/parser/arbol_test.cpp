// SPDX-License-Identifier: MIT

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/parser/arbolSintactico.hpp"

#include <gtest/gtest.h>

#include <random>
#include <unordered_set>
#include <vector>

using namespace norvik;

namespace {

constexpr auto otraDireccion = static_cast<Direccion>(7);

Arbol& hoja(ArbolSintactico& arbol, std::u16string_view lexema) {
    Arbol& nodo = arbol.nuevoNodo();
    nodo.SetLexema(lexema);
    return nodo;
}

std::u16string lexemas(const Arbol& nodo) {
    std::u16string texto;
    for (const Arbol* const hijo : nodo.hijos()) texto += hijo->GetLexema();
    return texto;
}

TEST(Arbol, SetHijoPoneDelanteYSetHijoIzquierdaAlFinal) {
    ArbolSintactico arbol;
    Arbol& raiz = arbol.raiz();
    for (const auto* const lexema : {u"a", u"b", u"c"}) raiz.SetHijo(hoja(arbol, lexema));
    EXPECT_EQ(lexemas(raiz), u"cba");
    raiz.SetHijoIzquierda(hoja(arbol, u"z"));
    raiz.SetHijo(hoja(arbol, u"d"));
    EXPECT_EQ(lexemas(raiz), u"dcbaz");
    EXPECT_EQ(raiz.GetHijo(1)->GetLexema(), u"d");
    EXPECT_EQ(raiz.GetHijo(6), nullptr);

    Arbol& nodo = hoja(arbol, u"n");
    arbol.hazRegla(nodo, arbol.guardaRegla(u"S", u"x y", 3), 2);
    for (int i = 0; i < 20; ++i) nodo.SetHijo(hoja(arbol, u"<"));
    for (int i = 0; i < 20; ++i) nodo.SetHijoIzquierda(hoja(arbol, u">"));
    EXPECT_EQ(lexemas(nodo), std::u16string(20, u'<') + std::u16string(20, u'>'));
    EXPECT_EQ(nodo.GetNumHijos(), 42);
}

TEST(Arbol, UnNodoCuelgaDeUnSoloSitio) {
    ArbolSintactico arbol;
    ArbolSintactico otro;
    Arbol& raiz = arbol.raiz();
    Arbol& medio = hoja(arbol, u"m");
    Arbol& fin = hoja(arbol, u"f");
    raiz.SetHijo(medio);
    medio.SetHijo(fin);
    for (Arbol* const nodo : {&raiz, &medio, &fin}) EXPECT_THROW(fin.SetHijo(*nodo), ArgumentoNoValido);
    EXPECT_THROW(raiz.SetHijoIzquierda(raiz), ArgumentoNoValido);

    raiz.SetHijo(fin);
    medio.SetNumRegla(u"4");
    medio.SetNomRegla(u"M");
    otro.raiz().SetHijo(medio);
    EXPECT_NE(raiz.GetHijo(1), &fin);
    fin.SetLexema(u"cambiado");
    EXPECT_EQ(lexemas(raiz), u"fm");
    raiz.Inicializa();
    EXPECT_EQ(otro.raiz().toString(), u"'' (0, 0)\n  M ->  [4]\n    'f' (0, 0)\n");
    EXPECT_EQ(otro.raiz().GetHijo(1)->GetLexema(), u"m");
}

TEST(Arbol, InicializaVaciaTambienLosDescendientes) {
    ArbolSintactico arbol;
    EXPECT_EQ(arbol.raiz().toString(), u"'' (0, 0)\n");
    EXPECT_EQ(arbol.raiz().GetHijo(1), nullptr);
    EXPECT_THROW(arbol.raiz().GetHijo(0), IndiceNoValido);
    Arbol& hijo = hoja(arbol, u"h");
    Arbol& nieto = hoja(arbol, u"n");
    hijo.SetNumRegla(u"2");
    hijo.SetNomRegla(u"A");
    hijo.SetRegla(u"n");
    nieto.SetLinea(7);
    hijo.SetHijo(nieto);
    arbol.raiz().SetHijo(hijo);
    EXPECT_EQ(arbol.raiz().toString(), u"'' (0, 0)\n  A -> n [2]\n    'n' (7, 0)\n");
    arbol.raiz().Inicializa();
    for (Arbol* const nodo : {&arbol.raiz(), &hijo, &nieto}) {
        EXPECT_TRUE(nodo->GetEsHoja());
        EXPECT_EQ(nodo->GetNumRegla(), -1);
        EXPECT_EQ(nodo->GetLexema().size() + nodo->GetNomRegla().size() + nodo->GetRegla().size(), 0U);
    }
    EXPECT_EQ(nieto.GetLinea(), 7);
    nieto.SetLexema(u"MiVar");
    EXPECT_EQ(nieto.GetULexema(), u"MIVAR");
    EXPECT_EQ(nieto.GetLexema(), u"MiVar");
    nieto.SetHijo(hijo);
    EXPECT_EQ(nieto.GetHijo(1), &hijo);
}

TEST(Arbol, ElNumeroDeReglaSeLeeDeUnTexto) {
    ArbolSintactico arbol;
    Arbol& nodo = arbol.raiz();
    const std::pair<std::u16string, std::int16_t> buenos[] = {
        {u"12", 12}, {u" -32768\t", -32768}, {u"+32767", 32767}, {u"0000000000012", 12}};
    for (const auto& [texto, numero] : buenos) {
        nodo.SetNumRegla(texto);
        EXPECT_EQ(nodo.GetNumRegla(), numero) << aUtf8(texto);
    }
    for (const auto* const texto : {u"", u" ", u"-", u"x", u"1 2", u"1.5", u"--1", u"99999999999x"})
        EXPECT_THROW(nodo.SetNumRegla(texto), NoCoincidenLosTipos) << aUtf8(texto);
    for (const auto* const texto : {u"32768", u"-32769", u"99999999999999999999"})
        EXPECT_THROW(nodo.SetNumRegla(texto), Desbordamiento) << aUtf8(texto);
    EXPECT_EQ(nodo.GetNumRegla(), 12);
}

TEST(Arbol, NavegaEnUnaDireccionYBuscaReglas) {
    // raiz(1) -> [ a(2) -> [ h1, b(3) -> [ h2 ] ], c(3) -> [ h3 ] ]
    ArbolSintactico arbol;
    const auto regla = [&](std::int16_t numero) -> const FichaRegla& {
        return arbol.guardaRegla(u"X", u"x", numero);
    };
    Arbol& raiz = arbol.raiz();
    const auto primeros = arbol.hazRegla(raiz, regla(1), 2);
    const auto deA = arbol.hazRegla(*primeros[0], regla(2), 2);
    const auto deB = arbol.hazRegla(*deA[1], regla(3), 1);
    const auto deC = arbol.hazRegla(*primeros[1], regla(3), 1);
    Arbol* const a = primeros[0];
    Arbol* const b = deA[1];
    Arbol* const c = primeros[1];
    deC[0]->SetNumRegla(u"9");

    EXPECT_EQ(&raiz.GetNDescendienteEnDireccion(1, Norvik_Derecha), c);
    EXPECT_EQ(&raiz.GetNDescendienteEnDireccion(5, Norvik_Derecha), deC[0]);
    EXPECT_EQ(&raiz.GetNDescendienteEnDireccion(2, Norvik_Izquierda), deA[0]);
    EXPECT_EQ(&raiz.GetUltimoDescendienteEnDireccion(Norvik_Derecha), deC[0]);
    EXPECT_EQ(&b->GetUltimoDescendienteEnDireccion(Norvik_Izquierda), deB[0]);
    for (const std::int16_t orden : {std::int16_t{0}, std::int16_t{-3}})
        EXPECT_EQ(&raiz.GetNDescendienteEnDireccion(orden, Norvik_Derecha), &raiz);
    EXPECT_EQ(&raiz.GetNDescendienteEnDireccion(3, otraDireccion), &raiz);
    EXPECT_EQ(&raiz.GetUltimoDescendienteEnDireccion(otraDireccion), &raiz);

    EXPECT_EQ(raiz.GetDescendienteConRegla(1), &raiz);
    EXPECT_EQ(raiz.GetDescendienteConRegla(3), b);
    EXPECT_EQ(raiz.GetDescendienteConRegla(9), nullptr);
    EXPECT_EQ(deC[0]->GetDescendienteConRegla(9), nullptr);
    EXPECT_EQ(raiz.GetDescendienteConReglaEnDireccion(3, Norvik_Derecha), c);
    EXPECT_EQ(raiz.GetDescendienteConReglaEnDireccion(3, Norvik_Izquierda), nullptr);
    EXPECT_EQ(a->GetDescendienteConReglaEnDireccion(2, Norvik_Izquierda), a);
    EXPECT_EQ(raiz.GetDescendienteConReglaEnDireccion(9, Norvik_Derecha), deC[0]);
    EXPECT_EQ(raiz.GetDescendienteConReglaEnDireccion(1, otraDireccion), nullptr);
}

TEST(Arbol, AguantaProfundidadYAnchura) {
    ArbolSintactico arbol;
    Arbol* nodo = &arbol.raiz();
    for (int i = 0; i < 200000; ++i) {
        Arbol& hijo = arbol.nuevoNodo();
        nodo->SetHijo(hijo);
        nodo = &hijo;
    }
    EXPECT_EQ(&arbol.raiz().GetUltimoDescendienteEnDireccion(Norvik_Derecha), nodo);
    EXPECT_EQ(arbol.raiz().GetDescendienteConRegla(5), nullptr);
    arbol.raiz().Inicializa();
    for (int i = 0; i < 40000; ++i) arbol.raiz().SetHijo(arbol.nuevoNodo());
    EXPECT_THROW(arbol.raiz().GetNumHijos(), Desbordamiento);
    EXPECT_NE(arbol.raiz().GetHijo(32767), nullptr);
    arbol.reinicia();
    EXPECT_TRUE(arbol.raiz().GetEsHoja());

    Arbol* cima = &arbol.nuevoNodo();
    for (int i = 0; i < 200000; ++i) {
        Arbol& padre = arbol.nuevoNodo();
        padre.SetHijo(*cima);
        cima = &padre;
    }
    arbol.raiz().SetHijo(*cima);
    EXPECT_EQ(arbol.raiz().GetHijo(1), cima);
}

/// A tree of so many nodes below the root, half of them leaves with a lexeme; gives the last but one.
Arbol& planta(ArbolSintactico& arbol, std::size_t nodos) {
    arbol.reinicia();
    const auto& regla = arbol.guardaRegla(u"S", u"a S", 7);
    Arbol* nodo = &arbol.raiz();
    for (std::size_t i = 0; i < nodos; i += 2) {
        const auto hijos = arbol.hazRegla(*nodo, regla, 2);
        ArbolSintactico::hazHoja(*hijos[0], arbol.guardaTexto(u"a"), 3, 4);
        nodo = hijos[1];
    }
    arbol.acaba();
    return *arbol.raiz().GetHijo(2);
}

std::u16string comoSeLee(const Arbol& nodo) {
    std::u16string texto = nodo.toString();
    texto.append(nodo.GetLexema()).append(nodo.GetNomRegla()).append(nodo.GetRegla());
    return texto.append(nodo.GetEsHoja() && nodo.GetHijo(1) == nullptr ? u"hoja" : u"");
}
constexpr std::u16string_view inicializado = u"'' (0, 0)\nhoja";

TEST(Arbol, UnNodoGuardadoSeLeeInicializadoTrasOtroArbol) {
    for (const std::size_t nodos : {2U, 100U, 3000U}) {
        for (const std::size_t otros : {0U, 2U, 90U, 200U, 4000U}) {
            ArbolSintactico arbol;
            planta(arbol, 3500); // places that were used before
            planta(arbol, 1000);
            Arbol& interior = planta(arbol, nodos);
            Arbol& hoja = *arbol.raiz().GetHijo(1);
            const std::u16string lleno = arbol.raiz().toString();
            if (otros == 0)
                arbol.reinicia(); // a parse that fails
            else
                planta(arbol, otros);
            EXPECT_EQ(comoSeLee(interior), inicializado) << nodos << ' ' << otros;
            EXPECT_EQ(comoSeLee(hoja), u"'' (3, 4)\nhoja") << nodos << ' ' << otros;
            EXPECT_EQ(interior.GetNumRegla(), -1);
            planta(arbol, nodos);
            EXPECT_EQ(arbol.raiz().toString(), lleno);
        }
    }
}

TEST(Arbol, UnNodoGuardadoPasaAlArbolDeAhora) {
    ArbolSintactico arbol;
    Arbol& viejo = planta(arbol, 4);
    Arbol& hoja = *viejo.GetHijo(1);
    Arbol& otro = *viejo.GetHijo(2);
    planta(arbol, 2);
    hoja.SetLexema(u"nuevo");
    viejo.SetHijo(hoja);
    viejo.SetNomRegla(u"V");
    otro.SetHijo(viejo);
    arbol.raiz().SetHijo(otro);
    EXPECT_EQ(otro.toString(), u"'' (0, 0)\n  '' (0, 0)\n    'nuevo' (3, 4)\n");
    EXPECT_EQ(viejo.GetNomRegla(), u"V");
    EXPECT_EQ(arbol.raiz().GetHijo(1), &otro);
    arbol.reinicia();
    for (const Arbol* const nodo : {&viejo, &otro}) EXPECT_EQ(comoSeLee(*nodo), inicializado);
    EXPECT_EQ(comoSeLee(hoja), u"'' (3, 4)\nhoja");
}

std::unordered_set<const Arbol*> nodosBajo(const Arbol& raiz) {
    std::unordered_set<const Arbol*> nodos;
    std::vector<const Arbol*> pendientes{&raiz};
    while (!pendientes.empty()) {
        const Arbol* const nodo = pendientes.back();
        pendientes.pop_back();
        nodos.insert(nodo);
        pendientes.insert(pendientes.end(), nodo->hijos().begin(), nodo->hijos().end());
    }
    return nodos;
}

// Whatever becomes of a reference that is held for long, it is to a node, and all nodes of trees are right.
TEST(Arbol, UnNodoGuardadoMuchoTiempoEsUnNodo) {
    ArbolSintactico arbol;
    std::mt19937 azar(11);
    std::vector<const Arbol*> guardados;
    for (int vez = 0; vez < 60; ++vez) {
        planta(arbol, 2 + (azar() % 3 == 0 ? azar() % 9000 : azar() % 50));
        const auto suyos = nodosBajo(arbol.raiz());
        for (const Arbol* const nodo : guardados) {
            const bool entero = nodo->GetNumRegla() == 7 && nodo->hijos().size() == 2;
            EXPECT_TRUE((entero && suyos.contains(nodo)) || nodo->GetEsHoja()) << vez;
        }
        guardados.push_back(&arbol.raiz().GetNDescendienteEnDireccion(
            static_cast<std::int16_t>(azar() % 3000), Norvik_Derecha));
        guardados.push_back(&arbol.raiz().GetUltimoDescendienteEnDireccion(Norvik_Derecha));
        guardados.push_back(&arbol.raiz().GetUltimoDescendienteEnDireccion(Norvik_Izquierda));
    }
}

} // namespace
