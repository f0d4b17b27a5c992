// SPDX-License-Identifier: MIT

// A host that deletes the editor, now or later, throws, or loads, compiles and parses at each event.
#include "qt/anfitrionHostil.hpp"

#include <QMessageBox>

using namespace norvik;
using namespace norvik::hostil;

namespace {

void suelta(Hostil& h) {
    QMimeData datos;
    datos.setText("a\nb");
    QWidget* const vista = static_cast<QPlainTextEdit*>(h.editor())->viewport();
    QDropEvent evento({30, 30}, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(vista, &evento);
}

/// What the editor asks of its box when the selection is dragged elsewhere.
void mueve(Hostil& h) {
    teclea(h, Qt::Key_Right, {}, Qt::ShiftModifier);
    if (h.editor() == nullptr) return;
    CajaTextoQt& caja = h.norvik->caja();
    caja.atiende([&] { caja.suelta("1", 7, true); });
}

void compone(Hostil& h) {
    QInputMethodEvent evento("", {});
    evento.setCommitString("ab");
    QApplication::sendEvent(h.editor(), &evento);
}

void pegaDosLineas(Hostil& h) {
    QApplication::clipboard()->setText("7\n8");
    teclea(h, Qt::Key_Insert, {}, Qt::ShiftModifier);
}

const Operaciones delTeclado = {
    {"letra", [](Hostil& h) { teclea(h, Qt::Key_A, "a"); }},
    {"retorno", [](Hostil& h) { teclea(h, Qt::Key_Return, "\r"); }},
    {"retroceso",
     [](Hostil& h) {
         teclea(h, Qt::Key_End);
         teclea(h, Qt::Key_Backspace, "\b");
     }},
    {"suprimir", [](Hostil& h) { teclea(h, Qt::Key_Delete, "\x7f"); }},
    {"abajo", [](Hostil& h) { teclea(h, Qt::Key_Down); }},
    {"seleccionar",
     [](Hostil& h) {
         teclea(h, Qt::Key_Down, {}, Qt::ShiftModifier);
         teclea(h, Qt::Key_A, "a");
     }},
    {"pegar", pegaDosLineas},
    {"cortar",
     [](Hostil& h) {
         teclea(h, Qt::Key_Down, {}, Qt::ShiftModifier);
         teclea(h, Qt::Key_Delete, {}, Qt::ShiftModifier);
     }},
    {"tabulador", [](Hostil& h) { teclea(h, Qt::Key_Tab, "\t"); }},
    {"mayusculas y tabulador", [](Hostil& h) { teclea(h, Qt::Key_Backtab, {}, Qt::ShiftModifier); }},
    {"control y tabulador", [](Hostil& h) { teclea(h, Qt::Key_Tab, {}, Qt::ControlModifier); }},
    {"foco en el tabulador",
     [](Hostil& h) { h.norvik->findChild<QWidget*>("tabulador")->setFocus(Qt::TabFocusReason); }},
    {"foco",
     [](Hostil& h) {
         teclea(h, Qt::Key_A, "a");
         if (!h.otro.isNull()) h.otro->setFocus();
     }},
    {"componer", compone},
    {"soltar", suelta},
    {"mover", mueve},
    {"seleccionar todo", [](Hostil& h) { static_cast<QPlainTextEdit*>(h.editor())->selectAll(); }},
};

const Operaciones delRaton = {
    {"raton en el texto",
     [](Hostil& h) {
         pulsa(h, Qt::LeftButton, [&] { return static_cast<QPlainTextEdit*>(h.editor())->viewport(); });
     }},
    {"otro boton",
     [](Hostil& h) {
         pulsa(h, Qt::RightButton, [&] { return static_cast<QPlainTextEdit*>(h.editor())->viewport(); });
     }},
    {"raton en el control", [](Hostil& h) { pulsa(h, Qt::LeftButton, [&] { return h.norvik.data(); }); }},
    {"raton en el margen",
     [](Hostil& h) { pulsa(h, Qt::LeftButton, [&] { return h.norvik->findChild<QWidget*>("debugBox"); }); }},
};

const Operaciones delPrograma = {
    {"Text", [](Hostil& h) { h.norvik->Text("5\n6"); }},
    {"Text como propiedad", [](Hostil& h) { h.norvik->setProperty("Text", "5\n6"); }},
    {"SelStart como propiedad", [](Hostil& h) { h.norvik->setProperty("SelStart", 7); }},
    {"Font como propiedad", [](Hostil& h) { h.norvik->setProperty("Font", QFont("Otra", 20)); }},
    {"MargenIzquierdo como propiedad", [](Hostil& h) { h.norvik->setProperty("MargenIzquierdo", 7); }},
    {"Undo",
     [](Hostil& h) {
         h.norvik->SelText("x\ny");
         if (!h.norvik.isNull()) h.norvik->control().Undo();
     }},
    {"CargaGramatica", [](Hostil& h) { h.norvik->control().CargaGramatica(u"Token a = \"[a\"; S -> a;"); }},
    {"CargaGramatica mala", [](Hostil& h) { h.norvik->control().CargaGramatica(u"Token"); }},
    {"GeneraCompilador", [](Hostil& h) { h.norvik->control().GeneraCompilador(); }},
    {"OlvidaLenguaje", [](Hostil& h) { QMetaObject::invokeMethod(h.norvik, "OlvidaLenguaje"); }},
    {"SetER", [](Hostil& h) { h.norvik->control().SetER(u"[", u"x", true); }},
    {"ConstruyeArbolSintactico", [](Hostil& h) { h.norvik->control().ConstruyeArbolSintactico(); }},
};

const std::initializer_list<const Operaciones*> delUsuario = {&delTeclado, &delRaton};
const std::initializer_list<const Operaciones*> todas = {&delTeclado, &delRaton, &delPrograma};

} // namespace

TEST(AnfitrionHostil, ElControlSeBorraEnSuSuceso) {
    const Despues nada = [](Hostil& h, const std::string& caso, bool) {
        EXPECT_TRUE(h.norvik.isNull()) << caso;
        EXPECT_EQ(h.servicios.puntero(), Puntero::Normal) << caso;
    };
    enTodos(
        todas, [](Hostil& h) { borra(h.norvik); }, nada);
    enTodos(
        todas, [](Hostil& h) { h.norvik->deleteLater(); }, nada);
    // Not by the mouse: a window that is deleted while it is given a click is too much for Qt itself.
    enTodos(
        {&delTeclado, &delPrograma}, [](Hostil& h) { borra(h.formulario); }, nada);
}

/// A box of the host's waits meanwhile, and a timer deletes the control behind it.
TEST(AnfitrionHostil, ElControlSeBorraMientrasSuReceptorEspera) {
    enTodos(
        todas,
        [](Hostil& h) {
            QEventLoop espera;
            QTimer::singleShot(0, [&] {
                borra(h.norvik);
                QTimer::singleShot(0, &espera, &QEventLoop::quit);
            });
            espera.exec();
        },
        [](Hostil& h, const std::string& caso, bool) { EXPECT_TRUE(h.norvik.isNull()) << caso; });
}

TEST(AnfitrionHostil, LoQueLanzaUnReceptorEsUnMensaje) {
    const std::pair<Accion, std::u16string> fallos[] = {
        {[](Hostil&) { throw Desbordamiento(); }, u"Desbordamiento"},
        {[](Hostil&) { throw std::runtime_error("receptor"); }, u"receptor"},
        {[](Hostil&) { throw 1; }, u"Fallo desconocido"}};
    for (const auto& [accion, texto] : fallos) {
        enTodos(delUsuario, accion, [&mensaje = texto](Hostil& h, const std::string& caso, bool lanzado) {
            EXPECT_FALSE(lanzado) << caso;
            EXPECT_EQ(h.servicios.mensajes, std::vector<std::u16string>{mensaje}) << caso;
            EXPECT_EQ(static_cast<QPlainTextEdit*>(h.editor())->toPlainText(),
                      conSaltosDeQt(h.norvik->Text()))
                << caso;
        });
    }
    enTodos({&delPrograma}, fallos[0].first, [](Hostil& h, const std::string& caso, bool lanzado) {
        EXPECT_FALSE(lanzado && caso.find("como propiedad") != std::string::npos) << caso;
        EXPECT_EQ(h.servicios.puntero(), Puntero::Normal) << caso;
        h.norvik->control().CargaGramatica(vistaDe(restas));
        EXPECT_TRUE(h.norvik->control().GeneraCompilador()) << caso;
    });
}

TEST(AnfitrionHostil, UnReceptorCargaCompilaYAnaliza) {
    int cargas = 0;
    enTodos(
        todas,
        [&](Hostil& h) {
            Norvik& control = h.norvik->control();
            h.norvik->OlvidaLenguaje(); // a slot: refused while a language is being loaded, with a message
            h.norvik->SetTextoInvisible("1");
            try {
                control.CargaGramatica(vistaDe(restas));
                control.GeneraCompilador();
                ++cargas;
            } catch (const ArgumentoNoValido&) { // it is being loaded by another
            }
            control.ConstruyeArbolSintacticoTextoInvisible();
        },
        [](Hostil& h, const std::string& caso, bool lanzado) {
            EXPECT_FALSE(lanzado) << caso;
            EXPECT_EQ(h.servicios.puntero(), Puntero::Normal) << caso;
        });
    EXPECT_GT(cargas, 0);
}

/// The services of a widget that was given none: real boxes, and the event loop's own timers.
TEST(AnfitrionHostil, ElTemporizadorDeUnaCompilacion) {
    for (const bool seBorra : {false, true}) {
        QPointer<ControlNorvik> norvik = &nuevo<ControlNorvik>();
        norvik->control().CargaGramatica(vistaDe(sumas));
        norvik->control().GeneraCompilador();
        norvik->Text("1+2");
        int rechazos = 0;
        int analisis = 0;
        const auto cadaVez = [&] {
            try {
                analisis += norvik->control().ConstruyeArbolSintactico() ? 1 : 0;
                norvik->control().CargaGramatica(vistaDe(restas));
            } catch (const ArgumentoNoValido&) {
                ++rechazos;
            }
            if (seBorra) borra(norvik);
        };
        QTimer temporizador;
        QObject::connect(&temporizador, &QTimer::timeout, norvik, cadaVez);
        temporizador.start(0);
        EXPECT_TRUE(norvik->control().GeneraCompilador());
        temporizador.stop();
        EXPECT_GT(rechazos, 0);
        EXPECT_EQ(analisis, rechazos); // with the language of before, whole
        EXPECT_EQ(norvik.isNull(), seBorra);
        borra(norvik);
        Hostil::acaba();
    }
}

TEST(AnfitrionHostil, UnaCargaEntraEnSiMismaDesdeSuAviso) {
    for (const bool seBorra : {false, true}) {
        QPointer<ControlNorvik> norvik = &nuevo<ControlNorvik>();
        int avisos = 0;
        const auto alVerAviso = [&] {
            auto* const aviso = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (aviso == nullptr) return;
            ++avisos;
            EXPECT_THROW(norvik->control().CargaGramatica(vistaDe(restas)), ArgumentoNoValido);
            seBorra ? borra(norvik) : aviso->accept();
        };
        QTimer temporizador;
        QObject::connect(&temporizador, &QTimer::timeout, norvik, alVerAviso);
        temporizador.start(0);
        EXPECT_TRUE(norvik->control().CargaGramatica(u"Token a = \"[a\"; Token b = \"b\"; S -> b;"));
        EXPECT_EQ(avisos, 1);
        EXPECT_TRUE(seBorra || norvik->control().Gramatica().GetRightRegla(1) == u"b");
        borra(norvik);
        Hostil::acaba();
    }
}

TEST(AnfitrionHostil, UnaPropiedadDeQtNoTomaLoQueNoCabe) {
    ControlNorvik norvik;
    norvik.Text(QString(40000, u'x'));
    for (const char* propiedad :
         {"MargenIzquierdo", "EspaciosXTAB", "SelStart", "SelLength", "SelFontSize"}) {
        const QVariant antes = norvik.property(propiedad);
        for (const int valor : {32768, -32769}) norvik.setProperty(propiedad, valor);
        EXPECT_EQ(norvik.property(propiedad), antes) << propiedad;
    }
    EXPECT_THROW(norvik.MargenIzquierdo(32768), Desbordamiento);
    norvik.caja().selecciona(1, 39000);
    EXPECT_EQ(norvik.property("SelLength").toInt(), 39000);
}
