// SPDX-License-Identifier: MIT

// Any bytes as a text in one of the example languages, which the first byte chooses. The leaves of an
// accepted text are the tokens that the reader gives.

#include "anfitrion.hpp"

#include "norvik/base/codificacion.hpp"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Lenguajes = std::vector<std::unique_ptr<norvik::fuzz::Anfitrion>>;

Lenguajes cargaEjemplos() {
    std::vector<fs::path> especificaciones;
    for (const auto& carpeta : fs::directory_iterator(NORVIK_SOURCE_DIR "/ejemplos")) {
        const fs::path especificacion = carpeta.path() / (carpeta.path().filename().string() + ".nvk");
        if (fs::exists(especificacion)) especificaciones.push_back(especificacion);
    }
    std::sort(especificaciones.begin(), especificaciones.end());
    Lenguajes lenguajes;
    for (const fs::path& especificacion : especificaciones) {
        norvik::Norvik& control =
            lenguajes.emplace_back(std::make_unique<norvik::fuzz::Anfitrion>())->control;
        control.CargaGramatica(norvik::leeTexto(especificacion));
        control.GeneraCompilador();
    }
    return lenguajes;
}

using Lexemas = std::vector<std::u16string>;

Lexemas tokensDe(norvik::Norvik& control) {
    Lexemas lexemas;
    control.InicializaLecturaTokens();
    for (norvik::parLT token = control.Lex(); token.GetToken() != u"EOF"; token = control.Lex())
        lexemas.emplace_back(token.GetLexema());
    return lexemas;
}

Lexemas hojasDe(const norvik::Arbol& raiz) {
    Lexemas lexemas;
    std::vector<const norvik::Arbol*> pendientes{&raiz};
    while (!pendientes.empty()) {
        const norvik::Arbol& nodo = *pendientes.back();
        pendientes.pop_back();
        if (nodo.GetNumRegla() < 0) lexemas.emplace_back(nodo.GetLexema());
        pendientes.insert(pendientes.end(), nodo.hijos().rbegin(), nodo.hijos().rend());
    }
    return lexemas;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    static const Lenguajes lenguajes = cargaEjemplos();
    if (n == 0) return 0;
    const auto bytes = norvik::fuzz::bytesDe(datos + 1, n - 1);
    norvik::Norvik& control = lenguajes[datos[0] % lenguajes.size()]->control;
    norvik::fuzz::usa(control, norvik::normalizaLineas(norvik::decodifica(bytes)));
    if (control.GetCodigoError() == 0)
        norvik::fuzz::exige(hojasDe(control.GetArbolSintactico()) == tokensDe(control));
    return 0;
}
