// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace norvik::inline v0_2 {

/// Una bolsa de propiedades: valores con nombre y tipo, en el orden en que se escribieron. Se guarda en un
/// fichero JSON que una persona puede leer y comparar: `true` y `false`, números, textos, y una fuente como
/// objeto.
class NORVIK_API BolsaPropiedades {
public:
    /// @name Leer un valor
    /// Cuando falta la clave dan el valor por omisión. Un valor de otro tipo lanza `NoCoincidenLosTipos` y un
    /// número que no cabe, `Desbordamiento`; el texto nombra la clave.
    /// @{
    bool leeBooleano(std::u16string_view clave, bool omision) const;
    std::int16_t lee16(std::u16string_view clave, std::int16_t omision) const;
    std::int32_t lee32(std::u16string_view clave, std::int32_t omision) const;
    /// Un número de cuatro decimales fijos, en diezmilésimas.
    std::int32_t leeDecimal(std::u16string_view clave, std::int32_t omision) const;
    std::u16string leeTexto(std::u16string_view clave, std::u16string_view omision) const;

    /// @}

    /// @name Escribir un valor
    /// El valor por omisión no se escribe.
    /// @{
    void escribeBooleano(std::u16string_view clave, bool valor, bool omision);
    void escribeEntero(std::u16string_view clave, std::int32_t valor, std::int32_t omision);
    void escribeDecimal(std::u16string_view clave, std::int32_t valor, std::int32_t omision);
    void escribeTexto(std::u16string_view clave, std::u16string_view valor, std::u16string_view omision);
    void escribeFuente(std::u16string_view clave, const Fuente& valor, const Fuente& omision);

    /// @}

    bool tiene(std::u16string_view clave) const { return busca(clave) != nullptr; }

    /// Lanza `NoCoincidenLosTipos`, con la línea, cuando no es un objeto JSON.
    static BolsaPropiedades deJson(std::string_view bytes);
    /// Lanza `ErrorDeFichero` con un texto que no cabe en ningún fichero (un sustituto suelto).
    std::string aJson() const;
    /// Lo mismo de un fichero y a un fichero, que se escribe entero y en el disco o nada. Además lanzan
    /// `ErrorDeFichero`.
    static BolsaPropiedades deFichero(const std::filesystem::path& fichero);
    void aFichero(const std::filesystem::path& fichero) const;

    /// Un número, en diezmilésimas.
    struct Numero {
        std::int64_t diezmilesimas = 0;
    };
    /// Un valor que no tiene ninguna propiedad: nulo, una lista, un objeto.
    struct Otro {};
    using Valor = std::variant<Otro, bool, Numero, std::u16string, Fuente>;
    void pon(std::u16string_view clave, Valor valor);

private:
    const Valor* busca(std::u16string_view clave) const;
    template <typename Tipo>
    const Tipo* leeComo(std::u16string_view clave) const;
    std::int64_t leeEntero(std::u16string_view clave, std::int64_t omision) const;

    std::vector<std::pair<std::u16string, Valor>> valores_;
};

} // namespace norvik::inline v0_2
