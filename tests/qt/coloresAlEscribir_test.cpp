// SPDX-License-Identifier: MIT

// With colours up to date at all times the editor shows, after each key, what colouring all of the text
// shows.
#include "apoyo/pasos.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <random>

using namespace norvik;

namespace {

const QString mini = QStringLiteral(R"(Token com = "/\*([^*])*\*/", TipoToken = TTComentarioBloque;
                      Token cad = "'[^'\r\n]*'", TipoToken = TTCadena;
                      Token num = "[0-9]+", TipoToken = TTNumero;
                      Token ini = "begin", TipoToken = TTPalabraReservada;
                      Token mas = "\+", TipoToken = TTOperador; Token id = "[a-z]+";
                      S -> S mas T | T; T -> num | id | ini id | cad;)");

QPlainTextEdit& editorDe(ControlNorvik& norvik) {
    return static_cast<QPlainTextEdit&>(norvik.caja().ventana());
}

/// Of each line, where colours begin and which they are.
QString vistos(ControlNorvik& norvik) {
    QCoreApplication::processEvents();
    QString todos;
    for (QTextBlock b = editorDe(norvik).document()->begin(); b.isValid(); b = b.next()) {
        for (const auto& f : b.layout()->formats())
            todos += QStringLiteral("%1+%2 %3, ")
                         .arg(f.start)
                         .arg(f.length)
                         .arg(f.format.foreground().color().name());
        todos += '/';
    }
    return todos;
}

struct Teclas {
    explicit Teclas(ControlNorvik& norvik) : editor(editorDe(norvik)) {}

    void pulsa(unsigned cual) {
        static const QStringList trozos = {"/*", "*/", "'", "begin ", "12", " x ", "+", "*", "/"};
        static const QStringList pegados = {"begin 1\n2 x\n", "/* a\nb", "c */ 'd'\nx", "'"};
        constexpr Qt::Key mandos[] = {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left,
                                      Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Home};
        if (cual % 3 == 0) return QTest::keyClick(&editor, mandos[cual / 3 % std::size(mandos)]);
        if (cual % 7 != 1) return QTest::keyClicks(&editor, trozos[cual / 7 % trozos.size()]);
        QApplication::clipboard()->setText(pegados[cual / 7 % pegados.size()]);
        QTest::keyClick(&editor, Qt::Key_Insert, Qt::ShiftModifier);
    }

    QPlainTextEdit& editor;
};

} // namespace

TEST(ColoresAlEscribir, TeclasAlAzar) {
    ControlNorvik norvik;
    ControlNorvik deUnaVez;
    for (ControlNorvik* const n : {&norvik, &deUnaVez}) {
        n->resize(300, 200);
        n->Colorear(true);
        ASSERT_TRUE(n->cargaLenguaje(mini));
        n->show();
    }
    norvik.coloreaAlEscribir(true);
    QApplication::setActiveWindow(&norvik);
    norvik.setFocus();
    Teclas teclas(norvik);
    std::mt19937 azar(20261126);
    bool marcada = false;
    QObject::connect(&norvik, &ControlNorvik::change, &norvik, [&] { marcada = false; });
    int comparados = 0;
    for (int paso = 0, todos = pasos(800); paso < todos; ++paso) {
        if (azar() % 6 == 0) {
            const auto lineas = static_cast<unsigned>(norvik.caja().numeroDeLineas());
            norvik.control().MarcaErrorLinea(static_cast<std::int16_t>(azar() % lineas + 1));
            marcada = true;
        }
        if (norvik.Text().size() > 200) {
            QTest::keyClick(&teclas.editor, Qt::Key_Home, Qt::ShiftModifier);
            for (int i = 0; i < 3; ++i) QTest::keyClick(&teclas.editor, Qt::Key_Up, Qt::ShiftModifier);
            QTest::keyClick(&teclas.editor, Qt::Key_Delete);
        }
        teclas.pulsa(static_cast<unsigned>(azar()));
        if (marcada) continue;
        deUnaVez.Text(norvik.Text());
        deUnaVez.control().ColoreaTodo();
        ASSERT_EQ(vistos(norvik), vistos(deUnaVez)) << paso << "\n" << norvik.Text().toStdString();
        ++comparados;
    }
    EXPECT_GT(comparados, 400);
}
