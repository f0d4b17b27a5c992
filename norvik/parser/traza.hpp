#pragma once

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

/// What a parse did, in order: every shift with its token, every reduction with its rule. A reduction takes
/// two bytes, the texts of the tokens stand one after the other in one buffer.
class Traza {
public:
    /// Entries that a trace holds at most: a tree of more nodes does not fit in memory, and a table that
    /// never stops reducing comes to its end here.
    static constexpr std::size_t maximo = 10'000'000;

    /// Shifts: a text has no more tokens than characters, and only a damaged table goes on shifting its end.
    static constexpr std::size_t maximoDesplazamientos = 2 * maximoTexto;

    enum class Procedencia : std::uint8_t { Texto, FinDeTexto };

    struct Desplazamiento {
        std::uint32_t inicio = 0; ///< of the lexeme in the buffer
        std::uint32_t longitud = 0;
        std::int32_t linea = 0;
        std::int32_t columna = 0;
        Procedencia procedencia = Procedencia::Texto;
    };

    void vaciaTraza();
    /// They raise `Desbordamiento` when the trace is full.
    void registraDesplazamiento(std::u16string_view lexema, std::int32_t linea, std::int32_t columna,
                                Procedencia procedencia = Procedencia::Texto);
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
        if (reglaCima() == 0) {
            textos_.resize(desplazamientos_.back().inicio);
            desplazamientos_.pop_back();
        }
        pasos_.pop_back();
    }

    /// The last entry: its rule, 0 when it is a shift; its shift, empty when it is a reduction.
    std::int16_t reglaCima() const {
        if (pasos_.empty()) throw IndiceNoValido();
        return pasos_.back();
    }
    Desplazamiento desplazamientoCima() const {
        return reglaCima() == 0 ? desplazamientos_.back() : Desplazamiento{};
    }
    /// All lexemes, one after the other.
    const std::u16string& textos() const { return textos_; }

private:
    void apunta(std::int16_t regla) {
        if (pasos_.size() == maximo) fallaLlena();
        pasos_.push_back(regla);
    }
    [[noreturn]] static void fallaLlena();

    std::vector<std::int16_t> pasos_; ///< rule of a reduction, 0 for a shift
    std::vector<Desplazamiento> desplazamientos_;
    std::u16string textos_;
};

} // namespace norvik
