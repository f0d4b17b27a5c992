// SPDX-License-Identifier: MIT

#include "copiaTaller.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cstring>
#include <utility>

namespace norvik::taller {

namespace {

constexpr QLatin1String claveFormulario("Formulario");
constexpr QLatin1String claveLenguaje("Lenguaje");
constexpr QLatin1String claveContenido("Contenido");
constexpr QLatin1String claveFichero("Fichero");
constexpr QLatin1String claveHuella("Huella");
constexpr QLatin1String claveModificado("Modificado");
constexpr QLatin1String claveDeLosTextos("Textos");
constexpr QLatin1String claveCodificacion("Codificacion");
constexpr QLatin1String claveSalto("Salto");
constexpr QLatin1String claveAcabaEnSalto("AcabaEnSalto");
constexpr QLatin1String claveBinario("Binario");
constexpr QLatin1String claveLargo("Largo"); ///< of the text, in characters

/// Of no folder.
QDir raiz() {
    return QDir::root();
}

[[noreturn]] void falla() {
    throw NoCoincidenLosTipos(u"La copia de recuperación está dañada");
}

// ---- writing

/// The text goes after the line.
QJsonObject jsonDe(const EstadoDocumento& d, std::string& textos) {
    textos.append(reinterpret_cast<const char*>(d.texto.data()), d.texto.size() * sizeof(char16_t)); // NOLINT
    return {{claveFichero, d.fichero},
            {claveHuella, d.huella},
            {claveCodificacion, static_cast<int>(d.formato.codificacion)},
            {claveSalto, static_cast<int>(d.formato.salto)},
            {claveAcabaEnSalto, d.formato.acabaEnSalto},
            {claveBinario, d.esBinario},
            {claveModificado, d.modificado},
            {claveLargo, static_cast<qint64>(d.texto.size())}};
}

template <typename Documentos>
QJsonArray jsonDeTodos(const Documentos& documentos, std::string& textos) {
    QJsonArray lista;
    for (const EstadoDocumento& d : documentos) lista.append(jsonDe(d, textos));
    return lista;
}

QJsonObject jsonDe(const EstadoFormulario& f, std::string& textos) {
    return {{claveContenido, QString::fromUtf8(enJson(f.guardado, raiz()))},
            {claveFichero, f.fichero},
            {claveHuella, f.huella},
            {claveModificado, f.modificado},
            {claveDeLosTextos, jsonDeTodos(f.textos, textos)}};
}

// ---- reading

/// Gives the texts one after the other.
class Lector {
public:
    explicit Lector(std::string_view textos) : quedan_(textos) {}

    EstadoDocumento documento(const QJsonObject& json) {
        EstadoDocumento d;
        d.fichero = json[claveFichero].toString();
        d.huella = json[claveHuella].toString();
        d.formato.codificacion = deLaLista(json[claveCodificacion], Codificacion::Utf16Be);
        d.formato.salto = deLaLista(json[claveSalto], SaltoDeFichero::Cr);
        d.formato.acabaEnSalto = json[claveAcabaEnSalto].toBool();
        d.esBinario = json[claveBinario].toBool();
        d.modificado = json[claveModificado].toBool();
        d.texto = texto(json[claveLargo].toInteger(-1));
        return d;
    }
    std::vector<EstadoDocumento> documentos(const QJsonArray& lista) {
        std::vector<EstadoDocumento> todos;
        for (const auto& json : lista) todos.push_back(documento(json.toObject()));
        return todos;
    }
    EstadoFormulario formulario(const QJsonObject& json) {
        EstadoFormulario f;
        f.guardado = formularioDeJson(json[claveContenido].toString().toUtf8(), raiz());
        f.fichero = json[claveFichero].toString();
        f.huella = json[claveHuella].toString();
        f.modificado = json[claveModificado].toBool();
        f.textos = documentos(json[claveDeLosTextos].toArray());
        if (f.textos.size() != f.guardado.elementos.size()) falla();
        return f;
    }
    std::array<EstadoDocumento, 2> lenguaje(const QJsonArray& json) {
        std::vector<EstadoDocumento> ambos = documentos(json);
        if (ambos.size() != 2) falla();
        return {std::move(ambos[0]), std::move(ambos[1])};
    }
    void acaba() const {
        if (!quedan_.empty()) falla();
    }

private:
    template <typename Lista>
    static Lista deLaLista(const QJsonValue& valor, Lista ultimo) {
        return static_cast<Lista>(std::clamp(valor.toInt(), 0, static_cast<int>(ultimo)));
    }
    std::u16string texto(qint64 largo) {
        const auto caben = static_cast<qint64>(quedan_.size() / sizeof(char16_t));
        if (largo < 0 || largo > caben) falla();
        std::u16string texto(static_cast<std::size_t>(largo), u'\0');
        std::memcpy(texto.data(), quedan_.data(), texto.size() * sizeof(char16_t));
        quedan_.remove_prefix(texto.size() * sizeof(char16_t));
        return texto;
    }

    std::string_view quedan_;
};

QString tituloDe(const EstadoDocumento& d) {
    return d.fichero.isEmpty() ? QStringLiteral("Sin título") : QFileInfo(d.fichero).fileName();
}

} // namespace

QStringList CopiaTaller::titulos() const {
    QStringList titulos;
    const auto anota = [&](const QString& clase, const EstadoDocumento& d) {
        if (d.modificado) titulos += QStringLiteral("%1 «%2»").arg(clase, tituloDe(d));
    };
    if (lenguaje) {
        anota(QStringLiteral("la especificación"), lenguaje->front());
        anota(QStringLiteral("el texto de prueba"), lenguaje->back());
    }
    if (!formulario) return titulos;
    for (const EstadoDocumento& d : formulario->textos) anota(QStringLiteral("el texto"), d);
    if (formulario->modificado)
        titulos += formulario->fichero.isEmpty()
                       ? QStringLiteral("el formulario sin título")
                       : QStringLiteral("el formulario «%1»").arg(QFileInfo(formulario->fichero).fileName());
    return titulos;
}

std::string bytesDe(const CopiaTaller& copia) {
    std::string textos;
    QJsonObject json;
    if (copia.formulario) json[claveFormulario] = jsonDe(*copia.formulario, textos);
    if (copia.lenguaje) json[claveLenguaje] = jsonDeTodos(*copia.lenguaje, textos);
    return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString() + "\n" + textos;
}

CopiaTaller copiaDe(std::string_view bytes) {
    const std::string_view linea = bytes.substr(0, bytes.find('\n'));
    const QJsonDocument documento =
        QJsonDocument::fromJson(QByteArray(linea.data(), static_cast<qsizetype>(linea.size())));
    if (!documento.isObject() || linea.size() == bytes.size()) falla();
    const QJsonObject json = documento.object();
    Lector lector(bytes.substr(linea.size() + 1));
    CopiaTaller copia; // in the order in which they were written
    if (json.contains(claveFormulario))
        copia.formulario = lector.formulario(json[claveFormulario].toObject());
    if (json.contains(claveLenguaje)) copia.lenguaje = lector.lenguaje(json[claveLenguaje].toArray());
    lector.acaba();
    return copia;
}

} // namespace norvik::taller
