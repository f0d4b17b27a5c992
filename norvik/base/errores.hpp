// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// Raíz de los fallos que lanzan las operaciones. Su texto está en español y es para el usuario.
class NORVIK_API ErrorNorvik : public std::runtime_error {
public:
    explicit ErrorNorvik(std::u16string_view texto);

    /// El texto en UTF-16; `what()` lo da en UTF-8.
    const std::u16string& texto() const { return texto_; }

private:
    std::u16string texto_;
};

/// Un número que no cabe en el tipo prescrito, o una capacidad agotada.
class NORVIK_API Desbordamiento : public ErrorNorvik {
public:
    explicit Desbordamiento(std::u16string_view texto = u"Desbordamiento");
    /// `que` con su número («la línea», 32768) y los límites que tiene.
    Desbordamiento(std::u16string_view que, std::int64_t valor, std::int64_t primero, std::int64_t ultimo);
};

/// Un texto más largo que `maximoTexto`: lo lanzan las operaciones del control que reconocen su texto.
class NORVIK_API TextoDemasiadoLargo : public Desbordamiento {
public:
    TextoDemasiadoLargo();
};

/// Una búsqueda que pide más tiempo o memoria de los que puede tener. El texto nombra la definición, si se
/// conoce.
class NORVIK_API BusquedaDesbocada : public Desbordamiento {
public:
    BusquedaDesbocada();
    explicit BusquedaDesbocada(std::u16string_view definicion);

    /// El nombre de la definición; vacío si no se conoce.
    const std::u16string& definicion() const { return definicion_; }

private:
    std::u16string definicion_;
};

/// Una operación que alguien ha cancelado.
class NORVIK_API OperacionCancelada : public ErrorNorvik {
public:
    OperacionCancelada();
};

/// Un índice fuera de una tabla fija (reglas, ítems de un estado, celdas de la tabla SLR).
class NORVIK_API SubindiceFueraDeIntervalo : public ErrorNorvik {
public:
    explicit SubindiceFueraDeIntervalo(std::u16string_view texto = u"Subíndice fuera de intervalo");
    /// `que` con su número («la regla», 1001) y los límites que tiene.
    SubindiceFueraDeIntervalo(std::u16string_view que, std::int64_t valor, std::int64_t primero,
                              std::int64_t ultimo);
};

/// Una posición que no tiene la lista.
class NORVIK_API IndiceNoValido : public ErrorNorvik {
public:
    explicit IndiceNoValido(std::u16string_view texto = u"Índice no válido");
};

/// Un valor que no se puede convertir al tipo esperado, o un texto sin la forma esperada.
class NORVIK_API NoCoincidenLosTipos : public ErrorNorvik {
public:
    explicit NoCoincidenLosTipos(std::u16string_view texto = u"No coinciden los tipos");
};

/// Un argumento con el que la operación no puede trabajar.
class NORVIK_API ArgumentoNoValido : public ErrorNorvik {
public:
    explicit ArgumentoNoValido(std::u16string_view texto = u"Argumento o llamada a procedimiento no válidos");
};

/// Un fichero que no se puede leer o escribir; el texto nombra el fichero y la causa.
class NORVIK_API ErrorDeFichero : public ErrorNorvik {
public:
    explicit ErrorDeFichero(std::u16string_view texto);
};

} // namespace norvik::inline v0_2
