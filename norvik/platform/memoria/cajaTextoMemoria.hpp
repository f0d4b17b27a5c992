// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <memory>
#include <optional>
#include <vector>

namespace norvik::inline v0_2 {

class IndiceLineas;

/// Caracteres seguidos del mismo color. Posiciones desde 0.
struct TramoDeColor {
    std::int32_t inicio = 0;
    std::int32_t longitud = 0;
    std::int32_t color = 0;

    bool operator==(const TramoDeColor&) const = default;
};

/// La caja de texto en memoria, para anfitriones sin ventanas, y el modelo de las que la muestran en una
/// ventana. Cada carácter tiene a su lado su color y su fuente, de modo que pintar un trozo cuesta lo que
/// mide el trozo.
class NORVIK_API CajaTextoMemoria : public CajaTexto {
public:
    CajaTextoMemoria();
    CajaTextoMemoria(const CajaTextoMemoria&) = delete;
    CajaTextoMemoria& operator=(const CajaTextoMemoria&) = delete;
    ~CajaTextoMemoria() override;

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
    std::int32_t colorSeleccion() const override { return estiloSeleccion().color; }
    const Fuente& fuente() const override { return fuente_; }
    void ponFuente(const Fuente& fuente) override { fuente_ = fuente; }
    const std::u16string& nombreFuenteSeleccion() const override;
    void ponNombreFuenteSeleccion(std::u16string_view nombre) override;
    std::int32_t tamanoFuenteSeleccion() const override;
    void ponTamanoFuenteSeleccion(std::int32_t tamano) override;
    bool modificado() const override { return modificado_; }
    void ponModificado(bool modificado) override { modificado_ = modificado; }
    bool ocultaSeleccion() const override { return ocultaSeleccion_; }
    void ponOcultaSeleccion(bool oculta) override { ocultaSeleccion_ = oculta; }
    std::int32_t margenDerecho() const override { return margenDerecho_; }
    void ponMargenDerecho(std::int32_t twips) override { margenDerecho_ = twips; }
    std::int32_t primeraLineaVisible() const override { return 0; }
    std::int32_t altoDeLinea() const override;
    std::int32_t izquierda() const override { return izquierda_; }
    void ponIzquierda(std::int32_t twips) override { izquierda_ = twips; }
    void enfoca() override {}
    void bloqueaDibujo() override {}
    void desbloqueaDibujo() override {}

    /// Los colores de todo el texto: tramos de un color, en orden y sin huecos.
    std::vector<TramoDeColor> colores() const;

protected:
    /// Nombre y tamaño de fuente dados a unos caracteres; el número 0 son los de la fuente de la caja.
    struct Letra {
        std::u16string nombre;
        std::int32_t tamano = 0;

        bool operator==(const Letra&) const = default;
    };
    struct Estilo {
        std::int32_t color = 0;
        std::int32_t letra = 0;

        bool operator==(const Estilo&) const = default;
    };

    /// @name Para una caja que muestra esta
    /// Lo que debe saber, antes de los eventos.
    /// @{
    virtual void alSustituir(const CambioDeTexto& /*cambio*/) {}
    virtual void alSeleccionar() {}
    virtual void alPintar(std::int32_t /*inicio*/, std::int32_t /*longitud*/) {}

    /// @}

    /// Una edición del usuario, tras la cual la selección es la que se da.
    void edita(std::int32_t inicio, std::int32_t quitados, std::u16string_view texto,
               std::int32_t inicioSeleccion, std::int32_t longitudSeleccion);
    /// Caduca con la caja, que un receptor de sus eventos puede destruir.
    std::weak_ptr<const void> testigo() const { return testigo_; }
    const std::vector<Estilo>& estilos() const { return estilos_; }
    const Letra& letra(std::int32_t numero) const { return letras_[static_cast<std::size_t>(numero - 1)]; }

private:
    struct Seleccion {
        std::int32_t inicio = 0;
        std::int32_t longitud = 0;
        bool operator==(const Seleccion&) const = default;
    };

    const IndiceLineas& lineas() const;
    std::u16string conSaltosDobles(std::u16string_view texto, std::int32_t inicio, std::int32_t fin) const;
    void sustituye(const CambioDeTexto& cambio, std::u16string_view nuevo);
    void avisaDelCambio(CambioDeTexto cambio, const Seleccion& antes);
    Estilo estiloEn(std::int32_t inicio, std::int32_t longitud) const;
    Estilo estiloSeleccion() const { return estiloEn(inicio_, longitud_); }
    template <typename Cambio>
    void cambiaEstilo(Cambio cambio);
    std::int32_t numeroDeLetra(const Letra& letra);
    std::int32_t conNombre(std::int32_t numero, std::u16string_view nombre);
    std::int32_t conTamano(std::int32_t numero, std::int32_t tamano);

    std::u16string texto_;
    std::vector<Estilo> estilos_; ///< uno por carácter
    std::vector<Letra> letras_;   ///< del número 1 en adelante
    Fuente fuente_;
    std::int32_t inicio_ = 0;
    std::int32_t longitud_ = 0;
    std::optional<Estilo> estiloDeEscritura_; ///< puesto con una selección vacía
    bool modificado_ = false;
    bool ocultaSeleccion_ = true;
    std::int32_t margenDerecho_ = 0;
    std::int32_t izquierda_ = 0;
    std::shared_ptr<const char> testigo_ = std::make_shared<char>();
    const std::unique_ptr<IndiceLineas> lineas_;
    mutable bool lineasAlDia_ = true; ///< el índice se hace la primera vez que se pide tras un cambio
};

} // namespace norvik::inline v0_2
