// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/reglas.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Number of a symbol of the grammar.
using Simbolo = std::int32_t;
using Cuerpo = std::span<const Simbolo>;

/// The rules with their symbols as numbers: what the analyses work on. An empty body reads as Ø.
/// Rule indexes are 1-based. Never changed once it is made; texts are views into it, which moving keeps.
class ReglasPartidas {
public:
    static constexpr Simbolo sinSimbolo = -1;
    static constexpr Simbolo vacio = 0;    ///< Ø
    static constexpr Simbolo finTexto = 1; ///< $

    ReglasPartidas() : ReglasPartidas(Reglas()) {}
    /// The symbols of another text are numbered too, after those of the rules. Rules that are added later
    /// change no number.
    explicit ReglasPartidas(const Reglas& reglas, std::u16string_view otros = {});

    /// Number of a symbol, `sinSimbolo` when neither rules nor text have it.
    Simbolo simbolo(std::u16string_view texto) const;

    /// There is a start symbol: the head of rule 1.
    bool hayInicial() const { return numReglas() > 0 && cabeza(1) != sinSimbolo; }
    int numReglas() const { return static_cast<int>(reglas_.size()) - 1; }
    /// Head of a rule; `sinSimbolo` for index 0 and for an empty head.
    Simbolo cabeza(int regla) const { return en(reglas_, regla).cabeza; }
    Cuerpo cuerpo(int regla) const {
        const Partida& partida = en(reglas_, regla);
        return Cuerpo(simbolosDeCuerpos_).subspan(partida.inicio, partida.longitud);
    }
    bool esVacia(int regla) const { return cuerpo(regla).size() == 1 && cuerpo(regla)[0] == vacio; }

    std::size_t numSimbolos() const { return simbolos_.size(); }
    std::u16string_view texto(Simbolo simbolo) const { return texto(en(simbolos_, simbolo)); }
    /// Its first character is one of A … Z.
    bool esVariable(Simbolo simbolo) const { return en(simbolos_, simbolo).variable; }
    /// First run of consecutive rules with this head: `primera` … `fin` − 1; both 0 when there is none.
    int primera(Simbolo simbolo) const { return en(simbolos_, simbolo).primera; }
    int fin(Simbolo simbolo) const { return en(simbolos_, simbolo).fin; }
    /// Some body of this head begins with Ø.
    bool contieneCadenaVacia(Simbolo simbolo) const { return en(simbolos_, simbolo).conVacia; }
    /// The rule begins a run of consecutive rules with one head.
    bool abreTramo(int regla) const {
        return cabeza(regla) != sinSimbolo && cabeza(regla) != cabeza(regla - 1);
    }

private:
    struct Partida {
        Simbolo cabeza = sinSimbolo;
        std::size_t inicio = 0;
        std::size_t longitud = 0;
    };
    struct DatosSimbolo {
        std::size_t inicio = 0; ///< of its text in `letras_`
        std::size_t longitud = 0;
        bool variable = false;
        bool conVacia = false;
        int primera = 0;
        int fin = 0;
    };

    template <typename T>
    static const T& en(const std::vector<T>& lista, int i) {
        return lista[static_cast<std::size_t>(i)];
    }
    std::u16string_view texto(const DatosSimbolo& datos) const {
        return {letras_.data() + datos.inicio, datos.longitud};
    }
    std::size_t ranura(std::u16string_view texto) const;
    Simbolo numera(std::u16string_view texto);
    void indexa();
    void parte(const Regla& regla);
    void anotaCabeza(Simbolo cabeza, int regla, bool conVacia);

    std::vector<Partida> reglas_;
    std::vector<Simbolo> simbolosDeCuerpos_;
    std::vector<DatosSimbolo> simbolos_;
    std::vector<char16_t> letras_; // of all symbols
    std::vector<Simbolo> ranuras_; // open addressing by text, a power of two; `sinSimbolo` where free
};

/// Empty when every non-terminal used has a rule, else the message: it names the last that has none.
std::u16string chequea(const ReglasPartidas& reglas);

/// Raises the failure of a rule whose Ø stands beside other symbols: nothing can be read there, and it has no
/// column.
[[noreturn]] void fallaVaciaSuelta(const ReglasPartidas& reglas, int regla);

} // namespace norvik::inline v0_2
