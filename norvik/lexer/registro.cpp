// Registration of token definitions: expansion, check of the pattern, colour of the kind.
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/expansion.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <utility>

namespace norvik {

namespace {

// What a message says of a definition.
struct Definicion {
    std::u16string_view texto;
    std::u16string_view nombre;
};

std::u16string une(std::initializer_list<std::u16string_view> piezas) {
    std::u16string texto;
    for (const auto pieza : piezas) texto.append(pieza);
    return texto;
}

std::u16string mensajeDe(const ErrorExpansion& error, const Definicion& definicion) {
    const std::u16string_view referencia = error.referencia;
    switch (error.causa) {
    case ErrorExpansion::Causa::CodigoMalEscrito:
        return une(
            {u"Error en el uso del operador codAscii (sintaxis: '\\c(numero)') en la expresión regular '",
             definicion.nombre, u"'."});
    case ErrorExpansion::Causa::ReferenciaDesconocida:
        return une({u"Error en la invocación de la expresión regular '", referencia,
                    u"' desde la expresión regular '", definicion.nombre, u"'.", saltoDeLinea,
                    u"La expresión regular '", referencia, u"' o no existe o no se ha definido antes que '",
                    definicion.nombre, u"'."});
    case ErrorExpansion::Causa::Incorrecta:
        break;
    }
    return une({u"La definición de la expresión regular '", definicion.nombre, u"':", saltoDeLinea, u"\t\t",
                definicion.texto, saltoDeLinea,
                u"es incorrecta. Revísela para obtener un análisis léxico adecuado."});
}

} // namespace

std::u16string pilaTokens::SetER(std::u16string_view expresionRegular, std::u16string_view nomER,
                                 bool esToken, bool sensibleTamanio, std::u16string_view pseudoToken,
                                 std::int16_t tipo, std::int32_t base, std::int32_t /*colorOpcional*/) {
    const Definicion definicion{expresionRegular, nomER};
    const auto expansion = expande(expresionRegular, *this);
    if (const auto* const error = std::get_if<ErrorExpansion>(&expansion))
        return mensajeDe(*error, definicion);
    const auto& [patron, lectura] = std::get<Expansion>(expansion);
    auto nueva = std::make_unique<norvik::expresionRegular>();
    const auto incorrecta = [&] { return mensajeDe(ErrorExpansion{}, definicion); };
    try {
        if (!nueva->SetExpReg(patron, nomER, esToken, sensibleTamanio, pseudoToken, tipo, base, lectura))
            return incorrecta();
    } catch (const ErrorNorvik&) {
        return incorrecta();
    }
    nueva->SetColor(colorDeTipo(tipo));
    archiva(std::move(nueva), esToken);
    return {};
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
    if (expresionesRegulares_.size() == std::numeric_limits<std::int16_t>::max()) throw Desbordamiento();
    ++edicion_;
    expresionesRegulares_.push_back(std::move(definicion));
    const expresionRegular* const nueva = expresionesRegulares_.back().get();
    porNombre_[nueva->nomER].push_back(nueva);
    if (!esToken) return;
    tokensLenguaje_.push_back(nueva);
    buscador_.reset();
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

} // namespace norvik
