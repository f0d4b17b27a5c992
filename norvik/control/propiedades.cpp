// SPDX-License-Identifier: MIT

#include "norvik/control/propiedades.hpp"

#include "norvik/control/ranurasDisenio.hpp"

#include <utility>

namespace norvik::inline v0_2 {

namespace {

/// Of which class a place is a member.
template <typename Lugar>
struct Miembro {
    using Clase = void;
};
template <typename Tipo, typename De>
struct Miembro<Tipo De::*> {
    using Clase = De;
};
template <typename Lugar, typename De>
inline constexpr bool esDe = std::is_same_v<typename Miembro<Lugar>::Clase, De>;

/// The value of an absent key.
template <typename Tipo, typename De>
Tipo omision(const Propiedad& p, Tipo De::*campo) {
    if constexpr (std::is_arithmetic_v<Tipo>)
        if (p.omision) return static_cast<Tipo>(*p.omision);
    if constexpr (std::is_same_v<De, pilaTokens>)
        return static_cast<Tipo>(p.nuevo);
    else
        return De{}.*campo;
}

template <typename Tipo, typename De>
Tipo lee(const BolsaPropiedades& bolsa, const Propiedad& p, Tipo De::*campo) {
    const Tipo ausente = omision(p, campo);
    if constexpr (std::is_same_v<Tipo, bool>)
        return bolsa.leeBooleano(p.clave, ausente);
    else if constexpr (std::is_same_v<Tipo, std::int16_t>)
        return bolsa.lee16(p.clave, ausente);
    else if constexpr (std::is_same_v<Tipo, std::u16string>)
        return bolsa.leeTexto(p.clave, ausente);
    else if constexpr (std::is_same_v<De, Fuente>)
        return bolsa.leeDecimal(p.clave, ausente);
    else
        return bolsa.lee32(p.clave, ausente);
}

/// The value of a row that is true or false.
bool leeLogica(const BolsaPropiedades& bolsa, const Propiedad& p) {
    if (const auto* suyo = std::get_if<bool pilaTokens::*>(&p.lugar)) return lee(bolsa, p, *suyo);
    return lee(bolsa, p, std::get<bool Opciones::*>(p.lugar));
}

template <typename Tipo, typename De>
void escribe(BolsaPropiedades& bolsa, const Propiedad& p, Tipo De::*campo, const De& de) {
    const Tipo ausente = omision(p, campo);
    if constexpr (std::is_same_v<Tipo, bool>)
        bolsa.escribeBooleano(p.clave, de.*campo, ausente);
    else if constexpr (std::is_same_v<Tipo, std::u16string>)
        bolsa.escribeTexto(p.clave, de.*campo, ausente);
    else if constexpr (std::is_same_v<De, Fuente> && std::is_same_v<Tipo, std::int32_t>)
        bolsa.escribeDecimal(p.clave, de.*campo, ausente);
    else
        bolsa.escribeEntero(p.clave, de.*campo, ausente);
}

} // namespace

void Propiedades::construye() {
    constexpr std::int32_t margenEnPixeles = 8192; // lines are never wrapped
    caja_->ponFuente(Fuente{});
    caja_->ponMargenDerecho(contenedor_->medidas().pixelX * margenEnPixeles);
    for (const Propiedad& p : tablaPropiedades) {
        if (const auto* suyo = std::get_if<bool pilaTokens::*>(&p.lugar)) lexico_.*(*suyo) = p.nuevo != 0;
        if (p.esColor()) campo<std::int32_t>(p) = p.nuevo;
    }
    caja_->ponOcultaSeleccion(true);
    opciones_.hideSelection = caja_->ocultaSeleccion();
    ponLeftBorderVisible(true);
}

void Propiedades::ponBorde3D(bool valor) {
    if (valor == opciones_.borde3D) return;
    contenedor_->muestraMarco(valor);
    opciones_.borde3D = valor;
    contenedor_->cambioDePropiedad(u"Borde3D");
    colocacion_.colocaControles();
}

void Propiedades::ponLeftBorderVisible(bool valor) {
    contenedor_->muestraBordeIzquierdo(valor);
    opciones_.leftBorderVisible = valor;
    colocacion_.colocaControles();
    contenedor_->cambioDePropiedad(u"LeftBorderVisible");
}

void Propiedades::ponMargenIzquierdo(std::int16_t valor) {
    if (valor == opciones_.margenIzquierdo) return;
    opciones_.margenIzquierdo = valor;
    colocacion_.colocaControles();
    contenedor_->cambioDePropiedad(u"MargenIzquierdo");
}

void Propiedades::ponHideSelection(bool valor) {
    if (valor == opciones_.hideSelection) return;
    opciones_.hideSelection = valor;
    caja_->ponOcultaSeleccion(valor);
    contenedor_->cambioDePropiedad(u"HideSelection");
}

void Propiedades::ponText(std::u16string_view texto) {
    if (texto == caja_->texto()) return;
    caja_->ponTexto(texto);
    contenedor_->cambioDePropiedad(u"Text");
}

// --- Font ---

template <typename Tipo>
void Propiedades::ponAtributo(Tipo Fuente::*atributo, const Tipo& valor) {
    Fuente fuente = caja_->fuente();
    fuente.*atributo = valor;
    caja_->ponFuente(fuente);
}

void Propiedades::ponFont(const Fuente& fuente) {
    const TextoOculto oculto(colocacion_);
    const auto copia = [&](auto atributo, const Propiedad& p) {
        if constexpr (esDe<decltype(atributo), Fuente>) {
            if (caja_->fuente().*atributo == fuente.*atributo) return;
            ponAtributo(atributo, fuente.*atributo);
            contenedor_->cambioDePropiedad(p.clave);
        }
    };
    for (const Propiedad& p : tablaPropiedades)
        std::visit([&](auto atributo) { copia(atributo, p); }, p.lugar);
}

// --- Design time ---

void Propiedades::cedeARanuras() const {
    ranurasDisenio() = {opciones_.contenidoG, opciones_.codigoPrueba, opciones_.pendienteGuardarG};
}

void Propiedades::tomaDeRanuras() {
    RanurasDisenio& ranuras = ranurasDisenio();
    opciones_.contenidoG = std::exchange(ranuras.especificacion, {});
    contenedor_->cambioDePropiedad(u"ContenidoG");
    opciones_.codigoPrueba = std::exchange(ranuras.textoPrueba, {});
    contenedor_->cambioDePropiedad(u"ContenidoG");
    contenedor_->cambioDePropiedad(u"CodigoPrueba");
    opciones_.pendienteGuardarG = ranuras.pendienteGuardar;
    contenedor_->cambioDePropiedad(u"pendienteGuardarG");
}

// --- The bag ---

void Propiedades::restaura(const BolsaPropiedades& bolsa) {
    for (const Propiedad& p : tablaPropiedades) restaura(p, bolsa);
}

void Propiedades::restaura(const Propiedad& p, const BolsaPropiedades& bolsa) {
    switch (p.alRestaurar) {
    case AlRestaurar::Nada:
        return;
    case AlRestaurar::Guarda:
        return guardaLeido(p, bolsa);
    case AlRestaurar::Avisa:
        return pon<bool>(p, leeLogica(bolsa, p));
    case AlRestaurar::Marco:
        guardaLeido(p, bolsa);
        return contenedor_->muestraMarco(opciones_.borde3D);
    case AlRestaurar::Seleccion:
        caja_->ponOcultaSeleccion(leeLogica(bolsa, p));
        opciones_.hideSelection = caja_->ocultaSeleccion();
        return;
    case AlRestaurar::Borde:
        return ponLeftBorderVisible(leeLogica(bolsa, p));
    case AlRestaurar::Texto:
        caja_->ponTexto(bolsa.leeTexto(p.clave, {}));
        return colocacion_.colocaControles();
    }
}

void Propiedades::guardaLeido(const Propiedad& p, const BolsaPropiedades& bolsa) {
    const auto guarda = [&](auto campo) {
        using Lugar = decltype(campo);
        if constexpr (esDe<Lugar, Fuente>)
            ponAtributo(campo, lee(bolsa, p, campo));
        else if constexpr (esDe<Lugar, Opciones>)
            opciones_.*campo = lee(bolsa, p, campo);
        else if constexpr (esDe<Lugar, pilaTokens>)
            lexico_.*campo = lee(bolsa, p, campo);
    };
    std::visit(guarda, p.lugar);
}

void Propiedades::guarda(BolsaPropiedades& bolsa) const {
    const auto escribeEn = [&](const Propiedad& p, auto campo) {
        using Lugar = decltype(campo);
        if constexpr (esDe<Lugar, Fuente>)
            escribe(bolsa, p, campo, caja_->fuente());
        else if constexpr (esDe<Lugar, Opciones>)
            escribe(bolsa, p, campo, opciones_);
        else if constexpr (esDe<Lugar, pilaTokens>)
            escribe(bolsa, p, campo, lexico_);
        else
            bolsa.escribeFuente(p.clave, caja_->fuente(), Fuente{});
    };
    for (const Propiedad* p : propiedadesPor(&Propiedad::seEscribe))
        std::visit([&](auto campo) { escribeEn(*p, campo); }, p->lugar);
}

} // namespace norvik::inline v0_2
