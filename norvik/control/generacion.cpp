#include "norvik/control/generacion.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/spec/compiladorEspecificacion.hpp"

namespace norvik {

void generaTabla(gramatica& g, Sistema& sistema) {
    const auto dejaRepintar = [&] {
        sistema.ponPuntero(Puntero::Ocupado);
        sistema.procesaEventos();
    };
    try {
        dejaRepintar();
        g.inicializaConjuntos();
        dejaRepintar();
        g.creaConjuntos();
        dejaRepintar();
        g.creaAutomata();
        dejaRepintar();
        g.creaTablaSLR();
    } catch (...) {
        g.inicializaConjuntos(); // half the sets would be worse than none
        throw;
    }
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
    CompilaArbolEspecificacion(especificacion.GetArbolSintactico(), gramatica_, lexico_, sistema_);
    std::u16string error = gramatica_.chequeaGramatica();
    if (!error.empty()) return Fallo{Fallo::Paso::Comprobacion, std::move(error)};
    generaTabla(gramatica_, sistema_);
    return std::nullopt;
}

} // namespace norvik
