// SPDX-License-Identifier: MIT

#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>
#include <clocale>
#include <cwctype>
#include <memory>
#include <type_traits>

namespace norvik::inline v0_2 {

namespace {

// Characters of the bytes 0x80 to 0x9F; the others have the code of their byte.
constexpr std::array<char16_t, 32> bytes80a9F = {
    u'\u20AC', u'\x81',   u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', u'\x8D',   u'\u017D', u'\x8F',
    u'\x90',   u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', u'\x9D',   u'\u017E', u'\u0178'};

constexpr bool esSustitutoAlto(char16_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

constexpr bool esSustitutoBajo(char16_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

void aniadeUtf8(std::string& salida, char32_t c) {
    const auto byte = [&](char32_t valor) { salida.push_back(static_cast<char>(valor)); };
    if (c < 0x80) return byte(c);
    if (c < 0x800) {
        byte(0xC0 | (c >> 6));
    } else if (c < 0x10000) {
        byte(0xE0 | (c >> 12));
        byte(0x80 | ((c >> 6) & 0x3F));
    } else {
        byte(0xF0 | (c >> 18));
        byte(0x80 | ((c >> 12) & 0x3F));
        byte(0x80 | ((c >> 6) & 0x3F));
    }
    byte(0x80 | (c & 0x3F));
}

struct Secuencia {
    char32_t punto = 0;
    std::size_t longitud = 0; // 0: not valid
};

// The shortest-form rule, the surrogate gap and the upper bound, by the first byte's class.
Secuencia leeSecuencia(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char primero = byte(0);
    if (primero < 0x80) return {primero, 1};
    const std::size_t longitud = primero >= 0xF0 ? 4 : primero >= 0xE0 ? 3 : 2;
    if (primero < 0xC2 || primero > 0xF4 || bytes.size() < longitud) return {};
    char32_t punto = primero & (0xFFU >> (longitud + 1));
    for (std::size_t i = 1; i < longitud; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return {};
        punto = (punto << 6) | (byte(i) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> minimo = {0, 0, 0x80, 0x800, 0x10000};
    if (punto < minimo[longitud] || punto > 0x10FFFF || (punto >= 0xD800 && punto <= 0xDFFF)) return {};
    return {punto, longitud};
}

struct LiberaLocal {
    using pointer = locale_t;
    void operator()(locale_t local) const { freelocale(local); }
};

// The simple case mapping of the C library's Unicode locale, independent of the user's.
locale_t localUnicode() {
    static const std::unique_ptr<locale_t, LiberaLocal> local(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr));
    return local.get();
}

// Letters from `primera` on, 26 of them, go 32 places up or down; only beyond ASCII is the locale asked,
// which takes the process a while to load.
template <typename Conversion>
std::u16string convierte(std::u16string_view texto, char16_t primera, Conversion conversion) {
    std::u16string resultado(texto);
    for (char16_t& c : resultado) {
        if (c < 0x80) {
            if (c >= primera && c < primera + 26) c ^= 0x20;
            continue;
        }
        const auto otra = conversion(static_cast<std::wint_t>(c));
        if (otra <= 0xFFFF) c = static_cast<char16_t>(otra);
    }
    return resultado;
}

// How many of the leading units are ASCII for sure: they are looked at a block at a time.
template <typename Unidad>
std::size_t bloquesAscii(std::basic_string_view<Unidad> texto) {
    constexpr std::size_t bloque = 16;
    std::size_t vistos = 0;
    for (; vistos + bloque <= texto.size(); vistos += bloque) {
        std::make_unsigned_t<Unidad> bits = 0;
        for (std::size_t i = 0; i < bloque; ++i)
            bits |= static_cast<std::make_unsigned_t<Unidad>>(texto[vistos + i]);
        if (bits >= 0x80) break;
    }
    return vistos;
}

} // namespace

std::string aUtf8(std::u16string_view texto) {
    std::string salida;
    salida.reserve(texto.size());
    while (!texto.empty()) {
        const auto otro = std::ranges::find_if(texto, [](char16_t c) { return c >= 0x80; });
        const auto ascii = static_cast<std::size_t>(otro - texto.begin());
        salida.resize(salida.size() + ascii);
        std::transform(texto.begin(), otro, salida.end() - static_cast<std::ptrdiff_t>(ascii),
                       [](char16_t c) { return static_cast<char>(c); });
        texto.remove_prefix(ascii);
        if (texto.empty()) break;
        const char16_t c = texto.front();
        const bool par = esSustitutoAlto(c) && texto.size() > 1 && esSustitutoBajo(texto[1]);
        if (par)
            aniadeUtf8(salida, 0x10000 + ((c - 0xD800U) << 10) + (texto[1] - 0xDC00U));
        else
            aniadeUtf8(salida, esSustitutoAlto(c) || esSustitutoBajo(c) ? 0xFFFD : c);
        texto.remove_prefix(par ? 2 : 1);
    }
    return salida;
}

std::optional<std::u16string> desdeUtf8(std::string_view bytes) {
    std::u16string texto(bytes.size(), u'\0'); // no sequence gives more units than it has bytes
    char16_t* fin = texto.data();
    while (!bytes.empty()) {
        const std::size_t ascii = bloquesAscii(bytes);
        fin = std::copy_n(bytes.begin(), ascii, fin);
        bytes.remove_prefix(ascii);
        if (bytes.empty()) break;
        const Secuencia secuencia = leeSecuencia(bytes);
        if (secuencia.longitud == 0) return std::nullopt;
        bytes.remove_prefix(secuencia.longitud);
        if (secuencia.punto < 0x10000) {
            *fin++ = static_cast<char16_t>(secuencia.punto);
        } else {
            const char32_t resto = secuencia.punto - 0x10000;
            *fin++ = static_cast<char16_t>(0xD800 + (resto >> 10));
            *fin++ = static_cast<char16_t>(0xDC00 + (resto & 0x3FF));
        }
    }
    texto.resize(static_cast<std::size_t>(fin - texto.data()));
    return texto;
}

bool esUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        bytes.remove_prefix(bloquesAscii(bytes));
        if (bytes.empty()) break;
        const Secuencia secuencia = leeSecuencia(bytes);
        if (secuencia.longitud == 0) return false;
        bytes.remove_prefix(secuencia.longitud);
    }
    return true;
}

std::optional<std::string> aWindows1252(std::u16string_view texto) {
    std::string bytes(texto.size(), '\0');
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const auto ascii = texto.substr(i, bloquesAscii(texto.substr(i)));
        std::ranges::transform(ascii, &bytes[i], [](char16_t c) { return static_cast<char>(c); });
        i += ascii.size();
        if (i == texto.size()) break;
        const char16_t c = texto[i];
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            bytes[i] = static_cast<char>(c);
            continue;
        }
        const auto* const sitio = std::find(bytes80a9F.begin(), bytes80a9F.end(), c);
        if (sitio == bytes80a9F.end()) return std::nullopt;
        bytes[i] = static_cast<char>(0x80 + (sitio - bytes80a9F.begin()));
    }
    return bytes;
}

std::u16string desdeWindows1252(std::string_view bytes) {
    std::u16string texto(bytes.size(), u'\0');
    for (char16_t* fin = texto.data(); !bytes.empty(); bytes.remove_prefix(1)) {
        const std::size_t ascii = bloquesAscii(bytes);
        fin = std::copy_n(bytes.begin(), ascii, fin);
        bytes.remove_prefix(ascii);
        if (bytes.empty()) break;
        const auto byte = static_cast<unsigned char>(bytes.front());
        *fin++ = byte >= 0x80 && byte <= 0x9F ? bytes80a9F[byte - 0x80U] : char16_t{byte};
    }
    return texto;
}

std::u16string_view recorta(std::u16string_view texto) {
    const auto inicio = texto.find_first_not_of(u' ');
    if (inicio == std::u16string_view::npos) return {};
    return texto.substr(inicio, texto.find_last_not_of(u' ') - inicio + 1);
}

std::u16string aTexto(std::int64_t numero) {
    const std::string digitos = std::to_string(numero);
    return {digitos.begin(), digitos.end()};
}

std::u16string aMayusculas(std::u16string_view texto) {
    return convierte(texto, u'a', [](std::wint_t c) { return towupper_l(c, localUnicode()); });
}

std::u16string aMinusculas(std::u16string_view texto) {
    return convierte(texto, u'A', [](std::wint_t c) { return towlower_l(c, localUnicode()); });
}

bool esIdentificador(std::u16string_view texto) {
    const auto esCifra = [](char16_t c) { return c >= u'0' && c <= u'9'; };
    const auto esLetra = [](char16_t c) {
        const std::u16string_view una(&c, 1);
        return c == u'_' || aMayusculas(una) != aMinusculas(una);
    };
    return !texto.empty() && !esCifra(texto.front()) &&
           std::ranges::all_of(texto, [&](char16_t c) { return esCifra(c) || esLetra(c); });
}

} // namespace norvik::inline v0_2
