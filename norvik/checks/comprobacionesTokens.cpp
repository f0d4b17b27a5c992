// SPDX-License-Identifier: MIT

// Whether a token ever wins is tried with texts of its pattern: each is recognised alone, by all definitions
// together, and the first that the token wins settles it. Nothing is claimed of a pattern without such texts.
#include "norvik/checks/comprobaciones.hpp"
#include "norvik/checks/muestrasPatron.hpp"

#include "norvik/base/palabras.hpp"
#include "norvik/lexer/defectoDefinicion.hpp"
#include "norvik/lexer/expansion.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/lexer/reconocedor.hpp"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using DefinicionEscrita = FuenteEspecificacion::Definicion;

constexpr auto plazoDePatrones = std::chrono::seconds(3); // for all tokens together

Diagnostico aviso(Codigo codigo, const Rango& lugar, Partes partes) {
    return {codigo, Gravedad::Aviso, lugar, std::move(partes)};
}

bool esComentario(const DefinicionEscrita& d) {
    return d.tipo == Norvik_ComentarioBloque || d.tipo == Norvik_ComentarioLinea;
}

void compruebaUsos(const FuenteEspecificacion& fuente, std::vector<Diagnostico>& hallazgos) {
    std::set<std::u16string_view> usados;
    for (const DefinicionEscrita& d : fuente.definiciones)
        for (const std::u16string_view nombre : referenciasDe(d.texto)) usados.insert(nombre);
    for (const FuenteEspecificacion::Regla& regla : fuente.reglas)
        for (const FuenteEspecificacion::Simbolo& simbolo : regla.cuerpo) usados.insert(simbolo.nombre);
    std::set<std::u16string_view> dichos;
    for (const DefinicionEscrita& d : fuente.definiciones) {
        const bool seUsa =
            usados.contains(d.nombre) || (d.esToken && (esComentario(d) || fuente.reglas.empty()));
        if (!seUsa && dichos.insert(d.nombre).second)
            hallazgos.push_back(aviso(d.esToken ? Codigo::TokenSinUsar : Codigo::AuxiliarSinUsar,
                                      d.lugarNombre, {d.nombre, {}, {}, {}}));
    }
}

void compruebaRepetidas(const FuenteEspecificacion& fuente, std::vector<Diagnostico>& hallazgos) {
    std::map<std::pair<std::u16string_view, std::u16string_view>, const DefinicionEscrita*> vistas;
    for (const DefinicionEscrita& d : fuente.definiciones) {
        const auto [sitio, nueva] = vistas.try_emplace({d.nombre, d.texto}, &d);
        if (nueva || !d.esToken) continue;
        hallazgos.push_back(aviso(Codigo::TokenRepetido, d.lugarNombre,
                                  {d.nombre, {}, {}, {{sitio->second->lugarNombre, d.nombre}}}));
    }
}

/// A text of a token that another one won.
struct Perdida {
    std::u16string texto;
    std::size_t ganador;
};

class Concurso {
public:
    // The budget outlives it.
    Concurso(const DefinicionesTokens& definiciones, const Presupuesto& presupuesto)
        : tokens_(definiciones.tokens()), reconocedor_(definiciones), presupuesto_(presupuesto) {}

    bool puedeNoTomarNada(std::size_t numero) const {
        const Emparejador& patron = *tokens_[numero]->expReg;
        return !patron.esPalabra() && !patron.ejecuta(u"", presupuesto_).empty();
    }

    // Nothing when a token wins one of its texts, or none of them is known.
    std::optional<Perdida> pierdeSiempre(std::size_t numero) {
        constexpr std::size_t muestras = 40;
        const expresionRegular& token = *tokens_[numero];
        std::optional<Perdida> perdida;
        const std::vector<std::u16string> textos =
            token.expReg->esPalabra()
                ? std::vector{token.expReg->texto()}
                : muestrasDe(token.expReg->texto(), token.expReg->ignoraMayusculas(), muestras, presupuesto_);
        for (const std::u16string& texto : textos) {
            const std::size_t ganador = gana(texto);
            if (tokens_[ganador]->nomToken == token.nomToken) return std::nullopt;
            if (!perdida || esMasLegible(texto, perdida->texto)) perdida = {texto, ganador};
        }
        return perdida;
    }

private:
    std::size_t gana(std::u16string_view texto) {
        reconocedor_.reconoce(texto, presupuesto_, mapa_);
        return static_cast<std::size_t>(mapa_.en(0)->patron); // one that takes the text was found in it
    }

    const std::vector<const expresionRegular*>& tokens_;
    Reconocedor reconocedor_;
    const Presupuesto& presupuesto_;
    MapaCoincidencias mapa_;
};

// Narrows what compiling told of a definition to the place in it that is wrong, and says why.
void situaDefecto(const DefinicionEscrita& d, const DefinicionesTokens& anteriores,
                  std::vector<Diagnostico>& hallazgos) {
    const auto defecto = defectoDeDefinicion(d.texto, anteriores);
    const auto suyo = std::ranges::find(hallazgos, d.lugarTexto, &Diagnostico::rango);
    if (!defecto || suyo == hallazgos.end()) return;
    const bool esEscape = d.texto.substr(defecto->lugar).starts_with(u'\\');
    const std::size_t largo = std::min<std::size_t>(esEscape ? 2 : 1, d.texto.size() - defecto->lugar);
    suyo->rango = d.lugarDe(defecto->lugar, largo);
    suyo->partes.relacionados.push_back({suyo->rango, std::u16string(palabras::motivo(defecto->motivo))});
}

// A token whose pattern can take nothing, or that never wins.
void compruebaPatron(std::size_t numero, const std::vector<const DefinicionEscrita*>& deToken,
                     Concurso& concurso, std::vector<Diagnostico>& hallazgos) {
    const DefinicionEscrita& d = *deToken[numero];
    if (concurso.puedeNoTomarNada(numero))
        hallazgos.push_back(aviso(Codigo::PatronVacio, d.lugarTexto, {d.nombre, {}, {}, {}}));
    const auto perdida = concurso.pierdeSiempre(numero);
    if (!perdida) return;
    const DefinicionEscrita& ganador = *deToken[perdida->ganador];
    hallazgos.push_back(
        aviso(Codigo::TokenTapado, d.lugarNombre,
              {d.nombre, perdida->texto, {ganador.nombre}, {{ganador.lugarNombre, ganador.nombre}}}));
}

void compruebaPatrones(const FuenteEspecificacion& fuente, bool sensible, const std::stop_token& cancelacion,
                       std::vector<Diagnostico>& hallazgos) {
    pilaTokens lexico;
    std::vector<const DefinicionEscrita*> deToken; // of each token of the lexer
    for (const DefinicionEscrita& d : fuente.definiciones) {
        exigeSeguir(cancelacion);
        const bool registrada =
            !lexico.registra({d.texto, d.nombre, d.esToken, sensible, d.pseudoToken, d.tipo});
        if (!registrada) situaDefecto(d, lexico.definiciones(), hallazgos);
        if (registrada && d.esToken && lexico.expresionesRegulares().back()->llevaControles())
            hallazgos.push_back(aviso(Codigo::CaracterDeControl, d.lugarTexto, {d.nombre, {}, {}, {}}));
        if (registrada && d.esToken) deToken.push_back(&d);
    }
    const Presupuesto presupuesto(plazoDePatrones, cancelacion);
    Concurso concurso(lexico.definiciones(), presupuesto);
    for (std::size_t i = 0; i < deToken.size(); ++i) {
        try {
            presupuesto.exige();
            compruebaPatron(i, deToken, concurso, hallazgos);
        } catch (const BusquedaDesbocada&) {
            if (!presupuesto.agotado()) throw;
            const DefinicionEscrita& d = *deToken[i];
            return hallazgos.push_back(
                aviso(Codigo::BusquedaDesbocada, d.lugarTexto, {d.nombre, {}, {}, {}}));
        }
    }
}

} // namespace

void compruebaTokens(const FuenteEspecificacion& fuente, const Directivas& directivas,
                     const std::stop_token& cancelacion, std::vector<Diagnostico>& hallazgos) {
    compruebaUsos(fuente, hallazgos);
    compruebaRepetidas(fuente, hallazgos);
    try {
        compruebaPatrones(fuente, directivas.distingueMayusculas, cancelacion, hallazgos);
    } catch (const Desbordamiento&) {
        return; // compiling tells which capacity was passed, and a text that runs away proves nothing
    }
}

} // namespace norvik::inline v0_2
