// SPDX-License-Identifier: MIT

#include "norvik/control/parejas.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

using namespace norvik;

namespace {

using Juntos = std::function<bool(std::int32_t, std::int32_t)>;
const Juntos todos = [](std::int32_t, std::int32_t) { return true; };

} // namespace

/// The caret is where the bar stands; the brackets that belong together, where the marks below it do.
TEST(Parejas, LaDelCursor) {
    struct Caso {
        std::u16string texto;
        std::u16string marcas;
    };
    const Caso casos[] = {
        {u"|(a)", u" ^ ^"},
        {u"(|a)", u"^  ^"},
        {u"(a|)", u"^  ^"},
        {u"(a)|", u"^ ^"},
        {u"f(g(|x), [y)])", u"   ^  ^"},
        {u"f(|g(x), [y)])", u" ^         ^"},
        {u"f(g(x), [|y)])", u"        ^   ^"},
        {u"{|(}", u"^  ^"},
        {u"|)(", u" ^"},
        {u"((|)", u" ^ ^"},
        {u"a|b", u""},
        {u"|", u""},
        {u"(|", u"^"},
        {u")|(", u"^"},
    };
    for (const auto& [marcado, marcas] : casos) {
        const auto cursor = static_cast<std::int32_t>(marcado.find(u'|'));
        std::u16string texto = marcado;
        texto.erase(static_cast<std::size_t>(cursor), 1);
        const auto pareja = parejaEn(texto, cursor, todos);
        std::u16string vistas(marcado.size(), u' ');
        const auto marca = [&](std::int32_t lugar) {
            vistas[static_cast<std::size_t>(lugar >= cursor ? lugar + 1 : lugar)] = u'^';
        };
        if (pareja) marca(pareja->lugar);
        if (pareja && pareja->otra) marca(*pareja->otra);
        vistas.erase(vistas.find_last_not_of(u' ') + 1);
        EXPECT_EQ(vistas, marcas) << std::string(marcado.begin(), marcado.end());
    }
}

TEST(Parejas, LosQueNoVanJuntosNoSeVen) {
    const std::u16string texto = u"(')' x)";
    const Juntos porClase = [](std::int32_t a, std::int32_t b) { return (a == 2) == (b == 2); };
    EXPECT_EQ(parejaEn(texto, 1, porClase), (Pareja{0, 6}));
    EXPECT_EQ(parejaEn(texto, 3, porClase), (Pareja{2, std::nullopt}));
    EXPECT_EQ(parejaEn(texto, 99, porClase), std::nullopt);
}

/// Whoever belongs to one has it for its own, and what stands between is balanced.
TEST(Parejas, SonMutuas) {
    std::mt19937 azar(5);
    for (int vez = 0; vez < 300; ++vez) {
        std::u16string texto(20, u' ');
        for (char16_t& c : texto) c = u"([{)]}"[azar() % 6];
        for (std::int32_t i = 0; i < 20; ++i) {
            const auto pareja = parejaEn(texto, i + 1, todos);
            ASSERT_TRUE(pareja);
            if (!pareja->otra) continue;
            ASSERT_EQ(parejaEn(texto, *pareja->otra + 1, todos), (Pareja{*pareja->otra, i}));
        }
    }
}
