// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/espejoDocumento.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QTextCursor>

#include <algorithm>

namespace norvik {

namespace {

constexpr char16_t cuadro = 0x25A1;

/// What shows a character: signs that common fonts have.
char16_t visible(char16_t c) {
    constexpr char16_t flechaDeRetorno = 0x21B5;
    if (c == 0x2028 || c == 0x2029) return flechaDeRetorno;
    const bool control = (c < u' ' && c != u'\t') || c == 0x7F;
    return control || c == 0xFDD0 || c == 0xFDD1 || c == 0xFFFC ? cuadro : c;
}

/// It is drawn over the letter before it, or not at all.
bool esMarca(char32_t c) {
    constexpr char32_t primera = 0x300;
    return c >= primera && (QChar::isMark(c) || QChar::category(c) == QChar::Other_Format);
}

/// To lay out a mark, all those before it are gone through back to their letter: where there are more than
/// anybody writes, the others are shown as characters of their own.
void muestraMarcasDeMas(QString& visto) {
    constexpr int maximo = 64;
    int marcas = 0;
    for (qsizetype i = 0; i < visto.size(); ++i) {
        const QStringView par = QStringView(visto).mid(i, 2);
        const bool doble = par.size() == 2 && par[0].isHighSurrogate() && par[1].isLowSurrogate();
        marcas = esMarca(doble ? QChar::surrogateToUcs4(par[0], par[1]) : par[0].unicode()) ? marcas + 1 : 0;
        if (marcas > maximo) visto[i] = cuadro;
        if (doble && marcas > maximo) visto[i + 1] = cuadro;
        if (doble) ++i;
    }
}

QString comoSeVe(std::u16string_view texto) {
    QString visto;
    visto.reserve(static_cast<qsizetype>(texto.size()));
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == u'\r' && i + 1 < texto.size() && texto[i + 1] == u'\n') ++i;
        visto += texto[i] == u'\r' || texto[i] == u'\n' ? QChar(u'\n') : QChar(visible(texto[i]));
    }
    muestraMarcasDeMas(visto);
    return visto;
}

} // namespace

/// Where the characters of a line end, its break left out.
std::int32_t EspejoDocumento::finDeLinea(std::int32_t linea) const {
    const std::u16string_view texto = fuente_.texto();
    const std::int32_t siguiente = fuente_.inicioDeLinea(linea + 1);
    if (siguiente < 0) return static_cast<std::int32_t>(texto.size());
    return texto.substr(0, static_cast<std::size_t>(siguiente)).ends_with(saltoDeLinea) ? siguiente - 2
                                                                                        : siguiente - 1;
}

int EspejoDocumento::enDocumento(std::int32_t posicion) const {
    const std::int32_t linea = fuente_.lineaDeCaracter(posicion);
    const QTextBlock bloque = documento_.findBlockByNumber(linea);
    return bloque.position() + std::min(posicion - fuente_.inicioDeLinea(linea), bloque.length() - 1);
}

std::int32_t EspejoDocumento::enTexto(int posicion) const {
    const QTextBlock bloque = documento_.findBlock(posicion);
    return fuente_.inicioDeLinea(bloque.blockNumber()) + posicion - bloque.position();
}

int EspejoDocumento::enDocumentoDesdeElFinal(std::int32_t posicion) const {
    const std::int32_t linea = fuente_.lineaDeCaracter(posicion);
    const int desdeElFinal = fuente_.numeroDeLineas() - linea;
    const QTextBlock bloque = documento_.findBlockByNumber(documento_.blockCount() - desdeElFinal);
    return bloque.position() + bloque.length() - 1 - (finDeLinea(linea) - posicion);
}

std::int32_t EspejoDocumento::enTextoDesdeElFinal(int posicion) const {
    const QTextBlock bloque = documento_.findBlock(posicion);
    const int desdeElFinal = documento_.blockCount() - bloque.blockNumber();
    return finDeLinea(fuente_.numeroDeLineas() - desdeElFinal) -
           (bloque.position() + bloque.length() - 1 - posicion);
}

void EspejoDocumento::copia(std::int32_t inicio, std::int32_t fin) {
    const std::u16string_view texto = fuente_.texto();
    const auto es = [&](std::int32_t p, char16_t c) {
        return p >= 0 && static_cast<std::size_t>(p) < texto.size() &&
               texto[static_cast<std::size_t>(p)] == c;
    };
    // Half a break beside the change may have found or lost its other half.
    if (es(inicio - 1, u'\r')) --inicio;
    if (es(fin, u'\n')) ++fin;
    QTextCursor cursor(&documento_);
    const int hasta = enDocumentoDesdeElFinal(fin);
    cursor.setPosition(enDocumento(inicio));
    cursor.setPosition(hasta, QTextCursor::KeepAnchor);
    cursor.insertText(
        comoSeVe(texto.substr(static_cast<std::size_t>(inicio), static_cast<std::size_t>(fin - inicio))));
}

void EspejoDocumento::copiaTodo() {
    QTextCursor cursor(&documento_);
    cursor.select(QTextCursor::Document);
    cursor.insertText(comoSeVe(fuente_.texto()));
    cambio_.reset();
}

void EspejoDocumento::anota(int desde, int /*quitados*/, int puestos) {
    const int detras = std::max(ultimaPosicion() - desde - puestos, 0);
    if (!cambio_) cambio_ = Cambio{desde, detras};
    cambio_ = Cambio{std::min(cambio_->delante, desde), std::min(cambio_->detras, detras)};
}

std::u16string EspejoDocumento::lee(int desde, int hasta) const {
    std::u16string leido;
    for (QTextBlock b = documento_.findBlock(desde); b.isValid() && b.position() <= hasta; b = b.next()) {
        if (b.position() > desde) leido += saltoDeLinea;
        const QString linea = b.text();
        const int primera = std::max(desde - b.position(), 0);
        const int cuantas = std::min(hasta - b.position(), b.length() - 1) - primera;
        leido += vistaDe(linea).substr(static_cast<std::size_t>(primera), static_cast<std::size_t>(cuantas));
    }
    return leido;
}

EspejoDocumento::Edicion EspejoDocumento::dameEdicion() {
    const int desde = cambio_->delante;
    const int hasta = std::max(ultimaPosicion() - cambio_->detras, desde);
    const std::int32_t inicio = enTexto(desde);
    Edicion edicion{inicio, std::max(enTextoDesdeElFinal(hasta), inicio), lee(desde, hasta), desde, hasta};
    cambio_.reset();
    return edicion;
}

EspejoDocumento::Edicion EspejoDocumento::recortada(Edicion e) const {
    const std::u16string_view texto = fuente_.texto();
    const auto seVe = [&](std::int32_t posicion, char16_t c) {
        const char16_t suyo = texto[static_cast<std::size_t>(posicion)];
        const bool deMas = c == cuadro && (QChar::isSurrogate(suyo) || esMarca(suyo));
        return c == suyo || deMas || (c == visible(suyo) && suyo != u'\r' && suyo != u'\n');
    };
    std::size_t iguales = 0;
    while (e.inicio < e.fin && iguales < e.nuevo.size() && seVe(e.inicio, e.nuevo[iguales])) {
        ++e.inicio;
        ++iguales;
    }
    e.nuevo.erase(0, iguales);
    while (e.inicio < e.fin && !e.nuevo.empty() && seVe(e.fin - 1, e.nuevo.back())) {
        --e.fin;
        e.nuevo.pop_back();
    }
    return e;
}

std::int32_t EspejoDocumento::trasEdicion(const Edicion& edicion, int posicion) const {
    if (posicion <= edicion.desde) return enTexto(posicion);
    if (posicion < edicion.hasta) {
        return edicion.inicio + static_cast<std::int32_t>(lee(edicion.desde, posicion).size());
    }
    const auto crece = static_cast<std::int32_t>(edicion.nuevo.size()) - (edicion.fin - edicion.inicio);
    return enTextoDesdeElFinal(posicion) + crece;
}

} // namespace norvik
