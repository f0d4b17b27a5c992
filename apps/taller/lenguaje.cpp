// SPDX-License-Identifier: MIT

#include "lenguaje.hpp"

#include "documentos.hpp"

#include "norvik/spec/directivas.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/spec/lenguaje.hpp"
#include "norvik/tools/procesando.hpp"

namespace norvik::taller {

namespace {

/// Without a language the text is plain.
std::u16string acaba(ControlNorvik& norvik, const std::u16string& error) {
    if (!error.empty()) norvik.control().OlvidaLenguaje();
    coloreaConAviso(norvik);
    return error;
}

} // namespace

bool tieneLenguaje(ControlNorvik& norvik) {
    return !norvik.control().Gramatica().GetLeftRegla(1).empty();
}

const std::u16string& especificacionDe(ControlNorvik& norvik) {
    return norvik.control().ContenidoG();
}

bool hayEspecificacion(ControlNorvik& norvik) {
    const std::u16string& especificacion = especificacionDe(norvik);
    return cabecera(especificacion).size() < especificacion.size();
}

void ponEspecificacion(ControlNorvik& norvik, std::u16string_view especificacion) {
    norvik.control().ContenidoG(especificacion);
}

std::u16string ensayaLenguaje(SistemaQt& sistema, ControlNorvik& norvik) {
    std::u16string fallo;
    trabajaConAviso(sistema, norvik.window(),
                    [&, especificacion = especificacionDe(norvik)](const auto& parada) {
                        const Compilacion compilacion = Lenguaje::compila(especificacion, {{}, parada});
                        for (const Diagnostico& d : compilacion.diagnosticos)
                            if (d.codigo == Codigo::CapacidadSuperada) fallo = d.partes.hallado;
                    });
    return fallo;
}

std::u16string compilaLenguaje(ControlNorvik& norvik) {
    Norvik& control = norvik.control();
    std::u16string error;
    try {
        if (!control.CargaGramatica(especificacionDe(norvik))) {
            error = control.GetmensajeError();
        } else if (!control.GeneraCompilador()) {
            error = u"La gramática no está completa";
        }
    } catch (const ErrorNorvik& capacidad) { // half a language is none
        error = capacidad.texto();
    }
    return acaba(norvik, error);
}

void descargaLenguaje(ControlNorvik& norvik) {
    norvik.control().OlvidaLenguaje();
    norvik.control().ColoreaTodo();
}

std::u16string cargaModulo(ControlNorvik& norvik, const QString& fichero) {
    exigeFicheroCorriente(fichero, u"leer");
    norvik.control().OlvidaLenguaje();
    const auto error = CargaModulo(aRuta(fichero), norvik.control());
    return acaba(norvik, error ? error->mensaje() : std::u16string());
}

} // namespace norvik::taller
