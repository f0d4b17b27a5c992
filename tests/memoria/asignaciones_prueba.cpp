// SPDX-License-Identifier: MIT

// The n-th allocation of an operation fails, for many n: each time it must end with `std::bad_alloc` or as if
// nothing had happened, and the same object, used again as it is, must give what it gives without failures. A
// sample of them; NORVIK_ASIGNACIONES=1 in the environment tries each one.

#include "apoyo/anfitrion.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/control/bolsaPropiedades.hpp"
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

const std::filesystem::path pascal = std::filesystem::path(NORVIK_SOURCE_DIR) / "ejemplos/pascal";

constexpr std::u16string_view texto = u"program p; var ñ1: integer; begin ñ1 := (2 + ñ1) * 3.5; "
                                      u"if ñ1 = 2 then begin write('a', ñ1) end end.";
constexpr std::u16string_view conErrores = u"program p; begin x := := 3; y = (2 end.";

std::u16string especificacion() {
    return leeTexto(pascal / "pascal.nvk");
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

const Caso casos[] = {
    {"compila",
     [] {
         return [fuente = especificacion()] {
             return contado(analiza(Lenguaje::compila(fuente).lenguaje.value(), texto));
         };
     }},
    {"analiza", [] { return conLenguaje([](const Lenguaje& l) { return contado(analiza(l, texto)); }); }},
    {"repara", [] { return conLenguaje([](const Lenguaje& l) { return contado(analiza(l, conErrores)); }); }},
    {"lexemas",
     [] {
         return conLenguaje([](const Lenguaje& l) {
             const Lexemas leidos = lexemas(l, texto);
             return std::to_string(leidos.size()) + aUtf8(leidos[leidos.size() - 1].texto);
         });
     }},
    {"control: carga y genera",
     [] {
         return conControl([fuente = especificacion()](apoyo::Anfitrion& a) {
             a.compila(fuente);
             return a.lexico() + a.reglas() + aUtf8(a.tabla());
         });
     }},
    {"control: analiza y colorea",
     [] {
         return conControl([](apoyo::Anfitrion& a) {
             a.norvik.Colorear(true);
             const bool bien = a.analiza(texto);
             a.norvik.ColoreaTodo();
             std::string colores = bien ? aUtf8(a.norvik.GetArbolSintactico().toString()) : "(mal)";
             for (const auto& [inicio, longitud, color] : a.caja.colores())
                 colores += std::to_string(inicio) + "+" + std::to_string(longitud) + ":" +
                            std::to_string(color) + " ";
             return colores;
         });
     }},
    {"informe y módulos",
     [] {
         return conControl([](apoyo::Anfitrion& a) {
             const gramatica& g = a.norvik.Gramatica();
             return aUtf8(g.textoInforme() + g.textoModulo(u"M", a.norvik.Lexico()) +
                          g.textoModuloCpp(u"M", a.norvik.Lexico()));
         });
     }},
    {"carga un módulo",
     [] {
         apoyo::Anfitrion a;
         EXPECT_TRUE(a.compila(especificacion()));
         return [modulo = a.norvik.Gramatica().textoModulo(u"M", a.norvik.Lexico())] {
             return contado(analiza(Lenguaje::cargaModulo(modulo).lenguaje.value(), texto));
         };
     }},
    {"bolsa de propiedades",
     [] {
         BolsaPropiedades bolsa;
         for (int i = 0; i < 40; ++i) bolsa.pon(u"clave" + aTexto(i), std::u16string(100, u'x'));
         return [json = bolsa.aJson()] { return BolsaPropiedades::deJson(json).aJson(); };
     }},
};

// Runs with one allocation that fails; false once there are fewer.
bool fallaEn(std::size_t cual, const Operacion& operacion, const std::string& esperado) {
    std::string dado;
    bool hayFallo = false;
    asignaciones = 0;
    laQueFalla = cual;
    try {
        dado = operacion();
    } catch (const std::bad_alloc&) {
        hayFallo = true;
    }
    const bool llego = asignaciones >= cual;
    laQueFalla = 0;
    EXPECT_TRUE(hayFallo || dado == esperado) << "allocation " << cual << " changes the outcome silently";
    return llego;
}

TEST(Asignaciones, TrasCualquieraQueFalleElObjetoSirve) {
    const bool todas = std::getenv("NORVIK_ASIGNACIONES") != nullptr;
    constexpr std::size_t muestra = 60;
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        asignaciones = 0;
        const std::string esperado = caso.prepara()();
        const Operacion nueva = caso.prepara();
        asignaciones = 0;
        EXPECT_EQ(nueva(), esperado);
        const std::size_t total = asignaciones;
        const std::size_t paso = todas ? 1 : std::max<std::size_t>(1, total / muestra);
        std::size_t probadas = 0;
        for (std::size_t cual = 1; cual <= total && !HasFailure(); cual += paso, ++probadas) {
            const Operacion operacion = caso.prepara();
            fallaEn(cual, operacion, esperado);
            EXPECT_TRUE(operacion() == esperado) << "after allocation " << cual << " failed";
        }
        RecordProperty(caso.nombre == nullptr ? "" : "probadas", static_cast<int>(probadas));
        if (todas) GTEST_LOG_(INFO) << caso.nombre << ": " << probadas << " of " << total;
    }
}

} // namespace
