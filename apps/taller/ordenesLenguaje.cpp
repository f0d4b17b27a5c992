// SPDX-License-Identifier: MIT

#include "ordenesLenguaje.hpp"

#include "documentos.hpp"
#include "lenguaje.hpp"
#include "rutas.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/formatoTexto.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/spec/directivas.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/tools/procesando.hpp"

#include <QFileInfo>

#include <chrono>
#include <utility>

namespace norvik::taller {

namespace {

/// A file that stands there keeps its encoding and its line ends.
FormatoTexto formatoDelQueHay(const QString& fichero) {
    try {
        return formatoDe(leeDocumento(fichero));
    } catch (const ErrorDeFichero&) {
        return {};
    }
}

} // namespace

bool OrdenesLenguaje::nuevo() {
    ElementoFormulario& elemento = formulario_.activo();
    if (!puedePerder(elemento)) return false;
    ponEspecificacion(elemento.norvik(), plantilla);
    elemento.ponModulo({});
    elemento.norvik().NomLenguaje({});
    return prepara(elemento);
}

void OrdenesLenguaje::abre() {
    const auto fichero = dialogos_.eligeParaAbrir(QStringLiteral("Abrir lenguaje"), filtroLenguaje);
    if (fichero) abre(*fichero);
}

/// Nothing of a form without a name is lost when the language of a file is all it got.
void OrdenesLenguaje::abre(const QString& fichero) {
    ElementoFormulario& elemento = formulario_.activo();
    if (!puedePerder(elemento)) return;
    const bool nuevo = formulario_.fichero().isEmpty() && !formulario_.modificado();
    exigeFicheroCorriente(fichero, u"leer");
    const bool modulo = esModulo(aRuta(fichero));
    cambia(elemento, [&] {
        if (!modulo) ponEspecificacion(elemento.norvik(), leeTexto(aRuta(fichero)));
        elemento.ponModulo(modulo ? fichero : QString());
        elemento.norvik().NomLenguaje(QFileInfo(fichero).completeBaseName());
        prepara(elemento);
    });
    if (nuevo) formulario_.ponModificado(false);
}

bool OrdenesLenguaje::guardaEspecificacion() {
    ControlNorvik& norvik = formulario_.activo().norvik();
    const QString nombre = norvik.NomLenguaje().isEmpty() ? QStringLiteral("lenguaje") : norvik.NomLenguaje();
    const auto fichero =
        dialogos_.eligeParaGuardar(QStringLiteral("Guardar la especificación"), filtroEspecificacion,
                                   nombre + u'.' + extensionEspecificacion, extensionEspecificacion);
    if (!fichero) return false;
    const TextoCodificado codificado = codifica(especificacionDe(norvik), formatoDelQueHay(*fichero));
    escribeDocumento(*fichero, codificado.bytes);
    return true;
}

/// A specification that was written here and is not saved with its form would be lost.
bool OrdenesLenguaje::puedePerder(ElementoFormulario& elemento) {
    const Opciones& opciones = elemento.norvik().control().opciones();
    const bool escrita = opciones.pendienteGuardarG && hayEspecificacion(elemento.norvik());
    if (!escrita || !formulario_.modificado()) return true;
    const QString pregunta =
        QStringLiteral("¿Quiere guardar en un fichero la especificación de %1?").arg(elemento.nombre());
    return dialogos_.guardaOPierde(pregunta, [this] { return guardaEspecificacion(); });
}

bool OrdenesLenguaje::prepara(ElementoFormulario& elemento) {
    olvidaAnalisis();
    const std::u16string error = elemento.preparaLenguaje();
    if (error.empty()) return true;
    sistema_.muestraMensaje(
        {u"El lenguaje de " + elemento.nombre().toStdU16String() + u" no se ha podido cargar:\n\n" + error,
         {},
         Icono::Exclamacion,
         Botones::Aceptar});
    return false;
}

/// To another language, or back to the one before when the person cancels it.
void OrdenesLenguaje::cambia(ElementoFormulario& elemento, const std::function<void()>& cambio) {
    const ElementoFormulario::Origen origen = elemento.origen();
    const bool modificado = formulario_.modificado();
    try {
        cambio();
    } catch (const OperacionCancelada&) {
        elemento.vuelveA(origen);
        if (!modificado) formulario_.ponModificado(false);
        throw;
    }
}

void OrdenesLenguaje::preparaTodos() {
    for (const auto& e : formulario_.elementos())
        if (!e->faltaLenguaje() || !formulario_.estaLleno()) prepara(*e);
}

bool OrdenesLenguaje::hayLenguaje() {
    ElementoFormulario& elemento = formulario_.activo();
    if (!prepara(elemento)) return false;
    if (tieneLenguaje(elemento.norvik())) return true;
    sistema_.muestraMensaje({u"No hay ningún lenguaje cargado. Elija uno en el menú Lenguaje.",
                             {},
                             Icono::Informacion,
                             Botones::Aceptar});
    return false;
}

std::optional<std::size_t> OrdenesLenguaje::analiza() {
    if (!hayLenguaje()) return std::nullopt;
    ControlNorvik& norvik = formulario_.activo().norvik();
    norvik.ponDiagnosticos({});
    if (norvik.caja().texto().size() > maximoTexto) return analizaLargo(norvik);
    reconoceConAviso(norvik);
    Norvik& control = norvik.control();
    if (control.ConstruyeArbolSintactico()) return muestra(comoValor(norvik).arbol);
    error_ = {control.LineaToken(), control.ColumnaToken(), {}};
    mensaje_.muestra(aQString(control.GetmensajeError()));
    return std::nullopt;
}

/// One that the control does not parse. All its errors are shown in the text, the first one in words.
std::optional<std::size_t> OrdenesLenguaje::analizaLargo(ControlNorvik& norvik) {
    Analisis analisis = comoValor(norvik);
    if (analisis) return muestra(std::move(analisis.arbol));
    norvik.ponDiagnosticos(analisis.diagnosticos);
    const Diagnostico& primero = analisis.diagnosticos.front();
    error_ = {primero.rango.inicio.linea, primero.rango.inicio.columna, {}};
    mensaje_.muestra(QStringLiteral("Línea %1, Columna %2: %3")
                         .arg(error_.linea)
                         .arg(error_.columna)
                         .arg(aQString(norvik::mensaje(primero))));
    return std::nullopt;
}

Analisis OrdenesLenguaje::comoValor(ControlNorvik& norvik) {
    const Lenguaje lenguaje = norvik.control().lenguaje();
    const std::u16string texto(norvik.caja().texto());
    Analisis analisis;
    trabajaConAviso(sistema_, norvik.window(),
                    [&](const auto& parada) { analisis = norvik::analiza(lenguaje, texto, {parada}); });
    return analisis;
}

std::size_t OrdenesLenguaje::muestra(ArbolAnalisis arbol) {
    arbol_.muestra(std::move(arbol));
    return static_cast<std::size_t>(arbol_.modelo().nodos());
}

void OrdenesLenguaje::olvidaAnalisis() {
    arbol_.vacia();
    mensaje_.muestra({});
}

void OrdenesLenguaje::vaAlError() {
    formulario_.activo().vaA(error_.linea, error_.columna, {});
}

void OrdenesLenguaje::muestraInforme() {
    if (hayLenguaje()) formulario_.activo().norvik().control().MuestraInforme();
}

void OrdenesLenguaje::revisa() {
    using namespace std::chrono_literals;
    ElementoFormulario& elemento = formulario_.activo();
    if (!hayEspecificacion(elemento.norvik())) {
        sistema_.muestraMensaje({u"No hay ninguna especificación que revisar: el lenguaje de " +
                                     elemento.nombre().toStdU16String() + u" no la lleva.",
                                 {},
                                 Icono::Informacion,
                                 Botones::Aceptar});
        return;
    }
    LimitesHistorias limites;
    limites.porConflicto = 500ms;
    limites.enTotal = 1'500ms; // a person waits for it
    const std::u16string especificacion = especificacionDe(elemento.norvik());
    std::vector<Hallazgo> hallazgos;
    trabajaConAviso(sistema_, elemento.window(), [&](const std::stop_token& parada) {
        limites.cancelacion = parada;
        hallazgos = revisaConHistorias(especificacion, {{}, parada}, limites);
    });
    revision_.muestra(elemento.nombre(), especificacion, hallazgos);
}

bool OrdenesLenguaje::toma(const std::u16string& especificacion) {
    ElementoFormulario& elemento = formulario_.activo();
    bool preparado = false;
    cambia(elemento, [&] {
        ponEspecificacion(elemento.norvik(), especificacion);
        elemento.ponModulo({});
        formulario_.ponModificado(true);
        preparado = prepara(elemento);
    });
    return preparado;
}

void OrdenesLenguaje::pasaALalr() {
    ElementoFormulario& elemento = formulario_.activo();
    if (!hayEspecificacion(elemento.norvik())) return;
    if (toma(conMetodo(especificacionDe(elemento.norvik()), Metodo::Lalr))) revisa();
}

} // namespace norvik::taller
