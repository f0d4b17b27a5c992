// SPDX-License-Identifier: MIT

#pragma once

#include "grammar/apoyoGramatica.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include <functional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::apoyo {

/// Writes down what is asked of the system: O busy pointer, N normal pointer, e pending events, m message.
class SistemaVigilado : public SistemaMemoria {
public:
    SistemaVigilado()
        : SistemaMemoria([this](const Mensaje& m) {
              mensajes.push_back(m);
              pasos += 'm';
          }) {}
    void ponPuntero(Puntero puntero) override {
        pasos += puntero == Puntero::Ocupado ? 'O' : 'N';
        SistemaMemoria::ponPuntero(puntero);
    }
    void procesaEventos() override { pasos += 'e'; }
    void trabaja(const std::function<void(std::stop_token)>& trabajo) override { trabajo(parada); }

    std::vector<Mensaje> mensajes;
    std::string pasos;
    std::stop_token parada; ///< of its works
};

/// Counts the locks that are still on.
class CajaVigilada : public CajaTexto {
public:
    void bloqueaDibujo() override { ++bloqueos; }
    void desbloqueaDibujo() override { --bloqueos; }

    int bloqueos = 0;
};

/// A host of the control that sees all it does.
struct Anfitrion {
    SistemaVigilado sistema;
    CajaVigilada caja;
    Norvik norvik{caja, sistema};

    bool compila(std::u16string_view especificacion) {
        return norvik.CargaGramatica(especificacion) && norvik.GeneraCompilador();
    }
    bool analiza(std::u16string_view texto) {
        norvik.Text(texto);
        return norvik.ConstruyeArbolSintactico();
    }
    /// Nothing is left busy, locked or hidden.
    bool enReposo() const {
        return sistema.puntero() == Puntero::Normal && caja.bloqueos == 0 && !caja.ocultaSeleccion();
    }
    /// Token definitions, one a line: name, kind, base, display name, pattern.
    std::string lexico() {
        std::u16string texto;
        for (const auto& d : norvik.Lexico().expresionesRegulares()) {
            texto += d->nomER + (d->nomToken.empty() ? u"- " : u" ") + aTexto(d->tipo) + u" " +
                     aTexto(d->base) + u" (" + d->pseudoToken + u") " + d->expresion + u"\n";
        }
        return aUtf8(texto);
    }
    /// Rules, one a line.
    std::string reglas() {
        std::string texto;
        for (std::int16_t r = 1; r <= norvik.Gramatica().getNumReglas(); ++r) {
            texto += aUtf8(norvik.Gramatica().GetLeftRegla(r)) + " -> " +
                     aUtf8(norvik.Gramatica().GetRightRegla(r)) + "\n";
        }
        return texto;
    }
    std::u16string tabla() { return enTexto(norvik.Gramatica().valores().tabla); }
};

inline std::string mensajes(const std::vector<Mensaje>& todos) {
    std::string texto;
    for (const auto& m : todos) texto += aUtf8(m.titulo) + ": " + aUtf8(m.texto) + "\n";
    return texto;
}

} // namespace norvik::apoyo
