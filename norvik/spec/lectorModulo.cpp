// SPDX-License-Identifier: MIT

// Reads the loading modules that `GuardaModuloGramatica` writes. Their shape is fixed, so that reading one is
// a single pass with one line expected at each place, and whatever else stands there is named with its line:
// a module cannot call itself or jump about. The text is first read into a list of calls and then replayed,
// definitions and rules first although their procedures come last, as the calls of the main procedure say.
// Time grows with the length of the text, memory with the number of calls: the text itself passes by.

#include "norvik/spec/lectorModulo.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/spec/cargadorLenguaje.hpp"
#include "norvik/spec/lineasModulo.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

struct LlamadaSetER {
    std::u16string patron;
    std::u16string nombre;
    std::int32_t tipo = 0;
    std::u16string pseudoToken;
    std::int32_t base = 0;
    std::int32_t color = 0;
};
struct LlamadaSensible {};
struct LlamadaSetRegla {
    std::u16string regla;
};
struct LlamadaDimension {
    std::int16_t filas = 0;
    std::int16_t columnas = 0;
};
struct LlamadaSimbolo {
    std::u16string simbolo;
};

/// A call and the line where it stands.
template <typename T>
struct Llamada {
    std::int32_t linea = 0;
    T datos;
};

/// The lines of calls that follow one another but for a few gaps.
class LineasSeguidas {
public:
    void aniade(std::size_t llamada, std::int32_t linea) {
        const std::int64_t salto = linea - static_cast<std::int64_t>(llamada);
        if (tramos_.empty() || salto != tramos_.back().salto) tramos_.push_back({llamada, salto});
    }
    /// Of a call that was added.
    std::int32_t de(std::size_t llamada) const {
        const auto siguiente = std::ranges::upper_bound(tramos_, llamada, {}, &Tramo::primera);
        return static_cast<std::int32_t>(static_cast<std::int64_t>(llamada) + std::prev(siguiente)->salto);
    }

private:
    struct Tramo {
        std::size_t primera = 0;
        std::int64_t salto = 0; ///< from a call's number to its line
    };
    std::vector<Tramo> tramos_;
};

/// All the calls of a module.
struct Modulo {
    std::vector<Llamada<LlamadaSensible>> sensible; ///< once or never
    std::vector<Llamada<LlamadaSetER>> definiciones;
    std::vector<Llamada<LlamadaSetRegla>> reglas;
    Llamada<LlamadaDimension> dimension;
    std::vector<CeldaSLR> elementos; ///< by far the most
    LineasSeguidas lineasDeElementos;
    std::vector<Llamada<LlamadaSimbolo>> simbolos;
};

/// The module's lines, in their order.
class LectorModulo {
public:
    /// Of a text, or of where it comes from.
    template <typename Texto>
    explicit LectorModulo(const Texto& texto) : lineas_(texto) {}

    Modulo lee() {
        cabecera();
        procedimientosPrincipales();
        procedimientoDeTokens();
        procedimientoDeReglas();
        lineas_.fin();
        return std::move(modulo_);
    }

private:
    static constexpr std::u16string_view parametro = u"(NorvikRefParam As Norvik)";
    static constexpr std::u16string_view rayado = u"'////////////////////////////////////////////////////////"
                                                  u"//////////////////////////////////////////////////////";

    void cabecera() {
        lineas_.empieza(u"Attribute VB_Name = ");
        nombre_ = lineas_.cadena();
        if (nombre_.empty()) lineas_.falla(u"el nombre del módulo está vacío");
        lineas_.acaba();
        lineas_.linea(u"Option Explicit");
        lineas_.linea(rayado);
        lineas_.linea(u"' Módulo de carga del lenguaje ", nombre_);
        lineas_.linea(u"'");
        lineas_.linea(u"'\tpara ejecutar escriba ", nombre_, u".CargaLenguaje(NorvikControl)");
        lineas_.linea(u"'\tsiendo NorvikControl en control Norvik donde desea inyectar el lenguaje.");
        lineas_.linea(u"'");
        lineas_.linea(rayado);
    }

    void procedimientosPrincipales() {
        lineas_.linea(u"Public Sub CargaLenguaje", parametro);
        lineas_.linea(u"'Esta función carga la tabla SLR en un control Norvik");
        lineas_.linea(u"'que ha sido pasado por referencia como parámetro.");
        lineas_.linea(nombre_, u".CargaTokensLenguaje NorvikRefParam");
        lineas_.linea(nombre_, u".CargaGramaticaLenguaje NorvikRefParam");
        dimension();
        for (std::int32_t siguiente = 1;; ++siguiente) {
            while (lineas_.es(u"NorvikRefParam.SetElementoTablaSLR ")) elemento();
            if (!lineas_.es(nombre_, u".CargaLenguaje")) break;
            const std::u16string numero = aTexto(siguiente);
            lineas_.acaba(numero, u" NorvikRefParam");
            lineas_.linea(u"End Sub");
            lineas_.linea(u"Public Sub CargaLenguaje", numero, parametro);
        }
        while (lineas_.es(u"NorvikRefParam.InsertarSimboloGramatica ")) {
            modulo_.simbolos.push_back({lineas_.numeroDeLinea(), {lineas_.cadena()}});
            lineas_.acaba();
        }
        lineas_.linea(u"End Sub");
    }

    void dimension() {
        lineas_.empieza(u"NorvikRefParam.SetDimensionTablaSLR ");
        modulo_.dimension.linea = lineas_.numeroDeLinea();
        modulo_.dimension.datos.filas = lineas_.numero16();
        lineas_.sigue(u", ");
        modulo_.dimension.datos.columnas = lineas_.numero16();
        lineas_.acaba();
    }

    void elemento() {
        CeldaSLR celda;
        celda.fila = lineas_.numero16();
        lineas_.sigue(u", ");
        celda.columna = lineas_.numero16();
        lineas_.sigue(u", ");
        celda.valor = lineas_.numero16();
        lineas_.acaba();
        modulo_.lineasDeElementos.aniade(modulo_.elementos.size(), lineas_.numeroDeLinea());
        modulo_.elementos.push_back(celda);
    }

    void procedimientoDeTokens() {
        lineas_.linea(u"Public Sub CargaTokensLenguaje", parametro);
        lineas_.linea(u"'Función para cargar las definiciones léxicas de los tokens del lenguaje:");
        if (lineas_.es(u"NorvikRefParam.LenguajeSensible = ")) {
            lineas_.acaba(u"True");
            modulo_.sensible.push_back({lineas_.numeroDeLinea(), {}});
        }
        while (lineas_.es(u"NorvikRefParam.SetER ")) definicion();
        lineas_.linea(u"End Sub");
    }

    void definicion() {
        Llamada<LlamadaSetER> llamada{lineas_.numeroDeLinea(), {}};
        llamada.datos.patron = lineas_.cadenaConComillas();
        lineas_.sigue(u", ");
        llamada.datos.nombre = lineas_.cadena();
        lineas_.sigue(u", True, ");
        llamada.datos.tipo = lineas_.numero32();
        lineas_.sigue(u", ");
        llamada.datos.pseudoToken = lineas_.cadenaLarga();
        lineas_.sigue(u", ");
        llamada.datos.base = lineas_.numero32();
        lineas_.sigue(u", ");
        llamada.datos.color = lineas_.numero32();
        lineas_.acaba();
        modulo_.definiciones.push_back(std::move(llamada));
    }

    void procedimientoDeReglas() {
        lineas_.linea(u"Public Sub CargaGramaticaLenguaje", parametro);
        lineas_.linea(u"'Función para cargar las reglas del lenguaje ", nombre_);
        while (lineas_.es(u"NorvikRefParam.SetRegla ")) {
            modulo_.reglas.push_back({lineas_.numeroDeLinea(), {lineas_.cadena()}});
            lineas_.acaba();
        }
        lineas_.linea(u"End Sub");
    }

    LineasModulo lineas_;
    std::u16string nombre_;
    Modulo modulo_;
};

void llama(CargadorLenguaje& control, LlamadaSensible /*l*/) {
    control.DistingueMayusculas();
}
void llama(CargadorLenguaje& control, const LlamadaSetER& l) {
    control.SetPatron(l.patron, l.nombre, l.tipo, l.pseudoToken, l.base, l.color);
}
void llama(CargadorLenguaje& control, const LlamadaSetRegla& l) {
    control.SetRegla(l.regla);
}
void llama(CargadorLenguaje& control, const LlamadaDimension& l) {
    control.SetDimensionTablaSLR(l.filas, l.columnas);
}
void llama(CargadorLenguaje& control, const LlamadaSimbolo& l) {
    control.InsertarSimboloGramatica(l.simbolo);
}

/// Makes calls and remembers the line of the one under way, for when it fails.
class Ejecucion {
public:
    explicit Ejecucion(CargadorLenguaje& control) : control_(control) {}

    void ejecuta(const Modulo& modulo) {
        todas(modulo.sensible);
        todas(modulo.definiciones);
        todas(modulo.reglas);
        una(modulo.dimension);
        elementos(modulo);
        todas(modulo.simbolos);
    }
    std::int32_t linea() const { return linea_; }

private:
    template <typename T>
    void una(const Llamada<T>& llamada) {
        linea_ = llamada.linea;
        llama(control_, llamada.datos);
    }
    template <typename T>
    void todas(const std::vector<Llamada<T>>& llamadas) {
        for (const auto& llamada : llamadas) una(llamada);
    }
    void elementos(const Modulo& modulo) {
        const std::size_t total = modulo.elementos.size();
        for (std::size_t i = control_.SetElementosTablaSLR(modulo.elementos); i < total; ++i) {
            linea_ = modulo.lineasDeElementos.de(i);
            const auto& [fila, columna, valor] = modulo.elementos[i];
            control_.SetElementoTablaSLR(fila, columna, valor);
        }
    }

    CargadorLenguaje& control_;
    std::int32_t linea_ = 0;
};

template <typename Texto>
std::optional<ErrorModulo> carga(const Texto& texto, CargadorLenguaje& control) {
    Modulo modulo;
    try {
        modulo = LectorModulo(texto).lee();
    } catch (const ErrorModulo& error) {
        return error;
    }
    Ejecucion ejecucion(control);
    try {
        ejecucion.ejecuta(modulo);
    } catch (const ErrorNorvik& error) {
        return ErrorModulo{ejecucion.linea(), error.texto()};
    }
    return std::nullopt;
}

} // namespace

std::u16string ErrorModulo::mensaje() const {
    return u"Línea " + aTexto(linea) + u" del módulo: " + texto;
}

bool esModulo(const std::filesystem::path& fichero) {
    return aMinusculas(decodifica(fichero.extension().native())) == u".bas";
}

std::optional<ErrorModulo> CargaModulo(std::u16string_view texto, CargadorLenguaje& control) {
    return carga(texto, control);
}

std::optional<ErrorModulo> CargaModulo(const OrigenDeTexto& origen, CargadorLenguaje& control) {
    return carga(origen, control);
}

} // namespace norvik::inline v0_2
