// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <filesystem>
#include <functional>

namespace norvik::inline v0_2 {

enum class Durabilidad;

/// Writes a file's content to a descriptor; false, with the cause in errno, when that fails.
using Llenado = std::function<bool(int descriptor)>;

/// Writes over a file of the system whose place no new one can take. False, with the cause in errno, when
/// that fails; the old content is there then. Raises `ErrorDeFichero`, which names the copy of the old
/// content, when not even that could be put back.
bool escribeEnSuSitio(const std::filesystem::path& fichero, const Llenado& llenado, Durabilidad durabilidad);

/// Calls the system again as long as a signal interrupts it.
template <typename Llamada>
auto sinInterrupcion(Llamada llamada) {
    auto resultado = llamada();
    while (resultado < 0 && errno == EINTR) resultado = llamada();
    return resultado;
}

} // namespace norvik::inline v0_2
