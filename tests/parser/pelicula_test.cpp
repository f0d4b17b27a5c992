// SPDX-License-Identifier: MIT

// The film of a parse, against the tree of the same text and a driver that keeps every stack.
#include "norvik/parser/pelicula.hpp"

#include "apoyo/gramaticas.hpp"
#include "apoyo/repite.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/filma.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <random>
#include <string>
#include <tuple>
#include <vector>

using namespace norvik;

namespace {

Lenguaje lenguajeDe(std::u16string_view especificacion, Metodo metodo = Metodo::Lalr) {
    return Lenguaje::compila(especificacion, {metodo}).lenguaje.value();
}

constexpr std::u16string_view sumas =
    u"Token num = \"[0-9]+\"; Token mas = \"\\+\"; Token cad = \"'[^']*'\", "
    u"TipoToken = TTCadena; Token nota = \"#.*(\\n|$)\", TipoToken = "
    u"TTComentarioLinea; S -> E F; E -> E mas T | T; T -> num | cad; "
    u"F -> Ø;";

/// «E:4 mas:5 | 7 | reduce 3 -> 8»: the stack but its bottom, what is next, what is done.
std::string enTexto(const Pelicula& pelicula, std::size_t momento) {
    constexpr std::array acciones = {"desplaza", "reduce", "acepta", "falla"};
    std::string texto;
    for (const auto& [estado, nodo] : pelicula.pila(momento))
        if (nodo != 0) texto += aUtf8(pelicula.simbolo(nodo)) + ":" + std::to_string(estado) + " ";
    const AccionLR accion = pelicula.accion(momento);
    texto += "| " + aUtf8(pelicula.siguiente(momento).texto) + " | ";
    texto += acciones[static_cast<std::size_t>(accion.tipo)];
    if (accion.regla != 0) texto += " " + std::to_string(accion.regla);
    if (accion.estado != 0) texto += " -> " + std::to_string(accion.estado);
    return texto;
}

/// Rule, name and place of the nodes, each before its children: with the rules, all that a tree is.
using Nodos = std::vector<std::tuple<std::int16_t, std::u16string, std::int32_t, std::int32_t>>;

Nodos nodosDe(const ArbolAnalisis& arbol) {
    Nodos nodos;
    for (std::size_t i = 0; i < arbol.numNodos(); ++i)
        nodos.emplace_back(arbol[i].regla(), arbol[i].nombre(), arbol[i].rango().inicio.desplazamiento,
                           arbol[i].rango().fin.desplazamiento);
    return nodos;
}

Nodos nodosDe(const Pelicula& pelicula) {
    Nodos nodos;
    std::vector<Pelicula::Nodo> pendientes{pelicula.pila(pelicula.ultimo()).back().nodo};
    while (!pendientes.empty()) {
        const Pelicula::Nodo nodo = pendientes.back();
        pendientes.pop_back();
        const Rango rango = pelicula.rango(nodo);
        nodos.emplace_back(pelicula.regla(nodo), pelicula.simbolo(nodo), rango.inicio.desplazamiento,
                           rango.fin.desplazamiento);
        const auto hijos = pelicula.hijos(nodo);
        pendientes.insert(pendientes.end(), hijos.rbegin(), hijos.rend());
    }
    return nodos;
}

/// The codes of a text's tokens up to the end, or up to a character that starts none.
std::vector<std::int16_t> codigosDe(const Lenguaje& lenguaje, std::u16string_view texto) {
    const gramatica& reglas = lenguaje.datos().reglas;
    const Lexemas leidos = lexemas(lenguaje, texto);
    const auto& errores = leidos.diagnosticos;
    std::vector<std::int16_t> codigos;
    for (std::size_t i = 0; i < leidos.size(); ++i) {
        const Lexema lexema = leidos[i];
        const std::int32_t inicio = lexema.rango.inicio.desplazamiento;
        if (!errores.empty() && inicio > errores.front().rango.inicio.desplazamiento) break;
        if (!lexema.esComentario) codigos.push_back(reglas.GetCodigoToken(lexema.nombre));
    }
    codigos.push_back(errores.empty() ? reglas.GetCodigoToken(u"EOF") : std::int16_t{-1});
    return codigos;
}

/// Every stack and action of a parse; slow, and simple on purpose.
struct Lenta {
    std::vector<std::vector<std::int16_t>> pilas{{0}};
    std::vector<AccionLR> acciones;
};

Lenta conduce(const gramatica& reglas, const std::vector<std::int16_t>& codigos) {
    using enum AccionLR::Tipo;
    Lenta lenta;
    for (std::size_t token = 0;;) {
        std::vector<std::int16_t> pila = lenta.pilas.back();
        const std::int16_t celda =
            codigos[token] < 0 ? std::int16_t{0} : reglas.GetElementoTablaSLR(pila.back(), codigos[token]);
        if (celda == 0 || celda == gramatica::aceptar) {
            lenta.acciones.push_back({celda == 0 ? Falla : Acepta, 0, 0});
            return lenta;
        }
        const auto regla = static_cast<std::int16_t>(celda < 0 ? -celda : 0);
        std::int16_t estado = celda;
        if (regla == 0) {
            ++token;
        } else {
            // A table of the classic method may ask for more than there is.
            const auto largo = static_cast<std::size_t>(reglas.GetNumElementosRegla(regla));
            pila.resize(std::max<std::size_t>(pila.size(), largo + 1) - largo);
            estado = reglas.GetElementoTablaSLR(pila.back(), reglas.GetCodigoVariable(regla));
        }
        if (estado == 0) {
            lenta.acciones.push_back({Falla, regla, 0});
            return lenta;
        }
        pila.push_back(estado);
        lenta.pilas.push_back(pila);
        lenta.acciones.push_back({regla == 0 ? Desplaza : Reduce, regla, estado});
    }
}

std::vector<std::int16_t> estados(const Pelicula& pelicula, std::size_t momento) {
    std::vector<std::int16_t> suyos;
    for (const auto& entrada : pelicula.pila(momento)) suyos.push_back(entrada.estado);
    return suyos;
}

/// What a film of a text shows otherwise than the parse and the slow driver do.
std::string defecto(const Lenguaje& lenguaje, std::u16string_view texto) {
    const Analisis analisis = analiza(lenguaje, texto, {{}, ErroresBuscados::Primero});
    const auto filmada = filma(lenguaje, texto);
    if (const auto* const fallo = std::get_if<Diagnostico>(&filmada)) {
        const bool mismo = !analisis && analisis.diagnosticos.front().codigo == fallo->codigo;
        return mismo ? "" : "sin película";
    }
    const auto& pelicula = std::get<Pelicula>(filmada);
    const auto& errores = analisis.diagnosticos;
    // What the classic table accepts need not be a tree.
    const bool sinArbol = !analisis && errores.front().codigo == Codigo::TablaIncorrecta;
    if (pelicula.acepta() != (analisis || sinArbol)) return "acepta";
    if (analisis && nodosDe(pelicula) != nodosDe(analisis.arbol)) return "árbol";
    // What is told of wrong characters is where all of a run stand.
    if (!pelicula.acepta() &&
        pelicula.siguiente(pelicula.ultimo()).rango.inicio != errores.front().rango.inicio)
        return "lugar del error";
    const Lenta lenta = conduce(lenguaje.datos().reglas, codigosDe(lenguaje, texto));
    if (pelicula.ultimo() + 1 != lenta.pilas.size()) return "acciones";
    for (std::size_t momento = 0; momento <= pelicula.ultimo(); ++momento) {
        if (estados(pelicula, momento) != lenta.pilas[momento]) return "pila " + std::to_string(momento);
        if (pelicula.accion(momento) != lenta.acciones[momento]) return "acción " + std::to_string(momento);
    }
    return {};
}

} // namespace

TEST(Pelicula, CadaMomentoEnseniaLaPilaYLoQueSeHace) {
    const struct {
        std::u16string_view texto;
        std::vector<std::string> momentos;
    } casos[] = {
        {u"1 # uno\n+ 'a'",
         {"| 1 | desplaza -> 4", "num:4 | + | reduce 4 -> 3", "T:3 | + | reduce 3 -> 2",
          "E:2 | + | desplaza -> 7", "E:2 mas:7 | 'a' | desplaza -> 5", "E:2 mas:7 cad:5 |  | reduce 5 -> 8",
          "E:2 mas:7 T:8 |  | reduce 2 -> 2", "E:2 |  | reduce 6 -> 6", "E:2 F:6 |  | reduce 1 -> 1",
          "S:1 |  | acepta"}},
        {u"1 1", {"| 1 | desplaza -> 4", "num:4 | 1 | falla"}},
        {u"1 𝄞", {"| 1 | desplaza -> 4", "num:4 | 𝄞 | falla"}},
        {u"", {"|  | falla"}},
    };
    for (const auto& [texto, momentos] : casos) {
        const auto filmada = filma(lenguajeDe(sumas), texto); // it outlives the language
        const auto& pelicula = std::get<Pelicula>(filmada);
        std::vector<std::string> vistos;
        for (std::size_t momento = 0; momento <= pelicula.ultimo(); ++momento)
            vistos.push_back(enTexto(pelicula, momento));
        EXPECT_EQ(vistos, momentos) << aUtf8(texto);
    }
}

TEST(Pelicula, VaAUnLugarDelTexto) {
    const std::tuple<std::u16string_view, std::size_t, std::u16string_view> casos[] = {
        {u"1 + 'a'", 0, u"1"}, {u"1 + 'a'", 1, u"+"}, {u"1 + 'a'", 4, u"'a'"}, {u"1 + 'a'", 6, u"'a'"},
        {u"1 + 'a'", 7, u""},  {u"1 + 'a'", 99, u""}, {u"1 1 + 1", 0, u"1"},   {u"1 1 + 1", 5, u"1"},
    };
    for (const auto& [texto, lugar, siguiente] : casos) {
        const auto filmada = filma(lenguajeDe(sumas), texto);
        const auto& pelicula = std::get<Pelicula>(filmada);
        const std::size_t momento = pelicula.momentoEn(lugar);
        EXPECT_EQ(pelicula.siguiente(momento).texto, siguiente) << aUtf8(texto) << lugar;
        if (momento > 0) { // the first of its moments
            EXPECT_NE(pelicula.siguiente(momento - 1).rango, pelicula.siguiente(momento).rango);
        }
    }
}

TEST(Pelicula, LoQueNoEsCulpaDelTextoNoTienePelicula) {
    std::stop_source parada;
    parada.request_stop();
    const Lenguaje sinReglas = *Lenguaje::compila(u"Token a = \"a\";").lenguaje;
    EXPECT_EQ(std::get<Diagnostico>(filma(sinReglas, u"a")).codigo, Codigo::SinGramatica);
    EXPECT_EQ(std::get<Diagnostico>(filma(lenguajeDe(sumas), u"1", parada.get_token())).codigo,
              Codigo::Cancelado);
}

// Tables of the classic method may reduce and have no way on over the head.
TEST(Pelicula, UnaReduccionSinSalidaEsElFinal) {
    const Lenguaje lenguaje =
        lenguajeDe(u"Token a = \"a\"; Token b = \"b\"; S -> Ø | S A; A -> b | S S a S;", Metodo::Clasico);
    EXPECT_EQ(defecto(lenguaje, u"a"), "");
    const auto filmada = filma(lenguaje, u"a");
    const auto& pelicula = std::get<Pelicula>(filmada);
    EXPECT_EQ(pelicula.accion(pelicula.ultimo()), (AccionLR{AccionLR::Tipo::Falla, 4, 0}));
}

TEST(Pelicula, UnaPilaTanAltaComoElTexto) {
    const Lenguaje lenguaje = lenguajeDe(u"Token a = \"a\"; Token b = \"b\"; S -> a S | b;");
    const auto filmada = filma(lenguaje, apoyo::repite(u"a", 100'000) + u"b");
    const auto& pelicula = std::get<Pelicula>(filmada);
    EXPECT_EQ(pelicula.ultimo(), 200'002U);
    EXPECT_EQ(pelicula.pila(100'001).size(), 100'002U);
    EXPECT_EQ(nodosDe(pelicula).size(), 200'002U);
}

TEST(Pelicula, LosEjemplos) {
    const std::filesystem::path raiz = std::filesystem::path(NORVIK_SOURCE_DIR) / "ejemplos";
    int textos = 0;
    for (const std::string nombre : {"calculadora", "json", "configuracion", "pascal", "c", "consulta"}) {
        const Lenguaje lenguaje = *Lenguaje::deFichero(raiz / nombre / (nombre + ".nvk")).lenguaje;
        for (const std::string_view carpeta : {"bien", "mal"})
            for (const auto& fichero : std::filesystem::directory_iterator(raiz / nombre / carpeta)) {
                const std::u16string texto = leeTexto(fichero.path());
                if (texto.size() > 10'000) continue; // the slow driver
                EXPECT_EQ(defecto(lenguaje, texto), "") << fichero.path();
                ++textos;
            }
    }
    EXPECT_GT(textos, 20);
}

TEST(Pelicula, GramaticasAlAzar) {
    std::mt19937 azar(15);
    int aceptados = 0;
    for (int caso = 0; caso < 20; ++caso) {
        const std::u16string especificacion =
            u"Token a = \"a\"; Token b = \"b\"; Token c = \"c\"; " + apoyo::gramaticaAlAzar(azar) + u";";
        for (const auto& [nombre, metodo] : metodos) {
            const auto compilacion = Lenguaje::compila(especificacion, {metodo});
            if (!compilacion.lenguaje) continue;
            for (int vez = 0; vez < 3; ++vez) {
                std::u16string texto;
                for (auto largo = azar() % 6; largo > 0; --largo) texto += u"aabbcc?"[azar() % 7];
                EXPECT_EQ(defecto(*compilacion.lenguaje, texto), "")
                    << aUtf8(especificacion) << aUtf8(nombre) << aUtf8(texto);
                if (analiza(*compilacion.lenguaje, texto)) ++aceptados;
            }
        }
    }
    EXPECT_GT(aceptados, 20);
}
