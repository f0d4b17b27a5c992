// SPDX-License-Identifier: MIT

#include "apoyo/carpetaTemporal.hpp"
#include "apoyo/repite.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/impresion.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"

#include <QPaintEngine>
#include <QPrintEngine>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <algorithm>

using namespace norvik;

namespace {

struct Vista {
    QString titulo, texto, botones, resto;
    QMessageBox::Icon icono = QMessageBox::NoIcon;
};

/// Clicks a button of the next message box, or escapes from it when there is no such button.
Vista contesta(SistemaQt& sistema, const Mensaje& mensaje, const QString& boton, Respuesta esperada) {
    Vista vista;
    QTimer::singleShot(0, [&] {
        auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(caja, nullptr);
        const auto* resto = caja->findChild<QPlainTextEdit*>();
        QFont negrita = caja->font();
        negrita.setBold(true);
        const QFontMetrics letra(negrita); // beside the title stand an icon and three buttons
        EXPECT_GE(caja->width(), letra.horizontalAdvance(caja->windowTitle()) + 4 * letra.height());
        vista = {caja->windowTitle(),
                 caja->text(),
                 {},
                 resto == nullptr ? "" : resto->toPlainText(),
                 caja->icon()};
        QAbstractButton* elegido = nullptr;
        for (QAbstractButton* b : caja->buttons()) {
            vista.botones += b->text() + ' ';
            if (b->text() == boton) elegido = b;
        }
        elegido != nullptr ? elegido->click() : caja->reject();
    });
    EXPECT_EQ(sistema.muestraMensaje(mensaje), esperada);
    return vista;
}

} // namespace

TEST(SistemaQt, CajasDeMensaje) {
    SistemaQt sistema;
    const Mensaje error{u"<b>texto</b>", u"ERROR Léxico en la especificación que se ha abierto",
                        Icono::Exclamacion};
    const Vista vista = contesta(sistema, error, "Aceptar", Respuesta::Aceptar);
    EXPECT_EQ(vista.titulo, "ERROR Léxico en la especificación que se ha abierto");
    EXPECT_EQ(vista.texto, "<b>texto</b>");
    EXPECT_EQ(vista.botones, "Aceptar ");
    EXPECT_EQ(vista.icono, QMessageBox::Warning);
    contesta(sistema, error, "", Respuesta::Aceptar); // escape, with one button
    const Mensaje pregunta{u"¿Seguro?", u"Norvik", Icono::Pregunta, Botones::AceptarCancelar};
    EXPECT_EQ(contesta(sistema, pregunta, "Cancelar", Respuesta::Cancelar).botones, "Aceptar Cancelar ");
    contesta(sistema, pregunta, "Aceptar", Respuesta::Aceptar);
    contesta(sistema, pregunta, "", Respuesta::Cancelar);
    const std::u16string lineas = apoyo::repite(u"línea\n", 300); // too many for a screen
    const Vista larga =
        contesta(sistema, {u"Problemas:\r\n\r\n" + lineas, u"Norvik"}, "Aceptar", Respuesta::Aceptar);
    EXPECT_EQ(larga.texto, "Problemas:");
    EXPECT_EQ(larga.resto, QString::fromStdU16String(lineas).trimmed());
}

TEST(SistemaQt, PunteroDeLaAplicacion) {
    SistemaQt sistema;
    {
        const PunteroOcupado ocupado(sistema);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

namespace {

/// A printer that writes down what is drawn on it: pages of 50 letters by 20 lines.
class ImpresoraDePrueba final : public QPrinter, QPrintEngine, QPaintEngine {
public:
    ImpresoraDePrueba() : QPaintEngine(AllFeatures) {
        setEngines(this, this);
        const QFontMetrics letra(aQFont({}), this);
        ancho_ = letra.horizontalAdvance(u'x') * 50;
        alto_ = letra.height() * 20;
    }

    QString texto; ///< a line of it for each one of a page, a form feed between pages
    double masALaDerecha = 0;
    double masAbajo = 0;
    int ancho() const { return ancho_; }
    int alto() const { return alto_; }

private:
    bool newPage() override {
        texto += u'\f';
        return true;
    }
    int metric(PaintDeviceMetric medida) const override {
        if (medida == PdmWidth) return ancho_;
        if (medida == PdmHeight) return alto_;
        return medida == PdmDevicePixelRatio ? 1 : medida == PdmDevicePixelRatioScaled ? 65536 : 96;
    }
    void setProperty(PrintEnginePropertyKey /*clave*/, const QVariant& /*valor*/) override {}
    QVariant property(PrintEnginePropertyKey /*clave*/) const override { return {}; }
    bool abort() override { return true; }
    QPrinter::PrinterState printerState() const override { return QPrinter::Active; }
    bool begin(QPaintDevice* /*papel*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*estado*/) override {}
    void drawPixmap(const QRectF& /*r*/, const QPixmap& /*p*/, const QRectF& /*s*/) override {}
    void drawPolygon(const QPointF* /*p*/, int /*n*/, PolygonDrawMode /*m*/) override {}
    Type type() const override { return User; }
    void drawTextItem(const QPointF& donde, const QTextItem& trozo) override {
        texto += trozo.text();
        masALaDerecha = std::max(masALaDerecha, donde.x() + trozo.width());
        masAbajo = std::max(masAbajo, donde.y() + trozo.descent());
    }

    int ancho_ = 0;
    int alto_ = 0;
};

} // namespace

TEST(SistemaQt, LoImpresoCabeEnteroEnLaPagina) {
    const std::u16string anchas = apoyo::repite(u"漢字", 100);
    for (const std::u16string& texto :
         {std::u16string(120, u'x'), apoyo::repite(u"a\tb", 40), std::u16string(30, u'\t') + u"z", anchas,
          apoyo::repite(u"\U0001F600", 60), std::u16string(7000, u'y')}) {
        ImpresoraDePrueba impresora;
        const QString linea = QString::fromStdU16String(texto);
        Impresion(impresora).imprimeLinea(linea);
        EXPECT_EQ(impresora.texto.remove(u'\f').remove(u'\t'), QString(linea).remove(u'\t'));
        EXPECT_LE(impresora.masALaDerecha, impresora.ancho() + 0.5);
        EXPECT_LE(impresora.masAbajo, impresora.alto() + 0.5);
    }
}

/// What waits for a person is not hidden by a window that stays above the others.
TEST(SistemaQt, LaCajaNoQuedaDetras) {
    SistemaQt sistema;
    QWidget encima;
    encima.setWindowFlag(Qt::WindowStaysOnTopHint);
    for (const bool hay : {false, true, false}) {
        encima.setVisible(hay);
        bool delante = !hay;
        QTimer::singleShot(0, [&] {
            QWidget* const caja = QApplication::activeModalWidget();
            delante = caja->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
            caja->close();
        });
        sistema.muestraMensaje({u"x", {}, Icono::Ninguno, Botones::Aceptar});
        EXPECT_EQ(delante, hay);
    }
}

/// Of a file, by a program of others.
TEST(SistemaQt, LoImpresoSeLeeEnteroDentroDeLaPagina) {
    const QString lector = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (lector.isEmpty()) GTEST_SKIP() << "there is no pdftotext (poppler-utils)";
    const apoyo::CarpetaTemporal carpeta;
    const QString fichero = QString::fromStdString((carpeta / "x.pdf").string());
    const std::u16string texto = apoyo::repite(u"a\tb", 60) + u"\r\n" + std::u16string(30, u'\t') + u"z\r\n" +
                                 apoyo::repite(u"ñe\u0301", 90) + u"\r\n" + std::u16string(79, u'x') +
                                 u"\tfin\r\n" + std::u16string(15'000, u'y') + u"\r\n" +
                                 std::u16string(200, u' ') + u"w";
    SistemaQt sistema;
    sistema.imprimeEnFichero(fichero);
    sistema.imprime(texto);
    QProcess proceso;
    proceso.start(lector, {QStringLiteral("-bbox"), fichero, QStringLiteral("-")});
    ASSERT_TRUE(proceso.waitForFinished());

    QRectF pagina;
    QString leido;
    for (QXmlStreamReader xml(proceso.readAllStandardOutput()); !xml.atEnd(); xml.readNext()) {
        const auto numero = [&](const char* nombre) {
            return xml.attributes().value(QLatin1String(nombre)).toDouble();
        };
        if (!xml.isStartElement()) continue;
        if (xml.name() == u"page") pagina = {0, 0, numero("width"), numero("height")};
        if (xml.name() != u"word") continue;
        const QRectF sitio(QPointF(numero("xMin"), numero("yMin")), QPointF(numero("xMax"), numero("yMax")));
        leido += xml.readElementText();
        EXPECT_TRUE(pagina.contains(sitio)) << sitio.right() << " " << sitio.bottom();
    }
    const auto letras = [](const QString& t) {
        QString suyas = t.simplified().remove(u' ').normalized(QString::NormalizationForm_C);
        std::ranges::sort(suyas);
        return suyas;
    };
    EXPECT_EQ(letras(leido), letras(QString::fromStdU16String(texto)));
}

TEST(SistemaQt, ImprimeEnPdf) {
    const apoyo::CarpetaTemporal carpeta;
    const auto bytesDe = [&](std::string_view nombre, std::u16string_view texto) {
        const auto ruta = carpeta / nombre;
        SistemaQt sistema;
        sistema.imprimeEnFichero(QString::fromStdString(ruta.string()));
        sistema.imprime(texto);
        return QByteArray::fromStdString(apoyo::bytesDe(ruta));
    };
    const auto paginas = [](const QByteArray& pdf) { return pdf.count("/Type /Page\n"); };
    const QByteArray una = bytesDe("una.pdf", u"hola\r\nñandú");
    EXPECT_TRUE(una.startsWith("%PDF"));
    EXPECT_EQ(paginas(una), 1);
    EXPECT_EQ(paginas(bytesDe("varias.pdf", apoyo::repite(u"línea\r\n", 150))), 3);
    EXPECT_EQ(paginas(bytesDe("ancha.pdf", std::u16string(15000, u'x'))),
              paginas(bytesDe("ancha2.pdf", std::u16string(15000, u'y'))));
    SistemaQt sistema;
    sistema.imprimeEnFichero(QStringLiteral("/no/hay/tal/carpeta.pdf"));
    EXPECT_THROW(sistema.imprime(u"x"), ErrorNorvik);
}
