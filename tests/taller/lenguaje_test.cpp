// SPDX-License-Identifier: MIT

// The language window, driven as a person does: keys in the editors, clicks in the panels.
#include "taller/conVentanaLenguaje.hpp"

#include "lenguaje.hpp"
#include "lenguaje/correspondencias.hpp"
#include "lenguaje/enControl.hpp"
#include "lenguaje/palabrasLR.hpp"
#include "lenguaje/ventanaLenguaje.hpp"
#include "ventanaPrincipal.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace norvik;
using namespace norvik::taller;

namespace {

constexpr const char* suma = R"('% metodo: lalr
Token num = "[0-9]+", TipoToken = TTNumero ("número");
Token mas = "\+", TipoToken = TTOperador;
E -> E mas T | T;
T -> num;
)";
constexpr const char* ambigua = R"('% metodo: lalr
Token num = "[0-9]+", TipoToken = TTNumero ("número");
Token mas = "\+", TipoToken = TTOperador;
Token por = "\*", TipoToken = TTOperador;
E -> E mas E | E por E | num;
)";

std::u16string u16(const char* texto) {
    return QString::fromUtf8(texto).replace(u'\n', "\r\n").toStdU16String();
}

struct LenguajeTest : ConVentanaLenguaje {
    void empieza(const char* suya, const char* suyo) { ConVentanaLenguaje::empieza(u16(suya), u16(suyo)); }
    QWidget& teclado(EditorTexto& editor) { return editor.norvik().caja().ventana(); }
    /// Puts the caret behind a piece of the text, as a click there does.
    void cursor(EditorTexto& editor, const char16_t* detras) {
        const auto sitio = editor.texto().find(detras);
        ASSERT_NE(sitio, std::u16string::npos);
        CajaTextoQt& caja = editor.norvik().caja();
        editor.norvik().setFocus();
        caja.atiende([&] {
            caja.selecciona(static_cast<std::int32_t>(sitio + std::u16string_view(detras).size()), 0);
        });
        QApplication::processEvents();
    }
    void escribe(EditorTexto& editor, const char* teclas) {
        QTest::keyClicks(&teclado(editor), teclas);
        espera();
    }
    /// The rows of a side, children behind their parents.
    QStringList problemas(int lado) {
        QStringList filas;
        const QTreeWidgetItem& grupo = *lista().topLevelItem(lado);
        for (int i = 0; i < grupo.childCount(); ++i) {
            filas += grupo.child(i)->text(1) + ' ' + grupo.child(i)->text(0);
            for (int j = 0; j < grupo.child(i)->childCount(); ++j) filas += grupo.child(i)->child(j)->text(0);
        }
        return filas;
    }
    QTreeWidget& lista() { return ventana.problemas().lista(); }
    void pulsa(QTreeWidgetItem& fila) {
        lista().scrollToItem(&fila);
        QTest::mouseClick(lista().viewport(), Qt::LeftButton, {}, lista().visualItemRect(&fila).center());
    }
    QTreeWidgetItem* fila(const QString& comienzo) {
        const auto halladas = lista().findItems(comienzo, Qt::MatchStartsWith | Qt::MatchRecursive);
        return halladas.isEmpty() ? nullptr : halladas.first();
    }
    QString camino() { return ventana.arbol().camino().text(); }
};

} // namespace

TEST_F(LenguajeTest, SigueLoQueSeEscribe) {
    empieza(suma, "1+2");
    EXPECT_EQ(problemas(0), QStringList());
    EXPECT_EQ(problemas(1), QStringList());
    EXPECT_EQ(ventana.conjuntos().tabla().rowCount(), 2);
    EXPECT_EQ(ventana.arbol().vista().model()->rowCount(), 1);
    for (int vez = 0; vez < 2; ++vez) {
        cursor(texto, u"1+");
        escribe(texto, "+");
        ASSERT_EQ(problemas(1).size(), 3) << problemas(1).join('\n').toStdString();
        EXPECT_TRUE(problemas(1)[0].startsWith("1:3 Error: "));
        EXPECT_TRUE(problemas(1)[1].startsWith("Arreglar: "));
        pulsa(*lista().topLevelItem(1)->child(0)->child(0));
        espera();
        EXPECT_EQ(problemas(1), QStringList());
        EXPECT_EQ(ventana.problemas().detalle().toPlainText(),
                  "Ni la especificación ni el texto tienen problemas.");
        EXPECT_TRUE(texto.isAncestorOf(QApplication::focusWidget()));
        texto.norvik().accion(AccionNorvik::Deshacer)->trigger(); // the repair is one step
        EXPECT_EQ(texto.texto(), u"1++2");
        texto.norvik().accion(AccionNorvik::Deshacer)->trigger();
        espera();
        EXPECT_EQ(texto.texto(), u"1+2");
    }
}

TEST_F(LenguajeTest, LoQueNoCompilaDejaVerLoUltimoQueCompilo) {
    empieza(suma, "1+2");
    cursor(especificacion, u"T -> num;");
    escribe(especificacion, " F -> ");
    EXPECT_FALSE(problemas(0).empty());
    EXPECT_EQ(ventana.conjuntos().tabla().rowCount(), 2);
    EXPECT_EQ(ventana.conjuntos().windowTitle(), "Conjuntos (anterior)");
    EXPECT_EQ(ventana.problemas().windowTitle(), "Problemas");
    escribe(especificacion, "num;");
    EXPECT_EQ(ventana.conjuntos().tabla().rowCount(), 3);
    EXPECT_EQ(ventana.conjuntos().windowTitle(), "Conjuntos");
}

TEST_F(LenguajeTest, SinNadaQueHayaCompiladoNoSeEnsenaNadaAnterior) {
    empieza("E ->", "1");
    EXPECT_EQ(ventana.tabla().windowTitle(), "Tabla");
    EXPECT_EQ(ventana.tabla().palabras().text(), "Todavía no hay ninguna tabla.");
    EXPECT_EQ(camino(), "Todavía no hay ningún árbol.");
    const auto etiquetas = ventana.statusBar()->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(
        etiquetas, [](const QLabel* suya) { return suya->text() == "La especificación no compila"; }));
}

TEST_F(LenguajeTest, CadaPanelEligeEnLosDemas) {
    empieza(suma, "1+2");
    ventana.arbol().vista().setFocus();
    EXPECT_EQ(texto.norvik().SelText(), ""); // coming to the tree chooses nothing
    cursor(texto, u"1+");
    EXPECT_EQ(camino(), "E › T › num");
    ventana.arbol().enUnaFila().setChecked(false);
    EXPECT_EQ(camino(), "E › T › num"); // the rows are other ones, the node is not
    cursor(texto, u"1");
    EXPECT_EQ(camino(), "E › mas");

    QTreeView& arbol = ventana.arbol().vista();
    arbol.setCurrentIndex(arbol.model()->index(0, 0).model()->index(2, 0, arbol.model()->index(0, 0)));
    EXPECT_EQ(texto.norvik().SelText(), "2");
    EXPECT_EQ(especificacion.norvik().SelText(), "num"); // the body of its rule
    EXPECT_EQ(ventana.conjuntos().tabla().currentItem()->text(), "T");

    cursor(especificacion, u"E -> E");
    EXPECT_TRUE(ventana.conjuntos().detalle().toPlainText().contains("1. E → E mas T"));
    ventana.tabla().selecciona(DeCelda{0, 0});
    EXPECT_EQ(ventana.tabla().palabras().text(), "Estado 0, ante «mas»: error de sintaxis");
    EXPECT_EQ(especificacion.norvik().SelText(), ""); // what was chosen elsewhere comes back from nobody
}

TEST_F(LenguajeTest, UnaListaLargaNoSeAbreHastaElFondo) {
    empieza(suma, QByteArray("1").append(QByteArray("+1").repeated(1000)).constData());
    cursor(texto, u"1");
    EXPECT_TRUE(camino().startsWith("… › E › E › ")) << camino().left(40).toStdString();
    int niveles = 0;
    for (QModelIndex fila = ventana.arbol().vista().currentIndex(); fila.isValid(); fila = fila.parent())
        ++niveles;
    EXPECT_EQ(niveles, 300);
}

TEST_F(LenguajeTest, UnConflictoSeCuentaYSeCura) {
    empieza(ambigua, "1+2*3");
    EXPECT_EQ(problemas(0).size(), 2 * 4);
    QStringList conflictos;
    for (int vez = 0; vez < 5; ++vez) {
        ventana.tabla().siguiente().click();
        conflictos += ventana.tabla().palabras().text();
        EXPECT_TRUE(conflictos.last().contains("Conflicto: también cabría reducir por la regla"));
    }
    EXPECT_EQ(conflictos[4], conflictos[0]);
    EXPECT_EQ(conflictos.removeDuplicates(), 1);
    pulsa(*lista().topLevelItem(0)->child(0));
    ASSERT_TRUE(QTest::qWaitFor([this] { return fila("Arreglar: «mas» liga") != nullptr; }));
    EXPECT_TRUE(ventana.problemas().detalle().toPlainText().contains("La gramática es ambigua"));
    pulsa(*fila("Arreglar: «por» liga más que «mas»"));
    espera();
    EXPECT_EQ(problemas(0), QStringList());
    EXPECT_TRUE(especificacion.texto().starts_with(
        u"'% metodo: lalr\r\n'% izquierda: mas\r\n'% izquierda: por\r\nToken num"));
    cursor(texto, u"1+2*");
    EXPECT_EQ(camino(), "E › E › E › num"); // of the product, the second operand of the sum
}

// By keys alone, from its problem and from its cell.
TEST_F(LenguajeTest, LaHistoriaDeUnConflictoTieneSusArboles) {
    empieza(ambigua, "1+2*3");
    PanelConflicto& panel = ventana.conflicto();
    QTest::keyClick(&ventana, Qt::Key_3, Qt::ControlModifier);
    for (int i = 0; i < 3 && lista().currentItem() != fila("Ver el conflicto"); ++i)
        QTest::keyClick(&lista(), Qt::Key_Down);
    QTest::keyClick(&lista(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &panel.lista());
    EXPECT_EQ(panel.lista().count(), 4);
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel.palabras().contains("La gramática es ambigua"); }));
    for (const std::size_t cual : {0U, 1U}) {
        int variables = 0;
        for (const QGraphicsItem* const pieza : panel.arbol(cual).scene()->items())
            if (const auto* const letras = dynamic_cast<const QGraphicsSimpleTextItem*>(pieza))
                variables += letras->text() == "E" ? 1 : 0;
        EXPECT_EQ(variables, 5) << cual; // E mas E mas E
        EXPECT_TRUE(panel.arbol(cual).accessibleDescription().startsWith("E, que es (E")) << cual;
    }
    const QString primera = panel.palabras();

    QTest::keyClick(&ventana, Qt::Key_6, Qt::ControlModifier);
    for (int i = 0; i < 4; ++i) QTest::keyClick(&ventana.tabla().siguiente(), Qt::Key_Space);
    const QString celda = ventana.tabla().palabras().text(); // «Estado 7, ante «por»: …»
    QTest::keyClick(&ventana.tabla().vista(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &panel.lista());
    EXPECT_NE(panel.palabras(), primera);
    EXPECT_TRUE(panel.palabras().startsWith("En el e" + celda.mid(1).section(':', 0, 0)))
        << panel.palabras().toStdString();

    QTest::keyClick(&panel.lista(), Qt::Key_Home);
    const auto curas = panel.curas().findChildren<QPushButton*>();
    ASSERT_EQ(curas.size(), 2);
    EXPECT_EQ(curas[0]->text(), "Arreglar: «mas» asocia por la izquierda (Alt+1)");
    QTest::keyClick(curas[0], Qt::Key_Space);
    espera();
    EXPECT_TRUE(especificacion.texto().starts_with(u"'% metodo: lalr\r\n'% izquierda: mas\r\n"));
    EXPECT_EQ(panel.lista().count(), 3);
}

// What was asked of a table that is no more is not asked of the next one.
TEST_F(LenguajeTest, UnaCeldaDeOtraTablaNoCallaLaHistoria) {
    const QByteArray otra = QByteArray(ambigua)
                                .replace("E -> ", "Token zas = \"z\", TipoToken = TTOperador;\nE -> ")
                                .replace("E por E", "E por E | E zas E");
    empieza(otra, "1");
    empieza("E -> ", "1");
    QTest::keyClick(&ventana, Qt::Key_6, Qt::ControlModifier);
    for (int i = 0; i < 9; ++i) QTest::keyClick(&ventana.tabla().siguiente(), Qt::Key_Space);
    QTest::keyClick(&ventana.tabla().vista(), Qt::Key_Return); // of the table before
    EXPECT_TRUE(ventana.conflicto().palabras().endsWith("no hay tabla."))
        << ventana.conflicto().palabras().toStdString();
    empieza("'% metodo: lalr\nToken a = \"a\";\nS -> S S | a;\n", "a");
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.conflicto().palabras().contains("es ambigua"); }))
        << ventana.conflicto().palabras().toStdString();
}

TEST_F(LenguajeTest, LosDibujosSalenDeLaVentana) {
    empieza(suma, "1+2");
    const auto textosDe = [&](const char* fichero) {
        QXmlStreamReader xml(QByteArray::fromStdString(apoyo::bytesDe(carpeta / fichero)));
        QStringList textos;
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"text")
                textos += xml.readElementText();
        return textos;
    };
    const struct {
        Panel& panel;
        const char* fichero;
        QStringList textos;
    } casos[] = {
        {ventana.arbol(), "a.svg", {"E", "mas", "+", "1"}},
        {ventana.tabla(), "t.svg", {"mas", "D3", "R3", "0"}},
        {ventana.diagramas(), "d.svg", {"E", "mas", "num"}},
    };
    for (const auto& c : casos) {
        c.panel.show();
        c.panel.raise();
        QApplication::processEvents();
        for (const char* const nombre : {"x.png", "x.pdf", c.fichero}) {
            dialogos.ficheros = {QString::fromStdString((carpeta / nombre).string())};
            for (QAction* const accion : c.panel.actions())
                if (accion->text() == "Guardar dibujo…") accion->trigger();
        }
        EXPECT_TRUE(apoyo::bytesDe(carpeta / "x.png").starts_with("\x89PNG"));
        EXPECT_TRUE(apoyo::bytesDe(carpeta / "x.pdf").starts_with("%PDF"));
        const QStringList textos = textosDe(c.fichero);
        for (const QString& suyo : c.textos)
            EXPECT_TRUE(textos.contains(suyo))
                << suyo.toStdString() << ": " << textos.join(' ').toStdString();
    }
    for (QAction* const accion : ventana.tabla().actions())
        if (accion->text() == "Copiar dibujo") accion->trigger();
    EXPECT_GT(QGuiApplication::clipboard()->image().width(), 100);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("\tmas\tnum\t$\tE\tT\n0\t"));
}

TEST_F(LenguajeTest, ElArbolDibujadoEligeYSigueAlCursor) {
    empieza(suma, "1+2");
    ventana.arbol().maneras().setCurrentIndex(1);
    VistaDibujo& dibujo = ventana.arbol().dibujo();
    const auto texto1 = [&](const QString& cual) {
        for (QGraphicsItem* const pieza : dibujo.scene()->items())
            if (auto* const letras = dynamic_cast<QGraphicsSimpleTextItem*>(pieza);
                letras && letras->text() == cual)
                return letras->sceneBoundingRect().center();
        return QPointF();
    };
    QTest::mouseClick(dibujo.viewport(), Qt::LeftButton, {}, dibujo.mapFromScene(texto1("2")));
    EXPECT_EQ(texto.norvik().SelText(), "2");
    EXPECT_EQ(camino(), "E › T › num");
    ventana.arbol().hide();
    cursor(texto, u"1");
    ventana.arbol().show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return camino() == "E › mas"; })); // what it missed
}

TEST_F(LenguajeTest, LosProblemasSeFiltranYLlevanASuLugar) {
    empieza("Token a = \"a\";\nToken b = \"b\";\nS -> a;\n", "a a");
    ASSERT_EQ(problemas(0).size(), 1);
    EXPECT_TRUE(problemas(0)[0].startsWith("2:7 Aviso: "));
    pulsa(*lista().topLevelItem(0)->child(0));
    EXPECT_EQ(especificacion.norvik().SelText(), "b");
    EXPECT_TRUE(especificacion.isAncestorOf(QApplication::focusWidget()));
    QToolButton& avisos = ventana.problemas().filtro(Gravedad::Aviso);
    EXPECT_EQ(avisos.text(), "Avisos (1)");
    avisos.click();
    EXPECT_EQ(problemas(0), QStringList());
    EXPECT_TRUE(problemas(1)[0].startsWith("1:3 Error: "));
}

TEST_F(LenguajeTest, UnNombreMalEscritoSeArregla) {
    empieza("'% metodo: lalr\nExpReg cifra = \"[0-9]\";\nToken num = \"<cifar>+\";\nE -> num;\n", "1");
    pulsa(*fila("Arreglar: escriba cifra"));
    espera();
    EXPECT_EQ(problemas(0), QStringList());
    cursor(especificacion, u"E -> num");
    escribe(especificacion, "m");
    pulsa(*fila("Arreglar: escriba num"));
    espera();
    EXPECT_EQ(problemas(0), QStringList());
    EXPECT_TRUE(especificacion.texto().ends_with(u"\"<cifra>+\";\r\nE -> num;\r\n"));
}

TEST_F(LenguajeTest, GuardaComoSeLeyo) {
    const std::string bytes = "Token a = \"\xF1\";\r\nS -> a;"; // Windows-1252, without a last line end
    const auto fichero = carpeta.pon("n.nvk", bytes);
    ventana.abre(QString::fromStdString(fichero.string()));
    espera();
    EXPECT_EQ(ventana.windowTitle(), "n.nvk[*] — Lenguaje — Norvik");
    cursor(especificacion, u"S -> a;");
    escribe(especificacion, " ");
    EXPECT_TRUE(ventana.isWindowModified());
    QTest::keyClick(&teclado(especificacion), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(ventana.isWindowModified());
    EXPECT_EQ(apoyo::bytesDe(fichero), bytes + " ");
    carpeta.pon("n.nvk", "de otro");
    QTest::keyClick(&teclado(especificacion), Qt::Key_S, Qt::ControlModifier); // nothing changed here
    EXPECT_EQ(apoyo::bytesDe(fichero), "de otro");
    EXPECT_EQ(dialogos.toma().filter("choque").size(), 1);
}

TEST_F(LenguajeTest, NadaEscritoSePierdeAlCerrar) {
    empieza(suma, "1");
    EXPECT_TRUE(ventana.close()); // as it came from the form
    ventana.show();
    escribe(especificacion, " ");
    EXPECT_FALSE(ventana.close());
    EXPECT_EQ(dialogos.toma().size(), 1);
    std::u16string usada;
    ventana.ponUso([&](const std::u16string& e) { return usada = e, true; });
    QTest::keyClick(&ventana, Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(usada, u" " + u16(suma));
    EXPECT_TRUE(ventana.close());
}

TEST_F(LenguajeTest, LosNombresDeLaEspecificacion) {
    empieza(ambigua, "1");
    QWidget& teclas = teclado(especificacion);
    const auto linea = [&] { return especificacion.norvik().control().LineaActual(); };
    for (int vez = 0; vez < 2; ++vez) {
        cursor(especificacion, u"E -> E m");
        QTest::keyClick(&teclas, Qt::Key_F12);
        EXPECT_EQ(especificacion.norvik().SelText(), "mas");
        EXPECT_EQ(linea(), 3);
        QTest::keyClick(&teclas, Qt::Key_F12, Qt::ShiftModifier);
        QTreeWidget& usos = ventana.usos().lista();
        EXPECT_EQ(QApplication::focusWidget(), &usos);
        ASSERT_EQ(usos.topLevelItemCount(), 2);
        EXPECT_EQ(usos.topLevelItem(1)->text(0), "E -> E mas E | E por E | num;");
        QTest::keyClick(&usos, Qt::Key_Down);
        QTest::keyClick(&usos, Qt::Key_Return);
        EXPECT_TRUE(especificacion.isAncestorOf(QApplication::focusWidget()));
        EXPECT_EQ(linea(), 5);
    }
    for (int vez = 0; vez < 2; ++vez) { // whatever row was chosen, the first place is
        cursor(especificacion, u"E -> E m");
        QTest::keyClick(&teclas, Qt::Key_F12, Qt::ShiftModifier);
        EXPECT_EQ(especificacion.norvik().SelText(), "mas") << vez;
        EXPECT_EQ(linea(), 3) << vez;
    }
    dialogos.nombres = {"por", "sumado"};
    cursor(especificacion, u"E -> E m");
    QTest::keyClick(&teclas, Qt::Key_F2);
    QTest::keyClick(&teclas, Qt::Key_F2);
    EXPECT_EQ(dialogos.toma(),
              QStringList({"nombre mas [por] Ya hay otro nombre «por».", "nombre mas [sumado] "}));
    espera();
    EXPECT_TRUE(especificacion.texto().ends_with(u"E -> E sumado E | E por E | num;\r\n"));
    EXPECT_EQ(especificacion.norvik().SelText(), "sumado");
    EXPECT_EQ(linea(), 5);
    EXPECT_EQ(ventana.usos().lista().topLevelItemCount(), 0); // of the name that is no more
    especificacion.norvik().accion(AccionNorvik::Deshacer)->trigger();
    EXPECT_EQ(especificacion.texto(), u16(ambigua));
}

TEST_F(LenguajeTest, ElRatonSobreUnNombre) {
    empieza(suma, "1");
    cursor(especificacion, u"E -> E ");
    VistaTexto& vista = especificacion.norvik().caja().vista();
    const QPoint punto = vista.cursorRect().center() + QPoint(3, 0); // in the token's name
    QHelpEvent ayuda(QEvent::ToolTip, punto, vista.viewport()->mapToGlobal(punto));
    QApplication::sendEvent(vista.viewport(), &ayuda);
    EXPECT_TRUE(QToolTip::text().contains("Patrón: \\+")) << QToolTip::text().toStdString();
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, Qt::ControlModifier, punto);
    EXPECT_EQ(especificacion.norvik().SelText(), "mas");
    EXPECT_EQ(especificacion.norvik().control().LineaActual(), 3);
    cursor(especificacion, u"E -> E mas T");
    QTest::keyClick(&vista, Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(QToolTip::text().contains("Primeros(T) = { num }")) << QToolTip::text().toStdString();
}

// Although there is a conflict in the rule; at the end of a line, too.
TEST_F(LenguajeTest, UnNombreSeExplicaPorTecla) {
    empieza("'% metodo: lalr\nToken num = \"[0-9]+\";\nToken mas = \"\\+\";\n"
            "E -> E mas E | T\n;\nT -> num;\n",
            "1");
    ASSERT_EQ(problemas(0).size(), 2); // and the way to its story
    const std::pair<const char16_t*, const char*> casos[] = {{u"mas E", "Primeros(E)"},
                                                             {u"| T", "Primeros(T)"}};
    for (const auto& [detras, palabras] : casos) {
        cursor(especificacion, detras);
        QTest::keyClick(&teclado(especificacion), Qt::Key_I, Qt::ControlModifier);
        EXPECT_TRUE(QToolTip::text().contains(palabras)) << palabras;
    }
}

TEST(LenguajeDelTaller, VaALaVentanaYVuelve) {
    const apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema(dialogos);
    QSettings ajustes(QString::fromStdString((carpeta / "a.ini").string()), QSettings::IniFormat);
    VentanaPrincipal taller({sistema, dialogos, ajustes, {}});
    taller.show();
    taller.abre(QString::fromStdString(carpeta.pon("suma.nvk", suma).string()));
    for (int vez = 0; vez < 2; ++vez) {
        taller.acciones().ventanaLenguaje.trigger();
        VentanaLenguaje& ventana = taller.ventanaLenguaje();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
        QWidget& teclado = ventana.especificacion().norvik().caja().ventana();
        QTest::keyClicks(&teclado, "'x");
        QTest::keyClick(&teclado, Qt::Key_Return);
        QTest::keyClick(&ventana, Qt::Key_F6, Qt::ShiftModifier);
        ventana.close();
    }
    const QString llega = taller.formulario().activo().norvik().ContenidoG();
    EXPECT_TRUE(llega.startsWith("'x\r\n'x\r\n'% metodo")) << llega.left(40).toStdString();
    taller.acciones().ventanaLenguaje.trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&taller.ventanaLenguaje()));
    QTest::keyClicks(&taller.ventanaLenguaje().especificacion().norvik().caja().ventana(), "y");
    dialogos.toma();
    EXPECT_FALSE(taller.close()); // the language window asks, and nobody wants to lose anything
    EXPECT_EQ(dialogos.toma(),
              QStringList{"&Guardar ¿Quiere guardar los cambios de la especificación «Sin título»?"});
    QTest::keyClick(&taller.ventanaLenguaje(), Qt::Key_4, Qt::ControlModifier);
    EXPECT_TRUE(taller.ventanaLenguaje().arbol().isAncestorOf(QApplication::focusWidget())); // and it goes so
    QTest::keyClick(&taller.ventanaLenguaje(), Qt::Key_2, Qt::ControlModifier);
    const auto etiquetas = taller.ventanaLenguaje().statusBar()->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(
        etiquetas, [](const QLabel* suya) { return suya->text() == "Texto: línea 1, columna 1"; }));
    QTest::keyClick(&taller.ventanaLenguaje(), Qt::Key_N, Qt::ControlModifier); // asks, too
    EXPECT_EQ(dialogos.toma().size(), 1);
    dialogos.destinos = {Destino::Descartar};
    QTest::keyClick(&taller.ventanaLenguaje(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(taller.ventanaLenguaje().especificacion().texto(), plantilla);
}

TEST_F(LenguajeTest, UnArregloEsUnSoloCambio) {
    const auto cambio = [](int inicio, int fin, const char16_t* puesto, bool conNombres = false) {
        Cambio c{{}, puesto, conNombres};
        c.rango.inicio.desplazamiento = inicio;
        c.rango.fin.desplazamiento = fin;
        return c;
    };
    const struct {
        std::vector<Cambio> cambios;
        const char16_t* queda;
        const char* seleccion;
    } casos[] = {
        {{}, u"abc def", ""},
        {{cambio(0, 1, u""), cambio(2, 5, u"X")}, u"bXef", ""},
        {{cambio(3, 3, u"\n")}, u"abc\r\n def", ""},
        {{cambio(0, 0, u"("), cambio(4, 7, u"nombre", true), cambio(7, 7, u")")}, u"(abc nombre)", "nombre"},
    };
    for (const auto& c : casos) {
        texto.documento().empieza(u"abc def");
        aplica({u"", c.cambios}, texto.norvik());
        EXPECT_EQ(texto.texto(), c.queda);
        EXPECT_EQ(texto.norvik().SelText(), c.seleccion);
        texto.norvik().accion(AccionNorvik::Deshacer)->trigger();
        EXPECT_EQ(texto.texto(), u"abc def");
    }
}

TEST(CorrespondenciasLenguaje, UnaCosaVistaDeVariasManeras) {
    const auto e = estudia(u16(suma), u"1 + 2", nullptr, {});
    const Lenguaje& lenguaje = *e->deLenguaje->lenguaje;
    const auto trozo = [](const std::u16string& texto, const std::optional<Rango>& rango) {
        if (!rango) return std::string("-");
        const auto inicio = rango->inicio.desplazamiento;
        return QString::fromStdU16String(texto).mid(inicio, rango->fin.desplazamiento - inicio).toStdString();
    };
    const auto enTexto = [](int inicio, int fin) {
        Rango rango;
        rango.inicio.desplazamiento = inicio;
        rango.fin.desplazamiento = fin;
        return EnTexto{rango};
    };
    const auto columna = [&](std::u16string_view simbolo) { return e->gramatica()->tabla.codigo(simbolo); };
    const std::int16_t trasT = e->gramatica()->tabla.entrada(0, columna(u"T"));
    EXPECT_TRUE(lenguaje.tieneGramatica());
    const struct {
        Eleccion eleccion;
        const char* especificacion;
        const char* texto;
        const char16_t* simbolo;
        int regla;
    } casos[] = {
        {DeRegla{1}, "E mas T", "-", u"E", 1},    {DeSimbolo{u"mas"}, "mas", "-", u"mas", 0},
        {DeSimbolo{u"T"}, "T", "-", u"T", 0},     {DeNodo{0}, "E mas T", "1 + 2", u"E", 1},
        {DeNodo{9999}, "-", "-", nullptr, 0},     {DeCelda{trasT, columna(u"mas")}, "T", "-", u"mas", 2},
        {DeItem{0, {3, 0}}, "num", "-", u"T", 3},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.eleccion.index());
        EXPECT_EQ(trozo(e->deLenguaje->especificacion, lugarEnEspecificacion(*e, c.eleccion)),
                  c.especificacion);
        EXPECT_EQ(trozo(e->texto, lugarEnTexto(*e, c.eleccion)), c.texto);
        EXPECT_EQ(simboloDe(*e, c.eleccion).value_or(u""), c.simbolo == nullptr ? u"" : c.simbolo);
        EXPECT_EQ(reglaDe(*e, c.eleccion).value_or(0), c.regla);
    }
    const std::tuple<int, int, const char16_t*> lugares[] = {{0, 0, u"num"}, {1, 1, u"num"}, {2, 2, u"mas"},
                                                             {3, 3, u"mas"}, {4, 5, u"num"}, {0, 3, u"E"}};
    for (const auto& [inicio, fin, simbolo] : lugares)
        EXPECT_EQ(e->arbol()[nodoDe(*e, enTexto(inicio, fin)).value()].nombre(), simbolo) << inicio;
    EXPECT_EQ(palabrasDeItem(*e->gramatica(), {1, 2}), u"E → E mas • T");
    EXPECT_EQ(palabrasDeItem(*e->gramatica(), {3, 1}), u"T → num •");
    EXPECT_EQ(palabrasDeCelda(*e->gramatica(), e->deLenguaje->conflictos, {1, columna(u"$")}),
              u"Estado 1, ante el final del texto: aceptar el texto");
}

TEST(ModeloAnalisisLenguaje, CadaNodoTieneSuFila) {
    const auto e = estudia(u16(suma), u"1 + 2 + 3", nullptr, {});
    for (const auto& [cadenas, filas] : {std::pair{Cadenas::EnUnaFila, 7}, std::pair{Cadenas::Enteras, 11}}) {
        ModeloAnalisis modelo;
        modelo.muestra(e, cadenas);
        std::set<QModelIndex> distintas;
        for (std::size_t n = 0; n < e->arbol().numNodos(); ++n) {
            const QModelIndex fila = modelo.indiceDe(n);
            EXPECT_EQ(modelo.index(fila.row(), 0, fila.parent()), fila) << n;
            distintas.insert(fila);
        }
        EXPECT_EQ(distintas.size(), filas);
        EXPECT_FALSE(modelo.indiceDe(e->arbol().numNodos()).isValid());
    }
}

TEST(EstudioLenguaje, LoQueSeSabeDeUnaEspecificacionVale) {
    const auto uno = estudia(u16(suma), u"1", nullptr, {});
    EXPECT_EQ(estudia(u16(suma), u"1+", uno, {})->deLenguaje, uno->deLenguaje);
    EXPECT_NE(estudia(u16(ambigua), u"1", uno, {})->deLenguaje, uno->deLenguaje);
    std::stop_source parada;
    parada.request_stop();
    EXPECT_EQ(estudia(u16(ambigua), u"1", uno, parada.get_token()), nullptr);
}
