// SPDX-License-Identifier: MIT

#include "norvik/base/lineas.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

TEST(Lineas, CadaCaracterEstaEnSuLinea) {
    IndiceLineas lineas;
    EXPECT_EQ(lineas.lineaDe(7), 0);
    lineas.reconstruye(u"ab\r\nc\r\rd\n");
    EXPECT_EQ(lineas.numLineas(), 5);
    const std::int32_t esperadas[] = {0, 0, 0, 0, 1, 1, 2, 3, 3, 4, 4};
    for (std::int32_t pos = 0; pos < 11; ++pos) EXPECT_EQ(lineas.lineaDe(pos), esperadas[pos]) << pos;
    for (std::int32_t pos = 10; pos >= 0; --pos) EXPECT_EQ(lineas.lineaDe(pos), esperadas[pos]) << pos;
    EXPECT_EQ(lineas.lineaDe(-1), 0);
    const std::int32_t inicios[] = {0, 4, 6, 7, 9, -1};
    for (std::int32_t linea = 0; linea < 6; ++linea) EXPECT_EQ(lineas.inicioDe(linea), inicios[linea]);
    EXPECT_EQ(lineas.inicioDe(-1), -1);
    lineas.reconstruye(u"");
    EXPECT_EQ(lineas.numLineas(), 1);
}

} // namespace
