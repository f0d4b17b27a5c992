// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/pattern/emparejador.hpp"
#include "norvik/pattern/mapaCoincidencias.hpp"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The search of many patterns at once. It serves one search at a time, and any number of them: what texts
/// have asked of its automata stays for the next one, until its room is full. After a failure it is as good
/// as new.
class BuscadorConjunto {
public:
    /// The patterns, fewer than `MapaCoincidencias::maximoPatrones` and known by their places, outlive the
    /// search. Nothing is made of them before the first search.
    explicit BuscadorConjunto(std::vector<const Emparejador*> patrones);
    BuscadorConjunto(BuscadorConjunto&&) noexcept;
    BuscadorConjunto& operator=(BuscadorConjunto&&) noexcept;
    BuscadorConjunto(const BuscadorConjunto&) = delete;
    BuscadorConjunto& operator=(const BuscadorConjunto&) = delete;
    ~BuscadorConjunto();

    /// Fills a map with every match of every pattern, as each one's own search would find it. Raises what
    /// `Presupuesto::exige` does, `BusquedaDesbocada` also when memory or steps of one attempt run out, and
    /// `Desbordamiento` for a text beyond 32 bits; the map is then empty.
    void busca(std::u16string_view texto, const Presupuesto& presupuesto, MapaCoincidencias& mapa);
    /// The pattern whose search failed last.
    std::int32_t ultimoPatron() const { return ultimoPatron_; }

private:
    class Preparados;

    void prepara(const Presupuesto& presupuesto);
    void buscaYRenueva(std::u16string_view texto, Gasto gasto, MapaCoincidencias& mapa);
    bool buscaConLoGuardado(std::u16string_view texto, const Presupuesto& presupuesto,
                            MapaCoincidencias& mapa);

    std::vector<const Emparejador*> patrones_;
    Cabida cabida_;                          ///< of all that is kept below
    std::unique_ptr<Preparados> preparados_; ///< made by the first search, and anew when there is no room
    std::int32_t ultimoPatron_ = 0;
    bool renovable_ = true; ///< new ones have room; else they fill it from the beginning
};

} // namespace norvik::inline v0_2
