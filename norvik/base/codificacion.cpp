// SPDX-License-Identifier: MIT

#include "norvik/base/codificacion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

bool todoAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

std::optional<std::u16string> desdeUtf16(std::string_view bytes) {
    using namespace std::string_view_literals;
    const bool primeroElMayor = bytes.starts_with("\xFE\xFF");
    const bool marcado = primeroElMayor || bytes.starts_with("\xFF\xFE");
    const bool esUtf32 = bytes.starts_with("\xFF\xFE\0\0"sv);
    if (!marcado || esUtf32 || bytes.size() % 2 != 0) return std::nullopt;
    std::u16string texto;
    texto.reserve(bytes.size() / 2 - 1);
    for (std::size_t i = 2; i < bytes.size(); i += 2) {
        const auto mayor = static_cast<unsigned char>(bytes[primeroElMayor ? i : i + 1]);
        const auto menor = static_cast<unsigned char>(bytes[primeroElMayor ? i + 1 : i]);
        texto.push_back(static_cast<char16_t>(mayor << 8 | menor));
    }
    return texto;
}

std::u16string decodifica(std::string_view bytes) {
    if (auto texto = desdeUtf16(bytes)) return *std::move(texto);
    const bool marcado = bytes.substr(0, marcaUtf8.size()) == marcaUtf8;
    if (auto texto = desdeUtf8(marcado ? bytes.substr(marcaUtf8.size()) : bytes)) return *std::move(texto);
    return desdeWindows1252(bytes);
}

std::optional<std::string> CodificadorWindows1252::codifica(std::u16string_view lineas) {
    auto bytes = aWindows1252(lineas);
    if (bytes && esUtf8_ && !todoAscii(*bytes)) {
        ascii_ = false;
        esUtf8_ = esUtf8(*bytes);
    }
    return bytes;
}

std::string codifica(std::u16string_view texto) {
    CodificadorWindows1252 codificador;
    if (auto bytes = codificador.codifica(texto); bytes && codificador.seLeeIgual()) return *std::move(bytes);
    std::string bytes = std::string(marcaUtf8) + aUtf8(texto);
    if (decodifica(bytes) != texto)
        throw ErrorDeFichero(
            u"El texto contiene medio carácter (un sustituto suelto), que no se puede guardar");
    return bytes;
}

std::u16string normalizaLineas(std::u16string_view texto) {
    std::u16string resultado;
    resultado.reserve(texto.size() + static_cast<std::size_t>(std::ranges::count(texto, u'\n')));
    while (!texto.empty()) {
        const std::size_t fin = texto.find_first_of(saltoDeLinea);
        resultado.append(texto.substr(0, fin));
        if (fin == std::u16string_view::npos) return resultado;
        texto.remove_prefix(fin + (texto.substr(fin, 2) == saltoDeLinea ? 2 : 1));
        if (!texto.empty()) resultado.append(saltoDeLinea);
    }
    return resultado;
}

} // namespace norvik::inline v0_2
