// SPDX-License-Identifier: MIT

// From the tree of a specification, or from the calls of a loading module, to a language that is a value.
// Nothing is shown and nothing raised: each thing that is wrong becomes a diagnostic at its place, and what
// can be made of the rest is made, as a control does it.
#include "norvik/spec/compiladorLenguaje.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/presupuesto.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/tablaLR.hpp"
#include "norvik/pattern/emparejador.hpp"
#include "norvik/spec/cargadorLenguaje.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/lenguajeDelControl.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"
#include "norvik/spec/nodoEspecificacion.hpp"
#include "norvik/spec/recorridoEspecificacion.hpp"

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

Lenguaje acaba(std::shared_ptr<DatosDeLenguaje> datos) {
    datos->nombra();
    return Lenguaje(std::move(datos));
}

class CompiladorLenguaje {
public:
    CompiladorLenguaje(NodoEspecificacion raiz, const Directivas& directivas,
                       const std::stop_token& cancelacion)
        : raiz_(raiz), directivas_(directivas), cancelacion_(cancelacion) {
        datos_->reglas.ponMetodo(directivas.tabla.metodo);
        datos_->reglas.ponPrecedencias(directivas.tabla.precedencias);
        datos_->lexico.distingueMayusculas = directivas.distingueMayusculas;
    }

    Compilacion compila() {
        // Of what was not read to its end nothing is known to be missing.
        if (registra() && compruebaReglas() && genera())
            return {acaba(std::move(datos_)), std::move(diagnosticos_)};
        return {std::nullopt, std::move(diagnosticos_)};
    }

private:
    /// Where a symbol stands in a body.
    struct Uso {
        std::u16string_view cabeza;
        std::u16string_view simbolo;
        Rango rango;
    };

    void anota(Codigo codigo, Gravedad gravedad, const Rango& rango, Partes partes) {
        diagnosticos_.push_back({codigo, gravedad, rango, std::move(partes)});
    }

    void sigue() const { exigeSeguir(cancelacion_); }

    // False when a capacity was passed, or the compilation cancelled.
    bool registra() {
        Rango aqui;
        try {
            especificacion::recorre(
                raiz_,
                [&](const especificacion::Definicion<NodoEspecificacion>& d) {
                    sigue();
                    aqui = d.patron.rango();
                    registra(d);
                },
                [&](const NodoEspecificacion& cabeza, const NodoEspecificacion& cuerpo) {
                    sigue();
                    aqui = cabeza.rango();
                    registra(cabeza, cuerpo);
                });
        } catch (const OperacionCancelada&) {
            anota(Codigo::Cancelado, Gravedad::Error, {}, {});
            return false;
        } catch (const ErrorNorvik& error) {
            anota(Codigo::CapacidadSuperada, Gravedad::Error, aqui, {{}, error.texto(), {}, {}});
            return false;
        }
        return true;
    }

    void registra(const especificacion::Definicion<NodoEspecificacion>& d) {
        hayDefiniciones_ = true;
        auto error = datos_->lexico.registra({d.patron.lexema(), d.nombre.lexema(), d.esToken,
                                              directivas_.distingueMayusculas, d.pseudoToken, d.perfil.tipo,
                                              d.perfil.base});
        if (d.esToken) tokens_.insert(d.nombre.lexema());
        if (!error) return;
        error->rango = d.patron.rango();
        diagnosticos_.push_back(std::move(*error));
    }

    void registra(const NodoEspecificacion& cabeza, const NodoEspecificacion& alternativas) {
        const std::u16string cuerpo = especificacion::cuerpoDe(
            alternativas,
            [&](const NodoEspecificacion& simbolo) {
                usos_.push_back({cabeza.lexema(), simbolo.lexema(), simbolo.rango()});
            },
            [&](const NodoEspecificacion& alternativa) { rangos_.push_back(alternativa.rango()); });
        datos_->reglas.SetRegla(cabeza.lexema(), cuerpo, 0);
        cabezas_.insert(cabeza.lexema());
    }

    // False when a table cannot be built.
    bool compruebaReglas() {
        if (!usos_.empty() || !rangos_.empty()) return compruebaSimbolos();
        anota(Codigo::SinReglas, Gravedad::Aviso, {raiz_.rango().fin, raiz_.rango().fin},
              {{}, hayDefiniciones_ ? u"" : u"nada", {}, {}, {}});
        return true;
    }

    // One diagnostic for each name that nothing defines, at its first place; false when a table cannot be
    // built for it.
    bool compruebaSimbolos() {
        bool generable = true;
        std::unordered_map<std::u16string_view, std::size_t> vistos;
        for (const Uso& uso : usos_) {
            const bool esVariable = esMayusculaAZ(uso.simbolo.front());
            if ((esVariable ? cabezas_ : tokens_).contains(uso.simbolo)) continue;
            const auto [sitio, nuevo] = vistos.try_emplace(uso.simbolo, diagnosticos_.size());
            if (!nuevo) {
                diagnosticos_[sitio->second].partes.relacionados.push_back(
                    {uso.rango, std::u16string(uso.simbolo)});
                continue;
            }
            generable = generable && !esVariable;
            anota(esVariable ? Codigo::VariableIndefinida : Codigo::TokenIndefinido, Gravedad::Error,
                  uso.rango, {std::u16string(uso.cabeza), std::u16string(uso.simbolo), {}, {}});
        }
        return generable;
    }

    bool genera() {
        gramatica& g = datos_->reglas;
        g.cancelacion = cancelacion_;
        try {
            sigue();
            g.creaConjuntos();
            sigue();
            g.creaAutomata();
            sigue();
            g.creaTablaSLR();
            anotaConflictos();
        } catch (const OperacionCancelada&) {
            anota(Codigo::Cancelado, Gravedad::Error, {}, {});
            return false;
        } catch (const ErrorNorvik& error) {
            anota(Codigo::CapacidadSuperada, Gravedad::Error, raiz_.rango(), {{}, error.texto(), {}, {}});
            return false;
        }
        return true;
    }

    void anotaConflictos() {
        const gramatica& g = datos_->reglas;
        const std::size_t antes = diagnosticos_.size();
        for (std::int16_t fila = 1; fila <= g.filasVigentes(); ++fila) {
            sigue();
            for (std::int16_t columna = 1; columna <= g.columnasVigentes(); ++columna) {
                if (!g.enConflicto(fila, columna)) continue;
                const auto regla = static_cast<std::size_t>(g.conflicto(fila, columna));
                anota(Codigo::Conflicto, Gravedad::Aviso, rangos_[regla - 1],
                      {u"el estado " + aTexto(fila - 1) + u", símbolo " +
                           std::u16string(g.encabezadoColumna(columna)),
                       g.celdaTabla(fila, columna),
                       {},
                       {}});
            }
        }
        comparaConLosQueridos(std::span(diagnosticos_).subspan(antes));
    }

    // Those that are meant are no longer warned of; another number of them is.
    void comparaConLosQueridos(std::span<Diagnostico> conflictos) {
        const auto& queridos = directivas_.conflictos;
        if (!queridos || directivas_.tabla.metodo == Metodo::Clasico) return;
        if (static_cast<std::size_t>(queridos->numero) == conflictos.size())
            for (Diagnostico& conflicto : conflictos) conflicto.gravedad = Gravedad::Nota;
        else
            anota(Codigo::ConflictosDistintos, Gravedad::Aviso, queridos->lugar,
                  {{}, aTexto(static_cast<std::int64_t>(conflictos.size())), {aTexto(queridos->numero)}, {}});
    }

    NodoEspecificacion raiz_;
    const Directivas& directivas_;
    const std::stop_token& cancelacion_;
    std::shared_ptr<DatosDeLenguaje> datos_ = std::make_shared<DatosDeLenguaje>();
    std::vector<Diagnostico> diagnosticos_;
    std::set<std::u16string_view> tokens_;
    std::set<std::u16string_view> cabezas_;
    bool hayDefiniciones_ = false;
    std::vector<Uso> usos_;
    std::vector<Rango> rangos_; ///< of the body of each rule
};

/// Takes the calls of a module; what fails ends its replay.
class CargadorDeDatos final : public CargadorLenguaje {
public:
    explicit CargadorDeDatos(DatosDeLenguaje& datos) : datos_(datos) {}

    void DistingueMayusculas() override { datos_.lexico.distingueMayusculas = true; }

    void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken, std::int32_t tipoToken,
               std::u16string_view pseudoToken, std::int32_t baseToken,
               std::int32_t /*colorTexto*/) override {
        const auto error = datos_.lexico.registra({expresion, nomER, esToken, sensible(), pseudoToken,
                                                   a16(tipoToken, u"el tipo del token"), baseToken});
        if (error) throw ArgumentoNoValido(mensaje(*error));
    }
    void SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int32_t tipoToken,
                   std::u16string_view pseudoToken, std::int32_t baseToken,
                   std::int32_t /*colorTexto*/) override {
        const auto error = datos_.lexico.registraPatron(
            {patron, nomER, true, sensible(), pseudoToken, a16(tipoToken, u"el tipo del token"), baseToken});
        if (error) throw ArgumentoNoValido(mensaje(*error));
    }
    std::size_t SetElementosTablaSLR(std::span<const CeldaSLR> celdas) override {
        return datos_.reglas.SetElementosTablaSLR(celdas);
    }
    void SetRegla(std::u16string_view regla, std::int16_t numIdentificacion) override {
        const auto [cabeza, cuerpo] = parteRegla(regla);
        datos_.reglas.SetRegla(cabeza, cuerpo, numIdentificacion);
    }
    void InsertarSimboloGramatica(std::u16string_view simboloG) override {
        datos_.reglas.SetSimbolo(simboloG);
    }
    void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) override {
        datos_.reglas.SetDimensionTablaSLR(filas, columnas);
    }
    void SetElementoTablaSLR(std::int16_t posFilas, std::int16_t posColumnas,
                             std::int16_t valorSLR) override {
        datos_.reglas.SetElementoTablaSLR(posFilas, posColumnas, valorSLR);
    }
    // No module makes these calls.
    void SetPalabraReservada(std::u16string_view, std::u16string&, std::u16string_view) override {}
    void SetOperador(std::u16string_view, std::u16string_view, std::u16string_view) override {}
    void SetComentarioLinea(std::u16string_view) override {}
    bool GeneraCompilador() override { return false; }

private:
    bool sensible() const { return datos_.lexico.distingueMayusculas; }

    DatosDeLenguaje& datos_;
};

// What is wrong with a table that was taken as it came, empty when a parse can trust it: an entry of a token
// shifts to a state, reduces by a rule or accepts; one of a variable goes to a state.
std::u16string defectoDeTabla(const GramaticaLR& g) {
    const TablaLR& tabla = g.tabla;
    const std::int16_t estados = tabla.celdas().filas();
    std::vector<char> deVariable; // asked for each entry: faster than the bits of a vector of truths
    for (std::int16_t columna = 1; columna <= tabla.columnasVigentes(); ++columna)
        deVariable.push_back(tabla.esColumnaDeVariable(columna) ? 1 : 0);
    const auto esAceptable = [&](std::int16_t columna, std::int16_t valor) {
        if (valor > 0 && valor < estados) return true;
        if (deVariable[static_cast<std::size_t>(columna) - 1] != 0) return false;
        return valor == TablaLR::aceptar || (valor < 0 && -valor <= g.reglas.numReglas());
    };
    const auto defecto = [&](std::int16_t estado, std::int16_t columna, std::int16_t valor) {
        return u"el valor " + aTexto(valor) + u" del estado " + aTexto(estado) + u", símbolo " +
               std::u16string(tabla.simbolo(columna)) + u", no nombra ningún estado ni regla";
    };
    if (estados == 1 && tabla.codigoInicial() >= 0 && tabla.codigoInicial() < tabla.columnasVigentes())
        return defecto(0, static_cast<std::int16_t>(tabla.codigoInicial() + 1), 1);
    std::u16string primero;
    for (std::int16_t fila = 1; fila <= tabla.filasVigentes() && primero.empty(); ++fila)
        tabla.celdas().paraCadaEntrada(
            fila, tabla.columnasVigentes(), [&](std::int16_t columna, std::int16_t guardado) {
                if (!primero.empty() || esAceptable(columna, guardado)) return;
                const auto estado = static_cast<std::int16_t>(fila - 1);
                const std::int16_t valor = tabla.entrada(estado, static_cast<std::int16_t>(columna - 1));
                if (!esAceptable(columna, valor)) primero = defecto(estado, columna, valor);
            });
    return primero;
}

Diagnostico errorDeModulo(Codigo codigo, std::u16string texto, std::int32_t linea = 1) {
    const Punto principio{0, linea, 1};
    return {codigo, Gravedad::Error, {principio, principio}, {{}, std::move(texto), {}, {}}};
}

} // namespace

const Lenguaje& lenguajeDeEspecificaciones() {
    static const Lenguaje lenguaje = [] {
        auto datos = std::make_shared<DatosDeLenguaje>();
        InstalaLenguajeEspecificacion(datos->reglas, datos->lexico, false);
        return acaba(std::move(datos));
    }();
    return lenguaje;
}

Directivas directivasDe(std::u16string_view especificacion, const OpcionesCompilacion& opciones,
                        Lugares::Unidad unidad) {
    Directivas directivas = leeDirectivas(especificacion, unidad);
    if (opciones.metodo) directivas.tabla.metodo = *opciones.metodo;
    return directivas;
}

Compilacion compilaEspecificacion(const Analisis& especificacion, const Directivas& directivas,
                                  const std::stop_token& cancelacion) {
    if (!especificacion) return {std::nullopt, especificacion.diagnosticos};
    return CompiladorLenguaje(NodoEspecificacion(especificacion.arbol.raiz()), directivas, cancelacion)
        .compila();
}

namespace {

/// While a language is loaded a table may be wider than there are symbols.
void copiaTabla(const gramatica& de, gramatica& a) {
    a.SetDimensionTablaSLR(de.GetDimensionFilasSLR(), de.GetDimensionColumnasSLR());
    const TablaLR& tabla = de.valores().tabla;
    for (std::int16_t fila = 0; fila < tabla.filasVigentes(); ++fila) {
        for (std::int16_t columna = 0; columna < tabla.columnasVigentes(); ++columna) {
            const std::int16_t valor = tabla.entrada(fila, columna);
            if (valor == 0) continue;
            a.SetElementoTablaSLR(static_cast<std::int16_t>(fila + 1), static_cast<std::int16_t>(columna + 1),
                                  valor);
        }
    }
}

} // namespace

Lenguaje lenguajeDe(const pilaTokens& lexico, const gramatica& reglas) {
    auto datos = std::make_shared<DatosDeLenguaje>();
    for (const expresionRegular* const d : lexico.tokensLenguaje())
        datos->lexico.registraPatron(
            {d->expresion, d->nomER, true, !d->expReg->ignoraMayusculas(), d->pseudoToken, d->tipo, d->base});
    if (!defectoDeTabla(reglas.valores()).empty()) return acaba(std::move(datos));
    datos->reglas.copiaReglas(reglas);
    const conjunto& simbolos = reglas.simbolos();
    for (std::int16_t s = 1; s <= simbolos.totalElementos(); ++s)
        datos->reglas.SetSimbolo(simbolos.simboloAt(s));
    copiaTabla(reglas, datos->reglas);
    return acaba(std::move(datos));
}

Compilacion lenguajeDeModulo(const std::function<std::optional<ErrorModulo>(CargadorLenguaje&)>& replica) {
    auto datos = std::make_shared<DatosDeLenguaje>();
    CargadorDeDatos cargador(*datos);
    if (const auto error = replica(cargador))
        return {std::nullopt, {errorDeModulo(Codigo::ModuloIncorrecto, error->texto, error->linea)}};
    if (std::u16string defecto = defectoDeTabla(datos->reglas.valores()); !defecto.empty())
        return {std::nullopt, {errorDeModulo(Codigo::TablaIncorrecta, std::move(defecto))}};
    return {acaba(std::move(datos)), {}};
}

} // namespace norvik::inline v0_2
