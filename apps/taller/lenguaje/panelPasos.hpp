// SPDX-License-Identifier: MIT

#pragma once

#include "panel.hpp"
#include "rotulo.hpp"
#include "vistaPila.hpp"

#include "norvik/parser/pelicula.hpp"
#include "norvik/widget/trabajoDeFondo.hpp"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include <cstddef>
#include <memory>
#include <optional>
#include <variant>

namespace norvik::taller {

/// The parse of the text as a film: stack, partial trees, what is left of the text, and each action in words.
/// A film is made when the panel is seen, in another thread; until it is there the one before stays.
class PanelPasos final : public Panel {
    Q_OBJECT

public:
    explicit PanelPasos(QWidget* padre = nullptr);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    void selecciona(const Eleccion& eleccion) override;

    // For those who drive it from outside.
    const Pelicula* pelicula() const;
    std::size_t momento() const { return momento_; }
    QString palabras() const { return accion_.text(); }

protected:
    void alVerse() override;

private:
    using Filmada = std::variant<Pelicula, Diagnostico>;
    using Resultado = std::shared_ptr<const Filmada>;

    void compone();
    void conecta(QAction& accion, const QString& texto, const QKeySequence& tecla, const QString& explicacion,
                 void (PanelPasos::*orden)());
    void filmaSiSeVe();
    void toma(std::shared_ptr<const Estudio> estudio, const std::optional<Resultado>& resultado);
    void sinPelicula(const QString& motivo);
    void muestra();
    void muestraTexto(const Pelicula& pelicula);
    void activa();
    /// The film is of the last study.
    bool alDia() const { return estudio_ == ultimoEstudio_; }
    void va(std::size_t momento);
    void eligeDeLaPila(Pelicula::Nodo nodo);

    void vaAlPrimero() { va(0); }
    void atras() { va(momento_ == 0 ? 0 : momento_ - 1); }
    void adelante() { va(momento_ + 1); }
    void vaAlUltimo();
    void vaAlCursor();
    void corre();
    void para();

    std::shared_ptr<const Estudio> ultimoEstudio_;
    std::shared_ptr<const Estudio> pendiente_; ///< to be filmed once the panel is seen
    std::shared_ptr<const Estudio> estudio_;   ///< of the film
    Resultado filmada_;
    std::size_t momento_ = 0;
    std::size_t cursor_ = 0; ///< in the text

    QSplitter partes_;
    QWidget centro_;
    QVBoxLayout columna_;
    QHBoxLayout botones_, lugar_;
    QAction primero_, atras_, adelante_, correr_, ultimo_, alCursor_, alError_;
    QSpinBox paso_;
    QSlider corredera_{Qt::Horizontal};
    Rotulo accion_, conflicto_;
    QLabel resto_;
    VistaPila pila_;
    QTimer reloj_{this};
    TrabajoDeFondo<Resultado> trabajo_; ///< goes first
};

} // namespace norvik::taller
