// SPDX-License-Identifier: MIT

#include "anfitrion.hpp"

#include "linea.hpp"
#include "muestraError.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/parser/analizador.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <memory>
#include <utility>

namespace norvik::orden {

namespace {

namespace fs = std::filesystem;

std::string leeBytesDe(const fs::path& fichero) {
    return fichero == flujo ? leeEntradaEstandar() : leeBytes(fichero);
}

} // namespace

std::u16string nombreDeFichero(const fs::path& fichero) {
    return fichero == flujo ? u"(entrada estándar)" : decodifica(fichero.native());
}

// What is too long for certain is not worth decoding: a character takes three bytes at most, and neither a
// mark nor the last line end counts.
std::u16string leeTextoDe(const fs::path& fichero) {
    constexpr std::size_t maximoDeBytes = 3 * maximoTexto + 5;
    const std::string bytes = leeBytesDe(fichero);
    if (bytes.size() > maximoDeBytes) throw TextoDemasiadoLargo();
    std::u16string texto = normalizaLineas(decodifica(bytes));
    if (texto.size() > maximoTexto) throw TextoDemasiadoLargo();
    return texto;
}

Anfitrion::Anfitrion(Salida& salida)
    : salida_(salida),
      sistema_([this](const Mensaje& mensaje) { avisa(mensaje.titulo + u": " + mensaje.texto); }),
      control(caja, sistema_) {}

void Anfitrion::avisa(std::u16string_view mensaje) {
    estado_ = 1;
    salida_.avisa(mensaje);
}

bool Anfitrion::compila(const fs::path& fichero, std::optional<Metodo> metodo) {
    const std::u16string especificacion = leeTextoDe(fichero);
    if (!control.CargaGramatica(especificacion)) {
        std::vector<Diagnostico> errores = Lenguaje::compila(especificacion).diagnosticos;
        std::erase_if(errores, [](const Diagnostico& d) { return d.gravedad != Gravedad::Error; });
        cuentaErrores(control.GetmensajeError(), errores, fichero, especificacion);
        return false;
    }
    if (metodo) control.Gramatica().ponMetodo(*metodo);
    return control.GeneraCompilador();
}

bool Anfitrion::replica(const fs::path& modulo) {
    const auto error = CargaModulo(modulo, control);
    if (error) avisa(error->mensaje());
    return !error;
}

bool Anfitrion::cargaLenguaje(const fs::path& fichero, std::optional<Metodo> metodo) {
    return esModulo(fichero) ? replica(fichero) : compila(fichero, metodo);
}

void Anfitrion::cuentaErrores(std::u16string_view mensaje, const std::vector<Diagnostico>& errores,
                              const fs::path& fichero, std::u16string_view texto) {
    avisa(mensaje);
    if (!salida_.erroresEnTerminal()) return;
    const Estilo estilo = salida_.erroresConColor() ? Estilo::EnColor : Estilo::Liso;
    for (const Diagnostico& error : errores)
        salida_.avisaPintado(muestraError(error, nombreDeFichero(fichero), texto, estilo));
}

std::vector<Diagnostico> Anfitrion::erroresDe(std::u16string_view texto) {
    const pilaTokens& lexico = control.Lexico();
    const gramatica& reglas = control.Gramatica();
    const auto vocabulario = std::make_shared<Vocabulario>(vocabularioDe(lexico, reglas.valores().reglas));
    auto analizado =
        std::make_unique<TextoAnalizado>(vocabulario, std::u16string(texto), Lugares::Unidad::Utf16);
    return Analizador(lexico, reglas).analiza(std::move(analizado), {}).diagnosticos;
}

} // namespace norvik::orden
