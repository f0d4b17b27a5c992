// SPDX-License-Identifier: MIT

// Makes the pictures of the manual and of the README: shows each window as a person meets it, on the example
// languages, and writes what it shows into a folder. With --oscura, in light on dark. Run by
// scripts/capturas.
#include "dialogosQt.hpp"
#include "ventanaPrincipal.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/tools/buscar.hpp"
#include "norvik/tools/codigoGramatica.hpp"
#include "norvik/tools/informe.hpp"
#include "norvik/tools/probarLenguaje.hpp"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QThread>

#include <functional>
#include <iostream>
#include <stdexcept>

using namespace norvik;
using namespace norvik::taller;

namespace {

class Album {
public:
    explicit Album(const QString& carpeta) : carpeta_(carpeta) {}

    void guarda(QWidget& ventana, const QString& nombre) const {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        constexpr int menor = 0; // the compression that makes the smallest file
        if (!ventana.grab()
                 .toImage()
                 .convertToFormat(QImage::Format_RGB888)
                 .save(carpeta_.filePath(nombre + ".png"), "PNG", menor))
            throw std::runtime_error("no se puede escribir " + nombre.toStdString());
    }

private:
    QDir carpeta_;
};

/// Modal windows are pictured instead of waited for.
class SistemaDelAlbum final : public SistemaQt {
public:
    std::function<void(QWidget& ventana)> retrata;

    void muestraModal(QWidget& ventana) override {
        ventana.show();
        if (retrata) retrata(ventana);
        ventana.close();
    }
};

void poneOscura() {
    QPalette p;
    p.setColor(QPalette::Window, QColor(45, 45, 48));
    p.setColor(QPalette::WindowText, QColor(225, 225, 225));
    p.setColor(QPalette::Base, QColor(30, 30, 30));
    p.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
    p.setColor(QPalette::Text, QColor(225, 225, 225));
    p.setColor(QPalette::Button, QColor(55, 55, 58));
    p.setColor(QPalette::ButtonText, QColor(225, 225, 225));
    p.setColor(QPalette::Light, QColor(90, 90, 94));
    p.setColor(QPalette::Midlight, QColor(75, 75, 78));
    p.setColor(QPalette::Mid, QColor(60, 60, 62));
    p.setColor(QPalette::Dark, QColor(25, 25, 26));
    p.setColor(QPalette::Highlight, QColor(60, 110, 170));
    p.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, papel, QColor(120, 120, 120));
    QApplication::setPalette(p);
}

/// The windows in the order in which a person comes by them.
class Retratos {
public:
    Retratos(const Album& album, const QString& ejemplos) : album_(album), ejemplos_(ejemplos) {
        ventana_.resize(800, 480);
        ventana_.show();
    }
    void haz() {
        inicio();
        taller();
        lenguaje();
        control();
        editores();
        informe();
        busqueda();
    }

private:
    QString ejemplo(const char* nombre) const { return ejemplos_.filePath(QLatin1String(nombre)); }
    ControlNorvik& norvik() { return ventana_.formulario().activo().norvik(); }

    void inicio() {
        ventana_.acciones().inicio.trigger();
        album_.guarda(ventana_, "inicio");
    }
    void taller() {
        Acciones& a = ventana_.acciones();
        ventana_.abre(ejemplo("pascal/pascal.nvk"));
        ventana_.abre(ejemplo("pascal/bien/criba.pas"));
        a.analizar.trigger();
        album_.guarda(ventana_, "taller");
        ventana_.abre(ejemplo("pascal/mal/punto_y_coma.pas"));
        a.analizar.trigger();
        album_.guarda(ventana_, "taller_error");
        a.anadir.trigger();
        ventana_.abre(ejemplo("calculadora/calculadora.nvk"));
        ventana_.abre(ejemplo("calculadora/bien/interes.txt"));
        a.disenio.setChecked(true);
        album_.guarda(ventana_, "taller_disenio");
        sistema_.retrata = [this](QWidget& v) { paginas(v); };
        a.propiedades.trigger();
        a.disenio.setChecked(false);
        sistema_.retrata = nullptr;
    }
    template <typename Condicion>
    static void espera(Condicion condicion) {
        while (!condicion()) {
            QCoreApplication::processEvents();
            QThread::msleep(1);
        }
        QCoreApplication::processEvents();
    }
    /// A conflict with its story and its cures.
    void lenguaje() {
        VentanaLenguaje& lenguaje = ventana_.ventanaLenguaje();
        lenguaje.resize(960, 620);
        lenguaje.empieza(
            u"'% metodo: lalr\r\nToken num = \"[0-9]+\", TipoToken = TTNumero;\r\n"
            u"Token mas = \"\\+\", TipoToken = TTOperador;\r\n"
            u"Token por = \"\\*\", TipoToken = TTOperador;\r\n\r\nE -> E mas E | E por E | num;\r\n",
            u"1 + 2 * 3");
        lenguaje.trae();
        espera([&] { return lenguaje.seguimiento().alDia(); });
        QTreeWidget& lista = lenguaje.problemas().lista();
        lista.setCurrentItem(lista.topLevelItem(0)->child(1));
        const QPlainTextEdit& detalle = lenguaje.problemas().detalle();
        espera([&] { return !detalle.toPlainText().contains("Se busca"); });
        album_.guarda(lenguaje, "lenguaje");
        lenguaje.close();
    }
    void paginas(QWidget& propiedades) {
        auto& fichas = *propiedades.findChild<QTabWidget*>();
        const QStringList nombres = {"general", "gramatica", "colores"};
        for (int i = 0; i < fichas.count(); ++i) {
            fichas.setCurrentIndex(i);
            album_.guarda(propiedades, "propiedades_" + nombres.value(i));
        }
    }
    /// A control by itself, with a line that is being written and an error with its sign.
    void control() {
        ControlNorvik solo;
        solo.resize(460, 150);
        solo.show();
        solo.control().CargaGramatica(leeTexto(ejemplo("pascal/pascal.nvk").toStdString()));
        solo.control().GeneraCompilador();
        solo.Colorear(true);
        solo.MarcarErrores(true);
        solo.control().Text(u"programa mal;\r\ninicio\r\n  escribir('hola')\r\nfin.");
        solo.control().ColoreaTodo();
        solo.control().ConstruyeArbolSintactico();
        solo.control().PonSignoError(solo.control().LineaToken());
        album_.guarda(solo, "control");
        solo.Borde3D(false);
        solo.LeftBorderVisible(false);
        album_.guarda(solo, "control_sin_bordes");
    }
    void editores() {
        ranurasDisenio() = {leeTexto(ejemplo("pascal/pascal.nvk").toStdString()),
                            leeTexto(ejemplo("pascal/bien/hola.pas").toStdString()), false};
        CodigoGramatica gramatica(sistema_);
        gramatica.carga();
        gramatica.show();
        album_.guarda(gramatica, "codigoGramatica");
        ProbarLenguaje probar(sistema_);
        probar.Norvik1().control().CargaGramatica(ranurasDisenio().especificacion);
        probar.Norvik1().control().GeneraCompilador();
        probar.carga();
        probar.show();
        album_.guarda(probar, "probarLenguaje");
        ranurasDisenio() = {};
    }
    void informe() {
        Norvik& control = norvik().control();
        sistema_.retrata = [this](QWidget& informe) {
            auto* const fichas = informe.findChild<QTabWidget*>();
            for (int i = 0; fichas != nullptr && i < fichas->count(); ++i) {
                fichas->setCurrentIndex(i);
                album_.guarda(informe, QStringLiteral("informe_%1").arg(i + 1));
            }
        };
        MuestraInforme(control.Gramatica(), control.Lexico(), sistema_, &ventana_);
        sistema_.retrata = nullptr;
    }
    void busqueda() {
        norvik().control().ShowBuscarDialog();
        for (QWidget* const v : QApplication::topLevelWidgets())
            if (v->objectName() == "buscar") album_.guarda(*v, "buscar");
        buscar::olvida(norvik());
        sistema_.retrata = [this](QWidget& v) { album_.guarda(v, "reemplazar"); };
        norvik().control().ShowReemplazarDialog();
    }

    const Album& album_;
    QDir ejemplos_;
    QTemporaryDir aparte_;
    QSettings ajustes_{aparte_.filePath("ajustes.ini"), QSettings::IniFormat};
    SistemaDelAlbum sistema_;
    DialogosQt dialogos_;
    VentanaPrincipal ventana_{{sistema_, dialogos_, ajustes_, ejemplosDe(ejemplos_.absolutePath())}};
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    const QStringList palabras = QApplication::arguments();
    if (palabras.size() < 3) {
        std::cerr << "uso: capturas EJEMPLOS CARPETA [--oscura]\n";
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setApplicationDisplayName("Norvik");
    if (palabras.contains("--oscura")) poneOscura();
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        const Album album(palabras[2]);
        Retratos(album, palabras[1]).haz();
    } catch (const std::exception& e) {
        std::cerr << "capturas: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
