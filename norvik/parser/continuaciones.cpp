// SPDX-License-Identifier: MIT

// What can follow at a place of a text. The tokens before it are parsed without a tree, only with the stack
// of states. An error among them is repaired as parsing repairs it, with a small budget, for a person waits;
// once that is spent, a token that the table does not take is passed over. Then each token of the grammar is
// tried on the stack, reductions and all: what is proposed is exactly what can be shifted there. What is
// written elsewhere in the text and is of one of these tokens comes last.
#include "norvik/parser/continuaciones.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/analizador.hpp"
#include "norvik/parser/avanceLR.hpp"
#include "norvik/parser/busquedaReparaciones.hpp"
#include "norvik/parser/entradaTokens.hpp"
#include "norvik/parser/lectorTexto.hpp"
#include "norvik/pattern/emparejador.hpp"
#include "norvik/pattern/mayusculas.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <algorithm>
#include <set>
#include <tuple>

namespace norvik::inline v0_2 {

namespace {

bool esPalabra(std::u16string_view texto) {
    const bool cifra = !texto.empty() && texto.front() >= u'0' && texto.front() <= u'9';
    return !texto.empty() && !cifra && std::ranges::all_of(texto, esDePalabra);
}

std::size_t inicioDePalabra(std::u16string_view texto, std::size_t posicion) {
    while (posicion > 0 && esDePalabra(texto[posicion - 1])) --posicion;
    return posicion;
}

/// Orders by kind, and then as a dictionary does.
bool vaAntes(const Continuacion& a, const Continuacion& b) {
    const auto plegado = [](std::u16string texto) {
        std::ranges::transform(texto, texto.begin(), pliega);
        return texto;
    };
    return std::tuple(a.clase, plegado(a.texto), a.texto) < std::tuple(b.clase, plegado(b.texto), b.texto);
}

constexpr std::size_t gastoDePrefijo = 600'000; // some hundredths of a second

/// Takes the tokens of a text that goes on behind them, over the stack alone.
class Prefijo {
public:
    Prefijo(std::u16string_view texto, LectorTexto& lector, LenguajeAnalisis& lenguaje,
            const FichasTokens& fichas, const std::stop_token& cancelacion)
        : lenguaje_(lenguaje), fichas_(fichas), entrada_(texto, lector, lenguaje),
          gasto_(cancelacion, gastoDePrefijo) {}

    std::vector<std::int16_t> pila() {
        while (!EntradaTokens::esFin(entrada_.en(siguiente_))) {
            if (toma(entrada_.en(siguiente_).columna) || !repara()) ++siguiente_;
            entrada_.olvidaHasta(siguiente_);
        }
        return pila_;
    }

private:
    bool toma(std::int16_t columna) {
        const bool cabe = ensaya(ensayo_, pila_, columna, lenguaje_) == Avance::Desplazado;
        if (cabe) ensayo_.consuma(pila_);
        return cabe;
    }

    bool repara() {
        const auto reparaciones =
            buscaReparaciones({pila_, entrada_, siguiente_, true}, lenguaje_, fichas_, gasto_);
        if (reparaciones.empty()) return false;
        for (const PasoReparacion& paso : reparaciones.front()) {
            const bool inserta = paso.tipo == PasoReparacion::Tipo::Inserta;
            if (inserta) toma(paso.columna);
            if (paso.tipo == PasoReparacion::Tipo::Conserva) toma(entrada_.en(siguiente_).columna);
            if (!inserta) ++siguiente_;
        }
        return true;
    }

    const LenguajeAnalisis& lenguaje_;
    const FichasTokens& fichas_;
    EntradaTokens entrada_;
    GastoReparaciones gasto_;
    std::vector<std::int16_t> pila_ = {0};
    PilaEnsayo ensayo_{pila_};
    std::size_t siguiente_ = 0; ///< number of the next token
};

} // namespace

Continuaciones Analizador::continuaciones(std::u16string_view texto, std::size_t posicion,
                                          const OpcionesAnalisis& opciones) {
    const std::size_t fin = std::min(posicion, texto.size());
    Continuaciones resultado{inicioDePalabra(texto, fin), {}};
    if (gramatica_.simbolos().esVacio()) return resultado;
    if (lenguaje_.actualiza()) {
        cadenas_.olvida();
        fichas_.reset();
    }
    try {
        const auto admitidas = definicionesQueSiguen(texto.substr(0, resultado.inicio), opciones);
        anotaDefiniciones(admitidas, resultado.propuestas);
        anotaDelTexto(texto, fin, admitidas, opciones, resultado.propuestas);
    } catch (const ErrorNorvik&) { // the text asks for too much, or somebody cancelled
        return {resultado.inicio, {}};
    }
    std::ranges::sort(resultado.propuestas, vaAntes);
    return resultado;
}

/// By their place: those that may come behind a text.
std::vector<bool> Analizador::definicionesQueSiguen(std::u16string_view texto,
                                                    const OpcionesAnalisis& opciones) {
    const std::vector<std::int16_t> pila = pilaTras(texto, opciones);
    PilaEnsayo ensayo(pila);
    const auto cabe = [&](std::int16_t columna) {
        return ensaya(ensayo, pila, columna, lenguaje_) == Avance::Desplazado;
    };
    std::vector<bool> siguen;
    siguen.reserve(lexico_.tokensLenguaje().size());
    for (std::int32_t lugar = 0; lugar < static_cast<std::int32_t>(lexico_.tokensLenguaje().size()); ++lugar)
        siguen.push_back(cabe(lenguaje_.columna({lugar, {}})));
    return siguen;
}

/// The stack once a text was parsed as far as it goes.
std::vector<std::int16_t> Analizador::pilaTras(std::u16string_view texto, const OpcionesAnalisis& opciones) {
    reconoceTexto(texto, opciones);
    LectorTexto lector(texto, lexico_, mapa_);
    lector.lee();
    if (!fichas_) fichas_.emplace(lexico_, gramatica_);
    return Prefijo(texto, lector, lenguaje_, *fichas_, opciones.cancelacion).pila();
}

void Analizador::anotaDefiniciones(const std::vector<bool>& admitidas,
                                   std::vector<Continuacion>& propuestas) const {
    std::set<std::u16string_view> vistas;
    std::size_t lugar = 0;
    for (const expresionRegular* const d : lexico_.tokensLenguaje()) {
        if (!admitidas[lugar++]) continue;
        const bool fija = d->expReg->esPalabra();
        const std::u16string& nombre = d->pseudoToken.empty() ? d->nomToken : d->pseudoToken;
        const std::u16string& texto = fija ? d->expReg->texto() : nombre;
        if (!vistas.insert(texto).second) continue;
        propuestas.push_back({fija ? Continuacion::Clase::Palabra : Continuacion::Clase::Nombre, texto});
    }
}

/// Whether a person who writes at a position goes on with a comment or a literal.
bool Analizador::estaDentro(const Lectura& lectura, std::size_t posicion) const {
    const std::int16_t tipo =
        lexico_.tokensLenguaje()[static_cast<std::size_t>(lectura.leido.definicion)]->tipo;
    const std::size_t inicio = static_cast<std::size_t>(lectura.inicio) - 1;
    const std::size_t fin = static_cast<std::size_t>(lectura.fin) - 1;
    if (tipo == Norvik_ComentarioLinea) return inicio < posicion && posicion <= fin;
    const bool cerrado = tipo == Norvik_ComentarioBloque || tipo == Norvik_Cadena || tipo == Norvik_Caracter;
    return cerrado && inicio < posicion && posicion < fin;
}

/// But for what is being completed. Nothing at all inside a comment or a literal.
void Analizador::anotaDelTexto(std::u16string_view texto, std::size_t posicion,
                               const std::vector<bool>& admitidas, const OpcionesAnalisis& opciones,
                               std::vector<Continuacion>& propuestas) {
    constexpr std::size_t maximo = 1000; // for a person to look at
    reconoceTexto(texto, opciones);
    const auto& definiciones = lexico_.tokensLenguaje();
    std::set<std::u16string_view> vistas;
    for (std::int32_t desde = 1;;) {
        Lectura l;
        leeDesde<Comentarios::SeLeen>(desde, texto, mapa_, definiciones, l);
        if (l.leido.definicion == TokenLeido::fin) break;
        desde = l.fin;
        if (l.leido.definicion == TokenLeido::desconocido) {
            desde += static_cast<std::int32_t>(l.leido.lexema.size());
            continue;
        }
        if (estaDentro(l, posicion)) return propuestas.clear();
        const bool esEl =
            static_cast<std::size_t>(l.inicio) <= posicion && posicion < static_cast<std::size_t>(l.fin);
        const auto lugar = static_cast<std::size_t>(l.leido.definicion);
        const bool vale =
            admitidas[lugar] && !definiciones[lugar]->expReg->esPalabra() && esPalabra(l.leido.lexema);
        if (vale && !esEl && vistas.size() < maximo) vistas.insert(l.leido.lexema);
    }
    for (const std::u16string_view palabra : vistas)
        propuestas.push_back({Continuacion::Clase::DelTexto, std::u16string(palabra)});
}

} // namespace norvik::inline v0_2
