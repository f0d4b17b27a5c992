// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/rango.hpp"

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

namespace norvik::inline v0_2 {

class ArbolAnalisis;
class Hijos;
struct TextoAnalizado;

/// Un nodo de un `ArbolAnalisis`: un token del texto (una hoja) o una aplicación de una regla. Es un valor
/// pequeño que se refiere a su árbol y vale mientras exista, aunque el árbol se mueva. Nada cambia un nodo:
/// varios hilos pueden leer un mismo árbol.
class NORVIK_API Nodo {
public:
    /// Verdadero con un token del texto. La aplicación de una regla vacía no tiene hijos y no es un token.
    bool esToken() const { return regla() == 0; }
    /// Verdadero con un token que no está en el texto: lo puso el arreglo de un error. Su rango es vacío,
    /// detrás del token anterior, y no tiene texto ni lexema; nombre y número son los suyos.
    bool esInsertado() const;
    /// Número de su regla, desde 1; 0 en un token.
    std::int16_t regla() const;
    /// Número del nombre de su token, desde 1; 0 en una regla.
    std::int16_t token() const;
    /// Nombre del token, o cabeza de la regla.
    std::u16string_view nombre() const;
    /// Cuerpo de la regla, con sus símbolos separados por espacios; vacío en un token.
    std::u16string_view cuerpo() const;

    /// Dónde está: de la primera unidad de su primer token a la última del último, con los delimitadores de
    /// los literales. Lo que no tiene ningún token es un rango vacío detrás del token anterior.
    Rango rango() const;
    /// El texto de ese rango.
    std::u16string_view texto() const;
    /// El texto de un token como lo da el control: un literal, sin sus delimitadores. Vacío en una regla.
    std::u16string_view lexema() const;
    /// Lo mismo en UTF-8.
    std::string lexemaUtf8() const;

    /// Sus hijos, de izquierda a derecha.
    Hijos hijos() const;
    /// Cuántos tiene.
    std::size_t numHijos() const;
    /// El hijo de un lugar, desde 0; lanza `IndiceNoValido`. Los cuerpos son cortos: se llega pasando de un
    /// hijo al siguiente.
    Nodo operator[](std::size_t indice) const;
    /// Nada en la raíz.
    std::optional<Nodo> padre() const;
    /// Su lugar, desde 0, en el recorrido desde la raíz que pasa por cada nodo antes que por sus hijos.
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

/// Un árbol sintáctico como valor. Es dueño de sus nodos y de una copia del texto, se mueve pero no se copia,
/// y sobrevive al lenguaje y al texto de que se hizo. Puede ser tan hondo como largo es su texto: nada de
/// aquí es recursivo, ni siquiera la destrucción.
class NORVIK_API ArbolAnalisis {
public:
    /// Sin nodos, como tras un texto que no se aceptó.
    ArbolAnalisis();
    ArbolAnalisis(ArbolAnalisis&&) noexcept;
    ArbolAnalisis& operator=(ArbolAnalisis&&) noexcept;
    ArbolAnalisis(const ArbolAnalisis&) = delete;
    ArbolAnalisis& operator=(const ArbolAnalisis&) = delete;
    ~ArbolAnalisis();

    /// Sin nodos.
    bool esVacio() const { return contenido_ == nullptr; }
    /// Cuántos tiene: tokens y aplicaciones de reglas.
    std::size_t numNodos() const;
    /// Lanza `IndiceNoValido` cuando no hay ninguna.
    Nodo raiz() const { return (*this)[0]; }
    /// El nodo de un lugar del recorrido que pasa por cada nodo antes que por sus hijos, desde 0; lanza
    /// `IndiceNoValido`.
    Nodo operator[](std::size_t indice) const;

    /// Recorre un subárbol: `entra(nodo)` antes de sus hijos y `sale(nodo)` detrás de ellos.
    template <typename Entra, typename Sale>
    static void recorre(Nodo raiz, const Entra& entra, const Sale& sale);

    /// Un texto canónico, un nodo por línea y dos espacios por nivel: `cabeza -> cuerpo [número]`, o
    /// ``'lexema' (línea, columna)``.
    std::u16string toString() const;

    /// El árbol de un texto, de los pasos de su análisis: la regla de cada reducción, 0 de un token. Nada
    /// cuando no son los de un árbol.
    static std::optional<ArbolAnalisis> construye(std::unique_ptr<const TextoAnalizado> texto,
                                                  std::span<const std::int16_t> pasos);

private:
    explicit ArbolAnalisis(std::unique_ptr<const Nodo::Contenido> contenido);

    std::unique_ptr<const Nodo::Contenido> contenido_;
};

/// Los hijos de un nodo, para recorrerlos de izquierda a derecha.
class NORVIK_API Hijos {
public:
    /// Va de un hijo al siguiente.
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
    Nodo fin_; ///< un lugar detrás del último, ningún nodo de ellos
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

} // namespace norvik::inline v0_2
