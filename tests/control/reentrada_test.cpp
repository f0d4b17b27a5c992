// SPDX-License-Identifier: MIT

// Receivers of the control's events that load, parse, throw, or delete the control and all that it was made
// with, at each event of each operation. What must not be touched then is for the sanitizers to say.
#include "apoyo/anfitrion.hpp"
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/control/estadoBusqueda.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

constexpr std::u16string_view sumas =
    u"Token mas = \"\\+\"; Token num = \"[0-9]+\"; E -> E mas T | T; T -> num;";
constexpr std::u16string_view restas =
    u"Token men = \"-\"; Token num = \"[0-9]+\"; E -> T men E | T; T -> num;";
/// Says something at each of its three definitions.
constexpr std::u16string_view dudosas =
    u"Token a = \"[a\"; Token b = \"b\"; Token c = \"[c\"; Token d = \"<x>\"; S -> b;";

struct Reentrante;
using Accion = std::function<void(Reentrante&)>;

/// A host whose nth event carries something out.
struct Reentrante {
    struct SistemaConEventos : SistemaMemoria {
        explicit SistemaConEventos(Reentrante& anfitrion)
            : SistemaMemoria([&anfitrion](const Mensaje&) { anfitrion.suceso(); }), suyo(anfitrion) {}
        void procesaEventos() override { suyo.suceso(); }
        void imprime(std::u16string_view /*texto*/) override { suyo.suceso(); }
        Reentrante& suyo;
    };
    struct ContenedorConEventos : Contenedor {
        explicit ContenedorConEventos(Reentrante& anfitrion) : suyo(anfitrion) {}
        void cambioDePropiedad(std::u16string_view /*nombre*/) override { suyo.suceso(); }
        void cambioElTexto(const CambioDeTexto& /*cambio*/) override { suyo.suceso(); }
        void otroLenguaje() override { suyo.suceso(); }
        Reentrante& suyo;
    };

    Reentrante() {
        auto& e = norvik->eventos;
        e.change = e.SelChange = e.Click = [this] { suceso(); };
        e.CambioDeLinea = [this](std::int16_t&) { suceso(); };
        e.KeyDown = e.KeyUp = [this](std::int16_t&, std::int16_t&) { suceso(); };
        e.KeyPress = [this](std::int16_t&) { suceso(); };
        e.MouseDown = e.MouseUp = [this](std::int16_t&, std::int16_t&, float&, float&) { suceso(); };
        norvik->Colorear(true);
        norvik->AutoTAB(true);
        norvik->MarcarErrores(true);
        EXPECT_TRUE(norvik->CargaGramatica(sumas) && norvik->GeneraCompilador());
        norvik->Text(u"1 + 2\r\n+ 3\r\n");
    }
    void suceso() {
        if (accion && --faltan == 0) accion(*this);
    }

    int faltan = 0;
    Accion accion;
    SistemaConEventos sistema{*this};
    ContenedorConEventos contenedor{*this};
    std::unique_ptr<CajaTexto> caja = std::make_unique<CajaTexto>();
    std::unique_ptr<Norvik> norvik = std::make_unique<Norvik>(*caja, sistema, contenedor);
};

using Operacion = std::function<void(Reentrante&)>;

std::u16string moduloDudoso() {
    Anfitrion a;
    EXPECT_TRUE(a.compila(sumas));
    std::u16string modulo = a.norvik.Gramatica().textoModulo(u"M", a.norvik.Lexico());
    for (const std::u16string_view bueno : {u"\"\\+\"", u"\"[0-9]+\""})
        modulo.replace(modulo.find(bueno), bueno.size(), u"\"[a\"");
    return modulo;
}

void teclea(CajaTexto& caja) {
    std::int16_t codigo = tecla::retorno;
    std::int16_t shift = 0;
    if (caja.eventos.teclaAbajo) caja.eventos.teclaAbajo(codigo, shift);
}

const std::pair<const char*, Operacion> operaciones[] = {
    {"CargaGramatica", [](Reentrante& a) { a.norvik->CargaGramatica(dudosas); }},
    {"CargaGramatica mala", [](Reentrante& a) { a.norvik->CargaGramatica(u"Token"); }},
    {"GeneraCompilador", [](Reentrante& a) { a.norvik->GeneraCompilador(); }},
    {"CargaModulo", [](Reentrante& a) { CargaModulo(moduloDudoso(), *a.norvik); }},
    {"DistingueMayusculas", [](Reentrante& a) { a.norvik->DistingueMayusculas(); }},
    {"SetElementosTablaSLR", [](Reentrante& a) { a.norvik->SetElementosTablaSLR({}); }},
    {"SetER", [](Reentrante& a) { a.norvik->SetER(u"[", u"x", true); }},
    {"SetComentarioLinea", [](Reentrante& a) { a.norvik->SetComentarioLinea(u"["); }},
    {"ConstruyeArbolSintactico",
     [](Reentrante& a) {
         a.caja->ponTexto(u"1 2");
         if (a.norvik) a.norvik->ConstruyeArbolSintactico();
     }},
    {"Text", [](Reentrante& a) { a.norvik->Text(u"a\r\nb"); }},
    {"SelText", [](Reentrante& a) { a.norvik->SelText(u"a\r\nb"); }},
    {"SelStart", [](Reentrante& a) { a.norvik->SelStart(8); }},
    {"Find", [](Reentrante& a) { a.norvik->Find(u"3"); }},
    {"Undo",
     [](Reentrante& a) {
         a.caja->selecciona(7, 3);
         if (a.norvik) a.caja->reemplazaSeleccion(u"");
         if (a.norvik) a.norvik->Undo();
     }},
    {"Redo",
     [](Reentrante& a) {
         a.caja->reemplazaSeleccion(u"x\r\ny");
         if (a.norvik) a.norvik->Undo();
         if (a.norvik) a.norvik->Redo();
     }},
    {"sustituye", [](Reentrante& a) { a.norvik->destinoBusqueda().sustituye(0, 1, u"x\r\nyy"); }},
    {"BorraTodo", [](Reentrante& a) { a.norvik->BorraTodo(); }},
    {"CargarFichero",
     [](Reentrante& a) {
         const CarpetaTemporal carpeta;
         a.norvik->CargarFichero(carpeta.pon("f", "1 +\n2\n"));
     }},
    {"Imprimir", [](Reentrante& a) { a.norvik->Imprimir(); }},
    {"tabulador", [](Reentrante& a) { a.norvik->tabuladorEnfocado(); }},
    {"click", [](Reentrante& a) { a.norvik->clickEnSuperficie(); }},
    {"tecla", [](Reentrante& a) { teclea(*a.caja); }},
    {"propiedades", [](Reentrante& a) { a.norvik->MargenIzquierdo(7); }},
    {"Font",
     [](Reentrante& a) {
         a.norvik->Font({u"Otra", 5, true, true});
     }},
    {"restauraPropiedades", [](Reentrante& a) { a.norvik->restauraPropiedades({}); }},
    {"editCode", [](Reentrante& a) { a.norvik->editCode(true); }},
};

/// Carries out each operation with something done at each of its events in turn, until there are no more.
void paraCadaSuceso(const Accion& accion,
                    const std::function<void(Reentrante&, const std::string&)>& despues) {
    for (const auto& [nombre, operacion] : operaciones) {
        bool ocurrido = true;
        for (int vez = 1; ocurrido; ++vez) {
            ASSERT_LT(vez, 100) << nombre;
            Reentrante a;
            ocurrido = false;
            a.faltan = vez;
            a.accion = [&](Reentrante& quien) {
                ocurrido = true;
                accion(quien);
            };
            try {
                operacion(a);
            } catch (const std::exception&) { // a receiver's, or the end of a control
            }
            a.accion = nullptr;
            despues(a, nombre + (" " + std::to_string(vez)));
        }
    }
}

TEST(Reentrada, ElControlSeBorraEnSuSuceso) {
    paraCadaSuceso([](Reentrante& a) { a.norvik.reset(); },
                   [](Reentrante& a, const std::string& caso) {
                       EXPECT_EQ(a.sistema.puntero(), Puntero::Normal) << caso;
                       a.caja->reemplazaSeleccion(u"sigue");
                   });
    paraCadaSuceso(
        [](Reentrante& a) {
            a.norvik.reset();
            a.caja.reset();
        },
        [](Reentrante&, const std::string&) {});
}

TEST(Reentrada, UnReceptorQueFalla) {
    paraCadaSuceso([](Reentrante&) { throw std::runtime_error("receptor"); },
                   [](Reentrante& a, const std::string& caso) {
                       EXPECT_EQ(a.sistema.puntero(), Puntero::Normal) << caso;
                       EXPECT_TRUE(a.norvik->CargaGramatica(restas) && a.norvik->GeneraCompilador()) << caso;
                       a.norvik->Text(u"1-2");
                       EXPECT_TRUE(a.norvik->ConstruyeArbolSintactico()) << caso;
                   });
}

/// Whoever shows the control hears of the changes in their order, although a receiver makes one in the
/// middle.
TEST(Reentrada, ElContenedorOyeLosCambiosEnSuOrden) {
    struct Oyente : Contenedor {
        void cambioElTexto(const CambioDeTexto& cambio) override { oidos.push_back(cambio.inicio); }
        std::vector<std::int32_t> oidos;
    } contenedor;
    apoyo::SistemaVigilado sistema;
    CajaTexto caja;
    Norvik norvik{caja, sistema, contenedor};
    caja.ponTexto(u"abc");
    contenedor.oidos.clear();
    norvik.eventos.change = [&] {
        norvik.eventos.change = nullptr;
        caja.reemplaza(0, 1, u"xyz");
    };
    caja.reemplaza(2, 1, u"");
    EXPECT_EQ(caja.texto(), u"xyzb");
    EXPECT_EQ(contenedor.oidos, (std::vector<std::int32_t>{2, 0}));
}

/// A text of sums parses or not, but what parses gives a tree of one language.
TEST(Reentrada, UnReceptorQueAnaliza) {
    paraCadaSuceso(
        [](Reentrante& a) {
            a.norvik->SetTextoInvisible(u"1+2+3");
            a.norvik->MuestraMensajesDeError(false);
            if (!a.norvik->ConstruyeArbolSintacticoTextoInvisible()) return;
            EXPECT_EQ(a.norvik->GetArbolSintactico().toString(),
                      u"E -> E mas T [1]\n  E -> E mas T [1]\n    E -> T [2]\n      T -> num [3]\n"
                      u"        '1' (0, 0)\n    '+' (0, 0)\n    T -> num [3]\n      '2' (0, 0)\n"
                      u"  '+' (0, 0)\n  T -> num [3]\n    '3' (0, 0)\n");
        },
        [](Reentrante&, const std::string&) {});
}

/// Either the language of before is whole until the new one is, or the receiver's is loaded whole.
TEST(Reentrada, UnReceptorQueCompila) {
    paraCadaSuceso(
        [](Reentrante& a) {
            try {
                a.norvik->CargaGramatica(restas);
                a.norvik->GeneraCompilador();
            } catch (const ArgumentoNoValido& e) {
                EXPECT_EQ(e.texto(),
                          u"Argumento o llamada a procedimiento no válidos: el control está cargando "
                          u"o compilando un lenguaje, y no puede empezar con otro");
            }
        },
        [](Reentrante& a, const std::string& caso) {
            const auto& g = a.norvik->Gramatica();
            const std::u16string_view regla = g.GetRightRegla(1);
            const std::string_view operacion = caso;
            if (operacion.starts_with("CargaGramatica ")) {
                EXPECT_NE(regla, u"T men E") << caso;
            } else if (operacion.starts_with("GeneraCompilador")) {
                EXPECT_EQ(regla, u"E mas T") << caso;
            }
        });
}

TEST(Reentrada, DuranteLaCompilacionSeVeElLenguajeDeAntes) {
    Reentrante a;
    const std::u16string tabla = enTexto(a.norvik->Gramatica().valores().tabla);
    int veces = 0;
    a.accion = [&](Reentrante&) {
        a.faltan = 1;
        ++veces;
        a.norvik->SetTextoInvisible(u"1+2");
        EXPECT_TRUE(a.norvik->ConstruyeArbolSintacticoTextoInvisible());
        EXPECT_EQ(enTexto(a.norvik->Gramatica().valores().tabla), tabla);
        for (const auto& carga : std::initializer_list<std::function<void(Norvik&)>>{
                 [](auto& n) { n.SetER(u"x", u"x", true); }, [](auto& n) { n.SetPalabraReservada(u"x"); },
                 [](auto& n) { n.SetOperador(u"x", u"x"); }, [](auto& n) { n.SetComentarioLinea(u"x"); },
                 [](auto& n) { n.SetRegla(u"S -> x"); }, [](auto& n) { n.InsertarSimboloGramatica(u"x"); },
                 [](auto& n) { n.SetDimensionTablaSLR(1, 1); },
                 [](auto& n) { n.SetElementoTablaSLR(1, 1, 1); }, [](auto& n) { n.BorraLenguaje(); },
                 [](auto& n) { n.OlvidaLenguaje(); }, [](auto& n) { n.CargaGramatica(sumas); },
                 [](auto& n) { n.GeneraCompilador(); }})
            EXPECT_THROW(carga(*a.norvik), ArgumentoNoValido);
    };
    a.faltan = 1;
    EXPECT_TRUE(a.norvik->GeneraCompilador());
    EXPECT_EQ(veces, 6);
    EXPECT_EQ(enTexto(a.norvik->Gramatica().valores().tabla), tabla);
    a.accion = nullptr;
    EXPECT_TRUE(a.norvik->CargaGramatica(restas) && a.norvik->GeneraCompilador());
}

TEST(Reentrada, LosAvisosDeUnaCargaSeVenConElLenguajeNuevo) {
    Reentrante a;
    int veces = 0;
    a.accion = [&](Reentrante&) {
        a.faltan = 1;
        ++veces;
        EXPECT_EQ(a.norvik->Gramatica().GetRightRegla(1), u"b");
        a.norvik->SetTextoInvisible(u"1 2");
        a.norvik->MuestraMensajesDeError(false);
        a.norvik->ConstruyeArbolSintacticoTextoInvisible(); // its message is not that of the load
    };
    a.faltan = 2; // the first one says that there will be another language
    EXPECT_TRUE(a.norvik->CargaGramatica(dudosas));
    EXPECT_EQ(veces, 3);
}

} // namespace
