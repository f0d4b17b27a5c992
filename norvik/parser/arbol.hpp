#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace norvik {

class ArbolSintactico;
class GeneracionArbol;

/// Which child a descent takes: always the first, or always the last.
enum Direccion : std::int16_t { Norvik_Izquierda = 0, Norvik_Derecha = 1 };

/// What the nodes that one rule produced have in common: the rule, the tree that they belong to, and whether
/// they are part of it still.
struct FichaRegla {
    ArbolSintactico* arbol = nullptr;
    std::u16string_view nombre;
    std::u16string_view cuerpo;
    std::int16_t numero = -1;
    bool retirada = false; ///< the tree was dropped: the nodes read as initialised
};

/// A node of a syntax tree: a token of the text (a leaf) or an application of a rule. Nodes belong to their
/// tree, which the next parse drops; texts hold until then. A reference held across that parse, accepted or
/// not, is to an initialised node, without parent. Its place may serve a node of a tree after that one, the
/// sooner the larger the trees are; it is a node as long as its tree's owner (the control) lives. The root is
/// the same node all that time. Whoever keeps a tree longer copies what it needs.
class Arbol {
public:
    /// Only a tree makes nodes.
    class Clave {
        friend class ArbolSintactico;
        Clave() = default;
    };
    Arbol(Clave, const FichaRegla& regla, Arbol* padre = nullptr) : regla_(&regla), padre_(padre) {}
    Arbol(const Arbol&) = delete;
    Arbol& operator=(const Arbol&) = delete;
    ~Arbol() = default;

    std::u16string_view GetLexema() const {
        return regla_->retirada ? std::u16string_view() : std::u16string_view(lexema_, largoLexema_);
    }
    /// The lexeme in upper case.
    std::u16string GetULexema() const;
    /// 1-based; 0 when never set.
    std::int32_t GetLinea() const { return linea_; }
    std::int32_t GetColumna() const { return columna_; }
    /// Head of the node's rule.
    std::u16string_view GetNomRegla() const { return regla_->nombre; }
    /// Body of the node's rule.
    std::u16string_view GetRegla() const { return regla_->cuerpo; }
    /// Number of the node's rule, -1 for a node that no rule produced.
    std::int16_t GetNumRegla() const { return regla_->numero; }
    /// Raises `Desbordamiento` beyond 32 767 children.
    std::int16_t GetNumHijos() const;
    bool GetEsHoja() const { return hijos().empty(); }
    /// Child at a 1-based position, null beyond the last; raises `IndiceNoValido` below 1.
    Arbol* GetHijo(std::int16_t numHijo) const;

    void SetLexema(std::u16string_view datoNodo);
    void SetLinea(std::int32_t nLinea) { linea_ = nLinea; }
    void SetColumna(std::int32_t nColumna) { columna_ = nColumna; }
    void SetNomRegla(std::u16string_view reglaNodo);
    void SetRegla(std::u16string_view reglaNodo);
    /// The number in decimal, blanks around it allowed. Raises `NoCoincidenLosTipos` when the text is no
    /// number, `Desbordamiento` when it does not fit 16 bits.
    void SetNumRegla(std::u16string_view numeroRegla);

    /// Attaches a node as the first child. A node that hangs from a parent already, or belongs to another
    /// tree, stays where it is and a copy of its subtree is attached. Raises `ArgumentoNoValido` for the node
    /// itself and for those above it.
    void SetHijo(Arbol& hijo);
    /// The same, as the last child.
    void SetHijoIzquierda(Arbol& hijo);
    /// Empties the node and each of its descendants, which are then without parent. Line and column stay.
    void Inicializa();

    /// The node reached after `ordenDescendencia` steps, or the leaf met before.
    Arbol& GetNDescendienteEnDireccion(std::int16_t ordenDescendencia, Direccion direccion);
    /// The leaf at the end of a direction. A direction other than the two stays on this node.
    Arbol& GetUltimoDescendienteEnDireccion(Direccion direccion);
    /// First node with children of a rule, in pre-order from this one; null when there is none.
    Arbol* GetDescendienteConRegla(std::int16_t numReglaBusqueda);
    /// First node of a rule on the way in a direction, this one included; null when there is none, and for a
    /// direction other than the two.
    Arbol* GetDescendienteConReglaEnDireccion(std::int16_t numReglaBusqueda, Direccion direccion);

    /// All children, from the leftmost.
    std::span<Arbol* const> hijos() const {
        if (regla_->retirada) return {};
        return {numHijos_ == 1 && conSitio_ == 0 ? &hijo_ : hijos_, numHijos_};
    }
    /// The whole subtree in one canonical text, a node a line, two blanks a level: `head -> body [number]` or
    /// `'lexeme' (line, column)`.
    std::u16string toString() const;

private:
    friend class ArbolSintactico;
    friend class GeneracionArbol;

    static constexpr std::uint32_t maximoHijos = 0x7FFFFFFF;

    void limpia();
    void reanima();
    ArbolSintactico& arbol() const { return *regla_->arbol; }
    void ponRegla(std::u16string_view nombre, std::u16string_view cuerpo, std::int16_t numero);
    bool tieneEncima(const Arbol& nodo) const;
    Arbol& adopta(Arbol& hijo);
    Arbol* paso(Direccion direccion) const;

    const FichaRegla* regla_;
    Arbol* padre_;
    union {
        Arbol** hijos_ = nullptr; ///< the first of a table
        Arbol* hijo_;             ///< an only child that was not attached by hand needs no table
    };
    const char16_t* lexema_ = nullptr;
    std::uint32_t numHijos_ : 31 = 0;
    std::uint32_t conSitio_ : 1 = 0; ///< the table has free places before and after the children
    std::uint32_t largoLexema_ = 0;
    std::int32_t linea_ = 0;
    std::int32_t columna_ = 0;
};

} // namespace norvik
