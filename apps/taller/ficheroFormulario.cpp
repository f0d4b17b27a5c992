// SPDX-License-Identifier: MIT

// A form as JSON: {"Controles": [{"Nombre": …, "Texto": …, "Modulo": …, "Bolsa": {…}}, …]}. The bags keep the
// order in which controls write them, which Qt's own JSON writer would not.

#include "ficheroFormulario.hpp"

#include "documentos.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/control/tablaPropiedades.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace norvik::taller {

namespace {

constexpr QLatin1String claveControles("Controles");
constexpr QLatin1String claveNombre("Nombre");
constexpr QLatin1String claveTexto("Texto");
constexpr QLatin1String claveModulo("Modulo");
constexpr QLatin1String claveBolsa("Bolsa");

/// A path in the file's folder and below it is kept relative.
QString relativa(const QDir& carpeta, const QString& fichero) {
    const QString relativa = carpeta.relativeFilePath(fichero);
    return relativa.startsWith(QLatin1String("..")) ? fichero : relativa;
}

// ---- writing

QByteArray enJson(const QJsonValue& valor) {
    const QByteArray lista = QJsonDocument(QJsonArray{valor}).toJson(QJsonDocument::Compact);
    return lista.sliced(1, lista.size() - 2);
}

QByteArray miembro(const QString& nombre, const QJsonValue& valor) {
    return enJson(nombre) + ": " + enJson(valor);
}

/// Members more at the end of an object.
QByteArray conOtros(QByteArray objeto, const QJsonObject& otros, const QByteArray& sangria) {
    QByteArrayList miembros;
    for (auto i = otros.begin(); i != otros.end(); ++i) miembros += sangria + miembro(i.key(), i.value());
    if (miembros.isEmpty()) return objeto;
    objeto.chop(1); // the brace
    const bool vacio = objeto.trimmed().endsWith('{');
    return objeto.trimmed() + (vacio ? "\n" : ",\n") + miembros.join(",\n") + "\n" + sangria.sliced(2) + "}";
}

QByteArray bolsaEnJson(const ElementoGuardado& elemento) {
    const std::string json = elemento.bolsa.aJson();
    const QByteArray texto = QByteArray(json.data(), static_cast<qsizetype>(json.size())).trimmed();
    return conOtros(texto, elemento.otrosDeBolsa, "  ").replace("\n", "\n      ");
}

QByteArray aJson(const QDir& carpeta, const ElementoGuardado& elemento) {
    QByteArray json = "    {\n      " + miembro(claveNombre, elemento.nombre) + ",\n";
    const auto pon = [&](const QString& nombre, const QString& fichero) {
        if (!fichero.isEmpty()) json += "      " + miembro(nombre, relativa(carpeta, fichero)) + ",\n";
    };
    pon(claveTexto, elemento.texto);
    pon(claveModulo, elemento.modulo);
    json += "      \"Bolsa\": " + bolsaEnJson(elemento) + "\n    }";
    return "    " + conOtros(json, elemento.otros, "      ").trimmed();
}

// ---- reading

/// The members of an object, each of which is asked for by its name; what is of another shape is told by its
/// place, «Controles[1].Bolsa».
class Miembros {
public:
    Miembros(const QJsonValue& valor, const QString& lugar) : lugar_(lugar), quedan_(valor.toObject()) {
        if (!valor.isObject()) falla(lugar, QStringLiteral("un objeto"));
    }

    QJsonValue toma(QLatin1String nombre) { return quedan_.take(nombre); }
    QString tomaTexto(QLatin1String nombre) {
        const QJsonValue valor = toma(nombre);
        if (!valor.isUndefined() && !valor.isString()) falla(lugarDe(nombre), QStringLiteral("un texto"));
        return valor.toString();
    }
    QString lugarDe(QLatin1String nombre) const { return lugar_.isEmpty() ? nombre : lugar_ + u'.' + nombre; }
    const QJsonObject& quedan() const { return quedan_; }

    [[noreturn]] static void falla(const QString& lugar, const QString& esperado) {
        const QString donde =
            lugar.isEmpty() ? QStringLiteral("no es %1") : lugar + QStringLiteral(" no es %1");
        throw NoCoincidenLosTipos(donde.arg(esperado).toStdU16String());
    }

private:
    QString lugar_;
    QJsonObject quedan_;
};

void tomaBolsa(const QJsonValue& valor, const QString& lugar, ElementoGuardado& elemento) {
    if (valor.isUndefined()) return;
    QJsonObject bolsa = valor.toObject();
    if (!valor.isObject()) Miembros::falla(lugar, QStringLiteral("un objeto"));
    for (auto i = bolsa.begin(); i != bolsa.end();) {
        const Propiedad* const p = propiedadDeClave(vistaDe(i.key()));
        if (p != nullptr && p->esClave()) {
            ++i;
        } else {
            elemento.otrosDeBolsa[i.key()] = i.value();
            i = bolsa.erase(i);
        }
    }
    const QByteArray json = QJsonDocument(bolsa).toJson();
    elemento.bolsa = BolsaPropiedades::deJson({json.data(), static_cast<std::size_t>(json.size())});
}

ElementoGuardado elementoDe(const QDir& carpeta, const QJsonValue& json, const QString& lugar) {
    Miembros miembros(json, lugar);
    const auto fichero = [&](QLatin1String nombre) {
        const QString escrito = miembros.tomaTexto(nombre);
        return escrito.isEmpty() ? escrito : carpeta.absoluteFilePath(escrito);
    };
    ElementoGuardado elemento;
    elemento.nombre = miembros.tomaTexto(claveNombre);
    elemento.texto = fichero(claveTexto);
    elemento.modulo = fichero(claveModulo);
    tomaBolsa(miembros.toma(claveBolsa), miembros.lugarDe(claveBolsa), elemento);
    elemento.otros = miembros.quedan();
    return elemento;
}

FormularioGuardado formularioDe(const QDir& carpeta, const QJsonValue& json) {
    Miembros miembros(json, {});
    const QJsonValue lista = miembros.toma(claveControles);
    const QJsonArray controles = lista.toArray();
    if (controles.isEmpty() || controles.size() > maximoControles)
        Miembros::falla(claveControles, QStringLiteral("una lista de 1 a %1 controles").arg(maximoControles));
    FormularioGuardado formulario;
    for (qsizetype i = 0; i < controles.size(); ++i)
        formulario.elementos.push_back(
            elementoDe(carpeta, controles[i], QStringLiteral("%1[%2]").arg(claveControles).arg(i)));
    formulario.otros = miembros.quedan();
    return formulario;
}

QJsonValue jsonDe(const QByteArray& bytes) {
    QJsonParseError error;
    const QJsonDocument documento = QJsonDocument::fromJson(bytes, &error);
    if (error.error == QJsonParseError::NoError)
        return documento.isObject() ? QJsonValue(documento.object()) : QJsonValue(documento.array());
    const auto linea = bytes.first(std::min<qsizetype>(error.offset, bytes.size())).count('\n') + 1;
    throw NoCoincidenLosTipos(
        QStringLiteral("la línea %1 no es de un fichero JSON").arg(linea).toStdU16String());
}

} // namespace

FormularioGuardado formularioDeJson(const QByteArray& json, const QDir& carpeta) {
    return formularioDe(carpeta, jsonDe(json));
}

QByteArray enJson(const FormularioGuardado& formulario, const QDir& carpeta) {
    QByteArrayList controles;
    for (const ElementoGuardado& elemento : formulario.elementos) controles += aJson(carpeta, elemento);
    return conOtros("{\n  \"Controles\": [\n" + controles.join(",\n") + "\n  ]\n}", formulario.otros, "  ") +
           "\n";
}

FormularioGuardado leeFormulario(const QString& fichero) {
    const std::string bytes = leeDocumento(fichero);
    try {
        return formularioDeJson({bytes.data(), static_cast<qsizetype>(bytes.size())},
                                QFileInfo(fichero).absoluteDir());
    } catch (const NoCoincidenLosTipos& error) {
        throw NoCoincidenLosTipos(u"«" + fichero.toStdU16String() + u"» no es un formulario de Norvik: " +
                                  error.texto());
    }
}

} // namespace norvik::taller
