// SPDX-License-Identifier: MIT

// The workbench's window, driven by its commands, with questions answered by a script.
#include "taller/dialogosGuion.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "apoyo/gramaticaLarga.hpp"
#include "apoyo/repite.hpp"
#include "lenguaje.hpp"
#include "sistemaTaller.hpp"
#include "ventanaPrincipal.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace norvik;
using namespace norvik::taller;

namespace {

constexpr std::string_view calculadora = R"(ExpReg cifra = "[0-9]";
Token num = "<cifra>+", TipoToken = TTNumero ("número");
Token mas = "\+", TipoToken = TTOperador;
E -> E mas num | num;
)";

struct TallerTest : testing::Test {
    ControlNorvik& norvik() { return ventana.formulario().activo().norvik(); }
    QString ruta(std::string_view nombre) const {
        return QString::fromStdString((carpeta / nombre).string());
    }
    QString pon(std::string_view nombre, std::string_view bytes) const {
        return QString::fromStdString(carpeta.pon(nombre, bytes).string());
    }
    void escribe(const char* texto) { QTest::keyClicks(&norvik().caja().ventana(), texto); }
    void ordena(QAction& accion) { accion.trigger(); }
    /// True when the window let itself be closed.
    bool cierra() {
        QCloseEvent evento;
        QApplication::sendEvent(&ventana, &evento);
        return evento.isAccepted();
    }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{ruta("ajustes.ini"), QSettings::IniFormat};
    VentanaPrincipal ventana{{sistema, dialogos, ajustes, {}}};
    Acciones& a = ventana.acciones();
};

} // namespace

TEST_F(TallerTest, AbreEscribeYGuarda) {
    EXPECT_EQ(ventana.focusWidget(), &norvik().caja().ventana()); // writing can start
    const QString uno = pon("uno.txt", "a\nb\n");
    ventana.abre(uno);
    EXPECT_EQ(ventana.windowTitle(), "uno.txt[*] — Formulario sin título — Norvik");
    EXPECT_FALSE(a.deshacer.isEnabled());
    escribe("x");
    EXPECT_TRUE(ventana.isWindowModified());
    ordena(a.guardarTexto);
    EXPECT_FALSE(ventana.isWindowModified());
    EXPECT_EQ(apoyo::bytesDe(carpeta / "uno.txt"), "xa\nb\n");
    escribe("y");
    ordena(a.deshacer);
    EXPECT_EQ(ventana.findChild<QStatusBar*>()->findChildren<QLabel*>().last()->text(), "Línea 1, Columna 2");
    EXPECT_TRUE(a.rehacer.isEnabled());
    EXPECT_EQ(norvik().control().Text(), u"xa\r\nb");
    dialogos.ficheros = {ruta("dos.txt")};
    ordena(a.guardarTextoComo);
    EXPECT_EQ(dialogos.toma(), QStringList{"guardar Guardar texto [uno.txt]"});
    EXPECT_EQ(ventana.windowTitle(), "dos.txt[*] — Formulario sin título — Norvik");
    EXPECT_EQ(ajustes.value("recientes/textos").toStringList(), QStringList({ruta("dos.txt"), uno}));
    ventana.abre(ruta("falta.txt"));
    EXPECT_EQ(dialogos.toma().size(), 1);
    EXPECT_EQ(norvik().control().Text(), u"xa\r\nb"); // what was there stays
}

TEST_F(TallerTest, CadaFicheroSigueComoEra) {
    const std::tuple<std::string, const char*, std::string, QString> casos[] = {
        {"", "n", "n", "UTF-8  LF"},
        {"a\n", "n", "na\n", "UTF-8  LF"},
        {"a\r\n\r\n", "n", "na\r\n\r\n", "UTF-8  CR LF"},
        {"a\rb", "n", "na\rb", "UTF-8  CR"},
        {"\xEF\xBB\xBF\xC3\xB1\n", "n", "\xEF\xBB\xBFn\xC3\xB1\n", "UTF-8 con marca  LF"},
        {"\xF1\r\na", "n", "n\xF1\r\na", "Windows-1252  CR LF"},
        {std::string("\xFF\xFE\xF1\0\r\0\n\0", 8), "\xCE\xB1",
         std::string("\xFF\xFE\xB1\x03\xF1\0\r\0\n\0", 10), "UTF-16 LE  CR LF"},
        {std::string("\xFE\xFF\0\xF1", 4), "n", std::string("\xFE\xFF\0n\0\xF1", 6), "UTF-16 BE  LF"},
        {"\xF1\n", "\xCE\xB1", "\xCE\xB1\xC3\xB1\n", "UTF-8  LF"}, // a letter that it cannot hold
    };
    const QStatusBar& barra = *ventana.findChild<QStatusBar*>();
    for (const auto& [bytes, escrito, queda, formato] : casos) {
        ventana.abre(pon("f.txt", bytes));
        ordena(a.guardarTexto);
        EXPECT_EQ(apoyo::bytesDe(carpeta / "f.txt"), bytes);
        QInputMethodEvent letra;
        letra.setCommitString(escrito);
        QApplication::sendEvent(&norvik().caja().ventana(), &letra);
        ordena(a.guardarTexto);
        EXPECT_EQ(apoyo::bytesDe(carpeta / "f.txt"), queda);
        EXPECT_EQ(barra.findChildren<QLabel*>()[1]->text(), formato);
    }
    EXPECT_TRUE(barra.currentMessage().contains("guardado en UTF-8"));
    ventana.abre(pon("f.txt", "a\r\nb\n\r\n"));
    EXPECT_EQ(barra.currentMessage(), "Mezcla finales de línea: guardado, todos serán CR LF");
    const std::string binario("MZ\0\xF1\n", 5);
    ventana.abre(pon("f.bin", binario));
    EXPECT_EQ(barra.findChildren<QLabel*>()[1]->text(), "No es texto");
    escribe("x");
    for (int vez = 0; vez < 2; ++vez) {
        ordena(a.guardarTexto);
        EXPECT_EQ(dialogos.toma().size(), 1);
    }
    EXPECT_EQ(apoyo::bytesDe(carpeta / "f.bin"), binario);
    EXPECT_TRUE(ventana.isWindowModified());
}

TEST_F(TallerTest, DeshechoTodoNadaEstaModificado) {
    ventana.abre(pon("uno.txt", "a\n"));
    for (int vez = 0; vez < 2; ++vez) {
        escribe("xy");
        EXPECT_TRUE(ventana.isWindowModified());
        ordena(a.deshacer);
        EXPECT_FALSE(ventana.isWindowModified());
        ordena(a.rehacer);
        EXPECT_TRUE(ventana.isWindowModified());
        for (int i = 0; i < 2; ++i) QTest::keyClick(&norvik().caja().ventana(), Qt::Key_Backspace);
        EXPECT_FALSE(ventana.isWindowModified());
    }
    EXPECT_TRUE(cierra());
}

TEST_F(TallerTest, RevisarDiceLaVerdadYUnPasoLaArregla) {
    ordena(a.revisar); // without a specification there is nothing to review
    EXPECT_EQ(dialogos.toma().size(), 1);
    EXPECT_TRUE(ventana.revision().isHidden());
    ventana.abre(pon("s.nvk", "Token a = \"a\"; Token b = \"b\"; Token c = \"c\"; Token d = \"d\";\n"
                              "S -> A a | b; A -> A c | S d | Ø;\n"));
    norvik().control().Text(u"bda");
    ordena(a.analizar);
    EXPECT_FALSE(ventana.mensaje().texto().isEmpty());
    ordena(a.revisar);
    EXPECT_TRUE(ventana.revision().isVisible());
    EXPECT_TRUE(ventana.revision().texto().contains("a d a")) << ventana.revision().texto().toStdString();
    EXPECT_TRUE(ventana.revision().texto().contains("línea 2, columna"));
    ventana.revision().pasarALalr().click();
    EXPECT_EQ(especificacionDe(norvik()).substr(0, 17), u"'% metodo: lalr\r\n");
    EXPECT_TRUE(ventana.formulario().modificado());
    EXPECT_FALSE(ventana.revision().texto().contains("a d a"));
    EXPECT_TRUE(ventana.revision().pasarALalr().isHidden());
    ordena(a.analizar);
    EXPECT_EQ(ventana.mensaje().texto(), "");
}

TEST_F(TallerTest, NadaSePierdeSinPreguntar) {
    const QString otro = pon("otro.txt", "otro");
    escribe("mio");
    const QString pregunta = "&Guardar ¿Quiere guardar los cambios de «Sin título»?";
    dialogos.ficheros = {otro};
    for (const auto& orden : std::initializer_list<std::function<void()>>{
             [&] { ordena(a.nuevoTexto); }, [&] { ordena(a.abrirTexto); }, [&] { ordena(a.nuevoFormulario); },
             [&] { EXPECT_FALSE(cierra()); }}) {
        orden();
        EXPECT_EQ(dialogos.toma().last(), pregunta);
        EXPECT_EQ(norvik().control().Text(), u"mio");
    }
    // Saving that is given up, or fails, is no saving.
    dialogos.destinos = {Destino::Guardar, Destino::Guardar};
    dialogos.ficheros = {"", "/no/hay"};
    EXPECT_FALSE(cierra());
    EXPECT_FALSE(cierra());
    EXPECT_EQ(dialogos.toma().last(), "aviso No se puede escribir «/no/hay»: la carpeta no existe");
    dialogos.destinos = {Destino::Guardar};
    dialogos.ficheros = {ruta("mio.txt")};
    EXPECT_TRUE(cierra());
    EXPECT_EQ(apoyo::bytesDe(carpeta / "mio.txt"), "mio\n");
    norvik().Borde3D(false);
    dialogos.toma();
    EXPECT_FALSE(cierra());
    EXPECT_EQ(dialogos.toma(),
              QStringList{"&Guardar ¿Quiere guardar los cambios del formulario «Formulario sin título»?"});
    dialogos.destinos = {Destino::Descartar};
    EXPECT_TRUE(cierra());
}

TEST_F(TallerTest, AnalizaYMuestraArbolOError) {
    ordena(a.analizar);
    EXPECT_EQ(dialogos.toma(),
              QStringList{"aviso No hay ningún lenguaje cargado. Elija uno en el menú Lenguaje."});
    ventana.abre(pon("suma.nvk", calculadora));
    EXPECT_FALSE(ventana.formulario().modificado());
    norvik().control().Text(u"1+\r\n23");
    ordena(a.analizar);
    EXPECT_EQ(ventana.mensaje().texto(), "");
    const ModeloArbol& modelo = ventana.arbol().modelo();
    EXPECT_EQ(modelo.nodos(), 5);
    const QModelIndex raiz = modelo.index(0, 0);
    EXPECT_EQ(raiz.data().toString(), "1. E → E mas num");
    EXPECT_EQ(modelo.parent(modelo.index(2, 0, raiz)), raiz);
    ventana.show();
    auto& vista = *ventana.arbol().findChild<QTreeView*>();
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {},
                      vista.visualRect(modelo.index(2, 0, raiz)).center());
    EXPECT_EQ(norvik().control().SelText(), u"23");
    EXPECT_EQ(modelo.hojaDe(raiz).texto, "1");
    norvik().control().Text(u"1" + apoyo::repite(u"+1", 200)); // what is deep can be scrolled to
    ordena(a.analizar);
    EXPECT_TRUE(QTest::qWaitFor([&] { return vista.horizontalScrollBar()->maximum() > 0; }));
    norvik().control().Text(u"1\r\n+ +");
    ordena(a.analizar);
    EXPECT_EQ(ventana.mensaje().texto(), QString::fromStdU16String(norvik().control().GetmensajeError()));
    const auto diceAlLector = [this] {
        for (auto* const rotulo : ventana.mensaje().findChildren<QLabel*>())
            if (rotulo->text() == ventana.mensaje().texto())
                return QAccessible::queryAccessibleInterface(rotulo)->text(QAccessible::Name);
        return QString();
    };
    EXPECT_EQ(diceAlLector(), ventana.mensaje().texto());
    const auto pulsa = [this](const QString& titulo) {
        for (auto* const boton : ventana.mensaje().findChildren<QToolButton*>())
            if (boton->isVisible() && boton->text() == titulo) QTest::mouseClick(boton, Qt::LeftButton);
    };
    pulsa("&Ir al error");
    EXPECT_EQ(norvik().control().SelStart(), 5);
    pulsa("✕");
    EXPECT_TRUE(ventana.mensaje().isHidden());
    norvik().control().Text(u"+");
    ordena(a.analizar);
    EXPECT_EQ(diceAlLector(), ventana.mensaje().texto());
    ventana.abre(pon("mal.nvk", "E -> ;; x"));
    EXPECT_TRUE(dialogos.toma().last().startsWith("aviso El lenguaje de Norvik1 no se ha podido cargar:"));
    EXPECT_FALSE(tieneLenguaje(norvik()));
}

TEST_F(TallerTest, ElFormularioGuardaSusControles) {
    ventana.abre(pon("suma.nvk", calculadora));
    ventana.abre(pon("uno.txt", "1 2"));
    norvik().Borde3D(false);
    EXPECT_TRUE(ventana.formulario().modificado());
    ordena(a.anadir);
    EXPECT_EQ(ventana.formulario().activo().nombre(), "Norvik2");
    norvik().EspaciosXTAB(7);
    escribe("sin fichero");
    dialogos.destinos = {Destino::Descartar};
    dialogos.ficheros = {"", ruta("dos.txt"), ruta("f.nvf")};
    ordena(a.guardarTodo); // given up
    EXPECT_TRUE(ventana.formulario().modificado());
    ordena(a.guardarTodo);
    EXPECT_FALSE(ventana.formulario().modificado());
    ordena(a.nuevoFormulario);
    EXPECT_EQ(ventana.formulario().elementos().size(), 1U);
    EXPECT_TRUE(norvik().Borde3D());
    dialogos.ficheros = {ruta("f.nvf")};
    ordena(a.abrirFormulario);
    ASSERT_EQ(ventana.formulario().elementos().size(), 2U);
    ElementoFormulario& primero = *ventana.formulario().elementos()[0];
    EXPECT_FALSE(primero.norvik().Borde3D());
    EXPECT_EQ(primero.norvik().NomLenguaje(), "suma");
    EXPECT_TRUE(tieneLenguaje(primero.norvik()));
    EXPECT_EQ(primero.norvik().Text(), "1 2");
    EXPECT_EQ(ventana.formulario().elementos()[1]->norvik().EspaciosXTAB(), 7);
    EXPECT_EQ(ventana.formulario().elementos()[1]->norvik().Text(), "sin fichero");
    primero.norvik().Borde3D(false); // as it is
    EXPECT_FALSE(ventana.formulario().modificado());
}

// What is no form leaves the present one, and says where it is none.
TEST_F(TallerTest, LoQueNoEsUnFormularioDiceDonde) {
    ordena(a.anadir);
    ventana.formulario().ponModificado(false);
    const QString lista = "Controles no es una lista de 1 a 100 controles";
    const std::string muchos = R"({"Controles":[{})" + apoyo::repite(",{}", 100) + "]}";
    const std::pair<std::string, QString> casos[] = {
        {"", "la línea 1 no es de un fichero JSON"},
        {"{\n\"Controles\": [\n{,", "la línea 3 no es de un fichero JSON"},
        {"[]", "no es un objeto"},
        {"{}", lista},
        {R"({"Controles":{}})", lista},
        {R"({"Controles":[]})", lista},
        {muchos, lista},
        {R"({"Controles":[{},7]})", "Controles[1] no es un objeto"},
        {R"({"Controles":[{"Nombre":7}]})", "Controles[0].Nombre no es un texto"},
        {R"({"Controles":[{"Texto":[]}]})", "Controles[0].Texto no es un texto"},
        {R"({"Controles":[{"Bolsa":"x"}]})", "Controles[0].Bolsa no es un objeto"},
    };
    for (const auto& [bytes, donde] : casos) {
        ventana.abre(pon("a.nvf", bytes));
        EXPECT_EQ(dialogos.toma(),
                  QStringList{"aviso «" + ruta("a.nvf") + "» no es un formulario de Norvik: " + donde});
        EXPECT_EQ(ventana.formulario().elementos().size(), 2U) << bytes;
    }
    ventana.abre(pon("a.nvf", R"({"Controles":[{},{"Bolsa":{"Borde3D":"no"}}]})"));
    EXPECT_EQ(dialogos.toma(),
              QStringList{"aviso Controles[1].Bolsa: No coinciden los tipos: el valor de «Borde3D» no "
                          "es de la clase de su propiedad"});
    EXPECT_EQ(ventana.formulario().elementos().size(), 2U);
}

TEST_F(TallerTest, LoQueUnFormularioTieneDeOtraVersionSeGuarda) {
    const std::string bytes = "{\n  \"Controles\": [\n    {\n      \"Nombre\": \"N\",\n      \"Bolsa\": {\n"
                              "        \"Borde3D\": false,\n        \"Borde4D\": [1,null]\n      },\n"
                              "      \"Otro\": {\"a\":\"b\"}\n    }\n  ],\n  \"Tema\": 2\n}\n";
    const QString fichero = pon("a.nvf", bytes);
    for (int vez = 0; vez < 2; ++vez) {
        ventana.abre(fichero);
        ordena(a.guardarFormulario);
        EXPECT_EQ(dialogos.toma(), QStringList());
        EXPECT_EQ(apoyo::bytesDe(carpeta / "a.nvf"), bytes);
    }
    norvik().Borde3D(true); // its default: the bag has nothing of ours
    ordena(a.guardarFormulario);
    EXPECT_NE(apoyo::bytesDe(carpeta / "a.nvf").find("{\n        \"Borde4D\": [1,null]\n      }"),
              std::string::npos);
    ordena(a.nuevoFormulario);
    dialogos.ficheros = {ruta("b.nvf")};
    ordena(a.guardarFormularioComo);
    EXPECT_EQ(apoyo::bytesDe(carpeta / "b.nvf").find("Tema"), std::string::npos);
}

// A pipe that nobody writes to, a device that never ends: neither is waited for, and what was there stays.
TEST_F(TallerTest, LoQueNoEsUnFicheroCorrienteSeRehusa) {
    escribe("mio");
    for (const char* nombre : {"f", "f.nvf", "f.nvk", "f.bas"}) {
        ASSERT_EQ(mkfifo((carpeta / nombre).c_str(), 0600), 0);
        dialogos.destinos = {Destino::Descartar, Destino::Descartar};
        ventana.abre(ruta(nombre));
        const QString accion = "aviso No se puede leer «" + ruta(nombre) + "»: no es un fichero corriente";
        EXPECT_EQ(dialogos.toma().last(), accion);
        EXPECT_EQ(norvik().Text(), "mio");
    }
    dialogos.ficheros = {ruta("f"), ruta("f.nvf"), ruta("f.nvk")};
    for (QAction* const orden : {&a.guardarTextoComo, &a.guardarFormularioComo, &a.guardarEspecificacion}) {
        ordena(*orden);
        EXPECT_TRUE(dialogos.toma().last().endsWith("no es un fichero corriente"));
    }
    ventana.abre("/dev/zero");
    EXPECT_EQ(dialogos.toma().last(), "aviso No se puede leer «/dev/zero»: no es un fichero corriente");
}

TEST_F(TallerTest, LoQueSeCorrigeAlAbrirEstaModificado) {
    ventana.abre(pon("s.nvk", "Token si = \"Si\", TipoToken = TTPalabraReservada; S -> si;"));
    norvik().control().AutoCorreccion(true);
    for (int vez = 0; vez < 2; ++vez) {
        ventana.abre(pon("a.txt", "SI\n"));
        EXPECT_EQ(norvik().Text(), "Si");
        EXPECT_TRUE(ventana.isWindowModified());
        dialogos.destinos = {Destino::Descartar};
    }
    ordena(a.guardarTexto);
    EXPECT_FALSE(ventana.isWindowModified());
    EXPECT_EQ(apoyo::bytesDe(carpeta / "a.txt"), "Si\n");
}

TEST_F(TallerTest, TrasMasCambiosDeLosQueSeCuentanHayUnTextoNuevo) {
    for (int vez = 0; vez < 2; ++vez) {
        for (int i = 0; i <= 33'000; ++i) {
            norvik().control().SelText(i % 2 == 0 ? u"a" : u"");
            norvik().control().SelStart(0);
            norvik().control().SelLength(1);
        }
        dialogos.toma();
        dialogos.destinos = {Destino::Descartar};
        ordena(a.nuevoTexto);
        EXPECT_EQ(dialogos.toma().size(), 1) << "the question alone";
        EXPECT_EQ(norvik().Text(), "");
        EXPECT_FALSE(ventana.isWindowModified());
        EXPECT_FALSE(a.deshacer.isEnabled());
    }
}

// More lines than the control numbers: each key is too much for it, of which a person hears once, until they
// fit.
TEST_F(TallerTest, UnLimiteQueSePasaSeDiceUnaVez) {
    ventana.show();
    QWidget& editor = norvik().caja().ventana();
    QStatusBar& barra = *ventana.findChild<QStatusBar*>();
    const auto pulsa = [&](Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(&editor, tecla, teclas);
        QCoreApplication::processEvents();
        const QString dice = barra.currentMessage();
        barra.clearMessage(); // as other words do
        return dice.startsWith("Desbordamiento: ") ? 1 : 0;
    };
    QApplication::clipboard()->setText(QString("a\n").repeated(33'000));
    for (int vez = 0; vez < 2; ++vez) {
        int dichos = 0;
        dichos += pulsa(Qt::Key_Insert, Qt::ShiftModifier);
        for (const Qt::Key tecla :
             {Qt::Key_Up, Qt::Key_Down, Qt::Key_X, Qt::Key_Return, Qt::Key_Up, Qt::Key_Z})
            dichos += pulsa(tecla);
        EXPECT_EQ(dichos, 1);
        EXPECT_TRUE(norvik().Text().contains("z")) << "edited all the same";
        ordena(a.seleccionarTodo);
        dichos = pulsa(Qt::Key_Delete);
        EXPECT_EQ(dichos, 0);
        EXPECT_EQ(norvik().Text(), "");
    }
    EXPECT_TRUE(dialogos.toma().isEmpty());
}

TEST_F(TallerTest, NingunNombreSeTomaPorUnaPagina) {
    const QString imagen = "<img src=/dev/zero>";
    norvik().NomLenguaje(imagen);
    const auto etiquetas = ventana.findChildren<QLabel*>();
    for (const QLabel* const etiqueta : etiquetas) {
        const bool llana = etiqueta->textFormat() == Qt::PlainText || !etiqueta->pixmap().isNull();
        EXPECT_TRUE(llana) << etiqueta->text().toStdString();
    }
    EXPECT_EQ(ventana.findChild<QStatusBar*>()->findChildren<QLabel*>().first()->text(), imagen);
}

// More than a grammar can have: half a language is none, and what is too much is said with whose it is.
TEST_F(TallerTest, UnLenguajeQueNoCabeNoSeQuedaAMedias) {
    ventana.abre(pon("suma.nvk", calculadora));
    for (int vez = 0; vez < 2; ++vez) {
        ventana.abre(pon("s.nvk", "Token a = \"a\"; S -> " + apoyo::repite("a ", 1000) + ";"));
        EXPECT_EQ(dialogos.toma(), QStringList{"aviso El lenguaje de Norvik1 no se ha podido cargar:\n\n"
                                               "Desbordamiento: el autómata llega a 1000 estados"});
        EXPECT_FALSE(tieneLenguaje(norvik()));
    }
}

// With words to be corrected it is coloured at once, aids or not.
TEST_F(TallerTest, ColorearElTextoQueSeAbreSeCancela) {
    norvik().AutoCorreccion(true);
    ventana.abre(pon("d.nvk", R"(Token t = "(a*)*\1c"; S -> t;)"));
    const QString texto = pon("a.txt", std::string(30'000, 'a'));
    bool cancelado = false;
    QTimer persona;
    QObject::connect(&persona, &QTimer::timeout, [&] {
        if (QWidget* const aviso = QApplication::activeModalWidget(); aviso != nullptr && !cancelado) {
            cancelado = true;
            aviso->findChild<QPushButton*>("cancelar")->click();
        }
    });
    persona.start(10);
    for (int vez = 0; vez < 2; ++vez) {
        cancelado = false;
        ventana.abre(texto);
        EXPECT_TRUE(cancelado);
        EXPECT_EQ(dialogos.toma(), QStringList());
        EXPECT_EQ(ventana.formulario().activo().fichero(), texto);
        EXPECT_EQ(norvik().caja().texto().size(), 30'000U);
        EXPECT_FALSE(ventana.formulario().activo().textoModificado());
    }
}

// Each of them fits, all together are gigabytes of automata: what is left is loaded by who uses it.
TEST_F(TallerTest, LosLenguajesDeUnFormularioCabenJuntos) {
    std::string grande = "ExpReg x = \"" + std::string(15'900, 'a') + "\";\n";
    for (int i = 0; i < 30; ++i) grande += "Token t" + std::to_string(i) + " = \"<x>b\";\n";
    grande += "S -> t1;";
    const std::string chica(calculadora);
    std::vector<std::string> lenguajes(18, grande); // each one is far from what one alone may take
    lenguajes.insert(lenguajes.begin() + 1, chica);
    lenguajes.insert(lenguajes.end(), {"", chica});
    QJsonArray controles;
    for (const std::string& lenguaje : lenguajes)
        controles.append(
            QJsonObject{{"Nombre", QString("N%1").arg(controles.size())},
                        {"Bolsa", QJsonObject{{"ContenidoG", QString::fromStdString(lenguaje)}}}});
    const QByteArray formulario = QJsonDocument(QJsonObject{{"Controles", controles}}).toJson();
    ventana.formulario().ponModificado(false);
    ventana.abre(pon("f.nvf", formulario.toStdString()));
    const QStringList avisos = dialogos.toma();
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_EQ(avisos[0].count('\n'), 0);
    EXPECT_TRUE(avisos[0].startsWith("aviso N20: su lenguaje no se ha cargado")) << avisos[0].toStdString();
    ElementoFormulario& ultimo = *ventana.formulario().elementos()[20];
    a.disenio.setChecked(true);
    a.disenio.setChecked(false);
    EXPECT_FALSE(tieneLenguaje(ultimo.norvik()));
    ventana.formulario().activa(ultimo);
    ultimo.norvik().Text("1+2");
    ordena(a.analizar);
    EXPECT_EQ(dialogos.toma(), QStringList());
    EXPECT_TRUE(tieneLenguaje(ultimo.norvik()));
    EXPECT_GT(ventana.arbol().modelo().nodos(), 0);
}

// The language and the specification that were there stay, whatever was opened or asked for.
TEST_F(TallerTest, UnLenguajeInterminableSeCancela) {
    ventana.abre(pon("suma.nvk", calculadora));
    const QString larga = pon("larga.nvk", apoyo::gramaticaLarga());
    QTimer persona;
    QElapsedTimer cronometro;
    QObject::connect(&persona, &QTimer::timeout, [&] {
        QWidget* const aviso = QApplication::activeModalWidget();
        if (aviso == nullptr || cronometro.isValid()) return;
        cronometro.start();
        aviso->findChild<QPushButton*>("cancelar")->click();
    });
    persona.start(10);
    for (int vez = 0; vez < 2; ++vez) {
        cronometro.invalidate();
        ventana.abre(larga);
        ASSERT_TRUE(cronometro.isValid());
        EXPECT_LT(cronometro.elapsed(), 2000);
        EXPECT_EQ(dialogos.toma(), QStringList());
        EXPECT_EQ(norvik().NomLenguaje(), "suma");
        EXPECT_FALSE(ventana.formulario().modificado());
        norvik().control().Text(u"1+2");
        ordena(a.analizar);
        EXPECT_EQ(ventana.arbol().modelo().nodos(), 5);
    }
    norvik().control().ContenidoG(decodifica(apoyo::gramaticaLarga())); // written on its page, say
    for (QAction* const orden : {&a.analizar, &a.revisar, &a.informe, &a.analizar}) {
        cronometro.invalidate();
        ordena(*orden);
        ASSERT_TRUE(cronometro.isValid());
        EXPECT_LT(cronometro.elapsed(), 2000);
        EXPECT_EQ(dialogos.toma(), QStringList());
        EXPECT_TRUE(tieneLenguaje(norvik()));
    }
    EXPECT_TRUE(ventana.revision().isHidden());
    QJsonArray controles; // one press is for all the languages of a form
    const QJsonObject bolsa{{"ContenidoG", QString::fromStdString(apoyo::gramaticaLarga())}};
    for (int i = 0; i < 9; ++i) controles.append(QJsonObject{{"Bolsa", bolsa}});
    const QByteArray formulario = QJsonDocument(QJsonObject{{"Controles", controles}}).toJson();
    ventana.formulario().ponModificado(false);
    dialogos.destinos = {Destino::Descartar};
    cronometro.invalidate();
    ventana.abre(pon("f.nvf", {formulario.data(), static_cast<std::size_t>(formulario.size())}));
    EXPECT_LT(cronometro.elapsed(), 2000);
    EXPECT_EQ(dialogos.toma().last(), "aviso La operación se ha cancelado");
    EXPECT_EQ(ventana.formulario().elementos().size(), 9U);
}

TEST_F(TallerTest, ModoDeDisenio) {
    ordena(a.anadir);
    ventana.show();
    a.disenio.setChecked(true);
    EXPECT_FALSE(a.buscar.isEnabled());
    ElementoFormulario& primero = *ventana.formulario().elementos()[0];
    auto* velo = primero.findChild<VeloDisenio*>();
    ASSERT_TRUE(velo->isVisible());
    QTest::keyClick(ventana.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(norvik().Text(), "");
    ventana.resize(ventana.size() + QSize(150, 100));
    QApplication::processEvents();
    EXPECT_EQ(velo->geometry(), primero.norvik().geometry());
    QTest::mouseClick(velo, Qt::LeftButton);
    EXPECT_EQ(&ventana.formulario().activo(), &primero);
    ordena(a.quitar);
    EXPECT_EQ(ventana.formulario().activo().nombre(), "Norvik2");
    a.disenio.setChecked(false);
    EXPECT_TRUE(a.buscar.isEnabled());
    EXPECT_FALSE(ventana.formulario().activo().findChild<VeloDisenio*>()->isVisible());
}

/// From an empty form to a language that was written, tried and saved.
TEST_F(TallerTest, UnLenguajeNuevoDePrincipioAFin) {
    sistema.conModal = [&](QWidget& modal) {
        auto& propiedades = dynamic_cast<VentanaPropiedades&>(modal);
        EXPECT_EQ(propiedades.windowTitle(), "Propiedades de Norvik1[*]");
        EXPECT_FALSE(propiedades.isWindowModified());
        ranurasDisenio() = {decodifica(calculadora), u"", true};
        propiedades.findChild<QComboBox*>("lenguaje")->setEditText("Suma");
        EXPECT_TRUE(propiedades.isWindowModified());
        propiedades.reject(); // the question is given up
        EXPECT_TRUE(propiedades.isVisible());
        dialogos.destinos = {Destino::Guardar};
        propiedades.reject();
        EXPECT_FALSE(propiedades.isVisible());
    };
    ordena(a.nuevoLenguaje);
    const QString pregunta =
        "&Aplicar Hay cambios sin aplicar en las propiedades de Norvik1. ¿Quiere aplicarlos?";
    EXPECT_EQ(dialogos.toma(), QStringList({"modal Propiedades de Norvik1[*]", pregunta, pregunta}));
    EXPECT_EQ(norvik().NomLenguaje(), "Suma");
    EXPECT_TRUE(ventana.formulario().modificado());
    norvik().control().Text(u"1+2");
    ordena(a.analizar);
    EXPECT_EQ(ventana.arbol().modelo().nodos(), 5);
    // Written here and not saved: another language asks.
    ordena(a.nuevoLenguaje);
    EXPECT_EQ(dialogos.toma(),
              QStringList{"&Guardar ¿Quiere guardar en un fichero la especificación de Norvik1?"});
    dialogos.ficheros = {ruta("f.nvf")};
    ordena(a.guardarTodo);
    EXPECT_FALSE(ventana.formulario().modificado());
    sistema.conModal = nullptr;
    ordena(a.propiedades); // looked at only
    EXPECT_FALSE(ventana.formulario().modificado());
    ordena(a.nuevoFormulario);
    ventana.abre(ruta("f.nvf"));
    norvik().control().Text(u"1+2");
    ordena(a.analizar);
    EXPECT_EQ(ventana.arbol().modelo().nodos(), 5);
}

/// Pasted into an empty window, or read from a file: the limit is told where it is in nobody's way, and all
/// that needs no language goes on.
TEST_F(TallerTest, UnTextoDemasiadoLargoSeEdita) {
    constexpr int lineas = 33000;
    const QString texto = QStringLiteral("a\n").repeated(lineas);
    const QString sigue = ". Se edita, se colorea, se analiza y se guarda";
    const QString limiteDeLineas = "Desbordamiento: el texto pasa de 32767 líneas" + sigue;
    const auto editor = [&] { return static_cast<QPlainTextEdit*>(&norvik().caja().ventana()); };
    const auto pulsa = [&](Qt::Key tecla) {
        QTest::keyClick(editor(), tecla);
        QCoreApplication::processEvents();
    };
    const auto dicho = [&] { return ventana.statusBar()->currentMessage(); };
    ventana.show();
    QApplication::setActiveWindow(&ventana);
    for (const bool deFichero : {false, true}) {
        if (deFichero) {
            ventana.abre(pon("largo.txt", texto.toStdString()));
        } else {
            QApplication::clipboard()->setText(texto);
            ordena(a.pegar);
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(dicho(), deFichero ? QString() : limiteDeLineas); // it is coloured all the same
        ordena(a.seleccionarTodo);
        pulsa(Qt::Key_Right);
        EXPECT_EQ(dicho(), limiteDeLineas);
        pulsa(Qt::Key_Return);
        ventana.statusBar()->clearMessage(); // each limit is told once
        for (const Qt::Key tecla : {Qt::Key_Up, Qt::Key_A, Qt::Key_Return, Qt::Key_Down, Qt::Key_Up})
            pulsa(tecla);
        ordena(a.deshacer);
        ordena(a.rehacer);
        emit ventana.arbol().elegida({lineas, 1, "a"});
        QCoreApplication::processEvents();
        EXPECT_EQ(dicho(), "");
        EXPECT_EQ(ventana.findChild<QStatusBar*>()->findChildren<QLabel*>().last()->text(),
                  "Línea 33000, Columna 1");
        EXPECT_EQ(dialogos.toma(), QStringList()); // no box
        EXPECT_EQ(editor()->toPlainText(), conSaltosDeQt(norvik().Text()));
        EXPECT_EQ(norvik().Text().count('a'), lineas + 1);
        norvik().TextoModificado(false);
        ordena(a.nuevoTexto);
    }
}

TEST_F(TallerTest, UnTextoDemasiadoLargoSeAnaliza) {
    ventana.abre(pon("suma.nvk", calculadora));
    const QString sumasLargas = "1+" + QStringLiteral("2+\n").repeated(20'000) + "3";
    const auto ondas = [&] {
        QCoreApplication::processEvents();
        return static_cast<QPlainTextEdit&>(norvik().caja().ventana()).extraSelections().size();
    };
    ventana.show();
    for (int vez = 0; vez < 2; ++vez) {
        norvik().Text(sumasLargas);
        ordena(a.analizar);
        EXPECT_EQ(ventana.statusBar()->currentMessage(), "Análisis sintáctico correcto: 60005 nodos");
        EXPECT_EQ(ventana.mensaje().texto(), "");
        const ModeloArbol& arbol = ventana.arbol().modelo();
        EXPECT_EQ(arbol.nodos(), 60005);
        emit ventana.arbol().elegida(arbol.hojaDe(arbol.index(2, 0, arbol.index(0, 0))));
        EXPECT_EQ(norvik().SelText(), "3");
        const auto bien = ondas();
        norvik().Text("1+*" + sumasLargas + "+");
        ordena(a.analizar);
        EXPECT_EQ(ventana.mensaje().texto().left(29), "Línea 1, Columna 3: Carácter ");
        EXPECT_NE(ventana.statusBar()->currentMessage().left(8), "Análisis");
        EXPECT_GT(ondas(), bien);
        norvik().caja().selecciona(100, 0);
        emit ventana.mensaje().pideIr();
        EXPECT_EQ(norvik().SelStart(), 2);
        norvik().Text("1");
        ordena(a.analizar);
        EXPECT_EQ(ondas(), bien);
    }
}

/// What the control corrects once the text was saved is not saved.
TEST_F(TallerTest, LoCorregidoTrasGuardarNoEstaGuardado) {
    norvik().control().SetPalabraReservada(u"si");
    norvik().AutoCorreccion(true);
    ventana.abre(pon("uno.txt", "\nx\n"));
    escribe("SI");
    ordena(a.guardarTexto);
    EXPECT_FALSE(ventana.isWindowModified());
    QTest::keyClick(&norvik().caja().ventana(), Qt::Key_Down);
    EXPECT_EQ(norvik().Text(), "si\r\nx");
    EXPECT_TRUE(ventana.isWindowModified());
}

TEST_F(TallerTest, FicherosQueSeSueltan) {
    QMimeData datos;
    datos.setUrls(
        {QUrl::fromLocalFile(pon("suma.nvk", calculadora)), QUrl::fromLocalFile(pon("t.txt", "1"))});
    ventana.show();
    QWidget* const texto = static_cast<QPlainTextEdit&>(norvik().caja().ventana()).viewport();
    QDragEnterEvent entrada({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(texto, &entrada);
    EXPECT_TRUE(entrada.isAccepted());
    QDropEvent evento({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(texto, &evento);
    EXPECT_EQ(ventana.ventanaLenguaje().especificacion().texto().substr(0, 6), u"ExpReg");
    EXPECT_EQ(ventana.ventanaLenguaje().texto().texto(), u"1"); // it goes along
    datos.setUrls({QUrl::fromLocalFile(ruta("t.txt"))});
    QApplication::sendEvent(texto, &entrada);
    QDropEvent solo({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(texto, &solo);
    EXPECT_EQ(norvik().Text(), "1");
}

TEST_F(TallerTest, LosRecientesSeAbrenDeNuevo) {
    const QString uno = pon("a&b.txt", "1"), otro = pon("otro.txt", "2");
    ventana.abre(uno);
    ventana.abre(otro);
    ASSERT_TRUE(QFile::remove(otro));
    for (int vez = 0; vez < 2; ++vez) {
        a.textosRecientes.popup({});
        a.textosRecientes.hide();
        const auto entradas = a.textosRecientes.actions();
        ASSERT_EQ(entradas.size(), 2);
        EXPECT_EQ(entradas[0]->text() + '|' + entradas[1]->text(), "&1 otro.txt|&2 a&&b.txt");
        EXPECT_FALSE(entradas[0]->isEnabled());
    }
    a.textosRecientes.actions()[1]->trigger();
    EXPECT_EQ(ventana.formulario().activo().tituloTexto(), "a&b.txt");
}

TEST_F(TallerTest, CadaVentanaVuelveComoSeDejo) {
    SistemaTaller deVerdad(ajustes);
    const auto muestra = [&](QSize otra) {
        QDialog dialogo;
        dialogo.setObjectName("dialogo");
        QTimer::singleShot(0, &dialogo, [&] {
            if (otra.isValid()) dialogo.resize(otra);
            dialogo.close();
        });
        deVerdad.muestraModal(dialogo);
        return dialogo.size();
    };
    EXPECT_EQ(muestra({321, 234}), QSize(321, 234));
    EXPECT_EQ(muestra({}), QSize(321, 234));
    ventana.resize(777, 555);
    EXPECT_TRUE(cierra());
    const VentanaPrincipal otra({sistema, dialogos, ajustes, {}});
    EXPECT_EQ(otra.size(), QSize(777, 555));
}

TEST_F(TallerTest, NingunaTeclaDeMenuSeRepite) {
    const auto teclas = [](const QList<QAction*>& acciones) {
        QStringList usadas;
        for (const QAction* accion : acciones) usadas << QKeySequence::mnemonic(accion->text()).toString();
        usadas.removeAll(QString());
        return usadas;
    };
    const QList<QAction*> menus = ventana.menuBar()->actions();
    EXPECT_EQ(teclas(menus).removeDuplicates(), 0);
    for (const QAction* menu : menus)
        EXPECT_EQ(teclas(menu->menu()->actions()).removeDuplicates(), 0) << menu->text().toStdString();
}
