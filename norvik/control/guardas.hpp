// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/sistema.hpp"

namespace norvik::inline v0_2 {

/// The pointer is what it was. A host that cannot give it back is no reason to end the process: what is being
/// left may be a failure, or the control itself.
inline void devuelvePuntero(Sistema& sistema) noexcept {
    try {
        sistema.ponPuntero(Puntero::Normal);
    } catch (...) {
        return;
    }
}

/// The control's busy mark: while it lives, the box's events are ignored.
class MarcaOcupado {
public:
    explicit MarcaOcupado(bool& ocupado) : ocupado_(ocupado), antes_(ocupado) { ocupado_ = true; }
    MarcaOcupado(const MarcaOcupado&) = delete;
    MarcaOcupado& operator=(const MarcaOcupado&) = delete;
    ~MarcaOcupado() { ocupado_ = antes_; }

private:
    bool& ocupado_;
    bool antes_;
};

/// The box is not redrawn while it lives.
class DibujoBloqueado {
public:
    explicit DibujoBloqueado(const Prestado<CajaTexto>& caja) : caja_(caja) { caja_->bloqueaDibujo(); }
    DibujoBloqueado(const DibujoBloqueado&) = delete;
    DibujoBloqueado& operator=(const DibujoBloqueado&) = delete;
    ~DibujoBloqueado() { caja_->desbloqueaDibujo(); }

private:
    const Prestado<CajaTexto>& caja_;
};

/// The hidden edit: the box hides its selection while it lives, whatever the host wished.
class EdicionSilenciosa {
public:
    explicit EdicionSilenciosa(const Prestado<CajaTexto>& caja)
        : caja_(caja), antes_(caja->ocultaSeleccion()) {
        if (!antes_) caja_->ponOcultaSeleccion(true);
    }
    EdicionSilenciosa(const EdicionSilenciosa&) = delete;
    EdicionSilenciosa& operator=(const EdicionSilenciosa&) = delete;
    ~EdicionSilenciosa() {
        if (!antes_) caja_->ponOcultaSeleccion(false);
    }

private:
    const Prestado<CajaTexto>& caja_;
    bool antes_;
};

} // namespace norvik::inline v0_2
