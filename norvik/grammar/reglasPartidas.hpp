#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace norvik {

/// A rule as it was stored.
struct Regla {
    std::u16string cabeza;
    std::u16string cuerpo;
    std::int16_t elementos = 0; ///< symbols of the body, without a Ø at its end
};

/// Number of a symbol of the grammar.
using Simbolo = std::int32_t;
using Cuerpo = std::span<const Simbolo>;

/// Calls with each symbol of a text, which are separated by spaces.
template <typename Accion>
void paraCadaSimbolo(std::u16string_view texto, const Accion& accion) {
    for (std::size_t i = texto.find_first_not_of(u' '); i < texto.size();) {
        const std::size_t fin = std::min(texto.find(u' ', i), texto.size());
        accion(texto.substr(i, fin - i));
        i = texto.find_first_not_of(u' ', fin);
    }
}

/// The rules with their symbols as numbers: what the analyses work on. An empty body reads as Ø.
/// Rule indexes are 1-based; texts are views into the rules, which must stay where they are.
class ReglasPartidas {
public:
    static constexpr Simbolo sinSimbolo = -1;
    static constexpr Simbolo vacio = 0; ///< Ø

    ReglasPartidas();

    /// Splits the rules that were added since the last call.
    void completa(const std::deque<Regla>& reglas);
    /// Number of a symbol, which is added when it is new.
    Simbolo numera(std::u16string_view texto);

    int numReglas() const { return static_cast<int>(reglas_.size()) - 1; }
    /// Head of a rule; `sinSimbolo` for index 0 and for an empty head.
    Simbolo cabeza(int regla) const { return en(reglas_, regla).cabeza; }
    Cuerpo cuerpo(int regla) const {
        const Partida& partida = en(reglas_, regla);
        return Cuerpo(simbolosDeCuerpos_).subspan(partida.inicio, partida.longitud);
    }
    bool esVacia(int regla) const { return cuerpo(regla).size() == 1 && cuerpo(regla)[0] == vacio; }

    std::size_t numSimbolos() const { return simbolos_.size(); }
    std::u16string_view texto(Simbolo simbolo) const { return en(simbolos_, simbolo).texto; }
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
        std::u16string_view texto;
        bool variable = false;
        bool conVacia = false;
        int primera = 0;
        int fin = 0;
    };

    template <typename T>
    static const T& en(const std::vector<T>& lista, int i) {
        return lista[static_cast<std::size_t>(i)];
    }
    Simbolo registra(std::u16string_view texto);
    void parte(const Regla& regla);
    void anotaCabeza(Simbolo cabeza, int regla, bool conVacia);

    std::vector<Partida> reglas_;
    std::vector<Simbolo> simbolosDeCuerpos_;
    std::vector<DatosSimbolo> simbolos_;
    std::unordered_map<std::u16string_view, Simbolo> numeros_;
    std::deque<std::u16string> textosPropios_; // of symbols that stand in no rule
};

} // namespace norvik
