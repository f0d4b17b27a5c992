#pragma once

#include "norvik/base/rango.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik {

class ArbolAnalisis;
class Hijos;

/// A node of an `ArbolAnalisis`: a token of the text (a leaf), or an application of a rule. A small value
/// that refers to its tree and holds as long as it, wherever the tree is moved to. Nothing changes a node:
/// several threads may read one tree.
class Nodo {
public:
    /// True for a token of the text. An application of an empty rule has no children, and is no token.
    bool esToken() const { return regla() == 0; }
    /// Number of its rule, from 1; 0 for a token.
    std::int16_t regla() const;
    /// Number of its token's name, from 1; 0 for a rule.
    std::int16_t token() const;
    /// Name of the token, or head of the rule.
    std::u16string_view nombre() const;
    /// Body of the rule, its symbols separated by blanks; empty for a token.
    std::u16string_view cuerpo() const;

    /// Where it stands, from the first unit of its first token to the last of its last one, delimiters of
    /// literals included. What has no token is an empty range behind the token before it.
    Rango rango() const;
    /// The text of that range.
    std::u16string_view texto() const;
    /// The text of a token as the control gives it: a literal without its delimiters. Empty for a rule.
    std::u16string_view lexema() const;
    /// The same in UTF-8.
    std::string lexemaUtf8() const;

    /// Its children, from left to right.
    Hijos hijos() const;
    std::size_t numHijos() const;
    /// Child at a place from 0 on; raises `IndiceNoValido`. Bodies are short: each step goes over one child.
    Nodo operator[](std::size_t indice) const;
    std::optional<Nodo> padre() const;
    /// Its place in a walk from the root through each node before its children, from 0.
    std::size_t indice() const { return indice_; }

    bool operator==(const Nodo&) const = default;

private:
    friend class ArbolAnalisis;
    friend class Hijos;
    struct Contenido;

    Nodo(const Contenido* contenido, std::uint32_t indice) : contenido_(contenido), indice_(indice) {}

    const Contenido* contenido_;
    std::uint32_t indice_;
};

/// A syntax tree as a value. It owns its nodes and a copy of the text, is moved but not copied, and outlives
/// the language and the text that it was made of. It may be as deep as its text is long: nothing here
/// recurses, destruction included.
class ArbolAnalisis {
public:
    /// Without nodes, as after a text that was not accepted.
    ArbolAnalisis();
    ArbolAnalisis(ArbolAnalisis&&) noexcept;
    ArbolAnalisis& operator=(ArbolAnalisis&&) noexcept;
    ArbolAnalisis(const ArbolAnalisis&) = delete;
    ArbolAnalisis& operator=(const ArbolAnalisis&) = delete;
    ~ArbolAnalisis();

    bool esVacio() const { return contenido_ == nullptr; }
    std::size_t numNodos() const;
    /// Raises `IndiceNoValido` when there is none.
    Nodo raiz() const { return (*this)[0]; }
    /// The node at a place of the walk that goes through each node before its children, from 0; raises
    /// `IndiceNoValido`.
    Nodo operator[](std::size_t indice) const;

    /// Walks a subtree: `entra(nodo)` before its children, `sale(nodo)` behind them.
    template <typename Entra, typename Sale>
    static void recorre(Nodo raiz, const Entra& entra, const Sale& sale);

    /// One canonical text, a node a line, two blanks a level: "head -> body [number]", or "'lexeme' (line,
    /// column)".
    std::u16string toString() const;

    /// The tree of a text, from the steps of its parse: the rule of each reduction, 0 for a token. Nothing
    /// when they are not those of one tree.
    static std::optional<ArbolAnalisis> construye(std::unique_ptr<const TextoAnalizado> texto,
                                                  std::span<const std::int16_t> pasos);

private:
    explicit ArbolAnalisis(std::unique_ptr<const Nodo::Contenido> contenido);

    std::unique_ptr<const Nodo::Contenido> contenido_;
};

/// The children of a node, to be gone through from left to right.
class Hijos {
public:
    class Iterador {
    public:
        using value_type = Nodo;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::input_iterator_tag;

        explicit Iterador(Nodo nodo) : nodo_(nodo) {}
        Nodo operator*() const { return nodo_; }
        Iterador& operator++();
        Iterador operator++(int) {
            const Iterador antes = *this;
            ++*this;
            return antes;
        }
        bool operator==(const Iterador&) const = default;

    private:
        Nodo nodo_;
    };

    explicit Hijos(Nodo padre);
    Iterador begin() const { return Iterador(primero_); }
    Iterador end() const { return Iterador(fin_); }
    bool empty() const { return primero_ == fin_; }

private:
    Nodo primero_;
    Nodo fin_; ///< a place behind the last, no node of theirs
};

template <typename Entra, typename Sale>
void ArbolAnalisis::recorre(Nodo raiz, const Entra& entra, const Sale& sale) {
    std::vector<std::pair<Hijos::Iterador, Hijos::Iterador>> abiertos;
    std::vector<Nodo> nodos{raiz};
    entra(raiz);
    abiertos.emplace_back(raiz.hijos().begin(), raiz.hijos().end());
    while (!abiertos.empty()) {
        auto& [siguiente, fin] = abiertos.back();
        if (siguiente == fin) {
            sale(nodos.back());
            nodos.pop_back();
            abiertos.pop_back();
            continue;
        }
        const Nodo hijo = *siguiente++;
        entra(hijo);
        nodos.push_back(hijo);
        abiertos.emplace_back(hijo.hijos().begin(), hijo.hijos().end());
    }
}

} // namespace norvik
