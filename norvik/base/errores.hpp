#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace norvik {

/// Root of the failures that operations raise. The text is Spanish and meant for the user.
class ErrorNorvik : public std::runtime_error {
public:
    explicit ErrorNorvik(std::u16string_view texto);

    /// The text in UTF-16; `what()` gives it in UTF-8.
    const std::u16string& texto() const { return texto_; }

private:
    std::u16string texto_;
};

/// A number that does not fit its prescribed type, or a capacity that is exhausted.
class Desbordamiento : public ErrorNorvik {
public:
    explicit Desbordamiento(std::u16string_view texto = u"Desbordamiento");
};

/// A text longer than `maximoTexto`.
class TextoDemasiadoLargo : public Desbordamiento {
public:
    TextoDemasiadoLargo();
};

/// An index outside a fixed table (rules, items of a state, cells of the SLR table).
class SubindiceFueraDeIntervalo : public ErrorNorvik {
public:
    explicit SubindiceFueraDeIntervalo(std::u16string_view texto = u"Subíndice fuera de intervalo");
};

/// A position that a list does not have.
class IndiceNoValido : public ErrorNorvik {
public:
    explicit IndiceNoValido(std::u16string_view texto = u"Índice no válido");
};

/// A value that cannot be converted to the expected type, or a text without its expected form.
class NoCoincidenLosTipos : public ErrorNorvik {
public:
    explicit NoCoincidenLosTipos(std::u16string_view texto = u"No coinciden los tipos");
};

/// An argument that the operation cannot work with.
class ArgumentoNoValido : public ErrorNorvik {
public:
    explicit ArgumentoNoValido(std::u16string_view texto = u"Argumento o llamada a procedimiento no válidos");
};

/// A file that cannot be read or written; the text names the file and the cause.
class ErrorDeFichero : public ErrorNorvik {
public:
    explicit ErrorDeFichero(std::u16string_view texto);
};

} // namespace norvik
