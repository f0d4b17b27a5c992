// SPDX-License-Identifier: MIT

// Random small patterns on random texts: every way of matching agrees with a matcher written down straight
// from the definition of the dialect, with functions that go on.
#include "norvik/pattern/emparejador.hpp"
#include "norvik/pattern/mayusculas.hpp"
#include "norvik/pattern/patronAutomata.hpp"
#include "norvik/pattern/patronMaquina.hpp"

#include "norvik/base/texto.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace norvik;

namespace {

struct Nodo {
    enum class Tipo {
        Texto,
        Secuencia,
        Alternativas,
        Repite,
        Captura,
        Grupo,
        Delante,
        DelanteNo,
        Referencia
    };
    Tipo tipo = Tipo::Texto;
    std::u16string texto{}; // as written
    std::vector<Nodo> hijos{};
    int minimo = 0;
    int maximo = -1; // −1: without limit
    bool perezosa = false;
    int numero = 0; // of a capture or reference; captures before a repetition
    int hasta = 0;  // captures up to the end of a repetition

    void agrega(Nodo hijo) {
        texto += hijo.texto;
        hijos.push_back(std::move(hijo));
    }
};

class Generador {
public:
    Generador(std::mt19937& azar, bool conMiradas) : azar_(azar), conMiradas_(conMiradas) {}

    Nodo alternativas(int nivel) {
        Nodo nodo{.tipo = Nodo::Tipo::Alternativas};
        for (int i = uno(4) == 0 ? 2 + uno(2) : 1; i > 0; --i) {
            if (!nodo.hijos.empty()) nodo.texto += u"|";
            nodo.agrega(secuencia(nivel));
        }
        return nodo;
    }

private:
    int uno(int de) { return static_cast<int>(azar_() % static_cast<unsigned>(de)); }

    Nodo secuencia(int nivel) {
        Nodo nodo{.tipo = Nodo::Tipo::Secuencia};
        for (int i = uno(4); i > 0; --i) nodo.agrega(repetido(nivel));
        return nodo;
    }

    Nodo repetido(int nivel) {
        static const std::u16string_view aserciones[] = {u"^", u"$", u"\\b", u"\\B", u"$"};
        if (uno(conMiradas_ ? 8 : 30) == 0)
            return {.texto = std::u16string(aserciones[conMiradas_ ? uno(5) : 1])};
        const int antes = capturas_;
        Nodo atomo = this->atomo(nivel);
        if (uno(5) < 3) return atomo;
        static constexpr std::tuple<int, int, std::u16string_view> veces[] = {
            {0, -1, u"*"},    {0, -1, u"*"},    {1, -1, u"+"},    {1, -1, u"+"},
            {0, 1, u"{0,1}"}, {0, 1, u"?"},     {2, 2, u"{2,2}"}, {0, 2, u"{0,2}"},
            {1, 3, u"{1,3}"}, {2, -1, u"{2,}"}, {0, 0, u"{0,0}"}};
        const auto& [minimo, maximo, escrito] = veces[uno(11)];
        Nodo nodo{.tipo = Nodo::Tipo::Repite, .minimo = minimo, .maximo = maximo, .perezosa = uno(4) == 0};
        nodo.numero = antes;
        nodo.hasta = capturas_;
        nodo.agrega(std::move(atomo));
        nodo.texto.append(escrito).append(nodo.perezosa ? u"?" : u"");
        return nodo;
    }

    Nodo atomo(int nivel) {
        static const std::u16string_view atomos[] = {u"a",    u"b",    u"a",     u"b",   u"c", u".",
                                                     u"[ab]", u"[^a]", u"[b-d]", u"\\w", u"[]"};
        const int que = uno(nivel > 0 ? 17 : 11);
        if (que < 11) return {.texto = std::u16string(atomos[que])};
        if (conMiradas_ && que == 11 && capturas_ > 0) {
            const int numero = 1 + uno(capturas_);
            return {
                .tipo = Nodo::Tipo::Referencia, .texto = u"(?:\\" + aTexto(numero) + u")", .numero = numero};
        }
        Nodo nodo{.tipo = Nodo::Tipo::Grupo, .texto = u"(?:"};
        if (que >= 15) nodo = {.tipo = Nodo::Tipo::Captura, .texto = u"(", .numero = ++capturas_};
        if (conMiradas_ && que == 12) {
            const bool si = uno(2) == 0;
            nodo = {.tipo = si ? Nodo::Tipo::Delante : Nodo::Tipo::DelanteNo, .texto = si ? u"(?=" : u"(?!"};
        }
        nodo.agrega(alternativas(nivel - 1));
        nodo.texto += u")";
        return nodo;
    }

    std::mt19937& azar_;
    bool conMiradas_;
    int capturas_ = 0;
};

class DemasiadosPasos {};

// A state and what goes on from it: the end of the match, or −1.
struct Estado {
    int fin = 0;
    std::vector<std::pair<int, int>> capturas;
};
using Sigue = std::function<int(const Estado&)>;

class Ingenuo {
public:
    Ingenuo(std::u16string_view sujeto, bool ignora) : sujeto_(sujeto), ignora_(ignora) {}

    int coincide(const Nodo& nodo, int inicio) {
        pasos_ = 0;
        return prueba(nodo, {inicio, std::vector<std::pair<int, int>>(40, {-1, -1})},
                      [](const Estado& e) { return e.fin; });
    }

private:
    int prueba(const Nodo& nodo, const Estado& e, const Sigue& sigue) {
        if (++pasos_ > 20000) throw DemasiadosPasos();
        switch (nodo.tipo) {
        case Nodo::Tipo::Texto:
            return texto(nodo.texto, e, sigue);
        case Nodo::Tipo::Secuencia:
            return secuencia(nodo, 0, e, sigue);
        case Nodo::Tipo::Alternativas:
            for (const Nodo& hijo : nodo.hijos)
                if (const int fin = prueba(hijo, e, sigue); fin >= 0) return fin;
            return -1;
        case Nodo::Tipo::Repite:
            return repite(nodo, nodo.minimo, nodo.maximo, e, sigue);
        case Nodo::Tipo::Grupo:
            return prueba(nodo.hijos[0], e, sigue);
        case Nodo::Tipo::Captura:
            return prueba(nodo.hijos[0], e, [&](Estado dentro) {
                dentro.capturas[static_cast<std::size_t>(nodo.numero)] = {e.fin, dentro.fin};
                return sigue(dentro);
            });
        case Nodo::Tipo::Delante: {
            Estado visto;
            if (prueba(nodo.hijos[0], e, [&](const Estado& d) {
                    visto = d;
                    return d.fin;
                }) < 0)
                return -1;
            visto.fin = e.fin;
            return sigue(visto);
        }
        case Nodo::Tipo::DelanteNo:
            return prueba(nodo.hijos[0], e, [](const Estado& d) { return d.fin; }) >= 0 ? -1 : sigue(e);
        case Nodo::Tipo::Referencia:
            break;
        }
        const auto [desde, hasta] = e.capturas[static_cast<std::size_t>(nodo.numero)];
        Estado otro = e;
        for (int i = desde; desde >= 0 && i < hasta; ++i, ++otro.fin)
            if (otro.fin >= tamanio() || !iguales(en(otro.fin), en(i))) return -1;
        return sigue(otro);
    }

    int secuencia(const Nodo& nodo, std::size_t i, const Estado& e, const Sigue& sigue) {
        if (i == nodo.hijos.size()) return sigue(e);
        return prueba(nodo.hijos[i], e, [&, i](const Estado& d) { return secuencia(nodo, i + 1, d, sigue); });
    }

    int repite(const Nodo& nodo, int minimo, int maximo, const Estado& e, const Sigue& sigue) {
        if (maximo == 0) return sigue(e);
        const auto vuelta = [&] {
            Estado limpio = e;
            for (int c = nodo.numero + 1; c <= nodo.hasta; ++c)
                limpio.capturas[static_cast<std::size_t>(c)] = {-1, -1};
            return prueba(nodo.hijos[0], limpio, [&](const Estado& d) {
                if (minimo == 0 && d.fin == e.fin) return -1;
                return repite(nodo, std::max(minimo - 1, 0), maximo < 0 ? -1 : maximo - 1, d, sigue);
            });
        };
        if (minimo > 0) return vuelta();
        const int primero = nodo.perezosa ? sigue(e) : vuelta();
        if (primero >= 0) return primero;
        return nodo.perezosa ? vuelta() : sigue(e);
    }

    int texto(const std::u16string& t, const Estado& e, const Sigue& sigue) {
        const bool frontera = dePalabra(e.fin - 1) != dePalabra(e.fin);
        if (t == u"^") return e.fin == 0 ? sigue(e) : -1;
        if (t == u"$") return e.fin == tamanio() ? sigue(e) : -1;
        if (t == u"\\b") return frontera ? sigue(e) : -1;
        if (t == u"\\B") return frontera ? -1 : sigue(e);
        if (e.fin == tamanio() || !toma(t, en(e.fin))) return -1;
        Estado otro = e;
        ++otro.fin;
        return sigue(otro);
    }

    bool toma(const std::u16string& t, char16_t c) const {
        if (t == u".") return c != u'\n';
        if (t == u"[]") return false;
        if (t == u"[ab]") return iguales(c, u'a') || iguales(c, u'b');
        if (t == u"[^a]") return !iguales(c, u'a');
        if (t == u"[b-d]") return iguales(c, u'b') || iguales(c, u'c') || iguales(c, u'd');
        if (t == u"\\w") return c != u' ' && c != u'\n';
        return iguales(t[0], c);
    }

    bool iguales(char16_t a, char16_t b) const { return a == b || (ignora_ && pliega(a) == pliega(b)); }
    int tamanio() const { return static_cast<int>(sujeto_.size()); }
    char16_t en(int i) const { return sujeto_[static_cast<std::size_t>(i)]; }
    bool dePalabra(int i) const { return i >= 0 && i < tamanio() && toma(u"\\w", en(i)); }

    std::u16string_view sujeto_;
    bool ignora_;
    int pasos_ = 0;
};

int fin(const Intento& intento, int respuestaDudosa) {
    if (intento.tipo == Intento::Tipo::Indeciso) return respuestaDudosa;
    return intento.tipo == Intento::Tipo::Coincide ? static_cast<int>(intento.fin) : -1;
}

struct Cuenta {
    int casos = 0, automata = 0, dudas = 0;
};

// All the ways on one pattern and text; the naive one decides.
void compara(const Nodo& nodo, const std::u16string& sujeto, bool ignora, Cuenta& cuenta) {
    const PatronListo listo(*leePatron(nodo.texto, ignora));
    const Programa programa(listo);
    const Presupuesto presupuesto;
    Cabida cabida;
    Gasto gasto(presupuesto, cabida);
    auto automata = Automata::de(programa, gasto);
    MemoriaMaquina memoria;
    Automata::Recuerdo recuerdo;
    std::vector<Coincidencia> esperadas;
    int libre = 0; // where the search would go on
    for (int i = 0; i <= static_cast<int>(sujeto.size()); ++i) {
        const int esperado = Ingenuo(sujeto, ignora).coincide(nodo, i);
        const auto inicio = static_cast<std::size_t>(i);
        const auto maquina = coincideMaquina(programa, sujeto, inicio, memoria, gasto);
        EXPECT_EQ(maquina ? static_cast<int>(*maquina) : -1, esperado) << "machine at " << i;
        if (automata) {
            EXPECT_EQ(fin(automata->coincide(sujeto, inicio, recuerdo, gasto), -2), esperado)
                << "automaton at " << i;
        }
        if (esperado < 0 || i < libre) continue;
        esperadas.push_back({i, esperado - i});
        libre = std::max(esperado, i + 1);
    }
    EXPECT_TRUE(Emparejador::compila(nodo.texto, ignora)->ejecuta(sujeto, Presupuesto()) == esperadas)
        << "search";
    cuenta.casos += 1;
    cuenta.automata += automata ? 1 : 0;
}

TEST(PatronAzar, TodasLasManerasDeBuscarCoinciden) {
    std::mt19937 azar(20);
    Cuenta cuenta;
    for (int caso = 0; caso < 800 && !testing::Test::HasFailure(); ++caso) {
        const Nodo nodo = Generador(azar, caso % 2 == 0).alternativas(3);
        const bool ignora = azar() % 3 == 0;
        for (int vez = 0; vez < 3; ++vez) {
            std::u16string sujeto;
            for (auto largo = azar() % 10; largo > 0; --largo) sujeto.push_back(u"aaabbbcdA \n"[azar() % 11]);
            SCOPED_TRACE(aUtf8(nodo.texto) + " on \"" + aUtf8(sujeto) +
                         "\", ignoring case: " + (ignora ? "yes" : "no"));
            try {
                compara(nodo, sujeto, ignora, cuenta);
            } catch (const DemasiadosPasos&) {
                ++cuenta.dudas;
            }
        }
    }
    EXPECT_GT(cuenta.automata, cuenta.casos / 3);
    EXPECT_LT(cuenta.dudas, cuenta.casos / 20);
}

// On texts long enough for the automaton to remember walks that led to nothing.
TEST(PatronAzar, ElAutomataRecuerdaBien) {
    std::mt19937 azar(30);
    int comparados = 0;
    for (int caso = 0; caso < 400 && !testing::Test::HasFailure(); ++caso) {
        const std::u16string patron = Generador(azar, false).alternativas(3).texto;
        const Programa programa{PatronListo(*leePatron(patron, false))};
        const Presupuesto holgado;
        Cabida cabida;
        Gasto delAutomata(holgado, cabida);
        auto automata = Automata::de(programa, delAutomata);
        if (!automata) continue;
        std::u16string sujeto;
        while (sujeto.size() < 900) sujeto.append(1 + azar() % 400, u"aaabbc\n"[azar() % 7]);
        SCOPED_TRACE(aUtf8(patron) + " on \"" + aUtf8(sujeto) + '"');
        Automata::Recuerdo recuerdo;
        MemoriaMaquina memoria;
        try {
            for (std::size_t i = 0; i <= sujeto.size(); i += 1 + azar() % 40) {
                const Presupuesto presupuesto(std::chrono::milliseconds(5));
                Gasto gasto(presupuesto, cabida);
                const auto maquina = coincideMaquina(programa, sujeto, i, memoria, gasto);
                EXPECT_EQ(fin(automata->coincide(sujeto, i, recuerdo, gasto), -2),
                          maquina ? static_cast<int>(*maquina) : -1);
            }
            ++comparados;
        } catch (const BusquedaDesbocada&) {
            continue;
        }
    }
    EXPECT_GT(comparados, 100);
}

} // namespace
