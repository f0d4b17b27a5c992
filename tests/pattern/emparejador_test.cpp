// SPDX-License-Identifier: MIT

#include "norvik/pattern/emparejador.hpp"

#include "apoyo/repite.hpp"
#include "norvik/base/texto.hpp"

#include <gtest/gtest.h>

namespace norvik {
namespace {

using apoyo::repite;

// Matches as "index:text" joined by blanks, or "mal" for a malformed pattern.
std::string busca(std::u16string_view patron, std::u16string_view sujeto, bool ignora = false) {
    const auto emparejador = Emparejador::compila(patron, ignora);
    if (!emparejador) return "mal";
    std::string todas;
    for (const Coincidencia& c : emparejador->ejecuta(sujeto, Presupuesto())) {
        const auto texto =
            sujeto.substr(static_cast<std::size_t>(c.indice), static_cast<std::size_t>(c.longitud));
        todas += (todas.empty() ? "" : " ") + std::to_string(c.indice) + ":" + aUtf8(texto);
    }
    return todas;
}

TEST(Emparejador, RechazaLoQueElDialectoNoConoce) {
    for (const std::u16string_view patron :
         {u"[0-9",   u"[",        u"[^",         u"[a\\",
          u"(a",     u"a)",       u")",          u"(?",
          u"(?a)",   u"(?<n>a)",  u"(?<=a)",     u"(?>a)",
          u"(?i)a",  u"(?#c)",    u"(?P<n>a)",   u"(*ACCEPT)",
          u"(?R)",   u"(?1)",     u"*",          u"+a",
          u"?",      u"|*",       u"(*a)",       u"(?:+)",
          u"^*",     u"$+",       u"\\b?",       u"\\B{2}",
          u"a**",    u"a+*",      u"a++",        u"a?+",
          u"a?\?\?", u"a{2}{3}",  u"a{2}+",      u"a{2}*",
          u"a*?*",   u"{2}",      u"a|{2}",      u"(?={1})",
          u"a{2,1}", u"a{65536}", u"a{1,65536}", u"a{99999999999999999999}",
          u"\\",     u"a\\",      u"\\a",        u"\\c",
          u"\\cA",   u"\\e",      u"\\g1",       u"\\h",
          u"\\k",    u"\\p{L}",   u"\\Q",        u"\\R",
          u"\\z",    u"\\A",      u"\\G",        u"\\K",
          u"\\E",    u"\\X",      u"\\C",        u"\\ñ",
          u"\\x",    u"\\x4",     u"\\xg1",      u"\\x{41}",
          u"\\u",    u"\\u041",   u"\\u{41}",    u"\\01",
          u"\\1",    u"(a)\\2",   u"\\10",       u"[\\1]",
          u"[\\a]",  u"[\\B]",    u"[\\x4]",     u"[\\u12]",
          u"[\\01]", u"[z-a]",    u"[b-a]",      u"[\\u0062-\\u0061]",
          u"[a--]"})
        EXPECT_EQ(busca(patron, u"test"), "mal") << aUtf8(patron);
}

struct Fila {
    std::u16string_view patron;
    std::u16string_view sujeto;
    std::string esperado;
    bool ignora = false;
};

TEST(Emparejador, EntiendeElDialecto) {
    using namespace std::string_literals;
    using namespace std::string_view_literals;
    const Fila filas[] = {
        {u"", u"ab", "0: 1: 2:"},
        {u"a*", u"aab", "0:aa 2: 3:"},
        {u"if|i|ifx", u"ifx", "0:if"},
        {u"[A-Za-zÑñ_]([0-9]|[A-Za-zÑñ_])*", u"9año_1 b", "1:año_1 7:b"},
        {u"//.*(\n|$)", u"a//b\r\n//c", "1://b\r\n 6://c"},
        {u"a.b", u"a\rb a\nb axb", "0:a\rb 8:axb"},
        {u"\"[^\"]*\"", u"\"a\nb\" \"\" \"c", "0:\"a\nb\" 6:\"\""},
        {u"^a|a$", u"aaa", "0:a 2:a"},
        {u"a$", u"a\n", ""},
        {u"a{b", u"a{b", "0:a{b"},
        {u"a{,2}", u"a{,2}a", "0:a{,2}"},
        {u"a{1", u"a{1", "0:a{1"},
        {u"{}]", u"{}]", "0:{}]"},
        {u"x*{", u"xx{", "0:xx{"},
        {u"a{2}", u"aaaaa", "0:aa 2:aa"},
        {u"a{2,}", u"aaaaa", "0:aaaaa"},
        {u"a{2,3}?", u"aaaaa", "0:aa 2:aa"},
        {u"a{0}b", u"ab", "1:b"},
        {u"<.+?>", u"<a><b>", "0:<a> 3:<b>"},
        {u"a??b", u"ab", "0:ab"},
        {u"[=+=]", u"=+", "0:= 1:+"},
        {u"[[:a]", u"[:", "0:[ 1::"},
        {u"[^]", u"a\n", "0:a 1:\n"},
        {u"[]", u"a]", ""},
        {u"[]a]", u"a]", ""},
        {u"[a-]", u"a-b", "0:a 1:-"},
        {u"[-a]", u"a-b", "0:a 1:-"},
        {u"[a-c-e]", u"bde-", "0:b 2:e 3:-"},
        {u"[+--]", u",", "0:,"},
        {u"[\\d-z]", u"5-y", "0:5 1:-"},
        {u"[a-\\d]", u"5-b", "0:5 1:-"},
        {u"[a^\\]]", u"^]", "0:^ 1:]"},
        {u"[\\b]", u"b\b", "1:\b"},
        {u"[\\x41-\\u0043]", u"ABCD", "0:A 1:B 2:C"},
        {u"\\bno\\b", u"noño no", "5:no"},
        {u"\\Bo", u"o no", "3:o"},
        {u"\\w+", u"año_1-Ж", "0:año_1 6:Ж"},
        {u"\\W", u"aé ", "2: "},
        {u"\\d+\\D", u"12٣x", "0:12٣x"},
        {u"\\s\\S", u"\u00A0a",
         "0:\u00A0"
         "a"},
        {u"\\v\\f\\t\\r\\n", u"\v\f\t\r\n", "0:\v\f\t\r\n"},
        {u"\\x41\\u00d1\\-\\.\\_", u"AÑ-._", "0:AÑ-._"},
        {u"\\0", u"a\0"sv, "1:\0"s},
        {u"a(?=b)", u"abac", "0:a"},
        {u"a(?!b)", u"abac", "2:a"},
        {u"(?=a)*ab", u"ab", "0:ab"},
        {u"(a)\\1", u"aab", "0:aa"},
        {u"(a)|b\\1", u"ba", "0:b 1:a"},
        {u"\\1(a)", u"aa", "0:a 1:a"},
        {u"(a\\1)", u"aa", "0:a 1:a"},
        {u"(?:(a)|b)*\\1", u"abab", "0:abab 4:"},
        {u"(?:(a)|(b)\\1)+", u"aba", "0:aba"},
        {u"(z)((a+)?(b+)?(c))*\\3", u"zaacbbbcac", "0:zaacbbbc"},
        {u"(?!(a)b)\\1c", u"c", "0:c"},
        {u"(?=(a+))a*b\\1", u"baaabac", "3:aba"},
        {u"(?=(a+))", u"baaabac", "1: 2: 3: 5:"},
        {u"(.*?)a(?!(a+)b\\2c)\\2(.*)", u"baaabaac", "0:baaabaac"},
        {u"(|a)*b", u"aab", "0:aab"},
        {u"(|a)+", u"aab", "0:aa 2: 3:"},
        {u"(a*)*b", u"aaab", "0:aaab"},
        {u"(?:a*?)*b", u"aab", "0:aab"},
        {u"(?:|a){2}b", u"aab", "0:aab"},
        {u"ñ", u"Ññ", "0:Ñ 1:ñ", true},
        {u"if", u"IF iF", "0:IF 3:iF", true},
        {u"[a-z]+", u"aK\u212AS\u017F", "0:aK\u212AS\u017F", true},
        {u"[^k]", u"kK\u212Aj", "3:j", true},
        {u"(é)\\1", u"éÉ", "0:éÉ", true},
        {u"(if|i) *f", u"if", "0:if"},
        {u"(==|=)b*=", u"==", "0:=="},
        {u"(?=b)c*b+", u"abA", "1:b"},
    };
    for (const Fila& fila : filas)
        EXPECT_EQ(busca(fila.patron, fila.sujeto, fila.ignora), fila.esperado) << aUtf8(fila.patron);
}

TEST(Emparejador, SabeCuandoUnPatronEsUnaPalabra) {
    const std::pair<std::u16string_view, std::optional<std::u16string>> filas[] = {
        {u"while", u"while"},    {u"\\-\\>", u"->"},    {u"\\x41[+]\\n", u"A+\n"},
        {u"a{", u"a{"},          {u"", std::nullopt},   {u"a.b", std::nullopt},
        {u"(ab)", std::nullopt}, {u"a+", std::nullopt}, {u"a|b", std::nullopt}};
    for (const auto& [patron, palabra] : filas) {
        const auto emparejador = Emparejador::compila(patron, false);
        EXPECT_EQ(emparejador->esPalabra(), palabra.has_value()) << aUtf8(patron);
        EXPECT_EQ(emparejador->texto(), palabra.value_or(std::u16string(patron)));
    }
}

TEST(Emparejador, ElAnidamientoYElTamanioTienenSuMedida) {
    EXPECT_EQ(busca(repite(u"(", 16000) + repite(u")", 16000), u"a"), "0: 1:");
    EXPECT_EQ(busca(repite(u"(?:", 7000) + u"a" + repite(u")*", 500) + repite(u")", 6500), u"aab"),
              "0:aa 2: 3:");
    EXPECT_EQ(busca(repite(u"(a|", 7000) + u"b" + repite(u")", 7000), u"b"), "0:b");
    EXPECT_EQ(busca(repite(u"(", 16000), u"a"), "mal");
    EXPECT_EQ(busca(std::u16string(32767, u'a'), u"a"), "");
    EXPECT_EQ(busca(std::u16string(32768, u'a'), u"a"), "mal");
    // A string of 32,766 characters, with each way of searching.
    const std::u16string cadena = u"\"" + repite(u"\\n", 16382) + u"\"";
    for (const std::u16string_view patron :
         {uR"("(\\.|[^"])*")", uR"("(\\.|[^"])*"(?=$))", uR"((")(\\.|[^"]|)*\1)"})
        EXPECT_EQ(Emparejador::compila(patron, false)->ejecuta(cadena, Presupuesto()),
                  (std::vector<Coincidencia>{{0, 32766}}))
            << aUtf8(patron);
}

TEST(Emparejador, UnaBusquedaDesbocadaSeDiceATiempo) {
    const std::u16string equis(30000, u'x');
    const std::u16string aperturas = repite(u"/*", 16000);
    // The automaton finds out in no time; the others say that they cannot.
    EXPECT_EQ(busca(u"(x+x+)+y", equis), "");
    EXPECT_EQ(busca(u"/\\*([^*]|\\*+[^*/])*\\*+/\\.", aperturas), "");
    EXPECT_EQ(busca(u"/\\*\\.(.|\n)*?\\*/", aperturas), "");
    EXPECT_EQ(busca(u"(x+x+)+y\\b", equis), "");
    const std::pair<std::u16string_view, const std::u16string*> filas[] = {
        {u"(x*x*)*y", &equis}, {u"(x+x+)+\\1y", &equis}, {u"((){999}){999}", &equis}};
    for (const auto& [patron, sujeto] : filas) {
        const auto emparejador = Emparejador::compila(patron, false);
        const auto antes = std::chrono::steady_clock::now();
        EXPECT_THROW(emparejador->ejecuta(*sujeto, Presupuesto(std::chrono::milliseconds(100))),
                     BusquedaDesbocada)
            << aUtf8(patron);
        EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(8)) << aUtf8(patron);
        EXPECT_TRUE(emparejador->ejecuta(u"b", Presupuesto()).size() <= 2) << "usable afterwards";
    }
}

} // namespace
} // namespace norvik
