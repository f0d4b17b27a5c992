// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/diagnostico.hpp"
#include "norvik/lexer/expresionRegular.hpp"
#include "norvik/lexer/mapaTokens.hpp"
#include "norvik/lexer/parLT.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class DefinicionesTokens;
class Reconocedor;

/// Una definición como se escribe.
struct DefinicionTexto {
    std::u16string_view texto;
    std::u16string_view nombre;
    bool esToken = false;               ///< y no una definición auxiliar
    bool sensibleTamanio = false;       ///< distingue mayúsculas de minúsculas
    std::u16string_view pseudoToken;    ///< su nombre para personas
    std::int16_t tipo = Norvik_ExpReg;  ///< un `TipoExpReg`
    std::int32_t base = Norvik_SinBase; ///< una `baseNumerica`
};

/// El analizador léxico: las definiciones de un lenguaje en el orden en que se registraron, los colores de
/// sus clases y el reconocimiento de un texto. Un anfitrión toma el de su control (`Norvik::Lexico`), para
/// escribir módulos y para mirar.
class NORVIK_API pilaTokens {
public:
    pilaTokens();
    pilaTokens(const pilaTokens&) = delete;
    pilaTokens& operator=(const pilaTokens&) = delete;
    ~pilaTokens();

    /// @name Colores, 0x00BBGGRR
    /// Los de las definiciones que se registren desde ahora.
    /// @{
    std::int32_t colorPalabrasReservadas = 0;
    std::int32_t ColorOperadores = 0;
    std::int32_t ColorComentarios = 0;
    std::int32_t ColorEtiquetas = 0;
    std::int32_t ColorNumeros = 0;
    std::int32_t ColorError = 0;
    std::int32_t ColorCadena = 0;
    std::int32_t ColorCaracter = 0;
    std::int32_t ColorFechas = 0;
    /// @}

    /// Se guarda y no tiene otro efecto.
    bool autoNumber = false;
    /// El lenguaje pidió distinguir mayúsculas, y sus módulos lo dicen; cada definición sigue lo que se le
    /// diga al registrarla. `Inicializa` lo quita.
    bool distingueMayusculas = false;
    /// Con él otro hilo acaba pronto un reconocimiento, que lanza entonces `OperacionCancelada`.
    std::stop_token cancelacion;

    /// Olvida las definiciones y el mapa de tokens; los colores se quedan.
    void Inicializa();

    /// Cuántas definiciones de tokens hay, sin las auxiliares.
    std::int16_t getNumTokensLenguaje() const;
    /// La definición de un lugar, desde 1; lanza `IndiceNoValido`.
    const expresionRegular& getTokenLenguaje(std::int16_t numToken) const;
    /// Todas las definiciones, también las auxiliares, y solo las de tokens, en el orden en que se
    /// registraron.
    const std::vector<std::unique_ptr<expresionRegular>>& expresionesRegulares() const;
    const std::vector<const expresionRegular*>& tokensLenguaje() const;
    const DefinicionesTokens& definiciones() const { return *definiciones_; }

    /// Registra una definición, con el color de su clase. Da su primer error, sin lugar, y entonces no
    /// registra nada. Lanza `Desbordamiento` pasadas 32 767 definiciones, y cuando los patrones de todas
    /// pasan de 8 388 608 caracteres.
    std::optional<Diagnostico> registra(const DefinicionTexto& definicion);
    /// Lo mismo de una definición cuyo texto es ya un patrón.
    std::optional<Diagnostico> registraPatron(const DefinicionTexto& definicion);
    /// Lo mismo, con el error como su mensaje, vacío si fue bien. `colorOpcional` no tiene efecto.
    std::u16string SetER(std::u16string_view expresionRegular, std::u16string_view nomER, bool esToken,
                         bool sensibleTamanio, std::u16string_view pseudoToken, std::int16_t tipo,
                         std::int32_t base, std::int32_t colorOpcional);
    std::u16string SetPalabraReservada(std::u16string_view lexema, std::u16string_view token,
                                       bool sensibleTamanio, std::u16string_view pseudoToken);
    std::u16string SetOperador(std::u16string_view lexema, std::u16string_view token, bool sensibleTamanio,
                               std::u16string_view pseudoToken);
    /// Es otro número cada vez que pueden haber cambiado las definiciones.
    std::uint64_t edicion() const { return edicion_; }

    /// Reconoce los tokens de las posiciones `TextStart` a `TextEnd` - 1, desde 1 (-1: desde la primera,
    /// hasta la última); lo que pasa del final del texto se corta. El mapa es del analizador, y la llamada
    /// siguiente lo vuelve a llenar. Lanza `Desbordamiento` si el texto o las posiciones no caben en 16 bits,
    /// `BusquedaDesbocada` si la búsqueda de una definición pide demasiado, `OperacionCancelada`, y
    /// `ArgumentoNoValido` con un principio por debajo de 1 o un final delante del principio. Tras un fallo
    /// el mapa está vacío.
    MapaTokens& ReconoceTokens(std::u16string_view Texto, std::int16_t TextStart = -1,
                               std::int16_t TextEnd = -1);
    /// Lo mismo con las posiciones desde `inicio` de un texto del que se tiene sólo ese rango.
    MapaTokens& reconoceRango(std::u16string_view rango, std::int16_t inicio);
    /// El mapa del último reconocimiento.
    MapaTokens& mapaTokens() { return mapaTokens_; }
    const MapaTokens& mapaTokens() const { return mapaTokens_; }

    /// Cómo se puede escribir un token, para las listas de lo que se esperaba.
    std::u16string toStringLexemasPorToken(std::u16string_view token) const;
    /// Cómo se nombra en los mensajes un token leído.
    std::u16string toStringPseudoTokenPorToken(const parLT& tokenLexema) const;

private:
    std::int32_t colorDeTipo(std::int16_t tipo) const;
    bool registra(const DefinicionTexto& definicion, std::u16string_view patron, std::u16string_view lectura);
    void archiva(std::unique_ptr<expresionRegular> definicion, bool esToken);

    const std::unique_ptr<DefinicionesTokens> definiciones_;
    std::unique_ptr<Reconocedor> reconocedor_; ///< se hace en el primer reconocimiento de un lenguaje
    MapaTokens mapaTokens_;
    std::uint64_t edicion_ = 0;
};

} // namespace norvik::inline v0_2
