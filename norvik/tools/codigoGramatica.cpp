// SPDX-License-Identifier: MIT

#include "norvik/tools/codigoGramatica.hpp"

#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"
#include "norvik/tools/informe.hpp"
#include "norvik/tools/probarLenguaje.hpp"
#include "norvik/tools/procesando.hpp"
#include "norvik/tools/ventanas.hpp"

namespace norvik {

CodigoGramatica::CodigoGramatica(SistemaQt& sistema, QWidget* padre)
    : VentanaEditor(sistema, "CodigoGramatica", QStringLiteral("Definición de la Gramatica"), padre),
      lenguaje_(sistema) {
    QAction& prueba = herramienta("ProbarLenguaje", QStringLiteral("Probar el lenguaje ..."), Qt::Key_F5,
                                  [this] { probarElLenguaje(); });
    QAction& informe =
        herramienta("VerInforme", QStringLiteral("Ver Informe ..."), Qt::Key_F6, [this] { verInforme(); });
    ponEnBarraConTexto(prueba, Dibujo::Ejecutar);
    ponEnBarraConTexto(informe, Dibujo::Informe);
    ponMenus(QStringLiteral("&Gramática"), {&prueba, &informe},
             QStringLiteral("Editor de Gramática 1.0 alfa"));
    connect(&Norvik1(), &ControlNorvik::KeyUp, this, [this] { recoge(); });
}

void CodigoGramatica::carga() {
    Norvik& control = Norvik1().control();
    CargaMetaLenguaje(control);
    PasosFirmes paso;
    paso([&] { control.Text(ranurasDisenio().especificacion); });
    paso([&] { control.ColoreaTodo(); });
    paso([&] { control.InicializaUndosYRedos(); });
    paso.acaba();
}

/// After each key, and at the end for what was changed without one: by the mouse or a menu.
void CodigoGramatica::recoge() {
    const std::u16string_view texto = Norvik1().caja().texto();
    RanurasDisenio& ranuras = ranurasDisenio();
    if (texto == ranuras.especificacion) return;
    ranuras.especificacion = texto;
    ranuras.pendienteGuardar = true;
}

void CodigoGramatica::probarElLenguaje() {
    sistema().procesaEventos();
    const std::u16string especificacion = Norvik1().control().Text(); // with what those events typed
    ProbarLenguaje prueba(sistema(), parentWidget());
    Norvik& control = prueba.Norvik1().control();
    if (!control.CargaGramatica(especificacion)) {
        // A failed parse was reported by the control, a failed check is not.
        if (control.GetCodigoError() == 0)
            sistema().muestraMensaje(mensajeDeComprobacion(control.GetmensajeError()));
        return;
    }
    std::u16string fallo;
    {
        const PunteroOcupado ocupado(sistema());
        cierra();
        const VentanaDeAmbito<Procesando> aviso(sistema(), parentWidget());
        if (!control.GeneraCompilador()) {
            sistema().muestraMensaje(mensajeDeCompilacion(control.GetmensajeError()));
            return;
        }
        ranurasDisenio().especificacion = especificacion;
        fallo = falloDe([&] { prueba.carga(); });
    }
    if (!fallo.empty()) sistema().muestraMensaje({fallo, {}});
    sistema().muestraModal(prueba);
}

void CodigoGramatica::verInforme() {
    std::optional<LenguajeAparte::Fallo> fallo;
    {
        const PunteroOcupado ocupado(sistema());
        const VentanaDeAmbito<Procesando> aviso(sistema(), this, Procesando::Aparece::SiTarda);
        fallo = lenguaje_.construye(Norvik1().control());
        if (!fallo) sistema().procesaEventos();
    }
    if (!fallo) {
        MuestraInforme(lenguaje_.Gramatica(), lenguaje_.Lexico(), sistema(), this);
    } else if (fallo->paso == LenguajeAparte::Fallo::Paso::Comprobacion) {
        sistema().muestraMensaje(mensajeDeComprobacion(fallo->error));
    }
}

} // namespace norvik
