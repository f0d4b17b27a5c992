// SPDX-License-Identifier: MIT

// The aids of editing that are seen: each off, on, and off again.
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QApplication>
#include <QHelpEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace norvik;

namespace {

class AyudasDeVista : public testing::Test {
protected:
    AyudasDeVista() {
        editor.resize(400, 200);
        editor.show();
        QApplication::setActiveWindow(&editor);
        editor.setFocus();
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(&vista, tecla, teclas);
    }
    /// What stands over the text: of each its first and last character, or its line with "=".
    QStringList resaltes() {
        QCoreApplication::processEvents();
        QStringList vistos;
        for (const auto& s : vista.extraSelections()) {
            vistos << (s.format.boolProperty(QTextFormat::FullWidthSelection)
                           ? QString("=%1").arg(s.cursor.blockNumber())
                           : QString("%1-%2").arg(s.cursor.selectionStart()).arg(s.cursor.selectionEnd()));
        }
        return vistos;
    }
    /// How many pixels of the border are not of its background, beside the signs.
    int pixelesDeNumeros() {
        QCoreApplication::processEvents();
        const QImage imagen = borde.grab().toImage();
        const QRgb fondo = imagen.pixel(imagen.width() - 1, imagen.height() - 1);
        int otros = 0;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 20; x < imagen.width(); ++x) otros += imagen.pixel(x, y) != fondo ? 1 : 0;
        return otros;
    }
    void gira(int cuanto, Qt::KeyboardModifiers teclas) {
        QWheelEvent evento({50, 50}, vista.viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, cuanto}, {},
                           teclas, Qt::NoScrollPhase, false);
        QApplication::sendEvent(vista.viewport(), &evento);
    }

    SistemaDePrueba sistema;
    ControlNorvik editor{sistema, nullptr};
    QPlainTextEdit& vista = static_cast<QPlainTextEdit&>(editor.caja().ventana());
    QWidget& borde = *editor.findChild<QWidget*>("debugBox");
};

} // namespace

TEST_F(AyudasDeVista, LosNumerosEstanEnElBorde) {
    const QRect antes = vista.geometry();
    editor.Text("uno\ndos\ntres");
    EXPECT_EQ(pixelesDeNumeros(), 0);
    for (int vez = 0; vez < 2; ++vez) {
        editor.numerosDeLinea(true);
        const int dosCifras = vista.x();
        EXPECT_GT(dosCifras, antes.x());
        EXPECT_EQ(vista.geometry().right(), antes.right());
        EXPECT_GT(pixelesDeNumeros(), 20);
        editor.Text(QString(150, u'\n'));
        QCoreApplication::processEvents();
        EXPECT_GT(vista.x(), dosCifras); // three digits
        editor.SelText("x");
        editor.Text("");
        QCoreApplication::processEvents();
        EXPECT_EQ(vista.x(), dosCifras);
        editor.LeftBorderVisible(false);
        EXPECT_LT(vista.x(), antes.x());
        editor.LeftBorderVisible(true);
        editor.numerosDeLinea(false);
        EXPECT_EQ(vista.geometry(), antes);
        EXPECT_EQ(pixelesDeNumeros(), 0);
    }
}

TEST_F(AyudasDeVista, LaLineaDelCursor) {
    editor.Text("uno\ndos\ntres");
    pulsa(Qt::Key_Down);
    EXPECT_EQ(resaltes(), QStringList());
    for (int vez = 0; vez < 2; ++vez) {
        editor.resaltaLinea(true);
        EXPECT_EQ(resaltes(), QStringList{"=1"});
        pulsa(Qt::Key_Down);
        EXPECT_EQ(resaltes(), QStringList{"=2"});
        editor.SelStart(0);
        EXPECT_EQ(resaltes(), QStringList{"=0"});
        editor.SelStart(5);
        editor.resaltaLinea(false);
        EXPECT_EQ(resaltes(), QStringList());
    }
}

TEST_F(AyudasDeVista, LaParejaDelCursor) {
    editor.Text("f(a[1])");
    editor.SelStart(7);
    EXPECT_EQ(resaltes(), QStringList());
    for (int vez = 0; vez < 2; ++vez) {
        editor.SelStart(7);
        editor.resaltaParejas(true);
        EXPECT_EQ(resaltes(), QStringList({"6-7", "1-2"}));
        pulsa(Qt::Key_Left);
        EXPECT_EQ(resaltes(), QStringList({"5-6", "3-4"}));
        pulsa(Qt::Key_Home);
        EXPECT_EQ(resaltes(), QStringList());
        editor.resaltaParejas(false);
        EXPECT_EQ(resaltes(), QStringList());
    }
    editor.resaltaParejas(true);
    editor.Text("(\n");
    EXPECT_EQ(resaltes(), QStringList{"0-1"}); // alone
}

/// Until another thread has read a long one, brackets of two colours do not belong together.
TEST_F(AyudasDeVista, LaParejaDeUnTextoLargoPorSuColor) {
    editor.control().SetComentarioLinea(u"'");
    editor.Text("( ) )\n" + (QString(100, 'a') + '\n').repeated(20'000));
    CajaTextoQt& caja = editor.caja();
    for (const std::int32_t lugar : {0, 4}) caja.pinta(lugar, 1, 0x800000);
    caja.pinta(2, 1, 0x008000);
    editor.SelStart(0);
    editor.resaltaParejas(true);
    EXPECT_EQ(resaltes(), QStringList({"0-1", "4-5"}));
    QTRY_COMPARE(resaltes(), QStringList({"0-1", "2-3"})); // none of them is in a comment
}

/// A bracket in a comment or a string belongs to none outside, whatever their colours are.
TEST_F(AyudasDeVista, UnaParejaNoSaleDeUnComentarioNiDeUnaCadena) {
    editor.resaltaParejas(true);
    for (const bool colorea : {false, true}) {
        editor.OlvidaLenguaje();
        editor.control().SetComentarioLinea(u"'");
        editor.control().SetER(u"\"[^\"]*\"", u"cadena", true, Norvik_Cadena); // of colour 0
        editor.Colorear(colorea);
        editor.coloreaAlEscribir(colorea);
        editor.Text("( ' )\n\"(\" \")\" \"[]\")");
        editor.SelStart(1);
        EXPECT_EQ(resaltes(), QStringList({"0-1", "18-19"}));
        editor.SelStart(5);
        EXPECT_EQ(resaltes(), QStringList{"4-5"}); // alone
        editor.SelStart(9);
        EXPECT_EQ(resaltes(), QStringList{"7-8"});
        editor.SelStart(18);
        EXPECT_EQ(resaltes(), QStringList({"16-17", "15-16"})); // of one string
        editor.SelStart(2);
        pulsa(Qt::Key_Delete); // no comment any more
        editor.SelStart(1);
        EXPECT_EQ(resaltes(), QStringList({"0-1", "3-4"}));
        editor.OlvidaLenguaje();
        editor.SelStart(12); // of the second string, which is none now
        EXPECT_EQ(resaltes(), QStringList({"10-11", "6-7"}));
    }
}

TEST_F(AyudasDeVista, ElZoomCambiaLoQueSeVeYNoLaFuente) {
    editor.Text("uno");
    const double normal = vista.font().pointSizeF();
    QSignalSpy avisos(&editor, &ControlNorvik::aumentoCambiado);
    gira(120, Qt::ControlModifier);
    pulsa(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(editor.aumento(), 100);
    for (int vez = 0; vez < 2; ++vez) {
        editor.permiteZoom(true);
        gira(120, Qt::ControlModifier);
        EXPECT_EQ(editor.aumento(), 110);
        EXPECT_NEAR(vista.font().pointSizeF(), 1.1 * normal, 0.01);
        EXPECT_EQ(editor.Font().pointSizeF(), normal);
        for (int i = 0; i < 8; ++i) gira(15, Qt::ControlModifier); // a finger
        EXPECT_EQ(editor.aumento(), 120);
        gira(-240, Qt::ControlModifier);
        gira(120, Qt::NoModifier);
        EXPECT_EQ(editor.aumento(), 100);
        pulsa(Qt::Key_Plus, Qt::ControlModifier);
        pulsa(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(editor.aumento(), 120);
        pulsa(Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_EQ(editor.aumento(), 110);
        pulsa(Qt::Key_0, Qt::ControlModifier);
        EXPECT_EQ(editor.aumento(), 100);
        EXPECT_EQ(editor.Text(), "uno");
        editor.permiteZoom(false);
        pulsa(Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_EQ(editor.aumento(), 100);
    }
    editor.aumento(200); // the host's own
    QCoreApplication::processEvents();
    EXPECT_GE(avisos.count(), 1);
    editor.Font(QFont("Monospace", 20));
    EXPECT_NEAR(vista.font().pointSizeF(), 40, 0.01);
    for (const auto& [pedido, queda] : {std::pair{5, 30}, {9999, 500}}) {
        editor.setProperty("aumento", pedido);
        EXPECT_EQ(editor.aumento(), queda);
    }
    QMetaObject::invokeMethod(&editor, "tamanoNormal");
    EXPECT_EQ(vista.font().pointSizeF(), 20);
    editor.permiteZoom(true);
    editor.Text(QString(500, '\n'));
    gira(-240, Qt::ControlModifier);
    EXPECT_EQ(vista.verticalScrollBar()->value(), 0); // the wheel does one thing
}

/// Where nothing can be edited Qt's own editor would change its size, asked or not.
TEST_F(AyudasDeVista, DeSoloLecturaNoHaceZoomSinPermiso) {
    editor.soloLectura(true);
    const double normal = vista.font().pointSizeF();
    gira(120, Qt::ControlModifier);
    EXPECT_EQ(vista.font().pointSizeF(), normal);
}

/// The window holds some lines, and the highlights that it is given are those of them.
TEST_F(AyudasDeVista, SoloSeResaltaLoQueSeVe) {
    editor.Text(QString(5000, u'\n').replace("\n", "abc\n"));
    std::vector<Diagnostico> todos;
    todos.reserve(5000);
    for (int i = 0; i < 5000; ++i)
        todos.push_back({Codigo::TokenInesperado, Gravedad::Error, {{5 * i}, {5 * i + 3}}, {}});
    editor.ponDiagnosticos(todos);
    const auto seVen = [&] { return resaltes().size(); };
    EXPECT_GT(seVen(), 3);
    EXPECT_LT(seVen(), 40);
    const QString primero = resaltes().front();
    editor.irA({{5 * 3000}, {5 * 3000}});
    EXPECT_NE(resaltes().front(), primero);
    EXPECT_LT(seVen(), 40);
    EXPECT_TRUE(resaltes().contains("12000-12003"));
}

/// A table has conflicts by the ten thousands, of a few rules: each would be one cursor and one wave more.
TEST_F(AyudasDeVista, MilesDeUnLugarSeVenComoElPeorYSeCuentan) {
    editor.Text("abc def");
    std::vector<Diagnostico> todos(20'000, {Codigo::TokenInesperado, Gravedad::Aviso, {{0}, {3}}, {}});
    todos[19'998].gravedad = Gravedad::Error;
    todos.push_back({Codigo::TokenInesperado, Gravedad::Nota, {{4}, {7}}, {}});
    editor.ponDiagnosticos(todos);
    EXPECT_EQ(resaltes(), QStringList({"0-3", "4-7"}));
    const QColor visto = vista.extraSelections().constFirst().format.underlineColor();
    editor.ponDiagnosticos({todos[19'998]});
    EXPECT_EQ(resaltes(), QStringList("0-3"));
    EXPECT_EQ(vista.extraSelections().constFirst().format.underlineColor(), visto);
    editor.ponDiagnosticos(todos);
    auto& margen = *editor.findChild<QWidget*>("margenDeLineas");
    for (QWidget* const donde : {vista.viewport(), &margen}) {
        QHelpEvent pide(QEvent::ToolTip, {6, 6}, donde->mapToGlobal(QPoint(6, 6)));
        QApplication::sendEvent(donde, &pide);
        const QString ayuda = QToolTip::text();
        EXPECT_EQ(ayuda.count("<br>"), 20);
        EXPECT_TRUE(ayuda.contains(donde == &margen ? "… y otros 19981" : "… y otros 19980"))
            << ayuda.right(80).toStdString();
    }
    EXPECT_EQ(margen.accessibleName(), "1 error, 19999 avisos, 1 nota");
}

/// What opens below takes a part of its room.
TEST_F(AyudasDeVista, LaLineaQueSeEscribeSigueALaVista) {
    editor.Text(QString(100, u'\n').replace("\n", "abc\n"));
    const auto deAlto = [&](int alto) {
        editor.resize(400, alto);
        QCoreApplication::processEvents();
    };
    for (const int linea : {2, 60}) {
        deAlto(200);
        editor.caja().selecciona(editor.caja().inicioDeLinea(linea), 0);
        vista.ensureCursorVisible();
        deAlto(60);
        EXPECT_TRUE(vista.viewport()->rect().contains(vista.cursorRect()));
    }
    deAlto(200);
    vista.verticalScrollBar()->setValue(10);
    deAlto(60);
    EXPECT_EQ(vista.verticalScrollBar()->value(), 10); // it was not seen before either
}
