// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/ejemploUnificador.hpp"
#include "norvik/checks/historiaConflicto.hpp"
#include "norvik/grammar/exacto/producciones.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/opcionesTabla.hpp"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// Finds what usually cures a conflict of a grammar: by the shape of its rules where it is ambiguous, by
/// building the other tables where it is not known to be. The grammar outlives it.
class CurasConflicto {
public:
    CurasConflicto(const GramaticaLR& gramatica, const exacto::Producciones& producciones,
                   OpcionesTabla opciones)
        : gramatica_(gramatica), producciones_(producciones), opciones_(std::move(opciones)) {}

    HistoriaConflicto::Cura de(const CasoConflicto& caso, const HistoriaConflicto& historia);

private:
    /// State, token, reduction, and the other rule; 0 when it shifts or accepts. `slr` and `lalr` have the
    /// same states, those of `lr1` do not count.
    using Firma = std::tuple<std::int16_t, std::u16string, std::int16_t, std::int16_t>;

    HistoriaConflicto::Cura deAmbigua(const CasoConflicto& caso, const HistoriaConflicto& historia) const;
    bool esOperador(const CasoConflicto& caso) const;
    bool esColgante(const CasoConflicto& caso) const;
    bool tiene(Metodo metodo, const Firma& firma);
    static std::set<Firma> firmas(const TablaLR& tabla, Metodo metodo);

    const GramaticaLR& gramatica_;
    const exacto::Producciones& producciones_;
    OpcionesTabla opciones_;
    std::optional<std::set<Firma>> lalr_;
    std::optional<std::set<Firma>> lr1_;
};

/// «E -> E mas E»
std::u16string textoDeRegla(const ReglasPartidas& reglas, std::int16_t regla);

} // namespace norvik::inline v0_2
