// SPDX-License-Identifier: MIT

#pragma once

#include "../archivador.hpp"
#include "../barraDeAvisos.hpp"
#include "../recientes.hpp"
#include "ayudaDeNombres.hpp"
#include "editorTexto.hpp"
#include "panelAnalisis.hpp"
#include "panelAutomata.hpp"
#include "panelConflicto.hpp"
#include "panelConjuntos.hpp"
#include "panelDiagramas.hpp"
#include "panelPasos.hpp"
#include "panelProblemas.hpp"
#include "panelTabla.hpp"
#include "panelUsos.hpp"
#include "seguimiento.hpp"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>
#include <QSplitter>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace norvik::taller {

/// The language window: a specification, a text of its language, and panels that show what is known of both
/// while they are typed.
class VentanaLenguaje final : public QMainWindow {
    Q_OBJECT

public:
    /// All outlive it.
    VentanaLenguaje(SistemaQt& sistema, Dialogos& dialogos, QSettings& ajustes);
    VentanaLenguaje(const VentanaLenguaje&) = delete;
    VentanaLenguaje& operator=(const VentanaLenguaje&) = delete;
    /// The focus goes while all of it is there: a panel that dies with it would hand it to an editor.
    ~VentanaLenguaje() override { hide(); }

    /// A specification and a text in the place of those that it has; neither has a file. False when a
    /// person does not want to lose those.
    bool empieza(std::u16string_view especificacion, std::u16string_view texto);
    /// The specification, or the text, of a file.
    void abre(const QString& especificacion);
    void abreTexto(const QString& fichero);
    /// Shows it in front.
    void trae();
    /// Asks what is to become of what was written and is not saved; false when it stays. What a closed window
    /// has was asked for.
    bool puedePerder();
    /// One of the documents is changed, and the window open.
    bool hayCambios() const;
    /// Both documents, while there are changes.
    std::optional<std::array<EstadoDocumento, 2>> copia() const;
    /// Puts them back; the caller has asked for those that are there.
    void repone(const std::array<EstadoDocumento, 2>& documentos);
    /// Tells something where it is in nobody's way.
    void avisa(const QString& texto);
    /// Who takes the specification for the control that the workbench has active; false when it was not
    /// taken.
    using Uso = std::function<bool(const std::u16string& especificacion)>;
    void ponUso(Uso uso) { uso_ = std::move(uso); }

    // For those who drive it from outside.
    EditorTexto& especificacion() { return especificacion_; }
    EditorTexto& texto() { return texto_; }
    PanelProblemas& problemas() { return problemas_; }
    PanelAnalisis& arbol() { return arbol_; }
    PanelConjuntos& conjuntos() { return conjuntos_; }
    PanelTabla& tabla() { return tabla_; }
    PanelPasos& pasos() { return pasos_; }
    PanelAutomata& automata() { return automata_; }
    PanelUsos& usos() { return usos_; }
    PanelConflicto& conflicto() { return conflicto_; }
    PanelDiagramas& diagramas() { return diagramas_; }
    Seguimiento& seguimiento() { return seguimiento_; }
    /// Some panels have still to be given what was studied last.
    bool mostrando() const { return porDar_ > 0; }
    QMenu& ver() { return ver_; }

signals:
    /// A file that is not for this window was dropped on it.
    void pideAbrir(const QString& fichero);
    /// Something that is not saved may be another.
    void cambiado();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

private:
    std::array<Panel*, 9> paneles() {
        return {&problemas_, &arbol_, &conjuntos_, &tabla_,    &pasos_,
                &automata_,  &usos_,  &conflicto_, &diagramas_};
    }
    template <typename Orden>
    void ejecuta(const Orden& orden);
    QAction& accion(QMenu& menu, const QString& texto, const QKeySequence& teclas,
                    const std::function<void()>& orden);
    void compone();
    void colocaPaneles();
    void ponMenus();
    void ponMenuNombres();
    void ponMenuVer();
    void abrePanel(Panel& panel);
    void conecta();
    void conecta(EditorTexto& editor);
    void conecta(Panel& panel);

    // The documents.
    bool sustituye(std::u16string_view especificacion, std::u16string_view texto);
    void abreEspecificacion(const QString& fichero);
    void abreTextoDe(const QString& fichero);
    void abreSoltado(const QString& fichero);
    ComoSeGuarda como(const EditorTexto& editor) const;
    bool anota(const EditorTexto& editor, Archivado archivado);
    void guardaTodo();
    void usa();
    bool puedePerder(EditorTexto& editor);
    void actualizaTitulo();
    void actualizaFormato();
    void actualizaLugar();

    // What is known of them.
    void cambio();
    void recibe(const std::shared_ptr<const Estudio>& estudio);
    void muestra();
    void muestraEnTexto();
    void acabaDeMostrar();
    void marca();
    void sigueCursor();
    Eleccion enCursor();
    void elige(const Eleccion& eleccion, const Panel* desde);
    void reparte(const Eleccion& eleccion, const Panel* desde);
    /// What a panel shows.
    const std::shared_ptr<const Estudio>& estudioDe(const Panel& panel) const {
        return panel.muestraLoQueNoCompila() ? ultimo_ : mostrado_;
    }
    void muestraEnEditores(const Estudio& estudio, const Eleccion& eleccion);
    void arregla(const Panel& desde, Lado lado, const Arreglo& arreglo);
    void arreglaLoDelCursor();
    QString palabrasDe(const NombreEscrito& nombre, AyudaDeNombres::Pregunta pregunta) const;
    bool hayProblemaEn(const NombreEscrito& nombre) const;
    EditorTexto& editorDe(Lado lado) { return lado == Lado::Especificacion ? especificacion_ : texto_; }

    SistemaQt& sistema_;
    Dialogos& dialogos_;
    QSettings& ajustes_;
    Archivador archivador_;
    QSplitter editores_;
    EditorTexto especificacion_;
    EditorTexto texto_;
    Historias historias_;
    PanelProblemas problemas_{historias_, this};
    PanelConflicto conflicto_{historias_, dialogos_, this};
    PanelAnalisis arbol_{dialogos_, this};
    PanelConjuntos conjuntos_{this};
    PanelTabla tabla_{dialogos_, this};
    PanelPasos pasos_{this};
    PanelAutomata automata_{dialogos_, this};
    PanelUsos usos_{this};
    PanelDiagramas diagramas_{dialogos_, this};
    AyudaDeNombres nombres_;
    QMenu archivo_, edicion_, menuNombres_, ver_, menuRecientes_;
    QAction arreglar_{QStringLiteral("&Arreglar el problema")};
    Recientes recientes_;
    BarraDeAvisos barra_;
    QLabel estado_, formato_, lugar_;
    Uso uso_;
    Seguimiento seguimiento_;
    QTimer porMostrar_;                       ///< another turn: keys pass between
    std::size_t porDar_ = 0;                  ///< panels that do not have yet what was studied last
    QTimer atraso_;                           ///< until what is shown is marked as older than the texts
    std::shared_ptr<const Estudio> ultimo_;   ///< what the problems are of
    std::shared_ptr<const Estudio> mostrado_; ///< the last one with a language, which the other panels show
    std::shared_ptr<const Estudio> anterior_; ///< the one before it, while some panels show that
    EditorTexto* activo_ = &especificacion_;  ///< where the person writes
    bool eligiendo_ = false;
    bool ocupada_ = false; ///< a command runs
};

} // namespace norvik::taller
