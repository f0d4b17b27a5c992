// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/motivoPatron.hpp"

#include <cstdint>
#include <string>
#include <string_view>

// The fixed messages of a parse, of definitions and of the grammar check: programs compare and show them, so
// that they stay to the letter. Lines and columns count from 1.
namespace norvik::inline v0_2::palabras {

/// "(Línea 3, Columna 6)"
std::u16string lineaColumna(std::int32_t linea, std::int32_t columna);
std::u16string errorLexico(std::int32_t linea, std::int32_t columna, std::u16string_view caracter);
/// `hallado` names the token that was read, with its place.
std::u16string errorSintactico(std::u16string_view hallado, std::u16string_view esperados);
std::u16string tokenLeido(std::u16string_view descripcion, std::int32_t linea, std::int32_t columna);

std::u16string codigoMalEscrito(std::u16string_view definicion);
std::u16string referenciaDesconocida(std::u16string_view definicion, std::u16string_view referencia);
std::u16string patronIncorrecto(std::u16string_view definicion, std::u16string_view texto);
std::u16string variableIndefinida(std::u16string_view variable, std::u16string_view cabeza);
std::u16string busquedaDesbocada(std::u16string_view definicion);

/// What is wrong at a place of a pattern: a few words without full stop.
std::u16string_view motivo(MotivoPatron motivo);

/// What a repair does at one place: "inserte X", "quite Y", or "cambie Y por X".
std::u16string arreglo(std::u16string_view puesto, std::u16string_view quitado);
/// The same at a place behind the one of the error.
std::u16string detrasDe(std::u16string_view arreglo, std::u16string_view lexema);
/// Two of them, the first of which may be empty.
std::u16string yTambien(std::u16string_view uno, std::u16string_view otro);

/// A text between apostrophes.
std::u16string entreApostrofos(std::u16string_view texto);

} // namespace norvik::inline v0_2::palabras
