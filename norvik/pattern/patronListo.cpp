// SPDX-License-Identifier: MIT

// Making a pattern ready: one pass over its pieces, with the open groups on a stack.
//
// Lexers are written with references to other definitions, so that an identifier arrives as L([0-9]|L)*. As
// long as nothing refers to a capture, a group of alternatives of one unit each is a class, a group without
// alternatives and without repetition is its body, and a capture is a plain group: matches stay what they
// were, in the same order.
#include "norvik/pattern/patronListo.hpp"

#include "norvik/pattern/mayusculas.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

// Counts are spelled out up to this many copies, while the whole has no more pieces than that.
constexpr std::uint32_t copiasMaximas = 64;
constexpr std::size_t piezasMaximas = 4000;

bool esSencilla(const Repeticion& r) {
    return r.esUna() || (r.minimo <= 1 && r.maximo == Repeticion::sinLimite) ||
           (r.minimo == 0 && r.maximo == 1);
}

class Reduce {
public:
    Reduce(const Patron& patron, PatronListo& listo) : patron_(patron), listo_(listo) {
        for (const ClaseLeida& clase : patron.clases)
            listo.clases.emplace_back(clase, patron.ignoraMayusculas);
        for (const Pieza& pieza : patron.piezas) reduce(pieza);
        for (std::size_t i = 0; i < piezas_.size(); ++i)
            if (!sobra_[i]) listo.piezas.push_back(piezas_[i]);
        enlaza(listo.piezas);
    }

private:
    struct GrupoAbierto {
        std::size_t abre;
        bool tieneAlternativas = false;
        bool deUnaUnidad = true; // so far, units and bars in turn
        bool tocaUnidad = true;
    };

    void reduce(const Pieza& pieza);
    void reduceUnidad(Pieza pieza);
    void cierra(const Pieza& pieza);
    void alternativa(const Pieza& pieza);
    Pieza funde(const GrupoAbierto& grupo);
    void aniade(const Pieza& pieza) {
        piezas_.push_back(pieza);
        sobra_.push_back(false);
    }
    void anota(bool esUnidad);

    const Patron& patron_;
    PatronListo& listo_;
    std::vector<Pieza> piezas_;
    std::vector<bool> sobra_; // brackets that go
    std::vector<GrupoAbierto> abiertos_;
};

void Reduce::reduce(const Pieza& pieza) {
    switch (pieza.tipo) {
    case TipoPieza::Unidad:
    case TipoPieza::Clase:
        return reduceUnidad(pieza);
    case TipoPieza::Abre:
        abiertos_.push_back({piezas_.size()});
        return aniade(pieza);
    case TipoPieza::Alternativa:
        return alternativa(pieza);
    case TipoPieza::Cierra:
        return cierra(pieza);
    case TipoPieza::Inicio:
    case TipoPieza::Final:
    case TipoPieza::Frontera:
    case TipoPieza::NoFrontera:
    case TipoPieza::Referencia:
        anota(false);
        return aniade(pieza);
    }
}

// Tells the open group what stands in it now.
void Reduce::anota(bool esUnidad) {
    if (abiertos_.empty()) return;
    GrupoAbierto& grupo = abiertos_.back();
    grupo.deUnaUnidad = grupo.deUnaUnidad && esUnidad && grupo.tocaUnidad;
    grupo.tocaUnidad = false;
}

void Reduce::alternativa(const Pieza& pieza) {
    GrupoAbierto& grupo = abiertos_.back();
    grupo.deUnaUnidad = grupo.deUnaUnidad && !grupo.tocaUnidad;
    grupo.tocaUnidad = true;
    grupo.tieneAlternativas = true;
    aniade(pieza);
}

void Reduce::reduceUnidad(Pieza pieza) {
    if (pieza.tipo == TipoPieza::Unidad && patron_.ignoraMayusculas && !equivalentes(pieza.unidad).empty()) {
        pieza.tipo = TipoPieza::Clase;
        pieza.numero = static_cast<std::uint32_t>(listo_.clases.size());
        listo_.clases.push_back(ClaseUnidades::deUnidad(pieza.unidad, true));
    }
    anota(pieza.repeticion.esUna());
    const Repeticion r = pieza.repeticion;
    const bool sinLimite = r.maximo == Repeticion::sinLimite;
    const std::uint32_t copias = sinLimite ? r.minimo : r.maximo;
    if (esSencilla(r) || copias == 0 || copias > copiasMaximas || piezas_.size() + copias > piezasMaximas)
        return aniade(pieza);
    for (std::uint32_t copia = 1; copia <= copias; ++copia) {
        const bool ultima = copia == copias && sinLimite;
        pieza.repeticion = {copia <= r.minimo ? 1U : 0U, ultima ? Repeticion::sinLimite : 1U, r.perezosa};
        aniade(pieza);
    }
}

void Reduce::cierra(const Pieza& pieza) {
    const GrupoAbierto grupo = abiertos_.back();
    abiertos_.pop_back();
    const bool soloEnvuelve = !abiertos_.empty() && !pieza.miraDelante() && !patron_.tieneReferencias;
    if (soloEnvuelve && grupo.deUnaUnidad && !grupo.tocaUnidad) {
        const Repeticion repeticion = piezas_[grupo.abre].repeticion;
        Pieza fundida = funde(grupo);
        fundida.repeticion = repeticion;
        return reduceUnidad(fundida);
    }
    anota(false);
    aniade(pieza);
    if (!soloEnvuelve) return;
    sobra_[grupo.abre] = sobra_.back() = !grupo.tieneAlternativas && piezas_[grupo.abre].repeticion.esUna();
    piezas_[grupo.abre].grupo = piezas_.back().grupo = TipoGrupo::SinCaptura;
}

// Replaces a group of alternatives of one unit by one piece, not yet in the list.
Pieza Reduce::funde(const GrupoAbierto& grupo) {
    const auto contenido = piezas_.begin() + static_cast<std::ptrdiff_t>(grupo.abre) + 1;
    Pieza fundida = *contenido;
    if (grupo.tieneAlternativas) {
        std::vector<RangoUnidades> rangos;
        for (auto pieza = contenido; pieza != piezas_.end(); ++pieza) {
            if (pieza->tipo == TipoPieza::Unidad) rangos.push_back({pieza->unidad, pieza->unidad});
            if (pieza->tipo != TipoPieza::Clase) continue;
            const std::vector<RangoUnidades>& suyos = listo_.clases[pieza->numero].rangos();
            rangos.insert(rangos.end(), suyos.begin(), suyos.end());
        }
        fundida.tipo = TipoPieza::Clase;
        fundida.numero = static_cast<std::uint32_t>(listo_.clases.size());
        listo_.clases.emplace_back(std::move(rangos));
    }
    piezas_.resize(grupo.abre);
    sobra_.resize(grupo.abre);
    return fundida;
}

// The first units of a group: of its alternatives, and of the one being read while what came can be empty.
struct Primeras {
    std::size_t abre;
    std::vector<RangoUnidades> rangos;
    bool sigueVacia = true;
    bool algunaVacia = false;
};

void aniade(std::vector<RangoUnidades>& destino, std::vector<RangoUnidades> origen) {
    if (destino.empty()) {
        destino = std::move(origen);
    } else {
        destino.insert(destino.end(), origen.begin(), origen.end());
    }
}

} // namespace

PatronListo::PatronListo(const Patron& patron)
    : capturas(patron.capturas), tieneReferencias(patron.tieneReferencias),
      ignoraMayusculas(patron.ignoraMayusculas) {
    Reduce(patron, *this);
}

std::optional<ClaseUnidades> PatronListo::primeras() const {
    std::vector<Primeras> abiertos;
    for (std::size_t i = 0; i < piezas.size(); ++i) {
        const Pieza& pieza = piezas[i];
        if (pieza.tipo == TipoPieza::Abre) {
            abiertos.push_back({i, {}});
            continue;
        }
        Primeras& grupo = abiertos.back();
        if (pieza.tipo == TipoPieza::Alternativa || pieza.tipo == TipoPieza::Cierra) {
            grupo.algunaVacia = grupo.algunaVacia || grupo.sigueVacia;
            grupo.sigueVacia = true;
        } else if (grupo.sigueVacia && pieza.tipo == TipoPieza::Referencia) {
            return std::nullopt;
        } else if (grupo.sigueVacia && pieza.esDeUnaUnidad()) {
            const bool esClase = pieza.tipo == TipoPieza::Clase;
            aniade(grupo.rangos, esClase ? clases[pieza.numero].rangos()
                                         : std::vector<RangoUnidades>{{pieza.unidad, pieza.unidad}});
            grupo.sigueVacia = pieza.repeticion.minimo == 0;
        }
        if (pieza.tipo != TipoPieza::Cierra) continue;
        Primeras cerrado = std::move(grupo);
        abiertos.pop_back();
        if (abiertos.empty()) {
            if (cerrado.algunaVacia) return std::nullopt;
            return ClaseUnidades(std::move(cerrado.rangos));
        }
        Primeras& padre = abiertos.back();
        if (pieza.miraDelante() || !padre.sigueVacia) continue;
        aniade(padre.rangos, std::move(cerrado.rangos));
        padre.sigueVacia = cerrado.algunaVacia || piezas[cerrado.abre].repeticion.minimo == 0;
    }
    return std::nullopt;
}

} // namespace norvik::inline v0_2
