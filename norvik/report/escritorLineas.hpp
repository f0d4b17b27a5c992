// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// Gathers lines and hands them over many at a time. What is left at the end is handed over by `acaba`.
class EscritorLineas {
public:
    /// The sink must outlive the writer.
    explicit EscritorLineas(const SumideroDeTexto& sumidero) : sumidero_(sumidero) {}

    /// A line made of texts and numbers, and its line break.
    template <typename... Piezas>
    void escribe(const Piezas&... piezas) {
        const std::size_t cabe = (maximoDe(piezas) + ... + saltoDeLinea.size());
        if (lineas_.size() - largo_ < cabe) haceSitio(cabe);
        char16_t* fin = lineas_.data() + largo_;
        ((fin = copia(piezas, fin)), ...);
        largo_ = static_cast<std::size_t>(copia(saltoDeLinea, fin) - lineas_.data());
    }
    void acaba() {
        if (largo_ != 0) sumidero_({lineas_.data(), largo_});
        largo_ = 0;
    }

private:
    static constexpr std::size_t muchas = 8192;
    static constexpr std::size_t cifrasDeUnNumero = 20;

    // A literal's length is known beforehand, and its copy a few moves.
    template <std::size_t N>
    // NOLINTNEXTLINE(modernize-avoid-c-arrays): what a literal is
    static std::size_t maximoDe(const char16_t (&)[N]) {
        return N - 1;
    }
    static std::size_t maximoDe(std::u16string_view pieza) { return pieza.size(); }
    static std::size_t maximoDe(std::integral auto) { return cifrasDeUnNumero; }

    template <std::size_t N>
    // NOLINTNEXTLINE(modernize-avoid-c-arrays): what a literal is
    static char16_t* copia(const char16_t (&literal)[N], char16_t* donde) {
        return std::copy_n(literal, N - 1, donde);
    }
    static char16_t* copia(std::u16string_view pieza, char16_t* donde) {
        return std::copy_n(pieza.data(), pieza.size(), donde);
    }
    static char16_t* copia(std::integral auto numero, char16_t* donde) {
        std::array<char, cifrasDeUnNumero> cifras;
        return std::copy(cifras.data(),
                         std::to_chars(cifras.data(), cifras.data() + cifras.size(), numero).ptr, donde);
    }

    void haceSitio(std::size_t cabe) {
        acaba();
        if (lineas_.size() < cabe) lineas_.resize(std::max(cabe, muchas));
    }

    const SumideroDeTexto& sumidero_;
    std::u16string lineas_; ///< all of its room
    std::size_t largo_ = 0; ///< what is written of it
};

/// The whole text of what writes lines.
template <typename Escritura>
std::u16string textoDeLineas(const Escritura& escritura) {
    return deUnaPieza([&](const SumideroDeTexto& sumidero) {
        EscritorLineas salida(sumidero);
        escritura(salida);
        salida.acaba();
    });
}

} // namespace norvik::inline v0_2
