#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

class expresionRegular;

/// The tokens of a text by their 1-based start position: at most one a position. Look-ups take constant time.
/// The map keeps the text that it was made of.
class MapaTokens {
public:
    /// What starts at a position, in compact form.
    class Celda {
    public:
        Celda() = default; ///< no token
        /// The token definition by its 0-based place in registration order, and the length of the match.
        Celda(std::int32_t definicion, std::int32_t longitud)
            : rango_(static_cast<std::uint32_t>(longitud) << 16 |
                     (ultima - static_cast<std::uint32_t>(definicion))) {}

        bool hayToken() const { return rango_ != 0; }
        std::int32_t definicion() const { return static_cast<std::int32_t>(ultima - (rango_ & 0xFFFF)); }
        std::int32_t longitud() const { return static_cast<std::int32_t>(rango_ >> 16); }
        /// Whether it stands in place of another: longer, or as long and of an earlier definition.
        bool gana(Celda otra) const { return rango_ > otra.rango_; }

    private:
        static constexpr std::uint32_t ultima = 0xFFFF;

        std::uint32_t rango_ = 0;
    };
    struct Entrada {
        const expresionRegular* definicion = nullptr;
        std::int32_t longitud = 0;
        std::u16string_view texto; ///< what was matched; holds until the next recognition
    };

    explicit MapaTokens(const std::vector<const expresionRegular*>& definiciones)
        : definiciones_(&definiciones) {}

    void vacia();
    /// Empties the map for a text that starts at a position. A token of length 0 may stand at its very end.
    void reinicia(std::int32_t inicio, std::u16string_view texto);
    /// The entry at a position, or nothing. Positions outside the recognised range have none.
    std::optional<Entrada> en(std::int32_t posicion) const;
    /// The same in compact form, null instead of nothing.
    const Celda* celda(std::int32_t posicion) const {
        const auto indice = static_cast<std::size_t>(static_cast<std::uint32_t>(posicion - inicio_));
        return indice < celdas_.size() && celdas_[indice].hayToken() ? &celdas_[indice] : nullptr;
    }
    /// The text that was recognised; it stays until the next recognition.
    std::u16string_view texto() const { return texto_; }
    /// Matched text of a compact entry, which must be the map's.
    std::u16string_view texto(const Celda& celda) const {
        const auto indice = static_cast<std::size_t>(&celda - celdas_.data());
        return std::u16string_view(texto_).substr(indice, static_cast<std::size_t>(celda.longitud()));
    }
    void borra(std::int32_t posicion);
    /// Stores a match at a 0-based index of the text, unless one that wins over it is there.
    void guarda(std::int32_t indice, Celda nueva) {
        Celda& vieja = celdas_[static_cast<std::size_t>(indice)];
        if (nueva.gana(vieja)) vieja = nueva;
    }
    bool esVacio() const;
    /// One line an entry, "position length token", in order of position.
    std::u16string toString() const;

private:
    const std::vector<const expresionRegular*>* definiciones_;
    std::int32_t inicio_ = 1;
    std::u16string texto_;
    std::vector<Celda> celdas_;
};

} // namespace norvik
