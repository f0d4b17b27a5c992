#pragma once

#include "norvik/lexer/indicePalabras.hpp"
#include "norvik/lexer/mapaTokens.hpp"
#include "norvik/pattern/emparejador.hpp"
#include "norvik/pattern/patronConjunto.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace norvik {

class expresionRegular;

/// The search of all the token definitions of a language.
class BuscadorTokens {
public:
    /// The definitions, in registration order, outlive the search.
    explicit BuscadorTokens(const std::vector<const expresionRegular*>& definiciones);

    /// Stores into the map every match of every definition, as each one's own search would find it. Raises
    /// `Desbordamiento`, whose text names the definition, when a search runs away.
    void busca(std::u16string_view texto, MapaTokens& mapa);

private:
    /// A definition that is no plain word.
    struct Definicion {
        const expresionRegular* expresion = nullptr;
        std::int32_t numero = 0; ///< in registration order
    };
    /// Definitions that go over a text together.
    struct Grupo {
        static constexpr std::size_t maximo = AutomataConjunto::maximo;

        std::vector<Definicion> definiciones;
        std::optional<AutomataConjunto> conjunto;     ///< made by the first search
        std::array<std::uint64_t, 256> empiezan = {}; ///< a bit for each that may begin with a unit
        std::uint64_t empiezanAltas = 0;              ///< the same for every unit above
        std::uint64_t vacias = 0;                     ///< may begin at the end of the text
    };

    void reune(const Definicion& definicion);
    static void busca(const Definicion& definicion, std::u16string_view texto, const Presupuesto& presupuesto,
                      MapaTokens& mapa);
    static void busca(Grupo& grupo, std::u16string_view texto, const Presupuesto& presupuesto,
                      MapaTokens& mapa);

    IndicePalabras palabras_;
    std::vector<Grupo> grupos_;
    std::vector<Definicion> solas_;
};

} // namespace norvik
