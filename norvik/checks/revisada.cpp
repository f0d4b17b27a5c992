// SPDX-License-Identifier: MIT

#include "norvik/checks/revisada.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/lugares.hpp"
#include "norvik/checks/comprobaciones.hpp"
#include "norvik/checks/contrasteClasico.hpp"
#include "norvik/checks/nombreCercano.hpp"
#include "norvik/pattern/patronClase.hpp"
#include "norvik/spec/compiladorLenguaje.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <stop_token>
#include <string>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

std::vector<std::u16string> cabezasDe(const FuenteEspecificacion& fuente) {
    std::vector<std::u16string> nombres;
    for (const FuenteEspecificacion::Regla& regla : fuente.reglas) nombres.push_back(regla.cabeza.nombre);
    return nombres;
}

std::vector<std::u16string> definidosEn(const FuenteEspecificacion& fuente, bool soloTokens) {
    std::vector<std::u16string> nombres;
    for (const FuenteEspecificacion::Definicion& d : fuente.definiciones)
        if (d.esToken || !soloTokens) nombres.push_back(d.nombre);
    return nombres;
}

// Says of names that nobody knows where they stand and which ones were perhaps meant: heads for a variable,
// tokens for a token, definitions for a reference.
class Completador {
public:
    Completador(const FuenteEspecificacion& fuente, const std::stop_token& cancelacion)
        : cabezas_(cabezasDe(fuente), cancelacion), tokens_(definidosEn(fuente, true), cancelacion),
          definiciones_(definidosEn(fuente, false), cancelacion) {
        for (const FuenteEspecificacion::Definicion& d : fuente.definiciones) {
            porNombre_[d.nombre].push_back(&d);
            porLugar_[d.lugarTexto.inicio.desplazamiento] = &d;
        }
    }

    void completa(Diagnostico& diagnostico) {
        const Codigo codigo = diagnostico.codigo;
        const bool esReferencia = codigo == Codigo::ReferenciaDesconocida;
        if (esReferencia) situaReferencia(diagnostico);
        const bool estaDefinido = esReferencia && !diagnostico.partes.relacionados.empty();
        if (estaDefinido) return;
        if (esReferencia) sugiere(definiciones_, diagnostico);
        if (codigo == Codigo::VariableIndefinida) sugiere(cabezas_, diagnostico);
        if (codigo == Codigo::TokenIndefinido) sugiere(tokens_, diagnostico);
    }

private:
    using Definicion = FuenteEspecificacion::Definicion;

    static void sugiere(NombresConocidos& conocidos, Diagnostico& diagnostico) {
        const auto cercano = conocidos.cercanoA(diagnostico.partes.hallado);
        if (!cercano.empty()) diagnostico.partes.esperados = {cercano};
    }

    // Narrows an unknown reference to its place between the quotes, and says where the name is defined.
    void situaReferencia(Diagnostico& diagnostico) const {
        const std::u16string& referencia = diagnostico.partes.hallado;
        if (const auto suyas = porNombre_.find(referencia); suyas != porNombre_.end())
            for (const Definicion* const d : suyas->second)
                diagnostico.partes.relacionados.push_back({d->lugarNombre, d->nombre});
        const auto cual = porLugar_.find(diagnostico.rango.inicio.desplazamiento);
        if (cual == porLugar_.end()) return;
        const std::size_t sitio = cual->second->texto.find(u'<' + referencia + u'>');
        if (sitio != std::u16string::npos)
            diagnostico.rango = cual->second->lugarDe(sitio, referencia.size() + 2);
    }

    NombresConocidos cabezas_;
    NombresConocidos tokens_;
    NombresConocidos definiciones_;
    std::map<std::u16string_view, std::vector<const Definicion*>> porNombre_;
    std::map<std::int32_t, const Definicion*> porLugar_; // of the text
};

bool esDeNombre(char16_t c) {
    constexpr std::u16string_view separadores = u" \t\r\n;|,=()\"'{}<>";
    return separadores.find(c) == std::u16string_view::npos;
}

// A wrong character among letters is one of a name, which is then told whole. Nobody writes one that is
// longer than what is looked at on both sides.
void ensanchaANombre(Diagnostico& diagnostico, std::u16string_view especificacion, const Lugares& lugares) {
    if (diagnostico.codigo != Codigo::CaracterIncorrecto) return;
    constexpr std::size_t maximo = 1000;
    const auto sitio = static_cast<std::size_t>(diagnostico.rango.inicio.desplazamiento);
    std::size_t fin = sitio;
    while (fin < especificacion.size() && fin - sitio < maximo && esDeNombre(especificacion[fin])) ++fin;
    std::size_t inicio = sitio;
    while (inicio > 0 && sitio - inicio < maximo && esDeNombre(especificacion[inicio - 1])) --inicio;
    const std::u16string_view nombre = especificacion.substr(inicio, fin - inicio);
    const auto esLetra = [](char16_t c) { return tiene(PropiedadDeUnidad::Letra, c); };
    if (std::ranges::none_of(nombre, esLetra)) return;
    diagnostico.codigo = Codigo::NombreIncorrecto;
    diagnostico.partes.nombre = nombre;
    diagnostico.partes.esperados.clear();
    diagnostico.rango = lugares.rango(inicio, fin);
}

// One that has several wrong characters is told once.
void situaNombres(std::vector<Diagnostico>& hallazgos, std::u16string_view especificacion) {
    const Lugares lugares(especificacion, Lugares::Unidad::Utf16);
    for (Diagnostico& hallazgo : hallazgos) ensanchaANombre(hallazgo, especificacion, lugares);
    const auto esElMismo = [](const Diagnostico& uno, const Diagnostico& otro) {
        return uno.codigo == Codigo::NombreIncorrecto && otro.codigo == uno.codigo && uno.rango == otro.rango;
    };
    hallazgos.erase(std::unique(hallazgos.begin(), hallazgos.end(), esElMismo), hallazgos.end());
}

LugaresReglas lugaresDe(const FuenteEspecificacion& fuente) {
    LugaresReglas lugares;
    for (const FuenteEspecificacion::Regla& regla : fuente.reglas) {
        lugares.cabezas.push_back(regla.cabeza.lugar);
        lugares.cuerpos.push_back(regla.lugar);
    }
    return lugares;
}

// One step changes the language: a line at its head, or another value in the one that is there.
void ofreceMetodo(std::u16string_view especificacion, std::vector<Diagnostico>& apartados) {
    std::size_t inicio = 0;
    std::size_t fin = 0;
    for (const LineaDirectiva& linea : lineasDeDirectivas(cabecera(especificacion)))
        if (linea.palabra == u"metodo") inicio = linea.inicio, fin = linea.fin;
    const Rango lugar = Lugares(especificacion, Lugares::Unidad::Utf16).rango(inicio, fin);
    for (Diagnostico& diagnostico : apartados) {
        const bool esFrase =
            diagnostico.codigo == Codigo::FraseRechazada || diagnostico.codigo == Codigo::FraseDeMas;
        if (esFrase && diagnostico.partes.esperados.empty()) continue; // no method knows better
        const std::u16string directiva =
            u"'% metodo: " + (esFrase ? diagnostico.partes.esperados.front() : u"lalr");
        diagnostico.partes.arreglos.push_back(
            {u"Poner la línea " + directiva + u" al principio",
             {{lugar, inicio == fin ? directiva + u"\n" : directiva, false}}});
    }
}

} // namespace

const gramatica* Revisada::laGramatica() const {
    return lenguaje && lenguaje->tieneGramatica() ? &lenguaje->datos().reglas : nullptr;
}

namespace {

// What compiling has not told.
void revisaCompilada(std::u16string_view especificacion, const OpcionesCompilacion& opciones,
                     Revisada& revision) {
    const FuenteEspecificacion& fuente = revision.fuente;
    const Directivas& directivas = revision.directivas;
    std::vector<Diagnostico>& hallazgos = revision.hallazgos;
    Completador completador(fuente, opciones.cancelacion);
    for (Diagnostico& diagnostico : hallazgos) completador.completa(diagnostico);
    compruebaDirectivas(especificacion, fuente, directivas, opciones.cancelacion, hallazgos);
    compruebaTokens(fuente, directivas, opciones.cancelacion, hallazgos);
    compruebaReglas(fuente, directivas.tabla.metodo, opciones.cancelacion, hallazgos);
    const gramatica* const g = revision.laGramatica();
    if (g == nullptr || directivas.tabla.metodo != Metodo::Clasico) return;
    auto apartados = contrastaClasico(g->valores(), lugaresDe(fuente), opciones.cancelacion);
    if (!opciones.metodo) ofreceMetodo(especificacion, apartados);
    std::ranges::move(apartados, std::back_inserter(hallazgos));
}

} // namespace

Revisada revisada(std::u16string_view especificacion, const OpcionesCompilacion& opciones,
                  ErroresBuscados errores) {
    Revisada revision;
    revision.directivas = directivasDe(especificacion, opciones, Lugares::Unidad::Utf16);
    Analisis analisis =
        analiza(lenguajeDeEspecificaciones(), especificacion, {opciones.cancelacion, errores});
    if (!analisis) {
        revision.hallazgos = std::move(analisis.diagnosticos);
        situaNombres(revision.hallazgos, especificacion);
        return revision;
    }
    Compilacion compilacion = compilaEspecificacion(analisis, revision.directivas, opciones.cancelacion);
    std::vector<Diagnostico>& hallazgos = revision.hallazgos;
    hallazgos = std::move(compilacion.diagnosticos);
    revision.lenguaje = std::move(compilacion.lenguaje);
    if (!hallazgos.empty() && hallazgos.back().codigo == Codigo::Cancelado) return revision;
    revision.fuente = fuenteDe(analisis);
    try {
        revisaCompilada(especificacion, opciones, revision);
    } catch (const OperacionCancelada&) {
        hallazgos.push_back({Codigo::Cancelado, Gravedad::Error, {}, {}});
    }
    return revision;
}

void ordena(std::vector<Diagnostico>& hallazgos) {
    std::ranges::stable_sort(hallazgos, {},
                             [](const Diagnostico& d) { return d.rango.inicio.desplazamiento; });
}

} // namespace norvik::inline v0_2
