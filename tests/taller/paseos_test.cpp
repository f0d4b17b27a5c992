// SPDX-License-Identifier: MIT

// What a teacher does, from the start page to the end: by keys alone, and once by the mouse alone. Each key
// and each click counts as a step, a text that is pasted as one: a walk that takes more of them than before
// is a worse one.
#include "taller/dialogosGuion.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "ventanaPrincipal.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

using namespace norvik;
using namespace norvik::taller;

namespace {

struct PaseoTest : testing::Test {
    PaseoTest() {
        taller.muestraInicioSiSeQuiere();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&taller));
    }
    VentanaLenguaje& ventana() { return taller.ventanaLenguaje(); }
    /// Until what was done is known.
    void espera() {
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return ventana().seguimiento().completo() && !ventana().mostrando(); }));
        QApplication::processEvents();
    }
    void esperaElArreglo() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !ventana().seguimiento().alDia(); }));
        espera();
    }
    std::string primero() {
        const QTreeWidgetItem* const suyo = ventana().problemas().lista().topLevelItem(0)->child(0);
        return suyo == nullptr ? std::string() : suyo->text(0).toStdString();
    }
    std::string problemas() { return ventana().problemas().lista().topLevelItem(0)->text(0).toStdString(); }

    // ---- by keys

    /// Where the person is, as keys go to it.
    void tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
        ++pasos;
        QWidget* const enfocado = QApplication::focusWidget();
        ASSERT_NE(enfocado, nullptr);
        QTest::keyClick(enfocado, tecla, con);
        QApplication::processEvents();
    }
    void pega(const char* texto) {
        QApplication::clipboard()->setText(QString::fromUtf8(texto));
        QApplication::processEvents(); // there is something to paste
        tecla(Qt::Key_V, Qt::ControlModifier);
    }
    /// A new language, and a text.
    void escribe(const char* especificacion, const char* texto) {
        tecla(Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana()));
        pega(especificacion);
        tecla(Qt::Key_2, Qt::ControlModifier);
        pega(texto);
        espera();
    }
    void aLaHistoria() {
        tecla(Qt::Key_3, Qt::ControlModifier);
        for (const Qt::Key k : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) tecla(k);
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return ventana().conflicto().palabras().contains("Qué hacer: "); }));
        QApplication::processEvents(); // the buttons show themselves
    }

    // ---- by the mouse

    void clic(QWidget& donde, const QPoint& punto) {
        ++pasos;
        QTest::mouseClick(&donde, Qt::LeftButton, {}, punto);
        QApplication::processEvents();
    }
    void clic(QWidget& donde) { clic(donde, donde.rect().center()); }
    void menu(const QString& cabeza, const QString& orden) {
        QMenuBar& barra = *ventana().menuBar();
        for (QAction* const suya : barra.actions()) {
            if (suya->text() != cabeza) continue;
            clic(barra, barra.actionGeometry(suya).center());
            for (QAction* const accion : suya->menu()->actions())
                if (accion->text() == orden)
                    return clic(*suya->menu(), suya->menu()->actionGeometry(accion).center());
        }
        FAIL() << orden.toStdString();
    }
    void pegaConRaton(EditorTexto& editor, const char* texto) {
        QApplication::clipboard()->setText(QString::fromUtf8(texto));
        clic(*static_cast<QAbstractScrollArea&>(editor.norvik().caja().ventana()).viewport());
        menu("&Edición", "&Pegar");
    }
    void clicEnFila(const QString& comienzo) {
        QTreeWidget& lista = ventana().problemas().lista();
        const auto filas = lista.findItems(comienzo, Qt::MatchStartsWith | Qt::MatchRecursive);
        ASSERT_FALSE(filas.isEmpty()) << comienzo.toStdString();
        lista.scrollToItem(filas.first());
        clic(*lista.viewport(), lista.visualItemRect(filas.first()).center());
    }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat};
    VentanaPrincipal taller{{sistema, dialogos, ajustes, {}}};
    int pasos = 0;
};

constexpr const char* mistecleada =
    "Token num = \"[0-9]+\";\nToken mas = \"\\+\";\nE -> E mas nunm | nunm;\n";
constexpr std::u16string_view tecleada = u"E -> E mas num | num;\r\n";

} // namespace

TEST_F(PaseoTest, UnSinoColganteSeVeSeExplicaYSeCura) {
    escribe("Token si = \"si\";\nToken no = \"no\";\nToken a = \"a\";\nS -> si S | si S no S | a;\n",
            "si si a no a");
    aLaHistoria();
    EXPECT_TRUE(ventana().conflicto().palabras().contains("si si S • no S"))
        << ventana().conflicto().palabras().toStdString();
    tecla(Qt::Key_1, Qt::AltModifier);
    esperaElArreglo();
    EXPECT_TRUE(primero().starts_with("Nota: Conflicto")) << primero(); // it is meant
    EXPECT_EQ(problemas(), "Especificación: 1");
    EXPECT_TRUE(ventana().especificacion().texto().starts_with(u"'% metodo: lalr\r\n'% conflictos: 1\r\n"));
    EXPECT_EQ(pasos, 9);
}

TEST_F(PaseoTest, UnaGramaticaDeExpresionesLlegaALaPrioridad) {
    escribe("Token num = \"[0-9]+\";\nToken mas = \"\\+\";\nToken por = \"\\*\";\n"
            "E -> E mas E | E por E | num;\n",
            "1+2*3");
    EXPECT_EQ(problemas(), "Especificación: 4");
    aLaHistoria();
    tecla(Qt::Key_Down); // the second one is of both operators
    tecla(Qt::Key_2, Qt::AltModifier);
    esperaElArreglo();
    EXPECT_EQ(problemas(), "Especificación: ningún problema");
    EXPECT_TRUE(ventana().especificacion().texto().starts_with(
        u"'% metodo: lalr\r\n'% izquierda: mas\r\n'% izquierda: por\r\n"));
    EXPECT_EQ(pasos, 10);
}

TEST_F(PaseoTest, UnTokenMalEscritoSeArregla) {
    escribe(mistecleada, "1+2");
    tecla(Qt::Key_Period, Qt::ControlModifier);
    esperaElArreglo();
    EXPECT_TRUE(ventana().especificacion().texto().ends_with(tecleada));
    EXPECT_EQ(problemas(), "Especificación: ningún problema");
    EXPECT_TRUE(ventana().arbol().vista().model()->rowCount() > 0);
    EXPECT_EQ(pasos, 5);
}

TEST_F(PaseoTest, ConElRatonSolo) {
    for (auto* const boton : taller.inicio().findChildren<QCommandLinkButton*>())
        if (boton->text() == "Vacío") clic(*boton);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana()));
    pegaConRaton(ventana().especificacion(), mistecleada);
    pegaConRaton(ventana().texto(), "1+2");
    espera();
    clicEnFila("Arreglar: escriba num en los 2 lugares");
    esperaElArreglo();
    EXPECT_TRUE(ventana().especificacion().texto().ends_with(tecleada));
    EXPECT_EQ(problemas(), "Especificación: ningún problema");
    EXPECT_TRUE(ventana().arbol().vista().model()->rowCount() > 0);
    EXPECT_EQ(pasos, 8);
}
