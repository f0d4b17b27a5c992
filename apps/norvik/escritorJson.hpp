// SPDX-License-Identifier: MIT

#pragma once

#include "salida.hpp"

#include "norvik/base/memoriaJson.hpp"
#include "norvik/base/texto.hpp"

#include <concepts>
#include <cstdint>
#include <rapidjson/writer.h>
#include <string>
#include <string_view>

namespace norvik::orden {

/// Standard output as RapidJSON writes to it.
struct Flujo {
    using Ch = char;
    void Put(Ch c) { salida.escribe({&c, 1}); }
    void Flush() {}

    Salida& salida;
};

/// Writes JSON in UTF-8: a lone surrogate comes out as U+FFFD.
class Escritor {
public:
    explicit Escritor(Salida& salida) : flujo_{salida} {}

    void abreObjeto() { escritor_.StartObject(); }
    void cierraObjeto() { escritor_.EndObject(); }
    void abreLista(const char* clave) {
        escritor_.Key(clave);
        escritor_.StartArray();
    }
    void cierraLista() { escritor_.EndArray(); }
    void campo(const char* clave, std::u16string_view texto) {
        escritor_.Key(clave);
        elemento(texto);
    }
    void elemento(std::u16string_view texto) {
        const std::string bytes = aUtf8(texto);
        escritor_.String(bytes.data(), static_cast<rapidjson::SizeType>(bytes.size()));
    }
    void abreObjeto(const char* clave) {
        escritor_.Key(clave);
        escritor_.StartObject();
    }
    void campo(const char* clave, std::int32_t numero) {
        escritor_.Key(clave);
        escritor_.Int(numero);
    }
    void campo(const char* clave, std::same_as<bool> auto valor) { // nothing else may turn into one
        escritor_.Key(clave);
        escritor_.Bool(valor);
    }
    void acabaLinea() {
        flujo_.Put('\n');
        escritor_.Reset(flujo_);
    }

private:
    Flujo flujo_;
    rapidjson::Writer<Flujo, rapidjson::UTF8<>, rapidjson::UTF8<>, MemoriaJson> escritor_{flujo_};
};

} // namespace norvik::orden
