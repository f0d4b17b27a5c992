// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/lineas.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <string>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

/// A text that is read without being shown, with lines of its own.
class TextoInvisible final : public FuenteTexto {
public:
    void ponTexto(std::u16string_view texto) {
        std::u16string suyo(texto);
        lineas_.reconstruye(suyo);
        texto_ = std::move(suyo);
    }
    void vacia() noexcept {
        texto_.clear();
        lineas_.vacia();
    }
    std::u16string_view texto() const override { return texto_; }
    std::int32_t lineaDeCaracter(std::int32_t posicion) const override { return lineas_.lineaDe(posicion); }
    std::int32_t inicioDeLinea(std::int32_t linea) const override { return lineas_.inicioDe(linea); }
    std::int32_t numeroDeLineas() const override { return lineas_.numLineas(); }

private:
    std::u16string texto_;
    IndiceLineas lineas_;
};

} // namespace norvik::inline v0_2
