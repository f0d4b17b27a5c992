// SPDX-License-Identifier: MIT

// What a name is, its neighbours say: it stands behind the word that defines, before the arrow of a rule, or
// somewhere else. So one pass over the tokens finds all names, of a text that is only half written as well.
#include "norvik/checks/nombres.hpp"

#include "norvik/base/lugares.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/expansion.hpp"
#include "norvik/spec/compiladorLenguaje.hpp"
#include "norvik/spec/directivas.hpp"

#include <algorithm>
#include <cstddef>

namespace norvik::inline v0_2 {

namespace {

using Papel = NombreEscrito::Papel;

class LectorNombres {
public:
    explicit LectorNombres(std::u16string_view especificacion)
        : texto_(especificacion), lugares_(especificacion, Lugares::Unidad::Utf16) {}

    std::vector<NombreEscrito> lee() {
        for (const LineaDirectiva& linea : lineasDeDirectivas(cabecera(texto_)))
            if (asociatividadDe(linea.palabra))
                for (const std::u16string_view nombre : nombresDe(linea.valor))
                    anota(nombre, Papel::EnDirectiva);
        const Lexemas lexemas = norvik::lexemas(lenguajeDeEspecificaciones(), texto_);
        for (std::size_t i = 0; i < lexemas.size(); ++i)
            if (const Lexema lexema = lexemas[i]; !lexema.esComentario) atiende(lexema);
        return std::move(nombres_);
    }

private:
    void atiende(const Lexema& lexema) {
        const auto inicio = static_cast<std::size_t>(lexema.rango.inicio.desplazamiento);
        const auto fin = static_cast<std::size_t>(lexema.rango.fin.desplazamiento);
        const std::u16string_view escrito = texto_.substr(inicio, fin - inicio);
        if (lexema.nombre == u"id") anota(escrito, papelTras(anterior_));
        if (lexema.nombre == u"flecha" && anterior_ == u"id") nombres_.back().papel = Papel::Cabeza;
        if (lexema.nombre == u"cadena" && anterior_ == u"igual")
            for (const std::u16string_view nombre : referenciasDe(escrito)) anota(nombre, Papel::EnPatron);
        anterior_ = lexema.nombre;
    }
    static Papel papelTras(std::u16string_view anterior) {
        if (anterior == u"expreg") return Papel::Auxiliar;
        return anterior == u"token" ? Papel::Token : Papel::EnCuerpo;
    }
    /// `nombre` is a part of the text.
    void anota(std::u16string_view nombre, Papel papel) {
        const auto inicio = static_cast<std::size_t>(nombre.data() - texto_.data());
        nombres_.push_back({std::u16string(nombre), lugares_.rango(inicio, inicio + nombre.size()), papel});
    }

    std::u16string_view texto_;
    Lugares lugares_;
    std::u16string_view anterior_; // name of the token before
    std::vector<NombreEscrito> nombres_;
};

bool esNombre(std::u16string_view texto) {
    const Lexemas suyos = lexemas(lenguajeDeEspecificaciones(), texto);
    return suyos.size() == 1 && suyos[0].nombre == u"id" && suyos[0].texto == texto;
}

bool esDefinicion(const NombreEscrito& escrito) {
    return escrito.papel == Papel::Auxiliar || escrito.papel == Papel::Token;
}

} // namespace

std::vector<NombreEscrito> nombresEscritos(std::u16string_view especificacion) {
    return LectorNombres(especificacion).lee();
}

const NombreEscrito* nombreEn(std::span<const NombreEscrito> nombres, std::int32_t desplazamiento) {
    const auto sitio = std::ranges::find_if(nombres, [&](const NombreEscrito& n) {
        return n.lugar.inicio.desplazamiento <= desplazamiento &&
               desplazamiento <= n.lugar.fin.desplazamiento;
    });
    return sitio == nombres.end() ? nullptr : &*sitio;
}

const NombreEscrito* origenDe(std::span<const NombreEscrito> nombres, std::u16string_view nombre) {
    const NombreEscrito* regla = nullptr;
    for (const NombreEscrito& n : nombres) {
        if (n.nombre != nombre) continue;
        if (esDefinicion(n)) return &n;
        if (regla == nullptr && n.papel == Papel::Cabeza) regla = &n;
    }
    return regla;
}

/// The first letter of a name says in the bodies of the rules what it is.
std::u16string reparosA(std::span<const NombreEscrito> nombres, std::u16string_view nombre,
                        std::u16string_view nuevo) {
    const std::u16string citado = u"«" + std::u16string(nuevo) + u"»";
    if (nuevo == nombre) return u"Ya se llama así.";
    if (!esNombre(nuevo))
        return citado + u" no es un nombre: letras sin acento, cifras y _, sin empezar por una cifra, y no "
                        u"una palabra de las especificaciones.";
    const auto seLlama = [](std::u16string_view como) {
        return [como](const NombreEscrito& n) { return n.nombre == como; };
    };
    if (std::ranges::any_of(nombres, seLlama(nuevo))) return u"Ya hay otro nombre " + citado + u".";
    const bool deVariable = esMayusculaAZ(nuevo.front());
    for (const NombreEscrito& n : nombres) {
        if (n.nombre != nombre) continue;
        if (n.papel == Papel::Cabeza && !deVariable) return u"Una variable empieza por mayúscula.";
        if (n.papel == Papel::Token && deVariable) return u"Un token no empieza por mayúscula.";
    }
    return {};
}

Arreglo cambiaNombre(std::span<const NombreEscrito> nombres, std::u16string_view nombre,
                     std::u16string_view nuevo) {
    Arreglo arreglo{u"Cambiar " + std::u16string(nombre) + u" por " + std::u16string(nuevo), {}};
    for (const NombreEscrito& n : nombres)
        if (n.nombre == nombre) arreglo.cambios.push_back({n.lugar, std::u16string(nuevo), false});
    return arreglo;
}

} // namespace norvik::inline v0_2
