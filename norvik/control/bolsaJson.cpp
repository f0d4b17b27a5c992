// SPDX-License-Identifier: MIT

// A property bag as JSON. Reading does not recurse, whatever noise the file holds.

#include "norvik/base/errores.hpp"
#include "norvik/base/memoriaJson.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/bolsaPropiedades.hpp"

#include <rapidjson/error/error.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using Bolsa = BolsaPropiedades;

/// Fills a bag with the members of the outermost object; what is deeper belongs to a value of another kind.
class Lector : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Lector> {
public:
    Bolsa bolsa;

    bool Null() { return pon(Bolsa::Otro{}); }
    bool Bool(bool valor) { return pon(valor); }
    bool RawNumber(const char* cifras, rapidjson::SizeType cuantas, bool /*copia*/) {
        constexpr double mayor = 1e18; // more than any property takes
        double valor = mayor;
        std::from_chars(cifras, cifras + cuantas, valor);
        return pon(Bolsa::Numero{std::llround(std::clamp(valor * 10000, -mayor, mayor))});
    }
    bool String(const char* texto, rapidjson::SizeType longitud, bool /*copia*/) {
        return pon(desdeUtf8({texto, longitud}).value_or(std::u16string()));
    }
    bool Key(const char* texto, rapidjson::SizeType longitud, bool /*copia*/) {
        if (hondo_ == 1) clave_ = desdeUtf8({texto, longitud}).value_or(std::u16string());
        return true;
    }
    bool StartObject() { return entra(); }
    bool EndObject(rapidjson::SizeType /*miembros*/) { return sale(); }
    bool StartArray() { return hondo_ > 0 && entra(); }
    bool EndArray(rapidjson::SizeType /*elementos*/) { return sale(); }

private:
    bool entra() {
        if (hondo_ == 1) bolsa.pon(clave_, Bolsa::Otro{});
        ++hondo_;
        return true;
    }
    bool sale() {
        --hondo_;
        return true;
    }
    /// A value by itself is no bag: the reading ends there.
    bool pon(Bolsa::Valor valor) {
        if (hondo_ == 1) bolsa.pon(clave_, std::move(valor));
        return hondo_ > 0;
    }

    std::u16string clave_;
    std::size_t hondo_ = 0;
};

class Escritor {
public:
    Escritor() { escritor_.SetIndent(' ', 2); }

    void abre() { escritor_.StartObject(); }
    void cierra() { escritor_.EndObject(); }
    void pon(std::u16string_view clave, const auto& valor) {
        const std::string bytes = aUtf8(clave);
        escritor_.Key(bytes.data(), static_cast<rapidjson::SizeType>(bytes.size()));
        (*this)(valor);
    }
    std::string texto() const { return std::string(bufer_.GetString(), bufer_.GetSize()) + '\n'; }

    void operator()(Bolsa::Otro /*valor*/) { escritor_.Null(); }
    void operator()(bool valor) { escritor_.Bool(valor); }
    void operator()(Bolsa::Numero valor) {
        const std::string cifras = decimal(valor.diezmilesimas);
        escritor_.RawValue(cifras.data(), cifras.size(), rapidjson::kNumberType);
    }
    void operator()(const std::u16string& valor) {
        const std::string bytes = aUtf8(valor);
        if (desdeUtf8(bytes) != valor)
            throw ErrorDeFichero(
                u"No se puede guardar un texto con caracteres a medias (un sustituto suelto)");
        escritor_.String(bytes.data(), static_cast<rapidjson::SizeType>(bytes.size()));
    }
    void operator()(const Fuente& fuente) {
        abre();
        pon(u"Bold", fuente.negrita);
        pon(u"Charset", entero(fuente.juegoCaracteres));
        pon(u"Italic", fuente.cursiva);
        pon(u"Name", fuente.nombre);
        pon(u"Size", Bolsa::Numero{fuente.tamano});
        pon(u"Strikethrough", fuente.tachado);
        pon(u"Underline", fuente.subrayado);
        pon(u"Weight", entero(fuente.peso));
        cierra();
    }

private:
    static Bolsa::Numero entero(std::int16_t valor) { return {valor * std::int64_t{10000}}; }
    static std::string decimal(std::int64_t diezmilesimas) {
        const std::int64_t positivo = std::abs(diezmilesimas);
        std::string cifras = std::to_string(positivo / 10000);
        if (positivo % 10000 != 0) {
            cifras += "." + std::to_string(10000 + positivo % 10000).substr(1);
            cifras.erase(cifras.find_last_not_of('0') + 1);
        }
        return diezmilesimas < 0 ? "-" + cifras : cifras;
    }

    using Utf8 = rapidjson::UTF8<>;
    using Bufer = rapidjson::GenericStringBuffer<Utf8, MemoriaJson>;

    Bufer bufer_;
    rapidjson::PrettyWriter<Bufer, Utf8, Utf8, MemoriaJson> escritor_{bufer_};
};

} // namespace

BolsaPropiedades BolsaPropiedades::deJson(std::string_view bytes) {
    constexpr std::string_view marca = "\xEF\xBB\xBF";
    if (bytes.starts_with(marca)) bytes.remove_prefix(marca.size());
    constexpr unsigned opciones = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag |
                                  rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream flujo(bytes.data(), bytes.size());
    rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, MemoriaJson> lector;
    Lector leido;
    const rapidjson::ParseResult resultado = lector.Parse<opciones>(flujo, leido);
    if (resultado && flujo.Tell() == bytes.size()) return std::move(leido.bolsa);
    const auto hasta = bytes.substr(0, flujo.Tell());
    const auto linea = std::count(hasta.begin(), hasta.end(), '\n') + 1;
    throw NoCoincidenLosTipos(u"No coinciden los tipos: la línea " + aTexto(linea) +
                              u" no es de una bolsa de propiedades");
}

std::string BolsaPropiedades::aJson() const {
    Escritor escritor;
    escritor.abre();
    for (const auto& [clave, valor] : valores_) {
        std::visit([&, &nombre = clave](const auto& v) { escritor.pon(nombre, v); }, valor);
    }
    escritor.cierra();
    return escritor.texto();
}

} // namespace norvik::inline v0_2
