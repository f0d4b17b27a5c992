// SPDX-License-Identifier: MIT

// The plugin inside a designer of this process, which loads it as the real one does: forms with controls,
// their property pages, the undo and the files. A control is known here by its properties alone.
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowCursorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerIntegration>
#include <QDesignerMemberSheetExtension>
#include <QDesignerPropertyEditorInterface>
#include <QDesignerPropertySheetExtension>
#include <QDesignerTaskMenuExtension>
#include <QDesignerWidgetBoxInterface>
#include <QDesignerWidgetDataBaseInterface>
#include <QExtensionManager>
#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

const QString clase = "norvik::ControlNorvik";
const QStringList opciones = {"Borde3D",    "MargenIzquierdo", "EspaciosXTAB", "Font",        "NomLenguaje",
                              "ContenidoG", "CodigoPrueba",    "ColorPR",      "ColorFechas", "Colorear"};

QStringList valores(const QWidget& control) {
    QStringList todos;
    for (const QString& o : opciones) todos << o + '=' + control.property(o.toLatin1()).toString();
    return todos;
}

/// A page with a tree on it, at every size.
void seVeUnDibujo(const QIcon& icono) {
    for (const int lado : {16, 22, 24, 32, 48, 64}) {
        const QImage imagen = icono.pixmap(lado).toImage();
        const auto color = [&](double x, double y) { // in a square of 24 units
            return imagen.pixelColor(static_cast<int>(x * lado / 24), static_cast<int>(y * lado / 24));
        };
        EXPECT_EQ(color(0.2, 0.2).alpha(), 0) << lado;
        EXPECT_EQ(color(20, 4).name(), "#fdfdf8") << lado;
        EXPECT_EQ(color(4.2, 17.3).name(), "#c82424") << lado;
    }
}

struct DisenadorTest : testing::Test {
    std::unique_ptr<QDesignerFormEditorInterface> editor{QDesignerComponents::createFormEditor(nullptr)};
    QWidget principal; // its forms go before the designer
    QStringList mensajes;

    static void SetUpTestSuite() { QCoreApplication::addLibraryPath(QStringLiteral(NORVIK_PLUGINS)); }
    DisenadorTest() {
        QDesignerComponents::initializeResources();
        editor->setTopLevel(&principal);
        editor->setWidgetBox(QDesignerComponents::createWidgetBox(editor.get(), &principal));
        editor->setPropertyEditor(QDesignerComponents::createPropertyEditor(editor.get(), &principal));
        QDesignerComponents::initializePlugins(editor.get());
        editor->setIntegration(std::make_unique<QDesignerIntegration>(editor.get(), &principal).release());
        principal.show();
    }
    QDesignerFormWindowInterface& abre(const QString& contenido) {
        auto* const formulario = editor->formWindowManager()->createFormWindow(&principal);
        EXPECT_TRUE(formulario->setContents(contenido));
        editor->formWindowManager()->setActiveFormWindow(formulario);
        return *formulario;
    }
    QDesignerFormWindowInterface& abreCon(int controles) {
        QString dentro;
        for (int i = 0; i < controles; ++i)
            dentro += QString("<widget class='%1' name='editor%2'/>").arg(clase).arg(i);
        return abre(
            QString("<ui version='4.0'><class>F</class><widget class='QWidget' name='F'>%1</widget></ui>")
                .arg(dentro));
    }
    QDesignerPropertySheetExtension& hoja(QWidget& control) const {
        return *qt_extension<QDesignerPropertySheetExtension*>(editor->extensionManager(), &control);
    }
    /// The window of a control's pages.
    QDialog& propiedades(QWidget& control) {
        const auto* menu = qt_extension<QDesignerTaskMenuExtension*>(editor->extensionManager(), &control);
        EXPECT_EQ(menu->taskActions().value(0)->text(), "Propiedades …");
        menu->preferredEditAction()->trigger();
        return *principal.findChildren<QDialog*>(Qt::FindDirectChildrenOnly).last();
    }
    /// Carries something out; the modal window of a kind that opens meanwhile is used, and message boxes are
    /// answered.
    void conModal(const QByteArray& deClase, const std::function<void(QWidget&)>& uso,
                  const std::function<void()>& accion) {
        QTimer reloj;
        QObject::connect(&reloj, &QTimer::timeout, [&] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (auto* const caja = qobject_cast<QMessageBox*>(modal)) {
                mensajes << caja->text();
                caja->defaultButton()->click();
            } else if (modal != nullptr && deClase == modal->metaObject()->className()) {
                reloj.stop();
                uso(*modal);
            }
        });
        reloj.start(1);
        accion();
    }
    void escribeGramatica(QDialog& paginas, const QString& texto) {
        const auto escribe = [&](QWidget& gramatica) {
            auto* const campo = gramatica.findChild<QPlainTextEdit*>();
            for (const QChar c : texto)
                c == u'\n' ? QTest::keyClick(campo, Qt::Key_Return) : QTest::keyClick(campo, c.toLatin1());
            gramatica.close();
        };
        conModal("norvik::CodigoGramatica", escribe, [&] { pulsa(paginas, "Command4"); });
    }
    static void pulsa(QDialog& paginas, const char* boton) {
        paginas.findChild<QPushButton*>(boton)->click();
    }
    static void aplica(QDialog& paginas) {
        for (auto* const boton : paginas.findChildren<QPushButton*>(Qt::FindDirectChildrenOnly))
            if (boton->text() == "&Aplicar") boton->click();
    }
};

TEST_F(DisenadorTest, EstaEnLaCajaYTieneLoDeUnControlNuevo) {
    const auto* const base = editor->widgetDataBase();
    const auto* const ficha = base->item(base->indexOfClassName(clase));
    ASSERT_NE(ficha, nullptr);
    EXPECT_EQ(ficha->group(), "Norvik");
    seVeUnDibujo(ficha->icon());
    EXPECT_TRUE(ficha->whatsThis().contains("<b>MarcaErrorLinea</b>"));
    bool estaEnLaCaja = false;
    for (int i = 0; i < editor->widgetBox()->categoryCount(); ++i)
        estaEnLaCaja |= editor->widgetBox()->category(i).widget(0).name() == "Norvik";
    EXPECT_TRUE(estaEnLaCaja);
    QWidget& control = *abreCon(1).findChild<QWidget*>("editor0");
    QDesignerPropertySheetExtension& h = hoja(control);
    QStringList grupos;
    for (int i = 0; i < h.count(); ++i) {
        if (h.isVisible(i) && !grupos.contains(h.propertyGroup(i))) grupos << h.propertyGroup(i);
        EXPECT_FALSE(h.isChanged(i) && opciones.contains(h.propertyName(i)));
    }
    EXPECT_EQ(grupos, QStringList({"QObject", "QWidget", "Aspecto", "Lenguaje", "Edición", "Análisis",
                                   "Colores", "Ayudas"}));
    EXPECT_EQ(h.property(h.indexOf("ColorPR")), QColor(0, 0, 128));
    EXPECT_EQ(h.property(h.indexOf("Font")).typeId(), QMetaType::QFont);
    const auto* const miembros =
        qt_extension<QDesignerMemberSheetExtension*>(editor->extensionManager(), &control);
    EXPECT_TRUE(miembros->isSignal(miembros->indexOf("CambioDeLinea(qint16&)")));
    editor->propertyEditor()->setObject(&control);
    const auto* const lista = editor->propertyEditor()->findChild<QTreeWidget*>();
    const auto filas = lista->findItems("ColorPR", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(filas.size(), 1);
    EXPECT_EQ(filas[0]->toolTip(0), "Color de las palabras reservadas.");
}

TEST_F(DisenadorTest, LoQueCambianLasPaginasSeDeshaceYSeGuarda) {
    QDesignerFormWindowInterface& formulario = abreCon(2);
    QWidget& control = *formulario.findChild<QWidget*>("editor1");
    formulario.cursor()->setWidgetProperty(&control, "ColorFechas", QColor(1, 2, 3));
    formulario.cursor()->setWidgetProperty(&control, "EspaciosXTAB", 100000);
    formulario.cursor()->setWidgetProperty(&control, "CodigoPrueba", "1\n\n2\r\n");
    formulario.cursor()->setWidgetProperty(&control, "NomLenguaje", QByteArray("Año")); // as typed in its row
    formulario.setDirty(false);
    const QStringList antes = valores(control);
    EXPECT_EQ(antes[2], "EspaciosXTAB=32767");
    EXPECT_EQ(antes[4], "NomLenguaje=Año");
    QDialog& paginas = propiedades(control);
    QWidget otra;
    otra.show();
    otra.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&otra));
    EXPECT_EQ(&propiedades(control), &paginas);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&paginas));
    paginas.findChild<QCheckBox*>("chkBorde3D")->click();
    paginas.findChild<QComboBox*>("lenguaje")->setEditText("Sumas");
    EXPECT_EQ(valores(control), antes);
    aplica(paginas);
    EXPECT_EQ(formulario.commandHistory()->undoText(), "Propiedades de 'editor1'");
    EXPECT_FALSE(control.property("Borde3D").toBool());
    EXPECT_TRUE(formulario.isDirty());
    escribeGramatica(paginas, "Token n = \"[0-9]<>&\";\nS -> n;");
    aplica(paginas);
    paginas.close();
    EXPECT_EQ(control.property("ContenidoG").toString(), "Token n = \"[0-9]<>&\";\r\nS -> n;");
    EXPECT_EQ(control.property("CodigoPrueba").toString(), "1\r\n\r\n2\r\n");
    const QStringList despues = valores(control);
    const QString guardado = formulario.contents();
    EXPECT_EQ(valores(*abre(guardado).findChild<QWidget*>("editor1")), despues);
    EXPECT_FALSE(guardado.contains("<string>Sumas"));
    formulario.commandHistory()->undo();
    formulario.commandHistory()->undo();
    EXPECT_EQ(valores(control), antes);
    formulario.commandHistory()->redo();
    formulario.commandHistory()->redo();
    EXPECT_EQ(valores(control), despues);
    EXPECT_EQ(formulario.findChild<QWidget*>("editor0")->property("NomLenguaje"), "");
}

TEST_F(DisenadorTest, ElFormularioDeEjemploLlevaSuLenguaje) {
    const auto lee = [](const QString& nombre) {
        QFile fichero(QStringLiteral(NORVIK_SOURCE_DIR "/ejemplos/") + nombre);
        EXPECT_TRUE(fichero.open(QFile::ReadOnly));
        return QString::fromUtf8(fichero.readAll());
    };
    const QString formulario = lee("formulario/formulario.ui");
    QDesignerFormWindowInterface& abierto = abre(formulario);
    EXPECT_EQ(abierto.contents(), formulario);
    EXPECT_EQ(abierto.findChild<QWidget*>("editor")->property("ContenidoG").toString().remove('\r'),
              lee("calculadora/calculadora.nvk"));
}

TEST_F(DisenadorTest, LoRotoSeDiceYNoCaeNada) {
    constexpr int muchos = 10;
    QDesignerFormWindowInterface& formulario = abreCon(muchos);
    const auto nada = [](QWidget&) {};
    for (int i = 0; i < muchos; ++i) {
        QWidget& control = *formulario.findChild<QWidget*>(QString("editor%1").arg(i));
        control.setProperty("CodigoPrueba", QStringLiteral("a\fb\uFFFE"));
        QDialog& paginas = propiedades(control);
        mensajes.clear();
        conModal("", nada, [&] { pulsa(paginas, "Command6"); });
        EXPECT_EQ(mensajes, QStringList{"El nombre seleccionado para el lenguaje es incorrecto"});
        escribeGramatica(paginas, QString("Token roto%1").arg(i));
        mensajes.clear();
        conModal("", nada, [&] { pulsa(paginas, "Command5"); });
        EXPECT_TRUE(mensajes.value(0).startsWith("Se ha producido el siguiente error")) << mensajes.size();
        conModal("", nada, [&] { paginas.close(); });
        EXPECT_EQ(control.property("ContenidoG"), QString("Token roto%1").arg(i));
        EXPECT_EQ(control.property("CodigoPrueba"), "a b "); // what a form's file cannot hold
    }
    EXPECT_TRUE(abre(formulario.contents()).findChild<QWidget*>("editor9") != nullptr);
}

/// By the user, who may undo that, and with its form.
TEST_F(DisenadorTest, UnControlSePuedeBorrarConSusPaginasAbiertas) {
    QDesignerFormWindowInterface& formulario = abreCon(2);
    QWidget& control = *formulario.findChild<QWidget*>("editor0");
    QDialog& paginas = propiedades(control);
    paginas.findChild<QCheckBox*>("chkBorde3D")->click();
    formulario.clearSelection();
    formulario.selectWidget(&control);
    QCoreApplication::processEvents();
    editor->formWindowManager()->action(QDesignerFormWindowManagerInterface::DeleteAction)->trigger();
    EXPECT_FALSE(formulario.isManaged(&control));
    EXPECT_FALSE(paginas.isVisible());
    formulario.commandHistory()->undo();
    EXPECT_TRUE(formulario.isManaged(&control) && control.property("Borde3D").toBool());
    QDialog& otras = propiedades(*formulario.findChild<QWidget*>("editor1"));
    const QPointer<QDialog> vivas(&otras);
    conModal(
        "norvik::CodigoGramatica",
        [&](QWidget& gramatica) {
            std::unique_ptr<QDesignerFormWindowInterface>(&formulario).reset();
            gramatica.close();
        },
        [&] { pulsa(otras, "Command4"); });
    otras.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vivas.isNull());
}

} // namespace
