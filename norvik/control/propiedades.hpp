// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/bolsaPropiedades.hpp"
#include "norvik/control/colocacion.hpp"
#include "norvik/control/contenedor.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <string_view>

namespace norvik::inline v0_2 {

/// The option properties: what setting one does besides, their values in a new control, and how they are
/// saved.
class Propiedades {
public:
    Propiedades(Opciones& opciones, pilaTokens& lexico, const Prestado<CajaTexto>& caja,
                Colocacion& colocacion, const Prestado<Contenedor>& contenedor)
        : opciones_(opciones), lexico_(lexico), caja_(caja), colocacion_(colocacion),
          contenedor_(contenedor) {}

    /// A key of a bag that some version of the control reads; others are somebody else's.
    static bool esClave(std::u16string_view clave);

    /// Gives box, lexer and options the values of a new control.
    void construye();
    /// Stores another value and notifies the container.
    template <typename Tipo, typename Valor>
    void pon(Tipo& campo, const Valor& valor, std::u16string_view nombre) {
        if (campo == valor) return;
        campo = valor;
        contenedor_->cambioDePropiedad(nombre);
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
    void copiaAtributo(const Fuente& fuente, Tipo Fuente::*atributo, std::u16string_view nombre);
    template <typename Tipo>
    void ponAtributo(Tipo Fuente::*atributo, const Tipo& valor);
    void restauraColores(const BolsaPropiedades& bolsa);
    void restauraFuente(const BolsaPropiedades& bolsa);
    void restauraAspecto(const BolsaPropiedades& bolsa);
    void restauraTextos(const BolsaPropiedades& bolsa);
    void guardaColores(BolsaPropiedades& bolsa) const;
    void guardaFuente(BolsaPropiedades& bolsa) const;

    Opciones& opciones_;
    pilaTokens& lexico_;
    const Prestado<CajaTexto>& caja_;
    Colocacion& colocacion_;
    const Prestado<Contenedor>& contenedor_;
};

} // namespace norvik::inline v0_2
