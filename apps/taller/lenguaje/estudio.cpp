// SPDX-License-Identifier: MIT

#include "estudio.hpp"

#include "norvik/checks/conflictosDeTabla.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/directivas.hpp"

#include <algorithm>
#include <utility>

namespace norvik::taller {

namespace {

std::size_t dudasDe(const LenguajeEstudiado& lenguaje, const std::stop_token& parada) {
    const auto cuenta = [](const std::vector<Diagnostico>& diagnosticos) {
        return static_cast<std::size_t>(
            std::ranges::count(diagnosticos, Codigo::Conflicto, &Diagnostico::codigo));
    };
    if (lenguaje.conflictos.empty()) return 0;
    if (lenguaje.opciones().metodo != Metodo::Clasico) return cuenta(lenguaje.diagnosticos);
    const std::u16string conLalr = conMetodo(lenguaje.especificacion, Metodo::Lalr);
    return cuenta(Lenguaje::compila(conLalr, {{}, parada}).diagnosticos);
}

std::shared_ptr<const LenguajeEstudiado> estudiaLenguaje(const std::u16string& especificacion,
                                                         const std::stop_token& parada,
                                                         ErroresBuscados errores) {
    LenguajeEstudiado lenguaje{revisada(especificacion, {{}, parada}, errores), especificacion};
    lenguaje.diagnosticos = lenguaje.hallazgos;
    lenguaje.faltanArreglos = errores == ErroresBuscados::Primero && !lenguaje.lenguaje;
    ordena(lenguaje.diagnosticos);
    if (const GramaticaLR* const g = lenguaje.gramatica())
        lenguaje.conflictos = conflictosDeTabla(*g, lenguaje.opciones().metodo);
    lenguaje.dudas = dudasDe(lenguaje, parada);
    return std::make_shared<const LenguajeEstudiado>(std::move(lenguaje));
}

} // namespace

const GramaticaLR* LenguajeEstudiado::gramatica() const {
    return lenguaje && lenguaje->tieneGramatica() ? &lenguaje->datos().reglas.valores() : nullptr;
}

std::shared_ptr<const Estudio> estudia(const std::u16string& especificacion, const std::u16string& texto,
                                       const std::shared_ptr<const Estudio>& anterior,
                                       const std::stop_token& parada, ErroresBuscados errores) {
    const bool esPrimero = errores == ErroresBuscados::Primero;
    const bool esLaMisma = anterior && anterior->deLenguaje->especificacion == especificacion &&
                           (esPrimero || !anterior->deLenguaje->faltanArreglos);
    Estudio estudio{esLaMisma ? anterior->deLenguaje : estudiaLenguaje(especificacion, parada, errores),
                    texto};
    if (parada.stop_requested()) return nullptr;
    if (estudio.gramatica() != nullptr)
        estudio.analisis = analiza(*estudio.deLenguaje->lenguaje, texto, {parada, errores});
    estudio.faltanArreglos =
        estudio.deLenguaje->faltanArreglos || (esPrimero && !estudio.analisis.diagnosticos.empty());
    if (parada.stop_requested()) return nullptr;
    return std::make_shared<const Estudio>(std::move(estudio));
}

} // namespace norvik::taller
