// SPDX-License-Identifier: MIT

#include "norvik/control/disposicion.hpp"

#include <gtest/gtest.h>

using namespace norvik;

TEST(Disposicion, ConMarcoYMargen) {
    const auto d = disponeElementos({.ancho = 6000, .alto = 3000});
    ASSERT_TRUE(d);
    EXPECT_EQ(d->separador, (Linea{330, 0, 330, 3000}));
    EXPECT_EQ(d->bordeNegro, (Rectangulo{15, 15, 5970, 2970}));
    EXPECT_EQ(d->debugBox, (Rectangulo{30, 30, 300, 2940}));
    EXPECT_EQ(d->texto, (Rectangulo{495, 30, 5475, 2940}));
    EXPECT_EQ(d->controlSpace, (Rectangulo{345, 30, 150, 2940}));
    EXPECT_EQ(d->bordeClaro1, (Linea{15, 2970, 5985, 2970}));
    EXPECT_EQ(d->bordeClaro2, (Linea{5970, 15, 5970, 2985}));
    EXPECT_EQ(d->bordeOscuro1, (Linea{0, 0, 5985, 0}));
    EXPECT_EQ(d->bordeOscuro2, (Linea{0, 0, 0, 2985}));
    EXPECT_EQ(d->bordeClaroBase, (Rectangulo{0, 0, 6000, 3000}));
}

TEST(Disposicion, SegunLasOpciones) {
    const std::tuple<bool, bool, std::int16_t, std::int32_t, std::int32_t, bool> casos[] = {
        {true, true, 29, 374, 596, false},   {true, true, 30, 375, 595, true},
        {false, true, 150, 480, 505, true},  {true, false, 150, 30, 940, false},
        {false, false, 150, 15, 970, false}, {true, true, -20, 325, 645, false}};
    for (const auto& [marco, margenDeSenales, margen, texto, ancho, espaciador] : casos) {
        const Superficie s{1000, 500, 15, 15, marco, margenDeSenales, margen};
        const auto d = disponeElementos(s);
        ASSERT_TRUE(d);
        EXPECT_EQ(d->texto.x, texto);
        EXPECT_EQ(d->texto.ancho, ancho);
        EXPECT_EQ(izquierdaDelTexto(s), texto);
        EXPECT_EQ(d->controlSpace.has_value(), espaciador);
        EXPECT_EQ(izquierdaFueraDeLaVista(s), 1100);
    }
}

TEST(Disposicion, DemasiadoPequeno) {
    EXPECT_FALSE(disponeElementos({.ancho = 49, .alto = 500}));
    EXPECT_FALSE(disponeElementos({.ancho = 500, .alto = 49}));
    EXPECT_TRUE(disponeElementos({.ancho = 50, .alto = 50}));
}

TEST(Disposicion, SignoJuntoASuLinea) {
    EXPECT_EQ(lugarDeSigno(1, 0, 240).y, 0);
    EXPECT_EQ(lugarDeSigno(12, 10, 240).y, 240);
    EXPECT_EQ(lugarDeSigno(3, 10, 240).y, -1920);
    EXPECT_EQ(lugarDeSigno(3, 10, 240).x, 30);
}
