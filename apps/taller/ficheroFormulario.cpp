// SPDX-License-Identifier: MIT

// A form as JSON: {"Controles": [{"Nombre": …, "Texto": …, "Modulo": …, "Bolsa": {…}}, …]}. The bags keep the
// order in which controls write them, which Qt's own JSON writer would not.

#include "ficheroFormulario.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace norvik::taller {

namespace {

/// A path in the file's folder and below it is kept relative.
QString relativa(const QDir& carpeta, const QString& fichero) {
    const QString relativa = carpeta.relativeFilePath(fichero);
    return relativa.startsWith(QLatin1String("..")) ? fichero : relativa;
}

QByteArray entreComillas(const QString& texto) {
    const QByteArray lista = QJsonDocument(QJsonArray{texto}).toJson(QJsonDocument::Compact);
    return lista.sliced(1, lista.size() - 2);
}

QByteArray sangrado(std::string_view json, const char* sangria) {
    QByteArray texto = QByteArray(json.data(), static_cast<qsizetype>(json.size())).trimmed();
    return texto.replace("\n", QByteArray("\n") + sangria);
}

QByteArray miembro(const char* nombre, const QString& valor) {
    return QByteArray("      \"") + nombre + "\": " + entreComillas(valor) + ",\n";
}

QByteArray aJson(const QDir& carpeta, const ElementoGuardado& elemento) {
    QByteArray json = "    {\n" + miembro("Nombre", elemento.nombre);
    if (!elemento.texto.isEmpty()) json += miembro("Texto", relativa(carpeta, elemento.texto));
    if (!elemento.modulo.isEmpty()) json += miembro("Modulo", relativa(carpeta, elemento.modulo));
    return json + "      \"Bolsa\": " + sangrado(elemento.bolsa.aJson(), "      ") + "\n    }";
}

ElementoGuardado deJson(const QDir& carpeta, const QJsonObject& json) {
    const auto fichero = [&](const char* nombre) {
        const QString escrito = json[QLatin1String(nombre)].toString();
        return escrito.isEmpty() ? escrito : carpeta.absoluteFilePath(escrito);
    };
    const QByteArray bolsa = QJsonDocument(json[QLatin1String("Bolsa")].toObject()).toJson();
    return {json[QLatin1String("Nombre")].toString(), fichero("Texto"), fichero("Modulo"),
            BolsaPropiedades::deJson({bolsa.data(), static_cast<std::size_t>(bolsa.size())})};
}

} // namespace

std::vector<ElementoGuardado> leeFormulario(const QString& fichero) {
    const std::string bytes = leeBytes(aRuta(fichero));
    const QJsonObject json =
        QJsonDocument::fromJson({bytes.data(), static_cast<qsizetype>(bytes.size())}).object();
    const QDir carpeta = QFileInfo(fichero).absoluteDir();
    std::vector<ElementoGuardado> elementos;
    const QJsonArray controles = json[QLatin1String("Controles")].toArray();
    for (const auto& control : controles) elementos.push_back(deJson(carpeta, control.toObject()));
    if (elementos.empty())
        throw NoCoincidenLosTipos(u"«" + fichero.toStdU16String() + u"» no es un formulario de Norvik");
    return elementos;
}

void escribeFormulario(const QString& fichero, const std::vector<ElementoGuardado>& elementos) {
    const QDir carpeta = QFileInfo(fichero).absoluteDir();
    QByteArrayList controles;
    for (const ElementoGuardado& elemento : elementos) controles += aJson(carpeta, elemento);
    const QByteArray json = "{\n  \"Controles\": [\n" + controles.join(",\n") + "\n  ]\n}\n";
    escribeBytes(aRuta(fichero), {json.data(), static_cast<std::size_t>(json.size())}, Durabilidad::EnDisco);
}

} // namespace norvik::taller
