// SPDX-License-Identifier: MIT

// The editing of the control by the steps that are promised for it: one after the other in their order, as
// plainly as they read, at whatever cost. Lists are whole copies, and nothing is remembered that the steps do
// not name. The tests give it and the control the same keys and calls. What the control does besides, for
// reasons told where it does so, is marked "besides" here.
#pragma once

#include "norvik/base/texto.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik {

class EditorPorPasos {
public:
    struct Instantanea {
        std::int32_t SelStart = 0;
        std::int32_t TextLen = 0;
        std::u16string Text;
    };

    EditorPorPasos() {
        lexico.ColorComentarios = 0x008000;
        lexico.ColorError = 0x0000FF;
        lexico.ColorNumeros = 0x808000;
        lexico.ColorOperadores = 0x000080;
        lexico.colorPalabrasReservadas = 0x800000;
        lexico.ColorEtiquetas = 0xFF8080;
        caja.ponOcultaSeleccion(true);
        auto& e = caja.eventos;
        e.cambio = [this](const CambioDeTexto& c) { alCambiar(c); };
        e.cambioDeSeleccion = [this] { alCambiarLaSeleccion(false); };
        e.teclaAbajo = [this](auto& codigo, auto& shift) { alBajarTecla(codigo, shift); };
        e.pulsacion = [](auto& /*caracter*/) {};
        e.teclaArriba = [this](auto& codigo, auto& /*shift*/) { alSubirTecla(codigo); };
        e.pierdeFoco = [this] { alPerderElFoco(); };
        e.vaAPegar = [this] { vaAPegar(); };
    }
    EditorPorPasos(const EditorPorPasos&) = delete;
    EditorPorPasos& operator=(const EditorPorPasos&) = delete;
    ~EditorPorPasos() = default;

    CajaTexto caja;
    pilaTokens lexico;
    std::string sucesos;
    std::vector<Instantanea> undos, redos;

    std::int32_t TotalLineas() const { return numLineas; }
    std::int32_t LineaActual() const { return lineaDe(SelStart()) + 1; }

    void Colorear(bool valor) { opciones.colorear = valor; }
    void AutoCorreccion(bool valor) { opciones.autoCorreccion = valor; }
    void LenguajeSensible(bool valor) { opciones.lenguajeSensible = valor; }
    void AutoTAB(bool valor) { opciones.autoTAB = valor; }
    void EspaciosXTAB(std::int16_t cuantos) { opciones.espaciosXTAB = cuantos; }
    void HideSelection(bool valor) {
        if (std::exchange(opciones.hideSelection, valor) != valor) caja.ponOcultaSeleccion(valor);
    }
    void Text(std::u16string_view texto) {
        if (texto != caja.texto()) caja.ponTexto(texto);
    }
    void SelText(std::u16string_view texto) { caja.reemplazaSeleccion(texto); }
    void BorraTodo() {
        caja.ponTexto({});
        caja.ponColorSeleccion(0);
        InicializaUndosYRedos();
    }
    void tabuladorEnfocado() {
        caja.reemplazaSeleccion(std::u16string(static_cast<std::size_t>(opciones.espaciosXTAB), u' '));
    }

    // ---- colours

    void ColoreaTodo() {
        coloreaRango(0, longitud(), -1);
        lineaEnEdicion = false;
    }
    void ColoreaLineaActual() { coloreaLinea(LineaActual()); }

    // ---- marks

    void MarcaErrorLinea(std::int16_t numLinea) {
        const std::int32_t SelStart = this->SelStart();
        std::int32_t ini = 0;
        std::int32_t fin = -1;
        for (std::int32_t i = 1; i <= numLinea && ini <= longitud(); ++i) {
            ini = i == 1 ? 0 : fin + 2;
            const auto p = caja.texto().find(u'\r', static_cast<std::size_t>(std::min(ini, longitud())));
            fin = p == std::u16string_view::npos ? longitud() : static_cast<std::int32_t>(p);
        }
        lineaMarcada = numLinea;
        marcados.assign(caja.texto().size(), false);
        if (fin == -1 || ini > longitud()) return; // there is no such line
        ocupado = true;
        inicioEdicionSilenciosa();
        if (fin > ini) { // besides: an empty one gives what is typed there no colour of an error
            caja.selecciona(ini, fin - ini);
            caja.ponColorSeleccion(lexico.ColorError);
        }
        std::fill(marcados.begin() + ini, marcados.begin() + fin, true);
        caja.selecciona(SelStart, 0);
        finEdicionSilenciosa();
        ocupado = false;
        lineaEnEdicion = false;
    }

    // ---- undo and redo

    void InicializaUndosYRedos() {
        redos.clear();
        undos.clear();
        grabaDeshacer = true;
    }
    void Undo() {
        if (undos.size() >= 2 && grabaDeshacer) {
            inicioEdicionSilenciosa();
            grabaDeshacer = false;
            const Instantanea act = undos.back();
            undos.pop_back();
            const Instantanea& ant = undos.back();
            if (act.TextLen > ant.TextLen) {
                const std::int32_t d = act.TextLen - ant.TextLen;
                if (act.SelStart - d >= 0) ponCursor(act.SelStart - d);
                caja.selecciona(SelStart(), d);
                caja.reemplazaSeleccion({});
            } else {
                const std::int32_t d = ant.TextLen - act.TextLen;
                const std::u16string r = textoDiferencia(ant.Text, act.Text, d + act.SelStart + 1);
                ponCursor(act.SelStart);
                caja.ponColorSeleccion(0);
                pon(r, true);
            }
            redos.push_back(act);
            finEdicionSilenciosa();
        }
        acabaDeshacer();
    }
    void Redo() {
        if (!redos.empty() && grabaDeshacer) {
            inicioEdicionSilenciosa();
            grabaDeshacer = false;
            const Instantanea e = redos.back();
            redos.pop_back();
            const std::u16string t(caja.texto()); // moving the caret may correct words
            const std::int32_t sobran = longitud() - e.TextLen;
            if (sobran > 0) {
                ponCursor(e.SelStart);
                caja.selecciona(SelStart(), sobran);
                caja.reemplazaSeleccion({});
            } else {
                const std::u16string r = textoDiferencia(t, e.Text, e.SelStart + 1);
                const std::int32_t s = e.SelStart - static_cast<std::int32_t>(r.size());
                if (s >= 0) ponCursor(s);
                ponCursor(SelStart());
                caja.ponColorSeleccion(0);
                pon(r, false);
            }
            undos.push_back(e);
            finEdicionSilenciosa();
        }
        acabaDeshacer();
    }

private:
    std::int32_t SelStart() const { return caja.inicioSeleccion(); }
    std::int32_t longitud() const { return static_cast<std::int32_t>(caja.texto().size()); }
    std::int32_t lineaDe(std::int32_t posicion) const { return caja.lineaDeCaracter(posicion); }
    std::int32_t indice(std::int32_t linea) const { return caja.inicioDeLinea(linea); }
    void ponCursor(std::int32_t posicion) { caja.selecciona(posicion, 0); }

    // ---- colours

    void coloreaRango(std::int32_t inicio, std::int32_t fin, std::int32_t linea) {
        if (!opciones.colorear) return;
        const std::int32_t desde = inicio + 1;
        const std::int32_t hasta = fin + 1;
        if (linea != -1 && linea == lineaMarcada && linea != 0) descoloreaLinea(linea);
        if (desde > hasta) return;
        ocupado = true;
        const std::int32_t SelStart = this->SelStart();
        const std::int32_t SelLength = caja.longitudSeleccion();
        const MapaTokens& mapa = lexico.ReconoceTokens(caja.texto(), static_cast<std::int16_t>(desde),
                                                       static_cast<std::int16_t>(hasta));
        for (std::int32_t pos = desde; pos < hasta;) {
            const auto token = mapa.en(pos);
            if (token) pintaToken(pos - 1, token->longitud, *token->definicion);
            pos += token && token->longitud > 0 ? token->longitud : 1;
        }
        caja.selecciona(SelStart, SelLength);
        ocupado = false;
    }
    void pintaToken(std::int32_t lugar, std::int32_t n, const expresionRegular& d) {
        const bool esAuto = d.tipo == Norvik_AutoExpReg;
        if (d.colorTexto == sinColor && !esAuto) return;
        caja.selecciona(lugar, n);
        // besides: one that is beyond a text which corrections made shorter has no colour for what comes
        // next, and a word that is right is left alone
        const bool pinta = d.colorTexto != sinColor;
        if (pinta && caja.longitudSeleccion() > 0) caja.ponColorSeleccion(d.colorTexto);
        const bool corrige = opciones.autoCorreccion && !opciones.lenguajeSensible;
        if (!corrige || (!esAuto && d.tipo != Norvik_PalabraReservada)) return;
        if (caja.textoSeleccionado() == d.expresion) return;
        if (pinta) caja.ponColorSeleccion(d.colorTexto);
        caja.reemplazaSeleccion(d.expresion);
    }
    void coloreaLinea(std::int32_t linea) {
        std::int32_t ini = indice(linea - 1);
        if (ini == -1) ini = indice(linea - 2);
        if (ini == -1) ini = longitud(); // there is no such line
        std::int32_t fin = indice(linea);
        if (fin == -1) fin = longitud();
        coloreaRango(ini, fin, linea);
        lineaEnEdicion = false;
    }
    void descoloreaLinea(std::int32_t linea) {
        if (lineaMarcada == linea) lineaMarcada = -1;
        if (linea > numLineas) return;
        const std::int32_t SelStart = this->SelStart();
        const std::int32_t ini = indice(linea - 1);
        std::int32_t fin = indice(linea);
        if (ini == -1) return; // besides: corrections may have taken the line since
        if (fin < ini && fin != -1) return;
        if (fin == -1) fin = longitud();
        olvidaMarca(ini, fin);
        ocupado = true;
        inicioEdicionSilenciosa();
        caja.selecciona(ini, fin - ini);
        caja.ponColorSeleccion(0);
        caja.selecciona(SelStart, 0);
        finEdicionSilenciosa();
        ocupado = false;
    }
    void inicioEdicionSilenciosa() {
        if (!opciones.hideSelection) caja.ponOcultaSeleccion(true);
    }
    void finEdicionSilenciosa() {
        if (!opciones.hideSelection) caja.ponOcultaSeleccion(false);
    }

    // ---- what happens in the box

    /// Besides: of a change that moves the caret the selection is told first, and the line left is coloured
    /// when the change began there.
    void alCambiar(const CambioDeTexto& cambio) {
        mueveMarca(cambio);
        if (ocupado) return;
        numLineas = caja.numeroDeLineas();
        if (cambio.otraSeleccion) alCambiarLaSeleccion(lineaDe(cambio.inicio) == lineaAnterior);
        if (numLineasAnterior > numLineas) lineaEnEdicion = false;
        if (!lineaEnEdicion) {
            descoloreaLinea(LineaActual());
            lineaEnEdicion = true;
        }
        quitaMarca();
        numLineasAnterior = numLineas;
        if (!grabaDeshacer) return;
        redos.clear();
        undos.push_back({SelStart(), longitud(), std::u16string(caja.texto())});
        sucesos += "c ";
    }
    void alCambiarLaSeleccion(bool cortada) {
        if (ocupado) return;
        const std::int32_t l = lineaDe(SelStart());
        if (l != lineaAnterior) {
            if (recoloreaRango) coloreaRango(posicionAnterior, SelStart(), -1);
            if (lineaEnEdicion || cortada) coloreaLinea(lineaAnterior + 1);
            lineaEnEdicion = false;
            lineaAnterior = l;
            posicionAnterior = SelStart();
            sucesos += 'L' + std::to_string(l + 1) + ' ';
        }
        recoloreaRango = false;
        if (grabaDeshacer) sucesos += "s ";
    }
    void alPerderElFoco() {
        if (!lineaEnEdicion) return;
        coloreaLinea(LineaActual());
        lineaEnEdicion = false;
    }
    void alBajarTecla(std::int16_t& codigo, std::int16_t shift) {
        if (shift == mascara::control)
            codigo = 0;
        else if (codigo == tecla::insertar && shift == mascara::mayusculas)
            vaAPegar();
    }
    void alSubirTecla(std::int16_t codigo) {
        const std::int32_t n = LineaActual();
        if (codigo == tecla::retorno && opciones.autoTAB && n >= 2 && linea(n).empty()) {
            const std::u16string_view superior = linea(n - 1);
            std::size_t cuantos = 0;
            while (cuantos < superior.size() && superior[cuantos] == u' ') ++cuantos;
            caja.reemplazaSeleccion(std::u16string(cuantos, u' '));
        }
    }
    std::u16string_view linea(std::int32_t n) const {
        const auto inicio = static_cast<std::size_t>(indice(n - 1));
        return caja.texto().substr(
            inicio, std::min(caja.texto().find_first_of(u"\r\n", inicio), caja.texto().size()) - inicio);
    }
    /// Besides: what is pasted before where the caret came to the line is part of the range.
    void vaAPegar() {
        recoloreaRango = true;
        posicionAnterior = std::min(posicionAnterior, indice(lineaDe(SelStart())));
        caja.ponColorSeleccion(0);
    }

    // ---- besides: the mark moves with the text

    /// What comes in belongs to the character before it, as with colours.
    void mueveMarca(const CambioDeTexto& c) {
        if (marcados.empty()) return;
        const auto i = static_cast<std::size_t>(c.inicio);
        const bool nuevo = c.quitados > 0 ? marcados[i] : i > 0 ? marcados[i - 1] : marcados[0];
        marcados.erase(marcados.begin() + c.inicio, marcados.begin() + c.inicio + c.quitados);
        marcados.insert(marcados.begin() + c.inicio, static_cast<std::size_t>(c.puestos), nuevo);
        const auto primero = std::ranges::find(marcados, true);
        if (lineaMarcada != -1 && primero != marcados.end())
            lineaMarcada = lineaDe(static_cast<std::int32_t>(primero - marcados.begin())) + 1;
    }
    /// It goes when all of it is painted over.
    void olvidaMarca(std::int32_t ini, std::int32_t fin) {
        if (marcados.empty()) return;
        const auto dentro = std::count(marcados.begin() + ini, marcados.begin() + fin, true);
        if (dentro == std::ranges::count(marcados, true)) marcados.assign(marcados.size(), false);
    }
    /// All its lines lose it; the one that is typed on is plain.
    void quitaMarca() {
        std::vector<std::int32_t> lineas;
        for (std::size_t i = 0; i < marcados.size(); ++i)
            if (marcados[i]) lineas.push_back(lineaDe(static_cast<std::int32_t>(i)) + 1);
        if (lineas.empty() && lineaMarcada != -1) lineas.push_back(lineaMarcada);
        lineas.erase(std::unique(lineas.begin(), lineas.end()), lineas.end());
        if (lineas.empty() || !opciones.colorear) return;
        const bool enEdicion = lineaEnEdicion;
        for (const std::int32_t l : lineas) {
            if (enEdicion && l == LineaActual()) {
                descoloreaLinea(l);
                continue;
            }
            lineaMarcada = l;
            coloreaLinea(l);
            lineaEnEdicion = enEdicion;
        }
        marcados.assign(caja.texto().size(), false);
    }

    // ---- undo and redo

    static std::u16string textoDiferencia(const std::u16string& a, const std::u16string& b, std::int32_t p) {
        const std::u16string& largo = a.size() > b.size() ? a : b;
        const std::u16string& corto = a.size() > b.size() ? b : a;
        const auto d = static_cast<std::int32_t>(largo.size() - corto.size());
        const std::int32_t inicio = p - d;
        if (inicio < 1) return largo;
        return largo.substr(static_cast<std::size_t>(inicio - 1), static_cast<std::size_t>(d));
    }
    /// Two or more characters stay selected, the caret is behind others and behind a line break.
    void pon(const std::u16string& r, bool espera) {
        const std::int32_t desde = SelStart();
        caja.reemplazaSeleccion(r);
        const std::int32_t hasta = SelStart();
        if (espera)
            recoloreaRango = true;
        else
            ponCursor(desde);
        if (r.size() >= 2 && r != saltoDeLinea)
            caja.selecciona(desde, hasta - desde);
        else
            ponCursor(hasta);
    }
    /// The remembered line counts from 0, the caret's from 1.
    void acabaDeshacer() {
        if (lineaAnterior != LineaActual()) recoloreaRango = true;
        grabaDeshacer = true;
    }

    Opciones opciones;
    bool ocupado = false;
    bool grabaDeshacer = true;
    bool lineaEnEdicion = true;
    bool recoloreaRango = false;
    std::int32_t lineaMarcada = -1;
    std::int32_t lineaAnterior = 0;
    std::int32_t posicionAnterior = 0;
    std::int32_t numLineas = 0;
    std::int32_t numLineasAnterior = 1;
    std::vector<bool> marcados; ///< the characters of the mark
};

} // namespace norvik
