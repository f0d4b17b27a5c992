#include "norvik/platform/memoria/cajaTextoMemoria.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"
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

TEST(CajaTextoMemoria, TramosDeColor) {
    CajaTextoMemoria caja;
    EXPECT_TRUE(caja.colores().empty());
    caja.ponTexto(u"0123456789");
    EXPECT_EQ(caja.colores(), (std::vector<TramoDeColor>{{0, 10, 0}}));
    caja.selecciona(4, 2);
    caja.ponColorSeleccion(8);
    EXPECT_EQ(caja.colores(), (std::vector<TramoDeColor>{{0, 4, 0}, {4, 2, 8}, {6, 4, 0}}));
}

TEST(SistemaMemoria, LosMensajesVanDondeElAnfitrionDiga) {
    std::vector<Mensaje> vistos;
    SistemaMemoria sistema([&](const Mensaje& m) { vistos.push_back(m); });
    EXPECT_EQ(sistema.muestraMensaje({u"texto", u"título", Icono::Critico}), Respuesta::Aceptar);
    EXPECT_EQ(vistos, (std::vector<Mensaje>{{u"texto", u"título", Icono::Critico}}));
    {
        const PunteroOcupado ocupado(sistema);
        EXPECT_EQ(sistema.puntero(), Puntero::Ocupado);
    }
    EXPECT_EQ(sistema.puntero(), Puntero::Normal);
}
