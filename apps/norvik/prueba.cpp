// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "dibujo.hpp"
#include "junit.hpp"
#include "lenguajeDe.hpp"
#include "muestraError.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <set>
#include <string>
#include <system_error>

namespace norvik::orden {

namespace {

namespace fs = std::filesystem;

fs::path conExtension(fs::path fichero, const char* extension) {
    fichero += extension;
    return fichero;
}

// The texts below a folder, by name; none when there is no such folder.
std::vector<fs::path> textosDe(const fs::path& carpeta) {
    std::vector<fs::path> textos;
    std::error_code error;
    if (!fs::exists(carpeta, error)) return textos;
    fs::recursive_directory_iterator entradas(carpeta, error);
    const auto exige = [&](std::u16string_view que, const fs::path& ruta) {
        if (error)
            throw ErrorDeFichero(u"No se puede leer " + std::u16string(que) + u"«" +
                                 decodifica(ruta.native()) + u"»: " + causaDelSistema(error.value()));
    };
    for (; !error && entradas != fs::recursive_directory_iterator(); entradas.increment(error)) {
        const fs::path& fichero = entradas->path();
        const bool esFichero = entradas->is_regular_file(error);
        if (error == std::errc::no_such_file_or_directory) error.clear(); // a link that leads nowhere
        exige(u"", fichero);
        if (esFichero && fichero.extension() != ".arbol" && fichero.extension() != ".mal")
            textos.push_back(fichero);
    }
    exige(u"la carpeta ", carpeta);
    std::ranges::sort(textos);
    return textos;
}

// «línea 3: se esperaba «…» y hay «…»», nothing when both are the same.
std::u16string primeraDiferencia(std::u16string_view esperado, std::u16string_view hallado) {
    const auto linea = [](std::u16string_view& texto) {
        const std::size_t fin = std::min(texto.find(u'\n'), texto.size());
        std::u16string_view una = texto.substr(0, fin);
        if (una.ends_with(u'\r')) una.remove_suffix(1);
        texto.remove_prefix(std::min(fin + 1, texto.size()));
        return una;
    };
    for (int numero = 1; !esperado.empty() || !hallado.empty(); ++numero) {
        const std::u16string_view suya = linea(esperado);
        const std::u16string_view otra = linea(hallado);
        if (suya != otra)
            return u"línea " + aTexto(numero) + u": se esperaba «" + std::u16string(suya) + u"» y hay «" +
                   std::u16string(otra) + u"»";
    }
    return {};
}

class Probador {
public:
    Probador(const Prueba& orden, const Lenguaje& lenguaje, Salida& salida)
        : orden_(orden), lenguaje_(lenguaje), salida_(salida), anfitrion_(salida),
          reglas_(lenguaje.vocabulario().reglas.size()), tokens_(lenguaje.vocabulario().tokens.size()) {}

    int prueba() {
        const auto bien = textosDe(orden_.carpeta / "bien");
        const auto mal = textosDe(orden_.carpeta / "mal");
        if (bien.empty() && mal.empty())
            throw ErrorDeFichero(u"No hay textos en «" + decodifica((orden_.carpeta / "bien").native()) +
                                 u"» ni en «" + decodifica((orden_.carpeta / "mal").native()) + u"»");
        for (const fs::path& fichero : bien) anota(fichero, diferenciaDeBueno(fichero));
        for (const fs::path& fichero : mal) anota(fichero, diferenciaDeMalo(fichero));
        if (orden_.junit) escribeBytes(*orden_.junit, enJunit(casos_), Durabilidad::Normal);
        return resume();
    }

private:
    void anota(const fs::path& fichero, std::u16string diferencia) {
        const std::u16string nombre = decodifica(fichero.native());
        if (!diferencia.empty()) salida_.escribe(aUtf8(visible(nombre + u": " + diferencia)) + "\n");
        casos_.push_back({nombre, std::move(diferencia)});
    }

    std::u16string diferenciaDeBueno(const fs::path& fichero) {
        const std::u16string texto = leeTexto(fichero);
        const Analisis analisis = analiza(lenguaje_, texto);
        if (!analisis) return u"no se acepta: " + lineaDeError(analisis.diagnosticos.front());
        for (std::size_t i = 0; i < analisis.arbol.numNodos(); ++i) anotaUso(analisis.arbol[i]);
        const fs::path arbol = conExtension(fichero, ".arbol");
        return compara(arbol, u"su árbol", [&] { return dibujo(texto); });
    }

    std::u16string diferenciaDeMalo(const fs::path& fichero) {
        const Analisis analisis = analiza(lenguaje_, std::u16string_view(leeTexto(fichero)));
        if (analisis) return u"se acepta";
        return compara(conExtension(fichero, ".mal"), u"sus errores", [&] {
            std::u16string errores;
            for (const Diagnostico& error : analisis.diagnosticos) errores += lineaDeError(error) + u"\n";
            return errores;
        });
    }

    // With what a file beside the text expects of it; writes the file instead when it is to be brought up to
    // date.
    template <typename Hallado>
    std::u16string compara(const fs::path& fichero, std::u16string_view que, const Hallado& hallado) {
        if (orden_.actualiza) {
            escribeBytes(fichero, aUtf8(hallado()), Durabilidad::Normal);
            return {};
        }
        std::error_code error;
        if (!fs::exists(fichero, error)) return {};
        std::u16string diferencia = primeraDiferencia(decodifica(leeBytes(fichero)), hallado());
        return diferencia.empty() ? diferencia : std::u16string(que) + u" difiere, " + diferencia;
    }

    std::u16string dibujo(std::u16string_view texto) {
        if (!cargado_) cargado_ = anfitrion_.cargaLenguaje(orden_.lenguaje, orden_.metodo);
        anfitrion_.control.Text(texto);
        anfitrion_.control.ConstruyeArbolSintactico();
        std::string lineas;
        dibuja(anfitrion_.control.GetArbolSintactico(), [&](std::string_view linea) { lineas += linea; });
        return decodifica(lineas);
    }

    void anotaUso(const Nodo& nodo) {
        auto& usados = nodo.esToken() ? tokens_ : reglas_;
        usados[static_cast<std::size_t>(nodo.esToken() ? nodo.token() : nodo.regla()) - 1] = true;
    }

    int resume() {
        const auto pasan = std::ranges::count_if(casos_, [](const auto& c) { return c.diferencia.empty(); });
        salida_.escribe(std::to_string(pasan) + " de " + std::to_string(casos_.size()) + " textos pasan.\n");
        const Vocabulario& vocabulario = lenguaje_.vocabulario();
        for (std::size_t i = 0; i < reglas_.size(); ++i)
            if (!reglas_[i])
                escribeSinUsar(u"la regla " + aTexto(static_cast<std::int64_t>(i + 1)) + u". " +
                               vocabulario.reglas[i].cabeza + u" -> " + vocabulario.reglas[i].cuerpo);
        const std::set<std::int16_t> comentarios = deComentarios();
        for (std::size_t i = 0; i < tokens_.size(); ++i)
            if (!tokens_[i] && !comentarios.contains(static_cast<std::int16_t>(i + 1)))
                escribeSinUsar(u"el token " + vocabulario.tokens[i].nombre);
        return pasan == std::ssize(casos_) ? 0 : 1;
    }

    void escribeSinUsar(const std::u16string& que) {
        salida_.escribe(aUtf8(u"Ningún texto usa " + visible(que)) + "\n");
    }

    // No tree has them.
    std::set<std::int16_t> deComentarios() const {
        std::set<std::int16_t> cuales;
        for (const auto& [token, tipo] : lenguaje_.vocabulario().definiciones)
            if (tipo == Norvik_ComentarioBloque || tipo == Norvik_ComentarioLinea) cuales.insert(token);
        return cuales;
    }

    const Prueba& orden_;
    const Lenguaje& lenguaje_;
    Salida& salida_;
    Anfitrion anfitrion_; // draws the trees, once there is one to draw
    bool cargado_ = false;
    std::vector<CasoProbado> casos_;
    std::vector<bool> reglas_; // used by a text, by number
    std::vector<bool> tokens_;
};

} // namespace

int ejecuta(const Prueba& orden, Salida& salida) {
    const auto lenguaje = lenguajeDe(orden.lenguaje, orden.metodo, salida);
    if (!lenguaje) return 1;
    return Probador(orden, *lenguaje, salida).prueba();
}

} // namespace norvik::orden
