// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/platform/fuenteTexto.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class IndiceLineas;

/// Una fuente. Sus atributos son independientes entre sí, como los ponen y guardan los anfitriones, uno a
/// uno.
struct Fuente {
    std::u16string nombre = u"Courier New";
    std::int32_t tamano = 100000; ///< en diezmilésimas de punto
    bool negrita = false;
    bool cursiva = false;
    bool tachado = false;
    bool subrayado = false;
    std::int16_t juegoCaracteres = 0;
    std::int16_t peso = 400; ///< 400 normal, 700 negrita

    bool operator==(const Fuente&) const = default;
};

/// Códigos de teclas que el control conoce por su nombre: los códigos virtuales de Windows.
namespace tecla {
inline constexpr std::int16_t retroceso = 8;
inline constexpr std::int16_t retorno = 13;
inline constexpr std::int16_t izquierda = 37;
inline constexpr std::int16_t derecha = 39;
inline constexpr std::int16_t insertar = 45;
inline constexpr std::int16_t suprimir = 46;
} // namespace tecla

/// Bits del argumento `shift` de los eventos de teclas y de ratón.
namespace mascara {
inline constexpr std::int16_t mayusculas = 1;
inline constexpr std::int16_t control = 2;
inline constexpr std::int16_t alt = 4;
} // namespace mascara

/// Opciones de `busca`, que se suman.
namespace opcionBusqueda {
inline constexpr std::int32_t palabraCompleta = 2;
inline constexpr std::int32_t distingueMayusculas = 4;
inline constexpr std::int32_t sinResaltar = 8;
} // namespace opcionBusqueda

/// Unos caracteres seleccionados; sin ninguno, donde está el cursor.
struct Seleccion {
    std::int32_t inicio = 0;
    std::int32_t longitud = 0;

    bool operator==(const Seleccion&) const = default;
};

/// Un cambio del texto: los caracteres [inicio, inicio + quitados) del de antes son [inicio, inicio +
/// puestos) del nuevo.
struct CambioDeTexto {
    std::int32_t inicio = 0;
    std::int32_t quitados = 0;
    std::int32_t puestos = 0;
    bool otraSeleccion = false; ///< también la selección, o el cursor, es otra
    std::u16string textoQuitado;
    Seleccion seleccionAntes;

    /// Adónde va a parar una posición; lo que se inserta en ella queda delante.
    std::int32_t lleva(std::int32_t posicion) const {
        if (posicion >= inicio + quitados) return posicion + puestos - quitados;
        return posicion <= inicio ? posicion : inicio + puestos;
    }
};

/// Caracteres seguidos del mismo color. Posiciones desde 0.
struct TramoDeColor {
    std::int32_t inicio = 0;
    std::int32_t longitud = 0;
    std::int32_t color = 0;

    bool operator==(const TramoDeColor&) const = default;
};

/// Un texto que se edita, con sus colores, su selección y sus líneas; con él le basta a un anfitrión sin
/// ventanas, y una caja de una ventana (una clase que deriva de esta) lo enseña. Cada carácter tiene a su
/// lado su color y su fuente, de modo que pintar un trozo cuesta lo que mide el trozo.
///
/// Posiciones desde 0, en caracteres, y un salto de línea cuenta como dos; colores 0x00BBGGRR; longitudes en
/// la pantalla en twips (1/1440 de pulgada). Los cambios hechos por programa dan los eventos como los del
/// usuario. Colores y fuentes no dan ninguno.
///
/// Un salto de línea que llega como CR o LF solo se convierte en CR LF, a no ser que complete medio salto que
/// ya está a su lado. Solo quedan mitades cuando se selecciona y se reemplaza parte de un CR LF.
class NORVIK_API CajaTexto : public FuenteTexto {
public:
    /// Recibe los eventos de la caja. El receptor puede cambiar los argumentos.
    struct Eventos {
        using Tecla = std::function<void(std::int16_t& codigo, std::int16_t& shift)>;
        using Raton = std::function<void(std::int16_t& boton, std::int16_t& shift, float& x, float& y)>;

        std::function<void(const CambioDeTexto&)> cambio; ///< el texto es otro, y quizá la selección con él
        std::function<void()> cambioDeSeleccion;          ///< solo la selección, o el cursor, es otra
        Tecla teclaAbajo;                                 ///< el código 0 suprime la tecla
        std::function<void(std::int16_t& caracter)> pulsacion; ///< el carácter de una tecla; 0 lo suprime
        Tecla teclaArriba;
        Raton ratonAbajo; ///< botón 1 izquierdo, 2 derecho, 4 central; posición en twips desde la esquina de
                          ///< la caja
        Raton ratonMueve;
        Raton ratonArriba;
        std::function<void()> click;
        std::function<void()> pierdeFoco;
        std::function<void()> vaAPegar;    ///< el usuario va a pegar o soltar texto en la selección
        std::function<void()> empiezaPaso; ///< los cambios hasta que acabe son para el usuario uno solo
        std::function<void()> acabaPaso;
    };
    Eventos eventos;

    CajaTexto();
    CajaTexto(const CajaTexto&) = delete;
    CajaTexto& operator=(const CajaTexto&) = delete;
    ~CajaTexto() override;

    std::u16string_view texto() const override { return texto_; }
    std::int32_t lineaDeCaracter(std::int32_t posicion) const override;
    std::int32_t inicioDeLinea(std::int32_t linea) const override;
    std::int32_t numeroDeLineas() const override;
    /// Otro texto, todo él de color 0 y con la fuente de la caja, el cursor al principio y sin modificar.
    void ponTexto(std::u16string_view texto);

    /// Donde empieza la selección, o está el cursor.
    std::int32_t inicioSeleccion() const { return inicio_; }
    std::int32_t longitudSeleccion() const { return longitud_; }
    /// Selecciona; los dos extremos se llevan dentro del texto. El cursor queda al principio.
    void selecciona(std::int32_t inicio, std::int32_t longitud);
    std::u16string textoSeleccionado() const;
    /// Reemplaza la selección; el cursor queda detrás del texto insertado, que tiene el color del primer
    /// carácter reemplazado o el de lo que se escriba a continuación.
    void reemplazaSeleccion(std::u16string_view texto);

    /// Reemplaza unos caracteres por otros, de color 0; los dos extremos se llevan dentro del texto, y el
    /// cursor queda detrás. Es un solo cambio: nadie oye antes de una selección.
    void reemplaza(std::int32_t inicio, std::int32_t longitud, std::u16string_view texto);

    /// Pone otros caracteres en el lugar de unos que están en el texto, tal como son, y selecciona: todo ello
    /// un solo cambio. Son de color 0, salvo en los tramos que se dan, que ya están en el texto nuevo.
    void sustituye(std::int32_t inicio, std::int32_t quitados, std::u16string_view nuevo,
                   const Seleccion& despues, std::span<const TramoDeColor> colores = {});

    /// Color de los caracteres de la selección; cuando está vacía, de lo que se escriba a continuación
    /// mientras no cambie la selección.
    void ponColorSeleccion(std::int32_t color);
    /// Color del primer carácter de la selección; cuando está vacía, de lo que se escriba a continuación: el
    /// del carácter anterior al cursor, si no se puso otro.
    std::int32_t colorSeleccion() const { return estiloSeleccion().color; }
    /// Pinta unos caracteres, que están en el texto, sin tocar la selección. Lo que se escriba a continuación
    /// vuelve a tener el color del carácter anterior.
    void pinta(std::int32_t inicio, std::int32_t longitud, std::int32_t color);
    /// El de un carácter del texto.
    std::int32_t colorDe(std::int32_t posicion) const {
        return estilos_[static_cast<std::size_t>(posicion)].color;
    }
    /// Los colores de todo el texto: tramos de un color, en orden y sin huecos.
    std::vector<TramoDeColor> colores() const;

    /// La fuente de todo el texto que no tiene una propia.
    const Fuente& fuente() const { return fuente_; }
    virtual void ponFuente(const Fuente& fuente) { fuente_ = fuente; }
    /// Nombre y tamaño (en diezmilésimas de punto) de la fuente de la selección, como su color.
    const std::u16string& nombreFuenteSeleccion() const;
    void ponNombreFuenteSeleccion(std::u16string_view nombre);
    std::int32_t tamanoFuenteSeleccion() const;
    void ponTamanoFuenteSeleccion(std::int32_t tamano);

    /// Busca la primera aparición de un texto que esté entera en [desde, hasta), y la selecciona si las
    /// opciones no dicen que no. Da su posición, -1 cuando no hay ninguna o el texto está vacío; los extremos
    /// se llevan dentro del texto. No distingue mayúsculas si las opciones no lo piden.
    std::int32_t busca(std::u16string_view cadena, std::int32_t desde, std::int32_t hasta,
                       std::int32_t opciones);

    /// Editada desde que se puso el texto o se quitó la marca.
    bool modificado() const { return modificado_; }
    virtual void ponModificado(bool modificado) { modificado_ = modificado; }
    /// El usuario no puede cambiar el texto; el programa, sí.
    bool soloLectura() const { return soloLectura_; }
    virtual void ponSoloLectura(bool soloLectura) { soloLectura_ = soloLectura; }
    /// La selección no se ve mientras la caja no tiene el foco.
    bool ocultaSeleccion() const { return ocultaSeleccion_; }
    virtual void ponOcultaSeleccion(bool oculta) { ocultaSeleccion_ = oculta; }
    /// Anchura a partir de la que se partirían las líneas, en twips; 0 cuando nadie la ha puesto. Las cajas
    /// no parten líneas.
    std::int32_t margenDerecho() const { return margenDerecho_; }
    void ponMargenDerecho(std::int32_t twips) { margenDerecho_ = twips; }

    /// @name Lo que depende de dónde se enseña
    /// @{
    /// La primera línea que se ve entera o en parte.
    virtual std::int32_t primeraLineaVisible() const { return 0; }
    /// Alto de una línea con la fuente de la caja.
    virtual std::int32_t altoDeLinea() const;
    /// El borde izquierdo de la caja dentro del control.
    std::int32_t izquierda() const { return izquierda_; }
    virtual void ponIzquierda(std::int32_t twips) { izquierda_ = twips; }
    /// Toma el foco.
    virtual void enfoca() {}
    /// Entre las dos llamadas (se anidan) la caja no se redibuja.
    virtual void bloqueaDibujo() {}
    virtual void desbloqueaDibujo() {}
    /// @}

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
    const IndiceLineas& lineas() const;
    std::u16string conSaltosDobles(std::u16string_view texto, std::int32_t inicio, std::int32_t fin) const;
    CambioDeTexto cambioEn(std::int32_t inicio, std::int32_t quitados, std::u16string_view nuevo) const;
    void cambia(const CambioDeTexto& cambio, std::u16string_view nuevo, const Estilo& estilo);
    void avisaDelCambio(CambioDeTexto&& cambio);
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
    bool soloLectura_ = false;
    bool ocultaSeleccion_ = true;
    std::int32_t margenDerecho_ = 0;
    std::int32_t izquierda_ = 0;
    std::shared_ptr<const char> testigo_ = std::make_shared<char>();
    const std::unique_ptr<IndiceLineas> lineas_;
    mutable bool lineasAlDia_ = true; ///< el índice se hace la primera vez que se pide tras un cambio
};

} // namespace norvik::inline v0_2
