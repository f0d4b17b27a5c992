// SPDX-License-Identifier: MIT

// How well a wrong text is repaired. Valid texts of the examples are changed at one token, by a fixed seed:
// it is left out, another one is put before it or in its place. Told are how many errors one parse reports,
// whether the repair that undoes the change is among those offered when the error shows where the change is,
// and how long it takes.
#include "lenguaje.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace norvik;

// Milliseconds of processor that this thread has taken.
double procesador() {
    std::timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return 1e3 * static_cast<double>(t.tv_sec) + 1e-6 * static_cast<double>(t.tv_nsec);
}

enum class Clase : std::uint8_t { Borrado, Insercion, Cambio };

struct Token {
    std::int16_t numero = 0;
    std::u16string texto;
};

struct Caso {
    Clase clase = Clase::Borrado;
    std::size_t lugar = 0;
    std::u16string texto;             ///< with the change
    std::size_t inicio = 0;           ///< of the token at which the change shows soonest
    std::vector<std::int16_t> tokens; ///< numbers of the text before the change
};

struct Cuenta {
    std::size_t casos = 0;
    std::size_t errores = 0;
    std::size_t enSuSitio = 0;
    std::size_t deshechos = 0;
    std::size_t sinArbol = 0;
    std::vector<double> tiempos;
};

// The tokens that a parse reads, with the blanks and comments before each.
struct Texto {
    std::vector<Token> tokens;
    std::vector<std::u16string> blancos;
};

Texto parte(const Lenguaje& lenguaje, const std::u16string& entero) {
    Texto texto;
    const Lexemas todos = lexemas(lenguaje, entero);
    std::size_t desde = 0;
    for (std::size_t i = 0; i < todos.size(); ++i) {
        const Lexema lexema = todos[i];
        if (lexema.esComentario) continue;
        const auto inicio = static_cast<std::size_t>(lexema.rango.inicio.desplazamiento);
        texto.blancos.push_back(entero.substr(desde, inicio - desde));
        texto.tokens.push_back({lexema.token, std::u16string(lexema.texto)});
        desde = inicio + lexema.texto.size();
    }
    texto.blancos.push_back(entero.substr(desde));
    return texto;
}

std::vector<std::int16_t> numeros(const std::vector<Token>& tokens) {
    std::vector<std::int16_t> todos;
    todos.reserve(tokens.size());
    for (const Token& token : tokens) todos.push_back(token.numero);
    return todos;
}

Caso altera(const Texto& bueno, Clase clase, std::size_t lugar, const Token& otro) {
    Caso caso{clase, lugar, {}, 0, numeros(bueno.tokens)};
    for (std::size_t i = 0; i < bueno.tokens.size(); ++i) {
        caso.texto += bueno.blancos[i];
        if (i == lugar) {
            caso.texto += u' ';
            caso.inicio = caso.texto.size();
            if (clase != Clase::Borrado) caso.texto += otro.texto + u" ";
            if (clase != Clase::Insercion) continue;
        }
        if (i == lugar + 1 && clase == Clase::Borrado) caso.inicio = caso.texto.size();
        caso.texto += bueno.tokens[i].texto;
    }
    if (clase == Clase::Borrado && lugar + 1 == bueno.tokens.size())
        caso.inicio = caso.texto.size() + bueno.blancos.back().size();
    caso.texto += bueno.blancos.back();
    return caso;
}

// What stands for the name of a token in a repair: a text of it.
std::vector<std::pair<std::u16string, std::u16string>> muestras(const Lenguaje& lenguaje,
                                                                const std::vector<Texto>& textos) {
    std::vector<std::pair<std::u16string, std::u16string>> pares;
    std::set<std::int16_t> vistos;
    for (const Texto& texto : textos)
        for (const auto& [numero, lexema] : texto.tokens) {
            if (!vistos.insert(numero).second) continue;
            const auto& token = lenguaje.vocabulario().tokens[static_cast<std::size_t>(numero) - 1];
            pares.emplace_back(token.visible.empty() ? token.nombre : token.visible, lexema);
        }
    std::ranges::sort(pares, std::greater<>(), [](const auto& par) { return par.first.size(); });
    return pares;
}

class Banco {
public:
    Banco(Lenguaje lenguaje, std::vector<Texto> textos)
        : lenguaje_(std::move(lenguaje)), textos_(std::move(textos)),
          muestras_(muestras(lenguaje_, textos_)) {
        for (const Texto& texto : textos_)
            for (const Token& token : texto.tokens) todos_.push_back(token);
    }

    void prueba(std::size_t casos, std::array<Cuenta, 3>& cuentas) {
        for (std::size_t i = 0; i < casos; ++i) {
            const Texto& texto = textos_[i % textos_.size()];
            if (texto.tokens.empty()) continue;
            const auto clase = static_cast<Clase>(azar_() % 3);
            const Caso caso =
                altera(texto, clase, azar_() % texto.tokens.size(), todos_[azar_() % todos_.size()]);
            mide(caso, cuentas[static_cast<std::size_t>(clase)]);
        }
    }

private:
    void mide(const Caso& caso, Cuenta& cuenta) {
        const double antes = procesador();
        const Analisis analisis = analiza(lenguaje_, caso.texto);
        const double tiempo = procesador() - antes;
        if (analisis) return; // the change made another valid text
        ++cuenta.casos;
        cuenta.tiempos.push_back(tiempo);
        for (const Diagnostico& d : analisis.diagnosticos)
            cuenta.errores += d.gravedad == Gravedad::Error ? 1U : 0U;
        if (analisis.reparado.esVacio()) ++cuenta.sinArbol;
        const Diagnostico& primero = analisis.diagnosticos.front();
        if (static_cast<std::size_t>(primero.rango.inicio.desplazamiento) != caso.inicio) return;
        ++cuenta.enSuSitio;
        if (std::ranges::any_of(primero.partes.arreglos, [&](const Arreglo& arreglo) {
                return conArreglo(caso.texto, arreglo) == caso.tokens;
            }))
            ++cuenta.deshechos;
    }

    // The numbers of a text's tokens once a repair is made.
    std::vector<std::int16_t> conArreglo(const std::u16string& texto, const Arreglo& arreglo) const {
        std::u16string nuevo = texto;
        const std::vector<Cambio> alReves(arreglo.cambios.rbegin(), arreglo.cambios.rend());
        for (const Cambio& cambio : alReves) {
            const auto inicio = static_cast<std::size_t>(cambio.rango.inicio.desplazamiento);
            const auto fin = static_cast<std::size_t>(cambio.rango.fin.desplazamiento);
            nuevo.replace(inicio, fin - inicio, cambio.conNombres ? conMuestras(cambio.texto) : cambio.texto);
        }
        return numeros(parte(lenguaje_, nuevo).tokens);
    }
    std::u16string conMuestras(std::u16string texto) const {
        for (std::size_t i = 0; i < texto.size();) {
            const auto par = std::ranges::find_if(muestras_, [&](const auto& otro) {
                return texto.compare(i, otro.first.size(), otro.first) == 0;
            });
            if (par == muestras_.end()) {
                ++i;
                continue;
            }
            texto.replace(i, par->first.size(), par->second);
            i += par->second.size();
        }
        return texto;
    }

    Lenguaje lenguaje_;
    std::vector<Texto> textos_;
    std::vector<std::pair<std::u16string, std::u16string>> muestras_;
    std::vector<Token> todos_;
    std::mt19937 azar_{1};
};

void escribe(const char* que, Cuenta cuenta) {
    std::ranges::sort(cuenta.tiempos);
    const auto en = [&](double parte) {
        return cuenta
            .tiempos[static_cast<std::size_t>(parte * static_cast<double>(cuenta.tiempos.size() - 1))];
    };
    std::printf("%-14s %6zu  errores %.3f  en su sitio %5.1f %%  deshechos %5.1f %%  sin árbol %zu  "
                "ms: 50 %% %.2f  99 %% %.2f  máx %.2f\n",
                que, cuenta.casos, static_cast<double>(cuenta.errores) / static_cast<double>(cuenta.casos),
                100.0 * static_cast<double>(cuenta.enSuSitio) / static_cast<double>(cuenta.casos),
                100.0 * static_cast<double>(cuenta.deshechos) / static_cast<double>(cuenta.enSuSitio),
                cuenta.sinArbol, en(0.5), en(0.99), en(1));
}

void suma(Cuenta& total, const Cuenta& otra) {
    total.casos += otra.casos;
    total.errores += otra.errores;
    total.enSuSitio += otra.enSuSitio;
    total.deshechos += otra.deshechos;
    total.sinArbol += otra.sinArbol;
    total.tiempos.insert(total.tiempos.end(), otra.tiempos.begin(), otra.tiempos.end());
}

} // namespace

// Arguments: how many changes for each example, and the method of the tables.
int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    const std::size_t casos = argc > 1 ? std::stoul(argv[1]) : 1500;
    OpcionesCompilacion opciones;
    if (argc > 2) opciones.metodo = metodoLlamado(desdeUtf8(argv[2]).value_or(u""));
    std::array<Cuenta, 3> porClase;
    for (const std::string nombre : {"calculadora", "json", "configuracion", "pascal", "c", "consulta"}) {
        const fs::path carpeta = bench::delRepositorio("ejemplos") / nombre;
        const auto compilacion = Lenguaje::deFichero(carpeta / (nombre + ".nvk"), opciones);
        std::vector<fs::path> ficheros(fs::directory_iterator(carpeta / "bien"), {});
        std::ranges::sort(ficheros);
        std::vector<Texto> textos;
        textos.reserve(ficheros.size());
        for (const fs::path& fichero : ficheros)
            textos.push_back(parte(compilacion.lenguaje.value(), leeTexto(fichero)));
        std::array<Cuenta, 3> suyas;
        Banco(*compilacion.lenguaje, std::move(textos)).prueba(casos, suyas);
        Cuenta total;
        for (std::size_t i = 0; i < suyas.size(); ++i) {
            suma(total, suyas[i]);
            suma(porClase[i], suyas[i]);
        }
        escribe(nombre.c_str(), std::move(total));
    }
    Cuenta total;
    constexpr std::array nombres = {"uno menos", "uno de más", "uno por otro"};
    for (std::size_t i = 0; i < porClase.size(); ++i) {
        suma(total, porClase[i]);
        escribe(nombres[i], porClase[i]);
    }
    escribe("todos", std::move(total));
}
