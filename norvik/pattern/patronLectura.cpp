// SPDX-License-Identifier: MIT

// Reading a pattern: the dialect, strictly.
//
// One pass over the text, a piece at a time, with the open groups on a stack of their own. What the dialect
// does not know is malformed here, so that nothing downstream has to refuse a pattern. A repetition joins the
// piece or the group just finished; after it, or after an assertion, there is nothing to repeat.
#include "norvik/pattern/patron.hpp"

#include <algorithm>
#include <set>

namespace norvik::inline v0_2 {

namespace {

// No more repetitions than this can be asked for.
constexpr std::uint32_t mayorRepeticion = 65535;

constexpr bool esDigito(char16_t c) {
    return c >= u'0' && c <= u'9';
}

constexpr bool esLetraAscii(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool esLetra(char16_t c) {
    if (c < 0x80) return esLetraAscii(c);
    return tiene(PropiedadDeUnidad::Letra, c);
}

constexpr int valorHexadecimal(char16_t c) {
    if (esDigito(c)) return c - u'0';
    const int letra = (c | 0x20) - u'a';
    return letra >= 0 && letra < 6 && esLetraAscii(c) ? letra + 10 : -1;
}

// The class that an escape such as \d or \W names.
std::optional<ClaseLeida::Escape> escapeDeClase(char16_t c) {
    switch (c) {
    case u'd':
        return ClaseLeida::Escape{PropiedadDeUnidad::Digito, false};
    case u'D':
        return ClaseLeida::Escape{PropiedadDeUnidad::Digito, true};
    case u'w':
        return ClaseLeida::Escape{PropiedadDeUnidad::Palabra, false};
    case u'W':
        return ClaseLeida::Escape{PropiedadDeUnidad::Palabra, true};
    case u's':
        return ClaseLeida::Escape{PropiedadDeUnidad::Espacio, false};
    case u'S':
        return ClaseLeida::Escape{PropiedadDeUnidad::Espacio, true};
    default:
        return std::nullopt;
    }
}

// The order of some classes by what they are.
struct PorContenido {
    const std::vector<ClaseLeida>* clases;
    bool operator()(std::uint32_t a, std::uint32_t b) const { return (*clases)[a] < (*clases)[b]; }
};

class LectorPatron {
public:
    LectorPatron(std::u16string_view texto, bool ignoraMayusculas) : texto_(texto) {
        patron_.ignoraMayusculas = ignoraMayusculas;
    }

    std::optional<Patron> lee();
    /// Of a pattern that was not read.
    const DefectoPatron& defecto() const { return defecto_; }

private:
    using Motivo = MotivoPatron;

    Patron acaba();
    // Each reads from `i_` on and says whether what stands there is well formed.
    bool leePieza();
    bool leeGrupo();
    bool leeClase();
    bool leeEscape();
    bool leeReferencia();
    bool leeRepeticion(Repeticion repeticion);

    // A unit by its escape, the letter at `i_`; \b is the caller's.
    std::optional<char16_t> leeUnidadEscapada();
    std::optional<char16_t> leeCodigo(std::size_t cifras);
    // A number of decimal digits; too large ones stay too large.
    std::optional<std::uint32_t> leeNumero();
    // {n}, {n,} or {n,m} at `i_`; nothing read when the brace opens none.
    std::optional<Repeticion> leeLlaves();
    struct Elemento {
        std::optional<char16_t> unidad; // else an escape that names a class, already filed
    };
    std::optional<Elemento> leeElemento(ClaseLeida& clase);

    bool quedan() const { return i_ < texto_.size(); }
    bool sigue(char16_t c) const { return quedan() && texto_[i_] == c; }
    bool consume(std::u16string_view esperado);
    // What is wrong, and where; always false.
    bool falla(Motivo motivo, std::size_t lugar) {
        defecto_ = {motivo, lugar};
        return false;
    }
    bool falla(Motivo motivo) { return falla(motivo, pieza_); }

    void abre(TipoGrupo grupo);
    bool cierra();
    void aniade(Pieza pieza, bool repetible);
    void aniadeUnidad(char16_t unidad) { aniade({.tipo = TipoPieza::Unidad, .unidad = unidad}, true); }
    void aniadeClase(ClaseLeida clase);

    std::u16string_view texto_;
    std::size_t i_ = 0;
    std::size_t pieza_ = 0; // where the one being read begins
    Patron patron_;
    // Its classes by what they are: references bring the same ones often.
    std::set<std::uint32_t, PorContenido> clases_{PorContenido{&patron_.clases}};
    std::vector<std::size_t> abiertos_;
    std::vector<std::size_t> lugaresAbiertos_; // their brackets
    std::optional<std::size_t> repetible_;     // the piece that a repetition would join
    std::uint32_t mayorReferencia_ = 0;
    std::size_t lugarReferencia_ = 0; // of that one
    DefectoPatron defecto_;
};

std::optional<Patron> LectorPatron::lee() {
    patron_.piezas.reserve(texto_.size() + 2);
    abre(TipoGrupo::SinCaptura);
    while (quedan())
        if (!leePieza()) return std::nullopt;
    if (abiertos_.size() != 1) {
        falla(Motivo::GrupoSinCerrar, lugaresAbiertos_.back());
        return std::nullopt;
    }
    if (mayorReferencia_ > patron_.capturas) {
        falla(Motivo::ReferenciaSinGrupo, lugarReferencia_);
        return std::nullopt;
    }
    return acaba();
}

Patron LectorPatron::acaba() {
    cierra();
    patron_.tieneReferencias = mayorReferencia_ > 0;
    enlaza(patron_.piezas);
    return std::move(patron_);
}

bool LectorPatron::leePieza() {
    pieza_ = i_;
    const char16_t c = texto_[i_];
    if (c == u'{') {
        if (const auto llaves = leeLlaves()) return leeRepeticion(*llaves);
    }
    ++i_;
    switch (c) {
    case u'\\':
        return leeEscape();
    case u'(':
        return leeGrupo();
    case u')':
        return abiertos_.size() > 1 ? cierra() : falla(Motivo::CierreSinAbrir);
    case u'[':
        return leeClase();
    case u'*':
        return leeRepeticion({0, Repeticion::sinLimite, false});
    case u'+':
        return leeRepeticion({1, Repeticion::sinLimite, false});
    case u'?':
        return leeRepeticion({0, 1, false});
    case u'.':
        aniadeClase({{{u'\n', u'\n'}}, {}, true});
        return true;
    case u'^':
        aniade({.tipo = TipoPieza::Inicio}, false);
        return true;
    case u'$':
        aniade({.tipo = TipoPieza::Final}, false);
        return true;
    case u'|':
        aniade({.tipo = TipoPieza::Alternativa}, false);
        return true;
    default:
        aniadeUnidad(c);
        return true;
    }
}

bool LectorPatron::leeGrupo() {
    if (!consume(u"?")) {
        abre(TipoGrupo::Captura);
    } else if (consume(u":")) {
        abre(TipoGrupo::SinCaptura);
    } else if (consume(u"=")) {
        abre(TipoGrupo::Delante);
    } else if (consume(u"!")) {
        abre(TipoGrupo::DelanteNo);
    } else {
        return falla(Motivo::GrupoDesconocido);
    }
    return true;
}

bool LectorPatron::leeRepeticion(Repeticion repeticion) {
    if (!repetible_) return falla(Motivo::NadaQueRepetir);
    if (repeticion.minimo > repeticion.maximo) return falla(Motivo::RepeticionAlReves);
    const bool cabe = repeticion.minimo <= mayorRepeticion &&
                      (repeticion.maximo <= mayorRepeticion || repeticion.maximo == Repeticion::sinLimite);
    if (!cabe) return falla(Motivo::RepeticionExcesiva);
    repeticion.perezosa = consume(u"?");
    patron_.piezas[*repetible_].repeticion = repeticion;
    repetible_.reset();
    return true;
}

std::optional<Repeticion> LectorPatron::leeLlaves() {
    const std::size_t inicio = i_++;
    Repeticion repeticion;
    const auto minimo = leeNumero();
    bool entera = minimo.has_value();
    if (entera) {
        repeticion.minimo = repeticion.maximo = *minimo;
        if (consume(u",")) repeticion.maximo = leeNumero().value_or(Repeticion::sinLimite);
        entera = consume(u"}");
    }
    if (entera) return repeticion;
    i_ = inicio;
    return std::nullopt;
}

std::optional<std::uint32_t> LectorPatron::leeNumero() {
    const std::size_t inicio = i_;
    std::uint32_t numero = 0;
    for (; quedan() && esDigito(texto_[i_]); ++i_)
        numero = std::min<std::uint32_t>(numero * 10 + (texto_[i_] - u'0'), 1'000'000);
    if (i_ == inicio) return std::nullopt;
    return numero;
}

bool LectorPatron::leeEscape() {
    if (!quedan()) return falla(Motivo::BarraAlFinal);
    const char16_t c = texto_[i_];
    if (c >= u'1' && c <= u'9') return leeReferencia();
    if (c == u'b' || c == u'B') {
        ++i_;
        aniade({.tipo = c == u'b' ? TipoPieza::Frontera : TipoPieza::NoFrontera}, false);
        return true;
    }
    if (const auto escape = escapeDeClase(c)) {
        ++i_;
        aniadeClase({{}, {*escape}, false});
        return true;
    }
    const auto unidad = leeUnidadEscapada();
    if (unidad) aniadeUnidad(*unidad);
    return unidad.has_value();
}

bool LectorPatron::leeReferencia() {
    const std::uint32_t numero = *leeNumero();
    if (numero > mayorReferencia_) {
        mayorReferencia_ = numero;
        lugarReferencia_ = pieza_;
    }
    aniade({.tipo = TipoPieza::Referencia, .numero = numero}, true);
    return true;
}

std::optional<char16_t> LectorPatron::leeUnidadEscapada() {
    const std::size_t barra = i_ - 1;
    const char16_t c = texto_[i_++];
    std::optional<char16_t> unidad;
    switch (c) {
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'f':
        return u'\f';
    case u'v':
        return u'\v';
    case u'x':
    case u'u':
        unidad = leeCodigo(c == u'x' ? 2 : 4);
        if (!unidad) falla(Motivo::CodigoIncompleto, barra);
        return unidad;
    case u'0':
        if (!quedan() || !esDigito(texto_[i_])) return u'\0';
        break;
    default:
        if (!esDigito(c) && !esLetra(c)) return c;
        break;
    }
    falla(Motivo::EscapeDesconocido, barra);
    return std::nullopt;
}

std::optional<char16_t> LectorPatron::leeCodigo(std::size_t cifras) {
    if (texto_.size() - i_ < cifras) return std::nullopt;
    int codigo = 0;
    for (const std::size_t fin = i_ + cifras; i_ < fin; ++i_) {
        const int valor = valorHexadecimal(texto_[i_]);
        if (valor < 0) return std::nullopt;
        codigo = codigo * 16 + valor;
    }
    return static_cast<char16_t>(codigo);
}

bool LectorPatron::leeClase() {
    ClaseLeida clase;
    clase.negada = consume(u"^");
    while (!consume(u"]")) {
        const std::size_t lugar = i_;
        const auto desde = leeElemento(clase);
        if (!desde) return false;
        if (!desde->unidad) continue;
        RangoUnidades rango{*desde->unidad, *desde->unidad};
        const std::size_t guion = i_;
        if (consume(u"-") && quedan() && !sigue(u']')) {
            const auto hasta = leeElemento(clase);
            if (!hasta) return false;
            if (hasta->unidad) {
                rango.hasta = *hasta->unidad;
            } else {
                clase.rangos.push_back({u'-', u'-'});
            }
        } else {
            i_ = guion;
        }
        if (rango.hasta < rango.desde) return falla(Motivo::RangoAlReves, lugar);
        clase.rangos.push_back(rango);
    }
    aniadeClase(std::move(clase));
    return true;
}

std::optional<LectorPatron::Elemento> LectorPatron::leeElemento(ClaseLeida& clase) {
    falla(Motivo::ClaseSinCerrar); // unless more comes
    if (!quedan()) return std::nullopt;
    const char16_t c = texto_[i_];
    if (c != u'\\') {
        ++i_;
        return Elemento{c};
    }
    if (++i_; !quedan()) return std::nullopt;
    if (const auto escape = escapeDeClase(texto_[i_])) {
        ++i_;
        clase.escapes.push_back(*escape);
        return Elemento{};
    }
    if (consume(u"b")) return Elemento{u'\b'};
    const auto unidad = leeUnidadEscapada();
    if (!unidad) return std::nullopt;
    return Elemento{*unidad};
}

bool LectorPatron::consume(std::u16string_view esperado) {
    if (!texto_.substr(i_).starts_with(esperado)) return false;
    i_ += esperado.size();
    return true;
}

void LectorPatron::abre(TipoGrupo grupo) {
    const std::uint32_t numero = grupo == TipoGrupo::Captura ? ++patron_.capturas : 0;
    abiertos_.push_back(patron_.piezas.size());
    lugaresAbiertos_.push_back(pieza_);
    aniade({.tipo = TipoPieza::Abre, .grupo = grupo, .numero = numero}, false);
}

bool LectorPatron::cierra() {
    const std::size_t abre = abiertos_.back();
    abiertos_.pop_back();
    lugaresAbiertos_.pop_back();
    Pieza pieza = patron_.piezas[abre];
    pieza.tipo = TipoPieza::Cierra;
    aniade(pieza, false);
    repetible_ = abre;
    return true;
}

void LectorPatron::aniade(Pieza pieza, bool repetible) {
    repetible_.reset();
    if (repetible) repetible_ = patron_.piezas.size();
    patron_.piezas.push_back(pieza);
}

void LectorPatron::aniadeClase(ClaseLeida clase) {
    const bool esUnidad = !clase.negada && clase.escapes.empty() && clase.rangos.size() == 1 &&
                          clase.rangos[0].desde == clase.rangos[0].hasta;
    if (esUnidad) return aniadeUnidad(clase.rangos[0].desde);
    patron_.clases.push_back(std::move(clase));
    const auto [numero, nueva] = clases_.insert(static_cast<std::uint32_t>(patron_.clases.size() - 1));
    if (!nueva) patron_.clases.pop_back();
    aniade({.tipo = TipoPieza::Clase, .numero = *numero}, true);
}

// What a group has shown so far, while the list is gone through.
struct GrupoAbierto {
    std::uint32_t ultimo; // its `Abre` or last `Alternativa`
    std::uint32_t abre;
    bool algunaAnulable = false;
    bool estaAnulable = true; // the alternative being read
};

} // namespace

std::optional<Patron> leePatron(std::u16string_view texto, bool ignoraMayusculas) {
    return LectorPatron(texto, ignoraMayusculas).lee();
}

std::optional<DefectoPatron> defectoDePatron(std::u16string_view texto) {
    constexpr bool ignoraMayusculas = false; // changes nothing of the form
    LectorPatron lector(texto, ignoraMayusculas);
    if (lector.lee()) return std::nullopt;
    return lector.defecto();
}

std::optional<std::u16string> Patron::palabra() const {
    std::u16string palabra;
    for (std::size_t i = 1; i + 1 < piezas.size(); ++i) {
        if (piezas[i].tipo != TipoPieza::Unidad || !piezas[i].repeticion.esUna()) return std::nullopt;
        palabra.push_back(piezas[i].unidad);
    }
    if (palabra.empty()) return std::nullopt;
    return palabra;
}

void enlaza(std::vector<Pieza>& piezas) {
    std::vector<GrupoAbierto> abiertos;
    for (std::uint32_t i = 0; i < piezas.size(); ++i) {
        Pieza& pieza = piezas[i];
        switch (pieza.tipo) {
        case TipoPieza::Abre:
            abiertos.push_back({i, i});
            break;
        case TipoPieza::Alternativa:
        case TipoPieza::Cierra: {
            GrupoAbierto& grupo = abiertos.back();
            piezas[grupo.ultimo].siguiente = i;
            grupo.ultimo = i;
            grupo.algunaAnulable = grupo.algunaAnulable || grupo.estaAnulable;
            grupo.estaAnulable = true;
            if (pieza.tipo == TipoPieza::Alternativa) break;
            Pieza& abre = piezas[grupo.abre];
            abre.pareja = i;
            pieza.pareja = grupo.abre;
            abre.anulable = grupo.algunaAnulable || abre.miraDelante();
            abiertos.pop_back();
            const bool toma = !abre.anulable && abre.repeticion.minimo > 0;
            if (toma && !abiertos.empty()) abiertos.back().estaAnulable = false;
            break;
        }
        case TipoPieza::Unidad:
        case TipoPieza::Clase:
            if (pieza.repeticion.minimo > 0) abiertos.back().estaAnulable = false;
            break;
        case TipoPieza::Inicio:
        case TipoPieza::Final:
        case TipoPieza::Frontera:
        case TipoPieza::NoFrontera:
        case TipoPieza::Referencia:
            break;
        }
    }
}

} // namespace norvik::inline v0_2
