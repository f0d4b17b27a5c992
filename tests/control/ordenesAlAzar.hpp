// SPDX-License-Identifier: MIT

// The same keys and calls, at random, for a control and for the editor by steps. Whoever includes it says how
// its control is given keys.
#pragma once

#include "apoyo/pasos.hpp"
#include "control/editorPorPasos.hpp"
#include "norvik/control/historial.hpp"
#include "norvik/control/norvik.hpp"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <random>
#include <sstream>

namespace norvik {

/// Keys have the codes that the control knows them by.
struct Golpe {
    std::int16_t codigo = 0;
    std::int16_t shift = 0;
    std::u16string_view escrito{}; ///< what it types, or what is pasted
};

namespace golpe {
inline constexpr std::int16_t tabulador = 9;
inline constexpr std::int16_t fin = 35;
inline constexpr std::int16_t inicio = 36;
} // namespace golpe

/// What a key does to a box that nobody suppresses.
inline void edita(CajaTexto& caja, const Golpe& g) {
    const auto total = static_cast<std::int32_t>(caja.texto().size());
    const std::int32_t inicio = caja.inicioSeleccion();
    const std::int32_t fin = inicio + caja.longitudSeleccion();
    const auto hay = [&](std::int32_t lugar) { // a break is one step
        const auto desde = static_cast<std::size_t>(std::clamp(lugar, 0, total));
        return caja.texto().substr(desde).starts_with(saltoDeLinea);
    };
    const std::int32_t antes = std::max(inicio - (inicio >= 2 && hay(inicio - 2) ? 2 : 1), 0);
    const std::int32_t despues = std::min(fin + (hay(fin) ? 2 : 1), total);
    const auto quita = [&](std::int32_t desde, std::int32_t hasta) {
        if (fin > inicio) return caja.reemplazaSeleccion({});
        if (desde < hasta) caja.sustituye(desde, hasta - desde, {}, {desde, 0});
    };
    const bool extiende = g.shift == mascara::mayusculas;
    const std::int32_t linea = caja.lineaDeCaracter(fin);
    const std::int32_t siguiente = caja.inicioDeLinea(linea + 1);
    switch (g.codigo) {
    case tecla::retroceso:
        return quita(antes, inicio);
    case tecla::suprimir:
        return quita(inicio, despues);
    case tecla::izquierda:
        return caja.selecciona(fin > inicio ? inicio : antes, 0);
    case tecla::derecha:
        if (extiende) return caja.selecciona(inicio, despues - inicio);
        return caja.selecciona(fin > inicio ? fin : despues, 0);
    case golpe::inicio:
        return caja.selecciona(caja.inicioDeLinea(linea), 0);
    case golpe::fin:
        return caja.selecciona(siguiente < 0 ? total : siguiente - 2, 0);
    default:
        return caja.reemplazaSeleccion(g.escrito);
    }
}

/// A key as boxes tell of it.
inline void pulsa(CajaTexto& caja, const Golpe& g) {
    std::int16_t codigo = g.codigo;
    std::int16_t shift = g.shift;
    caja.eventos.teclaAbajo(codigo, shift);
    const bool escribe = codigo != 0 && g.escrito.size() == 1;
    auto caracter = static_cast<std::int16_t>(escribe ? g.escrito[0] : 0);
    if (escribe) caja.eventos.pulsacion(caracter);
    if (codigo != 0) edita(caja, g);
    caja.eventos.teclaArriba(codigo, shift);
}

/// A control and the editor by steps, side by side.
class OrdenesAlAzar {
public:
    /// How the control is given keys and loses the focus.
    struct Manos {
        std::function<void(const Golpe&)> pulsa;
        std::function<void()> tabula;
        std::function<void()> pierdeElFoco;
        bool tabularQuitaElFoco = false; ///< for a moment
    };

    OrdenesAlAzar(Norvik& norvik, CajaTexto& caja, Manos manos, unsigned semilla)
        : norvik_(norvik), caja_(caja), manos_(std::move(manos)), azar_(semilla) {
        norvik_.eventos.change = [this] { sucesos_ += "c "; };
        norvik_.eventos.SelChange = [this] { sucesos_ += "s "; };
        norvik_.eventos.CambioDeLinea = [this](auto& l) { sucesos_ += "L" + std::to_string(l) + " "; };
        ponLexico([this](auto... a) { norvik_.Lexico().SetER(a...); });
        ponLexico([this](auto... a) { pasos_.lexico.SetER(a...); });
        ambos([](auto& e) { e.Colorear(true); });
    }

    void haz(int cuantas) {
        for (int i = 0; i < cuantas && !testing::Test::HasFailure(); ++i) {
            una();
            compara(i);
        }
    }

private:
    template <typename SetER>
    static void ponLexico(SetER pon) {
        const std::tuple<std::u16string_view, std::u16string_view, std::int16_t> definiciones[] = {
            {u"begin", u"begin", Norvik_PalabraReservada},
            {u"[0-9]+", u"num", Norvik_Numero},
            {u"/\\*([^*])*\\*/", u"com", Norvik_ComentarioBloque},
            {u"'[^'\\r\\n]*'", u"cad", Norvik_Cadena},
            {u"\\+", u"mas", Norvik_Operador},
            {u"x+y", u"xy", Norvik_AutoExpReg}};
        for (const auto& [patron, nombre, tipo] : definiciones)
            pon(patron, nombre, true, false, std::u16string_view(), tipo, std::int32_t{Norvik_SinBase},
                sinColor);
    }
    template <typename Orden>
    void ambos(Orden orden) {
        orden(norvik_);
        orden(pasos_);
    }
    int uno(int de) { return static_cast<int>(azar_() % static_cast<unsigned>(de)); }
    bool moneda() { return uno(2) == 0; }
    void apunta(const std::string& que) {
        hechas_.push_back(que);
        if (hechas_.size() > 12) hechas_.pop_front();
    }

    // ---- one of them

    void una() {
        const int dado = uno(40);
        if (caja_.texto().size() > 300 || !saltosEnteros()) return empieza();
        if (dado < 25)
            deTeclado(dado);
        else if (dado < 27)
            selecciona();
        else if (dado < 33)
            deHistorial();
        else
            deAnfitrion(dado);
    }
    void deTeclado(int dado) {
        static constexpr std::u16string_view letras[] = {u"b", u"1", u" ", u"'", u"+",
                                                         u"x", u"y", u"*", u"/"};
        static constexpr std::u16string_view pegados[] = {
            u"begin", u"BEGIN 12", u"/* a\r\nb */", u"a\r\nbegin\r\n1", u"xxy xxxxy Begin", u"\r\n"};
        if (dado < 9) return pulsa({u'A', 0, letras[uno(std::size(letras))]});
        if (dado < 11) return pulsa({tecla::retorno, 0, saltoDeLinea});
        if (dado < 13) return pulsa({tecla::retroceso});
        if (dado == 13) return pulsa({tecla::suprimir});
        if (dado < 16) return pulsa({tecla::insertar, mascara::mayusculas, pegados[uno(std::size(pegados))]});
        if (dado == 16) return pulsa({golpe::tabulador});
        if (dado < 19) return pulsa({tecla::izquierda});
        if (dado == 19) return pulsa({tecla::derecha});
        if (dado == 20) return pulsa({moneda() ? golpe::inicio : golpe::fin});
        if (dado == 21) return pulsa({u'Z', mascara::control});
        if (dado == 22) return pierdeElFoco();
        for (int i = 1 + uno(6); i > 0; --i) pulsa({tecla::derecha, mascara::mayusculas});
    }
    /// A break in the place of a break is no change to a window, so that is left out.
    void pulsa(const Golpe& g) {
        const bool rompe = caja_.textoSeleccionado().find(u'\r') != std::u16string::npos;
        if (g.codigo == tecla::retorno && rompe) selecciona(caja_.inicioSeleccion(), 0);
        apunta("tecla " + std::to_string(g.codigo) + " " + aUtf8(g.escrito));
        if (g.codigo == golpe::tabulador) {
            manos_.tabula();
            if (manos_.tabularQuitaElFoco) pasos_.caja.eventos.pierdeFoco();
            return pasos_.tabuladorEnfocado();
        }
        manos_.pulsa(g);
        norvik::pulsa(pasos_.caja, g);
    }
    void pierdeElFoco() {
        apunta("foco");
        manos_.pierdeElFoco();
        pasos_.caja.eventos.pierdeFoco();
    }
    /// Never into the middle of a break.
    void selecciona() {
        const auto en = [&](std::int32_t p) {
            const std::int32_t lugar = std::clamp(p, 0, static_cast<std::int32_t>(caja_.texto().size()));
            return caja_.texto().substr(0, static_cast<std::size_t>(lugar)).ends_with(u'\r') ? lugar + 1
                                                                                             : lugar;
        };
        const std::int32_t inicio = en(caja_.inicioSeleccion() + uno(41) - 20);
        const std::int32_t fin = moneda() ? inicio : en(inicio + uno(15));
        selecciona(inicio, fin - inicio);
    }
    void selecciona(std::int32_t inicio, std::int32_t longitud) {
        apunta("selecciona " + std::to_string(inicio) + " " + std::to_string(longitud));
        for (CajaTexto* caja : {&caja_, static_cast<CajaTexto*>(&pasos_.caja)})
            caja->selecciona(inicio, longitud);
    }
    void deHistorial() {
        for (int i = 1 + uno(3); i > 0; --i) {
            const bool deshace = uno(3) > 0;
            apunta(deshace ? "Undo" : "Redo");
            ambos([&](auto& e) { deshace ? e.Undo() : e.Redo(); });
        }
    }
    void deAnfitrion(int dado) {
        apunta("anfitrion " + std::to_string(dado));
        const bool valor = moneda();
        if (dado == 33) return ambos([](auto& e) { e.ColoreaTodo(); });
        if (dado == 34) return ambos([](auto& e) { e.ColoreaLineaActual(); });
        if (dado < 37) return marca();
        if (dado == 37) return ambos([](auto& e) { e.SelText(u"12\r\nx"); });
        if (dado == 38) return otraOpcion(valor);
        if (uno(40) > 0) return;
        ambos([&](auto& e) { valor ? e.BorraTodo() : e.InicializaUndosYRedos(); });
    }
    void marca() {
        const auto linea = static_cast<std::int16_t>(uno(8) - 1);
        apunta("marca " + std::to_string(linea));
        ambos([&](auto& e) { e.MarcaErrorLinea(linea); });
    }
    void otraOpcion(bool valor) {
        const int cual = uno(12);
        apunta("opcion " + std::to_string(cual) + (valor ? " si" : " no"));
        ambos([&](auto& e) {
            if (cual == 0) e.Colorear(valor);
            if (cual == 1) e.AutoCorreccion(valor);
            if (cual == 2) e.LenguajeSensible(valor);
            if (cual == 3) e.AutoTAB(valor);
            if (cual == 4) e.HideSelection(valor);
            if (cual == 5) e.EspaciosXTAB(valor ? std::int16_t{4} : std::int16_t{0});
            if (cual > 5) e.Colorear(true);
        });
    }
    void empieza() {
        apunta("Text");
        ambos([](auto& e) {
            e.Text(u"begin 12\r\n    '12 begin' 1 /* begin\r\n1 */ begin\r\n");
            e.InicializaUndosYRedos();
        });
    }
    /// Of the text, and neither end of the selection stands in one: a window knows no such place.
    bool saltosEnteros() const {
        const std::u16string_view t = caja_.texto();
        for (const std::int32_t lugar :
             {caja_.inicioSeleccion(), caja_.inicioSeleccion() + caja_.longitudSeleccion()})
            if (t.substr(0, static_cast<std::size_t>(lugar)).ends_with(u'\r')) return false;
        for (std::size_t i = 0; i < t.size(); ++i) {
            if (t[i] == u'\n' && (i == 0 || t[i - 1] != u'\r')) return false;
            if (t[i] == u'\r' && (i + 1 == t.size() || t[i + 1] != u'\n')) return false;
        }
        return true;
    }

    // ---- both are the same

    void compara(int paso) {
        const std::string suyos = std::exchange(pasos_.sucesos, {});
        const std::string sucesos = std::exchange(sucesos_, {});
        const bool iguales = sucesos == suyos && esIgual(caja_, pasos_.caja) &&
                             norvik_.TotalLineas() == pasos_.TotalLineas() && mismasListas(paso % 500 == 0);
        if (!iguales)
            ADD_FAILURE() << paso << ": " << donde() << "\n  control " << sucesos << "| " << dibujo(caja_)
                          << "\n  pasos   " << suyos << "| " << dibujo(pasos_.caja);
    }
    static bool esIgual(const CajaTexto& a, const CajaTexto& b) {
        return a.texto() == b.texto() && a.colores() == b.colores() &&
               a.inicioSeleccion() == b.inicioSeleccion() && a.longitudSeleccion() == b.longitudSeleccion() &&
               a.ocultaSeleccion() == b.ocultaSeleccion();
    }
    bool mismasListas(bool enteras) const {
        const Historial& h = norvik_.historial();
        return mismaLista(h.undos(), pasos_.undos, enteras) && mismaLista(h.redos(), pasos_.redos, enteras);
    }
    static bool mismaLista(const Instantaneas& suya, const std::vector<EditorPorPasos::Instantanea>& lista,
                           bool entera) {
        bool igual = suya.cuantas() == lista.size();
        for (std::size_t i = entera ? 1 : lista.size(); igual && i >= 1 && i <= lista.size(); ++i) {
            const UndoElement e = suya.en(i);
            const auto& otra = lista[i - 1];
            igual = e.SelStart == otra.SelStart && e.TextLen == otra.TextLen && e.Text == otra.Text;
        }
        return igual;
    }
    std::string donde() const {
        std::string todas;
        for (const std::string& h : hechas_) todas += h + "; ";
        return todas;
    }
    static std::string dibujo(const CajaTexto& caja) {
        std::ostringstream d;
        d << aUtf8(caja.texto()) << " [" << caja.inicioSeleccion() << '+' << caja.longitudSeleccion() << "] "
          << caja.ocultaSeleccion();
        for (const TramoDeColor& t : caja.colores())
            d << ' ' << t.longitud << ':' << std::hex << t.color << std::dec;
        return d.str();
    }

    Norvik& norvik_;
    CajaTexto& caja_;
    EditorPorPasos pasos_;
    const Manos manos_;
    std::mt19937 azar_;
    std::string sucesos_;
    std::deque<std::string> hechas_; ///< the last ones, for whoever reads a failure
};

} // namespace norvik
