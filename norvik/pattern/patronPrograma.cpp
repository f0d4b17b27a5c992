// SPDX-License-Identifier: MIT

// A pattern assembled into a program, in one pass over its pieces.
//
// A repetition whose body always takes something and that counts no more than "none or one at least" is a
// branch and a jump; any other is a loop that counts its turns, remembers where each began and forgets the
// captures of its body.
#include "norvik/pattern/patronPrograma.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

// Assembles the program in one pass over the pieces.
class Ensambla {
public:
    Ensambla(Programa& programa, const PatronListo& patron) : p_(programa), patron_(patron) {
        if (patron.tieneReferencias) p_.registros = 2 * (patron.capturas + 1);
        std::uint32_t abiertas = 0;
        for (const Pieza& pieza : patron.piezas) {
            abiertasAntes_.push_back(abiertas);
            if (pieza.tipo == TipoPieza::Abre && pieza.grupo == TipoGrupo::Captura) ++abiertas;
        }
        for (const Pieza& pieza : patron.piezas) ensambla(pieza);
        emite(Operacion::Acepta);
    }

private:
    // A repetition under way: where it starts and, if it needs one, its loop.
    struct EnCurso {
        std::uint32_t inicio = 0;
        std::optional<std::uint32_t> bucle;
    };
    struct GrupoAbierto {
        EnCurso repeticion;
        std::uint32_t delante = 0; // registers and instruction of a look-ahead
        std::uint32_t abre = 0;
        std::optional<std::uint32_t> prueba; // the branch to the next alternative
        std::vector<std::uint32_t> saltos;   // from the ends of alternatives to that of the group
    };

    std::uint32_t aqui() const { return static_cast<std::uint32_t>(p_.codigo.size()); }
    void emite(Operacion operacion, std::uint32_t a = 0) { p_.codigo.push_back({operacion, a}); }
    void ensambla(const Pieza& pieza);
    void abre(const Pieza& pieza);
    void alternativa(const Pieza& pieza);
    void cierra(const Pieza& pieza);
    void empiezaAlternativa(const Pieza& pieza);
    EnCurso abreRepeticion(const Pieza& pieza);
    void cierraRepeticion(const Repeticion& repeticion, const EnCurso& enCurso);
    bool necesitaBucle(const Pieza& pieza) const;
    std::uint32_t nuevoBucle(const Pieza& pieza);
    struct Capturas { // numbers from `desde` on, up to `hasta`
        std::uint32_t desde = 0;
        std::uint32_t hasta = 0;
    };
    Capturas capturasDentro(const Pieza& pieza) const;

    Programa& p_;
    const PatronListo& patron_;
    std::vector<GrupoAbierto> abiertos_;
    std::vector<std::uint32_t> abiertasAntes_; // captures opened before each piece
};

void Ensambla::ensambla(const Pieza& pieza) {
    const auto suelta = [&](Operacion operacion, std::uint32_t a) {
        const EnCurso enCurso = abreRepeticion(pieza);
        emite(operacion, a);
        cierraRepeticion(pieza.repeticion, enCurso);
    };
    switch (pieza.tipo) {
    case TipoPieza::Unidad:
        return suelta(Operacion::Unidad, pieza.unidad);
    case TipoPieza::Clase:
        return suelta(Operacion::Clase, pieza.numero);
    case TipoPieza::Referencia:
        return suelta(Operacion::Referencia, pieza.numero);
    case TipoPieza::Inicio:
        return emite(Operacion::Inicio);
    case TipoPieza::Final:
        return emite(Operacion::Final);
    case TipoPieza::Frontera:
        return emite(Operacion::Frontera);
    case TipoPieza::NoFrontera:
        return emite(Operacion::NoFrontera);
    case TipoPieza::Abre:
        return abre(pieza);
    case TipoPieza::Alternativa:
        return alternativa(pieza);
    case TipoPieza::Cierra:
        return cierra(pieza);
    }
}

void Ensambla::abre(const Pieza& pieza) {
    GrupoAbierto grupo;
    grupo.repeticion = abreRepeticion(pieza);
    if (pieza.miraDelante()) {
        grupo.delante = p_.registros;
        grupo.abre = aqui();
        p_.registros += 2;
        emite(pieza.grupo == TipoGrupo::Delante ? Operacion::AbreDelante : Operacion::AbreDelanteNo,
              grupo.delante);
    } else if (pieza.grupo == TipoGrupo::Captura && patron_.tieneReferencias) {
        emite(Operacion::Guarda, 2 * pieza.numero);
    }
    abiertos_.push_back(std::move(grupo));
    empiezaAlternativa(pieza);
}

void Ensambla::empiezaAlternativa(const Pieza& pieza) {
    if (patron_.piezas[pieza.siguiente].tipo != TipoPieza::Alternativa) return;
    abiertos_.back().prueba = aqui();
    emite(Operacion::Prueba);
}

void Ensambla::alternativa(const Pieza& pieza) {
    GrupoAbierto& grupo = abiertos_.back();
    grupo.saltos.push_back(aqui());
    emite(Operacion::Salta);
    p_.codigo[*grupo.prueba].a = aqui();
    grupo.prueba.reset();
    empiezaAlternativa(pieza);
}

void Ensambla::cierra(const Pieza& pieza) {
    const GrupoAbierto grupo = std::move(abiertos_.back());
    abiertos_.pop_back();
    for (const std::uint32_t salto : grupo.saltos) p_.codigo[salto].a = aqui();
    if (pieza.miraDelante()) {
        emite(pieza.grupo == TipoGrupo::Delante ? Operacion::CierraDelante : Operacion::CierraDelanteNo,
              grupo.delante);
        p_.codigo[grupo.abre].b = aqui();
    } else if (pieza.grupo == TipoGrupo::Captura && patron_.tieneReferencias) {
        emite(Operacion::Guarda, 2 * pieza.numero + 1);
    }
    cierraRepeticion(patron_.piezas[pieza.pareja].repeticion, grupo.repeticion);
}

Ensambla::Capturas Ensambla::capturasDentro(const Pieza& pieza) const {
    if (pieza.tipo != TipoPieza::Abre || !patron_.tieneReferencias) return {};
    const auto indice = static_cast<std::size_t>(&pieza - patron_.piezas.data());
    return {abiertasAntes_[indice] + 1, abiertasAntes_[pieza.pareja] + 1};
}

bool Ensambla::necesitaBucle(const Pieza& pieza) const {
    const Repeticion& r = pieza.repeticion;
    const bool anulable =
        pieza.tipo == TipoPieza::Referencia || (pieza.tipo == TipoPieza::Abre && pieza.anulable);
    const bool sencilla =
        (r.minimo <= 1 && r.maximo == Repeticion::sinLimite) || (r.minimo == 0 && r.maximo == 1);
    return anulable || !sencilla || capturasDentro(pieza).hasta > capturasDentro(pieza).desde;
}

std::uint32_t Ensambla::nuevoBucle(const Pieza& pieza) {
    const Capturas capturas = capturasDentro(pieza);
    p_.bucles.push_back({pieza.repeticion, p_.registros, 0, 0, capturas.desde, capturas.hasta});
    p_.registros += 2;
    return static_cast<std::uint32_t>(p_.bucles.size() - 1);
}

Ensambla::EnCurso Ensambla::abreRepeticion(const Pieza& pieza) {
    const Repeticion& r = pieza.repeticion;
    if (r.esUna()) return {aqui(), std::nullopt};
    if (necesitaBucle(pieza)) {
        const std::uint32_t bucle = nuevoBucle(pieza);
        emite(Operacion::PreparaBucle, bucle);
        p_.bucles[bucle].entrada = aqui();
        emite(Operacion::EntraEnBucle, bucle);
        emite(Operacion::EmpiezaVuelta, bucle);
        return {aqui(), bucle};
    }
    const std::uint32_t inicio = aqui();
    if (r.minimo == 0) emite(r.perezosa ? Operacion::Aplaza : Operacion::Prueba);
    return {inicio, std::nullopt};
}

void Ensambla::cierraRepeticion(const Repeticion& r, const EnCurso& enCurso) {
    if (r.esUna()) return;
    if (enCurso.bucle) {
        emite(Operacion::CierraBucle, *enCurso.bucle);
        p_.bucles[*enCurso.bucle].salida = aqui();
    } else if (r.minimo == 1) {
        emite(r.perezosa ? Operacion::Prueba : Operacion::Aplaza, enCurso.inicio);
    } else {
        if (r.maximo != 1) emite(Operacion::Salta, enCurso.inicio);
        p_.codigo[enCurso.inicio].a = aqui();
    }
}

} // namespace

Programa::Programa(PatronListo patron) : ignoraMayusculas(patron.ignoraMayusculas) {
    const Ensambla ensambla(*this, patron);
    clases = std::move(patron.clases);
}

bool Programa::usaAlguna(std::initializer_list<Operacion> operaciones) const {
    return std::any_of(codigo.begin(), codigo.end(), [&](const Instruccion& instruccion) {
        return std::find(operaciones.begin(), operaciones.end(), instruccion.operacion) != operaciones.end();
    });
}

} // namespace norvik::inline v0_2
