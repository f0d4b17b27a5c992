// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/widget/buscadorDeFondo.hpp"
#include "norvik/widget/resaltes.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

namespace norvik {

class ControlNorvik;

/// The find bar below the text of a control, which finds while a person types, counts, and goes round the end
/// of the text. The control gives it its place; what it finds is selected in the text, which keeps clear of
/// it, and while it is shown all that is found stands out.
class BarraBusqueda final : public QWidget {
    Q_OBJECT

public:
    enum class Salto : std::uint8_t { Primera, Siguiente, Anterior };

    BarraBusqueda(ControlNorvik& control, Resaltes& resaltes);
    BarraBusqueda(const BarraBusqueda&) = delete;
    BarraBusqueda& operator=(const BarraBusqueda&) = delete;
    ~BarraBusqueda() override;

    /// Shows the bar for someone who is about to type; what is selected in a line is looked for.
    void abre();
    /// Goes on with what was looked for last, whoever has the focus; opens when there is nothing.
    void sigue(Salto salto);
    /// Hides the bar and gives the focus back.
    void cierra();

signals:
    /// The bar was shown or hidden.
    void otroSitio();

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    /// Of the result: of another text or request, on its way, or of this one.
    enum class Estado : std::uint8_t { Vieja, Buscando, AlDia };

    void compone();
    void conecta();
    BusquedaDirecta peticion() const;
    void muestra();
    void envejece();
    void cambiaPeticion();
    void cambiaTexto();
    void pide(Salto salto);
    void lanza();
    void recibe(const BuscadorDeFondo::Resultado& resultado);
    void salta(Salto salto);
    struct Aviso {
        QString texto;
        bool malo = false;
    };
    Aviso cuenta() const;
    void actualizaCuenta();
    void avisa(const QString& texto, bool malo);
    std::vector<Resalte> halladas(std::int32_t desde, std::int32_t hasta) const;

    ControlNorvik& control_;
    Resaltes& resaltes_;
    QLineEdit campo_{this};
    QToolButton anterior_{this};
    QToolButton siguiente_{this};
    QToolButton mayusculas_{this};
    QToolButton palabras_{this};
    QToolButton expresion_{this};
    QLabel cuenta_{this};
    QToolButton cierra_{this};
    QTimer tarda_;  ///< to say that it is being searched
    QTimer repaso_; ///< to search again, the text being another
    BuscadorDeFondo fondo_;
    BuscadorDeFondo::Resultado resultado_;
    Estado estado_ = Estado::Vieja;
    std::optional<Salto> pendiente_; ///< to be done as soon as there is a result
    std::int32_t origen_ = 0;        ///< where who types began
};

} // namespace norvik
