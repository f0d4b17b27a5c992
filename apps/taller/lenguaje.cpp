#include "lenguaje.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/control/generacion.hpp"
#include "norvik/spec/lectorModulo.hpp"

namespace norvik::taller {

namespace {

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
    return norvik.control().ContenidoG();
}

void ponEspecificacion(ControlNorvik& norvik, std::u16string_view especificacion) {
    norvik.control().ContenidoG(especificacion);
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

std::u16string cargaModulo(ControlNorvik& norvik, const QString& fichero) {
    TextoPorTrozos texto(aRuta(fichero));
    const OrigenDeTexto origen = [&] { return texto.siguiente(); };
    olvidaLenguaje(norvik.control());
    const auto error = CargaModulo(origen, norvik.control());
    return acaba(norvik.control(), error ? error->mensaje() : std::u16string());
}

} // namespace norvik::taller
