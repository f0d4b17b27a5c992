// Compiles the syntax tree of a specification: one pre-order walk over the nodes, in which definitions and
// rules act and all else only leads to its children; a second small walk writes the body of one rule. Both
// keep the nodes still to visit in a list of their own, since a specification nests as deep as it is long.
// Each node is visited once.

#include "norvik/spec/compiladorEspecificacion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/arbol.hpp"
#include "norvik/platform/sistema.hpp"

#include <array>
#include <vector>

namespace norvik {

namespace {

using Pendientes = std::vector<const Arbol*>;

struct Palabra {
    std::u16string_view texto;
    std::int16_t valor;
};

constexpr std::array<Palabra, 11> tipos{{{u"TTPALABRARESERVADA", Norvik_PalabraReservada},
                                         {u"TTOPERADOR", Norvik_Operador},
                                         {u"TTCOMENTARIOBLOQUE", Norvik_ComentarioBloque},
                                         {u"TTCOMENTARIOLINEA", Norvik_ComentarioLinea},
                                         {u"TTCADENA", Norvik_Cadena},
                                         {u"TTCARACTER", Norvik_Caracter},
                                         {u"TTNUMERO", Norvik_Numero},
                                         {u"TTETIQUETA", Norvik_Etiqueta},
                                         {u"TTEXPREG", Norvik_ExpReg},
                                         {u"TTAUTOEXPREG", Norvik_AutoExpReg},
                                         {u"TTFECHA", Norvik_Fecha}}};

constexpr std::array<Palabra, 4> bases{{{u"BTBINARIA", Norvik_BaseBinaria},
                                        {u"BTOCTAL", Norvik_BaseOctal},
                                        {u"BTDECIMAL", Norvik_BaseDecimal},
                                        {u"BTHEXADECIMAL", Norvik_BaseHexadecimal}}};

/// Value of a word in any case, 0 when it is not in the table.
template <std::size_t n>
std::int16_t valorDe(const std::array<Palabra, n>& tabla, const Arbol& palabra) {
    const std::u16string mayusculas = palabra.GetULexema();
    for (const auto& p : tabla) {
        if (p.texto == mayusculas) return p.valor;
    }
    return 0;
}

/// A tree that the host put together may lack children.
const Arbol& hijo(const Arbol& nodo, std::int16_t numero) {
    const Arbol* const encontrado = nodo.GetHijo(numero);
    if (encontrado == nullptr) throw ArgumentoNoValido();
    return *encontrado;
}

struct Perfil {
    std::int16_t tipo = Norvik_ExpReg;
    std::int16_t base = Norvik_SinBase;
};

/// Kind and base that a `PerfilToken` node gives.
Perfil perfilDe(const Arbol& nodo) {
    if (nodo.GetEsHoja()) return {};
    const Arbol& contenido = hijo(nodo, 2);
    if (hijo(contenido, 1).GetULexema() != u"TIPOTOKEN") {
        return {Norvik_Numero, valorDe(bases, hijo(contenido, 3))};
    }
    const Arbol& base = hijo(contenido, 4);
    return {valorDe(tipos, hijo(contenido, 3)),
            base.GetEsHoja() ? std::int16_t{0} : valorDe(bases, hijo(base, 4))};
}

bool esParteDeUnCuerpo(const Arbol& nodo) {
    const auto nombre = nodo.GetNomRegla();
    return nombre == u"ReglaI" || nombre == u"ConjuntoSimbolos" || nombre == u"ConjuntoSimbolosI" ||
           nombre == u"ColaRegla";
}

/// Appends what a node adds to the body before its descendants, and puts these into the list.
void escribeParte(const Arbol& nodo, std::u16string& cuerpo, Pendientes& pendientes) {
    if (nodo.GetEsHoja()) return;
    const auto nombre = nodo.GetNomRegla();
    const Arbol& primero = hijo(nodo, 1);
    if (nombre == u"ReglaI") {
        pendientes.push_back(&hijo(nodo, 2));
        if (primero.GetNomRegla() == u"ConjuntoSimbolos") {
            pendientes.push_back(&primero);
        } else {
            cuerpo += cadenaVacia;
        }
    } else if (nombre == u"ConjuntoSimbolos") {
        cuerpo += primero.GetLexema();
        pendientes.push_back(&hijo(nodo, 2));
    } else if (nombre == u"ConjuntoSimbolosI" && primero.GetNomRegla() == u"ConjuntoSimbolos") {
        cuerpo += u' ';
        pendientes.push_back(&primero);
    } else if (nombre == u"ColaRegla" && primero.GetLexema() != u";") {
        cuerpo += u" | ";
        pendientes.push_back(&hijo(nodo, 2));
    }
}

std::u16string cuerpoDe(const Arbol& nodo) {
    std::u16string cuerpo;
    Pendientes pendientes{&nodo};
    while (!pendientes.empty()) {
        const Arbol& parte = *pendientes.back();
        pendientes.pop_back();
        escribeParte(parte, cuerpo, pendientes);
    }
    return cuerpo;
}

class Compilacion {
public:
    Compilacion(gramatica& g, pilaTokens& lexico, Sistema& sistema)
        : gramatica_(g), lexico_(lexico), sistema_(sistema) {}

    void recorre(const Arbol& raiz) {
        Pendientes pendientes{&raiz};
        while (!pendientes.empty()) {
            const Arbol& nodo = *pendientes.back();
            pendientes.pop_back();
            if (nodo.GetEsHoja() || registra(nodo)) continue;
            pendientes.insert(pendientes.end(), nodo.hijos().rbegin(), nodo.hijos().rend());
        }
    }

private:
    /// True when the node is a definition or a rule, which is then registered.
    bool registra(const Arbol& nodo) {
        const auto nombre = nodo.GetNomRegla();
        if (nombre == u"ER") {
            registraDefinicion(nodo, false, {}, {});
        } else if (nombre == u"Token") {
            const Arbol& pseudoToken = hijo(nodo, 6);
            registraDefinicion(nodo, true, perfilDe(hijo(nodo, 5)),
                               pseudoToken.GetEsHoja() ? std::u16string_view{}
                                                       : hijo(pseudoToken, 2).GetLexema());
        } else if (nombre == u"Regla") {
            gramatica_.SetRegla(hijo(nodo, 1).GetLexema(), cuerpoDe(hijo(nodo, 3)), 0);
        } else {
            return false;
        }
        return true;
    }

    void registraDefinicion(const Arbol& nodo, bool esToken, Perfil perfil, std::u16string_view pseudoToken) {
        constexpr bool sensible = false;
        const std::u16string mensaje =
            lexico_.SetER(hijo(nodo, 4).GetLexema(), hijo(nodo, 2).GetLexema(), esToken, sensible,
                          pseudoToken, perfil.tipo, perfil.base, sinColor);
        if (!mensaje.empty()) {
            sistema_.muestraMensaje({mensaje, u"Atención", Icono::Exclamacion, Botones::Aceptar});
        }
    }

    gramatica& gramatica_;
    pilaTokens& lexico_;
    Sistema& sistema_;
};

} // namespace

std::u16string CompilaArbolEspecificacion(const Arbol& nodo, gramatica& g, pilaTokens& lexico,
                                          Sistema& sistema) {
    if (esParteDeUnCuerpo(nodo)) return cuerpoDe(nodo);
    Compilacion(g, lexico, sistema).recorre(nodo);
    return {};
}

} // namespace norvik
