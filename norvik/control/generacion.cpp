// SPDX-License-Identifier: MIT

#include "norvik/control/generacion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"
#include "norvik/spec/compiladorEspecificacion.hpp"
#include "norvik/spec/directivas.hpp"

#include <vector>

namespace norvik::inline v0_2 {

namespace {

void deja(const std::function<Sistema&()>& sistema) {
    sistema().ponPuntero(Puntero::Ocupado);
    sistema().procesaEventos();
}

} // namespace

void generaTabla(gramatica& g, const std::function<Sistema&()>& sistema) {
    gramatica nueva;
    const auto paso = [&](void (gramatica::*hazlo)()) {
        deja(sistema);
        try {
            sistema().trabaja([&](const std::stop_token& parada) {
                nueva.cancelacion = parada;
                (nueva.*hazlo)();
            });
        } catch (const OperacionCancelada&) {
            throw;
        } catch (...) {
            nueva.inicializaConjuntos(); // half the sets would be worse than none
            g.intercambia(nueva);
            throw;
        }
    };
    deja(sistema);
    nueva.copiaReglas(g);
    paso(&gramatica::creaConjuntos);
    paso(&gramatica::creaAutomata);
    paso(&gramatica::creaTablaSLR);
    g.intercambia(nueva);
}

Mensaje mensajeDeComprobacion(std::u16string_view error) {
    return {std::u16string(error), u"ERROR en la definición de la gramática", Icono::Critico};
}

Mensaje mensajeDeCompilacion(std::u16string_view error) {
    std::u16string texto =
        u"Se ha producido el siguiente error al intentar compilar el código de la gramática:";
    texto.append(saltoDeLinea).append(saltoDeLinea).append(error).append(saltoDeLinea).append(saltoDeLinea);
    texto += u"Revise el código fuente para una compilación sin errores.";
    return {texto, u"Error", Icono::Exclamacion};
}

std::optional<LenguajeAparte::Fallo> LenguajeAparte::construye(Norvik& especificacion) {
    if (!especificacion.ConstruyeArbolSintactico())
        return Fallo{Fallo::Paso::Analisis, especificacion.GetmensajeError()};
    gramatica_.inicializaConjuntos();
    gramatica_.inicializaGramatica();
    lexico_.Inicializa();
    // Nothing is shown while the other control's tree is walked: a receiver may parse with it.
    std::vector<Mensaje> mensajes;
    SistemaMemoria callado([&](const Mensaje& mensaje) { mensajes.push_back(mensaje); });
    PasosFirmes paso;
    paso([&] {
        CompilaArbolEspecificacion(especificacion.GetArbolSintactico(), gramatica_, lexico_, callado,
                                   leeDirectivas(especificacion.Text(), Lugares::Unidad::Utf16));
    });
    for (const Mensaje& mensaje : mensajes) sistema_.muestraMensaje(mensaje);
    paso.acaba();
    std::u16string error = gramatica_.chequeaGramatica();
    if (!error.empty()) return Fallo{Fallo::Paso::Comprobacion, std::move(error)};
    generaTabla(gramatica_, [this]() -> Sistema& { return sistema_; });
    return std::nullopt;
}

} // namespace norvik::inline v0_2
