// SPDX-License-Identifier: MIT

// The option properties: defaults, notifications, layout, and how they are saved.
#include "apoyo/anfitrion.hpp"
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/control/lineasTexto.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/ranurasDisenio.hpp"

#include <gtest/gtest.h>

#include <functional>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

/// Writes down what the control tells its container.
struct ContenedorVigilado : Contenedor {
    std::u16string pasos;
    std::optional<Disposicion> disposicion;

    std::u16string damePasos() { return std::exchange(pasos, {}); }
    void cambioDePropiedad(std::u16string_view nombre) override { anota(nombre); }
    Medidas medidas() const override { return {6000, 3000, 15, 15}; }
    void muestraMarco(bool visible) override { anota(visible ? u"+marco" : u"-marco"); }
    void muestraBordeIzquierdo(bool visible) override { anota(visible ? u"+borde" : u"-borde"); }
    void coloca(const Disposicion& d) override {
        disposicion = d;
        anota(u"coloca");
    }
    void ponSigno(const signoDebuger& signo, const LugarDeSigno& lugar) override {
        anota(u"signo " + aTexto(signo.indice) + u" en " + aTexto(lugar.y));
    }
    void muestraAcerca() override { anota(u"acerca"); }
    void muestraInforme() override { anota(u"informe"); }

private:
    void anota(std::u16string_view paso) { pasos.append(paso).append(u" "); }
};

struct Contenido {
    ContenedorVigilado contenedor;
    SistemaVigilado sistema;
    CajaTexto caja;
    Norvik n{caja, sistema, contenedor};
};

BolsaPropiedades guarda(const Norvik& norvik) {
    BolsaPropiedades bolsa;
    norvik.guardaPropiedades(bolsa);
    return bolsa;
}

TEST(Propiedades, FuenteDeLaSeleccion) {
    Contenido c;
    c.n.Text(u"abc");
    c.caja.selecciona(0, 1);
    c.n.SelFontName(u"Arial");
    c.n.SelFontSize(14);
    EXPECT_EQ(c.n.SelFontName(), u"Arial");
    EXPECT_EQ(c.n.SelFontSize(), 14);
    c.caja.ponTamanoFuenteSeleccion(400000000);
    EXPECT_THROW(static_cast<void>(c.n.SelFontSize()), Desbordamiento);
}

TEST(Propiedades, IntercambioConElDisenio) {
    ranurasDisenio() = {};
    Contenido c;
    BolsaPropiedades bolsa;
    bolsa.escribeTexto(u"ContenidoG", u"S -> a;", {});
    bolsa.escribeTexto(u"CodigoPrueba", u"a a", {});
    c.n.restauraPropiedades(bolsa);
    EXPECT_FALSE(c.n.editCode().has_value());
    EXPECT_EQ(ranurasDisenio().especificacion, u"S -> a;");
    ranurasDisenio() = {u"T -> b;", u"b", true};
    c.contenedor.damePasos();
    c.n.editCode(std::any(3));
    EXPECT_EQ(c.contenedor.damePasos(), u"ContenidoG ContenidoG CodigoPrueba pendienteGuardarG ");
    EXPECT_EQ(c.n.opciones().contenidoG, u"T -> b;");
    EXPECT_EQ(c.n.opciones().codigoPrueba, u"b");
    EXPECT_TRUE(c.n.opciones().pendienteGuardarG);
    EXPECT_EQ(ranurasDisenio().especificacion + ranurasDisenio().textoPrueba, u"");
}

} // namespace

TEST(Propiedades, CadaUnaAvisaCuandoCambia) {
    Contenido c;
    Norvik& n = c.n;
    EXPECT_EQ(c.contenedor.damePasos(), u"+borde coloca LeftBorderVisible ");
    EXPECT_EQ(c.caja.margenDerecho(), 15 * 8192);
    const std::pair<std::function<void()>, std::u16string_view> casos[] = {
        {[&] { n.Borde3D(false); }, u"-marco Borde3D coloca "},
        {[&] { n.MargenIzquierdo(90); }, u"coloca MargenIzquierdo "},
        {[&] { n.HideSelection(false); }, u"HideSelection "},
        {[&] { n.LenguajeSensible(true); }, u"LenguajeSensible "},
        {[&] { n.AutoCorreccion(true); }, u"AutoCorreccion "},
        {[&] { n.EspaciosXTAB(3); }, u"EspaciosXTAB "},
        {[&] { n.AutoTAB(false); }, u"AutoTAB "},
        {[&] { n.MarcarErrores(true); }, u"MarcarErrores "},
        {[&] { n.MuestraMensajesDeError(true); }, u"MuestraMensajesDeError "},
        {[&] { n.Colorear(true); }, u"Colorear "},
        {[&] { n.NomLenguaje(u"C"); }, u"NombreLenguaje "},
        {[&] { n.AutoNumero(false); }, u"AutoNumero "},
        {[&] { n.ColorPR(1); }, u"ColorPR "},
        {[&] { n.ColorFechas(1); }, u"ColorFechas "},
        {[&] { n.Text(u"abc"); }, u"Text "},
        {[&] { n.Font({.nombre = u"Arial", .tamano = 97500, .negrita = true}); },
         u"FontBold FontName FontSize "},
    };
    for (const auto& [cambia, pasos] : casos) {
        cambia();
        EXPECT_EQ(c.contenedor.damePasos(), pasos);
        cambia(); // the same value again
        EXPECT_EQ(c.contenedor.damePasos(), u"");
    }
    n.LeftBorderVisible(true); // this one always does
    EXPECT_EQ(c.contenedor.damePasos(), u"+borde coloca LeftBorderVisible ");
    EXPECT_EQ(c.contenedor.disposicion->texto.x, 315 + 15 + 90);
    n.ColoreaTodo();
    EXPECT_EQ(c.caja.izquierda(), 315 + 15 + 90);
    n.PonSignoError(3);
    n.Acerca();
    n.MuestraInforme();
    n.SetTraduccion(1, u"a", u"b");
    EXPECT_EQ(c.contenedor.damePasos(), u"signo 2 en 468 acerca informe ");
}

TEST(Bolsa, UnControlNuevo) {
    const Contenido c;
    EXPECT_EQ(guarda(c.n).aJson(), "{\n  \"Colorear\": false,\n  \"ColorNumeros\": 8421376,\n"
                                   "  \"MuestraMensajesDeError\": false\n}\n");
}

TEST(Bolsa, LoQueFaltaTomaSuOmision) {
    Contenido c;
    c.n.EspaciosXTAB(9);
    c.n.Font({.tamano = 120000, .cursiva = true});
    c.n.Text(u"se va");
    c.contenedor.damePasos();
    c.n.restauraPropiedades({});
    EXPECT_EQ(c.contenedor.damePasos(), u"+marco +borde coloca LeftBorderVisible coloca ");
    EXPECT_EQ(guarda(c.n).aJson(), "{}\n");
    EXPECT_TRUE(c.n.Colorear() && c.n.MuestraMensajesDeError());
    EXPECT_EQ(c.n.ColorNumeros(), 0);
    EXPECT_EQ(c.n.Font(), Fuente{});
    EXPECT_EQ(c.n.Text(), u"");
}

TEST(Bolsa, LoGuardadoVuelveIgual) {
    const CarpetaTemporal carpeta;
    Contenido c;
    Norvik& n = c.n;
    n.Borde3D(false);
    n.LeftBorderVisible(false);
    n.MargenIzquierdo(-30000);
    n.HideSelection(false);
    n.AutoNumero(false);
    n.AutoTAB(false);
    n.Colorear(true);
    n.ColorError(-1);
    n.ColorCadena(0x7FFFFFFF);
    n.EspaciosXTAB(0);
    n.NomLenguaje(u"Ñu \"C\"\\\r\n\t\U0001F600");
    n.Font({.nombre = u"Courier",
            .tamano = 97525,
            .negrita = true,
            .tachado = true,
            .juegoCaracteres = 2,
            .peso = 700});
    ranurasDisenio() = {u"S -> a;\r\n", u"a", true};
    n.editCode({});
    guarda(n).aFichero(carpeta / "b.json");
    EXPECT_NE(bytesDe(carpeta / "b.json").find("\"FontSize\": 9.7525,"), std::string::npos);
    Contenido otro;
    otro.n.restauraPropiedades(BolsaPropiedades::deFichero(carpeta / "b.json"));
    EXPECT_EQ(guarda(otro.n).aJson(), bytesDe(carpeta / "b.json"));
    EXPECT_EQ(otro.n.Font(), n.Font());
    EXPECT_EQ(otro.n.NomLenguaje(), n.NomLenguaje());
    EXPECT_EQ(otro.n.opciones().contenidoG, u"S -> a;\r\n");
    EXPECT_FALSE(otro.n.opciones().pendienteGuardarG); // never saved
    n.NomLenguaje(std::u16string(1, u'\xD800'));
    EXPECT_THROW(guarda(n).aFichero(carpeta / "b.json"), ErrorDeFichero);
    EXPECT_EQ(carpeta.entradas(), 1U);
    EXPECT_EQ(guarda(otro.n).aJson(), bytesDe(carpeta / "b.json"));
}

/// Each key with a value that is not its default, as they are written.
const std::string todasLasClaves = R"({
  "AutoCorreccion": true,
  "AutoNumero": false,
  "AutoTAB": false,
  "Borde3D": false,
  "ColorComentarios": 1,
  "Colorear": false,
  "ColorEtiquetas": 2,
  "ColorError": 3,
  "ColorNumeros": 4,
  "ColorOperadores": 5,
  "ColorPR": 6,
  "ColorCadena": 7,
  "ColorCaracter": 8,
  "ColorFechas": 9,
  "EspaciosXTAB": 10,
  "FontBold": true,
  "FontCharset": 11,
  "FontItalic": true,
  "FontName": "Arial",
  "FontSize": 12.5,
  "FontStrikethrough": true,
  "FontUnderline": true,
  "FontWeight": 700,
  "Font": {
    "Bold": true,
    "Charset": 11,
    "Italic": true,
    "Name": "Arial",
    "Size": 12.5,
    "Strikethrough": true,
    "Underline": true,
    "Weight": 700
  },
  "HideSelection": false,
  "LeftBorderVisible": false,
  "LenguajeSensible": true,
  "MarcarErrores": true,
  "MargenIzquierdo": 14,
  "MuestraMensajesDeError": false,
  "NombreLenguaje": "C",
  "CodigoPrueba": "a",
  "ContenidoG": "S -> a;"
}
)";

TEST(Bolsa, TodasLasClavesEnSuOrden) {
    Contenido c;
    c.contenedor.damePasos();
    c.n.restauraPropiedades(BolsaPropiedades::deJson(todasLasClaves));
    EXPECT_EQ(c.contenedor.damePasos(), u"AutoCorreccion AutoNumero -marco -borde coloca LeftBorderVisible "
                                        u"LenguajeSensible coloca ");
    EXPECT_EQ(guarda(c.n).aJson(), todasLasClaves);
}

/// A key that fails leaves those read before it, and no other.
TEST(Bolsa, SeLeenPorSuOrden) {
    const std::u16string_view claves[] = {u"AutoCorreccion",
                                          u"AutoNumero",
                                          u"AutoTAB",
                                          u"Borde3D",
                                          u"ColorCadena",
                                          u"ColorCaracter",
                                          u"ColorComentarios",
                                          u"Colorear",
                                          u"ColorEtiquetas",
                                          u"ColorError",
                                          u"ColorFechas",
                                          u"ColorNumeros",
                                          u"ColorOperadores",
                                          u"ColorPR",
                                          u"EspaciosXTAB",
                                          u"FontBold",
                                          u"FontCharset",
                                          u"FontItalic",
                                          u"FontName",
                                          u"FontSize",
                                          u"FontStrikethrough",
                                          u"FontUnderline",
                                          u"FontWeight",
                                          u"HideSelection",
                                          u"LeftBorderVisible",
                                          u"LenguajeSensible",
                                          u"MarcarErrores",
                                          u"MargenIzquierdo",
                                          u"MuestraMensajesDeError",
                                          u"NombreLenguaje",
                                          u"Text",
                                          u"ContenidoG",
                                          u"CodigoPrueba",
                                          u"pendienteGuardarG"};
    for (const std::u16string_view mala : claves) {
        Contenido c;
        c.n.restauraPropiedades({}); // the defaults
        BolsaPropiedades bolsa = BolsaPropiedades::deJson(todasLasClaves);
        bolsa.pon(u"Text", std::u16string(u"x"));
        bolsa.pon(mala, BolsaPropiedades::Otro{});
        EXPECT_THROW(c.n.restauraPropiedades(bolsa), NoCoincidenLosTipos);
        const BolsaPropiedades quedan = guarda(c.n);
        bool leidas = true;
        for (const std::u16string_view clave : claves) {
            leidas = leidas && clave != mala;
            if (clave == u"pendienteGuardarG") continue; // neither is written
            EXPECT_EQ(clave == u"Text" ? c.n.Text() == u"x" : quedan.tiene(clave), leidas)
                << aUtf8(mala) << ' ' << aUtf8(clave);
        }
    }
}

TEST(Bolsa, LoQueNoSeConvierteSeDice) {
    const std::string deOtroTipo[] = {R"("4")", "4.5", "true", "null", "[4]", R"({"a": 4})"};
    const std::string excesivos[] = {"32768", "-1e300", "9999999999999999999999"};
    const auto restaura = [](const std::string& valor) {
        Contenido contenido;
        Norvik& n = contenido.n;
        auto bolsa = BolsaPropiedades::deJson("{\"EspaciosXTAB\": " + valor + "}");
        bolsa.pon(u"AutoTAB", false);
        bolsa.pon(u"LenguajeSensible", true);
        PasosFirmes paso;
        paso([&] { n.restauraPropiedades(bolsa); });
        EXPECT_FALSE(n.AutoTAB());          // read before
        EXPECT_EQ(n.EspaciosXTAB(), 4);     // not set
        EXPECT_FALSE(n.LenguajeSensible()); // not reached
        paso.acaba();
    };
    for (const auto& valor : deOtroTipo) EXPECT_THROW(restaura(valor), NoCoincidenLosTipos) << valor;
    for (const auto& valor : excesivos) EXPECT_THROW(restaura(valor), Desbordamiento) << valor;
}

TEST(Bolsa, RuidoYMediosFicheros) {
    Contenido c;
    c.n.NomLenguaje(u"ñandú");
    c.n.Font({.nombre = u"Arial"});
    const std::string entero = guarda(c.n).aJson();
    for (std::size_t n = 0; n + 1 < entero.size(); ++n) {
        EXPECT_THROW(BolsaPropiedades::deJson(entero.substr(0, n)), NoCoincidenLosTipos) << n;
    }
    const std::string ruido[] = {"[]",
                                 "3",
                                 "{\"a\":}",
                                 "{\"a\":1}x",
                                 "{\"a\":\"\xFF\"}",
                                 "{\"a\":1,}",
                                 "{'a':1}",
                                 R"({"a":"\uD800"})",
                                 std::string("{}\0x", 4),
                                 std::string(100000, '['),
                                 "{\"a\":" + std::string(100000, '{')};
    for (const auto& r : ruido) {
        EXPECT_THROW(BolsaPropiedades::deJson(r), NoCoincidenLosTipos) << r.substr(0, 20);
    }
    EXPECT_NO_THROW(BolsaPropiedades::deJson("\xEF\xBB\xBF{\"a\":[[{\"b\":[1,true,null]}]],\"a\":2e0}\n"));
    EXPECT_THROW(BolsaPropiedades::deFichero("no hay"), ErrorDeFichero);
}

TEST(LineasTexto, DameLineaYEspacios) {
    EXPECT_EQ(dameLinea(2, u"uno\r\n"), u"");
    EXPECT_EQ(dameLinea(7, u""), u"");
    EXPECT_EQ(espacios(2, 3), u"      ");
    EXPECT_THROW(espacios(200, 200), Desbordamiento);
    EXPECT_THROW(espacios(2, -3), ArgumentoNoValido);
}
