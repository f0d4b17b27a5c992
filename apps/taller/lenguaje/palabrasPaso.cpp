// SPDX-License-Identifier: MIT

#include "palabrasPaso.hpp"

#include "palabrasLR.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/conflictosDeTabla.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <algorithm>
#include <vector>

namespace norvik::taller {

namespace {

using Tipo = AccionLR::Tipo;

constexpr std::size_t maximoLexema = 40;

QString elToken(const Pelicula::Siguiente& token) {
    if (token.nombre == tokenFin) return QStringLiteral("el final del texto");
    const QString texto = QStringLiteral("«%1»").arg(enUnaLinea(token.texto, maximoLexema));
    if (token.nombre.empty()) return QStringLiteral("el carácter ") + texto;
    return token.nombre == token.texto ? texto : QStringLiteral("%1 (%2)").arg(texto, aQString(token.nombre));
}

QString quita(std::size_t entradas) {
    if (entradas == 0) return QStringLiteral("no quita nada de la pila");
    if (entradas == 1) return QStringLiteral("quita 1 entrada de la pila");
    return QStringLiteral("quita %1 entradas de la pila").arg(entradas);
}

// What a reduction does at a moment: whether it is the one that is done or one that might have been.
QString reduccion(const GramaticaLR& g, const Pelicula& pelicula, std::size_t momento, std::int16_t regla) {
    const auto pila = pelicula.pila(momento);
    const auto largo = static_cast<std::size_t>(std::max<int>(g.reglas.en(regla).elementos, 0));
    const std::int16_t debajo = pila[pila.size() - 1 - std::min(largo, pila.size() - 1)].estado;
    const std::u16string_view cabeza = recorta(g.reglas.en(regla).cabeza);
    const std::int16_t codigo = g.tabla.codigo(cabeza);
    const std::int16_t estado = codigo < 0 ? std::int16_t{0} : g.tabla.entrada(debajo, codigo);
    const QString adonde = estado == 0
                               ? QStringLiteral("la tabla no tiene adónde ir con %1").arg(aQString(cabeza))
                               : QStringLiteral("con %1 pasa al estado %2").arg(aQString(cabeza)).arg(estado);
    return QStringLiteral("reduce por la regla %1: %2, queda a la vista el estado %3, y %4")
        .arg(aQString(palabrasDeRegla(g, regla)), quita(largo))
        .arg(debajo)
        .arg(adonde);
}

QString falla(const Estudio& estudio, const Pelicula& pelicula, std::size_t momento) {
    const AccionLR accion = pelicula.accion(momento);
    if (accion.regla != 0)
        return reduccion(*estudio.gramatica(), pelicula, momento, accion.regla) + QStringLiteral(". Error");
    QString texto = QStringLiteral("error");
    if (!estudio.analisis.diagnosticos.empty())
        texto += QStringLiteral(". %1").arg(aQString(mensaje(estudio.analisis.diagnosticos.front())));
    return texto;
}

QString accionEnPalabras(const Estudio& estudio, const Pelicula& pelicula, std::size_t momento) {
    const AccionLR accion = pelicula.accion(momento);
    switch (accion.tipo) {
    case Tipo::Desplaza:
        return QStringLiteral("desplaza: lo pone en la pila y pasa al estado %1").arg(accion.estado);
    case Tipo::Reduce:
        return reduccion(*estudio.gramatica(), pelicula, momento, accion.regla);
    case Tipo::Acepta:
        return QStringLiteral("acepta: el texto es del lenguaje");
    case Tipo::Falla:
        return falla(estudio, pelicula, momento);
    }
    return {};
}

QString porque(Tipo tipo, Metodo metodo) {
    if (tipo == Tipo::Desplaza) return QStringLiteral("Entre desplazar y reducir la tabla desplaza.");
    if (tipo == Tipo::Acepta) return QStringLiteral("Entre aceptar y reducir la tabla acepta.");
    if (metodo == Metodo::Clasico)
        return QStringLiteral("Entre dos reducciones la tabla se queda con la primera que encuentra.");
    return QStringLiteral("Entre dos reducciones la tabla se queda con la de la regla anterior.");
}

} // namespace

QString enUnaLinea(std::u16string_view texto, std::size_t maximo) {
    const bool corta = texto.size() > maximo;
    const QString linea = aQString(texto.substr(0, maximo)).simplified();
    return corta ? linea + u'…' : linea;
}

QString palabrasDePaso(const Estudio& estudio, const Pelicula& pelicula, std::size_t momento) {
    const QString texto =
        QStringLiteral("En el estado %1, ante %2: %3")
            .arg(pelicula.estado(momento))
            .arg(elToken(pelicula.siguiente(momento)), accionEnPalabras(estudio, pelicula, momento));
    return texto.endsWith(u'.') ? texto : texto + u'.';
}

QString palabrasDeConflicto(const Estudio& estudio, const Pelicula& pelicula, std::size_t momento) {
    const GramaticaLR& g = *estudio.gramatica();
    const auto perdidas =
        conflictosEn(estudio.deLenguaje->conflictos, static_cast<std::int16_t>(pelicula.estado(momento) + 1),
                     static_cast<std::int16_t>(pelicula.siguiente(momento).codigo + 1));
    if (perdidas.empty()) return {};
    QString texto = QStringLiteral("Conflicto. ") +
                    porque(pelicula.accion(momento).tipo, estudio.deLenguaje->opciones().metodo);
    for (const Conflicto& perdida : perdidas)
        texto += QStringLiteral(" La otra acción: %1.").arg(reduccion(g, pelicula, momento, perdida.regla));
    return texto;
}

} // namespace norvik::taller
