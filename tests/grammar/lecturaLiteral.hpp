// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// A second, plain implementation of the analyses, straight on texts and without any shortcut, to compare
// the fast one with. Exponential on purpose: small grammars only.
namespace norvik::literal {

using Texto = std::u16string;
using Lista = std::vector<Texto>; // an ordered set

struct NoTermina : std::runtime_error {
    NoTermina() : std::runtime_error("no termina") {}
};

inline bool esta(const Lista& lista, const Texto& x) {
    return std::find(lista.begin(), lista.end(), x) != lista.end();
}
inline void inserta(Lista& lista, const Texto& x) {
    if (!esta(lista, x)) lista.push_back(x);
}
inline void suma(Lista& lista, const Lista& otra) {
    for (const Texto& x : otra) inserta(lista, x);
}
inline bool variable(const Texto& texto) {
    return !texto.empty() && texto[0] >= u'A' && texto[0] <= u'Z';
}
inline bool hayBlanco(const Texto& texto) {
    return texto.find(u' ') != Texto::npos;
}
inline Texto primerSimbolo(const Texto& texto) {
    return texto.substr(0, texto.find(u' '));
}
inline Texto trasPrimero(const Texto& texto) {
    return hayBlanco(texto) ? Texto(recorta(texto.substr(texto.find(u' ')))) : Texto();
}

struct Nombrado {
    Texto nombre;
    Lista elementos;
};

struct Item {
    int regla, punto, destino;
};
struct Estado {
    int numero = -1;
    std::vector<Item> items;

    bool tiene(int regla, int punto) const {
        return std::any_of(items.begin(), items.end(),
                           [&](const Item& i) { return i.regla == regla && i.punto == punto; });
    }
    void pon(int regla, int punto, bool pendiente) {
        if (!tiene(regla, punto)) items.push_back({regla, punto, pendiente ? -2 : -1});
    }
};

class Lectura {
public:
    explicit Lectura(const std::vector<std::pair<Texto, Texto>>& reglas) : reglas_(1) {
        for (const auto& [cabeza, cuerpo] : reglas)
            reglas_.emplace_back(cabeza, cuerpo.empty() ? u"Ø" : cuerpo);
        pendientes_.resize(reglas_.size());
    }

    std::vector<Nombrado> primeros, siguientes, predict;
    std::map<int, Estado> estados;
    std::vector<std::vector<int>> tabla, conflictos;
    Lista simbolos;

    void creaConjuntos() {
        for (int i = 1; i <= n(); ++i) pendientes_[u(i)] = cab(i) != cab(i - 1);
        const auto tramos = pendientes_;
        while (std::find(pendientes_.begin(), pendientes_.end(), true) != pendientes_.end()) {
            const std::size_t antes = primeros.size();
            for (actual_ = 1; actual_ <= n(); ++actual_) {
                if (!pendientes_[u(actual_)]) continue;
                Lista conj;
                for (int k = actual_; k <= n() && cab(k) == cab(actual_); ++k)
                    creaPrimeros(cue(k), conj, false, actual_, 0);
                if (!pendientes_[u(actual_)]) primeros.push_back({cab(actual_), conj});
            }
            if (primeros.size() == antes) throw NoTermina();
        }
        for (actual_ = 1; actual_ <= n(); ++actual_) {
            if (!tramos[u(actual_)]) continue;
            Lista conj;
            if (actual_ == 1) conj.push_back(u"$");
            creaSiguientes(cab(actual_), conj, false);
            siguientes.push_back({cab(actual_), conj});
        }
        for (actual_ = 1; actual_ <= n(); ++actual_) {
            Lista conj;
            creaPrimeros(cue(actual_), conj, false, actual_, 0);
            if (esta(conj, u"Ø")) suma(conj, *busca(siguientes, cab(actual_)));
            std::erase(conj, u"Ø");
            predict.push_back({cab(actual_), conj});
        }
    }

    void creaAutomata() {
        Estado cero{0, {}};
        cierra(cab(1), cero);
        numEstados_ = 2;
        transiciones(cero);
        Estado uno{1, {}};
        std::vector<std::pair<int, int>> nucleo;
        for (int i = 1; i <= n(); ++i)
            if (cab(i) == cab(1) && primerSimbolo(cue(i)) == cab(1)) nucleo.emplace_back(i, 1);
        aniadeNucleo(nucleo, uno);
        transiciones(uno);
    }

    /// False when a symbol has no column.
    bool creaTabla() {
        Lista terminales;
        Lista variables;
        for (int i = 1; i <= n(); ++i) {
            inserta(variables, cab(i));
            for (Texto resto = cue(i); !resto.empty(); resto = trasPrimero(resto))
                if (!variable(primerSimbolo(resto)) && primerSimbolo(resto) != u"Ø")
                    inserta(terminales, primerSimbolo(resto));
        }
        simbolos = terminales;
        inserta(simbolos, u"$");
        suma(simbolos, variables);
        const std::size_t ancho = terminales.size() + 1 + variables.size();
        tabla.assign(estados.size(), std::vector<int>(ancho));
        conflictos = tabla;
        for (const auto& [numero, estado] : estados)
            for (const Item& item : estado.items)
                if (!escribe(u(numero), item)) return false;
        return true;
    }

    static int estaEnRegla(const Texto& cuerpo, const Texto& simbolo) {
        const auto pos = [&](const Texto& x) { return static_cast<int>(cuerpo.find(x)) + 1; };
        if (!hayBlanco(cuerpo)) return cuerpo == simbolo ? 1 : 0;
        if (pos(simbolo + u" ") == 1) return 1;
        if (pos(u" " + simbolo + u" ") > 0) return pos(u" " + simbolo + u" ") + 1;
        const int p = pos(u" " + simbolo);
        return p > 0 && p == static_cast<int>(cuerpo.size() - simbolo.size()) ? p + 1 : 0;
    }

private:
    static std::size_t u(int i) { return static_cast<std::size_t>(i); }
    int n() const { return static_cast<int>(reglas_.size()) - 1; }
    const Texto& cab(int i) const { return reglas_[u(i)].first; }
    const Texto& cue(int i) const { return reglas_[u(i)].second; }
    static const Lista* busca(const std::vector<Nombrado>& lista, const Texto& nombre) {
        for (const Nombrado& x : lista)
            if (x.nombre == nombre) return &x.elementos;
        return nullptr;
    }
    int primera(const Texto& nombre) const {
        for (int i = 1; i <= n(); ++i)
            if (cab(i) == nombre) return i;
        return 0;
    }
    bool contieneCadenaVacia(const Texto& nombre) const {
        for (int i = 1; i <= n(); ++i)
            if (cab(i) == nombre && primerSimbolo(cue(i)) == u"Ø") return true;
        return false;
    }
    void pendiente(int i) {
        if (i == 0) throw SubindiceFueraDeIntervalo();
        pendientes_[u(i)] = true;
    }
    void entra(const Texto& s, Lista& conj, int hondo) {
        const int j = primera(s);
        for (int m = j; j != 0 && m <= n() && cab(m) == s; ++m)
            creaPrimeros(cue(m), conj, true, j, hondo + 1);
    }

    void creaPrimeros(const Texto& cadena, Lista& conj, bool recursivo, int indice, int hondo) {
        if (hondo > 200) throw NoTermina();
        Texto resto(recorta(cadena));
        bool limpio = true;
        if (indice != 0 && recursivo && indice == actual_) return;
        const auto acaba = [&] {
            if (indice != 0 && indice == actual_ && limpio && !recursivo) pendientes_[u(indice)] = false;
        };
        Texto s;
        for (;;) {
            if (!variable(resto)) {
                s = primerSimbolo(resto);
                inserta(conj, s);
                if (!hayBlanco(resto) || s != u"Ø") return acaba();
                resto = trasPrimero(resto);
                continue;
            }
            if (!hayBlanco(resto)) break;
            s = primerSimbolo(resto);
            if (busca(primeros, s) == nullptr) {
                if (indice != 0 && s == cab(indice)) {
                    if (recursivo) pendiente(actual_);
                    if (!esta(conj, u"Ø")) return;
                    resto = trasPrimero(resto);
                    continue;
                }
                limpio = false;
                entra(s, conj, hondo);
                if (recursivo) pendiente(actual_);
            }
            const Lista* acabado = busca(primeros, s);
            if (acabado != nullptr) suma(conj, *acabado);
            if (acabado == nullptr) limpio = false;
            if (acabado == nullptr ? !contieneCadenaVacia(s) : !esta(*acabado, u"Ø")) {
                if (acabado == nullptr) return pendiente(indice);
                return acaba();
            }
            resto = trasPrimero(resto);
        }
        s = resto;
        if (const Lista* acabado = busca(primeros, s)) {
            suma(conj, *acabado);
            return acaba();
        }
        if (indice != 0 && s == cab(indice)) {
            if (recursivo) pendiente(actual_);
            return;
        }
        entra(s, conj, hondo);
        if (!recursivo) pendiente(actual_);
    }

    void creaSiguientes(const Texto& nombre, Lista& conj, bool recursivo) {
        const int i0 = primera(nombre);
        if (recursivo) {
            if (const Lista* acabado = busca(siguientes, nombre)) return suma(conj, *acabado);
            if (visitados_.contains(i0)) return;
        } else {
            visitados_.clear();
        }
        visitados_.insert(i0);
        const auto trasAparicion = [&](const Texto& resto) -> std::optional<Texto> {
            const int p = estaEnRegla(resto, nombre);
            if (p == 0) return std::nullopt;
            return Texto(recorta(resto.substr(u(p - 1) + nombre.size())));
        };
        for (int k = 1; k <= n(); ++k)
            for (auto resto = trasAparicion(cue(k)); resto; resto = trasAparicion(*resto)) {
                if (resto->empty()) continue;
                Lista f;
                creaPrimeros(*resto, f, false, 0, 0);
                suma(conj, f);
            }
        for (int k = 1; k <= n(); ++k) {
            if (cab(k) == nombre) continue;
            for (auto resto = trasAparicion(cue(k)); resto; resto = trasAparicion(*resto)) {
                Lista f;
                if (!resto->empty()) creaPrimeros(*resto, f, false, 0, 0);
                if (!resto->empty() && !esta(f, u"Ø")) continue;
                Lista g;
                if (const Lista* acabado = busca(siguientes, cab(k)))
                    g = *acabado;
                else
                    creaSiguientes(cab(k), g, true);
                suma(conj, g);
                break;
            }
        }
        std::erase(conj, u"Ø");
    }

    Texto siguiente(const Item& item) const {
        Texto resto = cue(item.regla);
        for (int i = 0; i < item.punto && hayBlanco(resto); ++i) resto = trasPrimero(resto);
        return primerSimbolo(resto);
    }

    void cierra(const Texto& nombre, Estado& estado) const {
        for (int k = primera(nombre); k != 0 && k <= n() && cab(k) == nombre; ++k) {
            if (estado.tiene(k, 0)) continue;
            estado.pon(k, 0, cue(k) != u"Ø");
            if (variable(cue(k))) cierra(primerSimbolo(cue(k)), estado);
        }
    }

    void aniadeNucleo(const std::vector<std::pair<int, int>>& nucleo, Estado& estado) const {
        for (const auto& [r, d] : nucleo) {
            Texto resto = cue(r);
            for (int i = 0; i < d; ++i) resto = trasPrimero(resto);
            estado.pon(r, d, !resto.empty());
            if (variable(resto)) cierra(primerSimbolo(resto), estado);
        }
    }

    void transiciones(const Estado& estado) {
        Estado& actual = estados[estado.numero] = estado;
        orden_.push_back(actual.numero);
        for (std::size_t i = 0; i < actual.items.size(); ++i) {
            if (actual.items[i].destino == -1) continue;
            const Texto x = siguiente(actual.items[i]);
            std::vector<std::pair<int, int>> nucleo;
            for (const Item& item : actual.items)
                if (item.destino != -1 && siguiente(item) == x)
                    nucleo.emplace_back(item.regla, item.punto + 1);
            const auto suyo = std::find_if(orden_.begin(), orden_.end(), [&](int e) {
                return std::all_of(nucleo.begin(), nucleo.end(),
                                   [&](auto par) { return estados[e].tiene(par.first, par.second); });
            });
            const bool nuevo = suyo == orden_.end();
            const int destino = nuevo ? numEstados_ : *suyo;
            for (const auto& [r, d] : nucleo)
                for (Item& item : actual.items)
                    if (item.regla == r && item.punto == d - 1) item.destino = destino;
            if (!nuevo) continue;
            Estado otro{numEstados_++, {}};
            if (numEstados_ > 300) throw NoTermina();
            aniadeNucleo(nucleo, otro);
            transiciones(otro);
        }
        std::erase(orden_, actual.numero); // done: it is looked at after the others
        orden_.push_back(actual.numero);
    }

    bool escribe(std::size_t f, const Item& item) {
        const auto columna = [&](const Texto& s) {
            return static_cast<std::size_t>(std::find(simbolos.begin(), simbolos.end(), s) -
                                            simbolos.begin());
        };
        if (item.destino != -1) {
            const std::size_t c = columna(siguiente(item));
            if (c == simbolos.size()) return false;
            tabla[f][c] = item.destino;
            return true;
        }
        for (const Nombrado& conj : siguientes) {
            if (conj.nombre != cab(item.regla)) continue;
            for (const Texto& a : conj.elementos) {
                const std::size_t c = columna(a);
                (tabla[f][c] != 0 ? conflictos : tabla)[f][c] = tabla[f][c] != 0 ? item.regla : -item.regla;
            }
        }
        return true;
    }

    std::vector<std::pair<Texto, Texto>> reglas_;
    std::vector<bool> pendientes_;
    std::set<int> visitados_;
    std::vector<int> orden_; // in which the states are looked at
    int actual_ = 0;
    int numEstados_ = 0;
};

} // namespace norvik::literal
