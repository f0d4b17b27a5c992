// SPDX-License-Identifier: MIT

// The questions that a person is really asked, answered by keys.
#include "apoyo/carpetaTemporal.hpp"
#include "dialogosQt.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

using namespace norvik;
using namespace norvik::taller;

namespace {

struct DialogosDePersona : testing::Test {
    /// What is done in the next modal window, which is not left open.
    template <typename Dialogo, typename Accion>
    static void enElSiguiente(Accion accion) {
        QTimer::singleShot(0, qApp, [accion] {
            auto* const dialogo = qobject_cast<Dialogo*>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            accion(*dialogo);
            if (dialogo->isVisible()) dialogo->reject();
        });
    }
    QString pon(std::string_view nombre) const {
        return QString::fromStdString(carpeta.pon(nombre, "x").string());
    }

    apoyo::CarpetaTemporal carpeta;
    DialogosQt dialogos;
};

} // namespace

TEST_F(DialogosDePersona, UnNombreMaloNoSeAcepta) {
    const auto reparos = [](const QString& nombre) { return nombre == "b" ? QString("ya está") : QString(); };
    const auto pide = [&](const char* teclas) {
        enElSiguiente<QDialog>([teclas](QDialog& d) {
            auto& campo = *d.findChild<QLineEdit*>();
            EXPECT_EQ(d.findChild<QLabel*>()->buddy(), &campo);
            QTest::keyClicks(&campo, teclas); // in place of the present one
            EXPECT_EQ(campo.accessibleDescription(), *teclas != '\0' && teclas[1] == '\0' ? "ya está" : "");
            QTest::keyClick(&campo, Qt::Key_Return);
        });
        return dialogos.pideNombre("Otro nombre", "antes", reparos);
    };
    EXPECT_EQ(pide("b"), std::nullopt);
    EXPECT_EQ(pide("bc"), "bc");
    EXPECT_EQ(pide(""), "antes");
}

TEST_F(DialogosDePersona, AnteUnChoqueLaTeclaSinMirarNadaPierde) {
    QWidget ventana;
    ventana.show();
    for (const auto& [titulo, respuesta] : {std::pair("&Sobrescribir", Choque::Sobrescribir),
                                            {"&Guardar como…", Choque::GuardarComo},
                                            {"&Recargar", Choque::Recargar},
                                            {"&Cancelar", Choque::Cancelar},
                                            {"(Escape)", Choque::Cancelar},
                                            {"(Intro)", Choque::GuardarComo}}) {
        QApplication::setActiveWindow(&ventana);
        enElSiguiente<QMessageBox>([&ventana, cual = QString(titulo)](QMessageBox& caja) {
            EXPECT_EQ(caja.parentWidget(), &ventana);
            for (auto* const boton : caja.buttons())
                if (boton->text() == cual) return boton->click();
            QTest::keyClick(&caja, cual == "(Intro)" ? Qt::Key_Return : Qt::Key_Escape);
        });
        EXPECT_EQ(dialogos.preguntaChoque("<b>otro</b> lo cambió"), respuesta) << titulo;
    }
}

/// Between a box and the next one the window manager has not yet said which window is used.
TEST_F(DialogosDePersona, DosPreguntasSeguidasEstanSobreLaMismaVentana) {
    QWidget otra, ventana;
    dialogos.ponVentana(&otra);
    for (QWidget* const suya : {&otra, &ventana}) suya->show();
    QApplication::setActiveWindow(&ventana);
    for (int vez = 0; vez < 2; ++vez) {
        enElSiguiente<QMessageBox>([&](QMessageBox& caja) { EXPECT_EQ(caja.parentWidget(), &ventana); });
        dialogos.pregunta("¿Sí?", "&Guardar", "&No guardar");
        QApplication::setActiveWindow(nullptr);
    }
    ventana.hide();
    enElSiguiente<QMessageBox>([&](QMessageBox& caja) { EXPECT_EQ(caja.parentWidget(), &otra); });
    dialogos.pregunta("¿Sí?", "&Guardar", "&No guardar");
}

TEST_F(DialogosDePersona, ElFicheroQueNoSeAceptaNoSeElige) {
    const QString uno = pon("uno.txt"), otro = pon("otro.txt");
    const auto abre = [&](bool acepta) {
        enElSiguiente<QFileDialog>([&, acepta](QFileDialog& d) {
            d.selectFile(uno);
            if (acepta) QTest::keyClick(d.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        return dialogos.eligeParaAbrir("Abrir", "Todos (*)");
    };
    EXPECT_EQ(abre(false), std::nullopt);
    EXPECT_EQ(abre(true), uno);
    enElSiguiente<QFileDialog>([&](QFileDialog& d) {
        EXPECT_EQ(d.directory().absolutePath(), QFileInfo(uno).absolutePath()); // where the last one was
        EXPECT_EQ(d.iconProvider()->type(QFileInfo(d.directory().absolutePath())), "Carpeta");
        EXPECT_EQ(d.selectedFiles(), QStringList{otro});
        d.selectFile("nuevo");
        QTest::keyClick(d.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_EQ(dialogos.eligeParaGuardar("Guardar", "Todos (*)", otro, "nvk"),
              QFileInfo(uno).absolutePath() + "/nuevo.nvk");
}
