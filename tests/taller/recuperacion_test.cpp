// SPDX-License-Identifier: MIT

// What is not saved survives its workbench, and what others wrote survives this one.
#include "taller/dialogosGuion.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "copiaTaller.hpp"
#include "documentos.hpp"
#include "recuperacion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

using namespace norvik;
using namespace norvik::taller;

namespace {

/// A workbench, from its start to its end.
struct Vida {
    explicit Vida(const apoyo::CarpetaTemporal& carpeta)
        : ajustes(QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat),
          recuperacion(ventana, dialogos, carpeta / "estado" / "copias") {
        ventana.show();
    }
    ControlNorvik& norvik() { return ventana.formulario().activo().norvik(); }
    VentanaLenguaje& lenguaje() { return ventana.ventanaLenguaje(); }
    static void escribe(ControlNorvik& norvik, const char* texto) {
        QTest::keyClicks(&norvik.caja().ventana(), texto);
    }

    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes;
    VentanaPrincipal ventana{{sistema, dialogos, ajustes, {}}};
    Recuperacion recuperacion;
};

struct RecuperacionTest : testing::Test {
    QString pon(std::string_view nombre, std::string_view bytes) const {
        return QString::fromStdString(carpeta.pon(nombre, bytes).string());
    }
    QString ruta(std::string_view nombre) const {
        return QString::fromStdString((carpeta / nombre).string());
    }
    QStringList copias() const { return QDir(ruta("estado/copias")).entryList({"*.copia"}, QDir::Files); }
    std::unique_ptr<Vida> nace() const { return std::make_unique<Vida>(carpeta); }
    /// What a life leaves that does not come to close.
    static void muere(std::unique_ptr<Vida> vida) { vida->recuperacion.conserva(); }

    apoyo::CarpetaTemporal carpeta;
};

} // namespace

TEST_F(RecuperacionTest, LoEscritoVuelveComoEstaba) {
    const QString uno = pon("uno.txt", "\xF1\r\n"); // not UTF-8
    const QString lengua = pon("l.nvk", "Token a = \"a\";\nS -> a;\n");
    auto vida = nace();
    EXPECT_TRUE(copias().isEmpty());
    vida->ventana.abre(uno);
    Vida::escribe(vida->norvik(), "x");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !copias().isEmpty(); }, 2000)) << "by itself";
    vida->ventana.acciones().anadir.trigger();
    vida->norvik().EspaciosXTAB(7);
    Vida::escribe(vida->norvik(), "segundo");
    vida->ventana.abreEnVentana(lengua);
    Vida::escribe(vida->lenguaje().especificacion().norvik(), "'");
    Vida::escribe(vida->lenguaje().texto().norvik(), "aa");
    muere(std::exchange(vida, nullptr));

    for (int vez = 0; vez < 2; ++vez) { // it dies again before anything is saved
        vida = nace();
        vida->dialogos.destinos = {Destino::Guardar};
        vida->recuperacion.ofrece();
        ASSERT_EQ(vida->dialogos.dichos.size(), 1);
        for (const char* titulo : {"la especificación «l.nvk»", "el texto de prueba «Sin título»",
                                   "el texto «uno.txt»", "el texto «Sin título»", "el formulario sin título"})
            EXPECT_TRUE(vida->dialogos.dichos[0].contains(titulo)) << titulo;
        const auto& elementos = vida->ventana.formulario().elementos();
        ASSERT_EQ(elementos.size(), 2U);
        EXPECT_EQ(elementos[0]->norvik().Text(), QString::fromUtf8("xñ"));
        EXPECT_TRUE(elementos[0]->textoModificado());
        EXPECT_EQ(elementos[1]->norvik().Text(), "segundo");
        EXPECT_EQ(elementos[1]->norvik().EspaciosXTAB(), 7);
        EXPECT_TRUE(vida->ventana.formulario().modificado());
        EXPECT_TRUE(vida->lenguaje().isVisible());
        EXPECT_TRUE(vida->lenguaje().especificacion().texto().starts_with(u"'Token"));
        EXPECT_EQ(vida->lenguaje().texto().texto(), u"aa");
        if (vez == 0) muere(std::exchange(vida, nullptr));
    }
    vida->ventana.formulario().activa(*vida->ventana.formulario().elementos()[0]);
    vida->ventana.acciones().guardarTexto.trigger();
    EXPECT_EQ(apoyo::bytesDe(carpeta / "uno.txt"), "x\xF1\r\n");
    vida->dialogos.destinos.assign(5, Destino::Descartar);
    EXPECT_TRUE(vida->ventana.close());
    vida.reset();
    EXPECT_TRUE(QDir(ruta("estado/copias")).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden));
    vida = nace();
    vida->recuperacion.ofrece();
    EXPECT_EQ(vida->dialogos.toma(), QStringList());
}

TEST_F(RecuperacionTest, LoGuardadoODeshechoNoDejaCopia) {
    const auto vida = nace();
    vida->ventana.abre(pon("uno.txt", "a\n"));
    for (int vez = 0; vez < 2; ++vez) {
        for (QAction* const fin :
             {&vida->ventana.acciones().guardarTexto, &vida->ventana.acciones().deshacer}) {
            Vida::escribe(vida->norvik(), "x");
            EXPECT_TRUE(QTest::qWaitFor([&] { return copias().size() == 1; }, 2000));
            fin->trigger();
            EXPECT_TRUE(QTest::qWaitFor([&] { return copias().isEmpty(); }, 2000));
        }
    }
    vida->lenguaje().empieza(u"", u"");
    vida->lenguaje().trae();
    Vida::escribe(vida->lenguaje().texto().norvik(), "x");
    EXPECT_TRUE(vida->recuperacion.copia());
    EXPECT_EQ(copias().size(), 1);
    vida->dialogos.destinos = {Destino::Descartar};
    EXPECT_TRUE(vida->lenguaje().close());
    EXPECT_TRUE(QTest::qWaitFor([&] { return copias().isEmpty(); }, 2000));
}

TEST_F(RecuperacionTest, CadaTallerTieneLaSuya) {
    auto uno = nace();
    auto otro = nace();
    for (const auto* vida : {&uno, &otro}) {
        Vida::escribe((*vida)->norvik(), vida == &uno ? "uno" : "otro");
        EXPECT_TRUE((*vida)->recuperacion.copia());
    }
    const auto tercero = nace();
    tercero->recuperacion.ofrece(); // both live
    EXPECT_EQ(tercero->dialogos.toma(), QStringList());
    muere(std::exchange(uno, nullptr));
    tercero->recuperacion.ofrece(); // not now
    EXPECT_EQ(tercero->dialogos.toma().size(), 1);
    EXPECT_EQ(tercero->norvik().Text(), "");
    muere(std::move(otro));
    tercero->dialogos.destinos = {Destino::Guardar, Destino::Guardar, Destino::Cancelar};
    tercero->recuperacion.ofrece(); // the second one would take the first one's place
    EXPECT_EQ(tercero->dialogos.toma().value(2), "&Guardar ¿Quiere guardar los cambios de «Sin título»?");
    EXPECT_EQ(tercero->norvik().Text(), "uno");
    tercero->dialogos.destinos = {Destino::Descartar};
    tercero->recuperacion.ofrece();
    EXPECT_EQ(tercero->dialogos.toma().size(), 1);
    tercero->recuperacion.ofrece();
    EXPECT_EQ(tercero->dialogos.toma(), QStringList());
    EXPECT_EQ(copias().size(), 1);
}

TEST_F(RecuperacionTest, LoQueImpideCopiarSeDiceYSeVuelveAIntentar) {
    const auto vida = nace();
    Vida::escribe(vida->norvik(), "x");
    carpeta.pon("estado", "a file in the folder's place");
    EXPECT_FALSE(vida->recuperacion.copia());
    EXPECT_TRUE(vida->ventana.statusBar()->currentMessage().startsWith(
        "No hay copia de recuperación de lo escrito. No se puede escribir en «"));
    EXPECT_TRUE(QFile::remove(ruta("estado")));
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_TRUE(vida->recuperacion.copia());
        EXPECT_EQ(copias().size(), 1);
        QDir(ruta("estado")).removeRecursively();
    }
}

TEST_F(RecuperacionTest, UnaCopiaDanadaSeDiceYSeDejaAparte) {
    auto vida = nace();
    Vida::escribe(vida->norvik(), "abc");
    const std::string copiaBuena = bytesDe(vida->ventana.copia());
    EXPECT_EQ(copiaDe(copiaBuena).formulario->textos.at(0).texto, u"abc");
    for (std::size_t largo = 0; largo < copiaBuena.size(); ++largo)
        EXPECT_THROW(static_cast<void>(copiaDe(std::string_view(copiaBuena).substr(0, largo))),
                     NoCoincidenLosTipos);
    EXPECT_THROW(static_cast<void>(copiaDe(copiaBuena + "x")), NoCoincidenLosTipos);
    muere(std::exchange(vida, nullptr));
    carpeta.pon(("estado/copias/" + copias().first()).toStdString(), "{}");
    for (int otro = 1; otro < 10; ++otro) // and beyond those of workbenches that left nothing
        carpeta.pon("estado/copias/taller-" + std::to_string(otro) + ".cerrojo", "");
    carpeta.pon("estado/copias/taller-9.copia", copiaBuena);
    vida = nace();
    vida->dialogos.destinos = {Destino::Descartar};
    vida->recuperacion.ofrece();
    const QStringList dichos = vida->dialogos.toma();
    ASSERT_EQ(dichos.size(), 2);
    EXPECT_EQ(dichos[0], "aviso La copia de recuperación está dañada: se deja aparte, en «" +
                             ruta("estado/copias/taller-0.rota") + "»");
    EXPECT_TRUE(QFileInfo::exists(ruta("estado/copias/taller-0.rota")));
    vida->recuperacion.ofrece();
    EXPECT_EQ(vida->dialogos.toma(), QStringList());
    EXPECT_TRUE(copias().isEmpty());
}

// Another program writes the file meanwhile: nothing of either is lost without an answer.
TEST_F(RecuperacionTest, LoQueOtroEscribioNoSePisaSinPreguntar) {
    struct Caso {
        Choque respuesta;
        const char* disco;
        const char16_t* aqui;
        bool guardado;
    };
    const Caso casos[] = {{Choque::Cancelar, "de otro\n", u"xa", false},
                          {Choque::Sobrescribir, "xa\n", u"xa", true},
                          {Choque::Recargar, "de otro\n", u"de otro", true},
                          {Choque::GuardarComo, "de otro\n", u"xa", true}};
    const auto vida = nace();
    DialogosGuion& dialogos = vida->dialogos;
    for (const Caso& caso : casos) {
        SCOPED_TRACE(static_cast<int>(caso.respuesta));
        vida->ventana.abre(pon("f", "a\n"));
        Vida::escribe(vida->norvik(), "x");
        pon("f", "de otro\n");
        dialogos.choques = {caso.respuesta};
        dialogos.ficheros = {ruta("mio")};
        vida->ventana.acciones().guardarTexto.trigger();
        const QStringList choques = dialogos.toma().filter("choque");
        ASSERT_EQ(choques.size(), 1);
        EXPECT_TRUE(choques[0].startsWith("choque «f» ha cambiado en el disco"));
        EXPECT_EQ(apoyo::bytesDe(carpeta / "f"), caso.disco);
        EXPECT_EQ(vida->norvik().caja().texto(), caso.aqui);
        EXPECT_NE(vida->ventana.isWindowModified(), caso.guardado);
        dialogos.destinos = {Destino::Descartar};
    }
    EXPECT_EQ(apoyo::bytesDe(carpeta / "mio"), "xa\n");
    for (int vez = 0; vez < 2; ++vez) { // nothing to write, then nobody to ask for
        const QString antes = huellaDe(ruta("mio"));
        vida->ventana.acciones().guardarTexto.trigger();
        EXPECT_EQ(huellaDe(ruta("mio")), antes);
        QFile::remove(ruta("mio"));
        vida->ventana.acciones().guardarTexto.trigger();
        EXPECT_EQ(apoyo::bytesDe(carpeta / "mio"), "xa\n");
    }
    EXPECT_EQ(dialogos.toma().filter("choque"), QStringList());
    pon("mio", "de otro\n"); // what stands here unchanged is no longer in its file
    vida->ventana.acciones().guardarTexto.trigger();
    EXPECT_EQ(dialogos.toma().filter("choque").size(), 1);
}

TEST_F(RecuperacionTest, UnFormularioQueOtroEscribioNoSePisaSinPreguntar) {
    const auto vida = nace();
    DialogosGuion& dialogos = vida->dialogos;
    dialogos.ficheros = {ruta("f.nvf")};
    vida->ventana.acciones().guardarFormulario.trigger();
    const std::string suyo = R"({"Controles":[{"Nombre":"Suyo"},{}]})";
    for (const Choque respuesta : {Choque::Cancelar, Choque::Sobrescribir, Choque::Recargar}) {
        vida->norvik().EspaciosXTAB(respuesta == Choque::Cancelar ? 5 : 6);
        pon("f.nvf", suyo);
        dialogos.choques = {respuesta};
        vida->ventana.acciones().guardarFormulario.trigger();
        EXPECT_EQ(apoyo::bytesDe(carpeta / "f.nvf") == suyo, respuesta != Choque::Sobrescribir);
        EXPECT_EQ(vida->ventana.formulario().elementos().size(), respuesta == Choque::Recargar ? 2U : 1U);
    }
    EXPECT_EQ(dialogos.toma().filter("choque").size(), 3);
}

TEST_F(RecuperacionTest, LaCopiaSabeQueLeyoYQueOtroEscribioDespues) {
    auto vida = nace();
    vida->ventana.abreEnVentana(pon("l.nvk", "S -> ;\n"));
    ControlNorvik& norvik = vida->lenguaje().especificacion().norvik();
    norvik.accion(AccionNorvik::SeleccionarTodo)->trigger();
    QTest::keyClick(&norvik.caja().ventana(), Qt::Key_Delete);
    muere(std::exchange(vida, nullptr));
    pon("l.nvk", "de otro\n");
    vida = nace();
    vida->dialogos.destinos = {Destino::Guardar};
    vida->recuperacion.ofrece();
    vida->dialogos.toma();
    EXPECT_EQ(vida->lenguaje().especificacion().texto(), u"");
    EXPECT_TRUE(vida->lenguaje().isWindowModified());
    QApplication::setActiveWindow(&vida->lenguaje());
    QTest::keyClick(&vida->lenguaje(), Qt::Key_S, Qt::ControlModifier);
    const QString dicho = vida->dialogos.toma().join('|');
    EXPECT_TRUE(dicho.startsWith("choque «l.nvk»")) << dicho.toStdString();
    EXPECT_EQ(apoyo::bytesDe(carpeta / "l.nvk"), "de otro\n");
}
