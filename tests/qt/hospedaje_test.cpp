// SPDX-License-Identifier: MIT

// What a program that has the control in its window counts on, used as it first comes to mind.
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/anfitrionHostil.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QMetaProperty>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <utility>

using namespace norvik;

namespace {

const QString gramaticaDeSumas =
    QStringLiteral(R"(Token mas = "\+"; Token num = "[0-9]+", TipoToken = TTNumero; E -> E mas num | num;)");

class Hospedaje : public testing::Test {
protected:
    Hospedaje() {
        columna.addWidget(&editor);
        columna.addWidget(&boton);
        ventana.resize(500, 300);
        ventana.show();
        QApplication::setActiveWindow(&ventana);
        editor.setFocus();
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(&vista, tecla, teclas);
    }
    /// The characters of a line with a wavy underline, as "~".
    std::string ondas(int linea) {
        QCoreApplication::processEvents();
        const QTextBlock bloque = vista.document()->findBlockByNumber(linea);
        std::string vistas(static_cast<std::size_t>(bloque.length() - 1), ' ');
        for (const auto& s : vista.extraSelections()) {
            if (s.format.underlineStyle() != QTextCharFormat::WaveUnderline) continue;
            for (int i = s.cursor.selectionStart(); i < s.cursor.selectionEnd(); ++i)
                if (bloque.contains(i) && i - bloque.position() < bloque.length() - 1)
                    vistas[static_cast<std::size_t>(i - bloque.position())] = '~';
        }
        return vistas;
    }
    static Diagnostico error(std::int32_t inicio, std::int32_t fin, Gravedad gravedad = Gravedad::Error) {
        return {Codigo::CaracterIncorrecto, gravedad, {{inicio}, {fin}}, {{}, u"<b>", {}, {}}};
    }

    QWidget ventana;
    QVBoxLayout columna{&ventana};
    SistemaDePrueba sistema;
    ControlNorvik editor{sistema, &ventana};
    QPushButton boton;
    QPlainTextEdit& vista = static_cast<QPlainTextEdit&>(editor.caja().ventana());
};

} // namespace

TEST_F(Hospedaje, CadaCambioDelTextoSeOye) {
    QString oido;
    QObject::connect(&editor, &ControlNorvik::textoCambiado, [&] { oido += editor.Text() + u'|'; });
    const auto dameOido = [&] { return std::exchange(oido, {}); };
    QTest::keyClicks(&vista, "ab");
    EXPECT_EQ(dameOido(), "a|ab|");
    editor.control().Undo();
    EXPECT_EQ(dameOido(), "a|");
    editor.control().Redo();
    EXPECT_EQ(dameOido(), "ab|");
    editor.control().Redo(); // there is nothing to redo
    editor.Text("ab");
    pulsa(Qt::Key_Left);
    editor.control().ColoreaTodo();
    EXPECT_EQ(dameOido(), "");
    editor.SelText("y ");
    EXPECT_EQ(dameOido(), "ay b|");
    editor.control().BorraTodo();
    EXPECT_EQ(dameOido(), "|");
}

/// One that corrects words changes the text where nobody typed.
TEST_F(Hospedaje, LoQueCorrigeElColoreadoSeOye) {
    editor.control().SetPalabraReservada(u"Si");
    editor.Colorear(true);
    editor.AutoCorreccion(true);
    QTest::keyClicks(&vista, "si");
    QSignalSpy cambios(&editor, &ControlNorvik::textoCambiado);
    pulsa(Qt::Key_Return);
    EXPECT_EQ(editor.Text(), "Si\r\n");
    EXPECT_EQ(cambios.count(), 1);
    editor.Colorear(false);
    editor.Text("si");
    editor.Colorear(true);
    cambios.clear();
    editor.control().ColoreaTodo();
    EXPECT_EQ(editor.Text(), "Si");
    EXPECT_EQ(cambios.count(), 1);
    QTest::keyClicks(&vista, "si ");
    cambios.clear();
    boton.setFocus();
    EXPECT_EQ(editor.Text(), "Si Si");
    EXPECT_EQ(cambios.count(), 1);
}

/// Of each property: it has a signal, which comes when it is given another value, and not with the same.
TEST_F(Hospedaje, CadaPropiedadAvisa) {
    const QMetaObject& meta = ControlNorvik::staticMetaObject;
    int vez = 0;
    const auto otro = [&vez](const QVariant& valor) -> QVariant {
        switch (valor.typeId()) {
        case QMetaType::Bool:
            return !valor.toBool();
        case QMetaType::Int:
            return valor.toInt() + 1;
        case QMetaType::QColor:
            return QColor(1, 2, vez);
        case QMetaType::QFont:
            return QFont("Otra", 17 + vez);
        default:
            return valor.toString() + 'x';
        }
    };
    for (; vez < 2; ++vez) {
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QMetaProperty p = meta.property(i);
            ASSERT_TRUE(p.hasNotifySignal()) << p.name();
            editor.Text("abc");
            if (p.name() == QByteArray("TextoModificado")) editor.SelText("d");
            QCoreApplication::processEvents();
            QSignalSpy avisos(&editor, p.notifySignal());
            const QVariant valor = otro(p.read(&editor));
            EXPECT_TRUE(p.write(&editor, valor)) << p.name();
            QCoreApplication::processEvents();
            EXPECT_GE(avisos.count(), 1) << p.name();
            if (p.name() == QByteArray("SelText") || p.name() == QByteArray("LeftBorderVisible")) continue;
            avisos.clear();
            p.write(&editor, p.read(&editor));
            QCoreApplication::processEvents();
            EXPECT_EQ(avisos.count(), 0) << p.name();
        }
        editor.soloLectura(false);
    }
    QSignalSpy avisos(&editor, &ControlNorvik::opcionesCambiadas);
    editor.control().restauraPropiedades({});
    EXPECT_GE(avisos.count(), 1);
}

TEST_F(Hospedaje, DeSoloLecturaNadaCambiaYTodoSeCopia) {
    editor.Text("uno\n\n  dos");
    editor.soloLectura(true);
    const QString antes = editor.Text();
    QApplication::clipboard()->setText("pegado");
    editor.SelStart(1);
    editor.SelLength(2);
    QTest::keyClicks(&vista, "x 'a");
    for (const Qt::Key tecla :
         {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Space, Qt::Key_Escape})
        pulsa(tecla);
    for (const Qt::Key tecla : {Qt::Key_Insert, Qt::Key_Delete}) pulsa(tecla, Qt::ShiftModifier);
    QInputMethodEvent compuesto;
    compuesto.setCommitString("á");
    QApplication::sendEvent(&vista, &compuesto);
    QMimeData datos;
    datos.setText("soltado");
    QDropEvent suelta({30, 30}, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(vista.viewport(), &suelta);
    EXPECT_EQ(editor.Text(), antes);
    EXPECT_EQ(editor.SelLength(), 2);
    vista.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), "no");
    pulsa(Qt::Key_Down);
    EXPECT_EQ(editor.control().LineaActual(), 2);
    pulsa(Qt::Key_Return); // its release would indent the empty line
    EXPECT_EQ(editor.Text(), antes);
    pulsa(Qt::Key_Tab);
    EXPECT_TRUE(boton.hasFocus());
    EXPECT_EQ(editor.Text(), antes);
    editor.setFocus();
    editor.SelText("programa");
    EXPECT_NE(editor.Text(), antes);
    editor.soloLectura(false);
    editor.Text("");
    QTest::keyClicks(&vista, "x");
    pulsa(Qt::Key_Tab);
    EXPECT_EQ(editor.Text(), "x    ");
}

TEST_F(Hospedaje, IrATraeElRangoALaVista) {
    QString texto;
    for (int i = 0; i < 500; ++i) texto += QString(i == 400 ? 300 : 5, u'x') + "\nyy\n";
    editor.Text(texto);
    const auto seVe = [&] { return vista.viewport()->rect().contains(vista.cursorRect().center()); };
    const std::int32_t largo = editor.caja().inicioDeLinea(800);
    for (const std::int32_t inicio : {largo + 290, 0, largo, editor.caja().inicioDeLinea(999)}) {
        editor.irA({{inicio}, {inicio + 1}});
        EXPECT_EQ(editor.caja().inicioSeleccion(), inicio);
        EXPECT_EQ(editor.caja().longitudSeleccion(), 1);
        EXPECT_TRUE(seVe()) << inicio;
        EXPECT_TRUE(vista.hasFocus());
        boton.setFocus();
    }
    editor.irA({{0}, {static_cast<std::int32_t>(editor.caja().texto().size())}});
    EXPECT_EQ(editor.caja().primeraLineaVisible(), 0);
    editor.irA({{-7}, {1 << 30}}); // there is no such place
    QMetaObject::invokeMethod(&editor, "irA", Q_ARG(norvik::Rango, (Rango{{3}, {5}})));
    EXPECT_EQ(editor.SelStart(), 3);
}

TEST_F(Hospedaje, LosDiagnosticosSeSubrayanYSeMuevenConElTexto) {
    editor.Text("uno dos\ntres\n\n");
    editor.ponDiagnosticos({error(4, 7), error(9, 13, Gravedad::Aviso), error(13, 13), error(15, 15)});
    EXPECT_EQ(ondas(0), "    ~~~");
    EXPECT_EQ(ondas(1), "~~~~");
    editor.SelText("y ");
    EXPECT_EQ(ondas(0), "      ~~~");
    editor.SelStart(6);
    editor.SelLength(3);
    editor.SelText("");
    EXPECT_EQ(ondas(0), "      "); // gone with its characters
    EXPECT_EQ(ondas(1), "~~~~");
    editor.ponDiagnosticos({error(0, 1)});
    EXPECT_EQ(ondas(0), "~     ");
    EXPECT_EQ(ondas(1), "    ");
    editor.ponDiagnosticos({error(1000, 2000), error(-5, 3)});
    EXPECT_EQ(ondas(0), "~~~   ");
    editor.ponDiagnosticos({});
    EXPECT_EQ(ondas(0), "      ");
}

// Without a reader Qt raises no event: what one says when it shows is what has this role.
TEST_F(Hospedaje, UnErrorEsUnAvisoParaLosLectores) {
    editor.ponDiagnosticos({error(0, 1)});
    editor.control().PonSignoError(2);
    for (const auto& [nombre, palabras] :
         {std::pair("margenDeLineas", "1 error"), {"sig_Error2", "Error en la línea 2"}}) {
        const auto* const elemento =
            QAccessible::queryAccessibleInterface(editor.findChild<QWidget*>(nombre));
        EXPECT_EQ(elemento->role(), QAccessible::Notification) << nombre;
        EXPECT_EQ(elemento->text(QAccessible::Name), palabras);
    }
}

TEST_F(Hospedaje, LoQueFaltaSeSubrayaJuntoASuLugar) {
    editor.Text("ab\ncd");
    for (const auto& [lugar, ondas0] : {std::pair{0, "~ "}, {1, " ~"}, {2, " ~"}}) {
        editor.ponDiagnosticos({error(lugar, lugar)});
        EXPECT_EQ(ondas(0), ondas0) << lugar;
    }
    editor.ponDiagnosticos({error(6, 6)});
    EXPECT_EQ(ondas(1), " ~");
}

TEST_F(Hospedaje, LasPalabrasDeUnDiagnosticoSeLeen) {
    editor.Text("uno dos");
    editor.ponDiagnosticos({error(4, 7)});
    QCoreApplication::processEvents();
    const auto ayudaEn = [&](QWidget* donde, const QPoint& punto) {
        QHelpEvent pide(QEvent::ToolTip, punto, donde->mapToGlobal(punto));
        QApplication::sendEvent(donde, &pide);
        return QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 400) ? QString() : QToolTip::text();
    };
    QTextCursor cursor(vista.document());
    cursor.setPosition(4);
    const QString palabras = ayudaEn(vista.viewport(), vista.cursorRect(cursor).center() + QPoint(2, 0));
    EXPECT_TRUE(palabras.contains("&lt;b&gt;")) << palabras.toStdString();
    EXPECT_EQ(ayudaEn(vista.viewport(), {2, 5}), "");
    EXPECT_EQ(ayudaEn(vista.viewport(), {200, 5}), "");
    auto* const margen = editor.findChild<QWidget*>("margenDeLineas");
    EXPECT_EQ(ayudaEn(margen, {5, 5}), palabras);
    EXPECT_EQ(margen->accessibleName(), "1 error");
    editor.ponDiagnosticos({error(0, 1), error(1, 2), error(2, 3, Gravedad::Aviso)});
    EXPECT_EQ(margen->accessibleName(), "2 errores, 1 aviso");
    editor.ponDiagnosticos({});
    EXPECT_EQ(ayudaEn(margen, {5, 5}), "");
}

TEST_F(Hospedaje, CargaUnLenguajeYDiceQueEstaMal) {
    editor.Colorear(true);
    editor.Text("1+2");
    const auto sinErrores = editor.cargaLenguaje(gramaticaDeSumas);
    EXPECT_TRUE(sinErrores);
    EXPECT_TRUE(editor.control().ConstruyeArbolSintactico());
    EXPECT_EQ(editor.caja().colorDe(0), editor.ColorNumeros());
    const QString malas[] = {"Token", "Token a = \"[a\"; S -> a;", "S -> S2;"};
    for (const QString& mala : malas) {
        const auto conErrores = editor.cargaLenguaje(mala);
        EXPECT_FALSE(conErrores) << mala.toStdString();
        EXPECT_TRUE(hayErrores(conErrores.diagnosticos)) << mala.toStdString();
        EXPECT_TRUE(editor.control().ConstruyeArbolSintactico()) << mala.toStdString();
    }
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_FALSE(editor.cargaLenguaje(QString(40000, u' ') + gramaticaDeSumas));
    QCoreApplication::processEvents();
    EXPECT_EQ(sistema.dameMensajes().size(), 1U);
    EXPECT_TRUE(editor.control().ConstruyeArbolSintactico());
    Compilacion otra;
    QMetaObject::invokeMethod(&editor, "cargaLenguaje", Q_RETURN_ARG(norvik::Compilacion, otra),
                              Q_ARG(QString, "Token x = \"x\"; S -> x;"));
    EXPECT_TRUE(otra);
    EXPECT_FALSE(editor.control().ConstruyeArbolSintactico());
}

TEST_F(Hospedaje, CargaUnLenguajeDeUnFichero) {
    const apoyo::CarpetaTemporal carpeta;
    const auto fichero = carpeta.pon("gramaticaDeSumas.nvk", hostil::sumas.toStdString());
    editor.Text("1+2");
    EXPECT_TRUE(editor.cargaLenguajeDe(deRuta(fichero)));
    EXPECT_TRUE(editor.control().ConstruyeArbolSintactico());
    EXPECT_FALSE(editor.cargaLenguajeDe(deRuta(carpeta / "no hay.bas")));
    QCoreApplication::processEvents();
    EXPECT_EQ(sistema.dameMensajes().size(), 1U);
    EXPECT_TRUE(editor.control().ConstruyeArbolSintactico());
}

TEST_F(Hospedaje, LaFuenteDelWidgetEsLaDelTexto) {
    const QString familia = editor.Font().family();
    QFont soloTamano;
    soloTamano.setPointSize(20);
    editor.setFont(soloTamano);
    EXPECT_EQ(editor.Font().pointSize(), 20);
    EXPECT_EQ(editor.Font().family(), familia); // of which nothing was said
    editor.setFont(QFont("Monospace", 14, QFont::Bold));
    EXPECT_EQ(editor.Font().family(), "Monospace");
    EXPECT_TRUE(editor.control().Font().negrita);
    EXPECT_EQ(vista.font().pointSize(), 14);
    ventana.setFont(QFont("Otra", 30)); // the surroundings'
    EXPECT_EQ(editor.Font().pointSize(), 14);
    ControlNorvik nuevo;
    QApplication::sendPostedEvents();
    EXPECT_EQ(nuevo.Font().pointSize(), 10);
}
