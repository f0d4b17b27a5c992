// SPDX-License-Identifier: MIT

// What a teacher does in the language window, from end to end and by keys alone. Each key counts as a step:
// a walk that takes more of them than before is a worse one.
#include "taller/dialogosGuion.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "lenguaje/ventanaLenguaje.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

using namespace norvik;
using namespace norvik::taller;

namespace {

struct PaseoTest : testing::Test {
    void empieza(std::u16string_view especificacion, std::u16string_view texto) {
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
        ventana.empieza(especificacion, texto);
        ventana.especificacion().norvik().setFocus();
        espera();
    }
    void espera() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return ventana.seguimiento().completo(); }));
        QApplication::processEvents();
    }
    /// Until the repair is done, and what it did is known.
    void esperaElArreglo() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !ventana.seguimiento().alDia(); }));
        espera();
    }
    /// Where the person is, as keys go to it.
    void tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
        ++pasos;
        QWidget* const enfocado = QApplication::focusWidget();
        QTest::keyClick(enfocado != nullptr ? enfocado : &ventana, tecla, con);
        QApplication::processEvents();
    }
    void aLaHistoria() {
        tecla(Qt::Key_3, Qt::ControlModifier);
        for (const Qt::Key k : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) tecla(k);
        ASSERT_TRUE(QTest::qWaitFor([&] { return ventana.conflicto().palabras().contains("Qué hacer: "); }));
        QApplication::processEvents(); // the buttons show themselves
    }
    std::string primero() {
        const QTreeWidgetItem* const suyo = ventana.problemas().lista().topLevelItem(0)->child(0);
        return suyo == nullptr ? std::string() : suyo->text(0).toStdString();
    }
    std::string problemas() { return ventana.problemas().lista().topLevelItem(0)->text(0).toStdString(); }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat};
    VentanaLenguaje ventana{sistema, dialogos, ajustes};
    int pasos = 0;
};

} // namespace

TEST_F(PaseoTest, UnSinoColganteSeVeSeExplicaYSeCura) {
    empieza(u"'% metodo: lalr\r\nToken si = \"si\";\r\nToken no = \"no\";\r\nToken a = \"a\";\r\n"
            u"S -> si S | si S no S | a;\r\n",
            u"si si a no a");
    EXPECT_EQ(problemas(), "Especificación: 1");
    aLaHistoria();
    EXPECT_TRUE(ventana.conflicto().palabras().contains("si si S • no S"))
        << ventana.conflicto().palabras().toStdString();
    tecla(Qt::Key_1, Qt::AltModifier);
    esperaElArreglo();
    EXPECT_TRUE(primero().starts_with("Nota: Conflicto")) << primero(); // it is meant
    EXPECT_TRUE(ventana.especificacion().texto().starts_with(u"'% metodo: lalr\r\n'% conflictos: 1\r\n"));
    EXPECT_EQ(pasos, 5);
}

TEST_F(PaseoTest, UnaGramaticaDeExpresionesLlegaALaPrioridad) {
    empieza(u"'% metodo: lalr\r\nToken num = \"[0-9]+\";\r\nToken mas = \"\\+\";\r\nToken por = \"\\*\";\r\n"
            u"E -> E mas E | E por E | num;\r\n",
            u"1+2*3");
    EXPECT_EQ(problemas(), "Especificación: 4");
    aLaHistoria();
    tecla(Qt::Key_Down); // the second one is of both operators
    tecla(Qt::Key_2, Qt::AltModifier);
    esperaElArreglo();
    EXPECT_EQ(problemas(), "Especificación: ningún problema");
    EXPECT_TRUE(ventana.especificacion().texto().starts_with(
        u"'% metodo: lalr\r\n'% izquierda: mas\r\n'% izquierda: por\r\n"));
    EXPECT_EQ(pasos, 6);
}

TEST_F(PaseoTest, UnTokenMalEscritoSeArreglaEnProblemas) {
    empieza(
        u"'% metodo: lalr\r\nToken num = \"[0-9]+\";\r\nToken mas = \"\\+\";\r\nE -> E mas nunm | nunm;\r\n",
        u"1+2");
    tecla(Qt::Key_3, Qt::ControlModifier);
    for (const Qt::Key k : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) tecla(k);
    esperaElArreglo();
    EXPECT_TRUE(ventana.especificacion().texto().ends_with(u"E -> E mas num | nunm;\r\n"));
    tecla(Qt::Key_3, Qt::ControlModifier);
    for (const Qt::Key k : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) tecla(k);
    esperaElArreglo();
    EXPECT_EQ(problemas(), "Especificación: ningún problema");
    EXPECT_TRUE(ventana.arbol().vista().model()->rowCount() > 0);
    EXPECT_EQ(pasos, 9);
}
