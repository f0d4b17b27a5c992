#pragma once

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/celdaSLR.hpp"
#include "norvik/lexer/definicionDePatron.hpp"
#include "norvik/lexer/tipos.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace norvik {

/// Head and body of a rule in the text form "head -> body", without the blanks around them. Raises
/// `NoCoincidenLosTipos` for a text without an arrow.
inline std::pair<std::u16string_view, std::u16string_view> parteRegla(std::u16string_view regla) {
    constexpr std::u16string_view flecha = u"->";
    const std::size_t p = regla.find(flecha);
    if (p == std::u16string_view::npos)
        throw NoCoincidenLosTipos(u"No coinciden los tipos: la regla «" + std::u16string(regla) +
                                  u"» no tiene «->» entre su cabeza y su cuerpo");
    return {recorta(regla.substr(0, p)), recorta(regla.substr(p + flecha.size()))};
}

/// Something that a language can be loaded into call by call: the control, as loading modules and the
/// installer of the specification language see it.
class CargadorLenguaje {
public:
    CargadorLenguaje() = default;
    CargadorLenguaje(const CargadorLenguaje&) = delete;
    CargadorLenguaje& operator=(const CargadorLenguaje&) = delete;
    virtual ~CargadorLenguaje() = default;

    /// Registers a definition; kind, base and colour are 32-bit numbers here. Raises `Desbordamiento` for a
    /// kind that does not fit 16 bits. A lexical error is shown, and nothing is registered then.
    virtual void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken = false,
                       std::int32_t tipoToken = Norvik_ExpReg, std::u16string_view pseudoToken = {},
                       std::int32_t baseToken = Norvik_SinBase, std::int32_t colorTexto = sinColor) = 0;
    /// Registers a token whose definition is expanded already: its pattern.
    virtual void SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int32_t tipoToken,
                           std::u16string_view pseudoToken, std::int32_t baseToken, std::int32_t colorTexto) {
        SetER(definicionDePatron(patron), nomER, true, tipoToken, pseudoToken, baseToken, colorTexto);
    }
    /// An empty token name becomes the word in lower case, and the caller's variable with it.
    virtual void SetPalabraReservada(std::u16string_view lexema, std::u16string& token,
                                     std::u16string_view pseudoToken = {}) = 0;
    virtual void SetOperador(std::u16string_view lexema, std::u16string_view token,
                             std::u16string_view pseudoToken = {}) = 0;
    /// Comments from the opener (a pattern) to the end of the line.
    virtual void SetComentarioLinea(std::u16string_view lexema) = 0;
    /// `head -> alternative | alternative …`. Raises `NoCoincidenLosTipos` without an arrow and
    /// `SubindiceFueraDeIntervalo` at rule 1001; the number has no effect.
    virtual void SetRegla(std::u16string_view regla, std::int16_t numIdentificacion = 0) = 0;
    /// The table's symbols, one by one in column order.
    virtual void InsertarSimboloGramatica(std::u16string_view simboloG) = 0;
    virtual void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) = 0;
    /// 1-based row and column; raises `SubindiceFueraDeIntervalo`.
    virtual void SetElementoTablaSLR(std::int16_t posFilas, std::int16_t posColumnas,
                                     std::int16_t valorSLR) = 0;
    /// Sets entries from the first on, as many as are better set together, and none that would raise; returns
    /// how many. The others are for `SetElementoTablaSLR`.
    virtual std::size_t SetElementosTablaSLR(std::span<const CeldaSLR> /*celdas*/) { return 0; }
    /// Builds the table of the rules held. False when the grammar check failed (its message is shown).
    virtual bool GeneraCompilador() = 0;
};

} // namespace norvik
