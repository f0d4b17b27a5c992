// SPDX-License-Identifier: MIT

// The tab key in the forms that hosts make, none of which arranges anything: Tab writes, Shift+Tab goes to
// whom stands before, Ctrl+Tab to whom stands behind.
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>

using namespace norvik;

namespace {

/// A window with the control, and those that stand before it and behind it when it goes round.
struct Formulario {
    std::unique_ptr<QWidget> ventana = std::make_unique<QWidget>();
    ControlNorvik* norvik = nullptr;
    QWidget* antes = nullptr;
    QWidget* despues = nullptr;
};

template <typename Widget, typename... Argumentos>
Widget* en(QWidget* padre, Argumentos... argumentos) {
    return &nuevo<Widget>(argumentos..., padre);
}

/// As many line edits before and behind as are asked for, in the order in which they are made.
Formulario seguidos(int delante, int detras) {
    Formulario f;
    for (int i = 0; i < delante; ++i) f.antes = en<QLineEdit>(f.ventana.get());
    f.norvik = en<ControlNorvik>(f.ventana.get());
    for (int i = 0; i < detras; ++i) {
        QWidget* const linea = en<QLineEdit>(f.ventana.get());
        if (f.despues == nullptr) f.despues = linea;
        if (delante == 0) f.antes = linea;
    }
    if (detras == 0 && delante > 0) f.despues = f.ventana->findChild<QLineEdit*>();
    return f;
}

/// A control without a parent takes its place in a layout, behind what was there.
Formulario enColumna() {
    Formulario f;
    auto& columna = nuevo<QVBoxLayout>(f.ventana.get());
    f.norvik = en<ControlNorvik>(nullptr);
    f.antes = en<QLineEdit>(nullptr);
    f.despues = en<QLineEdit>(nullptr);
    for (QWidget* w : {f.antes, static_cast<QWidget*>(f.norvik), f.despues}) columna.addWidget(w);
    return f;
}

Formulario central() {
    Formulario f;
    auto ventana = std::make_unique<QMainWindow>();
    f.norvik = en<ControlNorvik>(nullptr);
    ventana->setCentralWidget(f.norvik);
    f.antes = f.despues = en<QLineEdit>(en<QToolBar>(ventana.get()));
    ventana->statusBar()->addWidget(f.antes);
    f.ventana = std::move(ventana);
    return f;
}

/// A designer's <tabstops>, in an order that is not that of the widgets.
Formulario conTabstops() {
    Formulario f;
    f.despues = en<QLineEdit>(f.ventana.get());
    f.norvik = en<ControlNorvik>(f.ventana.get());
    f.antes = en<QLineEdit>(f.ventana.get());
    QWidget::setTabOrder(f.antes, f.norvik);
    QWidget::setTabOrder(f.norvik, f.despues);
    return f;
}

Formulario mudado() {
    Formulario primero = seguidos(1, 1);
    Formulario f;
    f.antes = en<QLineEdit>(f.ventana.get());
    f.norvik = primero.norvik;
    f.norvik->setParent(f.ventana.get());
    f.despues = en<QLineEdit>(f.ventana.get());
    return f;
}

Formulario dosControles() {
    Formulario f;
    f.norvik = en<ControlNorvik>(f.ventana.get());
    f.antes = f.despues = &en<ControlNorvik>(f.ventana.get())->caja().ventana();
    return f;
}

Formulario suelto() {
    Formulario f;
    auto norvik = std::make_unique<ControlNorvik>();
    f.norvik = norvik.get();
    f.ventana = std::move(norvik);
    return f;
}

struct Caso {
    const char* nombre;
    std::function<Formulario()> haz;
};

const auto casos = std::to_array<Caso>({{"primero", [] { return seguidos(0, 2); }},
                                        {"ultimo", [] { return seguidos(2, 0); }},
                                        {"enMedio", [] { return seguidos(1, 1); }},
                                        {"solo", [] { return seguidos(0, 0); }},
                                        {"suelto", suelto},
                                        {"enColumna", enColumna},
                                        {"central", central},
                                        {"conTabstops", conTabstops},
                                        {"mudado", mudado},
                                        {"dosControles", dosControles}});

class OrdenTabulador : public testing::TestWithParam<Caso> {
protected:
    void SetUp() override {
        f.ventana->resize(300, 200);
        f.ventana->show();
        QApplication::setActiveWindow(f.ventana.get());
        f.norvik->setFocus();
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), tecla, teclas);
    }
    QWidget* elTexto() const { return &f.norvik->caja().ventana(); }

    Formulario f = GetParam().haz();
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Formularios, OrdenTabulador, testing::ValuesIn(casos),
                         [](const auto& caso) { return caso.param.nombre; });

TEST_P(OrdenTabulador, EscribeYSale) {
    for (const char* escrito : {"    ", "        "}) {
        pulsa(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), elTexto());
        EXPECT_STREQ(qPrintable(f.norvik->Text()), escrito);
    }
    for (int vez = 0; vez < 2; ++vez) {
        pulsa(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(QApplication::focusWidget(), f.despues != nullptr ? f.despues : elTexto());
        f.norvik->setFocus();
        pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), f.antes != nullptr ? f.antes : elTexto());
        if (f.antes != nullptr && f.antes != f.despues) pulsa(Qt::Key_Tab); // in, the way a person comes
        EXPECT_EQ(QApplication::focusWidget() == elTexto(), f.antes != f.despues || f.antes == nullptr);
        f.norvik->setFocus();
    }
    EXPECT_STREQ(qPrintable(f.norvik->Text()), "        ");
}
