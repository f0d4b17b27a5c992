// SPDX-License-Identifier: MIT

#pragma once

#include "apoyo/carpetaTemporal.hpp"
#include "lenguaje/ventanaLenguaje.hpp"
#include "qt/sistemaDePrueba.hpp"
#include "taller/dialogosGuion.hpp"

#include <QApplication>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

#include <string_view>

namespace norvik::taller {

/// The language window, shown, with settings of its own.
struct ConVentanaLenguaje : testing::Test {
    ConVentanaLenguaje() {
        ventana.show();
        QApplication::setActiveWindow(&ventana);
    }
    void empieza(std::u16string_view suya, std::u16string_view suyo) {
        ventana.empieza(suya, suyo);
        espera();
    }
    /// Until what was written is known.
    void espera() {
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return ventana.seguimiento().completo() && !ventana.mostrando(); }));
        QApplication::processEvents();
    }

    apoyo::CarpetaTemporal carpeta;
    DialogosGuion dialogos;
    SistemaGuion sistema{dialogos};
    QSettings ajustes{QString::fromStdString((carpeta / "ajustes.ini").string()), QSettings::IniFormat};
    VentanaLenguaje ventana{sistema, dialogos, ajustes};
    EditorTexto& especificacion = ventana.especificacion();
    EditorTexto& texto = ventana.texto();
};

} // namespace norvik::taller
