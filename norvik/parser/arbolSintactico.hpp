// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/arbol.hpp"
#include "norvik/parser/arena.hpp"
#include "norvik/parser/generacionArbol.hpp"

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <span>
#include <string_view>

namespace norvik::inline v0_2 {

/// A syntax tree: its root, the same node for its whole life, and the memory of all its other nodes and
/// texts.
class ArbolSintactico {
public:
    ArbolSintactico()
        : activa_(&generaciones_.emplace_back(*this)), raiz_(Arbol::Clave{}, activa_->sinRegla()) {}
    ArbolSintactico(const ArbolSintactico&) = delete;
    ArbolSintactico& operator=(const ArbolSintactico&) = delete;
    ~ArbolSintactico() = default;

    Arbol& raiz() { return raiz_; }
    /// Drops the tree: the root is initialised, and so is what is held of the other nodes.
    void reinicia();
    /// All nodes of the tree are made.
    void acaba() { activa_->acaba(); }
    /// An initialised node without parent.
    Arbol& nuevoNodo();

    /// A copy of a text, as long-lived as the tree.
    std::u16string_view guardaTexto(std::u16string_view texto);
    const FichaRegla& guardaRegla(std::u16string_view nombre, std::u16string_view cuerpo,
                                  std::int16_t numero);
    /// Makes a node a leaf; the lexeme must be as long-lived as the tree.
    static void hazHoja(Arbol& nodo, std::u16string_view lexema, std::int32_t linea, std::int32_t columna);
    /// Makes a node without children the application of a rule of this tree, with `numHijos` initialised
    /// children.
    std::span<Arbol* const> hazRegla(Arbol& nodo, const FichaRegla& regla, std::size_t numHijos);
    /// The same with one child.
    Arbol& hazReglaDeUno(Arbol& nodo, const FichaRegla& regla) {
        Arbol& hijo = *std::construct_at(activa_->reserva(1), Arbol::Clave{}, sinRegla(), &nodo);
        nodo.regla_ = &regla;
        nodo.hijo_ = &hijo;
        nodo.numHijos_ = 1;
        nodo.conSitio_ = 0;
        return hijo;
    }

private:
    friend class Arbol;

    const FichaRegla& sinRegla() const { return activa_->sinRegla(); }
    void cambiaDeGeneracion();
    Arbol& copia(const Arbol& original);
    void hazSitio(Arbol& nodo);

    Arena arena_; ///< texts and tables of children, which no node shows once it is retired
    std::list<GeneracionArbol> generaciones_; ///< the one in use last, before it those retired, oldest first
    GeneracionArbol* activa_;
    std::size_t bytesRetirados_ = 0;
    Arbol raiz_;
};

} // namespace norvik::inline v0_2
