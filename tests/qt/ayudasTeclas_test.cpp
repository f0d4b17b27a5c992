// SPDX-License-Identifier: MIT

// Aids of editing that come from keys and the mouse, as a person uses them.
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace norvik;

namespace {

struct AyudasTeclas : testing::Test {
    AyudasTeclas() {
        antes.setGeometry(0, 0, 80, 25);
        norvik.setGeometry(0, 30, 400, 200);
        formulario.show();
        QApplication::setActiveWindow(&formulario);
        norvik.setFocus();
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        QTest::keyClick(&editor, tecla, teclas);
        QCoreApplication::processEvents();
    }
    void teclea(const QString& texto) { QTest::keyClicks(&editor, texto); }
    /// The text with its selection, as the control and the editor have it; / is a line break.
    QString visto() const {
        QCoreApplication::processEvents();
        QString texto = norvik.Text();
        texto.insert(norvik.SelStart() + norvik.SelLength(), u']').insert(norvik.SelStart(), u'[');
        EXPECT_EQ(editor.toPlainText(), conSaltosDeQt(norvik.Text()));
        EXPECT_EQ(editor.textCursor().selectedText().size(), conSaltosDeQt(norvik.SelText()).size());
        return conSaltosDeQt(texto).replace(u'\n', u'/').replace(QLatin1String("[]"), QLatin1String("|"));
    }

    QWidget formulario;
    QPushButton antes{&formulario};
    SistemaDePrueba sistema;
    ControlNorvik norvik{sistema, &formulario};
    QPlainTextEdit& editor = static_cast<QPlainTextEdit&>(norvik.caja().ventana());
};

} // namespace

TEST_F(AyudasTeclas, DeshacerPorPalabras) {
    norvik.setProperty("deshacePorPalabras", true);
    teclea("uno dos");
    pulsa(Qt::Key_Return);
    QApplication::clipboard()->setText("x\ny");
    pulsa(Qt::Key_Insert, Qt::ShiftModifier);
    teclea("z");
    pulsa(Qt::Key_Left, Qt::ShiftModifier);
    pulsa(Qt::Key_Left, Qt::ShiftModifier);
    pulsa(Qt::Key_Delete);
    EXPECT_EQ(visto(), "uno dos/x/|");
    QString pasos;
    for (; norvik.control().puedeDeshacer(); pasos += visto() + ' ') norvik.control().Undo();
    EXPECT_EQ(pasos, "uno dos/x/[yz] uno dos/x/y| uno dos/| uno dos| uno | | ");
    while (norvik.control().puedeRehacer()) norvik.control().Redo();
    EXPECT_EQ(visto(), "uno dos/x/|");
}

TEST_F(AyudasTeclas, ArrastrarEsUnPaso) {
    norvik.deshacePorPalabras(true);
    norvik.Text("uno dos");
    norvik.SelStart(0);
    norvik.SelLength(4);
    CajaTextoQt& caja = norvik.caja();
    caja.atiende([&] { caja.suelta("uno ", 7, true); });
    EXPECT_EQ(visto(), "dos[uno ]");
    norvik.control().Undo();
    EXPECT_EQ(visto(), "[uno ]dos");
    EXPECT_FALSE(norvik.control().puedeDeshacer());
    norvik.control().Redo();
    EXPECT_EQ(norvik.Text(), "dosuno ");
}

TEST_F(AyudasTeclas, SangrarLaSeleccion) {
    norvik.EspaciosXTAB(2);
    norvik.Text("a\nb");
    pulsa(Qt::Key_A, Qt::ControlModifier);
    norvik.SelLength(3);
    pulsa(Qt::Key_Backtab, Qt::ShiftModifier); // the aid is off
    EXPECT_TRUE(antes.hasFocus());
    for (int vez = 0; vez < 2; ++vez) {
        norvik.setFocus();
        norvik.setProperty("sangraSeleccion", true);
        norvik.SelStart(0);
        norvik.SelLength(4);
        pulsa(Qt::Key_Tab);
        EXPECT_EQ(visto(), "[  a/  b]");
        pulsa(Qt::Key_Tab);
        EXPECT_EQ(visto(), "[    a/    b]");
        pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
        pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
        pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(visto(), "[a/b]");
        EXPECT_TRUE(editor.hasFocus());
        pulsa(Qt::Key_Backtab, Qt::ShiftModifier | Qt::ControlModifier);
        EXPECT_TRUE(antes.hasFocus());
        norvik.setProperty("sangraSeleccion", false);
    }
    norvik.setFocus();
    norvik.SelStart(0);
    norvik.SelLength(4);
    pulsa(Qt::Key_Tab);
    EXPECT_EQ(visto(), "  |");
}

TEST_F(AyudasTeclas, TeclasDePalabra) {
    const auto teclas = [&](Qt::KeyboardModifiers otras) {
        norvik.Text("uno dos tres");
        norvik.SelStart(7);
        pulsa(Qt::Key_Left, Qt::ControlModifier | otras);
    };
    std::vector<int> codigos;
    QObject::connect(&norvik, &ControlNorvik::KeyDown, &norvik,
                     [&](qint16& codigo, qint16&) { codigos.push_back(codigo); });
    teclas({});
    EXPECT_EQ(visto(), "uno dos| tres");
    EXPECT_EQ(codigos.back(), 0); // as it always was
    norvik.setProperty("teclasDePalabra", true);
    codigos.clear();
    teclas({});
    EXPECT_EQ(visto(), "uno |dos tres");
    EXPECT_EQ(codigos.back(), 37);
    pulsa(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(visto(), "uno dos |tres");
    pulsa(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(visto(), "uno |tres");
    pulsa(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(visto(), "uno |");
    pulsa(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(visto(), "uno |");
    teclas(Qt::ShiftModifier);
    EXPECT_EQ(visto(), "uno [dos] tres");
    pulsa(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(visto(), "uno dos tres|");
    pulsa(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(visto(), "|uno dos tres");
    norvik.SelStart(4);
    norvik.SelLength(3);
    pulsa(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(visto(), "uno | tres");
    QObject::connect(&norvik, &ControlNorvik::KeyDown, &norvik, [](qint16& codigo, qint16&) { codigo = 0; });
    pulsa(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(visto(), "uno | tres");
}

// ---- what a host binds to its own button

TEST_F(AyudasTeclas, UnBotonQueTieneElFocoEditaLoElegido) {
    const auto desdeElBoton = [&](AccionNorvik accion) {
        const auto enlace =
            QObject::connect(&antes, &QPushButton::clicked, norvik.accion(accion), &QAction::trigger);
        QTest::mouseClick(&antes, Qt::LeftButton);
        QObject::disconnect(enlace);
        EXPECT_TRUE(antes.hasFocus());
        QCoreApplication::processEvents();
    };
    const auto copiado = [] { return QApplication::clipboard()->text(); };
    for (const bool oculta : {true, false}) {
        norvik.HideSelection(oculta);
        norvik.Text("uno dos tres");
        norvik.setFocus();
        for (int vez = 0; vez < 2; ++vez) {
            norvik.SelStart(4);
            norvik.SelLength(3);
            QApplication::clipboard()->clear();
            desdeElBoton(AccionNorvik::Copiar);
            EXPECT_EQ(copiado(), "dos");
            QApplication::clipboard()->clear();
            desdeElBoton(AccionNorvik::Cortar);
            EXPECT_EQ(copiado(), "dos");
            EXPECT_EQ(norvik.Text(), "uno  tres");
            desdeElBoton(AccionNorvik::Pegar);
            EXPECT_EQ(norvik.Text(), "uno dos tres");
        }
        norvik.SelStart(0);
        norvik.SelLength(4);
        desdeElBoton(AccionNorvik::Pegar);
        EXPECT_EQ(norvik.Text(), "dosdos tres");
        desdeElBoton(AccionNorvik::SeleccionarTodo);
        EXPECT_EQ(norvik.SelText(), "dosdos tres");
        EXPECT_EQ(editor.textCursor().hasSelection(), !oculta);
        desdeElBoton(AccionNorvik::Cortar);
        EXPECT_EQ(norvik.Text(), "");
    }
}
