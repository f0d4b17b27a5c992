// SPDX-License-Identifier: MIT

// The find bar and the actions of a control, as a person uses them.
#include "norvik/control/estadoBusqueda.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <memory>

using namespace norvik;

namespace {

void borraYa(QObject* objeto) {
    const std::unique_ptr<QObject> suyo(objeto);
}

struct Busca : testing::Test {
    Busca() {
        estadoBusqueda() = {};
        norvik->setGeometry(0, 0, 400, 200);
        formulario.show();
        QApplication::setActiveWindow(&formulario);
        norvik->setFocus();
        norvik->Text("ab Ab cabo a.b");
    }
    QPlainTextEdit& editor() const { return static_cast<QPlainTextEdit&>(norvik->caja().ventana()); }
    QWidget& barra() const { return *norvik->findChild<QWidget*>("barraDeBusqueda"); }
    bool hayBarra() const {
        return norvik->findChild<QWidget*>("barraDeBusqueda") != nullptr && barra().isVisible();
    }
    QLineEdit& campo() const { return *norvik->findChild<QLineEdit*>("campo"); }
    /// What the bar says, once it is what is expected, or after a long time.
    QString cuenta(const QString& esperada) const {
        const auto& rotulo = *norvik->findChild<QLabel*>("cuenta");
        static_cast<void>(QTest::qWaitFor([&] { return rotulo.text() == esperada; }, 3000));
        EXPECT_EQ(rotulo.accessibleName(), rotulo.text());
        return rotulo.text();
    }
    /// A key for whoever has the focus; shortcuts are those of the window.
    static void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), tecla, teclas);
    }
    QString seleccion() const {
        const QString texto = norvik->Text();
        const int inicio = norvik->property("SelStart").toInt();
        return texto.mid(inicio > 20 ? inicio : 0, inicio > 20 ? 0 : inicio) + '[' + norvik->SelText() + ']';
    }

    QWidget formulario;
    SistemaDePrueba sistema;
    QPointer<ControlNorvik> norvik = &nuevo<ControlNorvik>(sistema, &formulario);
};

} // namespace

TEST_F(Busca, MientrasSeEscribe) {
    const int alto = editor().height();
    pulsa(Qt::Key_F, Qt::ControlModifier); // left to the host
    EXPECT_FALSE(hayBarra());
    for (int vez = 0; vez < 2; ++vez) {
        norvik->setProperty("barraDeBusqueda", true);
        norvik->SelStart(0);
        pulsa(Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(hayBarra());
        EXPECT_TRUE(campo().hasFocus());
        EXPECT_LE(editor().geometry().bottom(), barra().geometry().top());
        campo().clear();
        QTest::keyClicks(&campo(), "ab");
        EXPECT_EQ(cuenta("1 de 3"), "1 de 3");
        EXPECT_EQ(seleccion(), "[ab]");
        pulsa(Qt::Key_Return);
        EXPECT_EQ(cuenta("2 de 3"), "2 de 3");
        pulsa(Qt::Key_F3);
        EXPECT_EQ(cuenta("3 de 3"), "3 de 3");
        EXPECT_EQ(seleccion(), "ab Ab c[ab]");
        pulsa(Qt::Key_F3);
        EXPECT_EQ(cuenta("1 de 3, desde el principio"), "1 de 3, desde el principio");
        pulsa(Qt::Key_Return, Qt::ShiftModifier);
        EXPECT_EQ(cuenta("3 de 3, desde el final"), "3 de 3, desde el final");
        QTest::keyClicks(&campo(), "z");
        EXPECT_EQ(cuenta("Sin resultados"), "Sin resultados");
        EXPECT_EQ(seleccion(), "ab Ab c[ab]");
        pulsa(Qt::Key_Backspace);
        pulsa(Qt::Key_Escape);
        EXPECT_FALSE(hayBarra());
        EXPECT_TRUE(editor().hasFocus());
        pulsa(Qt::Key_F3, Qt::ShiftModifier); // without leaving the text
        EXPECT_EQ(cuenta("2 de 3"), "2 de 3");
        EXPECT_TRUE(editor().hasFocus());
        norvik->setProperty("barraDeBusqueda", false);
        EXPECT_FALSE(hayBarra());
        EXPECT_EQ(editor().height(), alto);
    }
}

TEST_F(Busca, TodoLoHalladoResalta) {
    const auto resaltes = [&] {
        QCoreApplication::processEvents();
        QString todos;
        for (const auto& s : editor().extraSelections())
            todos += QString::number(s.cursor.selectionStart()) + ' ';
        return todos;
    };
    norvik->barraDeBusqueda(true);
    for (int vez = 0; vez < 2; ++vez) {
        pulsa(Qt::Key_F, Qt::ControlModifier);
        campo().setText("ab");
        QTRY_COMPARE(resaltes(), QStringLiteral("0 3 7 "));
        editor().setFocus();
        pulsa(Qt::Key_Home);
        QTest::keyClicks(&editor(), "x");
        EXPECT_EQ(resaltes(), ""); // another text is searched first
        QTRY_COMPARE(resaltes(), QStringLiteral("1 4 8 "));
        campo().setFocus();
        pulsa(Qt::Key_Escape);
        EXPECT_EQ(resaltes(), "");
        norvik->Text("ab Ab cabo a.b");
    }
}

TEST_F(Busca, Opciones) {
    struct Caso {
        const char* texto;
        const char* opciones;
        const char* cuenta;
    };
    norvik->barraDeBusqueda(true);
    norvik->accion(AccionNorvik::Buscar)->trigger();
    const Caso casos[] = {
        {"a.b", "", "1 de 1"},
        {"a.", "expresion", "1 de 4"},
        {"ab", "mayusculas", "1 de 2"},
        {"ab", "palabras", "1 de 2"},
        {"(", "", "Sin resultados"},
        {"(", "expresion", "Expresión incorrecta"},
        {"a)(b", "expresion palabras", "Expresión incorrecta"},
        {"x*", "expresion", "Sin resultados"},
        {"ab|cabo", "expresion palabras", "1 de 3"},
    };
    for (const auto& [texto, opciones, esperada] : casos) {
        for (const char* opcion : {"mayusculas", "palabras", "expresion"})
            barra().findChild<QToolButton*>(opcion)->setChecked(QByteArray(opciones).contains(opcion));
        campo().clear();
        QTest::keyClicks(&campo(), texto);
        EXPECT_EQ(cuenta(QString(esperada)), QString(esperada));
    }
}

TEST_F(Busca, ElTextoCambiaConLaBarraAbierta) {
    norvik->barraDeBusqueda(true);
    norvik->SelLength(2);
    norvik->accion(AccionNorvik::Buscar)->trigger();
    EXPECT_EQ(campo().text(), "ab"); // what was selected
    EXPECT_EQ(cuenta("1 de 3"), "1 de 3");
    norvik->setFocus();
    QTest::keyClicks(&editor(), "ab ab");
    EXPECT_EQ(cuenta("4 resultados"), "4 resultados");
    norvik->Text("");
    EXPECT_EQ(cuenta("Sin resultados"), "Sin resultados");
    pulsa(Qt::Key_F3);
}

TEST_F(Busca, UnaSolaDaVueltasSinCrecer) {
    norvik->barraDeBusqueda(true);
    norvik->accion(AccionNorvik::Buscar)->trigger();
    QTest::keyClicks(&campo(), "cabo");
    EXPECT_EQ(cuenta("1 de 1"), "1 de 1");
    for (int vez = 0; vez < 3; ++vez) {
        pulsa(Qt::Key_Return, vez == 2 ? Qt::ShiftModifier : Qt::NoModifier);
        QCoreApplication::processEvents();
        const QString dada = vez == 2 ? "1 de 1, desde el final" : "1 de 1, desde el principio";
        EXPECT_EQ(cuenta(dada), dada);
    }
}

/// What the host chose while the bar was there is what holds.
TEST_F(Busca, LaSeleccionSeOcultaComoDigaLaPropiedad) {
    norvik->barraDeBusqueda(true);
    for (const bool oculta : {false, true}) {
        norvik->accion(AccionNorvik::Buscar)->trigger();
        EXPECT_FALSE(norvik->caja().ocultaSeleccion());
        norvik->HideSelection(oculta);
        pulsa(Qt::Key_Escape);
        EXPECT_EQ(norvik->caja().ocultaSeleccion(), oculta);
    }
}

/// A pattern counts units, a person characters.
TEST_F(Busca, UnCaracterNoSeParte) {
    norvik->Text(QString::fromUtf8("a\xF0\x9F\x98\x80\xF0\x9F\x98\x81"));
    norvik->barraDeBusqueda(true);
    norvik->accion(AccionNorvik::Buscar)->trigger();
    barra().findChild<QToolButton*>("expresion")->setChecked(true);
    QTest::keyClicks(&campo(), ".");
    EXPECT_EQ(cuenta("1 de 3"), "1 de 3");
    for (const int longitud : {2, 2, 1, 2}) {
        pulsa(Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_EQ(norvik->SelLength(), longitud);
    }
    campo().setText("..");
    EXPECT_EQ(cuenta("2 de 2"), "2 de 2");
    EXPECT_EQ(norvik->SelLength(), 2); // what the match before it left
    pulsa(Qt::Key_Return);
    EXPECT_EQ(cuenta("1 de 2, desde el principio"), "1 de 2, desde el principio");
    EXPECT_EQ(norvik->SelLength(), 3);
}

/// The last match stands on the last line, where the bar would be.
TEST_F(Busca, LoHalladoSeVe) {
    QString texto;
    for (int i = 0; i < 300; ++i) texto += QStringLiteral("linea\n");
    norvik->Text(texto + "fin");
    norvik->barraDeBusqueda(true);
    norvik->accion(AccionNorvik::Buscar)->trigger();
    QTest::keyClicks(&campo(), "fin");
    EXPECT_EQ(cuenta("1 de 1"), "1 de 1");
    QTest::qWait(10);
    EXPECT_TRUE(editor().viewport()->rect().contains(editor().cursorRect()));
    EXPECT_LE(editor().geometry().bottom(), barra().geometry().top());
}

/// A pattern that would take minutes holds no key, and is given up with the bar.
TEST_F(Busca, LoLargoNoDetieneLasTeclas) {
    norvik->Text(QString(200000, 'a'));
    norvik->barraDeBusqueda(true);
    norvik->accion(AccionNorvik::Buscar)->trigger();
    barra().findChild<QToolButton*>("expresion")->setChecked(true);
    QElapsedTimer reloj;
    reloj.start();
    QTest::keyClicks(&campo(), "(a*)*\\1b");
    norvik->setFocus();
    QTest::keyClicks(&editor(), "x");
    EXPECT_LT(reloj.elapsed(), 1000);
    EXPECT_EQ(norvik->Text().left(2), "xa");
    norvik->barraDeBusqueda(false);
    EXPECT_LT(reloj.elapsed(), 1000);
}

/// A receiver deletes the control while it is searched, by whatever key.
TEST_F(Busca, ElControlSeBorraAlHallar) {
    const Qt::Key teclas[] = {Qt::Key_A, Qt::Key_Return, Qt::Key_F3, Qt::Key_Escape};
    for (const Qt::Key tecla : teclas) {
        if (norvik.isNull()) norvik = &nuevo<ControlNorvik>(sistema, &formulario);
        norvik->Text("x a a a");
        norvik->barraDeBusqueda(true);
        norvik->show();
        norvik->setFocus();
        norvik->accion(AccionNorvik::Buscar)->trigger();
        if (tecla != Qt::Key_A) {
            QTest::keyClicks(&campo(), "a");
            EXPECT_EQ(cuenta("1 de 3"), "1 de 3");
        }
        QObject::connect(norvik, &ControlNorvik::SelChange, norvik, [this] { borraYa(norvik); });
        QTest::keyClick(&campo(), tecla);
        if (tecla == Qt::Key_Escape) continue;
        EXPECT_TRUE(QTest::qWaitFor([&] { return norvik.isNull(); })) << tecla;
    }
}

// ---- actions

TEST_F(Busca, LasAccionesHacenYSeActivan) {
    const auto activas = [&] {
        QCoreApplication::processEvents();
        QString todas;
        for (int i = 0; i <= static_cast<int>(AccionNorvik::IrALinea); ++i) {
            QAction* const accion = norvik->accion(static_cast<AccionNorvik>(i));
            if (accion->isEnabled()) todas += accion->objectName() + ' ';
        }
        return todas;
    };
    const QString siempre = "buscar buscarSiguiente buscarAnterior reemplazar irALinea ";
    for (int i = 0; i < numeroDeAcciones; ++i) // the text knows the others itself
        for (const QKeySequence& tecla : norvik->accion(static_cast<AccionNorvik>(i))->shortcuts())
            EXPECT_TRUE(tecla[0].keyboardModifiers().testFlag(Qt::ControlModifier) ||
                        tecla[0].key() == Qt::Key_F3)
                << tecla.toString().toStdString();
    QApplication::clipboard()->clear();
    norvik->Text("");
    norvik->control().InicializaUndosYRedos();
    EXPECT_EQ(activas(), siempre);
    norvik->deshacePorPalabras(true);
    QTest::keyClicks(&editor(), "uno");
    EXPECT_EQ(activas(), "deshacer seleccionarTodo " + siempre);
    pulsa(Qt::Key_A, Qt::ControlModifier); // they are bound once they have been asked for
    EXPECT_EQ(activas(), "deshacer cortar copiar seleccionarTodo " + siempre);
    pulsa(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(norvik->Text(), "");
    EXPECT_EQ(activas(), "deshacer pegar " + siempre);
    pulsa(Qt::Key_V, Qt::ControlModifier);
    pulsa(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(norvik->Text(), "unouno");
    pulsa(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(norvik->Text(), "uno");
    EXPECT_EQ(activas(), "deshacer rehacer pegar seleccionarTodo " + siempre);
    pulsa(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(norvik->Text(), "unouno");
    pulsa(Qt::Key_Z, Qt::ControlModifier);
    pulsa(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(norvik->Text(), "unouno");
    EXPECT_EQ(norvik->accion(AccionNorvik::Copiar), norvik->accion(AccionNorvik::Copiar));
}

TEST_F(Busca, IrALinea) {
    norvik->Text("a\nb\nc");
    sistema.usos.emplace_back([&](QWidget& ventana) {
        EXPECT_EQ(ventana.objectName(), "irALinea");
        static_cast<QInputDialog&>(ventana).setIntValue(3);
        static_cast<QInputDialog&>(ventana).accept();
    });
    sistema.usos.emplace_back([&](QWidget& ventana) {
        EXPECT_EQ(static_cast<QInputDialog&>(ventana).intValue(), 3);
        static_cast<QInputDialog&>(ventana).reject();
    });
    sistema.usos.emplace_back([&](QWidget&) { borraYa(norvik); });
    norvik->accion(AccionNorvik::IrALinea)->trigger();
    EXPECT_EQ(norvik->SelStart(), 6);
    norvik->accion(AccionNorvik::IrALinea)->trigger();
    EXPECT_EQ(norvik->SelStart(), 6);
    norvik->accion(AccionNorvik::IrALinea)->trigger();
    EXPECT_TRUE(norvik.isNull());
}

/// Two controls in one window: the keys are those of the one that has the focus.
TEST_F(Busca, CadaControlTieneLasSuyas) {
    ControlNorvik otro(sistema, &formulario);
    otro.setGeometry(0, 200, 400, 100);
    otro.show();
    for (ControlNorvik* n : {norvik.data(), &otro}) {
        n->accion(AccionNorvik::SeleccionarTodo);
        n->Text("abc");
    }
    QCoreApplication::processEvents();
    otro.setFocus();
    pulsa(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(otro.SelText(), "abc");
    EXPECT_EQ(norvik->SelText(), "");
}

/// Without a bar: the dialog, and what it looked for last.
TEST_F(Busca, SinBarraBuscaComoElDialogo) {
    QAction* const siguiente = norvik->accion(AccionNorvik::BuscarSiguiente);
    estadoBusqueda().ultimaBusqueda = u"ab";
    siguiente->trigger();
    EXPECT_EQ(norvik->SelStart(), 3);
    siguiente->trigger();
    EXPECT_EQ(norvik->SelStart(), 7);
    norvik->accion(AccionNorvik::BuscarAnterior)->trigger();
    EXPECT_EQ(norvik->SelStart(), 3);
    EXPECT_FALSE(hayBarra());
}
