// SPDX-License-Identifier: MIT

#pragma once

#include "acciones.hpp"
#include "ayuda/paginaInicio.hpp"
#include "ayuda/paginaTeclas.hpp"
#include "ayuda/ventanaManual.hpp"
#include "ayuda/visita.hpp"
#include "barraDeAvisos.hpp"
#include "copiaTaller.hpp"
#include "lenguaje/ventanaLenguaje.hpp"
#include "ordenesFormulario.hpp"
#include "ordenesLenguaje.hpp"
#include "presentacion.hpp"

#include "norvik/tools/ventanaPropiedades.hpp"

#include <QMainWindow>
#include <QPointer>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <array>
#include <functional>
#include <memory>
#include <utility>

namespace norvik::taller {

/// What the window is given from outside, which must outlive it.
struct Entorno {
    SistemaQt& sistema;
    Dialogos& dialogos;
    QSettings& ajustes;
    QList<Ejemplo> ejemplos;
};

/// The workbench: a form in a window, with menus, the tree of the last parse and its error.
class VentanaPrincipal final : public QMainWindow {
    Q_OBJECT

public:
    explicit VentanaPrincipal(const Entorno& entorno);

    /// Opens a file as what its ending says it is: a form, a language, else a text.
    void abre(const QString& fichero);
    /// Opens a specification in the language window, and a text beside it unless that is empty.
    void abreEnVentana(const QString& especificacion, const QString& texto = {});
    /// In the form's place, until something is done with the form. Not where a person does not want it.
    void muestraInicioSiSeQuiere();

    /// What is not saved, here and in the language window.
    CopiaTaller copia();
    bool hayCambios() const;
    /// Puts back what was copied; false, with nothing done, when a person does not want to lose what is
    /// there.
    bool repone(const CopiaTaller& copia);
    /// Carries out a command, one at a time; a failure is told in a box.
    void ordena(const std::function<void()>& orden);
    /// Tells something where it is in nobody's way.
    void avisa(const QString& texto);

    // For those who drive it from outside.
    Formulario& formulario() { return formulario_; }
    Acciones& acciones() { return acciones_; }
    PanelArbol& arbol() { return arbol_; }
    PanelMensaje& mensaje() { return mensaje_; }
    VentanaRevision& revision() { return revision_; }
    /// Made when it is first asked for.
    VentanaLenguaje& ventanaLenguaje();
    PaginaInicio& inicio() { return inicio_; }
    VentanaManual& manual();
    PaginaTeclas& teclas();
    Visita& visita();

signals:
    /// Something that is not saved may be another.
    void cambiado();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

private:
    using DeEdicion = std::array<std::pair<QAction*, AccionNorvik>, 12>;

    template <typename Orden>
    void ejecuta(const Orden& orden);
    /// A command on the form, or one that leaves it alone.
    template <typename Orden>
    void conecta(QAction& accion, Orden orden);
    template <typename Orden>
    void conectaAparte(QAction& accion, Orden orden);
    void conectaArchivo();
    void conectaEdicion();
    DeEdicion deEdicion();
    void conectaFormulario();
    void conectaLenguaje();
    void conectaAyuda();
    void conectaInicio();
    void muestraVentanaLenguaje();
    void empiezaEnVentana(std::u16string_view especificacion, std::u16string_view texto);
    bool toma(const std::u16string& especificacion);
    void preparaAyuda(VentanaLenguaje& ventana);
    void muestraInicio();
    void muestraFormulario();
    void llenaEjemplos(const QList<Ejemplo>& ejemplos);
    void compone();
    void ponModo(bool disenio);
    void muestraPropiedades(VentanaPropiedades::Pagina pagina);
    void analiza();
    void otroActivo();
    void abreLosSoltados(const QStringList& ficheros);
    void cuentaFallo(const QString& texto);
    void actualizaTitulo();
    void actualizaLugar();
    void actualizaOrdenes();
    void actualizaEdicion();

    SistemaQt& sistema_;
    Dialogos& dialogos_;
    QSettings& ajustes_;
    Acciones acciones_{*this};
    Recientes textosRecientes_, formulariosRecientes_;
    QStackedWidget pila_;
    PaginaInicio inicio_;
    QWidget centro_;
    QVBoxLayout columna_;
    Formulario formulario_{sistema_, &centro_};
    PanelMensaje mensaje_{&centro_};
    PanelArbol arbol_{this};
    VentanaRevision revision_{this};
    BarraDeAvisos barra_;
    QLabel lenguaje_, formato_, lugar_;
    OrdenesTexto textos_;
    OrdenesFormulario formularios_;
    OrdenesLenguaje lenguajes_;
    std::unique_ptr<VentanaLenguaje> ventanaLenguaje_;
    ElementoFormulario* analizado_ = nullptr; ///< whose tree or error is shown
    Presentacion presentacion_;
    QPointer<VentanaManual> manual_; ///< the window's children, made when they are first asked for
    QPointer<PaginaTeclas> teclas_;
    QPointer<Visita> visita_;
    QByteArray conFormulario_; ///< the panels, as they come back with the form
    bool ocupada_ = false;     ///< a command runs
};

} // namespace norvik::taller
