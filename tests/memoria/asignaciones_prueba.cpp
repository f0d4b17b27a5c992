// SPDX-License-Identifier: MIT

// The n-th allocation of an operation fails, for many n: each time it must end with `std::bad_alloc` or as if
// nothing had happened, and the same object, used again as it is, must give what it gives without failures. A
// sample of them; NORVIK_ASIGNACIONES=1 in the environment tries each one.

#include "apoyo/anfitrion.hpp"
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/checks/revision.hpp"
#include "norvik/control/bolsaPropiedades.hpp"
#include "norvik/control/buscador.hpp"
#include "norvik/report/modulo.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>

namespace {

std::size_t asignaciones = 0;
std::size_t laQueFalla = 0; // counted from 1; 0: none

void* asigna(std::size_t bytes) {
    if (++asignaciones == laQueFalla) throw std::bad_alloc();
    void* const memoria = std::malloc(bytes); // NOLINT
    if (memoria == nullptr) throw std::bad_alloc();
    return memoria;
}

void libera(void* memoria) {
    std::free(memoria); // NOLINT
}

} // namespace

void* operator new(std::size_t bytes) {
    return asigna(bytes);
}
void* operator new[](std::size_t bytes) {
    return asigna(bytes);
}
void* operator new(std::size_t bytes, const std::nothrow_t& /*sinLanzar*/) noexcept {
    return ++asignaciones == laQueFalla ? nullptr : std::malloc(bytes); // NOLINT
}
void* operator new[](std::size_t bytes, const std::nothrow_t& sinLanzar) noexcept {
    return operator new(bytes, sinLanzar);
}
void operator delete(void* memoria) noexcept {
    libera(memoria);
}
void operator delete[](void* memoria) noexcept {
    libera(memoria);
}
void operator delete(void* memoria, std::size_t /*bytes*/) noexcept {
    libera(memoria);
}
void operator delete[](void* memoria, std::size_t /*bytes*/) noexcept {
    libera(memoria);
}

namespace {

using namespace norvik;

constexpr std::u16string_view texto = u"# años\r\nñ1 := (2,5 + ñ1) * 3;\r\nescribe -f(ñ1) ^ 2;";
constexpr std::u16string_view conErrores = u"ñ1 := := 3; escribe 2 3; escribe (2;";

std::u16string especificacion() {
    return leeTexto(std::filesystem::path(NORVIK_SOURCE_DIR) / "ejemplos/calculadora/calculadora.nvk");
}

std::string contado(const Analisis& analisis) {
    std::string contado = aUtf8(analisis.arbol.toString());
    for (const Diagnostico& diagnostico : analisis.diagnosticos)
        contado += aUtf8(mensaje(diagnostico)) + "\n";
    return contado;
}

/// An object with what is done with it, as often as one likes with the same outcome.
using Operacion = std::function<std::string()>;

struct Caso {
    const char* nombre;
    std::function<Operacion()> prepara;
};

Operacion conLenguaje(std::string (*que)(const Lenguaje&)) {
    return [que, lenguaje = Lenguaje::compila(especificacion()).lenguaje.value()] { return que(lenguaje); };
}

Operacion conControl(const std::function<std::string(apoyo::Anfitrion&)>& que) {
    const auto anfitrion = std::make_shared<apoyo::Anfitrion>();
    EXPECT_TRUE(anfitrion->compila(especificacion()));
    return [anfitrion, que] { return que(*anfitrion); };
}

std::u16string moduloDeLaCalculadora() {
    apoyo::Anfitrion a;
    EXPECT_TRUE(a.compila(especificacion()));
    return a.norvik.Gramatica().textoModulo(u"M", a.norvik.Lexico());
}

// The text and its colours, one run after another.
std::string coloreado(const apoyo::Anfitrion& a) {
    std::string visto = aUtf8(a.caja.texto());
    for (const auto& [inicio, longitud, color] : a.caja.colores())
        visto.append(std::to_string(inicio)).append(":").append(std::to_string(color)).append(" ");
    return visto;
}

// Patterns that need the exact machine, one that grows its automaton, and a long word.
constexpr std::u16string_view exactos =
    u"Token p = \"a(?=b)\"; Token c = \"x{70,90}\"; Token r = \"(d|e)\\1f\"; Token l = \"(a|b)*b[ab][ab]\";"
    u"Token w = \"una_palabra_bastante_larga_para_ir_sola_que_no_cabe_en_el_indice_de_las_palabras_cortas\";"
    u"S -> S T | T; T -> p | c | r | l | w;";

std::string visto(const Continuaciones& siguen) {
    std::string todas = std::to_string(siguen.inicio);
    for (const Continuacion& c : siguen.propuestas) todas += " " + aUtf8(c.texto);
    return todas;
}

const Caso casos[] = {
    {"Compila",
     [] {
         return [fuente = especificacion()] {
             return contado(analiza(Lenguaje::compila(fuente).lenguaje.value(), texto));
         };
     }},
    {"Analiza", [] { return conLenguaje([](const Lenguaje& l) { return contado(analiza(l, texto)); }); }},
    {"Repara", [] { return conLenguaje([](const Lenguaje& l) { return contado(analiza(l, conErrores)); }); }},
    {"Lexemas",
     [] {
         return conLenguaje([](const Lenguaje& l) {
             const Lexemas leidos = lexemas(l, texto);
             return std::to_string(leidos.size()) + aUtf8(leidos[leidos.size() - 1].texto);
         });
     }},
    {"MaquinaExacta",
     [] {
         const std::u16string suyo =
             u"ab " + std::u16string(80, u'x') +
             u" eef abbaab baaabb una_palabra_"
             u"bastante_larga_para_ir_sola_que_no_cabe_en_el_indice_de_las_palabras_cortas";
         return [suyo, lenguaje = Lenguaje::compila(exactos).lenguaje.value()] {
             return contado(analiza(lenguaje, suyo)) + std::to_string(lexemas(lenguaje, suyo).size());
         };
     }},
    {"Continuaciones",
     [] { return conLenguaje([](const Lenguaje& l) { return visto(continuaciones(l, texto, 12)); }); }},
    {"Revisa",
     [] {
         return [] {
             std::string todo;
             for (const Hallazgo& h : revisaConHistorias(u"Token si = \"si\"; Token no = \"no\"; Token a = "
                                                         u"\"a<b>\"; S -> si S | si S no S | a;",
                                                         {Metodo::Lalr}))
                 todo += aUtf8(mensaje(h.diagnostico)) + std::to_string(h.historias.size()) + "\n";
             return todo;
         };
     }},
    {"ControlGenera",
     [] {
         return conControl([fuente = especificacion()](apoyo::Anfitrion& a) {
             a.compila(fuente);
             return a.lexico() + a.reglas() + aUtf8(a.tabla());
         });
     }},
    {"ControlColorea",
     [] {
         return conControl([](apoyo::Anfitrion& a) {
             a.norvik.Colorear(true);
             const bool bien = a.analiza(texto);
             a.norvik.ColoreaTodo();
             return (bien ? aUtf8(a.norvik.GetArbolSintactico().toString()) : "(mal)") + coloreado(a);
         });
     }},
    {"ControlEdita",
     [] {
         return conControl([](apoyo::Anfitrion& a) {
             a.norvik.Colorear(true);
             a.norvik.Text(texto);
             a.norvik.InicializaUndosYRedos();
             a.norvik.ColoreaTodo();
             std::string visto;
             a.caja.selecciona(8, 2);
             a.caja.reemplazaSeleccion(u"total");
             a.caja.reemplazaSeleccion(saltoDeLinea);
             a.norvik.Undo();
             visto += coloreado(a);
             a.norvik.Redo();
             visto += coloreado(a);
             return visto;
         });
     }},
    {"ControlBuscaYReemplaza",
     [] {
         return conControl([](apoyo::Anfitrion& a) {
             estadoBusqueda() = {};
             a.norvik.ShowBuscarDialog();
             a.norvik.Text(texto);
             a.caja.selecciona(0, 0);
             Buscador buscador;
             const bool hay = buscador.buscaSiguiente({u"(ñ|x)1", u"Abajo"});
             buscador.reemplazaTodo({u"ñ(?=1)"}, u"total");
             return std::to_string(static_cast<int>(hay)) + aUtf8(a.caja.texto());
         });
     }},
    {"ControlCargaModulo",
     [] {
         return conControl([modulo = moduloDeLaCalculadora()](apoyo::Anfitrion& a) {
             a.norvik.OlvidaLenguaje();
             if (CargaModulo(modulo, a.norvik)) return std::string("(mal)");
             a.analiza(texto);
             return a.lexico() + aUtf8(a.norvik.GetArbolSintactico().toString());
         });
     }},
    {"GuardaYLee",
     [] {
         const auto carpeta = std::make_shared<apoyo::CarpetaTemporal>();
         return [carpeta] {
             escribeTexto(carpeta->ruta() / "texto", texto, Durabilidad::Normal);
             return aUtf8(leeTexto(carpeta->ruta() / "texto"));
         };
     }},
    {"InformeYModulos",
     [] {
         return conControl([](apoyo::Anfitrion& a) {
             const gramatica& g = a.norvik.Gramatica();
             return aUtf8(g.textoInforme() + g.textoModulo(u"M", a.norvik.Lexico()) +
                          g.textoModuloCpp(u"M", a.norvik.Lexico()));
         });
     }},
    {"CargaModulo",
     [] {
         return [modulo = moduloDeLaCalculadora()] {
             return contado(analiza(Lenguaje::cargaModulo(modulo).lenguaje.value(), texto));
         };
     }},
    {"Bolsa",
     [] {
         BolsaPropiedades bolsa;
         for (int i = 0; i < 40; ++i) bolsa.pon(u"clave" + aTexto(i), std::u16string(100, u'x'));
         return [json = bolsa.aJson()] { return BolsaPropiedades::deJson(json).aJson(); };
     }},
};

// What one failed allocation, counted from 1, does to an operation and to its object afterwards; nothing when
// it does no harm.
std::string danio(std::size_t cual, const Operacion& operacion, const std::string& esperado) {
    std::string dado;
    bool hayFallo = false;
    asignaciones = 0;
    laQueFalla = cual;
    try {
        dado = operacion();
    } catch (const std::bad_alloc&) {
        hayFallo = true;
    }
    laQueFalla = 0;
    if (!hayFallo && dado != esperado) return " another outcome: " + dado;
    dado = operacion();
    return dado == esperado ? "" : " another outcome afterwards: " + dado;
}

std::size_t asignacionesDe(const Caso& caso, const std::string& esperado) {
    const Operacion operacion = caso.prepara();
    asignaciones = 0;
    EXPECT_EQ(operacion(), esperado);
    return asignaciones;
}

class Asignaciones : public testing::TestWithParam<Caso> {};

TEST_P(Asignaciones, TrasCualquieraQueFalleElObjetoSirve) {
    const Caso& caso = GetParam();
    const bool todas = std::getenv("NORVIK_ASIGNACIONES") != nullptr;
    constexpr std::size_t muestra = 250;
    const std::string esperado = caso.prepara()();
    const std::size_t total = asignacionesDe(caso, esperado);
    const std::size_t paso = todas ? 1 : std::max<std::size_t>(1, total / muestra);
    std::size_t probadas = 0;
    std::size_t daninas = 0;
    for (std::size_t cual = 1; cual <= total; cual += paso, ++probadas) {
        const std::string resultado = danio(cual, caso.prepara(), esperado);
        EXPECT_EQ(resultado, "") << "allocation " << cual;
        if (!resultado.empty()) ++daninas;
    }
    if (todas) GTEST_LOG_(INFO) << caso.nombre << ": " << probadas << " failed, " << daninas << " did harm";
}

INSTANTIATE_TEST_SUITE_P(, Asignaciones, testing::ValuesIn(casos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

} // namespace
