// SPDX-License-Identifier: MIT

// A parse that went wrong goes on here. Its stack is made again from the steps that it took, without those
// that it took for the sake of the wrong token. From there on each token is tried over the stack, and the
// stack changes only once the token has been shifted, so that every error finds it as its token came. The
// likeliest repair of an error is made and the parse goes on, until the end or until the budget for repairs
// is spent. Texts without errors never come here.
#include "norvik/parser/reparador.hpp"

#include "norvik/parser/erroresTexto.hpp"

#include <algorithm>
#include <span>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t tokensPorConsulta = 1024;
// For one token: as many as the deepest text may need and a damaged table may take.
constexpr std::size_t reduccionesDeMas = 100'000;

} // namespace

Reparador::Reparador(const Curso& curso, LenguajeAnalisis& lenguaje, const VocesDeLenguaje& voces,
                     const OpcionesAnalisis& opciones)
    : texto_(curso.texto), pasos_(curso.pasos), lenguaje_(lenguaje), voces_(voces), opciones_(opciones),
      entrada_(curso.texto.texto, curso.lector, lenguaje), gasto_(opciones.cancelacion), ensayo_({}) {
    rehacePila();
}

void Reparador::rehacePila() {
    pasos_.erase(std::find(pasos_.rbegin(), pasos_.rend(), 0).base(), pasos_.end());
    pila_ = {0};
    auto token = texto_.tokens.begin();
    for (const std::int16_t paso : pasos_) {
        std::int16_t columna = 0;
        if (paso == 0) {
            columna = lenguaje_.columna({(token++)->definicion, {}});
        } else {
            const auto regla = lenguaje_.regla(paso);
            columna = regla.columnaCabeza;
            pila_.resize(pila_.size() -
                         std::min(pila_.size(),
                                  static_cast<std::size_t>(std::max<std::int16_t>(regla.numElementos, 0))));
        }
        pila_.push_back(lenguaje_.entrada(pila_.empty() ? std::int16_t{0} : pila_.back(), columna));
    }
}

bool Reparador::repara() {
    const bool soloElPrimero = opciones_.errores == ErroresBuscados::Primero;
    if (soloElPrimero) anotaIncorrectos();
    if (!errores_.empty()) return false;
    for (;;) {
        switch (sigueHastaError()) {
        case Avance::Aceptado:
            return true;
        case Avance::SinFin:
            desiste(Codigo::TablaIncorrecta, u"no deja de reducir");
            return false;
        case Avance::Desplazado: // too many errors
            desiste(Codigo::ReparacionAgotada);
            return false;
        case Avance::Rechazado:
            if (!reparaError()) return false;
        }
    }
}

// Keeps tokens as long as the table takes them.
Avance Reparador::sigueHastaError() {
    for (;;) {
        if (errores_.size() >= maximoErrores) return Avance::Desplazado;
        const Avance avance = avanzaCon(entrada_.en(siguiente_).columna);
        if (avance == Avance::Aceptado) anotaIncorrectos();
        if (avance != Avance::Desplazado) return avance;
        if (EntradaTokens::esFin(entrada_.en(siguiente_))) return Avance::SinFin;
        conserva();
    }
}

// Tries a token, and lets stack and steps follow it when it is taken.
Avance Reparador::avanzaCon(std::int16_t columna) {
    const std::size_t pasosAntes = pasos_.size();
    ensayo_.empieza(pila_);
    const Avance avance = avanza(ensayo_, columna, lenguaje_, pila_.size() + reduccionesDeMas,
                                 [&](std::int16_t regla) { pasos_.push_back(regla); });
    if (avance == Avance::Desplazado)
        ensayo_.consuma(pila_);
    else if (avance != Avance::Aceptado)
        pasos_.resize(pasosAntes);
    return avance;
}

void Reparador::conserva() {
    texto_.tokens.push_back(entrada_.en(siguiente_).sitio);
    pasos_.push_back(0);
    pasa();
    if (siguiente_ % tokensPorConsulta == 0 && opciones_.cancelacion.stop_requested())
        throw OperacionCancelada();
}

// Goes behind the next token.
void Reparador::pasa() {
    anotaIncorrectos();
    entrada_.olvidaHasta(++siguiente_);
}

// Tells the wrong characters before the next token, once.
void Reparador::anotaIncorrectos() {
    const auto& [inicio, fin] = entrada_.en(siguiente_).incorrectos;
    if (inicio == fin || siguiente_ < contados_) return;
    contados_ = siguiente_ + 1;
    errores_.push_back(caracteresIncorrectos(texto_.texto, inicio, fin, texto_.lugares));
    if (opciones_.errores == ErroresBuscados::Todos)
        errores_.back().partes.arreglos.push_back(redactor().arreglo({}));
}

Redactor Reparador::redactor() {
    const std::size_t anterior = texto_.tokens.empty() ? 0 : texto_.tokens.back().fin;
    return {texto_, voces_.fichas, entrada_, {siguiente_, anterior}};
}

// Where wrong characters stand before the token that does not fit they are the error: what they were meant
// for is what is missing.
void Reparador::anotaError() {
    anotaIncorrectos();
    std::vector<std::u16string> esperados = esperadosEn(pila_, voces_.fichas, lenguaje_);
    if (siguiente_ < contados_) {
        errores_.back().partes.esperados = std::move(esperados);
        errores_.back().partes.arreglos.clear();
        return;
    }
    errores_.push_back(tokenInesperado(entrada_.en(siguiente_).lectura, std::move(esperados), texto_.lugares,
                                       voces_.lexico));
}

bool Reparador::reparaError() {
    anotaError();
    if (opciones_.errores == ErroresBuscados::Primero) return false;
    const auto reparaciones =
        buscaReparaciones({pila_, entrada_, siguiente_}, lenguaje_, voces_.fichas, gasto_);
    for (const Reparacion& reparacion : reparaciones)
        errores_.back().partes.arreglos.push_back(redactor().arreglo(reparacion));
    if (reparaciones.empty()) {
        desiste(Codigo::ReparacionAgotada);
        return false;
    }
    aplica(reparaciones.front());
    return true;
}

void Reparador::aplica(const Reparacion& reparacion) {
    for (const PasoReparacion& paso : reparacion) {
        switch (paso.tipo) {
        case PasoReparacion::Tipo::Inserta:
            inserta(paso.columna);
            break;
        case PasoReparacion::Tipo::Quita:
            pasa();
            break;
        case PasoReparacion::Tipo::Conserva:
            avanzaCon(entrada_.en(siguiente_).columna);
            conserva();
        }
    }
}

void Reparador::inserta(std::int16_t columna) {
    avanzaCon(columna);
    const std::uint32_t anterior = texto_.tokens.empty() ? 0 : texto_.tokens.back().fin;
    texto_.insertados.push_back(static_cast<std::uint32_t>(texto_.tokens.size()));
    texto_.tokens.push_back({voces_.fichas.de(columna).definicion, anterior, anterior});
    pasos_.push_back(0);
}

void Reparador::desiste(Codigo codigo, std::u16string_view causa) {
    Diagnostico diagnostico{codigo, Gravedad::Error, rangoDelSiguiente(), {}};
    if (codigo == Codigo::ReparacionAgotada) diagnostico.gravedad = Gravedad::Nota;
    diagnostico.partes.hallado = causa;
    errores_.push_back(std::move(diagnostico));
}

Rango Reparador::rangoDelSiguiente() {
    const TokenSituado& sitio = entrada_.en(siguiente_).sitio;
    return texto_.lugares.rango(sitio.inicio, sitio.fin);
}

} // namespace norvik::inline v0_2
