// SPDX-License-Identifier: MIT

// A form whose receivers do at each event of each thing that can be done to the editor, by its user or by the
// program, what a host may do: delete it, now or later, throw, or load, compile and parse. What must not be
// touched then is for the sanitizers to say.
#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

const QString sumas = QStringLiteral(R"(Token mas = "\+"; Token num = "[0-9]+"; E -> E mas num | num;)");
const QString restas = QStringLiteral(R"(Token men = "-"; Token num = "[0-9]+"; E -> E men num | num;)");

void borra(QObject* objeto) {
    const std::unique_ptr<QObject> suyo(objeto);
}

struct Hostil;
using Accion = std::function<void(Hostil&)>;

/// A form as a host makes it, which does something at the nth thing that it hears of.
struct Hostil {
    struct Servicios final : SistemaQt {
        explicit Servicios(Hostil& hostil) : suyo(hostil) {}
        Respuesta muestraMensaje(const Mensaje& mensaje) override {
            mensajes.push_back(mensaje.texto);
            suyo.suceso();
            return Respuesta::Aceptar;
        }
        void procesaEventos() override { suyo.suceso(); }
        std::vector<std::u16string> mensajes;
        Hostil& suyo;
    };

    Hostil() {
        auto& columna = nuevo<QVBoxLayout>(formulario.data());
        for (QWidget* w : {static_cast<QWidget*>(otro.data()), static_cast<QWidget*>(norvik.data())})
            columna.addWidget(w);
        formulario->resize(300, 200);
        formulario->show();
        QApplication::setActiveWindow(formulario);
        norvik->Colorear(true);
        norvik->MarcarErrores(true);
        norvik->MuestraMensajesDeError(true);
        norvik->Text("1 + 2\n3");
        norvik->control().CargaGramatica(vistaDe(sumas));
        norvik->control().GeneraCompilador();
        norvik->setFocus();
        QApplication::processEvents();
        conecta();
    }
    Hostil(const Hostil&) = delete;
    Hostil& operator=(const Hostil&) = delete;
    ~Hostil() {
        accion = nullptr;
        borra(formulario);
        acaba();
    }
    void conecta() {
        ControlNorvik* const n = norvik;
        const auto oye = [this](auto&&...) { suceso(); };
        const auto oyeTodo = [&](auto... senales) { (QObject::connect(n, senales, formulario, oye), ...); };
        oyeTodo(&ControlNorvik::change, &ControlNorvik::SelChange, &ControlNorvik::Click,
                &ControlNorvik::CambioDeLinea, &ControlNorvik::KeyDown, &ControlNorvik::KeyPress,
                &ControlNorvik::KeyUp, &ControlNorvik::MouseDown, &ControlNorvik::MouseMove,
                &ControlNorvik::MouseUp, &ControlNorvik::propiedadCambiada);
    }
    void suceso() {
        if (accion && --faltan == 0) accion(*this);
    }
    QWidget* editor() const { return norvik.isNull() ? nullptr : &norvik->caja().ventana(); }
    /// What was put off is done.
    static void acaba() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Accion accion;
    int faltan = 0;
    Servicios servicios{*this};
    QPointer<QWidget> formulario = &nuevo<QWidget>();
    QPointer<QPushButton> otro = &nuevo<QPushButton>();
    QPointer<ControlNorvik> norvik = &nuevo<ControlNorvik>(servicios, nullptr);
};

void teclea(Hostil& h, Qt::Key tecla, const QString& texto = {},
            Qt::KeyboardModifiers teclas = Qt::NoModifier) {
    for (const auto accion : {QTest::Press, QTest::Release})
        if (h.editor() != nullptr) QTest::sendKeyEvent(accion, h.editor(), tecla, texto, teclas);
}

/// As the windowing system gives it, to whatever stands there.
void pulsa(Hostil& h, Qt::MouseButton boton, const std::function<QWidget*()>& donde) {
    const auto en = [&] { return donde()->mapTo(h.formulario, QPoint(3, 3)); };
    QWindow* const ventana = h.formulario->windowHandle();
    QTimer cierraMenus;
    QObject::connect(&cierraMenus, &QTimer::timeout, [] {
        if (QWidget* const menu = QApplication::activePopupWidget(); menu != nullptr) menu->close();
    });
    cierraMenus.start(0);
    QTest::mouseMove(ventana, en());
    if (!h.norvik.isNull()) QTest::mousePress(ventana, boton, {}, en());
    if (!h.norvik.isNull()) QTest::mouseRelease(ventana, boton, {}, en());
    if (!h.norvik.isNull()) QTest::mouseDClick(ventana, boton, {}, en());
}

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

using Operacion = std::function<void(Hostil&)>;

using Operaciones = std::vector<std::pair<std::string, Operacion>>;

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

/// Carries out an operation with something done at each of its events in turn, until there are no more.
/// What comes after it is told whether the operation raised anything.
void enCadaSuceso(const std::string& nombre, const Operacion& operacion, const Accion& accion,
                  const std::function<void(Hostil&, const std::string&, bool lanzado)>& despues) {
    bool ocurrido = true;
    for (int vez = 1; ocurrido; ++vez) {
        ASSERT_LT(vez, 100) << nombre;
        Hostil h;
        ocurrido = false;
        h.faltan = vez;
        h.accion = [&](Hostil& quien) {
            ocurrido = true;
            quien.accion = nullptr;
            accion(quien);
        };
        bool lanzado = false;
        try {
            operacion(h);
        } catch (...) {
            lanzado = true;
        }
        Hostil::acaba();
        if (ocurrido) despues(h, nombre + " " + std::to_string(vez), lanzado);
    }
}

using Despues = std::function<void(Hostil&, const std::string&, bool)>;

void enTodos(std::initializer_list<const Operaciones*> cuales, const Accion& accion, const Despues& despues) {
    for (const Operaciones* const operaciones : cuales)
        for (const auto& [nombre, operacion] : *operaciones) enCadaSuceso(nombre, operacion, accion, despues);
}
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
