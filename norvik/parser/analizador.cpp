// SPDX-License-Identifier: MIT

// A text is recognised as a whole, then parsed token by token. The tokens are kept as they are shifted, and
// the steps as they are made: together they are the tree.
#include "norvik/parser/analizador.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/erroresTexto.hpp"
#include "norvik/parser/lectorTexto.hpp"
#include "norvik/parser/motorSLR.hpp"
#include "norvik/parser/reparador.hpp"

#include <chrono>
#include <span>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

// What recognition may take: many times what a text takes whose patterns do not run away.
constexpr auto plazoFijo = std::chrono::milliseconds(3000);
constexpr auto plazoPorCaracter = std::chrono::microseconds(1);

// Ends a parse from within; what is wrong is no fault of the text.
struct Corte {
    Codigo codigo;
    std::u16string_view causa;
};

class CursoDeTexto {
public:
    CursoDeTexto(TextoAnalizado& texto, const pilaTokens& lexico, const MapaTokens& mapa,
                 LenguajeAnalisis& lenguaje, std::vector<std::int16_t>& pasos,
                 const std::stop_token& cancelacion)
        : texto_(texto), lector_(texto.texto, lexico, mapa), lenguaje_(lenguaje), pasos_(pasos),
          cancelacion_(cancelacion),
          maximoReducciones_(reduccionesDeMas + reduccionesPorCaracter * texto.texto.size()) {
        lee();
    }

    std::int16_t columna() const { return columna_; }
    static Posicion posicion() { return {}; }
    void desplaza() {
        const Lectura& lectura = lector_.lectura();
        if (lectura.leido.definicion == TokenLeido::fin)
            throw Corte{Codigo::TablaIncorrecta, u"desplaza el final del texto"};
        texto_.tokens.push_back({lectura.leido.definicion, static_cast<std::uint32_t>(lectura.inicio - 1),
                                 static_cast<std::uint32_t>(lectura.fin - 1)});
        pasos_.push_back(0);
        desplazado_ = pasos_.size();
        consulta();
        lee();
    }
    void reduce(std::int16_t regla) { reduce(std::span(&regla, 1)); }
    void reduce(std::span<const std::int16_t> reglas) {
        if (pasos_.size() - desplazado_ > maximoReducciones_)
            throw Corte{Codigo::TablaIncorrecta, u"no deja de reducir"};
        pasos_.insert(pasos_.end(), reglas.begin(), reglas.end());
        consulta();
    }
    LectorTexto& lector() { return lector_; }

private:
    // For one token: more than a table without endless reductions takes, and bearable.
    static constexpr std::size_t reduccionesDeMas = 1'000'000;
    static constexpr std::size_t reduccionesPorCaracter = 100;
    static constexpr std::size_t pasosPorConsulta = 4096;

    void consulta() {
        if (pasos_.size() < proximaConsulta_) return;
        proximaConsulta_ = pasos_.size() + pasosPorConsulta;
        if (cancelacion_.stop_requested()) throw Corte{Codigo::Cancelado, {}};
    }

    void lee() { columna_ = lenguaje_.columna(lector_.lee().leido); }

    TextoAnalizado& texto_;
    LectorTexto lector_;
    LenguajeAnalisis& lenguaje_;
    std::vector<std::int16_t>& pasos_;
    const std::stop_token& cancelacion_;
    std::size_t maximoReducciones_;
    std::size_t desplazado_ = 0; // steps up to the last shift
    std::size_t proximaConsulta_ = pasosPorConsulta;
    std::int16_t columna_ = 0;
};

Diagnostico sinLugar(Codigo codigo, std::u16string_view hallado = {}) {
    Diagnostico diagnostico{codigo, Gravedad::Error, {}, {}};
    diagnostico.partes.hallado = hallado;
    return diagnostico;
}

} // namespace

Analisis Analizador::analiza(std::unique_ptr<TextoAnalizado> texto, const OpcionesAnalisis& opciones) {
    if (auto error = reconoce(*texto, opciones)) return {{}, {std::move(*error)}};
    Recorrido recorrido = recorre(*texto, opciones, [&](Desenlace desenlace, LectorTexto& lector) {
        if (desenlace == Desenlace::Aceptado) return Recorrido{Final::Aceptado, {}};
        return repara(*texto, lector, opciones);
    });
    if (recorrido.final == Final::SinArbol) return {{}, std::move(recorrido.diagnosticos)};
    auto arbol = ArbolAnalisis::construye(std::move(texto), pasos_);
    if (!arbol) {
        recorrido.diagnosticos.push_back(
            sinLugar(Codigo::TablaIncorrecta, u"sus reducciones no forman un árbol"));
        return {{}, std::move(recorrido.diagnosticos)};
    }
    if (recorrido.final == Final::Reparado) return {{}, std::move(recorrido.diagnosticos), std::move(*arbol)};
    return {std::move(*arbol), {}};
}

std::variant<Pelicula, Diagnostico> Analizador::filma(std::unique_ptr<TextoAnalizado> texto,
                                                      const OpcionesAnalisis& opciones) {
    if (auto error = reconoce(*texto, opciones)) return std::move(*error);
    Pelicula::Fin fin;
    const Recorrido recorrido = recorre(*texto, opciones, [&](Desenlace desenlace, LectorTexto& lector) {
        fin = {lector.lectura(), desenlace == Desenlace::Aceptado};
        return Recorrido{};
    });
    if (!recorrido.diagnosticos.empty()) return recorrido.diagnosticos.front();
    return Pelicula(std::move(texto), pasos_, fin, lenguaje_);
}

void Analizador::reconoceTexto(std::u16string_view texto, const OpcionesAnalisis& opciones) {
    const Presupuesto presupuesto(plazoFijo + plazoPorCaracter * texto.size(), opciones.cancelacion);
    reconocedor_.reconoce(texto, presupuesto, mapa_.reinicia(1, texto));
}

std::optional<Diagnostico> Analizador::reconoce(const TextoAnalizado& texto,
                                                const OpcionesAnalisis& opciones) {
    try {
        exigeSeguir(opciones.cancelacion); // a short text does not ask again
        reconoceTexto(texto.texto, opciones);
    } catch (const BusquedaDesbocada& error) {
        Diagnostico diagnostico = sinLugar(Codigo::BusquedaDesbocada);
        diagnostico.partes.nombre = error.definicion();
        return diagnostico;
    } catch (const OperacionCancelada&) {
        return sinLugar(Codigo::Cancelado);
    }
    return std::nullopt;
}

Analizador::Recorrido Analizador::recorre(TextoAnalizado& texto, const OpcionesAnalisis& opciones,
                                          const AlParar& alParar) {
    if (gramatica_.simbolos().esVacio()) return {Final::SinArbol, {sinLugar(Codigo::SinGramatica)}};
    if (lenguaje_.actualiza()) {
        cadenas_.olvida();
        fichas_.reset();
    }
    pasos_.clear();
    try {
        CursoDeTexto curso(texto, lexico_, mapa_, lenguaje_, pasos_, opciones.cancelacion);
        const Desenlace desenlace = MotorSLR(curso, lenguaje_, cadenas_).ejecuta();
        return alParar(desenlace, curso.lector());
    } catch (const Corte& corte) {
        return {Final::SinArbol, {sinLugar(corte.codigo, corte.causa)}};
    } catch (const OperacionCancelada&) {
        return {Final::SinArbol, {sinLugar(Codigo::Cancelado)}};
    } catch (const SubindiceFueraDeIntervalo&) {
        return {Final::SinArbol,
                {sinLugar(Codigo::TablaIncorrecta, u"nombra un estado o una regla que no existen")}};
    }
}

Analizador::Recorrido Analizador::repara(TextoAnalizado& texto, LectorTexto& lector,
                                         const OpcionesAnalisis& opciones) {
    if (!fichas_) fichas_.emplace(lexico_, gramatica_);
    Reparador reparador({texto, pasos_, lector}, lenguaje_, {lexico_, *fichas_}, opciones);
    const bool reparado = reparador.repara();
    return {reparado ? Final::Reparado : Final::SinArbol, reparador.diagnosticos()};
}

Lexemas Analizador::lexemas(std::unique_ptr<TextoAnalizado> texto, const OpcionesAnalisis& opciones) {
    if (auto error = reconoce(*texto, opciones)) return Lexemas(nullptr, {std::move(*error)});
    const auto& definiciones = lexico_.tokensLenguaje();
    std::vector<Diagnostico> errores;
    std::size_t malos = 0; // the last wrong characters that stand together: from here …
    std::size_t finDeMalos = 0;
    const auto cuenta = [&] {
        if (malos < finDeMalos && errores.size() < maximoErrores)
            errores.push_back(caracteresIncorrectos(texto->texto, malos, finDeMalos, texto->lugares));
    };
    // As reading does it, save that it stays on comments.
    Lectura lectura;
    for (std::int32_t posicion = 1;;) {
        leeDesde<Comentarios::SeLeen>(posicion, texto->texto, mapa_, definiciones, lectura);
        if (lectura.leido.definicion == TokenLeido::fin) break;
        const auto inicio = static_cast<std::size_t>(lectura.inicio) - 1;
        if (lectura.leido.definicion == TokenLeido::desconocido) {
            if (inicio != finDeMalos) {
                cuenta();
                malos = inicio;
            }
            finDeMalos = inicio + largoDeCaracter(texto->texto, inicio);
            posicion = static_cast<std::int32_t>(finDeMalos) + 1;
            continue;
        }
        texto->tokens.push_back({lectura.leido.definicion, static_cast<std::uint32_t>(inicio),
                                 static_cast<std::uint32_t>(lectura.fin - 1)});
        posicion = lectura.fin;
    }
    cuenta();
    return Lexemas(std::move(texto), std::move(errores));
}

} // namespace norvik::inline v0_2
