#include "lenguaje.hpp"

#include "rutas.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <QFileInfo>

namespace norvik::taller {

namespace {

void olvidaLenguaje(Norvik& control) {
    control.BorraLenguaje();
    control.Gramatica().inicializaConjuntos();
    control.Gramatica().inicializaGramatica();
}

/// Without a language the text is plain.
std::u16string acaba(Norvik& control, const std::u16string& error) {
    if (!error.empty()) olvidaLenguaje(control);
    control.ColoreaTodo();
    return error;
}

} // namespace

bool tieneLenguaje(ControlNorvik& norvik) {
    return !norvik.control().Gramatica().GetLeftRegla(1).empty();
}

const std::u16string& especificacionDe(ControlNorvik& norvik) {
    return norvik.control().opciones().contenidoG;
}

void ponEspecificacion(ControlNorvik& norvik, std::u16string_view especificacion) {
    norvik.control().editCode();
    ranurasDisenio().especificacion = especificacion;
    norvik.control().editCode(true);
}

std::u16string compilaLenguaje(ControlNorvik& norvik) {
    Norvik& control = norvik.control();
    if (!control.CargaGramatica(especificacionDe(norvik))) return acaba(control, control.GetmensajeError());
    if (!control.GeneraCompilador()) return acaba(control, u"La gramática no está completa");
    return acaba(control, {});
}

void descargaLenguaje(ControlNorvik& norvik) {
    olvidaLenguaje(norvik.control());
    norvik.control().ColoreaTodo();
}

bool esModulo(const QString& fichero) {
    return QFileInfo(fichero).suffix().compare(QLatin1String("bas"), Qt::CaseInsensitive) == 0;
}

std::u16string cargaModulo(ControlNorvik& norvik, const QString& fichero) {
    const std::u16string modulo = decodifica(leeBytes(ruta(fichero)));
    olvidaLenguaje(norvik.control());
    const auto error = CargaModulo(modulo, norvik.control());
    return acaba(norvik.control(), error ? error->mensaje() : std::u16string());
}

} // namespace norvik::taller
