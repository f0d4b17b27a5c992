#include "norvik/platform/memoria/cajaTextoMemoria.hpp"
#include "platform/cajaTexto_suite.hpp"

using namespace norvik;

namespace {

constexpr Fabrica memoria = {
    "memoria", []() -> std::unique_ptr<CajaTexto> { return std::make_unique<CajaTextoMemoria>(); }};

} // namespace

namespace norvik {
INSTANTIATE_TEST_SUITE_P(Memoria, CajaTextoTest, testing::Values(memoria),
                         [](const auto& caso) { return caso.param.nombre; });
} // namespace norvik
