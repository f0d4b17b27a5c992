// SPDX-License-Identifier: MIT

// Symbols are numbered once; what is reached from the start, and from which variables a text comes, are least
// fixpoints by work lists; cycles are found on the graph whose edges are the rules that leave one variable
// alone, by walking back from it. All takes time in proportion to the rules, cycles but for their square.
#include "norvik/checks/comprobaciones.hpp"

#include "norvik/base/presupuesto.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using ReglaEscrita = FuenteEspecificacion::Regla;
using Nombres = std::set<std::u16string_view>;

bool esVariable(std::u16string_view nombre) {
    return esMayusculaAZ(nombre.front());
}

class Revisor {
public:
    Revisor(const FuenteEspecificacion& fuente, Metodo metodo, const std::stop_token& cancelacion,
            std::vector<Diagnostico>& hallazgos)
        : fuente_(fuente), metodo_(metodo), cancelacion_(cancelacion), hallazgos_(hallazgos) {
        for (const ReglaEscrita& regla : fuente.reglas) reglasDe_[regla.cabeza.nombre].push_back(&regla);
    }

    void revisa() {
        compruebaCabezas();
        compruebaRepetidas();
        exigeSeguir(cancelacion_);
        compruebaUsos();
        compruebaProductivas();
        compruebaCiclos();
    }

private:
    void anota(Codigo codigo, const Rango& lugar, Partes partes) {
        hallazgos_.push_back({codigo, Gravedad::Aviso, lugar, std::move(partes)});
    }
    // At the first rule of a head.
    void anotaVariable(Codigo codigo, std::u16string_view variable, std::u16string hallado) {
        const FuenteEspecificacion::Simbolo& cabeza = reglasDe_[variable].front()->cabeza;
        anota(codigo, cabeza.lugar, {cabeza.nombre, std::move(hallado), {}, {}});
    }
    std::u16string_view inicial() const { return fuente_.reglas.front().cabeza.nombre; }

    void compruebaCabezas() {
        Nombres cerradas; // heads that other ones have followed
        Nombres dichas;
        std::u16string_view anterior;
        for (const ReglaEscrita& regla : fuente_.reglas) {
            const std::u16string_view cabeza = regla.cabeza.nombre;
            if (cabeza != anterior && !anterior.empty()) cerradas.insert(anterior);
            const bool dispersa =
                metodo_ == Metodo::Clasico && cabeza != anterior && cerradas.contains(cabeza);
            if (dispersa)
                anota(Codigo::CabezaDispersa, regla.cabeza.lugar,
                      {regla.cabeza.nombre,
                       {},
                       {},
                       {{reglasDe_[cabeza].front()->cabeza.lugar, regla.cabeza.nombre}}});
            if (!esVariable(cabeza) && dichas.insert(cabeza).second)
                anotaVariable(Codigo::CabezaMinuscula, cabeza, {});
            anterior = cabeza;
        }
    }

    static std::u16string cuerpoDe(const ReglaEscrita& regla) {
        std::u16string cuerpo;
        for (const FuenteEspecificacion::Simbolo& simbolo : regla.cuerpo)
            cuerpo += (cuerpo.empty() ? u"" : u" ") + simbolo.nombre;
        return cuerpo.empty() ? std::u16string(cadenaVacia) : cuerpo;
    }

    void compruebaRepetidas() {
        std::map<std::pair<std::u16string_view, std::u16string>, const ReglaEscrita*> vistas;
        for (const ReglaEscrita& regla : fuente_.reglas) {
            const auto [sitio, nueva] = vistas.try_emplace(
                std::pair(std::u16string_view(regla.cabeza.nombre), cuerpoDe(regla)), &regla);
            if (nueva) continue;
            anota(Codigo::ReglaRepetida, regla.lugar,
                  {regla.cabeza.nombre, cuerpoDe(regla), {}, {{sitio->second->lugar, cuerpoDe(regla)}}});
        }
    }

    void compruebaUsos() {
        Nombres usadas;
        for (const ReglaEscrita& regla : fuente_.reglas)
            for (const FuenteEspecificacion::Simbolo& simbolo : regla.cuerpo)
                if (simbolo.nombre != regla.cabeza.nombre) usadas.insert(simbolo.nombre);
        const Nombres alcanzadas = alcanzadasDesde(inicial());
        for (const auto& [cabeza, reglas] : reglasDe_) {
            if (alcanzadas.contains(cabeza) || !esVariable(cabeza)) continue;
            if (usadas.contains(cabeza))
                anotaVariable(Codigo::VariableInalcanzable, cabeza, std::u16string(inicial()));
            else
                anotaVariable(Codigo::VariableSinUsar, cabeza, {});
        }
    }

    Nombres alcanzadasDesde(std::u16string_view variable) const {
        Nombres alcanzadas{variable};
        std::vector<std::u16string_view> pendientes{variable};
        while (!pendientes.empty()) {
            const auto suyas = reglasDe_.find(pendientes.back());
            pendientes.pop_back();
            if (suyas == reglasDe_.end()) continue;
            for (const ReglaEscrita* regla : suyas->second)
                for (const FuenteEspecificacion::Simbolo& simbolo : regla->cuerpo)
                    if (esVariable(simbolo.nombre) && alcanzadas.insert(simbolo.nombre).second)
                        pendientes.push_back(simbolo.nombre);
        }
        return alcanzadas;
    }

    // Those with a rule whose symbols are all accepted. Each rule counts the variables of its body that are
    // not yet.
    template <typename Vale>
    Nombres cierre(const Vale& vale) const {
        std::map<const ReglaEscrita*, std::size_t> faltan;
        std::map<std::u16string_view, std::vector<const ReglaEscrita*>> esperan;
        std::vector<const ReglaEscrita*> listas;
        for (const ReglaEscrita& regla : fuente_.reglas) {
            if (!std::ranges::all_of(regla.cuerpo,
                                     [&](const auto& s) { return esVariable(s.nombre) || vale(s.nombre); }))
                continue;
            for (const FuenteEspecificacion::Simbolo& simbolo : regla.cuerpo)
                if (esVariable(simbolo.nombre)) ++faltan[&regla], esperan[simbolo.nombre].push_back(&regla);
            if (!faltan.contains(&regla)) listas.push_back(&regla);
        }
        Nombres dentro;
        while (!listas.empty()) {
            const std::u16string_view cabeza = listas.back()->cabeza.nombre;
            listas.pop_back();
            if (!dentro.insert(cabeza).second) continue;
            for (const ReglaEscrita* regla : esperan[cabeza])
                if (--faltan[regla] == 0) listas.push_back(regla);
        }
        return dentro;
    }

    void compruebaProductivas() {
        const Nombres productivas = cierre([](std::u16string_view) { return true; });
        for (const auto& [cabeza, reglas] : reglasDe_)
            if (esVariable(cabeza) && !productivas.contains(cabeza) && !pideIndefinida(reglas))
                anotaVariable(Codigo::VariableImproductiva, cabeza, {});
    }

    // What an undefined variable hides is told once it is defined.
    bool pideIndefinida(const std::vector<const ReglaEscrita*>& reglas) const {
        return std::ranges::any_of(reglas, [&](const ReglaEscrita* regla) {
            return std::ranges::any_of(regla->cuerpo, [&](const FuenteEspecificacion::Simbolo& s) {
                return esVariable(s.nombre) && !reglasDe_.contains(s.nombre);
            });
        });
    }

    // X → Y when a rule of X has Y and else only variables that can be empty.
    void compruebaCiclos() {
        const Nombres anulables = cierre([](std::u16string_view) { return false; });
        std::map<std::u16string_view, Nombres> llevan;
        for (const ReglaEscrita& regla : fuente_.reglas) {
            const auto anulable = [&](const FuenteEspecificacion::Simbolo& s) {
                return anulables.contains(s.nombre);
            };
            const auto noAnulables =
                regla.cuerpo.size() - static_cast<std::size_t>(std::ranges::count_if(regla.cuerpo, anulable));
            if (noAnulables > 1) continue;
            for (const FuenteEspecificacion::Simbolo& simbolo : regla.cuerpo)
                if (esVariable(simbolo.nombre) && (noAnulables == 0 || !anulable(simbolo)))
                    llevan[regla.cabeza.nombre].insert(simbolo.nombre);
        }
        Nombres dichas;
        for (const ReglaEscrita& regla : fuente_.reglas)
            if (!dichas.contains(regla.cabeza.nombre)) anotaCiclo(regla.cabeza.nombre, llevan, dichas);
    }

    // The shortest way from a variable back to itself.
    void anotaCiclo(std::u16string_view variable, const std::map<std::u16string_view, Nombres>& llevan,
                    Nombres& dichas) {
        std::map<std::u16string_view, std::u16string_view> desde;
        std::vector<std::u16string_view> cola{variable};
        for (std::size_t i = 0; i < cola.size() && !desde.contains(variable); ++i) {
            exigeSeguir(cancelacion_);
            const auto suyas = llevan.find(cola[i]);
            if (suyas == llevan.end()) continue;
            for (const std::u16string_view otra : suyas->second)
                if (desde.try_emplace(otra, cola[i]).second) cola.push_back(otra);
        }
        if (!desde.contains(variable)) return;
        std::u16string pasos(variable);
        std::u16string_view una = variable;
        do {
            una = desde[una];
            dichas.insert(una);
            pasos = std::u16string(una) + u" => " + pasos;
        } while (una != variable);
        anotaVariable(Codigo::Ciclo, variable, pasos);
    }

    const FuenteEspecificacion& fuente_;
    Metodo metodo_;
    const std::stop_token& cancelacion_;
    std::vector<Diagnostico>& hallazgos_;
    std::map<std::u16string_view, std::vector<const ReglaEscrita*>> reglasDe_;
};

} // namespace

void compruebaReglas(const FuenteEspecificacion& fuente, Metodo metodo, const std::stop_token& cancelacion,
                     std::vector<Diagnostico>& hallazgos) {
    if (!fuente.reglas.empty()) Revisor(fuente, metodo, cancelacion, hallazgos).revisa();
}

} // namespace norvik::inline v0_2
