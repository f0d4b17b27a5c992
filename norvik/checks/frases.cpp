// SPDX-License-Identifier: MIT

// Texts of a language: sentences of its grammar (derivaciones.hpp), each token written as one of the texts of
// its pattern that are recognised as that token. The grammar may say more than the table does, and texts that
// stand side by side may read as one: nothing is given that was not tried.
#include "norvik/checks/frases.hpp"

#include "norvik/checks/derivaciones.hpp"
#include "norvik/checks/muestrasPatron.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using Azar = std::minstd_rand; // the same on every machine
using Textos = std::vector<std::u16string>;

std::size_t sacaDe(Azar& azar, std::size_t tope) {
    return azar() % tope;
}

// How each token can be written, by its number; nothing for those whose texts are not found.
std::vector<Textos> escriturasDe(const Lenguaje& lenguaje) {
    constexpr std::size_t muestras = 30;
    constexpr std::size_t maximo = 6;
    const Vocabulario& vocabulario = lenguaje.vocabulario();
    std::vector<Textos> escrituras(vocabulario.tokens.size());
    const auto& definiciones = lenguaje.datos().lexico.tokensLenguaje();
    const Presupuesto presupuesto; // of all tokens together
    for (std::size_t i = 0; i < definiciones.size() && !presupuesto.agotado(); ++i) {
        const Emparejador& patron = *definiciones[i]->expReg;
        const std::int16_t token = vocabulario.definiciones[i].token;
        Textos& suyas = escrituras[static_cast<std::size_t>(token) - 1];
        const Textos posibles =
            patron.esPalabra() ? Textos{patron.texto()}
                               : muestrasDe(patron.texto(), patron.ignoraMayusculas(), muestras, presupuesto);
        for (const std::u16string& texto : posibles) {
            if (presupuesto.agotado()) break;
            const Lexemas leidos = lexemas(lenguaje, texto);
            const bool esEl = leidos.diagnosticos.empty() && leidos.size() == 1 && leidos[0].token == token &&
                              leidos[0].texto == texto && !leidos[0].esComentario;
            if (esEl) suyas.push_back(texto);
        }
    }
    for (Textos& suyas : escrituras) {
        std::ranges::stable_sort(suyas, esMasLegible);
        suyas.resize(std::min(suyas.size(), maximo));
    }
    return escrituras;
}

std::vector<bool> queTienen(const std::vector<Textos>& escrituras) {
    std::vector<bool> tienen;
    tienen.reserve(escrituras.size());
    for (const Textos& suyas : escrituras) tienen.push_back(!suyas.empty());
    return tienen;
}

class Escritor {
public:
    Escritor(const Lenguaje& lenguaje, const OpcionesFrases& opciones)
        : lenguaje_(lenguaje), escrituras_(escriturasDe(lenguaje)),
          derivaciones_(lenguaje.vocabulario(), queTienen(escrituras_)), azar_(opciones.semilla),
          mal_(opciones.mal), plazo_(opciones.plazo), usadas_(lenguaje.vocabulario().reglas.size()) {}

    Frases todasLasReglas() {
        for (std::int16_t regla = 1; regla <= derivaciones_.numReglas(); ++regla)
            if (!usada(regla) && derivaciones_.alcanza(regla) && !plazo_.agotado()) usa(regla);
        Frases frases{std::move(textos_), {}};
        for (std::int16_t regla = 1; regla <= derivaciones_.numReglas(); ++regla)
            if (!usada(regla)) frases.reglasSinUsar.push_back(regla);
        return frases;
    }

    Frases alAzar(std::size_t cuantas) {
        constexpr std::size_t intentos = 20;
        const auto cualquiera = [this](std::span<const std::int16_t> reglas) {
            return reglas[sacaDe(azar_, reglas.size())];
        };
        for (std::size_t i = 0; i / intentos < cuantas && textos_.size() < cuantas; ++i) {
            if (plazo_.agotado()) break;
            const std::vector<std::int16_t> iniciales = deLaInicial();
            if (iniciales.empty()) break;
            const std::size_t hueco = 5 + sacaDe(azar_, 60);
            anota(derivaciones_.conRegla(iniciales[sacaDe(azar_, iniciales.size())], hueco, cualquiera));
        }
        return {std::move(textos_), {}};
    }

private:
    bool usada(std::int16_t regla) const { return usadas_[static_cast<std::size_t>(regla) - 1]; }

    std::vector<std::int16_t> deLaInicial() const {
        std::vector<std::int16_t> suyas;
        const auto& reglas = lenguaje_.vocabulario().reglas;
        for (std::int16_t n = 1; n <= derivaciones_.numReglas(); ++n)
            if (reglas[static_cast<std::size_t>(n) - 1].variable == reglas.front().variable &&
                derivaciones_.alcanza(n))
                suyas.push_back(n);
        return suyas;
    }

    // A text with a rule and as many others that no text has yet as it has room for; if that is refused, one
    // with the rule alone.
    void usa(std::int16_t regla) {
        constexpr std::size_t hueco = 60;
        std::set<std::int16_t> puestas{regla};
        const auto nuevas = [&](std::span<const std::int16_t> reglas) {
            const auto una = std::ranges::find_if(
                reglas, [&](std::int16_t n) { return !usada(n) && !puestas.contains(n); });
            if (una == reglas.end()) return reglas.front();
            puestas.insert(*una);
            return *una;
        };
        if (anota(derivaciones_.conRegla(regla, hueco, nuevas)) && usada(regla)) return;
        anota(derivaciones_.conRegla(regla, 0, nuevas));
    }

    // Files a text of the sentence; false when there is no new one.
    bool anota(const Derivaciones::Frase& frase) {
        const auto texto = escribe(frase);
        if (!texto) return false;
        auto suyo = mal_ ? estropea(frase) : texto;
        if (!suyo || !vistos_.insert(*suyo).second) return false;
        textos_.push_back(std::move(*suyo));
        return true;
    }

    // An accepted text of a sentence, with the blanks that it takes; its tree's rules are used.
    std::optional<std::u16string> escribe(const Derivaciones::Frase& frase) {
        const std::vector<std::u16string_view> tokens = elige(frase);
        for (const std::u16string_view entre : separadores) {
            std::u16string texto = une(tokens, entre);
            const Analisis analisis = analiza(lenguaje_, texto, unError);
            if (!analisis) continue;
            for (std::size_t i = 0; i < analisis.arbol.numNodos(); ++i)
                if (const std::int16_t regla = analisis.arbol[i].regla(); regla > 0)
                    usadas_[static_cast<std::size_t>(regla) - 1] = true;
            return texto;
        }
        return std::nullopt;
    }

    // A token too few, too many or wrong, so that one error comes of it.
    std::optional<std::u16string> estropea(const Derivaciones::Frase& frase) {
        constexpr int intentos = 40;
        const std::vector<std::int16_t> todos = escribibles();
        for (int i = 0; i < intentos && !todos.empty(); ++i) {
            Derivaciones::Frase otra = frase;
            const std::size_t lugar = sacaDe(azar_, frase.size() + 1);
            const std::int16_t token = todos[sacaDe(azar_, todos.size())];
            const auto sitio = otra.begin() + static_cast<std::ptrdiff_t>(lugar);
            const std::size_t que = lugar == frase.size() ? 0 : sacaDe(azar_, 3);
            if (que == 0) otra.insert(sitio, token);
            if (que == 1) otra.erase(sitio);
            if (que == 2) *sitio = token;
            std::u16string texto = une(elige(otra), separadores.front());
            if (analiza(lenguaje_, texto).diagnosticos.size() == 1) return texto;
        }
        return std::nullopt;
    }

    std::vector<std::int16_t> escribibles() const {
        std::vector<std::int16_t> cuales;
        for (std::size_t i = 0; i < escrituras_.size(); ++i)
            if (!escrituras_[i].empty()) cuales.push_back(static_cast<std::int16_t>(i + 1));
        return cuales;
    }

    std::vector<std::u16string_view> elige(const Derivaciones::Frase& frase) {
        std::vector<std::u16string_view> tokens;
        for (const std::int16_t token : frase) {
            const Textos& suyos = escrituras_[static_cast<std::size_t>(token) - 1];
            tokens.push_back(suyos[sacaDe(azar_, suyos.size())]);
        }
        return tokens;
    }

    static std::u16string une(const std::vector<std::u16string_view>& tokens, std::u16string_view entre) {
        std::u16string texto;
        for (std::size_t i = 0; i < tokens.size(); ++i) texto.append(i == 0 ? u"" : entre).append(tokens[i]);
        return texto;
    }

    static constexpr std::array<std::u16string_view, 3> separadores{u" ", u"", u"\n"};
    static inline const OpcionesAnalisis unError{{}, ErroresBuscados::Primero};

    const Lenguaje& lenguaje_;
    std::vector<Textos> escrituras_;
    Derivaciones derivaciones_;
    Azar azar_;
    bool mal_;
    Presupuesto plazo_;
    std::vector<bool> usadas_; // by rule
    Textos textos_;
    std::set<std::u16string> vistos_;
};

} // namespace

Frases frasesDe(const Lenguaje& lenguaje, const OpcionesFrases& opciones) {
    if (!lenguaje.tieneGramatica()) return {};
    Escritor escritor(lenguaje, opciones);
    return opciones.cuantas == 0 ? escritor.todasLasReglas() : escritor.alAzar(opciones.cuantas);
}

} // namespace norvik::inline v0_2
