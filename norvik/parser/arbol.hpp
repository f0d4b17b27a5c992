// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class ArbolSintactico;
class GeneracionArbol;

/// Qué hijo toma un descenso: siempre el primero, o siempre el último.
enum Direccion : std::int16_t { Norvik_Izquierda = 0, Norvik_Derecha = 1 };

/// Lo que tienen en común los nodos que hizo una regla: ella, su árbol y si todavía son parte de él. Es para
/// quien hace árboles.
struct FichaRegla {
    ArbolSintactico* arbol = nullptr;
    std::u16string_view nombre;
    std::u16string_view cuerpo;
    std::int16_t numero = -1;
    bool retirada = false; ///< el árbol se dejó: los nodos se leen como inicializados
};

/// Un nodo del árbol sintáctico de un control: un token del texto (una hoja) o una aplicación de una regla.
/// Los nodos son de su árbol, y el análisis siguiente, se acepte o no, lo deja: los textos que dieron valen
/// hasta entonces, y una referencia que se conserve es desde entonces a un nodo recién inicializado, sin
/// padre. En su sitio puede aparecer más tarde un nodo de otro árbol, antes cuanto mayores sean; es un nodo
/// mientras viva el control. La raíz es siempre el mismo nodo. Quien necesite más copia lo que quiera, o usa
/// `analiza`, cuyo árbol es un valor.
class NORVIK_API Arbol {
public:
    /// Solo un árbol hace nodos.
    class Clave {
        friend class ArbolSintactico;
        Clave() = default;
    };
    Arbol(Clave, const FichaRegla& regla, Arbol* padre = nullptr) : regla_(&regla), padre_(padre) {}
    Arbol(const Arbol&) = delete;
    Arbol& operator=(const Arbol&) = delete;
    ~Arbol() = default;

    /// El texto de un token, sin los delimitadores de un literal; vacío en una regla.
    std::u16string_view GetLexema() const {
        return regla_->retirada ? std::u16string_view() : std::u16string_view(lexema_, largoLexema_);
    }
    /// El lexema en mayúsculas.
    std::u16string GetULexema() const;
    /// Línea del token, desde 1; 0 en una regla y en el árbol del texto invisible.
    std::int32_t GetLinea() const { return linea_; }
    /// Columna del token, desde 1 y en caracteres; 0 como la línea.
    std::int32_t GetColumna() const { return columna_; }
    /// Cabeza de su regla; vacía en un token.
    std::u16string_view GetNomRegla() const { return regla_->nombre; }
    /// Cuerpo de su regla, con los símbolos separados por espacios; vacío en un token.
    std::u16string_view GetRegla() const { return regla_->cuerpo; }
    /// Número de su regla, desde 1; -1 en un token y en un nodo inicializado.
    std::int16_t GetNumRegla() const { return regla_->numero; }
    /// Cuántos hijos tiene; lanza `Desbordamiento` si pasan de 32 767.
    std::int16_t GetNumHijos() const;
    /// No tiene hijos: un token, o la aplicación de una regla vacía.
    bool GetEsHoja() const { return hijos().empty(); }
    /// El hijo de un lugar, desde 1 y de izquierda a derecha; nulo detrás del último. Lanza `IndiceNoValido`
    /// por debajo de 1.
    Arbol* GetHijo(std::int16_t numHijo) const;

    /// @name Cambiar un nodo
    /// El árbol copia los textos. Un nodo que se leía como inicializado pasa a ser del árbol actual.
    /// @{
    void SetLexema(std::u16string_view datoNodo);
    void SetLinea(std::int32_t nLinea) { linea_ = nLinea; }
    void SetColumna(std::int32_t nColumna) { columna_ = nColumna; }
    void SetNomRegla(std::u16string_view reglaNodo);
    void SetRegla(std::u16string_view reglaNodo);
    /// El número en decimal, con blancos alrededor o sin ellos. Lanza `NoCoincidenLosTipos` si el texto no es
    /// un número y `Desbordamiento` si no cabe en 16 bits.
    void SetNumRegla(std::u16string_view numeroRegla);

    /// Cuelga un nodo como primer hijo. De uno que ya tiene padre o es de otro árbol se cuelga una copia, con
    /// todo lo suyo. Lanza `ArgumentoNoValido` con el propio nodo y con los que tiene encima.
    void SetHijo(Arbol& hijo);
    /// Lo mismo, como último hijo.
    void SetHijoIzquierda(Arbol& hijo);
    /// Vacía el nodo y todos sus descendientes, que se quedan sin padre. Línea y columna no cambian.
    void Inicializa();

    /// @}

    /// @name Descender y buscar
    /// Sin recursión: un árbol puede ser tan hondo como largo es su texto.
    /// @{

    /// El nodo a que se llega con `ordenDescendencia` pasos en una dirección, o la hoja en que se acaben
    /// antes.
    Arbol& GetNDescendienteEnDireccion(std::int16_t ordenDescendencia, Direccion direccion);
    /// La hoja en que acaba una dirección; este mismo nodo con una dirección que no es ninguna de las dos.
    Arbol& GetUltimoDescendienteEnDireccion(Direccion direccion);
    /// El primer nodo con hijos de una regla, de este en adelante y cada nodo antes que sus hijos; nulo si no
    /// hay.
    Arbol* GetDescendienteConRegla(std::int16_t numReglaBusqueda);
    /// El primer nodo de una regla en el camino de una dirección, este incluido; nulo si no hay, y con una
    /// dirección que no es ninguna de las dos.
    Arbol* GetDescendienteConReglaEnDireccion(std::int16_t numReglaBusqueda, Direccion direccion);

    /// @}

    /// Todos los hijos, de izquierda a derecha; la vista vale hasta que cambien.
    std::span<Arbol* const> hijos() const {
        if (regla_->retirada) return {};
        return {numHijos_ == 1 && conSitio_ == 0 ? &hijo_ : hijos_, numHijos_};
    }
    /// El subárbol en un texto canónico, un nodo por línea y dos espacios por nivel: `cabeza -> cuerpo
    /// [número]`, o
    /// ``'lexema' (línea, columna)``.
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

} // namespace norvik::inline v0_2
