// SPDX-License-Identifier: MIT

#include "norvik/control/partesControl.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/guardas.hpp"
#include "norvik/control/pasosFirmes.hpp"

namespace norvik::inline v0_2 {

PartesControl::PartesControl(CajaTexto& suCaja, Sistema& suSistema, Contenedor& suContenedor)
    : caja(suCaja), sistema(suSistema), contenedor(suContenedor), lenguaje(lexico, laGramatica),
      lector(lexico, suCaja), conductor(lector, lexico, laGramatica), colocacion(caja, opciones, contenedor),
      propiedades(opciones, lexico, caja, colocacion, contenedor), coloreado(caja, sistema, lexico, opciones),
      coloresAlDia(caja, contenedor, lenguaje),
      lineas(caja, opciones, ayudas, coloreado, coloresAlDia, colocacion), historial(caja, lineas),
      edicion(caja, opciones, ayudas, lineas, historial, eventos, contenedor) {
    propiedades.construye();
}

void PartesControl::conecta() {
    edicion.conecta(weak_from_this());
    conductor.alFallar = [this](const Mensaje& mensaje) { alFallarElAnalisis(mensaje); };
}

void PartesControl::abandona() {
    edicion.calla();
    if (cargando_) devuelvePuntero(*sistema);
    caja.cambia(cajaDeNadie_);
    sistema.cambia(sistemaDeNadie_);
    contenedor.cambia(sinContenedor());
}

void PartesControl::alFallarElAnalisis(const Mensaje& mensaje) {
    if (opciones.muestraMensajesDeError) sistema->muestraMensaje(mensaje);
    if (opciones.marcarErrores) MarcaErrorLineaToken();
}

void PartesControl::MarcaErrorLinea(std::int16_t numLinea) {
    lineas.marcaLinea(numLinea, lexico.ColorError);
}

void PartesControl::MarcaErrorLineaToken() {
    MarcaErrorLinea(lector.LineaToken());
    lineas.dejaDeEditar();
}

/// A person's wish, from the window that replaces.
void PartesControl::sustituye(std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo) {
    if (caja->soloLectura()) throw ErrorNorvik(u"El texto es de solo lectura");
    PasosFirmes paso;
    paso([&] { historial.sustituye(inicio, longitud, nuevo); });
    // What is too long to be coloured is no reason not to go on with the next match.
    if (caja->texto().size() <= maximoTexto) paso([this] { lineas.coloreaTodo(); });
    paso([this] { edicion.avisaTexto(); });
    paso.acaba();
}

void PartesControl::ponAyudas(const Ayudas& otras) {
    if (otras == ayudas) return;
    const bool enciende = otras.coloreaAlEscribir && !ayudas.coloreaAlEscribir;
    ayudas = otras;
    historial.ponPorPalabras(ayudas.deshacePorPalabras);
    PasosFirmes paso;
    if (enciende) paso([this] { lineas.ponAlDia(); });
    paso([this] { contenedor->otrasAyudas(); });
    paso.acaba();
}

void PartesControl::clickEnSuperficie() const {
    caja->enfoca();
    if (!lineas.ocupado()) edicion.avisaClick();
}

// --- The text as a whole ---

void PartesControl::BorraTodo() {
    PasosFirmes paso;
    paso([this] { caja->ponTexto({}); });
    caja->ponColorSeleccion(0);
    paso([this] { historial.InicializaUndosYRedos(); });
    paso.acaba();
}

void PartesControl::CargarFichero(const std::filesystem::path& nomFichero) {
    edicion.conAviso([&] {
        BorraTodo();
        const std::u16string texto = leeTexto(nomFichero);
        const TextoOculto oculto(colocacion);
        PasosFirmes paso;
        paso([&] { caja->ponTexto(texto); });
        paso([this] { lineas.coloreaTodo(); });
        paso.acaba();
    });
}

void PartesControl::Imprimir() const {
    try {
        sistema->imprime(caja->texto());
    } catch (const ErrorNorvik& error) {
        sistema->muestraMensaje({error.texto(), {}, Icono::Ninguno, Botones::Aceptar});
    }
}

} // namespace norvik::inline v0_2
