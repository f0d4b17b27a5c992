// SPDX-License-Identifier: MIT

#pragma once

#include "documentoTexto.hpp"
#include "ficheroFormulario.hpp"
#include "veloDisenio.hpp"

#include "norvik/widget/controlNorvik.hpp"

#include <QLabel>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

#include <cstddef>
#include <string>

namespace norvik::taller {

enum class Modo : std::uint8_t { Disenio, Ejecucion };

/// A control on the form, with what its container knows of it: its name, the file of its text, the loading
/// module of its language.
class ElementoFormulario final : public QWidget {
    Q_OBJECT

public:
    ElementoFormulario(const QString& nombre, SistemaQt& sistema, QWidget* padre);

    ControlNorvik& norvik() { return norvik_; }
    const QString& nombre() const { return nombre_; }

    /// Takes properties, and what nobody knows. Raises what the control raises for a bag with wrong values.
    void restaura(const ElementoGuardado& guardado);
    /// What a form keeps of it.
    ElementoGuardado guardado();

    /// What is saved is what the control has now.
    void anotaGuardado() { guardada_ = bolsa(); }

    // The text.
    DocumentoTexto& documento() { return documento_; }
    const QString& fichero() const { return documento_.fichero(); }
    QString tituloTexto() const { return documento_.titulo(); }
    bool textoModificado() const { return documento_.modificado(); }
    void nuevoTexto() { documento_.vacia(); }
    void abreTexto(const QString& fichero) { documento_.abre(fichero); }

    /// Puts the caret at a place (1-based), with the text selected that is expected there.
    void vaA(int linea, int columna, const QString& texto);

    // The language: of a loading module when there is one, else of the specification that the control keeps.
    // Another specification takes a module's place.
    const QString& modulo() const { return modulo_; }
    void ponModulo(const QString& fichero);
    /// Loads it unless it is loaded. What is wrong with it, empty when nothing is. Raises
    /// `OperacionCancelada` with the one before in its place.
    std::u16string preparaLenguaje();
    /// It has a language, which is not loaded as it is now.
    bool faltaLenguaje();
    /// How many characters the patterns of the loaded language have, with those of the names in them.
    std::size_t patrones();
    /// What the language is made of, to be put back when nothing comes of another one.
    struct Origen {
        QString nombre;
        std::u16string especificacion;
        QString modulo;
        bool alDia = true;
    };
    Origen origen();
    void vuelveA(const Origen& origen);

    void ponModo(Modo modo);
    void ponSeleccionado(bool seleccionado);
    /// Shows the heading, of use where there is more than one control.
    void muestraTitulo(bool visible) { titulo_.setVisible(visible); }

signals:
    void activado();
    void pidePropiedades();
    /// The text, its file or its mark.
    void otroTexto();
    void otroLugar(); ///< of the caret
    /// A limit was passed, or something else failed, while the user worked on the text.
    void fallo(const QString& texto);
    /// What was done is not all that was asked for.
    void aviso(const QString& texto);
    /// What is saved has changed: the property bag, or what the container keeps besides.
    void otraPropiedad();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void cedeTeclas();
    void cambiaTexto();
    void conecta();
    void actualizaTitulo();
    void anota(const QString& propiedad);
    void anotaEspecificacion();
    std::string bolsa();

    SistemaQt& sistema_;
    QString nombre_;
    QString modulo_;
    QJsonObject otros_; ///< of what was restored, for who knows them
    QJsonObject otrosDeBolsa_;
    std::string guardada_;          ///< the property bag as it was last saved
    std::u16string especificacion_; ///< as it was last seen
    bool lenguajeAlDia_ = true;     ///< nothing to load, or loaded as the properties say
    QVBoxLayout columna_;
    QLabel titulo_;
    VeloDisenio velo_;
    DocumentoTexto documento_{norvik_}; ///< goes after the control, which may tell of its text until then
    ControlNorvik norvik_;
};

} // namespace norvik::taller
