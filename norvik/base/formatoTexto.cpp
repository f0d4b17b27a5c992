// SPDX-License-Identifier: MIT

#include "norvik/base/formatoTexto.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

/// How many line ends there are of each kind.
struct Saltos {
    std::size_t lf = 0;
    std::size_t crLf = 0;
    std::size_t cr = 0;

    SaltoDeFichero masFrecuente() const {
        if (crLf > 0 && crLf >= lf && crLf >= cr) return SaltoDeFichero::CrLf;
        return cr > lf ? SaltoDeFichero::Cr : SaltoDeFichero::Lf;
    }
};

template <typename Caracter>
Saltos cuentaSaltos(std::basic_string_view<Caracter> texto) {
    Saltos saltos;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '\n') ++saltos.lf;
        if (texto[i] != '\r') continue;
        const bool doble = i + 1 < texto.size() && texto[i + 1] == '\n';
        ++(doble ? saltos.crLf : saltos.cr);
        if (doble) ++i;
    }
    return saltos;
}

std::u16string_view saltoEnFichero(SaltoDeFichero salto) {
    switch (salto) {
    case SaltoDeFichero::Lf:
        return u"\n";
    case SaltoDeFichero::CrLf:
        return u"\r\n";
    case SaltoDeFichero::Cr:
        return u"\r";
    }
    return u"\n";
}

std::u16string conSaltos(std::u16string_view texto, const FormatoTexto& formato) {
    const std::u16string_view salto = saltoEnFichero(formato.salto);
    std::u16string resultado;
    resultado.reserve(texto.size() + salto.size());
    while (true) {
        const std::size_t fin = texto.find(saltoDeLinea);
        resultado.append(texto.substr(0, fin));
        if (fin == std::u16string_view::npos) break;
        resultado.append(salto);
        texto.remove_prefix(fin + saltoDeLinea.size());
    }
    if (formato.acabaEnSalto) resultado.append(salto);
    return resultado;
}

/// Nothing when reading back would give another text.
std::optional<std::string> enWindows1252(std::u16string_view texto) {
    CodificadorWindows1252 codificador;
    auto bytes = codificador.codifica(texto);
    return bytes && codificador.seLeeIgual() ? std::move(bytes) : std::nullopt;
}

std::string enUtf16(std::u16string_view texto, bool primeroElMayor) {
    std::string bytes;
    bytes.reserve(2 * texto.size() + 2);
    const auto pon = [&](char16_t unidad) {
        const auto mayor = static_cast<char>(unidad >> 8);
        const auto menor = static_cast<char>(unidad & 0xFF);
        bytes += primeroElMayor ? mayor : menor;
        bytes += primeroElMayor ? menor : mayor;
    };
    pon(u'\uFEFF');
    for (const char16_t unidad : texto) pon(unidad);
    return bytes;
}

FormatoTexto formatoDeUtf16(std::string_view bytes, std::u16string_view texto) {
    FormatoTexto formato;
    formato.codificacion = bytes.starts_with('\xFE') ? Codificacion::Utf16Be : Codificacion::Utf16Le;
    formato.salto = cuentaSaltos(texto).masFrecuente();
    formato.acabaEnSalto = texto.ends_with(u'\n') || texto.ends_with(u'\r');
    return formato;
}

} // namespace

bool esBinario(std::string_view bytes) {
    if (const auto texto = desdeUtf16(bytes)) return texto->find(u'\0') != std::u16string::npos;
    return bytes.find('\0') != std::string_view::npos;
}

FormatoTexto formatoDe(std::string_view bytes) {
    if (const auto texto = desdeUtf16(bytes)) return formatoDeUtf16(bytes, *texto);
    FormatoTexto formato;
    if (bytes.starts_with(marcaUtf8)) formato.codificacion = Codificacion::Utf8ConMarca;
    if (!esUtf8(bytes)) formato.codificacion = Codificacion::Windows1252;
    formato.salto = cuentaSaltos(bytes).masFrecuente();
    formato.acabaEnSalto = bytes.ends_with('\n') || bytes.ends_with('\r');
    return formato;
}

bool mezclaSaltos(std::u16string_view texto) {
    const Saltos saltos = cuentaSaltos(texto);
    return (saltos.lf > 0) + (saltos.crLf > 0) + (saltos.cr > 0) > 1;
}

TextoCodificado codifica(std::u16string_view texto, const FormatoTexto& formato) {
    const std::u16string entero = conSaltos(texto, formato);
    TextoCodificado codificado{{}, formato};
    const bool primeroElMayor = formato.codificacion == Codificacion::Utf16Be;
    if (primeroElMayor || formato.codificacion == Codificacion::Utf16Le) {
        codificado.bytes = enUtf16(entero, primeroElMayor);
        return codificado;
    }
    if (formato.codificacion == Codificacion::Windows1252) {
        if (auto bytes = enWindows1252(entero)) {
            codificado.bytes = *std::move(bytes);
            return codificado;
        }
        codificado.formato.codificacion = Codificacion::Utf8;
    }
    std::string bytes = aUtf8(entero);
    if (desdeUtf8(bytes) != entero)
        throw ErrorDeFichero(
            u"El texto contiene medio carácter (un sustituto suelto), que no se puede guardar");
    if (formato.codificacion == Codificacion::Utf8ConMarca) codificado.bytes = marcaUtf8;
    codificado.bytes += bytes;
    return codificado;
}

std::u16string_view nombreDe(Codificacion codificacion) {
    switch (codificacion) {
    case Codificacion::Utf8:
        return u"UTF-8";
    case Codificacion::Utf8ConMarca:
        return u"UTF-8 con marca";
    case Codificacion::Windows1252:
        return u"Windows-1252";
    case Codificacion::Utf16Le:
        return u"UTF-16 LE";
    case Codificacion::Utf16Be:
        return u"UTF-16 BE";
    }
    return {};
}

std::u16string_view nombreDe(SaltoDeFichero salto) {
    switch (salto) {
    case SaltoDeFichero::Lf:
        return u"LF";
    case SaltoDeFichero::CrLf:
        return u"CR LF";
    case SaltoDeFichero::Cr:
        return u"CR";
    }
    return {};
}

} // namespace norvik::inline v0_2
