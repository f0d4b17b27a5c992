// SPDX-License-Identifier: MIT

#include "apoyo/earley.hpp"

#include "norvik/base/texto.hpp"

#include <cstddef>
#include <cstdint>
#include <set>
#include <tuple>

namespace norvik::apoyo {

namespace {

struct Regla {
    std::u16string cabeza;
    std::vector<std::u16string> cuerpo;
};

using Item = std::tuple<std::size_t, std::size_t, std::size_t>; // rule, dot, where it began

std::vector<Regla> partidas(const Reglas& reglas) {
    std::vector<Regla> todas;
    for (const auto& [cabeza, cuerpo, elementos] : reglas) {
        Regla& regla = todas.emplace_back(Regla{cabeza, {}});
        paraCadaSimbolo(cuerpo, [&](std::u16string_view simbolo) {
            if (simbolo != cadenaVacia) regla.cuerpo.emplace_back(simbolo);
        });
    }
    return todas;
}

} // namespace

bool deriva(const Reglas& reglas, const std::vector<std::u16string>& frase) {
    const std::vector<Regla> todas = partidas(reglas);
    std::vector<std::set<Item>> columnas(frase.size() + 1);
    const auto predice = [&](const std::u16string& variable, std::size_t sitio) {
        bool crece = false;
        for (std::size_t r = 0; r < todas.size(); ++r)
            if (todas[r].cabeza == variable) crece |= columnas[sitio].insert({r, 0, sitio}).second;
        return crece;
    };
    predice(todas.front().cabeza, 0);
    for (std::size_t i = 0; i <= frase.size(); ++i) {
        for (bool crece = true; crece;) {
            crece = false;
            for (const auto& [r, punto, inicio] : std::set(columnas[i])) {
                const auto& [cabeza, cuerpo] = todas[r];
                if (punto < cuerpo.size()) {
                    crece |= predice(cuerpo[punto], i);
                    if (i < frase.size() && cuerpo[punto] == frase[i])
                        columnas[i + 1].insert({r, punto + 1, inicio});
                    continue;
                }
                for (const auto& [otra, suyo, desde] : std::set(columnas[inicio]))
                    if (suyo < todas[otra].cuerpo.size() && todas[otra].cuerpo[suyo] == cabeza)
                        crece |= columnas[i].insert({otra, suyo + 1, desde}).second;
            }
        }
    }
    for (const auto& [r, punto, inicio] : columnas.back())
        if (inicio == 0 && todas[r].cabeza == todas.front().cabeza && punto == todas[r].cuerpo.size())
            return true;
    return false;
}

std::string defectoDeArbol(const Reglas& reglas, const ArbolEjemplo& arbol,
                           const std::vector<std::u16string>& frase) {
    const std::vector<Regla> todas = partidas(reglas);
    std::vector<std::vector<std::u16string>> textos; // of each node, made of its children's
    for (const auto& [simbolo, regla, hijos] : arbol.nodos) {
        std::vector<std::u16string>& texto = textos.emplace_back();
        if (regla == 0) {
            texto.push_back(simbolo);
            continue;
        }
        std::vector<std::u16string> cuerpo;
        for (const std::int32_t hijo : hijos) {
            const auto sitio = static_cast<std::size_t>(hijo);
            if (sitio + 1 >= textos.size()) return "a child behind its parent";
            cuerpo.push_back(arbol.nodos[sitio].simbolo);
            texto.insert(texto.end(), textos[sitio].begin(), textos[sitio].end());
        }
        const Regla& suya = todas.at(static_cast<std::size_t>(regla) - 1);
        if (suya.cabeza != simbolo || suya.cuerpo != cuerpo) return "no such rule " + std::to_string(regla);
    }
    if (textos.empty()) return "no tree";
    return textos.back() == frase ? "" : "another text";
}

} // namespace norvik::apoyo
