// SPDX-License-Identifier: MIT

#include "norvik/grammar/gramatica.hpp"
#include "norvik/platform/sistema.hpp"
#include "norvik/report/informe.hpp"
#include "norvik/report/modulo.hpp"
#include "norvik/report/moduloCpp.hpp"

// The operations of a grammar that write: they stand here, so that a grammar knows nothing of its readers.
namespace norvik::inline v0_2 {

std::u16string gramatica::textoProblemas() const {
    return norvik::textoProblemas(*valores_);
}

void gramatica::MuestraProblemas(Sistema& sistema) const {
    sistema.muestraMensaje({.texto = textoProblemas(), .titulo = u"Conflictos", .icono = Icono::Informacion});
}

void gramatica::escribeInforme(const SumideroDeTexto& sumidero) const {
    norvik::escribeInforme(*valores_, sumidero);
}

std::u16string gramatica::textoInforme() const {
    return norvik::textoInforme(*valores_);
}

void gramatica::GuardaInforme(const std::filesystem::path& carpeta) const {
    guardaInforme(*valores_, carpeta);
}

std::u16string gramatica::textoInformeGeneral() const {
    return norvik::textoInformeGeneral(*valores_);
}

std::u16string gramatica::textoAutomata() const {
    return norvik::textoAutomata(*valores_);
}

std::u16string gramatica::celdaTabla(std::int16_t fila, std::int16_t columna) const {
    return norvik::celdaTabla(valores_->tabla, fila, columna);
}

void gramatica::escribeModulo(std::u16string_view nombre, const pilaTokens& lexico,
                              const SumideroDeTexto& sumidero) const {
    norvik::escribeModulo(*valores_, nombre, lexico, sumidero);
}

std::u16string gramatica::textoModulo(std::u16string_view nombre, const pilaTokens& lexico) const {
    return norvik::textoModulo(*valores_, nombre, lexico);
}

void gramatica::GuardaModuloGramatica(std::u16string_view nombre, const pilaTokens& lexico,
                                      const std::filesystem::path& carpeta) const {
    guardaModulo(*valores_, nombre, lexico, carpeta);
}

void gramatica::escribeModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                                 const SumideroDeTexto& sumidero) const {
    norvik::escribeModuloCpp(*valores_, nombre, lexico, sumidero);
}

std::u16string gramatica::textoModuloCpp(std::u16string_view nombre, const pilaTokens& lexico) const {
    return norvik::textoModuloCpp(*valores_, nombre, lexico);
}

void gramatica::GuardaModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                                const std::filesystem::path& carpeta) const {
    guardaModuloCpp(*valores_, nombre, lexico, carpeta);
}

} // namespace norvik::inline v0_2
