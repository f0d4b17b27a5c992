// SPDX-License-Identifier: MIT

// The control on a form: what is typed, clicked and shown.
#include "norvik/base/errores.hpp"
#include "norvik/control/historial.hpp"
#include "norvik/control/tablaPropiedades.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace norvik;

namespace {

class ControlNorvikTest : public testing::Test {
protected:
    ControlNorvikTest() {
        formulario.resize(400, 260);
        antes.setGeometry(0, 0, 80, 25);
        norvik.setGeometry(0, 30, 400, 200);
        despues.setGeometry(0, 232, 80, 25);
        formulario.show();
        QApplication::setActiveWindow(&formulario);
        norvik.setFocus();
        Norvik& c = norvik.control();
        c.SetPalabraReservada(u"si");
        c.SetER(u"[0-9]+", u"num", true, Norvik_Numero);
        c.Colorear(true);
    }
    template <typename Tipo = QWidget>
    Tipo* elemento(const char* nombre) {
        return norvik.findChild<Tipo*>(QLatin1String(nombre));
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(&editor, tecla, teclas);
    }
    std::u16string texto() { return norvik.control().Text(); }
    /// Of each character of a line the editor's colour, as "p" plain, "r" reserved word, "n" number, "e"
    /// error.
    std::string colores(int linea) {
        QCoreApplication::processEvents();
        const QTextBlock bloque = editor.document()->findBlockByNumber(linea);
        std::string vistos(static_cast<std::size_t>(bloque.length() - 1), 'p');
        for (const auto& f : bloque.layout()->formats()) {
            const QColor c = f.format.foreground().color();
            const char letra = c == aQColor(norvik.ColorPR())        ? 'r'
                               : c == aQColor(norvik.ColorNumeros()) ? 'n'
                                                                     : 'e';
            vistos.replace(static_cast<std::size_t>(f.start), static_cast<std::size_t>(f.length),
                           static_cast<std::size_t>(f.length), letra);
        }
        return vistos;
    }

    QWidget formulario;
    QPushButton antes{&formulario};
    SistemaDePrueba sistema;
    ControlNorvik norvik{sistema, &formulario};
    QPushButton despues{&formulario};
    QPlainTextEdit& editor = static_cast<QPlainTextEdit&>(norvik.caja().ventana());
};

} // namespace

TEST_F(ControlNorvikTest, LaLineaSeColoreaAlDejarla) {
    QTest::keyClicks(&editor, "si 12 x");
    EXPECT_EQ(colores(0), "ppppppp");
    pulsa(Qt::Key_Return);
    EXPECT_EQ(colores(0), "rrpnnpp");
    QTest::keyClicks(&editor, "3");
    pulsa(Qt::Key_Up);
    EXPECT_EQ(colores(1), "n");
    QTest::keyClicks(&editor, "y");
    EXPECT_EQ(colores(0), "pppppppp");
    EXPECT_EQ(texto(), u"syi 12 x\r\n3");
}

TEST_F(ControlNorvikTest, SangriaDeRetornoYTabulador) {
    pulsa(Qt::Key_Tab);
    EXPECT_TRUE(editor.hasFocus());
    EXPECT_EQ(texto(), u"    ");
    QTest::keyClicks(&editor, "a");
    pulsa(Qt::Key_Return);
    EXPECT_EQ(texto(), u"    a\r\n    ");
    norvik.EspaciosXTAB(2);
    norvik.control().SelStart(4);
    norvik.control().SelLength(1);
    pulsa(Qt::Key_Tab);
    EXPECT_EQ(texto(), u"      \r\n    ");
    EXPECT_EQ(norvik.SelStart(), 6);
}

TEST_F(ControlNorvikTest, ElFocoEntraYSaleConElTeclado) {
    antes.setFocus();
    QTest::keyClick(&antes, Qt::Key_Tab);
    EXPECT_TRUE(editor.hasFocus());
    pulsa(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(despues.hasFocus());
    QTest::keyClick(&despues, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(editor.hasFocus());
    pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(antes.hasFocus());
    EXPECT_EQ(texto(), u"");
}

TEST_F(ControlNorvikTest, PegarDosLineasLasColorea) {
    QApplication::clipboard()->setText("si 1\nno 2");
    pulsa(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(texto(), u"si 1\r\nno 2");
    EXPECT_EQ(colores(0), "rrpn");
    pulsa(Qt::Key_V, Qt::ControlModifier);
    pulsa(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(texto(), u"si 1\r\nno 2");
}

TEST_F(ControlNorvikTest, LoCompuestoEsLoEscrito) {
    norvik.control().Text(u"si 12");
    norvik.control().ColoreaTodo();
    norvik.control().SelStart(5);
    const auto compone = [&](const char* aMedias, const char* hecho) {
        QInputMethodEvent evento(aMedias, {});
        evento.setCommitString(hecho);
        QApplication::sendEvent(&editor, &evento);
    };
    const auto& undos = norvik.control().historial().undos();
    const auto cuantas = undos.cuantas();
    for (const char* const aMedias : {"3", ""}) compone(aMedias, "");
    EXPECT_EQ(colores(0), "rrpnn"); // it was given up
    compone("3", "");
    EXPECT_EQ(texto(), u"si 12");
    EXPECT_EQ(undos.cuantas(), cuantas);
    compone("", "34");
    EXPECT_EQ(texto(), u"si 1234");
    EXPECT_EQ(colores(0), "ppppppp");
    EXPECT_EQ(undos.cuantas(), cuantas + 1);
    pulsa(Qt::Key_Return);
    EXPECT_EQ(colores(0), "rrpnnnn");
    norvik.control().Undo();
    norvik.control().Undo();
    EXPECT_EQ(editor.toPlainText(), "si 12");
}

TEST_F(ControlNorvikTest, DeshacerDesdeElTeclado) {
    QTest::keyClicks(&editor, "abc");
    norvik.control().Undo();
    EXPECT_EQ(editor.toPlainText(), "ab");
    norvik.control().Redo();
    EXPECT_EQ(editor.toPlainText(), "abc");
    QTest::keyClicks(&editor, "d");
    EXPECT_EQ(texto(), u"abcd");
}

TEST_F(ControlNorvikTest, LosEventosSonSenales) {
    QStringList sucesos;
    QObject::connect(&norvik, &ControlNorvik::CambioDeLinea,
                     [&](qint16 linea) { sucesos << QString("linea %1").arg(linea); });
    QObject::connect(&norvik, &ControlNorvik::change, [&] { sucesos << "change"; });
    QObject::connect(&norvik, &ControlNorvik::SelChange, [&] { sucesos << "sel"; });
    QObject::connect(&norvik, &ControlNorvik::KeyDown, [&](qint16& codigo, qint16& shift) {
        sucesos << QString("abajo %1 %2").arg(codigo).arg(shift);
    });
    QObject::connect(&norvik, &ControlNorvik::KeyPress, [&](qint16& c) { c = c == 'a' ? qint16('A') : c; });
    QObject::connect(&norvik, &ControlNorvik::KeyUp,
                     [&](qint16& codigo) { sucesos << QString("arriba %1").arg(codigo); });
    QObject::connect(&norvik, &ControlNorvik::Click, [&] { sucesos << "click"; });
    QObject::connect(&norvik, &ControlNorvik::propiedadCambiada, [&](const QString& n) { sucesos << n; });
    pulsa(Qt::Key_A);
    EXPECT_EQ(sucesos, QStringList({"abajo 65 0", "sel", "change", "arriba 65"}));
    EXPECT_EQ(texto(), u"A");
    sucesos.clear();
    pulsa(Qt::Key_Return);
    EXPECT_EQ(sucesos, QStringList({"abajo 13 0", "linea 2", "sel", "change", "arriba 13"}));
    sucesos.clear();
    QTest::mouseClick(editor.viewport(), Qt::LeftButton, {}, {30, 100});
    QTest::mouseClick(&norvik, Qt::LeftButton, {}, {0, 0});
    QTest::mouseClick(elemento("debugBox"), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(sucesos, QStringList({"click", "click"}));
    sucesos.clear();
    norvik.setProperty("ColorPR", QColor(0x56, 0x34, 0x12));
    norvik.setProperty("ColorPR", QColor(0x56, 0x34, 0x12));
    norvik.setProperty("NomLenguaje", "C");
    EXPECT_EQ(sucesos, QStringList({"ColorPR", "NombreLenguaje"}));
    EXPECT_EQ(norvik.control().ColorPR(), 0x123456);
    EXPECT_EQ(norvik.property("MargenIzquierdo").toInt(), 150);
}

/// What a person sees of all that was typed, pasted and deleted, once it is left.
TEST_F(ControlNorvikTest, TeclasAlAzarYLosColoresSonLosDeColoreaTodo) {
    std::mt19937 azar(17);
    const Qt::Key mueven[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                              Qt::Key_Down, Qt::Key_Home,  Qt::Key_End};
    const Qt::Key editan[] = {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Tab, Qt::Key_Return};
    const char* const escritos[] = {"si", " 1", "2", "'", "x "};
    const char* const pegados[] = {"si", "'2\nsi 1\nsi", "si 3\n", "\n\n'si"};
    norvik.control().SetER(u"'[^'\\r\\n]*'", u"cad", true, Norvik_Cadena);
    for (int paso = 0; paso < 3000; ++paso) {
        if (norvik.caja().texto().size() > 200)
            norvik.Text("si 1\n'2 si 3' si\n\n4"), norvik.control().ColoreaTodo();
        const auto dado = azar() % 10;
        if (dado < 4) {
            pulsa(mueven[azar() % std::size(mueven)], azar() % 4 == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        } else if (dado < 7) {
            QTest::keyClicks(&editor, escritos[azar() % std::size(escritos)]);
        } else if (dado < 9) {
            pulsa(editan[azar() % std::size(editan)]);
        } else {
            QApplication::clipboard()->setText(pegados[azar() % std::size(pegados)]);
            pulsa(Qt::Key_Insert, Qt::ShiftModifier);
        }
        if (azar() % 5 != 0) continue;
        pulsa(norvik.control().LineaActual() == 1 ? Qt::Key_PageDown : Qt::Key_PageUp);
        despues.setFocus();
        const auto vistos = [&] {
            std::string todos;
            for (int linea = 0; linea < editor.blockCount(); ++linea) todos += colores(linea) + '\n';
            return todos;
        };
        const std::string quedan = vistos();
        norvik.control().ColoreaTodo();
        ASSERT_EQ(quedan, vistos()) << paso << qPrintable(norvik.Text());
        norvik.setFocus();
    }
}

TEST_F(ControlNorvikTest, UnaTeclaSuprimidaNoTocaNada) {
    norvik.control().Text(u"abcdef");
    QObject::connect(&norvik, &ControlNorvik::KeyPress, [](qint16& caracter) { caracter = 0; });
    const std::pair<Qt::Key, Qt::KeyboardModifiers> teclas[] = {{Qt::Key_X, {}},
                                                                {Qt::Key_Return, {}},
                                                                {Qt::Key_Escape, {}},
                                                                {Qt::Key_Backspace, {}},
                                                                {Qt::Key_A, Qt::AltModifier}};
    for (const auto& [tecla, con] : teclas) {
        for (const int longitud : {3, 0}) {
            norvik.SelStart(1);
            norvik.SelLength(longitud);
            for (int vez = 0; vez < 2; ++vez) pulsa(tecla, con);
            EXPECT_EQ(texto(), u"abcdef") << tecla;
            EXPECT_EQ(norvik.SelLength(), longitud) << tecla;
        }
    }
    QInputMethodEvent compuesto;
    compuesto.setCommitString("á");
    QApplication::sendEvent(&editor, &compuesto);
    EXPECT_EQ(texto(), u"abcdef");
}

/// With the caret at 5 and the one that the host sets at 1.
TEST_F(ControlNorvikTest, LaTeclaActuaDondeElAnfitrionPoneElCursor) {
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, std::u16string, int> casos[] = {
        {Qt::Key_X, {}, u"axbcdef", 2},
        {Qt::Key_Return, {}, u"a\r\nbcdef", 3},
        {Qt::Key_Backspace, {}, u"bcdef", 0},
        {Qt::Key_Delete, {}, u"acdef", 1},
        {Qt::Key_Right, {}, u"abcdef", 2},
        {Qt::Key_End, {}, u"abcdef", 6},
        {Qt::Key_Insert, Qt::ShiftModifier, u"aPbcdef", 2}};
    QApplication::clipboard()->setText("P");
    norvik.AutoTAB(false);
    bool enKeyDown = true;
    const auto mueve = [&](bool ahora) {
        if (ahora) norvik.SelStart(1);
    };
    QObject::connect(&norvik, &ControlNorvik::KeyDown, [&] { mueve(enKeyDown); });
    QObject::connect(&norvik, &ControlNorvik::KeyPress, [&] { mueve(!enKeyDown); });
    for (const auto& [tecla, con, queda, cursor] : casos) {
        for (enKeyDown = true;; enKeyDown = false) {
            norvik.Text("abcdef");
            norvik.SelStart(5);
            pulsa(tecla, con);
            const bool escribe = tecla == Qt::Key_X || tecla == Qt::Key_Return || tecla == Qt::Key_Backspace;
            if (!enKeyDown && !escribe) break;
            EXPECT_EQ(texto(), queda) << tecla << enKeyDown;
            EXPECT_EQ(norvik.SelStart(), cursor) << tecla << enKeyDown;
            if (!enKeyDown) break;
        }
    }
}

TEST_F(ControlNorvikTest, LaTeclaQueCierraUnMensajeNoEsDelTexto) {
    norvik.control().Text(u"    a\r\n");
    QStringList sucesos;
    QObject::connect(&norvik, &ControlNorvik::KeyUp, [&](qint16& c) { sucesos << QString::number(c); });
    norvik.SelStart(7);
    QTest::keyRelease(&editor, Qt::Key_Return);
    QTest::keyPress(&editor, Qt::Key_Return); // opens another one
    despues.setFocus();
    norvik.setFocus();
    QTest::keyRelease(&editor, Qt::Key_Return);
    EXPECT_EQ(texto(), u"    a\r\n\r\n");
    EXPECT_EQ(sucesos, QStringList());
    pulsa(Qt::Key_Tab); // it comes up where it stays
    EXPECT_EQ(sucesos, QStringList{"9"});
}

TEST_F(ControlNorvikTest, LaMismaTeclaTieneUnCodigo) {
    std::vector<std::pair<int, int>> bajadas;
    QObject::connect(&norvik, &ControlNorvik::KeyDown,
                     [&](qint16& codigo, qint16& shift) { bajadas.emplace_back(codigo, shift); });
    const auto pulsaEnSitio = [&](quint32 sitio, Qt::Key tecla, const char* escrito) {
        const bool conShift = tecla != Qt::Key_2;
        QKeyEvent abajo(QEvent::KeyPress, tecla, conShift ? Qt::ShiftModifier : Qt::NoModifier, sitio, 0, 0,
                        escrito);
        QApplication::sendEvent(&editor, &abajo);
    };
    pulsaEnSitio(11, Qt::Key_2, "2");
    pulsaEnSitio(11, Qt::Key_QuoteDbl, "\""); // on a Spanish keyboard
    pulsaEnSitio(11, Qt::Key_At, "@");
    pulsaEnSitio(0, Qt::Key_Exclam, "!"); // who knows no places knows keys of one kind
    pulsaEnSitio(0, Qt::Key_Colon, ":");
    pulsaEnSitio(0, Qt::Key_Ntilde, "Ñ");
    EXPECT_EQ(bajadas,
              (std::vector<std::pair<int, int>>{{'2', 0}, {'2', 1}, {'2', 1}, {'1', 1}, {186, 1}, {231, 1}}));
    EXPECT_EQ(texto(), u"2\"@!:Ñ");
}

TEST_F(ControlNorvikTest, UnaLetraVuelveComoSePuso) {
    norvik.control().Font({.juegoCaracteres = 238});
    for (const int peso : {300, 400, 600, 700, 900}) {
        QFont letra(QStringLiteral("Monospace"), 11, peso);
        letra.setUnderline(peso > 600);
        norvik.Font(letra);
        EXPECT_EQ(editor.font().underline(), peso > 600);
        EXPECT_EQ(norvik.Font().weight(), peso);
        EXPECT_EQ(norvik.control().Font().negrita, peso >= 700);
    }
    QFont enPixeles = norvik.Font();
    enPixeles.setPixelSize(32);
    norvik.Font(enPixeles);
    EXPECT_NEAR(norvik.Font().pointSizeF(), 32 * 72 / formulario.screen()->logicalDotsPerInchY(), 0.01);
    EXPECT_EQ(norvik.control().Font().juegoCaracteres, 238);
}

TEST_F(ControlNorvikTest, AcercaDiceQueVersionEsYLaCierraIntro) {
    for (int vez = 0; vez < 2; ++vez) {
        sistema.usos.emplace_back([](QWidget& ventana) {
            const QLabel& nombre = *ventana.findChild<QLabel*>();
            EXPECT_TRUE(nombre.text().startsWith("Norvik ")) << nombre.text().toStdString();
            EXPECT_GT(nombre.font().pointSizeF(), ventana.font().pointSizeF());
            QTest::keyClick(&ventana, Qt::Key_Return);
            EXPECT_FALSE(ventana.isVisible());
        });
        norvik.control().Acerca();
        EXPECT_TRUE(sistema.usos.empty());
    }
}

TEST_F(ControlNorvikTest, ElClickDeLaSuperficieEsDelBotonIzquierdoAlSoltarlo) {
    int clicks = 0;
    QObject::connect(&norvik, &ControlNorvik::Click, [&] { ++clicks; });
    norvik.LeftBorderVisible(false);
    const QPoint enElMarco(0, 0);
    for (const Qt::MouseButton boton : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        despues.setFocus();
        QTest::mousePress(&norvik, boton, {}, enElMarco);
        EXPECT_TRUE(despues.hasFocus());
        QTest::mouseRelease(&norvik, boton, {}, enElMarco);
        EXPECT_EQ(editor.hasFocus(), boton == Qt::LeftButton);
    }
    EXPECT_EQ(clicks, 1);
    QTest::mousePress(&norvik, Qt::LeftButton, {}, enElMarco);
    QTest::mouseRelease(&norvik, Qt::LeftButton, {}, {-20, -20}); // thought better of
    EXPECT_EQ(clicks, 1);
    norvik.LeftBorderVisible(true);
    despues.setFocus();
    QTest::mouseClick(elemento("debugBox"), Qt::LeftButton);
    EXPECT_TRUE(editor.hasFocus());
    EXPECT_EQ(clicks, 1);
}

namespace {

QVariant otroValor(const QVariant& valor) {
    switch (valor.typeId()) {
    case QMetaType::Bool:
        return !valor.toBool();
    case QMetaType::Int:
        return valor.toInt() + 1;
    case QMetaType::QColor:
        return QColor(1, 2, 3);
    case QMetaType::QFont:
        return QFont(QStringLiteral("Otra"), 20);
    default:
        return QStringLiteral("otro");
    }
}

} // namespace

/// Qt's properties stand in the class, one by one; what they are is written in the table.
TEST_F(ControlNorvikTest, LasPropiedadesDeQtSonLasDeLaTabla) {
    const QMetaObject& meta = ControlNorvik::staticMetaObject;
    QStringList avisadas;
    QObject::connect(&norvik, &ControlNorvik::propiedadCambiada, [&](const QString& p) { avisadas << p; });
    std::size_t enTabla = 0;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty p = meta.property(i);
        const Propiedad* const fila = propiedadDeNombre(vistaDe(p.name()));
        const bool seMuestra = fila != nullptr && !fila->grupo.empty();
        EXPECT_EQ(p.isDesignable() && p.isStored(), seMuestra) << p.name();
        EXPECT_TRUE(p.hasNotifySignal()) << p.name();
        const QVariant valor = p.read(&norvik);
        EXPECT_TRUE(valor.isValid() && p.write(&norvik, valor)) << p.name();
        if (!seMuestra) continue;
        ++enTabla;
        EXPECT_EQ(p.userType() == QMetaType::QColor, fila->esColor()) << p.name();
        EXPECT_EQ(p.userType() == QMetaType::Int, fila->esNumero16()) << p.name();
        EXPECT_EQ(p.userType() == QMetaType::QString, fila->esTexto()) << p.name();
        avisadas.clear();
        EXPECT_TRUE(p.write(&norvik, otroValor(valor))) << p.name();
        EXPECT_NE(p.read(&norvik), valor) << p.name();
        BolsaPropiedades bolsa;
        norvik.control().guardaPropiedades(bolsa);
        const bool esFuente = p.userType() == QMetaType::QFont; // its attributes are told
        EXPECT_EQ(avisadas.contains(aQString(fila->clave)), fila->esClave() && !esFuente) << p.name();
        EXPECT_TRUE(fila->omision || bolsa.tiene(fila->clave) == fila->esClave()) << p.name();
    }
    EXPECT_EQ(enTabla, static_cast<std::size_t>(std::ranges::count_if(
                           tablaPropiedades, [](const Propiedad& p) { return !p.grupo.empty(); })));
}

TEST_F(ControlNorvikTest, DisposicionDeLosElementos) {
    EXPECT_EQ(elemento("separador")->geometry(), QRect(22, 0, 1, 200));
    EXPECT_EQ(elemento("debugBox")->geometry(), QRect(2, 2, 20, 196));
    EXPECT_EQ(editor.geometry(), QRect(33, 2, 365, 196));
    EXPECT_EQ(elemento("bordeNegro")->geometry(), QRect(1, 1, 398, 198));
    EXPECT_EQ(elemento("controlSpace")->geometry(), QRect(23, 2, 10, 196));
    EXPECT_TRUE(elemento("bordeOscuro1")->isVisible());
    norvik.Borde3D(false);
    norvik.LeftBorderVisible(false);
    EXPECT_EQ(editor.geometry(), QRect(1, 1, 398, 198));
    for (const char* oculto : {"bordeClaro1", "bordeClaro2", "bordeOscuro1", "bordeOscuro2", "bordeClaroBase",
                               "debugBox", "controlSpace"}) {
        EXPECT_FALSE(elemento(oculto)->isVisible()) << oculto;
    }
    norvik.resize(200, 100);
    EXPECT_EQ(editor.geometry(), QRect(1, 1, 198, 98));
    norvik.resize(3, 3); // too small to be laid out
    EXPECT_EQ(editor.geometry(), QRect(1, 1, 198, 98));
    for (QWidget* e : norvik.findChildren<QWidget*>()) {
        const bool interno = e->objectName().startsWith(QLatin1String("qt_")) ||
                             e->parentWidget()->inherits("QAbstractScrollArea") || e->inherits("QScrollBar");
        EXPECT_TRUE(interno || !e->accessibleName().isEmpty()) << e->objectName().toStdString();
    }
}

TEST_F(ControlNorvikTest, UnLectorDePantallaEncuentraElTextoYSusSenales) {
    const auto nombres = [](QWidget* de) {
        QStringList todos;
        QAccessibleInterface* const padre = QAccessible::queryAccessibleInterface(de);
        for (int i = 0; i < padre->childCount(); ++i) {
            todos << padre->child(i)->text(QAccessible::Name);
            EXPECT_EQ(padre->indexOfChild(padre->child(i)), i);
        }
        return todos;
    };
    norvik.control().PonSignoError(2);
    EXPECT_EQ(nombres(&norvik), QStringList({"Texto", "Margen de señales"}));
    EXPECT_TRUE(nombres(elemento("debugBox")).contains("Error en la línea 2"));
    norvik.LeftBorderVisible(false);
    EXPECT_EQ(nombres(&norvik), QStringList({"Texto"}));
    const auto* tabulador = QAccessible::queryAccessibleInterface(elemento("tabulador"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&norvik)->indexOfChild(tabulador), -1);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&norvik)->child(7), nullptr);
}

TEST_F(ControlNorvikTest, ErroresEnSuLineaConSuSigno) {
    norvik.control().Text(u"uno\r\ndos\r\ntres");
    norvik.control().MarcaErrorLinea(2);
    norvik.control().PonSignoError(2);
    norvik.control().PonSignoError(3);
    EXPECT_EQ(colores(1), "eee");
    EXPECT_EQ(colores(2), "pppp");
    const QWidget* signo = elemento("sig_Error2");
    ASSERT_NE(signo, nullptr);
    EXPECT_TRUE(signo->isVisible());
    EXPECT_EQ(signo->accessibleName(), "Error en la línea 2");
    const int alto = editor.fontMetrics().height();
    EXPECT_EQ(signo->geometry(), QRect(2, alto, 16, 16));
    EXPECT_EQ(elemento("sig_Error3")->y(), 2 * alto);
    QTest::keyClicks(&editor, "x");
    EXPECT_EQ(colores(1), "ppp");
}

TEST_F(ControlNorvikTest, DemasiadoTextoSeDiceUnaVezYSeSigue) {
    for (const std::size_t longitud : {32766U, 32767U}) {
        norvik.control().Text(std::u16string(longitud - 9, u'x') + u"\r\nsi 12 y");
        pulsa(Qt::Key_Down);
        pulsa(Qt::Key_End);
        QTest::keyClicks(&editor, "34");
        QApplication::clipboard()->setText("56\n78");
        pulsa(Qt::Key_Insert, Qt::ShiftModifier);
        for (int vez = 0; vez < 3; ++vez) {
            pulsa(Qt::Key_Up);
            QCoreApplication::processEvents();
            QTest::keyClicks(&editor, "z");
            pulsa(Qt::Key_Return); // colouring what is left is too much each time
            QCoreApplication::processEvents();
            despues.setFocus();
            QCoreApplication::processEvents();
            norvik.setFocus();
        }
        EXPECT_EQ(norvik.control().Text().size(), longitud + 2 + 6 + 9);
        EXPECT_FALSE(norvik.caja().ocultaSeleccion() && !norvik.HideSelection());
        EXPECT_EQ(sistema.dameMensajes(),
                  (std::vector<Mensaje>{{TextoDemasiadoLargo().texto(), u"Norvik", Icono::Critico}}));
        norvik.control().Text(u"");
        QTest::keyClicks(&editor, "si");
        pulsa(Qt::Key_Return);
        EXPECT_EQ(colores(0), "rr");
        pulsa(Qt::Key_Up);
    }
    EXPECT_TRUE(sistema.mensajes.empty());
}

/// Between the two it was short enough: by Undo, of which `change` says nothing.
TEST_F(ControlNorvikTest, DemasiadoTextoTrasDeshacerSeDiceOtraVez) {
    norvik.control().ponAyudas({.deshacePorPalabras = true});
    QApplication::clipboard()->setText(QString(40'000, u'x') + "\n");
    norvik.Text("");
    QTest::keyClicks(&editor, "a");
    for (const std::size_t dichos : {1U, 2U}) {
        pulsa(Qt::Key_Insert, Qt::ShiftModifier);
        QCoreApplication::processEvents();
        EXPECT_EQ(sistema.mensajes.size(), dichos);
        norvik.control().Undo();
        EXPECT_EQ(norvik.Text(), "a");
        QCoreApplication::processEvents();
    }
}

/// The same key is the text's only once it has gone down there.
TEST_F(ControlNorvikTest, UnaTeclaQueSeMantieneEsDeQuienLaOyoBajar) {
    const auto da = [&](QEvent::Type suceso, bool repetida, ulong cuando) {
        QKeyEvent evento(suceso, Qt::Key_Return, Qt::NoModifier, 36, 0, 0, "\r", repetida);
        evento.setTimestamp(cuando);
        QApplication::sendEvent(&editor, &evento);
    };
    const auto repite = [&](ulong cuando) {
        da(QEvent::KeyRelease, true, cuando);
        da(QEvent::KeyPress, true, cuando);
        da(QEvent::KeyRelease, false, cuando + 40); // of which Qt did not notice what it is
        da(QEvent::KeyPress, false, cuando + 40);
    };
    norvik.Text("x");
    for (int vez = 1; vez <= 2; ++vez) {
        const auto cuando = static_cast<ulong>(vez) * 1000;
        repite(cuando);
        repite(cuando + 80);
        EXPECT_EQ(norvik.caja().numeroDeLineas(), 3 * vez - 2);
        da(QEvent::KeyRelease, false, cuando + 200);
        da(QEvent::KeyPress, false, cuando + 300);
        repite(cuando + 400);
        EXPECT_EQ(norvik.caja().numeroDeLineas(), 3 * vez + 1);
        despues.setFocus(); // a message box, say
        norvik.setFocus();
    }
}

/// By their places, as X and Wayland number them.
TEST_F(ControlNorvikTest, LasTeclasDeUnTecladoEspanol) {
    const std::tuple<int, quint32, int> casos[] = {
        {Qt::Key_exclamdown, 21, 221}, {Qt::Key_questiondown, 21, 221}, {Qt::Key_Ccedilla, 51, 191},
        {Qt::Key_masculine, 49, 220},  {Qt::Key_ordfeminine, 49, 220},  {Qt::Key_Plus, 35, 187},
        {Qt::Key_Asterisk, 35, 187},   {Qt::Key_Apostrophe, 20, 222},   {Qt::Key_Question, 20, 222},
        {Qt::Key_Question, 61, 191},   {Qt::Key_Asterisk, 17, '8'},     {Qt::Key_Asterisk, 0, '8'},
        {Qt::Key_questiondown, 0, 231}};
    int codigo = 0;
    QObject::connect(&norvik, &ControlNorvik::KeyDown, &norvik, [&](qint16& c) { codigo = c; });
    for (const auto& [tecla, sitio, esperado] : casos) {
        QKeyEvent evento(QEvent::KeyPress, tecla, Qt::NoModifier, sitio, 0, 0, "x");
        QApplication::sendEvent(&editor, &evento);
        EXPECT_EQ(codigo, esperado) << tecla << " " << sitio;
    }
}

TEST_F(ControlNorvikTest, EnFondoOscuroTodoSeLee) {
    QPalette oscura;
    oscura.setColor(QPalette::Base, QColor(30, 30, 30));
    oscura.setColor(QPalette::Text, QColor(230, 230, 230));
    norvik.control().Text(u"si 12 x");
    norvik.control().ColoreaTodo();
    norvik.setPalette(oscura);
    QCoreApplication::processEvents();
    const auto formatos = editor.document()->firstBlock().layout()->formats();
    ASSERT_EQ(formatos.size(), 2);
    for (const auto& f : formatos) EXPECT_GT(qGray(f.format.foreground().color().rgb()), 30 + 60);
    EXPECT_EQ(norvik.ColorPR(), 0x800000);
}
