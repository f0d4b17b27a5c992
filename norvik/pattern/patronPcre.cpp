// Matching by the PCRE2 library, through its compiler to machine code.
//
// The pattern is written anew in the library's dialect from its pieces: classes as ranges, assertions by the
// names that mean ours. Its semantics are the dialect's but for captures (a repetition keeps those of the
// former turn) and for optional turns that take nothing (they end the repetition): such patterns are not
// given to it. Matches are tried at one position at a time, so that the search for a start, where
// version 10.42 goes wrong for patterns like (if|i) *f, is ours. A reached limit is no answer: the exact
// machine then decides.
#include "norvik/pattern/patronPcre.hpp"

#include <algorithm>
#include <new>
#include <string>

namespace norvik {

namespace {

// Of the library's steps each can go over the whole text: more would take seconds between two looks at the
// clock.
constexpr std::uint32_t limiteDePasos = 20'000;
constexpr std::size_t textoMaximo = 200'000;
constexpr std::size_t pilaInicial = std::size_t{32} << 10;
constexpr std::size_t pilaMaxima = std::size_t{8} << 20;

// What the library needs to run, one a thread.
struct Entorno {
    DatosPcre datos{pcre2_match_data_create_16(1, nullptr)};
    ContextoPcre contexto{pcre2_match_context_create_16(nullptr)};
    PilaPcre pila{pcre2_jit_stack_create_16(pilaInicial, pilaMaxima, nullptr)};

    Entorno() {
        if (!datos || !contexto || !pila) throw std::bad_alloc();
        pcre2_set_match_limit_16(contexto.get(), limiteDePasos);
        pcre2_jit_stack_assign_16(contexto.get(), nullptr, pila.get());
    }
};

void aniadeUnidad(std::u16string& texto, char16_t unidad) {
    constexpr std::u16string_view cifras = u"0123456789abcdef";
    texto += u"\\x{";
    for (int desplazamiento = 12; desplazamiento >= 0; desplazamiento -= 4)
        texto.push_back(cifras[static_cast<std::size_t>((unidad >> desplazamiento) & 0xF)]);
    texto.push_back(u'}');
}

// The library takes no notice of what repeats an empty class, even of a "*" that lets it be absent: a group
// around it is repeated as it should be.
void aniadeClase(std::u16string& texto, const ClaseUnidades& clase) {
    if (clase.rangos().empty()) {
        texto += u"(?:[])";
        return;
    }
    texto.push_back(u'[');
    for (const RangoUnidades& rango : clase.rangos()) {
        aniadeUnidad(texto, rango.desde);
        if (rango.hasta == rango.desde) continue;
        texto.push_back(u'-');
        aniadeUnidad(texto, rango.hasta);
    }
    texto.push_back(u']');
}

void aniadeNumero(std::u16string& texto, std::uint32_t numero) {
    const std::string cifras = std::to_string(numero);
    texto.append(cifras.begin(), cifras.end());
}

void aniadeRepeticion(std::u16string& texto, const Repeticion& r) {
    if (r.esUna()) return;
    texto.push_back(u'{');
    aniadeNumero(texto, r.minimo);
    texto.push_back(u',');
    if (r.maximo != Repeticion::sinLimite) aniadeNumero(texto, r.maximo);
    texto.push_back(u'}');
    if (r.perezosa) texto.push_back(u'?');
}

std::u16string_view apertura(TipoGrupo grupo) {
    switch (grupo) {
    case TipoGrupo::Captura:
    case TipoGrupo::SinCaptura:
        return u"(?:";
    case TipoGrupo::Delante:
        return u"(?=";
    case TipoGrupo::DelanteNo:
        return u"(?!";
    }
    return {};
}

void aniadePieza(std::u16string& texto, const Pieza& pieza, const PatronListo& patron) {
    switch (pieza.tipo) {
    case TipoPieza::Unidad:
        aniadeUnidad(texto, pieza.unidad);
        break;
    case TipoPieza::Clase:
        aniadeClase(texto, patron.clases[pieza.numero]);
        break;
    case TipoPieza::Inicio:
        texto += u"\\A";
        break;
    case TipoPieza::Final:
        texto += u"\\z";
        break;
    case TipoPieza::Frontera:
        texto += u"\\b";
        break;
    case TipoPieza::NoFrontera:
        texto += u"\\B";
        break;
    case TipoPieza::Referencia:
        break; // not given to the library
    case TipoPieza::Abre:
        texto += apertura(pieza.grupo);
        return;
    case TipoPieza::Alternativa:
        texto += u"|";
        return;
    case TipoPieza::Cierra:
        texto += u")";
        return aniadeRepeticion(texto, patron.piezas[pieza.pareja].repeticion);
    }
    aniadeRepeticion(texto, pieza.repeticion);
}

bool sirve(const PatronListo& patron) {
    return !patron.tieneReferencias &&
           std::none_of(patron.piezas.begin(), patron.piezas.end(), [](const Pieza& p) {
               return p.tipo == TipoPieza::Abre && p.anulable && !p.repeticion.esUna();
           });
}

} // namespace

std::u16string aPcre(const PatronListo& patron) {
    std::u16string texto;
    for (const Pieza& pieza : patron.piezas) {
        if (texto.size() > textoMaximo) break; // no use for the rest
        aniadePieza(texto, pieza, patron);
    }
    return texto;
}

std::optional<MotorPcre> MotorPcre::de(const PatronListo& patron) {
    if (!sirve(patron)) return std::nullopt;
    constexpr std::uint32_t opciones = PCRE2_ANCHORED | PCRE2_UCP | PCRE2_ALLOW_EMPTY_CLASS |
                                       PCRE2_NEVER_UTF | PCRE2_NEVER_BACKSLASH_C | PCRE2_NO_START_OPTIMIZE |
                                       PCRE2_NO_DOTSTAR_ANCHOR | PCRE2_NO_AUTO_CAPTURE;
    const std::u16string texto = aPcre(patron);
    CodigoPcre codigo = texto.size() <= textoMaximo ? compilaPcre(texto, opciones) : nullptr;
    if (!codigo || pcre2_jit_compile_16(codigo.get(), PCRE2_JIT_COMPLETE) != 0) return std::nullopt;
    return MotorPcre(std::move(codigo));
}

Intento MotorPcre::coincide(std::u16string_view sujeto, std::size_t inicio) const {
    thread_local Entorno entorno;
    const int resultado = pcre2_jit_match_16(codigo_.get(), unidadesPcre(sujeto), sujeto.size(), inicio, 0,
                                             entorno.datos.get(), entorno.contexto.get());
    if (resultado == PCRE2_ERROR_NOMATCH) return {};
    if (resultado < 0) return {Intento::Tipo::Indeciso, 0};
    return {Intento::Tipo::Coincide, pcre2_get_ovector_pointer_16(entorno.datos.get())[1]};
}

} // namespace norvik
