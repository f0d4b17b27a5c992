// SPDX-License-Identifier: MIT

#include "norvik/widget/diagnosticosVistos.hpp"

#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"
#include "norvik/widget/signo.hpp"

#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>
#include <map>

namespace norvik {

namespace {

/// Of a place: nobody reads more, and a table has conflicts by the ten thousands.
constexpr int maximoDePalabras = 20;

} // namespace

DiagnosticosVistos::DiagnosticosVistos(CajaTextoQt& caja, Resaltes& resaltes)
    : caja_(caja), resaltes_(resaltes) {
    caja_.vista().viewport()->installEventFilter(this);
    connect(&caja_.noticias(), &NoticiasDeCaja::sustituido, this, &DiagnosticosVistos::sigue);
    resaltes_.pon(Resaltes::Capa::Diagnosticos,
                  [this](std::int32_t desde, std::int32_t hasta) { return this->resaltes(desde, hasta); });
}

void DiagnosticosVistos::pon(const std::vector<Diagnostico>& diagnosticos) {
    const auto total = static_cast<std::int32_t>(caja_.texto().size());
    std::vector<Marca> nuevas;
    nuevas.reserve(diagnosticos.size());
    int delMismoLugar = 0;
    for (const Diagnostico& d : diagnosticos) {
        const std::int32_t inicio = std::clamp(d.rango.inicio.desplazamiento, 0, total);
        const std::int32_t fin = std::clamp(d.rango.fin.desplazamiento, inicio, total);
        Marca nueva{inicio, fin, d.gravedad, {}};
        delMismoLugar = !nuevas.empty() && nueva.esDondeOtra(nuevas.back()) ? delMismoLugar + 1 : 0;
        if (delMismoLugar < maximoDePalabras) nueva.palabras = aQString(mensaje(d));
        nuevas.push_back(std::move(nueva));
    }
    marcas_ = std::move(nuevas);
    resaltes_.refresca();
    emit otros();
}

/// One whose characters are no more says nothing of what is left.
void DiagnosticosVistos::sigue(const CambioDeTexto& cambio) {
    const auto desaparece = [&](Marca& m) {
        const bool vacia = m.inicio == m.fin;
        m.inicio = cambio.lleva(m.inicio);
        m.fin = std::max(cambio.lleva(m.fin), m.inicio);
        return m.inicio == m.fin && !vacia;
    };
    if (std::erase_if(marcas_, desaparece) > 0) emit otros();
}

/// Those of one place, which follow one another, are seen as the worst of them.
std::vector<Resalte> DiagnosticosVistos::resaltes(std::int32_t desde, std::int32_t hasta) const {
    std::vector<Resalte> vistos;
    for (auto primera = marcas_.begin(); primera != marcas_.end();) {
        const auto siguiente =
            std::find_if_not(primera, marcas_.end(), [&](const Marca& m) { return m.esDondeOtra(*primera); });
        if (primera->inicio <= hasta && primera->fin >= desde)
            vistos.push_back(resalte(*std::ranges::min_element(primera, siguiente, {}, &Marca::gravedad)));
        primera = siguiente;
    }
    return vistos;
}

/// What is missing stands between two characters: the one behind is underlined, at the end of a line the one
/// before.
Resalte DiagnosticosVistos::resalte(const Marca& marca) const {
    QTextCharFormat formato;
    formato.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    formato.setUnderlineColor(
        legible(Signo::colorDe(marca.gravedad), caja_.vista().palette().color(QPalette::Base)));
    if (marca.inicio != marca.fin) return {marca.inicio, marca.fin, formato};
    const std::u16string_view texto = caja_.texto();
    const auto i = static_cast<std::size_t>(marca.inicio);
    const bool acabaLinea = i >= texto.size() || texto[i] == u'\r' || texto[i] == u'\n';
    return acabaLinea ? Resalte{std::max(marca.inicio - 1, 0), marca.inicio, formato}
                      : Resalte{marca.inicio, marca.inicio + 1, formato};
}

std::vector<DiagnosticosVistos::EnLinea> DiagnosticosVistos::enLineas(std::int32_t primera,
                                                                      std::int32_t ultima) const {
    std::map<std::int32_t, Gravedad> peores;
    const std::int32_t desde = caja_.inicioDeLinea(primera);
    for (const Marca& m : marcas_) {
        if (m.inicio < desde) continue;
        const std::int32_t linea = caja_.lineaDeCaracter(m.inicio);
        if (linea > ultima) continue;
        const auto [esta, nueva] = peores.try_emplace(linea, m.gravedad);
        esta->second = std::min(esta->second, m.gravedad); // the worst comes first
    }
    std::vector<EnLinea> lineas;
    lineas.reserve(peores.size());
    for (const auto& [linea, gravedad] : peores) lineas.push_back({linea, gravedad});
    return lineas;
}

template <typename Condicion>
QString DiagnosticosVistos::palabrasDe(Condicion condicion) const {
    QStringList palabras;
    std::size_t otras = 0;
    for (const Marca& m : marcas_) {
        if (!condicion(m)) continue;
        if (palabras.size() < maximoDePalabras && !m.palabras.isEmpty())
            palabras.append(m.palabras);
        else
            ++otras;
    }
    if (otras > 0) palabras.append(QStringLiteral("… y otros %1").arg(otras));
    return palabras.join(u'\n');
}

QString DiagnosticosVistos::palabrasEn(std::int32_t posicion) const {
    return palabrasDe([&](const Marca& m) {
        const Resalte r = resalte(m);
        return r.inicio <= posicion && posicion < r.fin;
    });
}

QString DiagnosticosVistos::palabrasDeLinea(std::int32_t linea) const {
    return palabrasDe([&](const Marca& m) { return caja_.lineaDeCaracter(m.inicio) == linea; });
}

QString DiagnosticosVistos::resumen() const {
    const auto cuantos = [&](Gravedad gravedad, const QString& uno, const QString& varios) {
        const auto n = std::ranges::count(marcas_, gravedad, &Marca::gravedad);
        return n == 0 ? QString() : QStringLiteral("%1 %2").arg(n).arg(n == 1 ? uno : varios);
    };
    QStringList partes{cuantos(Gravedad::Error, QStringLiteral("error"), QStringLiteral("errores")),
                       cuantos(Gravedad::Aviso, QStringLiteral("aviso"), QStringLiteral("avisos")),
                       cuantos(Gravedad::Nota, QStringLiteral("nota"), QStringLiteral("notas"))};
    partes.removeAll(QString());
    return partes.join(QStringLiteral(", "));
}

bool DiagnosticosVistos::eventFilter(QObject* vista, QEvent* evento) {
    if (evento->type() != QEvent::ToolTip) return QObject::eventFilter(vista, evento);
    const auto& ayuda = static_cast<const QHelpEvent&>(*evento);
    QString palabras;
    sinFallos([&] {
        const auto posicion = caja_.caracterEn(ayuda.pos());
        if (posicion) palabras = palabrasEn(*posicion);
        palabras.isEmpty() ? QToolTip::hideText()
                           : QToolTip::showText(ayuda.globalPos(), ayudaLlana(palabras), &caja_.vista());
    });
    return !palabras.isEmpty();
}

} // namespace norvik
