// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/celdaSLR.hpp"
#include "norvik/grammar/conjunto.hpp"
#include "norvik/grammar/estadoAutomata.hpp"
#include "norvik/grammar/opcionesTabla.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::inline v0_2::clasico {
struct Pendientes;
}

namespace norvik::inline v0_2 {

struct GramaticaLR;
class ReglasPartidas;
class pilaTokens;
class Sistema;

/// La gramática de un lenguaje y lo que sale de ella, por pasos que se pueden dar uno a uno: reglas,
/// conjuntos de primeros, de siguientes y de predicción, autómata LR(0) y tabla SLR. Las reglas cuentan
/// desde 1. Un símbolo que empieza por una letra de la A a la Z es una variable (un no terminal); otro que no
/// sea Ø, un token (un terminal).
///
/// Un anfitrión toma la de su control (`Norvik::Gramatica`), carga y genera con las llamadas del control, y
/// con ella mira, informa y escribe módulos. Varios hilos pueden llamar a la vez a lo que es `const`, si
/// ninguno llama a lo demás.
class NORVIK_API gramatica {
public:
    static constexpr std::int16_t aceptar = 1000;      ///< la entrada de la tabla que acepta
    static constexpr std::int16_t maximoReglas = 1000; ///< mil

    /// Sin reglas ni tabla.
    gramatica();
    // Views into the rules, and references to the sets, are handed out and kept.
    gramatica(const gramatica&) = delete;
    gramatica& operator=(const gramatica&) = delete;
    ~gramatica();

    /// Con qué método se hacen conjuntos, autómata y tabla; no cambia los que ya estén hechos. El clásico,
    /// mientras no se ponga otro; `inicializaGramatica` vuelve a él.
    void ponMetodo(Metodo metodo) { opciones_.metodo = metodo; }
    Metodo metodo() const { return opciones_.metodo; }
    const OpcionesTabla& opciones() const { return opciones_; }
    /// Lo mismo de lo que resuelve conflictos; `inicializaGramatica` lo quita.
    void ponPrecedencias(Precedencias precedencias) { opciones_.precedencias = std::move(precedencias); }

    /// Los valores de que es la cara: reglas, conjuntos, autómata y tabla.
    const GramaticaLR& valores() const { return *valores_; }

    /// Con lo que se dejan a medias `creaConjuntos`, `creaAutomata` y `creaTablaSLR`, que lanzan entonces
    /// `OperacionCancelada`.
    std::stop_token cancelacion;

    /// Recibe un texto, no hace nada y da uno vacío.
    std::u16string compila(std::u16string_view texto) const;

    /// @name Reglas y símbolos
    /// Un número de regla que no está entre 1 y 1000 lanza `SubindiceFueraDeIntervalo`; una sin usar es "".
    /// @{

    /// Olvida reglas, símbolos, conjuntos y autómata; la tabla se queda.
    void inicializaGramatica();
    /// Toma las reglas de otra y nada más; la tabla se queda.
    void copiaReglas(const gramatica& otra);
    /// Intercambia todo lo que tienen dos gramáticas.
    void intercambia(gramatica& otra);
    /// Guarda una regla por cada alternativa del cuerpo, separadas por «|»; el código no tiene efecto. Lanza
    /// `SubindiceFueraDeIntervalo` en la regla 1001, con las anteriores guardadas.
    void SetRegla(std::u16string_view cabeza, std::u16string_view cuerpo, std::int16_t codigo = 0);
    /// Añade un símbolo a la tabla, en el orden de las columnas; el texto vacío no añade nada.
    void SetSimbolo(std::u16string_view simbolo);
    /// Cabeza y cuerpo de una regla, sin blancos alrededor; valen mientras no cambien las reglas.
    std::u16string_view GetLeftRegla(std::int16_t regla) const;
    std::u16string_view GetRightRegla(std::int16_t regla) const;
    /// Cuántas hay.
    std::int16_t getNumReglas() const;
    /// Cuántos símbolos tiene el cuerpo; una Ø al final no cuenta.
    std::int16_t GetNumElementosRegla(std::int16_t regla) const;
    /// El símbolo de un lugar del cuerpo, desde 0; delante del primero da el primero y detrás del último, el
    /// último.
    std::u16string GetElementoRegla(std::int16_t regla, std::int16_t posicion) const;
    /// Cuántos símbolos tiene la tabla.
    std::int16_t GetNumSimbolos() const;
    /// Columna de un token, desde 0 («EOF» es «$»); -1 si no la tiene.
    std::int16_t GetCodigoToken(std::u16string_view token) const;
    /// Columna de la cabeza de una regla, desde 0; -1 si no la tiene.
    std::int16_t GetCodigoVariable(std::int16_t regla) const;
    /// Un texto vacío si toda variable de un cuerpo tiene una regla; si no, el mensaje que lo dice.
    std::u16string chequeaGramatica();
    std::u16string chequeaGramatica() const;
    /// Posición de un símbolo en el texto de un cuerpo, desde 1; 0 si no está. El último de un cuerpo no se
    /// encuentra cuando otro anterior, que no sea el primero, empieza igual.
    static std::int16_t estaEnRegla(std::u16string_view cuerpo, std::u16string_view simbolo);
    /// Un cuerpo con un punto delante del símbolo de un lugar, desde 0.
    static std::u16string dameReglaString(std::u16string_view cuerpo, std::int16_t punto);

    /// Es otro número cada vez que pueden haber cambiado las reglas, los símbolos o la tabla.
    std::uint64_t edicion() const { return edicion_; }
    /// Los tokens, las variables y todos los símbolos de la tabla, en el orden de sus columnas.
    const conjunto& terminales() const;
    const conjunto& variables() const;
    const conjunto& simbolos() const;

    /// @}

    /// @name Primeros, siguientes y predicción
    /// @{

    /// Olvida conjuntos, símbolos y autómata.
    void inicializaConjuntos();
    /// Hace todos los conjuntos. Lanza `SubindiceFueraDeIntervalo` si los siguientes necesitan una variable
    /// sin reglas, y no queda ninguno.
    void creaConjuntos();
    /// Añade a un conjunto los primeros de una cadena de símbolos, por cuenta de una regla (0, de ninguna).
    /// Lanza `SubindiceFueraDeIntervalo` con una regla que no hay y `Desbordamiento` si su recursión no
    /// acaba.
    void creaPrimeros(std::u16string_view cadena, conjunto& conj, bool recursivo, std::int16_t regla);
    /// Añade los siguientes de una variable; una llamada recursiva toma un conjunto acabado como está.
    void creaSiguientes(std::u16string_view variable, conjunto& conj, bool recursivo);
    /// Si una regla de esta cabeza empieza por Ø.
    bool contieneCadenaVacia(std::u16string_view variable) const;
    /// Si falta el conjunto de este nombre.
    bool estaPendientePrimeros(std::u16string_view nombre) const;
    bool estaPendienteSiguientes(std::u16string_view nombre) const;
    /// Lugar del primer conjunto de este nombre, desde 1; 0 si no hay.
    std::int16_t numItemPrimeros(std::u16string_view nombre) const;
    std::int16_t numItemSiguientes(std::u16string_view nombre) const;
    /// Si queda alguno sin acabar.
    bool quedanPrimerosPendientes() const;
    bool quedanSiguientesPendientes() const;

    /// Los conjuntos, con sus textos. Las referencias valen hasta que los conjuntos cambien: ninguna otra
    /// llamada las toca.
    const std::vector<conjunto>& primeros() const { return conTextos().primeros; }
    const std::vector<conjunto>& siguientes() const { return conTextos().siguientes; }
    /// Uno por regla.
    const std::vector<conjunto>& predict() const { return conTextos().predict; }

    /// @}

    /// @name Autómata
    /// @{

    /// Hace el autómata. Lanza `Desbordamiento` en el estado mil, o cuando el método es LR(1) y pasan tres
    /// segundos, y `SubindiceFueraDeIntervalo` en el elemento 1001 de un estado; no quedan entonces ni
    /// autómata ni tabla.
    void creaAutomata();
    /// Añade a un estado los elementos de las reglas de una variable, con el punto al principio.
    void aniadeReglaAEstado(std::u16string_view variable, estadoAutomata& estado) const;
    /// Añade a un estado un núcleo y lo que se sigue de él.
    void aniadeReglasImplicitasAEstado(const Nucleo& nucleo, estadoAutomata& estado) const;
    /// Añade a la lista un estado y todos aquellos a que se llega desde él. Lanza como `creaAutomata`.
    void construyeTransiciones(const estadoAutomata& estado);
    /// Número del primer estado de la lista que contiene un núcleo, -1 si no hay.
    std::int16_t existeEstadoCon(const Nucleo& nucleo) const;
    /// El símbolo que sigue al punto de un elemento, que cuenta desde 1.
    std::u16string dameSimboloSiguiente(const estadoAutomata& estado, std::int16_t item) const;
    /// Los estados, en su orden; la referencia vale hasta que el autómata cambie.
    const std::vector<estadoAutomata>& estadosAutomata() const;

    /// @}

    /// @name Tabla
    /// @{

    /// Hace la tabla de las reglas, el autómata y los siguientes. Lanza `SubindiceFueraDeIntervalo` si una Ø
    /// está junto a otros símbolos, que no tiene columna; no queda entonces ninguna tabla.
    void creaTablaSLR();
    /// Una entrada: 0 es error, 1000 aceptar, n > 0 desplazar al estado n y n < 0 reducir por la regla -n.
    /// Estado y columna desde 0; lanza `SubindiceFueraDeIntervalo`.
    std::int16_t GetElementoTablaSLR(std::int16_t estado, std::int16_t columna) const;
    /// Las entradas guardadas de un estado, desde 0, por columna; las que falten las da
    /// `GetElementoTablaSLR`.
    std::span<const std::int16_t> GetFilaTablaSLR(std::int16_t estado) const;
    /// Una tabla nueva, toda de ceros y sin conflictos. Lanza `SubindiceFueraDeIntervalo` con números
    /// negativos.
    void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas);
    /// Pone una entrada; fila y columna desde 1. Lanza `SubindiceFueraDeIntervalo`, y `Desbordamiento` si la
    /// tabla pasa de 2^25 celdas.
    void SetElementoTablaSLR(std::int16_t fila, std::int16_t columna, std::int16_t valor);
    /// Pone muchas, hasta la primera que lanzaría; da cuántas ha puesto.
    std::size_t SetElementosTablaSLR(std::span<const CeldaSLR> celdas);
    /// Filas y columnas que tiene.
    std::int16_t GetDimensionFilasSLR() const;
    std::int16_t GetDimensionColumnasSLR() const;
    /// La regla que perdió el conflicto de una celda (fila y columna desde 1); 0 si no lo hubo o la tabla se
    /// cargó.
    std::int16_t conflicto(std::int16_t fila, std::int16_t columna) const;
    /// Los tokens que caben en un estado, desde 0, como los nombra el analizador léxico.
    std::u16string toStringEsperados(std::int16_t estado, const pilaTokens& lexico) const;

    /// @}

    /// @name Informe
    /// @{

    /// El mensaje de los conflictos, y lo mismo en una caja de mensaje de título «Conflictos».
    std::u16string textoProblemas() const;
    void MuestraProblemas(Sistema& sistema) const;
    /// El informe: en trozos de líneas enteras, como un texto y en el fichero «informeGramatica.txt» de una
    /// carpeta. Lo último lanza `ErrorDeFichero`.
    void escribeInforme(const SumideroDeTexto& sumidero) const;
    std::u16string textoInforme() const;
    void GuardaInforme(const std::filesystem::path& carpeta) const;
    /// Lo que enseña una ventana de informe: las reglas y los conjuntos; el autómata; encabezado y celdas de
    /// la tabla (desde 1).
    std::u16string textoInformeGeneral() const;
    std::u16string textoAutomata() const;
    std::u16string_view encabezadoColumna(std::int16_t columna) const;
    std::u16string celdaTabla(std::int16_t fila, std::int16_t columna) const;
    /// Filas y columnas de la tabla a que los símbolos dan uso.
    std::int16_t filasVigentes() const;
    std::int16_t columnasVigentes() const;
    /// Si una celda, desde 1, enseña un conflicto.
    bool enConflicto(std::int16_t fila, std::int16_t columna) const;

    /// @}

    /// @name Módulo de carga
    /// El léxico es el del mismo control (`Norvik::Lexico`). Lanzan `ArgumentoNoValido` con un nombre que no
    /// es un identificador o es una palabra reservada del lenguaje del módulo; los que escriben un fichero,
    /// también `ErrorDeFichero`.
    /// @{

    /// El módulo que lee `CargaModulo`: en trozos de líneas enteras, como un texto y en el fichero
    /// `nombre`.bas de una carpeta.
    void escribeModulo(std::u16string_view nombre, const pilaTokens& lexico,
                       const SumideroDeTexto& sumidero) const;
    std::u16string textoModulo(std::u16string_view nombre, const pilaTokens& lexico) const;
    void GuardaModuloGramatica(std::u16string_view nombre, const pilaTokens& lexico,
                               const std::filesystem::path& carpeta) const;
    /// La cabecera de C++: el lenguaje como constantes (`DatosLenguaje`), enumeraciones de sus tokens,
    /// variables y reglas, y las funciones `lenguaje()` y `CargaLenguaje(control)`, todo en el espacio
    /// `nombre`. Lo mismo, y en el fichero `nombre`.hpp.
    void escribeModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                          const SumideroDeTexto& sumidero) const;
    std::u16string textoModuloCpp(std::u16string_view nombre, const pilaTokens& lexico) const;
    void GuardaModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                         const std::filesystem::path& carpeta) const;

    /// @}

private:
    struct ConjuntosConTextos {
        std::vector<conjunto> primeros;
        std::vector<conjunto> siguientes;
        std::vector<conjunto> predict;
    };

    /// Rules or symbols change.
    void cambia() { ++edicion_; }
    /// The rules split, up to date.
    const ReglasPartidas& partidas();
    void olvidaGenerado();
    const ConjuntosConTextos& conTextos() const;

    std::unique_ptr<GramaticaLR> valores_; // `partidas` may lack the last rules
    std::unique_ptr<clasico::Pendientes> pendientes_;
    OpcionesTabla opciones_;
    std::int16_t numEstados_ = 0;
    std::uint64_t edicion_ = 0;
    // Made when they are first asked for: no table needs them. Several readers may be the first.
    mutable std::optional<ConjuntosConTextos> conTextos_;
    mutable std::mutex haciendoTextos_;
};

} // namespace norvik::inline v0_2
