// SPDX-License-Identifier: MIT

// The property pages: fields against properties, the changed mark, and whose the shared slots are.
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/tools/general.hpp"
#include "norvik/tools/paginaColores.hpp"
#include "norvik/tools/ppControl.hpp"
#include "sistemaDePrueba.hpp"

#include <QSignalSpy>
#include <QtWidgets>

#include <gtest/gtest.h>

using namespace norvik;

namespace {

struct PaginasTest : testing::Test {
    SistemaDePrueba sistema;
    ControlNorvik norvik{sistema, nullptr};
};

} // namespace

TEST_F(PaginasTest, GeneralMuestraYEscribeLasOpciones) {
    General pagina(sistema);
    EXPECT_FALSE(pagina.isEnabled());
    ControlNorvik segundo(sistema, nullptr);
    norvik.LeftBorderVisible(false);
    norvik.MargenIzquierdo(-7);
    pagina.cambiaSeleccion({&norvik, &segundo});
    const auto casillas = pagina.findChildren<QCheckBox*>();
    pagina.show();
    for (int i = 1; i < casillas.size(); ++i)
        EXPECT_GE(casillas[i]->y(), casillas[i - 1]->geometry().bottom());
    std::string marcadas;
    for (const QCheckBox* c : casillas) marcadas += c->isChecked() ? '1' : '0';
    EXPECT_EQ(marcadas, "00110001");
    auto& espacios = *pagina.findChild<QLineEdit*>("txtEspaciosXTAB");
    auto& margen = *pagina.findChild<QLineEdit*>("txtMargenIzquierdo");
    EXPECT_EQ(espacios.text() + u' ' + margen.text(), "4 -7");
    const QSignalSpy cambios(&pagina, &PaginaPropiedades::cambio);
    EXPECT_FALSE(pagina.cambiada());
    for (QCheckBox* c : casillas) c->click();
    EXPECT_TRUE(pagina.cambiada());
    for (const char* mal : {"", "x", "32768", "-32769", "1.5", "4 4"}) {
        espacios.setText(mal);
        margen.setText("20");
        EXPECT_FALSE(pagina.aplica());
        const auto mensajes = sistema.dameMensajes();
        ASSERT_EQ(mensajes.size(), 1U) << mal;
        EXPECT_EQ(aQString(mensajes[0].texto),
                  QString("Número de espacios por Tab\n«%1» no es un número entero "
                          "entre -32768 y 32767.")
                      .arg(mal));
        EXPECT_EQ(norvik.EspaciosXTAB(), 4);
        EXPECT_TRUE(pagina.cambiada());
    }
    espacios.setText("8");
    EXPECT_TRUE(pagina.aplica());
    EXPECT_EQ(cambios.size(), 2);
    for (const char* p : {"MuestraMensajesDeError", "MarcarErrores", "AutoCorreccion", "LenguajeSensible",
                          "LeftBorderVisible"})
        EXPECT_TRUE(norvik.property(p).toBool()) << p;
    for (const char* p : {"AutoNumero", "AutoTAB", "Borde3D"}) EXPECT_FALSE(norvik.property(p).toBool()) << p;
    EXPECT_TRUE(norvik.findChild<QWidget*>("bordeClaro1")->isHidden());
    EXPECT_EQ(norvik.EspaciosXTAB() * 100 + norvik.MargenIzquierdo(), 820);
    EXPECT_EQ(segundo.MargenIzquierdo(), 150);
}

TEST_F(PaginasTest, LosColoresCambianAlAplicar) {
    norvik.ColorFechas(-1);
    PaginaColores pagina(sistema);
    pagina.cambiaSeleccion({&norvik});
    auto& lista = *pagina.findChild<QListWidget*>("propiedades");
    EXPECT_EQ(lista.count(), 9);
    lista.setCurrentRow(2);
    pagina.findChildren<QSpinBox*>()[2]->setValue(0x12);
    lista.setCurrentRow(0);
    for (auto* boton : pagina.findChildren<QAbstractButton*>())
        if (boton->accessibleName() == "Rojo") boton->click();
    EXPECT_EQ(norvik.ColorPR(), 0x800000);
    EXPECT_TRUE(pagina.aplica());
    EXPECT_EQ(norvik.ColorPR(), 0x0000FF);
    EXPECT_EQ(norvik.ColorComentarios(), 0x128000);
    EXPECT_EQ(norvik.ColorFechas(), -1);
}

TEST_F(PaginasTest, CadaEspecificacionVuelveASuControl) {
    ControlNorvik otro(sistema, nullptr);
    const auto especificacion = [](ControlNorvik& c) { return c.control().opciones().contenidoG; };
    const QSignalSpy avisos(&norvik, &ControlNorvik::propiedadCambiada);
    PPControl una(sistema);
    una.cambiaSeleccion({&norvik});
    una.cambiaSeleccion({&norvik});
    EXPECT_EQ(avisos.size(), 0); // nothing was edited
    ranurasDisenio().especificacion = u"uno";
    una.cambiaSeleccion({&norvik});
    EXPECT_EQ(ranurasDisenio().especificacion, u"uno");
    ranurasDisenio().especificacion = u"dos";
    {
        PPControl otra(sistema);
        otra.cambiaSeleccion({&otro});
        EXPECT_EQ(especificacion(norvik), u"dos");
        EXPECT_EQ(ranurasDisenio().especificacion, u"");
        ranurasDisenio().especificacion = u"tres";
        una.cierra();
        EXPECT_EQ(especificacion(norvik), u"dos");
    }
    EXPECT_EQ(especificacion(otro), u"tres");
    {
        ControlNorvik efimero(sistema, nullptr);
        una.cambiaSeleccion({&efimero});
        EXPECT_TRUE(una.isEnabled());
    }
    EXPECT_FALSE(una.isEnabled());
    EXPECT_FALSE(una.aplica());
    PPControl otra(sistema);
    otra.cambiaSeleccion({&otro});
    EXPECT_EQ(ranurasDisenio().especificacion, u"tres");
}
