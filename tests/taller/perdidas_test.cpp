// SPDX-License-Identifier: MIT

// What a person wrote stays when something is in the way: a disk, a folder, a language, a cancellation. And
// whatever is in the way is told.
#include "taller/dialogosGuion.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "apoyo/gramaticaLarga.hpp"
#include "apoyo/repite.hpp"
#include "lenguaje/curas.hpp"
#include "sistemaTaller.hpp"
#include "ventanaPrincipal.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <sys/syscall.h>
#include <unistd.h>

using namespace norvik;
using namespace norvik::taller;

namespace {

/// The flushes to the disk still to go well, and what the one after them fails with.
int volcadosBuenos = -1;
int errorDeVolcado = ENOSPC;

} // namespace

extern "C" int fsync(int descriptor) { // in the place of the system's
    if (volcadosBuenos-- == 0) {
        errno = errorDeVolcado;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

namespace {

struct PerdidasTest : testing::Test {
    PerdidasTest() { ventana.show(); }
    ~PerdidasTest() override { volcadosBuenos = -1; }
    QString pon(std::string_view nombre, std::string_view bytes) const {
        return QString::fromStdString(carpeta.pon(nombre, bytes).string());
    }
    QString ruta(std::string_view nombre) const {
        return QString::fromStdString((carpeta / nombre).string());
    }
    VentanaLenguaje& lenguaje() { return ventana.ventanaLenguaje(); }
    static void escribe(ControlNorvik& norvik, const char* texto) {
        QTest::keyClicks(&norvik.caja().ventana(), texto);
    }
    void tecla(Qt::Key cual, Qt::KeyboardModifiers con) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&lenguaje()));
        QTest::keyClick(&lenguaje().especificacion().norvik().caja().ventana(), cual, con);
    }
    static bool suelta(QWidget& donde, const QMimeData& datos) {
        QDragEnterEvent entrada({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&donde, &entrada);
        QDropEvent evento({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&donde, &evento);
        return entrada.isAccepted();
    }
    /// What stands below in the language window.
    QString dicho() { return lenguaje().statusBar()->currentMessage(); }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat};
    VentanaPrincipal ventana{{sistema, dialogos, ajustes, {}}};
};

constexpr const char* buena = "'% metodo: lalr\r\nToken a = \"a\";\r\nS -> a;\r\n";

} // namespace

TEST_F(PerdidasTest, UnaEspecificacionQueElFormularioNoTomaNoEstaGuardada) {
    QTimer persona;
    QObject::connect(&persona, &QTimer::timeout, [] {
        if (QWidget* const aviso = QApplication::activeModalWidget())
            aviso->findChild<QPushButton*>("cancelar")->click();
    });
    lenguaje().empieza(decodifica(apoyo::gramaticaLarga()), u"");
    for (int vez = 0; vez < 2; ++vez) {
        lenguaje().trae();
        lenguaje().especificacion().norvik().control().SelStart(32'767); // the method stays what it is
        escribe(lenguaje().especificacion().norvik(), "'");
        persona.start(10);
        tecla(Qt::Key_F6, Qt::ShiftModifier);
        persona.stop();
        EXPECT_TRUE(lenguaje().isWindowModified());
        EXPECT_TRUE(lenguaje().copia());
        EXPECT_EQ(dicho(), "El formulario no ha tomado la especificación");
        EXPECT_EQ(ventana.formulario().activo().norvik().ContenidoG(), "");
        dialogos.toma();
        EXPECT_FALSE(lenguaje().close());
        EXPECT_EQ(dialogos.toma().size(), 1);
    }
    lenguaje().especificacion().documento().empieza(decodifica(buena));
    escribe(lenguaje().especificacion().norvik(), "'");
    lenguaje().trae();
    ventana.ordena([&] { tecla(Qt::Key_F6, Qt::ShiftModifier); }); // while another command runs
    EXPECT_TRUE(lenguaje().isWindowModified());
    tecla(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_FALSE(lenguaje().isWindowModified());
    EXPECT_TRUE(ventana.formulario().hayCambios()); // there it is not saved
    EXPECT_TRUE(lenguaje().close());
}

TEST_F(PerdidasTest, LoQueSeDescartoNoVuelve) {
    ventana.abreEnVentana(pon("l.nvk", buena), pon("t.txt", "aa"));
    for (EditorTexto* const editor : {&lenguaje().especificacion(), &lenguaje().texto()})
        escribe(editor->norvik(), "x");
    dialogos.destinos = {Destino::Descartar, Destino::Descartar};
    EXPECT_TRUE(lenguaje().close());
    ventana.abreEnVentana(ruta("l.nvk"));
    EXPECT_FALSE(lenguaje().isWindowModified());
    EXPECT_EQ(lenguaje().especificacion().texto(),
              decodifica("'% metodo: lalr\r\nToken a = \"a\";\r\nS -> a;"));
    EXPECT_EQ(lenguaje().texto().texto(), u"");
    EXPECT_EQ(dialogos.toma().size(), 2);
}

// A write that fails may have changed the file: that is no other program's doing.
TEST_F(PerdidasTest, UnGuardadoQueFallaNoEsDeOtroPrograma) {
    const struct {
        bool tieneOtroNombre; ///< then it is written where it is
        int buenos;
        const char* queda;
        const char* dice;
    } casos[] = {
        {false, 0, "a\n", "no queda espacio en el disco"},
        {false, 1, "xa\n", "El contenido nuevo ya está en su sitio"},
        {true, 1, "a\n", "no queda espacio en el disco"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.dice);
        const QString fichero = pon("f.txt", "a\n");
        QFile::remove(ruta("otro"));
        if (c.tieneOtroNombre) std::filesystem::create_hard_link(carpeta / "f.txt", carpeta / "otro");
        dialogos.destinos = {Destino::Descartar};
        ventana.abre(fichero);
        escribe(ventana.formulario().activo().norvik(), "x");
        dialogos.toma();
        volcadosBuenos = c.buenos;
        ventana.acciones().guardarTexto.trigger();
        volcadosBuenos = -1;
        EXPECT_TRUE(dialogos.toma().join('|').contains(c.dice));
        EXPECT_EQ(apoyo::bytesDe(carpeta / "f.txt"), c.queda);
        EXPECT_TRUE(ventana.isWindowModified());
        ventana.acciones().guardarTexto.trigger();
        EXPECT_EQ(dialogos.toma(), QStringList());
        EXPECT_EQ(apoyo::bytesDe(carpeta / "f.txt"), "xa\n");
        EXPECT_FALSE(ventana.isWindowModified());
    }
    dialogos.ficheros = {ruta("f.nvf")};
    ventana.acciones().guardarFormulario.trigger();
    ventana.formulario().activo().norvik().EspaciosXTAB(5);
    dialogos.toma();
    volcadosBuenos = 1;
    ventana.acciones().guardarFormulario.trigger();
    volcadosBuenos = -1;
    EXPECT_EQ(dialogos.toma().size(), 1);
    ventana.acciones().guardarFormulario.trigger();
    EXPECT_EQ(dialogos.toma(), QStringList());
    EXPECT_FALSE(ventana.formulario().modificado());
}

TEST_F(PerdidasTest, GuardadoYRecargadoSonDosCosas) {
    ventana.abreEnVentana(pon("l.nvk", buena), pon("t.txt", "aa\n"));
    escribe(lenguaje().especificacion().norvik(), "'");
    escribe(lenguaje().texto().norvik(), "a");
    tecla(Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_FALSE(lenguaje().isWindowModified());
    EXPECT_EQ(apoyo::bytesDe(carpeta / "l.nvk"), std::string("'") + buena);
    EXPECT_EQ(apoyo::bytesDe(carpeta / "t.txt"), "aaa\n");
    EXPECT_EQ(dicho(), "Guardado «t.txt»");
    pon("l.nvk", "'de otro\n");
    dialogos.choques = {Choque::Recargar};
    tecla(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(lenguaje().especificacion().texto(), u"'de otro");
    EXPECT_EQ(dicho(), "Recargado del disco «l.nvk»");
    QAccessibleInterface* const barra = QAccessible::queryAccessibleInterface(lenguaje().statusBar());
    EXPECT_EQ(barra->text(QAccessible::Name), dicho()); // it is said, not only seen
    EXPECT_EQ(barra->role(), QAccessible::Notification);
}

TEST_F(PerdidasTest, LoQueSeSueltaSeAbreDondeEsSuyo) {
    ventana.abreEnVentana(pon("l.nvk", buena));
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(pon("otro.nvk", "'otro\n")), QUrl::fromLocalFile(pon("t.txt", "b"))});
    datos.setText("file:///l.nvk");
    QWidget* const editor =
        static_cast<QAbstractScrollArea&>(lenguaje().especificacion().norvik().caja().ventana()).viewport();
    EXPECT_TRUE(suelta(*editor, datos));
    EXPECT_EQ(lenguaje().especificacion().texto(), u"'otro");
    EXPECT_EQ(lenguaje().texto().texto(), u"b");
    datos.setUrls(
        {QUrl::fromLocalFile(pon("f.nvf", R"({"Controles":[{"Nombre":"Suyo"}]})"))}); // the other window's
    EXPECT_TRUE(suelta(lenguaje(), datos));
    EXPECT_EQ(ventana.formulario().activo().nombre(), "Suyo");
    datos.setUrls({QUrl("https://a.b/c")}); // an address is a text
    EXPECT_TRUE(suelta(*editor, datos));
    EXPECT_NE(lenguaje().especificacion().texto().find(u"file:///l.nvk"), std::u16string::npos);
}

// Each stays what it is, is told in words, and lets the window go on.
TEST_F(PerdidasTest, LaVentanaDelLenguajeAnteLoPeor) {
    ControlNorvik& espec = lenguaje().especificacion().norvik();
    ControlNorvik& texto = lenguaje().texto().norvik();
    const auto pega = [](ControlNorvik& norvik, const std::string& pegado) {
        QApplication::clipboard()->setText(QString::fromStdString(pegado));
        norvik.accion(AccionNorvik::SeleccionarTodo)->trigger();
        norvik.accion(AccionNorvik::Pegar)->trigger();
    };
    const auto guarda = [&](const QString& fichero, const std::function<void()>& antes = {}) {
        ventana.abreEnVentana(fichero);
        escribe(espec, "x");
        if (antes) antes();
        tecla(Qt::Key_S, Qt::ControlModifier);
        volcadosBuenos = -1;
    };
    std::string veinte = "'% metodo: lalr\r\nToken a = \"a\";\r\nS -> a;\r\n";
    for (int i = 0; i < 20; ++i)
        veinte += "E" + std::to_string(i) + " -> nadie" + std::to_string(i) + ";\r\n";
    std::string palabras = "'% metodo: lalr\r\n";
    std::string cuerpo;
    for (int i = 0; i < 900; ++i) {
        palabras += "Token t" + std::to_string(i) + " = \"palabra" + std::to_string(i) + "\";\r\n";
        cuerpo += (i == 0 ? "t" : " | t") + std::to_string(i);
    }
    palabras += "S -> S P | P;\r\nP -> " + cuerpo + ";\r\n";
    const auto deLado = [&](int lado) { return lenguaje().problemas().lista().topLevelItem(lado)->text(0); };
    const struct {
        const char* nombre;
        std::function<void()> pasa;
        std::function<QString()> dice;
        const char* palabras;
    } casos[] = {
        {"full disk", [&] { guarda(pon("l.nvk", buena), [] { volcadosBuenos = 0; }); },
         [&] { return dialogos.toma().join('|'); }, "l.nvk»: no queda espacio en el disco"},
        {"folder that disappears",
         [&] {
             std::filesystem::create_directory(carpeta / "c");
             guarda(pon("c/l.nvk", buena), [&] { std::filesystem::remove_all(carpeta / "c"); });
         },
         [&] { return dialogos.toma().join('|'); }, "l.nvk»: la carpeta no existe"},
        {"read-only folder", // for the superuser, too
         [&] {
             dialogos.ficheros = {"/sys/l.nvk"};
             lenguaje().empieza(decodifica(buena), u"");
             lenguaje().trae();
             escribe(espec, "x");
             tecla(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
         },
         [&] { return dialogos.toma().join('|'); }, "aviso No se puede escribir «/sys/l.nvk»: "},
        {"binary file", [&] { guarda(pon("b.nvk", std::string("a\0b\0\x01\x02", 6))); },
         [&] { return dialogos.toma().join('|'); }, "guardado como texto sería otro fichero"},
        {"33,000 lines",
         [&] {
             lenguaje().empieza(decodifica(buena), u"");
             pega(texto, apoyo::repite("a\n", 33'000));
         },
         [&] { return deLado(1); }, "Texto: 1"},
        {"20 errors", [&] { pega(espec, veinte); }, [&] { return deLado(0); }, "Especificación: 40"},
        {"900 keywords",
         [&] {
             pega(espec, palabras);
             pega(texto, apoyo::repite("palabra7 palabra899\n", 900));
         },
         [&] { return deLado(0) + deLado(1); }, "Especificación: ningún problemaTexto: ningún problema"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        dialogos.destinos.assign(2, Destino::Descartar); // of what the case before left
        c.pasa();
        ASSERT_TRUE(QTest::qWaitFor([&] { return lenguaje().seguimiento().alDia(); }, 20'000));
        const QString dice = c.dice();
        EXPECT_TRUE(dice.contains(c.palabras)) << dice.toStdString();
        EXPECT_TRUE(lenguaje().isWindowModified());
        dialogos.toma();
        const std::u16string antes = lenguaje().especificacion().texto();
        escribe(espec, "z"); // it goes on
        EXPECT_EQ(lenguaje().especificacion().texto().size(), antes.size() + 1);
    }
}

// ---- the study that fails

TEST(SeguimientoLenguaje, LoQueNoSePudoEstudiarNoEstaAlDia) {
    enum class Falla : std::uint8_t { Nada, Hilo, Estudio, Arreglos };
    Falla falla = Falla::Nada;
    Seguimiento::Textos textos{u"'% metodo: lalr\r\nToken a = \"a\";\r\nS -> a;\r\n", u"a"};
    Seguimiento seguimiento(
        [&] {
            if (falla == Falla::Hilo) throw std::bad_alloc();
            return textos;
        },
        [&falla](const Seguimiento::Textos& t, const std::shared_ptr<const Estudio>& anterior,
                 const std::stop_token& parada, ErroresBuscados errores) {
            if (falla == Falla::Estudio || (falla == Falla::Arreglos && errores == ErroresBuscados::Todos))
                throw std::bad_alloc();
            return estudia(t.especificacion, t.texto, anterior, parada, errores);
        });
    std::vector<std::u16string> estudiados;
    QStringList fallos;
    QObject::connect(&seguimiento, &Seguimiento::estudiado,
                     [&](const auto& estudio) { estudiados.push_back(estudio->texto); });
    QObject::connect(&seguimiento, &Seguimiento::fallo, [&](const QString& motivo) { fallos += motivo; });
    const auto pasa = [&](Falla cual, const char16_t* texto) {
        falla = cual;
        textos.texto = texto;
        estudiados.clear();
        fallos.clear();
        seguimiento.cambio();
        EXPECT_FALSE(seguimiento.fallido());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return cual == Falla::Nada ? seguimiento.completo() : !fallos.isEmpty(); }));
    };
    for (const Falla cual : {Falla::Hilo, Falla::Estudio, Falla::Hilo}) {
        pasa(Falla::Nada, u"a");
        EXPECT_EQ(estudiados.back(), u"a");
        pasa(cual, u"aa");
        EXPECT_TRUE(seguimiento.fallido());
        EXPECT_FALSE(seguimiento.alDia());
        EXPECT_EQ(estudiados.size(), 0U);
        EXPECT_EQ(fallos, QStringList("No se ha podido estudiar lo escrito: No hay memoria suficiente"));
    }
    pasa(Falla::Arreglos, u"aa"); // an error, and what is known of it without its repairs
    EXPECT_TRUE(seguimiento.alDia());
    EXPECT_FALSE(seguimiento.fallido());
    EXPECT_EQ(estudiados, std::vector<std::u16string>{u"aa"});
    EXPECT_EQ(fallos, QStringList("No se ha podido estudiar cómo se arreglan los errores: No hay memoria "
                                  "suficiente"));
}

TEST_F(PerdidasTest, UnArregloDeOtroTextoNoSeHace) {
    lenguaje().empieza(decodifica(buena), u"aa");
    lenguaje().trae();
    ASSERT_TRUE(QTest::qWaitFor([&] { return lenguaje().seguimiento().completo(); }));
    const Arreglo arreglo{u"", {{{}, u"'", false}}};
    escribe(lenguaje().especificacion().norvik(), "'");
    emit lenguaje().problemas().arreglado(Lado::Especificacion, arreglo);
    EXPECT_EQ(lenguaje().especificacion().texto(), u"'" + decodifica(buena));
    EXPECT_EQ(dicho(), "El texto ya es otro: el arreglo es de uno anterior, y no se hace");
    QTest::keyClick(&lenguaje().especificacion().norvik().caja().ventana(), Qt::Key_Backspace);
    emit lenguaje().problemas().arreglado(Lado::Especificacion, arreglo); // the same text again
    EXPECT_EQ(lenguaje().especificacion().texto(), u"'" + decodifica(buena));
}

// ---- what cures a dangling else

TEST(CurasLenguaje, UnSinoColganteSeDejaComoEsta) {
    const std::string tokens = "Token si = \"si\"; Token no = \"no\"; Token a = \"a\";\r\n";
    const std::string conColgante = tokens + "S -> si S | si S no S | a;\r\n";
    const std::string dos =
        tokens + "Token mas = \"\\+\";\r\nS -> si S | si S no S | E;\r\nE -> E mas E | a;\r\n";
    const struct {
        std::string antes;
        const char* titulo; ///< nothing is offered without one
        std::string despues;
    } casos[] = {
        {conColgante, "Dejarlo así: la tabla ya elige lo que se quiere",
         "'% metodo: lalr\r\n'% conflictos: 1\r\n" + conColgante},
        {"'% metodo: slr\r\n" + conColgante, "Dejarlo así: la tabla ya elige lo que se quiere",
         "'% metodo: slr\r\n'% conflictos: 1\r\n" + conColgante},
        {"'% conflictos: 7\r\n'% metodo: lalr\r\n" + conColgante,
         "Dejarlo así: la tabla ya elige lo que se quiere",
         "'% conflictos: 1\r\n'% metodo: lalr\r\n" + conColgante},
        {"'% metodo: lalr\r\n" + dos, "Dejar así los 2 conflictos: la tabla ya elige lo que se quiere",
         "'% metodo: lalr\r\n'% conflictos: 2\r\n" + dos},
        {"'% metodo: lalr\r\n'% conflictos: 1\r\n" + conColgante, nullptr, ""},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.antes);
        const auto estudio = estudia(decodifica(c.antes), u"", nullptr, {});
        std::vector<Arreglo> curas;
        for (const Hallazgo& hallazgo : conHistorias(*estudio->deLenguaje))
            for (const HistoriaConflicto& historia : hallazgo.historias)
                if (historia.cura == HistoriaConflicto::Cura::SinoColgante)
                    curas = curasDe(*estudio->deLenguaje, historia);
        ASSERT_EQ(curas.size(), c.titulo == nullptr ? 0U : 1U);
        if (c.titulo == nullptr) continue;
        EXPECT_EQ(aQString(curas[0].titulo), c.titulo);
        std::u16string texto = decodifica(c.antes);
        const Cambio& cambio = curas[0].cambios.at(0);
        texto.replace(
            static_cast<std::size_t>(cambio.rango.inicio.desplazamiento),
            static_cast<std::size_t>(cambio.rango.fin.desplazamiento - cambio.rango.inicio.desplazamiento),
            cambio.texto);
        EXPECT_EQ(aQString(texto), QString::fromStdString(c.despues));
        const auto despues = estudia(texto, u"", nullptr, {});
        for (const Diagnostico& d : despues->deLenguaje->diagnosticos)
            EXPECT_EQ(d.gravedad, Gravedad::Nota) << aQString(mensaje(d)).toStdString();
    }
}

// ---- help where nothing else takes input

TEST_F(PerdidasTest, ElManualEstaAUnaTeclaTambienEnLasModales) {
    SistemaTaller deVerdad(ajustes);
    QDialog propiedades;
    propiedades.setObjectName("propiedades");
    QTimer::singleShot(0, &propiedades, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&propiedades));
        for (int vez = 0; vez < 2; ++vez) {
            QTest::keyClick(&propiedades, Qt::Key_F1);
            const auto manuales = propiedades.findChildren<VentanaManual*>();
            ASSERT_EQ(manuales.size(), 1);
            EXPECT_TRUE(manuales[0]->isVisible());
            EXPECT_EQ(manuales[0]->pagina().textCursor().block().text(), "Las propiedades");
            manuales[0]->close();
        }
        propiedades.close();
    });
    deVerdad.muestraModal(propiedades);
    for (const char* const nombre :
         {"propiedades", "CodigoGramatica", "ProbarLenguaje", "Informe", "directorio", "Reemplazar"}) {
        QDialog modal;
        modal.setObjectName(nombre);
        ponManual(modal);
        modal.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&modal));
        QTest::keyClick(&modal, Qt::Key_F1);
        const QString aqui = modal.findChild<VentanaManual*>()->pagina().textCursor().block().text();
        EXPECT_FALSE(aqui.isEmpty() || aqui == "Manual de Norvik") << nombre;
    }
}
