// SPDX-License-Identifier: MIT

// Registration of token definitions: expansion, check of the pattern, colour of the kind.
#include "norvik/base/errores.hpp"
#include "norvik/lexer/definicionDePatron.hpp"
#include "norvik/lexer/definicionesTokens.hpp"
#include "norvik/lexer/expansion.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/lexer/reconocedor.hpp"

#include <cstdint>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

Diagnostico patronIncorrecto(const DefinicionTexto& definicion) {
    Diagnostico diagnostico;
    diagnostico.codigo = Codigo::PatronIncorrecto;
    diagnostico.partes.nombre = definicion.nombre;
    diagnostico.partes.hallado = definicion.texto;
    return diagnostico;
}

Diagnostico diagnosticoDe(const ErrorExpansion& error, const DefinicionTexto& definicion) {
    Diagnostico diagnostico;
    diagnostico.partes.nombre = definicion.nombre;
    switch (error.causa) {
    case ErrorExpansion::Causa::CodigoMalEscrito:
        diagnostico.codigo = Codigo::CodigoMalEscrito;
        break;
    case ErrorExpansion::Causa::ReferenciaDesconocida:
        diagnostico.codigo = Codigo::ReferenciaDesconocida;
        diagnostico.partes.hallado = error.referencia;
        break;
    case ErrorExpansion::Causa::CodigoExcesivo:
    case ErrorExpansion::Causa::DemasiadoLarga:
        return patronIncorrecto(definicion);
    }
    return diagnostico;
}

} // namespace

std::optional<Diagnostico> pilaTokens::registra(const DefinicionTexto& definicion) {
    const auto expansion = expande(definicion.texto, *definiciones_);
    if (const auto* const error = std::get_if<ErrorExpansion>(&expansion))
        return diagnosticoDe(*error, definicion);
    const auto& [patron, lectura, tramos] = std::get<Expansion>(expansion);
    if (!registra(definicion, patron, lectura)) return patronIncorrecto(definicion);
    return std::nullopt;
}

std::optional<Diagnostico> pilaTokens::registraPatron(const DefinicionTexto& definicion) {
    if (registra(definicion, definicion.texto, lecturaDePatron(definicion.texto))) return std::nullopt;
    const std::u16string texto = definicionDePatron(definicion.texto);
    DefinicionTexto escrita = definicion;
    escrita.texto = texto;
    return patronIncorrecto(escrita);
}

/// False when the pattern is malformed, or something of the record is out of range.
bool pilaTokens::registra(const DefinicionTexto& definicion, std::u16string_view patron,
                          std::u16string_view lectura) {
    auto nueva = std::make_unique<expresionRegular>();
    try {
        if (!nueva->SetExpReg(patron, definicion.nombre, definicion.esToken, definicion.sensibleTamanio,
                              definicion.pseudoToken, definicion.tipo, definicion.base, lectura))
            return false;
    } catch (const ErrorNorvik&) {
        return false;
    }
    nueva->SetColor(colorDeTipo(definicion.tipo));
    archiva(std::move(nueva), definicion.esToken);
    return true;
}

std::u16string pilaTokens::SetER(std::u16string_view texto, std::u16string_view nomER, bool esToken,
                                 bool sensibleTamanio, std::u16string_view pseudoToken, std::int16_t tipo,
                                 std::int32_t base, std::int32_t /*colorOpcional*/) {
    const auto error = registra({texto, nomER, esToken, sensibleTamanio, pseudoToken, tipo, base});
    return error ? mensaje(*error) : std::u16string();
}

std::u16string pilaTokens::SetPalabraReservada(std::u16string_view lexema, std::u16string_view token,
                                               bool sensibleTamanio, std::u16string_view pseudoToken) {
    return SetER(lexema, token, true, sensibleTamanio, pseudoToken, Norvik_PalabraReservada, Norvik_SinBase,
                 sinColor);
}

std::u16string pilaTokens::SetOperador(std::u16string_view lexema, std::u16string_view token,
                                       bool sensibleTamanio, std::u16string_view pseudoToken) {
    return SetER(lexema, token, true, sensibleTamanio, pseudoToken, Norvik_Operador, Norvik_SinBase,
                 sinColor);
}

void pilaTokens::archiva(std::unique_ptr<expresionRegular> definicion, bool esToken) {
    definiciones_->archiva(std::move(definicion), esToken);
    ++edicion_;
    if (esToken) reconocedor_.reset();
}

std::int32_t pilaTokens::colorDeTipo(std::int16_t tipo) const {
    switch (tipo) {
    case Norvik_PalabraReservada:
        return colorPalabrasReservadas;
    case Norvik_Operador:
        return ColorOperadores;
    case Norvik_ComentarioBloque:
    case Norvik_ComentarioLinea:
        return ColorComentarios;
    case Norvik_Cadena:
        return ColorCadena;
    case Norvik_Caracter:
        return ColorCaracter;
    case Norvik_Numero:
        return ColorNumeros;
    case Norvik_Etiqueta:
        return ColorEtiquetas;
    case Norvik_Fecha:
        return ColorFechas;
    default:
        return sinColor;
    }
}

} // namespace norvik::inline v0_2
