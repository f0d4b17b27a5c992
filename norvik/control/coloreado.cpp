// SPDX-License-Identifier: MIT

// Colouring of a range: recognise its characters alone, then walk from token to token and paint those that
// have a colour. A token that does not lie wholly in the range is not seen, so that a comment of several
// lines is coloured by a range that holds it and not line by line. The cost is one recognition of the range
// and the characters painted.

#include "norvik/control/coloreado.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <stop_token>
#include <string>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

/// While it lives who may stop a work stops its recognition; otherwise who could before.
class QuienCancela {
public:
    QuienCancela(pilaTokens& lexico, const std::stop_token& parada)
        : lexico_(lexico), antes_(lexico.cancelacion) {
        if (parada.stop_possible()) lexico_.cancelacion = parada;
    }
    QuienCancela(const QuienCancela&) = delete;
    QuienCancela& operator=(const QuienCancela&) = delete;
    ~QuienCancela() { lexico_.cancelacion = std::move(antes_); }

private:
    pilaTokens& lexico_;
    std::stop_token antes_;
};

} // namespace

template <typename Reconoce>
void Coloreado::trabaja(const Reconoce& reconoce) {
    sistema_->trabaja([&](const std::stop_token& parada) {
        const QuienCancela quien(lexico_, parada);
        reconoce();
    });
}

void Coloreado::reconoceTodo() {
    const std::u16string texto(caja_->texto());
    trabaja([&] { lexico_.ReconoceTokens(texto); });
}

void Coloreado::pintaTokens(std::int32_t inicio, std::int32_t fin, Palabras palabras) {
    const std::int32_t inicioSeleccion = caja_->inicioSeleccion();
    const std::int32_t longitudSeleccion = caja_->longitudSeleccion();
    recorre(inicio + 1, fin + 1, palabras);
    caja_->selecciona(inicioSeleccion, longitudSeleccion);
}

/// The range is taken along: whoever waits for a long recognition may change the text.
const MapaTokens& Coloreado::reconoce(std::int16_t desde, std::int16_t hasta) {
    const std::u16string_view texto = caja_->texto();
    const std::size_t inicio = std::min(texto.size(), static_cast<std::size_t>(desde) - 1);
    const std::u16string rango(texto.substr(inicio, static_cast<std::size_t>(hasta - desde)));
    trabaja([&] { lexico_.reconoceRango(rango, desde); });
    return lexico_.mapaTokens();
}

/// Paints the tokens of the positions [desde, hasta), 1-based.
void Coloreado::recorre(std::int32_t desde, std::int32_t hasta, Palabras palabras) {
    if (hasta - 1 > a32(maximoTexto)) throw TextoDemasiadoLargo();
    const MapaTokens& mapa = reconoce(a16(desde), a16(hasta));
    for (std::int32_t pos = desde; pos < hasta;) {
        const auto token = mapa.en(pos);
        if (!token || token->longitud == 0) {
            ++pos;
            continue;
        }
        pintaToken(pos - 1, token->longitud, *token->definicion, palabras);
        pos += token->longitud;
    }
}

/// Corrections may have left less text than was recognised: as of a selection, what is beyond it is not
/// there.
void Coloreado::pintaToken(std::int32_t posicion, std::int32_t longitud, const expresionRegular& definicion,
                           Palabras palabras) {
    const bool esPalabra = definicion.tipo == Norvik_PalabraReservada || definicion.tipo == Norvik_AutoExpReg;
    const bool corrige =
        palabras == Palabras::Corrige && opciones_.autoCorreccion && !opciones_.lenguajeSensible && esPalabra;
    if (definicion.colorTexto == sinColor && definicion.tipo != Norvik_AutoExpReg) return;
    const auto total = static_cast<std::int32_t>(caja_->texto().size());
    const std::int32_t lugar = std::min(posicion, total);
    const std::int32_t cuantos = std::min(longitud, total - lugar);
    if (definicion.colorTexto != sinColor) caja_->pinta(lugar, cuantos, definicion.colorTexto);
    if (!corrige) return;
    const auto lexema =
        caja_->texto().substr(static_cast<std::size_t>(lugar), static_cast<std::size_t>(cuantos));
    if (lexema == definicion.expresion) return;
    caja_->selecciona(lugar, cuantos);
    if (definicion.colorTexto != sinColor) caja_->ponColorSeleccion(definicion.colorTexto);
    caja_->reemplazaSeleccion(definicion.expresion);
}

} // namespace norvik::inline v0_2
