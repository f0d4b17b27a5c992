// SPDX-License-Identifier: MIT

#include "norvik/base/errores.hpp"
#include "norvik/grammar/conjunto.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace norvik;

namespace {

conjunto de(std::initializer_list<conjunto::Valor> valores) {
    conjunto resultado;
    for (const auto& valor : valores) resultado.insertar(valor);
    return resultado;
}

TEST(Conjunto, GuardaElOrdenDeLaPrimeraInsercion) {
    conjunto conj = de({u"Ø", u"a", u"$", u"a", u"Øb"});
    conj.aniadeElementosConjunto(de({u"a", u"c", std::int16_t{3}}));
    EXPECT_TRUE(conj.perteneceA(std::int16_t{3}) && !conj.perteneceA(u"3") && conj.contieneCadenaVacia());
    conj.eliminaCadenaVacia();
    conj.borrar(u"$");
    conj.borrar(u"no está");
    EXPECT_EQ(conj.toStringConjunto(), u"a, Øb, c, 3");
    EXPECT_EQ(conj.posicion(u"c"), 3);
    conj.nombre = u"X";
    conj.borrarTodo();
    EXPECT_TRUE(conj.esVacio() && conj.nombre.empty());
    for (const auto posicion : std::vector<std::int16_t>{-1, 0, 1})
        EXPECT_THROW(conj.elementoAt(posicion), IndiceNoValido);
}

// The index against plain searches, through growth and removals.
TEST(Conjunto, ComoUnaBusquedaLineal) {
    std::mt19937 azar(1);
    conjunto conj;
    std::vector<std::u16string> lista;
    for (int i = 0; i < 3000; ++i) {
        const std::u16string valor(1 + azar() % 2, static_cast<char16_t>(u'a' + azar() % 60));
        const auto sitio = std::find(lista.begin(), lista.end(), valor);
        ASSERT_EQ(conj.posicion(valor), sitio == lista.end() ? 0 : sitio - lista.begin() + 1);
        if (azar() % 4 == 0) {
            conj.borrar(valor);
            if (sitio != lista.end()) lista.erase(sitio);
        } else {
            conj.insertar(valor);
            if (sitio == lista.end()) lista.push_back(valor);
        }
        ASSERT_EQ(conj.totalElementos(), static_cast<int>(lista.size()));
    }
}

} // namespace
