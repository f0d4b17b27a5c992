// SPDX-License-Identifier: MIT

// The list of what can follow.
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <utility>

using namespace norvik;

namespace {

class CompletadoTest : public testing::Test {
protected:
    CompletadoTest() {
        editor.resize(400, 300);
        editor.show();
        QApplication::setActiveWindow(&editor);
        editor.setFocus();
        EXPECT_TRUE(editor.cargaLenguaje(
            R"(Token mientras = "mientras"; Token mira = "mira"; Token si = "si"; Token id = "[a-z]+" ("nombre");
               L -> L S | S; S -> mientras id | mira id | si id;)"));
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(&vista, tecla, teclas);
        QCoreApplication::processEvents();
    }
    QStringList propuestas() {
        QStringList filas;
        for (int i = 0; lista.isVisible() && i < lista.count(); ++i)
            if (!lista.item(i)->isHidden()) filas << lista.item(i)->text();
        return filas;
    }

    SistemaDePrueba sistema;
    ControlNorvik editor{sistema, nullptr};
    QPlainTextEdit& vista = static_cast<QPlainTextEdit&>(editor.caja().ventana());
    QListWidget& lista = *editor.findChild<QListWidget*>("completado");
};

} // namespace

TEST_F(CompletadoTest, ProponeLoQuePuedeSeguirYLoEscribe) {
    pulsa(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(propuestas(), QStringList());
    for (int vez = 0; vez < 2; ++vez) {
        editor.Text("");
        editor.completa(true);
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        EXPECT_EQ(propuestas(), QStringList({"mientras", "mira", "si"}));
        EXPECT_TRUE(vista.hasFocus());
        QTest::keyClicks(&vista, "mi");
        QCoreApplication::processEvents();
        EXPECT_EQ(propuestas(), QStringList({"mientras", "mira"}));
        pulsa(Qt::Key_Home, Qt::ShiftModifier);
        EXPECT_EQ(propuestas(), QStringList()); // what is selected is not being written
        pulsa(Qt::Key_End);
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        EXPECT_EQ(propuestas(), QStringList({"mientras", "mira"}));
        pulsa(Qt::Key_Down);
        pulsa(Qt::Key_Return);
        EXPECT_EQ(editor.Text(), "mira");
        EXPECT_EQ(propuestas(), QStringList());
        QTest::keyClicks(&vista, " ");
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        EXPECT_EQ(propuestas(), QStringList{"nombre"}); // nobody can take it
        EXPECT_TRUE(lista.item(0)->font().italic());
        pulsa(Qt::Key_Tab);
        EXPECT_EQ(editor.Text(), "mira ");
        editor.Text("");
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        pulsa(Qt::Key_Escape);
        EXPECT_EQ(propuestas(), QStringList());
        editor.completa(false);
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        EXPECT_EQ(propuestas(), QStringList());
    }
}

TEST_F(CompletadoTest, TomarloEsUnPasoExacto) {
    editor.completa(true);
    for (const bool porPalabras : {false, true}) {
        editor.deshacePorPalabras(porPalabras);
        editor.Text("");
        QTest::keyClicks(&vista, "MI");
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        pulsa(Qt::Key_Down);
        pulsa(Qt::Key_Return);
        EXPECT_EQ(editor.Text(), "mira");
        editor.control().Undo();
        EXPECT_EQ(editor.Text(), "MI");
        editor.control().Redo();
        EXPECT_EQ(editor.Text(), "mira");
    }
}

TEST_F(CompletadoTest, NadaSeEscribeEnLoQueSoloSeLee) {
    editor.completa(true);
    pulsa(Qt::Key_Space, Qt::ControlModifier);
    editor.soloLectura(true);
    pulsa(Qt::Key_Return);
    EXPECT_EQ(editor.Text(), "");
    EXPECT_EQ(propuestas(), QStringList());
}

/// It is where the word begins, and no larger than what is left.
TEST_F(CompletadoTest, LaListaEsComoLoQueQueda) {
    editor.completa(true);
    QTest::keyClicks(&vista, "si a ");
    const int inicio = vista.viewport()->mapToGlobal(vista.cursorRect().topLeft()).x();
    pulsa(Qt::Key_Space, Qt::ControlModifier);
    const int lados = 2 * lista.frameWidth();
    const int fila = (lista.height() - lados) / 3;
    EXPECT_EQ(fila, lista.sizeHintForRow(0));
    for (const auto& [escrito, filas] : {std::pair{"", 3}, {"m", 2}, {"i", 2}, {"r", 1}}) {
        QTest::keyClicks(&vista, escrito);
        QCoreApplication::processEvents();
        EXPECT_EQ(lista.height() - lados, fila * filas);
        EXPECT_NEAR(lista.geometry().x(), inicio, 1);
    }
}

/// On the screen's last lines, and with names that nobody reads to their end.
TEST_F(CompletadoTest, LaListaCabeEnLaPantalla) {
    const QRect pantalla = editor.screen()->availableGeometry();
    editor.completa(true);
    editor.Text("mira " + QString(2000, 'a') + "\n\n\n\nmira ");
    editor.caja().selecciona(editor.caja().inicioDeLinea(4) + 5, 0);
    for (const QPoint& esquina : {pantalla.topLeft(), pantalla.bottomRight() - QPoint(200, 100),
                                  pantalla.bottomLeft() - QPoint(100, 90)}) {
        editor.move(esquina);
        QCoreApplication::processEvents();
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        ASSERT_EQ(propuestas().size(), 2);
        const QRect sitio = lista.geometry();
        EXPECT_TRUE(pantalla.contains(sitio));
        EXPECT_LE(sitio.width(), pantalla.width() / 2);
        const QRect cursor = vista.cursorRect().translated(vista.viewport()->mapToGlobal(QPoint()));
        EXPECT_FALSE(sitio.intersects(cursor.adjusted(0, 1, 0, -1)));
        pulsa(Qt::Key_Escape);
    }
}
