// SPDX-License-Identifier: MIT

// The exact methods against slow constructions that share nothing with them: Earley's recogniser, and the
// canonical LR(1) automaton of the textbook.
#include "apoyo/anfitrion.hpp"
#include "apoyo/earley.hpp"
#include "apoyo/pasos.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/conjuntos.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/reglasPartidas.hpp"
#include "norvik/grammar/tablaLR.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

using Frase = std::vector<std::u16string>;

// «S -> a S | Ø; B -> b»
void pon(gramatica& g, std::u16string_view texto, Metodo metodo) {
    g.ponMetodo(metodo);
    for (std::u16string_view resto = texto; !resto.empty();) {
        const std::u16string_view regla = resto.substr(0, resto.find(u';'));
        resto = resto.substr(std::min(regla.size() + 1, resto.size()));
        const std::size_t flecha = regla.find(u"->");
        g.SetRegla(recorta(regla.substr(0, flecha)), recorta(regla.substr(flecha + 2)));
    }
    g.creaConjuntos();
    g.creaAutomata();
    g.creaTablaSLR();
}

// What a table says of a sentence, driven as a parser does; nothing when it never stops.
std::optional<bool> acepta(const gramatica& g, Frase frase) {
    frase.emplace_back(u"EOF");
    std::vector<std::int16_t> pila{0};
    std::size_t i = 0;
    for (int pasos = 0; pasos < 2000; ++pasos) {
        const std::int16_t columna = g.GetCodigoToken(frase[i]);
        const std::int16_t accion =
            columna < 0 ? std::int16_t{0} : g.GetElementoTablaSLR(pila.back(), columna);
        if (accion == 0) return false;
        if (accion == TablaLR::aceptar) return true;
        if (accion > 0) {
            pila.push_back(accion);
            ++i;
            continue;
        }
        const auto regla = static_cast<std::int16_t>(-accion);
        pila.resize(pila.size() - static_cast<std::size_t>(g.GetNumElementosRegla(regla)));
        pila.push_back(g.GetElementoTablaSLR(pila.back(), g.GetCodigoVariable(regla)));
        if (pila.back() == 0) return false;
    }
    return std::nullopt;
}

bool hayConflictos(const gramatica& g) {
    return !g.valores().tabla.conflictos().empty();
}

// Without that the textbook's items may have no look-ahead at all and stand in no conflict, and a parse may
// reduce nothing for ever (S -> A S A; A -> Ø).
bool todasDanTextos(const gramatica& g) {
    std::set<std::u16string> dan;
    for (bool crece = true; crece;) {
        crece = false;
        for (const Regla& regla : g.valores().reglas) {
            bool da = true;
            paraCadaSimbolo(regla.cuerpo, [&](std::u16string_view simbolo) {
                da = da && (!esMayusculaAZ(simbolo.front()) || dan.contains(std::u16string(simbolo)));
            });
            crece = (da && dan.insert(regla.cabeza).second) || crece;
        }
    }
    return std::ranges::all_of(g.valores().reglas,
                               [&](const Regla& regla) { return dan.contains(regla.cabeza); });
}

// All sentences of some tokens up to a length.
std::vector<Frase> frases(const std::vector<std::u16string>& tokens, std::size_t largo) {
    std::vector<Frase> todas{{}};
    for (std::size_t i = 0; i < todas.size(); ++i) {
        if (todas[i].size() == largo) break;
        for (const auto& token : tokens) {
            todas.push_back(todas[i]);
            todas.back().push_back(token);
        }
    }
    return todas;
}

std::string enUtf8(const Frase& frase) {
    std::string texto;
    for (const auto& token : frase) texto += aUtf8(token) + " ";
    return texto;
}

// A state, and the tokens by which its rules reduce.
struct Reducciones {
    std::set<std::pair<std::size_t, std::size_t>> items; // rule, dot
    std::set<std::pair<std::size_t, std::u16string>> tokens;

    bool operator==(const Reducciones&) const = default;
    bool operator<(const Reducciones& otra) const {
        return std::tie(items, tokens) < std::tie(otra.items, otra.tokens);
    }
};

// The canonical LR(1) automaton, item by item: whether it has a conflict, as it is or with states merged.
class CanonicoLr1 {
public:
    explicit CanonicoLr1(const Reglas& reglas) : reglas_(reglas) {
        for (const Regla& regla : reglas) cabezas_.insert(regla.cabeza);
    }

    using Item = std::tuple<std::size_t, std::size_t, std::u16string>; // rule (0: of the start), dot, token
    using Estado = std::set<Item>;

    bool tieneConflictos() {
        return std::ranges::any_of(estados(), [&](const Estado& e) { return enConflicto(e); });
    }

    Estado primero() { return cierra({{0, 0, u"$"}}); }
    std::map<std::u16string, Estado> destinos(const Estado& estado) {
        std::map<std::u16string, Estado> todos;
        for (const auto& [r, punto, adelanto] : estado)
            if (const auto cuerpo = cuerpoDe(r); punto < cuerpo.size())
                todos[cuerpo[punto]].insert({r, punto + 1, adelanto});
        for (auto& [simbolo, nucleo] : todos) nucleo = cierra(nucleo);
        return todos;
    }
    // The rule of the lowest number that the token ends in a state; 0: acceptance; nothing: none.
    std::optional<std::size_t> reduccion(const Estado& estado, const std::u16string& token) const {
        for (const auto& [r, punto, adelanto] : estado)
            if (punto == cuerpoDe(r).size() && adelanto == token) return r;
        return std::nullopt;
    }

    // The states with those of one kernel merged: LALR(1). The rule of the start is left out.
    std::multiset<Reducciones> fundidos() {
        std::map<std::set<std::pair<std::size_t, std::size_t>>, Estado> iguales;
        for (const Estado& estado : estados()) {
            std::set<std::pair<std::size_t, std::size_t>> sinAdelantos;
            for (const auto& [r, punto, adelanto] : estado) sinAdelantos.emplace(r, punto);
            iguales[sinAdelantos].insert(estado.begin(), estado.end());
        }
        std::multiset<Reducciones> todos;
        for (const auto& [nucleo, estado] : iguales) {
            Reducciones suyas;
            for (const auto& [r, punto, adelanto] : estado) {
                if (r == 0) continue;
                suyas.items.emplace(r, punto);
                if (punto == cuerpoDe(r).size()) suyas.tokens.emplace(r, adelanto);
            }
            todos.insert(suyas);
        }
        return todos;
    }

    using Conjuntos = std::map<std::u16string, std::set<std::u16string>>;

    Conjuntos primerosDeCabezas() {
        Conjuntos todos;
        for (const auto& cabeza : cabezas_) todos[cabeza] = deCabeza(cabeza);
        return todos;
    }
    Conjuntos siguientes() {
        Conjuntos todos;
        for (const auto& cabeza : cabezas_) todos[cabeza];
        todos[reglas_.en(1).cabeza].insert(u"$");
        for (bool crece = true; crece;) {
            crece = false;
            for (int r = 1; r <= reglas_.total(); ++r) {
                auto resto = cuerpoDe(static_cast<std::size_t>(r));
                while (!resto.empty()) {
                    const std::u16string simbolo = resto.front();
                    resto.erase(resto.begin());
                    if (!cabezas_.contains(simbolo)) continue;
                    auto detras = primeros(resto);
                    if (detras.erase(u"Ø") != 0) detras.merge(std::set(todos[reglas_.en(r).cabeza]));
                    for (const auto& token : detras) crece = todos[simbolo].insert(token).second || crece;
                }
            }
        }
        return todos;
    }

private:
    bool enConflicto(const Estado& estado) const {
        std::set<std::u16string> desplazan;
        std::map<std::u16string, std::set<std::size_t>> reducen;
        for (const auto& [r, punto, adelanto] : estado) {
            const auto cuerpo = cuerpoDe(r);
            if (punto == cuerpo.size())
                reducen[adelanto].insert(r);
            else
                desplazan.insert(cuerpo[punto]);
        }
        return std::ranges::any_of(
            reducen, [&](const auto& par) { return par.second.size() > 1 || desplazan.contains(par.first); });
    }
    std::set<Estado> estados() {
        std::set<Estado> vistos{cierra({{0, 0, u"$"}})};
        std::vector<Estado> pendientes(vistos.begin(), vistos.end());
        while (!pendientes.empty()) {
            const Estado estado = pendientes.back();
            pendientes.pop_back();
            for (const auto& [simbolo, otro] : destinos(estado))
                if (vistos.insert(otro).second) pendientes.push_back(otro);
        }
        return vistos;
    }

    std::vector<std::u16string> cuerpoDe(std::size_t r) const {
        if (r == 0) return {reglas_.en(1).cabeza};
        std::vector<std::u16string> cuerpo;
        paraCadaSimbolo(reglas_.en(static_cast<int>(r)).cuerpo, [&](std::u16string_view simbolo) {
            if (simbolo != cadenaVacia) cuerpo.emplace_back(simbolo);
        });
        return cuerpo;
    }
    // Ø among them when the string can be empty.
    std::set<std::u16string> primeros(const std::vector<std::u16string>& cadena) {
        std::set<std::u16string> conjunto{u"Ø"};
        for (const auto& simbolo : cadena) {
            if (!conjunto.erase(u"Ø")) break;
            if (!cabezas_.contains(simbolo)) {
                conjunto.insert(simbolo);
                continue;
            }
            conjunto.insert(deCabeza(simbolo).begin(), deCabeza(simbolo).end());
        }
        return conjunto;
    }
    const std::set<std::u16string>& deCabeza(const std::u16string& cabeza) {
        if (primeros_.empty())
            for (std::size_t antes = 1, ahora = 0; antes != ahora;) {
                antes = ahora;
                ahora = 0;
                for (const auto& una : cabezas_) primeros_[una];
                for (int r = 1; r <= reglas_.total(); ++r) {
                    const auto suyos = primeros(cuerpoDe(static_cast<std::size_t>(r)));
                    primeros_[reglas_.en(r).cabeza].insert(suyos.begin(), suyos.end());
                }
                for (const auto& [una, conjunto] : primeros_) ahora += conjunto.size();
            }
        return primeros_[cabeza];
    }
    Estado cierra(Estado estado) {
        std::vector<Item> pendientes(estado.begin(), estado.end());
        while (!pendientes.empty()) {
            const auto [r, punto, adelanto] = pendientes.back();
            pendientes.pop_back();
            const auto cuerpo = cuerpoDe(r);
            if (punto == cuerpo.size() || !cabezas_.contains(cuerpo[punto])) continue;
            std::vector<std::u16string> resto(cuerpo.begin() + static_cast<std::ptrdiff_t>(punto) + 1,
                                              cuerpo.end());
            resto.push_back(adelanto);
            for (const auto& token : primeros(resto))
                for (int otra = 1; otra <= reglas_.total(); ++otra)
                    if (reglas_.en(otra).cabeza == cuerpo[punto])
                        if (const Item item{static_cast<std::size_t>(otra), 0, token};
                            estado.insert(item).second)
                            pendientes.push_back(item);
        }
        return estado;
    }

    const Reglas& reglas_;
    std::set<std::u16string> cabezas_;
    std::map<std::u16string, std::set<std::u16string>> primeros_;
};

std::u16string gramaticaAlAzar(std::mt19937& azar, unsigned maximoCabezas) {
    const auto hasta = [&](unsigned n) { return static_cast<unsigned>(azar() % n); };
    const std::u16string_view simbolos[] = {u"a", u"b", u"c", u"S", u"A", u"B", u"C", u"D"};
    std::u16string texto;
    const unsigned cabezas = 1 + hasta(maximoCabezas);
    for (unsigned v = 0; v < cabezas; ++v) {
        texto += std::u16string(simbolos[3 + v]) + u" -> ";
        for (unsigned alternativas = 1 + hasta(3), i = 0; i < alternativas; ++i) {
            texto += i == 0 ? u"" : u" | ";
            const unsigned largo = hasta(4);
            for (unsigned j = 0; j < largo; ++j) texto += std::u16string(simbolos[hasta(3 + cabezas)]) + u" ";
            if (largo == 0) texto += u"Ø";
        }
        texto += u";";
    }
    return texto;
}

CanonicoLr1::Conjuntos enNombres(const std::vector<ConjuntoNumerado>& conjuntos,
                                 const ReglasPartidas& reglas) {
    CanonicoLr1::Conjuntos todos;
    for (const auto& [nombre, elementos] : conjuntos)
        for (auto& suyo = todos[std::u16string(reglas.texto(nombre))]; const Simbolo simbolo : elementos)
            suyo.emplace(reglas.texto(simbolo));
    return todos;
}

TEST(MetodosExactos, LosConjuntosSonLosDelLibro) {
    std::mt19937 azar(3);
    for (int i = 0; i < 2000; ++i) {
        const std::u16string texto = gramaticaAlAzar(azar, 5);
        gramatica g;
        pon(g, texto, Metodo::Slr);
        CanonicoLr1 libro(g.valores().reglas);
        const auto& [primeros, siguientes, predict] = g.valores().conjuntos;
        ASSERT_EQ(enNombres(primeros, g.valores().partidas), libro.primerosDeCabezas()) << aUtf8(texto);
        ASSERT_EQ(enNombres(siguientes, g.valores().partidas), libro.siguientes()) << aUtf8(texto);
    }
}

// Each method of a grammar, as far as it has no conflicts, against a recogniser that knows of no tables; and
// whether `lr1` has them against the textbook. Gives how many had none.
int comparaConElLibro(const std::u16string& texto, const std::vector<Frase>& todas) {
    int sinConflictos = 0;
    for (const auto& [nombre, metodo] : metodos) {
        if (metodo == Metodo::Clasico) continue;
        gramatica g;
        pon(g, texto, metodo);
        const bool reducida = todasDanTextos(g);
        if (reducida && metodo == Metodo::Lr1) {
            EXPECT_EQ(hayConflictos(g), CanonicoLr1(g.valores().reglas).tieneConflictos()) << aUtf8(texto);
        }
        if (hayConflictos(g)) continue;
        ++sinConflictos;
        for (const Frase& frase : todas)
            EXPECT_EQ(reducida ? acepta(g, frase) : acepta(g, frase).value_or(false),
                      apoyo::deriva(g.valores().reglas, frase))
                << aUtf8(nombre) << ": " << aUtf8(texto) << " / " << enUtf8(frase);
    }
    return sinConflictos;
}

TEST(MetodosExactos, SinConflictosAceptanLoQueLaGramaticaTieneYNadaMas) {
    std::mt19937 azar(14);
    const std::vector<Frase> todas = frases({u"a", u"b", u"c"}, 4);
    int sinConflictos = 0;
    for (int i = 0; i < pasos(500); ++i) sinConflictos += comparaConElLibro(gramaticaAlAzar(azar, 3), todas);
    EXPECT_GT(sinConflictos, 500);
}

// Bodies of up to two symbols: S with one or two of them and A with one, and S alone with up to three.
TEST(MetodosExactos, TodasLasGramaticasPequenas) {
    const auto cuerposDe = [](const std::vector<std::u16string>& simbolos) {
        std::vector<std::u16string> cuerpos{u"Ø"};
        for (const auto& uno : simbolos) {
            cuerpos.push_back(uno);
            for (const auto& otro : simbolos) cuerpos.push_back(uno + u" " + otro);
        }
        return cuerpos;
    };
    int sinConflictos = 0;
    const auto dos = cuerposDe({u"a", u"S", u"A"});
    for (std::size_t i = 0; i < dos.size(); ++i)
        for (std::size_t j = i; j < dos.size(); ++j)
            for (const auto& deA : dos)
                sinConflictos +=
                    comparaConElLibro(u"S -> " + dos[i] + (i == j ? u"" : u" | " + dos[j]) + u"; A -> " + deA,
                                      frases({u"a"}, 5));
    const auto una = cuerposDe({u"a", u"b", u"S"});
    for (std::size_t i = 0; i < una.size(); ++i)
        for (std::size_t j = i; j < una.size(); ++j)
            for (std::size_t k = j; k < una.size(); ++k)
                sinConflictos += comparaConElLibro(u"S -> " + una[i] + (i == j ? u"" : u" | " + una[j]) +
                                                       (j == k ? u"" : u" | " + una[k]),
                                                   frases({u"a", u"b"}, 4));
    EXPECT_GT(sinConflictos, 1000);
}

std::multiset<Reducciones> reduccionesDe(const gramatica& g) {
    std::vector<Reducciones> estados;
    for (const estadoAutomata& estado : g.estadosAutomata())
        for (Reducciones& suyas = estados.emplace_back(); const Item item : estado.items())
            suyas.items.emplace(item.regla, item.punto);
    const auto anota = [&](std::int16_t fila, std::int16_t columna, int regla) {
        estados[static_cast<std::size_t>(fila) - 1].tokens.emplace(regla, g.encabezadoColumna(columna));
    };
    for (std::int16_t fila = 1; fila <= g.filasVigentes(); ++fila)
        g.valores().tabla.celdas().paraCadaEntrada(fila, g.columnasVigentes(),
                                                   [&](std::int16_t columna, std::int16_t valor) {
                                                       if (valor < 0) anota(fila, columna, -valor);
                                                   });
    for (const auto& [fila, columna, regla] : g.valores().tabla.conflictos()) anota(fila, columna, regla);
    return {estados.begin(), estados.end()};
}

// Look-aheads by relations against those of the merged canonical automaton, token by token, on grammars with
// cycles of variables.
TEST(MetodosExactos, LalrEsElCanonicoFundido) {
    std::mt19937 azar(7);
    int probadas = 0;
    for (int i = 0; i < pasos(500); ++i) {
        const std::u16string texto = gramaticaAlAzar(azar, 5);
        gramatica g;
        pon(g, texto, Metodo::Lalr);
        if (g.GetDimensionFilasSLR() > 40 || !todasDanTextos(g)) continue;
        ++probadas;
        ASSERT_TRUE(reduccionesDe(g) == CanonicoLr1(g.valores().reglas).fundidos()) << aUtf8(texto);
    }
    EXPECT_GT(probadas, 300);
}

// What the table does where the canonical states do something, conflicts settled; nothing said: the same.
std::string cambiadas(const gramatica& g) {
    CanonicoLr1 libro(g.valores().reglas);
    std::set<std::pair<std::int16_t, CanonicoLr1::Estado>> vistos{{0, libro.primero()}};
    std::vector<std::pair<std::int16_t, CanonicoLr1::Estado>> pendientes(vistos.begin(), vistos.end());
    while (!pendientes.empty()) {
        const auto [fila, estado] = pendientes.back();
        pendientes.pop_back();
        const auto destinos = libro.destinos(estado);
        for (std::int16_t columna = 0; columna < g.columnasVigentes(); ++columna) {
            const std::u16string simbolo(g.encabezadoColumna(static_cast<std::int16_t>(columna + 1)));
            const std::int16_t accion = g.GetElementoTablaSLR(fila, columna);
            std::string donde = std::to_string(fila) + " " + aUtf8(simbolo);
            if (const auto destino = destinos.find(simbolo); destino != destinos.end()) {
                if (accion <= 0 || accion == TablaLR::aceptar) return donde;
                if (vistos.emplace(accion, destino->second).second)
                    pendientes.emplace_back(accion, destino->second);
            } else if (const auto regla = libro.reduccion(estado, simbolo)) {
                const auto reduce = static_cast<std::int16_t>(-static_cast<int>(*regla));
                if (accion != (*regla == 0 ? TablaLR::aceptar : reduce)) return donde;
            } else if (accion > 0) {
                return donde;
            }
        }
    }
    return {};
}

TEST(MetodosExactos, NingunaUnionDeLr1CambiaUnaAccion) {
    std::mt19937 azar(26);
    int enConflicto = 0;
    for (int i = 0; i < pasos(500); ++i) {
        const std::u16string texto = gramaticaAlAzar(azar, 5);
        gramatica g;
        pon(g, texto, Metodo::Lr1);
        if (g.GetDimensionFilasSLR() > 30 || !todasDanTextos(g)) continue;
        enConflicto += hayConflictos(g) ? 1 : 0;
        ASSERT_EQ(cambiadas(g), "") << aUtf8(texto);
    }
    EXPECT_GT(enConflicto, 150);
}

// The grammars that each method is known by (Aho, Sethi and Ullman 1986; Pager 1977).
TEST(MetodosExactos, CadaUnoLlegaDondeSeSabe) {
    const std::tuple<std::u16string, std::string> casos[] = {
        {u"S -> A a | b; A -> A c | S d | Ø", "clasico - slr - lalr - lr1 -"},
        {u"S -> L ig R | R; L -> por R | id; R -> L", "slr S lalr - lr1 -"},
        {u"S -> a A d | b B d | a B e | b A e; A -> c; B -> c", "slr S lalr S lr1 -"},
        {u"S -> si c S | si c S no S | a", "slr S lalr S lr1 S"},
        {u"E -> E mas E | E por E | num", "slr S lalr S lr1 S"},
        {u"S -> a; S -> b S", "slr - lalr - lr1 -"},
        {u"S -> B; B -> a; S -> b", "slr - lalr - lr1 -"}, // rules apart
        {u"S -> S", "slr S lalr S lr1 S"},
    };
    for (const auto& [texto, esperado] : casos) {
        std::string dicho;
        for (const auto& [nombre, metodo] : metodos) {
            if (esperado.find(aUtf8(nombre)) == std::string::npos) continue;
            gramatica g;
            pon(g, texto, metodo);
            dicho += (dicho.empty() ? "" : " ") + aUtf8(nombre) + (hayConflictos(g) ? " S" : " -");
        }
        EXPECT_EQ(dicho, esperado) << aUtf8(texto);
    }
}

TEST(MetodosExactos, ConjuntosAutomataYTablaEnTexto) {
    gramatica g;
    pon(g, u"S -> L ig R | R; L -> por R | id; R -> L", Metodo::Lalr);
    EXPECT_EQ(aUtf8(enTexto(g.valores().conjuntos, g.valores().partidas)),
              "PRIMEROS S{por, id} L{por, id} R{por, id}\nSIGUIENTES S{$} L{$, ig} R{$, ig}\n"
              "PREDICT S{por, id} S{por, id} L{por} L{id} R{por, id}\n");
    EXPECT_EQ(g.GetDimensionFilasSLR(), 10);
    EXPECT_EQ(acepta(g, {u"por", u"id", u"ig", u"id"}), true);
    gramatica d;
    pon(d, u"S -> si c S | si c S no S | a", Metodo::Lr1);
    ASSERT_EQ(d.valores().tabla.conflictos().size(), 1U);
    EXPECT_EQ(acepta(d, {u"si", u"c", u"si", u"c", u"a", u"no", u"a"}), true);
}

TEST(MetodosExactos, EscalerasYGramaticasSinFondoAcaban) {
    std::u16string escala;
    for (int i = 0; i < 80; ++i)
        escala += u"V" + aTexto(i) + u" -> V" + aTexto(i + 1) + u" op" + aTexto(i) + u" V" + aTexto(i) +
                  u" | V" + aTexto(i + 1) + u";";
    escala += u"V80 -> num | pa V0 pc";
    std::u16string larga;
    for (int i = 0; i < 900; ++i) larga += (i == 0 ? u"" : u"; ") + (u"S -> p" + aTexto(i)) + u" S";
    const std::pair<std::u16string, bool> casos[] = {{escala, true},
                                                     {larga, false},
                                                     {u"S -> S", true},
                                                     {u"S -> Ø", true},
                                                     {u"S -> A; A -> S | Ø", true},
                                                     {u"S -> S S | a | Ø", true}};
    for (const auto& [texto, cabe] : casos)
        for (const auto& [nombre, metodo] : metodos) {
            if (metodo == Metodo::Clasico) continue;
            gramatica g;
            if (cabe) {
                pon(g, texto, metodo);
                EXPECT_GT(g.GetDimensionFilasSLR(), 1) << aUtf8(nombre);
            } else {
                EXPECT_THROW(pon(g, texto, metodo), Desbordamiento) << aUtf8(nombre);
                EXPECT_EQ(g.GetDimensionFilasSLR(), 0);
            }
        }
}

// A language of any method is as any other, in a control and in a module.
TEST(MetodosExactos, LaDirectivaYLaOpcionLosEligen) {
    apoyo::Anfitrion a;
    const std::u16string especificacion =
        u"Token a = \"a\"; Token b = \"b\"; Token c = \"c\"; Token d = \"d\";\n"
        u"S -> A a | b; A -> A c | S d | Ø;";
    const auto lee = [](const Compilacion& compilacion) {
        return static_cast<bool>(analiza(compilacion.lenguaje.value(), u"bda"));
    };
    EXPECT_FALSE(lee(Lenguaje::compila(especificacion)));
    EXPECT_TRUE(lee(Lenguaje::compila(especificacion, {Metodo::Lalr})));
    const std::pair<std::u16string, bool> directivas[] = {
        {u"'% metodo: lalr\n", true},   {u"' nota\r\n\r\n'% metodo: lr1\r\n", true},
        {u"'% metodo: slr\n", true},    {u"'% metodo: clasico\n", false},
        {u" '% metodo: lalr\n", false}, {u"'%% metodo: lalr\n", false},
        {u"'% metodo: lalr.\n", false}, {u"Token e = \"e\";\n'% metodo: lalr\n", false}};
    for (const auto& [directiva, esLalr] : directivas)
        EXPECT_EQ(lee(Lenguaje::compila(directiva + especificacion)), esLalr) << aUtf8(directiva);
    EXPECT_FALSE(lee(Lenguaje::compila(u"'% metodo: lalr\n" + especificacion, {Metodo::Clasico})));

    for (const bool conDirectiva : {true, false}) { // the second language of the control is classic again
        ASSERT_TRUE(a.norvik.CargaGramatica((conDirectiva ? u"'% metodo: lalr\n" : u"") + especificacion));
        ASSERT_TRUE(a.norvik.GeneraCompilador());
        EXPECT_EQ(lee(Lenguaje::cargaModulo(a.norvik.Gramatica().textoModulo(u"M", a.norvik.Lexico()))),
                  conDirectiva);
        a.norvik.Text(u"bda");
        EXPECT_EQ(a.norvik.ConstruyeArbolSintactico(), conDirectiva);
    }
}

} // namespace
