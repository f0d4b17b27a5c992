// SPDX-License-Identifier: MIT

// The errors of a text, with what may really stand at their place. A cell of the table that is not empty
// promises too much: a reduction may be asked for by a token that nothing shifts in the end. So each token is
// tried: its reductions are made on a copy of the stack's top, which grows over the part that they have not
// touched, until it is shifted or fails. The stack is that of the moment when the wrong token came, before
// any reduction was made for its sake: the parse up to there is repeated to get it.
#include "norvik/parser/erroresTexto.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/palabras.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"
#include "norvik/parser/motorSLR.hpp"

#include <algorithm>
#include <cstddef>

namespace norvik {

namespace {

std::u16string describe(const pilaTokens& lexico, const TokenLeido& token) {
    if (token.definicion == TokenLeido::fin) return u"el final del fichero";
    const expresionRegular& definicion = *lexico.tokensLenguaje()[static_cast<std::size_t>(token.definicion)];
    return definicion.pseudoToken.empty() ? palabras::entreApostrofos(token.lexema) : definicion.pseudoToken;
}

// A damaged table may go on reducing for ever.
constexpr int maximoReducciones = 100'000;

class Ensayo {
public:
    Ensayo(const pilaSLR& pila, const LenguajeAnalisis& lenguaje) : pila_(pila), lenguaje_(lenguaje) {}

    // A damaged table promises nothing.
    bool admite(std::int16_t columna) {
        try {
            return prueba(columna);
        } catch (const SubindiceFueraDeIntervalo&) {
            return false;
        }
    }

private:
    bool prueba(std::int16_t columna) {
        encima_.clear();
        quedan_ = pila_.altura();
        for (int i = 0; i < maximoReducciones; ++i) {
            const std::int16_t accion = lenguaje_.entrada(cima(), columna);
            if (accion >= 0) return accion != 0;
            const auto regla = lenguaje_.regla(static_cast<std::int16_t>(-accion));
            quita(static_cast<std::size_t>(regla.numElementos));
            const std::int16_t estado = lenguaje_.entrada(cima(), regla.columnaCabeza);
            if (estado == 0) return false;
            encima_.push_back(estado);
        }
        return false;
    }
    std::int16_t cima() const {
        if (!encima_.empty()) return encima_.back();
        return quedan_ == 0 ? std::int16_t{0} : pila_.estado(quedan_ - 1);
    }
    void quita(std::size_t cuantos) {
        const std::size_t deEncima = std::min(cuantos, encima_.size());
        encima_.resize(encima_.size() - deEncima);
        quedan_ -= std::min(quedan_, cuantos - deEncima);
    }

    const pilaSLR& pila_;
    const LenguajeAnalisis& lenguaje_;
    std::vector<std::int16_t> encima_; ///< states pushed by the trial
    std::size_t quedan_ = 0;           ///< of the stack itself
};

// The parse of a text once more, up to the token at a position, which then is one that no grammar knows.
class Repeticion {
public:
    Repeticion(const TextoReconocido& reconocido, std::int32_t hasta, LenguajeAnalisis& lenguaje)
        : reconocido_(reconocido), hasta_(hasta), lenguaje_(lenguaje) {
        lee();
    }
    std::int16_t columna() const { return columna_; }
    static Posicion posicion() { return {}; }
    void desplaza() { lee(); }
    void reduce(std::int16_t /*regla*/) {}
    void reduce(std::span<const std::int16_t> /*reglas*/) {}

private:
    void lee() {
        const Lectura lectura =
            leeDesde(siguiente_, reconocido_.texto, reconocido_.mapa, reconocido_.lexico.tokensLenguaje());
        siguiente_ = lectura.fin;
        columna_ = lectura.inicio >= hasta_ ? LenguajeAnalisis::columnaDesconocida
                                            : lenguaje_.columna(lectura.leido);
    }

    const TextoReconocido& reconocido_;
    std::int32_t hasta_;
    LenguajeAnalisis& lenguaje_;
    std::int32_t siguiente_ = 1;
    std::int16_t columna_ = 0;
};

std::vector<std::u16string> esperadosEn(const TextoReconocido& reconocido, std::int32_t posicion,
                                        LenguajeAnalisis& lenguaje) {
    Repeticion curso(reconocido, posicion, lenguaje);
    CadenasReglas cadenas;
    MotorSLR motor(curso, lenguaje, cadenas);
    motor.ejecuta();
    Ensayo ensayo(motor.pila(), lenguaje);
    std::vector<std::u16string> esperados;
    const conjunto& simbolos = reconocido.reglas.simbolos();
    for (std::int16_t columna = 0; columna < simbolos.totalElementos(); ++columna) {
        const std::u16string_view simbolo = simbolos.simboloAt(static_cast<std::int16_t>(columna + 1));
        if (esMayusculaAZ(simbolo.front()) || !ensayo.admite(columna)) continue;
        std::u16string texto = reconocido.lexico.toStringLexemasPorToken(simbolo);
        if (!texto.empty() && std::ranges::find(esperados, texto) == esperados.end())
            esperados.push_back(std::move(texto));
    }
    return esperados;
}

} // namespace

std::size_t largoDeCaracter(std::u16string_view texto, std::size_t indice) {
    const auto es = [&](std::size_t i, char16_t desde) {
        return i < texto.size() && texto[i] >= desde && texto[i] < desde + 0x400;
    };
    return es(indice, 0xD800) && es(indice + 1, 0xDC00) ? 2 : 1;
}

Diagnostico caracterIncorrecto(std::u16string_view texto, std::size_t indice, const Lugares& lugares) {
    const std::size_t largo = largoDeCaracter(texto, indice);
    Diagnostico diagnostico{
        Codigo::CaracterIncorrecto, Gravedad::Error, lugares.rango(indice, indice + largo), {}};
    diagnostico.partes.hallado = palabras::entreApostrofos(texto.substr(indice, largo));
    return diagnostico;
}

Diagnostico tokenInesperado(const TextoReconocido& reconocido, const Lectura& lectura, const Lugares& lugares,
                            LenguajeAnalisis& lenguaje) {
    const auto inicio = static_cast<std::size_t>(lectura.inicio) - 1;
    const auto fin = static_cast<std::size_t>(lectura.fin) - 1;
    Diagnostico diagnostico{Codigo::TokenInesperado, Gravedad::Error, lugares.rango(inicio, fin), {}};
    diagnostico.partes.hallado = describe(reconocido.lexico, lectura.leido);
    diagnostico.partes.esperados = esperadosEn(reconocido, lectura.inicio, lenguaje);
    return diagnostico;
}

} // namespace norvik
