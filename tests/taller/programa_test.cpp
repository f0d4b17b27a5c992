// SPDX-License-Identifier: MIT

// The workbench as a program of its own: words in, what it remembers and its exit status out.
#include "apoyo/carpetaTemporal.hpp"

#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

#include <string_view>

using namespace norvik;

namespace {

struct ProgramaDelTaller : testing::Test {
    ProgramaDelTaller() {
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        for (const char* casa : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            entorno.insert(casa, QString::fromStdString(carpeta.ruta().string()));
        proceso.setProcessEnvironment(entorno);
    }
    QString pon(std::string_view nombre, std::string_view bytes) const {
        return QString::fromStdString(carpeta.pon(nombre, bytes).string());
    }
    QByteArray ajustes() const {
        QFile fichero(QString::fromStdString((carpeta / "norvik/taller.ini").string()));
        return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
    }

    apoyo::CarpetaTemporal carpeta;
    QProcess proceso;
};

} // namespace

/// A text alone is for the form; with a language it is for that one's window.
TEST_F(ProgramaDelTaller, AbreLoQueSeLeDaYUnaSenalLoAcaba) {
    const QString texto = pon("texto.txt", "a"),
                  lenguaje = pon("lenguaje.nvk", "Token a = \"a\";\nS -> a;\n");
    for (const auto& [ficheros, recientes] :
         {std::pair(QStringList{texto, lenguaje}, "lenguajes=" + lenguaje), {{texto}, "textos=" + texto}}) {
        proceso.start(NORVIK_TALLER, ficheros);
        const QByteArray linea = recientes.toUtf8();
        EXPECT_TRUE(QTest::qWaitFor([&] { return ajustes().contains(linea); }, 20'000))
            << linea.toStdString();
        EXPECT_EQ(ajustes().contains("textos="), linea.startsWith("textos="));
        proceso.terminate();
        ASSERT_TRUE(proceso.waitForFinished());
        EXPECT_EQ(proceso.exitCode(), 128 + 15);
    }
}

TEST_F(ProgramaDelTaller, LoQueNoEntiendeLoDiceDondeToca) {
    for (const auto& [palabra, estado] : {std::pair("--help", 0), {"--otra\x1b[2J", 2}}) {
        proceso.start(NORVIK_TALLER, {palabra});
        ASSERT_TRUE(proceso.waitForFinished());
        EXPECT_EQ(proceso.exitCode(), estado);
        EXPECT_EQ(proceso.readAllStandardOutput().isEmpty(), estado != 0);
        EXPECT_EQ(proceso.readAllStandardError().contains('\x1b'),
                  estado != 0); // as it is: no terminal reads it
    }
}
