// SPDX-License-Identifier: MIT

// Lines so long that a pass over one, or a layout of it, is felt.
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

using namespace norvik;

namespace {

constexpr int cuantas = 100'000;

/// A line of so many characters between two short ones, all aids on, the caret in the middle of it.
struct LineasLargas : testing::Test {
    LineasLargas() {
        norvik.resize(600, 200);
        norvik.Colorear(true);
        norvik.control().ponAyudas(todasLasAyudas());
        EXPECT_TRUE(
            norvik.cargaLenguaje(QStringLiteral("Token n = \"[0-9]+\", TipoToken = TTNumero;"
                                                "Token m = \"\\+\", TipoToken = TTOperador;"
                                                "Token i = \"[a-z]+\"; S -> S m T | T; T -> n | i;")));
        norvik.show();
        QApplication::setActiveWindow(&norvik);
        norvik.setFocus();
        QString linea;
        while (linea.size() < cuantas) linea += QStringLiteral("12+abc + 3 ");
        norvik.Text("1\r\n" + linea + "\r\n2");
        va(cuantas / 2);
        EXPECT_TRUE(QTest::qWaitFor([&] { return norvik.caja().colorDe(3) != 0; }, 20'000));
        reposa();
    }
    static void reposa() { QTest::qWait(100); }
    void va(std::int32_t columna) { norvik.caja().selecciona(3 + columna, 0); }
    QTextBlock linea() const { return editor.document()->findBlockByNumber(1); }
    /// Where what is seen of the line has not the colour of its character.
    int malVistos() const {
        const auto [desde, hasta] = norvik.caja().vista().columnasVistas(linea());
        EXPECT_GT(hasta - desde, 5);
        int malos = 0;
        for (int i = desde; i < hasta; ++i) {
            QColor visto = Qt::black;
            for (const auto& f : linea().layout()->formats())
                if (f.start <= i && i < f.start + f.length) visto = f.format.foreground().color();
            malos += visto != aQColor(norvik.caja().colorDe(3 + i));
        }
        return malos;
    }

    ControlNorvik norvik;
    QPlainTextEdit& editor = static_cast<QPlainTextEdit&>(norvik.caja().ventana());
};

} // namespace

// Qt lays an edited line out without a word; that it does so again, for other colours, it tells.
TEST_F(LineasLargas, UnaTeclaNoLaComponeDosVeces) {
    int otraVez = 0;
    QObject::connect(editor.document()->documentLayout(), &QAbstractTextDocumentLayout::updateBlock,
                     [&] { ++otraVez; });
    for (const Qt::Key tecla :
         {Qt::Key_X, Qt::Key_X, Qt::Key_Left, Qt::Key_X, Qt::Key_Backspace, Qt::Key_Delete}) {
        otraVez = 0;
        QTest::keyClick(&editor, tecla);
        reposa();
        EXPECT_EQ(otraVez, 0) << tecla;
        EXPECT_TRUE(QTest::qWaitFor([&] { return malVistos() == 0; })) << tecla;
    }
}

TEST_F(LineasLargas, SusColoresSonLosDeSusCaracteresDondeSeVe) {
    QScrollBar& barra = *editor.horizontalScrollBar();
    const auto comprueba = [&](const char* donde) {
        reposa();
        EXPECT_TRUE(QTest::qWaitFor([&] { return malVistos() == 0; })) << donde; // they come by a thread
        EXPECT_LT(linea().layout()->formats().size(), 3000) << donde;
        EXPECT_FALSE(linea().layout()->formats().isEmpty()) << donde;
    };
    comprueba("middle");
    barra.setValue(0);
    comprueba("start");
    for (int vez = 0; vez < 60; ++vez) {
        barra.setValue(barra.value() + barra.pageStep() / 2);
        comprueba("to the side");
    }
    barra.setValue(barra.maximum());
    comprueba("end");
    norvik.resize(1500, 200);
    comprueba("wider");
    norvik.aumento(50);
    comprueba("smaller");
    va(10);
    for (const Qt::Key tecla : {Qt::Key_Plus, Qt::Key_7, Qt::Key_Backspace, Qt::Key_Backspace}) {
        QTest::keyClick(&editor, tecla);
        comprueba("typed");
    }
    QTest::keyClick(&editor, Qt::Key_Return); // two of it, and one again
    comprueba("broken");
    QTest::keyClick(&editor, Qt::Key_Backspace);
    comprueba("joined");
    norvik.Text("1\r\n" + norvik.Text().left(200).mid(3));
    reposa();
    EXPECT_EQ(malVistos(), 0) << "short again";
}

TEST_F(LineasLargas, SoloLoQueSeVeResalta) {
    norvik.accion(AccionNorvik::Buscar)->trigger();
    QTest::keyClicks(norvik.findChild<QLineEdit*>("campo"), "b");
    const auto& cuenta = *norvik.findChild<QLabel*>("cuenta");
    ASSERT_TRUE(QTest::qWaitFor([&] { return cuenta.text().contains("de 9"); }, 10'000))
        << cuenta.text().toStdString();
    reposa();
    const auto [desde, hasta] = norvik.caja().vista().columnasVistas(linea());
    int vistos = 0;
    const auto puestos = editor.extraSelections();
    for (const auto& p : puestos) {
        const int columna = p.cursor.selectionStart() - linea().position();
        vistos += p.cursor.hasSelection() && columna >= desde && columna < hasta;
    }
    EXPECT_EQ(vistos, linea().text().mid(desde, hasta - desde).count('b'));
    EXPECT_LT(puestos.size(), 200);
}
