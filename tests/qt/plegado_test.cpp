// SPDX-License-Identifier: MIT

// Folding, by the triangles of the left border.
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

using namespace norvik;

namespace {

const QString bloques = QStringLiteral(
    R"(Token abre = "\{"; Token cierra = "\}"; Token x = "x"; L -> L B | B; B -> abre L cierra | x;)");

class PlegadoTest : public testing::Test {
protected:
    PlegadoTest() {
        editor.resize(400, 300);
        editor.show();
        QApplication::setActiveWindow(&editor);
        editor.setFocus();
        EXPECT_TRUE(editor.cargaLenguaje(bloques));
        editor.Text("{\nx\n{\nx\n}\n}\nx");
        editor.pliega(true);
    }
    /// The lines that are seen, once the text was parsed.
    QString vistas() {
        QCoreApplication::processEvents();
        QString numeros;
        for (QTextBlock b = vista.document()->begin(); b.isValid(); b = b.next())
            if (b.isVisible()) numeros += QString::number(b.blockNumber());
        return numeros;
    }
    void pulsaEn(int linea) {
        const QTextCursor cursor(vista.document()->findBlockByNumber(linea));
        const int altura = vista.cursorRect(cursor).center().y();
        QTest::mouseClick(&margen, Qt::LeftButton, {}, {margen.width() - 3, altura});
    }
    /// After a pause of the person's.
    void espera() { QTest::qWait(600); }

    SistemaDePrueba sistema;
    ControlNorvik editor{sistema, nullptr};
    QPlainTextEdit& vista = static_cast<QPlainTextEdit&>(editor.caja().ventana());
    QWidget& margen = *editor.findChild<QWidget*>("margenDeLineas");
};

} // namespace

/// Something stands at the left of a line that is wrong, and at the right of one that can be folded.
TEST_F(PlegadoTest, ElMargenSenalaLoMaloYLoPlegable) {
    const auto pintadas = [&](int x, int ancho) {
        QCoreApplication::processEvents();
        QString lineas;
        const QImage imagen = margen.grab().toImage();
        for (int linea = 0; linea < 7; ++linea) {
            const QTextCursor cursor(vista.document()->findBlockByNumber(linea));
            const QRect sitio(x, vista.cursorRect(cursor).top() + 1, ancho,
                              vista.cursorRect(cursor).height() - 2);
            const QImage trozo = imagen.copy(sitio);
            QImage liso = trozo;
            liso.fill(imagen.pixelColor(imagen.width() - 1, imagen.height() - 1));
            if (trozo != liso) lineas += QString::number(linea);
        }
        return lineas;
    };
    const int lado = margen.fontMetrics().height() * 3 / 4;
    const auto esperadas = [&](const QString& lineas) {
        return QTest::qWaitFor([&] { return pintadas(margen.width() - lado, lado) == lineas; });
    };
    EXPECT_TRUE(esperadas("02"));
    EXPECT_TRUE(editor.cargaLenguaje(R"(Token todo = "[^Ø]+"; S -> todo;)"));
    EXPECT_TRUE(esperadas(""));
    EXPECT_TRUE(editor.cargaLenguaje(bloques));
    EXPECT_TRUE(esperadas("02"));
    EXPECT_EQ(pintadas(0, 12), "");
    Diagnostico malo;
    malo.rango = {{3, 2, 1}, {4, 2, 2}};
    editor.ponDiagnosticos({malo});
    EXPECT_EQ(pintadas(0, 12), "1");
}

TEST_F(PlegadoTest, UnTrianguloPliegaYDespliega) {
    espera();
    for (int vez = 0; vez < 2; ++vez) {
        pulsaEn(2);
        EXPECT_EQ(vistas(), "01256");
        pulsaEn(0);
        EXPECT_EQ(vistas(), "06");
        pulsaEn(0);
        EXPECT_EQ(vistas(), "01256");
        pulsaEn(2);
        EXPECT_EQ(vistas(), "0123456");
        pulsaEn(1); // nothing begins there
        EXPECT_EQ(vistas(), "0123456");
    }
    pulsaEn(0);
    editor.pliega(false);
    EXPECT_EQ(vistas(), "0123456");
    EXPECT_EQ(editor.Text(), "{\r\nx\r\n{\r\nx\r\n}\r\n}\r\nx");
}

TEST_F(PlegadoTest, UnaTeclaPliegaLoQueRodeaAlCursor) {
    const QAction& accion = *editor.accion(AccionNorvik::Plegar);
    const auto pliega = [&] { QTest::keyClick(&vista, Qt::Key_Less, Qt::ControlModifier); };
    espera();
    for (int vez = 0; vez < 2; ++vez) {
        editor.SelStart(9); // the inner x
        pliega();
        EXPECT_EQ(vistas(), "01256");
        pliega();
        EXPECT_EQ(vistas(), "0123456");
        editor.SelStart(3); // the outer one's
        pliega();
        EXPECT_EQ(vistas(), "06");
        pliega();
        editor.SelStart(18); // in none
        pliega();
        EXPECT_EQ(vistas(), "0123456");
    }
    editor.pliega(false);
    QCoreApplication::processEvents();
    EXPECT_FALSE(accion.isEnabled());
}

TEST_F(PlegadoTest, LoPlegadoSigueAlTextoYSeAbreParaElCursor) {
    espera();
    editor.SelStart(9); // the inner x
    pulsaEn(2);
    EXPECT_EQ(vistas(), "01256");
    EXPECT_EQ(editor.control().LineaActual(), 3); // the caret does not stay where it is not seen
    editor.SelStart(0);
    editor.SelText("x\n");
    EXPECT_EQ(vistas(), "012367");
    espera();
    EXPECT_EQ(vistas(), "012367");
    editor.irA({{editor.caja().inicioDeLinea(4)}, {editor.caja().inicioDeLinea(4)}});
    EXPECT_EQ(vistas(), "01234567");
    pulsaEn(1);
    EXPECT_EQ(vistas(), "017");
    editor.Text("x"); // without what was folded
    EXPECT_EQ(vistas(), "0");
}

/// However the caret comes to what is folded, it is seen there.
TEST_F(PlegadoTest, AdondeSeVaSeVe) {
    const QString muchas = QStringLiteral("x\n").repeated(100);
    editor.Text("{\n" + muchas + "}\n" + muchas);
    espera();
    const std::int32_t dentro = editor.caja().inicioDeLinea(80);
    editor.SelStart(dentro);
    QTest::keyClicks(&vista, "x");
    const std::pair<const char*, std::function<void()>> maneras[] = {
        {"SelStart", [&] { editor.SelStart(dentro); }},
        {"the tree of a host", [&] { editor.caja().atiende([&] { editor.caja().selecciona(dentro, 1); }); }},
        {"irA",
         [&] {
             editor.irA({{dentro}, {dentro}});
         }},
        {"go to line",
         [&] {
             sistema.usos.emplace_back([](QWidget& ventana) {
                 static_cast<QInputDialog&>(ventana).setIntValue(81);
                 static_cast<QInputDialog&>(ventana).accept();
             });
             editor.accion(AccionNorvik::IrALinea)->trigger();
         }},
        {"undo", [&] { editor.accion(AccionNorvik::Deshacer)->trigger(); }},
    };
    for (const auto& [nombre, va] : maneras) {
        editor.SelStart(0);
        QCoreApplication::processEvents();
        pulsaEn(0);
        EXPECT_EQ(vistas().left(4), "0102") << nombre;
        va();
        QCoreApplication::processEvents();
        EXPECT_EQ(vistas().left(4), "0123") << nombre;
        EXPECT_EQ(editor.caja().lineaDeCaracter(editor.caja().inicioSeleccion()), 80) << nombre;
        EXPECT_TRUE(vista.viewport()->rect().contains(vista.cursorRect())) << nombre;
        espera();
    }
}
