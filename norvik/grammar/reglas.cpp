#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"

#include <algorithm>

// Rules and symbols of a grammar, and the operations on the text of a body.
namespace norvik {

namespace {

std::int16_t cuentaElementos(std::u16string_view cuerpo) {
    std::size_t total = 0;
    paraCadaSimbolo(cuerpo, [&](std::u16string_view /*simbolo*/) { ++total; });
    const bool acabaEnVacia =
        cuerpo.ends_with(cadenaVacia) && (cuerpo.size() == 1 || cuerpo[cuerpo.size() - 2] == u' ');
    return a16(total - (acabaEnVacia ? 1 : 0));
}

} // namespace

std::u16string gramatica::compila(std::u16string_view /*texto*/) const {
    return {};
}

void gramatica::inicializaGramatica() {
    reglas_.clear();
    partidas_ = ReglasPartidas();
    inicializaConjuntos();
}

void gramatica::SetRegla(std::u16string_view cabeza, std::u16string_view cuerpo, std::int16_t /*codigo*/) {
    cambia();
    do {
        if (reglas_.size() == maximoReglas)
            throw SubindiceFueraDeIntervalo(
                u"Subíndice fuera de intervalo: la gramática pasa de 1000 reglas");
        const std::size_t barra = std::min(cuerpo.find(u'|'), cuerpo.size());
        const std::u16string_view alternativa = recorta(cuerpo.substr(0, barra));
        cuerpo = recorta(cuerpo.substr(std::min(barra + 1, cuerpo.size())));
        reglas_.push_back(
            {std::u16string(cabeza), std::u16string(alternativa), cuentaElementos(alternativa)});
    } while (!cuerpo.empty());
}

void gramatica::SetSimbolo(std::u16string_view simbolo) {
    if (simbolo.empty()) return;
    cambia();
    const std::u16string texto(simbolo);
    simbolos_.insertar(texto);
    (esMayusculaAZ(simbolo.front()) ? variables_ : terminales_).insertar(texto);
}

const Regla& gramatica::reglaEn(std::int16_t regla) const {
    static const Regla sinUsar;
    compruebaRegla(regla);
    const auto i = static_cast<std::size_t>(regla) - 1;
    return i < reglas_.size() ? reglas_[i] : sinUsar;
}

std::u16string_view gramatica::GetLeftRegla(std::int16_t regla) const {
    return recorta(reglaEn(regla).cabeza);
}

std::u16string_view gramatica::GetRightRegla(std::int16_t regla) const {
    return reglaEn(regla).cuerpo;
}

std::int16_t gramatica::getNumReglas() const {
    const auto sinCabeza =
        std::find_if(reglas_.begin(), reglas_.end(), [](const Regla& regla) { return regla.cabeza.empty(); });
    return a16(sinCabeza - reglas_.begin());
}

std::u16string gramatica::GetElementoRegla(std::int16_t regla, std::int16_t posicion) const {
    std::u16string_view elemento; // the last one when there are not so many
    int quedan = std::max<int>(posicion, 0);
    paraCadaSimbolo(reglaEn(regla).cuerpo, [&](std::u16string_view simbolo) {
        if (quedan-- >= 0) elemento = simbolo;
    });
    return std::u16string(elemento);
}

std::int16_t gramatica::GetNumSimbolos() const {
    return simbolos_.totalElementos();
}

std::int16_t gramatica::GetCodigoToken(std::u16string_view token) const {
    if (token == u"EOF") return columnas().fin;
    return static_cast<std::int16_t>(simbolos_.posicion(token) - 1);
}

const gramatica::Columnas& gramatica::calculaColumnas() const {
    const auto columna = [this](std::u16string_view simbolo) {
        return static_cast<std::int16_t>(simbolos_.posicion(simbolo) - 1);
    };
    columnas_.fin = columna(u"$");
    columnas_.cabezas.clear();
    for (const Regla& regla : reglas_) columnas_.cabezas.push_back(columna(regla.cabeza));
    columnas_.inicial = reglas_.empty() ? std::int16_t{-1} : columnas_.cabezas.front();
    columnas_.calculadas = true;
    return columnas_;
}

std::u16string gramatica::chequeaGramatica() const {
    const ReglasPartidas& reglas = partidas();
    for (int regla = reglas.numReglas(); regla >= 1; --regla) {
        const Cuerpo cuerpo = reglas.cuerpo(regla);
        const auto indefinido = std::find_if(cuerpo.rbegin(), cuerpo.rend(), [&](Simbolo simbolo) {
            return reglas.esVariable(simbolo) && reglas.primera(simbolo) == 0;
        });
        if (indefinido == cuerpo.rend()) continue;
        return u"La variable " + std::u16string(reglas.texto(*indefinido)) +
               u" definida en la parte derecha de la regla " +
               reglas_[static_cast<std::size_t>(regla) - 1].cabeza + u" no está definida.";
    }
    return {};
}

std::int16_t gramatica::estaEnRegla(std::u16string_view cuerpo, std::u16string_view simbolo) {
    constexpr auto nada = std::u16string_view::npos;
    if (cuerpo.find(u' ') == nada) return cuerpo == simbolo ? 1 : 0;
    const std::u16string rodeado = u' ' + std::u16string(simbolo) + u' ';
    const std::u16string_view texto = rodeado;
    if (cuerpo.starts_with(texto.substr(1))) return 1;
    if (const auto sitio = cuerpo.find(texto); sitio != nada) return a16(sitio + 2);
    const auto sitio = cuerpo.find(texto.substr(0, texto.size() - 1));
    return sitio != nada && sitio + 1 + simbolo.size() == cuerpo.size() ? a16(sitio + 2) : std::int16_t{0};
}

std::u16string gramatica::dameReglaString(std::u16string_view cuerpo, std::int16_t punto) {
    std::u16string texto;
    int i = 0;
    paraCadaSimbolo(cuerpo, [&](std::u16string_view simbolo) {
        if (i == punto)
            texto += u'.';
        else if (i != 0)
            texto += u' ';
        texto += simbolo;
        ++i;
    });
    if (i == punto) texto += u'.';
    return texto;
}

ReglasPartidas& gramatica::partidas() const {
    partidas_.completa(reglas_);
    return partidas_;
}

} // namespace norvik
