// SPDX-License-Identifier: MIT

#include "palabrasEstado.hpp"

#include "palabrasLR.hpp"

#include "norvik/checks/conflictosDeTabla.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <algorithm>
#include <map>
#include <utility>

namespace norvik::taller {

namespace {

QString escapado(std::u16string_view texto) {
    return aQString(texto).toHtmlEscaped();
}

QString elToken(const GramaticaLR& g, std::int16_t columna) {
    return aQString(entreComillas(g.tabla.simbolo(columna)));
}

QString enlace(std::int16_t estado) {
    return QStringLiteral("<a href=\"%1\">estado %1</a>").arg(estado);
}

QString lista(const QString& titulo, const QStringList& lineas) {
    if (lineas.isEmpty()) return {};
    return QStringLiteral("<p><b>%1</b><br>%2</p>").arg(titulo, lineas.join(QStringLiteral("<br>")));
}

bool tieneRegla(const GramaticaLR& g, std::int16_t estado, std::int16_t regla) {
    return std::ranges::any_of(g.automata.estados[static_cast<std::size_t>(estado)].items(),
                               [&](const Item item) { return item.regla == regla; });
}

QStringList salidas(const GramaticaLR& g, const GrafoEstados& grafo, std::int16_t estado) {
    QStringList lineas;
    for (const Transicion& t : grafo.transiciones())
        if (t.desde == estado)
            lineas.append(
                QStringLiteral("con %1 → %2").arg(escapado(g.partidas.texto(t.simbolo)), enlace(t.hasta)));
    return lineas;
}

/// The rules by which a state reduces, each with the tokens before which it does.
QStringList reducciones(const GramaticaLR& g, std::int16_t estado) {
    std::map<std::int16_t, QStringList> tokens;
    for (std::int16_t columna = 1; columna <= g.tabla.columnasVigentes(); ++columna) {
        const std::int16_t celda = g.tabla.entrada(estado, static_cast<std::int16_t>(columna - 1));
        if (celda < 0) tokens[static_cast<std::int16_t>(-celda)].append(elToken(g, columna));
    }
    QStringList lineas;
    for (const auto& [regla, suyos] : tokens)
        lineas.append(
            QStringLiteral("por la regla %1, ante: %2")
                .arg(escapado(palabrasDeRegla(g, regla)), suyos.join(QStringLiteral(", ")).toHtmlEscaped()));
    return lineas;
}

QStringList conflictos(const LenguajeEstudiado& lenguaje, std::int16_t estado) {
    const GramaticaLR& g = *lenguaje.gramatica();
    QStringList lineas;
    for (const Conflicto& c : conflictosEn(lenguaje.conflictos, static_cast<std::int16_t>(estado + 1))) {
        const std::int16_t celda = g.tabla.entrada(estado, static_cast<std::int16_t>(c.columna - 1));
        const QString queda = celda == TablaLR::aceptar ? QStringLiteral("acepta")
                              : celda > 0
                                  ? QStringLiteral("desplaza y pasa al %1").arg(enlace(celda))
                                  : QStringLiteral("reduce por la regla %1")
                                        .arg(escapado(palabrasDeRegla(g, static_cast<std::int16_t>(-celda))));
        lineas.append(
            QStringLiteral("ante %1: %2; también cabía reducir por la regla %3")
                .arg(elToken(g, c.columna).toHtmlEscaped(), queda, escapado(palabrasDeRegla(g, c.regla))));
    }
    return lineas;
}

QString llegada(const GramaticaLR& g, const GrafoEstados& grafo, std::int16_t estado) {
    QString camino = QStringLiteral("0");
    for (const Transicion& t : grafo.camino(estado))
        camino += QStringLiteral(" –%1→ %2").arg(aQString(g.partidas.texto(t.simbolo))).arg(t.hasta);
    QStringList lineas(camino.toHtmlEscaped());
    if (const QString entrada = entradaDeEstado(grafo, estado); !entrada.isEmpty())
        lineas.append(entrada.toHtmlEscaped());
    return lista(QStringLiteral("Cómo se llega"), lineas);
}

/// As many states as a person goes through.
QString dondeEsta(const GramaticaLR& g, std::int16_t regla) {
    constexpr std::size_t caben = 12;
    if (regla == 0) return {};
    const auto estados = estadosConRegla(g, regla);
    QStringList enlaces;
    for (const std::int16_t estado : estados) {
        if (std::cmp_equal(enlaces.size(), caben)) break;
        enlaces.append(enlace(estado));
    }
    const QString otros =
        estados.size() > caben ? QStringLiteral(" y otros %1").arg(estados.size() - caben) : QString();
    return QStringLiteral("<p>La regla <b>%1</b> está en: %2%3</p>")
        .arg(escapado(palabrasDeRegla(g, regla)), enlaces.join(QStringLiteral(", ")), otros);
}

} // namespace

QStringList itemsEnHtml(const GramaticaLR& gramatica, std::int16_t estado, const ReglaResaltada& resaltada) {
    QStringList lineas;
    for (const Item item : gramatica.automata.estados[static_cast<std::size_t>(estado)].items()) {
        const bool resalta =
            item.regla == resaltada.regla && (!resaltada.punto || *resaltada.punto == item.punto);
        const QString linea = QStringLiteral("<a href=\"%1/%2/%3\">%4</a>")
                                  .arg(estado)
                                  .arg(item.regla)
                                  .arg(item.punto)
                                  .arg(escapado(palabrasDeItem(gramatica, item)));
        lineas.append(resalta ? QStringLiteral("<b>%1</b>").arg(linea) : linea);
    }
    return lineas;
}

std::vector<std::int16_t> estadosConRegla(const GramaticaLR& gramatica, std::int16_t regla) {
    std::vector<std::int16_t> estados;
    for (std::size_t e = 0; e < gramatica.automata.estados.size(); ++e)
        if (const auto estado = static_cast<std::int16_t>(e); tieneRegla(gramatica, estado, regla))
            estados.push_back(estado);
    return estados;
}

std::optional<Eleccion> eleccionDeEnlace(const QString& enlace) {
    std::vector<std::int16_t> numeros;
    for (const QString& parte : enlace.split(u'/')) {
        bool es = false;
        numeros.push_back(parte.toShort(&es));
        if (!es) return std::nullopt;
    }
    if (numeros.size() == 1) return DeEstado{numeros[0]};
    if (numeros.size() != 3) return std::nullopt;
    return DeItem{numeros[0], {numeros[1], numeros[2]}};
}

QStringList nucleoDe(const GramaticaLR& gramatica, std::int16_t estado) {
    QStringList lineas;
    for (const Item item : gramatica.automata.estados[static_cast<std::size_t>(estado)].items()) {
        const bool delComienzo =
            estado == 0 && gramatica.partidas.cabeza(item.regla) == gramatica.partidas.cabeza(1);
        if (item.punto > 0 || delComienzo) lineas.append(aQString(palabrasDeItem(gramatica, item)));
    }
    return lineas;
}

QString tituloDeEstado(const LenguajeEstudiado& lenguaje, std::int16_t estado) {
    const TablaLR& tabla = lenguaje.gramatica()->tabla;
    QString titulo = QStringLiteral("Estado %1").arg(estado);
    const std::int16_t fin = tabla.codigoFin();
    if (fin >= 0 && tabla.entrada(estado, fin) == TablaLR::aceptar) titulo += QStringLiteral(" acepta");
    if (!conflictosEn(lenguaje.conflictos, static_cast<std::int16_t>(estado + 1)).empty())
        titulo += QStringLiteral(" ⚠ conflicto");
    return titulo;
}

QString entradaDeEstado(const GrafoEstados& grafo, std::int16_t estado) {
    const auto tokens = grafo.entrada(estado);
    if (!tokens) return {};
    QStringList nombres;
    for (const std::u16string& token : *tokens) nombres.append(aQString(token));
    return QStringLiteral("La entrada más corta: %1")
        .arg(nombres.isEmpty() ? QStringLiteral("ninguna, es el estado del comienzo") : nombres.join(u' '));
}

QString estadoEnHtml(const LenguajeEstudiado& lenguaje, const GrafoEstados& grafo, std::int16_t estado,
                     const ReglaResaltada& resaltada) {
    const GramaticaLR& g = *lenguaje.gramatica();
    return QStringLiteral("<h3>%1</h3>").arg(tituloDeEstado(lenguaje, estado)) +
           dondeEsta(g, resaltada.regla) + lista(QStringLiteral("Conflictos"), conflictos(lenguaje, estado)) +
           lista(QStringLiteral("Elementos"), itemsEnHtml(g, estado, resaltada)) +
           lista(QStringLiteral("Desplaza y pasa"), salidas(g, grafo, estado)) +
           lista(QStringLiteral("Reduce"), reducciones(g, estado)) + llegada(g, grafo, estado);
}

} // namespace norvik::taller
