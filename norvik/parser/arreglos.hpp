// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/busquedaReparaciones.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Puts repairs of one error into words and changes of the text.
class Redactor {
public:
    /// The number of the wrong token, the place behind the token before it. Every repair takes
    /// out the wrong characters between them.
    struct Lugar {
        std::size_t token = 0;
        std::size_t anterior = 0;
    };

    /// All outlive it.
    Redactor(const TextoAnalizado& texto, const FichasTokens& fichas, EntradaTokens& entrada, Lugar lugar)
        : texto_(texto), fichas_(fichas), entrada_(entrada), lugar_(lugar) {}

    Arreglo arreglo(const Reparacion& reparacion);

private:
    /// What happens between two tokens that are kept.
    struct Tramo {
        std::vector<std::int16_t> insertados; ///< columns
        std::vector<TokenSituado> quitados;
        std::size_t anterior = 0;                 ///< behind the token before them
        std::optional<TokenSituado> conservado{}; ///< that token, when the repair keeps it

        bool vacio() const { return insertados.empty() && quitados.empty(); }
    };

    void acaba(const Tramo& tramo, Arreglo& arreglo) const;
    Cambio cambio(const Tramo& tramo) const;
    std::u16string titulo(const Tramo& tramo) const;
    std::u16string quitados(const Tramo& tramo) const;
    Tramo primero();
    std::u16string lexema(const TokenSituado& token) const;

    const TextoAnalizado& texto_;
    const FichasTokens& fichas_;
    EntradaTokens& entrada_;
    Lugar lugar_;
};

} // namespace norvik::inline v0_2
