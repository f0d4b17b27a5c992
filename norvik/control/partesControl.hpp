// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/ayudas.hpp"
#include "norvik/control/colocacion.hpp"
#include "norvik/control/coloreado.hpp"
#include "norvik/control/coloresAlDia.hpp"
#include "norvik/control/contenedor.hpp"
#include "norvik/control/edicion.hpp"
#include "norvik/control/eventosControl.hpp"
#include "norvik/control/historial.hpp"
#include "norvik/control/lenguajeDeAhora.hpp"
#include "norvik/control/lineasEditadas.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/control/propiedades.hpp"
#include "norvik/control/signosDelBorde.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/conductor.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// The parts of a control, and what it does in several steps. A receiver of its events may delete the
/// control: whoever carries out such steps holds the parts, which then go on for nobody, on a box and
/// services of their own, and raise no more events.
class PartesControl : public std::enable_shared_from_this<PartesControl> {
public:
    PartesControl(CajaTexto& suCaja, Sistema& suSistema, Contenedor& suContenedor);
    PartesControl(const PartesControl&) = delete;
    PartesControl& operator=(const PartesControl&) = delete;
    ~PartesControl() = default;

    /// Receives the box's events and those of the parser from now on.
    void conecta();
    /// The control goes, and perhaps what it was made with.
    void abandona();

    // Each says what it raises where the control offers it.
    bool CargaGramatica(std::u16string_view codGramatica);
    bool GeneraCompilador();
    void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken, std::int16_t tipoToken,
               std::u16string_view pseudoToken, std::int32_t baseToken, std::int32_t colorTexto);
    void SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int16_t tipoToken,
                   std::u16string_view pseudoToken, std::int32_t baseToken);
    void SetPalabraReservada(std::u16string_view lexema, std::u16string_view token,
                             std::u16string_view pseudoToken);
    void SetOperador(std::u16string_view lexema, std::u16string_view token, std::u16string_view pseudoToken);
    void MarcaErrorLinea(std::int16_t numLinea);
    void MarcaErrorLineaToken();
    void sustituye(std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo);
    void BorraTodo();
    void CargarFichero(const std::filesystem::path& nomFichero);
    void Imprimir() const;
    void clickEnSuperficie() const;
    void ponAyudas(const Ayudas& otras);
    /// Raises `ArgumentoNoValido` while a language is being loaded or compiled.
    void compruebaQueNadaCarga() const;
    /// Raises `ErrorNorvik` when a receiver has deleted the control: no call of its loading can follow.
    void compruebaQueSigue() const;
    /// Another language, in the middle of its loading. Raises likewise.
    void avisaOtroLenguaje() const;

    Prestado<CajaTexto> caja;
    Prestado<Sistema> sistema;
    Prestado<Contenedor> contenedor;
    EventosControl eventos;
    Opciones opciones;
    Ayudas ayudas;
    pilaTokens lexico;
    gramatica laGramatica;
    LenguajeDeAhora lenguaje;
    LectorTokens lector;
    ConductorSLR conductor;
    Colocacion colocacion;
    Propiedades propiedades;
    Coloreado coloreado;
    ColoresAlDia coloresAlDia;
    LineasEditadas lineas;
    SignosDelBorde signos;
    Historial historial;
    Edicion edicion;

private:
    class Carga;

    void alFallarElAnalisis(const Mensaje& mensaje);
    void alRegistrar(const std::u16string& mensaje);
    bool analizaEspecificacion(std::u16string_view codGramatica);

    bool cargando_ = false;
    CajaTexto cajaDeNadie_;
    SistemaMemoria sistemaDeNadie_{{}};
};

} // namespace norvik::inline v0_2
