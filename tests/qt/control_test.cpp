#include "control/control_suite.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"

namespace norvik {

namespace {
constexpr FabricaDeCaja qt = {"qt",
                              []() -> std::unique_ptr<CajaTexto> { return std::make_unique<CajaTextoQt>(); }};
} // namespace

INSTANTIATE_TEST_SUITE_P(Qt, ControlTest, testing::Values(qt),
                         [](const auto& caso) { return caso.param.nombre; });

} // namespace norvik
