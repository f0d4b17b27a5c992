// SPDX-License-Identifier: MIT

// The suites of boxes and of the control, on the box kept in memory.
#include "control/control_suite.hpp"
#include "platform/cajaTexto_suite.hpp"

namespace norvik {

INSTANTIATE_TEST_SUITE_P(Memoria, CajaTextoTest, testing::Values(crea<CajaTexto>));
INSTANTIATE_TEST_SUITE_P(Memoria, ControlTest, testing::Values(crea<CajaTexto>));

} // namespace norvik
