// SPDX-License-Identifier: MIT

#include "norvik/control/propiedades.hpp"

#include "norvik/control/ranurasDisenio.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace norvik::inline v0_2 {

void Propiedades::construye() {
    constexpr std::int32_t margenEnPixeles = 8192; // lines are never wrapped
    caja_->ponFuente(Fuente{});
    caja_->ponMargenDerecho(contenedor_->medidas().pixelX * margenEnPixeles);
    lexico_.autoNumber = true;
    lexico_.ColorComentarios = 0x008000;
    lexico_.ColorError = 0x0000FF;
    lexico_.ColorNumeros = 0x808000;
    lexico_.ColorOperadores = 0x000080;
    lexico_.colorPalabrasReservadas = 0x800000;
    lexico_.ColorEtiquetas = 0xFF8080;
    caja_->ponOcultaSeleccion(true);
    opciones_.hideSelection = caja_->ocultaSeleccion();
    ponLeftBorderVisible(true);
}

void Propiedades::ponBorde3D(bool valor) {
    if (valor == opciones_.borde3D) return;
    contenedor_->muestraMarco(valor);
    opciones_.borde3D = valor;
    contenedor_->cambioDePropiedad(u"Borde3D");
    colocacion_.colocaControles();
}

void Propiedades::ponLeftBorderVisible(bool valor) {
    contenedor_->muestraBordeIzquierdo(valor);
    opciones_.leftBorderVisible = valor;
    colocacion_.colocaControles();
    contenedor_->cambioDePropiedad(u"LeftBorderVisible");
}

void Propiedades::ponMargenIzquierdo(std::int16_t valor) {
    if (valor == opciones_.margenIzquierdo) return;
    opciones_.margenIzquierdo = valor;
    colocacion_.colocaControles();
    contenedor_->cambioDePropiedad(u"MargenIzquierdo");
}

void Propiedades::ponHideSelection(bool valor) {
    if (valor == opciones_.hideSelection) return;
    opciones_.hideSelection = valor;
    caja_->ponOcultaSeleccion(valor);
    contenedor_->cambioDePropiedad(u"HideSelection");
}

void Propiedades::ponText(std::u16string_view texto) {
    if (texto == caja_->texto()) return;
    caja_->ponTexto(texto);
    contenedor_->cambioDePropiedad(u"Text");
}

// --- Font ---

template <typename Tipo>
void Propiedades::ponAtributo(Tipo Fuente::*atributo, const Tipo& valor) {
    Fuente fuente = caja_->fuente();
    fuente.*atributo = valor;
    caja_->ponFuente(fuente);
}

template <typename Tipo>
void Propiedades::copiaAtributo(const Fuente& fuente, Tipo Fuente::*atributo, std::u16string_view nombre) {
    if (caja_->fuente().*atributo == fuente.*atributo) return;
    ponAtributo(atributo, fuente.*atributo);
    contenedor_->cambioDePropiedad(nombre);
}

void Propiedades::ponFont(const Fuente& fuente) {
    const TextoOculto oculto(colocacion_);
    copiaAtributo(fuente, &Fuente::negrita, u"FontBold");
    copiaAtributo(fuente, &Fuente::juegoCaracteres, u"FontCharset");
    copiaAtributo(fuente, &Fuente::cursiva, u"FontItalic");
    copiaAtributo(fuente, &Fuente::nombre, u"FontName");
    copiaAtributo(fuente, &Fuente::tamano, u"FontSize");
    copiaAtributo(fuente, &Fuente::tachado, u"FontStrikethrough");
    copiaAtributo(fuente, &Fuente::subrayado, u"FontUnderline");
    copiaAtributo(fuente, &Fuente::peso, u"FontWeight");
}

// --- Design time ---

void Propiedades::cedeARanuras() const {
    ranurasDisenio() = {opciones_.contenidoG, opciones_.codigoPrueba, opciones_.pendienteGuardarG};
}

void Propiedades::tomaDeRanuras() {
    RanurasDisenio& ranuras = ranurasDisenio();
    opciones_.contenidoG = std::exchange(ranuras.especificacion, {});
    contenedor_->cambioDePropiedad(u"ContenidoG");
    opciones_.codigoPrueba = std::exchange(ranuras.textoPrueba, {});
    contenedor_->cambioDePropiedad(u"ContenidoG");
    contenedor_->cambioDePropiedad(u"CodigoPrueba");
    opciones_.pendienteGuardarG = ranuras.pendienteGuardar;
    contenedor_->cambioDePropiedad(u"pendienteGuardarG");
}

// --- Restoring, in the order of the keys ---

bool Propiedades::esClave(std::u16string_view clave) {
    static constexpr std::array<std::u16string_view, 35> claves = {
        u"AutoCorreccion",   u"AutoNumero",
        u"AutoTAB",          u"Borde3D",
        u"ColorCadena",      u"ColorCaracter",
        u"ColorComentarios", u"Colorear",
        u"ColorEtiquetas",   u"ColorError",
        u"ColorFechas",      u"ColorNumeros",
        u"ColorOperadores",  u"ColorPR",
        u"EspaciosXTAB",     u"Font",
        u"FontBold",         u"FontCharset",
        u"FontItalic",       u"FontName",
        u"FontSize",         u"FontStrikethrough",
        u"FontUnderline",    u"FontWeight",
        u"HideSelection",    u"LeftBorderVisible",
        u"LenguajeSensible", u"MarcarErrores",
        u"MargenIzquierdo",  u"MuestraMensajesDeError",
        u"NombreLenguaje",   u"Text",
        u"ContenidoG",       u"CodigoPrueba",
        u"pendienteGuardarG"};
    return std::ranges::find(claves, clave) != claves.end();
}

void Propiedades::restaura(const BolsaPropiedades& bolsa) {
    pon(opciones_.autoCorreccion, bolsa.leeBooleano(u"AutoCorreccion", false), u"AutoCorreccion");
    pon(lexico_.autoNumber, bolsa.leeBooleano(u"AutoNumero", true), u"AutoNumero");
    opciones_.autoTAB = bolsa.leeBooleano(u"AutoTAB", true);
    opciones_.borde3D = bolsa.leeBooleano(u"Borde3D", true);
    contenedor_->muestraMarco(opciones_.borde3D);
    restauraColores(bolsa);
    opciones_.espaciosXTAB = bolsa.lee16(u"EspaciosXTAB", 4);
    restauraFuente(bolsa);
    restauraAspecto(bolsa);
    restauraTextos(bolsa);
}

void Propiedades::restauraColores(const BolsaPropiedades& bolsa) {
    lexico_.ColorCadena = bolsa.lee32(u"ColorCadena", 0);
    lexico_.ColorCaracter = bolsa.lee32(u"ColorCaracter", 0);
    lexico_.ColorComentarios = bolsa.lee32(u"ColorComentarios", 0x008000);
    opciones_.colorear = bolsa.leeBooleano(u"Colorear", true);
    lexico_.ColorEtiquetas = bolsa.lee32(u"ColorEtiquetas", 0xFF8080);
    lexico_.ColorError = bolsa.lee32(u"ColorError", 0x0000FF);
    lexico_.ColorFechas = bolsa.lee32(u"ColorFechas", 0);
    lexico_.ColorNumeros = bolsa.lee32(u"ColorNumeros", 0);
    lexico_.ColorOperadores = bolsa.lee32(u"ColorOperadores", 0x000080);
    lexico_.colorPalabrasReservadas = bolsa.lee32(u"ColorPR", 0x800000);
}

void Propiedades::restauraFuente(const BolsaPropiedades& bolsa) {
    const Fuente omision;
    ponAtributo(&Fuente::negrita, bolsa.leeBooleano(u"FontBold", omision.negrita));
    ponAtributo(&Fuente::juegoCaracteres, bolsa.lee16(u"FontCharset", omision.juegoCaracteres));
    ponAtributo(&Fuente::cursiva, bolsa.leeBooleano(u"FontItalic", omision.cursiva));
    ponAtributo(&Fuente::nombre, bolsa.leeTexto(u"FontName", omision.nombre));
    ponAtributo(&Fuente::tamano, bolsa.leeDecimal(u"FontSize", omision.tamano));
    ponAtributo(&Fuente::tachado, bolsa.leeBooleano(u"FontStrikethrough", omision.tachado));
    ponAtributo(&Fuente::subrayado, bolsa.leeBooleano(u"FontUnderline", omision.subrayado));
    ponAtributo(&Fuente::peso, bolsa.lee16(u"FontWeight", omision.peso));
}

void Propiedades::restauraAspecto(const BolsaPropiedades& bolsa) {
    caja_->ponOcultaSeleccion(bolsa.leeBooleano(u"HideSelection", true));
    opciones_.hideSelection = caja_->ocultaSeleccion();
    ponLeftBorderVisible(bolsa.leeBooleano(u"LeftBorderVisible", true));
    pon(opciones_.lenguajeSensible, bolsa.leeBooleano(u"LenguajeSensible", false), u"LenguajeSensible");
    opciones_.marcarErrores = bolsa.leeBooleano(u"MarcarErrores", false);
    opciones_.margenIzquierdo = bolsa.lee16(u"MargenIzquierdo", 150);
    opciones_.muestraMensajesDeError = bolsa.leeBooleano(u"MuestraMensajesDeError", true);
}

void Propiedades::restauraTextos(const BolsaPropiedades& bolsa) {
    opciones_.nombreLenguaje = bolsa.leeTexto(u"NombreLenguaje", {});
    caja_->ponTexto(bolsa.leeTexto(u"Text", {}));
    colocacion_.colocaControles();
    opciones_.contenidoG = bolsa.leeTexto(u"ContenidoG", {});
    opciones_.codigoPrueba = bolsa.leeTexto(u"CodigoPrueba", {});
    opciones_.pendienteGuardarG = bolsa.leeBooleano(u"pendienteGuardarG", false);
}

// --- Saving, in the order of the keys ---

void Propiedades::guarda(BolsaPropiedades& bolsa) const {
    bolsa.escribeBooleano(u"AutoCorreccion", opciones_.autoCorreccion, false);
    bolsa.escribeBooleano(u"AutoNumero", lexico_.autoNumber, true);
    bolsa.escribeBooleano(u"AutoTAB", opciones_.autoTAB, true);
    bolsa.escribeBooleano(u"Borde3D", opciones_.borde3D, true);
    guardaColores(bolsa);
    bolsa.escribeEntero(u"EspaciosXTAB", opciones_.espaciosXTAB, 4);
    guardaFuente(bolsa);
    bolsa.escribeBooleano(u"HideSelection", opciones_.hideSelection, true);
    bolsa.escribeBooleano(u"LeftBorderVisible", opciones_.leftBorderVisible, true);
    bolsa.escribeBooleano(u"LenguajeSensible", opciones_.lenguajeSensible, false);
    bolsa.escribeBooleano(u"MarcarErrores", opciones_.marcarErrores, false);
    bolsa.escribeEntero(u"MargenIzquierdo", opciones_.margenIzquierdo, 150);
    bolsa.escribeBooleano(u"MuestraMensajesDeError", opciones_.muestraMensajesDeError, true);
    bolsa.escribeTexto(u"NombreLenguaje", opciones_.nombreLenguaje, {});
    bolsa.escribeTexto(u"CodigoPrueba", opciones_.codigoPrueba, {});
    bolsa.escribeTexto(u"ContenidoG", opciones_.contenidoG, {});
}

void Propiedades::guardaColores(BolsaPropiedades& bolsa) const {
    bolsa.escribeEntero(u"ColorComentarios", lexico_.ColorComentarios, 0x008000);
    bolsa.escribeBooleano(u"Colorear", opciones_.colorear, true);
    bolsa.escribeEntero(u"ColorEtiquetas", lexico_.ColorEtiquetas, 0xFF8080);
    bolsa.escribeEntero(u"ColorError", lexico_.ColorError, 0x0000FF);
    bolsa.escribeEntero(u"ColorNumeros", lexico_.ColorNumeros, 0);
    bolsa.escribeEntero(u"ColorOperadores", lexico_.ColorOperadores, 0x000080);
    bolsa.escribeEntero(u"ColorPR", lexico_.colorPalabrasReservadas, 0x800000);
    bolsa.escribeEntero(u"ColorCadena", lexico_.ColorCadena, 0);
    bolsa.escribeEntero(u"ColorCaracter", lexico_.ColorCaracter, 0);
    bolsa.escribeEntero(u"ColorFechas", lexico_.ColorFechas, 0);
}

void Propiedades::guardaFuente(BolsaPropiedades& bolsa) const {
    const Fuente& fuente = caja_->fuente();
    const Fuente omision;
    bolsa.escribeBooleano(u"FontBold", fuente.negrita, omision.negrita);
    bolsa.escribeEntero(u"FontCharset", fuente.juegoCaracteres, omision.juegoCaracteres);
    bolsa.escribeBooleano(u"FontItalic", fuente.cursiva, omision.cursiva);
    bolsa.escribeTexto(u"FontName", fuente.nombre, omision.nombre);
    bolsa.escribeDecimal(u"FontSize", fuente.tamano, omision.tamano);
    bolsa.escribeBooleano(u"FontStrikethrough", fuente.tachado, omision.tachado);
    bolsa.escribeBooleano(u"FontUnderline", fuente.subrayado, omision.subrayado);
    bolsa.escribeEntero(u"FontWeight", fuente.peso, omision.peso);
    bolsa.escribeFuente(u"Font", fuente, omision);
}

} // namespace norvik::inline v0_2
