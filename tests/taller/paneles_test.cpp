// SPDX-License-Identifier: MIT

// The panels of the language window together: what is chosen in one is seen in the others, what a person has
// opened and enlarged stays so while the typing goes on, and what fails is told.
#include "taller/conVentanaLenguaje.hpp"

#include "lenguaje/ventanaLenguaje.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

using namespace norvik;
using namespace norvik::taller;

namespace {

constexpr std::u16string_view gramaticaSuma = u"'% metodo: lalr\r\n"
                                              u"Token num = \"[0-9]+\";\r\n"
                                              u"Token mas = \"\\+\";\r\n"
                                              u"E -> E mas T | T;\r\n"
                                              u"T -> num;\r\n";
constexpr std::u16string_view gramaticaAmbigua = u"'% metodo: lalr\r\n"
                                                 u"Token num = \"[0-9]+\";\r\n"
                                                 u"Token mas = \"\\+\";\r\n"
                                                 u"E -> E mas E | num;\r\n";

struct PanelesLenguaje : ConVentanaLenguaje {
    void alFinal(EditorTexto& editor, const char* teclas) {
        QWidget& teclado = editor.norvik().caja().ventana();
        QTest::keyClick(&teclado, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(&teclado, teclas);
        espera();
    }
    void cursor(EditorTexto& editor, std::u16string_view detras) {
        CajaTextoQt& caja = editor.norvik().caja();
        editor.norvik().setFocus();
        const auto sitio = editor.texto().find(detras) + detras.size();
        caja.atiende([&] { caja.selecciona(static_cast<std::int32_t>(sitio), 0); });
        QApplication::processEvents();
    }
    void trae(Panel& panel) {
        panel.show();
        panel.raise();
        ASSERT_TRUE(QTest::qWaitFor([&] { return panel.widget()->isVisible(); }));
        QApplication::processEvents();
    }
    void traeAutomata() {
        trae(ventana.automata());
        ASSERT_TRUE(QTest::qWaitFor([this] { return ventana.automata().estados().count() > 0; }));
    }
    int subrayadas(const QAbstractItemModel& modelo, bool enNegrita, const QModelIndex& padre = {}) const {
        int cuantas = 0;
        for (int f = 0; f < modelo.rowCount(padre); ++f)
            for (int c = 0; c < modelo.columnCount(padre); ++c) {
                const QModelIndex celda = modelo.index(f, c, padre);
                const auto letra = celda.data(Qt::FontRole).value<QFont>();
                cuantas += letra.underline() && letra.bold() == enNegrita ? 1 : 0;
                if (c == 0) cuantas += subrayadas(modelo, enNegrita, celda);
            }
        return cuantas;
    }
    /// «3 mas», and how many cells are bold and underlined: «3 mas/2».
    QString enTabla() {
        const QModelIndex celda = ventana.tabla().vista().currentIndex();
        const QAbstractItemModel& modelo = *celda.model();
        return QStringLiteral("%1 %2/%3")
            .arg(celda.row())
            .arg(modelo.headerData(celda.column(), Qt::Horizontal).toString())
            .arg(subrayadas(modelo, true));
    }
    /// The chosen state, and how many are bold: «3/3».
    QString enAutomata() {
        QListWidget& estados = ventana.automata().estados();
        int negritas = 0;
        for (int i = 0; i < estados.count(); ++i) negritas += estados.item(i)->font().bold() ? 1 : 0;
        return QStringLiteral("%1/%2").arg(estados.currentRow()).arg(negritas);
    }
    QString enArbol() {
        return ventana.arbol().camino().text() + u'/' +
               QString::number(subrayadas(*ventana.arbol().vista().model(), false));
    }
    QString enConjuntos() {
        return ventana.conjuntos().tabla().item(ventana.conjuntos().tabla().currentRow(), 0)->text();
    }
    std::int16_t columna(const QString& simbolo) {
        const QAbstractItemModel& modelo = *ventana.tabla().vista().model();
        for (int c = 0; c < modelo.columnCount(); ++c)
            if (modelo.headerData(c, Qt::Horizontal).toString() == simbolo)
                return static_cast<std::int16_t>(c);
        return -1;
    }
};

} // namespace

TEST_F(PanelesLenguaje, LosDiagramasEnsenanLaReglaQueSeEligioSinVerlos) {
    empieza(gramaticaSuma, u"1+2");
    const auto gruesas = [this] {
        std::set<double> grosores;
        for (const QGraphicsItem* const suya : ventana.diagramas().vista().scene()->items())
            if (const auto* const linea = qgraphicsitem_cast<const QGraphicsPathItem*>(suya))
                grosores.insert(linea->pen().widthF());
        return grosores.size() > 1; // one is thicker than the others
    };
    const auto via = [this](int regla) { // of a rule: it is wider than its boxes
        QRectF suya;
        for (const QGraphicsItem* const pieza : ventana.diagramas().vista().scene()->items())
            if (const auto* const linea = qgraphicsitem_cast<const QGraphicsPathItem*>(pieza);
                linea != nullptr && pieza->data(0) == regla &&
                linea->path().boundingRect().width() > suya.width())
                suya = linea->path().boundingRect();
        return suya;
    };
    ventana.diagramas().hide();
    emit ventana.pasos().elegido(DeRegla{2});
    trae(ventana.diagramas());
    EXPECT_TRUE(gruesas());
    EXPECT_EQ(via(1).height(), 0); // the first one goes straight on, the next one aside
    EXPECT_GT(via(2).height(), 0);
    for (const QGraphicsItem* const pieza : ventana.diagramas().vista().scene()->items())
        if (const auto* const linea = qgraphicsitem_cast<const QGraphicsPathItem*>(pieza))
            for (int i = 1; i < linea->path().elementCount(); ++i) { // corners are round: nothing is aslant
                const QPainterPath::Element antes = linea->path().elementAt(i - 1);
                const QPainterPath::Element suyo = linea->path().elementAt(i);
                EXPECT_TRUE(!suyo.isLineTo() || qFuzzyCompare(1 + suyo.x, 1 + antes.x) ||
                            qFuzzyCompare(1 + suyo.y, 1 + antes.y))
                    << pieza->data(0).toInt() << ", " << i;
            }
    QStringList enSuCaja;
    for (const QGraphicsItem* const suya : ventana.diagramas().vista().scene()->items())
        if (const auto* const letra = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(suya))
            for (const QGraphicsItem* const debajo : ventana.diagramas().vista().scene()->items())
                if (debajo != suya && debajo->data(0) == suya->data(0) &&
                    debajo->sceneBoundingRect().contains(letra->sceneBoundingRect()) &&
                    debajo->sceneBoundingRect().right() < via(suya->data(0).toInt()).right())
                    enSuCaja += letra->text();
    enSuCaja.sort();
    EXPECT_EQ(enSuCaja.join(' '), "E T T mas num");
    ventana.diagramas().hide();
    emit ventana.pasos().elegido(DeRegla{1});
    empieza(gramaticaAmbigua, u"1+2"); // of which nothing is chosen
    trae(ventana.diagramas());
    EXPECT_FALSE(gruesas());
}

TEST_F(PanelesLenguaje, LoElegidoEsLoMismoEnTodos) {
    empieza(gramaticaSuma, u"1+2");
    trae(ventana.tabla());
    EXPECT_TRUE(ventana.tabla().vista().isVisible() && ventana.arbol().vista().isVisible());
    for (const auto* const dibujo : ventana.findChildren<VistaDibujo*>())
        EXPECT_EQ(dibujo->accessibleDescription().isEmpty(), dibujo->accessibleName().isEmpty());
    traeAutomata();
    for (const auto* const boton : ventana.tabla().findChildren<QToolButton*>())
        EXPECT_FALSE(boton->isEnabled() && boton->text().contains("onflicto")); // there is none
    const struct {
        const char* nombre;
        Eleccion eleccion;
        const char* tabla;
        const char* automata;
        const char* arbol;
        const char* conjuntos;
        const char* especificacion;
    } casos[] = {
        {"regla", DeRegla{3}, "3 mas/2", "0/3", "La regla 3 está en 2 nodos, subrayados: E › E › T › num/2",
         "T", "num"},
        {"elemento con el punto al final", DeItem{5, {1, 3}}, "5 mas/2", "5/4",
         "La regla 1 está en 1 nodo, subrayado: E/1", "E", "E mas T"},
        {"elemento", DeItem{4, {1, 2}}, "4 T/2", "4/4", "La regla 1 está en 1 nodo, subrayado: E/1", "E",
         "E mas T"},
        {"celda que reduce", DeCelda{2, columna("$")}, "2 $/2", "2/2",
         "La regla 2 está en 1 nodo, subrayado: E › E › T › num/1", "E", "T"},
        {"celda que desplaza", DeCelda{1, columna("mas")}, "1 mas/0", "1/0", "E/0", "E", "mas"},
        {"estado", DeEstado{4}, "4 mas/0", "4/0", "E/0", "E", ""},
        {"variable", DeSimbolo{u"T"}, "0 T/0", "0/0", "E/0", "T", "T"},
        {"nodo", DeNodo{0}, "5 mas/2", "0/4", "E/1", "E", "E mas T"},
        {"paso que reduce", DePaso{{{1, 1, 2}, {2, 1, 3}}, 2, columna("mas")}, "2 mas/2", "2/2", "E › mas/1",
         "E", "T"},
        {"paso ante un error", DePaso{{{1, 1, 2}, {2, 1, 3}}, 2, {}}, "2 mas/0", "2/0", "E › mas/0", "E", ""},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        for (int vez = 0; vez < 2; ++vez) {
            emit ventana.pasos().elegido(DeNodo{0});
            emit ventana.pasos().elegido(DeCelda{0, columna("mas")}); // an error, and nobody's rule
            cursor(especificacion, u"'% ");                           // no selection
            emit ventana.pasos().elegido(c.eleccion);
            EXPECT_EQ(enTabla(), c.tabla);
            EXPECT_EQ(enAutomata(), c.automata);
            EXPECT_EQ(enArbol(), c.arbol);
            EXPECT_EQ(enConjuntos(), c.conjuntos);
            EXPECT_EQ(especificacion.norvik().SelText(), c.especificacion);
        }
    }
}

TEST_F(PanelesLenguaje, ElCursorYLosEnlacesEligenEnTodos) {
    empieza(gramaticaSuma, u"1+2");
    traeAutomata();
    cursor(especificacion, u"E mas");
    EXPECT_EQ(enTabla(), "5 mas/2");
    EXPECT_EQ(enAutomata(), "0/4");
    EXPECT_EQ(enArbol(), "La regla 1 está en 1 nodo, subrayado: E/1");
    cursor(texto, u"1");
    EXPECT_EQ(enTabla(), "5 mas/0");
    EXPECT_EQ(enArbol(), "E › mas/0");

    auto& estado = *ventana.automata().findChild<QTextBrowser*>();
    emit estado.anchorClicked(QUrl(QStringLiteral("4")));
    EXPECT_EQ(enTabla(), "4 mas/0");
    ASSERT_TRUE(estado.toHtml().contains("href=\"4/1/2\"")) << estado.toHtml().toStdString();
    emit estado.anchorClicked(QUrl(QStringLiteral("4/1/2")));
    EXPECT_EQ(enTabla(), "4 T/2");
    EXPECT_EQ(especificacion.norvik().SelText(), "E mas T");
    EXPECT_TRUE(ventana.automata().palabras().contains("La regla 1. E → E mas T está en: estado 0, estado 1, "
                                                       "estado 4, estado 5"))
        << ventana.automata().palabras().toStdString();
}

TEST_F(PanelesLenguaje, SeBuscaEnElArbol) {
    empieza(gramaticaSuma, u"1+2");
    QLineEdit& busca = ventana.arbol().busca();
    ventana.arbol().vista().setFocus();
    QTest::keyClick(&ventana.arbol().vista(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), &busca);
    const struct {
        const char* palabras;
        const char* camino;
        const char* texto;
        const char* dice;
    } pasos[] = {
        {"NUM", "E › E › T › num", "1", ""},
        {"NUM", "E › T › num", "2", ""},
        {"NUM", "E › E › T › num", "1", "Se ha vuelto a empezar por la raíz."},
        {"+", "E › mas", "+", ""},
        {"+", "E › mas", "+", "No hay otro."},
        {"zas", "E › mas", "+", "Ningún nodo se llama así ni tiene ese texto."},
    };
    ventana.arbol().vista().collapseAll();
    for (const auto& p : pasos) {
        SCOPED_TRACE(p.palabras);
        if (busca.text() != p.palabras) {
            busca.clear();
            QTest::keyClicks(&busca, p.palabras);
        }
        QTest::keyClick(&busca, Qt::Key_Return);
        EXPECT_EQ(ventana.arbol().camino().text(), p.camino);
        EXPECT_EQ(texto.norvik().SelText(), p.texto);
        EXPECT_EQ(ventana.arbol().hallado().isVisible() ? ventana.arbol().hallado().text() : "", p.dice);
    }
    std::u16string larga = u"7";
    for (int i = 0; i < 5'000; ++i) larga += u"+1";
    empieza(gramaticaSuma, larga);
    busca.setText(QStringLiteral("7"));
    QTest::keyClick(&busca, Qt::Key_Return);
    EXPECT_EQ(texto.norvik().SelText(), "7"); // too deep for the outline, and found all the same
    QTest::keyClick(&busca, Qt::Key_Return);
    EXPECT_EQ(ventana.arbol().hallado().text(), "No hay otro.");
}

TEST_F(PanelesLenguaje, LoPlegadoYLoAmpliadoDuranMasDeUnaTecla) {
    empieza(gramaticaSuma, u"1+2+3");
    QTreeView& vista = ventana.arbol().vista();
    const auto fila = [&] { return vista.model()->index(0, 0, vista.model()->index(0, 0)); }; // E of «1+2»
    vista.setFocus();
    vista.setCurrentIndex(fila());
    ASSERT_TRUE(vista.isExpanded(fila()));
    QTest::keyClick(&vista, Qt::Key_Left);
    ASSERT_FALSE(vista.isExpanded(fila()));
    for (int vez = 0; vez < 2; ++vez) {
        alFinal(texto, " ");
        EXPECT_FALSE(vista.isExpanded(fila()));
    }
    cursor(texto, u"1"); // nor does the caret open it
    EXPECT_FALSE(vista.isExpanded(fila()));
    EXPECT_EQ(vista.currentIndex(), fila());
    EXPECT_EQ(ventana.arbol().camino().text(), "E › E › mas");
    vista.setFocus();
    QTest::keyClick(&vista, Qt::Key_Right);
    alFinal(texto, " ");
    EXPECT_TRUE(vista.isExpanded(fila()));

    ventana.arbol().maneras().setCurrentIndex(1);
    VistaDibujo& dibujo = ventana.arbol().dibujo();
    for (int vez = 0; vez < 4; ++vez) dibujo.amplia();
    const double escala = dibujo.transform().m11();
    alFinal(texto, "+4");
    EXPECT_DOUBLE_EQ(dibujo.transform().m11(), escala);
    dibujo.setFocus();
    QTest::keyClick(&dibujo, Qt::Key_0, Qt::ControlModifier); // all of it
    EXPECT_LT(dibujo.transform().m11(), escala);
    QApplication::processEvents();
    EXPECT_EQ(dibujo.horizontalScrollBar()->minimum(), dibujo.horizontalScrollBar()->maximum());
}

TEST_F(PanelesLenguaje, UnDibujoQueNoSePuedeGuardarLoDice) {
    empieza(gramaticaAmbigua, u"1+2");
    traeAutomata();
    trae(ventana.conflicto());
    ASSERT_TRUE(QTest::qWaitFor([this] { return ventana.conflicto().palabras().contains("ambigua"); }));
    int paneles = 0;
    for (Panel* const panel : ventana.findChildren<Panel*>()) {
        trae(*panel);
        QAction* guardar = nullptr;
        for (QAction* const accion : panel->actions())
            if (accion->text() == "Guardar dibujo…") guardar = accion;
        if (guardar == nullptr) continue;
        SCOPED_TRACE(panel->titulo().toStdString());
        if (!QTest::qWaitFor([&] { return guardar->isEnabled(); }, 2'000)) continue; // without Graphviz
        ++paneles;
        for (const char* const nombre : {"x.svg", "x.png", "x.pdf"}) {
            ventana.statusBar()->clearMessage();
            dialogos.ficheros = {QString::fromStdString((carpeta / "no está" / nombre).string())};
            guardar->trigger();
            EXPECT_TRUE(ventana.statusBar()->currentMessage().contains(nombre))
                << ventana.statusBar()->currentMessage().toStdString();
        }
    }
    EXPECT_GE(paneles, 4);
}

TEST_F(PanelesLenguaje, UnCaracterDeControlNoRompeElSvg) {
    empieza(u"'% metodo: lalr\r\nToken raro = \"\\x01\";\r\nS -> raro;\r\n", u"\x01");
    trae(ventana.arbol());
    dialogos.ficheros = {QString::fromStdString((carpeta / "a.svg").string())};
    for (QAction* const accion : ventana.arbol().actions())
        if (accion->text() == "Guardar dibujo…") accion->trigger();
    QXmlStreamReader xml(QByteArray::fromStdString(apoyo::bytesDe(carpeta / "a.svg")));
    QString textos;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::Characters) textos += xml.text();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_TRUE(textos.contains(QChar(0x2401))) << textos.toStdString();
}

TEST_F(PanelesLenguaje, LasCurasNoSeRepitenYSonDelTextoDeAhora) {
    empieza(gramaticaAmbigua, u"1");
    QTreeWidget& lista = ventana.problemas().lista();
    const auto curas = [&] {
        return lista.findItems("Arreglar: «mas» asocia por la izquierda",
                               Qt::MatchExactly | Qt::MatchRecursive);
    };
    lista.setFocus();
    lista.setCurrentItem(lista.topLevelItem(0)->child(0));
    ASSERT_TRUE(QTest::qWaitFor([&] { return curas().size() == 1; }));
    for (int vez = 0; vez < 2; ++vez) {
        lista.setCurrentItem(curas().first());
        alFinal(especificacion, " "); // the problems are the same ones
        EXPECT_TRUE(QTest::qWaitFor([&] { return curas().size() == 1; }));
        EXPECT_NE(lista.currentItem(), nullptr);
    }
    lista.setCurrentItem(curas().first());
    QTest::keyClick(&lista, Qt::Key_Return);
    espera();
    EXPECT_TRUE(especificacion.texto().starts_with(u"'% metodo: lalr\r\n'% izquierda: mas\r\nToken num"));
    EXPECT_TRUE(especificacion.texto().ends_with(u"num;\r\n  "));
}

TEST_F(PanelesLenguaje, UnConflictoCalladoTieneEstadoYCelda) {
    empieza(u"Token si = \"si\";\r\nToken no = \"no\";\r\nToken a = \"a\";\r\nS -> si S | si S no S | a;\r\n",
            u"a");
    trae(ventana.conflicto());
    ASSERT_TRUE(QTest::qWaitFor([this] { return ventana.conflicto().palabras().contains("ambigua"); }))
        << ventana.conflicto().palabras().toStdString();
    EXPECT_TRUE(ventana.conflicto().palabras().contains("con sus elementos:"))
        << ventana.conflicto().palabras().toStdString();
    ventana.tabla().siguiente().click();
    const QString celda = ventana.tabla().palabras().text();
    EXPECT_TRUE(celda.contains("Conflicto"));
    EXPECT_TRUE(ventana.conflicto().palabras().startsWith("En el e" + celda.mid(1).section(':', 0, 0)))
        << celda.toStdString();
}

TEST_F(PanelesLenguaje, LaLetraDelProyectorLlegaATodo) {
    empieza(gramaticaAmbigua, u"1+2");
    trae(ventana.conflicto());
    ASSERT_TRUE(QTest::qWaitFor([this] { return ventana.conflicto().palabras().contains("ambigua"); }));
    ventana.arbol().maneras().setCurrentIndex(1);
    const auto mide = [&] {
        QApplication::processEvents();
        const auto dibujo = [](const VistaDibujo& vista) { return vista.scene()->sceneRect().width(); };
        return std::vector<double>{
            static_cast<double>(ventana.tabla().vista().columnWidth(0)),
            ventana.problemas().detalle().font().pointSizeF(),
            dibujo(ventana.arbol().dibujo()),
            dibujo(ventana.conflicto().arbol(0)),
        };
    };
    const QFont antes = QApplication::font();
    const std::vector<double> medidas = mide();
    QFont grande = antes;
    grande.setPointSizeF(antes.pointSizeF() * 1.5);
    QApplication::setFont(grande);
    const std::vector<double> mayores = mide();
    QApplication::setFont(antes);
    for (std::size_t i = 0; i < medidas.size(); ++i) EXPECT_GT(mayores[i], medidas[i] * 1.1) << i;
    EXPECT_EQ(mide(), medidas);
    EXPECT_GT(grosorDeLinea(grande), grosorDeLinea(antes));
}
