// SPDX-License-Identifier: MIT

#include "json.hpp"

#include "escritorJson.hpp"
#include "jsonHistoria.hpp"
#include "recorrido.hpp"

namespace norvik::orden {

namespace {

void camposDeNodo(Escritor& escritor, const Arbol& nodo) {
    if (esInterior(nodo)) {
        escritor.campo("regla", nodo.GetNumRegla());
        escritor.campo("cabeza", nodo.GetNomRegla());
        escritor.campo("cuerpo", nodo.GetRegla());
    } else {
        escritor.campo("lexema", nodo.GetLexema());
        escritor.campo("linea", nodo.GetLinea());
        escritor.campo("columna", nodo.GetColumna());
    }
}

void campoDePunto(Escritor& escritor, const char* clave, const Punto& punto) {
    escritor.abreObjeto(clave);
    escritor.campo("linea", punto.linea);
    escritor.campo("columna", punto.columna);
    escritor.campo("desplazamiento", punto.desplazamiento);
    escritor.cierraObjeto();
}

void campoDeRango(Escritor& escritor, const Rango& rango) {
    escritor.abreObjeto("rango");
    campoDePunto(escritor, "inicio", rango.inicio);
    campoDePunto(escritor, "fin", rango.fin);
    escritor.cierraObjeto();
}

void escribeArreglo(Escritor& escritor, const Arreglo& arreglo) {
    escritor.abreObjeto();
    escritor.campo("titulo", arreglo.titulo);
    escritor.abreLista("cambios");
    for (const Cambio& cambio : arreglo.cambios) {
        escritor.abreObjeto();
        campoDeRango(escritor, cambio.rango);
        escritor.campo("texto", cambio.texto);
        if (cambio.conNombres) escritor.campo("conNombres", true);
        escritor.cierraObjeto();
    }
    escritor.cierraLista();
    escritor.cierraObjeto();
}

// The fields of an open object.
void camposDe(Escritor& escritor, const Diagnostico& diagnostico, std::u16string_view fichero) {
    const Partes& partes = diagnostico.partes;
    escritor.campo("codigo", nombreDe(diagnostico.codigo));
    escritor.campo("gravedad", nombreDe(diagnostico.gravedad));
    escritor.campo("mensaje", mensaje(diagnostico));
    escritor.campo("fichero", fichero);
    campoDeRango(escritor, diagnostico.rango);
    escritor.campo("hallado", partes.hallado);
    escritor.abreLista("esperados");
    for (const std::u16string& esperado : partes.esperados) escritor.elemento(esperado);
    escritor.cierraLista();
    escritor.abreLista("relacionados");
    for (const Relacionado& relacionado : partes.relacionados) {
        escritor.abreObjeto();
        campoDeRango(escritor, relacionado.rango);
        escritor.campo("texto", relacionado.texto);
        escritor.cierraObjeto();
    }
    escritor.cierraLista();
    escritor.abreLista("arreglos");
    for (const Arreglo& arreglo : partes.arreglos) escribeArreglo(escritor, arreglo);
    escritor.cierraLista();
}

} // namespace

void escribeJson(const Arbol& raiz, Salida& salida) {
    Escritor escritor(salida);
    const auto entra = [&](const Paso& paso) {
        escritor.abreObjeto();
        camposDeNodo(escritor, paso.nodo);
        if (esInterior(paso.nodo)) escritor.abreLista("hijos");
    };
    const auto sale = [&](const Arbol& nodo) {
        if (esInterior(nodo)) escritor.cierraLista();
        escritor.cierraObjeto();
    };
    recorre(raiz, entra, sale);
    escritor.acabaLinea();
}

void escribeLineas(const Arbol& raiz, Salida& salida) {
    Escritor escritor(salida);
    const auto entra = [&](const Paso& paso) {
        escritor.abreObjeto();
        escritor.campo("nodo", paso.numero);
        escritor.campo("padre", paso.padre);
        camposDeNodo(escritor, paso.nodo);
        escritor.cierraObjeto();
        escritor.acabaLinea();
    };
    recorre(raiz, entra, [](const Arbol& /*nodo*/) {});
}

void escribeJson(const std::vector<Diagnostico>& diagnosticos, std::u16string_view fichero, Salida& salida) {
    Escritor escritor(salida);
    escritor.abreObjeto();
    escritor.abreLista("diagnosticos");
    for (const Diagnostico& diagnostico : diagnosticos) {
        escritor.abreObjeto();
        camposDe(escritor, diagnostico, fichero);
        escritor.cierraObjeto();
    }
    escritor.cierraLista();
    escritor.cierraObjeto();
    escritor.acabaLinea();
}

void escribeJson(const Hallazgo& hallazgo, std::u16string_view fichero, Salida& salida) {
    Escritor escritor(salida);
    escritor.abreObjeto();
    camposDe(escritor, hallazgo.diagnostico, fichero);
    if (!hallazgo.historias.empty()) escribeHistorias(escritor, hallazgo.historias);
    escritor.cierraObjeto();
    escritor.acabaLinea();
}

void escribeJson(const parLT& token, std::int32_t linea, std::int32_t columna, Salida& salida) {
    Escritor escritor(salida);
    escritor.abreObjeto();
    escritor.campo("token", token.GetToken());
    escritor.campo("lexema", token.GetLexema());
    escritor.campo("linea", linea);
    escritor.campo("columna", columna);
    escritor.cierraObjeto();
    escritor.acabaLinea();
}

} // namespace norvik::orden
