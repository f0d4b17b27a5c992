// SPDX-License-Identifier: MIT

#include "norvik/base/errores.hpp"

#include "norvik/base/palabras.hpp"
#include "norvik/base/texto.hpp"

namespace norvik::inline v0_2 {

namespace {

std::u16string textoDeIntervalo(std::u16string_view fallo, std::u16string_view que, std::int64_t valor,
                                std::int64_t primero, std::int64_t ultimo) {
    std::u16string texto(fallo);
    texto.append(u": ").append(que).append(u" ").append(aTexto(valor));
    if (ultimo < primero) return texto + u", y no hay nada";
    return texto + u" no está entre " + aTexto(primero) + u" y " + aTexto(ultimo);
}

} // namespace

ErrorNorvik::ErrorNorvik(std::u16string_view texto) : std::runtime_error(aUtf8(texto)), texto_(texto) {}
Desbordamiento::Desbordamiento(std::u16string_view texto) : ErrorNorvik(texto) {}
Desbordamiento::Desbordamiento(std::u16string_view que, std::int64_t valor, std::int64_t primero,
                               std::int64_t ultimo)
    : ErrorNorvik(textoDeIntervalo(u"Desbordamiento", que, valor, primero, ultimo)) {}
TextoDemasiadoLargo::TextoDemasiadoLargo()
    : Desbordamiento(u"Desbordamiento: el texto pasa de " + aTexto(maximoTexto) + u" caracteres") {}
BusquedaDesbocada::BusquedaDesbocada()
    : Desbordamiento(u"La búsqueda se ha desbocado: su patrón necesita demasiado tiempo o memoria con este "
                     u"texto.") {}
BusquedaDesbocada::BusquedaDesbocada(std::u16string_view definicion)
    : Desbordamiento(palabras::busquedaDesbocada(definicion)), definicion_(definicion) {}
OperacionCancelada::OperacionCancelada() : ErrorNorvik(u"La operación se ha cancelado") {}
SubindiceFueraDeIntervalo::SubindiceFueraDeIntervalo(std::u16string_view texto) : ErrorNorvik(texto) {}
SubindiceFueraDeIntervalo::SubindiceFueraDeIntervalo(std::u16string_view que, std::int64_t valor,
                                                     std::int64_t primero, std::int64_t ultimo)
    : ErrorNorvik(textoDeIntervalo(u"Subíndice fuera de intervalo", que, valor, primero, ultimo)) {}
IndiceNoValido::IndiceNoValido(std::u16string_view texto) : ErrorNorvik(texto) {}
NoCoincidenLosTipos::NoCoincidenLosTipos(std::u16string_view texto) : ErrorNorvik(texto) {}
ArgumentoNoValido::ArgumentoNoValido(std::u16string_view texto) : ErrorNorvik(texto) {}
ErrorDeFichero::ErrorDeFichero(std::u16string_view texto) : ErrorNorvik(texto) {}

} // namespace norvik::inline v0_2
