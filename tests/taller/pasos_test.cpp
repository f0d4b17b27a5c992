// SPDX-License-Identifier: MIT

// The panels Pasos and Autómata, driven by keys and clicks.
#include "taller/dialogosGuion.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "lenguaje/modeloCeldas.hpp"
#include "lenguaje/panelAutomata.hpp"
#include "lenguaje/panelPasos.hpp"

#include "norvik/spec/directivas.hpp"

#include <QMainWindow>
#include <QStandardPaths>
#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

using namespace norvik;
using namespace norvik::taller;

namespace {

constexpr std::u16string_view sumas = u"'% metodo: lalr\n"
                                      u"Token num = \"[0-9]+\"; Token mas = \"\\+\";\n"
                                      u"E -> E mas T | T; T -> num;";
constexpr std::u16string_view colgante = u"'% metodo: lalr\n"
                                         u"Token si = \"si\"; Token no = \"no\"; Token a = \"a\";\n"
                                         u"S -> si S | si S no S | a;";

struct PanelesTest : testing::Test {
    void pon(Panel& panel, std::u16string_view especificacion, std::u16string_view texto) {
        ultimo = estudia(std::u16string(especificacion), std::u16string(texto), ultimo, {});
        panel.ponEstudio(ultimo);
    }
    void muestra(Panel& panel) {
        ventana.resize(900, 600);
        ventana.addDockWidget(Qt::BottomDockWidgetArea, &panel);
        QObject::connect(&panel, &Panel::elegido, &panel,
                         [this](const Eleccion& e) { elegidos.push_back(e); });
        QObject::connect(&panel, &Panel::fallo, &panel,
                         [](const QString& texto) { ADD_FAILURE() << texto.toStdString(); });
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    template <typename Cual>
    std::vector<Cual> toma() {
        std::vector<Cual> suyos;
        for (const Eleccion& e : std::exchange(elegidos, {}))
            if (const auto* const suyo = std::get_if<Cual>(&e)) suyos.push_back(*suyo);
        return suyos;
    }

    std::shared_ptr<const Estudio> ultimo;
    std::vector<Eleccion> elegidos;
    DialogosGuion dialogos;
    QMainWindow ventana;
};

struct PasosTest : PanelesTest {
    PasosTest() { muestra(panel); }
    ~PasosTest() override { panel.setParent(nullptr); }

    void estudio(std::u16string_view especificacion, std::u16string_view texto) {
        const Pelicula* const antes = panel.pelicula();
        pon(panel, especificacion, texto);
        EXPECT_TRUE(QTest::qWaitFor([&] { return panel.pelicula() != antes; }));
        pila.setFocus();
    }
    void teclas(std::initializer_list<Qt::Key> varias) {
        for (const Qt::Key tecla : varias) QTest::keyClick(&pila, tecla, Qt::AltModifier);
    }
    QString ve(const char* nombre) { return panel.findChild<QLabel*>(QLatin1String(nombre))->text(); }
    QStringList filas() const {
        QStringList lineas;
        for (int i = 0; i < pila.topLevelItemCount(); ++i)
            lineas += pila.topLevelItem(i)->text(0) + u' ' + pila.topLevelItem(i)->text(1);
        return lineas;
    }

    PanelPasos panel;
    QTreeWidget& pila = *panel.findChild<QTreeWidget*>();
};

struct AutomataTest : PanelesTest {
    AutomataTest() { muestra(panel); }
    ~AutomataTest() override { panel.setParent(nullptr); }

    void estudio(std::u16string_view especificacion) {
        pon(panel, especificacion, u"");
        EXPECT_TRUE(QTest::qWaitFor([&] { return panel.estados().count() > 0; }));
    }
    bool dibujado() const {
        return QTest::qWaitFor([&] { return !panel.dibujo().sitio.cajas.isEmpty(); });
    }

    PanelAutomata panel{dialogos};
};

bool hayGraphviz() {
    return !QStandardPaths::findExecutable(QStringLiteral("dot")).isEmpty();
}

} // namespace

TEST_F(PasosTest, ElAnalisisHaciaDelanteYHaciaAtras) {
    estudio(sumas, u"1 + 2");
    EXPECT_EQ(panel.palabras(),
              "En el estado 0, ante «1» (num): desplaza: lo pone en la pila y pasa al estado 3.");
    EXPECT_EQ(ve("resto"), "Por leer: 1 + 2");
    teclas({Qt::Key_Right});
    EXPECT_EQ(panel.palabras(),
              "En el estado 3, ante «+» (mas): reduce por la regla 3. T → num: quita 1 entrada de la "
              "pila, queda a la vista el estado 0, y con T pasa al estado 2.");
    EXPECT_EQ(filas(), QStringList({"(fondo) 0", "num 3"}));
    EXPECT_TRUE(pila.topLevelItem(1)->font(0).bold()); // the reduction takes it
    EXPECT_EQ(toma<DePaso>().back().estado, 3);
    teclas({Qt::Key_Right, Qt::Key_Right, Qt::Key_Right});
    const auto celdas = toma<DePaso>();
    ASSERT_EQ(celdas.size(), 3U);
    EXPECT_EQ(celdas.back().estado, 4);
    EXPECT_EQ(filas(), QStringList({"(fondo) 0", "E 1", "mas 4"}));
    EXPECT_EQ(pila.topLevelItem(1)->child(0)->text(0), "T");
    EXPECT_EQ(pila.topLevelItem(1)->child(0)->child(0)->text(3), "1");
    EXPECT_EQ(ve("resto"), "Por leer: 2");
    pila.topLevelItem(1)->setExpanded(false);
    teclas({Qt::Key_Right});
    EXPECT_FALSE(pila.topLevelItem(1)->isExpanded()); // it stays as the person left it
    teclas({Qt::Key_End});
    EXPECT_EQ(panel.palabras(), "En el estado 1, ante el final del texto: acepta: el texto es del lenguaje.");
    EXPECT_EQ(ve("resto"), "Por leer: nada");
    teclas({Qt::Key_Right, Qt::Key_Home, Qt::Key_Left});
    EXPECT_EQ(panel.momento(), 0U);
    QTest::keyClick(panel.findChild<QSlider*>(), Qt::Key_End);
    QTest::keyClick(panel.findChild<QSlider*>(), Qt::Key_Left);
    EXPECT_EQ(panel.momento(), panel.pelicula()->ultimo() - 1);
}

TEST_F(PasosTest, AnteUnConflictoDiceQueHabriaHechoLaOtraAccion) {
    for (const Metodo metodo : {Metodo::Lalr, Metodo::Clasico}) {
        estudio(conMetodo(colgante, metodo), u"si si a no a");
        panel.selecciona(EnTexto{{{8, 1, 9}, {8, 1, 9}}});
        teclas({Qt::Key_Up}); // to the caret
        EXPECT_EQ(ve("resto"), "Por leer: no a");
        teclas({Qt::Key_Right});
        const QString conflicto = ve("conflicto");
        EXPECT_TRUE(
            conflicto.startsWith("⚠ Conflicto. Entre desplazar y reducir la tabla desplaza. La otra acción: "
                                 "reduce por la regla 1. S → si S: quita 2 entradas"))
            << conflicto.toStdString();
        EXPECT_TRUE(panel.palabras().contains("desplaza"));
        teclas({Qt::Key_Right});
        EXPECT_FALSE(panel.findChild<QLabel*>("conflicto")->isVisible());
    }
}

TEST_F(PasosTest, VaAlErrorYDiceQueSeEsperaba) {
    auto& alError = *panel.findChildren<QToolButton*>().back();
    estudio(sumas, u"1 + + 2");
    EXPECT_TRUE(alError.isEnabled());
    teclas({Qt::Key_Return});
    EXPECT_EQ(panel.palabras(),
              "En el estado 4, ante «+» (mas): error. Se ha encontrado '+'. Se esperaba '[0-9]+'.");
    EXPECT_EQ(toma<DePaso>().back().rango.inicio.desplazamiento, 4);
    estudio(sumas, u"1 ? 2");
    EXPECT_EQ(panel.momento(), 1U); // no further than it goes
    EXPECT_EQ(panel.palabras(), "En el estado 3, ante el carácter «?»: error. Carácter '?' incorrecto.");
    estudio(sumas, u"1");
    EXPECT_FALSE(alError.isEnabled());
    pon(panel, u"Token a = \"a\";", u"a");
    EXPECT_EQ(panel.pelicula(), nullptr);
    teclas({Qt::Key_Right, Qt::Key_Up, Qt::Key_Down});
    EXPECT_EQ(panel.palabras(), "No hay nada que enseñar: el lenguaje no tiene gramática.");
}

TEST_F(PasosTest, CorreHastaElFinalYUnaFilaDeLaPilaEligeSuTexto) {
    estudio(sumas, u"1 + 2");
    panel.findChild<QTimer*>()->setInterval(1);
    teclas({Qt::Key_Down});
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.momento() == panel.pelicula()->ultimo(); }));
    toma<DePaso>();
    QTest::qWait(20);
    EXPECT_TRUE(elegidos.empty()); // it has stopped
    QTest::keyClick(&pila, Qt::Key_Right);
    QTest::keyClick(&pila, Qt::Key_Asterisk);
    QTest::keyClick(&pila, Qt::Key_Down);
    const auto lugares = toma<EnTexto>();
    ASSERT_FALSE(lugares.empty());
    EXPECT_EQ(lugares.back().rango.fin.desplazamiento, 1); // E of «1»
}

// What is still shown is of texts that the others do not have any more.
TEST_F(PasosTest, LoQueQuedaDeAntesNoEligeNada) {
    estudio(sumas, u"1 + 2");
    pon(panel, sumas, u"1 + 2 + 3");
    elegidos.clear();
    teclas({Qt::Key_Right});
    EXPECT_EQ(panel.momento(), 1U);
    EXPECT_TRUE(elegidos.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return ve("resto").endsWith("+ 2 + 3"); }));
    EXPECT_EQ(panel.windowTitle(), "Pasos");
    teclas({Qt::Key_Right});
    EXPECT_FALSE(elegidos.empty());
}

TEST_F(PasosTest, DeUnaPilaHondaSeEnsenaMasSiSePide) {
    std::u16string muchas;
    for (int i = 0; i < 500; ++i) muchas += u"a";
    estudio(u"'% metodo: lalr\nToken a = \"a\"; S -> a S | a;", muchas);
    panel.findChild<QSpinBox*>()->setValue(500);
    EXPECT_EQ(pila.topLevelItemCount(), 201);
    for (const int filas : {401, 501}) {
        pila.setCurrentItem(pila.topLevelItem(0));
        QTest::keyClick(&pila, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return pila.topLevelItemCount() == filas; }))
            << pila.topLevelItemCount();
    }
    EXPECT_EQ(pila.topLevelItem(0)->text(0), "(fondo)");
}

TEST_F(PasosTest, UnPanelQueNoSeVeNoTrabaja) {
    panel.hide();
    pon(panel, sumas, u"1");
    QTest::qWait(20);
    EXPECT_EQ(panel.pelicula(), nullptr);
    panel.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.pelicula() != nullptr; }));
}

TEST_F(AutomataTest, LaListaElTextoYElDibujoDicenLoMismo) {
    estudio(colgante);
    QListWidget& lista = panel.estados();
    EXPECT_EQ(lista.count(), 7);
    EXPECT_EQ(lista.item(0)->text(), "Estado 0: S → • si S; S → • si S no S; S → • a");
    panel.selecciona(DeEstado{4});
    EXPECT_TRUE(elegidos.empty()); // nobody is told of it
    EXPECT_EQ(lista.currentRow(), 4);
    EXPECT_TRUE(lista.currentItem()->text().startsWith("Estado 4 ⚠ conflicto"));
    EXPECT_TRUE(panel.palabras().contains(
        "ante «no»: desplaza y pasa al estado 5; también cabía reducir por la regla 1"))
        << panel.palabras().toStdString();
    EXPECT_TRUE(panel.palabras().contains("La entrada más corta: si a"));
    QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(toma<DeEstado>().back().estado, 5);
    if (!hayGraphviz()) GTEST_SKIP();
    ASSERT_TRUE(dibujado()) << panel.aviso().toStdString();
    EXPECT_EQ(panel.dibujo().sitio.cajas.size(), 7);
    EXPECT_EQ(panel.dibujo().sitio.flechas.size(), 10);
    EXPECT_EQ(panel.entrada(), "La entrada más corta: si a no");
    EXPECT_EQ(panel.realzado().camino, (QList<std::pair<int, int>>{{0, 2}, {2, 4}, {4, 5}}));
    auto& vista = *panel.findChild<VistaAutomata*>();
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {},
                      vista.mapFromScene(panel.dibujo().caja(1).center()));
    EXPECT_EQ(toma<DeEstado>().back().estado, 1);
    EXPECT_EQ(lista.currentRow(), 1);
    for (const int estado : {1, 5}) {
        const auto suyas = vista.scene()->items(panel.dibujo().caja(estado).center());
        const auto* const marco = qgraphicsitem_cast<const QGraphicsRectItem*>(suyas.back());
        ASSERT_NE(marco, nullptr);
        EXPECT_EQ(marco->brush().color() == vista.palette().color(QPalette::Highlight), estado == 1);
    }
    pon(panel, u"Token a = \"a\";", u"");
    EXPECT_EQ(panel.aviso(), "No hay nada que enseñar: el lenguaje no tiene gramática.");
    EXPECT_TRUE(vista.scene()->items().isEmpty());
}

TEST_F(AutomataTest, LoQueQuedaDeAntesNoEligeNadaYLoElegidoEspera) {
    estudio(colgante);
    pon(panel, sumas, u"");
    panel.selecciona(DeRegla{3});
    QTest::keyClick(&panel.estados(), Qt::Key_Down);
    EXPECT_TRUE(elegidos.empty());
    EXPECT_EQ(panel.estados().count(), 7);
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel.estados().count() == 6; }));
    EXPECT_TRUE(panel.palabras().contains("La regla 3. T → num está en: estado 0, estado 3, estado 4"))
        << panel.palabras().toStdString();
    EXPECT_EQ(panel.windowTitle(), "Autómata");
    QTest::keyClick(&panel.estados(), Qt::Key_Down);
    EXPECT_EQ(toma<DeEstado>().size(), 1U);
}

TEST_F(AutomataTest, DeUnoGrandeSeDibujaLoCercano) {
    if (!hayGraphviz()) GTEST_SKIP();
    std::u16string reglas = u"Token a = \"a\"; S ->";
    for (int i = 0; i < 80; ++i) reglas += u" a";
    estudio(reglas + u";");
    ASSERT_TRUE(dibujado());
    EXPECT_EQ(panel.aviso(), "Se dibujan los 30 estados más cercanos al elegido, de 82.");
    panel.selecciona(DeEstado{70});
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.dibujo().estado(70) != nullptr; }));
    EXPECT_EQ(panel.dibujo().estado(0), nullptr);
}

// Each operator of a language with many leads from each operand: arrows grow with their square.
TEST_F(AutomataTest, DeUnoDensoLosSimbolosVanEnLosEstadosYDeUnoMuyDensoSoloLoCercano) {
    if (!hayGraphviz()) GTEST_SKIP();
    const auto conOperadores = [](int cuantos) {
        QString tokens = QStringLiteral("'% metodo: lalr\nToken n = \"n\";\n"), reglas;
        for (int i = 0; i < cuantos; ++i) {
            tokens += QStringLiteral("Token o%1 = \"o%1\";\n").arg(i);
            reglas += QStringLiteral("E -> E o%1 E;\n").arg(i);
        }
        return (tokens + reglas + QStringLiteral("E -> n;")).toStdU16String();
    };
    estudio(conOperadores(14));
    ASSERT_TRUE(dibujado()) << panel.aviso().toStdString();
    EXPECT_EQ(panel.aviso(), "");
    EXPECT_EQ(panel.dibujo().sitio.flechas.size(), 2 + 14 * 2 + 14 + 14 * 14);
    EXPECT_TRUE(panel.dibujo().estado(1)->titulo.endsWith(" · tras E"));
    EXPECT_EQ(panel.dibujo().estado(0)->titulo, "Estado 0");
    estudio(conOperadores(20));
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel.aviso().startsWith("Se dibujan los "); }));
    ASSERT_TRUE(dibujado()) << panel.aviso().toStdString();
    EXPECT_LE(panel.dibujo().sitio.flechas.size(), 300);
    EXPECT_NE(panel.dibujo().estado(0), nullptr);
}

TEST_F(AutomataTest, SeGuardaComoDibujo) {
    if (!hayGraphviz()) GTEST_SKIP();
    const apoyo::CarpetaTemporal carpeta;
    estudio(colgante);
    ASSERT_TRUE(dibujado());
    const std::pair<const char*, const char*> casos[] = {
        {"a.svg", "<svg"}, {"a.png", "\x89PNG"}, {"a.pdf", "%PDF"}};
    for (const auto& [nombre, comienzo] : casos) {
        dialogos.ficheros = {QString::fromStdString((carpeta / nombre).string())};
        panel.findChildren<QToolButton*>().back()->click();
        EXPECT_TRUE(apoyo::bytesDe(carpeta / nombre).starts_with(comienzo)) << nombre;
    }
    QXmlStreamReader xml(QByteArray::fromStdString(apoyo::bytesDe(carpeta / "a.svg")));
    int textos = 0;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"text") ++textos;
    EXPECT_FALSE(xml.hasError());
    EXPECT_GT(textos, 6 + 9);
    panel.findChildren<QToolButton*>().at(3)->click();
    EXPECT_GT(QGuiApplication::clipboard()->image().width(), 100);
}

// All the panels tell of it, the table too.
TEST(ModeloCeldas, ElConflictoQueElMetodoClasicoCallaEstaEnLaTabla) {
    const std::u16string especificacion = conMetodo(colgante, Metodo::Clasico);
    const auto estudio = estudia(especificacion, u"", nullptr, {});
    ModeloCeldas modelo;
    modelo.muestra(estudio->deLenguaje);
    ASSERT_EQ(modelo.enConflicto().size(), 1U);
    const DeCelda celda = modelo.enConflicto().front();
    EXPECT_TRUE(modelo.palabras(modelo.index(celda.estado, celda.codigo))
                    .endsWith("Conflicto: también cabría reducir por la regla 1. S → si S"));
}

TEST(ColocadorGrafos, SinGraphvizLoDiceYUnaRespuestaRotaNoEsUnDibujo) {
    ColocadorGrafos colocador(QStringLiteral("norvik-sin-graphviz"));
    QString motivo;
    QObject::connect(&colocador, &ColocadorGrafos::fallo, &colocador,
                     [&](const QString& texto) { motivo = texto; });
    for (int vez = 0; vez < 2; ++vez) {
        motivo.clear();
        colocador.coloca({{{0, {10, 10}}}, {}});
        EXPECT_TRUE(QTest::qWaitFor([&] { return !motivo.isEmpty(); }));
        EXPECT_TRUE(motivo.contains("hace falta Graphviz"));
    }
    for (const char* const roto :
         {"", "[]", R"({"objects":7})", R"({"objects":[])", R"({"edges":[{"pos":"e,"}]})"})
        EXPECT_TRUE(leeColocacion(roto).cajas.isEmpty()) << roto;
    const GrafoColocado sitio =
        leeColocacion(R"({"objects":[{"name":"3","pos":"10,20"}],)"
                      R"("edges":[{"id":"5","pos":"e,9,9 1,1 2,2 3,3 4,4","lp":"6,7"}]})");
    EXPECT_EQ(sitio.cajas.value(3), QPointF(10, -20));
    ASSERT_EQ(sitio.flechas.size(), 1);
    EXPECT_EQ(sitio.flechas[0].llegada, QPointF(4, -4));
    EXPECT_EQ(sitio.flechas[0].punta, QPointF(9, -9));
}
