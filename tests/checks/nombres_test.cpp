// SPDX-License-Identifier: MIT

#include "norvik/checks/nombres.hpp"
#include "norvik/checks/propuestas.hpp"

#include "norvik/base/texto.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

constexpr std::u16string_view suma =
    u"'% metodo: lalr\r\n"
    u"'% izquierda: mas  por\r\n"
    u"ExpReg cifra = \"[0-9]\"; ' cifra\r\n"
    u"Token num = \"<cifra>+\\\\<cifra><cifra>\", TipoToken = TTNumero (\"<cifra>\");\r\n"
    u"token mas = \"\\+\";\r\n"
    u"E -> E mas num | num;\r\n";

/// Each name with its role and place.
std::string nombresDe(std::u16string_view texto) {
    constexpr std::string_view papeles = "DATPCR";
    std::string lineas;
    for (const NombreEscrito& n : nombresEscritos(texto))
        lineas += papeles[static_cast<std::size_t>(n.papel)] + (' ' + aUtf8(n.nombre)) + ' ' +
                  std::to_string(n.lugar.inicio.linea) + ':' + std::to_string(n.lugar.inicio.columna) + '\n';
    return lineas;
}

std::string aplicado(std::u16string_view texto, const Arreglo& arreglo) {
    std::u16string otro(texto);
    for (std::size_t i = arreglo.cambios.size(); i > 0; --i) {
        const auto& [inicio, fin] = arreglo.cambios[i - 1].rango;
        otro.replace(static_cast<std::size_t>(inicio.desplazamiento),
                     static_cast<std::size_t>(fin.desplazamiento - inicio.desplazamiento),
                     arreglo.cambios[i - 1].texto);
    }
    return aUtf8(otro);
}

} // namespace

TEST(Nombres, CadaUnoConSuPapelYSuLugar) {
    EXPECT_EQ(nombresDe(suma), "D mas 2:15\nD por 2:20\nA cifra 3:8\nT num 4:7\nP cifra 4:15\nP cifra 4:32\n"
                               "T mas 5:7\nC E 6:1\nR E 6:6\nR mas 6:8\nR num 6:12\nR num 6:18\n");
    EXPECT_EQ(nombresDe(u"Token a = \"a\"\nS ->\nb | ; ExpReg"),
              "T a 1:7\nC S 2:1\nR b 3:1\n"); // half written
    const auto nombres = nombresEscritos(suma);
    EXPECT_EQ(origenDe(nombres, u"cifra")->lugar.inicio.columna, 8);
    EXPECT_EQ(origenDe(nombres, u"E")->papel, NombreEscrito::Papel::Cabeza);
    EXPECT_EQ(origenDe(nombres, u"por"), nullptr);
    const auto sitio = static_cast<std::int32_t>(suma.find(u"mas"));
    EXPECT_EQ(nombreEn(nombres, sitio + 3)->nombre, u"mas");
    EXPECT_EQ(nombreEn(nombres, sitio - 1), nullptr);
}

TEST(Nombres, OtroNombreEnTodasPartes) {
    const auto nombres = nombresEscritos(suma);
    const struct {
        const char16_t* nombre;
        const char16_t* nuevo;
        const char* reparos;
    } casos[] = {
        {u"mas", u"sumado", ""},
        {u"cifra", u"Cifra", ""},
        {u"mas", u"mas", "Ya se llama así."},
        {u"mas", u"por", "Ya hay otro nombre «por»."},
        {u"mas", u"Mas", "Un token no empieza por mayúscula."},
        {u"E", u"e", "Una variable empieza por mayúscula."},
    };
    for (const auto& c : casos) EXPECT_EQ(aUtf8(reparosA(nombres, c.nombre, c.nuevo)), c.reparos);
    for (const char16_t* const malo : {u"", u"a b", u"1a", u"á", u"token", u"TTCadena", u" x", u"x;", u"'x"})
        EXPECT_TRUE(aUtf8(reparosA(nombres, u"mas", malo)).ends_with("de las especificaciones."))
            << aUtf8(malo);
    std::u16string esperado(suma);
    for (std::size_t i = 0; (i = esperado.find(u"mas", i)) != std::u16string::npos; i += 4)
        esperado.replace(i, 3, u"suma");
    EXPECT_EQ(aplicado(suma, cambiaNombre(nombres, u"mas", u"suma")), aUtf8(esperado));
}

TEST(Propuestas, LoQuePuedeSeguirEnUnaEspecificacion) {
    // The bar is where a person writes.
    const struct {
        std::u16string texto;
        const char* propuestas;
    } casos[] = {
        {u"'% me|\n", "metodo:  mayusculas:  izquierda:  derecha:  sinasociar:  conflictos: "},
        {u"'% metodo: l|\n", "clasico slr lalr lr1"},
        {u"'% izquierda: mas |\nToken mas = \"a\";\nToken por = \"b\";", "mas por"},
        {u"ExpReg a = \"x\";\nToken b = \"y\";\nToken c = \"<|\";\nToken d = \"z\";", "a> b>"},
        {u"ExpReg a = \"x\";\nToken c = \"<a|>\";", "a"},
        {u"ExpReg a = \"x\";\nToken c = \"\\<|\";", ""},
        {u"ExpReg a = \"x\";\nToken c = \"<a>|\";", ""},
        {u"ExpReg |;\nToken a = \"x\";", "identificador"},
        {u"ExpReg a = \"x\";\nToken b = \"y\";\nS -> |;\nT -> b;", "Ø identificador b S T"},
        {u"Token a = \"x\", TipoToken = TTNum|;",
         "TTAutoExpReg TTCadena TTCaracter TTComentarioBloque TTComentarioLinea TTEtiqueta "
         "TTExpReg TTNumero TTOperador TTPalabraReservada"},
    };
    for (const auto& c : casos) {
        const std::size_t sitio = c.texto.find(u'|');
        const auto siguen = continuacionesDeEspecificacion(std::u16string(c.texto).erase(sitio, 1), sitio);
        std::string dichas;
        for (const Continuacion& p : siguen.propuestas)
            dichas += (dichas.empty() ? "" : " ") + aUtf8(p.texto);
        EXPECT_EQ(dichas, c.propuestas) << aUtf8(c.texto);
    }
}
