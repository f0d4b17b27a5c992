// SPDX-License-Identifier: MIT

// The find and the replace dialog, as a person uses them.
#include "norvik/control/estadoBusqueda.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

using namespace norvik;

namespace {

class DialogosBusquedaTest : public testing::Test {
public:
    DialogosBusquedaTest() {
        estadoBusqueda() = {};
        norvik.resize(300, 200);
        formulario.show();
        norvik.control().Text(u"ab AB cabo abc");
        norvik.control().InicializaUndosYRedos();
    }
    ~DialogosBusquedaTest() override {
        if (QDialog* dialogo = abierto()) dialogo->reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

protected:
    static QDialog* abierto() {
        QDialog* hallado = nullptr;
        for (QWidget* v : QApplication::topLevelWidgets()) {
            if (v->objectName() == "buscar" && v->isVisible()) hallado = static_cast<QDialog*>(v);
        }
        return hallado;
    }
    template <typename Tipo>
    static Tipo& en(QWidget* dialogo, const char* nombre) {
        return *dialogo->findChild<Tipo*>(QLatin1String(nombre));
    }
    static void escribe(QWidget* dialogo, const char* lista, const QString& texto) {
        en<QComboBox>(dialogo, lista).setEditText(QString());
        QTest::keyClicks(en<QComboBox>(dialogo, lista).lineEdit(), texto);
    }
    static QString titulos(QWidget* dialogo) {
        QString todos;
        for (const QAbstractButton* b : dialogo->findChildren<QAbstractButton*>())
            todos += b->text() + (b->isEnabled() ? "|" : "-|");
        return todos;
    }
    QString seleccion() {
        const QString texto = norvik.Text();
        return texto.left(norvik.SelStart()) + '[' + norvik.SelText() + ']' +
               texto.mid(norvik.SelStart() + norvik.SelLength());
    }

    QWidget formulario;
    SistemaDePrueba sistema;
    ControlNorvik norvik{sistema, &formulario};
};

TEST_F(DialogosBusquedaTest, BuscarDeUnoEnUno) {
    estadoBusqueda().historialBusquedas = {u"uno", std::u16string(500, u'x')};
    estadoBusqueda().ultimaBusqueda = u"uno";
    norvik.HideSelection(true);
    norvik.control().ShowBuscarDialog();
    QCoreApplication::processEvents();
    QDialog* dialogo = abierto();
    ASSERT_NE(dialogo, nullptr);
    EXPECT_EQ(dialogo->windowTitle(), "Buscar");
    EXPECT_FALSE(dialogo->isModal());
    EXPECT_TRUE(dialogo->windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(norvik.caja().ocultaSeleccion());
    EXPECT_EQ(titulos(dialogo),
              "Sólo palabras completas|Coincidir mayúsculas y minúsculas|Texto seleccionado-|"
              "Todo del texto-|Texto no selecciona.-|Buscar &siguiente|&Cancelar|"
              "&Reemplazar ...-|");
    auto& lista = en<QComboBox>(dialogo, "Combo1");
    EXPECT_EQ(lista.count(), 2);
    EXPECT_LT(lista.sizeHint().width(), 1000); // whatever was looked for
    EXPECT_EQ(lista.currentText(), "uno");
    EXPECT_EQ(en<QComboBox>(dialogo, "Combo2").currentText(), "Todo");
    EXPECT_TRUE(lista.lineEdit()->hasFocus());
    escribe(dialogo, "Combo1", "");
    EXPECT_FALSE(en<QPushButton>(dialogo, "Command1").isEnabled());

    escribe(dialogo, "Combo1", "ab");
    QTest::keyClick(lista.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(seleccion(), "ab [AB] cabo abc");
    QCoreApplication::processEvents();
    EXPECT_TRUE(norvik.caja().ventana().hasFocus()); // a text that was not searched before
    EXPECT_EQ(lista.count(), 3);
    dialogo->activateWindow();
    QCoreApplication::processEvents();
    EXPECT_TRUE(lista.lineEdit()->hasFocus());
    en<QCheckBox>(dialogo, "Check1").click();
    en<QCheckBox>(dialogo, "Check2").click();
    QTest::keyClick(lista.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(seleccion(), "ab [AB] cabo abc");
    en<QComboBox>(dialogo, "Combo2").setCurrentText("Arriba");
    en<QPushButton>(dialogo, "Command1").click();
    EXPECT_EQ(seleccion(), "[ab] AB cabo abc");
    EXPECT_TRUE(lista.lineEdit()->hasFocus());
    EXPECT_EQ(sistema.dameMensajes(), (std::vector<Mensaje>{{u"Se ha buscado en la región especificada",
                                                             u"Busqueda completada", Icono::Informacion}}));
    escribe(dialogo, "Combo1", "a(");
    QTest::keyClick(lista.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(sistema.dameMensajes()[0].icono, Icono::Exclamacion);
    EXPECT_EQ(lista.count(), 3);
    QTest::keyClick(lista.lineEdit(), Qt::Key_Escape);
    EXPECT_EQ(abierto(), nullptr);
    EXPECT_TRUE(norvik.caja().ocultaSeleccion());
    EXPECT_FALSE(estadoBusqueda().dialogoAbierto);
}

TEST_F(DialogosBusquedaTest, QuienNoEncuentraNadaSigueEnElDialogo) {
    norvik.control().ShowBuscarDialog();
    QCoreApplication::processEvents();
    QDialog* const dialogo = abierto();
    auto& lista = en<QComboBox>(dialogo, "Combo1");
    for (const char* nuevo : {"zz", "zzz"}) {
        escribe(dialogo, "Combo1", nuevo);
        for (int vez = 0; vez < 2; ++vez) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QCoreApplication::processEvents();
            EXPECT_TRUE(lista.lineEdit()->hasFocus()) << nuevo << vez;
        }
    }
    EXPECT_EQ(sistema.dameMensajes().size(), 4U);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(abierto(), nullptr);
    EXPECT_EQ(norvik.Text(), "ab AB cabo abc");
}

TEST_F(DialogosBusquedaTest, UnSoloDialogoParaTodos) {
    norvik.control().ShowBuscarDialog();
    QDialog* dialogo = abierto();
    QWidget modal;
    auto otro = std::make_unique<ControlNorvik>(sistema, &modal);
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    otro->control().Text(u"- ab");
    otro->control().ShowBuscarDialog();
    EXPECT_EQ(abierto(), dialogo);
    EXPECT_EQ(dialogo->parentWidget(), &modal); // it can be used beside a modal window
    EXPECT_TRUE(norvik.caja().ocultaSeleccion());
    escribe(dialogo, "Combo1", "ab");
    en<QPushButton>(dialogo, "Command1").click();
    EXPECT_EQ(otro->SelText(), "ab");
    otro.reset();
    EXPECT_EQ(abierto(), nullptr); // it has nothing left to search
    norvik.control().ShowBuscarDialog();
    ASSERT_NE(abierto(), nullptr);
    EXPECT_EQ(en<QComboBox>(abierto(), "Combo1").currentText(), "ab");
}

TEST_F(DialogosBusquedaTest, LoQueFallaAlBuscarSeDice) {
    norvik.control().ShowBuscarDialog();
    norvik.control().eventos.SelChange = [] { throw std::runtime_error("anfitrión"); };
    escribe(abierto(), "Combo1", "abc");
    en<QPushButton>(abierto(), "Command1").click();
    EXPECT_EQ(sistema.dameMensajes(), (std::vector<Mensaje>{{u"anfitrión", {}}}));
    EXPECT_EQ(seleccion(), "ab AB cabo [abc]");
}

TEST_F(DialogosBusquedaTest, Reemplazar) {
    estadoBusqueda().ultimaBusqueda = u"ab";
    norvik.control().ShowBuscarDialog();
    QCoreApplication::processEvents();
    const auto porEncima = [] { // both as the widget and as its window know it
        const auto suyas = abierto()->windowFlags() | abierto()->windowHandle()->flags();
        return suyas.testFlag(Qt::WindowStaysOnTopHint);
    };
    EXPECT_TRUE(porEncima());
    sistema.usos.emplace_back([&](QWidget& d) {
        EXPECT_FALSE(porEncima());
        EXPECT_EQ(d.windowTitle(), "Reemplazar");
        EXPECT_TRUE(titulos(&d).endsWith("Buscar &siguiente|&Reemplazar|Reemplazar &todo|&Cancelar|"));
        EXPECT_FALSE(norvik.caja().ocultaSeleccion());
        QString recorrido;
        for (int i = 0; i < 9; ++i) {
            recorrido += d.focusWidget()->objectName() + ' ';
            QTest::keyClick(d.focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(recorrido, "Combo1 Combo3 Combo2 Check1 Check2 Command1 Command2 Command3 Command4 ");
        escribe(&d, "Combo3", "xyz");
        en<QPushButton>(&d, "Command2").click();
        EXPECT_EQ(seleccion(), "ab [AB] cabo abc");
        en<QPushButton>(&d, "Command2").click();
        EXPECT_EQ(seleccion(), "ab xyz c[ab]o abc");
        en<QPushButton>(&d, "Command3").click();
        EXPECT_EQ(norvik.Text(), "xyz xyz cxyzo xyzc");
        EXPECT_EQ(en<QComboBox>(&d, "Combo3").count(), 1);
        QTest::keyClick(&d, Qt::Key_Escape);
        EXPECT_FALSE(d.isVisible());
    });
    norvik.control().ShowReemplazarDialog();
    EXPECT_EQ(sistema.ventanas, "Reemplazar ");
    EXPECT_TRUE(porEncima());
    abierto()->reject();
    EXPECT_TRUE(norvik.caja().ocultaSeleccion());
    EXPECT_EQ(sistema.dameMensajes()[0].texto, u"Se han hecho 3 reemplazos");
    norvik.control().Undo();
    EXPECT_EQ(norvik.Text(), "ab xyz cabo abc");
}

/// Nobody has to wait for a pattern that runs away: a notice lets them give up, and nothing is said of it.
TEST_F(DialogosBusquedaTest, LoQueTardaSeCancela) {
    norvik.control().Text(std::u16string(3000, u'a') + u"b");
    const QString desbocada = R"((a|aa)*(a|aa)*(a|aa)*\1c)";
    int cancelados = 0;
    QTimer impaciente;
    QObject::connect(&impaciente, &QTimer::timeout, [&] {
        QWidget* const aviso = QApplication::activeModalWidget();
        if (aviso == nullptr || aviso->objectName() != "Procesando") return;
        cancelados += en<QPushButton>(aviso, "cancelar").isEnabled() ? 1 : 0;
        QTest::keyClick(aviso, Qt::Key_Escape);
    });
    impaciente.start(10);
    QElapsedTimer reloj;
    reloj.start();
    norvik.control().ShowBuscarDialog();
    escribe(abierto(), "Combo1", desbocada);
    for (int vez = 0; vez < 2; ++vez) en<QPushButton>(abierto(), "Command1").click();
    sistema.usos.emplace_back([&](QWidget& dialogo) {
        escribe(&dialogo, "Combo1", desbocada);
        en<QPushButton>(&dialogo, "Command3").click();
    });
    norvik.control().ShowReemplazarDialog();
    estadoBusqueda().ultimaBusqueda = desbocada.toStdU16String();
    norvik.accion(AccionNorvik::BuscarSiguiente)->trigger();
    EXPECT_EQ(cancelados, 4);
    EXPECT_LT(reloj.elapsed(), 4 * 2000) << "of three seconds each";
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

/// The control goes while a dialog is open, or while something is told about its text.
TEST_F(DialogosBusquedaTest, ElControlSeVaMientrasSeBusca) {
    std::unique_ptr<QWidget> suForm;
    const auto otro = [&]() -> ControlNorvik& {
        suForm = std::make_unique<QWidget>();
        suForm->show();
        return nuevo<ControlNorvik>(suForm.get());
    };
    const auto seVa = [&] { QTimer::singleShot(0, suForm.get(), [&] { suForm.reset(); }); };
    ControlNorvik& conBuscar = otro();
    conBuscar.control().ShowBuscarDialog();
    escribe(abierto(), "Combo1", "zzz");
    seVa();
    en<QPushButton>(abierto(), "Command1").click(); // its message waits for an answer
    EXPECT_EQ(suForm, nullptr);
    EXPECT_EQ(abierto(), nullptr);
    ControlNorvik& conTarea = otro();
    conTarea.control().Text(std::u16string(3000, u'a') + u"b");
    conTarea.control().ShowBuscarDialog();
    escribe(abierto(), "Combo1", R"((a|aa)*(a|aa)*(a|aa)*\1c)");
    QTimer::singleShot(0, [&] { seVa(); });
    en<QPushButton>(abierto(), "Command1").click(); // searched while events run
    EXPECT_EQ(suForm, nullptr);
    for (const char* const boton : {"Command1", "Command3", ""}) {
        ControlNorvik& conReemplazar = otro();
        QTimer::singleShot(0, suForm.get(), [&] {
            QWidget* const dialogo = QApplication::activeModalWidget();
            escribe(dialogo, "Combo1", "zzz");
            seVa();
            if (*boton != 0) en<QPushButton>(dialogo, boton).click();
        });
        conReemplazar.control().ShowReemplazarDialog();
        EXPECT_EQ(suForm, nullptr) << boton;
    }
}

} // namespace
