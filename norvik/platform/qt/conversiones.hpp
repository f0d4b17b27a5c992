// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/cajaTexto.hpp"

#include <QColor>
#include <QFile>
#include <QFont>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace norvik {

inline QString aQString(std::u16string_view texto) {
    return QStringView(texto.data(), static_cast<qsizetype>(texto.size())).toString();
}

inline std::u16string_view vistaDe(const QString& texto) {
    return {QStringView(texto).utf16(), static_cast<std::size_t>(texto.size())};
}

/// A text with line breaks of any kind, with Qt's, which is a line feed.
inline QString conSaltosDeQt(QString texto) {
    return texto.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

/// Paths, whose bytes need be no text.
inline std::filesystem::path aRuta(const QString& ruta) {
    return QFile::encodeName(ruta).toStdString();
}
inline QString deRuta(const std::filesystem::path& ruta) {
    return QFile::decodeName(QByteArray::fromStdString(ruta.native()));
}

/// A colour 0x00BBGGRR.
inline QColor aQColor(std::int32_t color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

inline std::int32_t deQColor(const QColor& color) {
    return color.blue() << 16 | color.green() << 8 | color.red();
}

/// The colour as it can be read on a background: on a dark one, colours chosen for light paper are made
/// lighter until they stand out.
QColor legible(const QColor& color, const QColor& fondo);

QFont aQFont(const Fuente& fuente);
/// What a Qt font does not have is as it was before.
Fuente deQFont(const QFont& letra, const Fuente& antes);
/// A size in 1/10000 points as one that a font can have.
double aPuntos(std::int32_t tamano);

} // namespace norvik
