// SPDX-License-Identifier: MIT

// The widget with real keys does what the steps of its control say.
#include "control/ordenesAlAzar.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTest>

using namespace norvik;

namespace {

Qt::Key teclaDe(const Golpe& g) {
    switch (g.codigo) {
    case tecla::retorno:
        return Qt::Key_Return;
    case tecla::retroceso:
        return Qt::Key_Backspace;
    case tecla::suprimir:
        return Qt::Key_Delete;
    case tecla::insertar:
        return Qt::Key_Insert;
    case tecla::izquierda:
        return Qt::Key_Left;
    case tecla::derecha:
        return Qt::Key_Right;
    case golpe::inicio:
        return Qt::Key_Home;
    case golpe::fin:
        return Qt::Key_End;
    case golpe::tabulador:
        return Qt::Key_Tab;
    default:
        return static_cast<Qt::Key>(QChar(g.escrito.empty() ? g.codigo : g.escrito[0]).toUpper().unicode());
    }
}

void pulsaEn(QWidget& editor, const Golpe& g) {
    const bool pega = g.codigo == tecla::insertar;
    if (pega) QApplication::clipboard()->setText(aQString(g.escrito));
    const QString texto = g.codigo == tecla::retorno ? QStringLiteral("\r")
                          : pega                     ? QString()
                                                     : aQString(g.escrito);
    const Qt::KeyboardModifiers teclas = g.shift == mascara::control      ? Qt::ControlModifier
                                         : g.shift == mascara::mayusculas ? Qt::ShiftModifier
                                                                          : Qt::NoModifier;
    for (const auto accion : {QTest::Press, QTest::Release})
        QTest::sendKeyEvent(accion, &editor, teclaDe(g), texto, teclas);
}

} // namespace

TEST(PorPasosQt, TeclasYLlamadasAlAzar) {
    QWidget formulario;
    ControlNorvik norvik(&formulario);
    QPushButton otro(&formulario);
    norvik.setGeometry(0, 0, 300, 200);
    formulario.show();
    QApplication::setActiveWindow(&formulario);
    norvik.setFocus();
    QWidget& editor = norvik.caja().ventana();
    OrdenesAlAzar ordenes(norvik.control(), norvik.caja(),
                          {.pulsa = [&](const Golpe& g) { pulsaEn(editor, g); },
                           .tabula =
                               [&] {
                                   pulsaEn(editor, {golpe::tabulador, 0, u"\t"});
                               },
                           .pierdeElFoco =
                               [&] {
                                   otro.setFocus();
                                   norvik.setFocus();
                               },
                           .tabularQuitaElFoco = true},
                          1);
    ordenes.haz(pasos(3000));
}
