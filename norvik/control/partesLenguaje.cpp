// SPDX-License-Identifier: MIT

// Loading and compiling a language. Nothing of the control is half replaced when a receiver of its events
// runs: a specification is compiled without a word, and what there is to say is said with the new language in
// place; a table is generated apart from the grammar, which takes it over when it is whole. A receiver may
// read and parse meanwhile, but load nothing: the language that it meant would be lost or mixed.
#include "norvik/control/partesControl.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/generacion.hpp"
#include "norvik/control/guardas.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/spec/compiladorEspecificacion.hpp"
#include "norvik/spec/directivas.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"

#include <vector>

namespace norvik::inline v0_2 {

/// While it lives, nothing else is loaded or compiled.
class PartesControl::Carga {
public:
    explicit Carga(PartesControl& partes) : partes_(partes) {
        partes_.compruebaQueNadaCarga();
        partes_.cargando_ = true;
    }
    Carga(const Carga&) = delete;
    Carga& operator=(const Carga&) = delete;
    ~Carga() { partes_.cargando_ = false; }

private:
    PartesControl& partes_;
};

namespace {

/// Shows the busy pointer while it lives, then the normal one, of whatever there is by then.
class Ocupado {
public:
    explicit Ocupado(const Prestado<Sistema>& sistema) : sistema_(sistema) {
        sistema_->ponPuntero(Puntero::Ocupado);
    }
    Ocupado(const Ocupado&) = delete;
    Ocupado& operator=(const Ocupado&) = delete;
    ~Ocupado() { devuelvePuntero(*sistema_); }

private:
    const Prestado<Sistema>& sistema_;
};

/// A text in the invisible text while it lives.
class TextoPuesto {
public:
    TextoPuesto(TextoInvisible& invisible, std::u16string_view texto) : invisible_(invisible) {
        invisible_.ponTexto(texto);
    }
    TextoPuesto(const TextoPuesto&) = delete;
    TextoPuesto& operator=(const TextoPuesto&) = delete;
    ~TextoPuesto() { invisible_.vacia(); }

private:
    TextoInvisible& invisible_;
};

} // namespace

void PartesControl::compruebaQueNadaCarga() const {
    if (cargando_)
        throw ArgumentoNoValido(u"Argumento o llamada a procedimiento no válidos: el control está cargando o "
                                u"compilando un lenguaje, y no puede empezar con otro");
}

// --- Call by call ---

/// Of a definition: it is there, or its error is shown.
void PartesControl::alRegistrar(const std::u16string& mensaje) {
    const auto vivo = shared_from_this();
    if (mensaje.empty()) return avisaOtroLenguaje();
    const Carga carga(*this);
    sistema->muestraMensaje(
        {mensaje, u"Norvik: Error en especificación léxica", Icono::Exclamacion, Botones::Aceptar});
    compruebaQueSigue();
}

void PartesControl::avisaOtroLenguaje() const {
    contenedor->otroLenguaje();
    compruebaQueSigue();
}

void PartesControl::compruebaQueSigue() const {
    if (edicion.callada()) throw ErrorNorvik(u"El control se ha destruido mientras cargaba un lenguaje");
}

void PartesControl::SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken,
                          std::int16_t tipoToken, std::u16string_view pseudoToken, std::int32_t baseToken,
                          std::int32_t colorTexto) {
    compruebaQueNadaCarga();
    alRegistrar(lexico.SetER(expresion, nomER, esToken, opciones.lenguajeSensible, pseudoToken, tipoToken,
                             baseToken, colorTexto));
}

void PartesControl::SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int16_t tipoToken,
                              std::u16string_view pseudoToken, std::int32_t baseToken) {
    compruebaQueNadaCarga();
    const auto error = lexico.registraPatron(
        {patron, nomER, true, opciones.lenguajeSensible, pseudoToken, tipoToken, baseToken});
    alRegistrar(error ? mensaje(*error) : std::u16string());
}

void PartesControl::SetPalabraReservada(std::u16string_view lexema, std::u16string_view token,
                                        std::u16string_view pseudoToken) {
    compruebaQueNadaCarga();
    alRegistrar(lexico.SetPalabraReservada(lexema, token, opciones.lenguajeSensible, pseudoToken));
}

void PartesControl::SetOperador(std::u16string_view lexema, std::u16string_view token,
                                std::u16string_view pseudoToken) {
    compruebaQueNadaCarga();
    alRegistrar(lexico.SetOperador(lexema, token, opciones.lenguajeSensible, pseudoToken));
}

// --- Whole ---

bool PartesControl::CargaGramatica(std::u16string_view codGramatica) {
    const Carga carga(*this);
    contenedor->otroLenguaje();
    InstalaLenguajeEspecificacion(laGramatica, lexico, opciones.lenguajeSensible);
    const Ocupado ocupado(sistema);
    if (!analizaEspecificacion(codGramatica)) return false;
    laGramatica.inicializaGramatica();
    lexico.Inicializa();
    std::vector<Mensaje> mensajes;
    SistemaMemoria callado([&](const Mensaje& mensaje) { mensajes.push_back(mensaje); });
    PasosFirmes paso;
    paso([&] {
        CompilaArbolEspecificacion(conductor.GetArbolSintactico(), laGramatica, lexico, callado,
                                   leeDirectivas(codGramatica, Lugares::Unidad::Utf16));
    });
    bool correcta = false;
    if (!paso.haFallado()) {
        conductor.SetmensajeError(laGramatica.chequeaGramatica());
        correcta = conductor.GetmensajeError().empty();
    }
    for (const Mensaje& mensaje : mensajes) paso([&] { sistema->muestraMensaje(mensaje); });
    paso.acaba();
    return correcta;
}

bool PartesControl::analizaEspecificacion(std::u16string_view codGramatica) {
    const TextoPuesto puesto(lector.textoInvisible(), codGramatica);
    return conductor.ConstruyeArbolSintacticoTextoInvisible();
}

bool PartesControl::GeneraCompilador() {
    if (laGramatica.GetLeftRegla(1).empty()) return true;
    const Carga carga(*this);
    contenedor->otroLenguaje();
    const std::u16string mensaje = laGramatica.chequeaGramatica();
    if (!mensaje.empty()) {
        sistema->muestraMensaje(mensajeDeComprobacion(mensaje));
        return false;
    }
    {
        const Ocupado ocupado(sistema);
        generaTabla(laGramatica, [this]() -> Sistema& { return *sistema; });
    }
    sistema->procesaEventos();
    return true;
}

} // namespace norvik::inline v0_2
