// SPDX-License-Identifier: MIT

// The report window and the folder chooser.
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/tools/directorio.hpp"
#include "norvik/tools/informe.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

using namespace norvik;

namespace {

/// After n a mas tells nothing of whether it is an A or a B.
constexpr std::u16string_view ambigua =
    u"Token mas = \"\\+\" (\"más\"); Token n = \"[0-9]\"; S -> A | B mas; A -> n; B -> n | A;";

struct InformeTest : testing::Test {
    InformeTest() { directorioDestino().clear(); }
    ~InformeTest() override { directorioDestino().clear(); }

    /// Uses the report window of the control on a language.
    void muestra(std::u16string_view especificacion, const std::function<void(QWidget&)>& uso) {
        if (!especificacion.empty()) {
            ASSERT_TRUE(norvik.control().CargaGramatica(especificacion));
            ASSERT_TRUE(norvik.control().GeneraCompilador());
        }
        sistema.usos.push_front(uso);
        norvik.control().MuestraInforme();
    }
    template <typename Tipo>
    static Tipo& en(QWidget& ventana, const char* nombre) {
        return *ventana.findChild<Tipo*>(QLatin1String(nombre));
    }
    /// Chooses a folder when the chooser is shown.
    void elegira(const std::filesystem::path& carpeta) {
        sistema.usos.emplace_back([carpeta](QWidget& d) {
            auto& arbol = en<QTreeView>(d, "Dir1");
            auto& modelo = static_cast<QFileSystemModel&>(*arbol.model());
            arbol.setCurrentIndex(modelo.index(QString::fromStdString(carpeta.string())));
            EXPECT_EQ(en<QLabel>(d, "dirDestino").text().toStdString(), carpeta.string());
            en<QPushButton>(d, "Command1").click();
        });
    }

    SistemaDePrueba sistema;
    ControlNorvik norvik{sistema, nullptr};
};

TEST_F(InformeTest, TresPartes) {
    muestra(ambigua, [&](QWidget& v) {
        const gramatica& g = norvik.control().Gramatica();
        EXPECT_EQ(v.windowTitle(), "Informe sobre la gramática especificada");
        auto& partes = en<QTabWidget>(v, "SSTab1");
        EXPECT_EQ(partes.tabText(0) + partes.tabText(1) + partes.tabText(2),
                  "&Informe general&Autómata SLR&Tabla SLR");
        QTest::qWait(0);
        EXPECT_EQ(v.focusWidget(), &en<QPlainTextEdit>(v, "Texto"));
        EXPECT_EQ(partes.geometry(), QRect(0, 33, v.width(), v.height() - 33)); // 33 pixels are 500 twips
        const auto sinRetornos = [](std::u16string texto) {
            std::erase(texto, u'\r');
            return texto;
        };
        auto& automata = en<QPlainTextEdit>(v, "automata");
        EXPECT_EQ(en<QPlainTextEdit>(v, "Texto").toPlainText().toStdU16String(),
                  sinRetornos(g.textoInformeGeneral()));
        EXPECT_EQ(automata.toPlainText().toStdU16String(), sinRetornos(g.textoAutomata()));
        int titulos = 0;
        for (QTextBlock b = automata.document()->begin(); b.isValid(); b = b.next()) {
            if (b.length() == 1) continue;
            const bool realzado = b.begin().fragment().charFormat().fontWeight() == QFont::Bold;
            EXPECT_EQ(realzado, b.text().startsWith("Estado ")) << b.text().toStdString();
            titulos += realzado ? 1 : 0;
        }
        EXPECT_EQ(titulos, static_cast<int>(g.estadosAutomata().size()));
        EXPECT_FALSE(en<QPushButton>(v, "Command2").isEnabled());
    });
    EXPECT_EQ(sistema.ventanas, "Informe ");
}

TEST_F(InformeTest, LaTablaYSusConflictos) {
    muestra(ambigua, [&](QWidget& v) {
        auto& tabla = en<QTableView>(v, "tabla");
        const QAbstractItemModel& m = *tabla.model();
        QString vista;
        int realzadas = 0;
        for (int f = 0; f < m.rowCount(); ++f) {
            vista += m.headerData(f, Qt::Vertical).toString() + ':';
            for (int c = 0; c < m.columnCount(); ++c) {
                const QModelIndex celda = m.index(f, c);
                vista += ' ' + celda.data().toString() + '|';
                EXPECT_EQ(celda.data(Qt::TextAlignmentRole).toInt(), Qt::AlignCenter);
                const bool realzada = celda.data(Qt::BackgroundRole).isValid();
                EXPECT_EQ(realzada, celda.data().toString().contains('/'));
                EXPECT_EQ(realzada, celda.data(Qt::FontRole).value<QFont>().bold());
                realzadas += realzada ? 1 : 0;
                EXPECT_GT(tabla.columnWidth(c),
                          tabla.fontMetrics().horizontalAdvance(celda.data().toString()));
            }
            vista += '\n';
        }
        EXPECT_EQ(vista.toStdString(), "0: | D3| | 1| 2| 4|\n1: | | ACEPTAR| | | |\n2: R5| | R1| | | |\n"
                                       "3: R3 / R4| | R3| | | |\n4: D5| | | | | |\n5: | | R2| | | |\n");
        EXPECT_EQ(realzadas, 1);
        EXPECT_TRUE(m.headerData(3, Qt::Vertical, Qt::BackgroundRole).isValid());
        EXPECT_FALSE(m.headerData(4, Qt::Vertical, Qt::BackgroundRole).isValid());
        EXPECT_EQ(m.headerData(0, Qt::Horizontal, Qt::ToolTipRole), "<qt>más</qt>");

        en<QTabWidget>(v, "SSTab1").setCurrentIndex(2);
        for (const auto& [f, c] : {std::pair(3, 2), std::pair(0, 1), std::pair(4, 0)})
            tabla.selectionModel()->select(m.index(f, c), QItemSelectionModel::Select);
        tabla.actions()[0]->trigger();
        EXPECT_EQ(QApplication::clipboard()->text(), "\tD3\t\n\t\tR3\nD5\t\t");
        tabla.actions()[1]->trigger();
        EXPECT_EQ(QApplication::clipboard()->text(), "\tmas\tn\t$\n0\t\tD3\t\n3\t\t\tR3\n4\tD5\t\t");
        en<QPushButton>(v, "Command3").click();
        EXPECT_EQ(sistema.mensajes[0].titulo, u"Conflictos");
        EXPECT_EQ(sistema.mensajes[0].texto, norvik.control().Gramatica().textoProblemas());
    });
}

TEST_F(InformeTest, GuardarEnUnaCarpeta) {
    const apoyo::CarpetaTemporal carpeta;
    muestra(ambigua, [&](QWidget& v) {
        elegira(carpeta.ruta());
        en<QPushButton>(v, "Command1").click();
        EXPECT_TRUE(std::filesystem::exists(carpeta / "informeGramatica.txt"));
        EXPECT_EQ(en<QLabel>(v, "guardado").text().toStdString(), "Guardado en " + carpeta.ruta().string());

        sistema.usos.emplace_back([&](QWidget& d) { en<QPushButton>(d, "Command2").click(); });
        std::filesystem::remove(carpeta / "informeGramatica.txt");
        en<QPushButton>(v, "Command1").click();
        EXPECT_TRUE(directorioDestino().empty());
        EXPECT_FALSE(std::filesystem::exists(carpeta / "informeGramatica.txt"));
        EXPECT_EQ(en<QLabel>(v, "guardado").text(), "");

        std::filesystem::create_directory(carpeta / "informeGramatica.txt"); // no file can take its place
        elegira(carpeta.ruta());
        en<QPushButton>(v, "Command1").click();
        ASSERT_EQ(sistema.mensajes.size(), 1U);
        EXPECT_TRUE(sistema.mensajes[0].titulo.empty());
        EXPECT_EQ(sistema.puntero(), Puntero::Normal);
    });
    EXPECT_EQ(sistema.ventanas, "Informe directorio directorio directorio ");
}

TEST_F(InformeTest, SinLenguajeNadaSeRompe) {
    muestra({}, [&](QWidget& v) {
        EXPECT_EQ(en<QTableView>(v, "tabla").model()->rowCount(), 0);
        EXPECT_EQ(en<QPlainTextEdit>(v, "automata").toPlainText(), "");
        en<QPushButton>(v, "Command3").click();
        EXPECT_EQ(sistema.mensajes[0].texto, u"La gramática carece de problema alguno.");
    });
}

TEST_F(InformeTest, UnaUnidadQueNoSeLee) {
    directorioDestino() = "/usr/share";
    directorio eleccion(sistema);
    EXPECT_TRUE(directorioDestino().empty());
    auto& unidades = en<QComboBox>(eleccion, "Drive1");
    auto& elegida = en<QLabel>(eleccion, "dirDestino");
    EXPECT_EQ(eleccion.windowTitle(), "Elección del directorio destino");
    EXPECT_EQ(unidades.itemText(0), "/");
    EXPECT_EQ(elegida.text(), "/usr/share");
    const int primera = unidades.currentIndex();
    unidades.addItem("rota", "/no/existe");
    unidades.setCurrentIndex(unidades.count() - 1);
    emit unidades.activated(unidades.count() - 1);
    EXPECT_EQ(sistema.dameMensajes(), (std::vector<Mensaje>{{u"/no/existe: no existe", u"Atención"}}));
    EXPECT_EQ(unidades.currentIndex(), primera);
    EXPECT_EQ(elegida.text(), "/usr/share");
    emit unidades.activated(0);
    EXPECT_EQ(elegida.text(), "/");
}

} // namespace
