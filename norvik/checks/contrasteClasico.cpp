// SPDX-License-Identifier: MIT

// The exact SLR table of the same rules is made beside the classic one. Their states differ, so conflicts are
// compared by what they choose from: a token and two actions. Sets are compared by head, texts by running the
// classic table and Earley's recogniser side by side (frasesDistintas): most grammars need not, since their
// classic table is the exact one, and that is without conflicts.
#include "norvik/checks/contrasteClasico.hpp"
#include "norvik/checks/cuentaConflictos.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/checks/curaConflicto.hpp"
#include "norvik/checks/frasesDistintas.hpp"
#include "norvik/checks/mismaTabla.hpp"
#include "norvik/checks/pruebaTabla.hpp"
#include "norvik/grammar/exacto/genera.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

/// Token and both actions, the smaller first: a rule, 0 for a shift, −1 for accepting.
using Firma = std::tuple<std::u16string, int, int>;

Firma firmaDe(const TablaLR& tabla, const Conflicto& conflicto) {
    const std::int16_t queda = tabla.entrada(static_cast<std::int16_t>(conflicto.fila - 1),
                                             static_cast<std::int16_t>(conflicto.columna - 1));
    int otra = 0;
    if (queda == TablaLR::aceptar) otra = -1;
    if (queda < 0) otra = -queda;
    const int perdida = conflicto.regla;
    return {std::u16string(tabla.simbolo(conflicto.columna)), std::min(otra, perdida),
            std::max(otra, perdida)};
}

std::set<Firma> firmas(const TablaLR& tabla) {
    std::set<Firma> todas;
    for (const Conflicto& conflicto : tabla.conflictos()) todas.insert(firmaDe(tabla, conflicto));
    return todas;
}

Rango lugarDe(const std::vector<Rango>& lugares, std::int16_t regla) {
    const auto i = static_cast<std::size_t>(regla) - 1;
    return regla > 0 && i < lugares.size() ? lugares[i] : Rango{};
}

std::u16string junta(const std::vector<std::u16string>& partes, std::u16string_view entre) {
    std::u16string texto;
    for (const std::u16string& parte : partes) texto.append(texto.empty() ? u"" : entre).append(parte);
    return texto;
}

class Contraste {
public:
    Contraste(const GramaticaLR& clasica, const LugaresReglas& lugares, const std::stop_token& cancelacion)
        : clasica_(clasica), lugares_(lugares), cancelacion_(cancelacion),
          exacta_(exacto::genera(clasica.reglas, {Metodo::Slr, {}}, cancelacion)) {}

    std::vector<Diagnostico> contrasta() {
        contrastaConjuntos(Codigo::PrimerosDistintos, clasica_.conjuntos.primeros,
                           exacta_.conjuntos.primeros);
        contrastaConjuntos(Codigo::SiguientesDistintos, clasica_.conjuntos.siguientes,
                           exacta_.conjuntos.siguientes);
        contrastaConflictos();
        contrastaFrases();
        return std::move(diagnosticos_);
    }

private:
    void anota(Codigo codigo, const Rango& lugar, Partes partes) {
        diagnosticos_.push_back({codigo, Gravedad::Aviso, lugar, std::move(partes)});
    }

    std::vector<std::u16string> textos(const ConjuntoNumerado& conjunto, const ReglasPartidas& reglas) const {
        std::vector<std::u16string> lista;
        for (const Simbolo simbolo : conjunto.elementos) lista.emplace_back(reglas.texto(simbolo));
        std::ranges::sort(lista);
        return lista;
    }
    std::int16_t primeraRegla(std::u16string_view cabeza) const {
        for (int regla = 1; regla <= clasica_.reglas.total(); ++regla)
            if (clasica_.reglas.en(regla).cabeza == cabeza) return static_cast<std::int16_t>(regla);
        return 0;
    }

    // Of two sets of one head the first counts, as for whoever looks one up.
    void contrastaConjuntos(Codigo codigo, const std::vector<ConjuntoNumerado>& suyos,
                            const std::vector<ConjuntoNumerado>& exactos) {
        std::map<std::u16string_view, const ConjuntoNumerado*> deCabeza;
        for (const ConjuntoNumerado& suyo : suyos)
            deCabeza.try_emplace(clasica_.partidas.texto(suyo.nombre), &suyo);
        for (const ConjuntoNumerado& exacto : exactos) {
            const std::u16string_view cabeza = exacta_.partidas.texto(exacto.nombre);
            const auto sitio = deCabeza.find(cabeza);
            if (sitio == deCabeza.end() || !exacta_.partidas.esVariable(exacto.nombre)) continue;
            const auto tiene = textos(*sitio->second, clasica_.partidas);
            auto esperados = textos(exacto, exacta_.partidas);
            if (tiene != esperados)
                anota(codigo, lugarDe(lugares_.cabezas, primeraRegla(cabeza)),
                      {std::u16string(cabeza), junta(tiene, u", "), std::move(esperados), {}});
        }
    }

    void contrastaConflictos() {
        const std::set<Firma> apuntados = firmas(clasica_.tabla);
        for (const Conflicto& conflicto : exacta_.tabla.conflictos()) {
            const Firma firma = firmaDe(exacta_.tabla, conflicto);
            if (apuntados.contains(firma)) continue;
            anota(Codigo::ConflictoCallado, lugarDe(lugares_.cuerpos, conflicto.regla),
                  {std::get<0>(firma), textoDeRegla(exacta_.partidas, conflicto.regla), {}, {}});
        }
    }

    void contrastaFrases() {
        if (exacta_.tabla.conflictos().empty() && esLaMismaTabla(clasica_.tabla, exacta_.tabla)) return;
        const exacto::Producciones producciones(exacta_.partidas, cancelacion_);
        const FrasesDistintas frases = buscaFrasesDistintas(clasica_.reglas, producciones, clasica_.tabla);
        if (frases.rechazada) anotaFrase(Codigo::FraseRechazada, *frases.rechazada);
        if (frases.deMas) anotaFrase(Codigo::FraseDeMas, *frases.deMas);
    }
    void anotaFrase(Codigo codigo, const std::vector<std::u16string>& frase) {
        Partes partes;
        partes.hallado = frase.empty() ? u"(el texto vacío)" : junta(frase, u" ");
        if (const auto metodo = metodoQueAcierta(codigo == Codigo::FraseRechazada, frase); !metodo.empty())
            partes.esperados = {metodo};
        anota(codigo, lugarDe(lugares_.cabezas, 1), std::move(partes));
    }

    std::u16string metodoQueAcierta(bool esDeLaGramatica, const std::vector<std::u16string>& frase) const {
        for (const auto& [nombre, metodo] : metodos) {
            if (metodo == Metodo::Clasico || metodo == Metodo::Slr) continue;
            try {
                const GramaticaLR otra = exacto::genera(clasica_.reglas, {metodo, {}}, cancelacion_);
                if (arbolPorTabla(otra.tabla, otra.reglas, frase).has_value() == esDeLaGramatica)
                    return std::u16string(nombre);
            } catch (const OperacionCancelada&) {
                throw;
            } catch (const ErrorNorvik&) { // it has no table
            }
        }
        return {};
    }

    const GramaticaLR& clasica_;
    const LugaresReglas& lugares_;
    const std::stop_token& cancelacion_;
    GramaticaLR exacta_;
    std::vector<Diagnostico> diagnosticos_;
};

} // namespace

std::vector<Diagnostico> contrastaClasico(const GramaticaLR& clasica, const LugaresReglas& lugares,
                                          const std::stop_token& cancelacion) {
    try {
        return Contraste(clasica, lugares, cancelacion).contrasta();
    } catch (const OperacionCancelada&) {
        throw;
    } catch (const ErrorNorvik&) {
        return {}; // too large for an exact method: there is nothing to compare with
    }
}

ConflictosClasicos cuentaConflictosClasicos(const GramaticaLR& clasica, const LimitesHistorias& limites) {
    ConflictosClasicos todos;
    try {
        const GramaticaLR exacta = exacto::genera(clasica.reglas, {Metodo::Slr, {}}, limites.cancelacion);
        const std::set<Firma> apuntados = firmas(clasica.tabla);
        std::map<Firma, HistoriaConflicto> conocidas;
        auto historias = cuentaConflictos(exacta, {Metodo::Slr, {}}, clasica.tabla, limites);
        for (std::size_t i = 0; i < historias.size(); ++i) {
            historias[i].estado = HistoriaConflicto::sinEstado;
            const Firma firma = firmaDe(exacta.tabla, exacta.tabla.conflictos()[i]);
            if (apuntados.contains(firma))
                conocidas.try_emplace(firma, std::move(historias[i]));
            else
                todos.callados.push_back(std::move(historias[i]));
        }
        std::tuple<int, int> celda;
        for (const Conflicto& conflicto : clasica.tabla.conflictos()) {
            if (!clasica.tabla.enConflicto(conflicto.fila, conflicto.columna)) continue;
            const std::tuple<int, int> suya(conflicto.fila, conflicto.columna);
            if (std::exchange(celda, suya) != suya) todos.apuntados.emplace_back();
            const auto sitio = conocidas.find(firmaDe(clasica.tabla, conflicto));
            if (sitio == conocidas.end()) continue;
            todos.apuntados.back().push_back(sitio->second);
            todos.apuntados.back().back().estado = static_cast<std::int16_t>(conflicto.fila - 1);
        }
    } catch (const ErrorNorvik&) { // too large for an exact method, or cancelled
    }
    return todos;
}

} // namespace norvik::inline v0_2
