// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
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

/// @name Textos, rutas, colores y fuentes del control y de Qt
/// @{

/// Un texto.
inline QString aQString(std::u16string_view texto) {
    return QStringView(texto.data(), static_cast<qsizetype>(texto.size())).toString();
}

/// Un texto de Qt sin copiarlo; vale lo que él.
inline std::u16string_view vistaDe(const QString& texto) {
    return {QStringView(texto).utf16(), static_cast<std::size_t>(texto.size())};
}

/// Un texto con saltos de línea cualesquiera, con los de Qt (LF).
inline QString conSaltosDeQt(QString texto) {
    return texto.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

/// Rutas, cuyos bytes no tienen por qué ser un texto.
inline std::filesystem::path aRuta(const QString& ruta) {
    return QFile::encodeName(ruta).toStdString();
}
inline QString deRuta(const std::filesystem::path& ruta) {
    return QFile::decodeName(QByteArray::fromStdString(ruta.native()));
}

/// Un color 0x00BBGGRR.
inline QColor aQColor(std::int32_t color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

inline std::int32_t deQColor(const QColor& color) {
    return color.blue() << 16 | color.green() << 8 | color.red();
}

/// El color como se puede leer sobre un fondo: sobre uno oscuro, los colores elegidos para papel claro se
/// aclaran hasta que destacan.
NORVIK_API QColor legible(const QColor& color, const QColor& fondo);

/// Una fuente.
NORVIK_API QFont aQFont(const Fuente& fuente);
/// Lo que una fuente de Qt no tiene queda como estaba.
NORVIK_API Fuente deQFont(const QFont& letra, const Fuente& antes);
/// Un tamaño en 1/10000 de punto, como lo puede tener una fuente.
NORVIK_API double aPuntos(std::int32_t tamano);

/// @}

} // namespace norvik
