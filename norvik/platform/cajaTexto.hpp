// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// Un texto con servicios de líneas. Posiciones y líneas cuentan desde 0; un salto de línea (CR LF, o un CR o
/// un LF solo) pertenece a la línea que acaba.
class NORVIK_API FuenteTexto {
public:
    FuenteTexto() = default;
    FuenteTexto(const FuenteTexto&) = delete;
    FuenteTexto& operator=(const FuenteTexto&) = delete;
    virtual ~FuenteTexto() = default;

    /// El texto entero; la vista vale hasta el siguiente cambio.
    virtual std::u16string_view texto() const = 0;
    /// Línea del carácter de una posición; una posición más allá del texto está en la última línea.
    virtual std::int32_t lineaDeCaracter(std::int32_t posicion) const = 0;
    /// Posición del primer carácter de una línea, -1 cuando no existe.
    virtual std::int32_t inicioDeLinea(std::int32_t linea) const = 0;
    virtual std::int32_t numeroDeLineas() const = 0;
};

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
inline constexpr std::int16_t retorno = 13;
inline constexpr std::int16_t insertar = 45;
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

/// Un cambio del texto: los caracteres [inicio, inicio + quitados) del de antes son [inicio, inicio +
/// puestos) del nuevo.
struct CambioDeTexto {
    std::int32_t inicio = 0;
    std::int32_t quitados = 0;
    std::int32_t puestos = 0;
    bool otraSeleccion = false; ///< también la selección, o el cursor, es otra

    /// Adónde va a parar una posición; lo que se inserta en ella queda delante.
    std::int32_t lleva(std::int32_t posicion) const {
        if (posicion >= inicio + quitados) return posicion + puestos - quitados;
        return posicion <= inicio ? posicion : inicio + puestos;
    }
};

/// Lo que el control necesita de una caja de texto con formato. Posiciones desde 0, en caracteres, y un salto
/// de línea cuenta como dos; colores 0x00BBGGRR; longitudes en la pantalla en twips (1/1440 de pulgada). Los
/// cambios hechos por programa dan los eventos como los del usuario. Colores y fuentes no dan ninguno.
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
        std::function<void()> vaAPegar; ///< el usuario va a pegar o soltar texto en la selección
    };
    Eventos eventos;

    /// Otro texto, todo él de color 0 y con la fuente de la caja, el cursor al principio y sin modificar.
    virtual void ponTexto(std::u16string_view texto) = 0;

    /// Donde empieza la selección, o está el cursor.
    virtual std::int32_t inicioSeleccion() const = 0;
    virtual std::int32_t longitudSeleccion() const = 0;
    /// Selecciona; los dos extremos se llevan dentro del texto. El cursor queda al principio.
    virtual void selecciona(std::int32_t inicio, std::int32_t longitud) = 0;
    virtual std::u16string textoSeleccionado() const = 0;
    /// Reemplaza la selección; el cursor queda detrás del texto insertado, que tiene el color del primer
    /// carácter reemplazado o el de lo que se escriba a continuación.
    virtual void reemplazaSeleccion(std::u16string_view texto) = 0;
    /// Color de los caracteres de la selección; cuando está vacía, de lo que se escriba a continuación
    /// mientras no cambie la selección.
    virtual void ponColorSeleccion(std::int32_t color) = 0;
    /// Color del primer carácter de la selección; cuando está vacía, de lo que se escriba a continuación: el
    /// del carácter anterior al cursor, si no se puso otro.
    virtual std::int32_t colorSeleccion() const = 0;

    /// La fuente de todo el texto que no tiene una propia.
    virtual const Fuente& fuente() const = 0;
    virtual void ponFuente(const Fuente& fuente) = 0;
    /// Nombre y tamaño (en diezmilésimas de punto) de la fuente de la selección, como su color.
    virtual const std::u16string& nombreFuenteSeleccion() const = 0;
    virtual void ponNombreFuenteSeleccion(std::u16string_view nombre) = 0;
    virtual std::int32_t tamanoFuenteSeleccion() const = 0;
    virtual void ponTamanoFuenteSeleccion(std::int32_t tamano) = 0;

    /// Busca la primera aparición de un texto que esté entera en [desde, hasta), y la selecciona si las
    /// opciones no dicen que no. Da su posición, -1 cuando no hay ninguna o el texto está vacío; los extremos
    /// se llevan dentro del texto. No distingue mayúsculas si las opciones no lo piden.
    std::int32_t busca(std::u16string_view cadena, std::int32_t desde, std::int32_t hasta,
                       std::int32_t opciones);

    /// Editada desde que se puso el texto o se quitó la marca.
    virtual bool modificado() const = 0;
    virtual void ponModificado(bool modificado) = 0;
    /// La selección no se ve mientras la caja no tiene el foco.
    virtual bool ocultaSeleccion() const = 0;
    virtual void ponOcultaSeleccion(bool oculta) = 0;

    /// Anchura a partir de la que se partirían las líneas, en twips; 0 cuando nadie la ha puesto. Las cajas
    /// no parten líneas.
    virtual std::int32_t margenDerecho() const = 0;
    virtual void ponMargenDerecho(std::int32_t twips) = 0;
    /// La primera línea que se ve entera o en parte.
    virtual std::int32_t primeraLineaVisible() const = 0;
    /// Alto de una línea con la fuente de la caja.
    virtual std::int32_t altoDeLinea() const = 0;
    /// El borde izquierdo de la caja dentro del control.
    virtual std::int32_t izquierda() const = 0;
    virtual void ponIzquierda(std::int32_t twips) = 0;
    /// Toma el foco.
    virtual void enfoca() = 0;

    /// Entre las dos llamadas (se anidan) la caja no se redibuja.
    virtual void bloqueaDibujo() = 0;
    virtual void desbloqueaDibujo() = 0;
};

} // namespace norvik::inline v0_2
