// SPDX-License-Identifier: MIT

#include "norvik/checks/comprobaciones.hpp"
#include "norvik/checks/nombreCercano.hpp"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

using Textos = std::vector<std::u16string>;

// What a known word has a use for.
Textos valoresDe(std::u16string_view palabra) {
    if (palabra == u"mayusculas") return {u"distingue"};
    if (palabra == u"conflictos") return {u"un número"};
    if (palabra != u"metodo") return {u"tokens separados por blancos"};
    Textos nombres;
    for (const auto& [nombre, metodo] : metodos) nombres.emplace_back(nombre);
    return nombres;
}

class RevisorDirectivas {
public:
    RevisorDirectivas(std::u16string_view especificacion, const FuenteEspecificacion& fuente,
                      const Directivas& directivas, const std::stop_token& cancelacion,
                      std::vector<Diagnostico>& hallazgos)
        : especificacion_(especificacion), lugares_(especificacion, Lugares::Unidad::Utf16),
          directivas_(directivas), hallazgos_(hallazgos), tokens_(tokensDe(fuente)),
          conocidos_(Textos(tokens_.begin(), tokens_.end()), cancelacion),
          palabras_(Textos(palabrasDeDirectivas.begin(), palabrasDeDirectivas.end()), cancelacion) {}

    void revisa() {
        const std::size_t fin = cabecera(especificacion_).size();
        for (const LineaDirectiva& linea : lineasDeDirectivas(especificacion_)) {
            const bool conocida =
                std::ranges::find(palabrasDeDirectivas, linea.palabra) != palabrasDeDirectivas.end();
            if (linea.inicio >= fin) {
                if (conocida) anota(Codigo::DirectivaTardia, linea, {}, {});
            } else if (!conocida) {
                anota(Codigo::DirectivaDesconocida, linea, {}, cercano(linea.palabra, palabras_));
            } else if (!vale(linea)) {
                anota(Codigo::DirectivaIncorrecta, linea, std::u16string(linea.valor),
                      valoresDe(linea.palabra));
            } else {
                revisaValida(linea);
            }
        }
    }

private:
    static std::set<std::u16string_view> tokensDe(const FuenteEspecificacion& fuente) {
        std::set<std::u16string_view> tokens;
        for (const FuenteEspecificacion::Definicion& d : fuente.definiciones)
            if (d.esToken) tokens.insert(d.nombre);
        return tokens;
    }

    void anota(Codigo codigo, const LineaDirectiva& linea, std::u16string hallado, Textos esperados) {
        hallazgos_.push_back({codigo,
                              Gravedad::Aviso,
                              lugares_.rango(linea.inicio, linea.fin),
                              {std::u16string(linea.palabra), std::move(hallado), std::move(esperados), {}}});
    }

    void revisaValida(const LineaDirectiva& linea) {
        const bool asocia = asociatividadDe(linea.palabra).has_value();
        if (!asocia && linea.palabra != u"conflictos") return;
        if (directivas_.tabla.metodo == Metodo::Clasico) anota(Codigo::DirectivaSinEfecto, linea, {}, {});
        if (!asocia) return;
        for (const std::u16string_view token : nombresDe(linea.valor)) {
            if (tokens_.contains(token)) continue;
            Textos esperados = cercano(token, conocidos_);
            if (esperados.empty()) esperados = {u"un token definido"};
            anota(Codigo::DirectivaIncorrecta, linea, std::u16string(token), std::move(esperados));
        }
    }

    static Textos cercano(std::u16string_view nombre, NombresConocidos& conocidos) {
        std::u16string suyo = conocidos.cercanoA(nombre);
        return suyo.empty() ? Textos() : Textos{std::move(suyo)};
    }

    std::u16string_view especificacion_;
    Lugares lugares_;
    const Directivas& directivas_;
    std::vector<Diagnostico>& hallazgos_;
    std::set<std::u16string_view> tokens_;
    NombresConocidos conocidos_; // the same
    NombresConocidos palabras_;
};

} // namespace

void compruebaDirectivas(std::u16string_view especificacion, const FuenteEspecificacion& fuente,
                         const Directivas& directivas, const std::stop_token& cancelacion,
                         std::vector<Diagnostico>& hallazgos) {
    RevisorDirectivas(especificacion, fuente, directivas, cancelacion, hallazgos).revisa();
}

} // namespace norvik::inline v0_2
