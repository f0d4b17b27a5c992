// SPDX-License-Identifier: MIT

// The windows of design time: one round trip from the language page to a loaded module, and every way in
// which it can fail. Boxes and modal windows are answered by the system.
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/tools/codigoGramatica.hpp"
#include "norvik/tools/directorio.hpp"
#include "norvik/tools/ppControl.hpp"
#include "norvik/tools/probarLenguaje.hpp"
#include "norvik/tools/procesando.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

using namespace norvik;

namespace {

/// Answers message boxes and modal windows, and writes down what is asked of it, in order: a box as
/// "title|text|icon", a window as its object name. A busy pointer is shown by "*" before either, a progress
/// notice by "!".
class SistemaConGuion : public SistemaQt {
public:
    Respuesta muestraMensaje(const Mensaje& m) override {
        anota(aQString(m.titulo) + u'|' + aQString(m.texto).remove(u'\r') + u'|' +
              QString::number(static_cast<int>(m.icono)));
        return respuesta;
    }
    /// What is done in a modal window stands under its name; then it is closed.
    void muestraModal(QWidget& ventana) override {
        anota(ventana.objectName());
        QTimer::singleShot(0, &ventana, [this, &ventana] {
            if (const auto& guion = guiones[ventana.objectName()]) guion(ventana);
            if (ventana.isVisible()) ventana.close();
        });
        SistemaQt::muestraModal(ventana);
    }
    void procesaEventos() override {
        huboAviso = huboAviso || aviso();
        if (alProcesar) alProcesar();
        SistemaQt::procesaEventos();
    }
    std::string dameSucesos() { return std::exchange(sucesos, {}).join(u'\n').toStdString(); }
    /// Nothing is left of long work.
    bool enReposo() const { return puntero() == Puntero::Normal && !aviso(); }

    std::map<QString, std::function<void(QWidget&)>> guiones;
    std::function<void()> alProcesar;
    Respuesta respuesta = Respuesta::Aceptar;
    QStringList sucesos;
    bool huboAviso = false; ///< while events ran

private:
    static bool aviso() {
        const auto ventanas = QApplication::topLevelWidgets();
        return std::ranges::any_of(
            ventanas, [](QWidget* v) { return qobject_cast<Procesando*>(v) != nullptr && v->isVisible(); });
    }
    void anota(const QString& suceso) {
        const QString espera = puntero() == Puntero::Ocupado ? QStringLiteral("*") : QString();
        sucesos << espera + (aviso() ? QStringLiteral("!") : QString()) + suceso;
    }
};

const QString reglasDeSuma = QStringLiteral("Token num = \"[0-9]+\", TipoToken = TTNumero;\n"
                                            "Token mas = \"\\+\", TipoToken = TTOperador;\n"
                                            "E -> E mas T | T;\nT -> num;");

/// Types a text key by key.
void teclea(ControlNorvik& norvik, const QString& texto) {
    for (const QChar c : texto) {
        c == u'\n' ? QTest::keyClick(&norvik.caja().ventana(), Qt::Key_Return)
                   : QTest::keyClick(&norvik.caja().ventana(), c.toLatin1());
    }
}

void dispara(const QWidget& ventana, const char* herramienta) {
    auto* accion = ventana.findChild<QAction*>(QLatin1String(herramienta));
    ASSERT_NE(accion, nullptr) << herramienta;
    accion->trigger();
}

/// Colours of a control's text, a letter for each new one.
std::string colores(ControlNorvik& norvik) {
    std::map<std::int32_t, char> letras = {{0, '.'}};
    std::string todos;
    for (const auto& tramo : norvik.caja().colores()) {
        const auto letra = letras.try_emplace(tramo.color, static_cast<char>('a' + letras.size() - 1)).first;
        todos.append(static_cast<std::size_t>(tramo.longitud), letra->second);
    }
    return todos;
}

class DisenioTest : public testing::Test {
protected:
    DisenioTest() {
        ranurasDisenio() = {};
        sistema.imprimeEnFichero(QString::fromStdString((carpeta / "impreso.pdf").string()));
        pagina.cambiaSeleccion({&norvik});
        pagina.show();
    }
    void pulsa(const char* boton) { pagina.findChild<QPushButton*>(QLatin1String(boton))->click(); }
    static void ponTextos(const QString& especificacion) {
        ranurasDisenio() = {especificacion.toStdU16String(), u"prueba", false};
    }
    std::string trasPulsar(const char* boton) {
        pulsa(boton);
        return sistema.dameSucesos();
    }

    const apoyo::CarpetaTemporal carpeta;
    SistemaConGuion sistema;
    ControlNorvik norvik{sistema, nullptr};
    PPControl pagina{sistema};
    QComboBox& lenguaje = *pagina.findChild<QComboBox*>("lenguaje");
};

} // namespace

TEST_F(DisenioTest, UnLenguajeDeLaPaginaAlModulo) {
    norvik.NomLenguaje("Antes");
    pagina.cambiaSeleccion({&norvik});
    EXPECT_EQ(lenguaje.currentText(), "Antes");
    EXPECT_FALSE(pagina.cambiada());
    sistema.guiones["CodigoGramatica"] = [&](QWidget& v) {
        auto& editor = static_cast<CodigoGramatica&>(v);
        EXPECT_TRUE(sistema.enReposo());
        EXPECT_EQ(v.windowTitle(), "Definición de la Gramatica");
        EXPECT_EQ(v.findChild<QLabel*>("Panel1")->text(), "Lin 1, Col 1");
        QTest::keyClick(&editor.Norvik1().caja().ventana(), Qt::Key_Left);
        EXPECT_FALSE(ranurasDisenio().pendienteGuardar);
        teclea(editor.Norvik1(), reglasDeSuma);
        EXPECT_EQ(v.findChild<QLabel*>("Panel1")->text(), "Lin 4, Col 10");
        EXPECT_TRUE(ranurasDisenio().pendienteGuardar);
        EXPECT_EQ(ranurasDisenio().especificacion, editor.Norvik1().control().Text());
        dispara(v, "ProbarLenguaje");
        EXPECT_FALSE(v.isVisible());
    };
    sistema.guiones["ProbarLenguaje"] = [&](QWidget& v) {
        auto& prueba = static_cast<ProbarLenguaje&>(v);
        EXPECT_EQ(v.windowTitle(), "Ventana para código de pruebas");
        teclea(prueba.Norvik1(), "1+\n+2");
        dispara(v, "Test");
        EXPECT_EQ(colores(prueba.Norvik1()), "ab..cc"); // up to where it was read
        QTest::keyClick(&prueba.Norvik1().caja().ventana(), Qt::Key_Home);
        QTest::keyClick(&prueba.Norvik1().caja().ventana(), Qt::Key_Delete);
        dispara(v, "Test");
        dispara(v, "salir");
    };
    EXPECT_EQ(trasPulsar("Command4"),
              "CodigoGramatica\nProbarLenguaje\n"
              "ERROR de Sintaxis|Error: Se ha encontrado '+' (Línea 2, Columna 1). Se esperaba '[0-9]+'.|48\n"
              "Prueba de la gramática|Análisis sintáctico correcto|64");
    EXPECT_TRUE(pagina.cambiada());
    EXPECT_EQ(ranurasDisenio().textoPrueba, u"1+\r\n2");

    EXPECT_EQ(trasPulsar("Command5"), "Informe");
    lenguaje.setEditText("Suma");
    directorioDestino() = carpeta.ruta();
    sistema.guiones["directorio"] = [](QWidget& v) { v.findChild<QPushButton*>("Command1")->click(); };
    EXPECT_EQ(trasPulsar("Command6"), "directorio");
    EXPECT_TRUE(sistema.huboAviso);
    EXPECT_TRUE(sistema.enReposo());

    EXPECT_TRUE(pagina.aplica());
    EXPECT_FALSE(pagina.cambiada());
    pagina.cierra();
    EXPECT_EQ(ranurasDisenio().especificacion, u"");
    BolsaPropiedades bolsa;
    norvik.control().guardaPropiedades(bolsa);
    bolsa.aFichero(carpeta / "bolsa.json");
    ControlNorvik otro;
    otro.control().restauraPropiedades(BolsaPropiedades::deFichero(carpeta / "bolsa.json"));
    EXPECT_EQ(otro.NomLenguaje(), "Suma");
    otro.Colorear(true);
    EXPECT_TRUE(otro.control().CargaGramatica(otro.control().opciones().contenidoG));
    EXPECT_TRUE(otro.control().GeneraCompilador());
    ControlNorvik conModulo;
    conModulo.Colorear(true);
    EXPECT_FALSE(CargaModulo(decodifica(leeBytes(carpeta / "Suma.bas")), conModulo.control()).has_value());
    for (ControlNorvik* c : {&otro, &conModulo}) {
        c->control().Text(otro.control().opciones().codigoPrueba);
        c->control().ColoreaTodo();
        EXPECT_TRUE(c->control().ConstruyeArbolSintactico());
    }
    EXPECT_EQ(conModulo.control().GetArbolSintactico().toString(),
              otro.control().GetArbolSintactico().toString());
    EXPECT_EQ(colores(conModulo), "ab..a");
    EXPECT_EQ(colores(conModulo), colores(otro));
}

// Of every way to fail: what is told, in order, and whether the grammar editor is still there. In all of them
// pointer and notice are down and both texts are kept.
TEST_F(DisenioTest, LoQueFallaEnElEditorSeDiceYNadaSePierde) {
    const QString largo(40000, u' ');
    const QString muchasReglas = "A -> a" + QString(" | a").repeated(1000) + ";";
    const QString muchosEstados = "A -> " + QString("a ").repeated(1000) + ";";
    const QString malTrazada = "Token a = \"[\";\r\nA -> a;";
    const std::string sinRegla =
        "ERROR en la definición de la gramática|La variable B definida en la parte derecha "
        "de la regla A no está definida.|16";
    const std::string atencion =
        "*Atención|La definición de la expresión regular 'a':\n\t\t[\nes incorrecta. "
        "Revísela para obtener un análisis léxico adecuado.|48\n";
    const std::string demasiadas = "|Subíndice fuera de intervalo: la gramática pasa de 1000 reglas|0";
    const std::string demasiados = "|Desbordamiento: el autómata llega a 1000 estados|0";
    const std::string demasiado = "|Desbordamiento: el texto pasa de 32766 caracteres|0";
    const std::string sintaxis =
        "*ERROR de Sintaxis|Error: Se ha encontrado '=' (Línea 1, Columna 3). Se esperaba ";
    struct Caso {
        const char* herramienta;
        QString especificacion;
        std::string sucesos;
        bool abierto = true;
    };
    const Caso casos[] = {
        {"ProbarLenguaje", "A = ", sintaxis + "->.|48"},
        {"VerInforme", "A = ", sintaxis + "'->'.|48"},
        {"ProbarLenguaje", "A -> B;", sinRegla},
        {"VerInforme", "A -> B;", sinRegla},
        {"ProbarLenguaje", malTrazada, atencion + "ProbarLenguaje", false},
        {"VerInforme", malTrazada, atencion + "Informe"},
        {"ProbarLenguaje", muchasReglas, demasiadas},
        {"VerInforme", muchasReglas, demasiadas},
        {"ProbarLenguaje", muchosEstados, demasiados, false},
        {"VerInforme", muchosEstados, demasiados},
        {"ProbarLenguaje", largo, demasiado},
        {"VerInforme", largo, demasiado},
        {"seleccionarTodo", largo,
         "|Desbordamiento: la longitud del texto 40000 no está entre -32768 y 32767|0"},
        {"VerInforme", "", "Informe"},
        {"ProbarLenguaje", "", "ProbarLenguaje", false},
    };
    for (const Caso& c : casos) {
        ponTextos(c.especificacion);
        CodigoGramatica editor(sistema);
        static_cast<void>(falloDe([&] { editor.carga(); }));
        editor.show();
        dispara(editor, c.herramienta);
        const auto caso = c.herramienta + (" " + c.especificacion.left(20)).toStdString();
        EXPECT_EQ(sistema.dameSucesos(), c.sucesos) << caso;
        EXPECT_EQ(editor.isVisible(), c.abierto) << caso;
        EXPECT_TRUE(sistema.enReposo()) << caso;
        EXPECT_EQ(ranurasDisenio().textoPrueba, u"prueba") << caso;
        EXPECT_EQ(ranurasDisenio().especificacion, c.especificacion.toStdU16String()) << caso;
        EXPECT_FALSE(ranurasDisenio().pendienteGuardar) << caso;
    }
}

TEST_F(DisenioTest, LoQueFallaEnLaPaginaSeDiceYNadaSePierde) {
    const std::string nombre = "|El nombre seleccionado para el lenguaje es incorrecto|0";
    const std::string alCompilar =
        "Error|Se ha producido el siguiente error al intentar compilar el código de la "
        "gramática:\n\nError: Se ha encontrado '=' (Línea 1, Columna 3). Se esperaba "
        "'->'.\n\nRevise el código fuente para una compilación sin errores.|48";
    const std::string sinRegla =
        "ERROR en la definición de la gramática|La variable B definida en la parte derecha "
        "de la regla A no está definida.|16";
    struct Caso {
        const char* boton;
        QString nombre;
        QString especificacion;
        std::string sucesos;
        bool cancela = false;
    };
    const Caso casos[] = {
        {"Command6", "", reglasDeSuma, nombre},
        {"Command6", "2lenguaje", reglasDeSuma, nombre},
        {"Command6", "mi lenguaje", reglasDeSuma, nombre},
        {"Command6", "C/C++", reglasDeSuma, nombre},
        {"Command6", "Sub", reglasDeSuma,
         "|El nombre del módulo no puede ser «Sub»: ha de ser un identificador que no sea palabra "
         "reservada|0"},
        {"Command6", "Basic", reglasDeSuma, "directorio", true},
        {"Command6", "Basic", "A = ", "directorio\n" + alCompilar},
        {"Command6", "Basic", "A -> B;", "directorio\n" + sinRegla},
        {"Command5", "Basic", "A = ", alCompilar},
        {"Command5", "Basic", "A -> B;", sinRegla},
        {"Command5", "Basic", QString(40000, u' '), "|Desbordamiento: el texto pasa de 32766 caracteres|0"},
        {"Command4", "Basic", QString(40000, u' '),
         "|Desbordamiento: el texto pasa de 32766 caracteres|0\nCodigoGramatica"},
    };
    for (const Caso& c : casos) {
        ponTextos(c.especificacion);
        lenguaje.setEditText(c.nombre);
        directorioDestino() = carpeta.ruta();
        sistema.guiones["directorio"] = [&](QWidget& v) {
            v.findChild<QPushButton*>(c.cancela ? "Command2" : "Command1")->click();
        };
        const auto caso = c.boton + (" " + c.nombre + " " + c.especificacion.left(20)).toStdString();
        EXPECT_EQ(trasPulsar(c.boton), c.sucesos) << caso;
        EXPECT_TRUE(sistema.enReposo()) << caso;
        EXPECT_EQ(carpeta.entradas(), 0U) << caso;
        EXPECT_EQ(ranurasDisenio().especificacion, c.especificacion.toStdU16String()) << caso;
    }
    ponTextos(reglasDeSuma); // a folder that goes away once it is chosen
    directorioDestino() = carpeta / "otra";
    std::filesystem::create_directory(directorioDestino());
    sistema.guiones["directorio"] = [&](QWidget& v) {
        v.findChild<QPushButton*>("Command1")->click();
        std::filesystem::remove(carpeta / "otra");
    };
    EXPECT_NE(trasPulsar("Command6").find("Basic.bas»"), std::string::npos);
    EXPECT_TRUE(sistema.enReposo());
    for (int i = 0; i < 40; ++i) pulsa("Command5"); // the specification language is not piled up
    EXPECT_EQ(sistema.dameSucesos(), "Informe" + QString("\nInforme").repeated(39).toStdString());
}

TEST_F(DisenioTest, MientrasUnaOrdenTrabajaNoEmpiezaOtra) {
    ponTextos(reglasDeSuma);
    int veces = 0;
    sistema.alProcesar = [&] {
        ++veces;
        pulsa("Command5");
        EXPECT_TRUE(pagina.ocupada());
    };
    EXPECT_EQ(trasPulsar("Command5"), "Informe");
    EXPECT_GT(veces, 5);
    EXPECT_TRUE(sistema.huboAviso);
    CodigoGramatica editor(sistema);
    sistema.alProcesar = {};
    editor.carga();
    editor.show();
    sistema.alProcesar = [&] {
        dispara(editor, "VerInforme");
        dispara(editor, "Clear");
        EXPECT_FALSE(editor.close()) << "not under the command";
    };
    dispara(editor, "VerInforme");
    EXPECT_EQ(sistema.dameSucesos(), "Informe");
}

TEST_F(DisenioTest, HerramientasDelEditor) {
    ponTextos("A -> a;");
    CodigoGramatica editor(sistema);
    editor.carga();
    editor.show();
    QString menus;
    for (const QAction* menu : editor.menuBar()->actions()) {
        menus += menu->text().remove(u'&') + ':';
        for (const QAction* a : menu->menu()->actions())
            if (!a->isSeparator()) menus += ' ' + a->text() + (a->isEnabled() ? u';' : u'.');
        menus += '\n';
    }
    EXPECT_EQ(menus.toStdString(),
              "Gramática: Probar el lenguaje ...; Ver Informe ...; &Imprimir; Salir;\n"
              "Edición: Undo. Redo. Copiar. Cortar. Pegar. Seleccionar todo; Borrar todo;\n"
              "Ayuda: Indice. Acerca de ...;\n");
    const auto texto = [&] { return aUtf8(editor.Norvik1().control().Text()); };
    QString barra;
    for (const QAction* a : editor.findChild<QToolBar*>()->actions()) barra += a->iconText() + '|';
    EXPECT_EQ(barra.toStdString(), "Probar el lenguaje ...|Ver Informe ...||Imprimir||Undo|Redo||Buscar|");
    teclea(editor.Norvik1(), "xy");
    dispara(editor, "ID_Undo");
    EXPECT_EQ(texto(), "xA -> a;");
    dispara(editor, "ID_Undo"); // the first key begins it: what was loaded is no part of it
    EXPECT_EQ(texto(), "xA -> a;");
    dispara(editor, "ID_Redo");
    dispara(editor, "seleccionarTodo");
    EXPECT_EQ(editor.Norvik1().SelLength(), 9);
    sistema.respuesta = Respuesta::Cancelar;
    dispara(editor, "Clear");
    EXPECT_EQ(texto(), "xyA -> a;");
    EXPECT_TRUE(editor.findChild<QAction*>("ID_Undo")->isEnabled());
    sistema.respuesta = Respuesta::Aceptar;
    dispara(editor, "Clear");
    EXPECT_EQ(texto(), "");
    dispara(editor, "acercaDe");
    dispara(editor, "imprimir");
    EXPECT_EQ(sistema.dameSucesos(), "Atencion|Confirme borrar el contenido del texto|32\n"
                                     "Atencion|Confirme borrar el contenido del texto|32\n"
                                     "Acerca de...|Editor de Gramática 1.0 alfa\nComponente de Norvik|32");
    EXPECT_TRUE(std::filesystem::exists(carpeta / "impreso.pdf"));
    dispara(editor, "buscar");
    const auto* dialogo = editor.findChild<QDialog*>("buscar");
    ASSERT_NE(dialogo, nullptr);
    EXPECT_TRUE(dialogo->isVisible());
    dispara(editor, "salir");
    EXPECT_EQ(ranurasDisenio().especificacion, u""); // though no key told of it
    EXPECT_FALSE(dialogo->isVisible());
}
