// SPDX-License-Identifier: MIT

#include "dialogosQt.hpp"
#include "linea.hpp"
#include "recuperacion.hpp"
#include "senalesDeFin.hpp"
#include "sistemaTaller.hpp"
#include "ventanaPrincipal.hpp"

#include "norvik/base/visible.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/tools/iconos.hpp"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>

#include <array>
#include <iostream>
#include <malloc.h>
#include <unistd.h>

namespace {

using namespace norvik;
using namespace norvik::taller;

/// What a window lets out all the same ends no work of a person's: there is none here that knows what failed.
class Aplicacion final : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* objeto, QEvent* evento) override {
        bool atendido = false;
        sinFallos([&] { atendido = QApplication::notify(objeto, evento); });
        return atendido;
    }
};

/// A terminal is given nothing of a word that it could take for an order.
int responde(const Contesta& respuesta) {
    const bool vale = respuesta.estado == 0;
    const bool enTerminal = isatty(vale ? STDOUT_FILENO : STDERR_FILENO) == 1;
    (vale ? std::cout : std::cerr) << (enTerminal ? lineasVisibles(respuesta.texto) : respuesta.texto);
    return respuesta.estado;
}

/// Long work is done by one thread after the other, in large pieces: each would keep a heap of its own, with
/// what it has freed.
void comparteMonton() {
    constexpr int grande = 1 << 20; // bytes
    mallopt(M_ARENA_MAX, 2);
    mallopt(M_MMAP_THRESHOLD, grande);
}

/// Qt ends a program that has no display, in words of its own.
bool hayPantalla() {
    constexpr std::array pantallas = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(pantallas.begin(), pantallas.end(),
                       [](const char* nombre) { return !qEnvironmentVariableIsEmpty(nombre); });
}

void abre(const Arranque& arranque, VentanaPrincipal& ventana) {
    if (!arranque.formulario.isEmpty()) ventana.abre(arranque.formulario);
    if (!arranque.lenguaje.isEmpty()) ventana.abre(arranque.lenguaje);
    if (!arranque.especificacion.isEmpty())
        ventana.abreEnVentana(arranque.especificacion, arranque.texto);
    else if (!arranque.texto.isEmpty())
        ventana.abre(arranque.texto);
}

std::filesystem::path carpetaDeCopias() {
    return aRuta(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)) / "copias";
}

/// Whoever ends the program from outside asks nobody what is to become of the work.
void conservaAlAcabar(Recuperacion& recuperacion, const SenalesDeFin& senales) {
    QObject::connect(&senales, &SenalesDeFin::pedido, &recuperacion, [&recuperacion](int senal) {
        recuperacion.conserva();
        QApplication::exit(128 + senal); // as a shell tells it
    });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &recuperacion,
                     [&recuperacion] { recuperacion.copia(); });
}

int trabaja(const Arranque& arranque) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); // numbers and dates of Qt's own windows
    QTranslator deQt;                                               // and their words
    if (deQt.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&deQt);
    QSettings ajustes(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("norvik"),
                      QStringLiteral("taller"));
    SistemaTaller sistema(ajustes);
    DialogosQt dialogos;
    VentanaPrincipal ventana(
        {sistema, dialogos, ajustes, ejemplosDe(carpetaDeEjemplos(QApplication::applicationDirPath()))});
    dialogos.ponVentana(&ventana);
    Recuperacion recuperacion(ventana, dialogos, carpetaDeCopias());
    const SenalesDeFin senales;
    conservaAlAcabar(recuperacion, senales);
    if (arranque.vacio()) ventana.muestraInicioSiSeQuiere();
    ventana.show();
    QTimer::singleShot(0, &ventana, [&] { // in the loop, which a signal ends
        recuperacion.ofrece();
        abre(arranque, ventana);
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const auto linea = leeLinea(argc, argv);
    if (const auto* const respuesta = std::get_if<Contesta>(&linea)) return responde(*respuesta);
    if (!hayPantalla()) return responde({"norvik-taller: no hay ninguna pantalla (DISPLAY)\n", 2});
    comparteMonton();
    int soloElNombre = 1; // the other words are ours
    const Aplicacion aplicacion(soloElNombre, argv);
    QApplication::setApplicationName(QStringLiteral("Norvik")); // no display name: it would end every title
    QApplication::setDesktopFileName(QStringLiteral("norvik-taller"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("norvik-taller"), icono(Dibujo::Analizar)));
    return trabaja(std::get<Arranque>(linea));
}
