// SPDX-License-Identifier: MIT

// A form whose receivers do at each event of each thing that can be done to the editor, by its user or by the
// program, what a host may do. What must not be touched then is for the sanitizers to say.
#pragma once

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTimer>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace norvik::hostil {

inline const QString sumas =
    QStringLiteral(R"(Token mas = "\+"; Token num = "[0-9]+"; E -> E mas num | num;)");
inline const QString restas =
    QStringLiteral(R"(Token men = "-"; Token num = "[0-9]+"; E -> E men num | num;)");

inline void borra(QObject* objeto) {
    const std::unique_ptr<QObject> suyo(objeto);
}

struct Hostil;
using Accion = std::function<void(Hostil&)>;

/// A form as a host makes it, which does something at the nth thing that it hears of.
struct Hostil {
    struct Servicios final : SistemaQt {
        explicit Servicios(Hostil& hostil) : suyo(hostil) {}
        Respuesta muestraMensaje(const Mensaje& mensaje) override {
            mensajes.push_back(mensaje.texto);
            suyo.suceso();
            return Respuesta::Aceptar;
        }
        void procesaEventos() override { suyo.suceso(); }
        std::vector<std::u16string> mensajes;
        Hostil& suyo;
    };

    explicit Hostil(bool conAyudas = false) {
        auto& columna = nuevo<QVBoxLayout>(formulario.data());
        for (QWidget* w : {static_cast<QWidget*>(otro.data()), static_cast<QWidget*>(norvik.data())})
            columna.addWidget(w);
        formulario->resize(300, 200);
        formulario->show();
        QApplication::setActiveWindow(formulario);
        norvik->Colorear(true);
        norvik->MarcarErrores(true);
        norvik->MuestraMensajesDeError(true);
        norvik->Text("1 + 2\n3");
        norvik->control().CargaGramatica(vistaDe(sumas));
        norvik->control().GeneraCompilador();
        norvik->setFocus();
        if (conAyudas) enciende();
        QApplication::processEvents();
        conecta();
    }
    Hostil(const Hostil&) = delete;
    Hostil& operator=(const Hostil&) = delete;
    ~Hostil() {
        accion = nullptr;
        borra(formulario);
        acaba();
    }
    /// All that can be shown is there to be shown.
    void enciende() const {
        norvik->control().ponAyudas(todasLasAyudas());
        for (int i = 0; i < numeroDeAcciones; ++i) norvik->accion(static_cast<AccionNorvik>(i));
        norvik->ponDiagnosticos(analiza(norvik->control().lenguaje(), norvik->control().Text()).diagnosticos);
    }
    void conecta() {
        ControlNorvik* const n = norvik;
        const auto oye = [this](auto&&... argumentos) {
            argumento = nullptr;
            if constexpr ((std::is_same_v<decltype(argumentos), qint16&> || ...))
                argumento = &std::get<0>(std::forward_as_tuple(argumentos...));
            suceso();
        };
        const auto oyeTodo = [&](auto... senales) { (QObject::connect(n, senales, formulario, oye), ...); };
        oyeTodo(&ControlNorvik::change, &ControlNorvik::SelChange, &ControlNorvik::Click,
                &ControlNorvik::CambioDeLinea, &ControlNorvik::KeyDown, &ControlNorvik::KeyPress,
                &ControlNorvik::KeyUp, &ControlNorvik::MouseDown, &ControlNorvik::MouseMove,
                &ControlNorvik::MouseUp, &ControlNorvik::propiedadCambiada, &ControlNorvik::textoCambiado,
                &ControlNorvik::opcionesCambiadas, &ControlNorvik::ayudasCambiadas,
                &ControlNorvik::seleccionCambiada, &ControlNorvik::modificacionCambiada,
                &ControlNorvik::soloLecturaCambiada, &ControlNorvik::aumentoCambiado);
    }
    void suceso() {
        if (accion && --faltan == 0) accion(*this);
    }
    QWidget* editor() const { return norvik.isNull() ? nullptr : &norvik->caja().ventana(); }
    /// What was put off is done.
    static void acaba() {
        for (int i = 0; i < 2; ++i) QApplication::processEvents(); // a failure is told after it
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Accion accion;
    int faltan = 0;
    qint16* argumento = nullptr; ///< the first of the event, when it can be changed
    Servicios servicios{*this};
    QPointer<QWidget> formulario = &nuevo<QWidget>();
    QPointer<QPushButton> otro = &nuevo<QPushButton>();
    QPointer<ControlNorvik> norvik = &nuevo<ControlNorvik>(servicios, nullptr);
};

inline void teclea(Hostil& h, Qt::Key tecla, const QString& texto = {},
                   Qt::KeyboardModifiers teclas = Qt::NoModifier) {
    for (const auto accion : {QTest::Press, QTest::Release})
        if (h.editor() != nullptr) QTest::sendKeyEvent(accion, h.editor(), tecla, texto, teclas);
}

/// As the windowing system gives it, to whatever stands there.
inline void pulsa(Hostil& h, Qt::MouseButton boton, const std::function<QWidget*()>& donde) {
    const auto en = [&] { return donde()->mapTo(h.formulario, QPoint(3, 3)); };
    QWindow* const ventana = h.formulario->windowHandle();
    QTimer cierraMenus;
    QObject::connect(&cierraMenus, &QTimer::timeout, [] {
        if (QWidget* const menu = QApplication::activePopupWidget(); menu != nullptr) menu->close();
    });
    cierraMenus.start(0);
    QTest::mouseMove(ventana, en());
    if (!h.norvik.isNull()) QTest::mousePress(ventana, boton, {}, en());
    if (!h.norvik.isNull()) QTest::mouseRelease(ventana, boton, {}, en());
    if (!h.norvik.isNull()) QTest::mouseDClick(ventana, boton, {}, en());
}

using Operacion = std::function<void(Hostil&)>;

using Operaciones = std::vector<std::pair<std::string, Operacion>>;

/// Carries out an operation with something done at each of its events in turn, until there are no more.
/// What comes after it is told whether the operation raised anything.
inline void enCadaSuceso(const std::string& nombre, const Operacion& operacion, const Accion& accion,
                         const std::function<void(Hostil&, const std::string&, bool lanzado)>& despues,
                         bool conAyudas = false) {
    bool ocurrido = true;
    for (int vez = 1; ocurrido; ++vez) {
        ASSERT_LT(vez, 100) << nombre;
        Hostil h(conAyudas);
        ocurrido = false;
        h.faltan = vez;
        h.accion = [&](Hostil& quien) {
            ocurrido = true;
            quien.accion = nullptr;
            accion(quien);
        };
        bool lanzado = false;
        try {
            operacion(h);
        } catch (...) {
            lanzado = true;
        }
        Hostil::acaba();
        if (ocurrido) despues(h, nombre + " " + std::to_string(vez), lanzado);
    }
}

using Despues = std::function<void(Hostil&, const std::string&, bool)>;

inline void enTodos(std::initializer_list<const Operaciones*> cuales, const Accion& accion,
                    const Despues& despues, bool conAyudas = false) {
    for (const Operaciones* const operaciones : cuales)
        for (const auto& [nombre, operacion] : *operaciones)
            enCadaSuceso(nombre, operacion, accion, despues, conAyudas);
}
} // namespace norvik::hostil
