// SPDX-License-Identifier: MIT

#pragma once

#include "documentos.hpp"
#include "elementoFormulario.hpp"
#include "ficheroFormulario.hpp"

#include <QSplitter>
#include <QString>

#include <memory>
#include <vector>

namespace norvik::taller {

/// All that there is of a form, to be put back in another life of the program.
struct EstadoFormulario {
    FormularioGuardado guardado; ///< without the paths of its texts
    QString fichero;
    QString huella; ///< of the file as it was last read or written
    bool modificado = false;
    std::vector<EstadoDocumento> textos; ///< of the controls, in their order
};

/// The container of the controls: one or several beside or above each other, of which one is the active one.
class Formulario final : public QSplitter {
    Q_OBJECT

public:
    using Elementos = std::vector<std::unique_ptr<ElementoFormulario>>;

    /// With one control, in the mode of use. Message boxes go through `sistema`, which must outlive it.
    explicit Formulario(SistemaQt& sistema, QWidget* padre = nullptr);

    const Elementos& elementos() const { return elementos_; }
    ElementoFormulario& activo() { return *elementos_[activo_]; }
    void activa(ElementoFormulario& elemento);
    Modo modo() const { return modo_; }
    void ponModo(Modo modo);
    /// Its languages, those that are loaded, take as much memory as is left to them: the others are loaded
    /// one by one, by who uses them.
    bool estaLleno() const;

    /// A new control behind the others, which becomes the active one. An empty name is the first free one.
    ElementoFormulario& anade(const QString& nombre = {});
    /// The form keeps one control at least.
    void quitaActivo();
    /// One control again, without a file.
    void vacia();

    // What is saved: the controls with their property bags, and where their texts and modules are.
    const QString& fichero() const { return fichero_.ruta(); }
    QString titulo() const;
    bool modificado() const { return modificado_; }
    void ponModificado(bool modificado);
    /// Raises `ErrorDeFichero`, and `NoCoincidenLosTipos` for what is no form; the form is then what it was.
    /// What is wrong with the texts and languages of the controls comes back, a line each.
    QStringList abre(const QString& fichero);
    void guarda(const QString& fichero);
    /// What stands in the place of its file is not what was read from there or written.
    bool otroLoCambio() const { return fichero_.otroLoCambio(); }
    /// It, or the text of a control, is not saved.
    bool hayCambios() const;
    EstadoFormulario estado() const;
    /// As `abre` does it.
    QStringList repone(const EstadoFormulario& estado);

signals:
    void otroActivo();
    void otroTexto(); ///< of any control
    void otroLugar(); ///< of the active one's caret
    void fallo(const QString& texto);
    void aviso(const QString& texto);
    void cambiado(); ///< the controls, or what is saved of them
    void pidePropiedades();

private:
    QString nombreLibre() const;
    void retira(std::size_t cuantos);
    void anade(const std::vector<ElementoGuardado>& guardados);
    void restaura(ElementoFormulario& elemento, const ElementoGuardado& guardado, std::size_t lugar);
    QStringList llena(const std::vector<ElementoGuardado>& guardados);
    QStringList pon(const FormularioGuardado& formulario);
    void muestraTitulos();
    void conecta(ElementoFormulario& elemento);

    SistemaQt& sistema_;
    Elementos elementos_;
    std::size_t activo_ = 0;
    Modo modo_ = Modo::Ejecucion;
    FicheroConocido fichero_;
    QJsonObject otros_; ///< of its file, for who knows them
    bool modificado_ = false;
};

} // namespace norvik::taller
