#pragma once

#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace norvik {

/// A property bag: named values with types, in the order in which they were written. Kept in a JSON file that
/// people can read and compare: `true` and `false`, numbers, texts, and a font as an object.
class BolsaPropiedades {
public:
    // Reading a value gives the default when the key is absent. A value of another type raises
    // `NoCoincidenLosTipos`, a number that does not fit `Desbordamiento`; the text names the key.
    bool leeBooleano(std::u16string_view clave, bool omision) const;
    std::int16_t lee16(std::u16string_view clave, std::int16_t omision) const;
    std::int32_t lee32(std::u16string_view clave, std::int32_t omision) const;
    /// A fixed-point number of four decimals, in 1/10000.
    std::int32_t leeDecimal(std::u16string_view clave, std::int32_t omision) const;
    std::u16string leeTexto(std::u16string_view clave, std::u16string_view omision) const;

    // Writing a value that is the default leaves the key out.
    void escribeBooleano(std::u16string_view clave, bool valor, bool omision);
    void escribeEntero(std::u16string_view clave, std::int32_t valor, std::int32_t omision);
    void escribeDecimal(std::u16string_view clave, std::int32_t valor, std::int32_t omision);
    void escribeTexto(std::u16string_view clave, std::u16string_view valor, std::u16string_view omision);
    void escribeFuente(std::u16string_view clave, const Fuente& valor, const Fuente& omision);

    bool tiene(std::u16string_view clave) const { return busca(clave) != nullptr; }

    /// Raises `NoCoincidenLosTipos`, with the line, for what is no JSON object.
    static BolsaPropiedades deJson(std::string_view bytes);
    /// Raises `ErrorDeFichero` for a text that no file can hold (a lone surrogate).
    std::string aJson() const;
    /// The same from and to a file, which is written whole and on the disk or not at all. Raise
    /// `ErrorDeFichero` besides.
    static BolsaPropiedades deFichero(const std::filesystem::path& fichero);
    void aFichero(const std::filesystem::path& fichero) const;

    /// A number, in 1/10000.
    struct Numero {
        std::int64_t diezmilesimas = 0;
    };
    /// A value that no property has: null, a list, an object.
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

} // namespace norvik
