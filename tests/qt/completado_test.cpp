// SPDX-License-Identifier: MIT

// The list of what can follow.
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

#include <gtest/gtest.h>

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
        pulsa(Qt::Key_Down);
        pulsa(Qt::Key_Return);
        EXPECT_EQ(editor.Text(), "mira");
        EXPECT_EQ(propuestas(), QStringList());
        QTest::keyClicks(&vista, " ");
        pulsa(Qt::Key_Space, Qt::ControlModifier);
        EXPECT_EQ(propuestas(), QStringList{"nombre"}); // nobody can take it
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
