// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/bolsaPropiedades.hpp"
#include "norvik/control/colocacion.hpp"
#include "norvik/control/contenedor.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/control/tablaPropiedades.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <variant>

namespace norvik::inline v0_2 {

/// The option properties by their table: what setting one does besides, their values in a new control, and
/// how they are saved.
class Propiedades {
public:
    Propiedades(Opciones& opciones, pilaTokens& lexico, const Prestado<CajaTexto>& caja,
                Colocacion& colocacion, const Prestado<Contenedor>& contenedor)
        : opciones_(opciones), lexico_(lexico), caja_(caja), colocacion_(colocacion),
          contenedor_(contenedor) {}

    /// Gives box, lexer and options the values of a new control.
    void construye();
    /// The value of a row that is an option or the lexer's.
    template <typename Tipo>
    const Tipo& valor(const Propiedad& p) const {
        return campo<Tipo>(p);
    }
    /// Stores another value and notifies the container.
    template <typename Tipo, typename Valor>
    void pon(const Propiedad& p, const Valor& valor) {
        if (campo<Tipo>(p) == valor) return;
        campo<Tipo>(p) = valor;
        contenedor_->cambioDePropiedad(p.clave);
    }
    void ponBorde3D(bool valor);
    void ponLeftBorderVisible(bool valor);
    void ponMargenIzquierdo(std::int16_t valor);
    void ponHideSelection(bool valor);
    void ponText(std::u16string_view texto);
    void ponFont(const Fuente& fuente);

    /// The slots of the design-time tools take, or give back, the specification and the text to try it with.
    void cedeARanuras() const;
    void tomaDeRanuras();

    /// Keys that are absent give their defaults, which are not always the values of a new control. A value
    /// that cannot be converted raises `NoCoincidenLosTipos` or `Desbordamiento`; keys read before it keep
    /// their values.
    void restaura(const BolsaPropiedades& bolsa);
    void guarda(BolsaPropiedades& bolsa) const;

private:
    template <typename Tipo>
    Tipo& campo(const Propiedad& p) const {
        if constexpr (std::is_same_v<Tipo, std::int32_t>) {
            return lexico_.*std::get<Tipo pilaTokens::*>(p.lugar);
        } else {
            if constexpr (std::is_same_v<Tipo, bool>)
                if (const auto* suyo = std::get_if<bool pilaTokens::*>(&p.lugar)) return lexico_.*(*suyo);
            return opciones_.*std::get<Tipo Opciones::*>(p.lugar);
        }
    }
    template <typename Tipo>
    void ponAtributo(Tipo Fuente::*atributo, const Tipo& valor);
    void restaura(const Propiedad& p, const BolsaPropiedades& bolsa);
    void guardaLeido(const Propiedad& p, const BolsaPropiedades& bolsa);

    Opciones& opciones_;
    pilaTokens& lexico_;
    const Prestado<CajaTexto>& caja_;
    Colocacion& colocacion_;
    const Prestado<Contenedor>& contenedor_;
};

} // namespace norvik::inline v0_2
