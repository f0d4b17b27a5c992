// SPDX-License-Identifier: MIT

// Whatever fails in a slot, an event handler or an event filter of a window goes no further than that: the
// event loop can do nothing with it, and editors show the text that there is. Everything that can be done to
// each window is done while one allocation of our own code fails, the next one the next time; a sample of
// them, NORVIK_ASIGNACIONES=1 tries each one. Qt's own are left alone: it does not always survive them.
// Alone, since it replaces the operators of the whole program.

#include "apoyo/carpetaTemporal.hpp"
#include "lenguaje/ventanaLenguaje.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/tools/buscar.hpp"
#include "norvik/tools/codigoGramatica.hpp"
#include "norvik/tools/directorio.hpp"
#include "norvik/tools/informe.hpp"
#include "norvik/tools/probarLenguaje.hpp"
#include "norvik/tools/reemplazar.hpp"
#include "norvik/tools/ventanaPropiedades.hpp"
#include "qt/sistemaDePrueba.hpp"
#include "taller/dialogosGuion.hpp"
#include "ventanaPrincipal.hpp"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <new>

extern "C" const char __executable_start; // NOLINT: the linker's own names
extern "C" const char etext;              // NOLINT

namespace {

std::atomic<std::size_t> asignaciones = 0; // other threads make some
std::atomic<std::size_t> laQueFalla = 0;   // counted from 1; 0: none
std::atomic<bool> contando = false;
std::size_t inyectados = 0;

bool falla(const void* quien) {
    const auto donde = reinterpret_cast<std::uintptr_t>(quien);
    const bool nuestra = donde >= reinterpret_cast<std::uintptr_t>(&__executable_start) &&
                         donde < reinterpret_cast<std::uintptr_t>(&etext);
    return contando && nuestra && ++asignaciones == laQueFalla;
}

void* asigna(std::size_t bytes, const void* quien) {
    void* const memoria = falla(quien) ? nullptr : std::malloc(bytes); // NOLINT
    if (memoria == nullptr) throw std::bad_alloc();
    return memoria;
}

} // namespace

void* operator new(std::size_t bytes) {
    return asigna(bytes, __builtin_return_address(0));
}
void* operator new[](std::size_t bytes) {
    return asigna(bytes, __builtin_return_address(0));
}
void operator delete(void* memoria) noexcept {
    std::free(memoria); // NOLINT
}
void operator delete[](void* memoria) noexcept {
    std::free(memoria); // NOLINT
}
void operator delete(void* memoria, std::size_t /*bytes*/) noexcept {
    std::free(memoria); // NOLINT
}
void operator delete[](void* memoria, std::size_t /*bytes*/) noexcept {
    std::free(memoria); // NOLINT
}

namespace {

using namespace norvik;
using namespace norvik::taller;

/// Nothing that is raised while an event is delivered must come here.
class Vigilante final : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* objeto, QEvent* evento) override {
        try {
            return QApplication::notify(objeto, evento);
        } catch (...) {
            ++escapadas;
            return false;
        }
    }
    int escapadas = 0;
};

int& escapadas() {
    return static_cast<Vigilante*>(QCoreApplication::instance())->escapadas;
}

/// A window and all it lives from.
struct Escena {
    virtual ~Escena() = default;
    virtual QWidget& ventana() = 0;
};

using Hacer = std::function<std::unique_ptr<Escena>()>;
using Operacion = std::function<void(QWidget&)>;

// ---- what can be done to any window

void teclea(QWidget& ventana) {
    auto* const editor = ventana.findChild<QPlainTextEdit*>();
    if (editor == nullptr) return;
    QTest::keyClicks(editor, "a+1");
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClick(editor, Qt::Key_Tab);
    QTest::mouseClick(editor->viewport(), Qt::LeftButton);
    QInputMethodEvent compuesto("", {});
    compuesto.setCommitString("ñ");
    QApplication::sendEvent(editor, &compuesto);
}

void cambiaDeTamanio(QWidget& ventana) {
    ventana.resize(ventana.size() + QSize(20, 20));
    QEvent estilo(QEvent::StyleChange);
    QApplication::sendEvent(&ventana, &estilo);
    QEvent activacion(QEvent::ActivationChange);
    QApplication::sendEvent(&ventana, &activacion);
    ventana.grab();
}

void cierra(QWidget& ventana) {
    QCloseEvent evento;
    QApplication::sendEvent(&ventana, &evento);
}

void escribeEnLosCampos(QWidget& ventana) {
    const auto campos = ventana.findChildren<QLineEdit*>();
    for (QLineEdit* const campo : campos) QTest::keyClicks(campo, "7");
    const auto listas = ventana.findChildren<QListWidget*>();
    for (QListWidget* const lista : listas) QTest::keyClick(lista, Qt::Key_Down);
    const auto cifras = ventana.findChildren<QSpinBox*>();
    for (QSpinBox* const cifra : cifras) cifra->stepBy(7);
    const auto arboles = ventana.findChildren<QTreeView*>();
    for (QTreeView* const arbol : arboles) {
        QTest::keyClick(arbol, Qt::Key_Down);
        QTest::mouseClick(arbol->viewport(), Qt::LeftButton, {}, {30, 10});
    }
    const auto menus = ventana.findChildren<QMenu*>();
    for (QMenu* const menu : menus) emit menu->aboutToShow();
}

/// By its place among its like: each trial has a window of its own.
template <typename Tipo>
void enCadaUno(const Hacer& hacer, const std::function<void(Tipo&)>& pulsa,
               std::vector<std::pair<std::string, Operacion>>& operaciones) {
    const auto escena = hacer();
    const auto cuantos = escena->ventana().findChildren<Tipo*>().size();
    for (qsizetype i = 0; i < cuantos; ++i) {
        const Tipo& este = *escena->ventana().findChildren<Tipo*>()[i];
        operaciones.emplace_back((este.objectName() + u' ' + este.text()).toStdString(),
                                 [i, pulsa](QWidget& v) { pulsa(*v.findChildren<Tipo*>()[i]); });
    }
}

std::vector<std::pair<std::string, Operacion>> operacionesDe(const Hacer& hacer) {
    std::vector<std::pair<std::string, Operacion>> operaciones = {
        {"teclas", teclea},
        {"tamaño", cambiaDeTamanio},
        {"cerrar", cierra},
        {"campos", escribeEnLosCampos},
    };
    enCadaUno<QAction>(
        hacer, [](QAction& a) { a.trigger(); }, operaciones);
    enCadaUno<QAbstractButton>(
        hacer, [](QAbstractButton& b) { b.click(); }, operaciones);
    return operaciones;
}

void prueba(const Hacer& hacer, const std::string& nombre, const Operacion& operacion, std::size_t cual) {
    const auto escena = hacer();
    asignaciones = 0;
    laQueFalla = cual;
    contando = true;
    try {
        operacion(escena->ventana());
        QApplication::processEvents();
    } catch (...) {
        ++escapadas();
    }
    contando = false;
    if (cual != 0 && asignaciones >= cual) ++inyectados;
    EXPECT_EQ(std::exchange(escapadas(), 0), 0) << nombre << ", allocation " << cual;
    const auto controles = escena->ventana().findChildren<ControlNorvik*>();
    for (ControlNorvik* const control : controles) {
        const auto& editor = static_cast<QPlainTextEdit&>(control->caja().ventana());
        EXPECT_EQ(editor.toPlainText(), conSaltosDeQt(aQString(control->caja().texto())))
            << nombre << ", allocation " << cual << ": the editor shows another text";
    }
}

void enTodas(const Hacer& hacer, const std::vector<std::pair<std::string, Operacion>>& operaciones) {
    const bool todas = std::getenv("NORVIK_ASIGNACIONES") != nullptr; // NOLINT: one thread
    constexpr std::size_t muestra = 3;
    for (const auto& [nombre, operacion] : operaciones) {
        prueba(hacer, nombre, operacion, 0);
        const std::size_t cuantas = asignaciones.load();
        const std::size_t paso = todas ? 1 : std::max<std::size_t>(1, cuantas / muestra);
        for (std::size_t n = 1; n <= cuantas; n += paso) prueba(hacer, nombre, operacion, n);
    }
}

void enTodas(const Hacer& hacer) {
    enTodas(hacer, operacionesDe(hacer));
}

// ---- the windows

constexpr auto suma =
    R"(Token num = "[0-9]+", TipoToken = TTNumero; Token mas = "\+"; E -> E mas num | num;)";

struct Taller final : Escena {
    Taller() {
        sistema.imprimeEnFichero(QString::fromStdString((carpeta / "impreso.pdf").string()));
        const QString lenguaje = QString::fromStdString(carpeta.pon("suma.nvk", suma).string());
        const QString texto = QString::fromStdString(carpeta.pon("a.txt", "1+2\n").string());
        principal.abre(lenguaje);
        principal.abre(texto);
        principal.acciones().analizar.trigger();
        principal.show();
        dialogos.ficheros = {texto, texto, texto};
        dialogos.destinos = {Destino::Descartar, Destino::Descartar, Destino::Descartar};
    }
    QWidget& ventana() override { return principal; }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat};
    VentanaPrincipal principal{{sistema, dialogos, ajustes, {}}};
};

/// A window of design time, with a control that has a language.
struct Disenio : Escena {
    Disenio() {
        sistema.imprimeEnFichero(QString::fromStdString((carpeta / "impreso.pdf").string()));
        directorioDestino() = carpeta.ruta();
        norvik.resize(300, 200);
        norvik.control().ContenidoG(decodifica(suma));
        norvik.control().CargaGramatica(norvik.control().ContenidoG());
        norvik.control().GeneraCompilador();
        ranurasDisenio() = {norvik.control().ContenidoG(), u"1+2", false};
    }
    apoyo::CarpetaTemporal carpeta;
    SistemaDePrueba sistema;
    ControlNorvik norvik{sistema, nullptr};
};

template <typename Ventana>
struct Con final : Disenio {
    explicit Con(const std::function<std::unique_ptr<Ventana>(Disenio&)>& hazla) : suya(hazla(*this)) {
        suya->show();
    }
    QWidget& ventana() override { return *suya; }
    std::unique_ptr<Ventana> suya;
};

template <typename Ventana>
Hacer hacer(std::function<std::unique_ptr<Ventana>(Disenio&)> hazla) {
    return [hazla = std::move(hazla)] { return std::make_unique<Con<Ventana>>(hazla); };
}

TEST(Ventanas, Taller) {
    enTodas([] { return std::make_unique<Taller>(); });
}

/// The language window, with something in each of its panels.
struct LenguajeConPaneles final : Escena {
    LenguajeConPaneles() {
        principal.show();
        principal.empieza(
            u"'% metodo: lalr\r\nToken si = \"si\";\r\nToken no = \"no\";\r\nToken a = \"a\";\r\n"
            u"S -> si S | si S no S | a;\r\n",
            u"si si a no a");
        static_cast<void>(QTest::qWaitFor([this] { return principal.seguimiento().completo(); }));
    }
    QWidget& ventana() override { return principal; }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat};
    VentanaLenguaje principal{sistema, dialogos, ajustes};
};

/// A panel comes to the front, does what it has to do, and is used.
void usa(QWidget& ventana, qsizetype cual) {
    auto& panel = *ventana.findChildren<Panel*>()[cual];
    panel.show();
    panel.raise();
    QTest::qWait(40); // for its thread
    for (QAbstractItemView* const vista : panel.findChildren<QAbstractItemView*>()) {
        QTest::keyClick(vista, Qt::Key_Down);
        QTest::keyClick(vista, Qt::Key_Return);
    }
    for (QAbstractButton* const boton : panel.findChildren<QAbstractButton*>()) boton->click();
    QTest::qWait(10);
}

TEST(Ventanas, Lenguaje) {
    const Hacer hacer = [] { return std::make_unique<LenguajeConPaneles>(); };
    std::vector<std::pair<std::string, Operacion>> operaciones = {{"teclas", teclea}, {"cerrar", cierra}};
    const auto escena = hacer();
    for (qsizetype i = 0; i < escena->ventana().findChildren<Panel*>().size(); ++i)
        operaciones.emplace_back(escena->ventana().findChildren<Panel*>()[i]->objectName().toStdString(),
                                 [i](QWidget& v) { usa(v, i); });
    enTodas(hacer, operaciones);
}

TEST(Ventanas, Propiedades) {
    using Pagina = VentanaPropiedades::Pagina;
    const auto calla = [](auto&&...) { return Destino::Descartar; };
    for (const Pagina pagina : {Pagina::General, Pagina::Gramatica})
        enTodas(hacer<VentanaPropiedades>([&](Disenio& d) {
            return std::make_unique<VentanaPropiedades>(d.norvik, "N", d.sistema, calla, pagina, nullptr);
        }));
}

TEST(Ventanas, Editores) {
    enTodas(hacer<CodigoGramatica>([](Disenio& d) {
        auto editor = std::make_unique<CodigoGramatica>(d.sistema);
        editor->carga();
        return editor;
    }));
    enTodas(hacer<ProbarLenguaje>([](Disenio& d) {
        auto editor = std::make_unique<ProbarLenguaje>(d.sistema);
        editor->Norvik1().control().CargaGramatica(decodifica(suma));
        editor->Norvik1().control().GeneraCompilador();
        editor->carga();
        return editor;
    }));
}

TEST(Ventanas, Informe) {
    enTodas(hacer<Informe>([](Disenio& d) {
        return std::make_unique<Informe>(d.norvik.control().Gramatica(), d.norvik.control().Lexico(),
                                         d.sistema, nullptr, std::make_unique<QTextDocument>());
    }));
    enTodas(hacer<directorio>([](Disenio& d) { return std::make_unique<directorio>(d.sistema); }));
}

TEST(Ventanas, Busqueda) {
    enTodas(hacer<Reemplazar>([](Disenio& d) {
        d.norvik.Text("1+1");
        return std::make_unique<Reemplazar>(d.norvik);
    }));
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const Vigilante aplicacion(argc, argv);
    QTimer cierraMenus; // that a button opened
    QObject::connect(&cierraMenus, &QTimer::timeout, [] {
        if (QWidget* const menu = QApplication::activePopupWidget(); menu != nullptr) menu->close();
    });
    cierraMenus.start(0);
    const int resultado = RUN_ALL_TESTS();
    std::cout << inyectados << " allocations failed\n";
    return resultado;
}
