#include "control/control_suite.hpp"

#include "norvik/platform/memoria/cajaTextoMemoria.hpp"

namespace norvik {

namespace {
constexpr FabricaDeCaja memoria = {
    "memoria", []() -> std::unique_ptr<CajaTexto> { return std::make_unique<CajaTextoMemoria>(); }};
} // namespace

INSTANTIATE_TEST_SUITE_P(Memoria, ControlTest, testing::Values(memoria),
                         [](const auto& caso) { return caso.param.nombre; });

} // namespace norvik
