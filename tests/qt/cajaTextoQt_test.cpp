// SPDX-License-Identifier: MIT

// What the text box does on a screen: keys, mouse, clipboard, and that the editor shows what the box holds.
#include "control/control_suite.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "platform/cajaTexto_suite.hpp"

#include <QTest>
#include <QtWidgets>

#include <random>

namespace norvik {

namespace {

struct CajaTextoQtTest : testing::Test {
    CajaTextoQtTest() {
        formulario.resize(400, 300);
        editor.setGeometry(0, 0, 400, 250);
        otro.setGeometry(0, 260, 100, 30);
        formulario.show();
        QApplication::setActiveWindow(&formulario);
        editor.setFocus();
        caja.eventos.cambio = [this](const CambioDeTexto& c) { sucesos += c.otraSeleccion ? u"sc" : u"c"; };
        caja.eventos.cambioDeSeleccion = [this] { sucesos += u's'; };
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(&editor, tecla, teclas);
    }
    void teclea(const QString& texto) { QTest::keyClicks(&editor, texto); }
    std::u16string texto() const { return std::u16string(caja.texto()); }
    std::u16string dameSucesos() { return std::exchange(sucesos, {}); }
    /// The colours that the editor shows, "." for plain, a letter for each other one, in order of appearance.
    std::string coloresVistos() const {
        QCoreApplication::processEvents();
        std::string vistos;
        QList<QColor> conocidos;
        for (QTextBlock b = editor.document()->begin(); b.isValid(); b = b.next()) {
            std::string linea(static_cast<std::size_t>(b.length()), '.');
            for (const auto& f : b.layout()->formats()) {
                const QColor color = f.format.foreground().color();
                if (!conocidos.contains(color)) conocidos.append(color);
                linea.replace(static_cast<std::size_t>(f.start), static_cast<std::size_t>(f.length),
                              static_cast<std::size_t>(f.length),
                              static_cast<char>('a' + conocidos.indexOf(color)));
            }
            vistos += linea + '\n';
        }
        return vistos;
    }
    QString visto() const { return editor.toPlainText(); }

    QWidget formulario;
    QWidget otro{&formulario};
    CajaTextoQt caja{&formulario};
    QPlainTextEdit& editor = static_cast<QPlainTextEdit&>(caja.ventana());
    std::u16string sucesos;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Qt, CajaTextoTest, testing::Values(crea<CajaTextoQt>));
INSTANTIATE_TEST_SUITE_P(Qt, ControlTest, testing::Values(crea<CajaTextoQt>));

TEST_F(CajaTextoQtTest, TeclearEditaYAvisa) {
    teclea("ab");
    EXPECT_EQ(texto(), u"ab");
    EXPECT_EQ(dameSucesos(), u"scsc");
    pulsa(Qt::Key_Return);
    pulsa(Qt::Key_Return, Qt::ShiftModifier); // no other kind of break exists
    teclea("c");
    EXPECT_EQ(texto(), u"ab\r\n\r\nc");
    EXPECT_EQ(caja.inicioSeleccion(), 7);
    EXPECT_EQ(dameSucesos(), u"scscsc"); // on the empty line, too, Return is one change
    pulsa(Qt::Key_Left);
    EXPECT_EQ(dameSucesos(), u"s");
    pulsa(Qt::Key_Backspace);
    EXPECT_EQ(texto(), u"ab\r\nc");
    EXPECT_EQ(dameSucesos(), u"sc");
    pulsa(Qt::Key_Home, Qt::ControlModifier);
    dameSucesos();
    pulsa(Qt::Key_Delete);
    EXPECT_EQ(texto(), u"b\r\nc");
    EXPECT_EQ(dameSucesos(), u"c");
    pulsa(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(caja.inicioSeleccion(), 0);
    EXPECT_EQ(caja.longitudSeleccion(), 3);
    teclea("x");
    EXPECT_EQ(texto(), u"xc");
    EXPECT_TRUE(caja.modificado());
}

TEST_F(CajaTextoQtTest, LoQueElAnfitrionHaceSeVe) {
    caja.ponTexto(u"uno\r\ndos\r\ntres");
    EXPECT_EQ(visto(), "uno\ndos\ntres");
    caja.selecciona(5, 3);
    caja.ponColorSeleccion(0x0000FF);
    caja.selecciona(9, 2);
    caja.ponColorSeleccion(0xFF0000);
    EXPECT_EQ(coloresVistos(), "....\naaa.\nb....\n"); // the break's half has a colour, too
    caja.selecciona(10, 4);
    caja.ponColorSeleccion(0xFF0000);
    EXPECT_EQ(coloresVistos(), "....\naaa.\nbbbb.\n");
    EXPECT_EQ(editor.textCursor().selectedText(), "tres");
    caja.selecciona(7, 4);
    caja.reemplazaSeleccion(u"X\n");
    EXPECT_EQ(visto(), "uno\ndoX\nres");
    EXPECT_EQ(coloresVistos(), "....\naaa.\nbbb.\n");
    caja.selecciona(0, 7);
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.textCursor().selectionEnd(), 6);
}

TEST_F(CajaTextoQtTest, LaSeleccionSeOcultaSinFoco) {
    caja.ponTexto(u"abcdef");
    caja.selecciona(1, 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.textCursor().selectedText(), "bcd");
    dameSucesos();
    otro.setFocusPolicy(Qt::StrongFocus);
    otro.setFocus();
    QCoreApplication::processEvents();
    EXPECT_FALSE(editor.textCursor().hasSelection());
    EXPECT_EQ(caja.textoSeleccionado(), u"bcd");
    caja.ponOcultaSeleccion(false);
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.textCursor().selectedText(), "bcd");
    caja.ponOcultaSeleccion(true);
    QCoreApplication::processEvents();
    editor.setFocus();
    EXPECT_EQ(editor.textCursor().selectedText(), "bcd");
    EXPECT_EQ(dameSucesos(), u"");
}

TEST_F(CajaTextoQtTest, LasTeclasPasanPorElAnfitrion) {
    std::vector<std::pair<int, int>> abajo;
    std::u16string caracteres;
    caja.eventos.teclaAbajo = [&](std::int16_t& codigo, std::int16_t& shift) {
        abajo.emplace_back(codigo, shift);
        if (shift == mascara::control || codigo == 'Q') codigo = 0;
        if (codigo == 112) codigo = 37; // F1 moves to the left
    };
    caja.eventos.pulsacion = [&](std::int16_t& c) {
        caracteres += static_cast<char16_t>(c);
        if (c == u'z') c = u'Z';
        if (c == u'w') c = 0;
    };
    caja.eventos.teclaArriba = [&](std::int16_t& codigo, std::int16_t&) { abajo.emplace_back(-codigo, 0); };
    teclea("aqzwB");
    pulsa(Qt::Key_F1);
    teclea("c");
    EXPECT_EQ(texto(), u"aZcB");
    EXPECT_EQ(caracteres, u"azwBc");
    QApplication::clipboard()->setText("pegado");
    abajo.clear();
    for (const Qt::Key tecla : {Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_A})
        pulsa(tecla, Qt::ControlModifier);
    EXPECT_EQ(texto(), u"aZcB");
    EXPECT_EQ(abajo[1], std::pair(int{'V'}, 2));
    pulsa(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(texto(), u"aZcpegadoB");
    abajo.clear();
    pulsa(Qt::Key_Return);
    pulsa(Qt::Key_Insert);
    pulsa(Qt::Key_5, Qt::KeypadModifier);
    pulsa(Qt::Key_Shift);
    EXPECT_EQ(abajo, (std::vector<std::pair<int, int>>{
                         {13, 0}, {-13, 0}, {45, 0}, {-45, 0}, {101, 0}, {-101, 0}, {16, 1}, {-16, 0}}));
}

TEST_F(CajaTextoQtTest, PegarYCopiarSinPerderNada) {
    const std::u16string raros = u"a\u00A0\u2028b\r\nñ\U0001F600\u0001";
    caja.ponTexto(raros);
    pulsa(Qt::Key_A, Qt::ControlModifier);
    pulsa(Qt::Key_C, Qt::ControlModifier);
    pulsa(Qt::Key_End, Qt::ControlModifier);
    int pegados = 0;
    caja.eventos.vaAPegar = [&] { ++pegados; };
    pulsa(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(texto(), raros + raros);
    EXPECT_EQ(pegados, 1);
    auto& conFormato = nuevo<QMimeData>();
    conFormato.setHtml("<b>negrita</b>");
    conFormato.setText("uno\rdos");
    QApplication::clipboard()->setMimeData(&conFormato); // the clipboard owns it
    caja.ponTexto(u"");
    pulsa(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(texto(), u"uno\r\ndos");
    EXPECT_EQ(coloresVistos(), "....\n....\n");
}

/// A letter with thousands of marks is not laid out for seconds, and none of them is lost.
TEST_F(CajaTextoQtTest, LasMarcasDeMasSeVenAparte) {
    constexpr int cuantas = 3000;
    constexpr std::size_t seVen = 64;
    std::u16string marcas;
    for (int i = 0; i < cuantas; ++i) marcas += i % 2 == 0 ? u"\u0301" : u"\U0001E8D0";
    const std::u16string guion = u"\u200D";
    caja.ponTexto(u"a" + marcas + u"b" + guion + u"\u0301c");
    const auto visto = [this] { return editor.toPlainText().toStdU16String(); };
    const std::size_t vistas = seVen / 2 * 3;
    EXPECT_EQ(visto(), u"a" + marcas.substr(0, vistas) + std::u16string(marcas.size() - vistas, u'\u25A1') +
                           u"b" + guion + u"\u0301c");
    caja.selecciona(1001, 0);
    teclea("x");
    EXPECT_EQ(texto(),
              u"a" + marcas.substr(0, 1000) + u"x" + marcas.substr(1000) + u"b" + guion + u"\u0301c");
    pulsa(Qt::Key_A, Qt::ControlModifier);
    pulsa(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdU16String(), texto());
}

TEST_F(CajaTextoQtTest, ElMenuOfreceLoQueSePuede) {
    const struct {
        int elegidos;
        bool soloLectura;
        const char* pegable;
        QString ofrece;
    } casos[] = {{0, false, "", "&Seleccionar todo|"},
                 {0, false, "p", "&Pegar|&Seleccionar todo|"},
                 {2, false, "p", "Cor&tar|&Copiar|&Pegar|&Eliminar|&Seleccionar todo|"},
                 {2, true, "p", "&Copiar|&Seleccionar todo|"}};
    caja.ponTexto(u"uno");
    for (const auto& c : casos) {
        QApplication::clipboard()->clear();
        if (*c.pegable != '\0') QApplication::clipboard()->setText(c.pegable);
        editor.setReadOnly(c.soloLectura);
        caja.selecciona(0, c.elegidos);
        QString ofrece;
        QTimer::singleShot(0, &editor, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (const QAction* a : menu->actions())
                if (a->isEnabled() && !a->isSeparator()) ofrece += a->text() + '|';
            menu->close();
        });
        QContextMenuEvent pide(QContextMenuEvent::Keyboard, {5, 5}, editor.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(editor.viewport(), &pide);
        EXPECT_EQ(ofrece, c.ofrece) << c.elegidos << c.soloLectura << c.pegable;
    }
}

TEST_F(CajaTextoQtTest, SoltarTexto) {
    caja.ponTexto(u"uno\r\ndos");
    QMimeData datos;
    datos.setText("X\nY");
    const QPointF final(390, 240);
    QDragEnterEvent entra(final.toPoint(), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &entra);
    QDropEvent suelta(final, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &suelta);
    EXPECT_EQ(texto(), u"uno\r\ndosX\r\nY");
    EXPECT_EQ(caja.textoSeleccionado(), u"X\r\nY");
    caja.suelta("o\nd", 0, true); // moved, not copied, when the selection was dragged
    EXPECT_EQ(texto(), u"o\r\nduno\r\ndos");
    EXPECT_EQ(caja.textoSeleccionado(), u"o\r\nd");
}

TEST_F(CajaTextoQtTest, ComponerAcentos) {
    caja.ponTexto(u"xy");
    caja.selecciona(0, 2);
    caja.ponColorSeleccion(0xFF0000);
    caja.selecciona(1, 0);
    QInputMethodEvent compone("´", {});
    QApplication::sendEvent(&editor, &compone);
    EXPECT_EQ(texto(), u"xy");
    QInputMethodEvent acaba;
    acaba.setCommitString("á");
    QApplication::sendEvent(&editor, &acaba);
    EXPECT_EQ(texto(), u"xáy");
    EXPECT_EQ(caja.inicioSeleccion(), 2);
    EXPECT_EQ(coloresVistos(), "aaa.\n");
}

TEST_F(CajaTextoQtTest, RatonConSusArgumentos) {
    caja.ponTexto(u"palabra otra\r\nlinea");
    std::vector<std::int16_t> botones;
    float x = 0;
    caja.eventos.ratonAbajo = [&](std::int16_t& boton, std::int16_t& shift, float& px, float&) {
        botones = {boton, shift};
        x = px;
    };
    int clicks = 0;
    caja.eventos.click = [&] { ++clicks; };
    QTest::mouseClick(editor.viewport(), Qt::LeftButton, Qt::ShiftModifier, {100, 5});
    EXPECT_EQ(botones, (std::vector<std::int16_t>{1, 1}));
    EXPECT_FLOAT_EQ(x, 1530); // the margin is the box's, too
    EXPECT_EQ(clicks, 1);
    EXPECT_GT(caja.longitudSeleccion(), 0);
    QTest::mouseDClick(editor.viewport(), Qt::LeftButton, {}, {12, 5});
    EXPECT_EQ(caja.textoSeleccionado(), u"palabra");
}

TEST_F(CajaTextoQtTest, LoQueFallaSeDiceUnaVezYNadaQuedaAMedias) {
    std::vector<std::u16string> fallos;
    caja.alFallar = [&](const std::u16string& t) { fallos.push_back(t); };
    caja.eventos.cambio = [](const CambioDeTexto&) { throw Desbordamiento(); };
    teclea("abc");
    QCoreApplication::processEvents();
    EXPECT_EQ(fallos, (std::vector<std::u16string>{u"Desbordamiento"}));
    EXPECT_EQ(texto(), u"abc");
    EXPECT_THROW(caja.reemplazaSeleccion(u"d"), Desbordamiento);
    caja.eventos.cambio = {};
    teclea("e");
    EXPECT_EQ(visto(), "abcde");
    EXPECT_EQ(texto(), u"abcde");
}

TEST_F(CajaTextoQtTest, ElAnfitrionEditaDentroDeUnAviso) {
    bool dentro = false;
    caja.eventos.cambio = [&](const CambioDeTexto&) {
        if (std::exchange(dentro, true)) return;
        const auto cursor = caja.inicioSeleccion();
        caja.selecciona(0, 0);
        caja.reemplazaSeleccion(u">\r\n");
        caja.selecciona(cursor + 3, 0);
        dentro = false;
    };
    teclea("ab");
    EXPECT_EQ(texto(), u">\r\n>\r\nab");
    EXPECT_EQ(visto(), ">\n>\nab");
    EXPECT_EQ(caja.inicioSeleccion(), 8);
    EXPECT_EQ(editor.textCursor().position(), 6);
}

// Whatever is typed and whatever the host does in between, the editor shows the box's text, selection and
// colours.
TEST_F(CajaTextoQtTest, TeclasYEdicionesAlAzar) {
    std::mt19937 azar(11);
    const Qt::Key teclas[] = {Qt::Key_Left,      Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down,
                              Qt::Key_Home,      Qt::Key_End,    Qt::Key_A,     Qt::Key_B,
                              Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return};
    const std::u16string_view piezas[] = {u"", u"\r\n", u"ñ\r\n\U0001F600", u"\r", u"\n", u"\u2029x"};
    for (int paso = 0; paso < 1500; ++paso) {
        if (azar() % 4 != 0) {
            pulsa(teclas[azar() % std::size(teclas)], azar() % 3 == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        } else {
            const auto total = caja.texto().size();
            caja.selecciona(static_cast<std::int32_t>(azar() % (total + 1)),
                            static_cast<std::int32_t>(azar() % 4));
            if (azar() % 2 == 0) caja.ponColorSeleccion(0x800000);
            if (azar() % 2 == 0) caja.reemplazaSeleccion(piezas[azar() % std::size(piezas)]);
        }
        if (paso % 250 == 249) caja.ponTexto(u"a\nb\r\n");
        QCoreApplication::processEvents();
        ASSERT_EQ(editor.document()->blockCount(), caja.numeroDeLineas()) << paso;
        const auto cursor = editor.textCursor();
        QTextBlock bloque = editor.document()->begin();
        for (std::int32_t linea = 0; linea < caja.numeroDeLineas(); ++linea, bloque = bloque.next()) {
            const auto inicio = static_cast<std::size_t>(caja.inicioDeLinea(linea));
            const auto fin = texto().find_first_of(u"\r\n", inicio);
            const std::u16string esperada = texto().substr(inicio, fin == texto().npos ? fin : fin - inicio);
            ASSERT_EQ(bloque.text().replace(QChar(0x21B5), QChar(0x2029)).toStdU16String(), esperada) << paso;
        }
        const auto seleccionada = cursor.selectedText().replace(QChar(0x21B5), QChar(0x2029));
        const auto deLaCaja = QString::fromStdU16String(caja.textoSeleccionado());
        if (caja.textoSeleccionado().find_first_of(u"\r\n") == std::u16string::npos) {
            ASSERT_EQ(seleccionada, deLaCaja) << paso;
        }
    }
}

} // namespace norvik
