// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/celdaSLR.hpp"
#include "norvik/lexer/tipos.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

/// Cabeza y cuerpo de una regla en la forma «cabeza -> cuerpo», sin los blancos de alrededor. Lanza
/// `NoCoincidenLosTipos` con un texto sin flecha.
inline std::pair<std::u16string_view, std::u16string_view> parteRegla(std::u16string_view regla) {
    constexpr std::u16string_view flecha = u"->";
    const std::size_t p = regla.find(flecha);
    if (p == std::u16string_view::npos)
        throw NoCoincidenLosTipos(u"No coinciden los tipos: la regla «" + std::u16string(regla) +
                                  u"» no tiene «->» entre su cabeza y su cuerpo");
    return {recorta(regla.substr(0, p)), recorta(regla.substr(p + flecha.size()))};
}

/// Algo en que se puede cargar un lenguaje llamada a llamada: el control, como lo ven los módulos de carga y
/// quien instala el lenguaje de especificación.
class NORVIK_API CargadorLenguaje {
public:
    CargadorLenguaje() = default;
    CargadorLenguaje(const CargadorLenguaje&) = delete;
    CargadorLenguaje& operator=(const CargadorLenguaje&) = delete;
    virtual ~CargadorLenguaje() = default;

    /// Registra una definición; clase, base y color son aquí números de 32 bits. Lanza `Desbordamiento` con
    /// una clase que no cabe en 16 bits. Un error léxico se enseña, y entonces no se registra nada.
    virtual void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken = false,
                       std::int32_t tipoToken = Norvik_ExpReg, std::u16string_view pseudoToken = {},
                       std::int32_t baseToken = Norvik_SinBase, std::int32_t colorTexto = sinColor) = 0;
    /// Registra un token cuya definición está ya expandida: su patrón.
    virtual void SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int32_t tipoToken,
                           std::u16string_view pseudoToken, std::int32_t baseToken, std::int32_t colorTexto);
    /// Las definiciones que siguen distinguen mayúsculas: lo que hace `LenguajeSensible = True` en un módulo.
    virtual void DistingueMayusculas() = 0;
    /// Registra una palabra reservada. Un nombre de token vacío se convierte en la palabra en minúsculas, y
    /// con él la variable de quien llama.
    virtual void SetPalabraReservada(std::u16string_view lexema, std::u16string& token,
                                     std::u16string_view pseudoToken = {}) = 0;
    /// Registra un operador.
    virtual void SetOperador(std::u16string_view lexema, std::u16string_view token,
                             std::u16string_view pseudoToken = {}) = 0;
    /// Comentarios, desde lo que los abre (un patrón) hasta el final de la línea.
    virtual void SetComentarioLinea(std::u16string_view lexema) = 0;
    /// `cabeza -> alternativa | alternativa …`. Lanza `NoCoincidenLosTipos` sin flecha y
    /// `SubindiceFueraDeIntervalo` en la regla 1001; el número no tiene efecto.
    virtual void SetRegla(std::u16string_view regla, std::int16_t numIdentificacion = 0) = 0;
    /// Los símbolos de la tabla, uno a uno y en el orden de las columnas.
    virtual void InsertarSimboloGramatica(std::u16string_view simboloG) = 0;
    /// Una tabla nueva y vacía.
    virtual void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) = 0;
    /// Fila y columna desde 1; lanza `SubindiceFueraDeIntervalo`.
    virtual void SetElementoTablaSLR(std::int16_t posFilas, std::int16_t posColumnas,
                                     std::int16_t valorSLR) = 0;
    /// Pone entradas desde la primera, tantas como convenga poner juntas y ninguna que fuera a lanzar; da
    /// cuántas. Las demás son para `SetElementoTablaSLR`.
    virtual std::size_t SetElementosTablaSLR(std::span<const CeldaSLR> /*celdas*/) { return 0; }
    /// Construye la tabla de las reglas que hay. Falso cuando falló la comprobación de la gramática (se
    /// enseña su mensaje).
    virtual bool GeneraCompilador() = 0;
};

} // namespace norvik::inline v0_2
