// The SLR driver: a stack of states, one action of the table a step. A shift reads the next token, a
// reduction pops its rule's body and goes on from the state below over the rule's head. Runs of rules of one
// symbol are remembered, with what comes after them, and made at once when they come again. No tree is built
// meanwhile: the parse leaves a trace, and only an accepted text gets a tree.
#include "norvik/parser/conductor.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/palabras.hpp"
#include "norvik/parser/constructorArbol.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/parser/pilaSLR.hpp"

#include <array>
#include <span>

namespace norvik {

namespace {

enum class Desenlace { Aceptado, ErrorLexico, ErrorSintactico };

// One parse. The reader keeps the last token as its own, however the parse ends.
class Analisis {
public:
    Analisis(LectorTokens& lector, const FuenteTexto& fuente, LenguajeAnalisis& lenguaje,
             CadenasReglas& cadenas, Traza& traza, bool conLineas)
        : lector_(lector), fuente_(fuente), lenguaje_(lenguaje), cadenas_(cadenas), traza_(traza),
          conLineas_(conLineas) {}

    Desenlace ejecuta() {
        pila_.PUSH(0, 0, 0);
        lee();
        try {
            const Desenlace desenlace = recorre();
            lector_.recuerda();
            return desenlace;
        } catch (...) {
            lector_.recuerda();
            throw;
        }
    }
    /// The state in which the parse ended.
    std::int16_t estado() const { return pila_.cima(); }

private:
    Desenlace recorre() {
        for (;;) {
            if (columna_ == LenguajeAnalisis::columnaError) return Desenlace::ErrorLexico;
            if (columna_ == LenguajeAnalisis::columnaDesconocida) return Desenlace::ErrorSintactico;
            const std::int16_t accion = reduce();
            if (accion == gramatica::aceptar) return Desenlace::Aceptado;
            if (accion == 0) return Desenlace::ErrorSintactico;
            desplaza(accion);
        }
    }

    // Reduces as long as the token asks for it, and returns what the token asks for then: 0 also when the
    // table has no way on over a rule's head.
    std::int16_t reduce() {
        for (;;) {
            const std::int16_t accion = encadena();
            if (accion >= 0) return accion;
            const std::int16_t numRegla = a16(-accion);
            const auto regla = lenguaje_.regla(numRegla);
            traza_.registraReduccion(numRegla);
            pila_.POP(regla.numElementos);
            const std::int16_t estado = lenguaje_.entrada(pila_.cima(), regla.columnaCabeza);
            if (estado == 0) return 0;
            pila_.PUSH(estado, posicion_.linea, posicion_.columna);
        }
    }

    // The first reductions, as long as their rules have one symbol. Returns what the token asks for then.
    std::int16_t encadena() {
        const CadenasReglas::Lugar lugar{pila_.debajo(), pila_.cima(), columna_};
        if (const auto* const conocida = cadenas_.en(lugar)) {
            if (conocida->longitud == 0) return conocida->accion;
            traza_.registraReducciones(cadenas_.reglas(*conocida));
            cambiaCima(conocida->estado);
            return conocida->accion;
        }
        std::array<std::int16_t, CadenasReglas::maximo> reglas{};
        std::size_t longitud = 0;
        std::int16_t estado = lugar.cima;
        std::int16_t accion = 0;
        for (;; ++longitud) {
            accion = lenguaje_.entrada(estado, columna_);
            if (accion >= 0 || longitud == reglas.size()) break;
            const auto regla = lenguaje_.regla(a16(-accion));
            if (regla.numElementos != 1) break;
            reglas[longitud] = a16(-accion);
            traza_.registraReduccion(reglas[longitud]);
            estado = lenguaje_.entrada(lugar.debajo, regla.columnaCabeza);
            if (estado == 0) {
                pila_.POP();
                return 0;
            }
        }
        if (longitud != 0) cambiaCima(estado);
        cadenas_.guarda(lugar, estado, accion, std::span(reglas).first(longitud));
        return accion;
    }

    void cambiaCima(std::int16_t estado) {
        pila_.POP(1);
        pila_.PUSH(estado, posicion_.linea, posicion_.columna);
    }

    void desplaza(std::int16_t estado) {
        pila_.PUSH(estado, posicion_.linea, posicion_.columna);
        const TokenLeido& token = lector_.leido();
        const bool fin = token.definicion == TokenLeido::fin;
        traza_.registraDesplazamiento(token.lexema, posicion_.linea, posicion_.columna,
                                      fin ? Traza::Procedencia::FinDeTexto : Traza::Procedencia::Texto);
        lee();
    }

    void lee() {
        lector_.lee(fuente_);
        columna_ = lenguaje_.columna(lector_.leido());
        if (conLineas_) posicion_ = lector_.posicionToken();
    }

    LectorTokens& lector_;
    const FuenteTexto& fuente_;
    LenguajeAnalisis& lenguaje_;
    CadenasReglas& cadenas_;
    Traza& traza_;
    bool conLineas_;
    pilaSLR pila_;
    std::int16_t columna_ = 0;
    Posicion posicion_;
};

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
    lector_.inicializa(fuente);
    arbol_.reinicia();
    traza_.vaciaTraza(lector_.textoReconocido());
    if (lenguaje_.actualiza()) cadenas_.olvida();
    Analisis analisis(lector_, fuente, lenguaje_, cadenas_, traza_, lineas == Lineas::DelTexto);
    Mensaje mensaje;
    switch (analisis.ejecuta()) {
    case Desenlace::Aceptado:
        construyeArbol(arbol_, traza_, gramatica_);
        return true;
    case Desenlace::ErrorLexico:
        mensaje = informaErrorLexico();
        break;
    case Desenlace::ErrorSintactico:
        mensaje = informaErrorSintactico(analisis.estado());
        break;
    }
    if (alFallar) alFallar(mensaje);
    return false;
}

Mensaje ConductorSLR::informaErrorLexico() {
    codigoError_ = errorLexico;
    mensajeError_ =
        palabras::errorLexico(lector_.LineaToken(), lector_.ColumnaToken(), lector_.ultimoLexema());
    return {mensajeError_, u"ERROR Léxico", Icono::Exclamacion, Botones::Aceptar};
}

Mensaje ConductorSLR::informaErrorSintactico(std::int16_t estado) {
    codigoError_ = errorSintactico;
    mensajeError_ = palabras::errorSintactico(lector_.DameStringTokenLeido(),
                                              gramatica_.toStringEsperados(estado, lexico_));
    return {mensajeError_, u"ERROR de Sintaxis", Icono::Exclamacion, Botones::Aceptar};
}

} // namespace norvik
