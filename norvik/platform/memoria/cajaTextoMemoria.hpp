#pragma once

#include "norvik/base/lineas.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <optional>
#include <vector>

namespace norvik {

/// Characters in a row that have one colour. Positions 0-based.
struct TramoDeColor {
    std::int32_t inicio = 0;
    std::int32_t longitud = 0;
    std::int32_t color = 0;

    bool operator==(const TramoDeColor&) const = default;
};

/// The text box kept in memory, for hosts without windows. Each character has its colour beside it, so that
/// painting a range costs the range.
class CajaTextoMemoria : public CajaTexto {
public:
    std::u16string_view texto() const override { return texto_; }
    std::int32_t lineaDeCaracter(std::int32_t posicion) const override;
    std::int32_t inicioDeLinea(std::int32_t linea) const override;
    std::int32_t numeroDeLineas() const override;

    void ponTexto(std::u16string_view texto) override;
    std::int32_t inicioSeleccion() const override { return inicio_; }
    std::int32_t longitudSeleccion() const override { return longitud_; }
    void selecciona(std::int32_t inicio, std::int32_t longitud) override;
    std::u16string textoSeleccionado() const override;
    void reemplazaSeleccion(std::u16string_view texto) override;
    void ponColorSeleccion(std::int32_t color) override;
    std::int32_t colorSeleccion() const override;
    bool modificado() const override { return modificado_; }
    void ponModificado(bool modificado) override { modificado_ = modificado; }
    bool ocultaSeleccion() const override { return ocultaSeleccion_; }
    void ponOcultaSeleccion(bool oculta) override { ocultaSeleccion_ = oculta; }
    void bloqueaDibujo() override {}
    void desbloqueaDibujo() override {}

    /// The colours of the whole text: runs of one colour, in order, without gaps.
    std::vector<TramoDeColor> colores() const;

private:
    const IndiceLineas& lineas() const;
    void avisaDelCambio(bool otraSeleccion);

    std::u16string texto_;
    std::vector<std::int32_t> colores_; ///< one a character
    std::int32_t inicio_ = 0;
    std::int32_t longitud_ = 0;
    std::optional<std::int32_t> colorDeEscritura_; ///< set for an empty selection
    bool modificado_ = false;
    bool ocultaSeleccion_ = true;
    mutable IndiceLineas lineas_;
    mutable bool lineasAlDia_ = true; ///< the index is made when first asked after a change
};

} // namespace norvik
