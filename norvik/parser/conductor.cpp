// SPDX-License-Identifier: MIT

// The parse of a control's text: it leaves a trace, and only an accepted text gets a tree.
#include "norvik/parser/conductor.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/palabras.hpp"
#include "norvik/parser/constructorArbol.hpp"
#include "norvik/parser/erroresTexto.hpp"
#include "norvik/parser/fichasTokens.hpp"
#include "norvik/parser/lectorTexto.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/parser/motorSLR.hpp"

#include <cstddef>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

// The tokens of a control's reader, on their way into the trace.
class CursoDeLector {
public:
    CursoDeLector(LectorTokens& lector, const FuenteTexto& fuente, LenguajeAnalisis& lenguaje, Traza& traza,
                  bool conLineas)
        : lector_(lector), fuente_(fuente), lenguaje_(lenguaje), traza_(traza), conLineas_(conLineas) {
        lee();
    }

    std::int16_t columna() const { return columna_; }
    Posicion posicion() const { return posicion_; }
    void desplaza() {
        const TokenLeido& token = lector_.leido();
        const bool fin = token.definicion == TokenLeido::fin;
        traza_.registraDesplazamiento(token.lexema, posicion_.linea, posicion_.columna,
                                      fin ? Traza::Procedencia::FinDeTexto : Traza::Procedencia::Texto);
        lee();
    }
    void reduce(std::int16_t regla) { traza_.registraReduccion(regla); }
    void reduce(std::span<const std::int16_t> reglas) { traza_.registraReducciones(reglas); }

private:
    void lee() {
        lector_.lee(fuente_);
        columna_ = lenguaje_.columna(lector_.leido());
        if (conLineas_) posicion_ = lector_.posicionToken(fuente_);
    }

    LectorTokens& lector_;
    const FuenteTexto& fuente_;
    LenguajeAnalisis& lenguaje_;
    Traza& traza_;
    bool conLineas_;
    std::int16_t columna_ = 0;
    Posicion posicion_{0, 0};
};

// The parse of a text once more, up to the token at a position, which then is one that no grammar knows.
class Repeticion {
public:
    Repeticion(LectorTexto lector, std::int32_t hasta, LenguajeAnalisis& lenguaje)
        : lector_(lector), hasta_(hasta), lenguaje_(lenguaje) {
        desplaza();
    }
    std::int16_t columna() const { return columna_; }
    static Posicion posicion() { return {}; }
    void desplaza() {
        const Lectura& lectura = lector_.lee();
        columna_ = lectura.inicio >= hasta_ ? LenguajeAnalisis::columnaDesconocida
                                            : lenguaje_.columna(lectura.leido);
    }
    void reduce(std::int16_t /*regla*/) {}
    void reduce(std::span<const std::int16_t> /*reglas*/) {}

private:
    LectorTexto lector_;
    std::int32_t hasta_;
    LenguajeAnalisis& lenguaje_;
    std::int16_t columna_ = 0;
};

// The stack as a token came, before any reduction was made for its sake.
std::vector<std::int16_t> pilaAntesDe(std::int32_t posicion, std::u16string_view texto,
                                      const pilaTokens& lexico, LenguajeAnalisis& lenguaje) {
    Repeticion curso(LectorTexto(texto, lexico, lexico.mapaTokens()), posicion, lenguaje);
    CadenasReglas cadenas;
    MotorSLR motor(curso, lenguaje, cadenas);
    motor.ejecuta();
    std::vector<std::int16_t> estados;
    for (std::size_t i = 0; i < motor.pila().altura(); ++i) estados.push_back(motor.pila().estado(i));
    return estados;
}

} // namespace

bool ConductorSLR::ConstruyeArbolSintactico() {
    return analiza(lector_.editor(), Lineas::DelTexto);
}

bool ConductorSLR::ConstruyeArbolSintacticoTextoInvisible() {
    return analiza(lector_.textoInvisible(), Lineas::Ninguna);
}

bool ConductorSLR::analiza(const FuenteTexto& fuente, Lineas lineas) {
    mensajeError_.clear();
    codigoError_ = sinError;
    diagnostico_.reset();
    lector_.inicializa(fuente);
    arbol_.reinicia();
    traza_.vaciaTraza(lector_.textoReconocido());
    if (lenguaje_.actualiza()) cadenas_.olvida();
    const Final final = recorre(fuente, lineas);
    Mensaje mensaje;
    switch (final.desenlace) {
    case Desenlace::Aceptado:
        construyeArbol(arbol_, traza_, gramatica_);
        return true;
    case Desenlace::ErrorLexico:
        mensaje = informaErrorLexico(fuente.texto());
        break;
    case Desenlace::ErrorSintactico:
        mensaje = informaErrorSintactico(fuente.texto(), final.estado);
        break;
    }
    if (alFallar) alFallar(mensaje);
    return false;
}

// The reader keeps the last token as its own, however the parse ends.
ConductorSLR::Final ConductorSLR::recorre(const FuenteTexto& fuente, Lineas lineas) {
    CursoDeLector curso(lector_, fuente, lenguaje_, traza_, lineas == Lineas::DelTexto);
    MotorSLR motor(curso, lenguaje_, cadenas_);
    try {
        const Desenlace desenlace = motor.ejecuta();
        lector_.recuerda(fuente);
        return {desenlace, motor.pila().cima()};
    } catch (...) {
        lector_.recuerda(fuente);
        throw;
    }
}

Mensaje ConductorSLR::informaErrorLexico(std::u16string_view texto) {
    codigoError_ = errorLexico;
    mensajeError_ =
        palabras::errorLexico(lector_.LineaToken(), lector_.ColumnaToken(), lector_.ultimoLexema());
    diagnostico_ = caracterIncorrecto(texto, static_cast<std::size_t>(lector_.inicioToken()) - 1,
                                      Lugares(texto, Lugares::Unidad::Utf16));
    return {mensajeError_, u"ERROR Léxico", Icono::Exclamacion, Botones::Aceptar};
}

Mensaje ConductorSLR::informaErrorSintactico(std::u16string_view texto, std::int16_t estado) {
    codigoError_ = errorSintactico;
    mensajeError_ = palabras::errorSintactico(lector_.DameStringTokenLeido(),
                                              gramatica_.toStringEsperados(estado, lexico_));
    const Lectura lectura{lector_.leido(), lector_.inicioToken(), lector_.posLectura()};
    const std::vector<std::int16_t> pila = pilaAntesDe(lectura.inicio, texto, lexico_, lenguaje_);
    diagnostico_ = tokenInesperado(lectura, esperadosEn(pila, FichasTokens(lexico_, gramatica_), lenguaje_),
                                   Lugares(texto, Lugares::Unidad::Utf16), lexico_);
    return {mensajeError_, u"ERROR de Sintaxis", Icono::Exclamacion, Botones::Aceptar};
}

} // namespace norvik::inline v0_2
