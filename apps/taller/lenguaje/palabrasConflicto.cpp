// SPDX-License-Identifier: MIT

#include "palabrasConflicto.hpp"

#include "palabrasEstado.hpp"

#include "norvik/checks/palabrasHistoria.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QStringList>

#include <cstddef>

namespace norvik::taller {

namespace {

QString parrafo(std::u16string_view texto) {
    return texto.empty() ? QString() : QStringLiteral("<p>%1</p>").arg(aQString(texto).toHtmlEscaped());
}

QString frase(std::u16string_view texto) {
    return QStringLiteral("<p><b><tt>%1</tt></b></p>").arg(aQString(texto).toHtmlEscaped());
}

QString listaEnHtml(const QString& titulo, const QStringList& lineas) {
    QString html = QStringLiteral("<p>%1</p><ul>").arg(titulo);
    for (const QString& linea : lineas) html += QStringLiteral("<li>%1</li>").arg(linea);
    return html + QStringLiteral("</ul>");
}

QString ejemplo(const HistoriaConflicto& historia) {
    const auto& [uno, otro] = historia.cortos;
    QString html = frase(palabras::frase(uno));
    if (historia.clase != HistoriaConflicto::Clase::Ambigua) html += frase(palabras::frase(otro));
    const auto& [enTokens, otroEnTokens] = historia.completos;
    if (enTokens.arbol.nodos.empty() || otroEnTokens.arbol.nodos.empty()) return html;
    html += parrafo(u"Desde la variable inicial y en tokens:") + frase(palabras::frase(enTokens));
    if (palabras::frase(otroEnTokens) != palabras::frase(enTokens))
        html += frase(palabras::frase(otroEnTokens));
    return html + parrafo(palabras::prueba(historia));
}

QString estado(const GramaticaLR& g, std::int16_t numero, std::int16_t perdida) {
    return listaEnHtml(QStringLiteral("<a href=\"%1\">Estado %1</a>, con sus elementos:").arg(numero),
                       itemsEnHtml(g, numero, {perdida}));
}

} // namespace

QString historiaEnHtml(const LenguajeEstudiado& lenguaje, const HistoriaConflicto& historia) {
    QString html = parrafo(palabras::planteamiento(historia)) + parrafo(palabras::explicacion(historia));
    if (historia.clase != HistoriaConflicto::Clase::SinEjemplo) html += ejemplo(historia);
    html += parrafo(u"Qué hacer: " + palabras::remedio(historia));
    const GramaticaLR* const g = lenguaje.gramatica();
    const bool hayEstado = historia.estado != HistoriaConflicto::sinEstado && g != nullptr &&
                           static_cast<std::size_t>(historia.estado) < g->automata.estados.size();
    if (hayEstado) html += estado(*g, historia.estado, historia.acciones[1].regla);
    QStringList pasos;
    for (const std::u16string& paso : historia.porque) pasos += aQString(paso).toHtmlEscaped();
    return pasos.isEmpty() ? html : html + listaEnHtml(QStringLiteral("Por qué cabe reducir ahí:"), pasos);
}

} // namespace norvik::taller
