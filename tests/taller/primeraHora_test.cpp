// SPDX-License-Identifier: MIT

// What a person meets who has never seen the workbench.
#include "taller/dialogosGuion.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "ayuda/plantillas.hpp"
#include "ejemplos.hpp"
#include "linea.hpp"
#include "ventanaPrincipal.hpp"

#include "norvik/checks/revision.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

using namespace norvik;
using namespace norvik::taller;

namespace {

struct PrimeraHoraTest : testing::Test {
    PrimeraHoraTest() {
        ventana.muestraInicioSiSeQuiere();
        QApplication::setActiveWindow(&ventana);
    }
    QString pon(std::string_view nombre, std::string_view bytes) const {
        return QString::fromStdString(carpeta.pon(nombre, bytes).string());
    }
    template <typename Boton>
    void pulsa(const QString& titulo) {
        for (auto* const boton : ventana.inicio().findChildren<Boton*>())
            if (boton->text() == titulo) return QTest::mouseClick(boton, Qt::LeftButton);
        FAIL() << titulo.toStdString();
    }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat};
    VentanaPrincipal ventana{{sistema,
                              dialogos,
                              ajustes,
                              {{"uno", pon("e.nvk", "Token a = \"a\";\nS -> a;\n"), pon("e.txt", "a")}}}};
};

} // namespace

TEST(Plantillas, SonLenguajesSinNadaQueDecirYSuTextoEsSuyo) {
    for (const Plantilla& p : plantillas) {
        SCOPED_TRACE(p.titulo);
        const Compilacion c = Lenguaje::compila(p.especificacion());
        if (*p.fichero == '\0') continue;
        EXPECT_TRUE(revisa(p.especificacion()).empty());
        ASSERT_TRUE(c.lenguaje);
        EXPECT_TRUE(c.diagnosticos.empty());
        const Analisis analisis = analiza(*c.lenguaje, p.texto());
        EXPECT_GT(p.texto().size(), 10U);
        EXPECT_TRUE(analisis.diagnosticos.empty());
    }
}

/// A text of an example can be read at a glance, and they are found from wherever the program was installed
/// to.
TEST(Ejemplos, SeEncuentranDesdeElPrograma) {
    const apoyo::CarpetaTemporal carpeta;
    for (const char* sitio : {"ejemplos", "usr/share/norvik/ejemplos"}) {
        for (const char* cual : {"otra/bien", "suma/bien"})
            std::filesystem::create_directories(carpeta / sitio / cual);
        carpeta.pon(std::string(sitio) + "/suma/suma.nvk", "");
        carpeta.pon(std::string(sitio) + "/otra/suma.nvk", "");
        for (const auto& [nombre, largo] : {std::pair("a", 10U), {"b", 4000U}, {"c", 4001U}, {"d", 20U}})
            carpeta.pon(std::string(sitio) + "/suma/bien/" + nombre, std::string(largo, 'x'));
    }
    for (const char* programa : {"usr/bin", "build/apps"})
        std::filesystem::create_directories(carpeta / programa);
    const QString raiz = QString::fromStdString(carpeta.ruta().string());
    const auto ejemplos = ejemplosDe(raiz + "/ejemplos");
    ASSERT_EQ(ejemplos.size(), 1);
    EXPECT_EQ(ejemplos[0].nombre, "suma");
    EXPECT_EQ(ejemplos[0].texto, raiz + "/ejemplos/suma/bien/b");
    EXPECT_TRUE(ejemplosDe({}).isEmpty());
    EXPECT_EQ(carpetaDeEjemplos(raiz + "/usr/bin"), raiz + "/usr/share/norvik/ejemplos");
    EXPECT_EQ(carpetaDeEjemplos(raiz + "/build/apps"), raiz + "/ejemplos");
}

TEST_F(PrimeraHoraTest, DeLaPaginaDeInicioSeVaATodo) {
    EXPECT_TRUE(ventana.inicio().isVisible());
    EXPECT_TRUE(ventana.arbol().isHidden());
    QStringList titulos;
    for (const auto* const rotulo : ventana.inicio().findChildren<QLabel*>()) titulos += rotulo->text();
    EXPECT_EQ(titulos.filter(QRegularExpression("^(Un lenguaje nuevo|Aprender|Seguir)$")).size(), 3);
    for (int vez = 0; vez < 2; ++vez) {
        pulsa<QCommandLinkButton>("Expresiones");
        VentanaLenguaje& lenguaje = ventana.ventanaLenguaje();
        EXPECT_TRUE(lenguaje.isVisible());
        EXPECT_EQ(lenguaje.texto().texto(), plantillas[1].texto());
        EXPECT_FALSE(lenguaje.isWindowModified()); // nobody would miss it
        auto& ejemplos = *ventana.inicio().findChildren<QListWidget*>().first();
        QTest::keyClick(&ejemplos, Qt::Key_Return);
        EXPECT_EQ(lenguaje.texto().texto(), u"a");
    }
    dialogos.ficheros = {pon("l.nvk", "'x\n")};
    pulsa<QCommandLinkButton>("Abrir un lenguaje…");
    EXPECT_EQ(ventana.ventanaLenguaje().especificacion().texto(), u"'x");
    ventana.abre(pon("t.txt", "b"));
    EXPECT_FALSE(ventana.inicio().isVisible());
    EXPECT_FALSE(ventana.arbol().isHidden());
    ventana.acciones().inicio.trigger();
    EXPECT_TRUE(ventana.inicio().isVisible());
    QListWidget& recientes = ventana.inicio().recientes();
    ASSERT_EQ(recientes.count(), 2);
    EXPECT_EQ(recientes.item(0)->text(), "l.nvk");
    recientes.setCurrentRow(1);
    QTest::keyClick(&recientes, Qt::Key_Return);
    EXPECT_FALSE(ventana.inicio().isVisible());
    EXPECT_EQ(ventana.formulario().activo().tituloTexto(), "t.txt");
    ventana.inicio().findChild<QCheckBox*>()->click();
    ventana.muestraInicioSiSeQuiere();
    EXPECT_FALSE(ventana.inicio().isVisible());
}

TEST_F(PrimeraHoraTest, LoQueSeAbandonaEnLaPaginaDeInicioSePregunta) {
    pulsa<QCommandLinkButton>("Lista");
    VentanaLenguaje& lenguaje = ventana.ventanaLenguaje();
    QTest::keyClicks(&lenguaje.texto().norvik().caja().ventana(), "x");
    for (const char* otro : {"Vacío", "Visita guiada"}) {
        pulsa<QCommandLinkButton>(otro);
        EXPECT_EQ(dialogos.toma(),
                  QStringList{"&Guardar ¿Quiere guardar los cambios del texto «Sin título»?"});
        EXPECT_TRUE(lenguaje.texto().texto().starts_with(u"x["));
    }
}

TEST_F(PrimeraHoraTest, LaVisitaPasaPorTodoYEnsenaLoQueDice) {
    for (int vez = 0; vez < 2; ++vez) {
        pulsa<QCommandLinkButton>("Visita guiada");
        Visita& visita = ventana.visita();
        VentanaLenguaje& lenguaje = ventana.ventanaLenguaje();
        ASSERT_TRUE(visita.isVisible());
        EXPECT_EQ(visita.paso(), 0);
        ASSERT_TRUE(QTest::qWaitFor([&] { return lenguaje.seguimiento().alDia(); }));
        EXPECT_GE(lenguaje.problemas().lista().topLevelItem(0)->childCount(), 2); // as it says
        lenguaje.arbol().hide();
        for (const auto* const boton : visita.findChildren<QPushButton*>())
            EXPECT_EQ(boton->isEnabled(), boton->text() != "An&terior") << boton->text().toStdString();
        int pasos = 1;
        for (; visita.siguiente().isEnabled(); ++pasos)
            QTest::mouseClick(&visita.siguiente(), Qt::LeftButton);
        EXPECT_EQ(pasos, 7);
        EXPECT_TRUE(lenguaje.arbol().isVisible());
    }
}

TEST_F(PrimeraHoraTest, ElManualSeAbrePorLoQueSeTieneDelante) {
    ventana.acciones().manual.trigger();
    QTextBrowser& pagina = ventana.manual().pagina();
    const auto aqui = [&] { return pagina.textCursor().block().text(); };
    EXPECT_EQ(aqui(), "El taller");
    EXPECT_GE(ventana.manual().indice().topLevelItemCount(), 7);
    EXPECT_TRUE(ventana.manual().indice().isVisible());
    EXPECT_TRUE(ventana.manual().indice().topLevelItem(0)->isExpanded());
    const int ancho = ventana.manual().indice().width();
    ventana.manual().resize(ventana.manual().width() + 300, ventana.manual().height());
    QApplication::processEvents();
    EXPECT_EQ(ventana.manual().indice().width(), ancho); // there is more of the page
    VentanaLenguaje& lenguaje = ventana.ventanaLenguaje();
    for (auto* const panel : lenguaje.findChildren<Panel*>()) {
        ventana.manual().muestra(temaDe(panel->widget()));
        EXPECT_TRUE(aqui().startsWith(panel->titulo())) << panel->titulo().toStdString();
    }
    for (QWidget* const parte :
         {static_cast<QWidget*>(&lenguaje), static_cast<QWidget*>(&lenguaje.especificacion())}) {
        ventana.manual().muestra(temaDe(parte));
        EXPECT_EQ(aqui(), temaDe(parte).titulo);
    }
    emit pagina.anchorClicked(QUrl("#7-límites"));
    EXPECT_EQ(aqui(), "7. Límites");
    for (int vez = 0; vez < 2; ++vez) { // to the end and round again
        ventana.manual().buscar().setText("Pascal");
        QTest::keyClick(&ventana.manual().buscar(), Qt::Key_Return);
        EXPECT_EQ(pagina.textCursor().selectedText().toLower(), "pascal");
    }
    for (QTextBlock b = pagina.document()->begin(); b.isValid(); b = b.next())
        for (auto i = b.begin(); !i.atEnd(); ++i)
            if (i.fragment().charFormat().isImageFormat()) {
                const QString nombre = i.fragment().charFormat().toImageFormat().name();
                const auto imagen =
                    pagina.loadResource(QTextDocument::ImageResource, QUrl(nombre)).value<QImage>();
                EXPECT_GT(imagen.width(), 100) << nombre.toStdString();
            }
}

TEST_F(PrimeraHoraTest, UnaTeclaEsLoMismoEnTodasLasVentanas) {
    ventana.acciones().teclas.trigger();
    QStringList todas; // each once, in its place
    for (QTreeWidgetItemIterator i(&ventana.teclas().lista(), QTreeWidgetItemIterator::NoChildren);
         *i != nullptr; ++i)
        todas += (*i)->parent()->parent()->text(0) + '|' + (*i)->parent()->text(0) + '|' + (*i)->text(0);
    for (const char* const una : {"El formulario|Archivo|Guardar texto", "El formulario|Edición|Deshacer"})
        EXPECT_TRUE(todas.contains(una)) << todas.join('\n').toStdString();
    EXPECT_EQ(todas.removeDuplicates(), 0);
    QMap<QString, QStringList> ordenes; // the first words of each key's captions
    QTreeWidgetItemIterator fila(&ventana.teclas().lista());
    int filas = 0;
    for (; *fila != nullptr; ++fila)
        for (const QString& tecla : (*fila)->text(1).split(", ", Qt::SkipEmptyParts)) {
            ++filas;
            ordenes[tecla] += (*fila)->text(0).section(' ', 0, 0);
        }
    EXPECT_GT(filas, 50);
    for (auto i = ordenes.begin(); i != ordenes.end(); ++i) {
        i->removeDuplicates();
        EXPECT_EQ(i->size(), 1) << i.key().toStdString() << ": " << i->join(", ").toStdString();
    }
}

TEST_F(PrimeraHoraTest, LaPresentacionAgrandaYTodoVuelve) {
    ventana.show();
    ventana.arbol().show();
    ventana.resize(1200, 700);
    ventana.resizeDocks({&ventana.arbol()}, {500}, Qt::Horizontal);
    ventana.ventanaLenguaje().trae();
    const QFont letra = QApplication::font();
    const QPalette paleta = QApplication::palette();
    const auto titulos = [this] { // what is black in the title of each panel that is seen
        QApplication::processEvents();
        std::vector<int> puntos;
        for (QWidget* const v :
             {static_cast<QWidget*>(&ventana), static_cast<QWidget*>(&ventana.ventanaLenguaje())})
            for (auto* const panel : v->findChildren<QDockWidget*>()) {
                const QImage titulo = panel->grab({0, 0, panel->width(), panel->widget()->y()}).toImage();
                int suyos = 0;
                for (int y = 0; y < titulo.height(); ++y)
                    for (int x = 0; x < titulo.width(); ++x) suyos += qGray(titulo.pixel(x, y)) < 128 ? 1 : 0;
                puntos.push_back(suyos);
            }
        return puntos;
    };
    const std::vector<int> antes = titulos();
    const QDockWidget& alLado = ventana.ventanaLenguaje().arbol();
    const QDockWidget& debajo = ventana.ventanaLenguaje().problemas();
    const auto medidas = [&] { return QSize(alLado.width(), debajo.height()); };
    const QSize alPrincipio = medidas();
    ControlNorvik& norvik = ventana.ventanaLenguaje().texto().norvik();
    norvik.Text(QString(200, '\n'));
    QApplication::processEvents();
    VistaTexto& vista = norvik.caja().vista();
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {},
                      vista.viewport()->rect().bottomLeft() + QPoint(5, -20));
    QAction& accion = ventana.acciones().presentacion;
    for (int vez = 0; vez < 2; ++vez) {
        QTest::keyClick(&ventana.ventanaLenguaje(), Qt::Key_F11);
        EXPECT_TRUE(accion.isChecked());
        EXPECT_GT(QApplication::font().pointSizeF(), letra.pointSizeF());
        EXPECT_EQ(ventana.formulario().activo().norvik().aumento(), 160);
        EXPECT_EQ(ventana.ventanaLenguaje().texto().norvik().aumento(), 160);
        QApplication::processEvents();
        EXPECT_TRUE(QTest::qWaitFor([&] { // one goes on writing there
            return vista.viewport()->rect().contains(vista.cursorRect());
        }));
        const std::vector<int> mayores = titulos();
        for (std::size_t i = 0; i < antes.size(); ++i) {
            EXPECT_GT(antes[i], 0) << i;
            EXPECT_GT(mayores[i], antes[i] * 1.2) << i;
        }
        accion.trigger();
        EXPECT_EQ(QApplication::font(), letra);
        EXPECT_EQ(QApplication::palette(), paleta);
        EXPECT_EQ(ventana.ventanaLenguaje().texto().norvik().aumento(), 100);
        QTest::qWait(500);
        EXPECT_EQ(medidas(), alPrincipio);
    }
}

TEST(LineaDelTaller, CadaFicheroEsLoQueDiceSuNombre) {
    struct Caso {
        std::vector<const char*> palabras;
        const char* abre; ///< form, specification, language, text
        const char* dice;
    };
    const Caso casos[] = {
        {{}, "|||", ""},
        {{"a.txt", "l.NVK"}, "|l.NVK||a.txt", ""},
        {{"l.nvk", "a.txt"}, "|l.nvk||a.txt", ""},
        {{"m.bas", "f.nvf", "t"}, "f.nvf||m.bas|t", ""},
        {{"t", "--lenguaje", "l.nvk"}, "||l.nvk|t", ""},
        {{"--", "-t"}, "|||-t", ""},
        {{"a", "b"}, "", "«a» y «b» son dos textos, y se abre uno cada vez"},
        {{"a.nvk", "b.nvk"}, "", "«a.nvk» y «b.nvk» son dos lenguajes, y se abre uno cada vez"},
        {{"--lenguaje", "l.nvk", "m.bas"}, "", "«l.nvk» y «m.bas» son dos lenguajes, y se abre uno cada vez"},
        {{"--otra", "a"}, "", "opción desconocida: «--otra»"},
        {{"a", "--lenguaje"}, "", "falta el valor de la opción «--lenguaje»"},
        {{"a", "--lenguaje="}, "", "falta el valor de la opción «--lenguaje»"},
        {{"a", "--help=1"}, "", "la opción «--help=1» no lleva valor"},
    };
    for (const Caso& caso : casos) {
        std::vector<const char*> palabras = caso.palabras;
        palabras.insert(palabras.begin(), "norvik-taller");
        const auto linea = leeLinea(static_cast<int>(palabras.size()), palabras.data());
        if (const auto* const a = std::get_if<Arranque>(&linea)) {
            const QStringList abre{a->formulario, a->especificacion, a->lenguaje, a->texto};
            EXPECT_EQ(abre.join('|'), caso.abre);
            EXPECT_EQ(a->vacio(), caso.palabras.empty());
        } else {
            EXPECT_EQ(std::get<Contesta>(linea).texto, "norvik-taller: " + std::string(caso.dice) +
                                                           " (norvik-taller --help explica el uso)\n");
        }
    }
}
