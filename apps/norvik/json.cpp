#include "json.hpp"

#include "recorrido.hpp"

#include "norvik/base/texto.hpp"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace norvik::orden {

namespace {

/// Writes JSON in UTF-8: a lone surrogate comes out as U+FFFD.
class Escritor {
public:
    void abreObjeto() { escritor_.StartObject(); }
    void cierraObjeto() { escritor_.EndObject(); }
    void abreLista(const char* clave) {
        escritor_.Key(clave);
        escritor_.StartArray();
    }
    void cierraLista() { escritor_.EndArray(); }
    void campo(const char* clave, std::u16string_view texto) {
        const std::string bytes = aUtf8(texto);
        escritor_.Key(clave);
        escritor_.String(bytes.data(), static_cast<rapidjson::SizeType>(bytes.size()));
    }
    void campo(const char* clave, std::int32_t numero) {
        escritor_.Key(clave);
        escritor_.Int(numero);
    }
    void acabaLinea() {
        bufer_.Put('\n');
        escritor_.Reset(bufer_);
    }
    std::string texto() const { return {bufer_.GetString(), bufer_.GetSize()}; }

private:
    rapidjson::StringBuffer bufer_;
    rapidjson::Writer<rapidjson::StringBuffer> escritor_{bufer_};
};

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

} // namespace

std::string jsonDeArbol(const Arbol& raiz) {
    Escritor escritor;
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
    return escritor.texto();
}

std::string lineasDeArbol(const Arbol& raiz) {
    Escritor escritor;
    const auto entra = [&](const Paso& paso) {
        escritor.abreObjeto();
        escritor.campo("nodo", paso.numero);
        escritor.campo("padre", paso.padre);
        camposDeNodo(escritor, paso.nodo);
        escritor.cierraObjeto();
        escritor.acabaLinea();
    };
    recorre(raiz, entra, [](const Arbol& /*nodo*/) {});
    return escritor.texto();
}

std::string jsonDeToken(const parLT& token, std::int32_t linea, std::int32_t columna) {
    Escritor escritor;
    escritor.abreObjeto();
    escritor.campo("token", token.GetToken());
    escritor.campo("lexema", token.GetLexema());
    escritor.campo("linea", linea);
    escritor.campo("columna", columna);
    escritor.cierraObjeto();
    escritor.acabaLinea();
    return escritor.texto();
}

} // namespace norvik::orden
