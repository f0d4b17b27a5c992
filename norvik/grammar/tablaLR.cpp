// SPDX-License-Identifier: MIT

#include "norvik/grammar/tablaLR.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

std::int16_t ancho(const SimbolosTabla& simbolos) {
    return a16(simbolos.terminales.totalElementos() + 1 + simbolos.variables.totalElementos());
}

auto celda(const Conflicto& conflicto) {
    return std::tuple(conflicto.fila, conflicto.columna);
}

} // namespace

TablaLR::TablaLR(SimbolosTabla simbolos, std::u16string_view inicial, std::size_t estados)
    : simbolos_(std::move(simbolos)), celdas_(a16(estados), ancho(simbolos_)), codigoFin_(codigo(u"$")) {
    ponInicial(inicial);
}

void TablaLR::ponFila(std::int16_t fila, std::span<const std::int16_t> valores,
                      std::vector<Conflicto> conflictos) {
    celdas_.ponFila(fila, valores);
    std::ranges::stable_sort(conflictos, {}, &Conflicto::columna);
    conflictos_.insert(conflictos_.end(), conflictos.begin(), conflictos.end());
}

void TablaLR::ponInicial(std::u16string_view inicial) {
    inicial_ = inicial;
    codigoInicial_ = codigo(inicial);
}

void TablaLR::ponSimbolo(std::u16string_view simbolo) {
    if (simbolo.empty()) return;
    const conjunto::Valor valor = std::u16string(simbolo);
    simbolos_.todos.insertar(valor);
    (esMayusculaAZ(simbolo.front()) ? simbolos_.variables : simbolos_.terminales).insertar(valor);
    if (simbolo == inicial_) codigoInicial_ = codigo(simbolo);
    if (simbolo == u"$") codigoFin_ = codigo(simbolo);
}

void TablaLR::olvidaSimbolos() {
    simbolos_ = SimbolosTabla();
    codigoInicial_ = codigoFin_ = -1;
}

void TablaLR::dimensiona(std::int16_t filas, std::int16_t columnas) {
    celdas_ = Celdas(filas, columnas);
    conflictos_.clear();
}

std::span<const std::int16_t> TablaLR::fila(std::int16_t estado) const {
    if (estado <= 1) return {};
    const auto guardada = celdas_.filaGuardada(estado + 1);
    const auto conSimbolo = static_cast<std::size_t>(simbolos_.todos.totalElementos());
    return guardada.first(std::min(guardada.size(), conSimbolo));
}

std::int16_t TablaLR::filasVigentes() const {
    return simbolos_.todos.esVacio() ? std::int16_t{0} : celdas_.filas();
}

std::int16_t TablaLR::columnasVigentes() const {
    return std::min(simbolos_.todos.totalElementos(), celdas_.columnas());
}

std::int16_t TablaLR::conflicto(std::int16_t fila, std::int16_t columna) const {
    const auto tras = std::ranges::upper_bound(conflictos_, std::tuple(fila, columna), {}, celda);
    if (tras == conflictos_.begin()) return 0;
    const Conflicto& ultimo = *std::prev(tras);
    return celda(ultimo) == std::tuple(fila, columna) ? ultimo.regla : std::int16_t{0};
}

bool TablaLR::esColumnaDeVariable(std::int16_t columna) const {
    return esMayusculaAZ(simbolo(columna).front());
}

std::vector<std::u16string_view> TablaLR::esperados(std::int16_t estado) const {
    std::vector<std::u16string_view> lista;
    for (std::int16_t columna = 1; columna <= simbolos_.terminales.totalElementos(); ++columna) {
        // A loaded language counts "$" among its terminals.
        if (celdas_.en(estado + 1, columna) == 0 || simbolo(columna) == u"$") continue;
        lista.push_back(simbolo(columna));
    }
    return lista;
}

std::u16string enTexto(const TablaLR& tabla) {
    std::u16string texto;
    for (std::int16_t estado = 0; estado < tabla.filasVigentes(); ++estado) {
        texto += (estado == 0 ? u"" : u"; ") + aTexto(estado) + u":";
        for (std::int16_t codigo = 0; codigo < tabla.columnasVigentes(); ++codigo) {
            const std::int16_t valor = tabla.entrada(estado, codigo);
            if (valor == 0) continue;
            const auto columna = static_cast<std::int16_t>(codigo + 1);
            texto.append(u" ").append(tabla.simbolo(columna)).append(u"=").append(aTexto(valor));
            const auto perdedora = tabla.conflicto(static_cast<std::int16_t>(estado + 1), columna);
            if (perdedora != 0) texto += u'/' + aTexto(perdedora);
        }
    }
    return texto;
}

} // namespace norvik::inline v0_2
