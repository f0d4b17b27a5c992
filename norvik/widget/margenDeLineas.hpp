// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/qt/vistaTexto.hpp"

#include <QWidget>

#include <vector>

namespace norvik {

class CajaTextoQt;
class DiagnosticosVistos;
class Plegado;

/// What the left border says of the lines beside it: their numbers, what is wrong in them, and what can be
/// folded, which a click does. It covers the border, and moves with the text.
class MargenDeLineas final : public QWidget {
public:
    MargenDeLineas(QWidget& borde, CajaTextoQt& caja, const DiagnosticosVistos& diagnosticos,
                   Plegado& plegado);

    void ponNumeros(bool visibles);
    /// Pixels that the border needs besides those for its signs.
    int anchoAdicional() const;
    /// The text may be another, or its caret. True when that needs a border of another width.
    bool sigue();

protected:
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* borde, QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;

private:
    using Lineas = std::vector<VistaTexto::Linea>;

    void muestraDiagnosticos();
    void pintaNumeros(QPainter& pintor, const Lineas& vistas) const;
    void pintaDiagnosticos(QPainter& pintor, const Lineas& vistas) const;
    void pintaPliegues(QPainter& pintor, const Lineas& vistas) const;
    int anchoDePliegues() const;

    CajaTextoQt& caja_;
    const DiagnosticosVistos& diagnosticos_;
    Plegado& plegado_;
    bool numeros_ = false;
    int ancho_ = 0;   ///< additional, when it was last told
    int actual_ = -1; ///< the line shown as the caret's
};

} // namespace norvik
