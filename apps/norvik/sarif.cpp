// SPDX-License-Identifier: MIT

// SARIF 2.1.0 is what services for code review read.
#include "sarif.hpp"

#include "escritorJson.hpp"
#include "norvik/base/codificacion.hpp"

#include <norvik/version.hpp>

namespace norvik::orden {

namespace {

std::u16string_view nivel(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Error:
        return u"error";
    case Gravedad::Aviso:
        return u"warning";
    case Gravedad::Nota:
        return u"note";
    }
    return {};
}

void escribeLugar(Escritor& escritor, std::u16string_view fichero, const Rango& rango,
                  std::u16string_view texto) {
    escritor.abreObjeto();
    escritor.abreObjeto("physicalLocation");
    escritor.abreObjeto("artifactLocation");
    escritor.campo("uri", fichero);
    escritor.cierraObjeto();
    escritor.abreObjeto("region");
    escritor.campo("startLine", rango.inicio.linea);
    escritor.campo("startColumn", rango.inicio.columna);
    escritor.campo("endLine", rango.fin.linea);
    escritor.campo("endColumn", rango.fin.columna);
    escritor.cierraObjeto();
    escritor.cierraObjeto();
    if (!texto.empty()) {
        escritor.abreObjeto("message");
        escritor.campo("text", texto);
        escritor.cierraObjeto();
    }
    escritor.cierraObjeto();
}

void escribeHallazgo(Escritor& escritor, std::u16string_view fichero, const Diagnostico& hallazgo) {
    escritor.abreObjeto();
    escritor.campo("ruleId", nombreDe(hallazgo.codigo));
    escritor.campo("level", nivel(hallazgo.gravedad));
    escritor.abreObjeto("message");
    escritor.campo("text", mensaje(hallazgo));
    escritor.cierraObjeto();
    escritor.abreLista("locations");
    escribeLugar(escritor, fichero, hallazgo.rango, {});
    escritor.cierraLista();
    escritor.abreLista("relatedLocations");
    for (const auto& [rango, texto] : hallazgo.partes.relacionados)
        escribeLugar(escritor, fichero, rango, texto);
    escritor.cierraLista();
    escritor.cierraObjeto();
}

} // namespace

void escribeSarif(std::span<const Revisado> revisados, Salida& salida) {
    Escritor escritor(salida);
    escritor.abreObjeto();
    escritor.campo("version", u"2.1.0");
    escritor.campo("$schema", u"https://json.schemastore.org/sarif-2.1.0.json");
    escritor.abreLista("runs");
    escritor.abreObjeto();
    escritor.abreObjeto("tool");
    escritor.abreObjeto("driver");
    escritor.campo("name", u"norvik");
    escritor.campo("version", decodifica(NORVIK_VERSION));
    escritor.cierraObjeto();
    escritor.cierraObjeto();
    escritor.campo("columnKind", u"utf16CodeUnits");
    escritor.abreLista("results");
    for (const auto& [fichero, hallazgos] : revisados)
        for (const Hallazgo& hallazgo : hallazgos) escribeHallazgo(escritor, fichero, hallazgo.diagnostico);
    escritor.cierraLista();
    escritor.cierraObjeto();
    escritor.cierraLista();
    escritor.cierraObjeto();
    escritor.acabaLinea();
}

} // namespace norvik::orden
