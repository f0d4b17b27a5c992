#pragma once

#include "norvik/base/ficheros.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace norvik {

/// The lines of a loading module, taken one by one: each is asked for in pieces, literal ones and values.
/// What is not as asked is raised as an `ErrorModulo` with its line. Of the text no more is held than the
/// line under way and a piece.
class LineasModulo {
public:
    explicit LineasModulo(const OrigenDeTexto& origen) : origen_(origen) {}

    /// The next line starts with these pieces, which are consumed; false, with nothing consumed, when not.
    bool es(std::u16string_view trozo, std::u16string_view otro = {});
    void empieza(std::u16string_view trozo);
    /// The line goes on with a piece.
    void sigue(std::u16string_view trozo);
    /// The line ends after these pieces.
    void acaba(std::u16string_view trozo = {}, std::u16string_view otro = {});
    /// The whole next line.
    void linea(std::u16string_view trozo, std::u16string_view otro = {}, std::u16string_view ultimo = {});
    /// The text ends here.
    void fin();

    /// A text between quotes on one line, which holds none.
    std::u16string cadena();
    /// The same, line ends allowed.
    std::u16string cadenaLarga();
    /// The same, with quotes written as `" & Chr$(34) & "`.
    std::u16string cadenaConComillas();
    std::int16_t numero16();
    std::int32_t numero32();

    /// 1-based number of the line under way.
    std::int32_t numeroDeLinea() const { return linea_; }
    [[noreturn]] void falla(std::u16string texto) const;

private:
    void saltaBlancos();
    bool consume(std::u16string_view trozo);
    std::int64_t numero(std::int64_t minimo, std::int64_t maximo);
    /// True when the text has so many characters more; `texto_` then holds them.
    bool hay(std::size_t cuantos) {
        while (texto_.size() - pos_ < cuantos && !acabado_) pideMas();
        return texto_.size() - pos_ >= cuantos;
    }
    void pideMas();
    bool sigueElFinDeUnSalto() { return hay(2) && texto_[pos_ + 1] == u'\n'; }

    const OrigenDeTexto& origen_;
    bool acabado_ = false;
    std::u16string texto_; // what has come and is not yet consumed begins at `pos_`
    std::size_t pos_ = 0;
    std::int32_t linea_ = 1;
};

} // namespace norvik
