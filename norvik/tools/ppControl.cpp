// SPDX-License-Identifier: MIT

#include "norvik/tools/ppControl.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/report/nombreDeModulo.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"
#include "norvik/tools/codigoGramatica.hpp"
#include "norvik/tools/directorio.hpp"
#include "norvik/tools/informe.hpp"
#include "norvik/tools/procesando.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QFormLayout>
#include <QGridLayout>
#include <QVBoxLayout>

#include <optional>

namespace norvik {

namespace {

/// The page whose control's language is in the shared slots.
QPointer<PPControl>& duena() {
    static QPointer<PPControl> pagina;
    return pagina;
}

} // namespace

PPControl::PPControl(SistemaQt& sistema, QWidget* padre)
    : PaginaPropiedades(sistema, QStringLiteral("Gramática"), padre), norvik1_(sistema, this),
      lenguajeAparte_(sistema) {
    setObjectName(QStringLiteral("PPControl"));
    nombra(lenguaje_, "lenguaje", QStringLiteral("Nombre del Lenguaje"));
    nombra(command4_, "Command4", QStringLiteral("Editar Gramática ..."));
    nombra(command5_, "Command5", command5_.text());
    nombra(command6_, "Command6", command6_.text());
    nombra(resultado_, "resultado", QStringLiteral("Resultado"));
    nombra(norvik1_, "Norvik1", QStringLiteral("Especificación"));
    norvik1_.hide(); // it only parses
    setFocusProxy(&lenguaje_);
    dispone();
    conecta();
}

void PPControl::dispone() {
    lenguaje_.setEditable(true);
    lenguaje_.setInsertPolicy(QComboBox::NoInsert);
    lenguaje_.setCompleter(nullptr); // a name is what is typed
    for (const char* nombre : {"Basic", "C/C++", "Java", "Lisp", "PCNC", "Prolog"})
        lenguaje_.addItem(QLatin1String(nombre));
    auto& columna = nuevo<QVBoxLayout>(this);
    columna.addWidget(&titular(QStringLiteral("Información de análisis sintáctico del Norvik")));
    auto& nombre = nuevo<QFormLayout>();
    nombre.addRow(QStringLiteral("Nombre del Lenguaje"), &lenguaje_);
    columna.addLayout(&nombre);
    columna.addWidget(&marco_);
    columna.addStretch();
    auto& botones = nuevo<QGridLayout>(&marco_);
    const auto pon = [&botones](QPushButton& boton, int fila) {
        boton.setAutoDefault(false);
        botones.addWidget(&boton, fila, 0);
    };
    pon(command4_, 0);
    pon(command5_, 1);
    pon(command6_, 2);
    botones.addWidget(&resultado_, 3, 0, 1, 2);
    botones.setColumnStretch(1, 1);
}

void PPControl::conecta() {
    connect(&lenguaje_, &QComboBox::editTextChanged, this, [this] { marca(); });
    const auto conOrden = [this](QPushButton& boton, auto orden) {
        connect(&boton, &QPushButton::clicked, this, [this, orden] {
            ejecuta([this, orden] {
                if (duena().isNull() || duena() != this) tomaRanuras(*control());
                orden();
            });
        });
    };
    conOrden(command4_, [this] { editarGramatica(); });
    conOrden(command5_, [this] { verInforme(); });
    conOrden(command6_, [this] { generarModulo(); });
}

// ---- the page's events

void PPControl::lee(ControlNorvik& control) {
    tomaRanuras(control);
    lenguaje_.setEditText(control.NomLenguaje());
    resultado_.clear();
}

bool PPControl::escribe(ControlNorvik& control) {
    control.NomLenguaje(lenguaje_.currentText());
    return true;
}

void PPControl::tomaRanuras(ControlNorvik& control) {
    PPControl* const otra = duena();
    if (otra != nullptr && otra != this && otra->control() != nullptr)
        otra->deja(*otra->control(), Motivo::OtraSeleccion);
    static_cast<void>(control.control().editCode());
    tomadas_ = ranurasDisenio();
    duena() = this;
}

void PPControl::deja(ControlNorvik& control, Motivo motivo) {
    if (duena() != this) return;
    duena() = nullptr;
    if (motivo == Motivo::Cierre || ranurasDisenio() != tomadas_) control.control().editCode(true);
}

// ---- commands

void PPControl::editarGramatica() {
    marca();
    std::optional<CodigoGramatica> editor;
    std::u16string fallo;
    {
        const PunteroOcupado ocupado(sistema());
        const VentanaDeAmbito<Procesando> aviso(sistema(), window());
        sistema().procesaEventos();
        editor.emplace(sistema(), window());
        fallo = falloDe([&] { editor->carga(); });
    }
    sistema().procesaEventos();
    if (!fallo.empty()) sistema().muestraMensaje({fallo, {}});
    sistema().muestraModal(*editor);
}

/// The shared specification, compiled apart; what failed, if anything did. The specification language is
/// installed anew each time, in place of the one before.
std::optional<Mensaje> PPControl::construye() {
    Norvik& control = norvik1_.control();
    control.OlvidaLenguaje();
    CargaMetaLenguaje(control);
    sistema().ponPuntero(Puntero::Ocupado);
    control.Text(ranurasDisenio().especificacion);
    const auto fallo = lenguajeAparte_.construye(control);
    if (!fallo) return std::nullopt;
    switch (fallo->paso) {
    case LenguajeAparte::Fallo::Paso::Analisis:
        return mensajeDeCompilacion(fallo->error);
    case LenguajeAparte::Fallo::Paso::Comprobacion:
        return mensajeDeComprobacion(fallo->error);
    }
    return std::nullopt;
}

bool PPControl::construyeConAviso() {
    std::optional<Mensaje> fallo;
    {
        const PunteroOcupado ocupado(sistema());
        {
            const VentanaDeAmbito<Procesando> aviso(sistema(), window());
            sistema().procesaEventos();
            fallo = construye();
        }
        if (!fallo) sistema().procesaEventos();
    }
    if (!fallo) return true;
    sistema().procesaEventos();
    sistema().muestraMensaje(*fallo);
    return false;
}

void PPControl::verInforme() {
    if (!construyeConAviso()) return;
    MuestraInforme(lenguajeAparte_.Gramatica(), lenguajeAparte_.Lexico(), sistema(), window());
}

void PPControl::generarModulo() {
    const std::u16string nombre = lenguaje_.currentText().toStdU16String();
    if (!esIdentificador(nombre)) {
        sistema().muestraMensaje({u"El nombre seleccionado para el lenguaje es incorrecto", {}});
        return;
    }
    compruebaNombreDeModulo(nombre, LenguajeModulo::Vb);
    resultado_.clear();
    muestraModal<directorio>(sistema(), sistema(), window());
    if (directorioDestino().empty() || !construyeConAviso()) return;
    lenguajeAparte_.Gramatica().GuardaModuloGramatica(nombre, lenguajeAparte_.Lexico(), directorioDestino());
    const std::filesystem::path fichero = directorioDestino() / (nombre + u".bas");
    resultado_.setText(QStringLiteral("Módulo guardado en %1").arg(deRuta(fichero)));
}

} // namespace norvik
