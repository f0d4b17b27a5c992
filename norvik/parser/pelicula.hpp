// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/rango.hpp"
#include "norvik/parser/lectura.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class LenguajeAnalisis;

/// What a parser does next.
struct AccionLR {
    enum class Tipo : std::uint8_t { Desplaza, Reduce, Acepta, Falla };

    Tipo tipo = Tipo::Falla;
    /// By which it reduces; where it fails, one whose body was read but over whose head the table has no way
    /// on, else 0.
    std::int16_t regla = 0;
    std::int16_t estado = 0; ///< the one on top then; 0 where nothing follows

    bool operator==(const AccionLR&) const = default;
};

/// The parse of a text as a film: it stands still at any moment, and goes to any other at once. Moment 0 is
/// before the first action, moment `k` behind `k` of them; the action at the last one accepts, or tells the
/// first error. It never changes, and any thread may look at it. No moment or node is asked for that there is
/// not.
class Pelicula {
public:
    /// A node of a partial tree has the number of the moment that it was made for; 0 is no node, but what a
    /// stack stands on.
    using Nodo = std::uint32_t;

    /// An entry of the stack: a state, and the tree grown up to it.
    struct Entrada {
        std::int16_t estado = 0;
        Nodo nodo = 0;

        bool operator==(const Entrada&) const = default;
    };
    /// The token that is next at a moment.
    struct Siguiente {
        std::u16string_view nombre; ///< empty: a character that starts no token
        std::u16string_view texto;  ///< with the delimiters of literals; empty at the end of the text
        Rango rango;
        std::int16_t codigo = 0; ///< of its column in the table, from 0; negative when it has none
    };
    /// How a parse ended: the token that was next then, and whether it was accepted.
    struct Fin {
        Lectura lectura;
        bool aceptado = false;
    };

    /// Of the steps of a parse (the rule of each reduction, 0 for a token) and its shifted tokens.
    Pelicula(std::unique_ptr<const TextoAnalizado> texto, std::span<const std::int16_t> pasos, const Fin& fin,
             LenguajeAnalisis& lenguaje);

    std::size_t ultimo() const { return fotogramas_.size() - 1; }
    bool acepta() const { return aceptado_; }
    /// The first moment whose next token ends behind a place of the text, in characters from 0; the first
    /// that looks at the last token, when there is none.
    std::size_t momentoEn(std::size_t lugar) const;

    AccionLR accion(std::size_t momento) const;
    Siguiente siguiente(std::size_t momento) const;
    std::int16_t estado(std::size_t momento) const { return fotogramas_[momento].estado; }
    /// From the bottom, which is state 0 without a node.
    std::vector<Entrada> pila(std::size_t momento) const;

    /// The rule that made a node, 0 for a token.
    std::int16_t regla(Nodo nodo) const { return fotogramas_[nodo].regla; }
    /// Head of its rule, or name of its token.
    std::u16string_view simbolo(Nodo nodo) const;
    Rango rango(Nodo nodo) const;
    /// The text of that range.
    std::u16string_view texto(Nodo nodo) const;
    /// From left to right.
    std::vector<Nodo> hijos(Nodo nodo) const;

private:
    /// What an action leaves behind: the top of the stack.
    struct Fotograma {
        Nodo debajo = 0;          ///< the entry below it
        std::uint32_t tokens = 0; ///< how many have been shifted
        std::int16_t estado = 0;
        std::int16_t regla = 0;
    };
    struct Extremos {
        std::size_t inicio = 0;
        std::size_t fin = 0;
    };

    void rueda(std::span<const std::int16_t> pasos, const LenguajeAnalisis& lenguaje);
    Nodo sin(Nodo cima, std::size_t cuantos) const;
    Extremos extremos(Nodo nodo) const;
    Extremos extremosDelUltimo(const Lectura& lectura) const;

    std::unique_ptr<const TextoAnalizado> texto_;
    std::vector<Fotograma> fotogramas_; ///< by moment
    std::vector<std::int16_t> codigos_; ///< of the tokens, the one that was next in the end among them
    std::int32_t ultimaDefinicion_ = TokenLeido::fin; ///< of that one
    Extremos extremosDelUltimo_;
    std::int16_t sinSalida_ = 0; ///< the rule that the table could not go on with
    bool aceptado_ = false;
};

} // namespace norvik::inline v0_2
