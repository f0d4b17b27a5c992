// SPDX-License-Identifier: MIT

#include "norvik/pattern/patronClase.hpp"

#include "norvik/pattern/mayusculas.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

constexpr char16_t ultimaUnidad = 0xFFFF;

void ordenaYFunde(std::vector<RangoUnidades>& rangos) {
    std::sort(rangos.begin(), rangos.end(),
              [](const RangoUnidades& a, const RangoUnidades& b) { return a.desde < b.desde; });
    std::size_t fundidos = 0;
    for (const RangoUnidades& rango : rangos) {
        if (fundidos > 0 && rango.desde <= rangos[fundidos - 1].hasta + 1) {
            rangos[fundidos - 1].hasta = std::max(rangos[fundidos - 1].hasta, rango.hasta);
        } else {
            rangos[fundidos++] = rango;
        }
    }
    rangos.resize(fundidos);
}

// Of ranges in order with gaps between them.
std::vector<RangoUnidades> complemento(std::span<const RangoUnidades> rangos) {
    std::vector<RangoUnidades> resultado;
    std::uint32_t desde = 0;
    for (const RangoUnidades& rango : rangos) {
        if (rango.desde > desde)
            resultado.push_back({static_cast<char16_t>(desde), static_cast<char16_t>(rango.desde - 1)});
        desde = rango.hasta + 1U;
    }
    if (desde <= ultimaUnidad) resultado.push_back({static_cast<char16_t>(desde), ultimaUnidad});
    return resultado;
}

void aniade(std::vector<RangoUnidades>& destino, std::span<const RangoUnidades> origen) {
    destino.insert(destino.end(), origen.begin(), origen.end());
}

void aniadeEquivalentes(std::vector<RangoUnidades>& rangos) {
    const std::u16string_view conPareja = unidadesConPareja();
    const std::vector<RangoUnidades> originales = rangos;
    for (const RangoUnidades& rango : originales) {
        const auto* unidad = std::lower_bound(conPareja.begin(), conPareja.end(), rango.desde);
        for (; unidad != conPareja.end() && *unidad <= rango.hasta; ++unidad)
            for (const char16_t otra : equivalentes(*unidad)) rangos.push_back({otra, otra});
    }
}

} // namespace

ClaseUnidades::ClaseUnidades(std::vector<RangoUnidades> rangos) : rangos_(std::move(rangos)) {
    ordenaYFunde(rangos_);
    for (const RangoUnidades& rango : rangos_)
        for (std::uint32_t unidad = rango.desde; unidad <= rango.hasta && unidad < bajas_.size(); ++unidad)
            bajas_[unidad] = true;
}

ClaseUnidades::ClaseUnidades(const ClaseLeida& leida, bool ignoraMayusculas) {
    std::vector<RangoUnidades> rangos = leida.rangos;
    if (ignoraMayusculas) aniadeEquivalentes(rangos);
    for (const ClaseLeida::Escape& escape : leida.escapes) {
        const auto suyos = rangosDe(escape.propiedad);
        if (escape.negado)
            aniade(rangos, complemento(suyos));
        else
            aniade(rangos, suyos);
    }
    ordenaYFunde(rangos);
    *this = ClaseUnidades(leida.negada ? complemento(rangos) : std::move(rangos));
}

ClaseUnidades ClaseUnidades::deUnidad(char16_t unidad, bool ignoraMayusculas) {
    return {ClaseLeida{{{unidad, unidad}}, {}, false}, ignoraMayusculas};
}

bool ClaseUnidades::contieneAlta(char16_t unidad) const {
    const auto siguiente = std::partition_point(
        rangos_.begin(), rangos_.end(), [unidad](const RangoUnidades& r) { return r.hasta < unidad; });
    return siguiente != rangos_.end() && siguiente->desde <= unidad;
}

} // namespace norvik::inline v0_2
