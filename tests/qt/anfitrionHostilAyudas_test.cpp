// SPDX-License-Identifier: MIT

// A host whose receivers suppress, change, insert, move the caret, load, throw or delete at each event of
// each key, with all aids on; and of what only the aids do.
#include "qt/anfitrionHostil.hpp"

using namespace norvik;
using namespace norvik::hostil;

namespace {

/// Keys with nothing selected, and with part of two lines.
Operaciones teclas() {
    struct Tecla {
        const char* nombre;
        Qt::Key tecla;
        const char* escrito;
        Qt::KeyboardModifiers teclas = Qt::NoModifier;
    };
    const Tecla todas[] = {{"letra", Qt::Key_A, "a"},
                           {"retorno", Qt::Key_Return, "\r"},
                           {"escape", Qt::Key_Escape, "\x1b"},
                           {"retroceso", Qt::Key_Backspace, "\b"},
                           {"suprimir", Qt::Key_Delete, "\x7f"},
                           {"flecha", Qt::Key_Down, ""},
                           {"pegar", Qt::Key_Insert, "", Qt::ShiftModifier}};
    Operaciones operaciones;
    for (const bool seleccion : {false, true})
        for (const Tecla& t : todas)
            operaciones.emplace_back(std::string(t.nombre) + (seleccion ? " sobre la selección" : ""),
                                     [t, seleccion](Hostil& h) {
                                         QApplication::clipboard()->setText("7\n8");
                                         h.norvik->caja().selecciona(2, seleccion ? 6 : 0);
                                         if (h.norvik.isNull()) return;
                                         teclea(h, t.tecla, t.escrito, t.teclas);
                                     });
    return operaciones;
}

void ordena(Hostil& h, AccionNorvik cual) {
    if (!h.norvik.isNull()) h.norvik->accion(cual)->trigger();
    Hostil::acaba();
}

void giraConControl(Hostil& h) {
    QWidget* const vista = static_cast<QPlainTextEdit*>(h.editor())->viewport();
    QWheelEvent evento({9, 9}, vista->mapToGlobal(QPointF(9, 9)), {}, {0, 120}, {}, Qt::ControlModifier,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(vista, &evento);
}

/// What is looked for is found in another thread.
void busca(Hostil& h) {
    ordena(h, AccionNorvik::Buscar);
    if (h.norvik.isNull()) return;
    auto* const campo = h.norvik->findChild<QLineEdit*>("campo");
    if (campo == nullptr) return;
    campo->setText("3");
    QTest::qWait(30);
    ordena(h, AccionNorvik::BuscarSiguiente);
    if (h.norvik.isNull()) return;
    if (QWidget* const foco = QApplication::focusWidget(); foco != nullptr)
        QTest::keyClick(foco, Qt::Key_Escape);
}

void completa(Hostil& h) {
    h.norvik->caja().selecciona(1, 0);
    teclea(h, Qt::Key_Space, " ", Qt::ControlModifier);
    teclea(h, Qt::Key_Return, "\r");
}

const Operaciones deLasAyudas = {
    {"completar", completa},
    {"buscar", busca},
    {"sangrar",
     [](Hostil& h) {
         h.norvik->caja().selecciona(0, 8);
         teclea(h, Qt::Key_Tab, "\t");
         teclea(h, Qt::Key_Backtab, {}, Qt::ShiftModifier);
     }},
    {"borrar la palabra",
     [](Hostil& h) {
         h.norvik->caja().selecciona(5, 0);
         teclea(h, Qt::Key_Backspace, "\x7f", Qt::ControlModifier);
     }},
    {"deshacer y rehacer",
     [](Hostil& h) {
         teclea(h, Qt::Key_A, "a");
         ordena(h, AccionNorvik::Deshacer);
         ordena(h, AccionNorvik::Rehacer);
     }},
    {"cortar y pegar",
     [](Hostil& h) {
         h.norvik->caja().selecciona(0, 8);
         ordena(h, AccionNorvik::Cortar);
         ordena(h, AccionNorvik::Pegar);
     }},
    {"ampliar", [](Hostil& h) { teclea(h, Qt::Key_Plus, "+", Qt::ControlModifier); }},
    {"girar la rueda", giraConControl},
    {"plegar", [](Hostil& h) { ordena(h, AccionNorvik::Plegar); }},
    {"ponDiagnosticos",
     [](Hostil& h) {
         h.norvik->ponDiagnosticos(analiza(h.norvik->control().lenguaje(), u"+").diagnosticos);
     }},
    {"irA",
     [](Hostil& h) {
         h.norvik->irA({{7}, {8}});
     }},
    {"soloLectura", [](Hostil& h) { h.norvik->setProperty("soloLectura", true); }},
    {"otra ayuda", [](Hostil& h) { h.norvik->setProperty("numerosDeLinea", false); }},
    {"cargaLenguaje", [](Hostil& h) { h.norvik->cargaLenguaje(restas); }},
    {"setFont", [](Hostil& h) { h.norvik->setFont(QFont("Otra", 20)); }},
};

/// The editor shows the text and the caret that the control has, and nobody was told of a failure.
void compruebaQueTodoConcuerda(Hostil& h, const std::string& caso) {
    ASSERT_FALSE(h.norvik.isNull()) << caso;
    const auto& vista = *static_cast<QPlainTextEdit*>(h.editor());
    const QString texto = h.norvik->Text();
    EXPECT_EQ(vista.toPlainText(), conSaltosDeQt(texto)) << caso;
    const int cursor = h.norvik->caja().inicioSeleccion();
    EXPECT_EQ(vista.textCursor().selectionStart(), conSaltosDeQt(texto.left(cursor)).size()) << caso;
    EXPECT_EQ(vista.textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'),
              conSaltosDeQt(h.norvik->SelText()))
        << caso;
    EXPECT_EQ(h.servicios.mensajes, std::vector<std::u16string>{}) << caso;
}

const Despues concuerda = [](Hostil& h, const std::string& caso, bool lanzado) {
    EXPECT_FALSE(lanzado) << caso;
    compruebaQueTodoConcuerda(h, caso);
};

} // namespace

TEST(AnfitrionHostilAyudas, LosReceptoresCambianLoQuePasa) {
    const Operaciones deTeclas = teclas();
    const std::pair<const char*, Accion> acciones[] = {
        {"suprime",
         [](Hostil& h) {
             if (h.argumento != nullptr) *h.argumento = 0;
         }},
        {"cambia",
         [](Hostil& h) {
             if (h.argumento != nullptr) *h.argumento = 'B';
         }},
        {"inserta", [](Hostil& h) { h.norvik->SelText("9\n9"); }},
        {"mueve", [](Hostil& h) { h.norvik->caja().selecciona(1, 0); }},
        {"selecciona", [](Hostil& h) { h.norvik->caja().selecciona(0, 100); }},
        {"pone", [](Hostil& h) { h.norvik->Text("otro"); }}};
    for (const bool conAyudas : {false, true})
        for (const auto& [nombre, accion] : acciones) {
            SCOPED_TRACE(nombre);
            enTodos({&deTeclas}, accion, concuerda, conAyudas);
        }
}

TEST(AnfitrionHostilAyudas, LosReceptoresInsertanCarganLanzanYBorran) {
    const Accion inserta = [](Hostil& h) { h.norvik->SelText("9\n9"); };
    const Accion carga = [](Hostil& h) {
        try {
            h.norvik->control().CargaGramatica(vistaDe(restas));
            h.norvik->control().GeneraCompilador();
        } catch (const ArgumentoNoValido&) { // it is being loaded by another
        }
    };
    const Operaciones deTeclas = teclas();
    const std::pair<const Operaciones*, bool> casos[] = {
        {&deLasAyudas, true}, {&deTeclas, true}, {&deTeclas, false}};
    for (const auto& [operaciones, conAyudas] : casos) {
        SCOPED_TRACE(conAyudas ? "con ayudas" : "sin ayudas");
        for (const Accion& accion : {inserta, carga})
            enTodos(
                {operaciones}, accion,
                [](Hostil& h, const std::string& caso, bool lanzado) {
                    EXPECT_FALSE(lanzado) << caso;
                    h.servicios.mensajes.clear(); // a language that is no more what was asked for is told
                    compruebaQueTodoConcuerda(h, caso);
                },
                conAyudas);
        enTodos(
            {operaciones}, [](Hostil& h) { borra(h.norvik); },
            [](Hostil& h, const std::string& caso, bool) { EXPECT_TRUE(h.norvik.isNull()) << caso; },
            conAyudas);
        enTodos(
            {operaciones}, [](Hostil&) { throw Desbordamiento(); },
            [](Hostil& h, const std::string& caso, bool lanzado) {
                const std::vector<std::u16string> uno{u"Desbordamiento"};
                EXPECT_TRUE(lanzado || h.servicios.mensajes == uno) << caso;
                h.servicios.mensajes.clear();
                compruebaQueTodoConcuerda(h, caso);
            },
            conAyudas);
    }
}
