// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/analisis.hpp"
#include "norvik/parser/arreglos.hpp"
#include "norvik/parser/avanceLR.hpp"
#include "norvik/parser/busquedaReparaciones.hpp"
#include "norvik/parser/entradaTokens.hpp"
#include "norvik/parser/erroresTexto.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Goes on with a parse from its first error to the end of the text, with a repair for each error on the way.
class Reparador {
public:
    /// A parse so far: its steps, and its tokens in the text, go on to be those of the repaired text; the
    /// reader stands at the wrong token.
    struct Curso {
        TextoAnalizado& texto;
        std::vector<std::int16_t>& pasos;
        LectorTexto& lector;
    };

    /// All outlive the repairer.
    Reparador(const Curso& curso, LenguajeAnalisis& lenguaje, const VocesDeLenguaje& voces,
              const OpcionesAnalisis& opciones);

    /// True when the end was reached: text and steps then give a tree. Raises `OperacionCancelada`.
    bool repara();
    /// Every error found, in order of place.
    const std::vector<Diagnostico>& diagnosticos() const { return errores_; }

private:
    void rehacePila();
    Avance avanzaCon(std::int16_t columna);
    Avance sigueHastaError();
    bool reparaError();
    void aplica(const Reparacion& reparacion);
    void inserta(std::int16_t columna);
    void conserva();
    void pasa();
    void anotaIncorrectos();
    void anotaError();
    Redactor redactor();
    void desiste(Codigo codigo, std::u16string_view causa = {});
    Rango rangoDelSiguiente();

    TextoAnalizado& texto_;
    std::vector<std::int16_t>& pasos_;
    LenguajeAnalisis& lenguaje_;
    VocesDeLenguaje voces_;
    const OpcionesAnalisis& opciones_;
    EntradaTokens entrada_;
    GastoReparaciones gasto_;
    std::vector<std::int16_t> pila_;
    PilaEnsayo ensayo_;
    std::size_t siguiente_ = 0; ///< number of the next token
    std::size_t contados_ = 0;  ///< number of the first whose wrong characters have not been told
    std::vector<Diagnostico> errores_;
};

} // namespace norvik::inline v0_2
