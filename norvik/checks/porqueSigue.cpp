// SPDX-License-Identifier: MIT

#include "norvik/checks/porqueSigue.hpp"

#include "norvik/checks/curaConflicto.hpp"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using exacto::Producciones;

// A place in a rule, behind which its rest stands.
struct Sitio {
    std::int16_t regla = 0;
    std::size_t posicion = 0;
};

class Explicador {
public:
    Explicador(const Producciones& producciones, DerivacionesMinimas& minimas, Simbolo token)
        : producciones_(producciones), minimas_(minimas), token_(token) {}

    // From the head outwards, to the first variable that something with the token stands behind.
    std::vector<std::u16string> explica(Simbolo cabeza) {
        desde_.try_emplace(cabeza, Sitio{});
        std::vector<Simbolo> cola{cabeza};
        for (std::size_t i = 0; i < cola.size(); ++i) {
            producciones_.exigeSeguir();
            const Simbolo variable = cola[i];
            if (token_ == ReglasPartidas::finTexto && variable == producciones_.inicial())
                return lineas(variable, std::nullopt);
            for (const Sitio sitio : usos(variable)) {
                const Cuerpo resto = producciones_.cuerpo(sitio.regla).subspan(sitio.posicion + 1);
                if (minimas_.empieza(resto, token_)) return lineas(variable, sitio);
                const Simbolo suya = producciones_.reglas().cabeza(sitio.regla);
                if (producciones_.esAnulable(resto) && desde_.try_emplace(suya, sitio).second)
                    cola.push_back(suya);
            }
        }
        return {};
    }

private:
    std::vector<Sitio> usos(Simbolo variable) const {
        std::vector<Sitio> sitios;
        for (const Simbolo cabeza : producciones_.cabezas())
            for (const std::int16_t regla : producciones_.de(cabeza)) {
                const Cuerpo cuerpo = producciones_.cuerpo(regla);
                for (std::size_t i = 0; i < cuerpo.size(); ++i)
                    if (cuerpo[i] == variable && minimas_.produce(cuerpo)) sitios.push_back({regla, i});
            }
        return sitios;
    }

    std::u16string nombre(Simbolo simbolo) const {
        return std::u16string(producciones_.reglas().texto(simbolo));
    }
    std::u16string regla(std::int16_t cual) const { return textoDeRegla(producciones_.reglas(), cual); }

    std::vector<std::u16string> lineas(Simbolo variable, const std::optional<Sitio>& sitio) {
        std::vector<std::u16string> lineas;
        if (sitio)
            lineas.push_back(u"«" + nombre(token_) + u"» sigue a " + nombre(variable) + u" en la regla " +
                             regla(sitio->regla));
        else
            lineas.push_back(u"el final del texto sigue a la variable inicial, " + nombre(variable));
        if (sitio) {
            const Cuerpo resto = producciones_.cuerpo(sitio->regla).subspan(sitio->posicion + 1);
            for (const std::int16_t paso : minimas_.reglasDeComienzo(resto, token_))
                lineas.push_back(nombre(producciones_.reglas().cabeza(paso)) + u" empieza así por la regla " +
                                 regla(paso));
        }
        for (Simbolo una = variable; desde_.at(una).regla != 0;) {
            const Sitio paso = desde_.at(una);
            const Simbolo dentro = producciones_.cuerpo(paso.regla)[paso.posicion];
            lineas.push_back(nombre(una) + u" acaba en " + nombre(dentro) + u" por la regla " +
                             regla(paso.regla));
            una = dentro;
        }
        return lineas;
    }

    const Producciones& producciones_;
    DerivacionesMinimas& minimas_;
    Simbolo token_;
    std::map<Simbolo, Sitio> desde_; // in whose rule each was reached
};

} // namespace

std::vector<std::u16string> porqueSigue(const Producciones& producciones, DerivacionesMinimas& minimas,
                                        Simbolo cabeza, Simbolo token) {
    return Explicador(producciones, minimas, token).explica(cabeza);
}

} // namespace norvik::inline v0_2
