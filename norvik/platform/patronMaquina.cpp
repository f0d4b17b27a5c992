// The exact matcher: a pattern assembled into a small program, run by backtracking.
//
// The semantics are those of ECMAScript's third edition: alternatives in order, each turn of a repetition
// forgets the captures of its body, an optional turn that takes nothing is no turn, a reference to a capture
// that took no part takes nothing, look-aheads are never entered again. One stack holds both what is left to
// try and the former values of registers (positions of captures, counters of loops): undoing goes back
// through it until there is something to try. Nothing recurses. The cost is that of backtracking, so steps
// back and stack are bounded and the clock is looked at now and then.
#include "norvik/platform/patronMaquina.hpp"

#include "norvik/platform/mayusculas.hpp"

#include <algorithm>

namespace norvik {

namespace {

constexpr std::uint32_t restaura = 0x80000000; // marks a stack entry that restores a register
constexpr std::size_t pilaMaxima = (std::size_t{64} << 20) / sizeof(Maquina::Memoria::Entrada);
constexpr std::uint32_t retrocesosMaximos = 10'000'000;
constexpr std::uint32_t retrocesosPorConsulta = 1U << 16; // of the clock

bool esDePalabra(std::u16string_view sujeto, std::size_t i) {
    static const ClaseUnidades palabra(rangosDe(Propiedad::Palabra));
    return i < sujeto.size() && palabra.contiene(sujeto[i]);
}

} // namespace

// Assembles the program in one pass over the pieces.
class Maquina::Ensambla {
public:
    Ensambla(Maquina& maquina, const Patron& patron) : m_(maquina), patron_(patron) {
        // Registers 2n and 2n + 1 are the ends of capture n.
        if (patron.tieneReferencias) m_.registros_ = 2 * (patron.capturas + 1);
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

    std::uint32_t aqui() const { return static_cast<std::uint32_t>(m_.codigo_.size()); }
    void emite(Operacion operacion, std::uint32_t a = 0) { m_.codigo_.push_back({operacion, a}); }
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

    Maquina& m_;
    const Patron& patron_;
    std::vector<GrupoAbierto> abiertos_;
    std::vector<std::uint32_t> abiertasAntes_; // captures opened before each piece
};

void Maquina::Ensambla::ensambla(const Pieza& pieza) {
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

void Maquina::Ensambla::abre(const Pieza& pieza) {
    GrupoAbierto grupo;
    grupo.repeticion = abreRepeticion(pieza);
    if (pieza.miraDelante()) {
        grupo.delante = m_.registros_;
        grupo.abre = aqui();
        m_.registros_ += 2;
        emite(pieza.grupo == TipoGrupo::Delante ? Operacion::AbreDelante : Operacion::AbreDelanteNo,
              grupo.delante);
    } else if (pieza.grupo == TipoGrupo::Captura && patron_.tieneReferencias) {
        emite(Operacion::Guarda, 2 * pieza.numero);
    }
    abiertos_.push_back(std::move(grupo));
    empiezaAlternativa(pieza);
}

void Maquina::Ensambla::empiezaAlternativa(const Pieza& pieza) {
    if (patron_.piezas[pieza.siguiente].tipo != TipoPieza::Alternativa) return;
    abiertos_.back().prueba = aqui();
    emite(Operacion::Prueba);
}

void Maquina::Ensambla::alternativa(const Pieza& pieza) {
    GrupoAbierto& grupo = abiertos_.back();
    grupo.saltos.push_back(aqui());
    emite(Operacion::Salta);
    m_.codigo_[*grupo.prueba].a = aqui();
    grupo.prueba.reset();
    empiezaAlternativa(pieza);
}

void Maquina::Ensambla::cierra(const Pieza& pieza) {
    const GrupoAbierto grupo = std::move(abiertos_.back());
    abiertos_.pop_back();
    for (const std::uint32_t salto : grupo.saltos) m_.codigo_[salto].a = aqui();
    if (pieza.miraDelante()) {
        emite(pieza.grupo == TipoGrupo::Delante ? Operacion::CierraDelante : Operacion::CierraDelanteNo,
              grupo.delante);
        m_.codigo_[grupo.abre].b = aqui();
    } else if (pieza.grupo == TipoGrupo::Captura && patron_.tieneReferencias) {
        emite(Operacion::Guarda, 2 * pieza.numero + 1);
    }
    cierraRepeticion(patron_.piezas[pieza.pareja].repeticion, grupo.repeticion);
}

Maquina::Ensambla::Capturas Maquina::Ensambla::capturasDentro(const Pieza& pieza) const {
    if (pieza.tipo != TipoPieza::Abre || !patron_.tieneReferencias) return {};
    const auto indice = static_cast<std::size_t>(&pieza - patron_.piezas.data());
    return {abiertasAntes_[indice] + 1, abiertasAntes_[pieza.pareja] + 1};
}

bool Maquina::Ensambla::necesitaBucle(const Pieza& pieza) const {
    const Repeticion& r = pieza.repeticion;
    const bool anulable =
        pieza.tipo == TipoPieza::Referencia || (pieza.tipo == TipoPieza::Abre && pieza.anulable);
    const bool sencilla =
        (r.minimo <= 1 && r.maximo == Repeticion::sinLimite) || (r.minimo == 0 && r.maximo == 1);
    return anulable || !sencilla || capturasDentro(pieza).hasta > capturasDentro(pieza).desde;
}

std::uint32_t Maquina::Ensambla::nuevoBucle(const Pieza& pieza) {
    const Capturas capturas = capturasDentro(pieza);
    m_.bucles_.push_back({pieza.repeticion, m_.registros_, 0, 0, capturas.desde, capturas.hasta});
    m_.registros_ += 2;
    return static_cast<std::uint32_t>(m_.bucles_.size() - 1);
}

Maquina::Ensambla::EnCurso Maquina::Ensambla::abreRepeticion(const Pieza& pieza) {
    const Repeticion& r = pieza.repeticion;
    if (r.esUna()) return {aqui(), std::nullopt};
    if (necesitaBucle(pieza)) {
        const std::uint32_t bucle = nuevoBucle(pieza);
        emite(Operacion::PreparaBucle, bucle);
        m_.bucles_[bucle].entrada = aqui();
        emite(Operacion::EntraEnBucle, bucle);
        emite(Operacion::EmpiezaVuelta, bucle);
        return {aqui(), bucle};
    }
    const std::uint32_t inicio = aqui();
    if (r.minimo == 0) emite(r.perezosa ? Operacion::Aplaza : Operacion::Prueba);
    return {inicio, std::nullopt};
}

void Maquina::Ensambla::cierraRepeticion(const Repeticion& r, const EnCurso& enCurso) {
    if (r.esUna()) return;
    if (enCurso.bucle) {
        emite(Operacion::CierraBucle, *enCurso.bucle);
        m_.bucles_[*enCurso.bucle].salida = aqui();
    } else if (r.minimo == 1) {
        emite(r.perezosa ? Operacion::Prueba : Operacion::Aplaza, enCurso.inicio);
    } else {
        if (r.maximo != 1) emite(Operacion::Salta, enCurso.inicio);
        m_.codigo_[enCurso.inicio].a = aqui();
    }
}

Maquina::Maquina(const Patron& patron, const std::vector<ClaseUnidades>& clases)
    : clases_(&clases), ignoraMayusculas_(patron.ignoraMayusculas) {
    Ensambla(*this, patron);
}

// One attempt at one position.
class Maquina::Ejecucion {
public:
    Ejecucion(const Maquina& maquina, std::u16string_view sujeto, std::size_t inicio, Memoria& memoria,
              const Presupuesto& presupuesto)
        : m_(maquina), sujeto_(sujeto), pos_(inicio), pila_(memoria.pila), registros_(memoria.registros),
          presupuesto_(presupuesto) {
        pila_.clear();
        registros_.assign(m_.registros_, -1);
    }

    std::optional<std::size_t> corre() {
        for (;;) {
            const Instruccion& instruccion = m_.codigo_[en_++];
            if (instruccion.operacion == Operacion::Acepta) return pos_;
            if (!ejecuta(instruccion) && !retrocede()) return std::nullopt;
        }
    }

private:
    bool ejecuta(const Instruccion& instruccion);
    bool retrocede();
    bool toma(bool vale) {
        pos_ += vale ? 1 : 0;
        return vale;
    }
    bool salta(std::uint32_t donde) {
        en_ = donde;
        return true;
    }
    bool enFrontera() const {
        const bool antes = pos_ > 0 && esDePalabra(sujeto_, pos_ - 1);
        return antes != esDePalabra(sujeto_, pos_);
    }
    bool repiteCaptura(std::uint32_t captura);
    bool entraEnBucle(const Bucle& bucle);
    bool empiezaVuelta(const Bucle& bucle);
    bool cierraBucle(const Bucle& bucle);
    bool cierraDelante(std::uint32_t registro);
    bool cierraDelanteNo(std::uint32_t registro);
    void deshaz(const Memoria::Entrada& entrada);
    void apila(std::uint32_t donde, std::int32_t valor);
    void guarda(std::uint32_t registro, std::int32_t valor);
    std::int32_t posicion() const { return static_cast<std::int32_t>(pos_); }

    const Maquina& m_;
    std::u16string_view sujeto_;
    std::size_t pos_;
    std::uint32_t en_ = 0;
    std::vector<Memoria::Entrada>& pila_;
    std::vector<std::int32_t>& registros_;
    const Presupuesto& presupuesto_;
    std::uint32_t retrocesos_ = 0;
};

bool Maquina::Ejecucion::ejecuta(const Instruccion& i) {
    switch (i.operacion) {
    case Operacion::Unidad:
        return toma(pos_ < sujeto_.size() && sujeto_[pos_] == i.a);
    case Operacion::Clase:
        return toma(pos_ < sujeto_.size() && (*m_.clases_)[i.a].contiene(sujeto_[pos_]));
    case Operacion::Inicio:
        return pos_ == 0;
    case Operacion::Final:
        return pos_ == sujeto_.size();
    case Operacion::Frontera:
        return enFrontera();
    case Operacion::NoFrontera:
        return !enFrontera();
    case Operacion::Referencia:
        return repiteCaptura(i.a);
    case Operacion::Guarda:
        guarda(i.a, posicion());
        return true;
    case Operacion::Salta:
        return salta(i.a);
    case Operacion::Prueba:
        apila(i.a, posicion());
        return true;
    case Operacion::Aplaza:
        apila(en_, posicion());
        return salta(i.a);
    case Operacion::PreparaBucle:
        guarda(m_.bucles_[i.a].registro, 0);
        return true;
    case Operacion::EntraEnBucle:
        return entraEnBucle(m_.bucles_[i.a]);
    case Operacion::EmpiezaVuelta:
        return empiezaVuelta(m_.bucles_[i.a]);
    case Operacion::CierraBucle:
        return cierraBucle(m_.bucles_[i.a]);
    case Operacion::AbreDelante:
    case Operacion::AbreDelanteNo:
        registros_[i.a] = static_cast<std::int32_t>(pila_.size());
        registros_[i.a + 1] = posicion();
        if (i.operacion == Operacion::AbreDelanteNo) apila(i.b, posicion());
        return true;
    case Operacion::CierraDelante:
        return cierraDelante(i.a);
    case Operacion::CierraDelanteNo:
        return cierraDelanteNo(i.a);
    case Operacion::Acepta:
        break;
    }
    return true;
}

bool Maquina::Ejecucion::retrocede() {
    if (++retrocesos_ > retrocesosMaximos) throw BusquedaDesbocada();
    if (retrocesos_ % retrocesosPorConsulta == 0 && presupuesto_.agotado()) throw BusquedaDesbocada();
    while (!pila_.empty()) {
        const Memoria::Entrada entrada = pila_.back();
        pila_.pop_back();
        if ((entrada.donde & restaura) == 0) {
            en_ = entrada.donde;
            pos_ = static_cast<std::size_t>(entrada.valor);
            return true;
        }
        deshaz(entrada);
    }
    return false;
}

bool Maquina::Ejecucion::repiteCaptura(std::uint32_t captura) {
    const std::int32_t inicio = registros_[2 * captura];
    const std::int32_t fin = registros_[2 * captura + 1];
    if (inicio < 0 || fin < 0) return true;
    const std::u16string_view capturado =
        sujeto_.substr(static_cast<std::size_t>(inicio), static_cast<std::size_t>(fin - inicio));
    const std::u16string_view resto = sujeto_.substr(pos_);
    if (resto.size() < capturado.size()) return false;
    const bool igual =
        std::equal(capturado.begin(), capturado.end(), resto.begin(), [&](char16_t a, char16_t b) {
            return a == b || (m_.ignoraMayusculas_ && pliega(a) == pliega(b));
        });
    if (igual) pos_ += capturado.size();
    return igual;
}

bool Maquina::Ejecucion::entraEnBucle(const Bucle& bucle) {
    const auto vueltas = static_cast<std::uint32_t>(registros_[bucle.registro]);
    if (vueltas < bucle.repeticion.minimo) return true;
    if (vueltas >= bucle.repeticion.maximo) return salta(bucle.salida);
    apila(bucle.repeticion.perezosa ? en_ : bucle.salida, posicion());
    return bucle.repeticion.perezosa ? salta(bucle.salida) : true;
}

bool Maquina::Ejecucion::empiezaVuelta(const Bucle& bucle) {
    guarda(bucle.registro, registros_[bucle.registro] + 1);
    guarda(bucle.registro + 1, posicion());
    for (std::uint32_t captura = bucle.capturaDesde; captura < bucle.capturaHasta; ++captura) {
        guarda(2 * captura, -1);
        guarda(2 * captura + 1, -1);
    }
    return true;
}

bool Maquina::Ejecucion::cierraBucle(const Bucle& bucle) {
    const bool opcional = static_cast<std::uint32_t>(registros_[bucle.registro]) > bucle.repeticion.minimo;
    if (opcional && registros_[bucle.registro + 1] == posicion()) return false;
    return salta(bucle.entrada);
}

// What is left to try inside a look-ahead is dropped, the former values of registers stay.
bool Maquina::Ejecucion::cierraDelante(std::uint32_t registro) {
    const auto altura = pila_.begin() + registros_[registro];
    const auto fin = std::remove_if(
        altura, pila_.end(), [](const Memoria::Entrada& entrada) { return (entrada.donde & restaura) == 0; });
    pila_.erase(fin, pila_.end());
    pos_ = static_cast<std::size_t>(registros_[registro + 1]);
    return true;
}

// A body that matched is undone, and with it the way on that was left for its failure.
bool Maquina::Ejecucion::cierraDelanteNo(std::uint32_t registro) {
    const auto altura = static_cast<std::size_t>(registros_[registro]);
    for (; pila_.size() > altura; pila_.pop_back()) deshaz(pila_.back());
    return false;
}

void Maquina::Ejecucion::deshaz(const Memoria::Entrada& entrada) {
    if ((entrada.donde & restaura) != 0) registros_[entrada.donde & ~restaura] = entrada.valor;
}

void Maquina::Ejecucion::apila(std::uint32_t donde, std::int32_t valor) {
    if (pila_.size() >= pilaMaxima) throw BusquedaDesbocada();
    pila_.push_back({donde, valor});
}

void Maquina::Ejecucion::guarda(std::uint32_t registro, std::int32_t valor) {
    apila(registro | restaura, registros_[registro]);
    registros_[registro] = valor;
}

std::optional<std::size_t> Maquina::coincide(std::u16string_view sujeto, std::size_t inicio, Memoria& memoria,
                                             const Presupuesto& presupuesto) const {
    return Ejecucion(*this, sujeto, inicio, memoria, presupuesto).corre();
}

} // namespace norvik
