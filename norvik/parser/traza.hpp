// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// What a parse did, in order: every shift with its token, every reduction with its rule. A reduction takes
/// two bytes, the texts of the tokens stand in one buffer.
class Traza {
public:
    /// Entries that a trace holds at most: a tree of more nodes does not fit in memory, and a table that
    /// never stops reducing comes to its end here.
    static constexpr std::size_t maximo = 10'000'000;

    /// Shifts: a text has no more tokens than characters, and only a damaged table goes on shifting its end.
    static constexpr std::size_t maximoDesplazamientos = 2 * maximoTexto;

    enum class Procedencia : std::uint8_t { Texto, FinDeTexto };

    /// No text is so long that its lengths and positions would not fit.
    struct Desplazamiento {
        std::uint32_t inicio = 0; ///< of the lexeme in the buffer
        std::uint16_t longitud = 0;
        std::uint16_t linea = 0;
        std::uint16_t columna = 0;
        Procedencia procedencia = Procedencia::Texto;
    };

    void vaciaTraza() { vaciaTraza({}); }
    /// The same for the parse of a text, which is copied whole, so that the shifts of its parts copy nothing;
    /// it must stay as long as they are recorded.
    void vaciaTraza(std::u16string_view texto);
    /// They raise `Desbordamiento` when the trace is full.
    void registraDesplazamiento(std::u16string_view lexema, std::int32_t linea, std::int32_t columna,
                                Procedencia procedencia = Procedencia::Texto) {
        if (desplazamientos_.size() == maximoDesplazamientos) fallaLlena();
        apunta(0);
        desplazamientos_.push_back({lugarDe(lexema), static_cast<std::uint16_t>(lexema.size()),
                                    static_cast<std::uint16_t>(linea), static_cast<std::uint16_t>(columna),
                                    procedencia});
    }
    void registraReduccion(std::int16_t numRegla) { apunta(numRegla); }
    void registraReducciones(std::span<const std::int16_t> reglas) {
        if (reglas.size() > maximo - pasos_.size()) fallaLlena();
        pasos_.insert(pasos_.end(), reglas.begin(), reglas.end());
    }
    std::size_t numElementosTraza() const { return pasos_.size(); }

    /// The last entry, as text: "desplazamiento" or "reduccion", the lexeme or the rule number, line and
    /// column in decimal. They and `sacaTraza` raise `IndiceNoValido` on an empty trace.
    std::u16string_view tipoCimaTraza() const;
    std::u16string valorCimaTraza() const;
    std::u16string lineaCimaTraza() const;
    std::u16string columnaCimaTraza() const;
    void sacaTraza() {
        if (reglaCima() == 0) desplazamientos_.pop_back();
        pasos_.pop_back();
    }
    /// Removes the last entry if it is a reduction, and returns its rule; 0 for a shift, which stays.
    std::int16_t sacaReduccion() {
        const std::int16_t regla = reglaCima();
        if (regla != 0) pasos_.pop_back();
        return regla;
    }

    /// The last entry: its rule, 0 when it is a shift; its shift, empty when it is a reduction.
    std::int16_t reglaCima() const {
        if (pasos_.empty()) throw IndiceNoValido(u"Índice no válido: la traza está vacía");
        return pasos_.back();
    }
    Desplazamiento desplazamientoCima() const {
        return reglaCima() == 0 ? desplazamientos_.back() : Desplazamiento{};
    }
    /// All lexemes, each at its place.
    const std::u16string& textos() const { return textos_; }

private:
    void apunta(std::int16_t regla) {
        if (pasos_.size() == maximo) fallaLlena();
        pasos_.push_back(regla);
    }
    /// Where in the buffer a lexeme stands, copied to its end when it is no part of the text.
    std::uint32_t lugarDe(std::u16string_view lexema) {
        const std::less_equal<> hasta;
        if (hasta(texto_.data(), lexema.data()) &&
            hasta(lexema.data() + lexema.size(), texto_.data() + texto_.size()))
            return static_cast<std::uint32_t>(lexema.data() - texto_.data());
        textos_.append(lexema);
        return static_cast<std::uint32_t>(textos_.size() - lexema.size());
    }
    [[noreturn]] static void fallaLlena();

    std::vector<std::int16_t> pasos_; ///< rule of a reduction, 0 for a shift
    std::vector<Desplazamiento> desplazamientos_;
    std::u16string textos_;     ///< the text that is parsed, and what is shifted besides
    std::u16string_view texto_; ///< the text itself
};

} // namespace norvik::inline v0_2
