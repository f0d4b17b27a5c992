#pragma once

#include "norvik/parser/arbol.hpp"
#include "norvik/parser/arena.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace norvik {

/// A syntax tree: its root, the same node for its whole life, and the memory of all its other nodes and
/// texts.
class ArbolSintactico {
public:
    ArbolSintactico() : sinRegla_{this, {}, {}}, raiz_(Arbol::Clave{}, sinRegla_) {}
    ArbolSintactico(const ArbolSintactico&) = delete;
    ArbolSintactico& operator=(const ArbolSintactico&) = delete;
    ~ArbolSintactico() = default;

    Arbol& raiz() { return raiz_; }
    /// Drops the tree: the root is initialised, the memory of the other nodes is used again.
    void reinicia();
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
        Arbol& hijo = *std::construct_at(arena_.reserva<Arbol>(1), Arbol::Clave{}, sinRegla_, &nodo);
        nodo.regla_ = &regla;
        nodo.hijo_ = &hijo;
        nodo.numHijos_ = 1;
        return hijo;
    }

private:
    friend class Arbol;

    Arbol& copia(const Arbol& original);
    void hazSitio(Arbol& nodo);

    Arena arena_;
    const FichaRegla sinRegla_;
    Arbol raiz_;
};

} // namespace norvik
